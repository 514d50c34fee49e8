#include "RecordingColumns.h"

#include "RecordingList.h"

namespace workbench
{

std::map<int, CString> ColumnNames()
{
    std::map<int, CString> names;
    for (int column = 0; column < CRecordingList::column_count; ++column)
    {
        if (CRecordingList::CanBeHidden(column))
        {
            names[column] = CRecordingList::Title(column);
        }
    }
    return names;
}

std::set<int> ShownColumns(std::set<int> const & hidden)
{
    std::set<int> shown;
    auto all = true;
    for (auto const & [column, name] : ColumnNames())
    {
        if (hidden.contains(column))
        {
            all = false;
        }
        else
        {
            shown.insert(column);
        }
    }
    if (all)
    {
        shown.insert(every_column);
    }
    return shown;
}

std::set<int> HiddenColumns(std::set<int> const & ticked)
{
    std::set<int> hidden;
    if (ticked.contains(every_column))
    {
        return hidden;
    }
    for (auto const & [column, name] : ColumnNames())
    {
        if (!ticked.contains(column))
        {
            hidden.insert(column);
        }
    }
    return hidden;
}

} // namespace workbench
