// Columns that the native list is told to insert or delete past the list's own operations.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ListTestHost.h"

namespace
{
class ListNativeColumns : public testing::Test
{
protected:
    void SetUp() override
    {
        m_host.Fill(3, 2);
        for (int row = 0; row < 2; ++row)
        {
            m_list.SetItemData(row, 100LL + row);
            for (int col = 0; col < 3; ++col)
                m_list.SetItemText(row, col, Name(row, col).c_str());
        }
        m_list.SetCheckbox(0, 1, XLC_CHECKED);
        m_list.SetItemText(0, 2, 7);
        m_list.SetItemText(0, 2, L"0.2", RGB(1, 2, 3), RGB(4, 5, 6));
    }
    static std::wstring Name(int row, int col) { return std::to_wstring(row) + L"." + std::to_wstring(col); }
    std::vector<std::wstring> Texts(int row) const
    {
        std::vector<std::wstring> texts;
        for (int col = 0; col < m_list.GetColumnCount(); ++col)
            texts.emplace_back(m_list.GetItemText(row, col));
        return texts;
    }
    int Insert(int col)
    {
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.cx = 40;
        column.pszText = const_cast<wchar_t *>(L"native");
        return m_list.InsertColumn(col, &column);
    }

    tests::ListHost m_host;
    tests::TestList & m_list = m_host.list;
};

TEST_F(ListNativeColumns, ADeletedColumnTakesItsCellsWithIt)
{
    ASSERT_TRUE(m_list.DeleteColumn(1));
    EXPECT_EQ(m_list.GetColumnCount(), 2);
    EXPECT_EQ(Texts(0), (std::vector<std::wstring>{L"0.0", L"0.2"}));
    EXPECT_EQ(m_list.GetItemCheckedState(0, 1), XLC_NONE) << "it has gone with the check box";
    EXPECT_EQ(m_list.GetItemValueType(0, 1), XLV_INT) << "the number's cell stands below its text";
    COLORREF text = 0;
    COLORREF background = 0;
    EXPECT_TRUE(m_list.GetItemColors(0, 1, text, background));
    EXPECT_EQ(background, RGB(4, 5, 6));
    EXPECT_FALSE(m_list.IsValidItem(0, 2)) << "the list counts its columns";
    EXPECT_EQ(m_list.GetRowItemData(0, 2), nullptr);
    EXPECT_FALSE(m_list.SetItemText(0, 2, L"x"));
    EXPECT_EQ(m_list.GetItemData64(1), 101);
}

TEST_F(ListNativeColumns, DeletingTheFirstOneLeavesTheCellsAsItLeavesTheTexts)
{
    std::vector<std::wstring> const before = Texts(0);
    ASSERT_TRUE(m_list.DeleteColumn(0));
    EXPECT_EQ(m_list.GetColumnCount(), 2);
    EXPECT_EQ(Texts(0), std::vector<std::wstring>(before.begin(), before.begin() + 2));
    EXPECT_EQ(m_list.GetItemCheckedState(0, 1), XLC_CHECKED);
    EXPECT_EQ(m_list.GetItemData64(0), 100) << "the row's word";
    EXPECT_FALSE(m_list.IsValidItem(0, 2));
}

TEST_F(ListNativeColumns, ARefusedDeletionChangesNothing)
{
    EXPECT_FALSE(m_list.DeleteColumn(3));
    EXPECT_FALSE(m_list.DeleteColumn(-1));
    EXPECT_TRUE(m_list.IsValidItem(0, 2));
    EXPECT_EQ(m_list.GetItemCheckedState(0, 1), XLC_CHECKED);
}

TEST_F(ListNativeColumns, AnInsertedColumnMovesTheCellsBehindIt)
{
    unsigned int const kind = m_list.GetItemValueType(0, 2);
    ASSERT_EQ(Insert(1), 1);
    EXPECT_EQ(m_list.GetColumnCount(), 4);
    EXPECT_EQ(Texts(0), (std::vector<std::wstring>{L"0.0", L"", L"0.1", L"0.2"}));
    EXPECT_EQ(m_list.GetItemCheckedState(0, 1), XLC_NONE);
    EXPECT_EQ(m_list.GetItemCheckedState(0, 2), XLC_CHECKED);
    EXPECT_EQ(m_list.GetItemValueType(0, 3), kind);
    EXPECT_EQ(m_list.GetItemData64(0), 100);
    EXPECT_TRUE(m_list.SetItemText(0, 1, L"new")) << "the column has cells of its own";
}

TEST_F(ListNativeColumns, OneBehindTheLastHasCells)
{
    ASSERT_EQ(Insert(3), 3);
    EXPECT_TRUE(m_list.SetCheckbox(1, 3, XLC_CROSSED));
    EXPECT_EQ(m_list.GetItemCheckedState(1, 3), XLC_CROSSED);
    EXPECT_EQ(m_list.GetItemCheckedState(0, 1), XLC_CHECKED);
}

TEST_F(ListNativeColumns, TheListsOwnInsertionLeavesRowsShortAsEver)
{
    EXPECT_EQ(m_list.AddColumn(L"c3", LVCFMT_LEFT, 40), 3);
    EXPECT_FALSE(m_list.SetCheckbox(1, 3, XLC_CROSSED));
    EXPECT_EQ(m_list.GetItemCheckedState(0, 1), XLC_CHECKED);
}

TEST_F(ListNativeColumns, RowsAddedLaterReachAllColumns)
{
    ASSERT_TRUE(m_list.DeleteColumn(2));
    ASSERT_EQ(Insert(1), 1);
    ASSERT_EQ(Insert(1), 1);
    int const row = m_list.AddItem(L"x", nullptr, 0);
    EXPECT_TRUE(m_list.SetCheckbox(row, 3, XLC_CHECKED));
    EXPECT_FALSE(m_list.SetCheckbox(row, 4, XLC_CHECKED));
}
} // namespace
