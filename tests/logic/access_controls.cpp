// What programs that read the screen are told of the small controls.

#include <gtest/gtest.h>

#include <vector>

#include "access/AccessibleControls.h"

using accessible::Direction;
using accessible::Element;
using accessible::HeaderMark;
using accessible::Role;
namespace state = accessible::state;

TEST(AccessibleControls, CaptionsAreSpokenWithoutTheirMarks)
{
    struct
    {
        wchar_t const * caption;
        wchar_t const * spoken;
        wchar_t const * shortcut;
    } const captions[] = {
        {L"&Gain:", L"Gain", L"Alt+G"},
        {L"Sa&ve && close", L"Save & close", L"Alt+v"},
        {L"R&&D", L"R&D", L""},
        {L"&One &two", L"One two", L"Alt+O"},
        {L"end&", L"end", L""},
        {L"Level : ", L"Level", L""},
        {L"", L"", L""},
        {L"::", L"", L""},
    };
    for (auto const & each : captions)
    {
        accessible::Caption const caption = accessible::CaptionOf(each.caption);
        EXPECT_EQ(caption.text, each.spoken);
        EXPECT_EQ(caption.shortcut, each.shortcut) << "of " << testing::PrintToString(caption.text);
    }
}

TEST(AccessibleControls, AreNamedByLabelOrText)
{
    accessible::ControlFacts facts;
    facts.label = L"&Peak:";
    facts.text = L"&Reset";
    EXPECT_EQ(accessible::DescribeControl(Role::slider, facts).name, L"Peak");
    EXPECT_EQ(accessible::DescribeButton(facts, false).name, L"Reset");
    EXPECT_EQ(accessible::DescribeButton(facts, false).shortcut, L"Alt+R");
    facts.text.clear();
    EXPECT_EQ(accessible::DescribeButton(facts, false).name, L"Peak");
    facts.label.clear();
    facts.text = L"C:\\";
    EXPECT_EQ(accessible::DescribeControl(Role::slider, facts).name, L"C:\\");
    // What stands in a field is its value, no name.
    EXPECT_EQ(accessible::DescribeField(facts, false).name, L"");
    EXPECT_EQ(accessible::DescribeField(facts, false).value, L"C:\\");
    EXPECT_EQ(accessible::DescribeCombo(facts, L"x", false).name, L"");
}

TEST(AccessibleControls, TellTheirStates)
{
    accessible::ControlFacts facts;
    EXPECT_EQ(accessible::DescribeButton(facts, false).states, state::focusable);
    EXPECT_EQ(accessible::DescribeButton(facts, true).states, state::focusable | state::pressed);
    facts.focused = true;
    EXPECT_EQ(accessible::DescribeField(facts, true).states, state::focusable | state::focused | state::read_only);
    EXPECT_EQ(accessible::DescribeReadOut(facts, L"1").states, state::read_only) << "it never has the focus";
    facts.focused = false;
    EXPECT_EQ(accessible::DescribeCombo(facts, L"", true).states,
              state::focusable | state::has_popup | state::expanded);
    EXPECT_EQ(accessible::DescribeCombo(facts, L"", false).states,
              state::focusable | state::has_popup | state::collapsed);
    facts.focusable = false;
    EXPECT_EQ(accessible::DescribeControl(Role::grouping, facts).states, 0);
    facts.focusable = true;
    facts.enabled = false;
    EXPECT_EQ(accessible::DescribeButton(facts, false).states, state::unavailable);
    EXPECT_EQ(accessible::DescribeButton(facts, false).action, L"");
    EXPECT_EQ(accessible::DescribeCombo(facts, L"", false).action, L"");
    EXPECT_EQ(accessible::DescribeReadOut(facts, L"1").states, state::read_only | state::unavailable);
}

TEST(AccessibleControls, SliderSpeaksWholePercent)
{
    accessible::ControlFacts const facts;
    EXPECT_EQ(accessible::DescribeSlider(facts, 0).value, L"0%");
    EXPECT_EQ(accessible::DescribeSlider(facts, 0.666).value, L"67%");
    EXPECT_EQ(accessible::DescribeSlider(facts, 1).value, L"100%");
    EXPECT_EQ(accessible::DescribeSlider(facts, -3).value, L"0%");
    EXPECT_EQ(accessible::DescribeSlider(facts, 7).value, L"100%");
}

