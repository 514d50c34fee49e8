#pragma once
// Searches over a list's rows. What a row holds is in memory; where it stands only the native list knows.

#include <algorithm>
#include <cstddef>
#include <functional>
#include <vector>

#if defined(_M_X64) || defined(__x86_64__)
#include <xmmintrin.h>
#endif

#include "list/XListRowPool.h"

/// So many rows that match are asked for their places one by one; if there are more, the list is walked.
constexpr std::size_t most_rows_placed = 16;
/// From so many rows on it is worth a question whether the first row matches, before all are looked at.
constexpr std::size_t many_rows = 64;

/// Has the memory of the rows that come soon behind the i-th one brought in: rows lie far apart.
inline void FetchAhead(CXListRowPool::Slots rows, std::size_t i)
{
#if defined(_M_X64) || defined(__x86_64__)
    constexpr std::size_t cells_ahead = 12;
    constexpr std::size_t rows_ahead = 2 * cells_ahead;
    if (i + rows_ahead >= rows.size() || rows[i + cells_ahead] == nullptr)
        return;
    _mm_prefetch(reinterpret_cast<char const *>(rows[i + rows_ahead].get()), _MM_HINT_T0);
    _mm_prefetch(reinterpret_cast<char const *>(rows[i + cells_ahead]->cells()), _MM_HINT_T0);
#else
    static_cast<void>(rows);
    static_cast<void>(i);
#endif
}

/// The place of the topmost row that satisfies matches(XLISTCTRLROW const &); -1 if there is none. The native list is
/// asked little: placeOf(XLISTCTRLROW const &) gives a row's place, -1 for one that is not in the list, and is asked a
/// few times at most; else rowAt(int place), which may give null, is asked once a place, of which there are rowCount().
/// areRows: whatever rowAt gives is one of those rows, so that it can be looked into.
template <class RowCount, class Matches, class PlaceOf, class RowAt>
int FindTopmostRow(CXListRowPool::Slots rows, bool areRows, RowCount && rowCount, Matches && matches,
                   PlaceOf && placeOf, RowAt && rowAt)
{
    if (areRows && rows.size() >= many_rows)
    {
        XLISTCTRLROW const * const first = rowAt(0);
        if (first != nullptr && matches(*first))
            return 0;
    }
    std::vector<XLISTCTRLROW const *> found;
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        FetchAhead(rows, i);
        std::unique_ptr<XLISTCTRLROW> const & row = rows[i];
        if (row == nullptr || !matches(*row))
            continue;
        found.push_back(row.get());
        if (areRows && found.size() > most_rows_placed)
            break;
    }
    if (found.empty())
        return -1;
    if (found.size() <= most_rows_placed)
    {
        int topmost = -1;
        for (XLISTCTRLROW const * const row : found)
        {
            int const place = placeOf(*row);
            if (place >= 0 && (topmost < 0 || place < topmost))
                topmost = place;
        }
        return topmost;
    }
    std::sort(found.begin(), found.end(), std::less<>());
    int const count = rowCount();
    for (int place = 0; place < count; ++place)
    {
        XLISTCTRLROW const * const row = rowAt(place);
        if (row == nullptr)
            continue;
        if (areRows ? matches(*row) : std::binary_search(found.begin(), found.end(), row, std::less<>()))
            return place;
    }
    return -1;
}

/// Whether the row's first cell satisfies matches(XLISTCTRLDATA const &); false for a row without cells.
template <class Matches> auto FirstCellOf(Matches matches)
{
    return [matches](XLISTCTRLROW const & row) {
        XLISTCTRLDATA const * const cells = row.cells();
        return cells != nullptr && matches(*cells);
    };
}

inline bool HasClavis(XLISTCTRLDATA const & cell, int const * key)
{
    return std::equal(key, key + XLISTCTRLDATA::clavis_length, cell.idx8);
}
