// The combo box over a cell of the list: what it offers, what ends it, and what the cell and the parent get of it.

#include <memory>

#include "GdiHandleCount.h"
#include "list_EditorTest.h"

namespace
{
using tests::PostedRows;
using namespace list_editors;

class ListComboCells : public list_editors::ListEditorTest
{
protected:
    void TearDown() override
    {
        ListEditorTest::TearDown();
        EXPECT_EQ(Combo(), nullptr);
        // Nobody keeps the screen from painting any more.
        EXPECT_TRUE(::LockWindowUpdate(m_host.parent.m_hWnd));
        ::LockWindowUpdate(nullptr);
    }

    static int Ask(UINT message, WPARAM wParam = 0)
    {
        return static_cast<int>(::SendMessageW(Combo(), message, wParam, 0));
    }
    static CString Item(int index)
    {
        wchar_t text[100] = {};
        ::SendMessageW(Combo(), CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
        return text;
    }
    /// Opens the combo of a cell with the entries of MakeCombo by a real click.
    void OpenCombo(int row, int col, int selected)
    {
        MakeCombo(row, col, selected);
        m_host.TakePosted();
        ClickForEditor(row, col);
        ASSERT_NE(Combo(), nullptr);
        // The list paints again.
        ASSERT_TRUE(tests::PumpUntil([this] { return Ticks(1) > 0; }));
        ASSERT_EQ(::GetFocus(), Combo());
    }
};

TEST_F(ListComboCells, AClickOpensTheComboOverTheCell)
{
    OpenCombo(2, 1, 20);
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(2, 1, LVIR_BOUNDS, cell));
    cell.top -= 1;
    m_list.ClientToScreen(&cell);
    cell.left += 1;
    CRect place;
    ::GetWindowRect(Combo(), &place);
    EXPECT_EQ(place.TopLeft(), cell.TopLeft());
    auto const style = static_cast<DWORD>(::GetWindowLongPtrW(Combo(), GWL_STYLE));
    EXPECT_EQ(style & (WS_POPUP | WS_VISIBLE | 3U | CBS_SORT), WS_POPUP | WS_VISIBLE | CBS_DROPDOWNLIST);
    EXPECT_NE(::GetWindowLongPtrW(Combo(), GWL_EXSTYLE) & WS_EX_CONTROLPARENT, 0);
    EXPECT_EQ(Ask(CB_GETCOUNT), 3);
    EXPECT_EQ(Item(0), L"ten");
    EXPECT_EQ(Item(2), L"thirty");
    EXPECT_EQ(Ask(CB_GETCURSEL), 1);
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
    EXPECT_EQ(m_list.GetItemText(2, 1), L"twenty");
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(PumpUntilComboIsGone());
}

TEST_F(ListComboCells, ASortedCellGivesTheSortedStyle)
{
    MakeCombo(1, 1, 10);
    m_list.SetComboStyle(1, 1, true, 5);
    m_list.DrawComboBoxControl(1, 1);
    ASSERT_NE(Combo(), nullptr);
    EXPECT_NE(::GetWindowLongPtrW(Combo(), GWL_STYLE) & CBS_SORT, 0);
}

TEST_F(ListComboCells, NeverOpensInACellNarrowerThan20Pixels)
{
    MakeCombo(1, 1, 10);
    m_list.CListCtrl::SetColumnWidth(1, 19);
    m_list.DrawComboBoxControl(1, 1);
    EXPECT_EQ(Combo(), nullptr);
    m_list.CListCtrl::SetColumnWidth(1, 20);
    m_list.DrawComboBoxControl(1, 1);
    EXPECT_NE(Combo(), nullptr);
}

TEST_F(ListComboCells, NeverOpensOverOtherCells)
{
    m_list.DrawComboBoxControl(1, 1);
    EXPECT_EQ(Combo(), nullptr);
    MakeCombo(1, 1, 10);
    m_list.SetEnabled(1, 1, false);
    m_list.DrawComboBoxControl(1, 1);
    EXPECT_EQ(Combo(), nullptr);
    m_list.SetEnabled(1, 1, true);
    m_list.GetRowItemData(1, 1)->comboStrings.clear();
    m_list.DrawComboBoxControl(1, 1);
    EXPECT_EQ(Combo(), nullptr);
    m_list.DrawComboBoxControl(-1, 1);
    m_list.DrawComboBoxControl(1, 100);
    EXPECT_EQ(Combo(), nullptr);
}

TEST_F(ListComboCells, AnEntryWithoutTextNeverShows)
{
    m_list.SetComboBox(1, 1, Entries{{1, L"a"}, {2, L""}, {3, nullptr}, {4, L"b"}}, 4, 4);
    m_list.DrawComboBoxControl(1, 1);
    EXPECT_EQ(Ask(CB_GETCOUNT), 2);
    EXPECT_EQ(Item(0), L"a");
    EXPECT_EQ(Item(1), L"b");
    EXPECT_EQ(Ask(CB_GETCURSEL), 1);
}

TEST_F(ListComboCells, ReturnTakesTheEntryAndTells)
{
    std::vector<std::pair<int, int>> heard;
    m_list.m_onStateChange = [&](int row, int col) { heard.emplace_back(row, col); };
    OpenCombo(2, 1, 10);
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([] { return Ask(CB_GETCURSEL) == 1; }));
    EXPECT_EQ(m_list.GetItemText(2, 1), L"ten");
    tests::Key(VK_RETURN);
    EXPECT_TRUE(PumpUntilComboIsGone());
    EXPECT_EQ(m_list.GetItemText(2, 1), L"twenty");
    EXPECT_EQ(m_list.GetComboCurSel(2, 1), 20);
    EXPECT_TRUE(m_list.GetModified(2, 1));
    EXPECT_TRUE(m_list.GetListModified());
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COMBO_SELECTION, 2, 1}}));
    EXPECT_EQ(heard, (std::vector<std::pair<int, int>>{{2, 1}}));
    EXPECT_EQ(::GetFocus(), m_list.m_hWnd);
}

