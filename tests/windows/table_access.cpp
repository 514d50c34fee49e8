// The table as programs that read the screen see it, and what they hear.

#include <atomic>
#include <limits>

#include "access_AccessTest.h"
#include "ResourceReader.h"
#include "table_TableTest.h"

using access_tests::ActionOf;
using access_tests::Ask;
using access_tests::CountOf;
using access_tests::Held;
using access_tests::Listener;
using access_tests::NameOf;
using access_tests::Number;
using access_tests::PlaceOf;
using access_tests::RoleOf;
using access_tests::StatesOf;
using access_tests::Times;
using access_tests::ValueOf;
using accessible::Element;

namespace
{
long Cell(int position, int place)
{
    return accessible::NumberOf({position, place});
}

class TableAccess : public access_tests::ObjectTest<tests::TableTest>
{
protected:
    void SetUp() override
    {
        TableTest::SetUp();
        Show({10, 2.5, 40, 30, 20});
        ASSERT_EQ(Ask(m_table->m_hWnd, m_object), S_OK);
    }

    CString Value(int position, int place) { return ValueOf(*m_object.Get(), Cell(position, place)); }
    long States(int position, int place) { return StatesOf(*m_object.Get(), Cell(position, place)); }
    long RowStates(int position) { return StatesOf(*m_object.Get(), position + 1); }
    /// What was told since, of all that has happened by now.
    std::vector<Listener::Event> Heard(Listener & listener)
    {
        tests::PumpPosted();
        return listener.Take();
    }
    static bool Has(std::vector<Listener::Event> const & heard, DWORD event, Element element)
    {
        return Times(heard, event, element) == 1;
    }
};

/// Counts what it is asked.
class CountingSource : public tests::ManyRowsSource
{
public:
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        ++m_questions;
        return ManyRowsSource::Read(row, column, value);
    }
    TableKey Key(TableRow row) const override
    {
        ++m_questions;
        return row;
    }
    long Take() { return m_questions.exchange(0); }

private:
    mutable std::atomic<long> m_questions{0};
};

/// Does something when it is asked.
class ActingSource : public tests::TableRowsSource
{
public:
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        if (auto const act = std::exchange(m_onRead, nullptr))
            act();
        return TableRowsSource::Read(row, column, value);
    }
    TableKey Key(TableRow row) const override
    {
        if (auto const act = std::exchange(m_onKey, nullptr))
            act();
        return TableRowsSource::Key(row);
    }
    TableRow RowOfKey(TableKey key) const override
    {
        if (auto const act = std::exchange(m_onRowOfKey, nullptr))
            act();
        return TableRowsSource::RowOfKey(key);
    }
    mutable std::function<void()> m_onRead;
    mutable std::function<void()> m_onKey;
    mutable std::function<void()> m_onRowOfKey;
};
} // namespace

