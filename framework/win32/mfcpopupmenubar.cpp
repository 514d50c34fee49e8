// CMFCPopupMenuBar: the items of a popup menu.

#include "afxpopupmenu.h"

#include <algorithm>
#include <numeric>

#include "detail/BarLooks.h"
#include "detail/FrameSupport.h"
#include "detail/MenuMode.h"

using framework::MenuMode;
using framework::Scaled;
using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CMFCPopupMenuBar, CMFCToolBar)

// clang-format off
BEGIN_MESSAGE_MAP(CMFCPopupMenuBar, CMFCToolBar)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_TIMER()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr int space_beside_image = 12;
constexpr int shortcut_gap = 24;
constexpr int right_margin = 16; // where the arrow of a menu stands
constexpr int separator_height = 7;
constexpr int scroll_strip = 12;
constexpr UINT_PTR wait_timer = 1;   // until an item's menu opens
constexpr UINT_PTR scroll_timer = 2; // while the mouse is on a strip
constexpr UINT scroll_time = 60;

UINT ShowDelay()
{
    DWORD delay = 400;
    ::SystemParametersInfo(SPI_GETMENUSHOWDELAY, 0, &delay, 0);
    return std::max<DWORD>(delay, 1);
}
} // namespace

CMFCPopupMenuBar::CMFCPopupMenuBar()
    : m_bDisableSideBarInXPMode(FALSE),
      m_offset(0),
      m_visible(0),
      m_shortcutWidth(0),
      m_textWidth(0),
      m_waiting(-1),
      m_cursor(-1, -1)
{
}

CMFCPopupMenuBar::~CMFCPopupMenuBar() = default;

CMFCPopupMenu * CMFCPopupMenuBar::Popup() const
{
    return m_hWnd != nullptr ? DYNAMIC_DOWNCAST(CMFCPopupMenu, CWnd::FromHandlePermanent(::GetParent(m_hWnd)))
                             : nullptr;
}

HWND CMFCPopupMenuBar::CommandTarget() const
{
    CMFCPopupMenu const * const popup = Popup();
    return popup != nullptr ? popup->m_message : nullptr;
}

BOOL CMFCPopupMenuBar::CanFocus() const
{
    return FALSE;
}

INT_PTR CMFCPopupMenuBar::OnToolHitTest(CPoint, TOOLINFO *) const
{
    return -1;
}

// Contents

BOOL CMFCPopupMenuBar::ImportFromMenu(HMENU hMenu, BOOL)
{
    framework::BarGuard const self(*this);
    RemoveAllButtons();
    if (!self.Alive() || hMenu == nullptr || !::IsMenu(hMenu))
        return FALSE;
    UINT const defaultItem = ::GetMenuDefaultItem(hMenu, TRUE, GMDI_USEDISABLED);
    int const count = ::GetMenuItemCount(hMenu);
    for (int at = 0; at < count; ++at)
    {
        wchar_t text[1024] = {};
        MENUITEMINFO info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STATE | MIIM_STRING | MIIM_SUBMENU;
        info.dwTypeData = text;
        info.cch = static_cast<UINT>(std::size(text));
        if (!::GetMenuItemInfo(hMenu, static_cast<UINT>(at), TRUE, &info))
            continue;
        if ((info.fType & MFT_SEPARATOR) != 0)
        {
            InsertSeparator();
            continue;
        }
        auto * const button = new CMFCToolBarMenuButton;
        button->m_nID = info.hSubMenu != nullptr ? static_cast<UINT>(-1) : info.wID;
        button->m_strText = text;
        button->m_bText = TRUE;
        button->m_menu = info.hSubMenu; // the menu goes on being used, as it is brought up to date by the frame
        button->m_imported = true;
        button->m_radio = (info.fType & MFT_RADIOCHECK) != 0;
        button->m_default = at == static_cast<int>(defaultItem);
        button->SetImage(info.hSubMenu != nullptr ? -1 : GetDefaultImage(info.wID));
        if ((info.fState & MFS_DISABLED) != 0)
            button->m_nStyle |= TBBS_DISABLED;
        if ((info.fState & MFS_CHECKED) != 0)
            button->m_nStyle |= TBBS_CHECKED;
        InsertButton(button);
    }
    return TRUE;
}

