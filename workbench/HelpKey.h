#pragma once

#include <afxwin.h>

#include <functional>

namespace workbench
{

/// Lets F1 open the help from the thread's windows, dialogs with a loop of their own among them, as long as it lives.
/// One at a time in a thread.
class HelpKey
{
public:
    /// The keys of `frame` itself are left to its accelerators. pressed: called, from within the loop that takes the
    /// key, with the window that has the focus, and whether Ctrl is held.
    HelpKey(HWND frame, std::function<void(HWND focus, bool control)> pressed);
    HelpKey(HelpKey const &) = delete;
    HelpKey & operator=(HelpKey const &) = delete;
    ~HelpKey();

private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM removed, LPARAM message);

    HWND m_frame;
    std::function<void(HWND, bool)> m_pressed;
    HHOOK m_hook;
};

} // namespace workbench
