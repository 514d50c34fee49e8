// What the segment display paints: place, scale, colours.

#include <gtest/gtest.h>

#include "GdiHandleCount.h"
#include "GoldenImage.h"
#include "segments/DigiStyle.h"
#include "segments_DigiStaticTest.h"

namespace
{
using tests::display_back;
using tests::display_off;
using tests::display_on;
using tests::display_soft_off;
using tests::display_soft_on;

using DigiStaticPaint = tests::DisplayTest;
using DigiStaticHandles = tests::DisplayTest;
using DigiStaticStyleHandles = tests::DisplayTest;
using DigiStaticGolden = tests::DisplayTest;
} // namespace

// The outlines of an "8" reach from 4 to 44 of 49 units across, and from 4 to 78 of 83 down. Pens are one pixel wide.
TEST_F(DigiStaticPaint, KeepsTheAspectInTheMiddle)
{
    Open();
    m_display.SetText(L"8");
    tests::Canvas canvas(display_width, display_height);
    Show(canvas);
    // Scale 1, origin (490 - 49) / 2 = 220.5, rounded half up.
    EXPECT_EQ(canvas.BoundsOfOther(display_back), CRect(225, 4, 265 + 1, 78 + 1));
}

TEST_F(DigiStaticPaint, KeepsTheAspectInATallWindow)
{
    Open(L"", 98, 266);
    m_display.SetText(L"8");
    tests::Canvas canvas(98, 266);
    Show(canvas);
    // Scale 2, origin (266 - 166) / 2 = 50 from the top.
    EXPECT_EQ(canvas.BoundsOfOther(display_back), CRect(8, 50 + 8, 88 + 1, 50 + 156 + 1));
}

TEST_F(DigiStaticPaint, FillsTheWindowWithoutAspect)
{
    Open();
    m_display.SetText(L"8");
    m_display.ModifyDigiStyle(DigiStyleKeepAspect, 0);
    tests::Canvas canvas(display_width, display_height);
    Show(canvas);
    EXPECT_EQ(canvas.BoundsOfOther(display_back), CRect(40, 4, 440 + 1, 78 + 1));
}

TEST_F(DigiStaticPaint, SetsCharactersSideBySideWithoutAGap)
{
    Open(L"", 49 + 18 + 49, 83);
    m_display.SetText(L"8:8");
    m_display.ModifyDigiStyle(DigiStyleSoftPen, DigiStyleHideOff);
    tests::Canvas canvas(49 + 18 + 49, 83);
    Show(canvas);
    EXPECT_EQ(canvas.BoundsOf(display_on), CRect(4, 4, 49 + 18 + 44 + 1, 78 + 1));
    // The colon's squares lie 4 to 13 units right of its cell's edge, which is the first digit's right one.
    tests::Canvas colon(18, 83);
    ::BitBlt(colon.Dc().GetSafeHdc(), 0, 0, 18, 83, canvas.Dc().GetSafeHdc(), 49, 0, SRCCOPY);
    EXPECT_EQ(colon.BoundsOf(display_on), CRect(4, 23, 13 + 1, 59 + 1));
}

TEST_F(DigiStaticPaint, ColoursLitAndUnlitSegmentsAndTheirSoftEdges)
{
    Open(L"", 49, 83);
    m_display.SetText(L"1");
    tests::Canvas canvas(49, 83);
    Show(canvas);
    EXPECT_EQ(canvas.Pixel(41, 20), display_on) << "inside the upper right segment";
    EXPECT_EQ(canvas.Pixel(44, 20), display_soft_on) << "at its edge";
    EXPECT_EQ(canvas.Pixel(7, 20), display_off) << "inside the upper left segment";
    EXPECT_EQ(canvas.Pixel(4, 20), display_soft_off) << "at its edge";
    EXPECT_EQ(canvas.Pixel(24, 25), display_back);
    EXPECT_EQ(canvas.Pixel(0, 0), display_back);
}

TEST_F(DigiStaticPaint, EdgesHaveThePureColoursWithoutSoftPens)
{
    Open(L"", 49, 83);
    m_display.SetText(L"1");
    m_display.ModifyDigiStyle(DigiStyleSoftPen, 0);
    tests::Canvas canvas(49, 83);
    Show(canvas);
    EXPECT_EQ(canvas.Pixel(44, 20), display_on);
    EXPECT_EQ(canvas.Pixel(4, 20), display_off);
    EXPECT_EQ(canvas.Count(display_soft_on) + canvas.Count(display_soft_off), 0);
    EXPECT_EQ(canvas.Count(display_on) + canvas.Count(display_off) + canvas.Count(display_back), 49 * 83);
}

