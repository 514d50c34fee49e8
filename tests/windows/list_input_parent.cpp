// Whom a list tells of a change and how; the parts of its input that pass on to the native list; its timers.

#include "list_InputTest.h"

namespace
{
using tests::PostedRows;

class ListNotifications : public list_input::ListInputTest
{
};

TEST_F(ListNotifications, ArePostedInOrder)
{
    tests::MessageRecorder recorder({WM_XLISTCTRL_CHECKBOX_CLICKED, WM_XLISTCTRL_ITEM_DBLCLICKED});
    recorder.Watch(m_host.parent.m_hWnd, "parent");
    m_list.SetCheckbox(3, 2, XLC_UNCHECKED);
    DoubleClickAt(Middle(3, 2));
    EXPECT_TRUE(recorder.Matches({
        {"parent", WM_XLISTCTRL_CHECKBOX_CLICKED, tests::Way::posted, 3, 2},
        {"parent", WM_XLISTCTRL_ITEM_DBLCLICKED, tests::Way::posted, 3, 2},
    }));
}

TEST_F(ListNotifications, CallbackRunsBeforeThePostedMessageArrives)
{
    size_t postedSoFar = 99;
    m_list.m_onStateChange = [&](int, int) { postedSoFar = m_host.parent.posted.size(); };
    m_list.OnItemStateChange(2, 3, WM_XLISTCTRL_EDIT_END);
    EXPECT_EQ(postedSoFar, 0u);
    EXPECT_TRUE(m_host.parent.posted.empty());
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_EDIT_END, 2, 3}}));
}

TEST_F(ListNotifications, RowAndColumnKeepTheirSign)
{
    m_list.OnItemStateChange(-1, -2, WM_XLISTCTRL_EDIT_END);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_EDIT_END, -1, -2}}));
}

class CatchingList : public tests::TestList
{
public:
    std::vector<std::pair<int, int>> caught;

    void OnItemStateChange(int row, int col, unsigned int) override { caught.emplace_back(row, col); }
};

TEST_F(ListNotifications, DerivedListCatchesAllChanges)
{
    CatchingList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 150), &m_host.parent, 9));
    tests::WindowCloser const closer(list);
    list.AddColumns(2);
    list.AddRows(2);
    list.SetCheckbox(0, 0, XLC_UNCHECKED);
    list.SetCheckbox(1, 0, XLC_CHECKED);
    list.SetHeaderAutoCheckbox(true);
    list.SetHeaderCheckedState(0, XHC_MIXED);
    list.OnHeaderColumnClick(0);
    EXPECT_EQ(list.caught, (std::vector<std::pair<int, int>>{{0, 0}}));
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 1, 0}}));
}

/// A list that is a window of its own.
class FreeList : public tests::TestList
{
public:
    FreeList()
    {
        if (!CWnd::CreateEx(0, WC_LISTVIEWW, L"", WS_POPUP | WS_VISIBLE | LVS_REPORT, CRect(520, 100, 820, 250),
                            nullptr, 0))
            throw std::runtime_error("the list could not be created");
        SetFullRowSelect();
        AddColumns(2);
        AddRows(3);
        SetCheckbox(1, 1, XLC_UNCHECKED);
        UpdateWindow();
        tests::PumpPosted();
    }
    ~FreeList() override { DestroyWindow(); }

    void PressCheckCell()
    {
        CRect cell;
        ASSERT_TRUE(GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
        CPoint const at = cell.CenterPoint();
        SendMessageW(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        SendMessageW(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
    }
};

TEST_F(ListNotifications, GoToTheOwnerOfAListWithoutParent)
{
    tests::ListParent owner(CRect(100, 420, 300, 480));
    FreeList list;
    list.SetOwner(&owner);
    list.PressCheckCell();
    list.OnHeaderColumnClick(0);
    tests::PumpPosted();
    EXPECT_EQ(owner.posted, (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 1, 1}, {WM_XLISTCTRL_COLUMNCLICK, 0, 0}}));
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListNotifications, GoToTheParentEvenIfThereIsAnOtherOwner)
{
    tests::ListParent owner(CRect(100, 420, 300, 480));
    m_list.SetOwner(&owner);
    m_list.OnItemStateChange(1, 2, WM_XLISTCTRL_EDIT_END);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_EDIT_END, 1, 2}}));
    EXPECT_EQ(owner.posted, PostedRows{});
}

