// A client in a process of its own, as a program that reads the screen is: what it learns of a list in another process
// by that list's window alone, and what is left in both afterwards.

#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <string>

#include "access_AccessTest.h"
#include "ChildProgram.h"
#include "GdiHandleCount.h"
#include "GuardedHeap.h"
#include "list/table/XTableCtrl.h"
#include "ListTestHost.h"

using access_tests::ActionOf;
using access_tests::Ask;
using access_tests::CountOf;
using access_tests::Held;
using access_tests::NameOf;
using access_tests::Number;
using access_tests::RoleOf;
using access_tests::StatesOf;
using access_tests::ValueOf;

namespace
{
// What the child's window is asked.
constexpr UINT ask_blocks = WM_APP + 1;
constexpr UINT ask_gdi_objects = WM_APP + 2;
constexpr UINT end_list = WM_APP + 3;
constexpr UINT end_program = WM_APP + 4;

constexpr int rows = 20;
constexpr int columns = 6;

/// The child's window. It tells what lives in its process.
class AnsweringParent : public tests::ListParent
{
public:
    AnsweringParent(tests::GuardedHeap & heap, CWnd & list) : m_heap(heap), m_list(list) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        switch (message)
        {
        case ask_blocks:
            return static_cast<LRESULT>(m_heap.LiveBlocks());
        case ask_gdi_objects:
            return tests::GdiHandleCount();
        case end_list:
            return m_list.DestroyWindow();
        case end_program:
            ::PostQuitMessage(0);
            return 0;
        default:
            return ListParent::WindowProc(message, wParam, lParam);
        }
    }

private:
    tests::GuardedHeap & m_heap;
    CWnd & m_list;
};

void Fill(tests::TestList & list)
{
    list.AddColumns(columns, 50);
    list.AddRows(rows);
    for (int row = 0; row < rows; ++row)
    {
        list.SetCheckbox(row, 1, row % 2 == 0 ? XLC_CHECKED : XLC_UNCHECKED);
        list.SetItemText(row, 2, std::to_wstring(row * 10).c_str());
        list.SetHyperlink(row, 3, true, false);
        list.SetProgress(row, 4, true, nullptr);
        list.UpdateProgress(row, 4, row * 5, row * 5);
        list.SetRadioButton(row, 5, row == 3 ? XLC_RADIO_ON : XLC_RADIO_OFF);
    }
}

/// Until the program is to end.
void Show(CWnd & parent)
{
    parent.ShowWindow(SW_SHOWNOACTIVATE);
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0)
        ::DispatchMessageW(&message);
}

// COM is not made ready here: many a program has no use for it.
CHILD_PROGRAM(ShowsAList)
{
    tests::GuardedHeap heap;
    tests::TestList list;
    AnsweringParent parent(heap, list);
    parent.SetWindowText(argument.c_str());
    list.Create(tests::TestList::default_style, CRect(0, 0, 360, 250), &parent, tests::TestList::id);
    Fill(list);
    Show(parent);
    return 0;
}

/// The rows of a table: a text, a tick, a number, a link and how much is done.
class Rows : public TableSource
{
public:
    TableRow RowCount() const override { return rows; }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        switch (column)
        {
        case 1:
            value.SetTick(m_ticked.at(row));
            return true;
        case 2:
            value.SetWhole(row * 10LL);
            return true;
        case 3:
            value.SetLink(L"link");
            return true;
        case 4:
            value.SetProgress(row * 5.0);
            return true;
        default:
            value.SetText(L"r" + std::to_wstring(row));
            return true;
        }
    }
    bool Write(TableRow row, unsigned int, TableValue const & value) override
    {
        m_ticked.at(row) = value.Whole() != 0;
        return true;
    }

private:
    std::array<bool, rows> m_ticked{};
};

// Its first column is hidden and its second one moved, the rows stand upside down.
CHILD_PROGRAM(ShowsATable)
{
    tests::GuardedHeap heap;
    CXTableCtrl table;
    AnsweringParent parent(heap, table);
    parent.SetWindowText(argument.c_str());
    table.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 360, 450), &parent, tests::TestList::id);
    std::vector<TableColumn> described(columns);
    for (std::size_t i = 0; i < described.size(); ++i)
    {
        described[i].title = L"c" + std::to_wstring(i);
        described[i].width = 50;
    }
    described[1].kind = TableKind::tick;
    described[1].editable = true;
    described[2].kind = TableKind::whole;
    described[5].hidden = true;
    table.SetColumns(described);
    table.MoveTableColumn(1, 0);
    table.SortBy({{2, true}});
    auto const source = std::make_shared<Rows>();
    table.SetSource(source);
    Show(parent);
    return 0;
}

