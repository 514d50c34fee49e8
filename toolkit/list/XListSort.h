#pragma once
// The order of a list's rows, as decisions that know no window.

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

#include "list/XListCtrlData.h"

/// Compares the values of two cells by the field that the first one's kind names; -1, 0 or 1. 0 where that kind has no
/// value, and with a NaN on either side.
int CompareValues(XLISTCTRLDATA const & a, XLISTCTRLDATA const & b);

/// Whether a cell is ordered by its value and not by its text.
inline bool SortsByValue(XLISTCTRLDATA const & cell)
{
    return (cell.properties & XLP_PROGRESS) != 0 || cell.valueType != XLV_TEXT;
}

/// The order of two rows by their cells in the sorted column: negative if the first row goes ahead. A null cell equals
/// everything. Rows that sort first or last do so in both directions. The first cell's kind decides alone how both are
/// read. compareTexts(), asked only where texts decide, compares the texts shown: negative, 0 or positive.
template <class CompareTexts>
int CompareCells(XLISTCTRLDATA const * a, XLISTCTRLDATA const * b, bool ascending, CompareTexts && compareTexts)
{
    if (a == nullptr || b == nullptr)
        return 0;
    unsigned int const either = a->properties | b->properties;
    if ((either & XLP_SORT_LAST) != 0)
    {
        if ((a->properties & XLP_SORT_LAST) == 0)
            return -1;
        return (b->properties & XLP_SORT_LAST) != 0 ? 0 : 1;
    }
    if ((either & XLP_SORT_FIRST) != 0)
    {
        if ((a->properties & XLP_SORT_FIRST) == 0)
            return 1;
        return (b->properties & XLP_SORT_FIRST) != 0 ? 0 : -1;
    }
    int const order = SortsByValue(*a) ? CompareValues(*a, *b) : compareTexts();
    if (order == 0)
        return 0;
    return (order < 0) == ascending ? -1 : 1;
}

/// The numbers from 0 up to count, each once, so that compare(first, second) is not positive for any two neighbours that
/// a merge put beside each other. Numbers that compare equal keep their order. A compare that contradicts itself gives
/// some order, in the same time.
template <class Compare> std::vector<int> SortedOrder(int count, Compare && compare)
{
    std::size_t const size = count > 0 ? static_cast<std::size_t>(count) : 0;
    std::vector<int> order(size);
    std::iota(order.begin(), order.end(), 0);
    std::vector<int> merged(size);
    for (std::size_t run = 1; run < size; run *= 2)
    {
        for (std::size_t begin = 0; begin < size; begin += 2 * run)
        {
            std::size_t left = begin;
            std::size_t const middle = std::min(begin + run, size);
            std::size_t right = middle;
            std::size_t const end = std::min(begin + 2 * run, size);
            std::size_t out = begin;
            while (left < middle && right < end)
                merged[out++] = compare(order[left], order[right]) <= 0 ? order[left++] : order[right++];
            while (left < middle)
                merged[out++] = order[left++];
            while (right < end)
                merged[out++] = order[right++];
        }
        std::swap(order, merged);
    }
    return order;
}
