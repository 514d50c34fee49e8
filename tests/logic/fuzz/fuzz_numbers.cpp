// Reads any text as a number, and shows what it has read: that must be the same when it is read again.

#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "list/table/TableText.h"

namespace
{
void Require(bool condition)
{
    if (!condition)
        std::abort();
}

void CheckFormat(std::wstring_view text, NumberFormat const & format, wchar_t decimalSign)
{
    std::optional<double> const value = ParseNumber(text, format, decimalSign);
    if (!value)
        return;
    std::wstring shown;
    std::size_t const place = ShowNumber(shown, *value, format, decimalSign);
    Require(place <= shown.size() && !shown.empty());
    std::optional<double> const again = ParseNumber(shown, format, decimalSign);
    // The greatest numbers may be rounded beyond all.
    if (!again && std::fabs(*value) > 1e308)
        return;
    Require(again.has_value());
    Require(std::isnan(*value) == std::isnan(*again));
    if (!std::isnan(*value) && format.style == NumberStyle::shortest)
        Require(*again == *value);
    std::wstring shownAgain;
    ShowNumber(shownAgain, *again, format, decimalSign);
    Require(shownAgain == shown);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (size < 2)
        return 0;
    // The first byte says how, the others what; above 127 some of the characters that numbers have.
    constexpr wchar_t others[] = {0xB5, 0x3BC, 0x2212, 0x221E, 0xA0, 0x202F, 0x660, 0xFFFF};
    std::wstring text;
    for (std::size_t i = 1; i < size; ++i)
        text.push_back(data[i] < 128 ? static_cast<wchar_t>(data[i]) : others[data[i] % std::size(others)]);
    constexpr wchar_t const * units[] = {L"", L"V", L"m", L"min"};
    NumberFormat format;
    format.style = static_cast<NumberStyle>(data[0] % 3);
    format.digits = data[0] / 3 % 8;
    format.engineering = (data[0] & 32) != 0;
    format.unitPlace = (data[0] & 64) != 0 ? UnitPlace::cell : UnitPlace::header;
    format.unit = units[data[0] / 16 % 4];
    CheckFormat(text, format, (data[0] & 128) != 0 ? L',' : L'.');

    if (std::optional<long long> const whole = ParseWhole(text, format, L'.'); whole && !format.engineering)
    {
        std::wstring shown;
        ShowWhole(shown, *whole, format, L'.');
        Require(ParseWhole(shown, format, L'.') == whole);
    }
    if (std::optional<long long> const time = ParsePlainTime(text))
        Require(ParsePlainTime(PlainTime(*time, 6)) == time);
    return 0;
}
