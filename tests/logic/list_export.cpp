// Cells and lines of a list's text export.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "list/XListExport.h"

namespace
{
TEST(ListExportBlock, TabsStandBetweenFieldsAndLineEndsBehindLines)
{
    CListTextBlock block;
    EXPECT_EQ(block.Text(), L"");
    block.AddField(L"a");
    block.AddField(L"");
    block.AddField(L"c");
    block.EndLine();
    block.AddField(L"");
    block.EndLine();
    block.AddField(L"");
    block.AddField(L"f");
    block.EndLine();
    EXPECT_EQ(block.Text(), L"a\t\tc\r\n\r\n\tf\r\n");
}

TEST(ListExportBlock, TakesTabsAndLineBreaksInATextAsTheyAre)
{
    CListTextBlock block;
    block.AddField(L"a\tb");
    block.AddField(L"c\r\nd");
    block.EndLine();
    EXPECT_EQ(block.Text(), L"a\tb\tc\r\nd\r\n");
}

TEST(ListExportBlock, TakesLinesOfAnyLength)
{
    CListTextBlock block;
    std::wstring const field(199, L'x');
    std::wstring expected;
    for (int i = 0; i < 50; ++i)
    {
        block.AddField(field);
        expected += (i > 0 ? L"\t" : L"") + field;
    }
    block.EndLine();
    EXPECT_EQ(block.Text(), expected + L"\r\n");
}

TEST(ListExportNumber, WholeNumbersAreDecimal)
{
    EXPECT_EQ(ExportedNumber(0), L"0");
    EXPECT_EQ(ExportedNumber(48000), L"48000");
    EXPECT_EQ(ExportedNumber(-7), L"-7");
    EXPECT_EQ(ExportedNumber(std::numeric_limits<int>::min()), L"-2147483648");
}

TEST(ListExportNumber, FloatsHaveSixDigitsAndNoZerosAtTheEnd)
{
    EXPECT_EQ(ExportedNumber(3.5F, L"."), L"3.5");
    EXPECT_EQ(ExportedNumber(3.0F, L"."), L"3");
    EXPECT_EQ(ExportedNumber(-0.125F, L"."), L"-0.125");
    EXPECT_EQ(ExportedNumber(1.0F / 3.0F, L"."), L"0.333333");
    EXPECT_EQ(ExportedNumber(123456.7F, L"."), L"123457");
    EXPECT_EQ(ExportedNumber(1234567.0F, L"."), L"1.23457e+06");
    EXPECT_EQ(ExportedNumber(0.00001F, L"."), L"1e-05");
    EXPECT_EQ(ExportedNumber(0.0F, L"."), L"0");
}

TEST(ListExportNumber, TheDecimalSignIsTheOneGiven)
{
    EXPECT_EQ(ExportedNumber(3.5F, L","), L"3,5");
    EXPECT_EQ(ExportedNumber(1234567.0F, L","), L"1,23457e+06");
    EXPECT_EQ(ExportedNumber(3.0F, L","), L"3");
    EXPECT_EQ(ExportedNumber(3.5F, L"::"), L"3::5");
}

TEST(ListExportNumber, IsAsPrintfWritesIt)
{
    std::mt19937 random(4);
    for (int i = 0; i < 20000; ++i)
    {
        // Any finite number, by its bits.
        unsigned const bits = random();
        float value;
        static_assert(sizeof value == sizeof bits);
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value))
            continue;
        char expected[64];
        std::snprintf(expected, sizeof expected, "%g", static_cast<double>(value));
        std::string text(expected);
        // Some systems give every exponent three digits.
        std::size_t const exponent = text.find('e');
        if (exponent != std::string::npos && text.size() == exponent + 5 && text[exponent + 2] == '0')
            text.erase(exponent + 2, 1);
        ASSERT_EQ(ExportedNumber(value, L"."), std::wstring(text.begin(), text.end()));
    }
}

TEST(ListExportCell, GivesItsValueWhereItHasOne)
{
    XLISTCTRLDATA cell;
    cell.intValue = 5;
    cell.floatValue = 2.5F;
    cell.timeValue = CTime(static_cast<__time64_t>(1000));
    auto const date = [](CTime const & time) { return L"date " + std::to_wstring(time.GetTime()); };
    auto const shown = [] { return std::wstring(L"shown"); };
    cell.valueType = XLV_INT;
    EXPECT_EQ(ExportedCell(cell, L",", date, shown), L"5");
    cell.valueType = XLV_FLOAT;
    EXPECT_EQ(ExportedCell(cell, L",", date, shown), L"2,5");
    cell.valueType = XLV_DATETIME;
    EXPECT_EQ(ExportedCell(cell, L",", date, shown), L"date 1000");
    for (unsigned int const type : {0U, 4U, 99U})
    {
        cell.valueType = type;
        EXPECT_EQ(ExportedCell(cell, L",", date, shown), L"shown");
    }
}

TEST(ListExportCell, CutsAShownTextBehind199Characters)
{
    XLISTCTRLDATA const cell;
    auto const date = [](CTime const &) { return std::wstring(); };
    for (std::size_t const length : {198U, 199U, 200U, 1000U})
    {
        auto const text = ExportedCell(cell, L".", date, [length] { return std::wstring(length, L'x'); });
        EXPECT_EQ(text, std::wstring(std::min<std::size_t>(length, 199), L'x'));
    }
}

TEST(ListExportCell, DoesNotCutADate)
{
    XLISTCTRLDATA cell;
    cell.valueType = XLV_DATETIME;
    auto const date = [](CTime const &) { return std::wstring(500, L'd'); };
    EXPECT_EQ(ExportedCell(cell, L".", date, [] { return std::wstring(); }).size(), 500U);
}
} // namespace
