#pragma once
// The rows of a recording's analysis frames as a table has them, and what the user types to choose among them.

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "list/table/TableOrder.h"
#include "list/table/TableSource.h"
#include "logic/FrameMeasures.h"

namespace workbench
{

/// A table's source that grows with the store.
class FrameTable : public TableSource
{
public:
    enum Column : unsigned int
    {
        column_time,      ///< in seconds
        column_peak,      ///< in dBFS
        column_rms,       ///< in dBFS
        column_crest,     ///< the peak above the RMS value, in dB
        column_frequency, ///< in Hz
        column_centroid,  ///< in Hz
        column_count
    };

    explicit FrameTable(std::shared_ptr<FrameStore const> rows) : m_rows(std::move(rows)) {}

    TableRow RowCount() const override { return static_cast<TableRow>(m_rows->Size()); }
    bool Read(TableRow row, unsigned int column, TableValue & value) const override;

private:
    std::shared_ptr<FrameStore const> m_rows;
};

/// What the user wants to see.
struct FrameFilter
{
    TableFilter rows; ///< lets all through where something is wrong
    /// What stands where a number is needed, if that is none; empty if there is nothing.
    std::optional<std::wstring> noNumber;
};

/// Of a column: "> -20", "<= 3", "-20..-10", or else a part of what its cells show. Blanks do not matter.
FrameFilter ParseFrameFilter(std::wstring_view text, unsigned int column, wchar_t decimalSign);

} // namespace workbench
