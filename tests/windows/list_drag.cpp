// Dragging rows of a list with the real mouse, and what a drop does to the two rows.

#include <string>
#include <utility>
#include <vector>

#include "GdiHandleCount.h"
#include "ImportPatch.h"
#include "list_InputTest.h"

namespace
{
using Strings = std::vector<CString>;
using Swaps = std::vector<std::pair<int, int>>;
using Rows = std::vector<int>;

class ListDrag : public list_input::ListInputTest
{
protected:
    ListDrag() : m_mouse({WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP}) {}

    void SetUp() override
    {
        ListInputTest::SetUp();
        for (int row = 0; row < list_input::rows; ++row)
            m_list.SetItemData(row, row);
        m_list.EnableDragAndDrop();
        m_list.m_onRowsSwapped = [this](int first, int second) {
            m_swaps.push_back({first, second});
            m_markedAtSwap = Marked();
        };
        m_mouse.Watch(m_list.m_hWnd, "list");
        m_list.UpdateWindow();
    }
    void TearDown() override
    {
        list_input::Inject(Aside(), {MOUSEEVENTF_LEFTUP});
        tests::PumpPosted();
        ListInputTest::TearDown();
    }

    void MoveTo(CPoint screen)
    {
        CPoint now;
        ::GetCursorPos(&now);
        if (now == screen)
            return;
        EXPECT_TRUE(tests::MoveMouse(screen));
        CPoint client = screen;
        ::ScreenToClient(m_list.m_hWnd, &client);
        bool const seen = ::GetCapture() == m_list.m_hWnd || ::WindowFromPoint(screen) == m_list.m_hWnd;
        LPARAM const place = MAKELPARAM(client.x, client.y);
        EXPECT_TRUE(!seen || tests::PumpUntil([&] {
            auto const & all = m_mouse.Received();
            return m_list.m_hWnd == nullptr || std::any_of(all.begin(), all.end(), [place](auto const & received) {
                       return received.message == WM_MOUSEMOVE && received.lParam == place;
                   });
        }));
        m_mouse.Clear();
        tests::PumpPosted();
    }
    void MoveOver(int row) { MoveTo(Screen(Middle(row, 1))); }

    /// Presses on a row and moves far enough for a drag to begin.
    void Begin(int row, int col = 0)
    {
        // Successive presses are apart, so that they are no double click.
        m_shift = -m_shift;
        CPoint const start = Middle(row, col) + CPoint(m_shift, 0);
        MoveTo(Screen(start));
        list_input::Inject(Screen(start), {MOUSEEVENTF_LEFTDOWN});
        // Some systems wait within the press until the mouse has moved.
        list_input::Inject(Screen(start + CPoint(12, 0)), {0});
        EXPECT_TRUE(tests::PumpUntil([this] { return m_mouse.Count("list", WM_LBUTTONDOWN) > 0; }));
        MoveTo(Screen(start + CPoint(16, 0)));
    }
    void Drop()
    {
        CPoint screen;
        ::GetCursorPos(&screen);
        list_input::Inject(screen, {MOUSEEVENTF_LEFTUP});
        bool const seen = ::GetCapture() == m_list.m_hWnd || ::WindowFromPoint(screen) == m_list.m_hWnd;
        EXPECT_TRUE(!seen || tests::PumpUntil([this] {
            return m_list.m_hWnd == nullptr || m_mouse.Count("list", WM_LBUTTONUP) > 0;
        }));
        m_mouse.Clear();
        tests::PumpPosted();
    }
    void Drag(int from, int to)
    {
        Begin(from);
        MoveOver(to);
        Drop();
    }

