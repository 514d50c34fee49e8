#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

#include "list/XListColumnFit.h"

namespace
{
using Widths = std::vector<int>;
constexpr int minimum = 6;

/// Columns fitted one time after another with the same memory.
class Fitter
{
public:
    Widths widths;
    ColumnFit result = ColumnFit::unchanged;

    Widths const & Fit(Widths const & from, int available, int preferred = -1)
    {
        widths = from;
        result = FitColumns(widths, available, minimum, preferred, m_memory);
        return widths;
    }

private:
    CColumnFitMemory m_memory;
};

int Sum(Widths const & widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0);
}

TEST(ListColumnFit, LeavesColumnsThatFit)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({10, 20, 66}, 96), Widths({10, 20, 66}));
    EXPECT_EQ(fitter.result, ColumnFit::unchanged);
    EXPECT_EQ(fitter.Fit({2, 94}, 96, 0), Widths({2, 94}));
    EXPECT_EQ(fitter.result, ColumnFit::unchanged);
}

TEST(ListColumnFit, SharesOutProportionally)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({10, 10, 10}, 96), Widths({32, 32, 32}));
    EXPECT_EQ(fitter.result, ColumnFit::all);
    EXPECT_EQ(fitter.Fit({10, 20, 30}, 120), Widths({20, 40, 60}));
    // -10, -20 and -30 become -9, -19 and -29; the last three pixels come from one column each.
    EXPECT_EQ(fitter.Fit({20, 40, 60}, 60), Widths({10, 20, 30}));
}

TEST(ListColumnFit, ThePreferredColumnTakesTheDifferenceAlone)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({10, 20, 30}, 100, 1), Widths({10, 60, 30}));
    EXPECT_EQ(fitter.result, ColumnFit::preferred_only);
    EXPECT_EQ(fitter.Fit({10, 20, 30}, 50, 2), Widths({10, 20, 20}));
    EXPECT_EQ(fitter.result, ColumnFit::preferred_only);
}

TEST(ListColumnFit, APreferredColumnPastTheEndIsTheLastOne)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({10, 20, 30}, 100, 3), Widths({10, 20, 70}));
    EXPECT_EQ(fitter.Fit({10, 20, 30}, 100, 1000), Widths({10, 20, 70}));
}

TEST(ListColumnFit, ThePreferredColumnTakesItDownToTheMinimumPlusOne)
{
    Fitter fitter;
    // 20 - 13 is 7, one above the minimum.
    EXPECT_EQ(fitter.Fit({20, 50, 50}, 107, 0), Widths({7, 50, 50}));
    EXPECT_EQ(fitter.result, ColumnFit::preferred_only);
}

TEST(ListColumnFit, APreferredColumnAtTheMinimumGoesOnFromItsOldWidth)
{
    Fitter fitter;
    // The difference of -14 would take 20 to 6. It is met with 13 given up, which leaves -1; of that no column's share
    // is a pixel, and the single pixel comes from column 0. The widths then are more than fit, as hosts expect.
    EXPECT_EQ(fitter.Fit({20, 50, 50}, 106, 0), Widths({19, 50, 50}));
    EXPECT_EQ(fitter.result, ColumnFit::all);
}

TEST(ListColumnFit, APreferredColumnBelowTheMinimumAddsWhatItLacks)
{
    Fitter fitter;
    // -98, and 3 - 7 on top, is -102, of which column 0 has -1 and column 1, with 199, -100.5 + 0.5. Column 0 would be
    // 2 and gets 6, so 3 more are missing: -105 + 100 is -5. Column 0 cannot give a single pixel, column 1 gives all.
    EXPECT_EQ(fitter.Fit({3, 199}, 104, 0), Widths({6, 94}));
}

TEST(ListColumnFit, SinglePixelsGoRoundFromOneFittingToTheNext)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({10, 10, 10}, 31), Widths({10, 11, 10}));
    EXPECT_EQ(fitter.Fit({10, 10, 10}, 31), Widths({10, 10, 11}));
    EXPECT_EQ(fitter.Fit({10, 10, 10}, 31), Widths({11, 10, 10}));
    EXPECT_EQ(fitter.Fit({10, 10, 10}, 31), Widths({10, 11, 10}));
}

TEST(ListColumnFit, TheColumnThatLastTookAPixelIsTheFirstToGiveItBack)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({10, 10, 10}, 31), Widths({10, 11, 10}));
    EXPECT_EQ(fitter.Fit({10, 11, 10}, 30), Widths({10, 10, 10}));
    // From there downwards, and back up again with the column that gave last.
    EXPECT_EQ(fitter.Fit({10, 10, 10}, 29), Widths({9, 10, 10}));
    EXPECT_EQ(fitter.Fit({9, 10, 10}, 28), Widths({9, 10, 9}));
    EXPECT_EQ(fitter.Fit({9, 10, 9}, 29), Widths({9, 10, 10}));
    EXPECT_EQ(fitter.Fit({9, 10, 10}, 30), Widths({10, 10, 10}));
}

TEST(ListColumnFit, AFirstShrinkingStartsWithColumn0)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({10, 10, 10}, 29), Widths({9, 10, 10}));
}

TEST(ListColumnFit, AFittingWithoutSinglePixelsLeavesTheMemory)
{
    Fitter fitter;
    fitter.Fit({10, 10, 10}, 31); // column 1 took it
    fitter.Fit({10, 10, 10}, 27); // -0.5 each: three whole shares of 0, three single pixels from column 1 down
    EXPECT_EQ(fitter.widths, Widths({9, 9, 9}));
    fitter.Fit({10, 10, 10}, 60);     // shared out whole
    fitter.Fit({10, 10, 10}, 100, 0); // column 0 alone
    EXPECT_EQ(fitter.Fit({10, 10, 10}, 29), Widths({10, 9, 10}));
}

