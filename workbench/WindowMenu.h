#pragma once

#include <afxwin.h>

#include <vector>

#include "windows/MenueManager.h"

/// The end of the main window's "Window" menu: an item for each dialog and frame that is open, which brings it to the
/// front. The main window must be the thread's, with its menu.
class CWindowMenu
{
public:
    /// Gives the items a menu: the main window's submenu of that text. Without one nothing is shown.
    void SetMenu(CString const & text);

    /// Adds an item for a window. A window that has one gets the new text. With all identifiers in use nothing happens.
    void Add(CWnd & window, CString const & text);

    /// Takes the window's item out; one that has none is ignored.
    void Remove(CWnd & window);

    /// Brings the window of an item to the front. False if no item has the identifier.
    bool Activate(UINT id);

    /// Cancels all dialogs in the menu and closes all frames.
    void CloseAll();

private:
    struct Item
    {
        CWnd * window;
        UINT id;
    };

    CMenu * Menu() const;
    UINT FreeId() const;

    CString m_text;
    CMenueManager m_manager;
    std::vector<Item> m_items;
};
