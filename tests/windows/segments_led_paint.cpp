// What the text display paints with a graphics object.

#include <gtest/gtest.h>

#include <memory>

#include "Bitmap.h"
#include "frame/GdiplusModule.h"
#include "GdiHandleCount.h"
#include "GoldenImage.h"
#include "segments/LedTextAnzeiger.h"

namespace
{
constexpr COLORREF paper = RGB(255, 255, 255);
constexpr COLORREF lit = RGB(0, 255, 0);
constexpr COLORREF unlit = RGB(0, 80, 0);

class LedTextPaint : public testing::Test
{
protected:
    static constexpr int width = 490;
    static constexpr int height = 83;

    void SetUp() override
    {
        Gdiplus::GdiplusStartupInput const input;
        ASSERT_EQ(Gdiplus::GdiplusStartup(&m_token, &input, nullptr), Gdiplus::Ok);
    }
    void TearDown() override { Gdiplus::GdiplusShutdown(m_token); }

    void Draw(CLedTextAnzeiger & text, CRect rect)
    {
        m_canvas.Fill(paper);
        Gdiplus::Graphics graphics(m_canvas.Dc().GetSafeHdc());
        text.DrawTextW(graphics, rect);
    }
    /// From the first column with the colour to the last one.
    std::pair<int, int> Columns(COLORREF colour) const
    {
        CRect const bounds = m_canvas.BoundsOf(colour);
        return {bounds.left, bounds.right - 1};
    }
    /// Whether something is painted around these columns, give or take one for the pen.
    static void ExpectAbout(std::pair<int, int> actual, std::pair<int, int> expected)
    {
        EXPECT_NEAR(actual.first, expected.first, 1);
        EXPECT_NEAR(actual.second, expected.second, 1);
    }

    tests::Canvas m_canvas{width, height, paper};
    CLedTextAnzeiger m_display;

private:
    ULONG_PTR m_token = 0;
};
using LedTextGolden = LedTextPaint;
} // namespace

TEST_F(LedTextPaint, NothingWithoutText)
{
    Draw(m_display, CRect(0, 0, width, height));
    EXPECT_EQ(m_canvas.Count(paper), width * height);
    m_display.SetText(L"8");
    m_display.SetText(L"");
    Draw(m_display, CRect(0, 0, width, height));
    EXPECT_EQ(m_canvas.Count(paper), width * height);
}

// An "8" reaches from 4 to 44 of 49 units across, and from 4 to 78 of 83 down.
TEST_F(LedTextPaint, IsCentred)
{
    m_display.SetText(L"8");
    Draw(m_display, CRect(0, 0, width, height));
    ExpectAbout(Columns(lit), {220 + 4, 220 + 44});
}

TEST_F(LedTextPaint, StartsAtTheLeft)
{
    m_display.SetText(L"8");
    m_display.SetTextAlign(64);
    Draw(m_display, CRect(100, 0, width, height));
    ExpectAbout(Columns(lit), {100 + 4, 100 + 44});
}

TEST_F(LedTextPaint, EndsAtTheRight)
{
    m_display.SetText(L"8");
    m_display.SetTextAlign(128);
    Draw(m_display, CRect(0, 0, width - 100, height));
    ExpectAbout(Columns(lit), {width - 100 - 49 + 4, width - 100 - 49 + 44});
}

TEST_F(LedTextPaint, IsCentredFromTopToBottom)
{
    m_display.SetText(L"8");
    m_display.SetTextAlign(64);
    Draw(m_display, CRect(0, 0, 25, height)); // scale 25 / 49, 42.3 high
    CRect const bounds = m_canvas.BoundsOf(lit);
    EXPECT_NEAR(bounds.top, 20.3 + 4 * 25.0 / 49, 1);
    EXPECT_NEAR(bounds.bottom - 1, 20.3 + 78 * 25.0 / 49, 1);
}

TEST_F(LedTextPaint, SpacingSetLaterOverrunsThePlace)
{
    m_display.SetText(L"88");
    m_display.SetTextAlign(64);
    Draw(m_display, CRect(0, 0, 98, height));
    ExpectAbout(Columns(lit), {4, 49 + 44});
    m_display.SetExtraSpacing(10);
    EXPECT_EQ(m_display.TextWidht(), 98U);
    Draw(m_display, CRect(0, 0, 98, height));
    ExpectAbout(Columns(lit), {4, 59 + 44});
}

TEST_F(LedTextPaint, SpacingSetBeforeFits)
{
    m_display.SetExtraSpacing(10);
    m_display.SetText(L"88");
    m_display.SetTextAlign(64);
    Draw(m_display, CRect(0, 0, 108, height));
    ExpectAbout(Columns(lit), {4, 59 + 44});
}

