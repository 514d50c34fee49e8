#pragma once
// What a change of the rows of a sheet's tabs does to the page area. Internal to the module.

#include <afx.h>
#include <atltypes.h>

namespace TabRows
{
/// How a page's design rectangle changes.
struct Change
{
    /// By which it moves.
    CSize offset;
    /// By which its size grows.
    CSize growth;
};

/// The page's top follows the tabs, its bottom stays. tab: the rectangle of one tab, in pixels.
Change ChangeOfRows(int formerRows, int rows, CRect const & tab);
/// The page area after that change.
CRect PageArea(CRect const & former, Change const & change);
} // namespace TabRows
