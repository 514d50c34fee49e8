// The table of any number of rows.

#include <atomic>
#include <cmath>
#include <limits>
#include <memory>
#include <mutex>
#include <thread>

#include "ControlTest.h"
#include "list/table/XTableCtrl.h"
#include "OutsideTest.h"

namespace outside::controls
{
namespace
{
TableValue Text(wchar_t const * text)
{
    TableValue value;
    value.SetText(text);
    return value;
}
TableValue Number(double number, wchar_t const * unit = L"")
{
    TableValue value;
    value.SetNumber(number, unit);
    return value;
}
TableValue Whole(long long whole)
{
    TableValue value;
    value.SetWhole(whole);
    return value;
}

/// Rows in memory, each with a key that goes with it.
class Rows : public TableSource
{
public:
    struct Row
    {
        TableKey key;
        std::vector<TableValue> cells;
    };

    TableRow RowCount() const override
    {
        std::lock_guard const lock(m_mutex);
        return static_cast<TableRow>(m_rows.size());
    }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        std::lock_guard const lock(m_mutex);
        if (row >= m_rows.size() || column >= m_rows[row].cells.size())
            return false;
        value = m_rows[row].cells[column];
        return true;
    }
    TableKey Key(TableRow row) const override
    {
        std::lock_guard const lock(m_mutex);
        return row < m_rows.size() ? m_rows[row].key : ~TableKey{0};
    }
    TableRow RowOfKey(TableKey key) const override
    {
        std::lock_guard const lock(m_mutex);
        for (std::size_t i = 0; i < m_rows.size(); ++i)
        {
            if (m_rows[i].key == key)
                return static_cast<TableRow>(i);
        }
        return no_table_row;
    }
    bool Write(TableRow row, unsigned int column, TableValue const & value) override
    {
        std::lock_guard const lock(m_mutex);
        if (row >= m_rows.size() || column >= m_rows[row].cells.size() || (refuse && refuse(row, column)))
            return false;
        m_rows[row].cells[column] = value;
        return true;
    }
    void Add(std::vector<TableValue> cells)
    {
        std::lock_guard const lock(m_mutex);
        m_rows.push_back({m_nextKey++, std::move(cells)});
    }
    void EraseFirst(std::size_t count)
    {
        std::lock_guard const lock(m_mutex);
        m_rows.erase(m_rows.begin(), m_rows.begin() + static_cast<std::ptrdiff_t>(count));
    }
    void Resize(std::size_t count)
    {
        std::lock_guard const lock(m_mutex);
        m_rows.resize(count);
    }
    TableValue Cell(TableRow row, unsigned int column) const
    {
        TableValue value;
        Read(row, column, value);
        return value;
    }

