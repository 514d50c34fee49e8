// The colour tables against a written list of them (data/scope_colours.tsv, data/spectrogram_scales.tsv).

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "colours/Farbtabellen.h"

namespace
{
using namespace Farbtabellen;

std::map<std::string, COLORREF const *> const arrays = {
    {"FarbenGreyLdRGB", FarbenGreyLdRGB},
    {"FarbenStandardRGB", FarbenStandardRGB},
    {"FarbenGoldRGB", FarbenGoldRGB},
    {"FarbenOceanRGB", FarbenOceanRGB},
    {"FarbenEarthRGB", FarbenEarthRGB},
    {"FarbenTemperaturRGB", FarbenTemperaturRGB},
    {"FarbenGreyDlRGB", FarbenGreyDlRGB},
    {"FarbenSommerRGB", FarbenSommerRGB},
    {"FarbenRegenbogenRGB", FarbenRegenbogenRGB},
};

struct ScopeColour
{
    int index;
    COLORREF colour;
    int printed;
    std::string scale;
    int atThisPosition;
};

struct Scale
{
    unsigned int index;
    std::string array;
    std::vector<COLORREF> colours;
};

/// Six digits: red, green, blue.
COLORREF ColourOf(std::string const & digits)
{
    auto const value = static_cast<COLORREF>(std::stoul(digits, nullptr, 16));
    return value / 0x10000 + value / 0x100 % 0x100 * 0x100 + value % 0x100 * 0x10000;
}

std::vector<std::istringstream> Lines(char const * name)
{
    std::ifstream file(std::filesystem::path(TEST_DATA_DIR) / name);
    EXPECT_TRUE(file) << name;
    std::vector<std::istringstream> lines;
    for (std::string line; std::getline(file, line);)
    {
        if (!line.starts_with('#'))
            lines.emplace_back(line);
    }
    return lines;
}

std::vector<ScopeColour> ScopeColours()
{
    std::vector<ScopeColour> colours;
    for (std::istringstream & line : Lines("scope_colours.tsv"))
    {
        ScopeColour entry;
        std::string colour;
        line >> entry.index >> colour >> entry.printed >> entry.scale >> entry.atThisPosition;
        EXPECT_TRUE(line) << line.str();
        entry.colour = ColourOf(colour);
        colours.push_back(entry);
    }
    return colours;
}

std::vector<Scale> Scales()
{
    std::vector<Scale> scales;
    for (std::istringstream & line : Lines("spectrogram_scales.tsv"))
    {
        Scale entry;
        line >> entry.index >> entry.array;
        EXPECT_TRUE(line) << line.str();
        for (std::string colour; line >> colour;)
            entry.colours.push_back(ColourOf(colour));
        scales.push_back(entry);
    }
    return scales;
}
} // namespace

TEST(ColourTables, ScopePaletteIsTheListed)
{
    std::vector<ScopeColour> const colours = ScopeColours();
    ASSERT_EQ(colours.size(), 32U);
    EXPECT_EQ(std::size(ScopePalette), 32U);
    for (ScopeColour const & entry : colours)
    {
        EXPECT_EQ(ScopePalette[entry.index], entry.colour) << entry.index;
        EXPECT_EQ(ScopeFarbe(entry.index), entry.colour) << entry.index;
    }
}

TEST(ColourTables, ColoursHaveRedInTheLowByte)
{
    EXPECT_EQ(sizeof(COLORREF), 4U);
    EXPECT_EQ(ScopeFarbe(5), 0x000096FFU);
    EXPECT_EQ(ScopeFarbe(13), 0x00B40000U);
    EXPECT_EQ(FarbenStandardRGB[0], 0x0050001EU);
}

TEST(ColourTables, PrintedColoursAreTheListed)
{
    for (ScopeColour const & entry : ScopeColours())
        EXPECT_EQ(DruckFarbe(entry.index), ScopePalette[entry.printed]) << entry.index;
}

TEST(ColourTables, WhiteAndBlackPrintBlack)
{
    EXPECT_EQ(DruckFarbe(31), RGB(0, 0, 0));
    EXPECT_EQ(DruckFarbe(0), RGB(0, 0, 0));
}

TEST(ColourTables, SecondOrderIsTheListed)
{
    for (ScopeColour const & entry : ScopeColours())
    {
        EXPECT_EQ(SelvaneFarbIndex(entry.index), entry.atThisPosition) << entry.index;
        EXPECT_EQ(SelvaneFarbe(entry.index), ScopePalette[entry.atThisPosition]) << entry.index;
    }
}

TEST(ColourTables, SecondOrderHasEveryColourOnce)
{
    std::map<int, int> places;
    for (int position = 0; position < 32; ++position)
        ++places[SelvaneFarbIndex(position)];
    EXPECT_EQ(places.size(), 32U);
    EXPECT_EQ(places.begin()->first, 0);
    EXPECT_EQ(places.rbegin()->first, 31);
}

