// Opening, choosing and closing with real mouse and keyboard, and what the parent hears of it.

#include "combo_ComboTest.h"
#include "MessageRecorder.h"

using namespace combo_test;

namespace
{
class ComboChoice : public ComboTest
{
};

/// A window with another button that takes the focus.
class ComboNeighbour : public ComboTest
{
protected:
    void MakeNeighbour()
    {
        ASSERT_TRUE(
            m_neighbour.Create(L"", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, CRect(20, 300, 100, 330), &m_host, 78));
        m_neighbour.UpdateWindow();
    }

    CButton m_neighbour;
};
} // namespace

TEST_F(ComboChoice, MouseOpensAndChooses)
{
    MakeCombo();
    tests::Click(ComboPoint());
    ASSERT_TRUE(WaitOpen());
    tests::PumpPosted();
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SETFOCUS", "DROPDOWN"}));

    tests::Click(RowPoint(3));
    ASSERT_TRUE(WaitHeard("complete"));
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDOK", "CLOSEUP", "SELCHANGE", "complete"}));
    EXPECT_EQ(m_combo->GetCurSel(), 3);
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ComboChoice, MouseOnTheButtonOpensAComboWithEdit)
{
    MakeCombo(CBS_DROPDOWN);
    tests::Click(ButtonPoint());
    ASSERT_TRUE(WaitOpen());
    tests::PumpPosted();
    // The combo gets the focus first and hands it to its edit field.
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"cancel", "SETFOCUS", "DROPDOWN"}));

    tests::Click(RowPoint(2));
    ASSERT_TRUE(WaitHeard("complete"));
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDOK", "CLOSEUP", "SELCHANGE", "complete"}));
    EXPECT_EQ(m_combo->GetCurSel(), 2);
    EXPECT_EQ(Text(), L"item 2");
    EXPECT_EQ(::GetFocus(), m_combo->m_edit->m_hWnd);
    EXPECT_EQ(m_combo->GetEditSel(), static_cast<DWORD>(MAKELONG(0, 6)));
}

TEST_F(ComboChoice, PressBesideTheButtonOpensNothing)
{
    MakeCombo(CBS_DROPDOWN);
    m_combo->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(0, 0));
    EXPECT_FALSE(m_combo->GetDroppedState());
}

TEST_F(ComboChoice, ReturnChooses)
{
    MakeCombo();
    m_combo->SetCurSel(1);
    m_combo->SetFocus();
    ASSERT_TRUE(Open());
    tests::Key(VK_DOWN);
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetCurSel() == 3; }));
    EXPECT_EQ(m_combo->GetCurSel(), 1);
    EXPECT_EQ(m_host.TakeHeard(), Heard{});
    tests::Key(VK_RETURN);
    ASSERT_TRUE(WaitClosed());
    tests::PumpPosted();
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDOK", "CLOSEUP", "SELCHANGE", "complete"}));
    EXPECT_EQ(m_combo->GetCurSel(), 3);
}

TEST_F(ComboChoice, ReturnWithoutASelectionOnlyCloses)
{
    MakeCombo();
    m_combo->SetFocus();
    ASSERT_TRUE(Open());
    tests::Key(VK_RETURN);
    ASSERT_TRUE(WaitClosed());
    tests::PumpPosted();
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDCANCEL", "CLOSEUP"}));
    EXPECT_EQ(m_combo->GetCurSel(), -1);
}

TEST_F(ComboChoice, EscapeClosesAndCancels)
{
    MakeCombo();
    m_combo->SetCurSel(1);
    m_combo->SetFocus();
    ASSERT_TRUE(Open());
    tests::Key(VK_DOWN);
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(WaitClosed());
    tests::PumpPosted();
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDCANCEL", "CLOSEUP"}));
    EXPECT_EQ(m_combo->GetCurSel(), 1);

    // With the drop-down closed the key is the combo's own.
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(WaitHeard("cancel"));
    EXPECT_FALSE(m_combo->GetDroppedState());
}

TEST_F(ComboChoice, PressOutsideClosesAndGoesOnToTheCombo)
{
    MakeCombo();
    m_combo->SetFocus();
    ASSERT_TRUE(Open());
    CRect const drop = DropRect();
    CPoint const outside(drop.right + 150, drop.bottom + 40);
    tests::MessageRecorder recorder({WM_LBUTTONDOWN});
    recorder.Watch(m_combo->m_hWnd, "combo");
    tests::Click(outside);
    ASSERT_TRUE(WaitClosed());
    tests::PumpPosted();
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDCANCEL", "CLOSEUP"}));
    // The point as the drop window counts it.
    LPARAM const point = MAKELPARAM(outside.x - drop.left, outside.y - drop.top);
    EXPECT_TRUE(recorder.Matches({{"combo", WM_LBUTTONDOWN, tests::Way::sent, MK_LBUTTON, point}}));
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(m_combo->GetCurSel(), -1);
}

TEST_F(ComboChoice, PressOnTheComboItselfClosesToo)
{
    MakeCombo();
    m_combo->SetFocus();
    ASSERT_TRUE(Open());
    tests::Click(ComboPoint());
    ASSERT_TRUE(WaitClosed());
    tests::PumpFor(std::chrono::milliseconds(50));
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDCANCEL", "CLOSEUP"}));
}

