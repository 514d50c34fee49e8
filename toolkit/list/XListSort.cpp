#include "list/XListSort.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cwchar>
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
    auto const bits = std::bit_cast<std::int32_t>(value + 0.0F);
    return bits >= 0 ? bits : bits ^ 0x7FFFFFFF;
}

/// What CompareValues goes by, as one number.
long long OrderedValue(XLISTCTRLDATA const & cell)
{
    if ((cell.properties & XLP_PROGRESS) != 0)
        return cell.progressValue;
    switch (cell.valueType)
    {
    case XLV_INT:
        return cell.intValue;
    case XLV_FLOAT:
        return Ordered(cell.floatValue);
    case XLV_DATETIME:
        return cell.timeValue.GetTime();
    default:
        return 0;
    }
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

ListSortKey::ListSortKey(XLISTCTRLDATA const * cell) : hasCell(cell != nullptr)
{
    if (cell == nullptr)
        return;
    sortsFirst = (cell->properties & XLP_SORT_FIRST) != 0;
    sortsLast = (cell->properties & XLP_SORT_LAST) != 0;
    isProgress = (cell->properties & XLP_PROGRESS) != 0;
    valueType = cell->valueType;
    progressValue = cell->progressValue;
    intValue = cell->intValue;
    floatValue = cell->floatValue;
    timeValue = cell->timeValue.GetTime();
}

int CompareValues(ListSortKey const & a, ListSortKey const & b)
{
    if (a.isProgress)
        return Compare(a.progressValue, b.progressValue);
    switch (a.valueType)
    {
    case XLV_INT:
        return Compare(a.intValue, b.intValue);
    case XLV_FLOAT:
        return Compare(a.floatValue, b.floatValue);
    case XLV_DATETIME:
        return Compare(a.timeValue, b.timeValue);
    default:
        return 0;
    }
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
        bool const progress = (cell->properties & XLP_PROGRESS) != 0;
        if (m_plainCells++ == 0)
        {
            m_progress = progress;
            m_valueType = cell->valueType;
        }
        // A NaN equals numbers that differ.
        if (progress != m_progress || (!progress && cell->valueType != m_valueType) ||
            (!progress && cell->valueType == XLV_FLOAT && std::isnan(cell->floatValue)))
            m_mixed = true;
        if (!progress && cell->valueType == XLV_TEXT)
            m_textCells = true;
        mark.value = OrderedValue(*cell);
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
    return CompareRows(ListSortKey(CellOf(a)), ListSortKey(CellOf(b)), m_ascending, [this, &a, &b] {
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
