#pragma once
// The order of a list's rows, as decisions that know no window.

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string_view>
#include <utility>
#include <vector>

#include "list/CellKind.h"
#include "list/XListCellKind.h"
#include "list/XListCtrlData.h"
#include "list/XListRowPool.h"

/// What a row is sorted by: what its cell in the sorted column holds, apart from the text shown.
struct ListSortKey
{
    /// cell: null for a row without that cell. kind: the host's own one of the cell, if it has one.
    explicit ListSortKey(XLISTCTRLDATA const * cell, CXListCellKind const * kind = nullptr);

    bool hasCell;
    bool sortsFirst = false;
    bool sortsLast = false;
    CellValue value = CellValue::text;
    long long own = 0;
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
    int const order = a.value != CellValue::text ? CompareValues(a, b) : compareTexts();
    if (order == 0)
        return 0;
    return (order < 0) == ascending ? -1 : 1;
}

/// Compares the rows of a list by their cells in one column. Where all cells that take part are of one kind, each row
/// keeps a mark by which comparing costs little.
class CListRowOrder
{
public:
    CListRowOrder(unsigned int col, bool ascending);
    CListRowOrder(CListRowOrder const &) = delete;
    CListRowOrder & operator=(CListRowOrder const &) = delete;

    /// Every row that will be compared, before anything else.
    void Add(XLISTCTRLROW & row);
    /// Whether texts decide between some of the rows.
    bool NeedsTexts() const { return m_textCells && m_plainCells > 1; }
    /// Where texts are needed, the text that each row shows.
    void AddText(XLISTCTRLROW & row, std::wstring_view text);
    /// Behind the last text, before the first comparison.
    void EndTexts();
    /// Negative if the first row goes ahead, positive if the second one does.
    int Compare(XLISTCTRLROW const & a, XLISTCTRLROW const & b) const
    {
        if (m_mixed)
            return CompareCells(a, b);
        XLISTCTRLROW::SortMark const & first = a.sortMark();
        XLISTCTRLROW::SortMark const & second = b.sortMark();
        if (first.rank != second.rank)
            return first.rank < second.rank ? -1 : 1;
        if (first.value != second.value)
            return first.value < second.value ? -1 : 1;
        return m_textCells && first.rank == 0 ? CompareTexts(a, b) : 0;
    }

private:
    XLISTCTRLDATA const * CellOf(XLISTCTRLROW const & row) const
    {
        return m_col < row.capacity() ? row.cells() + m_col : nullptr;
    }
    ListSortKey KeyOf(XLISTCTRLROW const & row) const { return ListSortKey(CellOf(row), row.Kind(m_col).get()); }
    int CompareCells(XLISTCTRLROW const & a, XLISTCTRLROW const & b) const;
    int CompareTexts(XLISTCTRLROW const & a, XLISTCTRLROW const & b) const;

    unsigned int m_col;
    bool m_ascending;
    /// Cells of several kinds, or some that equal others which differ: no mark says it all.
    bool m_mixed = false;
    bool m_textCells = false;
    /// Cells that sort neither first nor last.
    std::size_t m_plainCells = 0;
    /// Of the first of them.
    CellValue m_value = CellValue::text;
    /// All texts, each with its end; the empty one comes first.
    std::vector<wchar_t> m_texts{L'\0'};
    std::vector<XLISTCTRLROW *> m_rowsWithText;
    /// How much all texts have in common.
    std::size_t m_commonLength = static_cast<std::size_t>(-1);
};

/// The indices of so many rows in the order that compare(index, index) gives: a negative result puts the first row
/// ahead. Rows that compare equal keep their order. Takes few comparisons where rows are in order already, or in the
/// opposite one. A compare that contradicts itself gives some order, in the same time; each index is there once in any
/// case.
template <class Compare> std::vector<int> SortedOrder(int count, Compare && compare)
{
    std::size_t const size = count > 0 ? static_cast<std::size_t>(count) : 0;
    std::vector<int> order(size);
    std::iota(order.begin(), order.end(), 0);
    // Where each run of rows in order ends.
    std::vector<std::size_t> ends;
    for (std::size_t begin = 0; begin < size; begin = ends.back())
    {
        std::size_t end = begin + 1;
        // Only rows that all differ may be turned round.
        bool const falls = end < size && compare(order[begin], order[end]) > 0;
        if (end < size)
            ++end;
        while (end < size && (compare(order[end - 1], order[end]) > 0) == falls)
            ++end;
        if (falls)
        {
            std::reverse(order.begin() + static_cast<std::ptrdiff_t>(begin),
                         order.begin() + static_cast<std::ptrdiff_t>(end));
        }
        ends.push_back(end);
    }
    std::vector<int> merged(ends.size() > 1 ? size : 0);
    while (ends.size() > 1)
    {
        std::vector<std::size_t> mergedEnds;
        std::size_t out = 0;
        for (std::size_t run = 0; run < ends.size(); run += 2)
        {
            std::size_t left = out;
            std::size_t const middle = ends[run];
            std::size_t right = middle;
            std::size_t const end = run + 1 < ends.size() ? ends[run + 1] : middle;
            while (left < middle && right < end)
                merged[out++] = compare(order[left], order[right]) <= 0 ? order[left++] : order[right++];
            while (left < middle)
                merged[out++] = order[left++];
            while (right < end)
                merged[out++] = order[right++];
            mergedEnds.push_back(end);
        }
        std::swap(order, merged);
        std::swap(ends, mergedEnds);
    }
    return order;
}
