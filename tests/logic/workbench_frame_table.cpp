// Analysis frames as a table's rows, and the user's choice among them.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "logic/FrameTable.h"
#include "table_StandIn.h"

namespace
{

using namespace workbench;

std::shared_ptr<FrameStore> Store()
{
    auto store = std::make_shared<FrameStore>();
    store->SetRaster(FrameRaster(48000, 48000, 1000));
    std::array<FrameMeasures, 3> const rows{
        {{0.5F, 0.25F, 1000.0F, 1500.0F}, {}, {1.0F, 1.0F, FrameMeasures::unknown, 12000.0F}}};
    store->Append(rows);
    return store;
}

double NumberAt(FrameTable const & table, TableRow row, unsigned int column)
{
    TableValue value;
    EXPECT_TRUE(table.Read(row, column, value));
    EXPECT_EQ(value.Kind(), TableKind::floating);
    return value.Number();
}

bool IsBlank(FrameTable const & table, TableRow row, unsigned int column)
{
    TableValue value;
    return table.Read(row, column, value) && value.Kind() == TableKind::blank;
}

/// The rows of a table that a filter shows.
std::vector<TableRow> Shown(std::shared_ptr<FrameTable> const & table, TableFilter const & filter)
{
    TableModel model;
    TableLooks looks;
    looks.columns.resize(FrameTable::column_count);
    for (TableColumn & column : looks.columns)
        column.format = {NumberStyle::fixed, 1, false, UnitPlace::nowhere, L""};
    model.SetLooks(looks);
    model.SetSource(table);
    model.SetFilter(filter);
    model.FindOrder();
    std::vector<TableRow> rows;
    for (TableRow position = 0; position < model.Size(); ++position)
        rows.push_back(model.RowAt(position));
    return rows;
}

} // namespace

TEST(WorkbenchFrameTable, CellsAreNumbersOfTheColumnsUnits)
{
    std::shared_ptr<FrameStore> const store = Store();
    FrameTable const table(store);
    EXPECT_EQ(table.RowCount(), 3u);
    EXPECT_DOUBLE_EQ(NumberAt(table, 2, FrameTable::column_time), 0.002);
    // With the digits that are known, and no others.
    EXPECT_EQ(NumberAt(table, 0, FrameTable::column_peak), -6.021);
    EXPECT_EQ(NumberAt(table, 0, FrameTable::column_rms), -12.041);
    EXPECT_EQ(NumberAt(table, 0, FrameTable::column_crest), 6.021);
    EXPECT_EQ(NumberAt(table, 0, FrameTable::column_frequency), 1000.0);
    EXPECT_EQ(NumberAt(table, 0, FrameTable::column_centroid), 1500.0);
    EXPECT_EQ(NumberAt(table, 2, FrameTable::column_crest), 0.0);
    store->Append(std::array<FrameMeasures, 2>{});
    EXPECT_EQ(table.RowCount(), 5u);
}

