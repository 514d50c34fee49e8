// CMFCPopupMenu: a menu in a window of its own.

#include "afxpopupmenu.h"
#include <afxframewndex.h>
#include <afxmdiframewndex.h>
#include <afxmenubar.h>

#include <algorithm>

#include "detail/BarLooks.h"
#include "detail/FrameSupport.h"
#include "detail/MenuMode.h"
#include "detail/WndAccess.h"

using framework::MenuMode;
using framework::Scaled;
using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CMFCPopupMenu, CMiniFrameWnd)

BEGIN_MESSAGE_MAP(CMFCPopupMenu, CMiniFrameWnd)
    ON_WM_ACTIVATEAPP()
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_MOUSEACTIVATE()
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{
constexpr int edge = 3; // around the items, its outermost pixel drawn
constexpr UINT menu_closed = 0xFFFF;
bool sendsMenuSelect = true;

CRect WorkAreaAt(CPoint point)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (!::GetMonitorInfo(::MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST), &info))
        return CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    return info.rcWork;
}
} // namespace

CMFCPopupMenu::CMFCPopupMenu()
    : m_menu(nullptr),
      m_message(nullptr),
      m_parentPopup(nullptr),
      m_parentBar(nullptr),
      m_parentIndex(-1),
      m_parentRect(0, 0, 0, 0),
      m_fromBar(false),
      m_rightAlign(false),
      m_shown(false),
      m_systemMenu(false),
      m_inCommand(false),
      m_maxWidth(0),
      m_default(0),
      m_point(0, 0),
      m_direction(DROP_DIRECTION_NONE)
{
}

CMFCPopupMenu::~CMFCPopupMenu() = default;

BOOL CMFCPopupMenu::PreCreateWindow(CREATESTRUCT & cs)
{
    cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_SAVEBITS | CS_DROPSHADOW, ::LoadCursor(nullptr, IDC_ARROW));
    cs.dwExStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    return cs.lpszClass != nullptr;
}

BOOL CMFCPopupMenu::Create(CWnd * pWndParent, int x, int y, HMENU hMenu, BOOL, BOOL)
{
    CPoint point(x, y);
    if (x == -1 && y == -1)
        ::GetCursorPos(&point);
    if (pWndParent == nullptr)
        pWndParent = AfxGetMainWnd();
    if (m_message == nullptr)
        m_message = framework::SafeHandle(pWndParent);
    if (pWndParent == nullptr || m_message == nullptr)
    {
        PostNcDestroy();
        return FALSE;
    }
    return Open(*pWndParent, point, hMenu);
}

/// The object ends with its window if that does not come to be seen.
bool CMFCPopupMenu::Open(CWnd & owner, CPoint point, HMENU menu)
{
    m_point = point;
    m_menu = menu;
    HWND const ownerWindow = owner.m_hWnd;
    if (m_parentPopup == nullptr)
        MenuMode::Current().CloseMenus();
    if (!::IsWindow(ownerWindow))
    {
        PostNcDestroy();
        return false;
    }
    CWnd * const top = m_parentPopup != nullptr ? &owner : owner.GetTopLevelParent();
    if (!CWnd::CreateEx(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, nullptr, nullptr, WS_POPUP | WS_CLIPCHILDREN, point.x,
                        point.y, 0, 0, framework::SafeHandle(top), nullptr))
        return false;
    WindowGuard const guard(this);
    if (!m_bar.CreateEx(this, 0, WS_CHILD | WS_VISIBLE | CBRS_ALIGN_LEFT, CRect(0, 0, 0, 0), AFX_IDW_PANE_FIRST))
    {
        if (guard.Alive())
            DestroyWindow();
        return false;
    }
    MenuMode::Current().PopupOpened(*this);
    if (CMFCToolBar * const bar = GetParentToolBar())
    {
        if (auto * const button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, bar->GetButton(m_parentIndex)))
            button->m_popup = m_hWnd;
        bar->InvalidateButton(m_parentIndex);
    }
    // The frame brings the menu's items up to date, and may put some in or take some out.
    if (m_menu != nullptr && ::IsMenu(m_menu))
    {
        LPARAM const where = MAKELPARAM(static_cast<WORD>(std::max(m_parentIndex, 0)), m_systemMenu ? TRUE : FALSE);
        ::SendMessage(m_message, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(m_menu), where);
        if (!guard.Alive())
            return false;
        if (m_systemMenu && ::IsZoomed(m_message))
        {
            // The only one that is shown here is a maximised child's.
            for (UINT const command : {SC_MOVE, SC_SIZE, SC_MAXIMIZE})
                ::EnableMenuItem(m_menu, command, MF_BYCOMMAND | MF_GRAYED);
            ::EnableMenuItem(m_menu, SC_RESTORE, MF_BYCOMMAND | MF_ENABLED);
        }
        m_bar.ImportFromMenu(m_menu);
    }
    CFrameWnd * const frame = TargetFrame();
    if (!ActivatePopupMenu(frame, this))
    {
        if (guard.Alive())
            DestroyWindow();
        return false;
    }
    if (!guard.Alive())
        return false;
    if (CFrameWnd * const target = TargetFrame())
        m_bar.UpdateInserted(target);
    if (!guard.Alive())
        return false;
    if (m_bar.GetCount() == 0)
    {
        DestroyWindow();
        return false;
    }
    if (m_default != 0)
        SetDefaultItem(m_default);
    Place();
    if (!guard.Alive())
        return false;
    m_shown = true;
    ShowWindow(SW_SHOWNOACTIVATE);
    if (guard.Alive())
        UpdateWindow();
    return guard.Alive();
}

