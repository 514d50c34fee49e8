#include "list/table/TableModel.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace
{
bool IsInRanges(std::vector<TableRowRange> const & ranges, TableRow row)
{
    auto const next = std::upper_bound(ranges.begin(), ranges.end(), row,
                                       [](TableRow wanted, TableRowRange const & each) { return wanted < each.first; });
    return next != ranges.begin() && row <= std::prev(next)->last;
}

/// Ranges cut to rows below that count.
std::size_t CutRanges(std::vector<TableRowRange> & ranges, TableRow count)
{
    std::size_t rows = 0;
    std::size_t kept = 0;
    for (TableRowRange const & each : ranges)
    {
        if (each.first < count)
        {
            ranges[kept] = {each.first, std::min(each.last, count - 1)};
            rows += ranges[kept].last - std::size_t{ranges[kept].first} + 1;
            ++kept;
        }
    }
    ranges.resize(kept);
    return rows;
}
} // namespace

void TableOrderTask::Run()
{
    try
    {
        TableAccess access(m_source, m_progress);
        bool going = true;
        if (m_filter->IsEmpty())
        {
            m_rows.Resize(m_count);
            std::iota(m_rows.data(), m_rows.data() + m_rows.size(), TableRow{0});
        }
        else
        {
            m_progress.Expect(m_count, 0, m_sort.empty() ? 1000 : 400);
            TableRowFilter filter(*m_filter, *m_looks);
            going = FilterTableRows(access, filter, 0, m_count, m_rows);
            m_rows.Fit();
        }
        m_succeeded = going && SortTableRows(access, m_sort, m_rows);
    }
    catch (...)
    {
        // A source that throws, or no memory: what is shown stays.
        m_rows = TableRows();
        m_succeeded = false;
    }
    m_finished.store(true, std::memory_order_release);
}

TableModel::TableModel()
    : m_looks(std::make_shared<TableLooks const>()),
      m_filter(std::make_shared<TableFilter const>()),
      m_shownFilter(m_filter),
      m_shownLooks(m_looks)
{
}

void TableModel::SetSource(std::shared_ptr<TableSource> const & source)
{
    m_source = source;
    m_selected.Clear();
    m_focus.reset();
    m_anchor.reset();
    m_waiting.clear();
    // Nothing of the former rows may be shown as some of the new ones'.
    m_rows = TableRows();
    m_explicit = false;
    m_shownSort.clear();
    m_shownFilter = std::make_shared<TableFilter const>();
    m_count = CountNow();
    Wish();
}

void TableModel::SetLooks(TableLooks looks)
{
    m_looks = std::make_shared<TableLooks const>(std::move(looks));
    if (!m_filter->IsEmpty())
        Wish();
}

void TableModel::SetSort(std::vector<TableSortColumn> sort)
{
    m_sort = std::move(sort);
    Wish();
}

void TableModel::SetFilter(TableFilter filter)
{
    m_filter = std::make_shared<TableFilter const>(std::move(filter));
    Wish();
}

void TableModel::ClickTitle(unsigned int column, bool add)
{
    std::vector<TableSortColumn> sort = m_sort;
    auto const found = std::find_if(sort.begin(), sort.end(),
                                    [column](TableSortColumn const & each) { return each.column == column; });
    if (add && found != sort.end())
        found->descending = !found->descending;
    else if (add)
        sort.push_back({column, false});
    else
        sort = {{column, sort.size() == 1 && found != sort.end() && !found->descending}};
    SetSort(std::move(sort));
}

void TableModel::Wish()
{
    ++m_wish;
    m_needsOrder = true;
    if (std::shared_ptr<TableOrderTask> const task = m_task.lock())
        task->Progress().Stop();
    m_task.reset();
}

TableRow TableModel::CountNow() const
{
    std::shared_ptr<TableSource> const source = m_source.lock();
    // The last number is none.
    return source ? std::min(source->RowCount(), no_table_row - 1) : 0;
}

