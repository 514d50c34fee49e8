#pragma once
// The luminance of colours. Internal to the module.

#include <afx.h>

/// A colour by hue, luminance and saturation, of 0 to 240 each. The hue of a grey is 160.
struct HlsColor
{
    int hue;
    int luminance;
    int saturation;
};

HlsColor HlsOfColor(COLORREF color);
COLORREF ColorOfHls(HlsColor const & color);

/// Moves the colour's luminance by so many thousandths (-1000 to 1000, cut to that) of the way to the greatest, or down
/// to 0 if they are negative. Hue and saturation stay.
COLORREF MoveLuma(COLORREF color, int thousandths);
