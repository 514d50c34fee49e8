// Operations that go over all rows: what they find, and how little they ask the native list for it.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "ListTestHost.h"

namespace
{
using tests::CountingList;
using tests::TestList;

class Parent : public tests::ListParent
{
public:
    /// Called with each notification of the list's items.
    std::function<void(NMLISTVIEW const &)> m_onItem;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result) override
    {
        auto const & change = *reinterpret_cast<NMLISTVIEW const *>(lParam);
        bool const ofItems = change.hdr.code == LVN_INSERTITEM || change.hdr.code == LVN_DELETEITEM ||
                             change.hdr.code == LVN_DELETEALLITEMS || change.hdr.code == LVN_ITEMCHANGED;
        if (m_onItem && ofItems)
        {
            auto const onItem = m_onItem;
            onItem(change);
        }
        return ListParent::OnNotify(wParam, lParam, result);
    }
};

/// Three columns; the word of row i is 100 + i, its pointer &numbers[i].
class ListSearchWindow : public testing::Test
{
protected:
    static constexpr int rows = 60;

    ListSearchWindow()
    {
        EXPECT_TRUE(m_list.Create(TestList::default_style, CRect(0, 0, 360, 200), &m_host, TestList::id));
        m_list.SetRedraw(FALSE);
        m_list.AddColumns(3);
        for (int row = 0; row < rows; ++row)
            m_list.AddItem(L"text", &m_numbers[row], 100 + row);
    }
    ~ListSearchWindow() override
    {
        m_host.m_onItem = nullptr;
        if (m_list.m_hWnd != nullptr)
            m_list.DestroyWindow();
    }
    /// The first row that the rows themselves say has the word.
    int Walked(long long word) const
    {
        for (int row = 0; row < m_list.GetItemCount(); ++row)
        {
            XLISTCTRLDATA const * const cells = m_list.GetRowData(row);
            if (cells != nullptr && cells->itemData64 == word)
                return row;
        }
        return -1;
    }
    /// What reached the native list meanwhile.
    int Asked(std::function<void()> const & work)
    {
        m_list.m_asked = 0;
        work();
        return m_list.m_asked;
    }

    Parent m_host;
    CountingList m_list;
    int m_numbers[rows] = {};
};