TEST_F(TableAccess, IsATreeOfRowsAndCells)
{
    m_table->SetWindowText(L"Channels");
    EXPECT_EQ(NameOf(*m_object.Get()), L"Channels");
    EXPECT_EQ(RoleOf(*m_object.Get()), ROLE_SYSTEM_LIST);
    EXPECT_NE(StatesOf(*m_object.Get()) & STATE_SYSTEM_MULTISELECTABLE, 0);
    ASSERT_EQ(CountOf(*m_object.Get()), 5);
    EXPECT_EQ(RoleOf(*m_object.Get(), 2), ROLE_SYSTEM_LISTITEM);
    EXPECT_EQ(NameOf(*m_object.Get(), 2), L"Ch 1");
    Held<IDispatch> found;
    Held<IAccessible> row;
    ASSERT_EQ(m_object->get_accChild(Number(2), found.Out()), S_OK);
    ASSERT_EQ(found->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(row.Out())), S_OK);
    ASSERT_EQ(CountOf(*row.Get()), 5);
    struct
    {
        long role;
        wchar_t const * name;
        wchar_t const * value;
        wchar_t const * action;
        bool readOnly;
    } const cells[] = {
        {ROLE_SYSTEM_TEXT, L"Name", L"Ch 1", L"Edit", false},
        {ROLE_SYSTEM_TEXT, L"Number [V]", L"2.5", L"Edit", false},
        {ROLE_SYSTEM_CHECKBUTTON, L"On", L"", L"Check", false},
        {ROLE_SYSTEM_PROGRESSBAR, L"Done", L"2%", L"", true},
        {ROLE_SYSTEM_LINK, L"More", L"Ch 1", L"Jump", false},
    };
    for (int place = 0; place < 5; ++place)
    {
        SCOPED_TRACE(place);
        EXPECT_EQ(RoleOf(*row.Get(), place + 1), cells[place].role);
        EXPECT_EQ(NameOf(*row.Get(), place + 1), cells[place].name);
        EXPECT_EQ(ValueOf(*row.Get(), place + 1), cells[place].value);
        EXPECT_EQ(ActionOf(*row.Get(), place + 1), cells[place].action);
        EXPECT_EQ((StatesOf(*row.Get(), place + 1) & STATE_SYSTEM_READONLY) != 0, cells[place].readOnly);
    }
    EXPECT_NE(States(1, 4) & STATE_SYSTEM_LINKED, 0);
    m_table->EnableWindow(FALSE);
    EXPECT_NE(States(1, 2) & STATE_SYSTEM_UNAVAILABLE, 0);
    EXPECT_EQ(ActionOf(*m_object.Get(), Cell(1, 2)), L"");
    EXPECT_EQ(m_object->accDoDefaultAction(Number(Cell(1, 2))), DISP_E_MEMBERNOTFOUND);
    EXPECT_FALSE(m_source->At(1).ticked);
}

TEST_F(TableAccess, IsNamedByItsLabelWithoutATextOfItsOwn)
{
    CStatic label;
    tests::WindowCloser const closer(label);
    label.Create(L"&Channels:", WS_CHILD | WS_VISIBLE, CRect(0, 230, 80, 250), m_host);
    label.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(NameOf(*m_object.Get()), L"Channels");
}

TEST_F(TableAccess, ShowsRowsAndColumnsAsTheUserSeesThem)
{
    m_table->SortBy({{tests::TableRowsSource::number_column, true}});
    EXPECT_EQ(NameOf(*m_object.Get(), 1), L"Ch 2");
    EXPECT_EQ(Value(4, 1), L"2.5");
    m_table->MoveTableColumn(tests::TableRowsSource::link_column, 0);
    m_table->HideTableColumn(tests::TableRowsSource::number_column, true);
    EXPECT_EQ(NameOf(*m_object.Get(), Cell(0, 0)), L"More");
    EXPECT_EQ(NameOf(*m_object.Get(), Cell(0, 1)), L"Name");
    EXPECT_EQ(NameOf(*m_object.Get(), Cell(0, 2)), L"On");
    EXPECT_EQ(RoleOf(*m_object.Get(), Cell(0, 4)), -1) << "hidden";
    TableFilter filter;
    filter.ranges.push_back({tests::TableRowsSource::number_column, 15, 35});
    m_table->SetRowFilter(filter);
    EXPECT_EQ(CountOf(*m_object.Get()), 2);
    EXPECT_EQ(NameOf(*m_object.Get(), 1), L"Ch 3");
    EXPECT_EQ(NameOf(*m_object.Get(), 2), L"Ch 4");
    EXPECT_EQ(RoleOf(*m_object.Get(), 3), -1) << "kept out";
}

