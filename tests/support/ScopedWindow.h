#pragma once
// A plain top-level window that goes with its scope, as a parent for what a test looks at:
//
//     tests::ScopedWindow parent;                              // shown, 400 x 300 at (100, 100)
//     CButton button;
//     button.Create(L"x", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), parent, 7);

#include <afxwin.h>

namespace tests
{
class ScopedWindow : public CWnd
{
public:
    /// rect: screen pixels. style: WS_ styles; with WS_VISIBLE the window is shown and its messages are pumped.
    explicit ScopedWindow(CRect const & rect = CRect(100, 100, 500, 400),
                          DWORD style = WS_OVERLAPPEDWINDOW | WS_VISIBLE, wchar_t const * title = L"test");
    ~ScopedWindow() override;

    operator CWnd *() { return this; }
};

/// Destroys the window of an object at the end of the scope, if it still has one.
class WindowCloser
{
public:
    explicit WindowCloser(CWnd & window) : m_window(window) {}
    ~WindowCloser()
    {
        if (m_window.GetSafeHwnd() != nullptr)
            m_window.DestroyWindow();
    }
    WindowCloser(WindowCloser const &) = delete;
    WindowCloser & operator=(WindowCloser const &) = delete;

private:
    CWnd & m_window;
};
} // namespace tests