TEST_F(ListSearchWindow, AUniqueRowCostsOneQuestionAndAMissingOneNone)
{
    // The number of rows may be asked for as well.
    EXPECT_LE(Asked([this] { EXPECT_EQ(m_list.FindDataItem(142LL), 42); }), 2);
    EXPECT_LE(Asked([this] { EXPECT_EQ(m_list.FindDataItem(100), 0); }), 2);
    EXPECT_LE(Asked([this] { EXPECT_EQ(m_list.FindDataItemPtr(&m_numbers[rows - 1]), rows - 1); }), 2);
    EXPECT_LE(Asked([this] { EXPECT_EQ(m_list.FindDataItem(7LL), -1); }), 1);
    int key[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    m_list.SetItemIdx8(30, key);
    key[7] = 0;
    EXPECT_LE(Asked([&] { EXPECT_EQ(m_list.FindDataItemClavis(key), 30); }), 2);
    EXPECT_EQ(m_list.FindDataItemClavis(nullptr), -1);
}

TEST_F(ListSearchWindow, TheTopmostOfSeveralIsFoundBeforeAndAfterASort)
{
    for (int const count : {3, 40})
    {
        for (int row = 0; row < rows; ++row)
        {
            m_list.SetItemData(row, row >= rows - count ? 7LL : 8LL);
            m_list.SetItemText(row, 1, rows - row);
            m_list.SetItemText(row, 2, row * 13 % rows);
        }
        EXPECT_LE(Asked([&] { EXPECT_EQ(m_list.FindDataItem(7LL), rows - count); }), rows + 1);
        m_list.SortByColumn(1, true, false, nullptr);
        EXPECT_EQ(m_list.FindDataItem(7LL), 0);
        EXPECT_EQ(m_list.FindDataItem(8LL), count);
        m_list.SortByColumn(2, true, false, nullptr);
        EXPECT_EQ(m_list.FindDataItem(7LL), Walked(7));
        EXPECT_EQ(m_list.FindDataItem(8LL), Walked(8));
        m_list.SortByColumn(1, false, false, nullptr);
    }
}

TEST_F(ListSearchWindow, RowsDeletedAreNotFoundAndTheOthersStandElsewhere)
{
    m_list.DeleteItem(10);
    EXPECT_EQ(m_list.FindDataItem(110LL), -1);
    EXPECT_EQ(m_list.FindDataItem(111LL), 10);
    EXPECT_LE(Asked([this] { m_list.FindDataItem(111LL); }), 2) << "still from the rows in memory";
    m_list.DeleteAllItems();
    EXPECT_EQ(m_list.FindDataItem(111LL), -1);
    m_list.AddItem(L"new", nullptr, 5);
    EXPECT_EQ(m_list.FindDataItem(5LL), 0);
    EXPECT_LE(Asked([this] { m_list.FindDataItem(5LL); }), 2);
}

TEST_F(ListSearchWindow, RowsInsertedPastTheClassAreNoRows)
{
    m_list.InsertForeignItem(0, L"foreign");
    m_list.InsertForeignItem(20, L"foreign");
    EXPECT_EQ(m_list.FindDataItem(0LL), -1);
    EXPECT_EQ(m_list.FindDataItem(142LL), 44);
    EXPECT_LE(Asked([this] { m_list.FindDataItem(142LL); }), 2);
    EXPECT_EQ(m_list.CountCheckedItems(1, -1), static_cast<unsigned long long>(rows));
}

TEST_F(ListSearchWindow, RowsDeletedPastTheClassAreNotFoundNorCounted)
{
    m_list.SetCheckbox(5, 1, XLC_CHECKED);
    m_list.SetCheckbox(6, 1, XLC_CHECKED);
    m_list.SetRadioButton(7, 2, XLC_RADIO_ON);
    m_list.CListCtrl::DeleteItem(7);
    m_list.CListCtrl::DeleteItem(5);
    EXPECT_EQ(m_list.FindDataItem(105LL), -1);
    EXPECT_EQ(m_list.FindDataItem(106LL), 5);
    EXPECT_EQ(m_list.CountCheckedItems(1, XLC_CHECKED), 1u);
    EXPECT_EQ(m_list.CountCheckedItems(1, -1), static_cast<unsigned long long>(rows - 2));
    EXPECT_EQ(m_list.GetActiveRadioItem(2), -1);
    ::SendMessageW(m_list.m_hWnd, LVM_DELETEALLITEMS, 0, 0);
    EXPECT_EQ(m_list.FindDataItem(106LL), -1);
    EXPECT_EQ(m_list.CountCheckedItems(1, -1), 0u);
    m_list.SetHeaderAutoCheckbox(true);
    m_list.SetHeaderCheckedState(1, XHC_MIXED);
    m_list.AddItem(L"new", nullptr, 106);
    m_list.SetCheckbox(0, 1, XLC_UNCHECKED);
    EXPECT_EQ(m_list.FindDataItem(106LL), 0);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_UNCHECKED);
    // Emptied by its own operation, the list knows its rows again.
    m_list.DeleteAllItems();
    m_list.AddItem(L"new", nullptr, 1);
    EXPECT_LE(Asked([this] { EXPECT_EQ(m_list.CountCheckedItems(1, -1), 1u); }), 1);
}

TEST_F(ListSearchWindow, AParameterWordThatIsNoRowIsNotLookedInto)
{
    m_list.CListCtrl::InsertItem(LVIF_TEXT | LVIF_PARAM, 0, L"alien", 0, 0, 0, 16);
    for (int row = 1; row <= rows; ++row)
        m_list.SetItemData(row, 7LL);
    EXPECT_EQ(m_list.FindDataItem(7LL), 1);
    EXPECT_EQ(m_list.FindDataItem(8LL), -1);
    EXPECT_EQ(m_list.CountCheckedItems(1, -1), static_cast<unsigned long long>(rows));
    EXPECT_EQ(m_list.GetActiveRadioItem(1), -1);
    m_list.DeleteAllToolTips();
    m_list.CListCtrl::SetItemData(0, 0);
}

