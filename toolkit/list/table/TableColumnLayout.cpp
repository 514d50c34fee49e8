#include "list/table/TableColumnLayout.h"

#include <algorithm>
#include <numeric>

void TableColumnLayout::Reset(std::vector<TableColumn> const & columns)
{
    m_columns.clear();
    for (TableColumn const & column : columns)
        m_columns.push_back({std::clamp(column.width, least_width, greatest_width), column.hidden});
    m_order.resize(m_columns.size());
    std::iota(m_order.begin(), m_order.end(), 0U);
    if (!m_columns.empty() && Shown().empty())
        m_columns.front().hidden = false;
}

void TableColumnLayout::Restore(std::function<std::optional<StoredTableColumn>(unsigned int column)> const & stored)
{
    struct Placed
    {
        unsigned int column;
        int place;
    };
    std::vector<Placed> known;
    std::vector<unsigned int> unknown;
    for (unsigned int column = 0; column < Count(); ++column)
    {
        std::optional<StoredTableColumn> const each = stored(column);
        if (!each)
        {
            unknown.push_back(column);
            continue;
        }
        m_columns[column] = {std::clamp(each->width, least_width, greatest_width), each->hidden};
        known.push_back({column, each->place});
    }
    std::stable_sort(known.begin(), known.end(), [](Placed const & a, Placed const & b) { return a.place < b.place; });
    m_order.clear();
    for (Placed const & each : known)
        m_order.push_back(each.column);
    for (unsigned int const column : unknown)
    {
        auto const before = column == 0 ? m_order.end() : std::find(m_order.begin(), m_order.end(), column - 1);
        m_order.insert(column == 0 ? m_order.begin() : before == m_order.end() ? before : before + 1, column);
    }
    if (!m_columns.empty() && Shown().empty())
        m_columns[m_order.front()].hidden = false;
}

StoredTableColumn TableColumnLayout::Stored(unsigned int column) const
{
    auto const place = std::find(m_order.begin(), m_order.end(), column);
    if (place == m_order.end())
        return {};
    return {static_cast<int>(place - m_order.begin()), m_columns[column].width, m_columns[column].hidden};
}

std::vector<unsigned int> TableColumnLayout::Shown() const
{
    std::vector<unsigned int> shown;
    std::copy_if(m_order.begin(), m_order.end(), std::back_inserter(shown),
                 [this](unsigned int column) { return !m_columns[column].hidden; });
    return shown;
}

bool TableColumnLayout::Hide(unsigned int column, bool hidden)
{
    if (column >= Count())
        return false;
    if (hidden && !m_columns[column].hidden && Shown().size() == 1)
        return false;
    m_columns[column].hidden = hidden;
    return true;
}

void TableColumnLayout::SetWidth(unsigned int column, int width)
{
    if (column < Count())
        m_columns[column].width = std::clamp(width, least_width, greatest_width);
}

void TableColumnLayout::Move(unsigned int column, unsigned int shownPlace)
{
    auto const from = std::find(m_order.begin(), m_order.end(), column);
    if (from == m_order.end())
        return;
    m_order.erase(from);
    auto at = m_order.begin();
    for (unsigned int passed = 0; at != m_order.end(); ++at)
    {
        if (!m_columns[*at].hidden && passed++ == shownPlace)
            break;
    }
    m_order.insert(at, column);
}

unsigned int TableColumnLayout::Frozen() const
{
    auto const shown = static_cast<unsigned int>(Shown().size());
    return shown == 0 ? 0 : std::min(m_frozen, shown - 1);
}
