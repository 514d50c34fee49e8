#pragma once
// A source of rows in memory, for the tests of the table's logic.

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "list/table/TableModel.h"

namespace table_test
{
inline TableValue Text(std::wstring const & text)
{
    TableValue value;
    value.SetText(text);
    return value;
}
inline TableValue Number(double number)
{
    TableValue value;
    value.SetNumber(number);
    return value;
}
inline TableValue Whole(long long number)
{
    TableValue value;
    value.SetWhole(number);
    return value;
}
inline TableValue Time(long long microseconds)
{
    TableValue value;
    value.SetTime(microseconds);
    return value;
}
inline TableValue Tick(bool ticked)
{
    TableValue value;
    value.SetTick(ticked);
    return value;
}
inline TableValue Progress(double percent)
{
    TableValue value;
    value.SetProgress(percent);
    return value;
}

struct Row
{
    TableKey key = 0;
    std::vector<TableValue> cells;
};

class Source : public TableSource
{
public:
    std::vector<Row> rows;
    /// Asked ahead of each value that is written.
    std::function<bool(TableRow row, unsigned int column, TableValue const & value)> writes;

    Source() = default;
    /// Keys are 100, 101 and so on.
    explicit Source(std::vector<std::vector<TableValue>> cells)
    {
        for (std::vector<TableValue> & each : cells)
            rows.push_back({100 + rows.size(), std::move(each)});
    }

    TableRow RowCount() const override { return static_cast<TableRow>(rows.size()); }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override
    {
        if (row >= rows.size() || column >= rows[row].cells.size())
            return false;
        value = rows[row].cells[column];
        return true;
    }
    TableKey Key(TableRow row) const override { return rows.at(row).key; }
    TableRow RowOfKey(TableKey key) const override
    {
        for (TableRow row = 0; row < rows.size(); ++row)
        {
            if (rows[row].key == key)
                return row;
        }
        return no_table_row;
    }
    bool Write(TableRow row, unsigned int column, TableValue const & value) override
    {
        if (writes && !writes(row, column, value))
            return false;
        rows.at(row).cells.at(column) = value;
        return true;
    }
};

inline TableColumn Column(std::wstring title, TableKind kind = TableKind::text)
{
    TableColumn column;
    column.title = std::move(title);
    column.kind = kind;
    return column;
}

/// The source's rows in the order in which the model shows them.
inline std::vector<TableRow> Shown(TableModel const & model)
{
    std::vector<TableRow> rows;
    for (TableRow position = 0; position < model.Size(); ++position)
        rows.push_back(model.RowAt(position));
    return rows;
}
} // namespace table_test
