// Numbers as a table writes them, and read back.

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "list/table/NumberFormat.h"
#include "list/table/TableText.h"
#include "table_StandIn.h"

namespace
{
NumberFormat Fixed(int digits)
{
    return {NumberStyle::fixed, digits, false, UnitPlace::nowhere, {}};
}
NumberFormat Significant(int digits)
{
    return {NumberStyle::significant, digits, false, UnitPlace::nowhere, {}};
}
NumberFormat Engineering(NumberStyle style, int digits, std::wstring unit = {}, UnitPlace place = UnitPlace::cell)
{
    return {style, digits, true, place, std::move(unit)};
}

std::wstring Show(double value, NumberFormat const & format, wchar_t sign = L'.')
{
    std::wstring text;
    ShowNumber(text, value, format, sign);
    return text;
}

constexpr double infinity = std::numeric_limits<double>::infinity();
} // namespace

TEST(TableNumbers, FixedDigitsStandBehindTheSign)
{
    EXPECT_EQ(Show(3.14159, Fixed(2)), L"3.14");
    EXPECT_EQ(Show(2.5, Fixed(0)), L"2");
    EXPECT_EQ(Show(-0.005, Fixed(1)), L"0.0");
    EXPECT_EQ(Show(-0.06, Fixed(1)), L"-0.1");
    EXPECT_EQ(Show(999999999999999.0, Fixed(1)), L"999999999999999.0");
    EXPECT_EQ(Show(1e15, Fixed(1)), L"1.0e15");
    EXPECT_EQ(Show(3.14159, Fixed(2), L','), L"3,14");
}

TEST(TableNumbers, SignificantDigitsAreCountedFromTheFirst)
{
    EXPECT_EQ(Show(1234.5, Significant(3)), L"1230");
    EXPECT_EQ(Show(0.00123456, Significant(3)), L"0.00123");
    EXPECT_EQ(Show(9.999, Significant(3)), L"10.0");
    EXPECT_EQ(Show(0, Significant(3)), L"0.00");
    EXPECT_EQ(Show(1.5e-8, Significant(2)), L"1.5e-8");
    EXPECT_EQ(Show(12, Significant(0)), L"10");
}

TEST(TableNumbers, ShortestGivesWhatIsNeeded)
{
    EXPECT_EQ(Show(0.1, {}), L"0.1");
    EXPECT_EQ(Show(1500, {}), L"1500");
    EXPECT_EQ(Show(5e-324, {}), L"5e-324");
}

TEST(TableNumbers, EngineeringWritesPrefixes)
{
    NumberFormat const volts = Engineering(NumberStyle::significant, 3, L"V");
    EXPECT_EQ(Show(1500, volts), L"1.50 kV");
    EXPECT_EQ(Show(0.0123, volts), L"12.3 mV");
    EXPECT_EQ(Show(-4.7e-6, volts), L"-4.70 \u00B5V");
    EXPECT_EQ(Show(999.6, volts), L"1.00 kV");
    EXPECT_EQ(Show(0, volts), L"0.00 V");
    EXPECT_EQ(Show(12, volts), L"12.0 V");
    EXPECT_EQ(Show(2.2e-9, volts), L"2.20 nV");
    EXPECT_EQ(Show(1e40, volts), L"1.00e40 V");
    EXPECT_EQ(Show(1e-40, volts), L"1.00e-40 V");
    NumberFormat const fixed = Engineering(NumberStyle::fixed, 1, L"Hz");
    EXPECT_EQ(Show(999.96, fixed), L"1.0 kHz");
    EXPECT_EQ(Show(99.96, fixed), L"100.0 Hz");
    EXPECT_EQ(Show(12345, fixed), L"12.3 kHz");
    EXPECT_EQ(Show(1234.5, Engineering(NumberStyle::shortest, 0, L"Hz", UnitPlace::header)), L"1.2345 k");
}

TEST(TableNumbers, WhatIsNoNumberOrBeyondTheRangeIsShownAsSuch)
{
    NumberFormat const volts = Engineering(NumberStyle::fixed, 1, L"V");
    EXPECT_EQ(Show(std::nan(""), volts), L"NaN");
    EXPECT_EQ(Show(infinity, volts), L"\u221E");
    EXPECT_EQ(Show(-infinity, volts), L"-\u221E");
    EXPECT_TRUE(std::isnan(*ParseNumber(L"NaN", volts, L'.')));
    EXPECT_EQ(ParseNumber(L"\u221E", volts, L'.'), infinity);
    EXPECT_EQ(ParseNumber(L"-\u221E", volts, L'.'), -infinity);
}