TEST_F(ListNotifications, OwnerThatIsGoneHearsNothing)
{
    tests::ListParent owner(CRect(100, 420, 300, 480));
    FreeList list;
    list.SetOwner(&owner);
    owner.DestroyWindow();
    list.PressCheckCell();
    list.OnHeaderColumnClick(0);
    EXPECT_EQ(list.GetCheckbox(1, 1), XLC_CHECKED);
    tests::PumpPosted();
    EXPECT_EQ(owner.posted, PostedRows{});
}

TEST_F(ListNotifications, ListWithoutParentAndOwnerIsQuiet)
{
    FreeList list;
    list.PressCheckCell();
    EXPECT_EQ(list.GetCheckbox(1, 1), XLC_CHECKED);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListNotifications, ListWhoseParentDiedIsQuiet)
{
    int calls = 0;
    m_list.m_onStateChange = [&](int, int) { ++calls; };
    CPoint const cell = Middle(1, 1);
    m_host.parent.DestroyWindow();
    ASSERT_EQ(m_list.m_hWnd, nullptr);
    m_list.OnItemStateChange(1, 1, WM_XLISTCTRL_EDIT_END);
    m_list.OnHeaderColumnClick(1);
    EXPECT_EQ(calls, 1);
    int col = 7;
    EXPECT_EQ(m_list.GetPointItem(cell, col), -1);
    EXPECT_EQ(col, -1);
    EXPECT_EQ(m_list.OnToolHitTest(cell, nullptr), -1);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListNotifications, PointsFindTheirCells)
{
    int col = -5;
    EXPECT_EQ(m_list.GetPointItem(Middle(3, 2), col), 3);
    EXPECT_EQ(col, 2);
    EXPECT_EQ(m_list.GetPointItem(Middle(0, 0), col), 0);
    EXPECT_EQ(col, 0);
    EXPECT_EQ(m_list.GetPointItem(EmptySpace(), col), -1);
    EXPECT_EQ(col, -1);
    EXPECT_EQ(m_list.GetItem(Middle(5, 1)), std::make_pair(5, 1));
    EXPECT_EQ(m_list.GetItem(EmptySpace()), std::make_pair(-1, -1));
}

class NotifiedParent : public tests::ScopedWindow
{
public:
    int clicks = 0;
    int columnClicks = 0;

protected:
    afx_msg void OnListClick(NMHDR *, LRESULT * result)
    {
        ++clicks;
        *result = 0;
    }
    afx_msg void OnListColumn(NMHDR *, LRESULT * result)
    {
        ++columnClicks;
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(NotifiedParent, CWnd)
    ON_NOTIFY(NM_CLICK, 9, &NotifiedParent::OnListClick)
    ON_NOTIFY(LVN_COLUMNCLICK, 9, &NotifiedParent::OnListColumn)
END_MESSAGE_MAP()

TEST_F(ListNotifications, ParentHearsTheNativeClicksToo)
{
    NotifiedParent parent;
    tests::TestList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 150), &parent, 9));
    tests::WindowCloser const closer(list);
    list.AddColumns(2);
    list.AddRows(2);
    ASSERT_TRUE(tests::BringToFront(parent.m_hWnd));
    CRect cell;
    ASSERT_TRUE(list.GetSubItemRect(1, 0, LVIR_LABEL, cell));
    list_input::Click(tests::ClientPoint(list.m_hWnd, {cell.left + 4, cell.CenterPoint().y}));
    EXPECT_TRUE(tests::PumpUntil([&] { return parent.clicks == 1; }));
    list_input::Click(tests::ClientPoint(list.Header(), {30, 6}));
    EXPECT_TRUE(tests::PumpUntil([&] { return parent.columnClicks == 1; }));
}

TEST_F(ListNotifications, ReflectedClicksGiveZero)
{
    LRESULT result = 5;
    NMHDR click{m_list.m_hWnd, tests::TestList::id, NM_CLICK};
    EXPECT_FALSE(m_list.OnClick(&click, &result));
    EXPECT_EQ(result, 0);
    NMLISTVIEW column{};
    column.hdr = {m_list.m_hWnd, tests::TestList::id, LVN_COLUMNCLICK};
    column.iItem = -1;
    column.iSubItem = 2;
    result = 5;
    EXPECT_FALSE(m_list.OnColumnClick(&column.hdr, &result));
    EXPECT_EQ(result, 0);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_COLUMNCLICK, 0, 2}}));
}

