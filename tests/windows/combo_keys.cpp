// Keys, characters, wheel and hot tracking of a combo.

#include "combo_ComboTest.h"

using namespace combo_test;

namespace
{
class ComboKeys : public ComboTest
{
protected:
    void Focus()
    {
        m_combo->SetFocus();
        tests::PumpPosted();
        m_host.m_heard.clear();
    }
};
} // namespace

TEST_F(ComboKeys, DownStepsOverDisabledItems)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(5));
    m_combo->SetItemDisabled(1, true);
    m_combo->SetItemDisabled(2, true);
    m_combo->SetCurSel(0);
    Focus();
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_combo->m_curSel == 3; }));
    EXPECT_EQ(Text(), L"item 3");
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDOK", "SELCHANGE"}));
    tests::Key(VK_UP);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_combo->m_curSel == 0; }));
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDOK", "SELCHANGE"}));
}

TEST_F(ComboKeys, NothingBehindTheLastItem)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(3));
    m_combo->SetCurSel(2);
    Focus();
    PostKey(VK_DOWN);
    EXPECT_EQ(m_combo->m_curSel, 2);
    EXPECT_EQ(m_host.TakeHeard(), Heard{});
}

TEST_F(ComboKeys, PagesAreTenItemsDisabledOnesIncluded)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(25));
    m_combo->SetItemDisabled(10, true);
    m_combo->SetCurSel(0);
    Focus();
    PostKey(VK_NEXT);
    EXPECT_EQ(m_combo->m_curSel, 10);
    PostKey(VK_NEXT);
    PostKey(VK_NEXT);
    EXPECT_EQ(m_combo->m_curSel, 24);
    EXPECT_EQ(m_host.TakeHeard().size(), 6u);
    PostKey(VK_NEXT);
    EXPECT_EQ(m_host.TakeHeard(), Heard{});
    PostKey(VK_PRIOR);
    EXPECT_EQ(m_combo->m_curSel, 14);
}

TEST_F(ComboKeys, SentKeyWorksAsAPostedOne)
{
    MakeCombo();
    m_combo->SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(m_combo->m_curSel, 0);
    m_combo->SendMessage(WM_KEYDOWN, VK_NEXT, 1);
    EXPECT_EQ(m_combo->m_curSel, 9);
    m_combo->SendMessage(WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(m_combo->m_curSel, 8);
    m_combo->SendMessage(WM_KEYDOWN, VK_PRIOR, 1);
    EXPECT_EQ(m_combo->m_curSel, 0);
}

TEST_F(ComboKeys, ArrowKeysShowTheTextInTheEdit)
{
    MakeCombo(CBS_DROPDOWN);
    Focus();
    tests::Key(VK_DOWN);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_combo->m_curSel == 0; }));
    EXPECT_EQ(Text(), L"item 0");
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"EDITUPDATE", "EDITCHANGE", "SELENDOK", "SELCHANGE"}));
}

TEST_F(ComboKeys, ArrowKeysMoveInTheOpenList)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(6));
    m_combo->SetItemDisabled(1, true);
    m_combo->SetItemDisabled(5, true);
    m_combo->SetFocus();
    ASSERT_TRUE(Open());
    EXPECT_EQ(List().GetCurSel(), -1);
    PostKey(VK_UP);
    EXPECT_EQ(List().GetCurSel(), -1);
    PostKey(VK_DOWN);
    EXPECT_EQ(List().GetCurSel(), 0);
    PostKey(VK_DOWN);
    EXPECT_EQ(List().GetCurSel(), 2);
    PostKey(VK_UP);
    EXPECT_EQ(List().GetCurSel(), 0);
    PostKey(VK_UP);
    EXPECT_EQ(List().GetCurSel(), 0);
    List().SetCurSel(4);
    PostKey(VK_DOWN);
    EXPECT_EQ(List().GetCurSel(), 4);
    EXPECT_EQ(m_combo->m_curSel, -1);
    EXPECT_EQ(m_host.TakeHeard(), Heard{});
}

TEST_F(ComboKeys, PageKeysMoveInTheOpenListAndShowTheText)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(30));
    m_combo->SetMaxVisible(6);
    m_combo->SetFocus();
    ASSERT_TRUE(Open());
    int const visible = List().GetVisibleRows();
    ASSERT_GE(visible, 5);
    PostKey(VK_NEXT);
    EXPECT_EQ(List().GetCurSel(), 0);
    PostKey(VK_NEXT);
    EXPECT_EQ(List().GetCurSel(), visible - 1);
    EXPECT_EQ(Text(), L"item " + std::to_wstring(visible - 1));
    EXPECT_EQ(m_combo->GetCurSel(), visible - 1); // follows the text
    EXPECT_EQ(m_combo->m_curSel, -1);
    PostKey(VK_PRIOR);
    EXPECT_EQ(List().GetCurSel(), List().GetTopIndex());
}

