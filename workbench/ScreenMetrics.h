#pragma once
// The system's message font and the lengths that follow from it.

#include <afxwin.h>

namespace workbench
{

/// The fonts of the workbench's windows, and lengths in pixels that scale with them. Windows that use a font must end
/// before the object does.
class ScreenMetrics
{
public:
    /// Takes the system's message font as it is now, for another resolution than the usual one in dots an inch, if
    /// given.
    explicit ScreenMetrics(int dotsPerInch = 0);

    /// What is usual for windows that open from now on; 0 for the screen's own. That resolution.
    static int UseResolution(int dotsPerInch);

    /// Dots an inch, which the toolkit's controls are told.
    UINT Resolution() const { return static_cast<UINT>(m_dotsPerInch); }

    /// The message font, and the same in bold.
    CFont & Font() { return m_font; }
    CFont & BoldFont() { return m_boldFont; }

    /// Pixels for horizontal and vertical dialog units of the message font.
    int X(int dialogUnits) const { return ::MulDiv(dialogUnits, m_averageWidth, 4); }
    int Y(int dialogUnits) const { return ::MulDiv(dialogUnits, m_height, 8); }

    /// Pixels for so many of a screen of the usual resolution, for what does not scale with texts.
    int Scaled(int pixels) const { return ::MulDiv(pixels, m_dotsPerInch, USER_DEFAULT_SCREEN_DPI); }

    /// The average width of a letter.
    int AverageWidth() const { return m_averageWidth; }

    /// The height of a line of text.
    int LineHeight() const { return m_height; }

private:
    static int usualResolution;

    CFont m_font;
    CFont m_boldFont;
    int m_dotsPerInch = USER_DEFAULT_SCREEN_DPI;
    int m_averageWidth = 6;
    int m_height = 13;
};

} // namespace workbench
