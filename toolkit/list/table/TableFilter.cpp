#include "list/table/TableFilter.h"

#include <algorithm>

namespace
{
bool IsInRange(TableValue const & value, TableFilter::RangePart const & range)
{
    switch (value.Kind())
    {
    case TableKind::floating:
    case TableKind::progress:
        return value.Number() >= range.least && value.Number() <= range.greatest;
    case TableKind::whole:
    case TableKind::time:
    case TableKind::tick: {
        auto const number = static_cast<double>(value.Whole());
        return number >= range.least && number <= range.greatest;
    }
    case TableKind::blank:
    case TableKind::text:
    case TableKind::link:
        break;
    }
    return false;
}
} // namespace

TableRowFilter::TableRowFilter(TableFilter const & filter, TableLooks const & looks) : m_filter(filter), m_looks(looks)
{
    for (TableFilter::TextPart const & part : filter.texts)
        m_searches.emplace_back(part.text, part.matchCase);
}

bool TableRowFilter::Shows(TableAccess & access, TableRow row, unsigned int column, TextSearch const & search)
{
    if (!access.Read(row, column, m_value))
        return false;
    if (m_value.Kind() == TableKind::text || m_value.Kind() == TableKind::link)
        return search.IsIn(m_value.Text());
    static TableColumn const no_column;
    ShowValue(m_text, m_value, column < m_looks.columns.size() ? m_looks.columns[column] : no_column, m_looks.locale);
    return search.IsIn(m_text);
}

bool TableRowFilter::Passes(TableAccess & access, TableRow row)
{
    for (TableFilter::RangePart const & range : m_filter.ranges)
    {
        if (!access.Read(row, range.column, m_value) || !IsInRange(m_value, range))
            return false;
    }
    for (std::size_t i = 0; i < m_searches.size(); ++i)
    {
        unsigned int const column = m_filter.texts[i].column;
        if (column != TableFilter::any_column)
        {
            if (!Shows(access, row, column, m_searches[i]))
                return false;
            continue;
        }
        auto const count = static_cast<unsigned int>(m_looks.columns.size());
        unsigned int each = 0;
        while (each < count && !Shows(access, row, each, m_searches[i]))
            ++each;
        if (each == count)
            return false;
    }
    if (!m_filter.predicate)
        return true;
    TableSource const * const source = access.Source();
    return source != nullptr && m_filter.predicate(*source, row);
}

bool FilterTableRows(TableAccess & access, TableRowFilter & filter, TableRow begin, TableRow end, TableRows & rows)
{
    constexpr TableRow rows_at_a_time = 1024;
    while (begin < end)
    {
        TableRow const next = begin + std::min(rows_at_a_time, end - begin);
        access.Progress().Work(next - begin);
        for (; begin != next; ++begin)
        {
            if (filter.Passes(access, begin))
                rows.push_back(begin);
        }
        if (access.Stopped())
            return false;
    }
    return true;
}
