#pragma once

#include <afx.h>

#include "frame/Export.h"

/// Which edges of a child window follow its parent when the parent changes size. A value, made from the constants below
/// and their combinations with `|`. Without a horizontal constant a child behaves as with LEFT, without a vertical one
/// as with TOP. What a mix of contradicting constants gives is told at CDialogResizer::PositionChild.
class INSTRUMENT_UI_API CEdges
{
public:
    CEdges(CEdges const &) = default;
    CEdges & operator=(CEdges const &) = default;

    /// Keeps its distance from the left edge, and its width.
    static CEdges LEFT();
    /// Keeps its distance from the right edge; keeps its width unless LEFT is set too.
    static CEdges RIGHT();
    /// Keeps its distance from the top edge, and its height.
    static CEdges TOP();
    /// Keeps its distance from the bottom edge; keeps its height unless TOP is set too.
    static CEdges BOTTOM();

    /// The left edge stays, the right edge moves by half the growth.
    static CEdges LEFT_HALF();
    /// The left edge moves by half the growth, the right edge by all of it.
    static CEdges RIGHT_HALF();
    /// The top edge stays, the bottom edge moves by half the growth.
    static CEdges TOP_HALF();
    /// The top edge moves by half the growth, the bottom edge by all of it.
    static CEdges BOTTOM_HALF();

    /// Moves by half the horizontal growth and keeps its width.
    static CEdges HORI_CENTER();
    /// Moves by half the vertical growth and keeps its height.
    static CEdges VERT_CENTER();

    /// The top edge stays, the bottom edge moves by a third of the growth.
    static CEdges TOP_THIRD();
    /// The top edge stays, the bottom edge moves by two thirds of the growth.
    static CEdges TOP_TWOTHIRD();
    /// The top edge moves by two thirds of the growth, the bottom edge by all of it.
    static CEdges BOTTOM_THIRD();
    /// The top edge moves by a third of the growth, the bottom edge by all of it.
    static CEdges BOTTOM_TWOTHIRD();

    /// LEFT and RIGHT: stretches horizontally.
    static CEdges LEFT_RIGHT();
    /// TOP and BOTTOM: stretches vertically.
    static CEdges TOP_BOTTOM();
    /// TOP and LEFT: stays.
    static CEdges TOP_LEFT();
    /// TOP and RIGHT: moves horizontally.
    static CEdges TOP_RIGHT();
    /// BOTTOM and LEFT: moves vertically.
    static CEdges BOTTOM_LEFT();
    /// BOTTOM and RIGHT: moves in both directions.
    static CEdges BOTTOM_RIGHT();
    /// TOP, LEFT and RIGHT: stretches horizontally.
    static CEdges TOP_LEFT_RIGHT();
    /// BOTTOM, LEFT and RIGHT: moves vertically, stretches horizontally.
    static CEdges BOTTOM_LEFT_RIGHT();
    /// TOP, LEFT and BOTTOM: stretches vertically.
    static CEdges TOP_LEFT_BOTTOM();
    /// TOP, RIGHT and BOTTOM: moves horizontally, stretches vertically.
    static CEdges TOP_RIGHT_BOTTOM();
    /// All four edges: stretches in both directions.
    static CEdges TOP_LEFT_BOTTOM_RIGHT();
    /// TOP and HORI_CENTER.
    static CEdges TOP_CENTER();
    /// BOTTOM and HORI_CENTER.
    static CEdges BOTTOM_CENTER();

    /// True if the two share at least one elementary constant.
    bool operator&(CEdges const & other) const;
    /// A new value with the constants of both.
    CEdges operator|(CEdges const & other) const;

private:
    explicit CEdges(DWORD bits);

    DWORD m_bits;
};
