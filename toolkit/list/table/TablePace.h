#pragma once
// How often a table that changes all the time is painted.

/// Says when the next repaint is due, so that there is at most one in 16 ms. Times in milliseconds of any clock.
class TablePace
{
public:
    static constexpr long long shortest_interval = 16;

    /// How long to wait until what has changed may be painted; 0 for at once.
    long long Wait(long long now) const
    {
        if (!m_painted || now - m_last >= shortest_interval || now < m_last)
            return 0;
        return shortest_interval - (now - m_last);
    }
    void Painted(long long now)
    {
        m_painted = true;
        m_last = now;
    }

private:
    bool m_painted = false;
    long long m_last = 0;
};
