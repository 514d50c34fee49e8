#pragma once
// What is asked after a call that may have run the host's code. Internal to the module.

#include <afxwin.h>

#include "frame/LifeWatch.h"

/// Whether an object still has a window; one that has lost it may be deleted, and is not looked into.
inline bool StillHas(CWnd const * object, HWND window)
{
    return window != nullptr && CWnd::FromHandlePermanent(window) == object;
}

/// Tells whether an object without a sign of its life still has the window that it had. Of an object without a window
/// nothing can be told: it counts as lost.
class WindowHold
{
public:
    explicit WindowHold(CWnd const & window) : m_window(&window), m_handle(window.m_hWnd) {}
    bool Lost() const { return !StillHas(m_window, m_handle); }
    HWND Handle() const { return m_handle; }

private:
    CWnd const * m_window;
    HWND m_handle;
};

/// Tells whether an object, and the window that it had, are still there.
class WindowAlive
{
public:
    /// life: a member of the object.
    WindowAlive(CWnd const & window, LifeSign const & life) : m_window(window), m_life(life), m_handle(window.m_hWnd) {}
    WindowAlive(WindowAlive const &) = delete;
    WindowAlive & operator=(WindowAlive const &) = delete;

    /// The object is there, with or without its window.
    bool IsThere() const { return !m_life.Over(); }
    /// False also for an object that had no window to begin with.
    bool IsAlive() const { return m_handle != nullptr && IsThere() && m_window.m_hWnd == m_handle; }

private:
    CWnd const & m_window;
    LifeWatch m_life;
    HWND m_handle;
};
