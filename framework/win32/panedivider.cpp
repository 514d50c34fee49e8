// CPaneDivider, and CMFCAutoHideBar: the strip of panes that are folded away.

#include "afxcontrolbars.h"
#include "afxcontrolbarutil.h"

#include <algorithm>

#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CPaneDivider, CBasePane)
IMPLEMENT_DYNCREATE(CMFCAutoHideBar, CPane)

// clang-format off
BEGIN_MESSAGE_MAP(CPaneDivider, CBasePane)
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_PAINT()
    ON_WM_SETCURSOR()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CMFCAutoHideBar, CPane)
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_PAINT()
    ON_WM_TIMER()
END_MESSAGE_MAP()
// clang-format on

int CPaneDivider::m_nDefaultWidth = 4;
int CMFCAutoHideBar::m_nShowAHWndDelay = 400;

namespace
{
constexpr UINT_PTR show_timer = 1;
constexpr UINT_PTR watch_timer = framework::slide_watch_timer;
} // namespace

CPaneDivider::CPaneDivider() : m_host(nullptr), m_splitId(0), m_index(0), m_floatId(0), m_horizontal(false) {}

CPaneDivider::~CPaneDivider() = default;

void CPaneDivider::PostNcDestroy()
{
    delete this;
}

void CPaneDivider::OnDestroy()
{
    if (m_host != nullptr)
        m_host->WindowEnds(this);
    m_host = nullptr;
    CBasePane::OnDestroy();
}

int __stdcall CPaneDivider::GetDefaultWidth()
{
    return m_nDefaultWidth;
}

int CPaneDivider::GetWidth() const
{
    CRect rect;
    GetWindowRect(&rect);
    return m_horizontal ? rect.Height() : rect.Width();
}

BOOL CPaneDivider::IsHorizontal() const
{
    return m_horizontal;
}

CSize CPaneDivider::CalcFixedLayout(BOOL, BOOL)
{
    CRect rect;
    GetWindowRect(&rect);
    return rect.Size();
}

void CPaneDivider::Move(CPoint & ptOffset, BOOL)
{
    if (m_host != nullptr)
        m_host->MoveDivider(*this, m_horizontal ? ptOffset.y : ptOffset.x);
}

void CPaneDivider::OnPaint()
{
    CPaintDC dc(this);
    CRect rect;
    GetClientRect(&rect);
    dc.FillSolidRect(&rect, ::GetSysColor(COLOR_BTNFACE));
}

BOOL CPaneDivider::OnSetCursor(CWnd *, UINT, UINT)
{
    ::SetCursor(::LoadCursor(nullptr, m_horizontal ? IDC_SIZENS : IDC_SIZEWE));
    return TRUE;
}

void CPaneDivider::OnLButtonDown(UINT, CPoint point)
{
    ClientToScreen(&point);
    if (m_host != nullptr)
        m_host->BeginDivider(*this, point);
}

// The strip

CMFCAutoHideBar::CMFCAutoHideBar() : m_host(nullptr), m_pointed(0), m_shownSlid(0) {}

CMFCAutoHideBar::~CMFCAutoHideBar() = default;

void CMFCAutoHideBar::PostNcDestroy()
{
    delete this;
}

void CMFCAutoHideBar::OnDestroy()
{
    if (m_host != nullptr)
        m_host->WindowEnds(this);
    m_host = nullptr;
    CPane::OnDestroy();
}

CDockablePane * CMFCAutoHideBar::GetFirstAHWindow()
{
    std::vector<std::pair<UINT, CRect>> const buttons = framework::StripButtons(*this);
    return buttons.empty() || m_host == nullptr ? nullptr : m_host->Pane(buttons.front().first);
}

int CMFCAutoHideBar::GetVisibleCount()
{
    return static_cast<int>(framework::StripButtons(*this).size());
}

BOOL CMFCAutoHideBar::AllowShowOnPaneMenu() const
{
    return FALSE;
}

BOOL CMFCAutoHideBar::OnShowControlBarMenu(CPoint)
{
    return FALSE;
}

CSize CMFCAutoHideBar::CalcFixedLayout(BOOL, BOOL)
{
    CRect rect;
    GetWindowRect(&rect);
    return rect.Size();
}

