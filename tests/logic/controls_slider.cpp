// Where a level slider's parts lie, and the colours that it derives.

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>

#include "controls/ColorLuma.h"
#include "controls/SliderLayout.h"

TEST(SliderLayout, FractionIsTheWayAlongTheRange)
{
    EXPECT_EQ(SliderFraction(0, 100, 0), 0.0F);
    EXPECT_EQ(SliderFraction(0, 100, 25), 0.25F);
    EXPECT_EQ(SliderFraction(0, 100, 100), 1.0F);
    EXPECT_EQ(SliderFraction(-50, 50, 0), 0.5F);
    EXPECT_EQ(SliderFraction(0, 1, 0), 0.0F);
    EXPECT_EQ(SliderFraction(INT_MIN, INT_MAX, INT_MAX), 1.0F);
}

TEST(SliderLayout, RangeWithoutExtentDoesNotCrash)
{
    float const fraction = SliderFraction(7, 7, 7);
    SliderParts const parts = PartsOfSlider(CRect(10, 10, 110, 20), false, fraction);
    EXPECT_EQ(parts.main.Width() + parts.second.Width(), 100);
}

TEST(SliderLayout, FractionsBeyondAllMeasureDoNotCrash)
{
    for (float const fraction : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                                 -std::numeric_limits<float>::infinity(), std::numeric_limits<float>::max(), -1e30F})
    {
        SliderParts const parts = PartsOfSlider(CRect(10, 10, 110, 20), false, fraction);
        EXPECT_EQ(parts.main.right, parts.second.left);
        EXPECT_EQ(PartsOfSlider(CRect(10, 10, 20, 110), true, fraction).main.bottom, 110);
    }
}

TEST(SliderLayout, ChannelGrowsAcrossTheSlider)
{
    EXPECT_EQ(ThickSliderChannel(CRect(10, 20, 110, 24), false), CRect(10, 17, 110, 27));
    EXPECT_EQ(ThickSliderChannel(CRect(20, 10, 24, 110), true), CRect(17, 10, 27, 110));
    EXPECT_EQ(ThickSliderChannel(CRect(10, 20, 110, 21), false), CRect(10, 20, 110, 21)) << "one pixel stays one";
}

TEST(SliderLayout, HorizontalSliderShowsTheMainColorLeftOfTheThumb)
{
    SliderParts const parts = PartsOfSlider(CRect(10, 17, 110, 27), false, 0.256F);
    EXPECT_EQ(parts.main, CRect(10, 17, 35, 27)) << "the fraction of a pixel is cut";
    EXPECT_EQ(parts.second, CRect(35, 17, 110, 27));
}

TEST(SliderLayout, VerticalSliderShowsTheMainColorBelowTheThumb)
{
    SliderParts const parts = PartsOfSlider(CRect(17, 10, 27, 110), true, 0.256F);
    EXPECT_EQ(parts.main, CRect(17, 35, 27, 110));
    EXPECT_EQ(parts.second, CRect(17, 10, 27, 35));
}

TEST(SliderLayout, AtTheLeastPositionTheSecondPartFillsTheChannel)
{
    SliderParts const parts = PartsOfSlider(CRect(10, 17, 110, 27), false, 0);
    EXPECT_EQ(parts.main.Width(), 0);
    EXPECT_EQ(parts.second, CRect(10, 17, 110, 27));
}

TEST(SliderLayout, AtTheGreatestPositionTheSecondPartHasNoWidth)
{
    SliderParts const parts = PartsOfSlider(CRect(10, 17, 110, 27), false, 1);
    EXPECT_EQ(parts.main, CRect(10, 17, 110, 27));
    EXPECT_EQ(parts.second.Width(), 0);
}

TEST(SliderLayout, ThumbIsAPixelNarrowerAtBothEnds)
{
    EXPECT_EQ(SlimSliderThumb(CRect(10, 20, 20, 40), false), CRect(11, 20, 19, 40));
    EXPECT_EQ(SlimSliderThumb(CRect(10, 20, 30, 30), true), CRect(10, 21, 30, 29));
}

TEST(SliderLayout, GradientTakesAColorsPartInTheHighByte)
{
    EXPECT_EQ(GradientChannel(0), 0);
    EXPECT_EQ(GradientChannel(0x5A), 0x5A00);
    EXPECT_EQ(GradientChannel(0xFF), 0xFF00);
}

TEST(ColorLuma, BlackGetsHalfWayToWhiteAndNotDarker)
{
    EXPECT_EQ(MoveLuma(0x000000, -333), 0x000000U);
    EXPECT_EQ(MoveLuma(0x000000, 500), 0x7F7F7FU);
    EXPECT_EQ(MoveLuma(0xFFFFFF, 500), 0xFFFFFFU);
    EXPECT_EQ(MoveLuma(0x000000, 1000), 0xFFFFFFU);
    EXPECT_EQ(MoveLuma(0x3388CC, -1000), 0x000000U);
    EXPECT_EQ(MoveLuma(0x3388CC, 0), 0x3388CCU);
}

TEST(ColorLuma, ChangeBeyondTheWholeIsCut)
{
    EXPECT_EQ(MoveLuma(0x3388CC, 5000), 0xFFFFFFU);
    EXPECT_EQ(MoveLuma(0x3388CC, INT_MIN), 0x000000U);
}

TEST(ColorLuma, AgreesWithTheTable)
{
    std::ifstream file(TEST_DATA_DIR "/controls/luma.txt");
    std::string line;
    int compared = 0;
    while (std::getline(file, line))
    {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream fields(line);
        unsigned int color = 0;
        unsigned int expected = 0;
        int change = 0;
        fields >> std::hex >> color >> std::dec >> change >> std::hex >> expected;
        ASSERT_FALSE(fields.fail()) << line;
        EXPECT_EQ(MoveLuma(color, change), expected) << line;
        ++compared;
    }
    EXPECT_EQ(compared, 600);
}

TEST(ColorLuma, HueAndSaturationStay)
{
    HlsColor const before = HlsOfColor(RGB(200, 90, 40));
    HlsColor const after = HlsOfColor(MoveLuma(RGB(200, 90, 40), 500));
    EXPECT_NEAR(after.hue, before.hue, 2);
    EXPECT_NEAR(after.saturation, before.saturation, 6);
    EXPECT_NEAR(after.luminance, before.luminance + (240 - before.luminance) / 2.0, 1.5);
}
