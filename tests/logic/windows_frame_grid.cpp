// The grid of views in a frame: which cells there are.

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "windows/FrameGrid.h"

using frame_grid::BeforeEnds;
using frame_grid::CellCount;

TEST(FrameGrid, HasTheCellsBeforeItsEnds)
{
    EXPECT_TRUE(BeforeEnds(0, 0, 2, 3));
    EXPECT_TRUE(BeforeEnds(1, 2, 2, 3));
    EXPECT_FALSE(BeforeEnds(2, 0, 2, 3));
    EXPECT_FALSE(BeforeEnds(0, 3, 2, 3));
    EXPECT_FALSE(BeforeEnds(3, 2, 2, 3)); // rows and columns are no more alike than that
    EXPECT_FALSE(BeforeEnds(0, 0, 0, 0));
    EXPECT_FALSE(BeforeEnds(0, 0, 1, 0));
}

TEST(FrameGrid, LetsNegativeIndexesPass)
{
    EXPECT_TRUE(BeforeEnds(-1, 0, 2, 3));
    EXPECT_TRUE(BeforeEnds(0, -1, 2, 3));
    EXPECT_TRUE(BeforeEnds(std::numeric_limits<int>::min(), std::numeric_limits<int>::min(), 1, 1));
}

TEST(FrameGrid, ComparesTheLowHalfOfItsSizesWithTheirSign)
{
    constexpr unsigned long long two_of_high_half = 0x500000002;
    EXPECT_TRUE(BeforeEnds(1, 1, two_of_high_half, 2));
    EXPECT_FALSE(BeforeEnds(2, 1, two_of_high_half, 2));
    constexpr unsigned long long negative = 0xFFFFFFFF; // -1
    EXPECT_FALSE(BeforeEnds(0, 0, negative, 2));
    EXPECT_FALSE(BeforeEnds(-1, 0, negative, 2));
    EXPECT_TRUE(BeforeEnds(-2, 0, negative, 2));
}

TEST(FrameGrid, CountsCellsThatCanBeStored)
{
    EXPECT_EQ(CellCount(2, 3), 6u);
    EXPECT_EQ(CellCount(0, 3), 0u);
    EXPECT_EQ(CellCount(3, 0), 0u);
    EXPECT_EQ(CellCount(~0ull, 1), std::nullopt);
    EXPECT_EQ(CellCount(1ull << 32, 1ull << 32), std::nullopt);
    EXPECT_EQ(CellCount(1ull << 33, 1ull << 33), std::nullopt); // whose product is 0 in 64 bits
}
