// Cells that are typed into, ticks by the keyboard, and the menu at a cell.

#include <afxcmn.h>

#include <utility>

#include "GuardedHeap.h"
#include "ResourceReader.h"
#include "table_TableTest.h"

namespace
{
using tests::TableRowsSource;
using Order = std::vector<TableRow>;

class TableEdits : public tests::TableTest
{
protected:
    void SetUp() override
    {
        TableTest::SetUp();
        Show({1, 2, 3, 4});
        ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
        m_table->SetFocus();
        m_table->m_onEditRefused = [this](TableRow row, unsigned int, TableRefused const & refused) {
            m_refusals.push_back({row, refused});
            return refused.reason;
        };
    }

    HWND Edit() const { return ::FindWindowExW(m_table->m_hWnd, nullptr, L"Edit", nullptr); }
    std::wstring Text() const
    {
        wchar_t text[100] = {};
        ::SendMessageW(Edit(), WM_GETTEXT, 100, reinterpret_cast<LPARAM>(text));
        return text;
    }
    void SetText(wchar_t const * text) { ::SendMessageW(Edit(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)); }
    /// Presses a key in the edit as the system's own loop would hand it on.
    void PressInEdit(WPARAM key) { ::SendMessageW(Edit(), WM_KEYDOWN, key, 1); }
    bool PumpUntilOpen(wchar_t const * text)
    {
        return tests::PumpUntil([this, text] { return Edit() != nullptr && Text() == text && m_table->IsEditing(); });
    }
    bool PumpUntilClosed()
    {
        return tests::PumpUntil([this] { return Edit() == nullptr && !m_table->IsEditing(); });
    }
    CRect EditPlace() const
    {
        CRect place(0, 0, 0, 0);
        ::GetWindowRect(Edit(), &place);
        m_table->ScreenToClient(&place);
        return place;
    }
    /// The text beside the edit; empty for none.
    static std::wstring Reason()
    {
        std::wstring found;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM text) -> BOOL {
                wchar_t name[40] = {};
                ::GetClassNameW(window, name, 40);
                if (std::wstring(name) != TOOLTIPS_CLASSW || !::IsWindowVisible(window))
                    return TRUE;
                wchar_t shown[200] = {};
                TTTOOLINFOW tool = {};
                tool.cbSize = TTTOOLINFOW_V2_SIZE;
                tool.lpszText = shown;
                if (::SendMessageW(window, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)))
                    *reinterpret_cast<std::wstring *>(text) = shown;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }

    struct Told
    {
        TableRow row;
        TableRefused refused;
    };
    std::vector<Told> m_refusals;
};
} // namespace

TEST_F(TableEdits, KeysOpenTakeAndLeave)
{
    Click(CellPoint(1, 0));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->FocusRow() == 1; }));
    EXPECT_FALSE(m_table->IsEditing());
    tests::Key(VK_F2);
    ASSERT_TRUE(PumpUntilOpen(L"Ch 1"));
    EXPECT_EQ(::GetFocus(), Edit());
    tests::Type(L"new");
    ASSERT_TRUE(PumpUntilOpen(L"new"));
    tests::Key(VK_RETURN);
    ASSERT_TRUE(PumpUntilClosed());
    EXPECT_EQ(m_source->At(1).name, L"new");
    EXPECT_EQ(m_table->GetItemText(1, 0), L"new");
    EXPECT_EQ(::GetFocus(), m_table->m_hWnd);
    tests::Key(VK_F2);
    ASSERT_TRUE(PumpUntilOpen(L"new"));
    tests::Type(L"other");
    ASSERT_TRUE(PumpUntilOpen(L"other"));
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(PumpUntilClosed());
    EXPECT_EQ(m_source->At(1).name, L"new");
    EXPECT_EQ(::GetFocus(), m_table->m_hWnd);
    EXPECT_TRUE(m_refusals.empty());
}

TEST_F(TableEdits, TypingBeginsInTheCellThatWasClicked)
{
    tests::Type(L"ch 2");
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->FocusRow() == 2; }))
        << "no cell was chosen: a row is looked for";
    EXPECT_FALSE(m_table->IsEditing());
    Click(CellPoint(2, 1));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->SelectedRows() == Order{2}; }));
    tests::PumpPosted();
    tests::Type(L"7.5");
    ASSERT_TRUE(PumpUntilOpen(L"7.5"));
    tests::Key(VK_RETURN);
    ASSERT_TRUE(PumpUntilClosed());
    EXPECT_EQ(m_source->At(2).number, 7.5);
    // A column that is not editable.
    Click(CellPoint(2, 3));
    tests::PumpPosted();
    tests::Type(L"c");
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->FocusRow() == 3; }));
    EXPECT_FALSE(m_table->IsEditing());
}