TEST_F(ListComboCells, ClosedOnTheEntryItOpenedOnItPostsNothing)
{
    OpenCombo(2, 1, 20);
    tests::Key(VK_RETURN);
    EXPECT_TRUE(PumpUntilComboIsGone());
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
    EXPECT_FALSE(m_list.GetModified(2, 1));
    EXPECT_EQ(m_list.GetItemText(2, 1), L"twenty");
}

TEST_F(ListComboCells, EscapeLeavesTheCellAsItWas)
{
    OpenCombo(2, 1, 10);
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([] { return Ask(CB_GETCURSEL) == 1; }));
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(PumpUntilComboIsGone());
    EXPECT_EQ(m_list.GetItemText(2, 1), L"ten");
    EXPECT_EQ(m_list.GetComboCurSel(2, 1), 10);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListComboCells, LosingTheFocusLeavesTheCellAsItWas)
{
    OpenCombo(2, 1, 10);
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([] { return Ask(CB_GETCURSEL) == 1; }));
    m_button.SetFocus();
    EXPECT_TRUE(PumpUntilComboIsGone());
    EXPECT_TRUE(tests::PumpUntil([this] { return Ticks(2) > 0; }));
    tests::PumpFor(std::chrono::milliseconds(100));
    EXPECT_EQ(m_list.GetItemText(2, 1), L"ten");
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
    EXPECT_EQ(::GetFocus(), m_button.m_hWnd);
}

