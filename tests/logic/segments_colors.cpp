// Colours of the segment displays.

#include <gtest/gtest.h>

#include "segments/DigiColors.h"

namespace
{
using namespace DigiStatic;

void ExpectColors(int scheme, COLORREF on, COLORREF off, COLORREF back)
{
    CDisplayColors const colors = ColorsOf(static_cast<ColorScheme>(scheme));
    EXPECT_EQ(colors.on, on) << scheme;
    EXPECT_EQ(colors.off, off) << scheme;
    EXPECT_EQ(colors.back, back) << scheme;
}
} // namespace

// Off: by channel half way between 0x14405A and 0x501E00, and so on.
TEST(DisplayColors, OfTheSchemes)
{
    ExpectColors(0, 0x00FF00, 0x283700, 0x501E00);
    ExpectColors(1, 0x00FFFF, 0x322F2D, 0x501E00);
    ExpectColors(2, 0x00B4FF, 0x322F2D, 0x501E00);
    ExpectColors(3, 0x0000FF, 0x051928, 0x0A3200);
    ExpectColors(4, 0xFFFF00, 0x682300, 0x501E00);
    ExpectColors(5, 0x404040, 0xC5CEC5, 0xCDD7CD);
}

TEST(DisplayColors, OfNoSchemeAreTheGreenOnes)
{
    for (int const scheme : {6, 7, -1})
        ExpectColors(scheme, 0x00FF00, 0x283700, 0x501E00);
}

TEST(DisplayColors, SchemesHaveFixedNumbers)
{
    EXPECT_EQ(static_cast<int>(ColorSchemeGreen), 0);
    EXPECT_EQ(static_cast<int>(ColorSchemeYellow), 1);
    EXPECT_EQ(static_cast<int>(ColorSchemeAmber), 2);
    EXPECT_EQ(static_cast<int>(ColorSchemeRed), 3);
    EXPECT_EQ(static_cast<int>(ColorSchemeCyan), 4);
    EXPECT_EQ(static_cast<int>(ColorSchemeLcd), 5);
}

TEST(DisplayColors, MeanIsTakenByChannelAndRoundedDown)
{
    EXPECT_EQ(MeanColor(0x010203, 0x020304), 0x010203U);
    EXPECT_EQ(MeanColor(0xFF0001, 0xFF0101), 0xFF0001U);
    EXPECT_EQ(MeanColor(0x00FF00, 0xFF00FF), 0x7F7F7FU);
}

TEST(DisplayColors, SoftPenTakesAQuarterOfTheBackground)
{
    EXPECT_EQ(SoftPenColor(0x000000, 0x000000), 0x000000U);
    EXPECT_EQ(SoftPenColor(0xFFFFFF, 0xFFFFFF), 0xFFFFFFU);
    // 255 * 0.75 = 191.25; 80 * 0.25 = 20, 30 * 0.25 = 7.5.
    EXPECT_EQ(SoftPenColor(0x00FF00, 0x501E00), 0x14C600U);
    // 80 * 0.75 + 30 * 0.25 = 67.5.
    EXPECT_EQ(SoftPenColor(0x005000, 0x501E00), 0x144300U);
    // 1 * 0.75 + 3 * 0.25 = 1.5; 1 * 0.75 = 0.75; 3 * 0.25 = 0.75.
    EXPECT_EQ(SoftPenColor(0x010100, 0x030003), 0x010000U);
}

// For all pairs of a channel's values, against whole numbers: (3 c + b) / 4.
TEST(DisplayColors, SoftPenIsTruncated)
{
    for (int color = 0; color < 256; ++color)
    {
        for (int back = 0; back < 256; ++back)
        {
            int const expected = (3 * color + back) / 4;
            ASSERT_EQ(SoftPenColor(RGB(color, 0, 0), RGB(back, 0, 0)), static_cast<COLORREF>(expected));
            ASSERT_EQ(SoftPenColor(RGB(0, color, 0), RGB(0, back, 0)), static_cast<COLORREF>(expected) << 8);
            ASSERT_EQ(SoftPenColor(RGB(0, 0, color), RGB(0, 0, back)), static_cast<COLORREF>(expected) << 16);
        }
    }
}
