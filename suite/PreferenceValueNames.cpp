#include "PreferenceValueNames.h"

#include <charconv>
#include <limits>
#include <utility>

namespace preference_value_names
{
namespace
{
constexpr char16_t escape = u'%';
constexpr std::size_t escape_length = 5;
constexpr char16_t index_mark = u'@';
constexpr char16_t case_mark = u'~';
constexpr char16_t case_distance = 0x20;
constexpr unsigned int letters_in_digit = 4;

bool IsUpper(char16_t unit)
{
    return (unit >= u'A' && unit <= u'Z') || (unit >= 0xC0 && unit <= 0xDE && unit != 0xD7);
}

bool IsLower(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= 0xE0 && unit <= 0xFE && unit != 0xF7);
}

char16_t Lower(char16_t unit)
{
    return IsUpper(unit) ? static_cast<char16_t>(unit + case_distance) : unit;
}

// A no-break space and a soft hyphen would be mistaken for a blank and for nothing.
bool StandsForItself(char16_t unit)
{
    if (unit < 0x7F)
        return unit >= u' ' && unit != escape;
    return unit > 0xA0 && unit <= 0xFF && unit != 0xAD;
}

char16_t DigitOf(unsigned int value)
{
    return static_cast<char16_t>(value < 10 ? u'0' + value : u'a' + (value - 10));
}

std::optional<unsigned int> ValueOf(char16_t digit)
{
    if (digit >= u'0' && digit <= u'9')
        return digit - u'0';
    char16_t const lower = Lower(digit);
    if (lower >= u'a' && lower <= u'f')
        return lower - u'a' + 10;
    return std::nullopt;
}

// Collects the case of the letters met, four to a digit.
class CaseWriter
{
public:
    void Add(bool upper)
    {
        m_digit |= (upper ? 1U : 0U) << (letters_in_digit - 1 - m_used);
        if (++m_used == letters_in_digit)
            Flush();
    }

    std::u16string Finish()
    {
        if (m_used != 0)
            Flush();
        m_digits.erase(m_digits.find_last_not_of(u'0') + 1);
        return std::move(m_digits);
    }

private:
    void Flush()
    {
        m_digits.push_back(DigitOf(m_digit));
        m_digit = 0;
        m_used = 0;
    }

    std::u16string m_digits;
    unsigned int m_digit = 0;
    unsigned int m_used = 0;
};

// Gives the case of one letter after the other; letters behind the last digit are lower-case.
class CaseReader
{
public:
    explicit CaseReader(std::u16string_view digits) : m_digits(digits) {}

    bool NextIsUpper()
    {
        std::size_t const digit = m_letter / letters_in_digit;
        std::size_t const bit = letters_in_digit - 1 - m_letter % letters_in_digit;
        ++m_letter;
        return digit < m_digits.size() && ((ValueOf(m_digits[digit]).value_or(0) >> bit) & 1) != 0;
    }

    // Whether a bit is left that belongs to no letter.
    bool HasMore()
    {
        while (m_letter < m_digits.size() * letters_in_digit)
        {
            if (NextIsUpper())
                return true;
        }
        return false;
    }

private:
    std::u16string_view m_digits;
    std::size_t m_letter = 0;
};

std::optional<std::uint64_t> ParseIndex(std::u16string_view text)
{
    if (text.empty() || (text.size() > 1 && text.front() == u'0'))
        return std::nullopt;
    std::uint64_t index = 0;
    for (char16_t const digit : text)
    {
        if (digit < u'0' || digit > u'9')
            return std::nullopt;
        std::uint64_t const value = digit - u'0';
        if (index > (std::numeric_limits<std::uint64_t>::max() - value) / 10)
            return std::nullopt;
        index = index * 10 + value;
    }
    return index;
}

bool IsCaseText(std::u16string_view digits)
{
    if (digits.empty() || digits.back() == u'0')
        return false;
    for (char16_t const digit : digits)
    {
        if (!ValueOf(digit))
            return false;
    }
    return true;
}

std::optional<char16_t> ParseEscape(std::u16string_view digits)
{
    unsigned int unit = 0;
    for (char16_t const digit : digits)
    {
        std::optional<unsigned int> const value = ValueOf(digit);
        if (!value)
            return std::nullopt;
        unit = unit * 16 + *value;
    }
    char16_t const result = static_cast<char16_t>(unit);
    // Each key has one name only.
    return StandsForItself(result) ? std::nullopt : std::optional<char16_t>(result);
}

std::optional<std::u16string> ParseKey(std::u16string_view text, std::u16string_view caseDigits)
{
    std::u16string key;
    key.reserve(text.size());
    CaseReader cases(caseDigits);
    while (!text.empty())
    {
        char16_t const unit = text.front();
        if (unit == escape)
        {
            if (text.size() < escape_length)
                return std::nullopt;
            std::optional<char16_t> const escaped = ParseEscape(text.substr(1, escape_length - 1));
            if (!escaped)
                return std::nullopt;
            key.push_back(*escaped);
            text.remove_prefix(escape_length);
            continue;
        }
        if (!StandsForItself(unit))
            return std::nullopt;
        char16_t const lower = Lower(unit);
        key.push_back(IsLower(lower) && cases.NextIsUpper() ? static_cast<char16_t>(lower - case_distance) : lower);
        text.remove_prefix(1);
    }
    if (cases.HasMore())
        return std::nullopt;
    return key;
}
} // namespace

std::optional<std::u16string> ValueName(std::u16string_view key, std::uint64_t index)
{
    if (key.size() > max_length)
        return std::nullopt;

    std::u16string name;
    name.reserve(key.size() + 8);
    CaseWriter cases;
    for (char16_t const unit : key)
    {
        if (StandsForItself(unit))
        {
            name.push_back(unit);
            if (IsUpper(unit) || IsLower(unit))
                cases.Add(IsUpper(unit));
            continue;
        }
        name.push_back(escape);
        for (int shift = 12; shift >= 0; shift -= 4)
            name.push_back(DigitOf((static_cast<unsigned int>(unit) >> shift) & 0xF));
    }

    name.push_back(index_mark);
    char digits[std::numeric_limits<std::uint64_t>::digits10 + 1];
    char * const end = std::to_chars(digits, digits + sizeof(digits), index).ptr;
    name.append(digits, end);
    if (std::u16string const caseDigits = cases.Finish(); !caseDigits.empty())
    {
        name.push_back(case_mark);
        name += caseDigits;
    }
    if (name.size() > max_length)
        return std::nullopt;
    return name;
}

std::optional<KeyAndIndex> ParseValueName(std::u16string_view name)
{
    if (name.size() > max_length)
        return std::nullopt;
    std::size_t const indexMark = name.rfind(index_mark);
    if (indexMark == std::u16string_view::npos)
        return std::nullopt;

    std::u16string_view indexText = name.substr(indexMark + 1);
    std::u16string_view caseDigits;
    if (std::size_t const caseMark = indexText.find(case_mark); caseMark != std::u16string_view::npos)
    {
        caseDigits = indexText.substr(caseMark + 1);
        indexText = indexText.substr(0, caseMark);
        if (!IsCaseText(caseDigits))
            return std::nullopt;
    }
    std::optional<std::uint64_t> const index = ParseIndex(indexText);
    std::optional<std::u16string> key = ParseKey(name.substr(0, indexMark), caseDigits);
    if (!index || !key)
        return std::nullopt;
    return KeyAndIndex{std::move(*key), *index};
}
} // namespace preference_value_names
