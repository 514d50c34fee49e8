// Clicks on a column's header: the check boxes that they drive and the message that ends them.

#include "list_InputTest.h"

namespace
{
using list_input::rows;
using tests::PostedRows;

class ListHeaderClicks : public list_input::ListInputTest
{
protected:
    /// A real click on the title of a column.
    void ClickHeader(int col)
    {
        CRect item;
        ASSERT_TRUE(::SendMessageW(m_list.Header(), HDM_GETITEMRECT, col, reinterpret_cast<LPARAM>(&item)));
        list_input::Click(tests::ClientPoint(m_list.Header(), item.CenterPoint()));
        EXPECT_TRUE(tests::PumpUntil([this] { return !m_host.parent.posted.empty(); }));
    }
    /// Unchecked, checked, crossed, radio on, radio off in rows 0 to 4; no check cells below.
    void FillEveryState()
    {
        m_list.SetCheckbox(0, 1, XLC_UNCHECKED);
        m_list.SetCheckbox(1, 1, XLC_CHECKED);
        m_list.SetCheckbox(2, 1, XLC_CROSSED);
        m_list.SetRadioButton(3, 1, XLC_RADIO_ON);
        m_list.SetRadioButton(4, 1, XLC_RADIO_OFF);
    }
    std::vector<int> States(int col) const
    {
        std::vector<int> states;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
            states.push_back(m_list.GetCheckbox(row, col));
        return states;
    }
};

TEST_F(ListHeaderClicks, MixedColumnBecomesCheckedWithANotificationForEachChange)
{
    FillEveryState();
    m_list.SetHeaderAutoCheckbox(true);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_MIXED));
    ClickHeader(1);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 0, 1},
                                               {WM_XLISTCTRL_CHECKBOX_CLICKED, 2, 1},
                                               {WM_XLISTCTRL_CHECKBOX_CLICKED, 3, 1},
                                               {WM_XLISTCTRL_CHECKBOX_CLICKED, 4, 1},
                                               {WM_XLISTCTRL_COLUMNCLICK, 1, 1}}));
    EXPECT_EQ(States(1), (std::vector<int>{1, 1, 1, 1, 1, -1, -1, -1}));
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_CHECKED);
    EXPECT_TRUE(m_list.GetModified(0, 1));
    EXPECT_FALSE(m_list.GetModified(1, 1));
    EXPECT_TRUE(m_list.GetModified(4, 1));
    EXPECT_FALSE(m_list.GetModified(5, 1));
    EXPECT_TRUE(m_list.GetListModified());
}

TEST_F(ListHeaderClicks, HeaderIsPaintedAtOnceAndTheCellsAfterwards)
{
    m_list.SetCheckbox(2, 1, XLC_UNCHECKED);
    m_list.SetHeaderAutoCheckbox(true);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_UNCHECKED));
    m_list.UpdateWindow();
    ::UpdateWindow(m_list.Header());
    m_list.TakeUpdateRect();
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(2, 1, LVIR_BOUNDS, cell));
    bool headerWaits = true;
    CRect invalid;
    m_list.m_onStateChange = [&](int, int) {
        headerWaits = ::GetUpdateRect(m_list.Header(), nullptr, FALSE);
        ::GetUpdateRect(m_list.m_hWnd, &invalid, FALSE);
    };
    m_list.OnHeaderColumnClick(1);
    EXPECT_FALSE(headerWaits);
    CRect common;
    EXPECT_TRUE(common.IntersectRect(invalid, cell));
    EXPECT_EQ(common, cell);
}

TEST_F(ListHeaderClicks, CheckedColumnBecomesUnchecked)
{
    FillEveryState();
    m_list.SetHeaderAutoCheckbox(true);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_CHECKED));
    ClickHeader(1);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 1, 1},
                                               {WM_XLISTCTRL_CHECKBOX_CLICKED, 2, 1},
                                               {WM_XLISTCTRL_CHECKBOX_CLICKED, 3, 1},
                                               {WM_XLISTCTRL_CHECKBOX_CLICKED, 4, 1},
                                               {WM_XLISTCTRL_COLUMNCLICK, 0, 1}}));
    EXPECT_EQ(States(1), (std::vector<int>{0, 0, 0, 0, 0, -1, -1, -1}));
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_UNCHECKED);
}

