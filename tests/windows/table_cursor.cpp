// The cell cursor of a table.

#include <initializer_list>

#include "access_AccessTest.h"
#include "MessageRecorder.h"
#include "table_TableTest.h"

using Place = std::pair<TableRow, unsigned int>;

namespace
{
class TableCursor : public tests::TableTest
{
protected:
    void SetUp() override
    {
        TableTest::SetUp();
        std::vector<double> numbers(50);
        for (std::size_t i = 0; i < numbers.size(); ++i)
            numbers[i] = static_cast<double>(i);
        Show(numbers);
        table->SetFocus();
        table->EnableCellCursor();
        table->SetCellCursor(2, 1);
        tests::PumpPosted();
    }
    /// A key while others are held.
    void PressWith(UINT key, std::initializer_list<int> held)
    {
        BYTE keys[256] = {};
        ::GetKeyboardState(keys);
        BYTE changed[256] = {};
        std::copy(std::begin(keys), std::end(keys), changed);
        for (int const each : held)
            changed[each] = 0x80;
        ::SetKeyboardState(changed);
        PressKey(key);
        ::SetKeyboardState(keys);
    }
    Place After(UINT key, std::initializer_list<int> held = {})
    {
        PressWith(key, held);
        return table->GetCellCursor();
    }
    LRESULT Wanted(UINT key, std::initializer_list<int> held = {})
    {
        BYTE keys[256] = {};
        ::GetKeyboardState(keys);
        BYTE changed[256] = {};
        std::copy(std::begin(keys), std::end(keys), changed);
        for (int const each : held)
            changed[each] = 0x80;
        ::SetKeyboardState(changed);
        LRESULT const wanted = table->SendMessage(WM_GETDLGCODE, key) & DLGC_WANTMESSAGE;
        ::SetKeyboardState(keys);
        return wanted;
    }
    CRect CellRect(TableRow position, int place) const
    {
        CRect row(0, 0, 0, 0);
        table->GetItemRect(static_cast<int>(position), &row, LVIR_BOUNDS);
        CRect const title = TitleRect(place);
        return CRect(title.left, row.top, title.right, row.bottom);
    }
    /// Pixels along the line below the cell's upper edge that differ from their neighbours.
    int DotsAt(TableRow position, int place)
    {
        table->UpdateWindow();
        CRect const rect = CellRect(position, place);
        CClientDC dc(table.get());
        int dots = 0;
        for (int x = rect.left + 3; x < rect.right - 3; ++x)
            dots += dc.GetPixel(x, rect.top + 1) != dc.GetPixel(x + 1, rect.top + 1) ? 1 : 0;
        return dots;
    }
};
} // namespace

TEST_F(TableCursor, IsOffAtFirst)
{
    MakeTable();
    Show({1, 2, 3});
    EXPECT_FALSE(table->HasCellCursor());
    EXPECT_FALSE(table->SetCellCursor(1, 1));
    table->SetFocus();
    table->GoToRow(1);
    EXPECT_EQ(table->GetCellCursor().first, no_table_row);
    EXPECT_EQ(Wanted(VK_TAB), 0);
    // Home is the first row, and the space bar selects nothing.
    table->SetItemState(-1, 0, LVIS_SELECTED);
    PressKey(VK_SPACE);
    EXPECT_TRUE(source->At(1).ticked) << "the row's first tick";
    EXPECT_TRUE(table->SelectedRows().empty());
    PressKey(VK_HOME);
    EXPECT_EQ(table->FocusRow(), 0U);
    table->EnableCellCursor();
    EXPECT_TRUE(table->HasCellCursor());
    EXPECT_EQ(table->GetCellCursor(), Place(0, 0));
    table->EnableCellCursor(false);
    EXPECT_EQ(table->GetCellCursor().first, no_table_row);
}

TEST_F(TableCursor, IsPutOnCells)
{
    EXPECT_EQ(table->GetCellCursor(), Place(2, 1));
    EXPECT_EQ(table->SelectedRows(), (std::vector<TableRow>{2}));
    EXPECT_FALSE(table->SetCellCursor(2, 9));
    EXPECT_FALSE(table->SetCellCursor(50, 1));
    table->HideTableColumn(3, true);
    EXPECT_FALSE(table->SetCellCursor(2, 3)) << "hidden";
    EXPECT_EQ(table->GetCellCursor(), Place(2, 1));
    EXPECT_TRUE(table->SetCellCursor(40, 4));
    EXPECT_EQ(table->GetCellCursor(), Place(40, 4));
    table->HideTableColumn(4, true);
    EXPECT_EQ(table->GetCellCursor(), Place(40, 0)) << "its column is shown no more";
    Press(41, 2);
    EXPECT_EQ(table->GetCellCursor(), Place(41, 2)) << "a press takes it along";
}

