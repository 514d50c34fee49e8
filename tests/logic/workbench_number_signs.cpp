// Numbers with the signs of the user's region.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "logic/Axis.h"
#include "logic/CursorReading.h"
#include "logic/NumberSigns.h"
#include "logic/TextFormat.h"
#include "logic/TextTable.h"

namespace
{

using namespace workbench;

NumberSigns const english;
NumberSigns const german{L",", L".", L"-", {3}};
NumberSigns const french{L",", L"\u202F", L"-", {3}};
NumberSigns const indian{L".", L",", L"-", {3, 2}};
NumberSigns const odd{L"::", L"'", L"\u2212", {4, 0}};

/// Sets signs, and those of programs again at the end of the block.
struct SignsScope
{
    explicit SignsScope(NumberSigns const & signs) { SetNumberSigns(signs); }
    SignsScope(SignsScope const &) = delete;
    SignsScope & operator=(SignsScope const &) = delete;
    ~SignsScope() { SetNumberSigns({}); }
};

std::wstring In(NumberSigns const & signs, wchar_t const * plain, bool grouped = false)
{
    SignsScope const scope(signs);
    return WithSigns(plain, grouped);
}

std::optional<double> Typed(NumberSigns const & signs, wchar_t const * text)
{
    SignsScope const scope(signs);
    return ParseNumber(text);
}

} // namespace

TEST(WorkbenchNumberSigns, DecimalsAndGroupsAreTheRegions)
{
    EXPECT_EQ(In(english, L"-1234567.5", true), L"-1,234,567.5");
    EXPECT_EQ(In(german, L"-1234567.5", true), L"-1.234.567,5");
    EXPECT_EQ(In(french, L"1234567.5", true), L"1\u202F234\u202F567,5");
    EXPECT_EQ(In(indian, L"12345678", true), L"1,23,45,678");
    EXPECT_EQ(In(odd, L"-123456789.25", true), L"\u221212345'6789::25");
    EXPECT_EQ(In(NumberSigns{L",", L".", L"-", {}}, L"12345.5", true), L"12345,5");
    EXPECT_EQ(In(german, L"999", true), L"999");
    EXPECT_EQ(In(german, L"0.12345", true), L"0,12345");
}

TEST(WorkbenchNumberSigns, OnlyNumbersInATextChange)
{
    EXPECT_EQ(In(german, L"-"), L"-");
    EXPECT_EQ(In(odd, L"-"), L"-");
    EXPECT_EQ(In(odd, L"-\u221E"), L"\u2212\u221E");
    EXPECT_EQ(In(german, L"0:01.500"), L"0:01,500");
    EXPECT_EQ(In(german, L"2.5 kHz"), L"2,5 kHz");
    EXPECT_EQ(In(german, L"end."), L"end.");
    EXPECT_EQ(In(odd, L"full-scale: -3.0, K"), L"full-scale: \u22123::0, K");
    EXPECT_EQ(In(german, L""), L"");
}

TEST(WorkbenchNumberSigns, WhatIsShownHasThem)
{
    SignsScope const scope(german);
    EXPECT_EQ(FormatLevel(-12.34), L"-12,3");
    EXPECT_EQ(FormatLevel(-std::numeric_limits<double>::infinity()), L"-\u221E");
    EXPECT_EQ(FormatDifference(-1.0, -3.1), L"+2,1 dB");
    EXPECT_EQ(FormatDifference(-3.0, -3.0), L"0,0 dB");
    EXPECT_EQ(FormatMilliseconds(61500), L"1:01,500");
    EXPECT_EQ(FormatThousands(1234567), L"1.234.567");
    EXPECT_EQ(FormatSampleRate(48000), L"48.000 Hz");
    EXPECT_EQ(FormatFrequency(440.04), L"440,0");
    EXPECT_EQ(FormatFrequency(12345.6), L"12.346");
    EXPECT_EQ(FormatPercent(0.000512), L"0,0512");
    EXPECT_EQ(TimeTicks(1.0, 100, 50).at(1).label, L"0,5 s");
    EXPECT_EQ(FrequencyTicks(5000.0, 100, 9).at(1).label, L"500 Hz");
    EXPECT_EQ(FrequencyTicks(5000.0, 100, 9).at(3).label, L"1,5 kHz");
}