TEST(WorkbenchFrameTable, SilenceIsInfinitelyLowAndHasNoFrequency)
{
    FrameTable const table(Store());
    EXPECT_EQ(NumberAt(table, 1, FrameTable::column_peak), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(NumberAt(table, 1, FrameTable::column_rms), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(IsBlank(table, 1, FrameTable::column_crest));
    EXPECT_TRUE(IsBlank(table, 1, FrameTable::column_frequency));
    EXPECT_TRUE(IsBlank(table, 1, FrameTable::column_centroid));
    EXPECT_TRUE(IsBlank(table, 2, FrameTable::column_frequency));
}

TEST(WorkbenchFrameTable, WhatIsNotThereIsNotRead)
{
    FrameTable const table(Store());
    TableValue value;
    EXPECT_FALSE(table.Read(3, FrameTable::column_time, value));
    EXPECT_FALSE(table.Read(no_table_row, FrameTable::column_time, value));
    EXPECT_FALSE(table.Read(0, FrameTable::column_count, value));
}

TEST(WorkbenchFrameFilter, RangesAreChosenByComparisonOrEnds)
{
    auto const range = [](wchar_t const * text, wchar_t sign = L'.') {
        TableFilter const filter = ParseFrameFilter(text, FrameTable::column_peak, sign).rows;
        EXPECT_EQ(filter.ranges.size(), 1u) << text;
        EXPECT_TRUE(filter.texts.empty());
        EXPECT_EQ(filter.ranges.front().column, FrameTable::column_peak);
        return std::pair(filter.ranges.front().least, filter.ranges.front().greatest);
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(range(L">= -20"), std::pair(-20.0, infinity));
    EXPECT_EQ(range(L" > -20 "), std::pair(std::nextafter(-20.0, 0.0), infinity));
    EXPECT_EQ(range(L"<=1e3"), std::pair(-infinity, 1000.0));
    EXPECT_EQ(range(L"<0"), std::pair(-infinity, std::nextafter(0.0, -1.0)));
    EXPECT_EQ(range(L"-20..-10.5"), std::pair(-20.0, -10.5));
    EXPECT_EQ(range(L"-10 .. -20"), std::pair(-20.0, -10.0));
    EXPECT_EQ(range(L"-20,25 .. 3", L','), std::pair(-20.25, 3.0));
    EXPECT_EQ(range(L">1.5", L','), std::pair(std::nextafter(1.5, 2.0), infinity)) << "a point does as well";
    EXPECT_EQ(range(L"> \u22123"), std::pair(std::nextafter(-3.0, 0.0), infinity));
}

TEST(WorkbenchFrameFilter, WhatIsNoRangeIsAPartOfTheText)
{
    EXPECT_TRUE(ParseFrameFilter(L"", FrameTable::column_peak, L'.').rows.IsEmpty());
    EXPECT_TRUE(ParseFrameFilter(L"  ", FrameTable::column_time, L'.').rows.IsEmpty());
    for (wchar_t const * const text : {L"-20", L"x", L"1.5"})
    {
        FrameFilter const filter = ParseFrameFilter(text, FrameTable::column_rms, L'.');
        EXPECT_FALSE(filter.noNumber) << text;
        EXPECT_TRUE(filter.rows.ranges.empty()) << text;
        ASSERT_EQ(filter.rows.texts.size(), 1u) << text;
        EXPECT_EQ(filter.rows.texts.front().text, text);
        EXPECT_EQ(filter.rows.texts.front().column, FrameTable::column_rms);
    }
}

TEST(WorkbenchFrameFilter, WhatIsNoNumberIsToldAndLetsAllThrough)
{
    std::pair<wchar_t const *, wchar_t const *> const wrong[] = {
        {L">", L""},       {L"> x", L"x"},  {L"<= ", L""},         {L"1..", L""},      {L"..2", L""},
        {L"a .. 2", L"a"}, {L"1..b", L"b"}, {L"1..2..3", L"2..3"}, {L"> 1 2", L"1 2"}, {L"> inf", L"inf"}};
    for (auto const & [text, part] : wrong)
    {
        FrameFilter const filter = ParseFrameFilter(text, FrameTable::column_rms, L'.');
        EXPECT_TRUE(filter.rows.IsEmpty()) << text;
        ASSERT_TRUE(filter.noNumber) << text;
        EXPECT_EQ(*filter.noNumber, part) << text;
    }
    EXPECT_FALSE(ParseFrameFilter(L"> 3", FrameTable::column_rms, L'.').noNumber);
}

TEST(WorkbenchFrameFilter, ATableShowsWhatIsWanted)
{
    auto const table = std::make_shared<FrameTable>(Store());
    EXPECT_EQ(Shown(table, ParseFrameFilter(L"> -3", FrameTable::column_peak, L'.').rows), (std::vector<TableRow>{2}));
    EXPECT_EQ(Shown(table, ParseFrameFilter(L"< -3", FrameTable::column_peak, L'.').rows),
              (std::vector<TableRow>{0, 1}))
        << "silence is below any level";
    EXPECT_EQ(Shown(table, ParseFrameFilter(L"1000..2000", FrameTable::column_centroid, L'.').rows),
              (std::vector<TableRow>{0}));
    EXPECT_EQ(Shown(table, ParseFrameFilter(L"-6.0", FrameTable::column_peak, L'.').rows), (std::vector<TableRow>{0}));
}