/// What is heard from another process.
class FarListener
{
public:
    explicit FarListener(HWND window) : m_window(window)
    {
        s_listening = this;
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        m_hook = ::SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_VALUECHANGE, nullptr, &FarListener::Hear, process,
                                   0, WINEVENT_OUTOFCONTEXT);
    }
    ~FarListener()
    {
        ::UnhookWinEvent(m_hook);
        s_listening = nullptr;
    }
    FarListener(FarListener const &) = delete;
    FarListener & operator=(FarListener const &) = delete;

    bool WaitFor(DWORD event, accessible::Element element)
    {
        std::pair<DWORD, LONG> const wanted(event, accessible::NumberOf(element));
        return tests::PumpUntil([&] { return std::count(m_heard.begin(), m_heard.end(), wanted) > 0; });
    }

private:
    static void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD)
    {
        if (s_listening != nullptr && window == s_listening->m_window && object == OBJID_CLIENT)
            s_listening->m_heard.emplace_back(event, child);
    }
    static inline FarListener * s_listening = nullptr;

    HWND m_window;
    HWINEVENTHOOK m_hook = nullptr;
    std::vector<std::pair<DWORD, LONG>> m_heard;
};

/// The child of an object.
bool TakeChild(IAccessible & object, long child, Held<IAccessible> & taken)
{
    Held<IDispatch> found;
    taken.Release();
    return object.get_accChild(Number(child), found.Out()) == S_OK && found.Get() != nullptr &&
           found->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(taken.Out())) == S_OK;
}

DWORD Handles(HANDLE process)
{
    DWORD count = 0;
    ::GetProcessHandleCount(process, &count);
    return count;
}

class AccessProcess : public testing::Test
{
protected:
    explicit AccessProcess(char const * program = "ShowsAList") : m_child(program, m_title) {}

    void SetUp() override
    {
        ASSERT_TRUE(m_child.Started());
        ASSERT_TRUE(tests::PumpUntil([&] { return (m_host = ::FindWindowW(nullptr, m_title.c_str())) != nullptr; }));
        ASSERT_TRUE(tests::PumpUntil([&] {
            m_list = ::GetDlgItem(m_host, tests::TestList::id);
            return m_list != nullptr && ::SendMessageW(m_list, LVM_GETITEMCOUNT, 0, 0) == rows &&
                   ::IsWindowVisible(m_host);
        }));
        DWORD process = 0;
        ::GetWindowThreadProcessId(m_list, &process);
        ASSERT_NE(process, ::GetCurrentProcessId());
        m_process = ::OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, process);
        ASSERT_EQ(Ask(m_list, m_object), S_OK);
    }
    void TearDown() override
    {
        m_object.Release();
        ::PostMessageW(m_host, end_program, 0, 0);
        EXPECT_TRUE(m_child.WaitForEnd());
        EXPECT_EQ(m_child.ExitCode(), 0U) << m_child.ErrorText();
        ::CloseHandle(m_process);
    }
    /// Ten thousand calls, each of which makes objects on both sides. firstValue, step: of the third cells.
    void ExpectNothingLeft(int firstValue, int step);
    static long CellNumber(int row, int col) { return accessible::NumberOf({row, col}); }

    access_tests::ComScope m_com;
    std::wstring m_title = L"A list for process " + std::to_wstring(::GetCurrentProcessId());
    tests::ChildProgram m_child;
    HWND m_host = nullptr;
    HWND m_list = nullptr;
    HANDLE m_process = nullptr;
    Held<IAccessible> m_object;
};

class AccessProcessTable : public AccessProcess
{
protected:
    AccessProcessTable() : AccessProcess("ShowsATable") {}
};

TEST_F(AccessProcess, FindsEveryCellByRowAndColumn)
{
    long const roles[columns] = {ROLE_SYSTEM_CELL, ROLE_SYSTEM_CHECKBUTTON, ROLE_SYSTEM_CELL,
                                 ROLE_SYSTEM_LINK, ROLE_SYSTEM_PROGRESSBAR, ROLE_SYSTEM_RADIOBUTTON};
    EXPECT_EQ(RoleOf(*m_object.Get()), ROLE_SYSTEM_LIST);
    ASSERT_EQ(CountOf(*m_object.Get()), rows);
    for (long row = 0; row < rows; ++row)
    {
        Held<IAccessible> found;
        ASSERT_TRUE(TakeChild(*m_object.Get(), row + 1, found));
        ASSERT_EQ(RoleOf(*found.Get()), ROLE_SYSTEM_LISTITEM);
        ASSERT_EQ(CountOf(*found.Get()), columns);
        for (long col = 0; col < columns; ++col)
        {
            Held<IAccessible> cell;
            ASSERT_TRUE(TakeChild(*found.Get(), col + 1, cell));
            ASSERT_EQ(RoleOf(*cell.Get()), roles[col]) << row << ' ' << col;
            ASSERT_EQ(NameOf(*cell.Get()), (L"c" + std::to_wstring(col)).c_str());
        }
        ASSERT_EQ(ValueOf(*found.Get(), 3), std::to_wstring(row * 10).c_str());
        ASSERT_EQ(ValueOf(*found.Get(), 5), (std::to_wstring(row * 5) + L"%").c_str());
        ASSERT_EQ((StatesOf(*found.Get(), 2) & STATE_SYSTEM_CHECKED) != 0, row % 2 == 0);
        ASSERT_EQ((StatesOf(*found.Get(), 6) & STATE_SYSTEM_CHECKED) != 0, row == 3);
    }
}

