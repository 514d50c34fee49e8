// What keys and the mouse do while menus are open.

#include "detail/MenuMode.h"

#include "afxmenubar.h"
#include "afxpopupmenu.h"

#include <utility>

#include "detail/BarLooks.h"
#include "detail/FrameSupport.h"

namespace
{
constexpr wchar_t bar_property[] = L"FrameworkMenuBar";
constexpr LPARAM was_down = 0x40000000; // the key is repeating

bool IsPress(UINT message)
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
    case WM_XBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN:
    case WM_NCXBUTTONDOWN:
        return true;
    default:
        return false;
    }
}

CMFCPopupMenu * PopupOf(HWND window)
{
    return DYNAMIC_DOWNCAST(CMFCPopupMenu, CWnd::FromHandlePermanent(window));
}
} // namespace

framework::MenuMode & framework::MenuMode::Current()
{
    thread_local MenuMode mode;
    return mode;
}

void framework::EndMenuMode()
{
    MenuMode::Current().End();
}

void framework::MenuMode::AttachBar(HWND frame, CMFCMenuBar & bar)
{
    ::SetProp(frame, bar_property, bar.m_hWnd);
}

void framework::MenuMode::DetachBar(HWND frame, CMFCMenuBar const & bar)
{
    if (::GetProp(frame, bar_property) == bar.m_hWnd)
        ::RemoveProp(frame, bar_property);
}

CMFCMenuBar * framework::MenuMode::BarOf(HWND frame)
{
    auto const bar = static_cast<HWND>(frame != nullptr ? ::GetProp(frame, bar_property) : nullptr);
    return DYNAMIC_DOWNCAST(CMFCMenuBar, CWnd::FromHandlePermanent(bar));
}

CMFCPopupMenu * framework::MenuMode::Leaf() const
{
    return PopupOf(m_leaf);
}

CMFCToolBar * framework::MenuMode::Bar() const
{
    return DYNAMIC_DOWNCAST(CMFCToolBar, CWnd::FromHandlePermanent(m_bar));
}

bool framework::MenuMode::IsOn(CMFCToolBar const & bar) const
{
    return m_bar != nullptr && m_bar == bar.m_hWnd && (m_byKeys || Leaf() != nullptr);
}

void framework::MenuMode::PopupOpened(CMFCPopupMenu & popup)
{
    m_leaf = popup.m_hWnd;
    if (popup.GetParentPopupMenu() == nullptr)
        m_bar = popup.m_parentBar;
}

void framework::MenuMode::PopupEnds(CMFCPopupMenu & popup)
{
    // Those beside it have ended before, or end with it.
    for (CMFCPopupMenu * open = Leaf(); open != nullptr; open = open->GetParentPopupMenu())
    {
        if (open != &popup)
            continue;
        CMFCPopupMenu * const parent = popup.GetParentPopupMenu();
        m_leaf = parent != nullptr ? parent->m_hWnd : nullptr;
        if (m_leaf == nullptr && !m_byKeys)
            m_bar = nullptr;
        return;
    }
}

void framework::MenuMode::CloseMenus()
{
    CMFCPopupMenu * root = Leaf();
    m_leaf = nullptr;
    while (root != nullptr && root->GetParentPopupMenu() != nullptr)
        root = root->GetParentPopupMenu();
    if (root != nullptr)
        root->DestroyWindow(); // those beside it belong to it
}

void framework::MenuMode::End()
{
    CMFCToolBar * const bar = Bar();
    WindowGuard const guard(bar);
    m_bar = nullptr;
    m_byKeys = false;
    CloseMenus();
    if (guard.Alive() && bar->m_hot >= 0)
        bar->Highlight(-1);
}

void framework::MenuMode::EnterBar(CMFCToolBar & bar, int index)
{
    WindowGuard const guard(&bar);
    if (Bar() != &bar || Leaf() != nullptr)
        End();
    if (!guard.Alive())
        return;
    m_bar = bar.m_hWnd;
    m_byKeys = true;
    bar.Highlight(index);
}

bool framework::MenuMode::OpenMenu(CMFCToolBar & bar, int index, bool byKeys)
{
    auto * const button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, bar.GetButton(index));
    if (button == nullptr || !button->HasMenu() || !bar.IsEnabled(*button))
        return false;
    WindowGuard const guard(&bar);
    bool const keys = m_byKeys || byKeys;
    CloseMenus();
    if (!guard.Alive() || bar.ButtonToIndex(button) != index)
        return true;
    m_bar = bar.m_hWnd;
    m_byKeys = keys;
    bar.Highlight(index);
    if (!guard.Alive() || bar.ButtonToIndex(button) != index)
        return true;
    if (!button->OpenPopupMenu(&bar))
    {
        if (guard.Alive() && Leaf() == nullptr && !keys)
            End();
        return true;
    }
    CMFCPopupMenu * const popup = Leaf();
    if (byKeys && popup != nullptr)
        popup->m_bar.Step(1);
    return true;
}

