#pragma once
// The order of a list's rows, as decisions that know no window.

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

#include "list/XListCtrlData.h"

/// What a row is sorted by: what its cell in the sorted column holds, apart from the text shown. Small, so that many
/// comparisons stay within little memory.
struct ListSortKey
{
    /// Null for a row without that cell.
    explicit ListSortKey(XLISTCTRLDATA const * cell);

    bool hasCell;
    bool sortsFirst = false;
    bool sortsLast = false;
    bool isProgress = false;
    unsigned int valueType = XLV_TEXT;
    int progressValue = 0;
    int intValue = 0;
    float floatValue = 0;
    long long timeValue = 0;
};

/// Compares the values of two cells by the field that the first one's kind names; -1, 0 or 1. 0 where that kind has no
/// value, and with a NaN on either side.
int CompareValues(ListSortKey const & a, ListSortKey const & b);

/// The order of two rows: negative if the first one goes ahead. A row without the cell equals every other one. Rows
/// that sort first or last do so in both directions. The first cell's kind decides alone how both are read.
/// compareTexts(), asked only where texts decide, compares the texts shown: negative, 0 or positive.
template <class CompareTexts>
int CompareRows(ListSortKey const & a, ListSortKey const & b, bool ascending, CompareTexts && compareTexts)
{
    if (!a.hasCell || !b.hasCell)
        return 0;
    if (a.sortsLast || b.sortsLast)
        return static_cast<int>(a.sortsLast) - static_cast<int>(b.sortsLast);
    if (a.sortsFirst || b.sortsFirst)
        return static_cast<int>(b.sortsFirst) - static_cast<int>(a.sortsFirst);
    int const order = a.isProgress || a.valueType != XLV_TEXT ? CompareValues(a, b) : compareTexts();
    if (order == 0)
        return 0;
    return (order < 0) == ascending ? -1 : 1;
}

/// The indices of so many rows in the order that compare(index, index) gives: a negative result puts the first row
/// ahead. Rows that compare equal keep their order. A compare that contradicts itself gives some order, in the same
/// time; each index is there once in any case.
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