void CMFCAutoHideBar::OnPaint()
{
    WindowGuard const guard(this);
    CPaintDC dc(this); // has the ground erased
    if (!guard.Alive())
        return;
    CRect rect;
    GetClientRect(&rect);
    CMemDC buffer(dc, rect);
    CDC & canvas = buffer.GetDC();
    canvas.FillSolidRect(&rect, ::GetSysColor(COLOR_BTNFACE));
    bool const across = IsHorizontal() != FALSE;
    LOGFONT description{};
    CFont * const former = SelectDefaultFont(&canvas);
    canvas.GetCurrentFont()->GetLogFont(&description);
    CFont turned;
    if (!across)
    {
        constexpr int downwards = 2700; // tenths of a degree
        description.lfEscapement = description.lfOrientation = downwards;
        turned.CreateFontIndirect(&description);
        canvas.SelectObject(&turned);
    }
    canvas.SetBkMode(TRANSPARENT);
    canvas.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    for (auto const & [id, place] : framework::StripButtons(*this))
    {
        CDockablePane const * const pane = m_host->Pane(id);
        CRect button(place);
        canvas.Draw3dRect(&button, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNSHADOW));
        bool const shown = m_host->Slid() == id;
        button.DeflateRect(1, 1);
        canvas.FillSolidRect(&button, ::GetSysColor(shown ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
        canvas.SetBkMode(TRANSPARENT);
        canvas.SetTextColor(::GetSysColor(shown ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT));
        CString const title = pane != nullptr ? framework::TitleOf(*pane) : CString();
        if (across)
        {
            button.DeflateRect(4, 0);
            canvas.DrawText(title, &button, DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
            continue;
        }
        CSize const extent = canvas.GetTextExtent(title);
        canvas.ExtTextOut(button.right - (button.Width() - extent.cy) / 2,
                          button.top + std::max<int>(0, (button.Height() - extent.cx) / 2), ETO_CLIPPED, &button, title,
                          nullptr);
    }
    canvas.SelectObject(former);
}

void CMFCAutoHideBar::OnLButtonDown(UINT, CPoint point)
{
    for (auto const & [id, place] : framework::StripButtons(*this))
    {
        if (!place.PtInRect(point) || m_host == nullptr)
            continue;
        if (m_host->Slid() == id)
            m_host->SlideBack();
        else
            m_host->Activate(id, true);
        return;
    }
}

void CMFCAutoHideBar::OnMouseMove(UINT, CPoint point)
{
    UINT pointed = 0;
    for (auto const & [id, place] : framework::StripButtons(*this))
    {
        if (place.PtInRect(point))
            pointed = id;
    }
    if (pointed == m_pointed)
        return;
    m_pointed = pointed;
    KillTimer(show_timer);
    if (pointed != 0)
        SetTimer(show_timer, static_cast<UINT>(std::max(1, m_nShowAHWndDelay)), nullptr);
}

void CMFCAutoHideBar::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == watch_timer && m_host != nullptr)
    {
        m_host->WatchSlid();
        return;
    }
    if (nIDEvent != show_timer)
    {
        CPane::OnTimer(nIDEvent);
        return;
    }
    KillTimer(show_timer);
    UINT const pointed = std::exchange(m_pointed, 0);
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    for (auto const & [id, place] : framework::StripButtons(*this))
    {
        if (id == pointed && place.PtInRect(point) && m_host != nullptr && m_host->Slid() != id)
        {
            m_host->SlideOut(id);
            return;
        }
    }
}

std::vector<std::pair<UINT, CRect>> framework::StripButtons(CMFCAutoHideBar & strip)
{
    std::vector<std::pair<UINT, CRect>> buttons;
    DockHost * const host = PaneAccess::Host(strip);
    if (host == nullptr || strip.m_hWnd == nullptr)
        return buttons;
    CRect rect;
    strip.GetClientRect(&rect);
    bool const across = strip.IsHorizontal() != FALSE;
    CClientDC dc(&strip);
    CFont * const former = SelectPaneFont(dc);
    int place = host->Sizes().gap;
    for (UINT const id : host->Layout().Folded(SideOf(strip.GetCurrentAlignment(), DockSide::left)))
    {
        CDockablePane const * const pane = host->Pane(id);
        if (pane == nullptr)
            continue;
        int const length = dc.GetTextExtent(TitleOf(*pane)).cx + 4 * host->Sizes().gap;
        CRect button(rect);
        button.DeflateRect(1, 1);
        (across ? button.left : button.top) = place;
        (across ? button.right : button.bottom) = place + length;
        buttons.emplace_back(id, button);
        place += length + host->Sizes().gap;
    }
    dc.SelectObject(former);
    return buttons;
}