bool TableModel::OrderTakesLong() const
{
    return CountNow() > most_rows_at_once && (!m_sort.empty() || !m_filter->IsEmpty());
}

TableEffect TableModel::FindOrder()
{
    std::shared_ptr<TableOrderTask> const task = BeginOrder();
    task->Run();
    return TakeOrder(*task);
}

std::shared_ptr<TableOrderTask> TableModel::BeginOrder()
{
    if (std::shared_ptr<TableOrderTask> const former = m_task.lock())
        former->Progress().Stop();
    auto task = std::make_shared<TableOrderTask>();
    task->m_source = m_source;
    task->m_sort = m_sort;
    task->m_filter = m_filter;
    task->m_looks = m_looks;
    task->m_count = m_sort.empty() && m_filter->IsEmpty() ? 0 : CountNow();
    task->m_wish = m_wish;
    m_task = task;
    m_changedSince.clear();
    m_allChangedSince = false;
    return task;
}

TableEffect TableModel::TakeOrder(TableOrderTask & task)
{
    TableEffect effect;
    if (!task.Finished() || !task.m_succeeded || task.m_wish != m_wish || m_task.lock().get() != &task)
        return effect;
    m_task.reset();
    TableRow const formerSize = Size();
    m_needsOrder = m_allChangedSince;
    m_shownSort = task.m_sort;
    m_shownFilter = task.m_filter;
    m_shownLooks = task.m_looks;
    m_explicit = !m_shownSort.empty() || !m_shownFilter->IsEmpty();
    m_rows = std::move(task.m_rows);
    m_waiting.clear();
    TableRow const count = CountNow();
    if (m_explicit)
    {
        m_count = task.m_count;
        if (count < m_count)
            DropRowsFrom(count);
        TableRow const firstNew = std::min(m_count, count);
        m_count = count;
        CutRanges(m_changedSince, firstNew);
        Place(std::move(m_changedSince), firstNew, count);
    }
    m_count = count;
    m_changedSince.clear();
    effect.allMoved = true;
    effect.sizeChanged = Size() != formerSize;
    return effect;
}

TableRow TableModel::RowAt(TableRow position) const
{
    if (position >= Size())
        return no_table_row;
    return m_explicit ? m_rows[position] : position;
}

TableRow TableModel::PositionOf(TableRow row) const
{
    if (!m_explicit)
        return row < m_count ? row : nowhere;
    TableRow const * const found = std::find(m_rows.begin(), m_rows.end(), row);
    return found == m_rows.end() ? nowhere : static_cast<TableRow>(found - m_rows.begin());
}

bool TableModel::ReadRow(TableRow row, unsigned int column, TableValue & value) const
{
    std::shared_ptr<TableSource> const source = m_source.lock();
    if (row != no_table_row && source && source->Read(row, column, value))
        return true;
    value.SetBlank();
    return false;
}

std::wstring TableModel::Text(TableRow position, unsigned int column) const
{
    TableValue value;
    std::wstring text;
    if (Read(position, column, value) && column < m_looks->columns.size())
        ShowValue(text, value, m_looks->columns[column], m_looks->locale);
    return text;
}

TableRow TableModel::FindTyped(unsigned int column, std::wstring_view text, TableRow from) const
{
    if (column >= m_looks->columns.size() || text.empty())
        return nowhere;
    TableRow const size = Size();
    TextSearch const search(text);
    TableProgress progress;
    TableAccess access(m_source, progress);
    TableValue value;
    std::wstring shown;
    TableRow position = from < size ? from : 0;
    for (TableRow i = 0; i < size; ++i)
    {
        access.Read(RowAt(position), column, value);
        ShowValue(shown, value, m_looks->columns[column], m_looks->locale);
        if (search.BeginsIn(shown))
            return position;
        if (++position == size)
            position = 0;
    }
    return nowhere;
}