TEST_F(TableEdits, ADoubleClickOpens)
{
    int opened = 0;
    m_table->m_onDoubleClick = [&opened](TableRow, unsigned int) { ++opened; };
    tests::DoubleClick(tests::ClientPoint(m_table->m_hWnd, CellPoint(2, 1)));
    ASSERT_TRUE(PumpUntilOpen(L"3.0"));
    tests::PumpPosted();
    EXPECT_EQ(::GetCapture(), nullptr) << "the next press is no matter of the edit's";
    EXPECT_EQ(opened, 0);
    CRect const place = EditPlace();
    CPoint const cell = CellPoint(2, 1);
    EXPECT_TRUE(place.PtInRect(cell));
    // A press elsewhere takes the text.
    SetText(L"33");
    Click(CellPoint(0, 3));
    ASSERT_TRUE(PumpUntilClosed());
    EXPECT_EQ(m_source->At(2).number, 33);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->FocusRow() == 0; }));
    tests::DoubleClick(tests::ClientPoint(m_table->m_hWnd, CellPoint(1, 3)));
    ASSERT_TRUE(tests::PumpUntil([&opened] { return opened == 1; }));
    EXPECT_FALSE(m_table->IsEditing());
}

TEST_F(TableEdits, TabGoesOnToTheNextEditableCell)
{
    ASSERT_TRUE(m_table->EditCell(1, TableRowsSource::name_column));
    SetText(L"one");
    tests::Key(VK_TAB);
    ASSERT_TRUE(PumpUntilOpen(L"2.0"));
    EXPECT_EQ(m_source->At(1).name, L"one");
    SetText(L"22");
    tests::Key(VK_TAB);
    ASSERT_TRUE(PumpUntilOpen(L"Ch 2")) << "ticks are not typed into; the next row follows";
    EXPECT_EQ(m_source->At(1).number, 22);
    EXPECT_EQ(m_table->SelectedRows(), (Order{2}));
    tests::Key(VK_TAB, {VK_SHIFT});
    ASSERT_TRUE(PumpUntilOpen(L"22.0"));
    EXPECT_EQ(m_table->SelectedRows(), (Order{1}));
    m_table->EndEdit(false);
    ASSERT_TRUE(m_table->EditCell(3, TableRowsSource::number_column));
    tests::Key(VK_TAB);
    ASSERT_TRUE(PumpUntilClosed()) << "behind the last one there is none";
    EXPECT_EQ(::GetFocus(), m_table->m_hWnd);
}

TEST_F(TableEdits, ARowThatIsSortedAwayIsGoneOnFrom)
{
    m_table->SortBy({{TableRowsSource::number_column, false}});
    m_table->HideTableColumn(TableRowsSource::name_column, true);
    ASSERT_TRUE(m_table->EditCell(0, TableRowsSource::number_column));
    SetText(L"3.5");
    PressInEdit(VK_TAB);
    EXPECT_EQ(m_table->PositionOf(0), 2U);
    ASSERT_TRUE(PumpUntilOpen(L"4.0")) << "below its new place";
}

TEST_F(TableEdits, ARefusedTextStaysOpenWithTheReason)
{
    ASSERT_TRUE(m_table->EditCell(1, TableRowsSource::number_column));
    SetText(L"2000");
    tests::Key(VK_RETURN);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_refusals.size() == 1; }));
    EXPECT_EQ(m_refusals[0].row, 1U);
    EXPECT_EQ(m_refusals[0].refused.refusal, TableRefusal::by_check);
    EXPECT_EQ(m_refusals[0].refused.text, L"2000");
    EXPECT_EQ(Text(), L"2000");
    EXPECT_EQ(::GetFocus(), Edit());
    EXPECT_TRUE(tests::PumpUntil([] { return Reason() == L"too much"; }));
    EXPECT_EQ(m_source->At(1).number, 2);
    // Neither a press elsewhere nor a title nor the wheel leads away.
    Click(CellPoint(3, 0));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_refusals.size() >= 2 && ::GetFocus() == Edit(); }));
    EXPECT_EQ(m_table->FocusRow(), 1U);
    Click(TitleRect(0).CenterPoint());
    ASSERT_TRUE(tests::PumpUntil([this] { return m_refusals.size() >= 3; }));
    tests::PumpPosted();
    EXPECT_TRUE(m_table->SortColumns().empty());
    EXPECT_FALSE(m_table->EditCell(0, TableRowsSource::name_column));
    EXPECT_EQ(Text(), L"2000");
    // What is typed takes the reason away.
    tests::Type(L"9");
    ASSERT_TRUE(tests::PumpUntil([this] { return Text() != L"2000"; }));
    EXPECT_EQ(Reason(), L"");
    SetText(L"200");
    tests::Key(VK_RETURN);
    ASSERT_TRUE(PumpUntilClosed());
    EXPECT_EQ(m_source->At(1).number, 200);
}

