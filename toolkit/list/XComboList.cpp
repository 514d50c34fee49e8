#include "list/XComboList.h"

#include <algorithm>
#include <utility>

#include "frame/InternalMessages.h"

namespace XListCtrl
{
namespace
{
constexpr UINT_PTR track_timer = 1;
constexpr UINT track_interval = 80; // milliseconds
constexpr int most_focus_losses = 3;
constexpr UINT list_id = 1;
constexpr UINT scroll_bar_id = 2;

bool IsNavigationKey(WPARAM key)
{
    switch (key)
    {
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_HOME:
    case VK_END:
        return true;
    default:
        return false;
    }
}
} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CXComboList, CWnd)
    ON_WM_LBUTTONDOWN()
    ON_WM_KILLFOCUS()
    ON_WM_CREATE()
    ON_WM_VSCROLL()
    ON_WM_DESTROY()
    ON_WM_TIMER()
END_MESSAGE_MAP()
// clang-format on

CXComboList::~CXComboList()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
}

bool CXComboList::CreateAt(CRect const & place)
{
    LPCTSTR const windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    return CreateEx(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, windowClass, L"", WS_POPUP | WS_BORDER, place, m_parent, 0) !=
           FALSE;
}

void CXComboList::Show(bool show)
{
    if (m_hWnd == nullptr)
        return;
    HWND const window = m_hWnd;
    ShowWindow(show ? SW_SHOW : SW_HIDE);
    if (::IsWindow(window) && show && std::exchange(m_firstShow, 0) != 0)
        m_list.SetFocus();
}

int CXComboList::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1)
        return -1;
    CRect area;
    GetClientRect(&area);
    CRect list = area;
    list.right = std::max(list.left, area.right - ::GetSystemMetrics(SM_CXVSCROLL));
    CRect bar = area;
    bar.left = list.right;
    if (!m_list.Create(WS_CHILD | WS_VISIBLE | LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS, list, this, list_id) ||
        !m_scrollBar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, bar, this, scroll_bar_id))
    {
        return -1;
    }
    if (m_parent != nullptr && ::IsWindow(m_parent->m_hWnd))
        m_list.SetFont(m_parent->GetFont());
    SetTimer(track_timer, track_interval, nullptr);
    return 0;
}

void CXComboList::OnDestroy()
{
    KillTimer(track_timer);
    CWnd::OnDestroy();
}

BOOL CXComboList::PreTranslateMessage(MSG * message)
{
    switch (message->message)
    {
    case WM_KEYDOWN:
        if (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE)
        {
            Tell(message->wParam == VK_RETURN ? WM_XCOMBOLIST_VK_RETURN : WM_XCOMBOLIST_VK_ESCAPE);
            return TRUE;
        }
        if (IsNavigationKey(message->wParam) && message->hwnd == m_list.m_hWnd)
        {
            HWND const window = m_hWnd;
            ::DispatchMessage(message);
            if (::IsWindow(window))
            {
                FollowList();
                Tell(WM_XCOMBOLIST_KEYDOWN);
            }
            return TRUE;
        }
        break;
    case WM_LBUTTONUP:
        if (message->hwnd == m_list.m_hWnd)
        {
            HWND const window = m_hWnd;
            ::DispatchMessage(message);
            if (::IsWindow(window))
                Tell(WM_XCOMBOLIST_LBUTTONUP);
            return TRUE;
        }
        break;
    default:
        break;
    }
    return CWnd::PreTranslateMessage(message);
}

void CXComboList::OnLButtonDown(UINT flags, CPoint point)
{
    // Beside the list and its bar: the press is for nobody.
    m_list.SetFocus();
    CWnd::OnLButtonDown(flags, point);
}

void CXComboList::OnKillFocus(CWnd * newWindow)
{
    CWnd::OnKillFocus(newWindow);
    if (++m_focusLosses == most_focus_losses)
        Tell(WM_XCOMBOLIST_VK_ESCAPE);
}

void CXComboList::OnVScroll(UINT code, UINT position, CScrollBar * bar)
{
    if (bar == nullptr || bar->m_hWnd != m_scrollBar.m_hWnd)
    {
        CWnd::OnVScroll(code, position, bar);
        return;
    }
    int top = m_list.GetTopIndex();
    int const page = PageOfList();
    switch (code)
    {
    case SB_LINEUP:
        top -= 1;
        break;
    case SB_LINEDOWN:
        top += 1;
        break;
    case SB_PAGEUP:
        top -= page;
        break;
    case SB_PAGEDOWN:
        top += page;
        break;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        top = static_cast<int>(position);
        break;
    case SB_TOP:
        top = 0;
        break;
    case SB_BOTTOM:
        top = m_list.GetCount() - 1;
        break;
    default:
        return;
    }
    m_list.SetTopIndex(std::clamp(top, 0, std::max(0, m_list.GetCount() - 1)));
    FollowList();
}

void CXComboList::OnTimer(UINT_PTR id)
{
    if (id == track_timer && IsWindowVisible())
    {
        CPoint point;
        ::GetCursorPos(&point);
        int const item = ItemAt(point);
        if (item >= 0 && item != m_list.GetCurSel())
            m_list.SetCurSel(item);
        FollowList();
    }
    CWnd::OnTimer(id);
}

int CXComboList::ItemAt(CPoint point)
{
    if (::WindowFromPoint(point) != m_list.m_hWnd)
        return -1;
    m_list.ScreenToClient(&point);
    BOOL outside = TRUE;
    auto const item = static_cast<int>(m_list.ItemFromPoint(point, outside));
    return outside || item >= m_list.GetCount() ? -1 : item;
}

int CXComboList::PageOfList()
{
    CRect area;
    m_list.GetClientRect(&area);
    return std::max(1, area.Height() / std::max(1, m_list.GetItemHeight(0)));
}

void CXComboList::FollowList()
{
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = std::max(0, m_list.GetCount() - 1);
    info.nPage = static_cast<UINT>(PageOfList());
    info.nPos = m_list.GetTopIndex();
    m_scrollBar.SetScrollInfo(&info, TRUE);
}

void CXComboList::Tell(UINT message)
{
    if (m_parent != nullptr && ::IsWindow(m_parent->m_hWnd))
        m_parent->SendMessage(message);
}
} // namespace XListCtrl
