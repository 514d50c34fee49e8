#pragma once
// Registered messages between the toolkit's own windows: the list, its editors and their drop-downs. Internal to the
// module. All are sent.

/// The combo's choice is complete; to the list.
extern unsigned int const WM_XCOMBOLIST_COMPLETE;

/// Escape in the drop-down; from the combo to the list, and from the drop-down's list to the combo.
extern unsigned int const WM_XCOMBOLIST_VK_ESCAPE;

/// Return in the drop-down; to the owner of its list.
extern unsigned int const WM_XCOMBOLIST_VK_RETURN;

/// A navigation key moved the selection in the drop-down; to the owner of its list.
extern unsigned int const WM_XCOMBOLIST_KEYDOWN;

/// The mouse button was released in the drop-down; to the owner of its list.
extern unsigned int const WM_XCOMBOLIST_LBUTTONUP;

/// Return in the in-place edit, or it lost the focus; to the list.
extern unsigned int const WM_XEDIT_KILL_FOCUS;

/// Escape in the in-place edit; to the list.
extern unsigned int const WM_XEDIT_VK_ESCAPE;
