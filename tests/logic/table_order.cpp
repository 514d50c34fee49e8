// The order of a table's rows, and which of them are shown.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "list/table/NaturalOrder.h"
#include "table_StandIn.h"

namespace
{
using namespace table_test;

constexpr double infinity = std::numeric_limits<double>::infinity();

/// Sorts rows of one column, and gives them in their new order.
std::vector<TableRow> Sorted(std::vector<TableValue> const & values, bool descending = false)
{
    auto const source = std::make_shared<Source>();
    for (TableValue const & value : values)
        source->rows.push_back({0, {value}});
    TableProgress progress;
    TableAccess access(source, progress);
    TableRows rows;
    for (TableRow row = 0; row < values.size(); ++row)
        rows.push_back(row);
    TableSortColumn const columns[] = {{0, descending}};
    EXPECT_TRUE(SortTableRows(access, columns, rows));
    return {rows.begin(), rows.end()};
}

std::vector<TableRow> Filtered(std::shared_ptr<Source> const & source, TableFilter filter,
                               std::vector<TableColumn> columns)
{
    TableModel model;
    TableLooks looks;
    looks.columns = std::move(columns);
    model.SetLooks(std::move(looks));
    model.SetSource(source);
    model.SetFilter(std::move(filter));
    model.FindOrder();
    return Shown(model);
}

using Order = std::vector<TableRow>;
} // namespace

TEST(TableOrder, NumbersInNamesCountByTheirValue)
{
    EXPECT_LT(CompareNaturally(L"Ch 2", L"Ch 10"), 0);
    EXPECT_LT(CompareNaturally(L"Ch 2b", L"Ch 10a"), 0);
    EXPECT_EQ(CompareNaturally(L"Ch 02", L"Ch 2"), 0);
    EXPECT_LT(CompareNaturally(L"Ch 0", L"Ch 1"), 0);
    EXPECT_LT(CompareNaturally(L"Ch", L"Ch 1"), 0);
    EXPECT_LT(CompareNaturally(L"999999999", L"1000000000"), 0);
    EXPECT_LT(CompareNaturally(L"9999999999", L"10000000000"), 0);
    EXPECT_LT(CompareNaturally(std::wstring(263, L'9'), L"1" + std::wstring(263, L'0')), 0);
    EXPECT_LT(CompareNaturally(std::wstring(262, L'9'), L"1" + std::wstring(262, L'0')), 0);
    EXPECT_LT(CompareNaturally(std::wstring(600, L'9'), L"1" + std::wstring(600, L'0')), 0);
    EXPECT_LT(CompareNaturally(L"9/1", L"10/1"), 0);
    EXPECT_LT(CompareNaturally(L"a1", L"aa"), 0);
}

TEST(TableOrder, CaseAndAccentsDecideNothing)
{
    EXPECT_EQ(CompareNaturally(L"Peak", L"pEAK"), 0);
    EXPECT_LT(CompareNaturally(L"\u00C4pfel", L"Birne"), 0);
    EXPECT_EQ(CompareNaturally(L"Stra\u00DFe", L"STRASSE"), 0);
    EXPECT_LT(CompareNaturally(L"z", L"\u03B1"), 0);
    EXPECT_EQ(CompareNaturally(L"\u03A9", L"\u03C9"), 0);
    EXPECT_GT(CompareNaturally(std::wstring(L"a\0", 2), L"a"), 0);
}

TEST(TableOrder, KindsStandInGroupsAndBlankOnesLastInBothDirections)
{
    std::vector<TableValue> const values = {
        TableValue(), Number(std::nan("")), Text(L"b"), Number(infinity), Whole(3),
        Text(L"a"),   Number(-infinity),    Time(2),    Number(2.5),
    };
    EXPECT_EQ(Sorted(values), (Order{6, 7, 8, 4, 3, 5, 2, 1, 0}));
    EXPECT_EQ(Sorted(values, true), (Order{3, 4, 8, 7, 6, 2, 5, 1, 0}));
}

TEST(TableOrder, RowsAlikeKeepTheirOrderInBothDirections)
{
    std::vector<TableValue> values;
    for (int i = 0; i < 3000; ++i)
        values.push_back(Whole(i % 3));
    for (bool const descending : {false, true})
    {
        Order const order = Sorted(values, descending);
        for (std::size_t i = 1; i < order.size(); ++i)
        {
            int const first = static_cast<int>(order[i - 1] % 3) * (descending ? -1 : 1);
            int const second = static_cast<int>(order[i] % 3) * (descending ? -1 : 1);
            ASSERT_TRUE(first < second || (first == second && order[i - 1] < order[i])) << i;
        }
    }
}

