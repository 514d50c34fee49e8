#include "ScopedWindow.h"

#include <stdexcept>

#include "Pump.h"

namespace tests
{
ScopedWindow::ScopedWindow(CRect const & rect, DWORD style, wchar_t const * title)
{
    LPCTSTR const className = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                                  reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1), nullptr);
    if (!CreateEx(0, className, title, style, rect, nullptr, 0))
        throw std::runtime_error("the test's window could not be created");
    if ((style & WS_VISIBLE) != 0)
    {
        UpdateWindow();
        PumpPosted();
    }
}

ScopedWindow::~ScopedWindow()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
}
} // namespace tests
