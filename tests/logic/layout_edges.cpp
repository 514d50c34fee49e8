#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

#include "layout/Edges.h"

namespace
{
static_assert(sizeof(CEdges) == sizeof(std::uint32_t));

std::uint32_t Bits(CEdges const & edges)
{
    return std::bit_cast<std::uint32_t>(edges);
}

struct Constant
{
    char const * name;
    CEdges (*make)();
    std::uint32_t bits;
};

constexpr Constant elementary[] = {
    {"LEFT", &CEdges::LEFT, 0x0001},
    {"RIGHT", &CEdges::RIGHT, 0x0002},
    {"TOP", &CEdges::TOP, 0x0004},
    {"BOTTOM", &CEdges::BOTTOM, 0x0008},
    {"LEFT_HALF", &CEdges::LEFT_HALF, 0x0010},
    {"RIGHT_HALF", &CEdges::RIGHT_HALF, 0x0020},
    {"TOP_HALF", &CEdges::TOP_HALF, 0x0040},
    {"BOTTOM_HALF", &CEdges::BOTTOM_HALF, 0x0080},
    {"HORI_CENTER", &CEdges::HORI_CENTER, 0x0100},
    {"VERT_CENTER", &CEdges::VERT_CENTER, 0x0200},
    {"TOP_THIRD", &CEdges::TOP_THIRD, 0x0400},
    {"TOP_TWOTHIRD", &CEdges::TOP_TWOTHIRD, 0x0800},
    {"BOTTOM_THIRD", &CEdges::BOTTOM_THIRD, 0x1000},
    {"BOTTOM_TWOTHIRD", &CEdges::BOTTOM_TWOTHIRD, 0x2000},
};

constexpr Constant composite[] = {
    {"LEFT_RIGHT", &CEdges::LEFT_RIGHT, 0x0003},
    {"TOP_BOTTOM", &CEdges::TOP_BOTTOM, 0x000C},
    {"TOP_LEFT", &CEdges::TOP_LEFT, 0x0005},
    {"TOP_RIGHT", &CEdges::TOP_RIGHT, 0x0006},
    {"BOTTOM_LEFT", &CEdges::BOTTOM_LEFT, 0x0009},
    {"BOTTOM_RIGHT", &CEdges::BOTTOM_RIGHT, 0x000A},
    {"TOP_LEFT_RIGHT", &CEdges::TOP_LEFT_RIGHT, 0x0007},
    {"BOTTOM_LEFT_RIGHT", &CEdges::BOTTOM_LEFT_RIGHT, 0x000B},
    {"TOP_LEFT_BOTTOM", &CEdges::TOP_LEFT_BOTTOM, 0x000D},
    {"TOP_RIGHT_BOTTOM", &CEdges::TOP_RIGHT_BOTTOM, 0x000E},
    {"TOP_LEFT_BOTTOM_RIGHT", &CEdges::TOP_LEFT_BOTTOM_RIGHT, 0x000F},
    {"TOP_CENTER", &CEdges::TOP_CENTER, 0x0104},
    {"BOTTOM_CENTER", &CEdges::BOTTOM_CENTER, 0x0108},
};
} // namespace

TEST(LayoutEdges, ElementaryConstantsHaveTheirBits)
{
    for (Constant const & constant : elementary)
        EXPECT_EQ(Bits(constant.make()), constant.bits) << constant.name;
}

TEST(LayoutEdges, CompositeConstantsHaveTheBitsOfTheirParts)
{
    for (Constant const & constant : composite)
        EXPECT_EQ(Bits(constant.make()), constant.bits) << constant.name;
}

TEST(LayoutEdges, AndTellsWhetherABitIsShared)
{
    for (Constant const & one : elementary)
    {
        for (Constant const & other : elementary)
            EXPECT_EQ(one.make() & other.make(), one.bits == other.bits) << one.name << " & " << other.name;
        for (Constant const & other : composite)
            EXPECT_EQ(one.make() & other.make(), (one.bits & other.bits) != 0) << one.name << " & " << other.name;
    }
}

TEST(LayoutEdges, OrMakesANewValueWithTheBitsOfBoth)
{
    CEdges const left = CEdges::LEFT();
    CEdges const both = left | CEdges::BOTTOM_THIRD();
    EXPECT_EQ(Bits(both), 0x1001U);
    EXPECT_EQ(Bits(left), 0x0001U);
}

TEST(LayoutEdges, IsCopied)
{
    CEdges const source = CEdges::TOP_CENTER();
    CEdges copy(source);
    EXPECT_EQ(Bits(copy), 0x0104U);
    copy = CEdges::VERT_CENTER();
    EXPECT_EQ(Bits(copy), 0x0200U);
    EXPECT_EQ(Bits(source), 0x0104U);
}
