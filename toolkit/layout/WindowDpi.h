#pragma once
// The resolution that the system gives a window, and its metrics at another one. Internal to the module.

#include <afxwin.h>

#include "layout/Resolution.h"

namespace window_dpi
{
// Looked up where the system has them: older ones know one resolution for the whole session.

template <class Function> Function * FindInUser(char const * name)
{
    HMODULE const user = ::GetModuleHandleW(L"user32.dll");
    return user != nullptr ? reinterpret_cast<Function *>(reinterpret_cast<void *>(::GetProcAddress(user, name)))
                           : nullptr;
}

/// Within what controls serve; 96 where the system doesn't tell.
inline UINT Of(HWND window)
{
    static auto * const ask = FindInUser<UINT WINAPI(HWND)>("GetDpiForWindow");
    UINT const dpi = ask != nullptr && window != nullptr ? ask(window) : 0;
    return resolution::IsServed(dpi) ? dpi : resolution::usual;
}

/// Whether the message tells a window that follows its resolution that this may be another one.
inline bool IsTold(UINT message)
{
    constexpr UINT dpi_changed = 0x02E0;              // WM_DPICHANGED
    constexpr UINT dpi_changed_after_parent = 0x02E3; // WM_DPICHANGED_AFTERPARENT
    return message == dpi_changed || message == dpi_changed_after_parent;
}

/// Has a control that follows take its window's resolution, once it has a window.
template <class Control> void Take(Control & control)
{
    if (control.m_hWnd != nullptr)
        control.SetDpi(Of(control.m_hWnd));
}

// What a control keeps is its resolution, and whether it follows its window's. Its operations on both:

/// SetDpi of a control that is to be painted anew and nothing else.
inline BOOL SetAndRepaint(CWnd & control, UINT & present, UINT dpi)
{
    if (!resolution::IsServed(dpi))
        return FALSE;
    bool const repaints = dpi != present && control.m_hWnd != nullptr;
    present = dpi;
    if (repaints)
        control.Invalidate();
    return TRUE;
}

/// FollowDpi.
template <class Control> void Follow(Control & control, bool & follows, BOOL follow)
{
    follows = follow != FALSE;
    if (follows)
        Take(control);
}

/// In PreSubclassWindow.
template <class Control> void Begin(Control & control, bool follows)
{
    if (follows)
        Take(control);
}

/// For each message of its window.
template <class Control> void Heed(Control & control, bool follows, UINT message)
{
    if (follows && IsTold(message))
        Take(control);
}

/// GetSystemMetrics for a control at that resolution; at 96 as the system has it.
inline int Metric(int index, UINT dpi)
{
    if (dpi == resolution::usual)
        return ::GetSystemMetrics(index);
    static auto * const ask = FindInUser<int WINAPI(int, UINT)>("GetSystemMetricsForDpi");
    if (ask != nullptr)
        return ask(index, dpi);
    // The session's metrics are those of its own resolution.
    HDC const screen = ::GetDC(nullptr);
    int const session = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return resolution::Scaled(::GetSystemMetrics(index), dpi,
                              session > 0 ? static_cast<unsigned int>(session) : resolution::usual);
}
} // namespace window_dpi
