#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "colours/ControlColors.h"

namespace
{
using control_colors::ContrastOf;
using control_colors::MarkOn;
using control_colors::TextOn;

/// The colours of a system by their COLOR_ numbers.
using Scheme = std::array<COLORREF, 31>;

Scheme scheme_asked_for{};

COLORREF AskScheme(int number)
{
    return scheme_asked_for.at(static_cast<std::size_t>(number));
}

ControlColors HighContrastOf(Scheme const & scheme)
{
    scheme_asked_for = scheme;
    return control_colors::HighContrast(&AskScheme);
}

struct SchemeColors
{
    COLORREF window;
    COLORREF text;
    COLORREF selection;
    COLORREF selectionText;
    COLORREF face;
    COLORREF buttonText;
    COLORREF grey;
    COLORREF link;
};

Scheme MakeScheme(SchemeColors const & colors)
{
    Scheme scheme{};
    scheme.fill(colors.text);
    scheme[2] = colors.selection;
    scheme[3] = colors.window;
    scheme[5] = colors.window;
    scheme[8] = colors.text;
    scheme[13] = colors.selection;
    scheme[14] = colors.selectionText;
    scheme[15] = colors.face;
    scheme[17] = colors.grey;
    scheme[18] = colors.buttonText;
    scheme[26] = colors.link;
    return scheme;
}

struct NamedScheme
{
    char const * name;
    SchemeColors colors;
};

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF yellow = RGB(255, 255, 0);
constexpr COLORREF lime = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF cyan = RGB(0, 255, 255);

// As systems have them. In the second one what is disabled is hardly read on its ground.
constexpr NamedScheme schemes[] = {
    {"yellow on black", {black, yellow, RGB(0, 128, 0), white, black, yellow, lime, cyan}},
    {"green on black", {black, lime, blue, white, black, lime, blue, cyan}},
    {"white on black", {black, white, RGB(26, 235, 255), black, black, white, RGB(63, 242, 63), yellow}},
    {"black on white", {white, black, RGB(55, 0, 110), white, white, black, RGB(96, 0, 0), RGB(0, 0, 159)}},
};

struct State
{
    std::string name;
    COLORREF text;
    COLORREF ground;
};

/// Marks of a check cell, as they are painted on its ground.
void AddMarks(std::vector<State> & states, std::string const & where, ControlColors const & colors, COLORREF ground,
              COLORREF text)
{
    states.push_back({"box" + where, MarkOn(ground, colors.checkFrame, text), ground});
    states.push_back({"tick" + where, MarkOn(ground, colors.checkMark, text), ground});
    states.push_back({"cross" + where, MarkOn(ground, colors.crossMark, text), ground});
    states.push_back({"disabled box" + where, MarkOn(ground, colors.disabled, text), ground});
    states.push_back({"combo's arrow" + where, MarkOn(ground, colors.comboArrow, text), ground});
}

std::vector<State> StatesOf(ControlColors const & colors)
{
    std::vector<State> states = {
        {"text", colors.windowText, colors.window},
        {"selected text", colors.selectionText, colors.selection},
        {"text selected without the focus", colors.windowText, colors.inactiveSelection},
        {"disabled text", colors.disabled, colors.inactiveSelection},
        {"disabled text on the window's ground", colors.disabled, colors.window},
        {"link", colors.link, colors.window},
        {"link selected without the focus", colors.link, colors.inactiveSelection},
        {"text on a trough", colors.windowText, colors.trough},
        {"disabled text on a trough", colors.disabled, colors.trough},
        {"text on a bar", colors.barText, colors.bar},
        {"text on a table's bar", colors.barText, colors.tableBar},
        {"title", colors.headerText, colors.headerFace},
        {"pressed title", colors.selectionText, colors.selection},
        {"sorted title's arrow", colors.headerArrow, colors.headerFace},
        {"mark of how far a table's work is", colors.headerBar, colors.headerFace},
        {"header's box", colors.checkFrame, colors.headerBox},
        {"header's tick", colors.checkMark, colors.headerBox},
        {"header's mixed mark", colors.headerMixed, colors.headerBox},
        {"header's cross", colors.crossMark, colors.headerBox},
        {"combo box", colors.buttonText, colors.window},
        {"disabled combo box", colors.disabled, colors.face},
        {"combo box with the focus", colors.selectionText, colors.selection},
        {"combo box's arrow", colors.buttonText, colors.face},
        {"combo box's disabled arrow", colors.disabled, colors.face},
        {"drop-down", colors.windowText, colors.window},
        {"in-place edit", colors.windowText, colors.window},
        {"read-only edit", colors.windowText, colors.inactiveSelection},
        {"edit's frame", colors.editFrame, colors.window},
        {"colour button", colors.buttonText, colors.face},
        {"disabled colour button", colors.buttonDisabled, colors.face},
        {"hot colour button", colors.buttonText, colors.face},
        {"radio button that is off", colors.checkFrame, colors.radioGround},
        {"focus", colors.windowText, colors.window},
        {"focus on a selection", colors.selectionText, colors.selection},
    };
    AddMarks(states, "", colors, colors.window, colors.windowText);
    AddMarks(states, " on a selection", colors, colors.selection, colors.selectionText);
    AddMarks(states, " on a selection without the focus", colors, colors.inactiveSelection, colors.windowText);
    AddMarks(states, " of a disabled cell", colors, colors.inactiveSelection, colors.disabled);
    return states;
}

void ExpectReadable(ControlColors const & colors)
{
    EXPECT_TRUE(colors.adapts);
    for (State const & state : StatesOf(colors))
        EXPECT_GE(ContrastOf(state.text, state.ground), control_colors::least_contrast) << state.name;
}
} // namespace

