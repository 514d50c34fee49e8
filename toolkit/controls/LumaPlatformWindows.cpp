#include "controls/LumaPlatform.h"

#include <shlwapi.h>

#include "controls/ColorLuma.h"

bool AdjustsLuma(COLORREF(WINAPI * function)(COLORREF, int, BOOL))
{
    // Half way from black to white: somewhere in the middle, whatever the rounding.
    constexpr int half_way = 500;
    constexpr int least = 0x60;
    constexpr int greatest = 0xA0;
    int const grey = GetGValue(function(RGB(0, 0, 0), half_way, TRUE));
    return grey >= least && grey <= greatest;
}

COLORREF AdjustLuma(COLORREF color, int thousandths)
{
    static bool const native = AdjustsLuma(&::ColorAdjustLuma);
    return native ? ::ColorAdjustLuma(color, thousandths, TRUE) : MoveLuma(color, thousandths);
}