    std::function<bool(TableRow, unsigned int)> refuse;

private:
    mutable std::mutex m_mutex;
    std::vector<Row> m_rows;
    TableKey m_nextKey = 1000;
};

std::wstring ClipboardText()
{
    std::wstring text;
    if (!::OpenClipboard(nullptr))
        return L"(closed)";
    if (HANDLE const data = ::GetClipboardData(CF_UNICODETEXT))
    {
        text = static_cast<wchar_t const *>(::GlobalLock(data));
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return text;
}

std::string ClipboardHtml()
{
    std::string text;
    if (!::OpenClipboard(nullptr))
        return "(closed)";
    if (HANDLE const data = ::GetClipboardData(::RegisterClipboardFormatW(L"HTML Format")))
    {
        text = static_cast<char const *>(::GlobalLock(data));
        ::GlobalUnlock(data);
    }
    ::CloseClipboard();
    return text;
}

void PutText(std::wstring const & text)
{
    HGLOBAL const memory = ::GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t *>(::GlobalLock(memory)));
    ::GlobalUnlock(memory);
    ASSERT_TRUE(::OpenClipboard(nullptr));
    ::EmptyClipboard();
    ::SetClipboardData(CF_UNICODETEXT, memory);
    ::CloseClipboard();
}

/// Without the line end at the end, and with \n alone.
std::wstring Lines(std::wstring text)
{
    text.erase(std::remove(text.begin(), text.end(), L'\r'), text.end());
    while (!text.empty() && text.back() == L'\n')
        text.pop_back();
    return text;
}

using rows_t = std::vector<TableRow>;
using columns_t = std::vector<unsigned int>;

/// Names, numbers in volts, whole numbers; the last two are editable.
class OutsideTable : public testing::Test
{
protected:
    void SetUp() override { Make(); }
    void Make()
    {
        ASSERT_TRUE(m_table->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(5, 5, 380, 240), m_host, 7));
        TableLocale locale;
        locale.decimalSign = L'.';
        m_table->SetTableLocale(locale);
        m_table->SetColumns(Columns(), m_name);
        m_table->SetSource(m_rows);
    }
    void TearDown() override
    {
        if (m_table && m_table->GetSafeHwnd() != nullptr)
            m_table->DestroyWindow();
    }
    static std::vector<TableColumn> Columns()
    {
        std::vector<TableColumn> columns(3);
        columns[0].title = L"Name";
        columns[1].title = L"Peak";
        columns[1].kind = TableKind::floating;
        columns[1].editable = true;
        columns[2].title = L"Count";
        columns[2].kind = TableKind::whole;
        columns[2].editable = true;
        columns[2].check = [](TableValue const & value) {
            return value.Whole() < 0 ? std::wstring(L"negative") : std::wstring();
        };
        return columns;
    }
    void Fill()
    {
        m_rows->Add({Text(L"Ch 10"), Number(1.5), Whole(3)});
        m_rows->Add({Text(L"Ch 2"), Number(-2), Whole(1)});
        m_rows->Add({Text(L"Ch 1"), Number(1.5), Whole(2)});
        m_rows->Add({Text(L"Bee"), Number(7.25), Whole(1)});
        m_table->Feed()->RowsAppended(4);
        m_table->UpdateNow();
    }
    rows_t Shown() const
    {
        rows_t rows;
        for (TableRow i = 0; i < m_table->RowsShown(); ++i)
            rows.push_back(m_table->RowAt(i));
        return rows;
    }
    std::wstring Show(TableValue const & value, NumberFormat const & format, wchar_t sign = L'.')
    {
        TableColumn column;
        column.format = format;
        TableLocale locale;
        locale.decimalSign = sign;
        std::wstring text;
        ShowValue(text, value, column, locale);
        return text;
    }
    bool Focus() { return tests::BringToFront(m_host) && (m_table->SetFocus(), ::GetFocus() == m_table->m_hWnd); }

    std::wstring m_name;
    Host m_host;
    std::shared_ptr<Rows> m_rows = std::make_shared<Rows>();
    std::unique_ptr<CXTableCtrl> m_table = std::make_unique<CXTableCtrl>();
};

TEST_F(OutsideTable, IsAVirtualReport)
{
    EXPECT_EQ(m_table->GetStyle() & LVS_TYPEMASK, static_cast<DWORD>(LVS_REPORT));
    EXPECT_NE(m_table->GetStyle() & LVS_OWNERDATA, 0u);
    Fill();
    EXPECT_EQ(m_table->GetItemCount(), 4);
    EXPECT_EQ(m_table->RowsShown(), 4u);
    EXPECT_EQ(m_table->RowAt(4), no_table_row);
    EXPECT_EQ(m_table->PositionOf(4), no_table_row);
    EXPECT_EQ(m_table->ShownText(0, 0), L"Ch 10");
    EXPECT_EQ(m_table->FocusRow(), no_table_row);
}

TEST_F(OutsideTable, NaturalOrderOfNames)
{
    Fill();
    m_table->SortBy({{0, false}});
    EXPECT_EQ(Shown(), (rows_t{3, 2, 1, 0}));
    m_table->SortBy({{0, true}});
    EXPECT_EQ(Shown(), (rows_t{0, 1, 2, 3}));
    EXPECT_EQ(m_table->SortColumns(), (std::vector<TableSortColumn>{{0, true}}));
}

TEST_F(OutsideTable, OrderBySeveralColumnsIsStable)
{
    Fill();
    m_table->SortBy({{1, false}});
    EXPECT_EQ(Shown(), (rows_t{1, 0, 2, 3}));
    m_table->SortBy({{1, true}});
    EXPECT_EQ(Shown(), (rows_t{3, 0, 2, 1}));
    m_table->SortBy({{1, true}, {2, false}});
    EXPECT_EQ(Shown(), (rows_t{3, 2, 0, 1}));
    m_table->SortBy({{2, false}, {0, false}});
    EXPECT_EQ(Shown(), (rows_t{3, 1, 2, 0}));
    m_table->SortBy({});
    EXPECT_EQ(Shown(), (rows_t{0, 1, 2, 3}));
}