TEST(ListColumnFit, SharesAreRoundedByHalfAPixelAndCutTowardsZero)
{
    Fitter fitter;
    // 0.75, 0.75 and 1.5 give 1, 1 and 2: one too many, which column 0 gives back.
    EXPECT_EQ(fitter.Fit({10, 10, 20}, 43), Widths({10, 11, 22}));
    // -1.5 each gives -1, and the single pixel goes on downwards from column 0.
    EXPECT_EQ(fitter.Fit({100, 100}, 197), Widths({99, 98}));
}

TEST(ListColumnFit, ColumnsStopAtTheMinimumAndOthersGiveMore)
{
    Fitter fitter;
    // Column 0 would be 5 and gets 6: -102 left. The others give 49 each, the last 4 go round among them.
    EXPECT_EQ(fitter.Fit({8, 100, 100}, 104), Widths({6, 49, 49}));
}

TEST(ListColumnFit, AColumnBelowTheMinimumIsRaisedToIt)
{
    Fitter fitter;
    // 1 more pixel fits, but column 0 takes 4: column 1 gives 3.
    EXPECT_EQ(fitter.Fit({2, 100}, 103), Widths({6, 97}));
}

TEST(ListColumnFit, NothingGoesBelowTheMinimum)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({6, 6, 6}, 10), Widths({6, 6, 6}));
    EXPECT_EQ(fitter.Fit({50, 50, 50}, 1), Widths({6, 6, 6}));
}

TEST(ListColumnFit, SinglePixelsStopOneAboveTheMinimum)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({7, 7, 7}, 20), Widths({7, 7, 7}));
    EXPECT_EQ(fitter.Fit({8, 7, 7}, 21), Widths({7, 7, 7}));
}

TEST(ListColumnFit, ColumnsWithoutAnyWidthGrowPixelByPixel)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({0, 0}, 50), Widths({25, 25}));
}

TEST(ListColumnFit, ASingleColumnTakesEverything)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({10}, 77), Widths({77}));
    EXPECT_EQ(fitter.Fit({77}, 10), Widths({10}));
    EXPECT_EQ(fitter.Fit({77}, 3), Widths({6}));
}

TEST(ListColumnFit, MemorySurvivesAChangeOfTheNumberOfColumns)
{
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({10, 10, 10, 10}, 41), Widths({10, 11, 10, 10}));
    EXPECT_EQ(fitter.Fit({10, 10, 10, 10}, 41), Widths({10, 10, 11, 10}));
    EXPECT_EQ(fitter.Fit({10, 10, 10, 10}, 41), Widths({10, 10, 10, 11}));
    // Column 3 is no more; the round starts again at 0, from which growing goes on to 1.
    EXPECT_EQ(fitter.Fit({10, 10, 10}, 31), Widths({10, 11, 10}));
}

TEST(ListColumnFit, WidthsWhoseSumPassesTheRangeOfAnInt)
{
    constexpr int huge = std::numeric_limits<int>::max();
    Fitter fitter;
    EXPECT_EQ(fitter.Fit({huge, huge, huge}, 1000), Widths({333, 334, 333}));
}

TEST(ListColumnFit, TheSumFitsUnlessEveryColumnIsAtTheMinimumOrNextToIt)
{
    for (unsigned int seed = 1; seed <= 3; ++seed)
    {
        std::mt19937 random(seed);
        auto const below = [&](int end) { return static_cast<int>(random() % static_cast<unsigned int>(end)); };
        Fitter fitter;
        for (int round = 0; round < 5000; ++round)
        {
            Widths widths(1 + random() % 12);
            for (int & width : widths)
                width = below(round % 2 == 0 ? 20 : 2000);
            int const available = 1 + below(4000);
            fitter.Fit(widths, available);
            std::string const trace = "seed " + std::to_string(seed) + ", round " + std::to_string(round);
            if (fitter.result == ColumnFit::unchanged)
            {
                ASSERT_EQ(Sum(fitter.widths), available) << trace;
                continue;
            }
            ASSERT_GE(*std::min_element(fitter.widths.begin(), fitter.widths.end()), minimum) << trace;
            // Single pixels take no column to the minimum itself.
            if (*std::max_element(fitter.widths.begin(), fitter.widths.end()) > minimum + 1)
                ASSERT_EQ(Sum(fitter.widths), available) << trace;
            else
                ASSERT_GE(Sum(fitter.widths), available) << trace;
        }
    }
}

TEST(ListColumnFit, APreferredColumnFitsAsLongAsItStaysAboveTheMinimum)
{
    std::mt19937 random(4);
    Fitter fitter;
    for (int round = 0; round < 5000; ++round)
    {
        Widths widths(1 + random() % 12);
        for (int & width : widths)
            width = static_cast<int>(random() % 200);
        int const available = 1 + static_cast<int>(random() % 1500);
        std::size_t const preferred = random() % widths.size();
        int const alone = widths[preferred] + available - Sum(widths);
        fitter.Fit(widths, available, static_cast<int>(preferred));
        if (fitter.result == ColumnFit::unchanged)
            continue;
        ASSERT_EQ(fitter.result == ColumnFit::preferred_only, alone > minimum) << "round " << round;
        if (alone <= minimum)
            continue;
        widths[preferred] = alone;
        ASSERT_EQ(fitter.widths, widths) << "round " << round;
    }
}
} // namespace