TEST_F(TableCursor, IsMovedByKeys)
{
    EXPECT_EQ(After(VK_RIGHT), Place(2, 2));
    EXPECT_EQ(After(VK_DOWN), Place(3, 2));
    EXPECT_EQ(table->SelectedRows(), (std::vector<TableRow>{3}));
    EXPECT_EQ(After(VK_HOME), Place(3, 0));
    EXPECT_EQ(After(VK_LEFT), Place(3, 0));
    EXPECT_EQ(After(VK_END), Place(3, 4));
    EXPECT_EQ(After(VK_RIGHT), Place(3, 4));
    EXPECT_EQ(After(VK_LEFT, {VK_CONTROL}), Place(3, 0));
    EXPECT_EQ(After(VK_RIGHT, {VK_CONTROL}), Place(3, 4));
    EXPECT_EQ(After(VK_HOME, {VK_CONTROL}), Place(0, 0));
    EXPECT_EQ(table->SelectedRows(), (std::vector<TableRow>{3})) << "Ctrl leaves the selection";
    EXPECT_EQ(After(VK_END, {VK_CONTROL}), Place(49, 4));
    EXPECT_EQ(After(VK_UP, {VK_SHIFT}), Place(48, 4));
    // Along the columns shown.
    table->MoveTableColumn(4, 0);
    table->HideTableColumn(0, true);
    EXPECT_EQ(After(VK_HOME), Place(48, 4));
    EXPECT_EQ(After(VK_RIGHT), Place(48, 1));
    TableRow const before = table->FocusRow();
    EXPECT_EQ(After(VK_PRIOR).second, 1U);
    EXPECT_LT(table->FocusRow(), before);
}

TEST_F(TableCursor, IsBroughtIntoView)
{
    table->SetColumnWidth(0, 400);
    PressKey(VK_HOME);
    PressKey(VK_END);
    CRect client;
    table->GetClientRect(&client);
    EXPECT_LE(TitleRect(4).right, client.right);
    EXPECT_GE(TitleRect(4).left, 0);
    PressKey(VK_HOME);
    EXPECT_EQ(TitleRect(0).left, 0);
}

TEST_F(TableCursor, SpaceTicksOrSelects)
{
    PressKey(VK_RIGHT);
    PressKey(VK_SPACE);
    EXPECT_TRUE(source->At(2).ticked);
    PressKey(VK_SPACE);
    EXPECT_FALSE(source->At(2).ticked);
    PressKey(VK_RIGHT);
    After(VK_UP, {VK_CONTROL});
    EXPECT_EQ(table->SelectedRows(), (std::vector<TableRow>{2}));
    PressKey(VK_SPACE);
    EXPECT_EQ(table->SelectedRows(), (std::vector<TableRow>{1})) << "no tick there";
    EXPECT_FALSE(source->At(1).ticked);
    PressWith(VK_SPACE, {VK_CONTROL});
    EXPECT_TRUE(table->SelectedRows().empty());
}

TEST_F(TableCursor, KeysEditItsCell)
{
    PressKey(VK_F2);
    ASSERT_TRUE(table->IsEditing());
    table->EndEdit(false);
    table->SendMessage(WM_CHAR, L'7', 1);
    ASSERT_TRUE(table->IsEditing());
    EXPECT_TRUE(table->EndEdit(true));
    EXPECT_EQ(source->At(2).number, 7);
    table->SetCellCursor(2, 3);
    PressKey(VK_F2);
    EXPECT_FALSE(table->IsEditing()) << "a bar is not typed into";
    // Where the user has not chosen a cell the cursor is on the first one.
    MakeTable();
    Show({1, 2});
    table->SetFocus();
    table->EnableCellCursor();
    table->GoToRow(1);
    table->SendMessage(WM_CHAR, L'x', 1);
    EXPECT_TRUE(table->IsEditing());
    EXPECT_TRUE(table->EndEdit(true));
    EXPECT_EQ(source->At(1).name, L"x");
}

TEST_F(TableCursor, EnterFollowsALink)
{
    std::vector<Place> links;
    std::vector<Place> others;
    table->m_onLinkClick = [&](TableRow row, unsigned int column) { links.emplace_back(row, column); };
    table->m_onDoubleClick = [&](TableRow row, unsigned int column) { others.emplace_back(row, column); };
    EXPECT_EQ(Wanted(VK_RETURN), 0);
    PressKey(VK_RETURN);
    EXPECT_EQ(others, (std::vector<Place>{{2, 1}}));
    table->SetCellCursor(2, 4);
    EXPECT_NE(Wanted(VK_RETURN), 0) << "in a dialog, too";
    PressKey(VK_RETURN);
    EXPECT_EQ(links, (std::vector<Place>{{2, 4}}));
    EXPECT_EQ(others.size(), 1U);
}