TEST_F(ListSearchWindow, AnswersTheParentAsTheRowsDoWhileItemsChange)
{
    int heard = 0;
    int wrong = 0;
    m_host.m_onItem = [&](NMLISTVIEW const &) {
        ++heard;
        unsigned long long counted = 0;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
            counted += m_list.GetRowData(row) != nullptr ? 1 : 0;
        for (long long const word : {100LL, 105LL, 159LL, 555LL, 777LL})
            wrong += m_list.FindDataItem(word) != Walked(word) ? 1 : 0;
        wrong += m_list.CountCheckedItems(1, -1) != counted ? 1 : 0;
    };
    m_list.AddItem(L"new", nullptr, 555);
    m_list.InsertItem(0, L"new", nullptr, 777);
    m_list.InsertForeignItem(3, L"foreign");
    m_list.DeleteItem(0);
    m_list.DeleteItem(5);
    m_list.CListCtrl::DeleteItem(8);
    int const before = heard;
    m_list.DeleteAllItems();
    EXPECT_GE(before, 6);
    EXPECT_GT(heard, before);
    EXPECT_EQ(wrong, 0);
}

TEST_F(ListSearchWindow, AParentThatDeletesWhileARowIsDeletedLosesNoOtherRow)
{
    bool again = true;
    m_host.m_onItem = [&](NMLISTVIEW const & change) {
        // The row's parameter word is being cleared.
        if (change.hdr.code != LVN_ITEMCHANGED || !again)
            return;
        again = false;
        m_list.DeleteItem(0);
    };
    m_list.DeleteItem(10);
    m_host.m_onItem = nullptr;
    for (int row = 0; row < rows; ++row)
    {
        if (row != 0 && row != 10)
        {
            EXPECT_EQ(m_list.FindDataItem(100LL + row), Walked(100 + row)) << row;
            EXPECT_GE(Walked(100 + row), 0) << row;
        }
    }
    EXPECT_EQ(m_list.FindDataItem(100LL), -1);
    EXPECT_EQ(m_list.FindDataItem(110LL), -1);
}

TEST_F(ListSearchWindow, CountsAndRadioButtonsComeFromTheRowsInMemory)
{
    for (int row = 0; row < rows; ++row)
        m_list.SetCheckbox(row, 1, row % 3);
    m_list.GetRowItemData(50, 2)->checkedState = XLC_RADIO_ON;
    m_list.GetRowItemData(40, 2)->checkedState = XLC_RADIO_ON;
    EXPECT_EQ(Asked([this] { EXPECT_EQ(m_list.CountCheckedItems(1, XLC_CHECKED), 20u); }), 0);
    EXPECT_LE(Asked([this] { EXPECT_EQ(m_list.GetActiveRadioItem(2), 40); }), 3) << "the topmost of two";
    EXPECT_LE(Asked([this] { EXPECT_EQ(m_list.GetActiveRadioItem(1), -1); }), 1);
    EXPECT_EQ(m_list.GetActiveRadioItem(3), -1);
    EXPECT_EQ(m_list.GetActiveRadioItem(-1), -1);
    EXPECT_EQ(m_list.CountCheckedItems(3, -1), 0u);
    EXPECT_EQ(m_list.CountCheckedItems(-1, -1), 0u);
}

TEST_F(ListSearchWindow, ACheckBoxIsRecountedWithoutAskingForTheRows)
{
    m_list.SetHeaderAutoCheckbox(true);
    for (int row = 0; row < rows; ++row)
        m_list.SetCheckbox(row, 1, XLC_UNCHECKED);
    m_list.SetHeaderCheckedState(1, XHC_UNCHECKED);
    m_list.SetBatchInsertMode(true);
    EXPECT_LE(Asked([this] { m_list.SetCheckbox(3, 1, XLC_CHECKED); }), 5);
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_MIXED);
}

TEST_F(ListSearchWindow, ToolTipsAreDeletedWithoutAskingForTheRows)
{
    m_list.SetItemToolTipText(4, 0, L"a");
    m_list.SetItemToolTipText(59, 2, L"b");
    EXPECT_LE(Asked([this] { m_list.DeleteAllToolTips(); }), 1);
    EXPECT_EQ(m_list.GetItemToolTipText(4, 0), L"");
    EXPECT_EQ(m_list.GetItemToolTipText(59, 2), L"");
}

TEST_F(ListSearchWindow, AllRowsAreDisabledWithoutAskingForThem)
{
    EXPECT_LE(Asked([this] { m_list.EnableAll(false); }), 5);
    for (int row = 0; row < rows; ++row)
        EXPECT_FALSE(m_list.GetEnabled(row)) << row;
    EXPECT_FALSE(m_list.IsWindowEnabled());
    m_list.SetRedraw(TRUE);
    m_list.UpdateWindow();
    m_list.EnableAll(true);
    EXPECT_TRUE(m_list.GetEnabled(59, 2));
    CRect client;
    m_list.GetClientRect(&client);
    EXPECT_EQ(m_list.TakeUpdateRect(), client) << "the whole list is painted again";
}

