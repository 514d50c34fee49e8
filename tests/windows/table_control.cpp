// The table on a real window: rows, order, selection, columns and what leaves it.

#include <afxcmn.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "Bitmap.h"
#include "clipboard/Clipboard.h"
#include "clipboard_ClipboardTest.h"
#include "MemoryPreferenceStore.h"
#include "table_TableTest.h"

namespace
{
using tests::TableRowsSource;
using Order = std::vector<TableRow>;

class TableControl : public tests::TableTest
{
protected:
    int SortFormat(int place)
    {
        HDITEMW item = {};
        item.mask = HDI_FORMAT;
        m_table->GetHeaderCtrl()->GetItem(place, &item);
        return item.fmt & (HDF_SORTUP | HDF_SORTDOWN);
    }
};

/// Sets the process's store for its scope.
class StoreScope
{
public:
    StoreScope() { CVeskBase::SetPreferenceVesk(&store); }
    ~StoreScope() { CVeskBase::SetPreferenceVesk(nullptr); }
    StoreScope(StoreScope const &) = delete;
    StoreScope & operator=(StoreScope const &) = delete;

    MemoryPreferenceStore store;
};
} // namespace

TEST_F(TableControl, TheNativeListGetsTheTextsAsShown)
{
    Show({1.25, 20});
    EXPECT_EQ(m_table->GetItemCount(), 2);
    EXPECT_EQ(m_table->GetItemText(0, 0), L"Ch 0");
    EXPECT_EQ(m_table->GetItemText(1, 1), L"20.0");
    EXPECT_EQ(m_table->GetItemText(0, 3), L"1 %");
    EXPECT_EQ(m_table->ShownText(1, TableRowsSource::link_column), L"Ch 1");
    wchar_t title[40] = {};
    HDITEMW item = {};
    item.mask = HDI_TEXT;
    item.pszText = title;
    item.cchTextMax = 40;
    m_table->GetHeaderCtrl()->GetItem(1, &item);
    EXPECT_STREQ(title, L"Number [V]");
}

TEST_F(TableControl, TheTitlesStayWhenTheRowsAreOthers)
{
    Show({1.25, 20});
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    CHeaderCtrl & header = *m_table->GetHeaderCtrl();
    CRect place;
    header.GetClientRect(&place);
    tests::Canvas before(place.Width(), place.Height());
    tests::Canvas after(place.Width(), place.Height());
    m_table->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    before.CopyFromScreen(header);
    COLORREF const ground = ::GetSysColor(COLOR_WINDOW);
    ASSERT_LT(before.Count(ground), place.Width() * place.Height()) << "there are titles";
    auto const stay = [&] {
        tests::PumpPosted();
        m_table->UpdateWindow();
        after.CopyFromScreen(header);
        return after.Count(ground) == before.Count(ground);
    };
    m_table->SetSource(nullptr);
    EXPECT_TRUE(stay()) << "without any";
    Show({3});
    EXPECT_TRUE(stay()) << "with one";
}

TEST_F(TableControl, ASelectedRowIsSeenWithoutTheFocus)
{
    Show({1.25, 20});
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    m_host.SetFocus();
    ASSERT_TRUE(m_table->GoToRow(0));
    m_table->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    CRect client;
    m_table->GetClientRect(&client);
    tests::Canvas picture(client.Width(), client.Height());
    picture.CopyFromScreen(*m_table);
    CRect row;
    m_table->GetItemRect(0, &row, LVIR_BOUNDS);
    COLORREF const shown = picture.Pixel(row.left + 3, row.bottom - 2);
    COLORREF const ground = ::GetSysColor(COLOR_WINDOW);
    auto const apart = [&](int shift) {
        return std::abs(static_cast<int>(shown >> shift & 255) - static_cast<int>(ground >> shift & 255));
    };
    EXPECT_GE(std::max({apart(0), apart(8), apart(16)}), 24) << std::hex << shown;
}

