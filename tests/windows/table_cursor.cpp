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
        m_table->SetFocus();
        m_table->EnableCellCursor();
        m_table->SetCellCursor(2, 1);
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
        return m_table->GetCellCursor();
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
        LRESULT const wanted = m_table->SendMessage(WM_GETDLGCODE, key) & DLGC_WANTMESSAGE;
        ::SetKeyboardState(keys);
        return wanted;
    }
    CRect CellRect(TableRow position, int place) const
    {
        CRect row(0, 0, 0, 0);
        m_table->GetItemRect(static_cast<int>(position), &row, LVIR_BOUNDS);
        CRect const title = TitleRect(place);
        return CRect(title.left, row.top, title.right, row.bottom);
    }
    /// Pixels along the line below the cell's upper edge that differ from their neighbours.
    int DotsAt(TableRow position, int place)
    {
        m_table->UpdateWindow();
        CRect const rect = CellRect(position, place);
        CClientDC dc(m_table.get());
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
    EXPECT_FALSE(m_table->HasCellCursor());
    EXPECT_FALSE(m_table->SetCellCursor(1, 1));
    m_table->SetFocus();
    m_table->GoToRow(1);
    EXPECT_EQ(m_table->GetCellCursor().first, no_table_row);
    EXPECT_EQ(Wanted(VK_TAB), 0);
    // Home is the first row, and the space bar selects nothing.
    m_table->SetItemState(-1, 0, LVIS_SELECTED);
    PressKey(VK_SPACE);
    EXPECT_TRUE(m_source->At(1).ticked) << "the row's first tick";
    EXPECT_TRUE(m_table->SelectedRows().empty());
    PressKey(VK_HOME);
    EXPECT_EQ(m_table->FocusRow(), 0U);
    m_table->EnableCellCursor();
    EXPECT_TRUE(m_table->HasCellCursor());
    EXPECT_EQ(m_table->GetCellCursor(), Place(0, 0));
    m_table->EnableCellCursor(false);
    EXPECT_EQ(m_table->GetCellCursor().first, no_table_row);
}

TEST_F(TableCursor, IsPutOnCells)
{
    EXPECT_EQ(m_table->GetCellCursor(), Place(2, 1));
    EXPECT_EQ(m_table->SelectedRows(), (std::vector<TableRow>{2}));
    EXPECT_FALSE(m_table->SetCellCursor(2, 9));
    EXPECT_FALSE(m_table->SetCellCursor(50, 1));
    m_table->HideTableColumn(3, true);
    EXPECT_FALSE(m_table->SetCellCursor(2, 3)) << "hidden";
    EXPECT_EQ(m_table->GetCellCursor(), Place(2, 1));
    EXPECT_TRUE(m_table->SetCellCursor(40, 4));
    EXPECT_EQ(m_table->GetCellCursor(), Place(40, 4));
    m_table->HideTableColumn(4, true);
    EXPECT_EQ(m_table->GetCellCursor(), Place(40, 0)) << "its column is shown no more";
    Press(41, 2);
    EXPECT_EQ(m_table->GetCellCursor(), Place(41, 2)) << "a press takes it along";
}

TEST_F(TableCursor, IsMovedByKeys)
{
    EXPECT_EQ(After(VK_RIGHT), Place(2, 2));
    EXPECT_EQ(After(VK_DOWN), Place(3, 2));
    EXPECT_EQ(m_table->SelectedRows(), (std::vector<TableRow>{3}));
    EXPECT_EQ(After(VK_HOME), Place(3, 0));
    EXPECT_EQ(After(VK_LEFT), Place(3, 0));
    EXPECT_EQ(After(VK_END), Place(3, 4));
    EXPECT_EQ(After(VK_RIGHT), Place(3, 4));
    EXPECT_EQ(After(VK_LEFT, {VK_CONTROL}), Place(3, 0));
    EXPECT_EQ(After(VK_RIGHT, {VK_CONTROL}), Place(3, 4));
    EXPECT_EQ(After(VK_HOME, {VK_CONTROL}), Place(0, 0));
    EXPECT_EQ(m_table->SelectedRows(), (std::vector<TableRow>{3})) << "Ctrl leaves the selection";
    EXPECT_EQ(After(VK_END, {VK_CONTROL}), Place(49, 4));
    EXPECT_EQ(After(VK_UP, {VK_SHIFT}), Place(48, 4));
    // Along the columns shown.
    m_table->MoveTableColumn(4, 0);
    m_table->HideTableColumn(0, true);
    EXPECT_EQ(After(VK_HOME), Place(48, 4));
    EXPECT_EQ(After(VK_RIGHT), Place(48, 1));
    TableRow const before = m_table->FocusRow();
    EXPECT_EQ(After(VK_PRIOR).second, 1U);
    EXPECT_LT(m_table->FocusRow(), before);
}

TEST_F(TableCursor, IsBroughtIntoView)
{
    m_table->SetColumnWidth(0, 400);
    PressKey(VK_HOME);
    PressKey(VK_END);
    CRect client;
    m_table->GetClientRect(&client);
    EXPECT_LE(TitleRect(4).right, client.right);
    EXPECT_GE(TitleRect(4).left, 0);
    PressKey(VK_HOME);
    EXPECT_EQ(TitleRect(0).left, 0);
}

