#pragma once
// The rows of a list, and the store that recycles them.

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "list/XListCellKind.h"
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
    /// What a sort under way goes by: the rank first, then the value. Without a meaning at other times.
    struct SortMark
    {
        /// A number by which rows of one rank compare.
        long long value = 0;
        /// Where the text shown begins, among the texts of the sort.
        std::size_t text = 0;
        /// Decides first.
        int rank = 0;
    };
    /// The mark of the sort under way.
    SortMark const & sortMark() const { return m_sortMark; }
    /// Sets the mark of the sort under way.
    void SetSortMark(SortMark const & mark) { m_sortMark = mark; }
    /// Counts the rows that this object has been: whoever holds it over a call that can run the host's code sees by
    /// another number that it was given back and taken anew.
    unsigned int use() const { return m_use; }
    /// Where the row was seen last; -1 if nowhere yet. Rows move without telling it: only worth a question whether the
    /// row is still there.
    int lastPlace() const { return m_lastPlace; }
    /// Notes where the row was seen.
    void SetLastPlace(int place) const { m_lastPlace = place; }

    /// The host's own kind of a cell; null for most, and beyond the row's cells. Kinds end with the row's use.
    std::shared_ptr<CXListCellKind> const & Kind(unsigned int col) const
    {
        static std::shared_ptr<CXListCellKind> const none;
        return m_kinds != nullptr && col < m_kinds->size() ? (*m_kinds)[col] : none;
    }
    bool HasKinds() const { return m_kinds != nullptr; }
    /// Of a cell that the row has.
    void SetKind(unsigned int col, std::shared_ptr<CXListCellKind> kind);

    // Columns that come and go move the cells, with their kinds. Row words and keys stay in the first cell.

    /// A new cell at that place; nothing for a row that doesn't reach there.
    void InsertCell(unsigned int col);
    /// Takes a cell away; the capacity stays, with a fresh cell at the end. Nothing for the first one: its column may
    /// go, its cell doesn't.
    void RemoveCell(unsigned int col);

private:
    friend class CXListRowPool;

    std::unique_ptr<XLISTCTRLDATA[]> m_cells;
    unsigned int m_capacity = 0;
    unsigned int m_use = 0;
    mutable int m_lastPlace = -1;
    /// The place in its pool.
    unsigned int m_slot = 0;
    SortMark m_sortMark;
    /// One for each cell up to the last that has one. Null in most rows.
    std::unique_ptr<std::vector<std::shared_ptr<CXListCellKind>>> m_kinds;
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
    /// In use are from now on the rows, given back before or not, for which keeps(XLISTCTRLROW const &) is true.
    template <class Keeps> void KeepOnly(Keeps && keeps)
    {
        m_used = 0;
        for (std::size_t slot = 0; slot < m_capacity && m_slots[slot] != nullptr; ++slot)
        {
            if (keeps(std::as_const(*m_slots[slot])))
                Swap(slot, m_used++);
        }
    }

    /// Rows as the pool holds them; valid until it changes.
    using Slots = std::span<std::unique_ptr<XLISTCTRLROW> const>;
    /// The rows in use, in no particular order.
    Slots InUse() const { return {m_slots.get(), m_used}; }
    /// Every slot: behind the rows in use the finished ones, then nulls.
    Slots All() const { return {m_slots.get(), m_capacity}; }
    /// Whether that is a row in use, without looking at what is behind the pointer.
    bool Owns(XLISTCTRLROW const * row) const
    {
        Slots const rows = InUse();
        return std::any_of(rows.begin(), rows.end(), [row](auto const & slot) { return slot.get() == row; });
    }
    /// Whether that is the row taken last, without looking at what is behind the pointer.
    bool IsNewest(XLISTCTRLROW const * row) const { return m_used != 0 && m_slots[m_used - 1].get() == row; }

    /// Rows that the pool holds, in use or not.
    std::size_t capacity() const { return m_capacity; }
    /// Rows in use.
    std::size_t used() const { return m_used; }

private:
    /// Both slots hold rows.
    void Swap(std::size_t a, std::size_t b);

    std::size_t m_capacity;
    std::size_t m_used = 0;
    std::unique_ptr<std::unique_ptr<XLISTCTRLROW>[]> m_slots;
};