TEST_F(ComboChoice, LosingTheApplicationsActivationCloses)
{
    MakeCombo();
    m_combo->SetFocus();
    ASSERT_TRUE(Open());
    ASSERT_TRUE(::SetForegroundWindow(::GetDesktopWindow())); // another program's
    ASSERT_TRUE(WaitClosed());
    tests::PumpPosted();
    Heard const heard = m_host.TakeHeard();
    EXPECT_EQ(heard, (Heard{"cancel", "SELENDCANCEL", "CLOSEUP"}));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ComboChoice, FormerPlaceIsKept)
{
    MakeCombo();
    CRect rect;
    m_combo->GetDroppedControlRect(rect);
    CRect combo;
    m_combo->GetWindowRect(combo);
    EXPECT_EQ(rect, combo);
    ASSERT_TRUE(Open());
    CRect const open = DropRect();
    m_combo->GetDroppedControlRect(rect);
    EXPECT_EQ(rect, open);
    m_combo->ShowDropDown(false);
    EXPECT_TRUE(m_combo->m_dropRectValid);
    EXPECT_EQ(m_combo->m_rcDropSaved, open);
    m_combo->GetDroppedControlRect(rect);
    EXPECT_EQ(rect, open);
}

TEST_F(ComboChoice, F4AndAltWithAnArrowOpenAndClose)
{
    MakeCombo();
    m_combo->SetFocus();
    tests::PumpPosted();
    m_host.m_heard.clear();
    tests::Key(VK_F4);
    ASSERT_TRUE(WaitOpen());
    tests::Key(VK_F4);
    ASSERT_TRUE(WaitClosed());
    tests::Key(VK_DOWN, {VK_MENU});
    ASSERT_TRUE(WaitOpen());
    tests::Key(VK_UP, {VK_MENU});
    ASSERT_TRUE(WaitClosed());
    tests::PumpPosted();
    EXPECT_EQ(m_host.TakeHeard(),
              (Heard{"DROPDOWN", "SELENDCANCEL", "CLOSEUP", "DROPDOWN", "SELENDCANCEL", "CLOSEUP"}));
}

TEST_F(ComboChoice, CloseWithoutADropWindowCompletes)
{
    MakeCombo();
    EXPECT_EQ(m_combo->SendMessage(XListCtrl::WM_ADVCOMBO_CLOSE_DROP), 1);
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"complete"}));
}

TEST_F(ComboChoice, ChoiceFromNoOpenListIsNone)
{
    MakeCombo();
    EXPECT_EQ(m_combo->SendMessage(XListCtrl::WM_ADVCOMBO_SELECTED, 2), 1);
    ASSERT_TRUE(Open());
    EXPECT_EQ(m_combo->SendMessage(XListCtrl::WM_ADVCOMBO_SELECTED, 10), 1);
    EXPECT_EQ(m_combo->GetCurSel(), -1);
    EXPECT_TRUE(m_combo->GetDroppedState());
    EXPECT_EQ(m_host.TakeHeard(), Heard{});
}

TEST_F(ComboChoice, SelectionBeyondTheItemsOpensOnTheFirst)
{
    MakeCombo(CBS_DROPDOWNLIST, {L"a", L"b", L"c"});
    m_combo->SetCurSel(2);
    m_combo->DeleteString(0);
    ASSERT_TRUE(Open());
    EXPECT_EQ(m_combo->m_curSel, 0);
    EXPECT_EQ(List().GetCurSel(), 0);
}

TEST_F(ComboChoice, ItemsOfTheOpenListStayAsTheyWere)
{
    MakeCombo(CBS_DROPDOWNLIST, {L"a", L"b", L"c"});
    ASSERT_TRUE(Open());
    m_combo->ResetContent();
    EXPECT_EQ(List().GetCount(), 3);
    m_combo->SendMessage(XListCtrl::WM_ADVCOMBO_SELECTED, 1);
    EXPECT_EQ(m_combo->m_text, L"b");
    EXPECT_EQ(m_combo->GetCurSel(), -1);
    EXPECT_EQ(m_combo->m_curSel, -1);
}

TEST_F(ComboNeighbour, LeavingTheEditTellsTheParent)
{
    MakeCombo(CBS_DROPDOWN);
    MakeNeighbour();
    tests::Click(tests::Centre(m_combo->m_edit->m_hWnd));
    ASSERT_TRUE(WaitHeard("SETFOCUS"));
    tests::PumpPosted();
    m_host.m_heard.clear();
    m_combo->SetEditSel(1, 3);
    tests::Click(tests::Centre(m_neighbour.m_hWnd));
    ASSERT_TRUE(WaitHeard("KILLFOCUS"));
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDCANCEL", "KILLFOCUS"}));
    EXPECT_FALSE(m_combo->m_focusNotified);
    EXPECT_EQ(m_combo->GetEditSel(), 0u);
}

TEST_F(ComboNeighbour, LeavingTheEditOfAnOpenComboOnlyCloses)
{
    MakeCombo(CBS_DROPDOWN);
    MakeNeighbour();
    m_combo->SetFocus();
    ASSERT_TRUE(Open());
    m_neighbour.SetFocus();
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDCANCEL", "CLOSEUP"}));
}

TEST_F(ComboNeighbour, LeavingADropDownListCancels)
{
    MakeCombo();
    MakeNeighbour();
    m_combo->SetFocus();
    tests::PumpPosted();
    EXPECT_TRUE(m_combo->m_focused);
    m_host.m_heard.clear();
    m_neighbour.SetFocus();
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"cancel"}));
    EXPECT_TRUE(m_combo->m_focused);
}
