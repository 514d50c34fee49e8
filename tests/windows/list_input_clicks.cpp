// Left clicks on the cells of a list: what they change, and what the parent hears in which order.

#include "list_InputTest.h"

namespace
{
using list_input::rows;
using tests::PostedRows;
using Cell = std::pair<int, int>;

class ListClicks : public list_input::ListInputTest
{
};

TEST_F(ListClicks, FlipsACheckCellAnywhereInItAndSelectsItsRow)
{
    m_list.SetCheckbox(2, 1, XLC_UNCHECKED);
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(2, 1, LVIR_BOUNDS, cell));
    ClickAt({cell.right - 12, cell.CenterPoint().y});
    EXPECT_EQ(m_list.GetCheckbox(2, 1), XLC_CHECKED);
    EXPECT_TRUE(m_list.GetModified(2, 1));
    EXPECT_TRUE(m_list.GetListModified());
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 2, 1}}));

    ClickCell(2, 1);
    EXPECT_EQ(m_list.GetCheckbox(2, 1), XLC_UNCHECKED);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 2, 1}}));
}

TEST_F(ListClicks, PressReactsBeforeTheButtonIsReleased)
{
    m_list.SetCheckbox(1, 0, XLC_CHECKED);
    list_input::Inject(Screen(Middle(1, 0)), {MOUSEEVENTF_LEFTDOWN});
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.GetCheckbox(1, 0) == XLC_UNCHECKED; }));
    EXPECT_EQ(m_input.Count("list", WM_LBUTTONUP), 0);
    list_input::Inject(Screen(Middle(1, 0)), {MOUSEEVENTF_LEFTUP});
    EXPECT_TRUE(tests::PumpUntil([this] { return m_input.Count("list", WM_LBUTTONUP) == 1; }));
    EXPECT_EQ(m_list.GetCheckbox(1, 0), XLC_UNCHECKED);
}

TEST_F(ListClicks, PlainCellOnlySelects)
{
    ClickCell(3, 2);
    EXPECT_EQ(m_list.GetSelectedItem(), 3);
    EXPECT_EQ(::GetFocus(), m_list.m_hWnd);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
    EXPECT_FALSE(m_list.GetListModified());
}

TEST_F(ListClicks, DisabledCellSwallowsThePress)
{
    int calls = 0;
    m_list.m_onCellClick = [&](int, int) { ++calls; };
    m_list.SetCheckbox(4, 1, XLC_UNCHECKED);
    m_list.SetEnabled(4, 1, false);
    m_list.SetCurSel(2, false);
    ClickCell(4, 1);
    EXPECT_EQ(m_list.GetCheckbox(4, 1), XLC_UNCHECKED);
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
    EXPECT_TRUE(m_list.IsFocused(2));
    EXPECT_EQ(::GetFocus(), m_button.m_hWnd);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});

    // Other cells of the row go on working.
    ClickCell(4, 2);
    EXPECT_EQ(m_list.GetSelectedItem(), 4);
    EXPECT_EQ(calls, 1);
}

TEST_F(ListClicks, DoubleClickOnADisabledCellNotifies)
{
    std::vector<Cell> heard;
    m_list.m_onDoubleClick = [&](int row, int col) { heard.emplace_back(row, col); };
    m_list.SetEnabled(4, 1, false);
    DoubleClickAt(Middle(4, 1));
    EXPECT_EQ(heard, (std::vector<Cell>{{4, 1}}));
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_ITEM_DBLCLICKED, 4, 1}}));
}

TEST_F(ListClicks, DoubleClickOnACheckCellFlipsItOnceAndNotifiesAfterwards)
{
    m_list.SetCheckbox(1, 3, XLC_UNCHECKED);
    DoubleClickAt(Middle(1, 3));
    EXPECT_EQ(m_list.GetCheckbox(1, 3), XLC_CHECKED);
    EXPECT_EQ(m_host.TakePosted(),
              (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 1, 3}, {WM_XLISTCTRL_ITEM_DBLCLICKED, 1, 3}}));
}

