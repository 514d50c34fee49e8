#include "list/table/TableKeySet.h"

#include <algorithm>

std::size_t TableKeySet::RunsUpTo(TableKey key) const
{
    return static_cast<std::size_t>(std::upper_bound(m_first.begin(), m_first.end(), key) - m_first.begin());
}

bool TableKeySet::Contains(TableKey key) const
{
    std::size_t const runs = RunsUpTo(key);
    return runs != 0 && key <= LastOf(runs - 1);
}

void TableKeySet::Insert(std::size_t run, TableKey first, std::uint32_t further)
{
    m_first.insert(m_first.begin() + static_cast<std::ptrdiff_t>(run), first);
    m_further.insert(m_further.begin() + static_cast<std::ptrdiff_t>(run), further);
}

void TableKeySet::Erase(std::size_t run)
{
    m_first.erase(m_first.begin() + static_cast<std::ptrdiff_t>(run));
    m_further.erase(m_further.begin() + static_cast<std::ptrdiff_t>(run));
}

void TableKeySet::Add(TableKey key)
{
    std::size_t const run = RunsUpTo(key);
    if (run != 0 && key <= LastOf(run - 1))
        return;
    ++m_count;
    bool const follows = run != 0 && LastOf(run - 1) + 1 == key && m_further[run - 1] != longest;
    bool const precedes = run != m_first.size() && key + 1 == m_first[run] && m_further[run] != longest;
    if (follows && precedes && std::uint64_t{m_further[run - 1]} + m_further[run] + 2 <= longest)
    {
        m_further[run - 1] += m_further[run] + 2;
        Erase(run);
    }
    else if (follows)
    {
        ++m_further[run - 1];
    }
    else if (precedes)
    {
        m_first[run] = key;
        ++m_further[run];
    }
    else
    {
        Insert(run, key, 0);
    }
}

void TableKeySet::Remove(TableKey key)
{
    std::size_t const runs = RunsUpTo(key);
    if (runs == 0 || key > LastOf(runs - 1))
        return;
    --m_count;
    std::size_t const run = runs - 1;
    TableKey const first = m_first[run];
    TableKey const last = LastOf(run);
    if (first == last)
    {
        Erase(run);
    }
    else if (key == first)
    {
        ++m_first[run];
        --m_further[run];
    }
    else
    {
        m_further[run] = static_cast<std::uint32_t>(key - first - 1);
        if (key != last)
            Insert(run + 1, key + 1, static_cast<std::uint32_t>(last - key - 1));
    }
}

void TableKeySet::Add(std::vector<TableKey> & keys)
{
    constexpr std::size_t few_keys = 8;
    if (keys.size() <= few_keys)
    {
        for (TableKey const key : keys)
            Add(key);
        return;
    }
    std::sort(keys.begin(), keys.end());
    // Both in their order at once; first how many runs that gives, so that they take no more room than they need.
    std::vector<TableKey> first;
    std::vector<std::uint32_t> further;
    for (int pass = 0; pass < 2; ++pass)
    {
        bool const counting = pass == 0;
        std::size_t runs = 0;
        std::uint64_t count = 0;
        TableKey begin = 0;
        TableKey last = 0;
        auto const take = [&](TableKey from, TableKey to) {
            // A key that is there, or came twice: whatever begins ahead of the last one ends there, too.
            if (runs != 0 && from <= last)
                return;
            count += to - from + 1;
            if (runs != 0 && from == last + 1 && to - begin <= longest)
            {
                last = to;
            }
            else
            {
                if (!counting)
                {
                    first.push_back(from);
                    further.push_back(0);
                }
                ++runs;
                begin = from;
                last = to;
            }
            if (!counting)
                further.back() = static_cast<std::uint32_t>(last - begin);
        };
        std::size_t run = 0;
        std::size_t key = 0;
        while (run != m_first.size() || key != keys.size())
        {
            if (key == keys.size() || (run != m_first.size() && m_first[run] <= keys[key]))
            {
                take(m_first[run], LastOf(run));
                ++run;
            }
            else
            {
                take(keys[key], keys[key]);
                ++key;
            }
        }
        if (counting)
        {
            first.reserve(runs);
            further.reserve(runs);
        }
        else
        {
            m_count = count;
        }
    }
    m_first.swap(first);
    m_further.swap(further);
}

void TableKeySet::Clear()
{
    *this = TableKeySet();
}

std::size_t TableKeySet::Bytes() const
{
    return m_first.capacity() * sizeof(TableKey) + m_further.capacity() * sizeof(std::uint32_t);
}
