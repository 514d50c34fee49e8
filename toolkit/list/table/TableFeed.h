#pragma once
// What threads tell a table of its rows while it is shown.

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "frame/Export.h"
#include "list/table/TableSource.h"

/// Some rows one after the other.
struct TableRowRange
{
    /// The first one.
    TableRow first;
    /// The last one, which belongs to them.
    TableRow last;

    friend bool operator==(TableRowRange const &, TableRowRange const &) = default;
};

/// What has happened since it was asked for last.
struct TableChanges
{
    /// Rows have come; the source knows how many there are.
    bool appended = false;
    /// Rows may have other keys and other places; there may be fewer.
    bool all = false;
    /// More rows have changed than could be noted.
    bool anyValue = false;
    /// In their order, none touching another.
    std::vector<TableRowRange> changed;

    /// Whether nothing has happened.
    bool IsEmpty() const { return !appended && !all && !anyValue && changed.empty(); }
};

/// Has the window's thread ask for the changes. Called on any thread; must not wait for anything.
class TableWaker
{
public:
    virtual ~TableWaker() = default;
    /// Somebody has told something.
    virtual void Wake() = 0;
};

/// The way from any thread to a table. A teller holds it by a shared pointer, and may tell also when the table is no
/// more. Telling never waits: it takes no lock and no memory. What many tell comes to the table at once, and as one
/// change where rows are the same or lie beside each other.
class INSTRUMENT_UI_API TableFeed
{
public:
    /// waker: may be null.
    explicit TableFeed(std::shared_ptr<TableWaker> waker);
    TableFeed(TableFeed const &) = delete;
    TableFeed & operator=(TableFeed const &) = delete;

    /// The values of these rows are others now.
    void RowsChanged(TableRow first, TableRow last);
    /// So many rows have come behind the last one.
    void RowsAppended(TableRow count);
    /// Everything is another now: rows may have gone, and others have their numbers.
    void AllChanged();

    /// Of the window's thread alone: what was told since the last time. What is told later wakes it anew.
    TableChanges Take();

private:
    /// Where a range waits. The number says whose turn it is: a teller's, or that of the one who takes.
    struct Slot
    {
        std::atomic<std::uint64_t> turn;
        std::atomic<std::uint64_t> range;
    };
    static constexpr std::size_t slot_count = 4096;

    void Wake();

    std::shared_ptr<TableWaker> m_waker;
    std::unique_ptr<std::array<Slot, slot_count>> m_slots;
    std::atomic<std::uint64_t> m_nextTold{0};
    std::uint64_t m_nextTaken = 0;
    std::atomic<bool> m_woken{false};
    std::atomic<bool> m_appended{false};
    std::atomic<bool> m_all{false};
    std::atomic<bool> m_overflow{false};
};

/// Sorts ranges and joins those that overlap or touch.
INSTRUMENT_UI_API void JoinRanges(std::vector<TableRowRange> & ranges);