TEST_F(TableControl, ARowCostsNothing)
{
    auto const many = std::make_shared<tests::ManyRowsSource>();
    m_table->SetSource(many);
    EXPECT_EQ(m_table->GetItemCount(), 1000000);
    EXPECT_EQ(m_table->RowsShown(), 1000000U);
    m_table->EnsureVisible(999999, FALSE);
    m_table->UpdateWindow();
    EXPECT_EQ(m_table->GetItemText(999999, 1), L"968328.0");
}

TEST_F(TableControl, ClicksOnTitlesSort)
{
    Show({3, 1, 2, 1});
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    Click(TitleRect(1).CenterPoint());
    ASSERT_TRUE(tests::PumpUntil([this] { return Shown() == Order{1, 3, 2, 0}; }));
    EXPECT_EQ(SortFormat(1), HDF_SORTUP);
    // Soon enough for a double click, which is another one here.
    Click(TitleRect(1).CenterPoint());
    ASSERT_TRUE(tests::PumpUntil([this] { return Shown() == Order{0, 2, 1, 3}; }));
    EXPECT_EQ(SortFormat(1), HDF_SORTDOWN);
}

TEST_F(TableControl, ShiftAddsColumnsToSortBy)
{
    Show({3, 1, 2, 1});
    auto const press = [this](int place, bool shift) {
        BYTE keys[256] = {};
        ASSERT_TRUE(::GetKeyboardState(keys));
        BYTE const former = keys[VK_SHIFT];
        keys[VK_SHIFT] = shift ? 0x80 : 0;
        ::SetKeyboardState(keys);
        CRect rect(0, 0, 0, 0);
        CHeaderCtrl & header = *m_table->GetHeaderCtrl();
        header.GetItemRect(place, &rect);
        CPoint const point = rect.CenterPoint();
        header.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        header.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
        keys[VK_SHIFT] = former;
        ::SetKeyboardState(keys);
    };
    press(1, false);
    press(0, true);
    EXPECT_EQ(Shown(), (Order{1, 3, 2, 0}));
    press(0, true);
    EXPECT_EQ(Shown(), (Order{3, 1, 2, 0}));
    EXPECT_EQ(SortFormat(0), HDF_SORTDOWN);
    EXPECT_EQ(SortFormat(1), HDF_SORTUP);
    press(0, false);
    EXPECT_EQ(Shown(), (Order{0, 1, 2, 3}));
    EXPECT_EQ(SortFormat(1), 0);
}

TEST_F(TableControl, PressesAndKeysSelect)
{
    Show({0, 1, 2, 3, 4, 5});
    int told = 0;
    m_table->m_onSelectionChange = [&told] { ++told; };
    Press(1, 0);
    EXPECT_EQ(m_table->SelectedRows(), (Order{1}));
    Press(3, 0, MK_SHIFT);
    EXPECT_EQ(m_table->SelectedRows(), (Order{1, 2, 3}));
    Press(2, 0, MK_CONTROL);
    EXPECT_EQ(m_table->SelectedRows(), (Order{1, 3}));
    EXPECT_EQ(told, 3);
    PressKey(VK_DOWN);
    EXPECT_EQ(m_table->SelectedRows(), (Order{3}));
    PressKey(VK_END);
    EXPECT_EQ(m_table->FocusRow(), 5U);
    PressKey(VK_HOME);
    EXPECT_EQ(m_table->FocusRow(), 0U);
}

TEST_F(TableControl, ADoubleClickOnAnotherRowSelectsIt)
{
    Show({0, 1, 2});
    TableRow opened = no_table_row;
    m_table->m_onDoubleClick = [&opened](TableRow row, unsigned int) { opened = row; };
    Press(1, 3);
    CPoint const point = CellPoint(1, 3);
    m_table->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    EXPECT_EQ(opened, 1U);
    opened = no_table_row;
    m_table->SortBy({{TableRowsSource::number_column, true}});
    Press(0, 0);
    m_table->SortBy({{TableRowsSource::number_column, false}});
    m_table->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    EXPECT_EQ(opened, no_table_row) << "the row that was pressed first has gone from there";
    EXPECT_EQ(m_table->SelectedRows(), (Order{1}));
}

