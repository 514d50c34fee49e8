// CMFCStatusBar.

#include "afxstatusbar.h"
#include <afxpriv.h>

#include <algorithm>

#include "detail/BarLooks.h"
#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

using framework::Scaled;
using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CMFCStatusBar, CPane)

// clang-format off
BEGIN_MESSAGE_MAP(CMFCStatusBar, CPane)
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_NCHITTEST()
    ON_WM_SIZE()
    ON_WM_SETTINGCHANGE()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CMFCStatusBar::HandleIdleUpdate)
    ON_MESSAGE(WM_SETTEXT, &CMFCStatusBar::HandleSetText)
    ON_MESSAGE(WM_GETTEXT, &CMFCStatusBar::HandleGetText)
    ON_MESSAGE(WM_GETTEXTLENGTH, &CMFCStatusBar::HandleGetTextLength)
    ON_MESSAGE(WM_GETFONT, &CMFCStatusBar::HandleGetFont)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXT, 0, 0xFFFF, &CMFCStatusBar::HandleToolTipText)
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr COLORREF not_given = static_cast<COLORREF>(-1);
constexpr int pane_margin = 4; // at both sides of a text
constexpr int pane_gap = 2;
constexpr int height_beyond_text = 8;
constexpr int least_width = 2;

COLORREF Or(COLORREF colour, int systemColour)
{
    return colour != not_given ? colour : ::GetSysColor(systemColour);
}

CString IndicatorText(UINT id)
{
    CString text;
    return id != 0 && text.LoadString(id) ? text : CString();
}

/// A pane of the bar as its update handlers see it. A handler may end the bar.
class PaneState : public CCmdUI
{
public:
    explicit PaneState(CMFCStatusBar & bar) : m_guard(&bar) { m_pOther = &bar; }

    void Enable(BOOL bOn) override
    {
        framework::CmdUiAccess::SetEnableChanged(*this, TRUE);
        Change(SBPS_DISABLED, bOn ? 0 : SBPS_DISABLED);
    }
    void SetCheck(int nCheck) override { Change(SBPS_POPOUT, nCheck != 0 ? SBPS_POPOUT : 0); }
    void SetText(LPCTSTR lpszText) override
    {
        if (m_guard.Alive())
            Bar().SetPaneText(static_cast<int>(m_nIndex), lpszText);
    }

private:
    CMFCStatusBar & Bar() const { return *static_cast<CMFCStatusBar *>(m_pOther); }
    void Change(UINT remove, UINT add)
    {
        auto const index = static_cast<int>(m_nIndex);
        if (m_guard.Alive() && index < Bar().GetCount())
            Bar().SetPaneStyle(index, (Bar().GetPaneStyle(index) & ~remove) | add);
    }

    WindowGuard m_guard;
};
} // namespace

CMFCStatusBar::CMFCStatusBar() : m_doubleClicks(false), m_extendedArea(false)
{
    SetBorders(0, 0, 0, 0);
}

CMFCStatusBar::~CMFCStatusBar()
{
    DestroyWindow();
}

BOOL CMFCStatusBar::PreCreateWindow(CREATESTRUCT & cs)
{
    return CPane::PreCreateWindow(cs);
}

BOOL CMFCStatusBar::Create(CWnd * pParentWnd, DWORD dwStyle, UINT nID)
{
    return CreateEx(pParentWnd, 0, dwStyle, nID);
}

BOOL CMFCStatusBar::CreateEx(CWnd * pParentWnd, DWORD, DWORD dwStyle, UINT nID)
{
    ASSERT(pParentWnd != nullptr && (dwStyle & WS_CHILD) != 0);
    SetOwner(pParentWnd);
    if (!CPane::Create(nullptr, dwStyle | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), pParentWnd, nID, 0))
        return FALSE;
    WindowGuard const guard(this);
    if (!guard.Alive())
        return FALSE;
    EnableToolTips();
    return TRUE;
}

