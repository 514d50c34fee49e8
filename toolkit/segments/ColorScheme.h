#pragma once
// Fixed colours for a segment display.

/// The argument of CDigiStatic::SetColorScheme. The values are fixed.
enum ColorScheme : int
{
    ColorSchemeGreen = 0,
    ColorSchemeYellow = 1,
    ColorSchemeAmber = 2,
    ColorSchemeRed = 3,
    ColorSchemeCyan = 4,
    /// Dark on light, like a liquid crystal.
    ColorSchemeLcd = 5
};
