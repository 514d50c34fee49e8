// The cursor and what is selected of a recording.

#include <gtest/gtest.h>

#include "logic/TimeMarks.h"

namespace
{

using workbench::FrameRange;
using workbench::TimeMarks;
using workbench::TimeWindow;

FrameRange Range(std::uint64_t first, std::uint64_t end)
{
    return {first, end};
}

TEST(TimeMarks, TheSelectionReachesToTheCursorAndBeginsWhereThatWas)
{
    TimeMarks marks(1000);
    EXPECT_FALSE(marks.HasSelection());
    marks.cursor = 100;
    marks.SelectTo(300);
    EXPECT_EQ(marks.Selection(), Range(100, 300));
    marks.SelectTo(50);
    EXPECT_EQ(marks.Selection(), Range(50, 100));
    EXPECT_EQ(marks.cursor, 50U);
    marks.Unselect();
    EXPECT_FALSE(marks.HasSelection());
    EXPECT_EQ(marks.Selection(), Range(50, 50));
}

TEST(TimeMarks, TheSelectionStaysWhereTheCursorMovesAlone)
{
    TimeMarks marks(1000);
    marks.cursor = 100;
    marks.SelectTo(300);
    for (unsigned int const frame : {700U, 100U, 300U, 200U})
    {
        marks.MoveCursorAlone(frame);
        EXPECT_EQ(marks.cursor, frame);
        EXPECT_EQ(marks.Selection(), Range(100, 300)) << frame;
    }
    // It goes on from where it began.
    marks.SelectTo(150);
    EXPECT_EQ(marks.Selection(), Range(100, 150));
    marks.MoveCursorAlone(500);
    marks.Unselect();
    EXPECT_FALSE(marks.HasSelection());
}

TEST(TimeMarks, WithoutASelectionTheCursorTakesNoneAlong)
{
    TimeMarks marks(1000);
    marks.cursor = 100;
    marks.SelectTo(100);
    marks.MoveCursorAlone(400);
    EXPECT_FALSE(marks.HasSelection());
    marks.SelectTo(450);
    EXPECT_EQ(marks.Selection(), Range(400, 450));
}

TEST(TimeMarks, WhatComesIntoSightHasSomethingAroundIt)
{
    TimeWindow window(1000);
    window.Show({200, 300});
    window.Reveal(299, 0.1);
    EXPECT_EQ(window.Shown(), Range(200, 300)) << "it was in sight";
    window.Reveal(300, 0.1);
    EXPECT_EQ(window.Shown(), Range(211, 311));
    window.Reveal(100, 0.1);
    EXPECT_EQ(window.Shown(), Range(90, 190));
    window.Reveal(2, 0.1);
    EXPECT_EQ(window.Shown(), Range(0, 100)) << "the recording ends there";
    window.Reveal(5000, 0.1);
    EXPECT_EQ(window.Shown(), Range(900, 1000));
}

} // namespace
