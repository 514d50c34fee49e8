#include "list/table/NumberFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace
{
constexpr wchar_t infinity_sign = 0x221E;
constexpr wchar_t minus_sign = 0x2212;
constexpr wchar_t micro_sign = 0x00B5;
constexpr wchar_t greek_mu = 0x03BC;
/// From the exponent -30 in steps of three; the blank in the middle is no prefix.
constexpr wchar_t prefixes[] = {L'q', L'r', L'y', L'z', L'a', L'f', L'p', L'n', micro_sign, L'm', L' ',
                                L'k', L'M', L'G', L'T', L'P', L'E', L'Z', L'Y', L'R',       L'Q'};
constexpr int greatest_prefix = 30;
constexpr int most_fixed_digits = 20;
constexpr int most_significant_digits = 17;
/// Numbers whose first digit stands there or further away have an exponent.
constexpr int first_long_exponent = 15;
constexpr int last_small_exponent = -8;

/// A number as its first digits, rounded, and the exponent of the very first one.
struct Digits
{
    char digits[64];
    int count = 0;
    int exponent = 0;
};

/// precision: digits behind the first one; negative for as many as are needed.
Digits DigitsOf(double magnitude, int precision)
{
    char text[64];
    std::to_chars_result const end =
        precision < 0 ? std::to_chars(text, text + sizeof(text), magnitude, std::chars_format::scientific)
                      : std::to_chars(text, text + sizeof(text), magnitude, std::chars_format::scientific, precision);
    Digits result;
    char const * at = text;
    for (; at != end.ptr && *at != 'e'; ++at)
    {
        if (*at != '.')
            result.digits[result.count++] = *at;
    }
    if (at != end.ptr)
    {
        ++at;
        if (at != end.ptr && *at == '+')
            ++at;
        std::from_chars(at, end.ptr, result.exponent);
    }
    return result;
}

int GroupOf(int exponent)
{
    return exponent >= 0 ? exponent / 3 * 3 : -((2 - exponent) / 3 * 3);
}

void AppendDigits(std::wstring & text, char const * begin, char const * end)
{
    text.append(begin, end);
}

/// The digits with the decimal sign behind that many of them, which may be more than there are, or negative.
std::size_t AppendPlaced(std::wstring & text, Digits const & number, int beforeSign, wchar_t decimalSign)
{
    int const whole = std::clamp(beforeSign, 0, number.count);
    if (beforeSign <= 0)
        text.push_back(L'0');
    AppendDigits(text, number.digits, number.digits + whole);
    if (beforeSign > number.count)
        text.append(static_cast<std::size_t>(beforeSign - number.count), L'0');
    std::size_t const place = text.size();
    if (whole < number.count)
    {
        text.push_back(decimalSign);
        if (beforeSign < 0)
            text.append(static_cast<std::size_t>(-beforeSign), L'0');
        AppendDigits(text, number.digits + whole, number.digits + number.count);
    }
    return place;
}

std::size_t AppendWithExponent(std::wstring & text, Digits const & number, wchar_t decimalSign)
{
    std::size_t const place = AppendPlaced(text, number, 1, decimalSign);
    char exponent[16];
    std::to_chars_result const end = std::to_chars(exponent, exponent + sizeof(exponent), number.exponent);
    text.push_back(L'e');
    AppendDigits(text, exponent, end.ptr);
    return place;
}

/// The number with its digits as the format wants them, and the exponent that its prefix stands for.
Digits EngineeringDigits(double magnitude, NumberFormat const & format, int & group)
{
    if (format.style != NumberStyle::fixed)
    {
        Digits const number = DigitsOf(magnitude, format.style == NumberStyle::shortest
                                                      ? -1
                                                      : std::clamp(format.digits, 1, most_significant_digits) - 1);
        group = GroupOf(number.exponent);
        return number;
    }
    int const behind = std::clamp(format.digits, 0, most_fixed_digits);
    int const exponent = DigitsOf(magnitude, -1).exponent;
    group = GroupOf(exponent);
    Digits number = DigitsOf(magnitude, exponent - group + behind);
    if (GroupOf(number.exponent) != group)
    {
        group += 3;
        number = DigitsOf(magnitude, behind);
    }
    else if (number.exponent != exponent)
    {
        // Rounding has brought one more digit ahead of the sign, which is no digit less behind it.
        number.digits[number.count++] = '0';
    }
    return number;
}

void AppendUnit(std::wstring & text, wchar_t prefix, NumberFormat const & format, std::wstring_view unit)
{
    std::wstring_view const shown =
        format.unitPlace == UnitPlace::cell ? (unit.empty() ? std::wstring_view(format.unit) : unit) : unit;
    bool const hasPrefix = prefix != L' ';
    if (!hasPrefix && shown.empty())
        return;
    text.push_back(L' ');
    if (hasPrefix)
        text.push_back(prefix);
    text.append(shown);
}

std::size_t AppendMagnitude(std::wstring & text, double magnitude, NumberFormat const & format, wchar_t decimalSign,
                            wchar_t & prefix)
{
    if (format.engineering && magnitude != 0)
    {
        int group = 0;
        Digits const number = EngineeringDigits(magnitude, format, group);
        if (group < -greatest_prefix || group > greatest_prefix)
            return AppendWithExponent(text, number, decimalSign);
        prefix = prefixes[(group + greatest_prefix) / 3];
        return AppendPlaced(text, number, number.exponent - group + 1, decimalSign);
    }
    if (format.style == NumberStyle::fixed)
    {
        int const behind = std::clamp(format.digits, 0, most_fixed_digits);
        if (magnitude >= 1e15)
            return AppendWithExponent(text, DigitsOf(magnitude, behind), decimalSign);
        char digits[64];
        std::to_chars_result const end =
            std::to_chars(digits, digits + sizeof(digits), magnitude, std::chars_format::fixed, behind);
        char const * const point =
            std::find(static_cast<char const *>(digits), static_cast<char const *>(end.ptr), '.');
        AppendDigits(text, digits, point);
        std::size_t const place = text.size();
        if (point != end.ptr)
        {
            text.push_back(decimalSign);
            AppendDigits(text, point + 1, end.ptr);
        }
        return place;
    }
    Digits const number = DigitsOf(magnitude, format.style == NumberStyle::shortest
                                                  ? -1
                                                  : std::clamp(format.digits, 1, most_significant_digits) - 1);
    if (number.exponent >= first_long_exponent || number.exponent <= last_small_exponent)
        return AppendWithExponent(text, number, decimalSign);
    return AppendPlaced(text, number, number.exponent + 1, decimalSign);
}

bool IsWhiteSpace(wchar_t character)
{
    return character == L' ' || (character >= L'\t' && character <= L'\r') || character == 0x00A0 ||
           (character >= 0x2000 && character <= 0x200A) || character == 0x202F;
}

bool IsDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

std::optional<int> PrefixExponent(wchar_t character)
{
    if (character == L'u' || character == greek_mu)
        character = micro_sign;
    wchar_t const * const found = std::find(std::begin(prefixes), std::end(prefixes), character);
    if (found == std::end(prefixes) || character == L' ')
        return std::nullopt;
    return static_cast<int>(found - std::begin(prefixes)) * 3 - greatest_prefix;
}

/// What stands behind a number, as an exponent.
std::optional<int> SuffixExponent(std::wstring_view suffix, NumberFormat const & format, std::wstring_view unit)
{
    bool const ownUnit = !unit.empty();
    if (!ownUnit)
        unit = format.unit;
    if (suffix.empty())
        return 0;
    // Where prefixes stand alone in the cells, one that looks like the unit is a prefix.
    bool const prefixAlone = format.engineering && format.unitPlace != UnitPlace::cell && !ownUnit;
    if (suffix == unit && !(prefixAlone && suffix.size() == 1 && PrefixExponent(suffix[0])))
        return 0;
    std::optional<int> const exponent = PrefixExponent(suffix[0]);
    if (exponent && (suffix.size() == 1 || suffix.substr(1) == unit))
        return exponent;
    return std::nullopt;
}

/// A number as it was found in a text.
struct Found
{
    bool negative = false;
    bool infinite = false;
    bool notANumber = false;
    bool hasSign = false;
    /// Digits with a point among them or not.
    std::string digits;
    long long exponent = 0;
};

bool TakeWord(std::wstring_view & text, std::wstring_view word)
{
    if (text.size() < word.size())
        return false;
    for (std::size_t i = 0; i < word.size(); ++i)
    {
        if ((text[i] | 0x20) != word[i])
            return false;
    }
    text.remove_prefix(word.size());
    return true;
}

std::optional<Found> FindNumber(std::wstring_view text, NumberFormat const & format, wchar_t decimalSign,
                                std::wstring_view unit)
{
    text = Trimmed(text);
    Found found;
    if (!text.empty() && (text[0] == L'-' || text[0] == minus_sign || text[0] == L'+'))
    {
        found.negative = text[0] != L'+';
        text.remove_prefix(1);
    }
    if (!text.empty() && text[0] == infinity_sign)
    {
        found.infinite = true;
        text.remove_prefix(1);
    }
    else if (TakeWord(text, L"nan"))
    {
        found.notANumber = true;
    }
    else if (TakeWord(text, L"infinity") || TakeWord(text, L"inf"))
    {
        found.infinite = true;
    }
    else
    {
        std::size_t at = 0;
        bool anyDigit = false;
        for (; at < text.size(); ++at)
        {
            if (IsDigit(text[at]))
            {
                found.digits.push_back(static_cast<char>('0' + (text[at] - L'0')));
                anyDigit = true;
            }
            else if (text[at] == decimalSign && !found.hasSign)
            {
                found.digits.push_back('.');
                found.hasSign = true;
            }
            else
            {
                break;
            }
        }
        if (!anyDigit)
            return std::nullopt;
        if (at < text.size() && (text[at] == L'e' || text[at] == L'E'))
        {
            std::size_t digit = at + 1;
            bool negative = false;
            if (digit < text.size() && (text[digit] == L'-' || text[digit] == L'+' || text[digit] == minus_sign))
                negative = text[digit++] != L'+';
            if (digit < text.size() && IsDigit(text[digit]))
            {
                constexpr long long far_away = 1000000000;
                for (; digit < text.size() && IsDigit(text[digit]); ++digit)
                    found.exponent = std::min(found.exponent * 10 + (text[digit] - L'0'), far_away);
                if (negative)
                    found.exponent = -found.exponent;
                at = digit;
            }
        }
        text.remove_prefix(at);
    }
    std::optional<int> const scale = SuffixExponent(Trimmed(text), format, unit);
    if (!scale)
        return std::nullopt;
    found.exponent += *scale;
    return found;
}

/// The exponent of the first digit that is not 0.
std::optional<long long> FirstExponent(Found const & found)
{
    std::size_t const point = std::min(found.digits.find('.'), found.digits.size());
    for (std::size_t i = 0; i < found.digits.size(); ++i)
    {
        if (found.digits[i] != '0' && found.digits[i] != '.')
            return static_cast<long long>(point) - static_cast<long long>(i) - (i < point ? 1 : 0) + found.exponent;
    }
    return std::nullopt;
}

std::optional<double> ValueOf(Found const & found)
{
    if (found.notANumber)
        return std::nan("");
    double value = 0;
    if (found.infinite)
    {
        value = HUGE_VAL;
    }
    else if (std::optional<long long> const first = FirstExponent(found))
    {
        if (*first > 400)
            return std::nullopt;
        if (*first > -400)
        {
            std::string const text = found.digits + 'e' + std::to_string(found.exponent);
            std::from_chars_result const read = std::from_chars(text.data(), text.data() + text.size(), value);
            if (read.ec == std::errc::result_out_of_range)
            {
                if (*first > 0)
                    return std::nullopt;
                value = 0;
            }
            else if (read.ec != std::errc())
            {
                return std::nullopt;
            }
        }
    }
    return found.negative ? -value : value;
}
} // namespace