TEST_F(ListNotifications, RightPressOnACellGoesToTheNativeList)
{
    ClickCell(4, 2, tests::Button::right);
    EXPECT_EQ(m_list.GetSelectedItem(), 4);
    EXPECT_EQ(::GetFocus(), m_list.m_hWnd);
}

TEST_F(ListNotifications, RightPressOnEmptySpaceIsSwallowed)
{
    m_list.SetCurSel(2, false);
    ClickAt(EmptySpace(), tests::Button::right);
    EXPECT_EQ(m_list.GetSelectedItem(), 2);
    EXPECT_EQ(::GetFocus(), m_button.m_hWnd);
}

TEST_F(ListNotifications, ScrollBarWorks)
{
    m_list.AddRows(60);
    m_list.UpdateWindow();
    CRect window;
    m_list.GetWindowRect(&window);
    int const bar = ::GetSystemMetrics(SM_CXVSCROLL);
    list_input::Click({window.right - bar / 2 - 1, window.bottom - ::GetSystemMetrics(SM_CYVSCROLL) / 2 - 1});
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.GetTopIndex() > 0; }));
}

class ListTimers : public list_input::ListInputTest
{
protected:
    static UINT Number(wchar_t const * name) { return ::RegisterWindowMessageW(name); }
};

TEST_F(ListTimers, FirstEndsTheLockOfTheWindow)
{
    ASSERT_TRUE(::LockWindowUpdate(m_list.m_hWnd));
    EXPECT_FALSE(::LockWindowUpdate(m_button.m_hWnd));
    m_list.SetTimer(1, 10, nullptr);
    EXPECT_TRUE(tests::PumpUntil([this] { return Ticks(1) == 1; }));
    EXPECT_TRUE(::LockWindowUpdate(m_button.m_hWnd));
    ::LockWindowUpdate(nullptr);
    tests::PumpFor(std::chrono::milliseconds(60));
    EXPECT_EQ(Ticks(1), 1);
}

TEST_F(ListTimers, OwnTimersTickOnceAndOthersGoOn)
{
    for (UINT_PTR const id : {2, 3, 4, 77})
        m_list.SetTimer(id, 20, nullptr);
    EXPECT_TRUE(tests::PumpUntil([this] { return Ticks(77) >= 4; }));
    m_list.KillTimer(77);
    EXPECT_EQ(Ticks(2), 1);
    EXPECT_EQ(Ticks(3), 1);
    EXPECT_EQ(Ticks(4), 1);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListTimers, ComboEscapeSetsTheSecond)
{
    ULONGLONG const before = ::GetTickCount64();
    EXPECT_EQ(m_list.SendMessageW(Number(L"WM_XCOMBOLIST_VK_ESCAPE"), 0, 0), 0);
    EXPECT_EQ(Ticks(2), 0);
    EXPECT_TRUE(tests::PumpUntil([this] { return Ticks(2) == 1; }));
    EXPECT_GE(::GetTickCount64() - before, 40u);
    tests::PumpFor(std::chrono::milliseconds(150));
    EXPECT_EQ(Ticks(2), 1);
    EXPECT_EQ(Ticks(3), 0);
}

TEST_F(ListTimers, ComboCompleteSetsTheThird)
{
    EXPECT_EQ(m_list.SendMessageW(Number(L"WM_XCOMBOLIST_COMPLETE"), 0, 0), 0);
    EXPECT_TRUE(tests::PumpUntil([this] { return Ticks(3) == 1; }));
    tests::PumpFor(std::chrono::milliseconds(150));
    EXPECT_EQ(Ticks(3), 1);
    EXPECT_EQ(Ticks(2), 0);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListTimers, CommitWithoutAnEditChangesNothing)
{
    m_list.SetItemText(0, 0, 12);
    EXPECT_EQ(m_list.SendMessageW(Number(L"WM_XEDIT_KILL_FOCUS"), 0, 0), 0);
    EXPECT_EQ(m_list.CListCtrl::GetItemText(0, 0), CString(L"12"));
    EXPECT_EQ(m_list.GetItemValueType(0, 0), XLV_INT);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(ListTimers, CancelKeepsTheValueTypeAndTellsNobody)
{
    m_list.SetItemText(0, 0, 12);
    EXPECT_EQ(m_list.SendMessageW(Number(L"WM_XEDIT_VK_ESCAPE"), 0, 0), 0);
    EXPECT_EQ(m_list.GetItemValueType(0, 0), XLV_INT);
    EXPECT_FALSE(m_list.GetModified(0, 0));
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}
} // namespace
