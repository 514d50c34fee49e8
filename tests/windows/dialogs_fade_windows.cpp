// Fades and transparency of real dialogs, read from their layered attributes after each tick.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <vector>

#include "dialogs_Dialog3dTest.h"
#include "MessageRecorder.h"

using namespace dialog_tests;

namespace
{
constexpr int opaque = 255;

class Dialog3dFade : public DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        ASSERT_NE(m_dialog.DisplayDialog(), 0);
        tests::PumpPosted();
    }
    bool IsLayered() const { return (m_dialog.GetExStyle() & WS_EX_LAYERED) != 0; }
    bool PumpToTick(size_t ticks)
    {
        return tests::PumpUntil([&] { return m_dialog.m_alphas.size() >= ticks; });
    }

    TestDialog m_dialog;
};
} // namespace

TEST_F(Dialog3dFade, TheTimerEndsOneTickAfterTheTarget)
{
    m_dialog.Ueberblenden(128, 200);
    EXPECT_EQ(m_dialog.ShownAlpha(), opaque) << "nothing before the first tick";
    EXPECT_TRUE(m_dialog.FinishFade());
    EXPECT_EQ(m_dialog.m_alphas, (std::vector<int>{240, 225, 210, 195, 180, 165, 150, 135, 128, 128}));
    EXPECT_FALSE(m_dialog.KillTimer(fade_timer)) << "it is gone";
    COLORREF key = 0;
    BYTE alpha = 0;
    DWORD flags = 0;
    EXPECT_TRUE(::GetLayeredWindowAttributes(m_dialog.m_hWnd, &key, &alpha, &flags));
    EXPECT_EQ(alpha, 128);
    EXPECT_EQ(flags, static_cast<DWORD>(LWA_ALPHA));
    EXPECT_EQ(m_dialog.DefaultedCount(WM_TIMER), 9) << "the last tick does not reach the base handler";
}

TEST_F(Dialog3dFade, ATickTakesTwentyFiveMilliseconds)
{
    ULONGLONG const start = ::GetTickCount64();
    m_dialog.Ueberblenden(55, 500);
    ASSERT_TRUE(PumpToTick(20));
    ULONGLONG const time = ::GetTickCount64() - start;
    EXPECT_GE(time, 20u * 20);
    EXPECT_EQ(m_dialog.m_alphas.back(), 55);
}

TEST_F(Dialog3dFade, TheTargetIsBroughtIntoRange)
{
    m_dialog.Ueberblenden(300, 100);
    EXPECT_FALSE(m_dialog.KillTimer(fade_timer)) << "no timer was started";
    m_dialog.Ueberblenden(-5, 100);
    EXPECT_TRUE(m_dialog.FinishFade());
    EXPECT_EQ(m_dialog.m_alphas, (std::vector<int>{192, 129, 66, 3, 0, 0}));
}

TEST_F(Dialog3dFade, AChangeSmallerThanTheStepsStopsAtTheFirstTick)
{
    m_dialog.Ueberblenden(250, 1000);
    EXPECT_TRUE(m_dialog.FinishFade());
    EXPECT_EQ(m_dialog.m_alphas, std::vector<int>{opaque});
    EXPECT_FALSE(IsLayered());
    EXPECT_FALSE(m_dialog.KillTimer(fade_timer));
}

TEST_F(Dialog3dFade, ReachingOpaqueEndsTheLayeredStyle)
{
    m_dialog.DurchsichtigkeitSetzen(100);
    EXPECT_TRUE(IsLayered());
    m_dialog.Einblenden(100);
    EXPECT_TRUE(PumpToTick(3));
    EXPECT_TRUE(IsLayered());
    EXPECT_TRUE(m_dialog.FinishFade());
    EXPECT_EQ(m_dialog.m_alphas, (std::vector<int>{138, 176, 214, 252, 255, 255}));
    EXPECT_FALSE(IsLayered());
}

TEST_F(Dialog3dFade, FadingOutEndsAtNothing)
{
    m_dialog.Ausblenden(100);
    EXPECT_TRUE(m_dialog.FinishFade());
    EXPECT_EQ(m_dialog.ShownAlpha(), 0);
    EXPECT_TRUE(m_dialog.IsWindowVisible()) << "a window of alpha 0 still shows";
}

