#pragma once
// Searches over a list's rows, from the top.

#include <algorithm>

#include "list/XListCtrlData.h"

/// The first row whose first cell satisfies matches(XLISTCTRLDATA const &); -1 if there is none. cellsOf(int row) gives a
/// row's first cell, or null for a row without cells, which never matches.
template <class CellsOf, class Matches> int FindRow(int rowCount, CellsOf && cellsOf, Matches && matches)
{
    for (int row = 0; row < rowCount; ++row)
    {
        XLISTCTRLDATA const * const cells = cellsOf(row);
        if (cells != nullptr && matches(*cells))
            return row;
    }
    return -1;
}

inline bool HasClavis(XLISTCTRLDATA const & cell, int const * key)
{
    return std::equal(key, key + XLISTCTRLDATA::clavis_length, cell.idx8);
}
