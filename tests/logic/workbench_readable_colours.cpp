// The colours of plots on the system's colours, light, dark and odd ones.

#include <gtest/gtest.h>

#include <random>

#include "logic/ReadableColours.h"

namespace
{

using workbench::ContrastRatio;
using workbench::PlotColoursOn;

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);

TEST(ReadableColours, ContrastIsThatOfTheLuminances)
{
    EXPECT_NEAR(ContrastRatio(black, white), 21.0, 1e-9);
    EXPECT_NEAR(ContrastRatio(white, black), 21.0, 1e-9);
    EXPECT_NEAR(ContrastRatio(white, white), 1.0, 1e-9);
    EXPECT_NEAR(ContrastRatio(RGB(119, 119, 119), white), 4.48, 0.005);
    EXPECT_NEAR(ContrastRatio(RGB(255, 0, 0), white), 4.00, 0.005);
}

TEST(ReadableColours, AColourThatCanBeReadStays)
{
    EXPECT_EQ(workbench::ReadableColour(RGB(168, 40, 32), white), static_cast<COLORREF>(RGB(168, 40, 32)));
    EXPECT_NE(workbench::ReadableColour(RGB(168, 40, 32), RGB(30, 30, 30)), static_cast<COLORREF>(RGB(168, 40, 32)));
}

TEST(ReadableColours, LabelsAndProblemsCanBeReadOnEveryGround)
{
    std::mt19937 random(1);
    std::uniform_int_distribution<COLORREF> colours(0, white);
    auto const check = [](COLORREF ground, COLORREF text) {
        workbench::PlotColours const plot = PlotColoursOn(ground, text);
        EXPECT_GE(ContrastRatio(plot.label, ground), 4.5) << std::hex << ground << ' ' << text;
        EXPECT_GE(ContrastRatio(plot.problem, ground), 4.5) << std::hex << ground << ' ' << text;
        EXPECT_EQ(plot.ground, ground);
        EXPECT_EQ(plot.text, text);
    };
    check(white, black);
    check(black, white);
    check(RGB(32, 32, 32), RGB(224, 224, 224));
    check(RGB(0, 0, 128), RGB(255, 255, 0));
    check(RGB(128, 128, 128), black);
    for (int i = 0; i < 5000; ++i)
    {
        check(colours(random), colours(random));
    }
}

TEST(ReadableColours, AChosenRowIsSeenAndSoAreItsMarks)
{
    constexpr COLORREF frame = RGB(51, 102, 153); // of check boxes and radio buttons
    for (COLORREF const ground : {white, RGB(255, 251, 240), black, RGB(32, 32, 32), RGB(64, 64, 64), RGB(0, 0, 128)})
    {
        // Of the selection and of faces, light and dark.
        for (COLORREF const colour : {RGB(0, 0, 128), RGB(10, 36, 106), RGB(0, 120, 215), RGB(212, 208, 200),
                                      RGB(240, 240, 240), RGB(60, 60, 60), black, white})
        {
            workbench::RowColours const row = workbench::ChosenRowColours(colour, ground);
            EXPECT_GE(ContrastRatio(row.background, ground), 1.7) << std::hex << colour << ' ' << ground;
            EXPECT_GE(ContrastRatio(row.background, row.text), 4.5) << std::hex << colour << ' ' << ground;
            EXPECT_GE(ContrastRatio(row.background, frame), 3.0) << std::hex << colour << ' ' << ground;
        }
    }
}

TEST(ReadableColours, LinksCanBeReadOnLightAndDarkGrounds)
{
    for (COLORREF const ground : {white, black, RGB(32, 32, 32), RGB(48, 48, 48), RGB(255, 251, 240)})
    {
        EXPECT_GE(ContrastRatio(workbench::LinkColourOn(ground), ground), 4.5) << std::hex << ground;
    }
}

TEST(ReadableColours, LabelsHaveLessWeightThanTexts)
{
    for (auto const & [ground, text] : {std::pair(white, black), std::pair(black, white)})
    {
        workbench::PlotColours const plot = PlotColoursOn(ground, text);
        EXPECT_LT(ContrastRatio(plot.label, ground), ContrastRatio(plot.text, ground));
        EXPECT_LT(ContrastRatio(plot.frame, ground), ContrastRatio(plot.label, ground));
    }
}

} // namespace
