#pragma once
// Numbers as they are written in tables of measurements, and read back.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "frame/Export.h"

/// What decides how many digits a number has.
enum class NumberStyle
{
    /// As few digits as give the same value when read back.
    shortest,
    /// So many digits behind the decimal sign.
    fixed,
    /// So many digits altogether.
    significant
};

/// Where a unit stands.
enum class UnitPlace
{
    /// The host says it elsewhere.
    nowhere,
    /// In the column's title, in brackets.
    header,
    /// Behind each number.
    cell
};

/// How numbers are written.
struct NumberFormat
{
    /// What digits are counted by.
    NumberStyle style = NumberStyle::shortest;
    /// 0 to 20 behind the decimal sign, 1 to 17 altogether; others count as the nearest of these.
    int digits = 3;
    /// The exponent is a multiple of three, written as a prefix of the unit: k, M, G, m, µ, n and so on.
    bool engineering = false;
    /// Where the unit stands.
    UnitPlace unitPlace = UnitPlace::nowhere;
    /// "V", "Hz", "dB".
    std::wstring unit;
};

/// Writes the number into the text and gives the place of the decimal sign: where it stands, or would. unit: in place
/// of the format's, where not empty. What is beyond the prefixes, or too long, has an exponent ("1.5e40"); not-a-number
/// is "NaN", an exceeded range the sign of infinity.
INSTRUMENT_UI_API std::size_t ShowNumber(std::wstring & text, double value, NumberFormat const & format,
                                         wchar_t decimalSign, std::wstring_view unit = {});
/// The same for a whole number: all its digits, unless it is written with prefixes.
INSTRUMENT_UI_API std::size_t ShowWhole(std::wstring & text, long long value, NumberFormat const & format,
                                        wchar_t decimalSign);

/// Reads what ShowNumber has written with the same format, unit and decimal sign: the value nearest to what stands
/// there. Also reads numbers without their unit, with a prefix, with an exponent and with blanks around. Nothing for
/// any other text, and for a number that no double is near to.
INSTRUMENT_UI_API std::optional<double> ParseNumber(std::wstring_view text, NumberFormat const & format,
                                                    wchar_t decimalSign, std::wstring_view unit = {});
/// The same for a whole number. Nothing for a number with a fraction.
INSTRUMENT_UI_API std::optional<long long> ParseWhole(std::wstring_view text, NumberFormat const & format,
                                                      wchar_t decimalSign);

/// Without white space at both ends, also of the kinds that do not break a line.
INSTRUMENT_UI_API std::wstring_view Trimmed(std::wstring_view text);