TEST_F(ListClicks, DoubleClickOffAnyCellSaysNothing)
{
    bool called = false;
    m_list.m_onDoubleClick = [&](int, int) { called = true; };
    DoubleClickAt(EmptySpace());
    EXPECT_FALSE(called);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListClicks, CrossedCheckCellOnlySelects)
{
    m_list.SetCheckbox(2, 1, XLC_CROSSED);
    ClickCell(2, 1);
    EXPECT_EQ(m_list.GetCheckbox(2, 1), XLC_CROSSED);
    EXPECT_FALSE(m_list.GetModified(2, 1));
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListClicks, RadioCellThatIsOnOnlySelects)
{
    m_list.SetRadioButton(2, 1, XLC_RADIO_ON);
    m_list.SetRadioButton(5, 1, XLC_RADIO_OFF);
    ClickCell(2, 1);
    EXPECT_EQ(m_list.GetActiveRadioItem(1), 2);
    EXPECT_FALSE(m_list.GetModified(2, 1));
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListClicks, SwitchingARadioButtonNotifiesForBothRowsTheFormerFirst)
{
    for (int row = 0; row < rows; ++row)
        m_list.SetRadioButton(row, 1, row == 2 ? XLC_RADIO_ON : XLC_RADIO_OFF);
    std::vector<Cell> heard;
    m_list.m_onStateChange = [&](int row, int col) { heard.emplace_back(row, col); };
    ClickCell(5, 1);
    EXPECT_EQ(m_list.GetCheckbox(2, 1), XLC_RADIO_OFF);
    EXPECT_EQ(m_list.GetCheckbox(5, 1), XLC_RADIO_ON);
    EXPECT_TRUE(m_list.GetModified(2, 1));
    EXPECT_TRUE(m_list.GetModified(5, 1));
    EXPECT_FALSE(m_list.GetModified(4, 1));
    EXPECT_TRUE(m_list.GetListModified());
    EXPECT_EQ(m_list.GetSelectedItem(), 5);
    EXPECT_EQ(heard, (std::vector<Cell>{{2, 1}, {5, 1}}));
    EXPECT_EQ(m_host.TakePosted(),
              (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 2, 1}, {WM_XLISTCTRL_CHECKBOX_CLICKED, 5, 1}}));
}

TEST_F(ListClicks, FirstRadioButtonOfAColumnNotifiesOnce)
{
    m_list.SetRadioButton(3, 1, XLC_RADIO_OFF);
    m_list.SetRadioButton(4, 0, XLC_RADIO_ON); // of another column
    ClickCell(3, 1);
    EXPECT_EQ(m_list.GetActiveRadioItem(1), 3);
    EXPECT_EQ(m_list.GetActiveRadioItem(0), 4);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 3, 1}}));
}

TEST_F(ListClicks, LinkNotifiesAfterItsRowIsSelected)
{
    m_list.SetHyperlink(6, 2, true, true);
    int selected = -1;
    m_list.m_onStateChange = [&](int, int) { selected = m_list.GetSelectedItem(); };
    ClickCell(6, 2);
    EXPECT_EQ(selected, 6);
    EXPECT_FALSE(m_list.GetModified(6, 2));
    EXPECT_FALSE(m_list.GetListModified());
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_LINK_CLICKED, 6, 2}}));
}

TEST_F(ListClicks, CheckCellNotifiesBeforeItsRowIsSelected)
{
    m_list.SetCheckbox(6, 2, XLC_UNCHECKED);
    int selected = -2;
    m_list.m_onStateChange = [&](int, int) { selected = m_list.GetSelectedItem(); };
    ClickCell(6, 2);
    EXPECT_EQ(selected, -1);
    EXPECT_EQ(m_list.GetSelectedItem(), 6);
}

TEST_F(ListClicks, KindOfCellGoesBeforeItsCheckState)
{
    m_list.SetHyperlink(1, 1, true, false);
    m_list.SetItemCheckedState(1, 1, XLC_UNCHECKED);
    ClickCell(1, 1);
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_UNCHECKED);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_LINK_CLICKED, 1, 1}}));
}

TEST_F(ListClicks, CellClickComesBeforeTheCellActs)
{
    m_list.SetCheckbox(3, 1, XLC_UNCHECKED);
    std::vector<Cell> heard;
    int state = -1;
    m_list.m_onCellClick = [&](int row, int col) {
        heard.emplace_back(row, col);
        state = m_list.GetCheckbox(row, col);
    };
    ClickCell(3, 1);
    EXPECT_EQ(state, XLC_UNCHECKED);
    EXPECT_EQ(m_list.GetCheckbox(3, 1), XLC_CHECKED);
    ClickCell(0, 0);
    EXPECT_EQ(heard, (std::vector<Cell>{{3, 1}, {0, 0}}));
    ClickAt(EmptySpace());
    EXPECT_EQ(heard.size(), 2u);
}

TEST_F(ListClicks, CellThatItsClickHandlerDisablesStillActs)
{
    m_list.SetCheckbox(3, 1, XLC_UNCHECKED);
    m_list.m_onCellClick = [&](int row, int col) { m_list.SetEnabled(row, col, false); };
    ClickCell(3, 1);
    EXPECT_EQ(m_list.GetCheckbox(3, 1), XLC_CHECKED);
    EXPECT_EQ(m_list.GetSelectedItem(), 3);
}