TEST_F(TableControl, RealKeysSelectAsWell)
{
    Show({0, 1, 2, 3, 4, 5});
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    m_table->SetFocus();
    Click(CellPoint(1, 0));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->FocusRow() == 1; }));
    tests::Key(VK_DOWN, {VK_SHIFT});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->SelectedRows() == Order{1, 2}; }));
    tests::Key(VK_DOWN, {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->FocusRow() == 3; }));
    EXPECT_EQ(m_table->SelectedRows(), (Order{1, 2}));
    tests::Key(VK_SPACE, {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->SelectedRows() == Order{1, 2, 3}; }));
    tests::Key('A', {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->SelectedRows().size() == 6; }));
}

TEST_F(TableControl, TypedTextFindsRows)
{
    Show({0, 1, 2, 3, 4, 5});
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    m_table->SetFocus();
    tests::Type(L"ch");
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->FocusRow() == 0; }));
    m_table->SortBy({{TableRowsSource::number_column, true}});
    tests::PumpFor(std::chrono::milliseconds(1100));
    tests::Type(L"2");
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->FocusRow() == 2; })) << "in the column sorted by";
}

TEST_F(TableControl, TheNativeListTellsOfTheTablesSelection)
{
    Show({2, 1, 0, 3});
    Press(1, 0);
    Press(3, 0, MK_CONTROL);
    EXPECT_EQ(m_table->GetItemState(1, LVIS_SELECTED | LVIS_FOCUSED), static_cast<UINT>(LVIS_SELECTED));
    EXPECT_EQ(m_table->GetItemState(3, LVIS_SELECTED | LVIS_FOCUSED), static_cast<UINT>(LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_EQ(m_table->GetSelectedCount(), 2U);
    EXPECT_EQ(m_table->GetNextItem(-1, LVNI_SELECTED), 1);
    EXPECT_EQ(m_table->GetNextItem(1, LVNI_SELECTED), 3);
    EXPECT_EQ(m_table->GetNextItem(3, LVNI_SELECTED), -1);
    EXPECT_EQ(m_table->GetNextItem(-1, LVNI_FOCUSED), 3);
    m_table->SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_TRUE(m_table->SelectedRows().empty());
    m_table->SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(m_table->SelectedRows(), (Order{2}));
    EXPECT_EQ(m_table->FocusRow(), 2U);
    m_table->SortBy({{TableRowsSource::number_column, false}});
    EXPECT_EQ(m_table->GetNextItem(-1, LVNI_SELECTED), 0) << "the row's new place";
}

TEST_F(TableControl, TicksAreWrittenAndLinksFollowed)
{
    Show({1, 2});
    Press(1, 2);
    EXPECT_TRUE(m_source->At(1).ticked);
    Press(1, 2);
    EXPECT_FALSE(m_source->At(1).ticked);
    TableRow followed = no_table_row;
    m_table->m_onLinkClick = [&followed](TableRow row, unsigned int column) {
        EXPECT_EQ(column, static_cast<unsigned int>(TableRowsSource::link_column));
        followed = row;
    };
    Press(0, 4);
    EXPECT_EQ(followed, 0U);
}

TEST_F(TableControl, ACallbackMayEndTheTable)
{
    Show({1, 2});
    m_table->m_onLinkClick = [this](TableRow, unsigned int) { m_table.reset(); };
    CPoint const point = CellPoint(0, 4);
    HWND const window = m_table->m_hWnd;
    ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    EXPECT_EQ(m_table, nullptr);
    EXPECT_FALSE(::IsWindow(window));
    MakeTable();
    Show({1, 2});
    m_table->m_onSelectionChange = [this] { m_table.reset(); };
    ::SendMessageW(m_table->m_hWnd, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(m_table, nullptr);
}

TEST_F(TableControl, ChangesDuringAPaintDoNoHarm)
{
    Show({1, 2, 3, 4});
    int calls = 0;
    m_table->m_onColours = [this, &calls] {
        switch (++calls)
        {
        case 2:
            m_table->HideTableColumn(1, true);
            break;
        case 4:
            m_table->SortBy({{TableRowsSource::number_column, true}});
            break;
        case 6:
            m_source->Resize(2);
            m_table->UpdateNow();
            break;
        case 9:
            m_table->SetColumns({Columns()[0]});
            break;
        case 10:
            EXPECT_FALSE(m_table->DeleteColumn(0)) << "the native list paints";
            break;
        case 11:
            m_table->SetSource(nullptr);
            break;
        default:
            break;
        }
    };
    for (int i = 0; i < 12; ++i)
    {
        m_table->Invalidate();
        m_table->UpdateWindow();
    }
    EXPECT_GE(calls, 11);
    EXPECT_TRUE(tests::PumpUntil([this] { return m_table->GetItemCount() == 0; }));
    EXPECT_EQ(m_table->GetHeaderCtrl()->GetItemCount(), 1);
    m_table->m_onColours = {};
    m_table->SetColumns(Columns());
    Show({5});
    EXPECT_EQ(m_table->GetItemText(0, 1), L"5.0");
}

TEST_F(TableControl, WithoutColumnsThereIsNothingToSee)
{
    m_table->SetColumns({});
    Show({1, 2, 3});
    EXPECT_EQ(m_table->RowsShown(), 3U);
    m_table->GoToRow(2);
    m_table->SortBy({{TableRowsSource::number_column, true}});
    PressKey(VK_DOWN);
    PressKey(VK_F2);
    m_table->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 60));
    m_table->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_table->m_hWnd), -1);
    m_table->Invalidate();
    m_table->UpdateWindow();
    m_table->SetColumns(Columns());
    EXPECT_EQ(m_table->GetItemText(0, 1), L"3.0");
}

