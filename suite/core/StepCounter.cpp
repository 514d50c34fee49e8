#include <algorithm>

#include "frame/CoreLibrary.h"

CStepCounter::CStepCounter() : m_first(0), m_last(0), m_value(0) {}

CStepCounter::~CStepCounter() = default;

void CStepCounter::set_range(int first, int end)
{
    if (end < first)
        std::swap(first, end);
    m_first = first;
    m_last = end > first ? end - 1 : first;
    if (m_value < m_first || m_value > m_last)
        m_value = m_first;
}

int CStepCounter::step(bool up)
{
    if (up)
        m_value = m_value == m_last ? m_first : m_value + 1;
    else
        m_value = m_value == m_first ? m_last : m_value - 1;
    return m_value;
}

int CStepCounter::operator()() const
{
    return m_value;
}
