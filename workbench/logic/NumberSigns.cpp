#include "logic/NumberSigns.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <memory>
#include <mutex>
#include <utility>

namespace workbench
{

namespace
{

std::mutex s_mutex;

using SharedSigns = std::shared_ptr<NumberSigns const>;

/// Replaced as a whole, so that a number is written without a copy of them.
SharedSigns & Signs()
{
    static auto signs = std::make_shared<NumberSigns const>();
    return signs;
}

SharedSigns SignsInUse()
{
    std::scoped_lock const lock(s_mutex);
    return Signs();
}

bool IsDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

/// Digits in their groups.
std::wstring Grouped(std::wstring_view digits, NumberSigns const & signs)
{
    std::wstring text;
    std::size_t group = 0;
    std::size_t left = digits.size();
    while (group < signs.groups.size() && signs.groups[group] > 0 &&
           left > static_cast<std::size_t>(signs.groups[group]))
    {
        auto const size = static_cast<std::size_t>(signs.groups[group]);
        left -= size;
        text.insert(0, digits.substr(left, size)).insert(0, signs.grouping);
        group += group + 1 < signs.groups.size() ? 1 : 0;
    }
    text.insert(0, digits.substr(0, left));
    return text;
}

/// Blanks that group look alike and are typed alike.
bool IsBlank(wchar_t character)
{
    return character == L' ' || character == L'\u00A0' || character == L'\u202F' || character == L'\u2009';
}

bool StartsWith(std::wstring_view text, std::wstring_view sign)
{
    return !sign.empty() && text.starts_with(sign);
}

/// What stands for a sign at the beginning of a text that a user has typed: how many characters; 0 for no sign.
std::size_t GroupingAt(std::wstring_view text, NumberSigns const & signs)
{
    if (StartsWith(text, signs.grouping))
    {
        return signs.grouping.size();
    }
    return !text.empty() && IsBlank(text.front()) && !signs.grouping.empty() && IsBlank(signs.grouping.front()) ? 1 : 0;
}

/// Whether just the digits of a group follow, up to another sign or the end.
bool GroupFollows(std::wstring_view text, NumberSigns const & signs)
{
    long long const digits = std::ranges::find_if_not(text, IsDigit) - text.begin();
    return digits > 0 && std::ranges::find(signs.groups, static_cast<int>(digits)) != signs.groups.end();
}

} // namespace

std::vector<int> GroupsOf(std::wstring_view description)
{
    std::vector<int> groups;
    for (wchar_t const character : description)
    {
        if (IsDigit(character))
        {
            groups.push_back(character - L'0');
        }
    }
    if (!groups.empty() && groups.back() == 0)
    {
        groups.pop_back();
    }
    else if (!groups.empty())
    {
        groups.push_back(0);
    }
    return groups;
}

void SetNumberSigns(NumberSigns signs)
{
    auto shared = std::make_shared<NumberSigns const>(std::move(signs));
    std::scoped_lock const lock(s_mutex);
    Signs() = std::move(shared);
}

NumberSigns PresentNumberSigns()
{
    return *SignsInUse();
}

std::wstring WithSigns(std::wstring_view plain, bool grouped)
{
    SharedSigns const shared = SignsInUse();
    NumberSigns const & signs = *shared;
    std::wstring text;
    text.reserve(plain.size());
    for (std::size_t place = 0; place < plain.size();)
    {
        bool const followsDigit = place > 0 && IsDigit(plain[place - 1]);
        bool const digitFollows = place + 1 < plain.size() && IsDigit(plain[place + 1]);
        bool const infinityFollows = place + 1 < plain.size() && plain[place + 1] == L'\u221E';
        if (IsDigit(plain[place]))
        {
            std::wstring_view const rest = plain.substr(place);
            std::wstring_view const digits =
                rest.substr(0, static_cast<std::size_t>(std::ranges::find_if_not(rest, IsDigit) - rest.begin()));
            bool const isDecimals = place > 0 && plain[place - 1] == L'.';
            if (grouped && !isDecimals)
            {
                text += Grouped(digits, signs);
            }
            else
            {
                text += digits;
            }
            place += digits.size();
            continue;
        }
        if (plain[place] == L'.' && followsDigit && digitFollows)
        {
            text += signs.decimal;
        }
        else if (plain[place] == L'-' && !followsDigit && (digitFollows || infinityFollows))
        {
            text += signs.negative;
        }
        else
        {
            text += plain[place];
        }
        ++place;
    }
    return text;
}

std::wstring WithoutSigns(std::wstring_view text)
{
    SharedSigns const shared = SignsInUse();
    NumberSigns const & signs = *shared;
    std::wstring plain;
    while (!text.empty())
    {
        bool const followsDigit = !plain.empty() && IsDigit(plain.back());
        auto const taken = [&text](std::wstring_view sign) {
            bool const found = StartsWith(text, sign) && text.size() > sign.size() && IsDigit(text[sign.size()]);
            text.remove_prefix(found ? sign.size() : 0);
            return found;
        };
        if (followsDigit && taken(signs.decimal))
        {
            plain += L'.';
        }
        else if (followsDigit && taken(signs.grouping))
        {
            continue;
        }
        else if (!followsDigit && StartsWith(text, signs.negative) && text.size() > signs.negative.size())
        {
            plain += L'-';
            text.remove_prefix(signs.negative.size());
        }
        else
        {
            plain += text.front();
            text.remove_prefix(1);
        }
    }
    return plain;
}

std::optional<double> ParseNumber(std::wstring_view typed)
{
    NumberSigns const signs = PresentNumberSigns();
    while (!typed.empty() && IsBlank(typed.front()))
    {
        typed.remove_prefix(1);
    }
    while (!typed.empty() && IsBlank(typed.back()))
    {
        typed.remove_suffix(1);
    }
    std::string plain;
    for (std::wstring const & minus : {signs.negative, std::wstring(L"-"), std::wstring(L"\u2212")})
    {
        if (plain.empty() && StartsWith(typed, minus))
        {
            plain = "-";
            typed.remove_prefix(minus.size());
        }
    }
    bool hasPoint = false;
    bool hasGroups = false;
    while (!typed.empty())
    {
        bool const followsDigit = !plain.empty() && plain.back() >= '0' && plain.back() <= '9';
        if (IsDigit(typed.front()))
        {
            plain += static_cast<char>(typed.front());
            typed.remove_prefix(1);
            continue;
        }
        std::size_t const decimal = StartsWith(typed, signs.decimal) ? signs.decimal.size() : 0;
        std::size_t const grouping = GroupingAt(typed, signs);
        if (grouping > 0 && followsDigit && !hasPoint && decimal == 0 && GroupFollows(typed.substr(grouping), signs) &&
            plain.find_first_not_of("-0") != std::string::npos)
        {
            hasGroups = true;
            typed.remove_prefix(grouping);
            continue;
        }
        auto const point = decimal > 0 ? decimal : typed.front() == L'.' && !hasGroups ? std::size_t{1} : 0;
        if (point == 0 || hasPoint)
        {
            return std::nullopt;
        }
        hasPoint = true;
        plain += '.';
        typed.remove_prefix(point);
    }
    double number = 0;
    char const * const end = plain.data() + plain.size();
    auto const [stop, error] = std::from_chars(plain.data(), end, number, std::chars_format::fixed);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

} // namespace workbench