TEST_F(TableControl, ColumnsThatOthersDeleteComeBack)
{
    Show({1, 2, 3});
    while (m_table->GetHeaderCtrl()->GetItemCount() != 0)
        ASSERT_TRUE(m_table->DeleteColumn(0));
    m_table->SortBy({{TableRowsSource::number_column, true}});
    m_table->GoToRow(2);
    m_table->Invalidate();
    m_table->UpdateWindow();
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->GetHeaderCtrl()->GetItemCount() == 5; }));
    EXPECT_EQ(m_table->GetItemText(0, 1), L"3.0");
}

TEST_F(TableControl, ANativeListBecomesATable)
{
    HWND const native = ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 0,
                                          220, 300, 40, m_host.m_hWnd, nullptr, nullptr, nullptr);
    ASSERT_NE(native, nullptr);
    {
        tests::TestTable other;
        ASSERT_TRUE(other.SubclassWindow(native));
        other.SetColumns(Columns());
        auto const rows = std::make_shared<TableRowsSource>();
        rows->Append(L"one", 1);
        other.SetSource(rows);
        EXPECT_EQ(other.GetItemText(0, 0), L"one");
        rows->SetNumber(0, 3);
        rows->Append(L"two", 2);
        other.Feed()->RowsAppended(1);
        EXPECT_TRUE(tests::PumpUntil([&other] { return other.GetItemCount() == 2; }));
    }
    EXPECT_FALSE(::IsWindow(native));
}

TEST_F(TableControl, ManyRowsAreSortedBesideTheWindow)
{
    auto const many = std::make_shared<tests::ManyRowsSource>();
    m_table->SetSource(many);
    m_table->SortBy({{0, true}});
    EXPECT_TRUE(m_table->IsOrdering());
    EXPECT_EQ(m_table->RowAt(0), 0U) << "as it was meanwhile";
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_table->IsOrdering(); }));
    EXPECT_EQ(m_table->OrderProgress(), 1000);
    for (TableRow position = 1; position < 1000; ++position)
        ASSERT_GT((m_table->RowAt(position - 1) * 7919ULL) % 1000003, (m_table->RowAt(position) * 7919ULL) % 1000003);
    TableFilter filter;
    filter.ranges.push_back({0, 0, 999});
    m_table->SetRowFilter(filter);
    EXPECT_TRUE(m_table->IsOrdering());
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_table->IsOrdering(); }));
    EXPECT_EQ(m_table->GetItemCount(), static_cast<int>(m_table->RowsShown()));
    EXPECT_LE(m_table->RowsShown(), 1000U);
}

