#include "RecordingColumns.h"

#include <algorithm>

#include "RecordingList.h"

namespace workbench
{

std::vector<int> HideableColumns(std::vector<int> const & order)
{
    std::vector<int> columns;
    auto const add = [&columns](int column) {
        if (CRecordingList::CanBeHidden(column) && std::ranges::find(columns, column) == columns.end())
        {
            columns.push_back(column);
        }
    };
    std::ranges::for_each(order, add);
    for (int column = 0; column < CRecordingList::column_count; ++column)
    {
        add(column);
    }
    return columns;
}

std::map<int, CString> ColumnNames(std::vector<int> const & columns)
{
    std::map<int, CString> names;
    for (int const column : columns)
    {
        names[static_cast<int>(names.size())] = CRecordingList::Title(column);
    }
    return names;
}

std::set<int> ShownColumns(std::vector<int> const & columns, std::set<int> const & hidden)
{
    std::set<int> shown;
    for (std::size_t place = 0; place < columns.size(); ++place)
    {
        if (!hidden.contains(columns[place]))
        {
            shown.insert(static_cast<int>(place));
        }
    }
    if (shown.size() == columns.size())
    {
        shown.insert(every_column);
    }
    return shown;
}

std::set<int> HiddenColumns(std::vector<int> const & columns, std::set<int> const & ticked)
{
    std::set<int> hidden;
    for (std::size_t place = 0; place < columns.size() && !ticked.contains(every_column); ++place)
    {
        if (!ticked.contains(static_cast<int>(place)))
        {
            hidden.insert(columns[place]);
        }
    }
    return hidden;
}

} // namespace workbench
