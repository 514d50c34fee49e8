// The cell cursor of a list.

#include <memory>
#include <set>
#include <utility>

#include "list_EditorTest.h"

namespace
{
using Place = std::pair<int, int>;

bool MenuIsOpen()
{
    HWND const menu = ::FindWindowW(L"#32768", nullptr);
    return menu != nullptr && ::IsWindowVisible(menu);
}

class ListCursor : public list_editors::ListEditorTest
{
protected:
    void SetUp() override
    {
        ListEditorTest::SetUp();
        m_list.EnableCellCursor();
        m_list.SetFocus();
        m_list.SetCellCursor(2, 1);
        tests::PumpPosted();
    }
    /// Presses a real key, with others held, and waits until the list has seen its release.
    void PressWith(WORD key, std::initializer_list<WORD> held)
    {
        auto const released = [&] {
            std::vector<tests::ReceivedMessage> const & all = m_input.Received();
            return std::count_if(all.begin(), all.end(), [&](tests::ReceivedMessage const & received) {
                return received.message == WM_KEYUP && received.wParam == held.begin()[0];
            });
        };
        std::ptrdiff_t const before = released();
        tests::Key(key, held);
        EXPECT_TRUE(tests::PumpUntil([&] { return released() > before; }));
        tests::PumpPosted();
    }
    Place Cursor() const { return m_list.GetCellCursor(); }
    Place After(WORD key)
    {
        PressKey(key);
        return Cursor();
    }
    /// Dark pixels along the upper edge of a cell, as it shows.
    int DotsAt(int row, int col)
    {
        m_list.UpdateWindow();
        CRect rect;
        EXPECT_TRUE(m_list.GetSubItemRect(row, col, LVIR_BOUNDS, rect));
        CClientDC dc(&m_list);
        int dots = 0;
        for (int x = rect.left + 2; x < rect.right - 2; ++x)
            dots += dc.GetPixel(x, rect.top) != dc.GetPixel(x, rect.top + 2) ? 1 : 0;
        return dots;
    }
};

class ListCursorSingle : public ListCursor
{
protected:
    void SetUp() override
    {
        ListCursor::SetUp();
        m_list.ModifyStyle(0, LVS_SINGLESEL);
    }
};

TEST_F(ListCursor, IsOffAtFirst)
{
    tests::ListHost host;
    host.Fill(2, 3);
    EXPECT_FALSE(host.list.HasCellCursor());
    EXPECT_FALSE(host.list.SetCellCursor(1, 1));
    host.list.SetCurSel(1, false);
    EXPECT_EQ(host.list.GetCellCursor(), Place(-1, -1));
    host.list.EnableCellCursor();
    EXPECT_TRUE(host.list.HasCellCursor());
    EXPECT_EQ(host.list.GetCellCursor(), Place(1, 0));
    host.list.EnableCellCursor(false);
    EXPECT_EQ(host.list.GetCellCursor(), Place(-1, -1));
    tests::TestList without;
    without.EnableCellCursor();
    EXPECT_TRUE(without.HasCellCursor());
    EXPECT_EQ(without.GetCellCursor(), Place(-1, -1)) << "no window";
}

TEST_F(ListCursor, IsPutOnCells)
{
    EXPECT_EQ(Cursor(), Place(2, 1));
    EXPECT_TRUE(m_list.IsSelected(2));
    EXPECT_FALSE(m_list.SetCellCursor(2, list_input::columns));
    EXPECT_FALSE(m_list.SetCellCursor(list_input::rows, 1));
    EXPECT_FALSE(m_list.SetCellCursor(-1, 1));
    EXPECT_EQ(Cursor(), Place(2, 1));
    EXPECT_TRUE(m_list.SetCellCursor(0, 3));
    EXPECT_EQ(Cursor(), Place(0, 3));
}

TEST_F(ListCursor, IsMovedByKeys)
{
    EXPECT_EQ(After(VK_RIGHT), Place(2, 2));
    EXPECT_EQ(After(VK_DOWN), Place(3, 2));
    EXPECT_TRUE(m_list.IsSelected(3));
    EXPECT_EQ(After(VK_LEFT), Place(3, 1));
    EXPECT_EQ(After(VK_HOME), Place(3, 0));
    EXPECT_EQ(After(VK_LEFT), Place(3, 0));
    EXPECT_EQ(After(VK_UP), Place(2, 0));
    EXPECT_EQ(After(VK_END), Place(2, 3));
    EXPECT_EQ(After(VK_RIGHT), Place(2, 3));
    PressWith(VK_HOME, {VK_CONTROL});
    EXPECT_EQ(Cursor(), Place(0, 0));
    PressWith(VK_END, {VK_CONTROL});
    EXPECT_EQ(Cursor(), Place(list_input::rows - 1, 3));
    PressWith(VK_LEFT, {VK_CONTROL});
    EXPECT_EQ(Cursor(), Place(list_input::rows - 1, 0));
    EXPECT_EQ(After(VK_PRIOR).second, 0);
    EXPECT_LT(Cursor().first, list_input::rows - 1);
    EXPECT_EQ(After(VK_NEXT), Place(list_input::rows - 1, 0));
}

TEST_F(ListCursor, LeavesHiddenColumnsOut)
{
    m_list.CListCtrl::SetColumnWidth(2, 0);
    EXPECT_EQ(After(VK_RIGHT), Place(2, 3));
    EXPECT_EQ(After(VK_LEFT), Place(2, 1));
    int order[] = {3, 1, 0, 2};
    m_list.SetColumnOrderArray(4, order);
    EXPECT_EQ(After(VK_LEFT), Place(2, 3)) << "as the columns stand";
    EXPECT_EQ(After(VK_END), Place(2, 0));
}

TEST_F(ListCursorSingle, MovesInAListOfSingleSelection)
{
    EXPECT_EQ(After(VK_DOWN), Place(3, 1));
    EXPECT_EQ(m_list.GetSelectedItem(), 3);
    EXPECT_EQ(After(VK_UP), Place(2, 1));
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
}

TEST_F(ListCursor, FollowsAClick)
{
    ClickCell(4, 2);
    EXPECT_EQ(Cursor(), Place(4, 2));
}

TEST_F(ListCursor, ShowsWhileTheListHasTheFocus)
{
    EXPECT_GT(DotsAt(2, 1), 10);
    EXPECT_EQ(DotsAt(2, 2), 0);
    PressKey(VK_RIGHT);
    EXPECT_EQ(DotsAt(2, 1), 0);
    EXPECT_GT(DotsAt(2, 2), 10);
    PressKey(VK_DOWN);
    EXPECT_EQ(DotsAt(2, 2), 0);
    EXPECT_GT(DotsAt(3, 2), 10);
    m_button.SetFocus();
    EXPECT_EQ(DotsAt(3, 2), 0);
    m_list.SetFocus();
    EXPECT_GT(DotsAt(3, 2), 10);
    // A row that is not selected.
    PressWith(VK_DOWN, {VK_CONTROL});
    ASSERT_FALSE(m_list.IsSelected(4));
    EXPECT_EQ(DotsAt(3, 2), 0);
    EXPECT_GT(DotsAt(4, 2), 10);
    m_button.SetFocus();
    EXPECT_EQ(DotsAt(4, 2), 0);
    m_list.SetFocus();
    EXPECT_GT(DotsAt(4, 2), 10);
    m_list.EnableCellCursor(false);
    EXPECT_EQ(DotsAt(4, 2), 0);
}

TEST_F(ListCursor, IsScrolledIntoSight)
{
    m_list.CListCtrl::SetColumnWidth(0, 300);
    PressKey(VK_END);
    CRect client;
    m_list.GetClientRect(&client);
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(2, 3, LVIR_BOUNDS, cell));
    EXPECT_LE(cell.right, client.right);
    PressKey(VK_HOME);
    ASSERT_TRUE(m_list.GetSubItemRect(2, 0, LVIR_BOUNDS, cell));
    EXPECT_EQ(cell.left, 0);
}

