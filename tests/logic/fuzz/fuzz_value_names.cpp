// The registry store's value names: any text as a value name, and any key with any index there and back.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "PreferenceValueNames.h"

namespace
{
using preference_value_names::KeyAndIndex;
using preference_value_names::max_length;
using preference_value_names::ParseValueName;
using preference_value_names::ValueName;

constexpr std::size_t index_bytes = 8;

std::u16string UnitsOf(std::uint8_t const * data, std::size_t size)
{
    std::u16string units;
    for (std::size_t at = 0; at + 1 < size; at += 2)
        units.push_back(static_cast<char16_t>(data[at] | data[at + 1] << 8));
    return units;
}

std::u16string Latin1Of(std::uint8_t const * data, std::size_t size)
{
    return std::u16string(data, data + size);
}

// As the registry compares. Only letters of Latin-1 may stand in a name.
std::u16string Folded(std::u16string text)
{
    for (char16_t & unit : text)
    {
        bool const latin = unit >= 0xE0 && unit <= 0xFE && unit != 0xF7;
        if ((unit >= u'a' && unit <= u'z') || latin)
            unit = static_cast<char16_t>(unit - 0x20);
    }
    return text;
}

void Require(bool condition)
{
    if (!condition)
        std::abort();
}

void CheckParsing(std::u16string const & name)
{
    std::optional<KeyAndIndex> const parsed = ParseValueName(name);
    if (!parsed)
        return;
    std::optional<std::u16string> const again = ValueName(parsed->key, parsed->index);
    Require(again.has_value());
    Require(Folded(*again) == Folded(name));
    Require(ParseValueName(*again) == parsed);
    Require(ParseValueName(Folded(name)) == parsed);
}

void CheckRoundTrip(KeyAndIndex const & pair)
{
    std::optional<std::u16string> const name = ValueName(pair.key, pair.index);
    if (!name)
    {
        Require(pair.key.size() * 5 + pair.key.size() / 4 + 32 > max_length);
        return;
    }
    Require(name->size() <= max_length);
    Require(ParseValueName(*name) == pair);
    for (char16_t const unit : *name)
        Require(unit >= u' ' && unit <= 0xFF && unit != 0x7F);

    // The same key with one letter's case changed is another name for the registry as well.
    for (std::size_t at = 0; at < pair.key.size(); ++at)
    {
        KeyAndIndex other = pair;
        if ((other.key[at] | 0x20) < u'a' || (other.key[at] | 0x20) > u'z')
            continue;
        other.key[at] = static_cast<char16_t>(other.key[at] ^ 0x20);
        std::optional<std::u16string> const otherName = ValueName(other.key, other.index);
        Require(!otherName || Folded(*otherName) != Folded(*name));
        break;
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    CheckParsing(UnitsOf(data, size));
    CheckParsing(Latin1Of(data, size));

    std::uint64_t index = 0;
    std::size_t const used = size < index_bytes ? size : index_bytes;
    for (std::size_t at = 0; at < used; ++at)
        index = index << 8 | data[at];
    CheckRoundTrip({UnitsOf(data, size), index});
    CheckRoundTrip({UnitsOf(data + used, size - used), index});
    CheckRoundTrip({Latin1Of(data + used, size - used), size});
    return 0;
}