TEST_F(TableAccess, ElementsAreFoundWhereTheyAre)
{
    CPoint const point = tests::ClientPoint(m_table->m_hWnd, CellPoint(3, 1));
    CRect const place = PlaceOf(*m_object.Get(), Cell(3, 1));
    EXPECT_EQ(place.CenterPoint().y, point.y);
    EXPECT_EQ(place.Width(), column_width);
    EXPECT_TRUE(place.PtInRect(point));
    VARIANT hit{};
    ASSERT_EQ(m_object->accHitTest(point.x, point.y, &hit), S_OK);
    ASSERT_EQ(hit.vt, VT_DISPATCH);
    EXPECT_EQ(ValueOf(*static_cast<IAccessible *>(hit.pdispVal)), L"30.0");
    EXPECT_EQ(hit.pdispVal->Release(), 0U);
    VARIANT to{};
    ASSERT_EQ(m_object->accNavigate(NAVDIR_RIGHT, Number(Cell(3, 1)), &to), S_OK);
    EXPECT_EQ(NameOf(*static_cast<IAccessible *>(to.pdispVal)), L"On");
    to.pdispVal->Release();
    ASSERT_EQ(m_object->accNavigate(NAVDIR_UP, Number(Cell(3, 1)), &to), S_OK);
    EXPECT_EQ(ValueOf(*static_cast<IAccessible *>(to.pdispVal)), L"40.0");
    to.pdispVal->Release();
    EXPECT_EQ(m_object->accNavigate(NAVDIR_DOWN, Number(Cell(4, 1)), &to), S_FALSE);
}

TEST_F(TableAccess, CellsOutOfSightSayIt)
{
    std::vector<double> const numbers(100, 1.0);
    Show(numbers);
    EXPECT_EQ(RowStates(0) & STATE_SYSTEM_OFFSCREEN, 0);
    EXPECT_NE(RowStates(99) & STATE_SYSTEM_OFFSCREEN, 0);
    EXPECT_GT(PlaceOf(*m_object.Get(), Cell(99, 0)).top, PlaceOf(*m_object.Get(), Cell(0, 0)).bottom);
    m_table->GoToRow(99);
    EXPECT_EQ(RowStates(99) & STATE_SYSTEM_OFFSCREEN, 0);
    int const top = m_table->GetTopIndex();
    EXPECT_EQ(RowStates(top) & STATE_SYSTEM_OFFSCREEN, 0);
    EXPECT_NE(RowStates(top - 1) & STATE_SYSTEM_OFFSCREEN, 0) << "below the titles";
    // Columns are scrolled below those that stand still.
    m_table->SetFrozenColumns(1);
    m_table->SetColumnWidth(4, 300);
    m_table->Scroll(CSize(column_width, 0));
    EXPECT_EQ(States(99, 0) & STATE_SYSTEM_OFFSCREEN, 0);
    EXPECT_NE(States(99, 1) & STATE_SYSTEM_OFFSCREEN, 0);
    EXPECT_EQ(States(99, 2) & STATE_SYSTEM_OFFSCREEN, 0);
    EXPECT_EQ(PlaceOf(*m_object.Get(), Cell(99, 0)).left, PlaceOf(*m_object.Get()).left);
}

TEST_F(TableAccess, DefaultActionIsAClick)
{
    std::vector<std::pair<TableRow, unsigned int>> links;
    m_table->m_onLinkClick = [&](TableRow row, unsigned int column) { links.emplace_back(row, column); };
    EXPECT_EQ(m_object->accDoDefaultAction(Number(Cell(1, 2))), S_OK);
    EXPECT_TRUE(m_source->At(1).ticked);
    EXPECT_NE(States(1, 2) & STATE_SYSTEM_CHECKED, 0);
    EXPECT_EQ(Value(1, 2), L"") << "a mark is no text";
    EXPECT_EQ(ActionOf(*m_object.Get(), Cell(1, 2)), L"Uncheck");
    EXPECT_EQ(m_object->accDoDefaultAction(Number(Cell(3, 4))), S_OK);
    EXPECT_EQ(links, (std::vector<std::pair<TableRow, unsigned int>>{{3, 4}}));
    EXPECT_EQ(m_object->accDoDefaultAction(Number(Cell(3, 3))), DISP_E_MEMBERNOTFOUND) << "a bar";
    EXPECT_EQ(m_object->accDoDefaultAction(Number(2)), DISP_E_MEMBERNOTFOUND) << "a row";
    EXPECT_EQ(m_object->accDoDefaultAction(Number(Cell(4, 0))), S_OK);
    EXPECT_TRUE(m_table->IsEditing());
    // Its text is taken by the next one, as by a press elsewhere.
    m_table->GetDlgItem(0x7A11)->SetWindowText(L"other");
    EXPECT_EQ(m_object->accDoDefaultAction(Number(Cell(0, 2))), S_OK);
    EXPECT_FALSE(m_table->IsEditing());
    EXPECT_EQ(m_source->At(4).name, L"other");
    EXPECT_TRUE(m_source->At(0).ticked);
}

