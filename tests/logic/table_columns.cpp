// Places, widths and hidden columns of a table.

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <vector>

#include "list/table/TableColumnLayout.h"
#include "table_StandIn.h"

namespace
{
using Columns = std::vector<unsigned int>;

TableColumnLayout Layout(unsigned int count)
{
    std::vector<TableColumn> columns;
    for (unsigned int i = 0; i < count; ++i)
        columns.push_back(table_test::Column(std::to_wstring(i)));
    TableColumnLayout layout;
    layout.Reset(columns);
    return layout;
}

std::map<unsigned int, StoredTableColumn> StoredAll(TableColumnLayout const & layout)
{
    std::map<unsigned int, StoredTableColumn> stored;
    for (unsigned int column = 0; column < layout.Count(); ++column)
        stored[column] = layout.Stored(column);
    return stored;
}

void Restore(TableColumnLayout & layout, std::map<unsigned int, StoredTableColumn> const & stored)
{
    layout.Restore([&stored](unsigned int column) {
        auto const found = stored.find(column);
        return found == stored.end() ? std::nullopt : std::optional(found->second);
    });
}
} // namespace

TEST(TableColumns, AreMovedAmongThoseShown)
{
    TableColumnLayout layout = Layout(4);
    layout.Move(0, 2);
    EXPECT_EQ(layout.Shown(), (Columns{1, 2, 0, 3}));
    layout.Hide(2, true);
    EXPECT_EQ(layout.Shown(), (Columns{1, 0, 3}));
    layout.Move(3, 1);
    EXPECT_EQ(layout.Shown(), (Columns{1, 3, 0}));
    layout.Move(1, 99);
    EXPECT_EQ(layout.Shown(), (Columns{3, 0, 1}));
    layout.Move(99, 0);
    EXPECT_EQ(layout.Shown(), (Columns{3, 0, 1}));
    layout.Hide(2, false);
    EXPECT_EQ(layout.Shown().size(), 4U);
}

TEST(TableColumns, OneIsAlwaysShown)
{
    TableColumnLayout layout = Layout(2);
    EXPECT_TRUE(layout.Hide(0, true));
    EXPECT_FALSE(layout.Hide(1, true));
    EXPECT_TRUE(layout.Hide(0, true));
    EXPECT_EQ(layout.Shown(), (Columns{1}));
    EXPECT_FALSE(layout.Hide(7, true));
    std::vector<TableColumn> hidden = {table_test::Column(L"a"), table_test::Column(L"b")};
    hidden[0].hidden = hidden[1].hidden = true;
    layout.Reset(hidden);
    EXPECT_EQ(layout.Shown(), (Columns{0}));
    Restore(layout, {{0, {1, 50, true}}, {1, {0, 50, true}}});
    EXPECT_EQ(layout.Shown(), (Columns{1}));
}

TEST(TableColumns, AreAsTheyWereRemembered)
{
    TableColumnLayout layout = Layout(4);
    layout.Move(3, 0);
    layout.Hide(1, true);
    layout.SetWidth(2, 123);
    std::map<unsigned int, StoredTableColumn> const stored = StoredAll(layout);
    TableColumnLayout other = Layout(4);
    Restore(other, stored);
    EXPECT_EQ(other.Order(), layout.Order());
    EXPECT_EQ(other.Shown(), (Columns{3, 0, 2}));
    EXPECT_EQ(other.Width(2), 123);
}

TEST(TableColumns, NewOnesComeBehindTheirNeighbour)
{
    TableColumnLayout layout = Layout(5);
    Restore(layout, {{1, {1, 50, false}}, {3, {0, 60, false}}});
    EXPECT_EQ(layout.Order(), (Columns{0, 3, 4, 1, 2}));
    TableColumnLayout none = Layout(3);
    Restore(none, {});
    EXPECT_EQ(none.Order(), (Columns{0, 1, 2}));
}

TEST(TableColumns, DamagedMemoriesDoNoHarm)
{
    TableColumnLayout layout = Layout(3);
    Restore(layout, {{0, {7, -5, false}}, {1, {7, 1 << 30, false}}, {2, {-7, 0, false}}});
    EXPECT_EQ(layout.Order(), (Columns{2, 0, 1}));
    EXPECT_EQ(layout.Width(0), TableColumnLayout::least_width);
    EXPECT_EQ(layout.Width(1), TableColumnLayout::greatest_width);
}

TEST(TableColumns, OneIsLeftToBeScrolled)
{
    TableColumnLayout layout = Layout(3);
    layout.SetFrozen(2);
    EXPECT_EQ(layout.Frozen(), 2U);
    layout.Hide(0, true);
    EXPECT_EQ(layout.Frozen(), 1U);
    layout.Hide(1, true);
    EXPECT_EQ(layout.Frozen(), 0U);
    EXPECT_EQ(TableColumnLayout().Frozen(), 0U);
}