HMENU CMFCPopupMenuBar::ExportToMenu() const
{
    HMENU const menu = ::CreatePopupMenu();
    for (int at = 0; at < GetCount(); ++at)
    {
        CMFCToolBarButton * const button = GetButton(at);
        if ((button->m_nStyle & TBBS_SEPARATOR) != 0)
        {
            ::AppendMenu(menu, MF_SEPARATOR, 0, nullptr);
            continue;
        }
        auto const * const item = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
        HMENU const below = item != nullptr ? item->CreateMenu() : nullptr;
        UINT flags = MF_STRING | (below != nullptr ? MF_POPUP : 0);
        if (!IsEnabled(*button))
            flags |= MF_GRAYED;
        if ((button->m_nStyle & TBBS_CHECKED) != 0)
            flags |= MF_CHECKED;
        ::AppendMenu(menu, flags, below != nullptr ? reinterpret_cast<UINT_PTR>(below) : button->m_nID,
                     button->m_strText);
    }
    return menu;
}

void CMFCPopupMenuBar::SetButtonStyle(int nIndex, UINT nStyle)
{
    CMFCToolBar::SetButtonStyle(nIndex, nStyle);
}

bool CMFCPopupMenuBar::IsUpdated(CMFCToolBarButton const & button) const
{
    auto const * const item = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, const_cast<CMFCToolBarButton *>(&button));
    return CMFCToolBar::IsUpdated(button) && (item == nullptr || !item->m_imported);
}

void CMFCPopupMenuBar::UpdateStates(CFrameWnd *, BOOL)
{
    // Items keep the state that they open with.
}

void CMFCPopupMenuBar::UpdateInserted(CFrameWnd * target)
{
    CMFCToolBar::UpdateStates(target, target->m_bAutoMenuEnable);
}

// Layout

int CMFCPopupMenuBar::TextColumn() const
{
    return GetMenuImageSize().cx + Scaled(space_beside_image);
}

int CMFCPopupMenuBar::ShortcutColumn() const
{
    return TextColumn() + m_textWidth + Scaled(shortcut_gap);
}

int CMFCPopupMenuBar::StripHeight() const
{
    return Scaled(scroll_strip);
}

CRect CMFCPopupMenuBar::StripRect(bool upper) const
{
    CRect rect;
    GetClientRect(&rect);
    if (upper)
        rect.bottom = rect.top + StripHeight();
    else
        rect.top = rect.bottom - StripHeight();
    return rect;
}

void CMFCPopupMenuBar::Relayout()
{
    m_heights.clear();
    CMFCToolBar::Relayout();
}

/// Texts are measured once, as long as the items stay the same.
void CMFCPopupMenuBar::Measure(CDC & dc)
{
    m_textWidth = 0;
    m_shortcutWidth = 0;
    m_heights.clear();
    for (POSITION at = m_buttons.GetHeadPosition(); at != nullptr;)
    {
        CMFCToolBarButton & button = *static_cast<CMFCToolBarButton *>(m_buttons.GetNext(at));
        int height = 0;
        if (button.IsHidden())
            height = 0;
        else if ((button.m_nStyle & TBBS_SEPARATOR) != 0)
            height = Scaled(separator_height);
        else
        {
            height = button.OnCalculateSize(&dc, GetMenuButtonSize(), FALSE).cy;
            CString const & text = button.m_strText;
            int const tab = text.Find(L'\t');
            m_textWidth = std::max<int>(m_textWidth, framework::LabelExtent(dc, tab >= 0 ? text.Left(tab) : text).cx);
            if (tab >= 0)
                m_shortcutWidth = std::max<int>(m_shortcutWidth, framework::LabelExtent(dc, text.Mid(tab + 1)).cx);
        }
        m_heights.push_back(height);
    }
}

