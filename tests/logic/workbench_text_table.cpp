// Tables as plain text and as HTML.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "logic/TextTable.h"

namespace
{

using namespace workbench;

TextTable SmallTable()
{
    return {{{L"Name", false}, {L"Peak", true}}, {{L"a.wav", L"-6.0"}, {L"b.wav", L""}}};
}

/// The HTML of a table of one cell with that text.
std::wstring HtmlOf(std::wstring const & text)
{
    std::wstring const before =
        L"<table border=\"1\">\r\n<tr><th align=\"left\">t</th></tr>\r\n<tr><td align=\"left\">";
    std::wstring const after = L"</td></tr>\r\n</table>";
    std::wstring const html = HtmlTable({{{L"t", false}}, {{text}}});
    if (html.size() < before.size() + after.size() || html.substr(0, before.size()) != before ||
        html.substr(html.size() - after.size()) != after)
    {
        return L"not a table: " + html;
    }
    return html.substr(before.size(), html.size() - before.size() - after.size());
}

TEST(PlainTableText, HasTitlesTabsAndLineEnds)
{
    EXPECT_EQ(PlainTable(SmallTable()), L"Name\tPeak\r\na.wav\t-6.0\r\nb.wav\t\r\n");
}

TEST(PlainTableText, OfNoRowsIsItsTitles)
{
    EXPECT_EQ(PlainTable({{{L"Name", false}}, {}}), L"Name\r\n");
}

TEST(PlainTableText, KeepsEachTextInItsField)
{
    EXPECT_EQ(PlainTable({{{L"a\tb", false}, {L"c", false}}, {{L"1\r\n2", L"3\n4"}}}), L"a b\tc\r\n1  2\t3 4\r\n");
}

TEST(CsvTableText, QuotesWhatWouldSeparate)
{
    EXPECT_EQ(CsvTable(SmallTable()), L"Name,Peak\r\na.wav,-6.0\r\nb.wav,\r\n");
    EXPECT_EQ(CsvTable({{{L"a,b", false}, {L"c", false}}, {{L"say \"x\"", L"1\n2"}, {L"\r", L" d "}, {L"e"}}}),
              L"\"a,b\",c\r\n\"say \"\"x\"\"\",\"1\n2\"\r\n\"\r\", d \r\ne,\r\n");
}

TEST(CsvTableText, IsWhatAFileOfThatNameHas)
{
    auto const mark = std::string("\xEF\xBB\xBF");
    EXPECT_EQ(TableFile({{{L"a,b", false}}, {{L"\u00E4"}}}, "list.CSV"), mark + "\"a,b\"\r\n\xC3\xA4\r\n");
    EXPECT_EQ(TableFile({{{L"a,b", false}}, {}}, "list.txt"), mark + "a,b\r\n");
}

TEST(HtmlTableText, HasTitlesAndAlignment)
{
    EXPECT_EQ(HtmlTable(SmallTable()), L"<table border=\"1\">\r\n"
                                       L"<tr><th align=\"left\">Name</th><th align=\"right\">Peak</th></tr>\r\n"
                                       L"<tr><td align=\"left\">a.wav</td><td align=\"right\">-6.0</td></tr>\r\n"
                                       L"<tr><td align=\"left\">b.wav</td><td align=\"right\"></td></tr>\r\n"
                                       L"</table>");
}

TEST(HtmlTableText, MarkupInATextIsText)
{
    EXPECT_EQ(HtmlOf(L"<b>\"R&B\"</b>"), L"&lt;b&gt;\"R&amp;B\"&lt;/b&gt;");
    EXPECT_EQ(HtmlOf(L"&lt;"), L"&amp;lt;");
}

TEST(HtmlTableText, LineBreaksAreKeptAndControlCharactersLeftOut)
{
    EXPECT_EQ(HtmlOf(L"a\r\nb\nc\td\x01\x1F\x7F"
                     L"e"),
              L"a<br>b<br>c de");
    EXPECT_EQ(HtmlOf(std::wstring(L"a\0b", 3)), L"ab");
}

TEST(HtmlTableText, CharactersBeyondAsciiAreNumbers)
{
    EXPECT_EQ(HtmlOf(L"\u00E4\u221E"), L"&#228;&#8734;");
    EXPECT_EQ(HtmlOf(L"\U0001F3B5"), L"&#127925;");
    EXPECT_EQ(HtmlOf(L"\U0010FFFF"), L"&#1114111;");
}

TEST(HtmlTableText, HalvesOfSurrogatePairsAreLeftOut)
{
    std::wstring const lead(1, static_cast<wchar_t>(0xD83C));
    std::wstring const trail(1, static_cast<wchar_t>(0xDFB5));
    EXPECT_EQ(HtmlOf(L"a" + lead), L"a");
    EXPECT_EQ(HtmlOf(L"a" + lead + L"b"), L"ab");
    EXPECT_EQ(HtmlOf(L"a" + trail + L"b"), L"ab");
    EXPECT_EQ(HtmlOf(lead + lead + trail), L"&#127925;");
}

TEST(HtmlTableText, IsAsciiForAnyText)
{
    std::mt19937 random(3);
    for (int i = 0; i < 2000; ++i)
    {
        std::wstring text;
        for (unsigned length = random() % 8; length > 0; --length)
        {
            text += static_cast<wchar_t>(random() % 2 == 0 ? random() % 0x80 : random() % 0x10000);
        }
        std::wstring const html = HtmlOf(text);
        EXPECT_TRUE(std::ranges::all_of(html, [](wchar_t c) { return c >= L' ' && c < 0x7F; }));
        EXPECT_EQ(html.find(L"not a table"), std::wstring::npos);
    }
}

TEST(HtmlTableText, TextsWithoutATitleAreLeftOut)
{
    EXPECT_EQ(HtmlTable({{{L"t", false}}, {{L"1", L"2"}}}), HtmlTable({{{L"t", false}}, {{L"1"}}}));
}

} // namespace
