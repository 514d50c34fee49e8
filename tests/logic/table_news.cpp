// What is to be told of a table, put together.

#include <gtest/gtest.h>

#include "list/table/TableNews.h"

using Place = TableNewsPlaces::Place;

namespace
{
constexpr unsigned int any_column = TableNewsPlaces::any_column;
} // namespace

TEST(TableNewsPlaces, OnePlaceIsThatPlace)
{
    TableNewsPlaces news;
    EXPECT_FALSE(news.One());
    EXPECT_FALSE(news.AreSeveral());
    news.Add({3, 30, 2});
    news.Add({3, 30, 2});
    EXPECT_EQ(news.One(), (Place{3, 30, 2}));
}

TEST(TableNewsPlaces, CellsOfOneRowAreThatRow)
{
    TableNewsPlaces news;
    news.Add({3, 30, any_column});
    news.Add({3, 30, 2});
    EXPECT_EQ(news.One(), (Place{3, 30, 2})) << "the cell says more than its row";
    news.Add({3, 30, any_column});
    EXPECT_EQ(news.One(), (Place{3, 30, 2}));
    news.Add({3, 30, 4});
    EXPECT_EQ(news.One(), (Place{3, 30, any_column}));
}

TEST(TableNewsPlaces, SeveralRowsAreTheTable)
{
    TableNewsPlaces rows;
    rows.Add({3, 30, 2});
    rows.Add({4, 40, 2});
    EXPECT_TRUE(rows.AreSeveral());
    EXPECT_FALSE(rows.One());
    rows.Add({3, 30, 2});
    EXPECT_TRUE(rows.AreSeveral());
    TableNewsPlaces many;
    many.AddMany();
    EXPECT_TRUE(many.AreSeveral());
    EXPECT_FALSE(many.One());
}
