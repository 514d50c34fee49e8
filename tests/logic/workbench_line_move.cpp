// Lines of a list that are moved together.

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

#include "logic/LineMove.h"

namespace
{

using Lines = std::vector<int>;
using workbench::MovedLines;
using workbench::PlaceOneDown;
using workbench::PlaceOneUp;

Lines Moved(Lines const & order, Lines const & moved, std::size_t place)
{
    return MovedLines(order, order, moved, place);
}

TEST(LineMove, PutsALineBeforeAnotherOne)
{
    EXPECT_EQ(Moved({0, 1, 2, 3}, {0}, 3), (Lines{1, 2, 0, 3}));
    EXPECT_EQ(Moved({0, 1, 2, 3}, {3}, 1), (Lines{0, 3, 1, 2}));
    EXPECT_EQ(Moved({0, 1, 2, 3}, {1}, 4), (Lines{0, 2, 3, 1}));
    EXPECT_EQ(Moved({0, 1, 2, 3}, {1}, 99), (Lines{0, 2, 3, 1}));
}

TEST(LineMove, StaysWhereItIsBesideItself)
{
    EXPECT_EQ(Moved({0, 1, 2, 3}, {1}, 1), (Lines{0, 1, 2, 3}));
    EXPECT_EQ(Moved({0, 1, 2, 3}, {1}, 2), (Lines{0, 1, 2, 3}));
    EXPECT_EQ(Moved({0, 1, 2, 3}, {}, 2), (Lines{0, 1, 2, 3}));
    EXPECT_EQ(Moved({}, {}, 0), Lines{});
}

TEST(LineMove, SeveralComeTogetherInTheirOrder)
{
    EXPECT_EQ(Moved({4, 3, 2, 1, 0}, {0, 4, 2}, 4), (Lines{3, 1, 4, 2, 0}));
    EXPECT_EQ(Moved({4, 3, 2, 1, 0}, {0, 4, 2}, 2), (Lines{3, 4, 2, 0, 1})) << "at one of them: before the next one";
}

TEST(LineMove, LinesThatAreNotSeenStay)
{
    EXPECT_EQ(MovedLines(Lines{0, 1, 2, 3, 4, 5}, Lines{0, 2, 4}, Lines{4}, 0), (Lines{4, 0, 1, 2, 3, 5}));
    EXPECT_EQ(MovedLines(Lines{0, 1, 2, 3, 4, 5}, Lines{0, 2, 4}, Lines{0}, 2), (Lines{1, 2, 3, 0, 4, 5}));
}

TEST(LineMove, KeepsAllLinesWhateverIsMoved)
{
    std::mt19937 random(5);
    for (int round = 0; round < 500; ++round)
    {
        Lines order(random() % 12);
        std::iota(order.begin(), order.end(), 0);
        std::ranges::shuffle(order, random);
        Lines seen;
        Lines moved;
        for (int const line : order)
        {
            if (random() % 3 != 0)
            {
                seen.push_back(line);
                if (random() % 2 != 0)
                {
                    moved.push_back(line);
                }
            }
        }
        std::size_t const place = random() % (seen.size() + 1);
        std::vector<int> const result = MovedLines(order, seen, moved, place);
        ASSERT_TRUE(std::ranges::is_permutation(result, order));
        if (!moved.empty())
        {
            auto const first = std::ranges::find(result, moved.front());
            ASSERT_TRUE(std::equal(moved.begin(), moved.end(), first)) << "together, in their order";
        }
        auto const stays = [&moved](int line) { return std::ranges::find(moved, line) == moved.end(); };
        Lines before;
        Lines after;
        std::ranges::copy_if(order, std::back_inserter(before), stays);
        std::ranges::copy_if(result, std::back_inserter(after), stays);
        ASSERT_EQ(before, after);
    }
}

TEST(LineMove, OneLineUpAndDown)
{
    Lines const seen{0, 1, 2, 3, 4};
    EXPECT_EQ(Moved(seen, {2}, PlaceOneUp(seen, Lines{2})), (Lines{0, 2, 1, 3, 4}));
    EXPECT_EQ(Moved(seen, {2}, PlaceOneDown(seen, Lines{2})), (Lines{0, 1, 3, 2, 4}));
    EXPECT_EQ(Moved(seen, {0}, PlaceOneUp(seen, Lines{0})), seen);
    EXPECT_EQ(Moved(seen, {4}, PlaceOneDown(seen, Lines{4})), seen);
    EXPECT_EQ(Moved(seen, {1, 3}, PlaceOneUp(seen, Lines{1, 3})), (Lines{1, 3, 0, 2, 4}));
    EXPECT_EQ(Moved(seen, {1, 3}, PlaceOneDown(seen, Lines{1, 3})), (Lines{0, 2, 4, 1, 3}));
    EXPECT_EQ(Moved(seen, {}, PlaceOneUp(seen, Lines{})), seen);
    EXPECT_EQ(Moved(seen, {}, PlaceOneDown(seen, Lines{})), seen);
}

} // namespace
