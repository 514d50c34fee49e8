// Auto-append and auto-suggest, typed on the real keyboard.

#include "combo_ComboTest.h"

using namespace combo_test;

namespace
{
class ComboTyping : public ComboTest
{
protected:
    /// A combo whose empty edit field has the focus.
    void MakeTyping(DWORD flags, std::vector<std::wstring> const & items)
    {
        MakeCombo(CBS_DROPDOWN | CBS_AUTOHSCROLL, items);
        m_combo->ModifyComboFlags(0, flags);
        m_combo->SetFocus();
        tests::PumpPosted();
        ASSERT_EQ(::GetFocus(), m_combo->m_edit->m_hWnd);
        m_host.m_heard.clear();
    }
    bool TypeUntil(std::wstring const & typed, std::function<bool()> const & predicate)
    {
        tests::Type(typed);
        bool const held = tests::PumpUntil(predicate);
        tests::PumpPosted();
        return held;
    }
    bool KeyUntil(WORD key, std::function<bool()> const & predicate)
    {
        tests::Key(key);
        bool const held = tests::PumpUntil(predicate);
        tests::PumpPosted();
        return held;
    }
    std::vector<std::wstring> Offered()
    {
        std::vector<std::wstring> texts;
        for (int i = 0; i < List().GetCount(); ++i)
        {
            CString text;
            List().GetText(i, text);
            texts.push_back(text.GetString());
        }
        return texts;
    }

    std::vector<std::wstring> const m_fruit = {L"apple", L"apple pie", L"apple juice", L"pear", L"pea"};
};
} // namespace

TEST_F(ComboTyping, WithoutFlagsTextStaysAsTyped)
{
    MakeTyping(0, m_fruit);
    ASSERT_TRUE(TypeUntil(L"a", [this] { return Text() == L"a"; }));
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"EDITUPDATE", "EDITCHANGE"}));
    EXPECT_EQ(m_combo->GetCurSel(), -1);
}

TEST_F(ComboTyping, FreeTextIsNoSelection)
{
    MakeTyping(0, m_fruit);
    m_combo->SetCurSel(1);
    ASSERT_TRUE(TypeUntil(L"x", [this] { return Text() == L"x"; }));
    EXPECT_EQ(m_combo->GetCurSel(), -1);
    m_combo->SetWindowText(L"pear");
    EXPECT_EQ(m_combo->GetCurSel(), 3);
}

TEST_F(ComboTyping, AppendsTheRestOfTheFirstItem)
{
    MakeTyping(XListCtrl::combo_auto_append, m_fruit);
    ASSERT_TRUE(TypeUntil(L"a", [this] { return Text() == L"apple"; }));
    EXPECT_EQ(m_combo->GetEditSel(), static_cast<DWORD>(MAKELONG(1, 5)));
    // The change by the appended text is heard as well.
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"EDITUPDATE", "EDITCHANGE", "EDITUPDATE", "EDITCHANGE"}));
    ASSERT_TRUE(TypeUntil(L"x", [this] { return Text() == L"ax"; }));
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"EDITUPDATE", "EDITCHANGE"}));
}

TEST_F(ComboTyping, AppendsWithTheCaseOfTheItems)
{
    MakeTyping(XListCtrl::combo_auto_append, {L"Zebra", L"zoo"});
    ASSERT_TRUE(TypeUntil(L"z", [this] { return Text() == L"zoo"; }));
}

TEST_F(ComboTyping, BackspaceDoesNotCompleteAgain)
{
    MakeTyping(XListCtrl::combo_auto_append, m_fruit);
    ASSERT_TRUE(TypeUntil(L"p", [this] { return Text() == L"pear"; }));
    ASSERT_TRUE(KeyUntil(VK_BACK, [this] { return Text() == L"p"; }));
    EXPECT_EQ(m_combo->m_autoAppendArmed, 0u);
    EXPECT_EQ(Text(), L"p");
    // The next key may complete again.
    ASSERT_TRUE(TypeUntil(L"e", [this] { return Text() == L"pear"; }));
    EXPECT_EQ(m_combo->GetEditSel(), static_cast<DWORD>(MAKELONG(2, 4)));
}

TEST_F(ComboTyping, EmptyTextIsHeardByNobodyWithFlag8)
{
    MakeTyping(XListCtrl::combo_auto_append, m_fruit);
    m_combo->m_edit->SetWindowText(L"q");
    m_host.m_heard.clear();
    m_combo->m_edit->SetWindowText(L"");
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"EDITCHANGE"}));
}

TEST_F(ComboTyping, RightAtTheEndCompletes)
{
    MakeTyping(XListCtrl::combo_auto_append, m_fruit);
    m_combo->ModifyComboFlags(XListCtrl::combo_auto_append, 0);
    m_combo->m_edit->SetWindowText(L"pea");
    m_combo->ModifyComboFlags(0, XListCtrl::combo_auto_append);
    m_combo->SetEditSel(1, 1);
    tests::PumpPosted();
    PostKey(VK_RIGHT);
    EXPECT_EQ(Text(), L"pea");
    EXPECT_EQ(m_combo->GetEditSel(), static_cast<DWORD>(MAKELONG(2, 2)));
    m_combo->SetEditSel(3, 3);
    PostKey(VK_RIGHT);
    EXPECT_EQ(Text(), L"pear");
    EXPECT_EQ(m_combo->GetEditSel(), static_cast<DWORD>(MAKELONG(3, 4)));
}