    /// The native list's message that a row begins to be dragged, by the middle of its first cell.
    NMLISTVIEW Beginning(int row) const
    {
        NMLISTVIEW notification{};
        notification.hdr.hwndFrom = m_list.m_hWnd;
        notification.hdr.idFrom = tests::TestList::id;
        notification.hdr.code = LVN_BEGINDRAG;
        notification.iItem = row;
        notification.ptAction = Middle(row, 0);
        return notification;
    }
    /// What the list makes of it: its answer, and the result word, which was 5 before.
    std::pair<BOOL, LRESULT> Notify(NMLISTVIEW notification)
    {
        LRESULT result = 5;
        BOOL const answer =
            m_list.OnChildNotify(WM_NOTIFY, notification.hdr.idFrom, reinterpret_cast<LPARAM>(&notification), &result);
        return {answer, result};
    }

    std::vector<int> Marked() const
    {
        std::vector<int> marked;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
        {
            if (m_list.GetItemState(row, LVIS_DROPHILITED) != 0)
                marked.push_back(row);
        }
        return marked;
    }
    std::vector<int> Words() const
    {
        std::vector<int> words;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
            words.push_back(m_list.GetItemData(row));
        return words;
    }
    bool Captured() const { return ::GetCapture() == m_list.m_hWnd; }
    static bool Shows(wchar_t const * cursor) { return ::GetCursor() == ::LoadCursorW(nullptr, cursor); }

