#pragma once
// Tells whether a window and its object are still there after a call that may have run the host's code. Internal to the
// module.

#include <afxwin.h>

/// Whether an object still has the window that it had; an object that has lost it may be deleted. Of an object without
/// a window nothing can be told: it counts as lost.
class WindowHold
{
public:
    explicit WindowHold(CWnd const & window) : m_window(&window), m_handle(window.m_hWnd) {}
    bool Lost() const { return m_handle == nullptr || CWnd::FromHandlePermanent(m_handle) != m_window; }
    HWND Handle() const { return m_handle; }

private:
    CWnd const * m_window;
    HWND m_handle;
};