TEST_F(TableEdits, ModuleSaysWhyWhereNobodyElseDoes)
{
    auto const reasonOf = [&](unsigned int column, wchar_t const * text) {
        EXPECT_TRUE(m_table->EditCell(0, column));
        SetText(text);
        EXPECT_FALSE(m_table->EndEdit(true));
        EXPECT_TRUE(tests::PumpUntil([] { return !Reason().empty(); }));
        std::wstring reason = Reason();
        m_table->EndEdit(false);
        return reason;
    };
    m_table->m_onEditRefused = nullptr;
    EXPECT_EQ(reasonOf(TableRowsSource::number_column, L"many"), L"This is not a number.");
    EXPECT_EQ(reasonOf(TableRowsSource::number_column, L"2000"), L"too much") << "the check knows better";
    EXPECT_EQ(reasonOf(TableRowsSource::name_column, TableRowsSource::refused_name), L"This value was not accepted.");
    m_table->m_onEditRefused = [](TableRow, unsigned int, TableRefused const &) { return std::wstring(); };
    tests::ScopedLanguage const german(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN));
    EXPECT_EQ(reasonOf(TableRowsSource::number_column, L"many"), L"Das ist keine Zahl.");
}

TEST_F(TableEdits, WhatCannotBeReadAndWhatTheSourceRefusesStayOpen)
{
    m_table->m_onEditRefused = [this](TableRow row, unsigned int, TableRefused const & refused) -> std::wstring {
        m_refusals.push_back({row, refused});
        return L"no number";
    };
    ASSERT_TRUE(m_table->EditCell(0, TableRowsSource::number_column));
    SetText(L"many");
    PressInEdit(VK_RETURN);
    ASSERT_EQ(m_refusals.size(), 1U);
    EXPECT_EQ(m_refusals[0].refused.refusal, TableRefusal::not_readable);
    EXPECT_TRUE(tests::PumpUntil([] { return Reason() == L"no number"; }));
    PressInEdit(VK_ESCAPE);
    EXPECT_FALSE(m_table->IsEditing());
    EXPECT_EQ(Reason(), L"");
    ASSERT_TRUE(m_table->EditCell(0, TableRowsSource::name_column));
    SetText(TableRowsSource::refused_name);
    EXPECT_FALSE(m_table->EndEdit(true));
    ASSERT_EQ(m_refusals.size(), 2U);
    EXPECT_EQ(m_refusals[1].refused.refusal, TableRefusal::by_source);
    EXPECT_EQ(Text(), TableRowsSource::refused_name);
    EXPECT_TRUE(m_table->EndEdit(false));
    EXPECT_EQ(m_source->At(0).name, L"Ch 0");
}

TEST_F(TableEdits, TheEditStaysWithItsRow)
{
    m_table->SortBy({{TableRowsSource::number_column, false}});
    ASSERT_TRUE(m_table->EditCell(1, TableRowsSource::name_column));
    SetText(L"typed");
    m_source->SetNumber(1, 100);
    m_table->Feed()->RowsChanged(1, 1);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->PositionOf(1) == 3; }));
    EXPECT_TRUE(tests::PumpUntil([this] { return EditPlace().PtInRect(CellPoint(3, 0)); }));
    EXPECT_EQ(Text(), L"typed");
    m_table->MoveTableColumn(TableRowsSource::name_column, 3);
    EXPECT_TRUE(tests::PumpUntil([this] { return EditPlace().PtInRect(CellPoint(3, 3)); }));
    EXPECT_EQ(Text(), L"typed");
    PressInEdit(VK_RETURN);
    EXPECT_EQ(m_source->At(1).name, L"typed");
}