TEST_F(TableControl, EscapeStopsTheSort)
{
    auto const many = std::make_shared<tests::ManyRowsSource>();
    m_table->SetSource(many);
    m_table->SortBy({{0, true}});
    ASSERT_TRUE(m_table->IsOrdering());
    PressKey(VK_ESCAPE);
    EXPECT_FALSE(m_table->IsOrdering());
    m_table->UpdateNow();
    EXPECT_FALSE(m_table->IsOrdering()) << "until it is wished for again";
    EXPECT_EQ(m_table->RowAt(0), 0U);
    m_table->SortBy({{0, true}});
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_table->IsOrdering(); }));
    EXPECT_NE(m_table->RowAt(0), 0U);
}

TEST_F(TableControl, ATableMayEndWhileItIsSorted)
{
    auto const many = std::make_shared<tests::ManyRowsSource>();
    std::shared_ptr<TableFeed> const feed = m_table->Feed();
    m_table->SetSource(many);
    m_table->SortBy({{0, true}});
    m_table.reset();
    feed->RowsChanged(0, 10);
    feed->AllChanged();
    tests::PumpPosted();
}

TEST_F(TableControl, ASourceThatEndsLeavesBlankCells)
{
    Show({3, 1, 2});
    m_table->SortBy({{TableRowsSource::number_column, false}});
    m_source.reset();
    EXPECT_EQ(m_table->GetItemText(0, 0), L"");
    m_table->Invalidate();
    m_table->UpdateWindow();
    Press(1, 0);
    m_table->UpdateNow();
    EXPECT_EQ(m_table->GetItemCount(), 0);
    Show({5});
    EXPECT_EQ(m_table->GetItemText(0, 1), L"5.0");
}

TEST_F(TableControl, ColumnsAreHiddenAndMoved)
{
    Show({1});
    EXPECT_TRUE(m_table->HideTableColumn(0, true));
    EXPECT_EQ(m_table->GetHeaderCtrl()->GetItemCount(), 4);
    EXPECT_EQ(m_table->GetItemText(0, 0), L"1.0");
    m_table->MoveTableColumn(TableRowsSource::link_column, 0);
    EXPECT_EQ(m_table->ShownColumns(), (Order{4, 1, 2, 3}));
    EXPECT_EQ(m_table->GetItemText(0, 0), L"Ch 0");
    for (unsigned int const column : {1U, 2U, 3U})
        EXPECT_TRUE(m_table->HideTableColumn(column, true));
    EXPECT_FALSE(m_table->HideTableColumn(4, true));
    EXPECT_EQ(m_table->ShownColumns(), (Order{4}));
}

TEST_F(TableControl, ColumnsAreRememberedUnderTheTablesName)
{
    StoreScope const scope;
    m_table.reset();
    MakeTable(L"peaks");
    m_table->HideTableColumn(2, true);
    m_table->MoveTableColumn(3, 0);
    m_table->SetColumnWidth(1, 137);
    m_table.reset();
    MakeTable(L"others");
    EXPECT_EQ(m_table->ShownColumns(), (Order{0, 1, 2, 3, 4}));
    m_table.reset();
    MakeTable(L"peaks");
    EXPECT_EQ(m_table->ShownColumns(), (Order{3, 0, 1, 4}));
    EXPECT_EQ(m_table->GetColumnWidth(1), 137);
    EXPECT_EQ(m_table->GetColumnWidth(2), tests::TableTest::column_width);
}

TEST_F(TableControl, ColumnsAreDraggedAndSizedWithTheMouse)
{
    Show({1});
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    tests::Drag(tests::ClientPoint(m_table->m_hWnd, TitleRect(0).CenterPoint()),
                tests::ClientPoint(m_table->m_hWnd, TitleRect(2).CenterPoint() + CPoint(20, 0)));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->ShownColumns() == Order{1, 2, 0, 3, 4}; }));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->GetItemText(0, 0) == L"1.0"; }));
    CRect const title = TitleRect(0);
    CPoint const divider = tests::ClientPoint(m_table->m_hWnd, CPoint(title.right, title.CenterPoint().y));
    tests::Drag(divider, divider + CPoint(30, 0));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->GetColumnWidth(0) > column_width + 10; }));
}

