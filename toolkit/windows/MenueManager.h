#pragma once

#include <afx.h>

#include "frame/Export.h"

class CMenu;

/// Adds items with running identifiers to menus, and finds items and submenus in a menu. Positions count from 0. A copy
/// goes on with the same next identifier. For the user-interface thread.
class INSTRUMENT_UI_API CMenueManager
{
public:
    /// The first identifier is 1.
    CMenueManager();

    /// The next identifier, which is used up by that.
    unsigned int GetNewID();
    /// Makes it the next identifier.
    void SetNewID(unsigned int id);

    /// Appends an item with a new identifier and gives that, or 0 if the menu refused the item. A refused item uses its
    /// identifier up, too.
    unsigned int AppendString(CMenu & menu, CString const & text);
    /// Appends a separator; false if the menu refused it.
    bool AppendSeparator(CMenu & menu);

    /// The menu of the thread's main window, or null if it has none. There must be a main window. The framework owns
    /// the object.
    static CMenu * ApplicationMenue();
    /// Draws the menu bar of the thread's main window anew. There must be a main window.
    static void DrawApplicationMenue();

    /// The position of the last item of exactly that text, with its accelerator mark and tab part, or -1.
    static int FindItem(CMenu const & menu, CString const & text);
    /// The position of the last item with that identifier, or -1. A separator has 0, an item with a submenu has
    /// 0xFFFFFFFF, and both are found like any other.
    static int FindItem(CMenu const & menu, unsigned int id);
    /// The submenu of the item that FindItem finds; null if there is no such item or it has no submenu. The framework
    /// owns the object.
    static CMenu * FindSubMenue(CMenu const & menu, CString const & text);

private:
    unsigned int m_nextId;
};
