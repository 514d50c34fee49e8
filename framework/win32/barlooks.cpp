// How the bars that draw themselves look.

#include "detail/BarLooks.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr int usual_dpi = 96;

int ScreenDpi()
{
    HDC const screen = ::GetDC(nullptr);
    int const dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return dpi;
}

/// One for the process. It goes with the system's end of the process, when no window is left to draw with it.
CFont & FontObject()
{
    static auto * const font = new CFont;
    return *font;
}
} // namespace

int framework::Scaled(int pixels)
{
    return ::MulDiv(pixels, ScreenDpi(), usual_dpi);
}

CSize framework::Scaled(SIZE size)
{
    return CSize(Scaled(size.cx), Scaled(size.cy));
}

CFont & framework::MenuFont()
{
    CFont & font = FontObject();
    if (font.m_hObject == nullptr)
        ReloadMenuFont();
    return font;
}

void framework::ReloadMenuFont()
{
    NONCLIENTMETRICS metrics{};
    metrics.cbSize = sizeof metrics;
    CFont & font = FontObject();
    font.DeleteObject();
    if (!::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) ||
        !font.CreateFontIndirect(&metrics.lfMenuFont))
        font.CreateStockObject(DEFAULT_GUI_FONT);
}

CSize framework::LabelExtent(CDC & dc, CString const & text)
{
    CRect rect(0, 0, 0, 0);
    ::DrawText(dc.m_hDC, text, text.GetLength(), &rect, DT_SINGLELINE | DT_CALCRECT);
    return rect.Size();
}

wchar_t framework::MnemonicOf(CString const & text)
{
    for (int at = 0; at + 1 < text.GetLength(); ++at)
    {
        if (text[at] != L'&')
            continue;
        if (text[at + 1] != L'&')
        {
            return static_cast<wchar_t>(
                reinterpret_cast<UINT_PTR>(::CharUpper(reinterpret_cast<LPTSTR>(static_cast<UINT_PTR>(text[at + 1])))));
        }
        ++at;
    }
    return 0;
}

framework::MeasureDC::MeasureDC()
    : m_screen(::GetDC(nullptr)),
      m_previous(::SelectObject(m_screen, MenuFont().m_hObject))
{
    m_dc.Attach(m_screen);
}

framework::MeasureDC::~MeasureDC()
{
    m_dc.Detach();
    ::SelectObject(m_screen, m_previous);
    ::ReleaseDC(nullptr, m_screen);
}

void framework::DrawMark(CDC & dc, CRect const & rect, Mark mark, COLORREF colour)
{
    CPoint const middle = rect.CenterPoint();
    int const unit = Scaled(1);
    int const size = Scaled(3);
    std::vector<POINT> points;
    switch (mark)
    {
    case Mark::check: {
        // Two strokes, the second twice as long.
        for (int step = 0; step <= 3 * size; ++step)
        {
            int const x = middle.x - size - size / 2 + step;
            int const y = middle.y + (step <= size ? step - size / 3 : size + size - step - size / 3);
            dc.FillSolidRect(x, y - unit, unit, 2 * unit + unit / 2, colour);
        }
        return;
    }
    case Mark::bullet: {
        CBrush brush(colour);
        HGDIOBJ const oldBrush = ::SelectObject(dc.m_hDC, brush.m_hObject);
        HGDIOBJ const oldPen = ::SelectObject(dc.m_hDC, ::GetStockObject(NULL_PEN));
        dc.Ellipse(middle.x - size, middle.y - size, middle.x + size + 2, middle.y + size + 2);
        ::SelectObject(dc.m_hDC, oldPen);
        ::SelectObject(dc.m_hDC, oldBrush);
        return;
    }
    case Mark::arrow_right:
        for (int step = 0; step <= size; ++step)
            dc.FillSolidRect(middle.x - size / 2 + step, middle.y - (size - step), 1, 2 * (size - step) + 1, colour);
        return;
    case Mark::arrow_down:
        for (int step = 0; step <= size; ++step)
            dc.FillSolidRect(middle.x - (size - step), middle.y - size / 2 + step, 2 * (size - step) + 1, 1, colour);
        return;
    case Mark::arrow_up:
        for (int step = 0; step <= size; ++step)
            dc.FillSolidRect(middle.x - (size - step), middle.y + size / 2 - step, 2 * (size - step) + 1, 1, colour);
        return;
    }
}

COLORREF framework::Between(COLORREF first, COLORREF second, int percent)
{
    auto const mix = [percent](int a, int b) { return a + (b - a) * percent / 100; };
    return RGB(mix(GetRValue(first), GetRValue(second)), mix(GetGValue(first), GetGValue(second)),
               mix(GetBValue(first), GetBValue(second)));
}

COLORREF framework::HotColour()
{
    return Between(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_HIGHLIGHT), 25);
}

COLORREF framework::PressedColour()
{
    return Between(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_HIGHLIGHT), 45);
}