TEST_F(TableEdits, TheEditEndsWithItsRowAndTheTextIsTold)
{
    ASSERT_TRUE(m_table->EditCell(1, TableRowsSource::name_column));
    SetText(L"typed");
    m_source->Remove(1);
    m_table->Feed()->AllChanged();
    ASSERT_TRUE(PumpUntilClosed());
    ASSERT_EQ(m_refusals.size(), 1U);
    EXPECT_EQ(m_refusals[0].refused.refusal, TableRefusal::no_such_row);
    EXPECT_EQ(m_refusals[0].refused.text, L"typed");
    EXPECT_EQ(m_source->At(1).name, L"Ch 2");
    // With the source.
    ASSERT_TRUE(m_table->EditCell(1, TableRowsSource::name_column));
    SetText(L"again");
    m_source.reset();
    m_table->UpdateNow();
    ASSERT_TRUE(PumpUntilClosed());
    ASSERT_EQ(m_refusals.size(), 2U);
    Show({1, 2});
    ASSERT_TRUE(m_table->EditCell(1, TableRowsSource::name_column));
    SetText(L"again");
    std::shared_ptr<TableRowsSource> const former = m_source;
    Show({5});
    EXPECT_FALSE(m_table->IsEditing()) << "another source";
    EXPECT_EQ(former->At(1).name, L"Ch 1");
    EXPECT_EQ(m_refusals.size(), 2U);
}

TEST_F(TableEdits, ACellThatIsShownNoMoreTakesItsText)
{
    ASSERT_TRUE(m_table->EditCell(1, TableRowsSource::name_column));
    SetText(L"typed");
    TableFilter filter;
    filter.ranges.push_back({TableRowsSource::number_column, 3, 9});
    m_table->SetRowFilter(filter);
    ASSERT_TRUE(PumpUntilClosed());
    EXPECT_EQ(m_source->At(1).name, L"typed");
    ASSERT_TRUE(m_table->EditCell(3, TableRowsSource::name_column));
    SetText(L"hidden");
    m_table->HideTableColumn(TableRowsSource::name_column, true);
    ASSERT_TRUE(PumpUntilClosed());
    EXPECT_EQ(m_source->At(3).name, L"hidden");
    EXPECT_TRUE(m_refusals.empty());
}

TEST_F(TableEdits, ScrollingAndSortingTakeTheText)
{
    std::vector<double> numbers;
    for (int i = 0; i < 100; ++i)
        numbers.push_back(i);
    Show(numbers);
    ASSERT_TRUE(m_table->EditCell(2, TableRowsSource::name_column));
    SetText(L"typed");
    m_table->SendMessage(WM_VSCROLL, SB_PAGEDOWN, 0);
    EXPECT_FALSE(m_table->IsEditing());
    EXPECT_EQ(m_source->At(2).name, L"typed");
    EXPECT_GT(m_table->GetTopIndex(), 0);
    ASSERT_TRUE(m_table->EditCell(50, TableRowsSource::number_column));
    SetText(L"5000");
    int const top = m_table->GetTopIndex();
    m_table->SendMessage(WM_VSCROLL, SB_PAGEDOWN, 0);
    EXPECT_EQ(m_table->GetTopIndex(), top) << "its text is refused";
    EXPECT_TRUE(m_table->IsEditing());
    // The host's own scrolling leaves it where its cell is.
    m_table->EnsureVisible(0, FALSE);
    EXPECT_TRUE(tests::PumpUntil([this] { return EditPlace().bottom < 0; }));
    EXPECT_EQ(Text(), L"5000");
    m_table->EnsureVisible(50, FALSE);
    EXPECT_TRUE(tests::PumpUntil([this] { return EditPlace().PtInRect(CellPoint(50, 1)); }));
    SetText(L"500");
    Click(TitleRect(1).CenterPoint());
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->SortColumns().size() == 1; }));
    EXPECT_FALSE(m_table->IsEditing());
    EXPECT_EQ(m_source->At(50).number, 500);
}