TEST(ControlColors, ContrastIsThatOfLuminances)
{
    EXPECT_NEAR(ContrastOf(black, white), 21, 1e-9);
    EXPECT_NEAR(ContrastOf(white, black), 21, 1e-9);
    EXPECT_NEAR(ContrastOf(lime, lime), 1, 1e-9);
    // As the guidelines' own examples have it.
    EXPECT_NEAR(ContrastOf(RGB(0x76, 0x76, 0x76), white), 4.54, 0.005);
    EXPECT_NEAR(ContrastOf(RGB(255, 0, 0), white), 4.0, 0.005);
}

TEST(ControlColors, MarkThatIsNotSeenGetsWhatIsSeenBetter)
{
    EXPECT_EQ(MarkOn(white, RGB(0, 100, 0), black), RGB(0, 100, 0));
    EXPECT_EQ(MarkOn(black, RGB(0, 60, 0), white), white);
    EXPECT_EQ(MarkOn(RGB(128, 128, 128), white, RGB(200, 200, 200)), white);
}

TEST(ControlColors, TextOfNobodysIsBlackOrWhiteWhereNeitherColourIsRead)
{
    COLORREF const dark = RGB(30, 30, 30);
    COLORREF const light = RGB(230, 230, 230);
    EXPECT_EQ(TextOn(white, light, dark), dark);
    EXPECT_EQ(TextOn(black, light, dark), light);
    EXPECT_EQ(TextOn(RGB(128, 128, 128), light, dark), black);
    EXPECT_EQ(TextOn(RGB(110, 110, 110), light, dark), white);
}