TEST_F(ListCursor, SpaceTicks)
{
    m_list.SetCheckbox(2, 1, XLC_UNCHECKED);
    m_list.SetItemText(6, 0, L" begins as if it were looked for");
    m_host.TakePosted();
    PressKey(VK_SPACE);
    EXPECT_EQ(Cursor(), Place(2, 1));
    EXPECT_EQ(m_list.GetCheckbox(2, 1), XLC_CHECKED);
    PressKey(VK_SPACE);
    EXPECT_EQ(m_list.GetCheckbox(2, 1), XLC_UNCHECKED);
    EXPECT_EQ(m_host.TakePosted(),
              (tests::PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 2, 1}, {WM_XLISTCTRL_CHECKBOX_CLICKED, 2, 1}}));
    m_list.SetEnabled(2, 1, false);
    PressKey(VK_SPACE);
    EXPECT_EQ(m_list.GetCheckbox(2, 1), XLC_UNCHECKED);
    EXPECT_TRUE(m_host.TakePosted().empty());
}

TEST_F(ListCursor, F2OpensTheEdit)
{
    m_list.SetEdit(2, 1, true);
    tests::Key(VK_F2);
    ASSERT_TRUE(tests::PumpUntil([&] { return Edit() != nullptr && ::GetFocus() == Edit(); }));
    SetText(Edit(), L"new");
    EndEditWith(VK_RETURN);
    EXPECT_EQ(m_list.GetItemText(2, 1), L"new");
    EXPECT_EQ(::GetFocus(), m_list.m_hWnd) << "the keyboard goes on in the list";
    EXPECT_EQ(Cursor(), Place(2, 1));
}