int framework::MenuMode::NextButton(CMFCToolBar const & bar, int from, int direction)
{
    int const count = bar.GetCount();
    for (int step = 1; step <= count; ++step)
    {
        int const index = ((from + direction * step) % count + count) % count;
        if (bar.CanHighlight(index) && bar.IsEnabled(*bar.GetButton(index)))
            return index;
    }
    return -1;
}

void framework::MenuMode::NextMenu(int direction)
{
    CMFCToolBar * const bar = Bar();
    if (bar == nullptr)
        return;
    int at = -1;
    bar->GetDroppedDownMenu(&at);
    if (at < 0)
        at = bar->m_hot;
    for (int step = 0; step < bar->GetCount(); ++step)
    {
        at = NextButton(*bar, at, direction);
        if (at < 0)
            return;
        auto const * const button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, bar->GetButton(at));
        if (button != nullptr && button->HasMenu())
        {
            OpenMenu(*bar, at, true);
            return;
        }
    }
}

bool framework::MenuMode::NextBar()
{
    // The other tool bars of the same frame, in the order of the windows, around the end.
    CMFCToolBar * const bar = Bar();
    CFrameWnd * const frame = bar != nullptr ? bar->TargetFrame() : nullptr;
    if (frame == nullptr)
        return false;
    CMFCToolBar * first = nullptr;
    bool found = false;
    for (HWND child = ::GetWindow(frame->m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        auto * const other = DYNAMIC_DOWNCAST(CMFCToolBar, CWnd::FromHandlePermanent(child));
        if (other == nullptr || !::IsWindowVisible(child) || NextButton(*other, -1, 1) < 0)
            continue;
        if (found)
        {
            EnterBar(*other, NextButton(*other, -1, 1));
            return true;
        }
        found = other == bar;
        if (first == nullptr)
            first = other;
    }
    if (first != nullptr && first != bar)
        EnterBar(*first, NextButton(*first, -1, 1));
    return true;
}

// Messages

bool framework::MenuMode::PreTranslate(MSG const & message)
{
    CMFCPopupMenu const * const leaf = Leaf();
    if (leaf != nullptr && leaf->m_message != nullptr && !::IsWindow(leaf->m_message))
        End(); // nobody is left to take a command
    if (m_byKeys && Leaf() == nullptr && (Bar() == nullptr || !::IsWindowVisible(m_bar)))
        End();
    bool const on = Leaf() != nullptr || m_byKeys;
    if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST)
    {
        bool const up = message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
        bool const down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
        // Nobody is to hear that a key went up that he hasn't heard going down; the system would open its menu for Alt.
        if (up && message.wParam == std::exchange(m_taken, 0))
            return true;
        bool const taken = on ? HandleKey(message) : HandleAlt(message);
        if (down && taken)
            m_taken = message.wParam;
        return taken;
    }
    if ((message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) ||
        (message.message >= WM_NCMOUSEMOVE && message.message <= WM_NCXBUTTONDBLCLK))
        return HandleMouse(message);
    return false;
}

bool framework::MenuMode::HandleMouse(MSG const & message)
{
    if (IsPress(message.message))
        m_altAlone = false;
    CMFCPopupMenu * const leaf = Leaf();
    if (leaf == nullptr && !m_byKeys)
        return false;
    bool const inBar = message.hwnd == m_bar && message.message >= WM_MOUSEFIRST;
    bool inMenu = false;
    for (CMFCPopupMenu * popup = leaf; popup != nullptr && !inMenu; popup = popup->GetParentPopupMenu())
        inMenu = message.hwnd == popup->m_hWnd || ::IsChild(popup->m_hWnd, message.hwnd);
    if (IsPress(message.message))
    {
        if (!inMenu && !(inBar && leaf != nullptr))
            End();
        return false;
    }
    if (message.message == WM_MOUSEWHEEL)
    {
        if (leaf != nullptr)
            ::SendMessage(leaf->m_bar.m_hWnd, WM_MOUSEWHEEL, message.wParam, message.lParam);
        return leaf != nullptr;
    }
    // Nothing else is highlighted below the mouse while a menu is open.
    bool const move = message.message == WM_MOUSEMOVE || message.message == WM_NCMOUSEMOVE;
    return move && leaf != nullptr && !inMenu && !inBar;
}

bool framework::MenuMode::HandleAlt(MSG const & message)
{
    CMFCMenuBar * const bar = BarOf(::GetActiveWindow());
    if (bar == nullptr || !::IsWindowVisible(bar->m_hWnd))
    {
        m_altAlone = false;
        return false;
    }
    switch (message.message)
    {
    case WM_SYSKEYDOWN:
    case WM_KEYDOWN:
        if (message.wParam == VK_F10 && ::GetKeyState(VK_SHIFT) >= 0 && ::GetKeyState(VK_CONTROL) >= 0)
        {
            EnterBar(*bar, NextButton(*bar, -1, 1));
            return true;
        }
        if (message.wParam != VK_MENU || message.message != WM_SYSKEYDOWN)
            m_altAlone = false;
        else if ((message.lParam & was_down) == 0)
            m_altAlone = ::GetKeyState(VK_SHIFT) >= 0 && ::GetKeyState(VK_CONTROL) >= 0;
        return false;
    case WM_SYSKEYUP:
    case WM_KEYUP:
        if (message.wParam != VK_MENU || !m_altAlone)
            return false;
        m_altAlone = false;
        EnterBar(*bar, NextButton(*bar, -1, 1));
        return true;
    case WM_SYSCHAR:
        return bar->TranslateChar(static_cast<UINT>(message.wParam)) != FALSE;
    default:
        return false;
    }
}