TEST(TableOrder, WholeNumbersBeyondTheDoublesAreExact)
{
    constexpr long long greatest = std::numeric_limits<long long>::max();
    constexpr long long least = std::numeric_limits<long long>::min();
    EXPECT_EQ(Sorted({Whole(greatest), Whole(greatest - 1), Number(9223372036854775808.0), Whole(least),
                      Whole(least + 1), Whole(0)}),
              (Order{3, 4, 5, 1, 0, 2}));
    EXPECT_EQ(Sorted({Whole(least), Whole(least + 1), Whole(9007199254740993), Number(9007199254740992.0)}, true),
              (Order{2, 3, 1, 0}));
}

TEST(TableOrder, BothZerosAreOne)
{
    EXPECT_EQ(Sorted({Number(0.0), Number(-0.0), Whole(0)}), (Order{0, 1, 2}));
    EXPECT_EQ(Sorted({Number(0.0), Number(-0.0), Whole(0)}, true), (Order{0, 1, 2}));
}

TEST(TableOrder, LongTextsThatDifferLateAreInOrder)
{
    std::wstring const alike(5000, L'x');
    std::vector<TableValue> values;
    for (int i = 0; i < 40; ++i)
        values.push_back(Text(alike + std::to_wstring((i * 7) % 40) + (i % 2 == 0 ? L"" : alike)));
    Order const order = Sorted(values);
    for (std::size_t i = 0; i < order.size(); ++i)
        EXPECT_EQ(order[i] * 7 % 40, i);
    Order const reversed = Sorted(values, true);
    for (std::size_t i = 0; i < order.size(); ++i)
        EXPECT_EQ(reversed[i] * 7 % 40, 39 - i);
}

TEST(TableOrder, ManyRowsOfEveryKindAreAsAStableSortPutsThem)
{
    std::mt19937 random(11);
    auto const source = std::make_shared<Source>();
    for (int i = 0; i < 30000; ++i)
    {
        source->rows.push_back(
            {0,
             {Number(static_cast<double>(random() % 50)), Text(L"Channel name " + std::to_wstring(random() % 3000)),
              Number(std::ldexp(random(), static_cast<int>(random() % 60) - 80))}});
    }
    TableProgress progress;
    TableAccess access(source, progress);
    std::vector<TableSortColumn> const columns = {{0, true}, {1, false}, {2, true}};
    TableRows rows;
    Order expected;
    for (TableRow row = 0; row < source->rows.size(); ++row)
    {
        rows.push_back(row);
        expected.push_back(row);
    }
    ASSERT_TRUE(SortTableRows(access, columns, rows));
    std::stable_sort(expected.begin(), expected.end(), [&source](TableRow a, TableRow b) {
        std::vector<TableValue> const & first = source->rows[a].cells;
        std::vector<TableValue> const & second = source->rows[b].cells;
        if (first[0].Number() != second[0].Number())
            return first[0].Number() > second[0].Number();
        if (int const order = CompareNaturally(first[1].Text(), second[1].Text()); order != 0)
            return order < 0;
        return first[2].Number() > second[2].Number();
    });
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), rows.begin(), rows.end()));
    EXPECT_EQ(progress.Done(), 1000);
    EXPECT_EQ(rows.capacity(), rows.size());
}

TEST(TableOrder, NumbersThatDifferInTheirLastBitAreInOrderWithinGroups)
{
    auto const source = std::make_shared<Source>();
    for (int i = 0; i < 4000; ++i)
    {
        source->rows.push_back(
            {0, {Whole(i % 7), Number(1 + std::ldexp((i * 37) % 1000, -52)), Text(i % 2 == 0 ? L"a" : L"b")}});
    }
    TableProgress progress;
    TableAccess access(source, progress);
    std::vector<TableSortColumn> const columns = {{0, false}, {1, true}, {2, true}};
    TableRows rows;
    for (TableRow row = 0; row < source->rows.size(); ++row)
        rows.push_back(row);
    ASSERT_TRUE(SortTableRows(access, columns, rows));
    for (std::size_t i = 1; i < rows.size(); ++i)
    {
        std::vector<TableValue> const & first = source->rows[rows[i - 1]].cells;
        std::vector<TableValue> const & second = source->rows[rows[i]].cells;
        ASSERT_LE(first[0].Whole(), second[0].Whole()) << i;
        if (first[0].Whole() != second[0].Whole())
            continue;
        ASSERT_GE(first[1].Number(), second[1].Number()) << i;
        if (first[1].Number() != second[1].Number())
            continue;
        ASSERT_GE(first[2].Text(), second[2].Text()) << i;
        if (first[2].Text() == second[2].Text())
        {
            ASSERT_LT(rows[i - 1], rows[i]) << i;
        }
    }
}