TEST_F(OutsideTable, BlankCellsComeLastBothWays)
{
    m_rows->Add({TableValue(), Number(1), Whole(1)});
    Fill();
    m_table->SortBy({{0, false}});
    EXPECT_EQ(Shown(), (rows_t{4, 3, 2, 1, 0}));
    m_table->SortBy({{0, true}});
    EXPECT_EQ(Shown(), (rows_t{1, 2, 3, 4, 0}));
}

TEST_F(OutsideTable, FilterByText)
{
    Fill();
    TableFilter filter;
    filter.texts = {{TableFilter::any_column, L"cH 1", false}};
    m_table->SetRowFilter(filter);
    EXPECT_EQ(Shown(), (rows_t{0, 2}));
    filter.texts[0].matchCase = true;
    m_table->SetRowFilter(filter);
    EXPECT_TRUE(Shown().empty());
    filter.texts = {{0, L"Ch", true}, {1, L".5", true}};
    m_table->SetRowFilter(filter);
    EXPECT_EQ(Shown(), (rows_t{0, 2}));
    filter.texts = {{1, L"Ch", true}};
    m_table->SetRowFilter(filter);
    EXPECT_TRUE(Shown().empty());
    m_table->SetRowFilter({});
    EXPECT_EQ(Shown(), (rows_t{0, 1, 2, 3}));
}

TEST_F(OutsideTable, FilterByRangeAndPredicate)
{
    Fill();
    m_rows->Add({Text(L"nan"), Number(std::numeric_limits<double>::quiet_NaN()), TableValue()});
    m_table->Feed()->RowsAppended(1);
    m_table->UpdateNow();
    TableFilter filter;
    filter.ranges = {{1, -2, 1.5}};
    m_table->SetRowFilter(filter);
    EXPECT_EQ(Shown(), (rows_t{0, 1, 2}));
    filter.predicate = [](TableSource const &, TableRow row) { return row != 1; };
    m_table->SetRowFilter(filter);
    EXPECT_EQ(Shown(), (rows_t{0, 2}));
    EXPECT_EQ(m_table->PositionOf(2), 1u);
    EXPECT_EQ(m_table->PositionOf(1), no_table_row);
    filter = {};
    filter.ranges.push_back({1});
    m_table->SetRowFilter(filter);
    EXPECT_EQ(Shown(), (rows_t{0, 1, 2, 3})); // not-a-number is in no range, not even in that of all numbers
    filter.ranges = {{0}};
    m_table->SetRowFilter(filter);
    EXPECT_TRUE(Shown().empty());
}

TEST_F(OutsideTable, SelectionStaysWithItsRowThroughSortFilterAndGrowth)
{
    Fill();
    ASSERT_TRUE(m_table->GoToRow(2));
    EXPECT_EQ(m_table->FocusRow(), 2u);
    m_table->SortBy({{2, true}});
    EXPECT_EQ(m_table->SelectedRows(), (rows_t{2}));
    EXPECT_EQ(m_table->FocusRow(), 2u);
    m_rows->Add({Text(L"new"), Number(0), Whole(9)});
    m_table->Feed()->RowsAppended(1);
    m_table->UpdateNow();
    EXPECT_EQ(Shown().front(), 4u);
    EXPECT_EQ(m_table->SelectedRows(), (rows_t{2}));
    TableFilter filter;
    filter.texts = {{0, L"Bee", false}};
    m_table->SetRowFilter(filter);
    EXPECT_TRUE(m_table->SelectedRows().empty());
    EXPECT_FALSE(m_table->GoToRow(0));
    EXPECT_TRUE(m_table->IsRowSelected(2));
    m_table->SetRowFilter({});
    EXPECT_EQ(m_table->SelectedRows(), (rows_t{2}));
}

TEST_F(OutsideTable, SelectionFollowsTheKeyWhereNumbersChange)
{
    Fill();
    ASSERT_TRUE(m_table->GoToRow(3));
    m_rows->EraseFirst(2);
    m_table->Feed()->AllChanged();
    m_table->UpdateNow();
    EXPECT_EQ(m_table->RowsShown(), 2u);
    EXPECT_EQ(m_table->SelectedRows(), (rows_t{1}));
    EXPECT_EQ(m_table->FocusRow(), 1u);
}

TEST_F(OutsideTable, HostsSelectionCallsNothingBack)
{
    Fill();
    int calls = 0;
    m_table->m_onSelectionChange = [&] { ++calls; };
    m_table->GoToRow(1);
    m_table->SelectAllRows();
    EXPECT_EQ(m_table->SelectedRows().size(), 4u);
    EXPECT_EQ(calls, 0);
}

