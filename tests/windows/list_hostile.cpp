// Hosts that change rows and callables, or end the list, from within what the list tells them.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "GuardedHeap.h"
#include "ListTestHost.h"
#include "Pump.h"

namespace
{
using tests::PostedRows;

class HostileList : public testing::Test
{
protected:
    void SetUp() override { m_host.Fill(3, 4); }

    /// Calls the action once, at the first notification of that code.
    void Once(UINT code, std::function<void()> action)
    {
        m_host.parent.onNotify = [this, code, action = std::move(action), done = false](NMHDR const & header) mutable {
            if (done || header.code != code || header.hwndFrom != m_list.m_hWnd)
                return;
            done = true;
            ++m_heard;
            auto const called = action;
            called();
        };
    }
    void Press(int row, int col)
    {
        CRect cell;
        ASSERT_TRUE(m_list.GetSubItemRect(row, col, LVIR_BOUNDS, cell));
        LPARAM const place = MAKELPARAM(cell.left + 5, cell.CenterPoint().y);
        // The native list waits for the end within the press.
        m_list.PostMessage(WM_LBUTTONUP, 0, place);
        m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, place);
    }
    /// Every item has a row object of its own.
    void ExpectOwnRows()
    {
        std::vector<LPARAM> seen;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
        {
            LPARAM const object = m_list.Param(row);
            EXPECT_NE(object, 0) << row;
            EXPECT_EQ(std::count(seen.begin(), seen.end(), object), 0) << "row " << row << " shares its object";
            seen.push_back(object);
        }
    }

    tests::ListHost m_host;
    tests::TestList & m_list = m_host.list;
    int m_heard = 0;
};

TEST_F(HostileList, TextWhoseRowIsReplacedWhileItIsSetLeavesTheNewRowAlone)
{
    // The new row takes the object of the deleted one.
    Once(LVN_ITEMCHANGED, [this] {
        m_list.DeleteAllItems();
        m_list.AddItem(L"new", nullptr, 5);
        m_list.SetItemText(0, 0, 42);
        m_list.SetItemValueType(0, 0, XLV_DATETIME);
    });
    m_list.SetItemText(0, 0, L"text");
    ASSERT_EQ(m_heard, 1);
    EXPECT_EQ(m_list.GetItemValueType(0, 0), XLV_DATETIME);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"42");
}

TEST_F(HostileList, NumberWhoseRowIsDeletedWhileItIsSetIsForgotten)
{
    Once(LVN_ITEMCHANGED, [this] { m_list.DeleteItem(0); });
    m_list.SetItemText(0, 0, 7);
    ASSERT_EQ(m_heard, 1);
    EXPECT_EQ(m_list.GetItemCount(), 3);
    EXPECT_EQ(m_list.GetItemValueType(0, 0), XLV_TEXT);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"r1");
}

TEST_F(HostileList, ValueFollowsItsRowWhenTheHostInsertsAboveIt)
{
    Once(LVN_ITEMCHANGED, [this] { m_list.InsertItem(0, L"above", nullptr, 0); });
    EXPECT_TRUE(m_list.SetItemFloatVal(2, 0, 1.5F, L"shown"));
    ASSERT_EQ(m_heard, 1);
    EXPECT_EQ(m_list.GetItemValueType(2, 0), XLV_TEXT);
    EXPECT_EQ(m_list.GetItemValueType(3, 0), XLV_FLOAT);
    EXPECT_EQ(m_list.GetItemText(3, 0), L"shown");
}

TEST_F(HostileList, NumberSetWithinAnotherNumbersNotificationSpoilsNeither)
{
    Once(LVN_ITEMCHANGING, [this] { m_list.SetItemText(1, 0, 222); });
    m_list.SetItemText(0, 0, 111);
    ASSERT_EQ(m_heard, 1);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"111");
    EXPECT_EQ(m_list.GetItemText(1, 0), L"222");
}