TEST_F(TableAccess, ActionsAreSpokenInTheLanguageInForce)
{
    tests::ScopedLanguage const german(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN));
    EXPECT_EQ(ActionOf(*m_object.Get(), Cell(1, 2)), L"Ankreuzen");
    EXPECT_EQ(ActionOf(*m_object.Get(), Cell(1, 0)), L"Bearbeiten");
}

TEST_F(TableAccess, TicksThatNobodyMayChangeAreReadOnly)
{
    std::vector<TableColumn> columns = Columns();
    columns[2].editable = false;
    m_table->SetColumns(columns);
    EXPECT_EQ(RoleOf(*m_object.Get(), Cell(0, 2)), ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_NE(States(0, 2) & STATE_SYSTEM_READONLY, 0);
    EXPECT_EQ(ActionOf(*m_object.Get(), Cell(0, 2)), L"");
    EXPECT_EQ(m_object->accDoDefaultAction(Number(Cell(0, 2))), DISP_E_MEMBERNOTFOUND);
}

TEST_F(TableAccess, SelectsRows)
{
    int changes = 0;
    m_table->m_onSelectionChange = [&] { ++changes; };
    EXPECT_EQ(m_object->accSelect(SELFLAG_TAKESELECTION | SELFLAG_TAKEFOCUS, Number(2)), S_OK);
    EXPECT_EQ(changes, 1) << "as the user does it";
    EXPECT_EQ(m_table->SelectedRows(), (std::vector<TableRow>{1}));
    EXPECT_EQ(m_table->FocusRow(), 1U);
    EXPECT_NE(RowStates(1) & STATE_SYSTEM_SELECTED, 0);
    EXPECT_NE(RowStates(1) & STATE_SYSTEM_FOCUSED, 0);
    EXPECT_EQ(RowStates(2) & (STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED), 0);
    VARIANT focus{};
    ASSERT_EQ(m_object->get_accFocus(&focus), S_OK);
    ASSERT_EQ(focus.vt, VT_DISPATCH);
    EXPECT_EQ(NameOf(*static_cast<IAccessible *>(focus.pdispVal)), L"Ch 1");
    focus.pdispVal->Release();
    VARIANT selection{};
    ASSERT_EQ(m_object->get_accSelection(&selection), S_OK);
    ASSERT_EQ(selection.vt, VT_DISPATCH) << "one";
    selection.pdispVal->Release();

    EXPECT_EQ(m_object->accSelect(SELFLAG_ADDSELECTION, Number(4)), S_OK);
    EXPECT_EQ(m_object->accSelect(SELFLAG_ADDSELECTION, Number(5)), S_OK);
    EXPECT_EQ(m_object->accSelect(SELFLAG_REMOVESELECTION, Number(5)), S_OK);
    EXPECT_EQ(m_table->SelectedRows(), (std::vector<TableRow>{1, 3}));
    ASSERT_EQ(m_object->get_accSelection(&selection), S_OK);
    ASSERT_EQ(selection.vt, VT_UNKNOWN);
    Held<IEnumVARIANT> several;
    selection.punkVal->QueryInterface(__uuidof(IEnumVARIANT), reinterpret_cast<void **>(several.Out()));
    selection.punkVal->Release();
    for (int round = 0; round < 2; ++round)
    {
        VARIANT rows[3]{};
        ULONG given = 0;
        EXPECT_EQ(several->Next(3, rows, &given), S_FALSE);
        ASSERT_EQ(given, 2U);
        EXPECT_EQ(NameOf(*static_cast<IAccessible *>(rows[0].pdispVal)), L"Ch 1");
        EXPECT_EQ(NameOf(*static_cast<IAccessible *>(rows[1].pdispVal)), L"Ch 3");
        for (VARIANT const & row : {rows[0], rows[1]})
            EXPECT_EQ(row.pdispVal->Release(), 0U);
        several->Reset();
    }
    EXPECT_EQ(several->Skip(2), S_OK);
    EXPECT_EQ(several->Skip(1), S_FALSE);
    EXPECT_EQ(m_object->accSelect(SELFLAG_TAKESELECTION, Number(1)), S_OK);
    EXPECT_EQ(m_object->accSelect(SELFLAG_EXTENDSELECTION, Number(3)), S_OK);
    EXPECT_EQ(m_table->SelectedRows(), (std::vector<TableRow>{0, 1, 2}));
    EXPECT_EQ(m_object->accSelect(SELFLAG_TAKEFOCUS, Number(Cell(1, 1))), DISP_E_MEMBERNOTFOUND) << "no cursor";
    EXPECT_EQ(m_object->accSelect(SELFLAG_TAKESELECTION, Number(9)), E_INVALIDARG);
}

TEST_F(TableAccess, AMillionRowsCostWhatOneDoes)
{
    auto const many = std::make_shared<CountingSource>();
    m_table->SetColumns(Columns());
    m_table->SetSource(many);
    m_table->SortBy({{1, true}});
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_table->IsOrdering(); }));
    tests::PumpPosted();
    int const last = static_cast<int>(tests::ManyRowsSource::count) - 1;
    m_table->GoToRow(m_table->RowAt(static_cast<TableRow>(last)));
    m_table->UpdateNow();
    tests::PumpPosted();
    many->Take();
    Held<IDispatch> found;
    Held<IAccessible> row;
    EXPECT_EQ(CountOf(*m_object.Get()), last + 1);
    ASSERT_EQ(m_object->get_accChild(Number(last + 1), found.Out()), S_OK);
    ASSERT_EQ(found->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(row.Out())), S_OK);
    EXPECT_EQ(ValueOf(*row.Get(), 2), m_table->ShownText(m_table->FocusRow(), 1).c_str());
    EXPECT_NE(StatesOf(*row.Get()) & STATE_SYSTEM_SELECTED, 0);
    EXPECT_EQ(StatesOf(*m_object.Get(), 1) & STATE_SYSTEM_SELECTED, 0);
    VARIANT selection{};
    ASSERT_EQ(m_object->get_accSelection(&selection), S_OK);
    ASSERT_EQ(selection.vt, VT_DISPATCH);
    selection.pdispVal->Release();
    EXPECT_LT(many->Take(), 100);

    m_table->SelectAllRows();
    many->Take();
    ASSERT_EQ(m_object->get_accSelection(&selection), S_OK);
    ASSERT_EQ(selection.vt, VT_UNKNOWN);
    Held<IEnumVARIANT> several;
    selection.punkVal->QueryInterface(__uuidof(IEnumVARIANT), reinterpret_cast<void **>(several.Out()));
    selection.punkVal->Release();
    VARIANT rows[3]{};
    EXPECT_EQ(several->Next(3, rows, nullptr), S_OK);
    for (VARIANT const & each : rows)
        each.pdispVal->Release();
    EXPECT_LT(many->Take(), 100) << "they are asked for one after the other";
    m_table->SetSource(nullptr);
}