TEST_F(OutsideTable, GrowthFromThreads)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
    {
        threads.emplace_back([rows = m_rows, feed = m_table->Feed()] {
            for (int n = 0; n < 500; ++n)
            {
                rows->Add({Text(L"t"), Number(n), Whole(n)});
                feed->RowsAppended(1);
            }
        });
    }
    for (std::thread & each : threads)
        each.join();
    EXPECT_TRUE(tests::PumpUntil([&] { return m_table->RowsShown() == 2000; }));
    EXPECT_EQ(m_table->GetItemCount(), 2000);
}

TEST_F(OutsideTable, ChangedValuesAreShown)
{
    Fill();
    m_rows->Write(1, 0, Text(L"other"));
    m_table->Feed()->RowsChanged(1, 1);
    m_table->UpdateNow();
    EXPECT_EQ(m_table->ShownText(1, 0), L"other");
    // A range past the end and a feed that outlives the table do no harm.
    m_table->Feed()->RowsChanged(2, 4000);
    m_table->UpdateNow();
    std::shared_ptr<TableFeed> const feed = m_table->Feed();
    m_table->DestroyWindow();
    m_table.reset();
    feed->AllChanged();
    feed->RowsAppended(3);
}

TEST_F(OutsideTable, EndOfTheSource)
{
    Fill();
    m_table->GoToRow(1);
    m_rows.reset();
    m_table->RedrawWindow();
    EXPECT_EQ(m_table->ShownText(0, 0), L"");
    m_table->SortBy({{0, true}});
    m_table->SelectAllRows();
    m_table->Feed()->AllChanged();
    m_table->UpdateNow();
    EXPECT_EQ(m_table->RowsShown(), 0u);
    EXPECT_FALSE(m_table->EditCell(0, 1));
    m_table->SetSource(nullptr);
    EXPECT_EQ(m_table->GetItemCount(), 0);
}

TEST_F(OutsideTable, ShrinkingSource)
{
    Fill();
    m_table->SortBy({{1, false}});
    m_rows->Resize(1);
    m_table->RedrawWindow();
    EXPECT_EQ(m_table->ShownText(3, 0), L"");
    m_table->Feed()->AllChanged();
    m_table->UpdateNow();
    EXPECT_EQ(Shown(), (rows_t{0}));
}

TEST_F(OutsideTable, CopyAsTextWithHtml)
{
    Fill();
    m_table->SortBy({{0, false}});
    m_table->GoToRow(3);
    ASSERT_TRUE(m_table->CopyRows(TableForm::text, true, true));
    EXPECT_EQ(Lines(ClipboardText()), L"Name\tPeak\tCount\nBee\t7.25\t1");
    std::string const html = ClipboardHtml();
    EXPECT_NE(html.find("<table"), std::string::npos);
    EXPECT_NE(html.find("Bee"), std::string::npos);
    EXPECT_EQ(html.find("Ch 2"), std::string::npos);
    ASSERT_TRUE(m_table->CopyRows(TableForm::text, false, false));
    EXPECT_EQ(Lines(ClipboardText()), L"Bee\t7.25\t1\nCh 1\t1.5\t2\nCh 2\t-2\t1\nCh 10\t1.5\t3");
}

TEST_F(OutsideTable, CopyAsCsvHasAllDigitsAndQuotes)
{
    std::vector<TableColumn> columns = Columns();
    columns[1].format = {NumberStyle::fixed, 1, false, UnitPlace::cell, L"V"};
    m_table->SetColumns(columns);
    TableLocale locale;
    locale.decimalSign = L',';
    m_table->SetTableLocale(locale);
    m_rows->Add({Text(L"a \"b\", c\r\nd"), Number(0.125), Whole(12)});
    m_table->Feed()->RowsAppended(1);
    m_table->UpdateNow();
    ASSERT_TRUE(m_table->CopyRows(TableForm::csv, false, true));
    // The numbers lose their unit, so the title has it.
    EXPECT_EQ(Lines(ClipboardText()), L"Name,Peak [V],Count\n\"a \"\"b\"\", c\nd\",0.125,12");
}

