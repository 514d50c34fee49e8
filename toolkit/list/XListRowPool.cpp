#include "list/XListRowPool.h"

#include <algorithm>
#include <utility>

void XLISTCTRLROW::Prepare(unsigned int columns)
{
    ++m_use;
    if (columns > m_capacity)
    {
        m_cells = std::make_unique<XLISTCTRLDATA[]>(columns);
        m_capacity = columns;
        return;
    }
    for (unsigned int i = 0; i < m_capacity; ++i)
        m_cells[i].Recycle();
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