TEST(AccessibleControls, ItemsTellWhatTheyAre)
{
    accessible::ItemFacts facts;
    facts.text = L"one";
    EXPECT_EQ(accessible::DescribeChoice(facts).role, Role::row);
    EXPECT_EQ(accessible::DescribeChoice(facts).action, L"Select");
    EXPECT_EQ(accessible::DescribeChoice(facts).states, state::selectable | state::focusable);
    EXPECT_EQ(accessible::DescribeTick(facts, true).action, L"Uncheck");
    EXPECT_EQ(accessible::DescribeTick(facts, true).states, state::selectable | state::focusable | state::checked);
    EXPECT_EQ(accessible::DescribeTick(facts, false).action, L"Check");
    facts.selected = true;
    facts.focused = true;
    facts.inSight = false;
    EXPECT_EQ(accessible::DescribeChoice(facts).states,
              state::selectable | state::focusable | state::selected | state::focused | state::offscreen);
    facts = {};
    facts.enabled = false;
    EXPECT_EQ(accessible::DescribeChoice(facts).action, L"");
    EXPECT_EQ(accessible::DescribeChoice(facts).states, state::selectable | state::focusable | state::unavailable);
}

TEST(AccessibleControls, ColumnsTellTheirMarks)
{
    accessible::ItemFacts const facts;
    EXPECT_EQ(accessible::DescribeColumn(facts, HeaderMark::none, true).states, 0);
    EXPECT_EQ(accessible::DescribeColumn(facts, HeaderMark::none, true).action, L"Press");
    EXPECT_EQ(accessible::DescribeColumn(facts, HeaderMark::none, false).action, L"");
    EXPECT_EQ(accessible::DescribeColumn(facts, HeaderMark::unchecked, true).states, 0);
    EXPECT_EQ(accessible::DescribeColumn(facts, HeaderMark::checked, true).states, state::checked);
    EXPECT_EQ(accessible::DescribeColumn(facts, HeaderMark::mixed, true).states, state::mixed);
    EXPECT_EQ(accessible::DescribeColumn(facts, HeaderMark::ascending, true).value, L"Ascending");
    EXPECT_EQ(accessible::DescribeColumn(facts, HeaderMark::descending, true).value, L"Descending");
}

TEST(AccessibleControls, ItemsAreWalkedTheWayTheyStand)
{
    struct
    {
        bool sideBySide;
        Element from;
        Direction direction;
        std::optional<Element> to;
    } const steps[] = {
        {false, {}, Direction::first_child, Element{0, -1}},
        {false, {}, Direction::last_child, Element{2, -1}},
        {false, {}, Direction::next, {}},
        {false, {1, -1}, Direction::next, Element{2, -1}},
        {false, {1, -1}, Direction::previous, Element{0, -1}},
        {false, {1, -1}, Direction::down, Element{2, -1}},
        {false, {1, -1}, Direction::up, Element{0, -1}},
        {false, {1, -1}, Direction::left, {}},
        {false, {2, -1}, Direction::down, {}},
        {false, {0, -1}, Direction::up, {}},
        {false, {1, -1}, Direction::first_child, {}},
        {true, {1, -1}, Direction::right, Element{2, -1}},
        {true, {1, -1}, Direction::left, Element{0, -1}},
        {true, {0, -1}, Direction::left, {}},
        {true, {1, -1}, Direction::down, {}},
    };
    for (auto const & step : steps)
    {
        EXPECT_EQ(accessible::Navigate({3, step.sideBySide}, step.from, step.direction), step.to)
            << step.sideBySide << ' ' << step.from.row << ' ' << static_cast<int>(step.direction);
    }
    EXPECT_FALSE(accessible::Navigate({0, false}, {}, Direction::first_child));
    EXPECT_TRUE(accessible::Exists({0, false}, {}));
    EXPECT_TRUE(accessible::Exists({3, false}, {2, -1}));
    EXPECT_FALSE(accessible::Exists({3, false}, {3, -1}));
    EXPECT_FALSE(accessible::Exists({3, false}, {1, 0})) << "items have no cells";
}