TEST_F(TableAccess, FocusAndSelectionAreHeardOf)
{
    m_table->SetFocus();
    tests::PumpPosted();
    Listener listener(m_table->m_hWnd);
    Heard(listener);
    Press(2, 3);
    std::vector<Listener::Event> heard = Heard(listener);
    EXPECT_TRUE(Has(heard, EVENT_OBJECT_SELECTION, {2, -1}));
    EXPECT_TRUE(Has(heard, EVENT_OBJECT_FOCUS, {2, -1}));
    PressKey(VK_DOWN);
    heard = Heard(listener);
    EXPECT_TRUE(Has(heard, EVENT_OBJECT_SELECTION, {3, -1}));
    EXPECT_TRUE(Has(heard, EVENT_OBJECT_FOCUS, {3, -1}));
    Press(1, 3, MK_CONTROL);
    EXPECT_TRUE(Has(Heard(listener), EVENT_OBJECT_SELECTIONADD, {1, -1}));
    Press(1, 3, MK_CONTROL);
    EXPECT_TRUE(Has(Heard(listener), EVENT_OBJECT_SELECTIONREMOVE, {1, -1}));
    m_table->SelectAllRows();
    heard = Heard(listener);
    EXPECT_TRUE(Has(heard, EVENT_OBJECT_SELECTIONWITHIN, {}));
    EXPECT_EQ(Times(heard, EVENT_OBJECT_SELECTION) + Times(heard, EVENT_OBJECT_SELECTIONADD), 0);
    // However many rows a host selects one by one.
    for (int i = 0; i < 1000; ++i)
        m_table->SetItemState(i % 5, LVIS_SELECTED, LVIS_SELECTED);
    heard = Heard(listener);
    EXPECT_TRUE(Has(heard, EVENT_OBJECT_SELECTIONWITHIN, {}));
    EXPECT_EQ(Times(heard, EVENT_OBJECT_SELECTION) + Times(heard, EVENT_OBJECT_SELECTIONADD), 0);
}

