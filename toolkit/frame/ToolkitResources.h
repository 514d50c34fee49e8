#pragma once
// Loading of the toolkit's resources while it runs inside another program. Internal to the module.
//
// The framework's current resource module usually is the application's. The functions below make it the toolkit's for
// the time of the load; the search still goes on through the application's chain. The ids are in
// resources/resource_ids.h.

#include <afxwin.h>

/// Makes the toolkit's module the framework's current resource module for the life of the object and restores the
/// former one at its end, however the scope is left.
class CToolkitResourceExchange
{
public:
    CToolkitResourceExchange();
    ~CToolkitResourceExchange();
    CToolkitResourceExchange(CToolkitResourceExchange const &) = delete;
    CToolkitResourceExchange & operator=(CToolkitResourceExchange const &) = delete;

private:
    HINSTANCE m_former;
};

/// The icon of that id in the system's icon size, or null. Shared by the system: not to be destroyed.
HICON LoadToolkitIcon(UINT id);

/// The menu of that id, or null. The caller owns it (DestroyMenu, or CMenu::Attach).
HMENU LoadToolkitMenu(UINT id);

/// The text of that id in the language in force, in another one where that lacks it, or an empty string.
CString LoadToolkitString(UINT id);
