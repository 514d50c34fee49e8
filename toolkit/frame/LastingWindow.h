#pragma once
// Windows of native controls that are ended in what they tell: a tool tip tells the window that it belongs to when it
// is shown or painted, and goes on after that. Internal to the module, for one thread.

#include <afxwin.h>

namespace lasting_window
{
/// From now on End knows whether native code of the window is at work. Once a window.
void Watch(HWND window);
/// Ends the window. While its native code is at work it is hidden and leaves its owner, and goes when that has come
/// back.
void End(HWND window);
} // namespace lasting_window