TEST_F(TableEdits, CellsThatAreNotTypedIntoHaveNoEdit)
{
    EXPECT_FALSE(m_table->EditCell(0, TableRowsSource::tick_column));
    EXPECT_FALSE(m_table->EditCell(0, TableRowsSource::link_column));
    EXPECT_FALSE(m_table->EditCell(0, 77));
    EXPECT_FALSE(m_table->EditCell(4, TableRowsSource::name_column));
    EXPECT_FALSE(m_table->EditCell(no_table_row, TableRowsSource::name_column));
    EXPECT_EQ(Edit(), nullptr);
    EXPECT_TRUE(m_table->EndEdit(true));
}

TEST_F(TableEdits, AnUnchangedTextIsNotWritten)
{
    m_source->SetNumber(0, 1.234);
    ASSERT_TRUE(m_table->EditCell(0, TableRowsSource::number_column));
    EXPECT_EQ(Text(), L"1.2");
    PressInEdit(VK_RETURN);
    EXPECT_FALSE(m_table->IsEditing());
    EXPECT_EQ(m_source->At(0).number, 1.234) << "with all its digits";
}

TEST_F(TableEdits, TheTableMayEndWithAnEdit)
{
    std::vector<TableColumn> columns = Columns();
    columns[0].check = [this](TableValue const &) {
        m_table.reset();
        return std::wstring();
    };
    m_table->SetColumns(columns);
    ASSERT_TRUE(m_table->EditCell(0, TableRowsSource::name_column));
    SetText(L"typed");
    PressInEdit(VK_RETURN);
    EXPECT_EQ(m_table, nullptr);
    EXPECT_EQ(m_source->At(0).name, L"Ch 0");
    MakeTable();
    m_table->SetSource(m_source);
    m_table->m_onEditRefused = [this](TableRow, unsigned int, TableRefused const &) {
        m_table.reset();
        return std::wstring(L"gone");
    };
    ASSERT_TRUE(m_table->EditCell(0, TableRowsSource::number_column));
    SetText(L"2000");
    PressInEdit(VK_TAB);
    EXPECT_EQ(m_table, nullptr);
    MakeTable();
    m_table->SetSource(m_source);
    ASSERT_TRUE(m_table->EditCell(0, TableRowsSource::number_column));
    m_table.reset();
    tests::PumpPosted();
    MakeTable();
    m_table->SetSource(m_source);
    ASSERT_TRUE(m_table->EditCell(0, TableRowsSource::number_column));
    ::DestroyWindow(Edit());
    m_table->UpdateNow();
    EXPECT_TRUE(m_table->EndEdit(true));
    EXPECT_FALSE(m_table->IsEditing());
}

TEST_F(TableEdits, AMessageOfAnEndedWindowIsNotForTheNextOne)
{
    Show(std::vector<double>(100, 1.0));
    std::vector<TableColumn> columns = Columns();
    columns[TableRowsSource::name_column].check = [this](TableValue const &) {
        m_table->DestroyWindow();
        m_table->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 380, 220), m_host, 7);
        return std::wstring();
    };
    m_table->SetColumns(columns);
    HWND const former = m_table->m_hWnd;
    ASSERT_TRUE(m_table->EditCell(0, TableRowsSource::name_column));
    SetText(L"typed");
    m_table->SendMessage(WM_VSCROLL, SB_PAGEDOWN, 0);
    EXPECT_FALSE(::IsWindow(former));
    ASSERT_NE(m_table->m_hWnd, nullptr);
    EXPECT_EQ(m_table->GetTopIndex(), 0);
}

/// Does something within each notification of some native code.
class NotifiedParent : public tests::ScopedWindow
{
public:
    std::function<void()> m_onNotify;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result) override
    {
        if (auto const act = m_onNotify)
            act();
        return ScopedWindow::OnNotify(wParam, lParam, result);
    }
};

TEST_F(TableEdits, ColumnsMayGoWhileTheEditsPlaceIsLookedFor)
{
    NotifiedParent host;
    m_table = std::make_unique<tests::TestTable>();
    m_table->SetColumns(Columns());
    ASSERT_TRUE(m_table->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 380, 220), host, 7));
    Show({1, 2, 3, 4});
    std::vector<TableColumn> columns = Columns();
    columns.resize(1);
    columns[0].editable = false;
    // In the first notification, in the second one, and so on.
    int told = 0;
    for (int when = 1; when == 1 || told >= when - 1; ++when)
    {
        m_table->EndEdit(false);
        m_table->SetColumns(Columns());
        tests::PumpPosted();
        told = 0;
        host.m_onNotify = [&] {
            if (++told == when)
                m_table->SetColumns(columns);
        };
        bool const opened = m_table->EditCell(1, 1);
        EXPECT_EQ(opened, told < when) << when;
        host.m_onNotify = {};
    }
    EXPECT_GT(told, 0);
    m_table.reset();
}