TEST_F(ListCursor, TypingEdits)
{
    m_list.SetItemText(2, 1, L"old");
    m_list.SetEdit(2, 1, true);
    tests::Type(L"xyz");
    ASSERT_TRUE(tests::PumpUntil([&] { return Edit() != nullptr && TextOf(Edit()) == L"xyz"; }));
    EndEditWith(VK_RETURN);
    EXPECT_EQ(m_list.GetItemText(2, 1), L"xyz");
    m_list.SetCellCursor(2, 0);
    tests::Type(L"r5");
    EXPECT_TRUE(tests::PumpUntil([&] { return m_list.GetSelectedItem() == 5; })) << "looks for a row elsewhere";
    EXPECT_EQ(Edit(), nullptr);
}

TEST_F(ListCursor, AltAndDownOpensACombo)
{
    MakeCombo(2, 1, 20);
    tests::Key(VK_DOWN, {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([&] { return Combo() != nullptr; }));
    tests::PumpPosted();
    tests::Key(VK_DOWN);
    tests::Key(VK_RETURN);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_list.GetComboCurSel(2, 1) == 30; }));
    EXPECT_TRUE(tests::PumpUntil([&] { return Combo() == nullptr; }));
}

TEST_F(ListCursor, EnterFollowsALink)
{
    m_list.SetHyperlink(2, 1, true, false);
    m_host.TakePosted();
    PressKey(VK_RETURN);
    EXPECT_EQ(m_host.TakePosted(), (tests::PostedRows{{WM_XLISTCTRL_LINK_CLICKED, 2, 1}}));
    PressKey(VK_LEFT);
    PressKey(VK_RETURN);
    EXPECT_TRUE(m_host.TakePosted().empty());
}

TEST_F(ListCursor, TabGoesToCellsThatCanBeChanged)
{
    m_list.SetEdit(2, 3, true);
    m_list.SetCheckbox(4, 0, XLC_UNCHECKED);
    m_list.SetHyperlink(3, 1, true, false);
    MakeCombo(6, 2, 10);
    m_list.SetEnabled(6, 2, false);
    EXPECT_EQ(After(VK_TAB), Place(2, 3));
    EXPECT_EQ(After(VK_TAB), Place(4, 0));
    EXPECT_TRUE(m_list.IsSelected(4));
    EXPECT_EQ(After(VK_TAB), Place(4, 0)) << "nothing behind it";
    PressWith(VK_TAB, {VK_SHIFT});
    EXPECT_EQ(Cursor(), Place(2, 3));
    PressWith(VK_TAB, {VK_CONTROL});
    EXPECT_EQ(Cursor(), Place(2, 3));
}

TEST_F(ListCursor, TabEndsTheEditAndGoesOn)
{
    m_list.SetEdit(2, 1, true);
    m_list.SetEdit(3, 0, true);
    tests::Key(VK_F2);
    ASSERT_TRUE(tests::PumpUntil([&] { return Edit() != nullptr && ::GetFocus() == Edit(); }));
    SetText(Edit(), L"new");
    EndEditWith(VK_TAB);
    EXPECT_EQ(m_list.GetItemText(2, 1), L"new");
    EXPECT_TRUE(tests::PumpUntil([&] { return Cursor() == Place(3, 0); }));
}

