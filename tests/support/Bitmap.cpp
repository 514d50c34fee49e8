#include "Bitmap.h"

#include <algorithm>
#include <stdexcept>

namespace tests
{
namespace
{
constexpr std::uint32_t colour_bits = 0x00FFFFFF;

std::uint32_t ToPixel(COLORREF colour)
{
    return static_cast<std::uint32_t>(GetRValue(colour)) << 16 | static_cast<std::uint32_t>(GetGValue(colour)) << 8 |
           GetBValue(colour);
}

COLORREF FromPixel(std::uint32_t pixel)
{
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}
} // namespace

Canvas::Canvas(int width, int height, COLORREF background) : m_width(width), m_height(height)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // the first row is the top one
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void * bits = nullptr;
    m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (m_bitmap == nullptr || !m_dc.CreateCompatibleDC(nullptr))
    {
        ::DeleteObject(m_bitmap);
        throw std::runtime_error("the canvas could not be created");
    }
    m_bits = static_cast<std::uint32_t *>(bits);
    m_previous = ::SelectObject(m_dc.GetSafeHdc(), m_bitmap);
    Fill(background);
}

Canvas::~Canvas()
{
    ::SelectObject(m_dc.GetSafeHdc(), m_previous);
    m_dc.DeleteDC();
    ::DeleteObject(m_bitmap);
}

COLORREF Canvas::Pixel(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return CLR_INVALID;
    ::GdiFlush();
    return PixelAt(x, y);
}

COLORREF Canvas::PixelAt(int x, int y) const
{
    return FromPixel(m_bits[static_cast<size_t>(y) * m_width + x] & colour_bits);
}

void Canvas::Fill(COLORREF colour)
{
    ::GdiFlush();
    std::fill_n(m_bits, static_cast<size_t>(m_width) * m_height, ToPixel(colour));
}

int Canvas::Count(COLORREF colour) const
{
    return Count(colour, CRect(0, 0, m_width, m_height));
}

int Canvas::Count(COLORREF colour, CRect const & rect) const
{
    CRect inside;
    inside.IntersectRect(rect, CRect(0, 0, m_width, m_height));
    ::GdiFlush();
    int count = 0;
    for (int y = inside.top; y < inside.bottom; ++y)
    {
        for (int x = inside.left; x < inside.right; ++x)
            count += PixelAt(x, y) == colour ? 1 : 0;
    }
    return count;
}

CRect Canvas::BoundsOf(std::function<bool(COLORREF)> const & predicate) const
{
    ::GdiFlush();
    CRect bounds(m_width, m_height, 0, 0);
    for (int y = 0; y < m_height; ++y)
    {
        for (int x = 0; x < m_width; ++x)
        {
            if (!predicate(PixelAt(x, y)))
                continue;
            bounds.left = std::min<LONG>(bounds.left, x);
            bounds.top = std::min<LONG>(bounds.top, y);
            bounds.right = std::max<LONG>(bounds.right, x + 1);
            bounds.bottom = std::max<LONG>(bounds.bottom, y + 1);
        }
    }
    return bounds.right == 0 ? CRect(0, 0, 0, 0) : bounds;
}

CRect Canvas::BoundsOf(COLORREF colour) const
{
    return BoundsOf([colour](COLORREF pixel) { return pixel == colour; });
}

CRect Canvas::BoundsOfOther(COLORREF background) const
{
    return BoundsOf([background](COLORREF pixel) { return pixel != background; });
}

void Canvas::PrintClient(HWND window)
{
    auto const dc = reinterpret_cast<WPARAM>(m_dc.GetSafeHdc());
    ::SendMessage(window, WM_ERASEBKGND, dc, 0);
    ::SendMessage(window, WM_PRINTCLIENT, dc, PRF_CLIENT | PRF_ERASEBKGND);
}

void Canvas::CopyFromScreen(HWND window)
{
    HDC const source = ::GetDC(window);
    ::BitBlt(m_dc.GetSafeHdc(), 0, 0, m_width, m_height, source, 0, 0, SRCCOPY);
    ::ReleaseDC(window, source);
}

testing::AssertionResult SamePixels(Canvas const & a, Canvas const & b)
{
    if (a.Width() != b.Width() || a.Height() != b.Height())
    {
        return testing::AssertionFailure()
               << "sizes differ: " << a.Width() << " x " << a.Height() << " and " << b.Width() << " x " << b.Height();
    }
    ::GdiFlush();
    int differing = 0;
    CPoint first(0, 0);
    for (int y = 0; y < a.Height(); ++y)
    {
        for (int x = 0; x < a.Width(); ++x)
        {
            if (a.PixelAt(x, y) == b.PixelAt(x, y))
                continue;
            if (differing++ == 0)
                first = CPoint(x, y);
        }
    }
    if (differing == 0)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << differing << " pixels differ, the first at (" << first.x << ", " << first.y
                                       << "): " << std::hex << a.Pixel(first.x, first.y) << " and "
                                       << b.Pixel(first.x, first.y);
}
} // namespace tests
