// The counts and sums over all recordings, changed line by line, against sums made afresh.

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "logic/RecordingTotals.h"

namespace
{

using workbench::RecordingTotals;
using State = RecordingTotals::State;

TEST(RecordingTotals, CountWhatIsCheckedAndUnreadable)
{
    RecordingTotals totals;
    totals.Append(true);
    totals.Append(false);
    totals.Append(true);
    EXPECT_EQ(totals.Lines(), 3U);
    EXPECT_EQ(totals.Checked(), 2U);
    EXPECT_EQ(totals.CheckedMilliseconds(), 0U);
    totals.SetState(0, State::readable, 1500);
    totals.SetState(1, State::readable, 20);
    EXPECT_EQ(totals.CheckedMilliseconds(), 1500U);
    totals.SetChecked(1, true);
    EXPECT_EQ(totals.CheckedMilliseconds(), 1520U);
    totals.SetState(2, State::unreadable, 0);
    EXPECT_EQ(totals.Unreadable(), 1U);
    EXPECT_EQ(totals.Checked(), 2U);
    totals.SetChecked(2, true);
    EXPECT_FALSE(totals.IsChecked(2));
    EXPECT_EQ(totals.Checked(), 2U);
    totals.SetState(2, State::unread, 0);
    EXPECT_EQ(totals.Unreadable(), 0U);
    totals.Clear();
    EXPECT_EQ(totals.Lines(), 0U);
    EXPECT_EQ(totals.Checked(), 0U);
    EXPECT_EQ(totals.CheckedMilliseconds(), 0U);
}

TEST(RecordingTotals, IgnoreLinesThatDoNotExist)
{
    RecordingTotals totals;
    totals.SetChecked(0, true);
    totals.SetState(0, State::unreadable, 5);
    EXPECT_EQ(totals.Checked(), 0U);
    EXPECT_EQ(totals.Unreadable(), 0U);
    EXPECT_FALSE(totals.IsChecked(7));
    EXPECT_EQ(totals.StateOf(7), State::unread);
}

TEST(RecordingTotals, AreTheSumsMadeAfresh)
{
    struct Line
    {
        State state = State::unread;
        bool checked = false;
        std::uint64_t milliseconds = 0;
    };
    std::mt19937 random(1);
    RecordingTotals totals;
    std::vector<Line> lines(40);
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        totals.Append(false);
    }
    for (int step = 0; step < 2000; ++step)
    {
        std::size_t const which = random() % lines.size();
        Line & line = lines[which];
        if (random() % 2 == 0)
        {
            bool const checked = random() % 2 == 0;
            totals.SetChecked(which, checked);
            line.checked = checked && line.state != State::unreadable;
        }
        else
        {
            line.state = static_cast<State>(random() % 3);
            line.milliseconds = random() % 100000;
            line.checked = line.checked && line.state != State::unreadable;
            totals.SetState(which, line.state, line.milliseconds);
        }
        std::size_t checked = 0;
        std::size_t unreadable = 0;
        std::uint64_t milliseconds = 0;
        for (Line const & other : lines)
        {
            checked += other.checked ? 1 : 0;
            unreadable += other.state == State::unreadable ? 1 : 0;
            milliseconds += other.checked ? other.milliseconds : 0;
        }
        ASSERT_EQ(totals.Checked(), checked);
        ASSERT_EQ(totals.Unreadable(), unreadable);
        ASSERT_EQ(totals.CheckedMilliseconds(), milliseconds);
    }
}

} // namespace
