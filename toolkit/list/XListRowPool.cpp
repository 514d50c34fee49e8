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
    ++m_used;
    return slot.get();
}

bool CXListRowPool::GiveBack(XLISTCTRLROW const * row)
{
    std::unique_ptr<XLISTCTRLROW> * const begin = m_slots.get();
    std::unique_ptr<XLISTCTRLROW> * const end = begin + m_used;
    if (m_used != 0 && (end - 1)->get() == row)
    {
        --m_used;
        return true;
    }
    auto * const found = std::find_if(begin, end, [row](auto const & slot) { return slot.get() == row; });
    if (found == end)
        return false;
    --m_used;
    std::swap(*found, *(end - 1));
    return true;
}