TEST_F(HostileList, ComboTextThatTheHostTakesAwayMeanwhileIsShown)
{
    auto texts = std::make_unique<std::map<int, CString>>();
    (*texts)[3] = L"a text long enough to have a buffer of its own on the heap";
    Once(LVN_ITEMCHANGING, [&] { texts.reset(); });
    EXPECT_TRUE(m_list.SetComboBox(0, 0, texts.get(), 3, -1));
    ASSERT_EQ(m_heard, 1);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"a text long enough to have a buffer of its own on the heap");
}

TEST_F(HostileList, RowDeletedAsItIsInsertedLeavesNoGhost)
{
    m_list.DeleteAllItems();
    Once(LVN_INSERTITEM, [this] { m_list.DeleteItem(0); });
    EXPECT_EQ(m_list.AddItem(L"ghost", nullptr, 77), -1);
    ASSERT_EQ(m_heard, 1);
    EXPECT_EQ(m_list.GetItemCount(), 0);
    EXPECT_FALSE(m_list.IsValidItem(0, 0));
    EXPECT_EQ(m_list.GetRowData(0), nullptr);
    EXPECT_EQ(m_list.GetItemData64(0), 0);
    m_list.AddItem(L"next", nullptr, 1);
    m_list.AddItem(L"after", nullptr, 2);
    ExpectOwnRows();
}

TEST_F(HostileList, RowInsertedAboveANewOneMovesTheIndexReturned)
{
    Once(LVN_INSERTITEM, [this] { m_list.InsertItem(0, L"above", nullptr, 1); });
    int const row = m_list.InsertItem(2, L"mine", nullptr, 2);
    ASSERT_EQ(m_heard, 1);
    EXPECT_EQ(row, 3);
    EXPECT_EQ(m_list.GetItemData64(row), 2);
    EXPECT_EQ(m_list.GetItemText(row, 0), L"mine");
    EXPECT_EQ(m_list.GetItemData64(0), 1);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"above");
    EXPECT_EQ(m_list.GetItemData64(2), 0);
    ExpectOwnRows();
}

TEST_F(HostileList, RowsInsertedWhileTheListIsClearedKeepTheirCells)
{
    Once(LVN_DELETEITEM, [this] { m_list.AddItem(L"stays", nullptr, 9); });
    m_list.DeleteAllItems();
    ASSERT_EQ(m_heard, 1);
    for (int i = 0; i < 3; ++i)
        m_list.AddItem(L"later", nullptr, 100 + i);
    ExpectOwnRows();
}

TEST_F(HostileList, RowInsertedAboveTheOneThatIsDeletedStays)
{
    m_list.SetItemData(1, 11);
    Once(LVN_ITEMCHANGING, [this] { m_list.InsertItem(0, L"above", nullptr, 5); });
    m_list.DeleteItem(1);
    // Not every native list tells of a changed parameter word; where it does, the right row goes.
    EXPECT_EQ(m_list.FindDataItem(11), -1);
    EXPECT_EQ(m_list.GetItemCount(), 3 + m_heard);
    EXPECT_EQ(m_list.FindDataItem(5), m_heard - 1);
    ExpectOwnRows();
}

TEST_F(HostileList, CallablesThatReplaceThemselvesLiveUntilTheyReturn)
{
    // Each callable holds the token; it is gone where the callable is destroyed while it runs.
    auto token = std::make_shared<int>(1);
    std::weak_ptr<int> const held = token;
    bool livedOn = false;
    m_list.SetCheckbox(0, 1, XLC_UNCHECKED);
    m_list.m_onCellClick = [this, token, &held, &livedOn](int, int) {
        bool & livedOnHere = livedOn;
        std::weak_ptr<int> const & heldHere = held;
        m_list.m_onCellClick = nullptr;
        livedOnHere = !heldHere.expired();
    };
    token.reset();
    Press(0, 1);
    EXPECT_TRUE(livedOn) << "m_onCellClick";

    token = std::make_shared<int>(2);
    std::weak_ptr<int> const second = token;
    livedOn = false;
    m_list.m_onStateChange = [this, token, &second, &livedOn](int, int) {
        bool & livedOnHere = livedOn;
        std::weak_ptr<int> const & heldHere = second;
        m_list.m_onStateChange = nullptr;
        livedOnHere = !heldHere.expired();
    };
    token.reset();
    Press(0, 1);
    EXPECT_TRUE(livedOn) << "m_onStateChange";

    token = std::make_shared<int>(3);
    std::weak_ptr<int> const third = token;
    livedOn = false;
    m_list.m_onDoubleClick = [this, token, &third, &livedOn](int, int) {
        bool & livedOnHere = livedOn;
        std::weak_ptr<int> const & heldHere = third;
        m_list.m_onDoubleClick = nullptr;
        livedOnHere = !heldHere.expired();
    };
    token.reset();
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(0, 2, LVIR_BOUNDS, cell));
    m_list.SendMessage(WM_LBUTTONDBLCLK, 0, MAKELPARAM(cell.left + 5, cell.CenterPoint().y));
    EXPECT_TRUE(livedOn) << "m_onDoubleClick";
}