TEST_F(TableAccess, ValuesAndOrderAreHeardOfOnceForABatch)
{
    m_table->UpdateWindow();
    tests::PumpPosted();
    Listener listener(m_table->m_hWnd);
    Heard(listener);
    m_object->accDoDefaultAction(Number(Cell(1, 2)));
    auto heard = Heard(listener);
    EXPECT_TRUE(Has(heard, EVENT_OBJECT_STATECHANGE, {1, 2}));
    EXPECT_TRUE(Has(heard, EVENT_OBJECT_VALUECHANGE, {1, 2}));
    EXPECT_EQ(Times(heard, EVENT_OBJECT_VALUECHANGE), 1);
    m_table->EditCell(3, 0);
    Heard(listener);
    m_table->GetDlgItem(0x7A11)->SetWindowText(L"other");
    EXPECT_TRUE(m_table->EndEdit(true));
    EXPECT_TRUE(Has(Heard(listener), EVENT_OBJECT_VALUECHANGE, {3, 0}));
    m_source->SetNumber(2, 7);
    m_table->Feed()->RowsChanged(2, 2);
    m_table->UpdateNow();
    EXPECT_TRUE(Has(Heard(listener), EVENT_OBJECT_VALUECHANGE, {2, -1}));
    for (int i = 0; i < 1000; ++i)
    {
        m_source->SetNumber(static_cast<TableRow>(i % 5), i);
        m_table->Feed()->RowsChanged(static_cast<TableRow>(i % 5), static_cast<TableRow>(i % 5));
        m_table->UpdateNow();
    }
    heard = Heard(listener);
    EXPECT_TRUE(Has(heard, EVENT_OBJECT_VALUECHANGE, {}));
    EXPECT_EQ(Times(heard, EVENT_OBJECT_VALUECHANGE), 1);
    EXPECT_EQ(Times(heard, EVENT_OBJECT_REORDER), 0);
    for (int i = 0; i < 100; ++i)
    {
        m_source->Append(L"new", i);
        m_table->Feed()->RowsAppended(1);
        m_table->UpdateNow();
    }
    m_table->SortBy({{1, true}});
    m_table->HideTableColumn(3, true);
    heard = Heard(listener);
    EXPECT_TRUE(Has(heard, EVENT_OBJECT_REORDER, {}));
    EXPECT_EQ(Times(heard, EVENT_OBJECT_REORDER), 1);
}

