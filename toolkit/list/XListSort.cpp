#include "list/XListSort.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cwchar>
#include <optional>
#include <type_traits>

namespace
{
template <class Value> int Compare(Value const & a, Value const & b)
{
    if (a < b)
        return -1;
    return b < a ? 1 : 0;
}

/// A whole number that is the greater the greater the float, and the same for both zeros.
long long Ordered(float value)
{
    int const bits = std::bit_cast<std::int32_t>(value + 0.0F);
    return bits >= 0 ? bits : bits ^ 0x7FFFFFFF;
}

/// What CompareValues goes by, as one number; own: what the host's kind says.
long long OrderedValue(XLISTCTRLDATA const & cell, CellValue value, long long own)
{
    switch (value)
    {
    case CellValue::percent:
        return cell.progressValue;
    case CellValue::integer:
        return cell.intValue;
    case CellValue::real:
        return Ordered(cell.floatValue);
    case CellValue::time:
        return cell.timeValue.GetTime();
    case CellValue::own:
        return own;
    case CellValue::text:
    case CellValue::none:
        break;
    }
    return 0;
}

std::optional<long long> OwnValue(XLISTCTRLDATA const & cell, CXListCellKind const * kind)
{
    return kind != nullptr ? kind->SortValue(cell) : std::nullopt;
}

/// The first characters of a text as one number that is the greater the further behind the text belongs. Shorter texts
/// end in zeros.
long long OrderedStart(wchar_t const * text)
{
    using Character = std::make_unsigned_t<wchar_t>;
    constexpr unsigned int character_bits = 8 * sizeof(wchar_t);
    std::uint64_t start = 0;
    bool ended = false;
    for (std::size_t i = 0; i < sizeof(start) / sizeof(wchar_t); ++i)
    {
        ended = ended || text[i] == L'\0';
        start = start << character_bits | (ended ? 0 : static_cast<Character>(text[i]));
    }
    // With a sign, of which the order knows nothing.
    return static_cast<long long>(start ^ std::uint64_t{1} << 63);
}
} // namespace

ListSortKey::ListSortKey(XLISTCTRLDATA const * cell, CXListCellKind const * kind) : hasCell(cell != nullptr)
{
    if (cell == nullptr)
        return;
    sortsFirst = (cell->properties & XLP_SORT_FIRST) != 0;
    sortsLast = (cell->properties & XLP_SORT_LAST) != 0;
    std::optional<long long> const said = OwnValue(*cell, kind);
    value = said ? CellValue::own : SortedValue(*cell);
    own = said.value_or(0);
    progressValue = cell->progressValue;
    intValue = cell->intValue;
    floatValue = cell->floatValue;
    timeValue = cell->timeValue.GetTime();
}

int CompareValues(ListSortKey const & a, ListSortKey const & b)
{
    switch (a.value)
    {
    case CellValue::percent:
        return Compare(a.progressValue, b.progressValue);
    case CellValue::integer:
        return Compare(a.intValue, b.intValue);
    case CellValue::real:
        return Compare(a.floatValue, b.floatValue);
    case CellValue::time:
        return Compare(a.timeValue, b.timeValue);
    case CellValue::own:
        return Compare(a.own, b.own);
    case CellValue::text:
    case CellValue::none:
        break;
    }
    return 0;
}

CListRowOrder::CListRowOrder(unsigned int col, bool ascending) : m_col(col), m_ascending(ascending) {}

void CListRowOrder::Add(XLISTCTRLROW & row)
{
    XLISTCTRLROW::SortMark mark;
    XLISTCTRLDATA const * const cell = CellOf(row);
    if (cell == nullptr)
    {
        m_mixed = true;
    }
    else if ((cell->properties & (XLP_SORT_LAST | XLP_SORT_FIRST)) != 0)
    {
        mark.rank = (cell->properties & XLP_SORT_LAST) != 0 ? 1 : -1;
    }
    else
    {
        std::optional<long long> const own = OwnValue(*cell, row.Kind(m_col).get());
        CellValue const value = own ? CellValue::own : SortedValue(*cell);
        if (m_plainCells++ == 0)
            m_value = value;
        // A NaN equals numbers that differ.
        if (value != m_value || (value == CellValue::real && std::isnan(cell->floatValue)))
            m_mixed = true;
        if (value == CellValue::text)
            m_textCells = true;
        mark.value = OrderedValue(*cell, value, own.value_or(0));
        if (!m_ascending)
            mark.value = ~mark.value;
    }
    row.SetSortMark(mark);
}

void CListRowOrder::AddText(XLISTCTRLROW & row, std::wstring_view text)
{
    XLISTCTRLROW::SortMark mark = row.sortMark();
    if (mark.rank != 0 || mark.text != 0)
        return;
    mark.text = m_texts.size();
    m_texts.insert(m_texts.end(), text.begin(), text.end());
    m_texts.push_back(L'\0');
    row.SetSortMark(mark);
    if (m_rowsWithText.empty())
    {
        m_commonLength = text.size();
    }
    else
    {
        std::size_t const first = m_rowsWithText.front()->sortMark().text;
        std::size_t common = 0;
        while (common < m_commonLength && common < text.size() && m_texts[first + common] == text[common])
            ++common;
        m_commonLength = common;
    }
    m_rowsWithText.push_back(&row);
}

void CListRowOrder::EndTexts()
{
    for (XLISTCTRLROW * const row : m_rowsWithText)
    {
        XLISTCTRLROW::SortMark mark = row->sortMark();
        mark.text += m_commonLength;
        if (!m_mixed && mark.rank == 0)
        {
            long long const start = OrderedStart(&m_texts[mark.text]);
            mark.value = m_ascending ? start : ~start;
        }
        row->SetSortMark(mark);
    }
}

int CListRowOrder::CompareCells(XLISTCTRLROW const & a, XLISTCTRLROW const & b) const
{
    return CompareRows(KeyOf(a), KeyOf(b), m_ascending, [this, &a, &b] {
        return std::wcscmp(&m_texts[a.sortMark().text], &m_texts[b.sortMark().text]);
    });
}

int CListRowOrder::CompareTexts(XLISTCTRLROW const & a, XLISTCTRLROW const & b) const
{
    int const order = std::wcscmp(&m_texts[a.sortMark().text], &m_texts[b.sortMark().text]);
    if (order == 0)
        return 0;
    return (order < 0) == m_ascending ? -1 : 1;
}
