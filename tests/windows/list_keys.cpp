// Navigation keys in a list: a list of single selection holds its row.

#include "list_InputTest.h"

namespace
{
class ListKeysSingle : public list_input::ListInputTest
{
protected:
    ListKeysSingle() : ListInputTest(tests::TestList::default_style | LVS_SINGLESEL) {}

    void SetUp() override
    {
        ListInputTest::SetUp();
        m_list.SetFocus();
    }
};

TEST_F(ListKeysSingle, HoldTheirRow)
{
    m_list.SetCurSel(3, false);
    for (WORD const key : {VK_DOWN, VK_UP, VK_NEXT, VK_PRIOR})
    {
        PressKey(key);
        EXPECT_EQ(m_list.GetSelectedItem(), 3) << "key " << key;
        EXPECT_TRUE(m_list.IsFocused(3)) << "key " << key;
        EXPECT_EQ(m_list.GetSelectedItemAfter(3), -1) << "key " << key;
    }
}

TEST_F(ListKeysSingle, HoldTheFirstRowIfItIsEnabled)
{
    m_list.SetCurSel(0, false);
    PressKey(VK_DOWN);
    EXPECT_EQ(m_list.GetSelectedItem(), 0);
    PressKey(VK_NEXT);
    EXPECT_EQ(m_list.GetSelectedItem(), 0);
}

TEST_F(ListKeysSingle, DownLeavesADisabledFirstRowForTheNextEnabledOne)
{
    m_list.SetEnabled(0, false);
    m_list.SetEnabled(1, false);
    m_list.SetCurSel(0, false);
    PressKey(VK_DOWN);
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
    m_list.SetCurSel(0, false);
    PressKey(VK_NEXT);
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
}

TEST_F(ListKeysSingle, UpLeavesADisabledFirstRowForTheLastEnabledOne)
{
    m_list.SetEnabled(0, false);
    m_list.SetEnabled(7, false);
    m_list.SetCurSel(0, false);
    PressKey(VK_UP);
    EXPECT_EQ(m_list.GetSelectedItem(), 6);
    m_list.SetCurSel(0, false);
    PressKey(VK_PRIOR);
    EXPECT_EQ(m_list.GetSelectedItem(), 6);
}

TEST_F(ListKeysSingle, OneEnabledCellMakesTheRowEnabled)
{
    m_list.SetEnabled(0, false);
    m_list.SetEnabled(1, false);
    m_list.SetEnabled(1, 3, true);
    m_list.SetCurSel(0, false);
    PressKey(VK_DOWN);
    EXPECT_EQ(m_list.GetSelectedItem(), 1);
}

TEST_F(ListKeysSingle, AllRowsDisabledEndAtTheFirst)
{
    for (int row = 0; row < list_input::rows; ++row)
        m_list.SetEnabled(row, false);
    m_list.SetCurSel(0, false);
    PressKey(VK_DOWN);
    EXPECT_EQ(m_list.GetSelectedItem(), 0);
    PressKey(VK_UP);
    EXPECT_EQ(m_list.GetSelectedItem(), 0);
}

TEST_F(ListKeysSingle, ItemWithoutCellsCountsAsDisabled)
{
    m_list.InsertForeignItem(0, L"foreign");
    m_list.InsertForeignItem(1, L"foreign");
    m_list.SetCurSel(0, false);
    PressKey(VK_DOWN);
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
}

TEST_F(ListKeysSingle, ScrollTheirRowIntoView)
{
    m_list.AddRows(60);
    m_list.SetCurSel(3, false);
    m_list.EnsureVisible(67, FALSE);
    ASSERT_GT(m_list.GetTopIndex(), 30);
    tests::MessageRecorder recorder({LVM_ENSUREVISIBLE});
    recorder.Watch(m_list.m_hWnd, "list");
    PressKey(VK_NEXT);
    EXPECT_LE(m_list.GetTopIndex(), 3);
    EXPECT_TRUE(recorder.Matches({{"list", LVM_ENSUREVISIBLE, tests::Way::sent, 3, FALSE}}));
    EXPECT_EQ(m_list.GetSelectedItem(), 3);
}

TEST_F(ListKeysSingle, WithoutSelectionTheyMoveAsUsual)
{
    m_list.SetItemState(4, LVIS_FOCUSED, LVIS_FOCUSED);
    ASSERT_EQ(m_list.GetSelectedItem(), -1);
    PressKey(VK_DOWN);
    EXPECT_EQ(m_list.GetSelectedItem(), 5);
}

TEST_F(ListKeysSingle, OtherKeysMoveAsUsual)
{
    m_list.SetCurSel(3, false);
    PressKey(VK_END);
    EXPECT_EQ(m_list.GetSelectedItem(), 7);
    PressKey(VK_HOME);
    EXPECT_EQ(m_list.GetSelectedItem(), 0);
}

class ListKeysMulti : public list_input::ListInputTest
{
};

TEST_F(ListKeysMulti, MoveAsUsual)
{
    m_list.SetFocus();
    m_list.SetCurSel(3, false);
    PressKey(VK_DOWN);
    EXPECT_EQ(m_list.GetSelectedItem(), 4);
    PressKey(VK_UP);
    PressKey(VK_UP);
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
}
} // namespace
