// Opening, choosing and closing with real mouse and keyboard, and what the parent hears of it.

#include "combo_ComboTest.h"

#include <algorithm>

using namespace combo_test;

namespace
{
class ComboChoice : public ComboTest
{
};
} // namespace

TEST_F(ComboChoice, PressOpensAndReleaseOnAnItemChooses)
{
    MakeCombo();
    tests::Click(ComboPoint());
    ASSERT_TRUE(WaitOpen());
    tests::PumpPosted();
    EXPECT_EQ(m_parent.TakeHeard(), (Heard{"SETFOCUS", "DROPDOWN"}));

    tests::Click(RowPoint(3));
    ASSERT_TRUE(WaitHeard("complete"));
    EXPECT_EQ(m_parent.TakeHeard(), (Heard{"SELENDOK", "CLOSEUP", "SELCHANGE", "complete"}));
    EXPECT_EQ(m_combo->GetCurSel(), 3);
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(::GetCapture(), nullptr);
}
