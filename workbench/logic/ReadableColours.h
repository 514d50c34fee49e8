#pragma once
// Colours that can be read on whatever ground the system's colours give.

#include <afx.h>

namespace workbench
{

/// The relative luminance of a colour, from 0 for black to 1 for white.
double Luminance(COLORREF colour);

/// How far two colours are apart in luminance, from 1 to 21. A text is read well from `text_contrast` on.
double ContrastRatio(COLORREF a, COLORREF b);

constexpr double text_contrast = 4.5;

/// A colour on the way from one to another one; part: of the latter, up to 1.
COLORREF MixedColour(COLORREF from, COLORREF to, double part);

/// Black or white, whichever is farther from the ground.
COLORREF FarthestColour(COLORREF ground);

/// The colour if it can be read on the ground; else the nearest one on the way to black or white, whichever is farther
/// from the ground. What is no text needs less contrast.
COLORREF ReadableColour(COLORREF colour, COLORREF ground, double contrast = text_contrast);

/// The colours of a plot around what it shows.
struct PlotColours
{
    COLORREF ground;
    COLORREF text;
    COLORREF label;   ///< labels, and texts of less weight
    COLORREF problem; ///< texts that say what is wrong
    COLORREF frame;   ///< frames, and the marks on axes
};

/// The colours that go with a ground and the colour of texts on it.
PlotColours PlotColoursOn(COLORREF ground, COLORREF text);

/// The colours of a chosen row.
struct RowColours
{
    COLORREF text;
    COLORREF background;
};

/// Colours of a chosen row of which the background is a colour of the system's, made as light as the marks of check
/// boxes, radio buttons and combo cells need to be told apart on it; their own colours are made for a white one. Beside
/// rows that are not chosen, whose ground is given, it is clearly seen.
RowColours ChosenRowColours(COLORREF systemColour, COLORREF ground);

/// The colour of links on a ground: blue, and a light blue on a dark one.
COLORREF LinkColourOn(COLORREF ground);

} // namespace workbench