TEST_F(ListComboCells, AChoiceWithTheMouseIsTaken)
{
    OpenCombo(2, 1, 10);
    list_input::Click(tests::Centre(Combo()));
    HWND list = nullptr;
    auto const dropList = [&] {
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM result) {
                if (HWND const child = ::GetDlgItem(window, 101))
                    *reinterpret_cast<HWND *>(result) = child;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&list));
        // A child of the desktop is no window of the thread's list.
        for (HWND window = ::GetWindow(::GetDesktopWindow(), GW_CHILD); window != nullptr && list == nullptr;
             window = ::GetWindow(window, GW_HWNDNEXT))
        {
            if (::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId())
                list = ::GetDlgItem(window, 101);
        }
        return list != nullptr;
    };
    ASSERT_TRUE(tests::PumpUntil(dropList));
    tests::PumpPosted();
    auto const height = static_cast<int>(::SendMessageW(list, LB_GETITEMHEIGHT, 0, 0));
    list_input::Click(tests::ClientPoint(list, {10, 2 * height + height / 2}));
    EXPECT_TRUE(PumpUntilComboIsGone());
    EXPECT_EQ(m_list.GetItemText(2, 1), L"thirty");
    EXPECT_EQ(m_list.GetComboCurSel(2, 1), 30);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COMBO_SELECTION, 2, 1}}));
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ListComboCells, WithoutItsPresentTextItOpensOnTheFirstEntryWhichIsANewChoice)
{
    m_list.SetComboBox(1, 1, Entries{{10, L"ten"}, {20, L"twenty"}}, 77, 99);
    ASSERT_EQ(m_list.GetComboCurSel(1, 1), 99);
    ClickForEditor(1, 1);
    ASSERT_NE(Combo(), nullptr);
    EXPECT_EQ(Ask(CB_GETCURSEL), 0);
    tests::Key(VK_RETURN);
    EXPECT_TRUE(PumpUntilComboIsGone());
    EXPECT_EQ(m_list.GetComboCurSel(1, 1), 10);
    EXPECT_EQ(m_list.GetItemText(1, 1), L"ten");
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COMBO_SELECTION, 1, 1}}));
}

TEST_F(ListComboCells, APressOffAnyCellClosesIt)
{
    OpenCombo(2, 1, 10);
    m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(EmptySpace().x, EmptySpace().y));
    EXPECT_TRUE(PumpUntilComboIsGone());
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListComboCells, ANewComboThrowsTheOldOneAway)
{
    MakeCombo(1, 1, 10);
    MakeCombo(2, 2, 20);
    m_list.DrawComboBoxControl(1, 1);
    HWND const first = Combo();
    ASSERT_NE(first, nullptr);
    m_list.DrawComboBoxControl(2, 2);
    EXPECT_FALSE(::IsWindow(first));
    EXPECT_EQ(Ask(CB_GETCURSEL), 1);
    EXPECT_EQ(m_list.GetItemText(1, 1), L"ten");
}

TEST_F(ListComboCells, WhatAnOldComboHasToldDoesNotCloseANewOne)
{
    MakeCombo(4, 2, 20);
    OpenCombo(2, 1, 10);
    // The old one loses the focus to the list and tells of it.
    ClickForEditor(4, 2);
    ASSERT_TRUE(
        tests::PumpUntil([this] { return Combo() != nullptr && ::GetFocus() == Combo() && Ask(CB_GETCURSEL) == 1; }));
    m_list.DrawComboBoxControl(2, 1);
    HWND const combo = Combo();
    tests::PumpFor(std::chrono::milliseconds(150));
    EXPECT_EQ(Combo(), combo);
    EXPECT_EQ(Ask(CB_GETCURSEL), 0);
}

TEST_F(ListComboCells, ComboAfterComboOpensByOneClickEach)
{
    MakeCombo(4, 2, 20);
    OpenCombo(2, 1, 10);
    HWND const first = Combo();
    list_input::Click(Screen(Middle(4, 2)));
    ASSERT_TRUE(tests::PumpUntil([first] { return Combo() != nullptr && Combo() != first; }));
    tests::PumpFor(std::chrono::milliseconds(150));
    ASSERT_NE(Combo(), nullptr);
    EXPECT_EQ(Ask(CB_GETCURSEL), 1);
}

TEST_F(ListComboCells, TheFourthTimerShowsTheChoiceWithoutClosing)
{
    OpenCombo(2, 1, 10);
    ::SendMessageW(Combo(), CB_SETCURSEL, 2, 0);
    m_list.OnTimer(4);
    EXPECT_EQ(m_list.GetItemText(2, 1), L"thirty");
    EXPECT_EQ(m_list.GetComboCurSel(2, 1), 10);
    EXPECT_NE(Combo(), nullptr);
}