TEST_F(OutsideTable, HtmlHasEntities)
{
    m_rows->Add({Text(L"<a & \u00b5>"), Number(1), Whole(1)});
    m_table->Feed()->RowsAppended(1);
    m_table->UpdateNow();
    ASSERT_TRUE(m_table->CopyRows(TableForm::text, false, false));
    std::string const html = ClipboardHtml();
    EXPECT_NE(html.find("&lt;a &amp; "), std::string::npos) << html;
    EXPECT_TRUE(std::all_of(html.begin(), html.end(), [](char each) { return (each & 0x80) == 0; }));
}

TEST_F(OutsideTable, CopyHasTheColumnsShown)
{
    Fill();
    ASSERT_TRUE(m_table->HideTableColumn(1, true));
    m_table->MoveTableColumn(2, 0);
    m_table->GoToRow(0);
    ASSERT_TRUE(m_table->CopyRows(TableForm::text, true, true));
    EXPECT_EQ(Lines(ClipboardText()), L"Count\tName\n3\tCh 10");
}

TEST_F(OutsideTable, PasteTakesABlock)
{
    Fill();
    m_table->GoToRow(1);
    m_table->HideTableColumn(0, true); // the focus stands in the first column shown, or in none that is left
    m_table->GoToRow(1);
    int calls = 0;
    m_table->m_onPaste = [&](TablePasteReport const &) { ++calls; };
    PutText(L"2.5,8\r\n3.5,9\r\n");
    TablePasteReport const report = m_table->PasteBlock();
    EXPECT_TRUE(report.done);
    EXPECT_EQ(report.cells, 4u);
    EXPECT_EQ(report.refusedCells, 0u);
    EXPECT_EQ(report.rows, (std::vector<TableRowRange>{{1, 2}}));
    EXPECT_EQ(m_rows->Cell(1, 1).Number(), 2.5);
    EXPECT_EQ(m_rows->Cell(2, 1).Number(), 3.5);
    EXPECT_EQ(m_rows->Cell(2, 2).Whole(), 9);
    EXPECT_EQ(m_table->ShownText(1, 1), L"2.5");
}

TEST_F(OutsideTable, PasteIsAllOrNothing)
{
    Fill();
    m_table->HideTableColumn(0, true);
    m_table->GoToRow(2);
    PutText(L"2.5,-8\r\nabc,9\r\n1,1\r\n");
    TablePasteReport const report = m_table->PasteBlock();
    EXPECT_FALSE(report.done);
    EXPECT_TRUE(report.rows.empty());
    EXPECT_EQ(report.cells, 6u);
    EXPECT_EQ(report.refusedCells, 4u);
    ASSERT_EQ(report.refused.size(), 4u);
    EXPECT_EQ(report.refused[0].refusal, TableRefusal::by_check);
    EXPECT_EQ(report.refused[0].reason, L"negative");
    EXPECT_EQ(report.refused[0].text, L"-8");
    EXPECT_EQ(report.refused[1].refusal, TableRefusal::not_readable);
    EXPECT_EQ(report.refused[1].line, 1u);
    EXPECT_EQ(report.refused[1].field, 0u);
    EXPECT_EQ(report.refused[2].refusal, TableRefusal::no_such_row);
    EXPECT_EQ(m_rows->Cell(2, 1).Number(), 1.5);
    EXPECT_EQ(m_rows->Cell(3, 2).Whole(), 1);
}

TEST_F(OutsideTable, PasteThatTheSourceRefusesGoesBack)
{
    Fill();
    m_table->HideTableColumn(0, true);
    m_table->GoToRow(0);
    m_rows->refuse = [](TableRow row, unsigned int) { return row == 1; };
    PutText(L"2.5\r\n3.5\r\n");
    TablePasteReport const report = m_table->PasteBlock();
    EXPECT_FALSE(report.done);
    ASSERT_FALSE(report.refused.empty());
    EXPECT_EQ(report.refused[0].refusal, TableRefusal::by_source);
    EXPECT_EQ(m_rows->Cell(0, 1).Number(), 1.5);
    EXPECT_EQ(m_rows->Cell(1, 1).Number(), -2);
}

TEST_F(OutsideTable, PasteIntoOtherColumnsIsRefused)
{
    Fill();
    m_table->GoToRow(0);
    PutText(L"x,1,2,3\r\n");
    TablePasteReport const report = m_table->PasteBlock();
    EXPECT_FALSE(report.done);
    ASSERT_EQ(report.refused.size(), 2u);
    EXPECT_EQ(report.refused[0].refusal, TableRefusal::not_editable);
    EXPECT_EQ(report.refused[1].refusal, TableRefusal::no_such_column);
    EXPECT_EQ(report.refused[1].field, 3u);
}

