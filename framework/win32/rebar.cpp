// CReBar: bands with windows on the native control.

#include <afxext.h>

#include "detail/ControlSupport.h"
#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

using framework::Send;
using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CReBar, CControlBar)

// clang-format off
BEGIN_MESSAGE_MAP(CReBar, CControlBar)
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_PAINT()
    ON_NOTIFY_REFLECT(RBN_HEIGHTCHANGE, &CReBar::HandleHeightChange)
END_MESSAGE_MAP()
// clang-format on

CReBar::CReBar()
{
    SetBorders(0, 0, 0, 0);
}

CReBar::~CReBar()
{
    m_control.m_hWnd = nullptr;
    DestroyWindow();
}

BOOL CReBar::Create(CWnd * pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID)
{
    ASSERT(pParentWnd != nullptr && (dwStyle & WS_CHILD) != 0);
    DWORD const style = TakeStyles(dwStyle, nID) | dwCtrlStyle | RBS_VARHEIGHT;
    framework::LoadControlClasses(ICC_COOL_CLASSES);
    return CreateNative(REBARCLASSNAME, style, pParentWnd, nID);
}

CReBarCtrl & CReBar::GetReBarCtrl() const
{
    m_control.m_hWnd = m_hWnd;
    return m_control;
}

BOOL CReBar::AddBar(CWnd * pBar, LPCTSTR pszText, CBitmap * pbmp, DWORD dwStyle)
{
    REBARBANDINFO band{};
    band.fMask = RBBIM_STYLE;
    band.fStyle = dwStyle;
    if (pszText != nullptr)
    {
        band.fMask |= RBBIM_TEXT;
        band.lpText = const_cast<LPTSTR>(pszText);
    }
    if (pbmp != nullptr)
    {
        band.fMask |= RBBIM_BACKGROUND;
        band.hbmBack = static_cast<HBITMAP>(pbmp->GetSafeHandle());
    }
    return InsertBand(pBar, band);
}

BOOL CReBar::AddBar(CWnd * pBar, COLORREF clrFore, COLORREF clrBack, LPCTSTR pszText, DWORD dwStyle)
{
    REBARBANDINFO band{};
    band.fMask = RBBIM_STYLE | RBBIM_COLORS;
    band.fStyle = dwStyle;
    band.clrFore = clrFore;
    band.clrBack = clrBack;
    if (pszText != nullptr)
    {
        band.fMask |= RBBIM_TEXT;
        band.lpText = const_cast<LPTSTR>(pszText);
    }
    return InsertBand(pBar, band);
}

BOOL CReBar::InsertBand(CWnd * bar, REBARBANDINFO & band)
{
    ASSERT(::IsWindow(m_hWnd) && bar != nullptr);
    WindowGuard const guard(this);
    CSize size(0, 0);
    if (CControlBar * const controlBar = DYNAMIC_DOWNCAST(CControlBar, bar))
        size = controlBar->CalcFixedLayout(FALSE, IsHorizontal());
    else
    {
        CRect rect;
        bar->GetWindowRect(&rect);
        size = rect.Size();
    }
    band.cbSize = REBARBANDINFO_V6_SIZE;
    band.fMask |= RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_ID;
    band.hwndChild = bar->m_hWnd;
    band.cxMinChild = static_cast<UINT>(IsHorizontal() ? size.cx : size.cy);
    band.cyMinChild = static_cast<UINT>(IsHorizontal() ? size.cy : size.cx);
    band.wID = static_cast<UINT>(bar->GetDlgCtrlID());
    if (!Send<BOOL>(m_hWnd, RB_INSERTBAND, -1, &band) || !guard.Alive())
        return FALSE;
    if (CFrameWnd * const frame = GetParentFrame())
        frame->RecalcLayout();
    return TRUE;
}

CSize CReBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    int const count = Send<int>(m_hWnd, RB_GETBANDCOUNT);
    CRect all(0, 0, 0, 0);
    for (int at = 0; at < count; ++at)
    {
        REBARBANDINFO band{};
        band.cbSize = REBARBANDINFO_V6_SIZE;
        band.fMask = RBBIM_CHILD | RBBIM_STYLE;
        if (!Send<BOOL>(m_hWnd, RB_GETBANDINFO, at, &band))
            continue;
        // A band is there while its window is to be seen.
        if (band.hwndChild != nullptr)
        {
            auto const * const bar = DYNAMIC_DOWNCAST(CControlBar, CWnd::FromHandlePermanent(band.hwndChild));
            bool const wanted =
                bar != nullptr ? bar->IsToBeVisible() : (::GetWindowLong(band.hwndChild, GWL_STYLE) & WS_VISIBLE) != 0;
            if (wanted != ((band.fStyle & RBBS_HIDDEN) == 0))
                Send(m_hWnd, RB_SHOWBAND, at, wanted);
        }
    }
    for (int at = 0; at < count; ++at)
    {
        REBARBANDINFO band{};
        band.cbSize = REBARBANDINFO_V6_SIZE;
        band.fMask = RBBIM_STYLE;
        CRect rect;
        if (Send<BOOL>(m_hWnd, RB_GETBANDINFO, at, &band) && (band.fStyle & RBBS_HIDDEN) == 0 &&
            Send<BOOL>(m_hWnd, RB_GETRECT, at, &rect))
            all |= rect;
    }
    CSize size = all.Size();
    if (!all.IsRectEmpty())
    {
        CRect inside(0, 0, 0, 0);
        CalcInsideRect(inside, bHorz);
        size -= inside.Size();
    }
    CSize const least = CControlBar::CalcFixedLayout(bStretch, bHorz);
    return CSize(bStretch && bHorz ? least.cx : size.cx, bStretch && !bHorz ? least.cy : size.cy);
}

void CReBar::HandleHeightChange(NMHDR *, LRESULT * result)
{
    *result = 0;
    CFrameWnd * const frame = GetParentFrame();
    if (frame != nullptr)
        frame->RecalcLayout(); // which does nothing if it is the one that has resized the bar
}

void CReBar::OnUpdateCmdUI(CFrameWnd * pTarget, BOOL bDisableIfNoHndler)
{
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

void CReBar::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS * lpncsp)
{
    CalcNonClient(lpncsp);
}

void CReBar::OnNcPaint()
{
    PaintNonClient();
}

void CReBar::OnPaint()
{
    Default();
}
