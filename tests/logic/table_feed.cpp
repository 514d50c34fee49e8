// What threads tell a table, as the table hears it. With threads: threads/table_feed.cpp.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "list/table/TableFeed.h"
#include "list/table/TablePace.h"

namespace
{
using Ranges = std::vector<TableRowRange>;

class CountingWaker : public TableWaker
{
public:
    int count = 0;
    void Wake() override { ++count; }
};
} // namespace

TEST(TableFeed, WhatIsToldComesAtOnceAndJoined)
{
    TableFeed feed(nullptr);
    EXPECT_TRUE(feed.Take().IsEmpty());
    feed.RowsChanged(5, 7);
    feed.RowsChanged(20, 20);
    feed.RowsChanged(8, 9);
    feed.RowsChanged(6, 6);
    feed.RowsAppended(3);
    TableChanges changes = feed.Take();
    EXPECT_EQ(changes.changed, (Ranges{{5, 9}, {20, 20}}));
    EXPECT_TRUE(changes.appended);
    EXPECT_FALSE(changes.all);
    EXPECT_FALSE(changes.anyValue);
    feed.AllChanged();
    changes = feed.Take();
    EXPECT_TRUE(changes.all);
    EXPECT_TRUE(changes.changed.empty());
    EXPECT_FALSE(changes.appended);
    EXPECT_TRUE(feed.Take().IsEmpty());
}

TEST(TableFeed, NothingIsNothing)
{
    auto const waker = std::make_shared<CountingWaker>();
    TableFeed feed(waker);
    feed.RowsChanged(3, 2);
    feed.RowsAppended(0);
    EXPECT_EQ(waker->count, 0);
    EXPECT_TRUE(feed.Take().IsEmpty());
}

TEST(TableFeed, WakesOnceUntilItIsAsked)
{
    auto const waker = std::make_shared<CountingWaker>();
    TableFeed feed(waker);
    feed.RowsChanged(1, 1);
    feed.RowsChanged(2, 2);
    feed.RowsAppended(1);
    EXPECT_EQ(waker->count, 1);
    feed.Take();
    feed.AllChanged();
    EXPECT_EQ(waker->count, 2);
}

TEST(TableFeed, MoreThanItCanHoldBecomesAnyValue)
{
    TableFeed feed(nullptr);
    for (int round = 0; round < 3; ++round)
    {
        for (TableRow row = 0; row < 10000; ++row)
            feed.RowsChanged(2 * row, 2 * row);
        TableChanges const changes = feed.Take();
        EXPECT_TRUE(changes.anyValue);
        EXPECT_EQ(changes.changed.size(), 4096U);
        EXPECT_TRUE(feed.Take().IsEmpty());
        for (TableRow row = 0; row < 4096; ++row)
            feed.RowsChanged(2 * row, 2 * row);
        EXPECT_FALSE(feed.Take().anyValue);
    }
}

TEST(TableFeed, TheLastRowsOfAllAreJoinedToo)
{
    Ranges ranges = {{0xFFFFFFFE, 0xFFFFFFFF}, {0, 0xFFFFFFFF}, {5, 6}};
    JoinRanges(ranges);
    EXPECT_EQ(ranges, (Ranges{{0, 0xFFFFFFFF}}));
}

TEST(TablePace, PaintsAtMostOnceInSixteenMilliseconds)
{
    TablePace pace;
    EXPECT_EQ(pace.Wait(1000), 0);
    pace.Painted(1000);
    EXPECT_EQ(pace.Wait(1000), 16);
    EXPECT_EQ(pace.Wait(1010), 6);
    EXPECT_EQ(pace.Wait(1016), 0);
    EXPECT_EQ(pace.Wait(5000), 0);
    EXPECT_EQ(pace.Wait(10), 0) << "a clock that was set back";
}