BOOL CMFCStatusBar::SetIndicators(const UINT * lpIDArray, int nIDCount)
{
    framework::MeasureDC dc;
    m_panes.clear();
    for (int at = 0; at < nIDCount; ++at)
    {
        CMFCStatusBarPaneInfo pane;
        if (lpIDArray != nullptr)
        {
            pane.nID = lpIDArray[at];
            pane.strText = IndicatorText(pane.nID);
            pane.cxText = framework::LabelExtent(dc.Get(), pane.strText).cx;
        }
        if (at == 0 && pane.cxText == 0)
        {
            pane.nStyle |= SBPS_STRETCH | SBPS_NOBORDERS;
            pane.cxText = ::GetSystemMetrics(SM_CXSCREEN) / 4;
        }
        m_panes.push_back(pane);
    }
    Arrange();
    return TRUE;
}

int CMFCStatusBar::GetCount() const
{
    return static_cast<int>(m_panes.size());
}

int CMFCStatusBar::CommandToIndex(UINT nIDFind) const
{
    for (int at = 0; at < GetCount(); ++at)
    {
        if (m_panes[static_cast<size_t>(at)].nID == nIDFind)
            return at;
    }
    return -1;
}

UINT CMFCStatusBar::GetItemID(int nIndex) const
{
    return Has(nIndex) ? m_panes[static_cast<size_t>(nIndex)].nID : 0;
}

void CMFCStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const
{
    *lpRect = Has(nIndex) ? m_panes[static_cast<size_t>(nIndex)].rect : CRect(0, 0, 0, 0);
}

void CMFCStatusBar::GetPaneInfo(int nIndex, UINT & nID, UINT & nStyle, int & cxWidth) const
{
    nID = GetItemID(nIndex);
    nStyle = GetPaneStyle(nIndex);
    cxWidth = GetPaneWidth(nIndex);
}

void CMFCStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth)
{
    if (!Has(nIndex))
        return;
    CMFCStatusBarPaneInfo & pane = m_panes[static_cast<size_t>(nIndex)];
    pane.nID = nID;
    pane.nStyle = nStyle;
    pane.cxText = cxWidth;
    Arrange();
}

UINT CMFCStatusBar::GetPaneStyle(int nIndex) const
{
    return Has(nIndex) ? m_panes[static_cast<size_t>(nIndex)].nStyle : 0;
}

void CMFCStatusBar::SetPaneStyle(int nIndex, UINT nStyle)
{
    if (!Has(nIndex) || GetPaneStyle(nIndex) == nStyle)
        return;
    bool const stretch = ((GetPaneStyle(nIndex) ^ nStyle) & SBPS_STRETCH) != 0;
    m_panes[static_cast<size_t>(nIndex)].nStyle = nStyle;
    if (stretch)
        Arrange();
    else
        InvalidatePaneContent(nIndex);
}

int CMFCStatusBar::GetPaneWidth(int nIndex) const
{
    return Has(nIndex) ? m_panes[static_cast<size_t>(nIndex)].cxText : 0;
}

void CMFCStatusBar::SetPaneWidth(int nIndex, int cx)
{
    if (!Has(nIndex))
        return;
    m_panes[static_cast<size_t>(nIndex)].cxText = cx;
    Arrange();
}

CString CMFCStatusBar::GetPaneText(int nIndex) const
{
    return Has(nIndex) ? m_panes[static_cast<size_t>(nIndex)].strText : CString();
}

void CMFCStatusBar::GetPaneText(int nIndex, CString & s) const
{
    s = GetPaneText(nIndex);
}

BOOL CMFCStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate)
{
    if (!Has(nIndex))
        return FALSE;
    CString & text = m_panes[static_cast<size_t>(nIndex)].strText;
    if (text == lpszNewText)
        return TRUE;
    text = lpszNewText;
    if (bUpdate)
        InvalidatePaneContent(nIndex);
    return TRUE;
}

void CMFCStatusBar::SetPaneTextColor(int nIndex, COLORREF clrText, BOOL bUpdate)
{
    if (!Has(nIndex))
        return;
    m_panes[static_cast<size_t>(nIndex)].clrText = clrText;
    if (bUpdate)
        InvalidatePaneContent(nIndex);
}

