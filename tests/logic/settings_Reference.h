#pragma once
// What reading a settings file and applying it must do, said as plainly as possible: with indexes into the bytes, a
// recursive replay and a tree of maps. The real ones are held against it.

#include <map>
#include <optional>

#include "settings_Records.h"

namespace settings_reference
{
using namespace registry_settings;
using settings_tests::Bytes;

struct Reading
{
    bool done = false;
    registry_entry_list list;
};

inline Reading ReadFile(Bytes const & bytes)
{
    Reading reading;
    std::size_t at = 0;
    while (at < bytes.size() && (bytes[at] == ' ' || (bytes[at] >= 9 && bytes[at] <= 13)))
        ++at;
    if (at == bytes.size() || bytes[at] != 1)
        return reading;
    reading.done = true;
    ++at;
    auto const number = [&](std::size_t place, int size) {
        std::uint64_t value = 0;
        for (int i = size - 1; i >= 0; --i)
            value = value * 256 + bytes[place + static_cast<std::size_t>(i)];
        return value;
    };
    while (at + 2 <= bytes.size())
    {
        std::size_t const length = number(at, 2);
        std::size_t const fields = at + 2 + 2 * length;
        if (fields + 12 > bytes.size())
            break;
        std::size_t const size = number(fields + 8, 4);
        if (fields + 12 + size > bytes.size())
            break;
        registry_entry entry;
        for (std::size_t unit = 0; unit < length; ++unit)
            entry.name += static_cast<char16_t>(number(at + 2 + 2 * unit, 2));
        entry.kind = static_cast<entry_kind_t>(number(fields, 4));
        entry.value_type = static_cast<std::uint32_t>(number(fields + 4, 4));
        entry.data.assign(bytes.begin() + static_cast<std::ptrdiff_t>(fields + 12),
                          bytes.begin() + static_cast<std::ptrdiff_t>(fields + 12 + size));
        reading.list.push_back(entry);
        at = fields + 12 + size;
    }
    return reading;
}

struct Key
{
    std::u16string name;
    std::vector<registry_entry> values;
    std::map<std::u16string, Key> subkeys;
};

inline std::u16string Upper(std::u16string name)
{
    for (char16_t & unit : name)
        unit = unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 32) : unit;
    return name;
}

inline std::u16string BeforeNull(std::u16string const & name)
{
    return std::u16string(name.c_str());
}

/// The key of that path below another, made where it is missing; null for a path that can't be a key's.
inline Key * Enter(Key & key, std::u16string path)
{
    path = BeforeNull(path);
    if (!path.empty() && path.back() == u'\\')
        path.pop_back();
    else if (path.empty())
        return &key;
    std::vector<std::u16string> names(1);
    for (char16_t const unit : path)
    {
        if (unit == u'\\')
            names.emplace_back();
        else
            names.back() += unit;
    }
    for (std::u16string const & name : names)
    {
        if (name.empty() || name.size() > settings_tests::longest_key_name)
            return nullptr;
    }
    Key * current = &key;
    for (std::u16string const & name : names)
    {
        Key & next = current->subkeys[Upper(name)];
        if (next.name.empty())
            next.name = name;
        current = &next;
    }
    return current;
}

/// Replays on a key; at: the next record of the list.
inline bool Replay(Key & key, registry_entry_list const & list, std::size_t & at)
{
    while (at < list.size())
    {
        registry_entry const & entry = list[at];
        if (entry.kind == entry_value)
        {
            std::u16string const name = BeforeNull(entry.name);
            if (name.size() > settings_tests::longest_value_name)
                return false;
            auto place = std::find_if(key.values.begin(), key.values.end(),
                                      [&](registry_entry const & value) { return Upper(value.name) == Upper(name); });
            if (place == key.values.end())
                place = key.values.insert(place, settings_tests::Value(name, 0, {}));
            place->value_type = entry.value_type;
            place->data = entry.data;
            ++at;
        }
        else if (entry.kind == entry_key_begin)
        {
            Key * const next = Enter(key, entry.name);
            if (next == nullptr)
                return false;
            ++at;
            if (!Replay(*next, list, at))
                return false;
        }
        else if (entry.kind == entry_key_end)
        {
            ++at;
            return true;
        }
        else
            return false;
    }
    return true;
}

/// Flattens a key; false, with what was read until then, at a value of no type.
inline bool Flatten(Key const & key, registry_entry_list & list)
{
    for (registry_entry const & value : key.values)
    {
        if (value.value_type == value_type_none)
            return false;
        list.push_back(value);
    }
    for (auto const & [upper, subkey] : key.subkeys)
    {
        list.push_back(settings_tests::Begin(subkey.name));
        if (!Flatten(subkey, list))
            return false;
        list.push_back(settings_tests::End());
    }
    return true;
}
} // namespace settings_reference
