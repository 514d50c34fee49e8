#include "windows/WindowPlatform.h"

#include <afxwin.h>

namespace
{
void SendHandleToParent(CWnd & window, UINT message)
{
    ::SendMessageW(window.GetParent()->GetSafeHwnd(), message, reinterpret_cast<WPARAM>(window.m_hWnd), 0);
}

/// The screen's resolution; that of the whole system where it isn't told for each screen.
int DpiOf(HMONITOR monitor)
{
    using GetDpiForMonitor = HRESULT(WINAPI *)(HMONITOR, int, UINT *, UINT *);
    static auto const ask = [] {
        HMODULE const module = ::LoadLibraryExW(L"shcore.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        FARPROC const function = module != nullptr ? ::GetProcAddress(module, "GetDpiForMonitor") : nullptr;
        return reinterpret_cast<GetDpiForMonitor>(reinterpret_cast<void *>(function));
    }();
    UINT across = 0;
    UINT down = 0;
    constexpr int effective_dpi = 0;
    if (ask != nullptr && SUCCEEDED(ask(monitor, effective_dpi, &across, &down)) && down != 0)
        return static_cast<int>(down);
    HDC const screen = ::GetDC(nullptr);
    int const dpi = screen != nullptr ? ::GetDeviceCaps(screen, LOGPIXELSY) : 0;
    ::ReleaseDC(nullptr, screen);
    return dpi != 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

BOOL CALLBACK AddScreen(HMONITOR monitor, HDC, RECT *, LPARAM target)
{
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    if (::GetMonitorInfoW(monitor, &info))
    {
        auto & screens = *reinterpret_cast<std::vector<ScreenArea> *>(target);
        bool const primary = (info.dwFlags & MONITORINFOF_PRIMARY) != 0;
        screens.insert(primary ? screens.begin() : screens.end(), ScreenArea{info.rcWork, DpiOf(monitor)});
    }
    return TRUE;
}

class WindowsWindowPlatform final : public WindowPlatform
{
public:
    CRect WorkArea() override
    {
        CRect area(0, 0, 0, 0);
        ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
        return area;
    }

    std::vector<ScreenArea> Screens() override
    {
        std::vector<ScreenArea> screens;
        ::EnumDisplayMonitors(nullptr, nullptr, &AddScreen, reinterpret_cast<LPARAM>(&screens));
        return screens;
    }
    int CaptionHeight() override { return ::GetSystemMetrics(SM_CYSIZEFRAME) + ::GetSystemMetrics(SM_CYCAPTION); }
    std::optional<CPoint> PlacementOrigin(CWnd const & window) override
    {
        if ((window.GetStyle() & WS_CHILD) != 0)
            return std::nullopt;
        // Of all others but tool windows it is the corner of the primary screen's work area.
        return (window.GetExStyle() & WS_EX_TOOLWINDOW) != 0 ? CPoint(0, 0) : WorkArea().TopLeft();
    }

    bool IsWindow(CWnd const & window) override { return ::IsWindow(window.m_hWnd) != FALSE; }
    bool IsIconic(CWnd const & window) override { return ::IsIconic(window.m_hWnd) != FALSE; }
    bool IsZoomed(CWnd const & window) override { return ::IsZoomed(window.m_hWnd) != FALSE; }
    void GetPlacement(CWnd const & window, WINDOWPLACEMENT & placement) override
    {
        window.GetWindowPlacement(&placement);
    }
    void SetPlacement(CWnd & window, WINDOWPLACEMENT const & placement) override
    {
        window.SetWindowPlacement(&placement);
    }
    CWnd * Owner(CWnd const & window) override { return window.GetOwner(); }
    void ClientToScreen(CWnd const & window, CPoint & point) override { ::ClientToScreen(window.m_hWnd, &point); }
    void Show(CWnd & window, int command) override { window.ShowWindow(command); }
    void Destroy(CWnd & window) override { window.DestroyWindow(); }

    void DestroyMdiChild(CWnd & window) override { SendHandleToParent(window, WM_MDIDESTROY); }
    void ActivateMdiChild(CWnd & window) override { SendHandleToParent(window, WM_MDIACTIVATE); }

    HMENU SystemMenu(CWnd const & window) override { return ::GetSystemMenu(window.m_hWnd, FALSE); }
    void EnableMenuItem(HMENU menu, unsigned int command, unsigned int state) override
    {
        ::EnableMenuItem(menu, command, state);
    }
    DWORD Style(CWnd const & window) override { return static_cast<DWORD>(::GetWindowLongW(window.m_hWnd, GWL_STYLE)); }
    void SetStyle(CWnd & window, DWORD style) override
    {
        ::SetWindowLongW(window.m_hWnd, GWL_STYLE, static_cast<LONG>(style));
    }
    void Redraw(CWnd & window, unsigned int flags) override { ::RedrawWindow(window.m_hWnd, nullptr, nullptr, flags); }
};
} // namespace

WindowPlatform & WindowPlatform::Instance()
{
    static WindowsWindowPlatform platform;
    return platform;
}