void CMFCStatusBar::SetPaneBackgroundColor(int nIndex, COLORREF clrBackground, BOOL bUpdate)
{
    if (!Has(nIndex))
        return;
    m_panes[static_cast<size_t>(nIndex)].clrBackground = clrBackground;
    if (bUpdate)
        InvalidatePaneContent(nIndex);
}

void CMFCStatusBar::SetPaneIcon(int nIndex, HICON hIcon, BOOL bUpdate)
{
    if (!Has(nIndex))
        return;
    m_panes[static_cast<size_t>(nIndex)].hIcon = hIcon;
    if (bUpdate)
        InvalidatePaneContent(nIndex);
}

CString CMFCStatusBar::GetTipText(int nIndex) const
{
    return Has(nIndex) ? m_panes[static_cast<size_t>(nIndex)].strToolTip : CString();
}

void CMFCStatusBar::SetTipText(int nIndex, LPCTSTR pszTipText)
{
    if (Has(nIndex))
        m_panes[static_cast<size_t>(nIndex)].strToolTip = pszTipText;
}

void CMFCStatusBar::EnablePaneProgressBar(int nIndex, long nTotal, BOOL bDisplayText, COLORREF clrBar,
                                          COLORREF clrBarDest, COLORREF clrProgressText)
{
    if (!Has(nIndex))
        return;
    CMFCStatusBarPaneInfo & pane = m_panes[static_cast<size_t>(nIndex)];
    pane.nProgressTotal = std::max(nTotal, 0L);
    pane.nProgressCurr = 0;
    pane.bProgressText = bDisplayText;
    pane.clrProgressBar = clrBar;
    pane.clrProgressBarDest = clrBarDest;
    pane.clrProgressText = clrProgressText;
    InvalidatePaneContent(nIndex);
}

void CMFCStatusBar::SetPaneProgress(int nIndex, long nCurr, BOOL bUpdate)
{
    if (!Has(nIndex))
        return;
    CMFCStatusBarPaneInfo & pane = m_panes[static_cast<size_t>(nIndex)];
    pane.nProgressCurr = std::clamp(nCurr, 0L, pane.nProgressTotal);
    if (!bUpdate)
        return;
    InvalidatePaneContent(nIndex);
    UpdateWindow(); // work that is done meanwhile pumps no messages
}

long CMFCStatusBar::GetPaneProgress(int nIndex) const
{
    return Has(nIndex) ? m_panes[static_cast<size_t>(nIndex)].nProgressCurr : 0;
}

void CMFCStatusBar::EnablePaneDoubleClick(BOOL bEnable)
{
    m_doubleClicks = bEnable != FALSE;
}

void CMFCStatusBar::InvalidatePaneContent(int nIndex)
{
    if (Has(nIndex) && m_hWnd != nullptr)
        InvalidateRect(&m_panes[static_cast<size_t>(nIndex)].rect, FALSE);
}

BOOL CMFCStatusBar::GetDrawExtendedArea() const
{
    return m_extendedArea;
}

void CMFCStatusBar::SetDrawExtendedArea(BOOL bSet)
{
    m_extendedArea = bSet != FALSE;
}

BOOL CMFCStatusBar::GetExtendedArea(CRect & rect) const
{
    // All from the first pane behind the one that stretches.
    for (CMFCStatusBarPaneInfo const & pane : m_panes)
    {
        if ((pane.nStyle & SBPS_STRETCH) == 0)
            continue;
        GetClientRect(&rect);
        rect.left = pane.rect.right + 1;
        return TRUE;
    }
    return FALSE;
}

// Layout

CSize CMFCStatusBar::CalcFixedLayout(BOOL, BOOL bHorz)
{
    constexpr int as_long_as_the_frame = 32767;
    framework::MeasureDC dc;
    CRect around(0, 0, 0, 0);
    CalcInsideRect(around, bHorz);
    int const height = framework::LabelExtent(dc.Get(), L"X").cy + Scaled(height_beyond_text) - around.Height();
    return CSize(as_long_as_the_frame, height);
}