bool framework::MenuMode::HandleKey(MSG const & message)
{
    switch (message.message)
    {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        break;
    case WM_CHAR:
    case WM_SYSCHAR:
        return HandleCharacter(static_cast<wchar_t>(message.wParam));
    default:
        return true;
    }
    auto const key = static_cast<UINT>(message.wParam);
    if (key == VK_F10 || (key == VK_MENU && (message.lParam & was_down) == 0))
    {
        End();
        return true;
    }
    CMFCPopupMenu * const popup = Leaf();
    CMFCToolBar * const bar = Bar();
    bool const handled = popup != nullptr ? HandleKeyInPopup(*popup, key) : bar != nullptr && HandleKeyInBar(*bar, key);
    if (!handled)
        ::TranslateMessage(&message); // it may be a mnemonic
    return true;
}

bool framework::MenuMode::HandleKeyInPopup(CMFCPopupMenu & popup, UINT key)
{
    CMFCPopupMenuBar & items = popup.m_bar;
    WindowGuard const guard(&items); // who hears what is highlighted may end the menu
    switch (key)
    {
    case VK_DOWN:
        items.Step(1);
        return true;
    case VK_UP:
        items.Step(-1);
        return true;
    case VK_HOME:
        items.Highlight(-1);
        if (guard.Alive())
            items.Step(1);
        return true;
    case VK_END:
        items.Highlight(-1);
        if (guard.Alive())
            items.Step(-1);
        return true;
    case VK_RETURN:
        items.Choose(items.m_hot, true);
        return true;
    case VK_RIGHT:
        if (!items.OpenSubMenu(items.m_hot, true))
            NextMenu(1);
        return true;
    case VK_LEFT:
        if (popup.GetParentPopupMenu() != nullptr)
            popup.CloseMenu();
        else
            NextMenu(-1);
        return true;
    case VK_ESCAPE:
        popup.CloseMenu(popup.GetParentPopupMenu() == nullptr);
        return true;
    case VK_TAB:
        return true;
    default:
        return false;
    }
}

bool framework::MenuMode::HandleKeyInBar(CMFCToolBar & bar, UINT key)
{
    bool const horizontal = bar.IsHorizontal() != FALSE;
    switch (key)
    {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN: {
        bool const along = (key == VK_LEFT || key == VK_RIGHT) == horizontal;
        if (along)
            bar.Highlight(NextButton(bar, bar.m_hot, key == VK_LEFT || key == VK_UP ? -1 : 1));
        else
            OpenMenu(bar, bar.m_hot, true);
        return true;
    }
    case VK_HOME:
        bar.Highlight(NextButton(bar, -1, 1));
        return true;
    case VK_END:
        bar.Highlight(NextButton(bar, bar.GetCount(), -1));
        return true;
    case VK_TAB:
        NextBar();
        return true;
    case VK_RETURN:
    case VK_SPACE: {
        int const index = bar.m_hot;
        CMFCToolBarButton * const button = bar.GetButton(index);
        auto const * const menuButton = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
        if (menuButton != nullptr && !menuButton->HasButton())
        {
            OpenMenu(bar, index, true);
            return true;
        }
        WindowGuard const guard(&bar);
        End();
        if (guard.Alive() && bar.ButtonToIndex(button) == index)
            bar.ProcessCommand(button);
        return true;
    }
    case VK_ESCAPE:
        End();
        return true;
    default:
        return false;
    }
}

bool framework::MenuMode::HandleCharacter(wchar_t character)
{
    CMFCPopupMenu * const popup = Leaf();
    if (popup == nullptr)
    {
        CMFCToolBar * const bar = Bar();
        if (bar != nullptr && character > L' ')
            bar->TranslateChar(character);
        return true;
    }
    // With several items of one mnemonic, each press goes to the next.
    CMFCPopupMenuBar & items = popup->m_bar;
    wchar_t const wanted = MnemonicOf(CString(L"&") + character);
    int found = -1;
    int matches = 0;
    int const count = items.GetCount();
    for (int step = 1; step <= count && wanted > L' '; ++step)
    {
        int const index = ((items.m_hot < 0 ? -1 : items.m_hot) + step) % count;
        CMFCToolBarButton const * const button = items.GetButton(index);
        if (!items.CanHighlight(index) || MnemonicOf(button->m_strText) != wanted)
            continue;
        if (found < 0)
            found = index;
        ++matches;
    }
    if (matches == 1)
        items.Choose(found, true);
    else if (matches > 1)
    {
        WindowGuard const guard(&items);
        items.Highlight(found);
        if (guard.Alive())
            items.CloseDelayedSubMenu();
    }
    return true;
}
