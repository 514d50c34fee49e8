// The arithmetic of alpha fades.

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "dialogs/DialogFade.h"

namespace
{
/// Ticks until no fade runs, as a dialog does; the alphas shown on the way. At most 1,000 ticks.
std::vector<int> TickOut(CDialogFade & fade)
{
    std::vector<int> alphas;
    while (alphas.size() < 1000)
    {
        std::optional<std::uint8_t> const alpha = fade.Tick();
        if (!alpha)
            break;
        fade.SetAlpha(*alpha);
        alphas.push_back(*alpha);
    }
    return alphas;
}
} // namespace

TEST(DialogFade, BeginsOpaqueWithoutAFade)
{
    CDialogFade fade;
    EXPECT_EQ(fade.Alpha(), 255);
    EXPECT_EQ(fade.Target(), 0);
    EXPECT_EQ(fade.Step(), 0);
    EXPECT_FALSE(fade.Tick());
}

TEST(DialogFade, TheStepIsTruncatedAndTheLastTickLandsOnTheTarget)
{
    CDialogFade fade;
    EXPECT_TRUE(fade.Start(128, 200));
    EXPECT_EQ(fade.Step(), -15);
    EXPECT_EQ(fade.Target(), 128);
    EXPECT_EQ(TickOut(fade), (std::vector<int>{240, 225, 210, 195, 180, 165, 150, 135, 128}));
    EXPECT_EQ(fade.Step(), 0);
    EXPECT_FALSE(fade.Tick()) << "the ticks end one after the target";
}

TEST(DialogFade, UpwardsFromNothing)
{
    CDialogFade fade;
    fade.SetAlpha(0);
    EXPECT_TRUE(fade.Start(255, 200));
    EXPECT_EQ(fade.Step(), 31);
    EXPECT_EQ(TickOut(fade), (std::vector<int>{31, 62, 93, 124, 155, 186, 217, 248, 255}));
}

TEST(DialogFade, AStepThatDividesEvenlyNeedsNoExtraTick)
{
    CDialogFade fade;
    EXPECT_TRUE(fade.Start(55, 100));
    EXPECT_EQ(fade.Step(), -50);
    EXPECT_EQ(TickOut(fade), (std::vector<int>{205, 155, 105, 55}));
}

TEST(DialogFade, TheTargetIsBroughtIntoRange)
{
    CDialogFade fade;
    EXPECT_FALSE(fade.Start(300, 100)) << "already there";
    EXPECT_EQ(fade.Target(), 255);
    EXPECT_EQ(fade.Step(), 0);
    EXPECT_TRUE(fade.Start(-5, 100));
    EXPECT_EQ(fade.Target(), 0);
    EXPECT_EQ(fade.Step(), -63);
    EXPECT_EQ(TickOut(fade), (std::vector<int>{192, 129, 66, 3, 0}));
    EXPECT_TRUE(fade.Start(std::numeric_limits<int>::max(), 25));
    EXPECT_EQ(TickOut(fade), std::vector<int>{255});
    EXPECT_TRUE(fade.Start(std::numeric_limits<int>::min(), 25));
    EXPECT_EQ(TickOut(fade), std::vector<int>{0});
}

TEST(DialogFade, AChangeSmallerThanTheTicksEndsAtTheFirstTickUnchanged)
{
    CDialogFade fade;
    EXPECT_TRUE(fade.Start(250, 1000)) << "the ticks begin all the same";
    EXPECT_EQ(fade.Step(), 0);
    EXPECT_EQ(fade.Target(), 250);
    EXPECT_FALSE(fade.Tick());
    EXPECT_EQ(fade.Alpha(), 255);
    EXPECT_EQ(fade.Target(), 250);
}

TEST(DialogFade, AsManyUnitsAsTicksIsOneUnitATick)
{
    CDialogFade fade;
    EXPECT_TRUE(fade.Start(251, 100));
    EXPECT_EQ(fade.Step(), -1);
    EXPECT_EQ(TickOut(fade), (std::vector<int>{254, 253, 252, 251}));
}