CSize CMFCPopupMenuBar::Arrange(CDC & dc, int, bool, bool place)
{
    auto const count = static_cast<size_t>(GetCount());
    if (m_heights.size() != count)
        Measure(dc);
    int const total = std::accumulate(m_heights.begin(), m_heights.end(), 0);
    CSize size(TextColumn() + m_textWidth + Scaled(right_margin), total);
    if (m_shortcutWidth > 0)
        size.cx += Scaled(shortcut_gap) + m_shortcutWidth;
    if (!place)
        return size;
    CRect client;
    GetClientRect(&client);
    bool const scrolls = total > client.Height();
    int const room = scrolls ? client.Height() - 2 * StripHeight() : client.Height();
    // The first item that is shown is no further down than the last needs it.
    size_t highest = count;
    for (int height = 0; highest > 0 && height + m_heights[highest - 1] <= room; --highest)
        height += m_heights[highest - 1];
    m_offset = scrolls ? std::clamp(m_offset, 0, static_cast<int>(highest)) : 0;
    int y = client.top + (scrolls ? StripHeight() : 0);
    int const bottom = y + room;
    size_t index = 0;
    bool full = false;
    m_visible = 0;
    for (POSITION at = m_buttons.GetHeadPosition(); at != nullptr; ++index)
    {
        auto * const button = static_cast<CMFCToolBarButton *>(m_buttons.GetNext(at));
        int const height = m_heights[index];
        full = full || (scrolls && y + height > bottom);
        if (index < static_cast<size_t>(m_offset) || full)
        {
            button->SetRect(CRect(0, 0, 0, 0));
            continue;
        }
        button->SetRect(CRect(client.left, y, client.right, y + height));
        y += height;
        ++m_visible;
    }
    return size;
}

CSize CMFCPopupMenuBar::CalcSize(BOOL)
{
    return ArrangeNow(0, false, false);
}

int CMFCPopupMenuBar::GetOffset() const
{
    return m_offset;
}

void CMFCPopupMenuBar::SetOffset(int iOffset)
{
    if (m_hWnd == nullptr || iOffset == m_offset)
        return;
    m_offset = std::max(iOffset, 0);
    AdjustLayout();
}

void CMFCPopupMenuBar::EnsureVisible(int index)
{
    EnsureLayout();
    if (index < 0 || !IsScrolled())
        return;
    if (index < m_offset)
        SetOffset(index);
    else if (index >= m_offset + m_visible)
        SetOffset(index - m_visible + 1);
    // Lower items may be higher ones.
    while (index >= m_offset + m_visible && m_offset + m_visible < GetCount())
        SetOffset(m_offset + 1);
}

// Painting

void CMFCPopupMenuBar::OnFillBackground(CDC * pDC)
{
    CRect client;
    GetClientRect(&client);
    pDC->FillSolidRect(&client, ::GetSysColor(COLOR_MENU));
}

void CMFCPopupMenuBar::DrawSeparator(CDC * pDC, const CRect & rect, BOOL)
{
    int const y = rect.CenterPoint().y;
    pDC->FillSolidRect(rect.left + Scaled(2), y, rect.Width() - 2 * Scaled(2), 1,
                       framework::Between(::GetSysColor(COLOR_MENU), ::GetSysColor(COLOR_MENUTEXT), 30));
}

void CMFCPopupMenuBar::DoPaint(CDC * pDC)
{
    CMFCToolBar::DoPaint(pDC);
    if (!IsScrolled())
        return;
    auto const colour = [](bool more) { return ::GetSysColor(more ? COLOR_MENUTEXT : COLOR_GRAYTEXT); };
    framework::DrawMark(*pDC, StripRect(true), framework::Mark::arrow_up, colour(m_offset > 0));
    framework::DrawMark(*pDC, StripRect(false), framework::Mark::arrow_down, colour(m_offset + m_visible < GetCount()));
}