namespace
{
/// Counts what is asked; each row has a longer text than the one before.
class CountingSource : public TableSource
{
public:
    TableRow RowCount() const override { return tests::ManyRowsSource::count; }
    bool Read(TableRow row, unsigned int, TableValue & value) const override
    {
        ++asked;
        value.SetText(std::wstring(row % 1000 + 20, L'm'));
        return true;
    }
    mutable std::atomic<int> asked{0};
};
} // namespace

TEST_F(TableControl, ADividersDoubleClickFitsWhatIsSeen)
{
    auto const many = std::make_shared<CountingSource>();
    m_table->SetColumns({Columns()[0]});
    m_table->SetSource(many);
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    m_table->UpdateWindow();
    many->asked = 0;
    CRect const title = TitleRect(0);
    tests::DoubleClick(tests::ClientPoint(m_table->m_hWnd, CPoint(title.right - 2, title.CenterPoint().y)));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->GetColumnWidth(0) > 2 * column_width; }));
    int const width = m_table->GetColumnWidth(0);
    EXPECT_LT(many->asked, 1000) << "not every row";
    m_table->SetColumnWidth(0, 50);
    m_table->SetColumnWidth(0, LVSCW_AUTOSIZE);
    EXPECT_EQ(m_table->GetColumnWidth(0), width);
    EXPECT_LT(many->asked, 1000);
    m_table->SetSource(nullptr);
    m_table->SetColumnWidth(0, LVSCW_AUTOSIZE);
    EXPECT_LT(m_table->GetColumnWidth(0), width) << "the title is left";
}

TEST_F(TableControl, TheHeadersMenuChoosesColumns)
{
    Show({1});
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    auto const menuIsOpen = [] { return ::FindWindowW(L"#32768", nullptr) != nullptr; };
    tests::LaterActions later;
    later.Add([] { tests::Key(VK_DOWN); }, menuIsOpen);
    later.Add([] { tests::Key(VK_DOWN); });
    later.Add([] { tests::Key(VK_RETURN); });
    Click(TitleRect(0).CenterPoint(), true);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->ShownColumns() == Order{0, 2, 3, 4}; }));
    EXPECT_FALSE(later.Failed());
}

TEST_F(TableControl, FrozenColumnsStandStill)
{
    Show({1, 2, 3});
    m_table->m_columnColours = true;
    m_table->SetWindowPos(nullptr, 0, 0, 200, 220, SWP_NOMOVE | SWP_NOZORDER);
    m_table->SetFrozenColumns(1);
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    m_table->SendMessage(LVM_SCROLL, WPARAM{2} * column_width, 0);
    m_table->UpdateWindow();
    tests::PumpPosted();
    CRect row(0, 0, 0, 0);
    m_table->GetItemRect(1, &row, LVIR_BOUNDS);
    int const y = row.top + 1;
    tests::Canvas canvas(200, 220);
    auto const colourAt = [&](int x) {
        canvas.CopyFromScreen(m_table->m_hWnd);
        return canvas.Pixel(x, y);
    };
    ASSERT_TRUE(tests::PumpUntil([&] { return colourAt(2) == tests::TestTable::Colour(0); }));
    EXPECT_EQ(colourAt(column_width - 2), tests::TestTable::Colour(0));
    EXPECT_NE(colourAt(column_width + 2), tests::TestTable::Colour(0));
    // Two columns further, the third one begins behind the first.
    Press(1, 4);
    EXPECT_EQ(m_table->FocusRow(), 1U);
    bool followed = false;
    m_table->m_onLinkClick = [&followed](TableRow, unsigned int) { followed = true; };
    m_table->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, y));
    EXPECT_FALSE(followed) << "the first column is there";
}

