#include "windows/DockableViewPane.h"

#include "frame/WindowAlive.h"
#include "windows/MainFrmInterface.h"

IMPLEMENT_DYNCREATE(CDockableViewPane, CDockablePane)

BEGIN_MESSAGE_MAP(CDockableViewPane, CDockablePane)
    ON_WM_SIZE()
END_MESSAGE_MAP()

namespace
{
CRect const first_place(0, 0, 200, 100);
constexpr DWORD pane_style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | CBRS_BOTTOM | CBRS_FLOAT_MULTI;
static_assert(pane_style == 0x56008240);
constexpr DWORD tabbed_style = AFX_CBRS_REGULAR_TABS;
static_assert(tabbed_style == 32);
constexpr DWORD bar_style = AFX_CBRS_FLOAT | AFX_CBRS_AUTOHIDE | AFX_CBRS_RESIZE | AFX_CBRS_CLOSE;
static_assert(bar_style == 15);
constexpr DWORD view_style = WS_CHILD | WS_VISIBLE | WS_BORDER;
static_assert(view_style == 0x50800000);
constexpr UINT size_flags = SWP_NOZORDER | SWP_NOACTIVATE;

/// Whether the view still has its window in the pane. It is not looked into, since it may have been deleted.
bool HoldsView(CWnd const & pane, CView const * view)
{
    for (HWND child = ::GetWindow(pane.m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (StillHas(view, child))
            return true;
    }
    return false;
}
} // namespace

CDockableViewPane::CDockableViewPane() : m_view(nullptr) {}

CDockableViewPane::~CDockableViewPane() = default;

CView * CDockableViewPane::View()
{
    return m_view;
}

bool CDockableViewPane::Connect(CView & view, wchar_t const * title)
{
    CWinThread * const thread = AfxGetThread();
    CWnd * const main = thread != nullptr ? thread->GetMainWnd() : nullptr;
    HWND const mainWindow = main != nullptr ? main->m_hWnd : nullptr;
    CreateOwnWindow();
    // The pane is the main frame's, which the creation may have ended.
    if (mainWindow != nullptr && !StillHas(main, mainWindow))
        return false;
    WindowHold const hold(*this);
    if (!view.Create(nullptr, nullptr, view_style, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST, nullptr))
        return false;
    WindowHold const viewHold(view);
    if (hold.Lost() || viewHold.Lost())
        return false;
    SetWindowText(title);
    if (hold.Lost() || viewHold.Lost())
        return false;
    CRect place;
    GetWindowRect(&place);
    ScreenToClient(&place);
    // Right and bottom are taken as they stand.
    view.SetWindowPos(nullptr, 0, 0, place.right, place.bottom, size_flags);
    if (hold.Lost() || viewHold.Lost())
        return false;
    m_view = &view;
    return true;
}

/// Creates the window under the identifier that the main frame has for the pane.
void CDockableViewPane::CreateOwnWindow()
{
    CWinThread * const thread = AfxGetThread();
    CWnd * const main = thread != nullptr ? thread->GetMainWnd() : nullptr;
    auto * const frame = dynamic_cast<CMainFrmInterface *>(main);
    if (frame == nullptr || frame->base_id() == 0)
        return;
    for (auto const & [id, pane] : frame->panes())
    {
        if (pane != this || ::IsWindow(m_hWnd))
            continue;
        // The caption lasts until the title is set.
        CString caption;
        caption.Format(L"DockablePane-%u", id - frame->base_id());
        Create(caption, main, first_place, TRUE, id, pane_style, tabbed_style, bar_style);
        return;
    }
}

bool CDockableViewPane::Float(CRect rect)
{
    if (!::IsWindow(m_hWnd))
        return false;
    if (rect.IsRectEmpty())
        rect = first_place;
    if (!IsDocked() && !IsTabbed())
    {
        if (CWnd * const parent = GetParent())
            parent->MoveWindow(rect, TRUE);
        return true;
    }
    return FloatPane(rect, DM_UNKNOWN, true) != FALSE;
}

void CDockableViewPane::OnSize(UINT nType, int cx, int cy)
{
    WindowHold const hold(*this);
    CBasePane::OnSize(nType, cx, cy);
    if (!hold.Lost() && m_view != nullptr && HoldsView(*this, m_view))
        m_view->SetWindowPos(nullptr, 0, 0, cx, cy, size_flags);
}