TEST_F(OutsideTable, ColumnsMovedAndHidden)
{
    EXPECT_EQ(m_table->ShownColumns(), (columns_t{0, 1, 2}));
    m_table->MoveTableColumn(0, 2);
    EXPECT_EQ(m_table->ShownColumns(), (columns_t{1, 2, 0}));
    EXPECT_TRUE(m_table->HideTableColumn(2, true));
    EXPECT_TRUE(m_table->HideTableColumn(1, true));
    EXPECT_FALSE(m_table->HideTableColumn(0, true));
    EXPECT_EQ(m_table->ShownColumns(), (columns_t{0}));
    EXPECT_FALSE(m_table->HideTableColumn(9, true));
    EXPECT_TRUE(m_table->HideTableColumn(2, false));
    EXPECT_TRUE(m_table->HideTableColumn(1, false));
    EXPECT_EQ(m_table->ShownColumns(), (columns_t{1, 2, 0}));
}

TEST_F(OutsideTable, ColumnsAreRememberedUnderTheName)
{
    RecordingStore store;
    CResourceVesk * const former = CVeskBase::PreferenceVesk();
    CVeskBase::SetPreferenceVesk(&store);
    m_table->SetColumns(Columns(), L"Outside peaks");
    m_table->MoveTableColumn(2, 0);
    m_table->HideTableColumn(1, true);
    m_table->DestroyWindow();
    m_table = std::make_unique<CXTableCtrl>();
    m_name = L"Outside peaks";
    Make();
    EXPECT_EQ(m_table->ShownColumns(), (columns_t{2, 0}));
    m_table->SetColumns(Columns(), L"Another");
    EXPECT_EQ(m_table->ShownColumns(), (columns_t{0, 1, 2}));
    m_table->DestroyWindow();
    CVeskBase::SetPreferenceVesk(former);
}

TEST_F(OutsideTable, TitlesHaveTheUnit)
{
    std::vector<TableColumn> columns = Columns();
    columns[1].format.unit = L"V";
    columns[1].format.unitPlace = UnitPlace::header;
    EXPECT_EQ(TitleOf(columns[1]), L"Peak [V]");
    EXPECT_EQ(NameOf(columns[1]), L"Peak");
    columns[1].name = L"p";
    EXPECT_EQ(NameOf(columns[1]), L"p");
    columns[1].format.unitPlace = UnitPlace::cell;
    EXPECT_EQ(TitleOf(columns[1]), L"Peak");
}

TEST_F(OutsideTable, NumbersWithPrefixes)
{
    NumberFormat const format = {NumberStyle::significant, 4, true, UnitPlace::cell, L"V"};
    EXPECT_EQ(Show(Number(0.001234), format), L"1.234 mV");
    EXPECT_EQ(Show(Number(0.001234), format, L','), L"1,234 mV");
    EXPECT_EQ(Show(Number(-12347), format), L"-12.35 kV");
    EXPECT_EQ(Show(Number(2.5e6, L"Hz"), format), L"2.500 MHz");
    EXPECT_EQ(Show(Number(999960), format), L"1.000 MV");
    EXPECT_EQ(Show(Number(5e-9), format), L"5.000 nV");
    EXPECT_EQ(Show(Number(1.5), {NumberStyle::fixed, 2, false, UnitPlace::nowhere, L"V"}, L','), L"1,50");
    EXPECT_EQ(Show(Number(0.1), {}), L"0.1");
}

TEST_F(OutsideTable, NotANumberAndOverRange)
{
    double const infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Show(Number(std::nan("")), {}), L"NaN");
    EXPECT_EQ(Show(Number(infinity), {}), L"\u221e");
    EXPECT_NE(Show(Number(-infinity), {}).find(L'\u221e'), std::wstring::npos);
    EXPECT_TRUE(std::isnan(ParseNumber(L"NaN", {}, L'.').value_or(0)));
    EXPECT_EQ(ParseNumber(Show(Number(-infinity), {}), {}, L'.').value_or(0), -infinity);
}

