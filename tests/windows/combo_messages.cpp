// The CB_ messages and the operations behind them.

#include "combo_ComboTest.h"

using namespace combo_test;

namespace
{
class ComboMessages : public ComboTest
{
protected:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return m_combo->SendMessage(message, wParam, lParam);
    }
    LRESULT SendText(UINT message, WPARAM wParam, wchar_t const * text)
    {
        return Send(message, wParam, reinterpret_cast<LPARAM>(text));
    }
};
} // namespace

TEST_F(ComboMessages, ItemsAreAddedCountedAndRead)
{
    MakeCombo(CBS_DROPDOWNLIST, {});
    EXPECT_EQ(Send(CB_GETCOUNT), 0);
    EXPECT_EQ(SendText(CB_ADDSTRING, 0, L"one"), 0);
    EXPECT_EQ(SendText(CB_ADDSTRING, 0, L"three"), 1);
    EXPECT_EQ(Send(CB_ADDSTRING), -1);
    EXPECT_EQ(Send(CB_GETCOUNT), 2);
    EXPECT_EQ(Send(CB_GETLBTEXTLEN, 1), 6);
    EXPECT_EQ(Send(CB_GETLBTEXTLEN, 2), -1);
    wchar_t text[20] = L"untouched";
    EXPECT_EQ(Send(CB_GETLBTEXT, 2, reinterpret_cast<LPARAM>(text)), -1);
    EXPECT_STREQ(text, L"untouched");
    EXPECT_EQ(Send(CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text)), 6);
    EXPECT_STREQ(text, L"three");
}

TEST_F(ComboMessages, SelectionFollowsTheText)
{
    MakeCombo(CBS_DROPDOWNLIST, {L"a", L"b", L"a"});
    EXPECT_EQ(Send(CB_GETCURSEL), -1);
    EXPECT_EQ(Send(CB_SETCURSEL, 1), 1);
    EXPECT_EQ(Send(CB_GETCURSEL), 1);
    EXPECT_EQ(Send(CB_SETCURSEL, 2), 2);
    EXPECT_EQ(m_combo->m_curSel, 2);
    EXPECT_EQ(Send(CB_GETCURSEL), 0); // the first with that text
    EXPECT_EQ(Send(CB_SETCURSEL, 3), -1);
    EXPECT_EQ(m_combo->m_curSel, 2);
    EXPECT_EQ(Send(CB_SETCURSEL, static_cast<WPARAM>(-1)), -1);
    EXPECT_EQ(m_combo->m_curSel, -1);
    EXPECT_EQ(m_combo->m_text, L"");
    EXPECT_EQ(m_host.TakeHeard(), Heard{});
}

TEST_F(ComboMessages, SelectStringSelectsOrClears)
{
    MakeCombo(CBS_DROPDOWNLIST, {L"a", L"b", L"a"});
    EXPECT_EQ(SendText(CB_SELECTSTRING, static_cast<WPARAM>(-1), L"b"), 1);
    EXPECT_EQ(m_combo->m_curSel, 1);
    EXPECT_EQ(SendText(CB_SELECTSTRING, 1, L"a"), 2);
    EXPECT_EQ(SendText(CB_SELECTSTRING, static_cast<WPARAM>(-1), L"A"), -1);
    EXPECT_EQ(m_combo->m_curSel, -1);
    EXPECT_EQ(m_combo->SelectString(-1, L"b"), 1);
    EXPECT_EQ(m_combo->SelectString(-1, L"c"), -1);
    EXPECT_EQ(m_combo->m_curSel, 1);
}

TEST_F(ComboMessages, ResetEmptiesEverything)
{
    MakeCombo(CBS_DROPDOWN);
    m_combo->SetCurSel(2);
    m_combo->SetWindowText(L"free");
    m_host.m_heard.clear();
    EXPECT_EQ(Send(CB_RESETCONTENT), 0);
    EXPECT_EQ(Send(CB_GETCOUNT), 0);
    EXPECT_EQ(m_combo->m_curSel, -1);
    EXPECT_EQ(m_combo->m_text, L"");
    EXPECT_EQ(Text(), L"");
    EXPECT_EQ(m_combo->GetWindowTextLength(), 0);
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"EDITUPDATE", "EDITCHANGE"}));
    EXPECT_EQ(Send(CB_SETCURSEL, 4), -1);
    EXPECT_EQ(m_combo->m_curSel, 4); // an empty list takes any
}

TEST_F(ComboMessages, TopIndexIsThatOfTheOpenList)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(40));
    m_combo->SetMaxVisible(6);
    EXPECT_EQ(Send(CB_GETTOPINDEX), -1);
    EXPECT_EQ(Send(CB_SETTOPINDEX, 3), -1);
    ASSERT_TRUE(Open());
    EXPECT_EQ(Send(CB_GETTOPINDEX), 0);
    EXPECT_EQ(Send(CB_SETTOPINDEX, 3), 0);
    EXPECT_EQ(Send(CB_GETTOPINDEX), 3);
    EXPECT_EQ(ScrollBar().GetScrollPos(), 3);
}

TEST_F(ComboMessages, IndicesOutsideTheListAreRefused)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(2));
    CString text = L"x";
    for (int const index : {-2, -1, 2, 99})
    {
        EXPECT_EQ(m_combo->DeleteString(index), -1);
        EXPECT_EQ(m_combo->GetLBText(index, text), -1);
        EXPECT_EQ(m_combo->GetLBTextLen(index), -1);
        EXPECT_EQ(m_combo->GetItemData(index), -1);
        EXPECT_EQ(m_combo->SetItemData(index, 5), -1);
        EXPECT_EQ(m_combo->GetItemDisabled(index), -1);
        EXPECT_EQ(m_combo->SetItemDisabled(index, true), -1);
        EXPECT_EQ(m_combo->GetItemFlag(index), -1);
        EXPECT_EQ(m_combo->SetItemFlag(index, 5), -1);
    }
    EXPECT_EQ(text, L"x");
    EXPECT_EQ(m_combo->GetCount(), 2);
}