BOOL CMFCStatusBar::DoesAllowDynInsertBefore() const
{
    return FALSE;
}

bool CMFCStatusBar::HasGrip() const
{
    CWnd const * const parent = m_hWnd != nullptr ? GetParent() : nullptr;
    return parent != nullptr && (parent->GetStyle() & WS_THICKFRAME) != 0 && !parent->IsZoomed();
}

void CMFCStatusBar::Arrange()
{
    if (m_hWnd == nullptr)
        return;
    CRect inside;
    GetClientRect(&inside);
    CalcInsideRect(inside, TRUE);
    inside.DeflateRect(Scaled(1), Scaled(2));
    int const grip = HasGrip() ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    inside.right -= grip;
    auto const width = [](CMFCStatusBarPaneInfo const & pane) {
        return std::max(pane.cxText, least_width) + 2 * Scaled(pane_margin);
    };
    int taken = 0;
    int stretching = 0;
    for (CMFCStatusBarPaneInfo const & pane : m_panes)
    {
        if ((pane.nStyle & SBPS_STRETCH) != 0)
            ++stretching;
        else
            taken += width(pane);
        taken += Scaled(pane_gap);
    }
    int rest = std::max<int>(inside.Width() - taken, 0);
    int x = inside.left;
    for (CMFCStatusBarPaneInfo & pane : m_panes)
    {
        int own = width(pane);
        if ((pane.nStyle & SBPS_STRETCH) != 0)
        {
            own = rest / stretching;
            rest -= own;
            --stretching;
        }
        pane.rect = CRect(x, inside.top, x + own, inside.bottom);
        x += own + Scaled(pane_gap);
    }
    Invalidate(FALSE);
}

void CMFCStatusBar::OnSize(UINT nType, int cx, int cy)
{
    WindowGuard const guard(this);
    CPane::OnSize(nType, cx, cy);
    if (guard.Alive())
        Arrange();
}

void CMFCStatusBar::OnSettingChange(UINT uFlags, LPCTSTR lpszSection)
{
    WindowGuard const guard(this);
    CPane::OnSettingChange(uFlags, lpszSection);
    if (!guard.Alive())
        return;
    if (uFlags == SPI_SETNONCLIENTMETRICS)
        framework::ReloadMenuFont();
    Arrange();
}

// Painting

BOOL CMFCStatusBar::OnEraseBkgnd(CDC *)
{
    return TRUE;
}

void CMFCStatusBar::DoPaint(CDC * pDC)
{
    CRect clip;
    pDC->GetClipBox(&clip);
    CRect client;
    GetClientRect(&client);
    CDC buffer;
    CBitmap bitmap;
    if (client.IsRectEmpty() || !buffer.CreateCompatibleDC(pDC) ||
        !bitmap.CreateCompatibleBitmap(pDC, client.Width(), client.Height()))
        return;
    HGDIOBJ const previousBitmap = ::SelectObject(buffer.m_hDC, bitmap.m_hObject);
    HGDIOBJ const previousFont = ::SelectObject(buffer.m_hDC, framework::MenuFont().m_hObject);
    buffer.FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
    buffer.FillSolidRect(client.left, client.top, client.Width(), 1,
                         framework::Between(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNTEXT), 25));
    for (size_t at = 0; at < m_panes.size(); ++at)
    {
        CMFCStatusBarPaneInfo pane = m_panes[at]; // a copy: whoever draws may change the panes
        CRect overlap;
        if (overlap.IntersectRect(&clip, &pane.rect))
            OnDrawPane(&buffer, &pane);
    }
    if (HasGrip())
        DrawGrip(buffer, client);
    pDC->BitBlt(clip.left, clip.top, clip.Width(), clip.Height(), &buffer, clip.left, clip.top, SRCCOPY);
    ::SelectObject(buffer.m_hDC, previousFont);
    ::SelectObject(buffer.m_hDC, previousBitmap);
}