std::size_t ShowNumber(std::wstring & text, double value, NumberFormat const & format, wchar_t decimalSign,
                       std::wstring_view unit)
{
    text.clear();
    if (std::isnan(value))
    {
        text = L"NaN";
        return text.size();
    }
    if (std::signbit(value))
        text.push_back(L'-');
    if (std::isinf(value))
    {
        text.push_back(infinity_sign);
        return text.size();
    }
    wchar_t prefix = L' ';
    std::size_t place = AppendMagnitude(text, std::fabs(value), format, decimalSign, prefix);
    if (std::signbit(value) &&
        std::find_if(text.begin(), text.end(), [](wchar_t each) { return each >= L'1' && each <= L'9'; }) == text.end())
    {
        // Nothing is left of what made it negative.
        text.erase(0, 1);
        --place;
    }
    AppendUnit(text, prefix, format, unit);
    return place;
}

std::size_t ShowWhole(std::wstring & text, long long value, NumberFormat const & format, wchar_t decimalSign)
{
    if (format.engineering)
        return ShowNumber(text, static_cast<double>(value), format, decimalSign);
    char digits[24];
    std::to_chars_result const end = std::to_chars(digits, digits + sizeof(digits), value);
    text.assign(digits, end.ptr);
    std::size_t const place = text.size();
    AppendUnit(text, L' ', format, {});
    return place;
}