TEST_F(OutsideTable, ParsingGivesWhatWasShown)
{
    NumberFormat const format = {NumberStyle::shortest, 3, true, UnitPlace::cell, L"V"};
    for (double const each : {0.0, 1.0, -0.00025, 12345.678, 1e-30, 1.5e40, 1e300, 5e-324})
    {
        std::wstring const text = Show(Number(each), format, L',');
        EXPECT_EQ(ParseNumber(text, format, L',').value_or(-1), each) << each;
    }
    EXPECT_EQ(ParseNumber(L" 2,5 k ", format, L',').value_or(0), 2500);
    EXPECT_EQ(ParseNumber(L"2e3", format, L',').value_or(0), 2000);
    EXPECT_FALSE(ParseNumber(L"1e400", format, L','));
    EXPECT_FALSE(ParseNumber(L"2,5 kHz", format, L','));
    EXPECT_FALSE(ParseNumber(L"", format, L','));
    EXPECT_FALSE(ParseWhole(L"1.5", {}, L'.'));
    EXPECT_EQ(ParseWhole(L"-9223372036854775808", {}, L'.').value_or(0), std::numeric_limits<long long>::min());
    EXPECT_FALSE(ParseWhole(L"9223372036854775808", {}, L'.'));
}

TEST_F(OutsideTable, Times)
{
    EXPECT_EQ(PlainTime(0, 0), L"1970-01-01 00:00:00");
    EXPECT_EQ(PlainTime(-1, 6), L"1969-12-31 23:59:59.999999");
    EXPECT_EQ(PlainTime(1999999, 3), L"1970-01-01 00:00:01.999");
    EXPECT_EQ(ParsePlainTime(L"1970-01-02T00:00").value_or(0), 86400000000);
    EXPECT_EQ(ParsePlainTime(L"1970-01-02").value_or(0), 86400000000);
    EXPECT_FALSE(ParsePlainTime(L"1970-02-30"));
    EXPECT_EQ(ParsePlainTime(L"2024-02-29 12:00:00.5").value_or(0) % 1000000, 500000);
}

TEST_F(OutsideTable, EditTakesAndLeaves)
{
    Fill();
    EXPECT_FALSE(m_table->EditCell(0, 0));
    EXPECT_FALSE(m_table->EditCell(9, 1));
    EXPECT_FALSE(m_table->IsEditing());
    ASSERT_TRUE(Focus());
    ASSERT_TRUE(m_table->EditCell(0, 1));
    EXPECT_TRUE(m_table->IsEditing());
    HWND const edit = ::GetFocus();
    ASSERT_NE(edit, m_table->m_hWnd);
    EXPECT_EQ(TextOf(edit), L"1.5");
    ::SetWindowTextW(edit, L"9");
    EXPECT_TRUE(m_table->EndEdit(false));
    EXPECT_EQ(m_rows->Cell(0, 1).Number(), 1.5);
    ASSERT_TRUE(m_table->EditCell(0, 1));
    ::SetWindowTextW(::GetFocus(), L"9");
    EXPECT_TRUE(m_table->EndEdit(true));
    EXPECT_EQ(m_rows->Cell(0, 1).Number(), 9);
    EXPECT_EQ(m_table->ShownText(0, 1), L"9");
}

TEST_F(OutsideTable, RefusedTextKeepsTheEditOpen)
{
    Fill();
    ASSERT_TRUE(Focus());
    std::vector<TableRefusal> heard;
    m_table->m_onEditRefused = [&](TableRow row, unsigned int column, TableRefused const & refused) {
        EXPECT_EQ(row, 1u);
        EXPECT_EQ(column, 2u);
        heard.push_back(refused.refusal);
        return refused.reason;
    };
    ASSERT_TRUE(m_table->EditCell(1, 2));
    ::SetWindowTextW(::GetFocus(), L"-4");
    EXPECT_FALSE(m_table->EndEdit(true));
    EXPECT_TRUE(m_table->IsEditing());
    EXPECT_FALSE(m_table->EditCell(0, 1));
    EXPECT_TRUE(m_table->EndEdit(false));
    ASSERT_FALSE(heard.empty());
    EXPECT_EQ(heard.front(), TableRefusal::by_check);
    heard.clear();
    ASSERT_TRUE(m_table->EditCell(1, 2));
    ::SetWindowTextW(::GetFocus(), L"x");
    EXPECT_FALSE(m_table->EndEdit(true));
    EXPECT_TRUE(m_table->EndEdit(false));
    EXPECT_FALSE(m_table->IsEditing());
    EXPECT_EQ(heard, (std::vector<TableRefusal>{TableRefusal::not_readable}));
    EXPECT_EQ(m_rows->Cell(1, 2).Whole(), 1);
}

