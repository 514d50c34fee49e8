#pragma once
// What the windows of the combo family hold over calls that can run the host's code. Internal to the module.

#include <afxwin.h>

#include "frame/LifeWatch.h"

namespace XListCtrl
{
/// Tells whether an object, and the window that it had, are still there.
class WindowWatch
{
public:
    WindowWatch(CWnd const & window, LifeSign const & sign) : m_window(window), m_life(sign), m_handle(window.m_hWnd) {}
    WindowWatch(WindowWatch const &) = delete;
    WindowWatch & operator=(WindowWatch const &) = delete;

    /// The object is there, with or without its window.
    bool IsThere() const { return !m_life.Over(); }
    bool IsAlive() const { return IsThere() && m_handle != nullptr && m_window.m_hWnd == m_handle; }

private:
    CWnd const & m_window;
    LifeWatch m_life;
    HWND m_handle;
};
} // namespace XListCtrl