TEST_F(HostileList, PressFlipsTheRowThatWasPressedWhereverItWent)
{
    m_list.SetCheckbox(1, 1, XLC_UNCHECKED);
    m_list.SetCheckbox(2, 1, XLC_UNCHECKED);
    m_list.SetItemData(1, 11);
    m_list.m_onCellClick = [this](int, int) { m_list.InsertItem(0, L"above", nullptr, 0); };
    m_host.TakePosted();
    Press(1, 1);
    EXPECT_EQ(m_list.FindDataItem(11), 2);
    EXPECT_EQ(m_list.GetCheckbox(2, 1), XLC_CHECKED);
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_NONE);
    EXPECT_EQ(m_list.GetCheckbox(3, 1), XLC_UNCHECKED);
    EXPECT_EQ(m_host.TakePosted(), (PostedRows{{WM_XLISTCTRL_CHECKBOX_CLICKED, 2, 1}}));
}

TEST_F(HostileList, PressOnARowThatGoesAwayFlipsNoOther)
{
    m_list.SetCheckbox(1, 1, XLC_UNCHECKED);
    m_list.SetCheckbox(2, 1, XLC_UNCHECKED);
    m_list.m_onCellClick = [this](int row, int) { m_list.DeleteItem(row); };
    Press(1, 1);
    EXPECT_EQ(m_list.GetItemCount(), 3);
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_UNCHECKED);
    EXPECT_EQ(m_host.TakePosted(), PostedRows{});
}

TEST_F(HostileList, RadioPressStandsARowDeletedByTheFirstNotification)
{
    for (int row = 0; row < 4; ++row)
        m_list.SetRadioButton(row, 1, row == 3 ? XLC_RADIO_ON : XLC_RADIO_OFF);
    m_list.SetItemData(1, 11);
    int calls = 0;
    m_list.m_onStateChange = [this, &calls](int, int) {
        if (++calls == 1)
            m_list.DeleteItem(0);
    };
    Press(1, 1);
    int const row = m_list.FindDataItem(11);
    ASSERT_EQ(row, 0);
    EXPECT_TRUE(m_list.GetItemRadioOn(row, 1));
    EXPECT_EQ(m_list.GetActiveRadioItem(1), 0);
}

