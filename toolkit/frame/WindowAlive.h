#pragma once
// What is asked after a call that may have run the host's code. Internal to the module.

#include <afxwin.h>

#include "frame/LifeWatch.h"

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
