// Lengths at a resolution, and pictures at another size.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <random>
#include <vector>

#include "layout/Resolution.h"
#include "layout/StretchedPixels.h"

namespace
{
using resolution::Scaled;
using resolution::ScaledLengths;
using stretched_pixels::Picture;
using Lengths = std::vector<int>;

TEST(Resolution, ServesFrom48To960)
{
    EXPECT_FALSE(resolution::IsServed(0));
    EXPECT_FALSE(resolution::IsServed(47));
    EXPECT_TRUE(resolution::IsServed(48));
    EXPECT_TRUE(resolution::IsServed(96));
    EXPECT_TRUE(resolution::IsServed(960));
    EXPECT_FALSE(resolution::IsServed(961));
}

TEST(Resolution, RoundsToTheNearestPixelAndHalvesAwayFromNone)
{
    EXPECT_EQ(Scaled(13, 144), 20); // 19.5
    EXPECT_EQ(Scaled(13, 120), 16); // 16.25
    EXPECT_EQ(Scaled(13, 192), 26);
    EXPECT_EQ(Scaled(1, 48), 1); // 0.5
    EXPECT_EQ(Scaled(-13, 144), -20);
    EXPECT_EQ(Scaled(-13, 120), -16);
    EXPECT_EQ(Scaled(0, 960), 0);
    EXPECT_EQ(Scaled(20, 96, 144), 13); // 13.3
    EXPECT_EQ(resolution::LineWidth(1, 48), 1);
    EXPECT_EQ(resolution::LineWidth(0, 96), 1);
}

TEST(Resolution, LeavesEveryLengthAsItIsAt96)
{
    for (int pixels = -300; pixels <= 300; ++pixels)
        EXPECT_EQ(Scaled(pixels, 96), pixels);
    EXPECT_EQ(Scaled(0.7F, 96U), 0.7F);
}

TEST(Resolution, IsNeverFurtherOffThanHalfAPixel)
{
    std::mt19937 random(7);
    for (int turn = 0; turn < 10000; ++turn)
    {
        auto const pixels = static_cast<int>(random() % 200000) - 100000;
        unsigned int const from = 48 + random() % 913;
        unsigned int const dpi = 48 + random() % 913;
        std::int64_t const off = std::int64_t{Scaled(pixels, dpi, from)} * from - std::int64_t{pixels} * dpi;
        EXPECT_LE(2 * std::abs(off), std::int64_t{from}) << pixels << " from " << from << " to " << dpi;
    }
}

TEST(Resolution, KeepsLengthsThatAreTooLongAtTheEndOfTheRange)
{
    EXPECT_EQ(Scaled(INT32_MAX, 960), INT32_MAX);
    EXPECT_EQ(Scaled(INT32_MIN, 960), INT32_MIN);
    EXPECT_EQ(Scaled(INT32_MAX, 96), INT32_MAX);
}

/// What a control does with its columns at a change of the resolution.
void Change(ScaledLengths & memory, Lengths & shown, unsigned int & dpi, unsigned int wanted)
{
    memory.Note(shown, dpi);
    dpi = wanted;
    for (std::size_t i = 0; i < shown.size(); ++i)
        shown[i] = memory.Take(i, dpi);
}

TEST(ScaledLengths, AreTheSameAgainAfterAnyWayRound)
{
    Lengths const given{0, 1, 2, 3, 57, 80, 81, 83, 101, 4001};
    Lengths shown = given;
    ScaledLengths memory;
    unsigned int dpi = 96;
    for (unsigned int const wanted : {144U, 96U, 48U, 192U, 120U, 168U, 960U, 60U, 96U})
        Change(memory, shown, dpi, wanted);
    EXPECT_EQ(shown, given);
    Change(memory, shown, dpi, 144);
    EXPECT_EQ(shown, (Lengths{0, 2, 3, 5, 86, 120, 122, 125, 152, 6002}));
}

TEST(ScaledLengths, TakeALengthThatIsAnotherOneForGiven)
{
    Lengths shown{100, 100};
    ScaledLengths memory;
    unsigned int dpi = 96;
    Change(memory, shown, dpi, 144);
    shown[1] = 101; // by the user
    for (unsigned int const wanted : {60U, 192U, 144U})
        Change(memory, shown, dpi, wanted);
    EXPECT_EQ(shown, (Lengths{150, 101}));
    Change(memory, shown, dpi, 96);
    EXPECT_EQ(shown, (Lengths{100, 67}));
}

TEST(ScaledLengths, AreNobodysWhileTheyAreOnTheirWay)
{
    ScaledLengths memory;
    memory.Note({90, 7}, 96);
    EXPECT_EQ(memory.Wish(0, 144), 135);
    memory.Note({90, 7}, 144); // neither is there yet
    EXPECT_EQ(memory.Wish(0, 192), 180);
    memory.Settle(0);
    EXPECT_EQ(memory.Take(1, 192), 14);
    memory.Note({180, 14}, 192);
    EXPECT_EQ(memory.Take(0, 96), 90);
    EXPECT_EQ(memory.Take(1, 96), 7);
    memory.Note({180, 7}, 96); // settled, so that it has been given
    EXPECT_EQ(memory.Take(0, 192), 360);
}

TEST(ScaledLengths, FollowANumberThatChanges)
{
    Lengths shown{100};
    ScaledLengths memory;
    unsigned int dpi = 96;
    Change(memory, shown, dpi, 192);
    shown.push_back(50);
    Change(memory, shown, dpi, 96);
    EXPECT_EQ(shown, (Lengths{100, 25}));
    shown.resize(1);
    Change(memory, shown, dpi, 192);
    EXPECT_EQ(shown, Lengths{200});
}

TEST(StretchedPixels, APictureAtItsOwnSizeStaysAsItIs)
{
    Picture const picture{2, 2, {0xFF112233, 0x00000000, 0x80402010, 0xFFFFFFFF}};
    Picture const same = stretched_pixels::Stretch(picture, 2, 2);
    EXPECT_EQ(same.pixels, picture.pixels);
}

TEST(StretchedPixels, OneColourStaysThatAtAnySize)
{
    Picture const picture{3, 5, std::vector<std::uint32_t>(15, 0xFF3366CC)};
    for (auto const & [width, height] : {std::pair{1, 1}, {2, 9}, {6, 10}, {7, 3}})
    {
        Picture const stretched = stretched_pixels::Stretch(picture, width, height);
        EXPECT_EQ(stretched.width, width);
        EXPECT_EQ(stretched.height, height);
        EXPECT_EQ(
            stretched.pixels,
            std::vector<std::uint32_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0xFF3366CC));
    }
}

