#pragma once
// A set of row keys.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "list/table/TableSource.h"

/// Keys, of which those one after the other are kept as one: 12 bytes each for keys that are strewn, and hardly any for
/// the keys of rows that count through.
class TableKeySet
{
public:
    bool Contains(TableKey key) const;
    void Add(TableKey key);
    void Remove(TableKey key);
    /// Any number of keys in any order, which is changed.
    void Add(std::vector<TableKey> & keys);
    void Clear();
    std::uint64_t Count() const { return m_count; }
    /// What it takes beside the object itself.
    std::size_t Bytes() const;

private:
    /// How many runs begin at the key or ahead of it.
    std::size_t RunsUpTo(TableKey key) const;
    TableKey LastOf(std::size_t run) const { return m_first[run] + m_further[run]; }
    void Insert(std::size_t run, TableKey first, std::uint32_t further);
    void Erase(std::size_t run);

    static constexpr std::uint32_t longest = 0xFFFFFFFF;

    // Where each run begins, and how many keys follow the first one.
    std::vector<TableKey> m_first;
    std::vector<std::uint32_t> m_further;
    std::uint64_t m_count = 0;
};
