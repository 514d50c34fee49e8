#include "logic/ReadableColours.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace workbench
{

namespace
{

constexpr COLORREF black_colour = RGB(0, 0, 0);
constexpr COLORREF white_colour = RGB(255, 255, 255);
constexpr COLORREF problem_colour = RGB(168, 40, 32);

// The part of the ground in labels and frames.
constexpr double ground_in_labels = 0.35;
constexpr double ground_in_frames = 0.75;

constexpr int steps = 255; // on the way to black or white

// Of the background of chosen rows.
constexpr double least_row_luminance = 0.52;
constexpr double least_row_contrast = 1.7;

double Linear(int component)
{
    double const part = component / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

/// The first colour on the way to another one that fits.
template <class Fits> std::optional<COLORREF> FirstOnTheWay(COLORREF from, COLORREF to, Fits const & fits)
{
    for (int step = 0; step <= steps; ++step)
    {
        if (COLORREF const mixed = MixedColour(from, to, static_cast<double>(step) / steps); fits(mixed))
        {
            return mixed;
        }
    }
    return {};
}

} // namespace

double Luminance(COLORREF colour)
{
    return 0.2126 * Linear(GetRValue(colour)) + 0.7152 * Linear(GetGValue(colour)) + 0.0722 * Linear(GetBValue(colour));
}

double ContrastRatio(COLORREF a, COLORREF b)
{
    constexpr double stray = 0.05; // light that every screen has
    auto const [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + stray) / (darker + stray);
}

COLORREF MixedColour(COLORREF from, COLORREF to, double part)
{
    auto const mix = [part](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * part)); };
    return RGB(mix(GetRValue(from), GetRValue(to)), mix(GetGValue(from), GetGValue(to)),
               mix(GetBValue(from), GetBValue(to)));
}

COLORREF FarthestColour(COLORREF ground)
{
    return ContrastRatio(ground, black_colour) > ContrastRatio(ground, white_colour) ? black_colour : white_colour;
}

COLORREF ReadableColour(COLORREF colour, COLORREF ground, double contrast)
{
    COLORREF const farthest = FarthestColour(ground);
    auto const fits = [=](COLORREF mixed) { return ContrastRatio(mixed, ground) >= contrast; };
    return FirstOnTheWay(colour, farthest, fits).value_or(farthest);
}

PlotColours PlotColoursOn(COLORREF ground, COLORREF text)
{
    return {ground, text, ReadableColour(MixedColour(text, ground, ground_in_labels), ground),
            ReadableColour(problem_colour, ground), MixedColour(text, ground, ground_in_frames)};
}

RowColours ChosenRowColours(COLORREF systemColour, COLORREF ground)
{
    auto const fits = [ground](COLORREF mixed) {
        return Luminance(mixed) >= least_row_luminance && ContrastRatio(mixed, ground) >= least_row_contrast;
    };
    auto background = Luminance(systemColour) < least_row_luminance ? std::optional<COLORREF>()
                                                                    : FirstOnTheWay(systemColour, black_colour, fits);
    if (!background)
    {
        background = FirstOnTheWay(systemColour, white_colour, fits);
    }
    return {black_colour, background.value_or(white_colour)};
}

COLORREF LinkColourOn(COLORREF ground)
{
    constexpr double dark = 0.18;
    return Luminance(ground) < dark ? RGB(130, 185, 255) : RGB(0, 0, 255);
}

} // namespace workbench