TEST_F(TableAccess, ObjectsOutliveTheTable)
{
    Held<IDispatch> found;
    Held<IAccessible> row;
    ASSERT_EQ(m_object->get_accChild(Number(2), found.Out()), S_OK);
    ASSERT_EQ(found->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(row.Out())), S_OK);
    m_table->SelectAllRows();
    VARIANT selection{};
    ASSERT_EQ(m_object->get_accSelection(&selection), S_OK);
    ASSERT_EQ(selection.vt, VT_UNKNOWN);
    Held<IEnumVARIANT> several;
    selection.punkVal->QueryInterface(__uuidof(IEnumVARIANT), reinterpret_cast<void **>(several.Out()));
    selection.punkVal->Release();
    m_table->DestroyWindow();
    long count = 0;
    BSTR text = nullptr;
    EXPECT_EQ(m_object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(row->get_accName(Number(0), &text), CO_E_OBJNOTCONNECTED);
    m_table.reset();
    EXPECT_EQ(row->get_accValue(Number(2), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(m_object->accDoDefaultAction(Number(Cell(0, 2))), CO_E_OBJNOTCONNECTED);
    VARIANT next{};
    EXPECT_EQ(several->Next(1, &next, nullptr), S_FALSE);
    EXPECT_EQ(several->Skip(1), S_FALSE);
    EXPECT_EQ(several->Reset(), S_OK);
}

// Whatever is asked, the host may end the table within it.
TEST_F(TableAccess, TheTableMayEndWhileItIsAsked)
{
    enum Question
    {
        name,
        row_name,
        state,
        row_state,
        value,
        action,
        act_tick,
        act_edit,
        select,
        extend,
        focus,
        selection,
        last
    };
    std::function<void()> ActingSource::*const moments[] = {&ActingSource::m_onRead, &ActingSource::m_onKey,
                                                            &ActingSource::m_onRowOfKey};
    int ended = 0;
    for (int question = name; question < last; ++question)
    {
        for (auto const moment : moments)
        {
            SCOPED_TRACE(question);
            m_object.Release();
            MakeTable();
            auto const acting = std::make_shared<ActingSource>();
            for (int i = 0; i < 5; ++i)
                acting->Append(L"row", i);
            m_table->SetSource(acting);
            m_table->SetFocus();
            m_table->GoToRow(1);
            m_table->SetItemState(3, LVIS_SELECTED, LVIS_SELECTED);
            m_table->UpdateNow();
            tests::PumpPosted();
            ASSERT_EQ(Ask(m_table->m_hWnd, m_object), S_OK);
            (*acting).*moment = [this] { m_table.reset(); };
            VARIANT given{};
            switch (question)
            {
            case name:
                NameOf(*m_object.Get(), Cell(1, 0));
                break;
            case row_name:
                NameOf(*m_object.Get(), 2);
                break;
            case state:
                States(1, 2);
                break;
            case row_state:
                RowStates(1);
                break;
            case value:
                Value(1, 1);
                break;
            case action:
                ActionOf(*m_object.Get(), Cell(1, 2));
                break;
            case act_tick:
                m_object->accDoDefaultAction(Number(Cell(1, 2)));
                break;
            case act_edit:
                m_object->accDoDefaultAction(Number(Cell(1, 0)));
                break;
            case select:
                m_object->accSelect(SELFLAG_TAKESELECTION | SELFLAG_TAKEFOCUS, Number(3));
                break;
            case extend:
                m_object->accSelect(SELFLAG_EXTENDSELECTION, Number(4));
                break;
            case focus:
                m_object->get_accFocus(&given);
                break;
            default:
                m_object->get_accSelection(&given);
                break;
            }
            if (given.vt == VT_DISPATCH || given.vt == VT_UNKNOWN)
                given.punkVal->Release();
            (*acting).*moment = nullptr;
            if (m_table == nullptr)
            {
                ++ended;
                long count = 0;
                EXPECT_EQ(m_object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
            }
        }
    }
    EXPECT_GT(ended, 15) << "most of them ask the source";
}

TEST_F(TableAccess, TenThousandCallsLeaveNothing)
{
    auto const call = [&](int times) {
        for (int i = 0; i < times; ++i)
        {
            Held<IDispatch> found;
            ASSERT_EQ(m_object->get_accChild(Number(i % 5 + 1), found.Out()), S_OK);
            Held<IAccessible> row;
            ASSERT_EQ(found->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(row.Out())), S_OK);
            ASSERT_EQ(found.Release(), 1U);
            ValueOf(*row.Get(), 2);
            ASSERT_EQ(row.Release(), 0U);
        }
    };
    call(10000);
    Held<IAccessible> other;
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(Ask(m_table->m_hWnd, other), S_OK);
    EXPECT_EQ(other.Release(), 0U);
    EXPECT_EQ(m_object.Release(), 0U);
}