/// Drags the last of four rows onto the first; what the host does meanwhile is the test's.
class HostileSwap : public HostileList
{
protected:
    void SetUp() override
    {
        HostileList::SetUp();
        for (int row = 0; row < 4; ++row)
            m_list.SetItemData(row, row + 1);
        m_list.EnableDragAndDrop();
        m_list.m_onRowsSwapped = [this](int, int) { ++m_swaps; };
    }
    void PickUp()
    {
        NMLISTVIEW drag{};
        drag.hdr.hwndFrom = m_list.m_hWnd;
        drag.hdr.code = LVN_BEGINDRAG;
        drag.iItem = 3;
        CRect first;
        ASSERT_TRUE(m_list.GetSubItemRect(0, 0, LVIR_BOUNDS, first));
        m_place = MAKELPARAM(first.left + 5, first.CenterPoint().y);
        LRESULT result = 0;
        m_list.OnChildNotify(WM_NOTIFY, tests::TestList::id, reinterpret_cast<LPARAM>(&drag), &result);
        m_list.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, m_place);
    }
    void Drop()
    {
        m_list.SendMessage(WM_LBUTTONUP, 0, m_place);
        m_host.parent.onNotify = nullptr;
    }
    /// The action runs at the first change of a parameter word, and never again.
    void DropWith(std::function<void()> action)
    {
        PickUp();
        m_host.parent.onNotify = [this, action = std::move(action), done = false](NMHDR const & header) mutable {
            if (done || header.code != LVN_ITEMCHANGED ||
                (reinterpret_cast<NMLISTVIEW const &>(header).uChanged & LVIF_PARAM) == 0)
            {
                return;
            }
            done = true;
            ++m_heard;
            action();
        };
        Drop();
        EXPECT_EQ(m_heard, 1);
        EXPECT_EQ(m_swaps, 0) << "the host has spoilt the swap";
    }
    void ExpectSoundRows(unsigned long long count)
    {
        ExpectOwnRows();
        EXPECT_EQ(m_list.GetItemCount(), static_cast<int>(count));
        EXPECT_EQ(m_list.CountCheckedItems(0, XLC_NONE), count) << "no ghosts";
        m_list.AddItem(L"later", nullptr, 100);
        m_list.AddItem(L"last", nullptr, 101);
        ExpectOwnRows();
    }

    LPARAM m_place = 0;
    int m_swaps = 0;
};

TEST_F(HostileSwap, RowsChangedAllTheTimeKeepObjectsOfTheirOwn)
{
    PickUp();
    m_host.parent.onNotify = [this, inside = false](NMHDR const & header) mutable {
        if (inside || header.code != LVN_ITEMCHANGED)
            return;
        inside = true;
        m_list.DeleteItem(1);
        m_list.InsertItem(0, L"above", nullptr, 50);
        inside = false;
    };
    Drop();
    for (int i = 0; i < 6; ++i)
        m_list.AddItem(L"later", nullptr, 100 + i);
    ExpectOwnRows();
}

TEST_F(HostileSwap, ARowAppendedMeanwhileLosesNoRow)
{
    DropWith([this] { m_list.AddItem(L"appended", nullptr, 9); });
    for (int data : {1, 2, 3, 4, 9})
        EXPECT_GE(m_list.FindDataItem(data), 0) << data;
    ExpectSoundRows(5);
}

TEST_F(HostileSwap, ARowInsertedAboveMeanwhileLosesNoRow)
{
    DropWith([this] { m_list.InsertItem(0, L"above", nullptr, 9); });
    for (int data : {1, 2, 3, 4, 9})
        EXPECT_GE(m_list.FindDataItem(data), 0) << data;
    ExpectSoundRows(5);
}

TEST_F(HostileSwap, AListEmptiedMeanwhileIsEmpty)
{
    DropWith([this] { m_list.DeleteAllItems(); });
    ExpectSoundRows(0);
}

TEST_F(HostileSwap, APartThatTheParentRefusesIsNoSwap)
{
    for (int refused = 0; refused < 2; ++refused)
    {
        PickUp();
        int part = 0;
        m_host.parent.refuses = [&part, refused](NMHDR const & header) {
            return header.code == LVN_ITEMCHANGING &&
                   (reinterpret_cast<NMLISTVIEW const &>(header).uChanged & LVIF_PARAM) != 0 && part++ == refused;
        };
        Drop();
        m_host.parent.refuses = nullptr;
        EXPECT_EQ(m_swaps, 0) << refused;
        for (int data = 1; data <= 4; ++data)
            EXPECT_GE(m_list.FindDataItem(data), 0) << data << " where part " << refused << " is refused";
        ExpectOwnRows();
    }
    ExpectSoundRows(4);
}

/// Gives the native list its messages itself, past the list's own operations.
class PastTheList : public tests::TestList
{
public:
    void DeleteNatively(int row) { DefWindowProc(LVM_DELETEITEM, static_cast<WPARAM>(row), 0); }
    /// What stood in the first row when a deletion came by.
    std::vector<long long> seen;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == LVM_DELETEITEM)
            seen.push_back(GetItemData64(0));
        return TestList::WindowProc(message, wParam, lParam);
    }
};