TEST_F(TableControl, NumbersStandBelowEachOtherByTheirSign)
{
    std::vector<TableColumn> columns = Columns();
    columns[1].format = {NumberStyle::shortest, 0, false, UnitPlace::nowhere, {}};
    m_table->SetColumns(columns);
    Show({1, 1.25, 100.5});
    m_table->Invalidate();
    m_table->UpdateWindow();
    tests::Canvas canvas(380, 220);
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    // The right edge of what is painted: furthest for the most digits behind the sign.
    auto const edge = [&](int position) {
        CRect row(0, 0, 0, 0);
        m_table->GetItemRect(position, &row, LVIR_BOUNDS);
        CRect const title = TitleRect(1);
        int right = 0;
        for (int y = row.top; y < row.bottom; ++y)
        {
            for (int x = title.left; x < title.right; ++x)
            {
                if (canvas.Pixel(x, y) != ::GetSysColor(COLOR_WINDOW))
                    right = std::max(right, x);
            }
        }
        return right;
    };
    ASSERT_TRUE(tests::PumpUntil([&] {
        canvas.CopyFromScreen(m_table->m_hWnd);
        return edge(1) != 0;
    }));
    EXPECT_GT(edge(1), edge(2));
    EXPECT_GT(edge(2), edge(0));
}

class TableClipboard : public TableControl
{
protected:
    void SetUp() override
    {
        TableControl::SetUp();
        clipboard_tests::OpenScope const open;
        ASSERT_TRUE(open);
        ASSERT_TRUE(::EmptyClipboard());
    }
};

TEST_F(TableClipboard, RowsAreCopiedAsShown)
{
    Show({1, 2, 3});
    m_table->HideTableColumn(2, true);
    m_table->HideTableColumn(4, true);
    Press(0, 0);
    Press(2, 0, MK_CONTROL);
    ASSERT_TRUE(m_table->CopyRows(TableForm::text, true, true));
    CString text;
    ASSERT_TRUE(Clipboard::StringFromClipboard(text));
    EXPECT_EQ(text, L"Name\tNumber [V]\tDone\r\nCh 0\t1.0\t1 %\r\nCh 2\t3.0\t3 %\r\n");
    EXPECT_TRUE(::IsClipboardFormatAvailable(::RegisterClipboardFormatW(L"HTML Format")));
    ASSERT_TRUE(m_table->CopyRows(TableForm::csv, false, false));
    ASSERT_TRUE(Clipboard::StringFromClipboard(text));
    EXPECT_EQ(text, L"Ch 0,1,1\r\nCh 1,2,2\r\nCh 2,3,3\r\n");
}

TEST_F(TableClipboard, ABlockIsPastedOrRefused)
{
    Show({1, 2, 3});
    TablePasteReport told;
    m_table->m_onPaste = [&told](TablePasteReport const & report) { told = report; };
    Press(1, 0);
    ASSERT_TRUE(Clipboard::StringToClipboard(L"a;7.5\r\nb;8\r\n"));
    EXPECT_TRUE(m_table->PasteBlock().done);
    EXPECT_TRUE(told.done);
    EXPECT_EQ(m_source->At(2).name, L"b");
    EXPECT_EQ(m_source->At(1).number, 7.5);
    Press(1, 1);
    ASSERT_TRUE(Clipboard::StringToClipboard(L"5\r\n2000\r\n"));
    TablePasteReport const refused = m_table->PasteBlock();
    EXPECT_FALSE(refused.done);
    ASSERT_EQ(refused.refused.size(), 1U);
    EXPECT_EQ(refused.refused[0].reason, L"too much");
    EXPECT_EQ(m_source->At(1).number, 7.5);
}

namespace
{
/// Fails, or waits, in its last row.
class FailingSource : public tests::ManyRowsSource
{
public:
    static constexpr TableRow rows = 20000;

    TableRow RowCount() const override { return rows; }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        if (row == rows - 1 && fails)
        {
            failing = true;
            while (waits)
                ::Sleep(1);
            throw std::runtime_error("unreadable");
        }
        return ManyRowsSource::Read(row, column, value);
    }

    std::atomic<bool> fails{false};
    std::atomic<bool> waits{false};
    mutable std::atomic<bool> failing{false};
};

/// A folder of its own with a former export.
class ExportFolder
{
public:
    ExportFolder()
    {
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, folder);
        m_folder = std::filesystem::path(folder) / L"table-exports";
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directory(m_folder);
        std::ofstream(File(), std::ios::binary) << "former";
    }
    ~ExportFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }
    ExportFolder(ExportFolder const &) = delete;
    ExportFolder & operator=(ExportFolder const &) = delete;

    std::filesystem::path File() const { return m_folder / L"rows.csv"; }
    std::string Contents() const
    {
        std::ifstream file(File(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    /// Of all files.
    std::size_t Count() const
    {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(m_folder), {}));
    }

private:
    std::filesystem::path m_folder;
};
} // namespace