TEST_F(Dialog3dFade, ANewFadeGoesOnFromThePresentAlpha)
{
    m_dialog.Ausblenden(250);
    ASSERT_TRUE(PumpToTick(4));
    ASSERT_EQ(m_dialog.m_alphas, (std::vector<int>{230, 205, 180, 155}));
    m_dialog.Einblenden(100);
    EXPECT_EQ(m_dialog.ShownAlpha(), 155);
    EXPECT_TRUE(m_dialog.FinishFade());
    EXPECT_EQ(m_dialog.m_alphas, (std::vector<int>{230, 205, 180, 155, 180, 205, 230, 255, 255}));
}

TEST_F(Dialog3dFade, AnAlphaIsSetAtOnce)
{
    m_dialog.DurchsichtigkeitSetzen(77);
    EXPECT_EQ(m_dialog.ShownAlpha(), 77);
    m_dialog.DurchsichtigkeitSetzen(0);
    EXPECT_EQ(m_dialog.ShownAlpha(), 0);
    DWORD const others = m_dialog.GetExStyle() & ~static_cast<DWORD>(WS_EX_LAYERED);
    m_dialog.DurchsichtigkeitSetzen(255);
    EXPECT_FALSE(IsLayered());
    EXPECT_EQ(m_dialog.GetExStyle(), others);
    EXPECT_TRUE(m_dialog.m_alphas.empty());
}

TEST_F(Dialog3dFade, ATimerOfAnotherNumberIsATickWhileAFadeRuns)
{
    m_dialog.Ueberblenden(155, 100);
    m_dialog.KillTimer(fade_timer);
    m_dialog.SendMessage(WM_TIMER, 5, 0);
    EXPECT_EQ(m_dialog.m_alphas, std::vector<int>{230});
    EXPECT_EQ(m_dialog.DefaultedCount(WM_TIMER), 1);
    for (int tick = 0; tick < 3; ++tick)
        m_dialog.SendMessage(WM_TIMER, 5, 0);
    EXPECT_EQ(m_dialog.ShownAlpha(), 155);
    EXPECT_EQ(m_dialog.DefaultedCount(WM_TIMER), 4);
}

TEST_F(Dialog3dFade, ATimerOfAnotherNumberIsSwallowedWhileNoFadeRuns)
{
    m_dialog.SendMessage(WM_TIMER, 5, 0);
    EXPECT_EQ(m_dialog.ShownAlpha(), opaque);
    EXPECT_EQ(m_dialog.DefaultedCount(WM_TIMER), 0);
}

TEST_F(Dialog3dFade, LessThanOneTickTakesOneTick)
{
    m_dialog.Ueberblenden(40, 10);
    EXPECT_TRUE(m_dialog.FinishFade());
    EXPECT_EQ(m_dialog.m_alphas, (std::vector<int>{40, 40}));
}

TEST_F(Dialog3dFade, AClosedDialogTakesRequestsWithoutAWindow)
{
    TestDialog closed;
    closed.DurchsichtigkeitSetzen(20);
    closed.Einblenden(200);
    closed.DurchsichtigkeitBeiInaktiv(255);
    closed.DurchsichtigkeitBeiInaktiv(100);
    EXPECT_FALSE(closed.IsOpen());
}

TEST_F(Dialog3dFade, ADerivedClassCanFadeInWhenItIsCreated)
{
    TestDialog dialog;
    EXPECT_FALSE(dialog.m_fadeInOnCreate);
    dialog.m_fadeInOnCreate = true;
    int first = -1;
    dialog.m_onInit = [&] { first = dialog.ShownAlpha(); };
    ASSERT_NE(dialog.DisplayDialog(), 0);
    EXPECT_EQ(first, 0);
    EXPECT_TRUE(dialog.FinishFade());
    EXPECT_EQ(dialog.m_alphas, (std::vector<int>{31, 62, 93, 124, 155, 186, 217, 248, 255, 255}));
}

// --- Transparency while inactive ---

