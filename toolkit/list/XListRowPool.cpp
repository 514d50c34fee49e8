#include "list/XListRowPool.h"

#include <algorithm>
#include <utility>

void XLISTCTRLROW::Prepare(unsigned int columns)
{
    ++m_use;
    m_kinds.reset();
    if (columns > m_capacity)
    {
        m_cells = std::make_unique<XLISTCTRLDATA[]>(columns);
        m_capacity = columns;
        return;
    }
    for (unsigned int i = 0; i < m_capacity; ++i)
        m_cells[i].Recycle();
}

void XLISTCTRLROW::SetKind(unsigned int col, std::shared_ptr<CXListCellKind> kind)
{
    if (m_kinds == nullptr)
    {
        if (kind == nullptr)
            return;
        m_kinds = std::make_unique<std::vector<std::shared_ptr<CXListCellKind>>>();
    }
    if (m_kinds->size() <= col)
        m_kinds->resize(col + 1);
    // The former one ends last: its end may run the host's code.
    (*m_kinds)[col].swap(kind);
}

void XLISTCTRLROW::InsertCell(unsigned int col)
{
    if (col == 0 || col > m_capacity)
        return;
    auto cells = std::make_unique<XLISTCTRLDATA[]>(m_capacity + 1);
    std::move(m_cells.get(), m_cells.get() + col, cells.get());
    std::move(m_cells.get() + col, m_cells.get() + m_capacity, cells.get() + col + 1);
    m_cells = std::move(cells);
    ++m_capacity;
    if (m_kinds != nullptr && col < m_kinds->size())
        m_kinds->insert(m_kinds->begin() + static_cast<std::ptrdiff_t>(col), nullptr);
}

void XLISTCTRLROW::RemoveCell(unsigned int col)
{
    if (col == 0 || col >= m_capacity)
        return;
    std::move(m_cells.get() + col + 1, m_cells.get() + m_capacity, m_cells.get() + col);
    m_cells[m_capacity - 1] = XLISTCTRLDATA();
    if (m_kinds != nullptr && col < m_kinds->size())
        m_kinds->erase(m_kinds->begin() + static_cast<std::ptrdiff_t>(col));
}

CXListRowPool::CXListRowPool(std::size_t capacity)
    : m_capacity(std::max<std::size_t>(capacity, 1)),
      m_slots(std::make_unique<std::unique_ptr<XLISTCTRLROW>[]>(m_capacity))
{
}

XLISTCTRLROW * CXListRowPool::Take()
{
    if (m_used == m_capacity)
    {
        auto slots = std::make_unique<std::unique_ptr<XLISTCTRLROW>[]>(m_capacity * 2);
        std::move(m_slots.get(), m_slots.get() + m_capacity, slots.get());
        m_slots = std::move(slots);
        m_capacity *= 2;
    }
    std::unique_ptr<XLISTCTRLROW> & slot = m_slots[m_used];
    if (slot == nullptr)
        slot = std::make_unique<XLISTCTRLROW>();
    slot->m_slot = static_cast<unsigned int>(m_used++);
    return slot.get();
}

bool CXListRowPool::GiveBack(XLISTCTRLROW const * row)
{
    if (row == nullptr || row->m_slot >= m_used || m_slots[row->m_slot].get() != row)
        return false;
    Swap(row->m_slot, --m_used);
    return true;
}

void CXListRowPool::Swap(std::size_t a, std::size_t b)
{
    std::swap(m_slots[a], m_slots[b]);
    m_slots[a]->m_slot = static_cast<unsigned int>(a);
    m_slots[b]->m_slot = static_cast<unsigned int>(b);
}