CFrameWnd * CMFCPopupMenu::TargetFrame() const
{
    CWnd * const target = m_message != nullptr ? CWnd::FromHandle(m_message) : nullptr;
    if (target == nullptr || !::IsWindow(m_message))
        return nullptr;
    if (auto * const frame = DYNAMIC_DOWNCAST(CFrameWnd, CWnd::FromHandlePermanent(m_message)))
        return frame;
    return target->GetParentFrame();
}

BOOL PASCAL CMFCPopupMenu::ActivatePopupMenu(CFrameWnd * pTopFrame, CMFCPopupMenu * pPopupMenu)
{
    CFrameWnd * const top = pTopFrame != nullptr ? pTopFrame->GetTopLevelFrame() : nullptr;
    if (auto * const frame = DYNAMIC_DOWNCAST(CMDIFrameWndEx, top))
        return frame->OnShowPopupMenu(pPopupMenu);
    if (auto * const frame = DYNAMIC_DOWNCAST(CFrameWndEx, top))
        return frame->OnShowPopupMenu(pPopupMenu);
    return TRUE;
}

/// Where there is room: below the button or the point, or else above; beside an item.
void CMFCPopupMenu::Place()
{
    int const around = Scaled(edge);
    CSize size = m_bar.CalcSize(TRUE) + CSize(2 * around, 2 * around);
    CRect const room = WorkAreaAt(m_fromBar ? m_parentRect.CenterPoint() : m_point);
    if (m_maxWidth > 0)
        size.cx = std::min<LONG>(size.cx, m_maxWidth);
    size.cx = std::min<LONG>(size.cx, room.Width());
    size.cy = std::min<LONG>(size.cy, room.Height());
    CPoint at(m_point);
    if (m_fromBar && m_parentPopup != nullptr)
    {
        at = CPoint(m_parentRect.right, m_parentRect.top - around);
        m_direction = DROP_DIRECTION_RIGHT;
        if (at.x + size.cx > room.right && m_parentRect.left - size.cx >= room.left)
        {
            at.x = m_parentRect.left - size.cx;
            m_direction = DROP_DIRECTION_LEFT;
        }
    }
    else if (m_fromBar)
    {
        auto const * const bar = DYNAMIC_DOWNCAST(CMFCToolBar, CWnd::FromHandlePermanent(m_parentBar));
        bool const below = bar == nullptr || bar->IsHorizontal();
        at = below ? CPoint(m_parentRect.left, m_parentRect.bottom) : CPoint(m_parentRect.right, m_parentRect.top);
        m_direction = below ? DROP_DIRECTION_BOTTOM : DROP_DIRECTION_RIGHT;
        if (below && at.y + size.cy > room.bottom && m_parentRect.top - size.cy >= room.top)
        {
            at.y = m_parentRect.top - size.cy;
            m_direction = DROP_DIRECTION_TOP;
        }
    }
    else if (at.y + size.cy > room.bottom && at.y - size.cy >= room.top)
        at.y -= size.cy;
    if (m_rightAlign)
        at.x = (m_fromBar ? m_parentRect.right : m_point.x) - size.cx;
    at.x = std::max<LONG>(std::min<LONG>(at.x, room.right - size.cx), room.left);
    at.y = std::max<LONG>(std::min<LONG>(at.y, room.bottom - size.cy), room.top);
    SetWindowPos(&wndTopMost, at.x, at.y, size.cx, size.cy, SWP_NOACTIVATE);
}

void CMFCPopupMenu::RecalcLayout(BOOL)
{
    if (m_bar.m_hWnd == nullptr)
        return;
    CRect client;
    GetClientRect(&client);
    client.DeflateRect(Scaled(edge), Scaled(edge));
    ::MoveWindow(m_bar.m_hWnd, client.left, client.top, std::max(client.Width(), 0), std::max(client.Height(), 0),
                 TRUE);
}

