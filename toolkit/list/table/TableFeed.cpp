#include "list/table/TableFeed.h"

#include <algorithm>
#include <utility>

TableFeed::TableFeed(std::shared_ptr<TableWaker> waker)
    : m_waker(std::move(waker)),
      m_slots(std::make_unique<std::array<Slot, slot_count>>())
{
    for (std::size_t i = 0; i < slot_count; ++i)
        (*m_slots)[i].turn.store(i, std::memory_order_relaxed);
}

void TableFeed::RowsChanged(TableRow first, TableRow last)
{
    if (first > last)
        return;
    // A slot is a teller's in its turn, and the next one's behind it when it has been filled.
    std::uint64_t turn = m_nextTold.load(std::memory_order_relaxed);
    for (;;)
    {
        Slot & slot = (*m_slots)[turn % slot_count];
        std::uint64_t const present = slot.turn.load(std::memory_order_acquire);
        if (present == turn)
        {
            if (m_nextTold.compare_exchange_weak(turn, turn + 1, std::memory_order_relaxed))
            {
                slot.range.store(static_cast<std::uint64_t>(first) << 32 | last, std::memory_order_relaxed);
                slot.turn.store(turn + 1, std::memory_order_release);
                break;
            }
        }
        else if (present < turn)
        {
            m_overflow.store(true, std::memory_order_release);
            break;
        }
        else
        {
            turn = m_nextTold.load(std::memory_order_relaxed);
        }
    }
    Wake();
}

void TableFeed::RowsAppended(TableRow count)
{
    if (count == 0)
        return;
    m_appended.store(true, std::memory_order_release);
    Wake();
}

void TableFeed::AllChanged()
{
    m_all.store(true, std::memory_order_release);
    Wake();
}

void TableFeed::Wake()
{
    if (!m_woken.exchange(true, std::memory_order_acq_rel) && m_waker)
        m_waker->Wake();
}

TableChanges TableFeed::Take()
{
    // First of all: whatever is told from here on wakes anew, if in vain.
    m_woken.exchange(false, std::memory_order_acq_rel);
    TableChanges changes;
    changes.appended = m_appended.exchange(false, std::memory_order_acq_rel);
    changes.all = m_all.exchange(false, std::memory_order_acq_rel);
    changes.anyValue = m_overflow.exchange(false, std::memory_order_acq_rel);
    // No more than were there at the beginning, however fast others tell.
    for (std::size_t i = 0; i < slot_count; ++i)
    {
        Slot & slot = (*m_slots)[m_nextTaken % slot_count];
        if (slot.turn.load(std::memory_order_acquire) != m_nextTaken + 1)
            break;
        std::uint64_t const range = slot.range.load(std::memory_order_relaxed);
        slot.turn.store(m_nextTaken + slot_count, std::memory_order_release);
        ++m_nextTaken;
        changes.changed.push_back({static_cast<TableRow>(range >> 32), static_cast<TableRow>(range)});
    }
    JoinRanges(changes.changed);
    return changes;
}

void JoinRanges(std::vector<TableRowRange> & ranges)
{
    std::sort(ranges.begin(), ranges.end(),
              [](TableRowRange const & a, TableRowRange const & b) { return a.first < b.first; });
    std::size_t kept = 0;
    for (TableRowRange const & each : ranges)
    {
        if (kept != 0 && (ranges[kept - 1].last == no_table_row || each.first <= ranges[kept - 1].last + 1))
            ranges[kept - 1].last = std::max(ranges[kept - 1].last, each.last);
        else
            ranges[kept++] = each;
    }
    ranges.resize(kept);
}
