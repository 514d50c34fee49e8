#pragma once
// How the colours that a cell keeps are shown in a set other than the standard one. Internal to the list family.

#include <algorithm>
#include <vector>

#include "list/CellKind.h"
#include "list/CellPainters.h"

/// The colours that cells have as long as nobody chooses others. Cells keep them, so each that has ever been given
/// counts: they change with the system's.
class CellDefaults
{
public:
    /// As the list gives them from now on.
    void Note(ControlColors const & standard)
    {
        Add(m_grounds, standard.window);
        Add(m_texts, standard.windowText);
        Add(m_bars, standard.selection);
    }
    bool IsGround(COLORREF color) const { return Has(m_grounds, color); }
    bool IsText(COLORREF color) const { return Has(m_texts, color); }
    bool IsBar(COLORREF color) const { return Has(m_bars, color); }

private:
    static bool Has(std::vector<COLORREF> const & colors, COLORREF color)
    {
        return std::find(colors.begin(), colors.end(), color) != colors.end();
    }
    static void Add(std::vector<COLORREF> & colors, COLORREF color)
    {
        if (!Has(colors, color))
            colors.push_back(color);
    }

    std::vector<COLORREF> m_grounds{XLISTCTRLDATA().backgroundColor};
    std::vector<COLORREF> m_texts{XLISTCTRLDATA().textColor};
    std::vector<COLORREF> m_bars;
};

/// Turns a cell's colours into those of the palette, which is of a set that adapts. What the host has chosen stays; a
/// text that it has not chosen is read on a ground that it has. Under a wash a cell is as in the standard set, for
/// which the host has chosen the wash.
void AdaptCellColors(XLISTCTRLDATA const & cell, CellDefaults const & defaults, ControlColors const & palette,
                     COLORREF & text, COLORREF & background);