TEST(WorkbenchNumberSigns, TheSegmentDisplaysKeepThePointThatTheirCharactersHave)
{
    SignsScope const scope(german);
    EXPECT_EQ(LevelReading(-12.34), L"-12.3");
    EXPECT_EQ(PositionReading(48024, 48000), L"00:01.000");
}

TEST(WorkbenchNumberSigns, AreTakenAwayAgain)
{
    for (NumberSigns const & signs : {english, german, french, indian, odd})
    {
        SignsScope const scope(signs);
        for (wchar_t const * const plain : {L"-1234567.5", L"0.25", L"-", L"12", L"1:02.500", L"-0.1", L""})
        {
            EXPECT_EQ(WithoutSigns(WithSigns(plain, true)), plain);
        }
    }
}

TEST(WorkbenchNumberSigns, CsvHasAPointInEveryRegion)
{
    for (NumberSigns const & signs : {english, german, french, odd})
    {
        SignsScope const scope(signs);
        TextTable table;
        table.columns = {{L"Name", false, false}, {L"Peak", true, true}, {L"Frequency", true, true}};
        table.rows = {{L"1,5 V.wav", FormatLevel(-6.54), FormatFrequency(12345.6)}};
        EXPECT_EQ(CsvTable(table), L"Name,Peak,Frequency\r\n\"1,5 V.wav\",-6.5,12346\r\n");
        EXPECT_EQ(PlainTable(table), L"Name\tPeak\tFrequency\r\n1,5 V.wav\t" + FormatLevel(-6.54) + L'\t' +
                                         FormatFrequency(12345.6) + L"\r\n");
    }
}

TEST(WorkbenchNumberSigns, BothFormsAreReadBack)
{
    for (NumberSigns const & signs : {english, german, french, odd})
    {
        EXPECT_EQ(Typed(signs, L"-12.5"), -12.5);
        EXPECT_EQ(Typed(signs, L" 50 "), 50.0);
        EXPECT_EQ(Typed(signs, L"0.125"), 0.125);
        EXPECT_EQ(Typed(signs, In(signs, L"-1234567.5", true).c_str()), -1234567.5);
    }
    EXPECT_EQ(Typed(german, L"12,5"), 12.5);
    EXPECT_EQ(Typed(german, L"1.234"), 1234.0);
    EXPECT_EQ(Typed(german, L"1.234,5"), 1234.5);
    EXPECT_EQ(Typed(french, L"1 234,5"), 1234.5);
    EXPECT_EQ(Typed(french, L"1\u00A0234.5"), std::nullopt); // groups of the one, decimals of the other
    EXPECT_EQ(Typed(odd, L"\u22121::5"), -1.5);
}

TEST(WorkbenchNumberSigns, WhatIsNoNumberIsNone)
{
    for (NumberSigns const & signs : {english, german, french, odd})
    {
        for (wchar_t const * const text :
             {L"", L" ", L"-", L"a", L"1a", L"1..2", L"1 2", L"--1", L"1-", L"0x10", L"1e5", L"."})
        {
            EXPECT_EQ(Typed(signs, text), std::nullopt) << text;
        }
    }
    EXPECT_EQ(Typed(english, L"1,5"), std::nullopt);
    EXPECT_EQ(Typed(german, L"1,2,3"), std::nullopt);
}

TEST(WorkbenchNumberSigns, TheSystemsDescriptionOfGroupsIsUnderstood)
{
    EXPECT_EQ(GroupsOf(L"3;0"), (std::vector{3}));
    EXPECT_EQ(GroupsOf(L"3;2;0"), (std::vector{3, 2}));
    EXPECT_EQ(GroupsOf(L"3"), (std::vector{3, 0}));
    EXPECT_TRUE(GroupsOf(L"0;0").size() == 1 && GroupsOf(L"0;0").front() == 0);
    EXPECT_TRUE(GroupsOf(L"").empty());
}