TEST(DialogFade, ANewFadeGoesOnFromThePresentAlpha)
{
    CDialogFade fade;
    fade.Start(0, 250);
    EXPECT_EQ(fade.Step(), -25);
    for (int tick = 0; tick < 4; ++tick)
        fade.SetAlpha(*fade.Tick());
    EXPECT_EQ(fade.Alpha(), 155);
    EXPECT_TRUE(fade.Start(255, 100));
    EXPECT_EQ(fade.Step(), 25);
    EXPECT_EQ(TickOut(fade), (std::vector<int>{180, 205, 230, 255}));
}

TEST(DialogFade, ANewFadeToThePresentAlphaKeepsTheStepForOneTick)
{
    CDialogFade fade;
    fade.Start(0, 250);
    fade.SetAlpha(*fade.Tick());
    EXPECT_FALSE(fade.Start(230, 250));
    EXPECT_EQ(fade.Step(), -25);
    EXPECT_EQ(TickOut(fade), std::vector<int>{230});
}

TEST(DialogFade, AnAlphaSetFromOutsideIsCarriedOnTowardTheOldTarget)
{
    CDialogFade fade;
    fade.Start(100, 200);
    EXPECT_EQ(fade.Step(), -19);
    fade.SetAlpha(*fade.Tick());
    fade.SetAlpha(*fade.Tick());
    EXPECT_EQ(fade.Alpha(), 217);
    fade.SetAlpha(255);
    EXPECT_EQ(TickOut(fade), (std::vector<int>{236, 217, 198, 179, 160, 141, 122, 103, 100}));
}

TEST(DialogFade, AnAlphaSetBeyondTheTargetIsDrawnToTheTarget)
{
    CDialogFade fade;
    fade.Start(128, 200);
    fade.SetAlpha(10);
    EXPECT_EQ(TickOut(fade), std::vector<int>{128});
}

TEST(DialogFade, LessThanOneTickTakesOneTick)
{
    for (int const milliseconds : {0, 1, 24, -24})
    {
        CDialogFade fade;
        EXPECT_TRUE(fade.Start(128, milliseconds));
        EXPECT_EQ(TickOut(fade), std::vector<int>{128}) << milliseconds;
    }
    CDialogFade fade;
    EXPECT_FALSE(fade.Start(255, 0));
}

TEST(DialogFade, TicksAreWholePeriodsOf25Milliseconds)
{
    CDialogFade fade;
    EXPECT_TRUE(fade.Start(155, 49));
    EXPECT_EQ(fade.Step(), -100);
    EXPECT_TRUE(fade.Start(155, 50));
    EXPECT_EQ(fade.Step(), -50);
    EXPECT_TRUE(fade.Start(155, 74));
    EXPECT_EQ(fade.Step(), -50);
}

TEST(DialogFade, EveryFadeEndsOnItsTargetOrStaysWithinTheTruncation)
{
    for (int from = 0; from <= 255; from += 5)
    {
        for (int to = 0; to <= 255; to += 3)
        {
            for (int const milliseconds : {25, 100, 200, 1000, 7000})
            {
                CDialogFade fade;
                fade.SetAlpha(static_cast<std::uint8_t>(from));
                int const steps = milliseconds / 25;
                bool const started = fade.Start(to, milliseconds);
                ASSERT_EQ(started, from != to);
                std::vector<int> const alphas = TickOut(fade);
                int const step = (to - from) / steps;
                if (step == 0)
                {
                    ASSERT_TRUE(alphas.empty());
                    continue;
                }
                ASSERT_EQ(alphas.back(), to);
                int const ticks = ((to - from) + step - (step > 0 ? 1 : -1)) / step;
                ASSERT_EQ(static_cast<int>(alphas.size()), ticks) << from << " to " << to << " in " << milliseconds;
                for (std::size_t tick = 0; tick + 1 < alphas.size(); ++tick)
                    ASSERT_EQ(alphas[tick], from + step * static_cast<int>(tick + 1));
            }
        }
    }
}
