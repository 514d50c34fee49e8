#pragma once
// A segment display on a window of its own, for the tests of its painting and of its messages.

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "segments/DigiChar.h"
#include "segments/DigiStatic.h"

namespace tests
{
inline constexpr COLORREF display_back = 0x501E00;
inline constexpr COLORREF display_off = 0x005000;
inline constexpr COLORREF display_on = 0x00FF00;
// Three quarters of the above and a quarter of the background.
inline constexpr COLORREF display_soft_off = 0x144300;
inline constexpr COLORREF display_soft_on = 0x14C600;

/// The control with its inside open.
class OpenDisplay : public CDigiStatic
{
public:
    using CDigiStatic::BuildString;
    using CDigiStatic::DoInvalidate;
    using CDigiStatic::GetThisMessageMap;
    using CDigiStatic::m_backColor;
    using CDigiStatic::m_buttonRect;
    using CDigiStatic::m_chars;
    using CDigiStatic::m_digiStyle;
    using CDigiStatic::m_drawImmediately;
    using CDigiStatic::m_modified;
    using CDigiStatic::m_offColor;
    using CDigiStatic::m_onColor;
    using CDigiStatic::m_text;
    using CDigiStatic::m_transparent;

    int LineWidth() const
    {
        int width = 0;
        for (INT_PTR i = 0; i < m_chars.GetSize(); ++i)
            width += m_chars[i].width;
        return width;
    }
    bool NeedsPaint() const { return ::GetUpdateRect(m_hWnd, nullptr, FALSE) != FALSE; }
    /// The characters of the line were made anew since the last call.
    bool WasRebuilt()
    {
        bool const rebuilt = m_chars.GetSize() == 0 || m_chars[0].segmentCount != mark;
        if (m_chars.GetSize() > 0)
            m_chars[0].segmentCount = mark;
        return rebuilt;
    }

private:
    static constexpr int mark = 0;
};

class DisplayTest : public testing::Test
{
protected:
    static constexpr int display_width = 490;
    static constexpr int display_height = 83;

    void Open(wchar_t const * text = L"", int width = display_width, int height = display_height, DWORD style = 0)
    {
        ASSERT_TRUE(m_display.Create(text, WS_CHILD | WS_VISIBLE | style, CRect(0, 0, width, height), m_host, 7));
        PumpPosted();
    }
    /// Paints all of it, now.
    void Paint() { m_display.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }
    /// Paints what is outstanding, now.
    void Update() { m_display.UpdateWindow(); }
    /// Paints and copies what shows.
    void Show(Canvas & canvas)
    {
        Paint();
        canvas.CopyFromScreen(m_display);
    }

    ScopedWindow m_host{CRect(100, 100, 640, 400), WS_POPUP | WS_VISIBLE};
    OpenDisplay m_display;
    WindowCloser m_closer{m_display};
};
} // namespace tests