void TableModel::DropRowsFrom(TableRow count)
{
    if (!m_explicit)
        return;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_rows.size(); ++i)
    {
        if (m_rows[i] < count)
            m_rows[kept++] = m_rows[i];
    }
    m_rows.Resize(kept);
}

TableEffect TableModel::Apply(TableChanges const & changes, bool place)
{
    TableEffect effect;
    TableRow const formerSize = Size();
    TableRow const formerCount = m_count;
    TableRow const count = CountNow();
    effect.rows = changes.changed;
    effect.allValues = changes.all || changes.anyValue;
    if (!m_task.expired())
    {
        m_changedSince.insert(m_changedSince.end(), changes.changed.begin(), changes.changed.end());
        JoinRanges(m_changedSince);
        m_allChangedSince = m_allChangedSince || effect.allValues;
    }
    m_count = count;
    if (!m_explicit)
    {
        effect.sizeChanged = count != formerCount;
        return effect;
    }

    if (count < formerCount)
    {
        DropRowsFrom(count);
        effect.allMoved = true;
    }
    m_waiting.insert(m_waiting.end(), changes.changed.begin(), changes.changed.end());
    TableRow const firstNew = std::min(formerCount, count);
    if (count > firstNew)
        m_waiting.push_back({firstNew, count - 1});
    JoinRanges(m_waiting);
    std::size_t const rows = CutRanges(m_waiting, count);
    // So many rows that finding the whole order anew takes no longer than their places.
    constexpr std::size_t least_part = 16;
    constexpr std::size_t always_few = 256;
    if (effect.allValues || rows > std::max(always_few, m_rows.size() / least_part))
    {
        if (!OrderTakesLong() && !m_needsOrder)
        {
            TableEffect const found = FindOrder();
            effect.allMoved = effect.allMoved || found.allMoved;
        }
        else if (effect.allValues || rows > most_rows_at_once)
        {
            // Everything new comes with the order that is to be found, which tells how many rows it knew.
            m_needsOrder = true;
            m_waiting.clear();
            m_count = count;
        }
        else if (place)
        {
            Place(std::exchange(m_waiting, {}), count, count);
            effect.allMoved = true;
        }
    }
    else if (rows != 0 && (place || Size() <= most_rows_at_once))
    {
        Place(std::exchange(m_waiting, {}), count, count);
        effect.allMoved = true;
    }
    effect.sizeChanged = Size() != formerSize;
    return effect;
}

void TableModel::Place(std::vector<TableRowRange> changed, TableRow firstNew, TableRow endNew)
{
    if (firstNew < endNew)
        changed.push_back({firstNew, endNew - 1});
    JoinRanges(changed);
    if (changed.empty())
        return;
    TableProgress progress;
    TableAccess access(m_source, progress);
    TableRowFilter filter(*m_shownFilter, *m_shownLooks);
    TableRows coming;
    for (TableRowRange const & each : changed)
        FilterTableRows(access, filter, each.first, each.last + 1, coming);
    SortTableRows(access, m_shownSort, coming);

    bool const one = changed.size() == 1;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < m_rows.size(); ++i)
    {
        TableRow const row = m_rows[i];
        bool const goes = one ? row >= changed.front().first && row <= changed.front().last : IsInRanges(changed, row);
        if (!goes)
            m_rows[kept++] = row;
    }
    m_rows.Resize(kept);

    // Where each comes, from the last one ahead; those behind it move by as many as come before them.
    TableRowCompare compare(access, m_shownSort);
    m_rows.Resize(kept + coming.size());
    std::size_t end = kept;
    for (std::size_t i = coming.size(); i-- > 0;)
    {
        compare.Take(coming[i]);
        std::size_t begin = 0;
        std::size_t behind = end;
        while (begin != behind)
        {
            std::size_t const middle = begin + (behind - begin) / 2;
            if (compare.ComesAheadOf(m_rows[middle]))
                behind = middle;
            else
                begin = middle + 1;
        }
        std::copy_backward(m_rows.data() + begin, m_rows.data() + end, m_rows.data() + end + i + 1);
        m_rows[begin + i] = coming[i];
        end = begin;
    }
}