    tests::MessageRecorder m_mouse;
    Swaps m_swaps;
    /// The marked rows at the last swap.
    Rows m_markedAtSwap;

private:
    int m_shift = 8;
};

TEST_F(ListDrag, SwapsTheTwoRowsAndLeavesThoseBetween)
{
    m_list.SetItemText(5, 2, L"five");
    m_list.SetItemText(2, 2, L"two");
    Drag(5, 2);
    EXPECT_EQ(m_swaps, (Swaps{{2, 5}}));
    EXPECT_EQ(m_list.Texts(0), (Strings{L"r0", L"r1", L"r5", L"r3", L"r4", L"r2", L"r6", L"r7"}));
    EXPECT_EQ(Words(), (Rows{0, 1, 5, 3, 4, 2, 6, 7}));
    EXPECT_EQ(m_list.GetItemText(2, 2), L"five");
    EXPECT_EQ(m_list.GetItemText(5, 2), L"two");
}

TEST_F(ListDrag, DownwardsTheUpperRowIsToldFirstAsWell)
{
    Drag(1, 6);
    EXPECT_EQ(m_swaps, (Swaps{{1, 6}}));
    EXPECT_EQ(Words(), (Rows{0, 6, 2, 3, 4, 5, 1, 7}));
}

TEST_F(ListDrag, IsOffUntilItIsEnabled)
{
    tests::ListHost other;
    other.Fill(2, 4);
    NMLISTVIEW notification{};
    notification.hdr.hwndFrom = other.list.m_hWnd;
    notification.hdr.idFrom = tests::TestList::id;
    notification.hdr.code = LVN_BEGINDRAG;
    notification.iItem = 1;
    LRESULT result = 5;
    EXPECT_FALSE(
        other.list.OnChildNotify(WM_NOTIFY, notification.hdr.idFrom, reinterpret_cast<LPARAM>(&notification), &result));
    EXPECT_EQ(result, 5);
    EXPECT_NE(::GetCapture(), other.list.m_hWnd);
}

TEST_F(ListDrag, TheBeginningIsKeptFromTheParent)
{
    NMLISTVIEW notification = Beginning(1);
    EXPECT_EQ(Notify(notification), std::pair(TRUE, LRESULT(0)));
    EXPECT_TRUE(Captured());
    // Any other notification is treated as ever.
    notification.hdr.code = LVN_BEGINRDRAG;
    EXPECT_EQ(Notify(notification), std::pair(FALSE, LRESULT(5)));
}

TEST_F(ListDrag, CapturesTheMouseUntilTheDrop)
{
    EXPECT_FALSE(Captured());
    Begin(3);
    EXPECT_TRUE(Captured());
    MoveTo(Aside());
    EXPECT_TRUE(Captured());
    MoveOver(4);
    Drop();
    EXPECT_FALSE(Captured());
}

TEST_F(ListDrag, MarksTheRowBelowThePointerAlone)
{
    Begin(5);
    EXPECT_EQ(Marked(), Rows{5});
    for (int const row : {4, 3, 3, 2, 6})
    {
        MoveOver(row);
        EXPECT_EQ(Marked(), Rows{row});
    }
    MoveTo(Aside());
    EXPECT_EQ(Marked(), Rows{});
    MoveOver(1);
    EXPECT_EQ(Marked(), Rows{1});
    Drop();
    // Any move after the drop marks a row again.
    EXPECT_EQ(m_swaps, (Swaps{{1, 5}}));
    EXPECT_EQ(m_markedAtSwap, Rows{});
}

TEST_F(ListDrag, TheCursorRefusesWhereNothingCanBeDropped)
{
    Begin(5);
    MoveOver(4);
    MoveTo(Aside());
    EXPECT_TRUE(Shows(IDC_NO));
    MoveOver(3);
    EXPECT_TRUE(Shows(IDC_ARROW));
    MoveTo(Screen(EmptySpace()));
    EXPECT_TRUE(Shows(IDC_NO));
    EXPECT_EQ(Marked(), Rows{});
    MoveOver(2);
    EXPECT_TRUE(Shows(IDC_ARROW));
    CRect header;
    ::GetWindowRect(m_list.Header(), &header);
    MoveTo(header.CenterPoint());
    EXPECT_TRUE(Shows(IDC_NO));
    EXPECT_EQ(Marked(), Rows{});
    EXPECT_EQ(m_swaps, Swaps{});
}

TEST_F(ListDrag, AWindowThatCoversTheListIsOutside)
{
    CRect row;
    ASSERT_TRUE(m_list.GetItemRect(3, &row, LVIR_BOUNDS));
    m_list.MapWindowPoints(&m_host.parent, &row);
    ASSERT_TRUE(m_button.SetWindowPos(&CWnd::wndTop, row.left, row.top, row.Width(), row.Height(), 0));
    Begin(5);
    MoveOver(4);
    MoveOver(3);
    EXPECT_EQ(Marked(), Rows{});
    EXPECT_TRUE(Shows(IDC_NO));
    Drop();
    EXPECT_EQ(m_swaps, Swaps{});
}

TEST_F(ListDrag, ANewDragBeginsWithTheArrow)
{
    Begin(5);
    MoveTo(Aside());
    EXPECT_TRUE(Shows(IDC_NO));
    Drop();
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    Notify(Beginning(3));
    CPoint outside = Aside();
    ::ScreenToClient(m_list.m_hWnd, &outside);
    ::SendMessageW(m_list.m_hWnd, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(outside.x, outside.y));
    EXPECT_TRUE(Shows(IDC_NO));
    ::SendMessageW(m_list.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(outside.x, outside.y));
}

TEST_F(ListDrag, ADropOnTheSourceRowDoesNothing)
{
    Begin(5);
    MoveOver(3);
    MoveOver(5);
    Drop();
    EXPECT_EQ(m_swaps, Swaps{});
    EXPECT_EQ(Words(), (Rows{0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_FALSE(m_list.GetModified(5, 0));
}

TEST_F(ListDrag, ADropOutsideOfTheRowsDoesNothing)
{
    CRect header;
    ::GetWindowRect(m_list.Header(), &header);
    for (CPoint const place : {Aside(), Screen(EmptySpace()), header.CenterPoint()})
    {
        Begin(5);
        MoveOver(3);
        MoveTo(place);
        Drop();
        EXPECT_FALSE(Captured());
    }
    EXPECT_EQ(m_swaps, Swaps{});
    EXPECT_EQ(Words(), (Rows{0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(Marked(), Rows{});
}

TEST_F(ListDrag, OutAndBackAgainADropCounts)
{
    Begin(5);
    MoveOver(4);
    MoveTo(Aside());
    MoveOver(2);
    Drop();
    EXPECT_EQ(m_swaps, (Swaps{{2, 5}}));
}

TEST_F(ListDrag, MarksEveryCellOfBothRowsAsModifiedButNotTheList)
{
    m_list.SetListModified(false);
    Drag(5, 2);
    for (int row = 0; row < list_input::rows; ++row)
    {
        for (int col = 0; col < list_input::columns; ++col)
            EXPECT_EQ(m_list.GetModified(row, col), row == 2 || row == 5) << row << ", " << col;
    }
    EXPECT_FALSE(m_list.GetListModified());
}

TEST_F(ListDrag, CellsMoveWithTheirRow)
{
    m_list.SetCheckbox(5, 1, XLC_CHECKED);
    m_list.SetItemText(2, 1, 77);
    m_list.SetItemToolTipText(5, 1, L"tip");
    XLISTCTRLDATA const * const fifth = m_list.GetRowData(5);
    XLISTCTRLDATA const * const second = m_list.GetRowData(2);
    Drag(5, 2);
    EXPECT_EQ(m_list.GetRowData(2), fifth);
    EXPECT_EQ(m_list.GetRowData(5), second);
    EXPECT_EQ(m_list.GetCheckbox(2, 1), XLC_CHECKED);
    EXPECT_EQ(m_list.GetItemToolTipText(2, 1), L"tip");
    EXPECT_EQ(m_list.GetRowItemData(5, 1)->intValue, 77);
}

TEST_F(ListDrag, SelectionFocusAndImagesMoveWithTheirRow)
{
    m_list.SetWithCheckboxes();
    m_list.SetExtendedStyle(m_list.GetExtendedStyle() | LVS_EX_SUBITEMIMAGES);
    m_list.SetCheck(2, TRUE);
    LVITEMW item{};
    item.mask = LVIF_IMAGE | LVIF_INDENT;
    item.iItem = 2;
    item.iImage = 3;
    item.iIndent = 1;
    ASSERT_TRUE(m_list.CListCtrl::SetItem(&item));
    item.mask = LVIF_IMAGE;
    item.iSubItem = 1;
    item.iImage = 4;
    ASSERT_TRUE(m_list.CListCtrl::SetItem(&item));
    // The press selects and focuses row 5.
    Begin(5, 1);
    EXPECT_TRUE(m_list.IsSelected(5));
    MoveOver(2);
    Drop();
    EXPECT_TRUE(m_list.IsSelected(2));
    EXPECT_TRUE(m_list.IsFocused(2));
    EXPECT_EQ(m_list.GetSelectedCount(), 1U);
    EXPECT_FALSE(m_list.GetCheck(2));
    EXPECT_TRUE(m_list.GetCheck(5));
    item.iItem = 5;
    item.iImage = 0;
    ASSERT_TRUE(m_list.CListCtrl::GetItem(&item));
    EXPECT_EQ(item.iImage, 4);
    item.mask = LVIF_IMAGE | LVIF_INDENT;
    item.iSubItem = 0;
    ASSERT_TRUE(m_list.CListCtrl::GetItem(&item));
    EXPECT_EQ(item.iImage, 3);
    EXPECT_EQ(item.iIndent, 1);
    item.iItem = 2;
    ASSERT_TRUE(m_list.CListCtrl::GetItem(&item));
    EXPECT_EQ(item.iIndent, 0);
}

TEST_F(ListDrag, CutsATextOfMoreThan255Characters)
{
    std::wstring whole(254, L'w');
    whole.back() = L'.';
    m_list.SetItemText(5, 1, whole.c_str());
    std::wstring tooLong;
    for (int i = 0; i < 400; ++i)
        tooLong += static_cast<wchar_t>(L'a' + i % 26);
    m_list.SetItemText(2, 2, tooLong.c_str());
    Drag(5, 2);
    EXPECT_EQ(m_list.GetItemText(2, 1), whole.c_str());
    CString const cut = m_list.GetItemText(5, 2);
    EXPECT_GE(cut.GetLength(), 254);
    EXPECT_LE(cut.GetLength(), 255);
    EXPECT_EQ(cut, tooLong.substr(0, static_cast<std::size_t>(cut.GetLength())).c_str());
}

TEST_F(ListDrag, ATextThatTheParentGivesIsAskedForAfterTheSwapAsWell)
{
    std::wstring given = L"before";
    m_host.parent.onNotify = [&given](NMHDR const & header) {
        if (header.code != LVN_GETDISPINFOW)
            return;
        auto & item = const_cast<NMLVDISPINFOW &>(reinterpret_cast<NMLVDISPINFOW const &>(header)).item;
        if ((item.mask & LVIF_TEXT) != 0)
            item.pszText = given.data();
    };
    m_list.CListCtrl::SetItemText(2, 0, LPSTR_TEXTCALLBACKW);
    ASSERT_EQ(m_list.GetItemText(2, 0), L"before");
    Drag(5, 2);
    given = L"after";
    EXPECT_EQ(m_list.GetItemText(5, 0), L"after");
    EXPECT_EQ(m_list.GetItemText(2, 0), L"r5");
    m_host.parent.onNotify = nullptr;
}

TEST_F(ListDrag, GoesOnAfterTheDropWithTheRowDraggedFirst)
{
    Drag(5, 2);
    ASSERT_EQ(m_swaps, (Swaps{{2, 5}}));
    m_swaps.clear();
    // The pointer still marks rows,
    MoveOver(4);
    EXPECT_EQ(Marked(), Rows{4});
    MoveOver(6);
    EXPECT_EQ(Marked(), Rows{6});
    // and a release of the button over another row swaps the old source row with it.
    ClickCell(6, 1);
    EXPECT_EQ(m_swaps, (Swaps{{5, 6}}));
    EXPECT_EQ(Words(), (Rows{0, 1, 5, 3, 4, 6, 2, 7}));
    EXPECT_EQ(m_markedAtSwap, Rows{});
    ClickCell(5, 1);
    EXPECT_EQ(m_swaps, (Swaps{{5, 6}}));
}

TEST_F(ListDrag, BeforeTheFirstDragNothingIsMarkedOrSwapped)
{
    MoveOver(4);
    EXPECT_EQ(Marked(), Rows{});
    ClickCell(3, 1);
    EXPECT_EQ(m_swaps, Swaps{});
    // And the capture is left to whoever has it.
    m_list.SetCapture();
    m_list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(Middle(3, 1).x, Middle(3, 1).y));
    EXPECT_TRUE(Captured());
    ::ReleaseCapture();
}

TEST_F(ListDrag, InAScrolledListTheRowsSeenAreMeant)
{
    m_list.AddRows(40);
    for (int row = 0; row < m_list.GetItemCount(); ++row)
        m_list.SetItemData(row, row);
    m_list.EnsureVisible(47, FALSE);
    m_list.UpdateWindow();
    ASSERT_GT(m_list.GetTopIndex(), 10);
    int const top = m_list.GetTopIndex();
    Drag(top + 4, top + 1);
    EXPECT_EQ(m_swaps, (Swaps{{top + 1, top + 4}}));
    EXPECT_EQ(m_list.GetItemData(top + 1), top + 4);
    EXPECT_EQ(m_list.GetItemData(top + 4), top + 1);
}

TEST_F(ListDrag, RowsWithoutCellsCanBeSwapped)
{
    m_list.InsertForeignItem(0, L"foreign");
    Drag(0, 3);
    EXPECT_EQ(m_swaps, (Swaps{{0, 3}}));
    EXPECT_EQ(m_list.GetItemText(3, 0), L"foreign");
    EXPECT_EQ(m_list.Param(3), 0);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"r2");
    EXPECT_EQ(m_list.GetItemData(0), 2);
}

TEST_F(ListDrag, AColumnYoungerThanTheRowsMovesItsTexts)
{
    int const late = m_list.AddColumn(L"late", LVCFMT_LEFT, 20);
    m_list.SetItemText(5, late, L"x");
    m_list.CListCtrl::SetItemText(5, late, L"five");
    Drag(5, 2);
    EXPECT_EQ(m_list.GetItemText(2, late), L"five");
    EXPECT_EQ(m_list.GetItemText(5, late), L"");
}

TEST_F(ListDrag, NoCallbackIsNeeded)
{
    m_list.m_onRowsSwapped = nullptr;
    Drag(5, 2);
    EXPECT_EQ(Words(), (Rows{0, 1, 5, 3, 4, 2, 6, 7}));
}

TEST_F(ListDrag, TheCallbackMayEndTheList)
{
    m_list.m_onRowsSwapped = [this](int, int) { m_list.DestroyWindow(); };
    Drag(5, 2);
    EXPECT_EQ(m_list.m_hWnd, nullptr);
}

TEST_F(ListDrag, TheCallbackMayReplaceItself)
{
    // What it keeps is still there after it has taken itself away.
    std::vector<int> const kept = {1, 2, 3};
    int sum = 0;
    m_list.m_onRowsSwapped = [this, kept, &sum](int first, int second) {
        m_list.m_onRowsSwapped = nullptr;
        sum = kept[0] + kept[1] + kept[2] + first + second;
    };
    Drag(5, 2);
    EXPECT_EQ(sum, 6 + 7);
}

TEST_F(ListDrag, RowsAreFoundAfterTheDrop)
{
    Drag(5, 2);
    EXPECT_EQ(m_list.FindDataItem(5LL), 2);
    EXPECT_EQ(m_list.FindDataItem(2LL), 5);
    EXPECT_EQ(m_list.CountCheckedItems(0, -1), 8u);
}

TEST_F(ListDrag, RepaintsBothRowsAfterTheDrop)
{
    Begin(5);
    MoveOver(2);
    tests::MessageRecorder repaints({LVM_SETITEMW, LVM_REDRAWITEMS});
    repaints.Watch(m_list.m_hWnd, "list");
    Drop();
    std::vector<tests::ReceivedMessage> const & all = repaints.Received();
    std::vector<int> rows;
    for (tests::ReceivedMessage const & received : all)
        rows.push_back(received.message == LVM_SETITEMW ? -1 : static_cast<int>(received.wParam));
    // The mark, the columns of both rows, and both rows; a move after that may mark a row again.
    std::vector<int> expected(1 + 2 * list_input::columns, -1);
    expected.front() = 2;
    expected.insert(expected.end(), {2, 5});
    ASSERT_GE(rows.size(), expected.size());
    rows.resize(expected.size());
    EXPECT_EQ(rows, expected);
}

TEST_F(ListDrag, MouseMessagesGoOnToTheNativeList)
{
    // The native list tells of a click at the release, and finds the beginning of a drag in the moves.
    tests::MessageRecorder recorder({WM_NOTIFY});
    recorder.Watch(m_host.parent.m_hWnd, "parent");
    ClickCell(4, 1);
    auto const clicks = [&recorder] {
        std::vector<tests::ReceivedMessage> const & all = recorder.Received();
        return std::count_if(all.begin(), all.end(), [](auto const & received) { return received.code == NM_CLICK; });
    };
    EXPECT_EQ(clicks(), 1);
    Begin(5);
    EXPECT_TRUE(Captured());
}

// --- Ends that the list does not choose ---

TEST_F(ListDrag, AListDestroyedMeanwhileLeavesNothingBehind)
{
    Begin(5);
    MoveOver(3);
    ASSERT_NE(CImageList::GetDragImage(nullptr, nullptr), nullptr);
    m_list.DestroyWindow();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(::ImageList_GetDragImage(nullptr, nullptr), nullptr);
    tests::MoveMouse(Aside());
    list_input::Inject(Aside(), {MOUSEEVENTF_LEFTUP});
    tests::PumpPosted();
    EXPECT_EQ(m_swaps, Swaps{});
}

TEST_F(ListDrag, AListEmptiedMeanwhileSwapsNothing)
{
    Begin(5);
    MoveOver(3);
    m_list.DeleteAllItems();
    MoveTo(Screen(CPoint(60, 60)));
    Drop();
    EXPECT_EQ(m_swaps, Swaps{});
    EXPECT_EQ(m_list.GetItemCount(), 0);
    EXPECT_FALSE(Captured());
}

TEST_F(ListDrag, ASourceRowThatIsGoneSwapsNothing)
{
    Begin(7);
    MoveOver(3);
    m_list.DeleteItem(7);
    Drop();
    EXPECT_EQ(m_swaps, Swaps{});
    EXPECT_EQ(Words(), (Rows{0, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(m_list.GetItemText(3, 0), L"r3");
}

TEST_F(ListDrag, AParentThatEndsTheListWhileARowIsMarked)
{
    Begin(5);
    m_host.parent.onNotify = [this](NMHDR const & header) {
        if (header.code == LVN_ITEMCHANGED && m_list.m_hWnd != nullptr)
            m_list.DestroyWindow();
    };
    tests::MoveMouse(Screen(Middle(3, 1)));
    EXPECT_TRUE(tests::PumpUntil([this] { return m_list.m_hWnd == nullptr; }));
    tests::PumpPosted();
    m_host.parent.onNotify = nullptr;
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ListDrag, ManyDragsLeaveNoGdiHandles)
{
    Drag(5, 2);
    tests::GdiBalance const balance;
    for (int i = 0; i < 3; ++i)
        Drag(4, 1);
    EXPECT_EQ(m_swaps.size(), 4U);
}

TEST_F(ListDrag, ABeginningThatFollowsAnUnfinishedDragTakesItsPlace)
{
    Drag(5, 2);
    m_swaps.clear();
    tests::GdiBalance const balance;
    Begin(5);
    NMLISTVIEW notification = Beginning(1);
    notification.ptAction.x += 5;
    Notify(notification);
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(1, 0, LVIR_BOUNDS, cell));
    POINT hotSpot{};
    ASSERT_NE(::ImageList_GetDragImage(nullptr, &hotSpot), nullptr);
    EXPECT_EQ(CPoint(hotSpot) + cell.TopLeft(), CPoint(notification.ptAction));
    MoveOver(3);
    Drop();
    EXPECT_EQ(m_swaps, (Swaps{{1, 3}}));
    EXPECT_EQ(::ImageList_GetDragImage(nullptr, nullptr), nullptr);
}

TEST_F(ListDrag, ANewDragHasNoTargetUntilTheMouseMoves)
{
    Drag(5, 2);
    m_swaps.clear();
    NMLISTVIEW const notification = Beginning(6);
    Notify(notification);
    ::SendMessageW(m_list.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(notification.ptAction.x, notification.ptAction.y));
    EXPECT_EQ(m_swaps, Swaps{});
}

// --- The picture below the pointer ---

TEST_F(ListDrag, ThePictureIsTheRowsFirstCellAtThePointOfThePress)
{
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(5, 0, LVIR_BOUNDS, cell));
    NMLISTVIEW notification = Beginning(5);
    notification.ptAction = cell.TopLeft() + CPoint(23, 7);
    Notify(notification);
    POINT position{};
    POINT hotSpot{};
    HIMAGELIST const picture = ::ImageList_GetDragImage(&position, &hotSpot);
    ASSERT_NE(picture, nullptr);
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(picture, &width, &height);
    EXPECT_EQ(CSize(width, height), cell.Size());
    EXPECT_EQ(::ImageList_GetImageCount(picture), 1);
    EXPECT_EQ(CPoint(hotSpot), CPoint(23, 7));
    EXPECT_EQ(CPoint(position), Screen(CPoint(notification.ptAction)));
    ::SendMessageW(m_list.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(notification.ptAction.x, notification.ptAction.y));
    EXPECT_EQ(::ImageList_GetDragImage(nullptr, nullptr), nullptr);
    EXPECT_EQ(m_swaps, Swaps{});
}

/// What the module asks of the system during a drag, in order.
std::vector<std::string> calls;

BOOL WINAPI BeginDrag(HIMAGELIST list, int image, int x, int y)
{
    calls.push_back("begin " + std::to_string(image));
    return ::ImageList_BeginDrag(list, image, x, y);
}
BOOL WINAPI DragEnter(HWND window, int x, int y)
{
    calls.push_back(window == nullptr ? "enter the desktop" : "enter a window");
    return ::ImageList_DragEnter(window, x, y);
}
BOOL WINAPI DragMove(int x, int y)
{
    calls.push_back("move " + std::to_string(x) + ", " + std::to_string(y));
    return ::ImageList_DragMove(x, y);
}
BOOL WINAPI DragShow(BOOL show)
{
    calls.push_back(show ? "show" : "hide");
    return ::ImageList_DragShowNolock(show);
}
BOOL WINAPI DragLeave(HWND window)
{
    calls.push_back(window == nullptr ? "leave the desktop" : "leave a window");
    return ::ImageList_DragLeave(window);
}
void WINAPI EndDrag()
{
    calls.push_back("end");
    ::ImageList_EndDrag();
}
int WINAPI AddMasked(HIMAGELIST list, HBITMAP bitmap, COLORREF mask)
{
    calls.push_back("add masked " + std::to_string(mask));
    return ::ImageList_AddMasked(list, bitmap, mask);
}

TEST_F(ListDrag, ThePictureIsHiddenWhileRowsAreRepainted)
{
    wchar_t const module[] = L"instrument_ui.dll";
    tests::ImportPatch const patches[] = {
        {module, "ImageList_BeginDrag", &BeginDrag}, {module, "ImageList_DragEnter", &DragEnter},
        {module, "ImageList_DragMove", &DragMove},   {module, "ImageList_DragShowNolock", &DragShow},
        {module, "ImageList_DragLeave", &DragLeave}, {module, "ImageList_EndDrag", &EndDrag},
        {module, "ImageList_AddMasked", &AddMasked}};
    for (tests::ImportPatch const & patch : patches)
        ASSERT_TRUE(patch.Done());
    m_host.parent.onNotify = [this](NMHDR const & header) {
        if (header.code == LVN_ITEMCHANGED)
            calls.push_back("marks " + std::to_string(Marked().empty() ? -1 : Marked().front()));
    };
    m_list.SetFocus();
    tests::PumpPosted();
    calls.clear();
    Notify(Beginning(5));
    EXPECT_EQ(calls, (std::vector<std::string>{"add masked 0", "begin 0", "enter the desktop"}));

    auto const send = [this](UINT message, CPoint client) {
        calls.clear();
        ::SendMessageW(m_list.m_hWnd, message, MK_LBUTTON, MAKELPARAM(client.x, client.y));
        return calls;
    };
    auto const move = [this](CPoint client) {
        CPoint const screen = Screen(client);
        return "move " + std::to_string(screen.x) + ", " + std::to_string(screen.y);
    };
    EXPECT_EQ(send(WM_MOUSEMOVE, Middle(3, 1)),
              (std::vector<std::string>{move(Middle(3, 1)), "hide", "marks 3", "show"}));
    // The repaint is done while the picture is away.
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
    EXPECT_EQ(send(WM_MOUSEMOVE, Middle(3, 2)), (std::vector<std::string>{move(Middle(3, 2)), "hide", "show"}));
    EXPECT_EQ(send(WM_MOUSEMOVE, Middle(2, 1)),
              (std::vector<std::string>{move(Middle(2, 1)), "hide", "marks -1", "marks 2", "show"}));
    CPoint outside = Aside();
    ::ScreenToClient(m_list.m_hWnd, &outside);
    EXPECT_EQ(send(WM_MOUSEMOVE, outside), (std::vector<std::string>{move(outside), "hide", "marks -1", "show"}));
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
    EXPECT_EQ(send(WM_MOUSEMOVE, outside), (std::vector<std::string>{move(outside), "hide", "show"}));
    EXPECT_EQ(send(WM_MOUSEMOVE, Middle(3, 1)),
              (std::vector<std::string>{move(Middle(3, 1)), "hide", "marks 3", "show"}));
    EXPECT_EQ(send(WM_LBUTTONUP, outside), (std::vector<std::string>{"leave the desktop", "end", "marks -1"}));
    m_host.parent.onNotify = nullptr;
}
} // namespace