std::optional<double> ParseNumber(std::wstring_view text, NumberFormat const & format, wchar_t decimalSign,
                                  std::wstring_view unit)
{
    std::optional<Found> const found = FindNumber(text, format, decimalSign, unit);
    return found ? ValueOf(*found) : std::nullopt;
}

std::optional<long long> ParseWhole(std::wstring_view text, NumberFormat const & format, wchar_t decimalSign)
{
    std::optional<Found> const found = FindNumber(text, format, decimalSign, {});
    if (!found || found->infinite || found->notANumber)
        return std::nullopt;
    if (!found->hasSign && found->exponent == 0)
    {
        std::string const digits = (found->negative ? "-" : "") + found->digits;
        long long value = 0;
        std::from_chars_result const read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        return read.ec == std::errc() ? std::optional(value) : std::nullopt;
    }
    constexpr double exact_limit = 9007199254740992.0;
    std::optional<double> const value = ValueOf(*found);
    if (!value || std::fabs(*value) > exact_limit || std::trunc(*value) != *value)
        return std::nullopt;
    return static_cast<long long>(*value);
}

std::wstring_view Trimmed(std::wstring_view text)
{
    while (!text.empty() && IsWhiteSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsWhiteSpace(text.back()))
        text.remove_suffix(1);
    return text;
}