// --- A click on a header, whose notifications reach the host ---

TEST_F(ListSearchWindow, ARowFoundOnceIsFoundWhereItHasMovedTo)
{
    ASSERT_EQ(m_list.FindDataItem(140), 40);
    m_list.DeleteItem(3);
    EXPECT_EQ(m_list.FindDataItem(140), 39);
    m_list.InsertItem(0, L"new", nullptr, 7);
    m_list.InsertItem(0, L"new", nullptr, 8);
    EXPECT_EQ(m_list.FindDataItem(140), 41);
    for (int row = 0; row < m_list.GetItemCount(); ++row)
        m_list.SetItemText(row, 1, -row);
    m_list.SortByColumn(1, true, false, nullptr);
    EXPECT_EQ(m_list.FindDataItem(140), m_list.GetItemCount() - 1 - 41);
    EXPECT_EQ(m_list.FindDataItem(8), m_list.GetItemCount() - 1);
    m_list.DeleteItem(m_list.FindDataItem(140));
    EXPECT_EQ(m_list.FindDataItem(140), -1);
    m_list.DeleteAllItems();
    m_list.InsertItem(0, L"again", nullptr, 140);
    EXPECT_EQ(m_list.FindDataItem(140), 0);
}

class ListHeaderWalk : public ListSearchWindow
{
protected:
    ListHeaderWalk()
    {
        for (int row = 0; row < rows; ++row)
            m_list.SetCheckbox(row, 1, XLC_UNCHECKED);
        m_list.SetHeaderAutoCheckbox(true);
        m_list.SetHeaderCheckedState(1, XHC_UNCHECKED);
    }
};

TEST_F(ListHeaderWalk, RowsMayGoWhileTheirColumnChanges)
{
    int calls = 0;
    m_list.m_onStateChange = [&](int, int) {
        ++calls;
        m_list.DeleteItem(m_list.GetItemCount() - 1);
    };
    m_list.OnHeaderColumnClick(1);
    EXPECT_EQ(calls, rows / 2);
    EXPECT_EQ(m_list.GetItemCount(), rows / 2);
    m_list.m_onStateChange = [&](int, int) { m_list.DeleteAllItems(); };
    m_list.SetHeaderCheckedState(1, XHC_CHECKED);
    m_list.OnHeaderColumnClick(1);
    EXPECT_EQ(m_list.GetItemCount(), 0);
}

TEST_F(ListHeaderWalk, RowsMayBeSortedWhileTheirColumnChanges)
{
    for (int row = 0; row < rows; ++row)
        m_list.SetItemText(row, 2, rows - row);
    bool sorted = false;
    m_list.m_onStateChange = [&](int, int) {
        if (!std::exchange(sorted, true))
            m_list.SortByColumn(2, true, false, nullptr);
    };
    m_list.OnHeaderColumnClick(1);
    EXPECT_EQ(m_list.GetItemCount(), rows);
    EXPECT_GE(m_list.CountCheckedItems(1, XLC_CHECKED), static_cast<unsigned long long>(rows - 1));
}

TEST_F(ListHeaderWalk, TheWindowMayEndWhileAColumnChanges)
{
    int calls = 0;
    m_list.m_onStateChange = [&](int, int) {
        ++calls;
        m_list.DestroyWindow();
    };
    m_list.OnHeaderColumnClick(1);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(m_list.m_hWnd, nullptr);
}

TEST_F(ListHeaderWalk, TheListObjectMayEndWhileAColumnChanges)
{
    auto * const list = new TestList;
    ASSERT_TRUE(list->Create(TestList::default_style, CRect(0, 0, 100, 100), &m_host, 8));
    list->AddColumns(2);
    list->AddRows(3);
    for (int row = 0; row < 3; ++row)
        list->SetCheckbox(row, 1, XLC_UNCHECKED);
    list->SetHeaderAutoCheckbox(true);
    list->SetHeaderCheckedState(1, XHC_UNCHECKED);
    HWND const window = list->m_hWnd;
    list->m_onStateChange = [list](int, int) { delete list; };
    list->OnHeaderColumnClick(1);
    EXPECT_FALSE(::IsWindow(window));
}
} // namespace
