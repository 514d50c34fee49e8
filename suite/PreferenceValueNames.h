#pragma once
// How the registry store names its values.
//
// The registry finds a value name without regard to upper and lower case, but keys differ by case. A value name is
//
//     KEY@INDEX          for a key without upper-case letters
//     KEY@INDEX~CASE     otherwise
//
// KEY is the key as it is; control characters, '%' and characters beyond Latin-1 are written as '%' and four
// hexadecimal digits for each UTF-16 unit. INDEX is a decimal number. CASE tells which letters of the key are
// upper-case, four letters to a hexadecimal digit, the first letter in the highest bit, without zeros at the end:
// "Scope_1-IstOffen" with index 0 becomes "Scope_1-IstOffen@0~848".

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace preference_value_names
{
/// The registry's limit for the name of a value, in UTF-16 units.
constexpr std::size_t max_length = 16383;

/// What a value's name says.
struct KeyAndIndex
{
    /// The preference's key.
    std::u16string key;
    /// The preference's index.
    std::uint64_t index;

    /// Whether both are equal.
    bool operator==(KeyAndIndex const &) const = default;
};

/// The value name for a key and an index. Two pairs never have names that the registry takes for one. Nothing if the
/// name would be longer than the registry allows.
std::optional<std::u16string> ValueName(std::u16string_view key, std::uint64_t index);

/// The key and index of a value name, whose letters may have changed case. Nothing for any other text.
std::optional<KeyAndIndex> ParseValueName(std::u16string_view name);
} // namespace preference_value_names