void CMFCStatusBar::DrawGrip(CDC & dc, CRect const & client) const
{
    // Dots in the corner, in three rows.
    int const dot = Scaled(2);
    int const step = Scaled(4);
    COLORREF const colour = framework::Between(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNTEXT), 45);
    for (int row = 0; row < 3; ++row)
    {
        for (int column = 0; column <= row; ++column)
            dc.FillSolidRect(client.right - (column + 1) * step, client.bottom - (3 - row) * step, dot, dot, colour);
    }
}

void CMFCStatusBar::OnDrawPane(CDC * pDC, CMFCStatusBarPaneInfo * pPane)
{
    CRect rect = pPane->rect;
    if (rect.IsRectEmpty())
        return;
    COLORREF const face = Or(pPane->clrBackground, COLOR_BTNFACE);
    if (pPane->clrBackground != not_given)
        pDC->FillSolidRect(&rect, face);
    if ((pPane->nStyle & (SBPS_NOBORDERS | SBPS_POPOUT)) != SBPS_NOBORDERS)
    {
        COLORREF const line = framework::Between(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNTEXT), 25);
        bool const raised = (pPane->nStyle & SBPS_POPOUT) != 0;
        pDC->Draw3dRect(&rect, raised ? ::GetSysColor(COLOR_BTNHIGHLIGHT) : line, line);
        rect.DeflateRect(1, 1);
    }
    bool const disabled = (pPane->nStyle & SBPS_DISABLED) != 0;
    CString text = disabled ? CString() : pPane->strText;
    COLORREF colour = Or(pPane->clrText, COLOR_BTNTEXT);
    if (pPane->nProgressTotal > 0)
    {
        CRect done(rect);
        done.right = done.left + ::MulDiv(rect.Width(), static_cast<int>(pPane->nProgressCurr),
                                          static_cast<int>(pPane->nProgressTotal));
        COLORREF const first = Or(pPane->clrProgressBar, COLOR_HIGHLIGHT);
        COLORREF const last = pPane->clrProgressBarDest != not_given ? pPane->clrProgressBarDest : first;
        for (int x = done.left; x < done.right; ++x)
        {
            pDC->FillSolidRect(x, done.top, 1, done.Height(),
                               framework::Between(first, last, (x - rect.left) * 100 / std::max(rect.Width(), 1)));
        }
        if (!pPane->bProgressText)
            return;
        text.Format(L"%d%%",
                    ::MulDiv(100, static_cast<int>(pPane->nProgressCurr), static_cast<int>(pPane->nProgressTotal)));
        pDC->SetBkMode(TRANSPARENT);
        // In two halves: on the bar, and on the ground.
        int const saved = pDC->SaveDC();
        pDC->IntersectClipRect(&done);
        pDC->SetTextColor(Or(pPane->clrProgressText, COLOR_HIGHLIGHTTEXT));
        pDC->DrawText(text, &rect, DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_NOPREFIX);
        pDC->RestoreDC(saved);
        int const savedAgain = pDC->SaveDC();
        pDC->ExcludeClipRect(&done);
        pDC->SetTextColor(colour);
        pDC->DrawText(text, &rect, DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_NOPREFIX);
        pDC->RestoreDC(savedAgain);
        return;
    }
    rect.DeflateRect(Scaled(pane_margin) - 1, 0);
    if (pPane->hIcon != nullptr)
    {
        int const width = ::GetSystemMetrics(SM_CXSMICON);
        int const height = ::GetSystemMetrics(SM_CYSMICON);
        ::DrawIconEx(pDC->m_hDC, rect.left, rect.top + (rect.Height() - height) / 2, pPane->hIcon, width, height, 0,
                     nullptr, DI_NORMAL);
        rect.left += width + Scaled(pane_gap);
    }
    if (text.IsEmpty())
        return;
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(colour);
    pDC->DrawText(text, &rect, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX | DT_END_ELLIPSIS);
}

// Messages

int CMFCStatusBar::At(CPoint point) const
{
    for (int at = 0; at < GetCount(); ++at)
    {
        if (m_panes[static_cast<size_t>(at)].rect.PtInRect(point))
            return at;
    }
    return -1;
}