TEST(TableNumbers, ThePlaceOfTheDecimalSignIsTold)
{
    std::wstring text;
    EXPECT_EQ(ShowNumber(text, -12.5, Fixed(1), L','), 3U);
    EXPECT_EQ(text, L"-12,5");
    EXPECT_EQ(ShowNumber(text, 12, Fixed(0), L','), 2U);
    EXPECT_EQ(ShowNumber(text, -0.001, Fixed(1), L','), 1U);
    EXPECT_EQ(ShowNumber(text, 1500, Engineering(NumberStyle::fixed, 2, L"V"), L'.'), 1U);
    EXPECT_EQ(ShowWhole(text, -1234, {}, L'.'), 5U);
    EXPECT_EQ(ShowNumber(text, std::nan(""), {}, L'.'), 3U);
}

TEST(TableNumbers, UnitsStandWhereTheyShall)
{
    NumberFormat format{NumberStyle::fixed, 1, false, UnitPlace::cell, L"dB"};
    EXPECT_EQ(Show(-3, format), L"-3.0 dB");
    format.unitPlace = UnitPlace::header;
    EXPECT_EQ(Show(-3, format), L"-3.0");
    std::wstring text;
    ShowNumber(text, -3, format, L'.', L"dBu");
    EXPECT_EQ(text, L"-3.0 dBu");
    TableColumn column = table_test::Column(L"Level");
    column.format = format;
    EXPECT_EQ(TitleOf(column), L"Level [dB]");
    column.format.unitPlace = UnitPlace::cell;
    EXPECT_EQ(TitleOf(column), L"Level");
}

TEST(TableNumbers, PrefixAndUnitAreToldApart)
{
    // Metres with a prefix in the cell: the unit itself is no milli.
    NumberFormat const metres = Engineering(NumberStyle::significant, 3, L"m");
    EXPECT_EQ(ParseNumber(Show(5, metres), metres, L'.'), 5);
    EXPECT_EQ(ParseNumber(Show(0.005, metres), metres, L'.'), 0.005);
    // With the unit in the title, a prefix alone is in the cell.
    NumberFormat const below = Engineering(NumberStyle::significant, 3, L"m", UnitPlace::header);
    EXPECT_EQ(Show(0.005, below), L"5.00 m");
    EXPECT_EQ(ParseNumber(L"5.00 m", below, L'.'), 0.005);
    NumberFormat const minutes = Engineering(NumberStyle::significant, 3, L"min");
    EXPECT_EQ(ParseNumber(L"5 min", minutes, L'.'), 5);
    EXPECT_EQ(ParseNumber(L"5 mmin", minutes, L'.'), 0.005);
    EXPECT_EQ(ParseNumber(L"5uV", Engineering(NumberStyle::fixed, 1, L"V"), L'.'), 5e-6);
    EXPECT_EQ(ParseNumber(L"5 \u03BCV", Engineering(NumberStyle::fixed, 1, L"V"), L'.'), 5e-6);
}

TEST(TableNumbers, ReadingIsStrictAboutAllElse)
{
    for (wchar_t const * const text : {L"", L" ", L"-", L".", L"1.2.3", L"1 2", L"1,5", L"0x10", L"5 V", L"1e", L"--1",
                                       L"1 kk", L"1e999", L"nano", L"e5", L"5 x"})
        EXPECT_FALSE(ParseNumber(text, {}, L'.')) << text;
    EXPECT_EQ(ParseNumber(L" 1.5 ", {}, L'.'), 1.5);
    EXPECT_EQ(ParseNumber(L"\u22121,5", {}, L','), -1.5);
    EXPECT_EQ(ParseNumber(L"+.5e1", {}, L'.'), 5);
    EXPECT_EQ(ParseNumber(L"5.", {}, L'.'), 5);
    EXPECT_EQ(ParseNumber(L"1E3", {}, L'.'), 1000);
    EXPECT_EQ(ParseNumber(L"1E", {}, L'.'), 1e18);
    EXPECT_EQ(ParseNumber(L"1e-999", {}, L'.'), 0);
    EXPECT_EQ(ParseNumber(L"0e999999999999", {}, L'.'), 0);
    EXPECT_EQ(ParseNumber(L"1.5\u00A0k", {}, L'.'), 1500);
}

TEST(TableNumbers, WholeNumbersKeepAllDigits)
{
    constexpr long long least = std::numeric_limits<long long>::min();
    std::wstring text;
    ShowWhole(text, least, {}, L'.');
    EXPECT_EQ(text, L"-9223372036854775808");
    EXPECT_EQ(ParseWhole(text, {}, L'.'), least);
    EXPECT_FALSE(ParseWhole(L"9223372036854775808", {}, L'.'));
    EXPECT_FALSE(ParseWhole(L"1.5", {}, L'.'));
    EXPECT_FALSE(ParseWhole(L"NaN", {}, L'.'));
    EXPECT_EQ(ParseWhole(L"1.5 k", {}, L'.'), 1500);
    EXPECT_EQ(ParseWhole(L"2e3", {}, L'.'), 2000);
}