TEST_F(OutsideTable, KeysMoveTheFocusAndSelect)
{
    Fill();
    ASSERT_TRUE(Focus());
    int calls = 0;
    m_table->m_onSelectionChange = [&] { ++calls; };
    m_table->GoToRow(0);
    tests::Key(VK_DOWN);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_table->FocusRow() == 1; }));
    EXPECT_EQ(m_table->SelectedRows(), (rows_t{1}));
    EXPECT_GE(calls, 1);
    tests::Key(VK_END, {VK_SHIFT});
    EXPECT_TRUE(tests::PumpUntil([&] { return m_table->SelectedRows() == rows_t{1, 2, 3}; }));
    tests::Key(VK_HOME);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_table->SelectedRows() == rows_t{0}; }));
}

TEST_F(OutsideTable, TypeAheadFindsTheNextName)
{
    Fill();
    ASSERT_TRUE(Focus());
    m_table->GoToRow(0);
    tests::Type(L"be");
    EXPECT_TRUE(tests::PumpUntil([&] { return m_table->FocusRow() == 3; }, std::chrono::seconds(5)));
}

TEST_F(OutsideTable, ReturnIsADoubleClick)
{
    Fill();
    ASSERT_TRUE(Focus());
    TableRow row = no_table_row;
    m_table->m_onDoubleClick = [&](TableRow which, unsigned int) { row = which; };
    m_table->SortBy({{0, false}});
    m_table->GoToRow(1);
    tests::Key(VK_RETURN);
    EXPECT_TRUE(tests::PumpUntil([&] { return row == 1; }, std::chrono::seconds(5)));
}

TEST_F(OutsideTable, ManyRowsAreOrderedBesideTheWindowAndCanBeStopped)
{
    for (int i = 0; i < 120000; ++i)
        m_rows->Add({Text(L"r"), Number(-i), Whole(i)});
    m_table->SetSource(m_rows);
    m_table->SortBy({{1, false}});
    EXPECT_TRUE(m_table->IsOrdering());
    EXPECT_EQ(m_table->RowAt(0), 0u);
    m_table->StopOrdering();
    EXPECT_FALSE(m_table->IsOrdering());
    EXPECT_EQ(m_table->RowAt(0), 0u);
    m_table->SortBy({{2, true}});
    EXPECT_TRUE(tests::PumpUntil([&] { return !m_table->IsOrdering(); }));
    EXPECT_EQ(m_table->RowAt(0), 119999u);
    EXPECT_EQ(m_table->RowsShown(), 120000u);
}

// Not with Shift: an event of the mouse releases a key that was pressed by SendInput alone.
TEST_F(OutsideTable, ClicksOnTitlesSort)
{
    Fill();
    ASSERT_TRUE(Focus());
    HWND const header = m_table->GetHeaderCtrl()->m_hWnd;
    CRect title;
    Header_GetItemRect(header, 2, &title);
    tests::Click(tests::ClientPoint(header, title.CenterPoint()));
    EXPECT_TRUE(tests::PumpUntil([&] { return Shown() == rows_t{1, 3, 2, 0}; }, std::chrono::seconds(5)));
    EXPECT_EQ(m_table->SortColumns(), (std::vector<TableSortColumn>{{2, false}}));
    Header_GetItemRect(header, 0, &title);
    tests::Click(tests::ClientPoint(header, title.CenterPoint()));
    EXPECT_TRUE(tests::PumpUntil(
        [&] {
            return m_table->SortColumns() == std::vector<TableSortColumn>{{0, false}};
        },
        std::chrono::seconds(5)));
}

TEST_F(OutsideTable, TabGoesOnToTheNextEditableCell)
{
    Fill();
    ASSERT_TRUE(Focus());
    ASSERT_TRUE(m_table->EditCell(0, 1));
    tests::Type(L"4");
    tests::Key(VK_TAB);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_rows->Cell(0, 1).Number() == 4; }, std::chrono::seconds(5)));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_table->IsEditing() && TextOf(::GetFocus()) == L"3"; },
                                 std::chrono::seconds(5)));
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(tests::PumpUntil([&] { return !m_table->IsEditing(); }, std::chrono::seconds(5)));
    EXPECT_EQ(m_rows->Cell(0, 2).Whole(), 3);
}

TEST_F(OutsideTable, RangesAreJoined)
{
    std::vector<TableRowRange> ranges = {{8, 9}, {1, 2}, {3, 4}, {4, 6}, {11, 11}};
    JoinRanges(ranges);
    EXPECT_EQ(ranges, (std::vector<TableRowRange>{{1, 6}, {8, 9}, {11, 11}}));
}
} // namespace
} // namespace outside::controls