TEST_F(AccessProcess, TogglesInvokesAndHears)
{
    FarListener listener(m_list);
    EXPECT_EQ(ActionOf(*m_object.Get(), CellNumber(3, 1)), L"Check");
    EXPECT_EQ(m_object->accDoDefaultAction(Number(CellNumber(3, 1))), S_OK);
    EXPECT_NE(StatesOf(*m_object.Get(), CellNumber(3, 1)) & STATE_SYSTEM_CHECKED, 0);
    EXPECT_TRUE(listener.WaitFor(EVENT_OBJECT_STATECHANGE, {3, 1}));
    EXPECT_EQ(m_object->accDoDefaultAction(Number(CellNumber(4, 5))), S_OK);
    EXPECT_TRUE(listener.WaitFor(EVENT_OBJECT_STATECHANGE, {4, 5}));
    EXPECT_EQ(StatesOf(*m_object.Get(), CellNumber(3, 5)) & STATE_SYSTEM_CHECKED, 0) << "switched off by the other";
    EXPECT_EQ(m_object->accDoDefaultAction(Number(CellNumber(2, 3))), S_OK);
    EXPECT_EQ(m_object->accSelect(SELFLAG_TAKESELECTION, Number(6)), S_OK);
    EXPECT_TRUE(listener.WaitFor(EVENT_OBJECT_SELECTION, {5, -1}));
    VARIANT selected{};
    ASSERT_EQ(m_object->get_accSelection(&selected), S_OK);
    ASSERT_EQ(selected.vt, VT_DISPATCH);
    Held<IAccessible> row;
    ASSERT_EQ(selected.pdispVal->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void **>(row.Out())), S_OK);
    selected.pdispVal->Release();
    EXPECT_EQ(NameOf(*row.Get()), L"r5");
}