/// Does something once, where its edit asks for colours or tells of a change.
class AskedTable : public tests::TestTable
{
public:
    std::function<void()> m_onAsked;
    std::function<void()> m_onTold;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        std::function<void()> act;
        if (message == WM_CTLCOLOREDIT)
            act = std::exchange(m_onAsked, {});
        else if (message == WM_COMMAND && HIWORD(wParam) == EN_UPDATE)
            act = std::exchange(m_onTold, {});
        if (act)
            act();
        return TestTable::WindowProc(message, wParam, lParam);
    }
};

class AskedTables : public TableEdits
{
protected:
    void SetUp() override
    {
        TableEdits::SetUp();
        Make(Columns());
    }
    void Make(std::vector<TableColumn> columns)
    {
        m_asked = new AskedTable;
        m_table.reset(m_asked);
        m_table->SetColumns(std::move(columns));
        ASSERT_TRUE(m_table->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 380, 220), &m_host, 7));
        Show({1, 2, 3, 4});
        ASSERT_TRUE(m_table->EditCell(1, TableRowsSource::name_column));
        m_edit = Edit();
        ASSERT_NE(m_edit, nullptr);
    }

    tests::GuardedHeap m_heap;
    AskedTable * m_asked = nullptr;
    HWND m_edit = nullptr;
};

TEST_F(AskedTables, MayEndWhileTheEditAsksForColours)
{
    bool isThere = false;
    m_asked->m_onAsked = [&] {
        m_table->DestroyWindow();
        isThere = ::IsWindow(m_edit) != FALSE;
    };
    ::RedrawWindow(m_edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(m_table->m_hWnd, nullptr) << "it was asked";
    EXPECT_TRUE(isThere);
    EXPECT_FALSE(::IsWindow(m_edit));
    m_table.reset();
}

TEST_F(AskedTables, MayEndWhileTheTextIsTakenThatTheEditTellsOf)
{
    bool isThere = false;
    std::vector<TableColumn> columns = Columns();
    columns[TableRowsSource::name_column].check = [&](TableValue const &) {
        m_table->DestroyWindow();
        isThere = ::IsWindow(m_edit) != FALSE;
        return std::wstring();
    };
    Make(std::move(columns));
    m_asked->m_onTold = [this] { m_table->EndEdit(true); };
    ::SendMessageW(m_edit, WM_CHAR, L'x', 1);
    EXPECT_EQ(m_table->m_hWnd, nullptr);
    EXPECT_TRUE(isThere);
    EXPECT_FALSE(::IsWindow(m_edit));
    m_table.reset();
}

TEST_F(TableEdits, TheHostMayEndTheEditThatAsksForColours)
{
    tests::GuardedHeap heap;
    auto const asked = new AskedTable;
    m_table.reset(asked);
    m_table->SetColumns(Columns());
    ASSERT_TRUE(m_table->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 380, 220), &m_host, 7));
    Show({1, 2, 3, 4});
    ASSERT_TRUE(m_table->EditCell(1, TableRowsSource::name_column));
    HWND const edit = Edit();
    ASSERT_NE(edit, nullptr);
    bool isThere = false;
    bool isSeen = true;
    asked->m_onAsked = [&] {
        EXPECT_TRUE(m_table->EndEdit(false));
        isThere = ::IsWindow(edit) != FALSE;
        isSeen = ::IsWindowVisible(edit) != FALSE;
    };
    ::RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_FALSE(asked->m_onAsked) << "it was asked";
    EXPECT_TRUE(isThere) << "the native edit goes on after it has asked";
    EXPECT_FALSE(isSeen);
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_FALSE(m_table->IsEditing());
    EXPECT_TRUE(m_table->EditCell(2, TableRowsSource::name_column));
    m_table.reset();
}