TEST_F(ComboKeys, CharactersOfTheCombo)
{
    MakeCombo();
    Focus();
    m_combo->SendMessage(WM_CHAR, 27, 1);
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"cancel"}));
    m_combo->SendMessage(WM_CHAR, 13, 1);
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"complete"}));
    m_combo->SendMessage(WM_CHAR, 40, 1);
    EXPECT_EQ(m_combo->m_curSel, 0);
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDOK", "SELCHANGE"}));
    m_combo->SendMessage(WM_CHAR, L'x', 1);
    EXPECT_EQ(m_host.TakeHeard(), Heard{});
}

TEST_F(ComboKeys, ABracketTypedGoesToTheNextItem)
{
    MakeCombo();
    Focus();
    tests::Type(L"(");
    ASSERT_TRUE(tests::PumpUntil([this] { return m_combo->m_curSel == 0; }));
}

TEST_F(ComboKeys, ReturnWithAClosedDropDownCompletes)
{
    MakeCombo();
    Focus();
    tests::Key(VK_RETURN);
    ASSERT_TRUE(WaitHeard("complete"));
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"complete"}));
}

TEST_F(ComboKeys, EscapeWithAClosedDropDownCancelsByKeyAndCharacter)
{
    MakeCombo();
    Focus();
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([this] { return m_host.m_heard.size() == 2; }));
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"cancel", "cancel"}));
}

TEST_F(ComboKeys, TwoHalfNotchesMoveOnce)
{
    MakeCombo();
    m_combo->SetCurSel(5);
    EXPECT_EQ(m_combo->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 60), 0), 1);
    EXPECT_EQ(m_combo->m_curSel, 5);
    EXPECT_EQ(m_combo->m_wheel, 60);
    EXPECT_EQ(m_combo->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 60), 0), 1);
    EXPECT_EQ(m_combo->m_curSel, 4);
    EXPECT_EQ(m_combo->m_wheel, 0);
    m_combo->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0);
    EXPECT_EQ(m_combo->m_curSel, 5);
}

TEST_F(ComboKeys, RealWheelMovesTheSelection)
{
    MakeCombo();
    m_combo->SetCurSel(5);
    Focus();
    tests::Wheel(ComboPoint(), 1);
    EXPECT_TRUE(tests::PumpUntil([this] { return m_combo->m_curSel == 4; }));
}

TEST_F(ComboKeys, WheelScrollsTheOpenList)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(30));
    m_combo->SetMaxVisible(6);
    ASSERT_TRUE(Open());
    auto const turn = [this](int delta) {
        m_combo->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0);
        return List().GetTopIndex();
    };
    EXPECT_EQ(turn(-120), 3);
    EXPECT_EQ(ScrollBar().GetScrollPos(), 3);
    EXPECT_EQ(turn(-120), 6);
    EXPECT_EQ(turn(120), 3);
    EXPECT_EQ(turn(120), 0);
    EXPECT_EQ(turn(120), 0);
    EXPECT_EQ(m_combo->m_curSel, -1);
    EXPECT_EQ(m_combo->SendMessage(CB_SETTOPINDEX, 4), LB_OKAY);
    EXPECT_EQ(m_combo->SendMessage(CB_GETTOPINDEX), 4);
    EXPECT_EQ(turn(-120), 7);
}

TEST_F(ComboKeys, ButtonIsHotWhileThePointerIsOverIt)
{
    MakeCombo(CBS_DROPDOWN);
    tests::MoveMouse(ButtonPoint());
    ASSERT_TRUE(tests::PumpUntil([this] { return m_combo->m_hot; }));
    EXPECT_TRUE(m_combo->m_hotTimer);
    tests::MoveMouse(CPoint(900, 900));
    EXPECT_TRUE(tests::PumpUntil([this] { return !m_combo->m_hot && !m_combo->m_hotTimer; }));
}

TEST_F(ComboKeys, WholeDropDownListIsHot)
{
    MakeCombo();
    tests::MoveMouse(tests::ClientPoint(m_combo->m_hWnd, CPoint(5, 5)));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_combo->m_hot; }));
    tests::MoveMouse(CPoint(900, 900));
    EXPECT_TRUE(tests::PumpUntil([this] { return !m_combo->m_hot && !m_combo->m_hotTimer; }));
}

TEST_F(ComboKeys, EditPartIsNotHot)
{
    MakeCombo(CBS_DROPDOWN);
    m_combo->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
    EXPECT_FALSE(m_combo->m_hot);
    EXPECT_FALSE(m_combo->m_hotTimer);
}
