// Undoing and doing again what the user did to the list of recordings.

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "logic/ListHistory.h"

using namespace workbench;

namespace
{
RecordingNotes Rated(int rating)
{
    RecordingNotes notes;
    notes.rating = rating;
    return notes;
}

/// Notes and order of a list.
struct Model
{
    std::vector<RecordingNotes> notes;
    ListOrder order;

    bool operator==(Model const &) const = default;

    void Apply(ListStep const & step)
    {
        for (NotesChange const & change : step.notes)
        {
            auto & present = notes[static_cast<std::size_t>(change.line)];
            EXPECT_EQ(present, change.before);
            present = change.after;
        }
        if (step.order)
        {
            EXPECT_EQ(order, step.order->before);
            order = step.order->after;
        }
    }
};
} // namespace

TEST(ListHistorySteps, AGestureIsOneStep)
{
    ListHistory history;
    EXPECT_FALSE(history.CanUndo());
    history.Note(1, Rated(0), Rated(2));
    history.Note(2, Rated(0), Rated(2));
    history.Note(1, Rated(2), Rated(3));
    history.EndStep();
    EXPECT_TRUE(history.CanUndo());
    EXPECT_FALSE(history.CanRedo());
    std::optional<ListStep> const undo = history.Undo();
    ASSERT_TRUE(undo);
    EXPECT_EQ(undo->notes, (std::vector<NotesChange>{{1, Rated(3), Rated(0)}, {2, Rated(2), Rated(0)}}));
    EXPECT_FALSE(history.Undo());
    EXPECT_TRUE(history.CanRedo());
    std::optional<ListStep> const redo = history.Redo();
    ASSERT_TRUE(redo);
    EXPECT_EQ(redo->notes, (std::vector<NotesChange>{{1, Rated(0), Rated(3)}, {2, Rated(0), Rated(2)}}));
    EXPECT_FALSE(history.Redo());
}

TEST(ListHistorySteps, WhatChangesNothingIsNone)
{
    ListHistory history;
    history.Note(1, Rated(0), Rated(2));
    history.EndStep();
    history.Undo();
    history.Note(1, Rated(0), Rated(1));
    history.Note(1, Rated(1), Rated(0));
    history.NoteOrder({}, {});
    history.EndStep();
    EXPECT_FALSE(history.CanUndo());
    EXPECT_TRUE(history.CanRedo()) << "nothing has happened since";
}

TEST(ListHistorySteps, SomethingNewEndsWhatCouldBeDoneAgain)
{
    ListHistory history;
    history.Note(1, Rated(0), Rated(2));
    history.EndStep();
    history.Undo();
    history.Note(1, Rated(0), Rated(1));
    EXPECT_FALSE(history.Redo());
    EXPECT_TRUE(history.CanUndo());
}

TEST(ListHistorySteps, TheOldestAreForgotten)
{
    ListHistory history;
    for (std::size_t i = 0; i < ListHistory::most_steps + 5; ++i)
    {
        history.Note(0, Rated(static_cast<int>(i)), Rated(static_cast<int>(i) + 1));
        history.EndStep();
    }
    std::size_t undone = 0;
    while (history.Undo())
    {
        ++undone;
    }
    EXPECT_EQ(undone, ListHistory::most_steps);
}

TEST(ListHistorySteps, AStepThatIsTooLargeIsStillUndone)
{
    ListHistory history;
    history.Note(0, Rated(0), Rated(1));
    history.EndStep();
    for (int line = 0; line <= static_cast<int>(ListHistory::most_changes); ++line)
    {
        history.Note(line, Rated(1), Rated(2));
    }
    std::optional<ListStep> const undo = history.Undo();
    ASSERT_TRUE(undo);
    EXPECT_EQ(undo->notes.size(), ListHistory::most_changes + 1);
    EXPECT_FALSE(history.CanUndo());
}

TEST(ListHistoryWalk, LeadsThroughTheStatesOfAPlainModel)
{
    std::mt19937 random(5); // NOLINT: the same walk each time
    constexpr int lines = 12;
    Model model;
    model.notes.resize(lines);
    model.order.lines.resize(lines);
    std::iota(model.order.lines.begin(), model.order.lines.end(), 0);
    ListHistory history;
    std::vector<Model> states{model}; // of which `at` is the present one
    std::size_t at = 0;
    auto const pick = [&random](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    for (int i = 0; i < 5000; ++i)
    {
        int const what = pick(10);
        if (what < 3)
        {
            std::optional<ListStep> const step = history.Undo();
            // No more than most_steps are kept, and no walk back is that long.
            ASSERT_EQ(step.has_value(), at > 0);
            if (step)
            {
                model.Apply(*step);
                --at;
            }
        }
        else if (what < 5)
        {
            std::optional<ListStep> const step = history.Redo();
            ASSERT_EQ(step.has_value(), at + 1 < states.size());
            if (step)
            {
                model.Apply(*step);
                ++at;
            }
        }
        else
        {
            Model const before = model;
            for (int changes = pick(4); changes > 0; --changes)
            {
                int const line = pick(lines);
                RecordingNotes & notes = model.notes[static_cast<std::size_t>(line)];
                RecordingNotes const old = notes;
                notes.checked = pick(2) == 0;
                notes.rating = pick(3);
                notes.comment = std::wstring(static_cast<std::size_t>(pick(2)), L'x');
                history.Note(line, old, notes);
            }
            if (pick(3) == 0)
            {
                ListOrder const old = model.order;
                std::ranges::shuffle(model.order.lines, random);
                model.order.column = pick(4) - 1;
                history.NoteOrder(old, model.order);
            }
            history.EndStep();
            if (model != before)
            {
                states.resize(at + 1);
                states.push_back(model);
                ++at;
                if (at > ListHistory::most_steps)
                {
                    states.erase(states.begin());
                    --at;
                }
            }
        }
        ASSERT_EQ(model, states[at]) << i;
    }
}
