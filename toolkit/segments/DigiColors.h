#pragma once
// Colour arithmetic of the segment displays. Internal to the module.

#include <afx.h>

#include "segments/ColorScheme.h"

namespace DigiStatic
{
/// The colours of a display with which it starts.
inline constexpr COLORREF default_on_color = 0x00FF00;
inline constexpr COLORREF default_off_color = 0x005000;
inline constexpr COLORREF default_back_color = 0x501E00;

struct CDisplayColors
{
    COLORREF on;
    COLORREF off;
    COLORREF back;
};

/// The colours of a scheme; of the green one for any other value. Unlit segments stand half way between the scheme's
/// own colour and the background.
CDisplayColors ColorsOf(ColorScheme scheme);

/// The colour half way between two, channel by channel, rounded down.
COLORREF MeanColor(COLORREF a, COLORREF b);

/// A quarter of the way from the colour to the background, channel by channel, rounded down.
COLORREF SoftPenColor(COLORREF color, COLORREF back);
} // namespace DigiStatic