TEST(ControlColors, StandardSetHasTheSystemsColoursAndFixedMarks)
{
    for (std::size_t i = 0; i < scheme_asked_for.size(); ++i)
        scheme_asked_for[i] = static_cast<COLORREF>(1000 + i);
    ControlColors const colors = control_colors::Standard(&AskScheme);
    EXPECT_FALSE(colors.adapts);
    EXPECT_EQ(colors.window, 1005u);
    EXPECT_EQ(colors.windowText, 1008u);
    EXPECT_EQ(colors.selection, 1013u);
    EXPECT_EQ(colors.selectionText, 1014u);
    EXPECT_EQ(colors.inactiveSelection, 1015u);
    EXPECT_EQ(colors.disabled, 1017u);
    EXPECT_EQ(colors.face, 1015u);
    EXPECT_EQ(colors.buttonText, 1018u);
    EXPECT_EQ(colors.edgeHighlight, 1020u);
    EXPECT_EQ(colors.edgeShadow, 1016u);
    EXPECT_EQ(colors.edgeDark, 1021u);
    EXPECT_EQ(colors.edgeLight, 1022u);
    EXPECT_EQ(colors.activeCaption, 1002u);
    EXPECT_EQ(colors.inactiveCaption, 1003u);
    EXPECT_EQ(colors.inactiveCaptionText, 1019u);
    EXPECT_EQ(colors.bar, colors.selection);
    EXPECT_EQ(colors.tableBar, colors.activeCaption);
    EXPECT_EQ(colors.headerBox, colors.window);
    EXPECT_EQ(colors.checkFrame, 0x996633u);
    EXPECT_EQ(colors.checkMark, 0x339933u);
    EXPECT_EQ(colors.crossMark, 0x333399u);
    EXPECT_EQ(colors.headerMixed, 0x5AC05Au);
    EXPECT_EQ(colors.headerArrow, 0x996633u);
    EXPECT_EQ(colors.editFrame, 0x996633u);
    EXPECT_EQ(colors.trough, 0xE0E0E0u);
    EXPECT_EQ(colors.barText, 0xE0E0E0u);
    EXPECT_EQ(colors.troughFrame, black);
    EXPECT_EQ(colors.radioGround, white);
    EXPECT_EQ(colors.radioLight, RGB(150, 255, 150));
    EXPECT_EQ(colors.sliderMain, 0xC8B4B4u);
    EXPECT_EQ(colors.sliderSecond, colors.face);
}

TEST(ControlColors, DarkSetIsReadInEveryState)
{
    ExpectReadable(control_colors::Dark());
    EXPECT_LT(ContrastOf(control_colors::Dark().window, black), 1.5);
}

TEST(ControlColors, HighContrastIsReadInEveryStateOfUsualSchemes)
{
    for (NamedScheme const & scheme : schemes)
    {
        SCOPED_TRACE(scheme.name);
        ControlColors const colors = HighContrastOf(MakeScheme(scheme.colors));
        ExpectReadable(colors);
        EXPECT_EQ(colors.window, scheme.colors.window);
        EXPECT_EQ(colors.windowText, scheme.colors.text);
        EXPECT_EQ(colors.selection, scheme.colors.selection);
    }
}

TEST(ControlColors, HighContrastIsReadInEveryStateOfTheUsualColours)
{
    ExpectReadable(HighContrastOf(MakeScheme(
        {white, black, RGB(0, 120, 215), white, RGB(240, 240, 240), black, RGB(109, 109, 109), RGB(0, 102, 204)})));
}

TEST(ControlColors, SelectionWithoutTheFocusIsSeenInEverySet)
{
    EXPECT_NE(control_colors::Dark().inactiveSelection, control_colors::Dark().window);
    for (NamedScheme const & scheme : schemes)
    {
        ControlColors const colors = HighContrastOf(MakeScheme(scheme.colors));
        EXPECT_NE(colors.inactiveSelection, colors.window) << scheme.name;
    }
}

TEST(ControlColors, TextsAreMadeReadableInAnyScheme)
{
    constexpr unsigned int seed = 20;
    constexpr int rounds = 2000;
    std::mt19937 random(seed);
    std::uniform_int_distribution<COLORREF> any(0, white);
    for (int round = 0; round < rounds; ++round)
    {
        Scheme scheme{};
        for (COLORREF & color : scheme)
            color = any(random);
        ControlColors const colors = HighContrastOf(scheme);
        SCOPED_TRACE(round);
        for (State const & state : StatesOf(colors))
            ASSERT_GE(ContrastOf(state.text, state.ground), control_colors::least_contrast) << state.name;
    }
}