TEST_F(TableEdits, RowsThatArePaintedLeaveTheEditAsItIs)
{
    ASSERT_TRUE(m_table->EditCell(1, TableRowsSource::name_column));
    EXPECT_NE(m_table->GetStyle() & WS_CLIPCHILDREN, 0U);
    m_source->SetNumber(1, 8);
    ::ValidateRect(Edit(), nullptr);
    m_table->Feed()->RowsChanged(1, 1);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->GetItemText(1, 1) == L"8.0"; }));
    EXPECT_FALSE(::GetUpdateRect(Edit(), nullptr, FALSE));
}

TEST_F(TableEdits, SpaceTogglesTicks)
{
    Click(CellPoint(1, 3));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->FocusRow() == 1; }));
    tests::Key(VK_LEFT); // from the progress to the tick
    tests::Key(VK_SPACE);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_source->At(1).ticked; }));
    tests::Key(VK_SPACE);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_source->At(1).ticked; }));
    tests::Key(VK_DOWN);
    tests::Key(VK_SPACE);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_source->At(2).ticked; }));
    // A text is no tick; there it begins to be typed into.
    tests::Key(VK_LEFT);
    tests::Key(VK_SPACE);
    ASSERT_TRUE(PumpUntilOpen(L" "));
    EXPECT_TRUE(m_source->At(2).ticked);
}

TEST_F(TableEdits, ArrowsLeadFromCellToCellAndBringThemIntoView)
{
    m_table->SetWindowPos(nullptr, 0, 0, 170, 220, SWP_NOMOVE | SWP_NOZORDER);
    Press(0, 0);
    for (int i = 0; i < 10; ++i)
        PressKey(VK_RIGHT);
    EXPECT_LE(TitleRect(4).right, 170);
    EXPECT_GE(TitleRect(4).left, 0);
    for (int i = 0; i < 4; ++i)
        PressKey(VK_LEFT);
    EXPECT_EQ(TitleRect(0).left, 0);
    PressKey(VK_F2);
    EXPECT_EQ(Text(), L"Ch 0");
}

namespace
{
/// Records where menus are asked for.
class MenuParent : public tests::ScopedWindow
{
public:
    using ScopedWindow::ScopedWindow;

    struct Asked
    {
        HWND window;
        CPoint place;
    };
    std::vector<Asked> asked;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CONTEXTMENU)
        {
            asked.push_back({reinterpret_cast<HWND>(wParam), CPoint(lParam)});
            return 0;
        }
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST_F(TableEdits, TheHostIsAskedForTheMenuAtTheCell)
{
    MenuParent host{CRect(100, 100, 520, 380)};
    ASSERT_EQ(m_table->SetParent(host), static_cast<CWnd *>(&m_host));
    ASSERT_TRUE(tests::BringToFront(host.m_hWnd));
    Click(CellPoint(2, 1));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_table->FocusRow() == 2; }));
    auto const cell = [this](TableRow position, int place) {
        CPoint const middle = CellPoint(position, place);
        CRect row(0, 0, 0, 0);
        m_table->GetItemRect(static_cast<int>(position), &row, LVIR_BOUNDS);
        CRect rect(TitleRect(place).left, row.top, TitleRect(place).right, row.bottom + 1);
        EXPECT_TRUE(rect.PtInRect(middle));
        m_table->ClientToScreen(&rect);
        return rect;
    };
    // The release of that key would open the window's own menu in Wine.
    BYTE keys[256] = {};
    ASSERT_TRUE(::GetKeyboardState(keys));
    keys[VK_SHIFT] = 0x80;
    ::SetKeyboardState(keys);
    m_table->SendMessage(WM_SYSKEYDOWN, VK_F10, 1);
    keys[VK_SHIFT] = 0;
    ::SetKeyboardState(keys);
    ASSERT_EQ(host.asked.size(), 1U);
    EXPECT_EQ(host.asked[0].window, m_table->m_hWnd);
    EXPECT_TRUE(cell(2, 1).PtInRect(host.asked[0].place));
    Click(CellPoint(1, 3), true);
    ASSERT_TRUE(tests::PumpUntil([&host] { return host.asked.size() == 2; }));
    EXPECT_TRUE(cell(1, 3).PtInRect(host.asked[1].place));
    EXPECT_EQ(m_table->FocusRow(), 1U);
    m_table->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_table->m_hWnd), -1);
    ASSERT_EQ(host.asked.size(), 3U);
    EXPECT_TRUE(cell(1, 3).PtInRect(host.asked[2].place));
    tests::PumpPosted();
    EXPECT_EQ(host.asked.size(), 3U) << "each once";
    m_table.reset();
}