TEST_F(ComboMessages, ItemsKeepWhatTheyAreGiven)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(2));
    EXPECT_EQ(m_combo->GetItemData(1), 0);
    EXPECT_EQ(m_combo->SetItemData(1, 1LL << 40), 0);
    EXPECT_EQ(m_combo->GetItemData(1), 1LL << 40);
    EXPECT_EQ(m_combo->GetItemDisabled(1), 0);
    EXPECT_EQ(m_combo->SetItemDisabled(1, true), 0);
    EXPECT_EQ(m_combo->GetItemDisabled(1), 1);
    EXPECT_EQ(m_combo->SetItemFlag(1, 7), 0);
    EXPECT_EQ(m_combo->GetItemFlag(1), 7);
    EXPECT_EQ(m_combo->InsertString(0, L"new"), 0);
    EXPECT_EQ(m_combo->GetItemFlag(2), 7);
    EXPECT_EQ(m_combo->FindString(-1, L"item"), 1);
    EXPECT_EQ(m_combo->FindStringExact(-1, L"item 1"), 2);
}

TEST_F(ComboMessages, HeightIsTakenWithinLimitsAndNotKept)
{
    MakeCombo();
    EXPECT_EQ(m_combo->SetItemHeight(0, 20), -1);
    EXPECT_EQ(m_combo->SetItemHeight(-1, 9), -1);
    EXPECT_EQ(m_combo->SetItemHeight(-1, 51), -1);
    CRect window;
    m_combo->GetWindowRect(window);
    m_combo->m_rcButton.SetRectEmpty();
    EXPECT_EQ(m_combo->SetItemHeight(-1, 10), 0);
    EXPECT_EQ(m_combo->SetItemHeight(-1, 50), 0);
    CRect after;
    m_combo->GetWindowRect(after);
    EXPECT_EQ(after, window);
    CRect client;
    m_combo->GetClientRect(client);
    EXPECT_EQ(m_combo->m_rcButton,
              CRect(client.right - ::GetSystemMetrics(SM_CXHSCROLL), 0, client.right, client.bottom));
}

TEST_F(ComboMessages, FlagsOneAndTwoExcludeEachOther)
{
    TestCombo combo(nullptr);
    combo.ModifyComboFlags(0, 1);
    EXPECT_EQ(combo.m_comboFlags, 1u);
    combo.ModifyComboFlags(0, 2 | 8);
    EXPECT_EQ(combo.m_comboFlags, 2u | 8u);
    combo.ModifyComboFlags(8, 4 | 16);
    EXPECT_EQ(combo.m_comboFlags, 2u | 4u | 16u);
    combo.ModifyComboFlags(0, 3);
    EXPECT_EQ(combo.m_comboFlags & 3u, 2u);
}

TEST_F(ComboMessages, EditOperationsNeedAnEdit)
{
    MakeCombo();
    EXPECT_EQ(m_combo->SetEditSel(0, 1), -1);
    EXPECT_EQ(m_combo->GetEditSel(), static_cast<DWORD>(-1));
    EXPECT_EQ(m_combo->LimitText(5), -1);
    MakeCombo(CBS_DROPDOWN);
    m_combo->SetWindowText(L"abcdef");
    EXPECT_NE(m_combo->SetEditSel(1, 4), -1);
    EXPECT_EQ(m_combo->GetEditSel(), static_cast<DWORD>(MAKELONG(1, 4)));
    EXPECT_NE(m_combo->LimitText(5), -1);
    EXPECT_EQ(m_combo->m_edit->GetLimitText(), 5u);
    EXPECT_NE(m_combo->LimitText(0), -1);
    EXPECT_EQ(m_combo->m_edit->GetLimitText(), 65535u);
}

TEST_F(ComboMessages, DataIsExchanged)
{
    MakeCombo(CBS_DROPDOWNLIST, {L"a", L"b"});
    CDataExchange put(&m_host, FALSE);
    int index = 1;
    XListCtrl::DDX_AdvComboIndex(&put, combo_id, *m_combo, index);
    EXPECT_EQ(m_combo->GetCurSel(), 1);
    CDataExchange get(&m_host, TRUE);
    index = 0;
    XListCtrl::DDX_AdvComboIndex(&get, combo_id, *m_combo, index);
    EXPECT_EQ(index, 1);
    CString text;
    XListCtrl::DDX_AdvComboText(&get, combo_id, *m_combo, text);
    EXPECT_EQ(text, L"b");
    text = L"a";
    XListCtrl::DDX_AdvComboText(&put, combo_id, *m_combo, text);
    EXPECT_EQ(m_combo->GetCurSel(), 0);
}

TEST_F(ComboMessages, LongestItemCountsWithTheControlsParts)
{
    MakeCombo(CBS_DROPDOWNLIST, {L"a", L"a much longer text", L"b"});
    CClientDC dc(m_combo.get());
    CFont * const former = dc.SelectObject(m_combo->GetComboFont());
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    int const widest = static_cast<int>(dc.GetTextExtent(L"a much longer text", 18).cx);
    dc.SelectObject(former);
    EXPECT_EQ(m_combo->GetLongestItemWidth(), widest + metrics.tmAveCharWidth + ::GetSystemMetrics(SM_CXVSCROLL) +
                                                  2 * ::GetSystemMetrics(SM_CXEDGE) + 5);
}