std::optional<TableKey> TableModel::KeyAt(TableRow position) const
{
    TableRow const row = RowAt(position);
    std::shared_ptr<TableSource> const source = m_source.lock();
    if (row == no_table_row || !source || row >= source->RowCount())
        return std::nullopt;
    return source->Key(row);
}

TableRow TableModel::PositionOfKey(std::optional<TableKey> const & key) const
{
    std::shared_ptr<TableSource> const source = m_source.lock();
    if (!key || !source)
        return nowhere;
    TableRow const row = source->RowOfKey(*key);
    return row == no_table_row ? nowhere : PositionOf(row);
}

bool TableModel::IsSelected(TableRow position) const
{
    return IsRowSelected(RowAt(position));
}

TableRow TableModel::FocusPosition() const
{
    TableRow const row = FocusRow();
    if (row == no_table_row)
        return nowhere;
    if (RowAt(m_focusPlace) != row)
        m_focusPlace = PositionOf(row);
    return m_focusPlace;
}

bool TableModel::IsRowSelected(TableRow row) const
{
    if (m_selected.Count() == 0)
        return false;
    std::shared_ptr<TableSource> const source = m_source.lock();
    return source && row < source->RowCount() && m_selected.Contains(source->Key(row));
}

TableRow TableModel::FocusRow() const
{
    std::shared_ptr<TableSource> const source = m_source.lock();
    return m_focus && source ? source->RowOfKey(*m_focus) : no_table_row;
}

void TableModel::Select(TableRow position, bool selected)
{
    std::optional<TableKey> const key = KeyAt(position);
    if (!key)
        return;
    if (selected)
        m_selected.Add(*key);
    else
        m_selected.Remove(*key);
}

void TableModel::SelectRange(TableRow from, TableRow to)
{
    if (from > to)
        std::swap(from, to);
    TableRow const size = Size();
    std::shared_ptr<TableSource> const source = m_source.lock();
    if (from >= size || !source)
        return;
    TableRow const count = source->RowCount();
    std::vector<TableKey> keys;
    keys.reserve(std::min(to, size - 1) - std::size_t{from} + 1);
    for (TableRow position = from; position < size && position <= to; ++position)
    {
        if (TableRow const row = RowAt(position); row < count)
            keys.push_back(source->Key(row));
    }
    m_selected.Add(keys);
}

void TableModel::SelectAll()
{
    if (Size() != 0)
        SelectRange(0, Size() - 1);
}

std::vector<TableRow> TableModel::SelectedPositions() const
{
    std::vector<TableRow> positions;
    std::shared_ptr<TableSource> const source = m_source.lock();
    if (m_selected.Count() == 0 || !source)
        return positions;
    TableRow const size = Size();
    TableRow const count = source->RowCount();
    for (TableRow position = 0; position < size; ++position)
    {
        if (TableRow const row = RowAt(position); row < count && m_selected.Contains(source->Key(row)))
            positions.push_back(position);
    }
    return positions;
}

TableRow TableModel::NextSelected(TableRow from) const
{
    std::shared_ptr<TableSource> const source = m_source.lock();
    if (m_selected.Count() == 0 || !source)
        return nowhere;
    TableRow const size = Size();
    TableRow const count = source->RowCount();
    for (TableRow position = from; position < size; ++position)
    {
        if (TableRow const row = RowAt(position); row < count && m_selected.Contains(source->Key(row)))
            return position;
    }
    return nowhere;
}

void TableModel::SetFocus(TableRow position)
{
    m_focus = KeyAt(position);
    m_focusPlace = position;
}

void TableModel::SetAnchor(TableRow position)
{
    m_anchor = KeyAt(position);
}