TEST_F(Dialog3dFade, AnInactiveDialogFadesAndAnActiveOneIsOpaque)
{
    tests::ScopedWindow other(CRect(600, 400, 800, 500));
    ASSERT_TRUE(tests::BringToFront(m_dialog));
    m_dialog.DurchsichtigkeitBeiInaktiv(95);
    EXPECT_EQ(m_dialog.ShownAlpha(), opaque);
    ASSERT_TRUE(tests::BringToFront(other));
    EXPECT_TRUE(m_dialog.FinishFade());
    EXPECT_EQ(m_dialog.m_alphas, (std::vector<int>{235, 215, 195, 175, 155, 135, 115, 95, 95}));
    ASSERT_TRUE(tests::BringToFront(m_dialog));
    EXPECT_EQ(m_dialog.ShownAlpha(), opaque);
    EXPECT_FALSE(IsLayered());
    EXPECT_FALSE(m_dialog.KillTimer(fade_timer)) << "the fade had ended before the activation";
}

TEST_F(Dialog3dFade, AFadeThatRunsGoesOnAfterActivation)
{
    tests::ScopedWindow other(CRect(600, 400, 800, 500));
    ASSERT_TRUE(tests::BringToFront(m_dialog));
    m_dialog.DurchsichtigkeitBeiInaktiv(95);
    tests::MessageRecorder recorder({WM_ACTIVATE, WM_TIMER});
    recorder.Watch(m_dialog.m_hWnd, "dialog");
    m_dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE, 0);
    ASSERT_TRUE(PumpToTick(3));
    EXPECT_EQ(m_dialog.ShownAlpha(), 195);
    m_dialog.SendMessage(WM_ACTIVATE, WA_ACTIVE, 0);
    EXPECT_EQ(m_dialog.ShownAlpha(), opaque);
    EXPECT_TRUE(m_dialog.FinishFade());
    EXPECT_EQ(m_dialog.m_alphas, (std::vector<int>{235, 215, 195, 235, 215, 195, 175, 155, 135, 115, 95, 95}))
        << "from opaque toward the old target, though the dialog is active";

    std::vector<tests::ExpectedMessage> expected{{"dialog", WM_ACTIVATE, tests::Way::sent, WA_INACTIVE}};
    for (int tick = 0; tick < 3; ++tick)
        expected.push_back({"dialog", WM_TIMER, tests::Way::posted, fade_timer});
    expected.push_back({"dialog", WM_ACTIVATE, tests::Way::sent, WA_ACTIVE});
    for (int tick = 0; tick < 9; ++tick)
        expected.push_back({"dialog", WM_TIMER, tests::Way::posted, fade_timer});
    EXPECT_TRUE(recorder.Matches(expected));
}

TEST_F(Dialog3dFade, RealActivationDuringAFadeCarriesOnFromOpaque)
{
    tests::ScopedWindow other(CRect(600, 400, 800, 500));
    ASSERT_TRUE(tests::BringToFront(m_dialog));
    m_dialog.DurchsichtigkeitBeiInaktiv(95);
    ::SetActiveWindow(other);
    ASSERT_TRUE(PumpToTick(2));
    EXPECT_EQ(m_dialog.ShownAlpha(), 215);
    ::SetActiveWindow(m_dialog);
    EXPECT_EQ(m_dialog.ShownAlpha(), opaque);
    EXPECT_TRUE(m_dialog.FinishFade());
    EXPECT_EQ(m_dialog.ShownAlpha(), 95);
    EXPECT_EQ(::GetActiveWindow(), m_dialog.m_hWnd);
}

TEST_F(Dialog3dFade, AClickActivationMakesOpaqueToo)
{
    m_dialog.DurchsichtigkeitBeiInaktiv(95);
    m_dialog.DurchsichtigkeitSetzen(95);
    m_dialog.SendMessage(WM_ACTIVATE, WA_CLICKACTIVE, 0);
    EXPECT_EQ(m_dialog.ShownAlpha(), opaque);
    EXPECT_GT(m_dialog.DefaultedCount(WM_ACTIVATE), 0) << "the base handler sees it";
}

TEST_F(Dialog3dFade, TurningTheTransparencyOffMakesOpaqueAtOnce)
{
    m_dialog.DurchsichtigkeitBeiInaktiv(95);
    m_dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE, 0);
    EXPECT_TRUE(m_dialog.FinishFade());
    ASSERT_EQ(m_dialog.ShownAlpha(), 95);
    m_dialog.DurchsichtigkeitBeiInaktiv(255);
    EXPECT_EQ(m_dialog.ShownAlpha(), opaque);
    EXPECT_FALSE(IsLayered());
    m_dialog.SendMessage(WM_ACTIVATE, WA_INACTIVE, 0);
    EXPECT_FALSE(m_dialog.KillTimer(fade_timer)) << "off";
}