TEST(ListPastItsOperations, NeverAnswersWithARowThatWasThereBefore)
{
    tests::ListParent parent;
    PastTheList list;
    ASSERT_TRUE(list.Create(tests::TestList::default_style, CRect(0, 0, 360, 200), &parent, 7));
    tests::WindowCloser const closer(list);
    list.AddColumns(2);
    for (int row = 0; row < 4; ++row)
        list.AddItem(L"row", nullptr, row + 1);
    EXPECT_EQ(list.GetItemData64(0), 1);
    list.DeleteNatively(0);
    EXPECT_EQ(list.GetItemData64(0), 2);
    list.SendMessage(LVM_DELETEITEM, 0);
    EXPECT_EQ(list.seen, std::vector<long long>{2});
    EXPECT_EQ(list.GetItemData64(0), 3);
    list.DeleteItem(0);
    EXPECT_EQ(list.seen, (std::vector<long long>{2, 0})) << "its word is cleared before the row goes";
    EXPECT_EQ(list.GetItemData64(0), 4);
}

/// A list on the heap, which its host deletes.
class DeletedList : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list->Create(tests::TestList::default_style, CRect(0, 0, 360, 200), &m_host, 7));
        m_list->AddColumns(3);
        m_list->AddRows(4);
        m_list->UpdateWindow();
        tests::PumpPosted();
    }
    void TearDown() override { EXPECT_EQ(m_list, nullptr) << "the host was not called"; }

    std::function<void(int, int)> Deletes()
    {
        return [this](int, int) { m_list.reset(); };
    }
    void Press(UINT message, int row, int col)
    {
        CRect cell;
        ASSERT_TRUE(m_list->GetSubItemRect(row, col, LVIR_BOUNDS, cell));
        HWND const window = m_list->m_hWnd;
        ::SendMessageW(window, message, MK_LBUTTON, MAKELPARAM(cell.left + 5, cell.CenterPoint().y));
        tests::PumpPosted();
    }

    tests::GuardedHeap m_heap; // ends the program at a use of the deleted list
    tests::ListParent m_host;
    std::unique_ptr<tests::GuardedList> m_list = std::make_unique<tests::GuardedList>();
};

TEST_F(DeletedList, AtACellClick)
{
    m_list->SetCheckbox(1, 1, XLC_UNCHECKED);
    m_list->m_onCellClick = Deletes();
    Press(WM_LBUTTONDOWN, 1, 1);
}

TEST_F(DeletedList, AtAFlippedCheckBox)
{
    m_list->SetHeaderAutoCheckbox(true);
    m_list->SetCheckbox(1, 1, XLC_UNCHECKED);
    m_list->m_onStateChange = Deletes();
    Press(WM_LBUTTONDOWN, 1, 1);
}

TEST_F(DeletedList, AtTheFirstOfTwoRadioButtons)
{
    m_list->SetRadioButton(0, 1, XLC_RADIO_ON);
    m_list->SetRadioButton(1, 1, XLC_RADIO_OFF);
    m_list->m_onStateChange = Deletes();
    Press(WM_LBUTTONDOWN, 1, 1);
}

TEST_F(DeletedList, AtADoubleClick)
{
    m_list->m_onDoubleClick = Deletes();
    Press(WM_LBUTTONDBLCLK, 1, 1);
}

TEST_F(DeletedList, AtAPressOnAHeaderThatTellsOfItItself)
{
    m_list->SetHeaderDirectColumnClick();
    m_list->SetHeaderAutoCheckbox(true);
    for (int row = 0; row < 4; ++row)
        m_list->SetCheckbox(row, 1, XLC_UNCHECKED);
    m_list->SetHeaderCheckedState(1, XHC_UNCHECKED);
    m_list->m_onStateChange = Deletes();
    HWND const header = m_list->GetHeaderCtrl()->m_hWnd;
    CRect title;
    ASSERT_TRUE(m_list->GetHeaderCtrl()->GetItemRect(1, &title));
    ::SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(title.CenterPoint().x, title.CenterPoint().y));
}