void CMFCPopupMenu::OnDestroy()
{
    WindowGuard const guard(this);
    MenuMode::Current().PopupEnds(*this);
    bool const last = MenuMode::Current().Leaf() == nullptr;
    auto * const bar = DYNAMIC_DOWNCAST(CMFCToolBar, CWnd::FromHandlePermanent(m_parentBar));
    auto * const button =
        DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, bar != nullptr ? bar->GetButton(m_parentIndex) : nullptr);
    if (button != nullptr && button->m_popup == m_hWnd)
    {
        button->m_popup = nullptr;
        bar->InvalidateButton(m_parentIndex);
        if (last && !MenuMode::Current().IsOn(*bar))
            bar->Highlight(-1);
        if (!guard.Alive())
            return;
    }
    CFrameWnd * const frame = m_shown ? TargetFrame() : nullptr;
    CFrameWnd * const top = frame != nullptr ? frame->GetTopLevelFrame() : nullptr;
    if (auto * const mdi = DYNAMIC_DOWNCAST(CMDIFrameWndEx, top))
        mdi->OnClosePopupMenu(this);
    else if (auto * const single = DYNAMIC_DOWNCAST(CFrameWndEx, top))
        single->OnClosePopupMenu(this);
    if (!guard.Alive())
        return;
    if (last && m_shown && sendsMenuSelect && ::IsWindow(m_message))
        ::SendMessage(m_message, WM_MENUSELECT, MAKEWPARAM(0, menu_closed), 0);
    if (guard.Alive())
        CMiniFrameWnd::OnDestroy();
}

void CMFCPopupMenu::CloseMenu(BOOL bSetFocusToBar)
{
    CMFCToolBar * const bar = bSetFocusToBar ? GetParentToolBar() : nullptr;
    int const index = m_parentIndex;
    WindowGuard const barGuard(bar);
    DestroyWindow();
    if (barGuard.Alive())
        MenuMode::Current().EnterBar(*bar, index);
}

CMFCPopupMenu * CMFCPopupMenu::GetActiveMenu()
{
    return MenuMode::Current().Leaf();
}

CMFCPopupMenuBar * CMFCPopupMenu::GetMenuBar()
{
    return &m_bar;
}

HMENU CMFCPopupMenu::GetHMenu()
{
    return m_menu;
}

CMFCPopupMenu * CMFCPopupMenu::GetParentPopupMenu() const
{
    return DYNAMIC_DOWNCAST(CMFCPopupMenu, CWnd::FromHandlePermanent(m_parentPopup));
}

CMFCToolBar * CMFCPopupMenu::GetParentToolBar() const
{
    return DYNAMIC_DOWNCAST(CMFCToolBar, CWnd::FromHandlePermanent(m_parentBar));
}

CMFCToolBarMenuButton * CMFCPopupMenu::GetParentButton() const
{
    CMFCToolBar const * const bar = GetParentToolBar();
    auto * const button =
        DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, bar != nullptr ? bar->GetButton(m_parentIndex) : nullptr);
    return button != nullptr && button->m_popup == m_hWnd ? button : nullptr;
}

CWnd * CMFCPopupMenu::GetParentArea(CRect & rectParentBtn)
{
    rectParentBtn = m_parentRect;
    return GetParentToolBar();
}

CWnd * CMFCPopupMenu::GetMessageWnd() const
{
    return m_message != nullptr ? CWnd::FromHandle(m_message) : nullptr;
}

void CMFCPopupMenu::SetMessageWnd(CWnd * pMsgWnd)
{
    m_message = framework::SafeHandle(pMsgWnd);
}

CMFCPopupMenu::DROP_DIRECTION CMFCPopupMenu::GetDropDirection() const
{
    return m_direction;
}

CMFCPopupMenu::MENUAREA_TYPE CMFCPopupMenu::CheckArea(const CPoint & ptScreen) const
{
    CRect rect;
    GetWindowRect(&rect);
    return rect.PtInRect(ptScreen) ? MENU : OUTSIDE;
}

int CMFCPopupMenu::GetMenuItemCount() const
{
    return m_bar.GetCount();
}

CMFCToolBarMenuButton * CMFCPopupMenu::GetMenuItem(int iIndex) const
{
    return DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, m_bar.GetButton(iIndex));
}

CMFCToolBarMenuButton * CMFCPopupMenu::GetSelItem()
{
    return DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, m_bar.GetHighlightedButton());
}

CMFCToolBarMenuButton * CMFCPopupMenu::FindSubItemByCommand(UINT uiCmd) const
{
    return GetMenuItem(m_bar.CommandToIndex(uiCmd));
}

