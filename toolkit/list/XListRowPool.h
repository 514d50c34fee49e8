#pragma once
// The rows of a list, and the store that recycles them.

#include <cstddef>
#include <memory>
#include <utility>

#include "list/XListCtrlData.h"

/// One row: a record for each column. A row made for fewer columns than the list now has is not extended.
class XLISTCTRLROW
{
public:
    /// The records; null for a row that was never prepared.
    XLISTCTRLDATA * cells() const { return m_cells.get(); }
    /// The number of records, at least that of the list's columns when the row was taken from the pool.
    unsigned int capacity() const { return m_capacity; }
    /// Makes room for that many columns and gives all records up to the capacity their values of a recycled cell.
    void Prepare(unsigned int columns);
    /// The place in the list that a sort under way has found for the row; without a meaning at other times.
    int sortPlace() const { return m_sortPlace; }
    void SetSortPlace(int place) { m_sortPlace = place; }
    /// Counts the rows that this object has been: whoever holds it over a call that can run the host's code sees by
    /// another number that it was given back and taken anew.
    unsigned long long use() const { return m_use; }

private:
    std::unique_ptr<XLISTCTRLDATA[]> m_cells;
    unsigned int m_capacity = 0;
    int m_sortPlace = 0;
    unsigned long long m_use = 0;
};

/// Owns every row that a list ever had, until the list ends. Rows in use stand first, in no particular order; behind
/// them finished rows wait for reuse.
class CXListRowPool
{
public:
    /// capacity: the slots to begin with, at least 1.
    explicit CXListRowPool(std::size_t capacity);
    CXListRowPool(CXListRowPool const &) = delete;
    CXListRowPool & operator=(CXListRowPool const &) = delete;

    /// A row, recycled or new, whose cells are not reset yet. The pool owns it.
    XLISTCTRLROW * Take();
    /// Gives a row back; its cells stay as they are until its next use. False for a row that is not in use.
    bool GiveBack(XLISTCTRLROW const * row);
    /// Every row is given back.
    void GiveBackAll() { m_used = 0; }
    /// Every row is given back for which keeps(XLISTCTRLROW const &) is false.
    template <class Keeps> void GiveBackUnless(Keeps && keeps)
    {
        for (std::size_t slot = m_used; slot-- > 0;)
        {
            if (!keeps(std::as_const(*m_slots[slot])))
                GiveBack(m_slots[slot].get());
        }
    }

    std::size_t capacity() const { return m_capacity; }
    std::size_t used() const { return m_used; }

private:
    std::size_t m_capacity;
    std::size_t m_used = 0;
    std::unique_ptr<std::unique_ptr<XLISTCTRLROW>[]> m_slots;
};
