#pragma once
// What a table shows: values of several kinds, and the host's interface that gives them.

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/Export.h"

/// A row as the source counts them, from 0.
using TableRow = std::uint32_t;
/// Stands for no row, and is none.
constexpr TableRow no_table_row = 0xFFFFFFFF;

/// What names a row for as long as there is one, whatever its place among the others.
using TableKey = std::uint64_t;

/// What a value is.
enum class TableKind : unsigned char
{
    /// Nothing is known: an empty cell, which sorts behind all others.
    blank,
    /// Sorted in natural order: "Ch 2" ahead of "Ch 10".
    text,
    /// A whole number of 64 bits.
    whole,
    /// A number with a unit of its own or the column's.
    floating,
    /// A date with its time.
    time,
    /// A check box.
    tick,
    /// A bar.
    progress,
    /// A text that can be followed.
    link
};

/// What one cell holds. Made once and filled many times, it takes no memory anew.
class TableValue
{
public:
    /// What it is.
    TableKind Kind() const { return m_kind; }
    /// Of a text or link what it shows, of a floating number its own unit, else empty.
    std::wstring const & Text() const { return m_text; }
    /// Of a whole number its value, of a time the microseconds since 1970-01-01 00:00, as they shall be shown; of a
    /// tick 0 or 1.
    long long Whole() const { return m_whole; }
    /// Of a floating number its value, of progress the percent done. Not-a-number and the infinities are values, too;
    /// an infinity says that the range was exceeded.
    double Number() const { return m_number; }

    /// Makes it nothing.
    void SetBlank() { Set(TableKind::blank, {}); }
    /// Makes it a text.
    void SetText(std::wstring_view text) { Set(TableKind::text, text); }
    /// Makes it a whole number.
    void SetWhole(long long value)
    {
        Set(TableKind::whole, {});
        m_whole = value;
    }
    /// Makes it a floating number. unit: of this cell alone; empty for the column's.
    void SetNumber(double value, std::wstring_view unit = {})
    {
        Set(TableKind::floating, unit);
        m_number = value;
    }
    /// Makes it a time, in microseconds since 1970-01-01 00:00.
    void SetTime(long long microseconds)
    {
        Set(TableKind::time, {});
        m_whole = microseconds;
    }
    /// Makes it a check box.
    void SetTick(bool ticked)
    {
        Set(TableKind::tick, {});
        m_whole = ticked ? 1 : 0;
    }
    /// Makes it a bar.
    void SetProgress(double percent)
    {
        Set(TableKind::progress, {});
        m_number = percent;
    }
    /// Makes it a link.
    void SetLink(std::wstring_view text) { Set(TableKind::link, text); }

private:
    void Set(TableKind kind, std::wstring_view text)
    {
        m_kind = kind;
        // Most values have none, and a million of them are set for one sort.
        if (text.empty())
            m_text.clear();
        else
            m_text.assign(text);
    }

    TableKind m_kind = TableKind::blank;
    long long m_whole = 0;
    double m_number = 0;
    std::wstring m_text;
};

/// The host's rows. They are asked for by the window's thread and by threads of the table's own (sorting, filtering and
/// export of many rows), so that every question must be answered on any thread, also several at a time. The table holds
/// its source by a weak pointer and locks it for some questions at a time only: the last to let go of it may be one of
/// the table's threads. No answer may be an exception, and none may call the table, which is in the middle of
/// something.
class TableSource
{
public:
    virtual ~TableSource() = default;

    /// The rows there are now. May differ from one question to the next.
    virtual TableRow RowCount() const = 0;
    /// Sets the value of a cell; false leaves the cell blank. Asked also for rows that are no more.
    virtual bool Read(TableRow row, unsigned int column, TableValue & value) const = 0;
    /// The row's key: by it selection and focus stay with their rows. Whoever overrides it overrides RowOfKey, too.
    virtual TableKey Key(TableRow row) const { return row; }
    /// The row with that key, or no_table_row.
    virtual TableRow RowOfKey(TableKey key) const
    {
        return key < RowCount() ? static_cast<TableRow>(key) : no_table_row;
    }
    /// Takes a value that the user has edited or pasted; false refuses it. Called by the window's thread alone; may
    /// call the table, and end it.
    virtual bool Write(TableRow row, unsigned int column, TableValue const & value)
    {
        static_cast<void>(row);
        static_cast<void>(column);
        static_cast<void>(value);
        return false;
    }

protected:
    TableSource() = default;
    TableSource(TableSource const &) = default;
    TableSource & operator=(TableSource const &) = default;
};
