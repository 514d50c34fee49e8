#pragma once
// Lists of records and bytes of settings files, put together by hand, and random ones.

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "windows/SettingsTree.h"

namespace settings_tests
{
using namespace registry_settings;

using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t type_sz = 1;
constexpr std::uint32_t type_expand_sz = 2;
constexpr std::uint32_t type_binary = 3;
constexpr std::uint32_t type_dword = 4;
constexpr std::uint32_t type_multi_sz = 7;
constexpr std::uint32_t type_qword = 11;

constexpr std::size_t longest_key_name = 255;
constexpr std::size_t longest_value_name = 16383;

inline registry_entry Value(std::u16string name, std::uint32_t type, Bytes data)
{
    registry_entry entry;
    entry.kind = entry_value;
    entry.name = std::move(name);
    entry.value_type = type;
    entry.data = std::move(data);
    return entry;
}

inline registry_entry Begin(std::u16string name)
{
    registry_entry entry;
    entry.kind = entry_key_begin;
    entry.name = std::move(name);
    return entry;
}

inline registry_entry End()
{
    registry_entry entry;
    entry.kind = entry_key_end;
    return entry;
}

inline registry_entry Kind(std::uint32_t number)
{
    registry_entry entry;
    entry.kind = static_cast<entry_kind_t>(number);
    return entry;
}

/// The bytes of a settings file.
class FileBytes
{
public:
    explicit FileBytes(std::uint8_t version = 1) : m_bytes{version} {}

    FileBytes & Number(std::uint64_t number, int size)
    {
        for (int at = 0; at < size; ++at)
            m_bytes.push_back(static_cast<std::uint8_t>(number >> (8 * at)));
        return *this;
    }
    FileBytes & Record(std::u16string const & name, std::uint32_t kind, std::uint32_t type, Bytes const & data)
    {
        Number(name.size(), 2);
        for (char16_t const unit : name)
            Number(unit, 2);
        Number(kind, 4).Number(type, 4).Number(data.size(), 4);
        m_bytes.insert(m_bytes.end(), data.begin(), data.end());
        return *this;
    }
    FileBytes & Records(registry_entry_list const & list)
    {
        for (registry_entry const & entry : list)
            Record(entry.name, entry.kind, entry.value_type, entry.data);
        return *this;
    }

    Bytes const & Get() const { return m_bytes; }
    std::string Text() const { return std::string(m_bytes.begin(), m_bytes.end()); }

private:
    Bytes m_bytes;
};

/// The list with the values and subkeys of each key in the order of their names.
inline registry_entry_list Sorted(registry_entry_list const & list)
{
    struct Key
    {
        registry_entry_list values;
        std::vector<std::pair<std::u16string, registry_entry_list>> subkeys;
    };
    std::vector<Key> path(1);
    std::vector<std::u16string> names;
    auto const flat = [](Key & key) {
        auto const byName = [](auto const & a, auto const & b) { return a.name < b.name; };
        std::sort(key.values.begin(), key.values.end(), byName);
        std::sort(key.subkeys.begin(), key.subkeys.end(),
                  [](auto const & a, auto const & b) { return a.first < b.first; });
        registry_entry_list result = std::move(key.values);
        for (auto & [name, content] : key.subkeys)
        {
            result.push_back(Begin(name));
            std::move(content.begin(), content.end(), std::back_inserter(result));
            result.push_back(End());
        }
        return result;
    };
    for (registry_entry const & entry : list)
    {
        if (entry.kind == entry_value)
            path.back().values.push_back(entry);
        else if (entry.kind == entry_key_begin)
        {
            names.push_back(entry.name);
            path.emplace_back();
        }
        else
        {
            registry_entry_list content = flat(path.back());
            path.pop_back();
            path.back().subkeys.emplace_back(names.back(), std::move(content));
            names.pop_back();
        }
    }
    return flat(path.front());
}

struct RandomShape
{
    std::size_t keys;
    std::size_t values;
    std::size_t depth;
    bool rootValues;
    /// One in so many names is as long as names can be.
    unsigned longNames;
};

/// A random tree as a list. Names differ in more than the case of letters, since each begins with a number of its own.
class RandomTree
{
public:
    RandomTree(unsigned seed, RandomShape const & shape) : m_random(seed), m_shape(shape) {}

    registry_entry_list Make()
    {
        registry_entry_list list;
        std::size_t keys = m_shape.keys;
        std::size_t values = m_shape.values;
        std::vector<bool> hasSubkey(1);
        if (m_shape.rootValues)
            AddValues(list, values, m_shape.values / 8 + 1);
        while (keys > 0 || hasSubkey.size() > 1)
        {
            bool const deeper =
                keys > 0 && hasSubkey.size() <= m_shape.depth && (hasSubkey.size() == 1 || m_random() % 3 != 0);
            if (deeper)
            {
                --keys;
                list.push_back(Begin(Name(longest_key_name, false)));
                hasSubkey.push_back(false);
                AddValues(list, values, keys == 0 ? values : m_random() % (2 * m_shape.values / m_shape.keys + 1));
            }
            else
            {
                list.push_back(End());
                hasSubkey.pop_back();
            }
        }
        return list;
    }

private:
    void AddValues(registry_entry_list & list, std::size_t & left, std::size_t count)
    {
        for (count = std::min(count, left); count > 0; --count, --left)
        {
            static constexpr std::uint32_t types[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0x1234, 0xFFFFFFFF};
            std::uint32_t const type = types[m_random() % std::size(types)];
            Bytes data(m_random() % 40 == 0 ? m_random() % 20000 : m_random() % 24);
            for (std::uint8_t & byte : data)
                byte = static_cast<std::uint8_t>(m_random() % 4 == 0 ? 0 : m_random());
            list.push_back(Value(Name(longest_value_name, true), type, std::move(data)));
        }
    }

    std::u16string Name(std::size_t longest, bool backslash)
    {
        std::u16string name;
        for (char const digit : std::to_string(m_number++) + "-")
            name.push_back(static_cast<char16_t>(digit));
        std::size_t const length =
            m_random() % m_shape.longNames == 0 ? longest : std::min(name.size() + m_random() % 12, longest);
        while (name.size() < length)
        {
            auto const unit = static_cast<char16_t>(m_random() % 3 == 0 ? m_random() : 1 + m_random() % 255);
            if (unit != 0 && (backslash || unit != u'\\'))
                name.push_back(unit);
        }
        return name;
    }

    std::mt19937 m_random;
    RandomShape m_shape;
    unsigned m_number = 0;
};
} // namespace settings_tests