TEST_F(LedTextPaint, HasTheThreeColoursButTheBackground)
{
    m_display.SetColors(RGB(200, 0, 0), RGB(0, 0, 100), RGB(1, 2, 3));
    m_display.SetText(L"1");
    m_display.SetTextAlign(64);
    Draw(m_display, CRect(0, 0, width, height));
    EXPECT_EQ(m_canvas.Pixel(41, 20), RGB(200, 0, 0));
    EXPECT_EQ(m_canvas.Pixel(7, 20), RGB(0, 0, 100));
    EXPECT_EQ(m_canvas.Pixel(24, 25), paper);
    EXPECT_EQ(m_canvas.Count(RGB(1, 2, 3)), 0);
    EXPECT_EQ(m_canvas.Count(paper) + m_canvas.Count(RGB(200, 0, 0)) + m_canvas.Count(RGB(0, 0, 100)), width * height);
}

TEST_F(LedTextPaint, UnlitSegmentsStayInTextThatIsThere)
{
    m_display.SetText(L"1");
    m_display.ShowOffSegments(false);
    m_display.ShowOffSegments(false);
    m_display.SetText(L"1");
    Draw(m_display, CRect(0, 0, width, height));
    EXPECT_GT(m_canvas.Count(unlit), 0);
    m_display.SetText(L"2");
    Draw(m_display, CRect(0, 0, width, height));
    EXPECT_EQ(m_canvas.Count(unlit), 0);
    EXPECT_GT(m_canvas.Count(lit), 0);
}

TEST_F(LedTextPaint, LowerCaseLooksLikeUpperCase)
{
    tests::Canvas const & shown = m_canvas;
    m_display.SetText(L"volt");
    Draw(m_display, CRect(0, 0, width, height));
    tests::Canvas lower(width, height);
    ::BitBlt(lower.Dc().GetSafeHdc(), 0, 0, width, height, m_canvas.Dc().GetSafeHdc(), 0, 0, SRCCOPY);
    m_display.SetText(L"VOLT");
    Draw(m_display, CRect(0, 0, width, height));
    EXPECT_TRUE(tests::SamePixels(lower, shown));
    EXPECT_GT(shown.Count(lit), 0);
}

TEST_F(LedTextPaint, SmoothingIsTheCallers)
{
    m_display.SetText(L"X");
    CRect rect(0, 0, width, height);
    Gdiplus::Graphics graphics(m_canvas.Dc().GetSafeHdc());
    for (Gdiplus::SmoothingMode const mode : {Gdiplus::SmoothingModeNone, Gdiplus::SmoothingModeAntiAlias})
    {
        graphics.SetSmoothingMode(mode);
        m_display.DrawTextW(graphics, rect);
        EXPECT_EQ(graphics.GetSmoothingMode(), mode);
    }
}

TEST_F(LedTextPaint, CopyPaintsTheSameWithoutTheOriginal)
{
    auto original = std::make_unique<CLedTextAnzeiger>();
    original->SetText(L"1.5");
    Draw(*original, CRect(0, 0, width, height));
    tests::Canvas expected(width, height);
    ::BitBlt(expected.Dc().GetSafeHdc(), 0, 0, width, height, m_canvas.Dc().GetSafeHdc(), 0, 0, SRCCOPY);
    CLedTextAnzeiger copy(*original);
    CLedTextAnzeiger assigned;
    assigned.SetText(L"8888");
    assigned = *original;
    original.reset();
    Draw(copy, CRect(0, 0, width, height));
    EXPECT_TRUE(tests::SamePixels(m_canvas, expected));
    Draw(assigned, CRect(0, 0, width, height));
    EXPECT_TRUE(tests::SamePixels(m_canvas, expected));
}

TEST_F(LedTextPaint, ShorterTextOfACopyShowsInTheOldWidth)
{
    m_display.SetText(L"888");
    m_display.SetTextAlign(64);
    CLedTextAnzeiger copy(m_display);
    copy.SetText(L"8");
    Draw(m_display, CRect(0, 0, 147, height));
    ExpectAbout(Columns(lit), {4, 44});
}

TEST_F(LedTextPaint, LongerTextOfACopyShowsInTheOldLength)
{
    m_display.SetText(L"1");
    m_display.SetTextAlign(64);
    CLedTextAnzeiger copy(m_display);
    copy.SetText(L"888");
    Draw(m_display, CRect(0, 0, width, height));
    ExpectAbout(Columns(lit), {4, 44});
}

TEST_F(LedTextPaint, LeavesNoHandlesBehind)
{
    m_display.SetText(L"12.5 mV");
    EXPECT_EQ(tests::GdiGrowth([this] { Draw(m_display, CRect(0, 0, width, height)); }, 100, 2), 0);
}

TEST_F(LedTextGolden, Centred)
{
    m_display.SetText(L"-12.5 mV");
    Draw(m_display, CRect(0, 0, width, height));
    tests::ExpectGolden(m_canvas, "led_text");
}

TEST_F(LedTextGolden, SpacedWithFourteenSegments)
{
    m_display.SetColors(RGB(200, 30, 0), RGB(230, 225, 220), paper);
    m_display.Always14Sement(true);
    m_display.SetExtraSpacing(6);
    m_display.SetText(L"K7*");
    Draw(m_display, CRect(10, 0, width - 150, height - 20));
    tests::ExpectGolden(m_canvas, "led_text_spaced");
}