TEST(ColourTables, OtherPositionsOfTheSecondOrderComeBackUnchanged)
{
    for (int const position : {-1, 32, 33, 1000, INT32_MAX, INT32_MIN})
        EXPECT_EQ(SelvaneFarbIndex(position), position);
}

TEST(ColourTables, SecondOrderEndsWithWhiteAndHasLightGreyAtSeven)
{
    EXPECT_EQ(SelvaneFarbe(31), RGB(0xFF, 0xFF, 0xFF));
    EXPECT_EQ(SelvaneFarbe(7), RGB(0xC8, 0xC8, 0xC8));
}

TEST(ColourTables, ScalesAreTheListed)
{
    std::vector<Scale> const scales = Scales();
    ASSERT_EQ(scales.size(), 9U);
    for (Scale const & scale : scales)
    {
        COLORREF const * const array = arrays.at(scale.array);
        EXPECT_EQ(SpektrogrammFarbtabelle(scale.index), array) << scale.array;
        EXPECT_EQ(std::vector<COLORREF>(array, array + 33), scale.colours) << scale.array;
    }
}

TEST(ColourTables, UnknownScalesAreTheStandardOne)
{
    for (unsigned int const index : {1U, 9U, 1000U, UINT32_MAX})
        EXPECT_EQ(SpektrogrammFarbtabelle(index), FarbenStandardRGB) << index;
}

TEST(ColourTables, ScalesOfScopeColoursAreTheListed)
{
    for (ScopeColour const & entry : ScopeColours())
        EXPECT_EQ(SpektrogrammFarbtabelleSopeFarbe(entry.index), arrays.at(entry.scale)) << entry.index;
}

TEST(ColourTables, ScaleOfNoScopeColourIsTheStandardOne)
{
    for (int const index : {-1, 32, INT32_MAX, INT32_MIN})
        EXPECT_EQ(SpektrogrammFarbtabelleSopeFarbe(index), FarbenStandardRGB) << index;
}

TEST(ColourTables, ArgbExchangesRedAndBlue)
{
    EXPECT_EQ(MakeArgb(RGB(0xFF, 0x96, 0x00), 128), 0x80FF9600U);
    EXPECT_EQ(MakeArgb(RGB(0x12, 0x34, 0x56), 0), 0x00123456U);
    EXPECT_EQ(MakeArgb(RGB(0x12, 0x34, 0x56), 255), 0xFF123456U);
}

TEST(ColourTables, ArgbKeepsTheLowBitsOfAlpha)
{
    EXPECT_EQ(MakeArgb(RGB(0x12, 0x34, 0x56), 0x101), 0x01123456U);
    EXPECT_EQ(MakeArgb(RGB(0x12, 0x34, 0x56), UINT32_MAX), 0xFF123456U);
}

TEST(ColourTables, ArgbTakesNothingFromTheFourthByte)
{
    EXPECT_EQ(MakeArgb(0xAB563412, 0), 0x00123456U);
}

TEST(ColourTables, ArgbOfScopeColours)
{
    EXPECT_EQ(ArgbFarbe(5, 128), 0x80FF9600U);
    EXPECT_EQ(ArgbFarbe(31, 255), 0xFFFFFFFFU);
}

TEST(NearestScopeColour, OfKnownColours)
{
    EXPECT_EQ(ScopeFarbIndex(RGB(0x00, 0x00, 0xFF)), 13U);
    EXPECT_EQ(ScopeFarbIndex(RGB(0xFF, 0x00, 0xFF)), 8U);
    EXPECT_EQ(ScopeFarbIndex(RGB(0x80, 0x80, 0x80)), 25U);
    EXPECT_EQ(ScopeFarbIndex(RGB(0x01, 0x01, 0x01)), 0U);
    EXPECT_EQ(ScopeFarbIndex(RGB(0xFF, 0xFF, 0xFE)), 31U);
    EXPECT_EQ(ScopeFarbIndex(RGB(0x00, 0xFF, 0xFF)), 19U);
}

TEST(NearestScopeColour, OfAPaletteColourIsItself)
{
    for (unsigned int index = 0; index < 32; ++index)
        EXPECT_EQ(ScopeFarbIndex(ScopePalette[index]), index);
}

TEST(NearestScopeColour, IsFoundByThreeChannelsIfTheFourthByteIsSet)
{
    for (unsigned int index = 0; index < 32; ++index)
        EXPECT_EQ(ScopeFarbIndex(ScopePalette[index] | 0x01000000), index);
}