TEST_F(TableCursor, TabGoesToTheNextCellThatCanBeChanged)
{
    EXPECT_NE(Wanted(VK_TAB), 0);
    EXPECT_EQ(Wanted(VK_TAB, {VK_CONTROL}), 0);
    EXPECT_EQ(After(VK_TAB), Place(2, 2));
    EXPECT_EQ(After(VK_TAB), Place(3, 0));
    EXPECT_EQ(table->SelectedRows(), (std::vector<TableRow>{3}));
    EXPECT_EQ(After(VK_TAB, {VK_SHIFT}), Place(2, 2));
    table->SetCellCursor(0, 0);
    EXPECT_EQ(Wanted(VK_TAB, {VK_SHIFT}), 0) << "to the control ahead";
    EXPECT_EQ(After(VK_TAB, {VK_SHIFT}), Place(0, 0));
    table->SetCellCursor(49, 3);
    EXPECT_EQ(Wanted(VK_TAB), 0) << "to the control behind";
    std::vector<TableColumn> columns = Columns();
    for (TableColumn & column : columns)
        column.editable = false;
    table->SetColumns(columns);
    table->SetCellCursor(1, 1);
    EXPECT_EQ(Wanted(VK_TAB), 0);
}

TEST_F(TableCursor, MenuComesUpAtItsCell)
{
    table->SetColumnWidth(0, 500);
    table->SetCellCursor(20, 4);
    table->Scroll(CSize(-600, 0));
    CRect client;
    table->GetClientRect(&client);
    ASSERT_GT(TitleRect(4).left, client.right) << "scrolled away";
    tests::MessageRecorder recorder({WM_CONTEXTMENU});
    recorder.Watch(parent.m_hWnd, "host");
    table->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(table->m_hWnd), -1);
    CRect cell = CellRect(20, 4);
    table->ClientToScreen(&cell);
    ASSERT_EQ(recorder.Received().size(), 1U);
    LPARAM const place = recorder.Received()[0].lParam;
    EXPECT_EQ(CPoint(place), CPoint(cell.left, cell.bottom));
}

TEST_F(TableCursor, PlusFitsTheColumnsShown)
{
    table->SetColumnWidth(0, 300);
    table->SetColumnWidth(1, 10);
    PressKey(VK_ADD);
    EXPECT_EQ(table->GetColumnWidth(0), 300) << "without Ctrl";
    PressWith(VK_ADD, {VK_CONTROL});
    EXPECT_LT(table->GetColumnWidth(0), 200);
    EXPECT_GT(table->GetColumnWidth(1), 20);
}

TEST_F(TableCursor, ShowsWhileTheTableHasTheFocus)
{
    // A cell that is neither selected nor can be changed.
    table->SetCellCursor(2, 3);
    table->SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_GT(DotsAt(2, 3), 20);
    EXPECT_LT(DotsAt(3, 3), 5);
    PressKey(VK_RIGHT);
    EXPECT_LT(DotsAt(2, 3), 5);
    table->EnableCellCursor(false);
    EXPECT_LT(DotsAt(2, 4), 20);
}

TEST_F(TableCursor, ProgramsThatReadTheScreenFollowIt)
{
    access_tests::ComScope const com;
    access_tests::Held<IAccessible> object;
    ASSERT_EQ(access_tests::Ask(table->m_hWnd, object), S_OK);
    access_tests::Listener listener(table->m_hWnd);
    auto const heardAt = [&](int position, int place) {
        tests::PumpPosted();
        std::vector<Event> const heard = listener.Take();
        return std::count(heard.begin(), heard.end(),
                          access_tests::Listener::Event(EVENT_OBJECT_FOCUS, accessible::NumberOf({position, place})));
    };
    tests::PumpPosted();
    listener.Take();
    PressKey(VK_RIGHT);
    EXPECT_EQ(heardAt(2, 2), 1);
    PressKey(VK_DOWN);
    EXPECT_EQ(heardAt(3, 2), 1);
    long const cell = accessible::NumberOf({3, 2});
    EXPECT_NE(access_tests::StatesOf(*object.Get(), cell) & STATE_SYSTEM_FOCUSED, 0);
    EXPECT_EQ(access_tests::StatesOf(*object.Get(), 4) & STATE_SYSTEM_FOCUSED, 0) << "the cell has it, not the row";
    VARIANT focus{};
    ASSERT_EQ(object->get_accFocus(&focus), S_OK);
    ASSERT_EQ(focus.vt, VT_DISPATCH);
    EXPECT_EQ(access_tests::NameOf(*static_cast<IAccessible *>(focus.pdispVal)), L"On");
    focus.pdispVal->Release();
    EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS, access_tests::Number(accessible::NumberOf({5, 1}))), S_OK);
    EXPECT_EQ(table->GetCellCursor(), Place(5, 1));
    EXPECT_EQ(heardAt(5, 1), 1);
}