void CMFCStatusBar::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    UINT const id = GetItemID(At(point));
    CWnd * const owner = GetOwner();
    if (m_doubleClicks && id != 0 && owner != nullptr)
        owner->PostMessage(WM_COMMAND, id);
    else
        CPane::OnLButtonDblClk(nFlags, point);
}

LRESULT CMFCStatusBar::OnNcHitTest(CPoint point)
{
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    int const grip = ::GetSystemMetrics(SM_CXVSCROLL);
    if (HasGrip() && point.x >= client.right - grip && point.y >= client.bottom - grip)
        return HTBOTTOMRIGHT;
    return CPane::OnNcHitTest(point);
}

INT_PTR CMFCStatusBar::OnToolHitTest(CPoint point, TOOLINFO * pTI) const
{
    int const at = At(point);
    if (at < 0 || m_panes[static_cast<size_t>(at)].strToolTip.IsEmpty())
        return CPane::OnToolHitTest(point, pTI);
    if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOW_V1_SIZE)
    {
        pTI->hwnd = m_hWnd;
        pTI->rect = m_panes[static_cast<size_t>(at)].rect;
        pTI->uId = static_cast<UINT_PTR>(at);
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    return at;
}

BOOL CMFCStatusBar::HandleToolTipText(UINT, NMHDR * header, LRESULT * result)
{
    auto const at = static_cast<int>(header->idFrom);
    if (!Has(at))
        return FALSE;
    auto & asked = *reinterpret_cast<NMTTDISPINFO *>(header);
    asked.lpszText = const_cast<LPTSTR>(m_panes[static_cast<size_t>(at)].strToolTip.GetString());
    asked.hinst = nullptr;
    *result = 0;
    return TRUE;
}

LRESULT CMFCStatusBar::HandleIdleUpdate(WPARAM wParam, LPARAM)
{
    CFrameWnd * target = DYNAMIC_DOWNCAST(CFrameWnd, GetOwner());
    if (target == nullptr)
        target = GetParentFrame();
    if (target == nullptr || (GetStyle() & WS_VISIBLE) == 0)
        return 0;
    WindowGuard const guard(this);
    WindowGuard const targetGuard(target);
    PaneState state(*this);
    for (int at = 0; at < GetCount(); ++at)
    {
        state.m_nIndex = static_cast<UINT>(at);
        state.m_nID = GetItemID(at);
        framework::CmdUiAccess::SetIndexMax(state, static_cast<UINT>(GetCount()));
        // The bar's own handlers come first, as its panes are often its own business.
        if (state.m_nID != 0 && !CWnd::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr) && guard.Alive() &&
            targetGuard.Alive())
            framework::CmdUiAccess::DoUpdate(state, target, FALSE);
        if (!guard.Alive() || !targetGuard.Alive())
            return 0;
    }
    UpdateDialogControls(target, static_cast<BOOL>(wParam));
    return 0;
}

LRESULT CMFCStatusBar::HandleSetText(WPARAM, LPARAM lParam)
{
    // The bar's text is the one of the pane without a command, which messages are shown in.
    int const index = CommandToIndex(0);
    return SetPaneText(index, reinterpret_cast<LPCTSTR>(lParam));
}

LRESULT CMFCStatusBar::HandleGetText(WPARAM wParam, LPARAM lParam)
{
    if (wParam == 0)
        return 0;
    CString const text = GetPaneText(CommandToIndex(0));
    ::lstrcpyn(reinterpret_cast<LPTSTR>(lParam), text, static_cast<int>(wParam));
    return std::min<LRESULT>(text.GetLength(), static_cast<LRESULT>(wParam) - 1);
}

LRESULT CMFCStatusBar::HandleGetTextLength(WPARAM, LPARAM)
{
    return GetPaneText(CommandToIndex(0)).GetLength();
}

LRESULT CMFCStatusBar::HandleGetFont(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(framework::MenuFont().m_hObject);
}
