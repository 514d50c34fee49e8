// Zooming and scrolling of a plot over time, as arithmetic.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "logic/TimeWindow.h"

namespace
{

using namespace workbench;

FrameRange Range(std::uint64_t first, std::uint64_t end)
{
    return {first, end};
}

TEST(TimeWindow, ShowsAllAtFirst)
{
    TimeWindow const window(1000);
    EXPECT_EQ(window.Shown(), Range(0, 1000));
    EXPECT_TRUE(window.ShowsAll());
}

TEST(TimeWindow, OfNothingStaysEmpty)
{
    TimeWindow window;
    window.Zoom(0.5, 0.5);
    window.Scroll(1.0);
    window.Reveal(7);
    window.Show({3, 9});
    EXPECT_EQ(window.Shown(), Range(0, 0));
    EXPECT_EQ(window.FrameAt(10, 100), 0U);
    EXPECT_EQ(window.XOf(10, 100), 0);
}

TEST(TimeWindow, ZoomKeepsWhatLiesUnderThePointer)
{
    TimeWindow window(100000);
    window.Zoom(0.5, 0.25);
    EXPECT_EQ(window.Shown(), Range(12500, 62500));
    window.Zoom(0.1, 1.0);
    EXPECT_EQ(window.Shown(), Range(57500, 62500));
    window.Zoom(0.5, 0.0);
    EXPECT_EQ(window.Shown(), Range(57500, 60000));
    window.Zoom(2.0, 0.0);
    EXPECT_EQ(window.Shown(), Range(57500, 62500));
}

TEST(TimeWindow, ZoomStopsAtTheEndsAndAtTheLeastLength)
{
    TimeWindow window(100000);
    window.Zoom(1e-9, 0.5);
    EXPECT_EQ(window.Shown().Length(), TimeWindow::least_frames);
    window.Zoom(1e30, 0.5);
    EXPECT_TRUE(window.ShowsAll());
    window.Show({99000, 100000});
    window.Zoom(4.0, 1.0);
    EXPECT_EQ(window.Shown(), Range(96000, 100000));
    window.Zoom(2.0, 0.0);
    EXPECT_EQ(window.Shown(), Range(92000, 100000)) << "beyond the end there is nothing";
}

TEST(TimeWindow, ZoomWithoutSenseDoesNothing)
{
    TimeWindow window(1000);
    window.Show({100, 300});
    for (double const factor : {0.0, -1.0, std::numeric_limits<double>::infinity(), std::nan("")})
        window.Zoom(factor, 0.5);
    window.Scroll(std::nan(""));
    window.Scroll(std::numeric_limits<double>::infinity());
    EXPECT_EQ(window.Shown(), Range(100, 300));
}

TEST(TimeWindow, ShortRecordingsAreShownWhole)
{
    TimeWindow window(5);
    window.Zoom(0.1, 0.5);
    EXPECT_TRUE(window.ShowsAll());
    window.Show({2, 3});
    EXPECT_TRUE(window.ShowsAll());
}

TEST(TimeWindow, ShowTakesEitherOrderAndGrowsWhatIsTooShort)
{
    TimeWindow window(1000);
    window.Show({700, 200});
    EXPECT_EQ(window.Shown(), Range(200, 700));
    window.Show({500, 500});
    EXPECT_EQ(window.Shown(), Range(492, 508));
    window.Show({0, 1});
    EXPECT_EQ(window.Shown(), Range(0, 16));
    window.Show({5000, 6000});
    EXPECT_EQ(window.Shown().end, 1000U);
}

TEST(TimeWindow, ScrollMovesByAPartAndAtLeastOneFrame)
{
    TimeWindow window(1000);
    window.Show({100, 300});
    window.Scroll(0.5);
    EXPECT_EQ(window.Shown(), Range(200, 400));
    window.Scroll(-0.25);
    EXPECT_EQ(window.Shown(), Range(150, 350));
    window.Scroll(1e-6);
    EXPECT_EQ(window.Shown(), Range(151, 351));
    window.Scroll(-1e-6);
    EXPECT_EQ(window.Shown(), Range(150, 350));
    window.Scroll(100);
    EXPECT_EQ(window.Shown(), Range(800, 1000));
    window.Scroll(-100);
    EXPECT_EQ(window.Shown(), Range(0, 200));
}

TEST(TimeWindow, RevealMovesNoFurtherThanNeeded)
{
    TimeWindow window(1000);
    window.Show({100, 300});
    window.Reveal(299);
    EXPECT_EQ(window.Shown(), Range(100, 300));
    window.Reveal(300);
    EXPECT_EQ(window.Shown(), Range(101, 301));
    window.Reveal(50);
    EXPECT_EQ(window.Shown(), Range(50, 250));
    window.Reveal(5000);
    EXPECT_EQ(window.Shown(), Range(800, 1000));
}

TEST(TimeWindow, FramesAndPixelsAgree)
{
    TimeWindow window(1000000);
    window.Show({1000, 1800});
    EXPECT_EQ(window.FrameAt(0, 400), 1000U);
    EXPECT_EQ(window.FrameAt(200, 400), 1400U);
    EXPECT_EQ(window.FrameAt(400, 400), 1799U);
    EXPECT_EQ(window.FrameAt(-5, 400), 1000U);
    EXPECT_EQ(window.FrameAt(500, 400), 1799U);
    EXPECT_EQ(window.FrameAt(5, 0), 1000U);
    EXPECT_EQ(window.XOf(1000, 400), 0);
    EXPECT_EQ(window.XOf(1400, 400), 200);
    EXPECT_EQ(window.XOf(999, 400), -1);
    EXPECT_EQ(window.XOf(1800, 400), 400);
    EXPECT_EQ(window.XOf(900000, 400), 400);
    EXPECT_EQ(window.XOf(0, 400), -1);
    for (int x = 0; x < 400; ++x)
        EXPECT_EQ(window.XOf(window.FrameAt(x, 400), 400), x);
    for (int x = 0; x < 333; ++x)
        EXPECT_EQ(window.XOf(window.FrameAt(x, 333), 333), x);
    // Fewer frames than pixels: a frame stands at the first of its own.
    window.Show({1000, 1016});
    EXPECT_EQ(window.FrameAt(24, 400), 1000U);
    EXPECT_EQ(window.FrameAt(25, 400), 1001U);
    EXPECT_EQ(window.XOf(1001, 400), 25);
    EXPECT_EQ(window.XOf(1015, 400), 375);
}

TEST(TimeWindow, StaysInTheRecordingWhateverHappens)
{
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> number(-3.0, 3.0);
    for (std::uint64_t const frames : {1ULL, 17ULL, 48000ULL, 172800000ULL, 1ULL << 50})
    {
        TimeWindow window(frames);
        for (int step = 0; step < 5000; ++step)
        {
            switch (random() % 4)
            {
            case 0:
                window.Zoom(std::exp(number(random)), number(random));
                break;
            case 1:
                window.Scroll(number(random));
                break;
            case 2:
                window.Reveal(random() % (2 * frames));
                ASSERT_TRUE(window.Shown().Length() > 0);
                break;
            default:
                window.Show({random() % (2 * frames), random() % (2 * frames)});
                break;
            }
            FrameRange const shown = window.Shown();
            ASSERT_LE(shown.end, frames);
            ASSERT_GE(shown.Length(), std::min(TimeWindow::least_frames, frames)) << frames << ' ' << step;
        }
    }
}

} // namespace