TEST_F(DeletedList, AtAHeaderClick)
{
    m_list->SetHeaderAutoCheckbox(true);
    for (int row = 0; row < 4; ++row)
        m_list->SetCheckbox(row, 1, XLC_UNCHECKED);
    m_list->SetHeaderCheckedState(1, XHC_UNCHECKED);
    m_list->m_onStateChange = Deletes();
    m_list->OnHeaderColumnClick(1);
}

/// Does something once, within a message that its edit sends it.
class AskedList : public tests::TestList
{
public:
    UINT m_message = 0;
    std::function<void()> m_act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == m_message && lParam != 0 && m_act)
        {
            auto const act = std::exchange(m_act, {});
            act();
            if (m_hWnd == nullptr)
                return 0;
        }
        return TestList::WindowProc(message, wParam, lParam);
    }
};

class AskedByItsEdit : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list.Create(tests::TestList::default_style, CRect(0, 0, 300, 150), &m_host, 7));
        m_list.AddColumns(3);
        m_list.AddRows(4);
        m_list.DrawEditControl(1, 1);
        m_edit = tests::OpenEditOf(m_list);
        ASSERT_NE(m_edit, nullptr);
        ::SendMessageW(m_edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"typed"));
    }
    /// Ends the edit in the message that some action makes the native edit send; its window must outlast the native
    /// code.
    void EndIn(UINT message, std::function<void()> const & action)
    {
        bool isThere = false;
        bool isSeen = true;
        m_list.m_message = message;
        m_list.m_act = [&] {
            m_list.SetDpi(144);
            isThere = ::IsWindow(m_edit) != FALSE;
            isSeen = ::IsWindowVisible(m_edit) != FALSE;
        };
        action();
        EXPECT_FALSE(m_list.m_act) << "it was asked";
        EXPECT_TRUE(isThere);
        EXPECT_FALSE(isSeen);
        EXPECT_FALSE(::IsWindow(m_edit));
        EXPECT_EQ(tests::OpenEditOf(m_list), nullptr);
        EXPECT_NE(::GetCapture(), m_edit);
        EXPECT_EQ(m_list.GetItemText(1, 1).Right(5), L"typed");
    }

    /// Ends the list in the message that some action makes the native edit send; the edit must outlast the native code.
    void EndListIn(UINT message, std::function<void()> const & action, std::function<void()> const & end)
    {
        bool isThere = false;
        m_list.m_message = message;
        m_list.m_act = [&] {
            end();
            isThere = ::IsWindow(m_edit) != FALSE;
        };
        action();
        EXPECT_FALSE(m_list.m_act) << "it was asked";
        EXPECT_EQ(m_list.m_hWnd, nullptr);
        EXPECT_TRUE(isThere);
        EXPECT_FALSE(::IsWindow(m_edit));
    }
    void Repaint() { ::RedrawWindow(m_edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

    tests::GuardedHeap m_heap;
    tests::ListParent m_host;
    AskedList m_list;
    HWND m_edit = nullptr;
};

TEST_F(AskedByItsEdit, ForItsColoursItMayEnd)
{
    EndListIn(
        WM_CTLCOLOREDIT, [this] { Repaint(); }, [this] { m_list.DestroyWindow(); });
}

TEST_F(AskedByItsEdit, ForItsColoursItsParentMayEnd)
{
    EndListIn(
        WM_CTLCOLOREDIT, [this] { Repaint(); }, [this] { m_host.DestroyWindow(); });
}

TEST_F(AskedByItsEdit, ToldOfATypedLetterItMayEnd)
{
    EndListIn(
        WM_COMMAND, [this] { ::SendMessageW(m_edit, WM_CHAR, L'x', 1); }, [this] { m_list.DestroyWindow(); });
}

TEST_F(AskedByItsEdit, ForItsColoursItMayEndIt)
{
    EndIn(WM_CTLCOLOREDIT, [this] { ::RedrawWindow(m_edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); });
}

TEST_F(AskedByItsEdit, ToldOfATypedLetterItMayEndIt)
{
    EndIn(WM_COMMAND, [this] { ::SendMessageW(m_edit, WM_CHAR, L'x', 1); });
}

TEST_F(AskedByItsEdit, ForItsColoursItMayOpenAnother)
{
    HWND second = nullptr;
    m_list.m_message = WM_CTLCOLOREDIT;
    m_list.m_act = [&] {
        m_list.DrawEditControl(2, 0);
        second = ::GetFocus();
    };
    ::RedrawWindow(m_edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_FALSE(::IsWindow(m_edit));
    EXPECT_NE(second, m_edit);
    EXPECT_EQ(tests::OpenEditOf(m_list), second);
    EXPECT_TRUE(::IsWindowVisible(second));
    tests::PumpPosted();
    EXPECT_EQ(::GetFocus(), second);
}

TEST_F(AskedByItsEdit, ForItsColoursItMayEndItAndAnother)
{
    m_list.m_message = WM_CTLCOLOREDIT;
    m_list.m_act = [&] {
        m_list.DrawEditControl(2, 0);
        m_list.SetDpi(144);
    };
    ::RedrawWindow(m_edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_FALSE(::IsWindow(m_edit));
    EXPECT_EQ(tests::OpenEditOf(m_list), nullptr);
}

/// Does something once, where it gets the message, and answers that itself then.
template <UINT asked, LRESULT answer> class ListThatActs : public tests::GuardedList
{
public:
    std::function<void()> m_act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        auto const act = message == asked ? std::exchange(m_act, {}) : nullptr;
        if (!act)
            return GuardedList::WindowProc(message, wParam, lParam);
        act();
        return answer;
    }
};
using ListAskedForItsFont = ListThatActs<WM_GETFONT, 0>;
using ListAskedForACell = ListThatActs<LVM_GETSUBITEMRECT, 1>; // for a cell's place

TEST(ListWithoutRows, MayEndWhileItsTextIsPainted)
{
    tests::GuardedHeap heap;
    tests::ListParent parent;
    auto list = std::make_unique<ListAskedForItsFont>();
    ASSERT_TRUE(list->Create(tests::TestList::default_style, CRect(0, 0, 360, 200), &parent, 7));
    list->AddColumns(2);
    list->SetDpi(144);
    list->SetEmptyListText(L"nothing");
    list->m_act = [&list] { list.reset(); };
    ::RedrawWindow(list->m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(list, nullptr) << "it was asked";
}

/// A list that its host deletes in the question where the cell stands that is to be painted anew.
class DeletedAtARepaint : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list->Create(tests::TestList::default_style, CRect(0, 0, 360, 200), &m_parent, 7));
        m_list->AddColumns(3);
        m_list->AddRows(4);
        m_list->UpdateWindow();
    }
    void TearDown() override { EXPECT_EQ(m_list, nullptr) << "it was not asked"; }
    void DeleteAtTheNext()
    {
        m_list->m_act = [this] { m_list.reset(); };
    }

    tests::GuardedHeap m_heap; // ends the program at a use of the deleted list
    tests::ListParent m_parent;
    std::unique_ptr<ListAskedForACell> m_list = std::make_unique<ListAskedForACell>();
};

TEST_F(DeletedAtARepaint, OfACell)
{
    DeleteAtTheNext();
    m_list->UpdateSubItem(1, 1);
}

TEST_F(DeletedAtARepaint, OfTheFirstCell)
{
    DeleteAtTheNext();
    m_list->UpdateSubItem(1, 0);
}

TEST_F(DeletedAtARepaint, OfACheckBoxThatWasPressed)
{
    m_list->SetCheckbox(1, 1, XLC_UNCHECKED);
    CRect cell;
    ASSERT_TRUE(m_list->GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
    m_list->m_onCellClick = [this](int, int) { DeleteAtTheNext(); };
    ::SendMessageW(m_list->m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(cell.left + 5, cell.CenterPoint().y));
    tests::PumpPosted();
}

TEST_F(DeletedAtARepaint, OfACellWhoseEditEnds)
{
    m_list->DrawEditControl(1, 1);
    HWND const edit = tests::OpenEditOf(*m_list);
    ASSERT_NE(edit, nullptr);
    ::SendMessageW(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"typed"));
    DeleteAtTheNext();
    ::SetFocus(m_parent.m_hWnd);
    tests::PumpPosted();
}
} // namespace
