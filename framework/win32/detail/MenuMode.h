#pragma once
// What keys and the mouse do while menus are open. Inside framework.dll only.
//
// The menus of the framework's own windows have no loop of their own and leave the focus where it is: every message
// that the thread's loop takes out of the queue is offered here first.

#include <afxwin.h>

#include "FrameSupport.h"

class CMFCMenuBar;
class CMFCPopupMenu;
class CMFCToolBar;

namespace framework
{
/// Whether a bar is still there that may have no window yet; without one nobody ends it.
class BarGuard
{
public:
    explicit BarGuard(CWnd const & bar) : m_guard(&bar), m_hasWindow(bar.m_hWnd != nullptr) {}
    bool Alive() const { return !m_hasWindow || m_guard.Alive(); }

private:
    WindowGuard m_guard;
    bool m_hasWindow;
};

class MenuMode
{
public:
    /// The calling thread's.
    static MenuMode & Current();

    /// TRUE if the message has been dealt with.
    bool PreTranslate(MSG const & message);

    /// The bar that Alt leads to while that frame is the active window.
    void AttachBar(HWND frame, CMFCMenuBar & bar);
    void DetachBar(HWND frame, CMFCMenuBar const & bar);
    static CMFCMenuBar * BarOf(HWND frame);

    void PopupOpened(CMFCPopupMenu & popup);
    void PopupEnds(CMFCPopupMenu & popup);
    /// The innermost popup that is open, or null.
    CMFCPopupMenu * Leaf() const;
    /// Whether the bar is led by keys, or a menu of it is open.
    bool IsOn(CMFCToolBar const & bar) const;

    /// Closes all menus, and keys mean again what they did.
    void End();
    void CloseMenus();
    /// Leads the bar by keys from that button on.
    void EnterBar(CMFCToolBar & bar, int index);
    /// Opens a menu of a bar, in place of the one that is open. byKeys: with its first item highlighted.
    bool OpenMenu(CMFCToolBar & bar, int index, bool byKeys);
    /// The next menu of the bar in that direction.
    void NextMenu(int direction);

private:
    bool HandleKey(MSG const & message);
    bool HandleKeyInPopup(CMFCPopupMenu & popup, UINT key);
    bool HandleKeyInBar(CMFCToolBar & bar, UINT key);
    bool HandleCharacter(wchar_t character);
    bool HandleMouse(MSG const & message);
    bool HandleAlt(MSG const & message);
    bool NextBar();
    CMFCToolBar * Bar() const;
    static int NextButton(CMFCToolBar const & bar, int from, int direction);

    HWND m_leaf = nullptr;
    HWND m_bar = nullptr; // led by keys, or with an open menu
    bool m_byKeys = false;
    WPARAM m_taken = 0;      // the key that went down last without anybody hearing of it
    bool m_altAlone = false; // Alt is down, and nothing else has happened since
};

/// For whoever is deactivated.
void EndMenuMode();
/// Shows a menu, or with null the frame's own, where the frame has a menu bar of the framework's; false if it has none.
bool ShowMenuInBar(HWND frame, HMENU menu);
/// The frame's own menu in its menu bar, or null.
HMENU MenuOfBar(HWND frame);
} // namespace framework
