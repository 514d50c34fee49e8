#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "frame/CoreLibrary.h"

namespace
{
std::vector<int> Steps(CStepCounter & counter, bool up, int count)
{
    std::vector<int> values;
    while (count-- > 0)
        values.push_back(counter.step(up));
    return values;
}
} // namespace

TEST(SuiteStepCounter, StartsAtZeroInAnEmptyRange)
{
    CStepCounter counter;
    EXPECT_EQ(counter(), 0);
    EXPECT_EQ(counter.step(true), 0);
    EXPECT_EQ(counter.step(false), 0);
}

TEST(SuiteStepCounter, WrapsAroundInBothDirections)
{
    CStepCounter counter;
    counter.set_range(0, 3);
    EXPECT_EQ(Steps(counter, true, 7), (std::vector<int>{1, 2, 0, 1, 2, 0, 1}));
    EXPECT_EQ(Steps(counter, false, 5), (std::vector<int>{0, 2, 1, 0, 2}));
    EXPECT_EQ(counter(), 2);
}

TEST(SuiteStepCounter, TheValueStaysWhereTheNewRangeHoldsIt)
{
    CStepCounter counter;
    counter.set_range(0, 5);
    Steps(counter, true, 3);
    counter.set_range(0, 5);
    EXPECT_EQ(counter(), 3);
    counter.set_range(2, 4);
    EXPECT_EQ(counter(), 3);
    counter.set_range(0, 3);
    EXPECT_EQ(counter(), 0);
    counter.set_range(10, 12);
    EXPECT_EQ(counter(), 10);
}

TEST(SuiteStepCounter, ReversedBoundsAreExchanged)
{
    CStepCounter counter;
    counter.set_range(3, 0);
    EXPECT_EQ(Steps(counter, true, 4), (std::vector<int>{1, 2, 0, 1}));
}

TEST(SuiteStepCounter, AnEmptyRangeHoldsItsFirstNumber)
{
    CStepCounter counter;
    counter.set_range(4, 4);
    EXPECT_EQ(counter(), 4);
    EXPECT_EQ(counter.step(true), 4);
    EXPECT_EQ(counter.step(false), 4);
}

TEST(SuiteStepCounter, StepsAcrossZeroAndToTheEndsOfTheNumbers)
{
    CStepCounter counter;
    counter.set_range(-2, 2);
    EXPECT_EQ(counter(), 0);
    EXPECT_EQ(Steps(counter, false, 4), (std::vector<int>{-1, -2, 1, 0}));
    counter.set_range(INT_MIN, INT_MAX);
    EXPECT_EQ(Steps(counter, false, 1), (std::vector<int>{-1}));
    counter.set_range(INT_MAX - 1, INT_MAX);
    EXPECT_EQ(Steps(counter, true, 2), (std::vector<int>{INT_MAX - 1, INT_MAX - 1}));
    counter.set_range(INT_MIN, INT_MIN + 2);
    EXPECT_EQ(Steps(counter, false, 2), (std::vector<int>{INT_MIN + 1, INT_MIN}));
}