TEST_F(TableCursor, SpaceTicksOrSelects)
{
    PressKey(VK_RIGHT);
    PressKey(VK_SPACE);
    EXPECT_TRUE(m_source->At(2).ticked);
    PressKey(VK_SPACE);
    EXPECT_FALSE(m_source->At(2).ticked);
    PressKey(VK_RIGHT);
    After(VK_UP, {VK_CONTROL});
    EXPECT_EQ(m_table->SelectedRows(), (std::vector<TableRow>{2}));
    PressKey(VK_SPACE);
    EXPECT_EQ(m_table->SelectedRows(), (std::vector<TableRow>{1})) << "no tick there";
    EXPECT_FALSE(m_source->At(1).ticked);
    PressWith(VK_SPACE, {VK_CONTROL});
    EXPECT_TRUE(m_table->SelectedRows().empty());
}

TEST_F(TableCursor, KeysEditItsCell)
{
    PressKey(VK_F2);
    ASSERT_TRUE(m_table->IsEditing());
    m_table->EndEdit(false);
    m_table->SendMessage(WM_CHAR, L'7', 1);
    ASSERT_TRUE(m_table->IsEditing());
    EXPECT_TRUE(m_table->EndEdit(true));
    EXPECT_EQ(m_source->At(2).number, 7);
    m_table->SetCellCursor(2, 3);
    PressKey(VK_F2);
    EXPECT_FALSE(m_table->IsEditing()) << "a bar is not typed into";
    // Where the user has not chosen a cell the cursor is on the first one.
    MakeTable();
    Show({1, 2});
    m_table->SetFocus();
    m_table->EnableCellCursor();
    m_table->GoToRow(1);
    m_table->SendMessage(WM_CHAR, L'x', 1);
    EXPECT_TRUE(m_table->IsEditing());
    EXPECT_TRUE(m_table->EndEdit(true));
    EXPECT_EQ(m_source->At(1).name, L"x");
}

TEST_F(TableCursor, EnterFollowsALink)
{
    std::vector<Place> links;
    std::vector<Place> others;
    m_table->m_onLinkClick = [&](TableRow row, unsigned int column) { links.emplace_back(row, column); };
    m_table->m_onDoubleClick = [&](TableRow row, unsigned int column) { others.emplace_back(row, column); };
    EXPECT_EQ(Wanted(VK_RETURN), 0);
    PressKey(VK_RETURN);
    EXPECT_EQ(others, (std::vector<Place>{{2, 1}}));
    m_table->SetCellCursor(2, 4);
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
    EXPECT_EQ(m_table->SelectedRows(), (std::vector<TableRow>{3}));
    EXPECT_EQ(After(VK_TAB, {VK_SHIFT}), Place(2, 2));
    m_table->SetCellCursor(0, 0);
    EXPECT_EQ(Wanted(VK_TAB, {VK_SHIFT}), 0) << "to the control ahead";
    EXPECT_EQ(After(VK_TAB, {VK_SHIFT}), Place(0, 0));
    m_table->SetCellCursor(49, 3);
    EXPECT_EQ(Wanted(VK_TAB), 0) << "to the control behind";
    std::vector<TableColumn> columns = Columns();
    for (TableColumn & column : columns)
        column.editable = false;
    m_table->SetColumns(columns);
    m_table->SetCellCursor(1, 1);
    EXPECT_EQ(Wanted(VK_TAB), 0);
}

TEST_F(TableCursor, MenuComesUpAtItsCell)
{
    m_table->SetColumnWidth(0, 500);
    m_table->SetCellCursor(20, 4);
    m_table->Scroll(CSize(-600, 0));
    CRect client;
    m_table->GetClientRect(&client);
    ASSERT_GT(TitleRect(4).left, client.right) << "scrolled away";
    tests::MessageRecorder recorder({WM_CONTEXTMENU});
    recorder.Watch(m_host.m_hWnd, "host");
    m_table->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_table->m_hWnd), -1);
    CRect cell = CellRect(20, 4);
    m_table->ClientToScreen(&cell);
    ASSERT_EQ(recorder.Received().size(), 1U);
    LPARAM const place = recorder.Received()[0].lParam;
    EXPECT_EQ(CPoint(place), CPoint(cell.left, cell.bottom));
}

TEST_F(TableCursor, PlusFitsTheColumnsShown)
{
    m_table->SetColumnWidth(0, 300);
    m_table->SetColumnWidth(1, 10);
    PressKey(VK_ADD);
    EXPECT_EQ(m_table->GetColumnWidth(0), 300) << "without Ctrl";
    PressWith(VK_ADD, {VK_CONTROL});
    EXPECT_LT(m_table->GetColumnWidth(0), 200);
    EXPECT_GT(m_table->GetColumnWidth(1), 20);
}

TEST_F(TableCursor, ShowsWhileTheTableHasTheFocus)
{
    // A cell that is neither selected nor can be changed.
    m_table->SetCellCursor(2, 3);
    m_table->SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_GT(DotsAt(2, 3), 20);
    EXPECT_LT(DotsAt(3, 3), 5);
    PressKey(VK_RIGHT);
    EXPECT_LT(DotsAt(2, 3), 5);
    m_table->EnableCellCursor(false);
    EXPECT_LT(DotsAt(2, 4), 20);
}

TEST_F(TableCursor, ProgramsThatReadTheScreenFollowIt)
{
    access_tests::ComScope const com;
    access_tests::Held<IAccessible> object;
    ASSERT_EQ(access_tests::Ask(m_table->m_hWnd, object), S_OK);
    access_tests::Listener listener(m_table->m_hWnd);
    auto const heardAt = [&](int position, int place) {
        tests::PumpPosted();
        std::vector<access_tests::Listener::Event> const heard = listener.Take();
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
    EXPECT_EQ(m_table->GetCellCursor(), Place(5, 1));
    EXPECT_EQ(heardAt(5, 1), 1);
}
