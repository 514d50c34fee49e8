#pragma once
// What the window manager asks of the window system. Rectangles and lengths are in pixels.
//
// Instance() is defined once a program: by WindowPlatformWindows.cpp in the module, by a substitute in the logic tests.

#include <afx.h>
#include <atltypes.h>

#include <optional>
#include <vector>

#include "windows/ReachablePlace.h"

class CWnd;

class WindowPlatform
{
public:
    virtual ~WindowPlatform() = default;

    static WindowPlatform & Instance();

    /// The work area of the primary screen.
    virtual CRect WorkArea() = 0;
    /// The screens, the primary one first.
    virtual std::vector<ScreenArea> Screens() = 0;
    /// From a window's upper edge down to its caption's lower edge.
    virtual int CaptionHeight() = 0;
    /// Where the coordinates of the window's normal rectangle have their origin; null if that is not on the screen, as
    /// with a child window's.
    virtual std::optional<CPoint> PlacementOrigin(CWnd const & window) = 0;

    /// Whether the window object has a handle and that is alive.
    virtual bool IsWindow(CWnd const & window) = 0;
    virtual bool IsIconic(CWnd const & window) = 0;
    virtual bool IsZoomed(CWnd const & window) = 0;
    virtual void GetPlacement(CWnd const & window, WINDOWPLACEMENT & placement) = 0;
    virtual void SetPlacement(CWnd & window, WINDOWPLACEMENT const & placement) = 0;
    /// The owner, or the parent where no owner is set, or null.
    virtual CWnd * Owner(CWnd const & window) = 0;
    virtual void ClientToScreen(CWnd const & window, CPoint & point) = 0;
    virtual void Show(CWnd & window, int command) = 0;
    /// The window's virtual DestroyWindow.
    virtual void Destroy(CWnd & window) = 0;

    /// WM_MDIDESTROY to the window's parent, with the window's handle.
    virtual void DestroyMdiChild(CWnd & window) = 0;
    /// WM_MDIACTIVATE to the window's parent, with the window's handle.
    virtual void ActivateMdiChild(CWnd & window) = 0;

    /// The window's own copy of the system menu, or null.
    virtual HMENU SystemMenu(CWnd const & window) = 0;
    /// `command` and `state` are those of the window system's EnableMenuItem.
    virtual void EnableMenuItem(HMENU menu, unsigned int command, unsigned int state) = 0;
    virtual DWORD Style(CWnd const & window) = 0;
    virtual void SetStyle(CWnd & window, DWORD style) = 0;
    /// The whole window; `flags` are those of the window system's RedrawWindow.
    virtual void Redraw(CWnd & window, unsigned int flags) = 0;
};
