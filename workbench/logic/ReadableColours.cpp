#include "logic/ReadableColours.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace workbench
{

namespace
{

constexpr COLORREF c_black = RGB(0, 0, 0);
constexpr COLORREF c_white = RGB(255, 255, 255);
constexpr COLORREF c_problemColour = RGB(168, 40, 32);

// The part of the ground in labels and frames.
constexpr double c_groundInLabels = 0.35;
constexpr double c_groundInFrames = 0.75;

constexpr int c_steps = 255; // on the way to black or white

// Of the background of chosen rows.
constexpr double c_leastRowLuminance = 0.52;
constexpr double c_leastRowContrast = 1.7;

double Linear(int component)
{
    auto const part = component / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

/// The first colour on the way to another one that fits.
template <class Fits> std::optional<COLORREF> FirstOnTheWay(COLORREF from, COLORREF to, Fits const & fits)
{
    for (int step = 0; step <= c_steps; ++step)
    {
        if (auto const mixed = MixedColour(from, to, static_cast<double>(step) / c_steps); fits(mixed))
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
    return ContrastRatio(ground, c_black) > ContrastRatio(ground, c_white) ? c_black : c_white;
}

COLORREF ReadableColour(COLORREF colour, COLORREF ground, double contrast)
{
    auto const farthest = FarthestColour(ground);
    auto const fits = [=](COLORREF mixed) { return ContrastRatio(mixed, ground) >= contrast; };
    return FirstOnTheWay(colour, farthest, fits).value_or(farthest);
}

PlotColours PlotColoursOn(COLORREF ground, COLORREF text)
{
    return {ground, text, ReadableColour(MixedColour(text, ground, c_groundInLabels), ground),
            ReadableColour(c_problemColour, ground), MixedColour(text, ground, c_groundInFrames)};
}

RowColours ChosenRowColours(COLORREF systemColour, COLORREF ground)
{
    auto const fits = [ground](COLORREF mixed) {
        return Luminance(mixed) >= c_leastRowLuminance && ContrastRatio(mixed, ground) >= c_leastRowContrast;
    };
    auto background = Luminance(systemColour) < c_leastRowLuminance ? std::optional<COLORREF>()
                                                                    : FirstOnTheWay(systemColour, c_black, fits);
    if (!background)
    {
        background = FirstOnTheWay(systemColour, c_white, fits);
    }
    return {c_black, background.value_or(c_white)};
}

COLORREF LinkColourOn(COLORREF ground)
{
    constexpr double dark = 0.18;
    return Luminance(ground) < dark ? RGB(130, 185, 255) : RGB(0, 0, 255);
}

} // namespace workbench