int CMFCPopupMenu::InsertItem(const CMFCToolBarMenuButton & button, int iInsertAt)
{
    int const index = m_bar.InsertButton(button, iInsertAt);
    if (CMFCToolBarMenuButton * const item = GetMenuItem(index))
    {
        item->m_bText = TRUE;
        if (item->GetImage() < 0 && !item->HasMenu())
            item->SetImage(CMFCToolBar::GetDefaultImage(item->m_nID));
    }
    if (m_shown)
        Place();
    return index;
}

int CMFCPopupMenu::InsertSeparator(int iInsertAt)
{
    return m_bar.InsertSeparator(iInsertAt);
}

BOOL CMFCPopupMenu::RemoveItem(int iIndex)
{
    return m_bar.RemoveButton(iIndex);
}

void CMFCPopupMenu::RemoveAllItems()
{
    m_bar.RemoveAllButtons();
}

void CMFCPopupMenu::SetDefaultItem(UINT uiCmd)
{
    m_default = uiCmd;
    for (int at = 0; at < GetMenuItemCount(); ++at)
    {
        if (CMFCToolBarMenuButton * const item = GetMenuItem(at))
            item->m_default = item->m_nID == uiCmd;
    }
}

void CMFCPopupMenu::SetMaxWidth(int iMaxWidth)
{
    m_maxWidth = iMaxWidth;
}

void CMFCPopupMenu::SetRightAlign(BOOL bRightAlign)
{
    m_rightAlign = bRightAlign != FALSE;
}

BOOL CMFCPopupMenu::IsRightAlign() const
{
    return m_rightAlign;
}

BOOL CMFCPopupMenu::IsShown() const
{
    return m_shown;
}

BOOL CMFCPopupMenu::IsScrollable() const
{
    return m_bar.m_hWnd != nullptr && m_bar.IsScrolled();
}

void CMFCPopupMenu::MoveTo(const CPoint & pt)
{
    SetWindowPos(nullptr, pt.x, pt.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CMFCPopupMenu::SetSendMenuSelectMsg(BOOL bSet)
{
    sendsMenuSelect = bSet != FALSE;
}

BOOL CMFCPopupMenu::IsSendMenuSelectMsg()
{
    return sendsMenuSelect;
}

void CMFCPopupMenu::OnChangeHot(int) {}

void CMFCPopupMenu::OnChooseItem(UINT) {}

BOOL CMFCPopupMenu::PostCommand(UINT uiCommandID)
{
    return m_message != nullptr && ::PostMessage(m_message, WM_COMMAND, uiCommandID, 0);
}

BOOL CMFCPopupMenu::InCommand()
{
    return m_inCommand;
}

BOOL CMFCPopupMenu::IsAlwaysClose() const
{
    return FALSE;
}

BOOL CMFCPopupMenu::IsIdle() const
{
    return m_shown;
}

BOOL CMFCPopupMenu::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    return CMiniFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CMFCPopupMenu::OnActivateApp(BOOL bActive, DWORD dwThreadID)
{
    WindowGuard const guard(this);
    CMiniFrameWnd::OnActivateApp(bActive, dwThreadID);
    if (!bActive && guard.Alive())
        MenuMode::Current().End();
}

int CMFCPopupMenu::OnMouseActivate(CWnd *, UINT, UINT)
{
    return MA_NOACTIVATE;
}

BOOL CMFCPopupMenu::OnEraseBkgnd(CDC *)
{
    return TRUE;
}

void CMFCPopupMenu::OnPaint()
{
    WindowGuard const guard(this);
    CPaintDC dc(this);
    if (!guard.Alive())
        return;
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_MENU));
    COLORREF const line = framework::Between(::GetSysColor(COLOR_MENU), ::GetSysColor(COLOR_MENUTEXT), 45);
    dc.Draw3dRect(&client, line, line);
}

const CMFCMenuBar * CMDIFrameWndEx::GetMenuBar() const
{
    return MenuMode::BarOf(m_hWnd);
}

CMFCPopupMenu * CMDIFrameWndEx::GetActivePopup() const
{
    return CMFCPopupMenu::GetActiveMenu();
}

BOOL CMDIFrameWndEx::OnShowPopupMenu(CMFCPopupMenu *)
{
    return TRUE;
}

void CMDIFrameWndEx::OnClosePopupMenu(CMFCPopupMenu *) {}

const CMFCMenuBar * CFrameWndEx::GetMenuBar() const
{
    return MenuMode::BarOf(m_hWnd);
}

CMFCPopupMenu * CFrameWndEx::GetActivePopup() const
{
    return CMFCPopupMenu::GetActiveMenu();
}

BOOL CFrameWndEx::OnShowPopupMenu(CMFCPopupMenu *)
{
    return TRUE;
}

void CFrameWndEx::OnClosePopupMenu(CMFCPopupMenu *) {}