TEST(TableOrder, AStoppedSortKeepsAllRows)
{
    auto const source = std::make_shared<Source>();
    for (int i = 0; i < 20000; ++i)
        source->rows.push_back({0, {Whole(20000 - i)}});
    TableProgress progress;
    TableAccess access(source, progress);
    progress.Stop();
    TableRows rows;
    for (TableRow row = 0; row < 20000; ++row)
        rows.push_back(row);
    TableSortColumn const columns[] = {{0, false}};
    EXPECT_FALSE(SortTableRows(access, columns, rows));
    Order order(rows.begin(), rows.end());
    std::sort(order.begin(), order.end());
    for (TableRow row = 0; row < 20000; ++row)
        ASSERT_EQ(order[row], row);
}

TEST(TableFilter, TextIsLookedForInWhatIsShown)
{
    auto const source = std::make_shared<Source>(std::vector<std::vector<TableValue>>{
        {Text(L"Left"), Number(1.25)}, {Text(L"Right"), Number(12.5)}, {Text(L"left 2"), Number(std::nan(""))}});
    TableColumn level = Column(L"Level", TableKind::floating);
    level.format = {NumberStyle::fixed, 1, false, UnitPlace::cell, L"dB"};
    std::vector<TableColumn> const columns = {Column(L"Name"), level};
    TableFilter filter;
    filter.texts.push_back({0, L"LEFT", false});
    EXPECT_EQ(Filtered(source, filter, columns), (Order{0, 2}));
    filter.texts[0] = {0, L"left", true};
    EXPECT_EQ(Filtered(source, filter, columns), (Order{2}));
    filter.texts[0] = {TableFilter::any_column, L"2", false};
    EXPECT_EQ(Filtered(source, filter, columns), (Order{0, 1, 2})) << "1.2 dB, 12.5 dB, left 2";
    filter.texts[0] = {1, L"db", false};
    EXPECT_EQ(Filtered(source, filter, columns), (Order{0, 1}));
    filter.texts.push_back({0, L"gh", false});
    EXPECT_EQ(Filtered(source, filter, columns), (Order{1}));
}

TEST(TableFilter, RangesTakeBothEndsAndNoTexts)
{
    auto const source = std::make_shared<Source>(std::vector<std::vector<TableValue>>{
        {Number(1)}, {Whole(2)}, {Number(3)}, {Text(L"2")}, {TableValue()}, {Number(std::nan(""))}, {Time(2)}});
    TableFilter filter;
    filter.ranges.push_back({0, 1, 2});
    EXPECT_EQ(Filtered(source, filter, {Column(L"")}), (Order{0, 1, 6}));
    filter.ranges[0] = {};
    EXPECT_EQ(Filtered(source, filter, {Column(L"")}), (Order{0, 1, 2, 6}));
}

TEST(TableFilter, AHostsPredicateIsAskedForEachRow)
{
    auto const source = std::make_shared<Source>(
        std::vector<std::vector<TableValue>>{{Number(1)}, {Number(2)}, {Number(3)}, {Number(4)}});
    TableFilter filter;
    filter.predicate = [](TableSource const &, TableRow row) { return row % 2 == 1; };
    filter.ranges.push_back({0, 3, infinity});
    EXPECT_EQ(Filtered(source, filter, {Column(L"")}), (Order{3}));
}

TEST(TableFilter, SearchFindsTextsAnywhere)
{
    EXPECT_TRUE(TextSearch(L"").IsIn(L""));
    EXPECT_FALSE(TextSearch(L"ab").IsIn(L"a"));
    EXPECT_TRUE(TextSearch(L"ab").IsIn(L"aab"));
    EXPECT_TRUE(TextSearch(L"\u00E4").IsIn(L"\u00C4"));
    EXPECT_TRUE(TextSearch(L"\u0416").IsIn(L"a\u0436"));
    EXPECT_TRUE(TextSearch(L"\u0451").IsIn(L"\u0401"));
    EXPECT_TRUE(TextSearch(L"\u0107").IsIn(L"\u0106"));
    EXPECT_FALSE(TextSearch(L"\u0107", true).IsIn(L"\u0106"));
    EXPECT_TRUE(TextSearch(L"le").BeginsIn(L"Left"));
    EXPECT_FALSE(TextSearch(L"ef").BeginsIn(L"Left"));
    EXPECT_FALSE(TextSearch(L"left").BeginsIn(L"le"));
}