TEST_F(ListComboCells, AComboWhoseCellIsGoneClosesQuietly)
{
    OpenCombo(2, 1, 10);
    ::SendMessageW(Combo(), CB_SETCURSEL, 2, 0);
    m_list.DeleteAllItems();
    m_list.SendMessage(combo_completes);
    EXPECT_TRUE(PumpUntilComboIsGone());
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListComboCells, TheResultGoesToWhateverRowStandsThereThen)
{
    OpenCombo(2, 1, 10);
    ::SendMessageW(Combo(), CB_SETCURSEL, 2, 0);
    m_list.DeleteItem(0);
    m_list.SendMessage(combo_completes);
    EXPECT_TRUE(PumpUntilComboIsGone());
    EXPECT_EQ(m_list.GetItemText(2, 0), L"r3");
    EXPECT_EQ(m_list.GetItemText(2, 1), L"thirty");
}

TEST_F(ListComboCells, NoComboOutlivesItsList)
{
    MakeCombo(2, 1, 10);
    m_list.DrawComboBoxControl(2, 1);
    HWND const combo = Combo();
    ASSERT_NE(combo, nullptr);
    m_list.DestroyWindow();
    EXPECT_FALSE(::IsWindow(combo));
}

TEST_F(ListComboCells, NoDropDownOutlivesItsList)
{
    MakeCombo(2, 1, 10);
    m_list.DrawComboBoxControl(2, 1);
    tests::Key(VK_F4);
    tests::PumpPosted();
    m_list.DestroyWindow();
    EXPECT_EQ(Combo(), nullptr);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ListComboCells, AHostMayDeleteTheListWhenItHearsOfTheChoice)
{
    auto list = std::make_unique<tests::TestList>();
    ASSERT_TRUE(list->Create(tests::TestList::default_style, CRect(100, 100, 300, 200), &m_host.parent, 8));
    list->AddColumns(2);
    list->AddRows(2);
    list->SetComboBox(1, 1, Entries{{10, L"ten"}, {20, L"twenty"}}, 10, 10);
    list->DrawComboBoxControl(1, 1);
    ASSERT_NE(Combo(), nullptr);
    ::SendMessageW(Combo(), CB_SETCURSEL, 1, 0);
    list->m_onStateChange = [&](int, int) { list.reset(); };
    list->SendMessage(combo_completes);
    EXPECT_TRUE(PumpUntilComboIsGone());
    EXPECT_EQ(list, nullptr);
}

TEST_F(ListComboCells, AHostMayOpenAnotherComboWhenItHearsOfTheChoice)
{
    MakeCombo(1, 1, 10);
    MakeCombo(2, 2, 20);
    m_list.DrawComboBoxControl(1, 1);
    HWND const first = Combo();
    ::SendMessageW(first, CB_SETCURSEL, 1, 0);
    m_list.m_onStateChange = [this](int, int) { m_list.DrawComboBoxControl(2, 2); };
    m_list.OnTimer(3);
    EXPECT_FALSE(::IsWindow(first));
    EXPECT_NE(Combo(), nullptr);
    EXPECT_EQ(m_list.GetItemText(1, 1), L"twenty");
}

class ListComboOpenings : public ListComboCells
{
};

TEST_F(ListComboOpenings, ThousandsOfCombosLeaveNothingBehind)
{
    MakeCombo(1, 1, 10);
    auto const openAndEnd = [this](int times) {
        for (int i = 0; i < times; ++i)
        {
            m_list.DrawComboBoxControl(1, 1);
            ASSERT_NE(Combo(), nullptr);
            m_list.OnTimer(1);
            m_list.OnTimer(i % 2 == 0 ? 2 : 3);
            ASSERT_EQ(Combo(), nullptr);
        }
    };
    openAndEnd(10);
    tests::GdiBalance const balance;
    openAndEnd(2000);
}
} // namespace