TEST_F(ListClicks, ClickHandlerMayTakeTheRowsAway)
{
    m_list.SetCheckbox(3, 1, XLC_UNCHECKED);
    m_list.m_onCellClick = [&](int, int) { m_list.DeleteAllColumns(); };
    ClickCell(3, 1);
    EXPECT_EQ(m_list.GetItemCount(), 0);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListClicks, ClickHandlerMayEndTheList)
{
    m_list.SetCheckbox(3, 1, XLC_UNCHECKED);
    m_list.m_onCellClick = [&](int, int) { m_list.DestroyWindow(); };
    list_input::Click(Screen(Middle(3, 1)));
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.m_hWnd == nullptr; }));
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListClicks, StateChangeHandlerMayEndTheList)
{
    for (int row = 0; row < rows; ++row)
        m_list.SetRadioButton(row, 1, row == 2 ? XLC_RADIO_ON : XLC_RADIO_OFF);
    m_list.m_onStateChange = [&](int, int) { m_list.DestroyWindow(); };
    list_input::Click(Screen(Middle(5, 1)));
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.m_hWnd == nullptr; }));
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListClicks, EditAndComboCellsGetTheirRowSelected)
{
    // Their editors have the button's release.
    m_list.SetEdit(2, 1, true);
    list_input::Click(Screen(Middle(2, 1)));
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.GetSelectedItem() == 2; }));
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(tests::PumpUntil([this] { return ::GetFocus() == m_list.m_hWnd; }));
    m_list.SetComboBox(4, 1, std::map<int, wchar_t const *>{{1, L"one"}, {2, L"two"}}, 1, 1);
    list_input::Click(Screen(Middle(4, 1)));
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.GetSelectedItem() == 4; }));
    EXPECT_EQ(m_list.GetComboCurSel(4, 1), 1);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListClicks, OtherDisplayStylesHaveNoCells)
{
    bool called = false;
    m_list.m_onCellClick = [&](int, int) { called = true; };
    m_list.SetCheckbox(0, 0, XLC_UNCHECKED);
    m_list.SetDisplayStyle(LVS_LIST);
    m_list.UpdateWindow();
    CRect label;
    ASSERT_TRUE(m_list.GetItemRect(0, &label, LVIR_LABEL));
    DoubleClickAt({label.left + 4, label.CenterPoint().y});
    EXPECT_EQ(m_list.GetCheckbox(0, 0), XLC_UNCHECKED);
    EXPECT_FALSE(called);
    EXPECT_EQ(m_list.GetSelectedItem(), 0);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListClicks, ItemWithoutCellsIsSelectedAndNothingElse)
{
    int const foreign = m_list.InsertForeignItem(3, L"foreign");
    ASSERT_EQ(foreign, 3);
    bool called = false;
    m_list.m_onCellClick = [&](int, int) { called = true; };
    ClickCell(foreign, 1);
    EXPECT_EQ(m_list.GetSelectedItem(), foreign);
    EXPECT_FALSE(called);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
    DoubleClickAt(Middle(foreign, 1));
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_ITEM_DBLCLICKED, foreign, 1}}));
}

TEST_F(ListClicks, ColumnBehindTheEndOfAShortRowOnlySelects)
{
    for (int col = 0; col < list_input::columns; ++col)
        m_list.CListCtrl::SetColumnWidth(col, 60);
    int const added = m_list.AddColumn(L"late", LVCFMT_LEFT, 60);
    ClickCell(2, added);
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListClicks, PressOnEmptySpaceDeselects)
{
    m_list.SetCurSel(2, false);
    ClickAt(EmptySpace());
    EXPECT_EQ(m_list.GetSelectedItem(), -1);
    tests::PumpFor(std::chrono::milliseconds(150));
    EXPECT_EQ(Ticks(2), 0); // no combo to be closed
}

TEST_F(ListClicks, CheckCellsMoveTheHeaderThatFollowsThem)
{
    for (int row = 0; row < rows; ++row)
        m_list.SetCheckbox(row, 1, XLC_UNCHECKED);
    m_list.SetHeaderAutoCheckbox(true);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_UNCHECKED));
    ClickCell(3, 1);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_MIXED);
    ClickCell(3, 1);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_UNCHECKED);

    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_SORT_ASCENDING));
    ClickCell(3, 1);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_SORT_ASCENDING);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_CHECKED));
    m_list.SetHeaderAutoCheckbox(false);
    ClickCell(3, 1);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_CHECKED);
}

TEST_F(ListClicks, ClickRepaintsTheCell)
{
    m_list.SetCheckbox(2, 1, XLC_UNCHECKED);
    m_list.SetCurSel(2, false);
    m_list.UpdateWindow();
    m_list.TakeUpdateRect();
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(2, 1, LVIR_BOUNDS, cell));
    CRect invalid;
    m_list.m_onStateChange = [&](int, int) { ::GetUpdateRect(m_list.m_hWnd, &invalid, FALSE); };
    ClickCell(2, 1);
    CRect common;
    EXPECT_TRUE(common.IntersectRect(invalid, cell));
    EXPECT_EQ(common, cell);
}
} // namespace