TEST_F(ListHeaderClicks, UncheckedColumnBecomesChecked)
{
    for (int row = 0; row < rows; ++row)
        m_list.SetCheckbox(row, 2, XLC_UNCHECKED);
    m_list.SetHeaderAutoCheckbox(true);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(2, XHC_UNCHECKED));
    m_list.OnHeaderColumnClick(2);
    EXPECT_EQ(States(2), std::vector<int>(rows, XLC_CHECKED));
    EXPECT_EQ(m_list.GetHeaderCheckedState(2), XHC_CHECKED);
    PostedRows const posted = m_host.TakePosted();
    ASSERT_EQ(posted.size(), static_cast<size_t>(rows) + 1);
    EXPECT_EQ(posted.back(), (tests::PostedRow{WM_XLISTCTRL_COLUMNCLICK, 1, 2}));
}

TEST_F(ListHeaderClicks, CrossedColumnStaysAndReportsFour)
{
    for (int row = 0; row < rows; ++row)
        m_list.SetCheckbox(row, 1, XLC_CROSSED);
    m_list.SetHeaderAutoCheckbox(true);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_CROSSED));
    ClickHeader(1);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 4, 1}}));
    EXPECT_EQ(States(1), std::vector<int>(rows, XLC_CROSSED));
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_CROSSED);
    EXPECT_FALSE(m_list.GetListModified());
}

TEST_F(ListHeaderClicks, SortMarksAndPlainHeadersReportTheirState)
{
    m_list.SetHeaderAutoCheckbox(true);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(0, XHC_SORT_ASCENDING));
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_SORT_DESCENDING));
    ClickHeader(0);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 5, 0}}));
    ClickHeader(1);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 6, 1}}));
    ClickHeader(3);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 0, 3}}));
    EXPECT_EQ(m_list.GetHeaderCheckedState(0), XHC_SORT_ASCENDING);
}

TEST_F(ListHeaderClicks, WithoutAutomaticCheckBoxesTheStateIsOnlyReported)
{
    FillEveryState();
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_MIXED));
    ClickHeader(1);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 3, 1}}));
    EXPECT_EQ(States(1), (std::vector<int>{0, 1, 2, 3, 4, -1, -1, -1}));
    EXPECT_EQ(m_list.GetHeaderCheckedState(1), XHC_MIXED);
}

TEST_F(ListHeaderClicks, DisabledCellsAreDrivenLikeOthers)
{
    m_list.SetCheckbox(0, 1, XLC_UNCHECKED);
    m_list.SetEnabled(0, 1, false);
    m_list.SetHeaderAutoCheckbox(true);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_UNCHECKED));
    m_list.OnHeaderColumnClick(1);
    EXPECT_EQ(m_list.GetCheckbox(0, 1), XLC_CHECKED);
}

TEST_F(ListHeaderClicks, RowsWithoutThatCellAreLeftOut)
{
    m_list.InsertForeignItem(0, L"foreign");
    int const late = m_list.AddColumn(L"late", LVCFMT_LEFT, 30);
    int const row = m_list.AddItem(L"full", nullptr, 0);
    m_list.SetCheckbox(row, late, XLC_UNCHECKED);
    m_list.SetHeaderAutoCheckbox(true);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(late, XHC_UNCHECKED));
    m_list.OnHeaderColumnClick(late);
    EXPECT_EQ(m_host.TakePosted(),
              (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, row, late}, {WM_XLISTCTRL_COLUMNCLICK, 1, late}}));
}

TEST_F(ListHeaderClicks, ColumnThatDoesNotExistReportsItsMissingState)
{
    m_list.OnHeaderColumnClick(17);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COLUMNCLICK, -1, 17}}));
}

TEST_F(ListHeaderClicks, HandlerMayEndTheListInTheMiddle)
{
    for (int row = 0; row < rows; ++row)
        m_list.SetCheckbox(row, 1, XLC_UNCHECKED);
    m_list.SetHeaderAutoCheckbox(true);
    ASSERT_TRUE(m_list.SetHeaderCheckedState(1, XHC_UNCHECKED));
    int calls = 0;
    m_list.m_onStateChange = [&](int, int) {
        if (++calls == 3)
            m_list.DestroyWindow();
    };
    m_list.OnHeaderColumnClick(1);
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(m_host.TakePosted(),
              (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 0, 1}, {WM_XLISTCTRL_CHECKBOX_CLICKED, 1, 1}}));
}
} // namespace
