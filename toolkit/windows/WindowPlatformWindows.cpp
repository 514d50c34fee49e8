#include <afxwin.h>

#include "windows/WindowPlatform.h"

namespace
{
void SendHandleToParent(CWnd & window, UINT message)
{
    ::SendMessageW(window.GetParent()->GetSafeHwnd(), message, reinterpret_cast<WPARAM>(window.m_hWnd), 0);
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