TEST(NearestScopeColour, DecidesNearTiesByStrictSinglePrecision)
{
    // Where a fused multiplication and addition, or double precision, would choose another one.
    struct NearTie
    {
        COLORREF colour;
        unsigned int index;
    };
    constexpr NearTie near_ties[] = {
        {0x00142C, 9}, {0x01476E, 9},  {0x01A81C, 11}, {0x01B85C, 12}, {0x020C3B, 0},  {0x025258, 25},
        {0x031725, 0}, {0x03296C, 9},  {0x03A42B, 23}, {0x044A67, 9},  {0x046E3B, 11}, {0x048773, 12},
        {0x053700, 9}, {0x05A03A, 11}, {0x061A1E, 0},  {0x064276, 25}, {0x074D60, 9},  {0x08DCBB, 21},
    };
    for (NearTie const & each : near_ties)
        EXPECT_EQ(ScopeFarbIndex(each.colour), each.index) << std::hex << each.colour;
}

TEST(NearestScopeColour, IsTheOneOfSinglePrecisionRoundedAtEachStep)
{
    // Stored at each step, so that no option of the compiler keeps more precision.
    auto const product = [](float weight, int difference) {
        float volatile const result = weight * static_cast<float>(difference * difference);
        return float{result};
    };
    auto const distance = [&](COLORREF a, COLORREF b) {
        float const red = product(0.3f, GetRValue(a) - GetRValue(b));
        float const green = product(0.59f, GetGValue(a) - GetGValue(b));
        float const blue = product(0.11f, GetBValue(a) - GetBValue(b));
        float volatile const twoColours = red + green;
        float volatile const sum = twoColours + blue;
        return float{sum};
    };
    constexpr int step = 7;
    for (int red = 0; red < 256; red += step)
    {
        for (int green = 0; green < 256; green += step)
        {
            for (int blue = 0; blue < 256; blue += step)
            {
                COLORREF const colour = RGB(red, green, blue);
                unsigned int nearest = 0;
                for (unsigned int index = 1; index < 32; ++index)
                {
                    if (distance(colour, ScopePalette[nearest]) > distance(colour, ScopePalette[index]))
                        nearest = index;
                }
                ASSERT_EQ(ScopeFarbIndex(colour), nearest) << std::hex << colour;
            }
        }
    }
}

TEST(NearestScopeColour, WeighsRedGreenAndBlue)
{
    // The distances are 0.3 dr2 + 0.59 dg2 + 0.11 db2, here in hundredths.
    auto const distance = [](COLORREF a, COLORREF b) {
        std::int64_t const red = std::int64_t{GetRValue(a)} - GetRValue(b);
        std::int64_t const green = std::int64_t{GetGValue(a)} - GetGValue(b);
        std::int64_t const blue = std::int64_t{GetBValue(a)} - GetBValue(b);
        return 30 * red * red + 59 * green * green + 11 * blue * blue;
    };
    std::uint32_t random = 1;
    int ties = 0;
    for (int i = 0; i < 20000; ++i)
    {
        random = random * 1664525 + 1013904223;
        COLORREF const colour = random >> 8;
        unsigned int nearest = 0;
        bool tie = false;
        for (unsigned int index = 1; index < 32; ++index)
        {
            std::int64_t const least = distance(colour, ScopePalette[nearest]);
            std::int64_t const other = distance(colour, ScopePalette[index]);
            if (other < least)
                nearest = index;
            tie = other < least ? false : tie || other == least;
        }
        // Rounding decides between colours that are equally near.
        ties += tie;
        if (!tie)
        {
            ASSERT_EQ(ScopeFarbIndex(colour), nearest) << std::hex << colour;
        }
    }
    EXPECT_LT(ties, 100);
}

// Equally near in whole numbers (0.3 dr2 + 0.59 dg2 + 0.11 db2 times 100) and in single precision.
TEST(NearestScopeColour, OfEquallyNearOnesIsTheLowest)
{
    EXPECT_EQ(ScopeFarbIndex(RGB(0x59, 0xB3, 0xDB)), 6U) << "or 7";
    EXPECT_EQ(ScopeFarbIndex(RGB(0x3D, 0x96, 0x50)), 11U) << "or 14";
    EXPECT_EQ(ScopeFarbIndex(RGB(0xC7, 0x1D, 0x90)), 15U) << "or 28";
    EXPECT_EQ(ScopeFarbIndex(RGB(0x46, 0x03, 0x08)), 0U) << "or 10";
    EXPECT_EQ(ScopeFarbIndex(RGB(0xF6, 0xEB, 0x13)), 4U) << "or 30";
}

// Equally near in whole numbers, but the higher index is nearer once every product is rounded to single precision
// (found by a search outside of this program).
TEST(NearestScopeColour, IsFoundInSinglePrecision)
{
    EXPECT_EQ(ScopeFarbIndex(RGB(0x7A, 0x2E, 0x30)), 16U) << "not 9";
    EXPECT_EQ(ScopeFarbIndex(RGB(0x36, 0x0B, 0x15)), 9U) << "not 0";
}