// Choosing

void CMFCPopupMenuBar::Highlight(int index)
{
    if (index == m_hot)
        return;
    EnsureVisible(index);
    InvalidateButton(m_hot);
    m_hot = index;
    InvalidateButton(m_hot);
    CMFCPopupMenu * const popup = Popup();
    if (popup == nullptr)
        return;
    WindowGuard const guard(this);
    popup->OnChangeHot(index);
    CMFCToolBarButton * const button = guard.Alive() ? GetButton(m_hot) : nullptr;
    HWND const target = guard.Alive() ? CommandTarget() : nullptr;
    if (target == nullptr || !CMFCPopupMenu::IsSendMenuSelectMsg())
        return;
    auto const * const item = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
    bool const menu = item != nullptr && item->HasMenu();
    UINT flags = MF_HILITE;
    if (popup->m_systemMenu)
        flags |= MF_SYSMENU;
    if (button == nullptr)
        flags |= MF_SEPARATOR;
    else if (menu)
        flags |= MF_POPUP;
    UINT const id = button == nullptr ? 0 : menu ? static_cast<UINT>(m_hot) : button->m_nID;
    ::SendMessage(target, WM_MENUSELECT, MAKEWPARAM(id, flags), reinterpret_cast<LPARAM>(popup->m_menu));
}

void CMFCPopupMenuBar::Step(int direction)
{
    int const count = GetCount();
    int from = m_hot;
    if (from < 0 && direction < 0)
        from = count;
    for (int step = 1; step <= count; ++step)
    {
        int const index = ((from + direction * step) % count + count) % count;
        if (!CanHighlight(index))
            continue;
        WindowGuard const guard(this);
        CloseBeyond();
        if (guard.Alive())
            Highlight(index);
        return;
    }
}

/// Closes the menus beside this one.
void CMFCPopupMenuBar::CloseBeyond()
{
    CMFCPopupMenu const * const own = Popup();
    WindowGuard const guard(this);
    while (guard.Alive())
    {
        CMFCPopupMenu * beyond = MenuMode::Current().Leaf();
        while (beyond != nullptr && beyond != own && beyond->GetParentPopupMenu() != own)
            beyond = beyond->GetParentPopupMenu();
        if (beyond == nullptr || beyond == own)
            return;
        beyond->CloseMenu();
    }
}

bool CMFCPopupMenuBar::OpenSubMenu(int index, bool byKeys)
{
    auto * const item = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, GetButton(index));
    if (item == nullptr || !item->HasMenu() || !IsEnabled(*item))
        return false;
    WindowGuard const guard(this);
    m_waiting = -1;
    if (!item->IsDroppedDown())
    {
        CloseBeyond();
        if (!guard.Alive() || ButtonToIndex(item) != index)
            return true;
        Highlight(index);
        if (!guard.Alive() || ButtonToIndex(item) != index)
            return true;
        item->OpenPopupMenu(this);
    }
    CMFCPopupMenu * const leaf = MenuMode::Current().Leaf();
    if (byKeys && guard.Alive() && leaf != nullptr && leaf != Popup() && leaf->m_bar.m_hot < 0)
        leaf->m_bar.Step(1);
    return true;
}