TEST_F(TableControl, AFormerFileStaysUntilTheNewOneIsWhole)
{
    ExportFolder folder;
    auto const rows = std::make_shared<FailingSource>();
    m_table->SetSource(rows);
    int ended = 0;
    bool whole = true;
    m_table->m_onExportEnd = [&](bool all) {
        ++ended;
        whole = all;
    };

    // The source fails after most of the rows.
    rows->fails = true;
    ASSERT_TRUE(m_table->ExportRows(folder.File().wstring(), TableForm::csv, false));
    ASSERT_TRUE(tests::PumpUntil([&] { return ended == 1; }));
    EXPECT_FALSE(whole);
    EXPECT_EQ(folder.Contents(), "former");
    EXPECT_EQ(folder.Count(), 1U);

    // The work is stopped there.
    rows->waits = true;
    rows->failing = false;
    ASSERT_TRUE(m_table->ExportRows(folder.File().wstring(), TableForm::csv, false));
    ASSERT_TRUE(tests::PumpUntil([&] { return rows->failing.load(); }));
    EXPECT_EQ(folder.Contents(), "former");
    m_table->StopExport();
    rows->waits = false;
    ASSERT_TRUE(tests::PumpUntil([&] { return ended == 2; }));
    EXPECT_FALSE(whole);
    EXPECT_EQ(folder.Contents(), "former");
    EXPECT_EQ(folder.Count(), 1U);

    rows->fails = false;
    ASSERT_TRUE(m_table->ExportRows(folder.File().wstring(), TableForm::csv, false));
    ASSERT_TRUE(tests::PumpUntil([&] { return ended == 3; }));
    EXPECT_TRUE(whole);
    EXPECT_EQ(folder.Contents().substr(0, 7), "\xEF\xBB\xBFName");
    EXPECT_EQ(folder.Count(), 1U);
}

TEST_F(TableControl, AFormerFileThatAnotherProgramKeepsStays)
{
    ExportFolder folder;
    Show({1, 2});
    int ended = 0;
    bool whole = true;
    m_table->m_onExportEnd = [&](bool all) {
        ++ended;
        whole = all;
    };
    HANDLE const reader = ::CreateFileW(folder.File().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(reader, INVALID_HANDLE_VALUE);
    ASSERT_TRUE(m_table->ExportRows(folder.File().wstring(), TableForm::csv, false));
    EXPECT_TRUE(tests::PumpUntil([&] { return ended == 1; }));
    ::CloseHandle(reader);
    EXPECT_FALSE(whole);
    EXPECT_EQ(folder.Contents(), "former");
    EXPECT_EQ(folder.Count(), 1U);
}

TEST_F(TableControl, RowsAreWrittenToAFile)
{
    Show({1, 2});
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    std::wstring const path = std::wstring(folder) + L"table-export.csv";
    int ended = 0;
    bool whole = false;
    m_table->m_onExportEnd = [&](bool all) {
        ++ended;
        whole = all;
    };
    ASSERT_TRUE(m_table->ExportRows(path, TableForm::csv, false));
    ASSERT_TRUE(tests::PumpUntil([&] { return ended == 1; }));
    EXPECT_TRUE(whole);
    EXPECT_FALSE(m_table->IsExporting());
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    std::string const text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    EXPECT_EQ(text, "\xEF\xBB\xBF"
                    "Name,Number [V],On,Done,More\r\nCh 0,1,0,1,Ch 0\r\nCh 1,2,0,2,Ch 1\r\n");
    file.close();
    std::filesystem::remove(std::filesystem::path(path));
    ASSERT_TRUE(m_table->ExportRows(L"Z:\\no such folder\\x.csv", TableForm::csv, false));
    ASSERT_TRUE(tests::PumpUntil([&] { return ended == 2; }));
    EXPECT_FALSE(whole);
}
