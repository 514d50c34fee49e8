#pragma once
// Handles of objects that may be missing: a null object has a null handle.

#include <commctrl.h>

#include "ControlMessage.h"
#include "imagelist.h"
#include "wnd.h"

namespace framework
{
inline HWND HandleOf(CWnd const * window)
{
    return window != nullptr ? window->m_hWnd : nullptr;
}
inline HIMAGELIST HandleOf(CImageList const * images)
{
    return images != nullptr ? images->GetSafeHandle() : nullptr;
}

/// Sends the message; the image list that it answers, as an object.
template <class... Arguments> CImageList * SendForImages(HWND window, UINT message, Arguments... arguments)
{
    return CImageList::FromHandle(Send<HIMAGELIST>(window, message, arguments...));
}
/// Sends the message; the window that it answers, as an object of the window class that it is known to have.
template <class Window, class... Arguments> Window * SendForWindow(HWND window, UINT message, Arguments... arguments)
{
    return static_cast<Window *>(CWnd::FromHandle(Send<HWND>(window, message, arguments...)));
}
} // namespace framework
