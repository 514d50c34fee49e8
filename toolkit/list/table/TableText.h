#pragma once
// A table's columns, and what its values are shown and read as.

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Export.h"
#include "list/table/NumberFormat.h"
#include "list/table/TableSource.h"

/// Where a text stands in its cell.
enum class TableAlign
{
    /// Numbers at their decimal sign, times and ticks in the middle, all else at the left.
    by_kind,
    /// At the left.
    left,
    /// In the middle.
    centre,
    /// At the right.
    right
};

/// A column as the host describes it.
struct TableColumn
{
    /// What the header shows, with the unit where that stands there.
    std::wstring title;
    /// By this name place, width and whether it is hidden are kept; the title where empty.
    std::wstring name;
    /// How its numbers are written.
    NumberFormat format;
    /// Digits of a time behind the second, 0 to 6.
    int secondDigits = 3;
    /// Where its texts stand.
    TableAlign align = TableAlign::by_kind;
    /// In pixels at 96 to the inch.
    int width = 90;
    /// Whether the user has to ask for it.
    bool hidden = false;
    /// The user may edit the cells and paste into them.
    bool editable = false;
    /// What is read from texts that are edited or pasted.
    TableKind kind = TableKind::text;
    /// Says of an edited value why it cannot be taken; an empty text if it can.
    std::function<std::wstring(TableValue const & value)> check;
};

/// How values are written where the user lives.
struct TableLocale
{
    /// Between a number's whole part and its fraction.
    wchar_t decimalSign = L'.';
    /// Text of a time in microseconds since 1970 with so many digits behind the second, and the reverse. Without them
    /// times are "2026-03-01 14:05:09.250".
    std::function<std::wstring(long long microseconds, int secondDigits)> showTime;
    /// Nothing for a text that is no time.
    std::function<std::optional<long long>(std::wstring_view text)> parseTime;
};

/// How a table shows its values: never changed once it is shared with work on other threads.
struct TableLooks
{
    /// All of them.
    std::vector<TableColumn> columns;
    /// How values are written.
    TableLocale locale;
};

/// The title with the unit, where it stands there: "Peak [V]".
INSTRUMENT_UI_API std::wstring TitleOf(TableColumn const & column);
/// The name by which the column is remembered.
INSTRUMENT_UI_API std::wstring const & NameOf(TableColumn const & column);

/// Writes what the cell shows and gives the place of its decimal sign, or the text's length.
INSTRUMENT_UI_API std::size_t ShowValue(std::wstring & text, TableValue const & value, TableColumn const & column,
                                        TableLocale const & locale);
/// Reads a text as a value of the column's kind: as shown, or else in the form that CSV files have. An empty text is a
/// blank value. False if it is neither.
INSTRUMENT_UI_API bool ParseValue(TableValue & value, std::wstring_view text, TableColumn const & column,
                                  TableLocale const & locale);

/// The value with all its digits and a point, without unit, as it stands in CSV files.
INSTRUMENT_UI_API void PlainValue(std::wstring & text, TableValue const & value);

/// "2026-03-01 14:05:09.250"; with fewer digits what is beyond them is cut.
INSTRUMENT_UI_API std::wstring PlainTime(long long microseconds, int secondDigits);
/// Reads PlainTime's form, also with a T in the middle, without seconds or without a time.
INSTRUMENT_UI_API std::optional<long long> ParsePlainTime(std::wstring_view text);
