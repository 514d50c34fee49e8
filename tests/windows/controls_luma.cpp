// The module's own luminance beside the platform's conversions. Built here once more: the module does not export it.

#include <shlwapi.h>

#include <gtest/gtest.h>

#include "controls/ColorLuma.h"
#include "controls/LumaPlatform.h"

namespace
{
COLORREF WINAPI ReturnsItsArgument(COLORREF color, int, BOOL)
{
    return color;
}
COLORREF WINAPI Adjusts(COLORREF color, int thousandths, BOOL)
{
    return MoveLuma(color, thousandths);
}
} // namespace

TEST(LumaPlatform, FunctionThatReturnsItsArgumentIsFoundOut)
{
    EXPECT_FALSE(AdjustsLuma(&ReturnsItsArgument));
    EXPECT_TRUE(AdjustsLuma(&Adjusts));
}

TEST(LumaPlatform, GivesTheLuminanceWhateverThePlatformDoes)
{
    EXPECT_EQ(AdjustLuma(0x000000, -333), 0U);
    EXPECT_NEAR(GetGValue(AdjustLuma(0x000000, 500)), 0x7F, 1);
    EXPECT_NEAR(GetRValue(AdjustLuma(0x0000FF, -333)), 0xAA, 2);
    EXPECT_EQ(AdjustLuma(0xFFFFFF, 500), 0xFFFFFFU);
}

TEST(LumaPlatform, ConversionsAgreeWithThePlatforms)
{
    int compared = 0;
    for (int red = 0; red < 256; red += 15)
    {
        for (int green = 0; green < 256; green += 17)
        {
            for (int blue = 0; blue < 256; blue += 5)
            {
                COLORREF const color = RGB(red, green, blue);
                WORD hue = 0;
                WORD luminance = 0;
                WORD saturation = 0;
                ::ColorRGBToHLS(color, &hue, &luminance, &saturation);
                HlsColor const own = HlsOfColor(color);
                ASSERT_EQ(own.hue, hue) << std::hex << color;
                ASSERT_EQ(own.luminance, luminance) << std::hex << color;
                ASSERT_EQ(own.saturation, saturation) << std::hex << color;
                ASSERT_EQ(ColorOfHls(own), ::ColorHLSToRGB(hue, luminance, saturation)) << std::hex << color;
                ++compared;
            }
        }
    }
    EXPECT_EQ(compared, 18 * 16 * 52);
}
