#include "SelectionColours.h"

#include <cmath>

namespace workbench
{

namespace
{

constexpr double c_leastLuminance = 0.6; // of white
constexpr int c_steps = 20;

double Linear(int component)
{
    auto const part = component / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(COLORREF colour)
{
    return 0.2126 * Linear(GetRValue(colour)) + 0.7152 * Linear(GetGValue(colour)) + 0.0722 * Linear(GetBValue(colour));
}

COLORREF TowardsWhite(COLORREF colour, int step)
{
    auto const mix = [step](int component) { return component + (255 - component) * step / c_steps; };
    return RGB(mix(GetRValue(colour)), mix(GetGValue(colour)), mix(GetBValue(colour)));
}

} // namespace

RowColours LightRowColours(COLORREF systemColour)
{
    auto background = systemColour;
    for (int step = 1; step < c_steps && Luminance(background) < c_leastLuminance; ++step)
    {
        background = TowardsWhite(systemColour, step);
    }
    return {RGB(0, 0, 0), background};
}

COLORREF LinkColour()
{
    constexpr double dark = 0.18;
    return Luminance(::GetSysColor(COLOR_WINDOW)) < dark ? RGB(130, 185, 255) : RGB(0, 0, 255);
}

} // namespace workbench