void CMFCPopupMenuBar::Choose(int index, bool byKeys)
{
    CMFCToolBarButton * const button = GetButton(index);
    CMFCPopupMenu * const popup = Popup();
    if (button == nullptr || popup == nullptr || !CanHighlight(index) || !IsEnabled(*button))
        return;
    if (OpenSubMenu(index, byKeys))
        return;
    WindowGuard const guard(this);
    auto * const item = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
    if ((item != nullptr && item->OnClickMenuItem()) || !guard.Alive() || ButtonToIndex(button) != index)
        return;
    UINT const id = button->m_nID;
    HWND const target = CommandTarget();
    bool const system = popup->m_systemMenu;
    popup->m_inCommand = true;
    popup->OnChooseItem(id);
    // All menus go before the command comes, which may end the frame.
    MenuMode::Current().End();
    if (id != 0 && id != static_cast<UINT>(-1) && target != nullptr && ::IsWindow(target))
        ::PostMessage(target, system ? WM_SYSCOMMAND : WM_COMMAND, id, 0);
}

// The mouse

void CMFCPopupMenuBar::OnLButtonDown(UINT, CPoint point)
{
    OpenSubMenu(HitTest(point), false);
}

void CMFCPopupMenuBar::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    OnLButtonDown(nFlags, point);
}

void CMFCPopupMenuBar::OnLButtonUp(UINT, CPoint point)
{
    Choose(HitTest(point), false);
}

void CMFCPopupMenuBar::OnRButtonUp(UINT, CPoint point)
{
    Choose(HitTest(point), false);
}

void CMFCPopupMenuBar::OnMouseMove(UINT, CPoint point)
{
    CPoint screen(point);
    ClientToScreen(&screen);
    // A menu that opens below the mouse is no movement.
    if (screen == std::exchange(m_cursor, screen))
        return;
    WatchMouse();
    if (IsScrolled() && (StripRect(true).PtInRect(point) || StripRect(false).PtInRect(point)))
    {
        SetTimer(scroll_timer, scroll_time, nullptr);
        return;
    }
    int const hit = HitTest(point);
    if (hit == m_hot)
        return;
    WindowGuard const guard(this);
    Highlight(hit);
    if (guard.Alive())
        StartPopupMenuTimer(DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, GetButton(hit)));
}

void CMFCPopupMenuBar::OnMouseLeave()
{
    m_cursor = CPoint(-1, -1); // if it comes back to the same place, that is a movement
    // An item stays highlighted while its menu is open.
    int open = -1;
    GetDroppedDownMenu(&open);
    Highlight(open);
}

void CMFCPopupMenuBar::StartPopupMenuTimer(CMFCToolBarMenuButton * pMenuButton, int nDelayFactor)
{
    m_waiting = ButtonToIndex(pMenuButton);
    SetTimer(wait_timer, ShowDelay() * static_cast<UINT>(std::max(nDelayFactor, 1)), nullptr);
}

void CMFCPopupMenuBar::CloseDelayedSubMenu()
{
    m_waiting = -1;
    CloseBeyond();
}

void CMFCPopupMenuBar::RestoreDelayedSubMenu()
{
    m_waiting = -1;
}

void CMFCPopupMenuBar::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == wait_timer)
    {
        KillTimer(wait_timer);
        int const waiting = std::exchange(m_waiting, -1);
        if (waiting >= 0 && waiting == m_hot && OpenSubMenu(waiting, false))
            return;
        int open = -1;
        GetDroppedDownMenu(&open);
        if (open >= 0 && m_hot >= 0 && open != m_hot)
            CloseBeyond();
        return;
    }
    if (nIDEvent != scroll_timer)
    {
        CMFCToolBar::OnTimer(nIDEvent);
        return;
    }
    CPoint cursor;
    ::GetCursorPos(&cursor);
    ScreenToClient(&cursor);
    bool const up = IsScrolled() && StripRect(true).PtInRect(cursor);
    bool const down = IsScrolled() && StripRect(false).PtInRect(cursor);
    if (!up && !down)
        KillTimer(scroll_timer);
    else
        SetOffset(m_offset + (up ? -1 : 1));
}

BOOL CMFCPopupMenuBar::OnMouseWheel(UINT, short zDelta, CPoint)
{
    if (IsScrolled())
        SetOffset(m_offset - zDelta / WHEEL_DELTA);
    return TRUE;
}