TEST_F(DigiStaticPaint, LeavesUnlitSegmentsOutIfHidden)
{
    Open(L"", 49, 83);
    m_display.SetText(L"1");
    m_display.ModifyDigiStyle(0, DigiStyleHideOff);
    tests::Canvas canvas(49, 83);
    Show(canvas);
    EXPECT_GT(canvas.Count(display_on), 0);
    EXPECT_EQ(canvas.Count(display_off) + canvas.Count(display_soft_off), 0);
}

TEST_F(DigiStaticPaint, TakesNewColours)
{
    Open(L"", 49, 83);
    m_display.SetText(L"1");
    Update();
    m_display.SetColor(RGB(10, 20, 30), RGB(100, 110, 120));
    m_display.SetBkColor(RGB(200, 210, 220));
    tests::Canvas canvas(49, 83);
    Show(canvas);
    EXPECT_EQ(canvas.Pixel(41, 20), RGB(100, 110, 120));
    EXPECT_EQ(canvas.Pixel(44, 20), RGB(125, 135, 145));
    EXPECT_EQ(canvas.Pixel(7, 20), RGB(10, 20, 30));
    EXPECT_EQ(canvas.Pixel(4, 20), RGB(57, 67, 77));
    EXPECT_EQ(canvas.Pixel(0, 0), RGB(200, 210, 220));
}

TEST_F(DigiStaticPaint, WorksInAWindowWithoutArea)
{
    Open(L"", 0, 0);
    m_display.SetText(L"123");
    Paint();
    EXPECT_FALSE(m_display.NeedsPaint());
    m_display.MoveWindow(0, 0, 1, 1);
    m_display.ModifyDigiStyle(DigiStyleKeepAspect, DigiStyleRounded);
    Paint();
    EXPECT_EQ(m_display.m_chars.GetSize(), 3);
}

TEST_F(DigiStaticHandles, StayAsManyOverTwentyThousandPaints)
{
    Open(L"", 300, 20);
    m_display.SetText(L"0123456789ABCDEFGHIJ.:KLMN-_+*");
    Update();
    ASSERT_EQ(m_display.m_chars.GetSize(), 30);
    EXPECT_EQ(tests::GdiGrowth([this] { Paint(); }, 20000, 3), 0);
}

TEST_F(DigiStaticStyleHandles, StayAsManyInEveryStyle)
{
    Open(L"", 300, 40);
    CRect button(0, 0, 10, 10);
    EXPECT_EQ(tests::GdiGrowth(
                  [&] {
                      for (DWORD style = 0; style < 32; ++style)
                      {
                          m_display.ModifyDigiStyle(31 & ~style, style);
                          m_display.SetButtonRect(style % 2 == 0 ? &button : nullptr);
                          m_display.SetTransparent(style % 3 == 0);
                          m_display.SetText(style % 5 == 0 ? L"" : L"1a.");
                          Paint();
                      }
                  },
                  20),
              0);
}

TEST_F(DigiStaticGolden, Sharp)
{
    Open(L"", 400, 50);
    m_display.SetText(L"-12.5 mV");
    tests::Canvas canvas(400, 50);
    Show(canvas);
    tests::ExpectGolden(canvas, "display_sharp");
}

TEST_F(DigiStaticGolden, RoundedAndStretched)
{
    Open(L"", 400, 60);
    m_display.SetText(L"RUN 7");
    m_display.SetColorScheme(ColorSchemeAmber);
    m_display.ModifyDigiStyle(DigiStyleKeepAspect, DigiStyleRounded | DigiStyleAlways14);
    tests::Canvas canvas(400, 60);
    Show(canvas);
    tests::ExpectGolden(canvas, "display_rounded");
}

TEST_F(DigiStaticGolden, LcdWithoutUnlitSegments)
{
    Open(L"", 200, 60);
    m_display.SetText(L"12:34");
    m_display.SetColorScheme(ColorSchemeLcd);
    m_display.ModifyDigiStyle(DigiStyleSoftPen, DigiStyleHideOff);
    tests::Canvas canvas(200, 60);
    Show(canvas);
    tests::ExpectGolden(canvas, "display_lcd");
}
