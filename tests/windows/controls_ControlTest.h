#pragma once
// What the tests of the combo box and the list box with numbered rows share.

#include "Bitmap.h"
#include "Input.h"
#include "MessageRecorder.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "ThreadWindows.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace controls
{
/// A control that runs an action before a message, in place of the message.
template <typename Control> class Watched : public Control
{
public:
    void On(UINT message, std::function<void()> action)
    {
        m_message = message;
        m_action = std::move(action);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == m_message && m_action)
        {
            auto const action = std::exchange(m_action, nullptr);
            action();
            return 0;
        }
        return Control::WindowProc(message, wParam, lParam);
    }

private:
    UINT m_message = 0;
    std::function<void()> m_action;
};

/// The width of a text in a window's font.
inline int TextWidth(CWnd & window, CString const & text)
{
    CClientDC dc(&window);
    CFont * const font = window.GetFont();
    CFont * const former = font != nullptr ? dc.SelectObject(font) : nullptr;
    int const width = dc.GetTextExtent(text).cx;
    if (former != nullptr)
        dc.SelectObject(former);
    return width;
}
} // namespace controls
