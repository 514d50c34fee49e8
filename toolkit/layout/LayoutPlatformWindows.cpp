// The runtime declares its assertion report only where assertions are on.
#undef NDEBUG
#include "layout/LayoutPlatform.h"

#include <afxwin.h>

#include <cassert>

namespace
{
class WindowsLayoutPlatform final : public LayoutPlatform
{
public:
    HWND HandleOf(CWnd const & window) override { return window.m_hWnd; }
    CWnd * DialogItem(CWnd & dialog, int id) override { return dialog.GetDlgItem(id); }

    bool IsWindow(HWND window) override { return ::IsWindow(window) != FALSE; }
    void GetWindowRect(HWND window, RECT & rect) override { ::GetWindowRect(window, &rect); }
    HWND GetParent(HWND window) override { return ::GetParent(window); }
    void ScreenToClient(HWND window, POINT & point) override { ::ScreenToClient(window, &point); }
    HWND FirstChild(HWND parent) override { return ::GetWindow(parent, GW_CHILD); }
    HWND NextWindow(HWND window) override { return ::GetWindow(window, GW_HWNDNEXT); }
    void MoveWindow(HWND window, int left, int top, int width, int height) override
    {
        ::MoveWindow(window, left, top, width, height, TRUE);
    }
    void MoveDialog(CWnd & dialog, int left, int top, int width, int height) override
    {
        dialog.MoveWindow(left, top, width, height, TRUE);
    }
    void Invalidate(HWND window) override { ::InvalidateRect(window, nullptr, FALSE); }

    void ReportAssertion(wchar_t const * expression, wchar_t const * source, unsigned int line) override
    {
        // Through a volatile pointer, so that no compiler takes the call for one that never returns: the user may
        // choose to go on.
        using Report = void(__cdecl *)(wchar_t const *, wchar_t const *, unsigned int);
        Report volatile const report = &_wassert;
        report(expression, source, line);
    }
};
} // namespace

LayoutPlatform & LayoutPlatform::Instance()
{
    static WindowsLayoutPlatform platform;
    return platform;
}