TEST(StretchedPixels, WhatGrowsRunsIntoEachOther)
{
    Picture const picture{2, 1, {0xFF000000, 0xFF0000FF}};
    // Middles at 1/4 and 3/4 of the way between the two, and beyond them.
    EXPECT_EQ(stretched_pixels::Stretch(picture, 4, 1).pixels,
              (std::vector<std::uint32_t>{0xFF000000, 0xFF000040, 0xFF0000BF, 0xFF0000FF}));
}

TEST(StretchedPixels, WhatShrinksIsAMean)
{
    Picture const picture{4, 1, {0xFF000000, 0xFF0000FF, 0xFF000000, 0xFF0000FF}};
    for (std::uint32_t const pixel : stretched_pixels::Stretch(picture, 2, 1).pixels)
    {
        EXPECT_GT(pixel & 0xFF, 0x50U);
        EXPECT_LT(pixel & 0xFF, 0xB0U);
    }
    // Nothing is left out, however much is put together.
    Picture const spot{
        8, 1, {0xFF0000FF, 0xFF000000, 0xFF000000, 0xFF000000, 0xFF000000, 0xFF000000, 0xFF000000, 0xFF000000}};
    EXPECT_GT(stretched_pixels::Stretch(spot, 2, 1).pixels[0] & 0xFF, 0x10U);
}

TEST(StretchedPixels, TheEdgeOfAColourGrowsThinnerButNotDarker)
{
    Picture const picture{2, 1, {0xFF0000FF, 0x00000000}};
    for (std::uint32_t const pixel : stretched_pixels::Stretch(picture, 8, 1).pixels)
        EXPECT_EQ(pixel & 0xFF, pixel >> 24) << "multiplied by what covers";
}

TEST(StretchedPixels, NoSizeIsNoPicture)
{
    Picture const picture{1, 1, {0xFF000000}};
    EXPECT_TRUE(stretched_pixels::Stretch(picture, 0, 3).pixels.empty());
    EXPECT_TRUE(stretched_pixels::Stretch(picture, 3, -1).pixels.empty());
    EXPECT_TRUE(stretched_pixels::Stretch({}, 3, 3).pixels.empty());
}

TEST(StretchedPixels, TwoGroundsTellWhatCovers)
{
    // Nothing, all of a colour, half of red.
    Picture const black{3, 1, {0x000000, 0x336699, 0x800000}};
    Picture const white{3, 1, {0xFFFFFF, 0x336699, 0xFF7F7F}};
    EXPECT_EQ(stretched_pixels::FromGrounds(black, white).pixels,
              (std::vector<std::uint32_t>{0x00000000, 0xFF336699, 0x80800000}));
}
} // namespace