TEST_F(ComboTyping, RightOfAListIsConsumedWithFlag8)
{
    MakeCombo();
    MSG message = {m_combo->m_hWnd, WM_KEYDOWN, VK_RIGHT, 1, 0, {}};
    EXPECT_FALSE(m_combo->PreTranslateMessage(&message));
    m_combo->ModifyComboFlags(0, XListCtrl::combo_auto_append);
    EXPECT_TRUE(m_combo->PreTranslateMessage(&message));
}

TEST_F(ComboTyping, SuggestsWhatSeveralItemsStartWith)
{
    MakeTyping(XListCtrl::combo_auto_suggest, m_fruit);
    ASSERT_TRUE(TypeUntil(L"a", [this] { return m_combo->GetDroppedState(); }));
    EXPECT_EQ(Offered(), (std::vector<std::wstring>{L"apple", L"apple pie", L"apple juice"}));
    EXPECT_EQ(List().GetCurSel(), 0);
    EXPECT_EQ(Text(), L"a");
    EXPECT_EQ(m_combo->m_curSel, 0);
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"DROPDOWN"}));
    EXPECT_EQ(::GetFocus(), m_combo->m_edit->m_hWnd);

    // Each character closes the drop-down and opens one anew.
    ASSERT_TRUE(TypeUntil(L"p", [this] { return Text() == L"ap"; }));
    EXPECT_TRUE(m_combo->GetDroppedState());
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDCANCEL", "CLOSEUP", "DROPDOWN"}));
}

TEST_F(ComboTyping, DoesNotSuggestTheTypedItself)
{
    MakeTyping(XListCtrl::combo_auto_suggest, m_fruit);
    m_combo->m_edit->SetWindowText(L"apple");
    ASSERT_TRUE(m_combo->GetDroppedState());
    EXPECT_EQ(Offered(), (std::vector<std::wstring>{L"apple pie", L"apple juice"}));
}

TEST_F(ComboTyping, DoesNotSuggestASingleItem)
{
    MakeTyping(XListCtrl::combo_auto_suggest, m_fruit);
    m_combo->m_edit->SetWindowText(L"pea");
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"EDITUPDATE", "EDITCHANGE"}));
}

TEST_F(ComboTyping, SuggestionsEndWithTheText)
{
    MakeTyping(XListCtrl::combo_auto_suggest, m_fruit);
    ASSERT_TRUE(TypeUntil(L"a", [this] { return m_combo->GetDroppedState(); }));
    m_host.m_heard.clear();
    ASSERT_TRUE(KeyUntil(VK_BACK, [this] { return Text().empty(); }));
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDCANCEL", "CLOSEUP", "EDITCHANGE"}));
}

TEST_F(ComboTyping, ASuggestionChosenByMouseIsTheText)
{
    MakeTyping(XListCtrl::combo_auto_suggest, {L"ab one", L"ab two", L"x"});
    ASSERT_TRUE(TypeUntil(L"ab", [this] { return Text() == L"ab" && m_combo->GetDroppedState(); }));
    m_host.m_heard.clear();
    tests::Click(RowPoint(1));
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_host.m_heard.empty() && m_host.m_heard.back() == "complete"; }));
    tests::PumpPosted();
    // The text that is set is typed text too: its suggestions, none, close the drop-down before the choice is told.
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"SELENDCANCEL", "CLOSEUP", "EDITUPDATE", "EDITCHANGE", "SELENDOK", "complete",
                                         "SELCHANGE", "complete"}));
    EXPECT_EQ(Text(), L"ab two");
    EXPECT_EQ(m_combo->GetCurSel(), 1);
    EXPECT_EQ(m_combo->m_curSel, 1);
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ComboTyping, AppendAndSuggestTogether)
{
    MakeTyping(XListCtrl::combo_auto_append | XListCtrl::combo_auto_suggest, m_fruit);
    ASSERT_TRUE(TypeUntil(L"a", [this] { return m_combo->GetDroppedState(); }));
    EXPECT_EQ(Text(), L"apple");
    EXPECT_EQ(m_combo->GetEditSel(), static_cast<DWORD>(MAKELONG(1, 5)));
    EXPECT_EQ(Offered(), (std::vector<std::wstring>{L"apple", L"apple pie", L"apple juice"}));
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"EDITUPDATE", "EDITCHANGE", "DROPDOWN"}));
}

TEST_F(ComboTyping, TextSetWithoutTheFocusIsNotCompleted)
{
    MakeCombo(CBS_DROPDOWN, m_fruit);
    m_combo->ModifyComboFlags(0, XListCtrl::combo_auto_append | XListCtrl::combo_auto_suggest);
    m_combo->SetWindowText(L"a");
    EXPECT_EQ(Text(), L"a");
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(m_host.TakeHeard(), (Heard{"EDITUPDATE", "EDITCHANGE"}));
}