TEST_F(AccessProcess, KeptObjectsAnswerAfterTheListsEnd)
{
    Held<IAccessible> row;
    ASSERT_TRUE(TakeChild(*m_object.Get(), 2, row));
    ::SendMessageW(m_host, end_list, 0, 0);
    BSTR text = nullptr;
    long count = 0;
    EXPECT_EQ(row->get_accName(Number(0), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(m_object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(m_object->accDoDefaultAction(Number(CellNumber(1, 1))), CO_E_OBJNOTCONNECTED);
}

void AccessProcess::ExpectNothingLeft(int firstValue, int step)
{
    auto const call = [&](int times) {
        for (int i = 0; i < times; ++i)
        {
            Held<IAccessible> row;
            ASSERT_TRUE(TakeChild(*m_object.Get(), i % rows + 1, row));
            ASSERT_EQ(ValueOf(*row.Get(), 3), std::to_wstring(firstValue + i % rows * step).c_str());
        }
    };
    auto const ask = [&] {
        Held<IAccessible> other;
        for (int i = 0; i < 100; ++i)
            ASSERT_EQ(Ask(m_list, other), S_OK);
    };
    call(200);
    ask();
    auto const blocks = [&] { return ::SendMessageW(m_host, ask_blocks, 0, 0); };
    LRESULT const blocksBefore = blocks();
    LRESULT const farObjects = ::SendMessageW(m_host, ask_gdi_objects, 0, 0);
    int const nearObjects = tests::GdiHandleCount();
    DWORD const farHandles = Handles(m_process);
    DWORD const nearHandles = Handles(::GetCurrentProcess());
    call(5000);
    ask();
    // Objects go with the messages by which the client lets go of them.
    EXPECT_TRUE(tests::PumpUntil([&] { return blocks() <= blocksBefore; }))
        << blocks() << " blocks, before there were " << blocksBefore;
    EXPECT_EQ(::SendMessageW(m_host, ask_gdi_objects, 0, 0), farObjects);
    EXPECT_EQ(tests::GdiHandleCount(), nearObjects);
    // A few of the system's own threads and pipes come and go.
    constexpr DWORD of_the_system = 20;
    EXPECT_LE(Handles(m_process), farHandles + of_the_system);
    EXPECT_LE(Handles(::GetCurrentProcess()), nearHandles + of_the_system);
}

TEST_F(AccessProcess, LeavesNothingBehindInEitherProcess)
{
    ExpectNothingLeft(0, 10);
}

// The columns shown are the second, the first, and from the third on; the rows stand upside down.
TEST_F(AccessProcessTable, FindsEveryCellByRowAndColumn)
{
    constexpr int shown = columns - 1;
    wchar_t const * const names[shown] = {L"c1", L"c0", L"c2", L"c3", L"c4"};
    long const roles[shown] = {ROLE_SYSTEM_CHECKBUTTON, ROLE_SYSTEM_CELL, ROLE_SYSTEM_CELL, ROLE_SYSTEM_LINK,
                               ROLE_SYSTEM_PROGRESSBAR};
    EXPECT_EQ(RoleOf(*m_object.Get()), ROLE_SYSTEM_LIST);
    ASSERT_EQ(CountOf(*m_object.Get()), rows);
    for (long place = 0; place < rows; ++place)
    {
        long const row = rows - 1 - place;
        Held<IAccessible> found;
        ASSERT_TRUE(TakeChild(*m_object.Get(), place + 1, found));
        ASSERT_EQ(RoleOf(*found.Get()), ROLE_SYSTEM_LISTITEM);
        ASSERT_EQ(CountOf(*found.Get()), shown);
        for (long col = 0; col < shown; ++col)
        {
            Held<IAccessible> cell;
            ASSERT_TRUE(TakeChild(*found.Get(), col + 1, cell));
            ASSERT_EQ(RoleOf(*cell.Get()), roles[col]) << row << ' ' << col;
            ASSERT_EQ(NameOf(*cell.Get()), names[col]);
        }
        ASSERT_EQ(ValueOf(*found.Get(), 2), (L"r" + std::to_wstring(row)).c_str());
        ASSERT_EQ(ValueOf(*found.Get(), 3), std::to_wstring(row * 10).c_str());
        ASSERT_EQ(ValueOf(*found.Get(), 5), (std::to_wstring(row * 5) + L"%").c_str());
    }
}

TEST_F(AccessProcessTable, TogglesSelectsAndHears)
{
    FarListener listener(m_list);
    EXPECT_EQ(ActionOf(*m_object.Get(), CellNumber(3, 0)), L"Check");
    EXPECT_EQ(m_object->accDoDefaultAction(Number(CellNumber(3, 0))), S_OK);
    EXPECT_NE(StatesOf(*m_object.Get(), CellNumber(3, 0)) & STATE_SYSTEM_CHECKED, 0);
    EXPECT_TRUE(listener.WaitFor(EVENT_OBJECT_STATECHANGE, {3, 0}));
    EXPECT_EQ(m_object->accDoDefaultAction(Number(CellNumber(3, 2))), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(m_object->accSelect(SELFLAG_TAKESELECTION, Number(6)), S_OK);
    EXPECT_TRUE(listener.WaitFor(EVENT_OBJECT_SELECTION, {5, -1}));
    EXPECT_EQ(m_object->accSelect(SELFLAG_ADDSELECTION, Number(8)), S_OK);
    VARIANT selected{};
    ASSERT_EQ(m_object->get_accSelection(&selected), S_OK);
    ASSERT_EQ(selected.vt, VT_UNKNOWN);
    Held<IEnumVARIANT> several;
    selected.punkVal->QueryInterface(__uuidof(IEnumVARIANT), reinterpret_cast<void **>(several.Out()));
    selected.punkVal->Release();
    VARIANT given[3]{};
    ULONG count = 0;
    EXPECT_EQ(several->Next(3, given, &count), S_FALSE);
    EXPECT_EQ(count, 2U);
    for (VARIANT & each : given)
        ::VariantClear(&each);
}

TEST_F(AccessProcessTable, KeptObjectsAnswerAfterTheTablesEnd)
{
    Held<IAccessible> row;
    ASSERT_TRUE(TakeChild(*m_object.Get(), 2, row));
    ::SendMessageW(m_host, end_list, 0, 0);
    BSTR text = nullptr;
    long count = 0;
    EXPECT_EQ(row->get_accName(Number(0), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(m_object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(m_object->accDoDefaultAction(Number(CellNumber(1, 0))), CO_E_OBJNOTCONNECTED);
}

TEST_F(AccessProcessTable, LeavesNothingBehindInEitherProcess)
{
    ExpectNothingLeft((rows - 1) * 10, -10);
}
} // namespace
