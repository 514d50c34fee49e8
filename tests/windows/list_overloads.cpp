// Numbers of every kind as a row's word, and the native list's own forms of names that the list has as well.

#include <gtest/gtest.h>

#include <iterator>

#include "ListTestHost.h"

namespace
{
class ListOverloads : public testing::Test
{
protected:
    void SetUp() override { m_host.Fill(2, 3); }

    tests::ListHost m_host;
    // As a host sees it, without what the test list lets at.
    CXListCtrl & m_list = m_host.list;
};

TEST_F(ListOverloads, ARowsWordTakesEveryKindOfNumber)
{
    EXPECT_TRUE(m_list.SetItemData(0, 5L));
    EXPECT_EQ(m_list.GetItemData64(0), 5);
    EXPECT_TRUE(m_list.SetItemData(0, -5L));
    EXPECT_EQ(m_list.GetItemData64(0), -5);
    EXPECT_TRUE(m_list.SetItemData(0, 4000000000UL));
    EXPECT_EQ(m_list.GetItemData64(0), 4000000000LL);
    EXPECT_TRUE(m_list.SetItemData(0, static_cast<DWORD_PTR>(0x123456789ABCDEF0)));
    EXPECT_EQ(m_list.GetItemData64(0), 0x123456789ABCDEF0);
    EXPECT_NE(m_list.GetRowData(0), nullptr) << "the native word still holds the row";
    EXPECT_TRUE(m_list.SetItemData(0, 0xFFFFFFFFFFFFFFFFULL));
    EXPECT_EQ(m_list.GetItemData64(0), -1);
    EXPECT_FALSE(m_list.SetItemData(3, 5L));
}

TEST_F(ListOverloads, EveryKindOfNumberIsFound)
{
    m_list.SetItemData(0, 4000000000U);
    m_list.SetItemData(1, 5);
    m_list.SetItemData(2, -7LL);
    EXPECT_EQ(m_list.FindDataItem(5u), 1);
    EXPECT_EQ(m_list.FindDataItem(5L), 1);
    EXPECT_EQ(m_list.FindDataItem(5UL), 1);
    EXPECT_EQ(m_list.FindDataItem(5ULL), 1);
    EXPECT_EQ(m_list.FindDataItem(4000000000U), 0) << "widened without a sign";
    EXPECT_EQ(m_list.FindDataItem(-7L), 2) << "widened with the sign";
    EXPECT_EQ(m_list.FindDataItem(static_cast<DWORD_PTR>(-7)), 2);
    EXPECT_EQ(m_list.FindDataItem(6u), -1);
}

TEST_F(ListOverloads, NativeMembersOfTheSameNamesCanBeCalled)
{
    wchar_t text[20] = L"";
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = 1;
    item.pszText = text;
    item.cchTextMax = static_cast<int>(std::size(text));
    ASSERT_TRUE(m_list.GetItem(&item));
    EXPECT_STREQ(item.pszText, L"r1");

    EXPECT_TRUE(m_list.SetItem(1, 1, LVIF_TEXT, L"native", 0, 0, 0, 0));
    EXPECT_EQ(m_list.GetItemText(1, 1), L"native");
    EXPECT_EQ(m_list.InsertItem(0, L"foreign"), 0);
    EXPECT_EQ(m_list.GetItemCount(), 4);
    EXPECT_EQ(m_list.GetRowData(0), nullptr);

    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = 40;
    column.pszText = const_cast<wchar_t *>(L"native");
    EXPECT_EQ(m_list.InsertColumn(2, &column), 2);
    EXPECT_EQ(m_list.GetColumnCount(), 3);
}

TEST_F(ListOverloads, CellRectanglesArePublic)
{
    CRect first;
    CRect second;
    ASSERT_TRUE(m_list.GetSubItemRect(1, 0, LVIR_BOUNDS, first));
    ASSERT_TRUE(m_list.GetSubItemRect(1, 1, LVIR_BOUNDS, second));
    EXPECT_EQ(first.right, second.left);
    EXPECT_FALSE(m_list.GetSubItemRect(3, 0, LVIR_BOUNDS, first));
}
} // namespace