TEST(TableNumbers, WhatIsShownGivesTheValueWhenReadBack)
{
    std::mt19937_64 random(7);
    NumberFormat const formats[] = {
        {},
        Fixed(0),
        Fixed(3),
        Fixed(20),
        Significant(1),
        Significant(4),
        Significant(17),
        Engineering(NumberStyle::shortest, 0, L"V"),
        Engineering(NumberStyle::fixed, 0, L"m"),
        Engineering(NumberStyle::fixed, 4, L"m", UnitPlace::header),
        Engineering(NumberStyle::significant, 3, L"min"),
        Engineering(NumberStyle::significant, 1, L"k"),
    };
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-35, 35);
    for (int i = 0; i < 20000; ++i)
    {
        double value = mantissa(random) * std::pow(10.0, exponent(random));
        if (i % 4 == 0)
        {
            std::uint64_t const bits = random();
            std::memcpy(&value, &bits, sizeof(value));
        }
        if (std::isnan(value))
            continue;
        for (NumberFormat const & format : formats)
        {
            std::wstring const shown = Show(value, format, L',');
            std::optional<double> const read = ParseNumber(shown, format, L',');
            // The greatest of all may be rounded to what is no number any more.
            if (!read && std::fabs(value) > 1.4e308)
                continue;
            ASSERT_TRUE(read) << testing::PrintToString(shown);
            ASSERT_EQ(Show(*read, format, L','), shown) << testing::PrintToString(value);
            if (format.style == NumberStyle::shortest)
            {
                ASSERT_EQ(*read, value) << testing::PrintToString(shown);
            }
        }
    }
}

TEST(TableNumbers, TimesAreReadBack)
{
    EXPECT_EQ(PlainTime(0, 3), L"1970-01-01 00:00:00.000");
    EXPECT_EQ(PlainTime(-1, 6), L"1969-12-31 23:59:59.999999");
    EXPECT_EQ(PlainTime(951782400LL * 1000000, 0), L"2000-02-29 00:00:00");
    EXPECT_EQ(ParsePlainTime(L"2000-02-29"), 951782400LL * 1000000);
    EXPECT_EQ(ParsePlainTime(L"2000-02-29T01:02"), (951782400LL + 3720) * 1000000);
    for (wchar_t const * const text :
         {L"", L"2001-02-29", L"2000-13-01", L"2000-00-01", L"2000-01-00", L"2000-01-01 24:00", L"2000-01-01 1:00",
          L"2000-01-01 00:00:60", L"2000-01-01 00:00:00.", L"2000-01-01 00:00:00.1234567", L"2000-01-01x"})
        EXPECT_FALSE(ParsePlainTime(text)) << text;
    std::mt19937_64 random(3);
    for (long long time : {std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max(),
                           std::numeric_limits<long long>::min() + 1, 0LL})
        EXPECT_EQ(ParsePlainTime(PlainTime(time, 6)), time);
    for (int i = 0; i < 10000; ++i)
    {
        auto const time = static_cast<long long>(random());
        ASSERT_EQ(ParsePlainTime(PlainTime(time, 6)), time);
    }
}

TEST(TableNumbers, ValuesOfEachKindAreReadAsShownOrPlain)
{
    TableLocale german;
    german.decimalSign = L',';
    TableColumn level = table_test::Column(L"Level", TableKind::floating);
    level.format = {NumberStyle::fixed, 1, false, UnitPlace::cell, L"dB"};
    TableValue value;
    ASSERT_TRUE(ParseValue(value, L"-3,5 dB", level, german));
    EXPECT_EQ(value.Number(), -3.5);
    ASSERT_TRUE(ParseValue(value, L"-3.25", level, german));
    EXPECT_EQ(value.Number(), -3.25);
    EXPECT_FALSE(ParseValue(value, L"loud", level, german));
    ASSERT_TRUE(ParseValue(value, L"", level, german));
    EXPECT_EQ(value.Kind(), TableKind::blank);
    ASSERT_TRUE(ParseValue(value, L"x", table_test::Column(L"On", TableKind::tick), german));
    EXPECT_EQ(value.Whole(), 1);
    ASSERT_TRUE(ParseValue(value, L"", table_test::Column(L"On", TableKind::tick), german));
    EXPECT_EQ(value.Kind(), TableKind::tick);
    EXPECT_FALSE(ParseValue(value, L"maybe", table_test::Column(L"On", TableKind::tick), german));
    ASSERT_TRUE(ParseValue(value, L"45 %", table_test::Column(L"Done", TableKind::progress), german));
    EXPECT_EQ(value.Number(), 45);
    ASSERT_TRUE(ParseValue(value, L" a ", table_test::Column(L"Name"), german));
    EXPECT_EQ(value.Text(), L" a ");
}
