#pragma once
// What the layout engine asks of the window system. Rectangles and lengths are in pixels.
//
// Instance() is defined once a program: by LayoutPlatformWindows.cpp in the module, by a substitute in the logic tests.

#include <afx.h>
#include <atltypes.h>

class CWnd;

class LayoutPlatform
{
public:
    virtual ~LayoutPlatform() = default;

    static LayoutPlatform & Instance();

    virtual HWND HandleOf(CWnd const & window) = 0;
    /// The control of that id in the dialog, or null.
    virtual CWnd * DialogItem(CWnd & dialog, int id) = 0;

    virtual bool IsWindow(HWND window) = 0;
    /// The outer rectangle in screen coordinates; `rect` stays as it was for a handle that is no window.
    virtual void GetWindowRect(HWND window, RECT & rect) = 0;
    virtual HWND GetParent(HWND window) = 0;
    virtual void ScreenToClient(HWND window, POINT & point) = 0;
    /// The first direct child in window order, or null.
    virtual HWND FirstChild(HWND parent) = 0;
    /// The window behind this one in window order, or null.
    virtual HWND NextWindow(HWND window) = 0;
    /// Moves and repaints.
    virtual void MoveWindow(HWND window, int left, int top, int width, int height) = 0;
    /// The same through the window object.
    virtual void MoveDialog(CWnd & dialog, int left, int top, int width, int height) = 0;
    /// Invalidates the whole window without erasing its background.
    virtual void Invalidate(HWND window) = 0;

    /// The runtime's report of a failed assertion. May return.
    virtual void ReportAssertion(wchar_t const * expression, wchar_t const * source, unsigned int line) = 0;
};
