#pragma once
// A 32-bit picture of our own to paint on, with access to its pixels:
//
//     tests::Canvas canvas(100, 40, RGB(255, 255, 255));
//     control.DrawSomething(canvas.Dc(), rect);
//     EXPECT_EQ(canvas.Pixel(3, 4), RGB(255, 0, 0));
//     EXPECT_EQ(canvas.BoundsOfOther(RGB(255, 255, 255)), CRect(2, 2, 20, 12));
//     EXPECT_TRUE(tests::SamePixels(canvas, other));
//
// Geometry and colours of known pixels can be compared; text can't, since fonts differ.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>

namespace tests
{
class Canvas
{
public:
    /// width, height: pixels. Throws std::runtime_error if the picture can't be made.
    Canvas(int width, int height, COLORREF background = RGB(255, 255, 255));
    ~Canvas();
    Canvas(Canvas const &) = delete;
    Canvas & operator=(Canvas const &) = delete;

    CDC & Dc() { return m_dc; }
    HBITMAP Bitmap() const { return m_bitmap; }
    int Width() const { return m_width; }
    int Height() const { return m_height; }

    /// The colour without its fourth byte; CLR_INVALID outside.
    COLORREF Pixel(int x, int y) const;
    void Fill(COLORREF colour);
    /// Pixels of the colour within the rectangle (all of the picture without one).
    int Count(COLORREF colour) const;
    int Count(COLORREF colour, CRect const & rect) const;
    /// The smallest rectangle with all pixels for which the predicate holds; empty if there are none.
    CRect BoundsOf(std::function<bool(COLORREF)> const & predicate) const;
    CRect BoundsOf(COLORREF colour) const;
    CRect BoundsOfOther(COLORREF background) const;

    /// Lets the window paint its client area here (WM_ERASEBKGND, WM_PRINTCLIENT).
    void PrintClient(HWND window);
    /// Copies the window's client area as it is on the screen.
    void CopyFromScreen(HWND window);

private:
    friend testing::AssertionResult SamePixels(Canvas const & a, Canvas const & b);

    /// Of a pixel within, once GDI has been flushed, which costs more than a pixel.
    COLORREF PixelAt(int x, int y) const;

    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
    std::uint32_t * m_bits = nullptr;
    int m_width;
    int m_height;
};

/// Tells the first pixel that differs and how many do.
testing::AssertionResult SamePixels(Canvas const & a, Canvas const & b);
} // namespace tests
