#pragma once
// What the menu manager asks of the window system.
//
// Instance() is defined once a program: by MenuPlatformWindows.cpp in the module, by a substitute in the logic tests.

#include <afx.h>

class CMenu;

class MenuPlatform
{
public:
    virtual ~MenuPlatform() = default;

    static MenuPlatform & Instance();

    /// `flags` are the window system's MF_ values. text may be null. False if the menu refuses the item.
    virtual bool Append(CMenu & menu, unsigned int flags, unsigned int id, wchar_t const * text) = 0;

    /// Below 0 for a menu that is none.
    virtual int ItemCount(CMenu const & menu) = 0;
    /// The text of the item at that position, with its accelerator marks and tab part. Empty for a separator.
    virtual CString ItemText(CMenu const & menu, int position) = 0;
    /// 0 for a separator, -1 for an item with a submenu.
    virtual unsigned int ItemId(CMenu const & menu, int position) = 0;
    /// The submenu at that position, or null.
    virtual CMenu * SubMenu(CMenu const & menu, int position) = 0;

    /// The menu of the thread's main window, or null. There must be a main window.
    virtual CMenu * MainWindowMenu() = 0;
    /// Draws the menu bar of the thread's main window anew. There must be a main window.
    virtual void DrawMainWindowMenuBar() = 0;
};
