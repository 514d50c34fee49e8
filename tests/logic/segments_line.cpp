// Place and characters of a line of segment text.

#include <gtest/gtest.h>

#include <cmath>

#include "segments/DigiLine.h"
#include "segments/DigiStyle.h"

namespace
{
using namespace DigiStatic;
using Line = CArray<CDigiChar>;

constexpr DWORD no_style = 0;
constexpr double exact = 1e-9;

void ExpectPlace(CLinePlace const & place, double left, double top, double scaleX, double scaleY)
{
    EXPECT_NEAR(place.left, left, exact);
    EXPECT_NEAR(place.top, top, exact);
    EXPECT_NEAR(place.scaleX, scaleX, exact);
    EXPECT_NEAR(place.scaleY, scaleY, exact);
}
} // namespace

TEST(DisplayLine, FillsTheAreaWithoutAspect)
{
    ExpectPlace(PlaceLine(CSize(98, 166), 49, false), 0, 0, 2, 2);
    ExpectPlace(PlaceLine(CSize(490, 83), 49, false), 0, 0, 10, 1);
    ExpectPlace(PlaceLine(CSize(49, 830), 98, false), 0, 0, 0.5, 10);
}

TEST(DisplayLine, KeepsTheSmallerScaleAndIsCentredWithAspect)
{
    ExpectPlace(PlaceLine(CSize(490, 83), 49, true), (490 - 49) / 2.0, 0, 1, 1);
    ExpectPlace(PlaceLine(CSize(49, 830), 49, true), 0, (830 - 83) / 2.0, 1, 1);
    ExpectPlace(PlaceLine(CSize(98, 166), 49, true), 0, 0, 2, 2);
    ExpectPlace(PlaceLine(CSize(100, 50), 98, true), (100 - 50.0 / 83 * 98) / 2, 0, 50.0 / 83, 50.0 / 83);
}

TEST(DisplayLine, HasNoFiniteHorizontalScaleWithoutWidth)
{
    EXPECT_FALSE(std::isfinite(PlaceLine(CSize(100, 50), 0, false).scaleX));
    EXPECT_FALSE(std::isfinite(PlaceLine(CSize(0, 0), 0, false).scaleX));
}

TEST(DisplayLine, LeavesOutTheLowerLeftCorner)
{
    EXPECT_EQ(LeftOutCorner(CRect(0, 0, 100, 40), CSize(12, 8)), CRect(0, 32, 12, 40));
    EXPECT_EQ(LeftOutCorner(CRect(3, 5, 100, 40), CSize(12, 8)), CRect(3, 32, 15, 40));
    EXPECT_EQ(LeftOutCorner(CRect(0, 0, 100, 40), CSize(0, 0)), CRect(0, 40, 0, 40));
}

TEST(DisplayLine, HasOneCharacterForEachOfTheText)
{
    Line line;
    BuildLine(L"1.A", no_style, line);
    ASSERT_EQ(line.GetSize(), 3);
    EXPECT_EQ(line[0].segmentCount, 7);
    EXPECT_EQ(line[0].mask, 0x24);
    EXPECT_EQ(line[1].segmentCount, 3);
    EXPECT_EQ(line[1].mask, 0x04);
    EXPECT_EQ(line[2].segmentCount, 14);
    EXPECT_EQ(line[2].mask, 0x3BC0);
    EXPECT_EQ(LineWidth(line), 49 + 18 + 49);
}

TEST(DisplayLine, HasTheCharactersOutlines)
{
    Line line;
    BuildLine(L"88888888888888888888A:", no_style, line);
    ASSERT_EQ(line.GetSize(), 22);
    for (INT_PTR i = 0; i < line.GetSize(); ++i)
    {
        for (int segment = 0; segment < line[i].segmentCount; ++segment)
            EXPECT_GE(line[i].segments[segment].count, 4U) << i << ", " << segment;
    }
}

TEST(DisplayLine, TakesTheStyleOver)
{
    Line line;
    BuildLine(L"1", DigiStyleAlways14 | DigiStyleHideOff, line);
    EXPECT_EQ(line[0].segmentCount, 14);
    EXPECT_EQ(line[0].hideOff, 1);
    BuildLine(L"1", no_style, line);
    EXPECT_EQ(line[0].segmentCount, 7);
    EXPECT_EQ(line[0].hideOff, 0);
}

TEST(DisplayLine, IsReplacedByTheNextText)
{
    Line line;
    BuildLine(L"12345", no_style, line);
    BuildLine(L"8", no_style, line);
    ASSERT_EQ(line.GetSize(), 1);
    EXPECT_EQ(line[0].mask, 0x7F);
    BuildLine(L"", no_style, line);
    EXPECT_EQ(line.GetSize(), 0);
    EXPECT_EQ(LineWidth(line), 0);
}

TEST(DisplayLine, OfDefaultCharactersHasWidthButNoSegments)
{
    Line line;
    line.SetSize(50);
    EXPECT_EQ(LineWidth(line), 2450);
    EXPECT_EQ(line[0].segmentCount, 0);
    EXPECT_EQ(line[49].segmentCount, 0);
}

TEST(AlignedDisplayLine, IsCentredAtFirst)
{
    ExpectPlace(PlaceAlignedLine(CRect(10, 20, 10 + 490, 20 + 83), 49, no_style), 10 + (490 - 49) / 2.0, 20, 1, 1);
    ExpectPlace(PlaceAlignedLine(CRect(10, 20, 10 + 490, 20 + 83), 49, DigiStyleKeepAspect), 10 + (490 - 49) / 2.0, 20,
                1, 1);
}

TEST(AlignedDisplayLine, StartsAtTheLeftOrEndsAtTheRight)
{
    CRect const rect(10, 20, 10 + 490, 20 + 83);
    ExpectPlace(PlaceAlignedLine(rect, 49, LedAlignLeft), 10, 20, 1, 1);
    ExpectPlace(PlaceAlignedLine(rect, 49, LedAlignRight), 10 + 490 - 49, 20, 1, 1);
}

TEST(AlignedDisplayLine, RightWinsOverLeft)
{
    ExpectPlace(PlaceAlignedLine(CRect(0, 0, 490, 83), 49, LedAlignLeft | LedAlignRight), 490 - 49, 0, 1, 1);
}

TEST(AlignedDisplayLine, IsAlwaysCentredFromTopToBottom)
{
    for (DWORD const style : {no_style, static_cast<DWORD>(LedAlignLeft), static_cast<DWORD>(LedAlignRight)})
        ExpectPlace(PlaceAlignedLine(CRect(5, 7, 5 + 98, 7 + 400), 98, style), 5, 7 + (400 - 83) / 2.0, 1, 1);
}

TEST(AlignedDisplayLine, TakesTheSmallerScale)
{
    EXPECT_NEAR(PlaceAlignedLine(CRect(0, 0, 100, 830), 50, no_style).scaleX, 2, exact);
    EXPECT_NEAR(PlaceAlignedLine(CRect(0, 0, 100, 830), 50, no_style).scaleY, 2, exact);
    EXPECT_NEAR(PlaceAlignedLine(CRect(0, 0, 1000, 83), 50, no_style).scaleX, 1, exact);
    EXPECT_NEAR(PlaceAlignedLine(CRect(0, 0, 100, 166), 50, no_style).scaleX, 2, exact);
}