TEST_F(ListCursor, DialogKeepsTheKeysThatTheListHasNoUseFor)
{
    auto const wants = [&](WPARAM key) {
        MSG const message = {m_list.m_hWnd, WM_KEYDOWN, key, 0, 0, {}};
        LRESULT const answer = m_list.SendMessageW(WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&message));
        return (answer & DLGC_WANTMESSAGE) != 0;
    };
    EXPECT_FALSE(wants(VK_RETURN));
    EXPECT_FALSE(wants(VK_TAB));
    m_list.SetHyperlink(2, 1, true, false);
    m_list.SetEdit(5, 0, true);
    EXPECT_TRUE(wants(VK_RETURN));
    EXPECT_TRUE(wants(VK_TAB));
    EXPECT_FALSE(wants(VK_ESCAPE));
    m_list.SetCellCursor(5, 0);
    EXPECT_FALSE(wants(VK_RETURN));
    EXPECT_FALSE(wants(VK_TAB)) << "the last one";
    m_list.SetCellCursor(2, 1);
    m_list.EnableCellCursor(false);
    EXPECT_FALSE(wants(VK_RETURN));
    EXPECT_FALSE(wants(VK_TAB));
}

TEST_F(ListCursor, MenuOfTheKeyboardOpensAtTheCell)
{
    std::vector<std::pair<int, Place>> choices;
    m_list.PopUpMenu().AppendMenu(MF_STRING, 101, L"first");
    m_list.m_onContextCommand = [&](int command, int row, int col) { choices.push_back({command, {row, col}}); };
    CRect cell;
    m_list.GetSubItemRect(2, 1, LVIR_BOUNDS, cell);
    m_list.ClientToScreen(&cell);
    CRect place;
    tests::LaterActions later;
    later.Add(
        [&] {
            ::GetWindowRect(::FindWindowW(L"#32768", nullptr), &place);
            tests::Key(VK_DOWN);
            tests::Key(VK_RETURN);
        },
        MenuIsOpen);
    tests::Key(VK_F10, {VK_SHIFT});
    EXPECT_TRUE(tests::PumpUntil([&] { return !choices.empty() || later.Failed(); }));
    EXPECT_EQ(choices, (std::vector<std::pair<int, Place>>{{101, {2, 1}}}));
    EXPECT_LE(std::abs(place.left - cell.left), 4);
    EXPECT_LE(std::abs(place.top - cell.bottom), 4);
}

TEST_F(ListCursor, CtrlAndPlusFitsTheColumns)
{
    m_list.SetItemText(3, 2, L"a text that is much wider than its column");
    m_list.CListCtrl::SetColumnWidth(3, 0);
    PressWith(VK_ADD, {VK_CONTROL});
    EXPECT_GT(m_list.GetColumnWidth(2), 150);
    EXPECT_LT(m_list.GetColumnWidth(1), 80);
    EXPECT_EQ(m_list.GetColumnWidth(3), 0) << "a hidden one stays so";
}

TEST_F(ListCursor, StaysWithinTheColumnsThatAreLeft)
{
    m_list.SetCellCursor(2, 3);
    m_list.DeleteColumn(3);
    EXPECT_EQ(Cursor(), Place(2, 2));
    m_list.DeleteAllItems();
    EXPECT_EQ(Cursor(), Place(-1, -1));
    PressKey(VK_RIGHT);
    PressKey(VK_SPACE);
    PressKey(VK_TAB);
    EXPECT_EQ(Cursor(), Place(-1, -1));
}

TEST(ListCursorEnds, ListMayEndInAKey)
{
    for (UINT const key : {VK_SPACE, VK_RETURN, VK_F2})
    {
        tests::ListParent parent;
        auto * list = new tests::GuardedList;
        ASSERT_TRUE(list->Create(tests::TestList::default_style, CRect(0, 0, 300, 200), &parent, 7));
        list->AddColumns(2);
        list->AddRows(2);
        list->EnableCellCursor();
        list->SetCellCursor(1, 1);
        if (key == VK_SPACE)
            list->SetCheckbox(1, 1, XLC_UNCHECKED);
        else if (key == VK_RETURN)
            list->SetHyperlink(1, 1, true, false);
        else
            list->SetEdit(1, 1, true);
        list->m_onCellClick = [&](int, int) { delete std::exchange(list, nullptr); };
        HWND const window = list->m_hWnd;
        ::SendMessageW(window, WM_KEYDOWN, key, 0);
        EXPECT_EQ(list, nullptr) << "key " << key;
        EXPECT_FALSE(::IsWindow(window));
    }
}
} // namespace
