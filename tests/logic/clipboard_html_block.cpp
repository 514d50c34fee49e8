// The block of the clipboard's HTML format, byte for byte, and as another program reads it.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "clipboard/HtmlBlock.h"
#include "clipboard_HtmlBlockReader.h"

namespace
{
using namespace std::string_literals;

constexpr std::string_view start_comment = "<!--StartFragment -->";

/// The block without what follows its terminator.
std::string TextOf(std::wstring_view html)
{
    std::vector<char> const block = HtmlBlock::Build(html);
    auto const end = std::find(block.begin(), block.end(), '\0');
    EXPECT_NE(end, block.end());
    return std::string(block.begin(), end);
}

std::string Repeated(std::string_view text, std::size_t count)
{
    std::string result;
    for (std::size_t at = 0; at < count; ++at)
        result += text;
    return result;
}
} // namespace

TEST(HtmlBlock, AFragmentIsPutBetweenTagsOfTheBlocksOwn)
{
    // The header's five lines take 13 + 20 + 18 + 24 + 22 = 97 bytes.
    EXPECT_EQ(TextOf(L"<b>x</b>"), "Version:0.9\r\n"
                                   "StartHTML:00000107\r\n"
                                   "EndHTML:00000191\r\n"
                                   "StartFragment:00000121\r\n"
                                   "EndFragment:00000154\r\n"
                                   "<!DOCTYPE><html><body>\r\n"
                                   "<!--StartFragment -->\r\n"
                                   "<b>x</b>\r\n"
                                   "<!--EndFragment -->\r\n"
                                   "</body>\r\n"
                                   "</html>"s);
}

TEST(HtmlBlock, ADocumentKeepsItsOwnTags)
{
    std::string const text = TextOf(L"<html><body>x</body></html>");
    EXPECT_EQ(text, "Version:0.9\r\n"
                    "StartHTML:00000120\r\n"
                    "EndHTML:00000147\r\n"
                    "StartFragment:00000097\r\n"
                    "EndFragment:00000149\r\n"
                    "<!--StartFragment -->\r\n"
                    "<html><body>x</body></html>\r\n"
                    "<!--EndFragment -->\r\n"s);
}

TEST(HtmlBlock, AnUmlautTakesTwoBytesAndOffsetsCountBytes)
{
    std::optional<html_block::Reading> const plain = html_block::Read(TextOf(L"aou"));
    std::optional<html_block::Reading> const umlauts = html_block::Read(TextOf(L"\u00E4\u00F6\u00FC"));
    ASSERT_TRUE(plain && umlauts);
    EXPECT_EQ(umlauts->fragment, std::string(start_comment) + "\r\n\xC3\xA4\xC3\xB6\xC3\xBC\r\n");
    EXPECT_EQ(std::stoul(umlauts->fields.at("EndFragment")), std::stoul(plain->fields.at("EndFragment")) + 3);
    EXPECT_EQ(std::stoul(umlauts->fields.at("EndHTML")), std::stoul(plain->fields.at("EndHTML")) + 3);
    EXPECT_EQ(umlauts->fields.at("StartHTML"), plain->fields.at("StartHTML"));
    EXPECT_EQ(umlauts->fields.at("StartFragment"), plain->fields.at("StartFragment"));
}

TEST(HtmlBlock, AReaderThatFollowsTheOffsetsFindsTheText)
{
    std::optional<html_block::Reading> const fragment = html_block::Read(TextOf(L"<i>50 \u20AC</i>"));
    ASSERT_TRUE(fragment);
    EXPECT_EQ(fragment->fields.at("Version"), "0.9");
    EXPECT_EQ(fragment->fragment, "<!--StartFragment -->\r\n<i>50 \xE2\x82\xAC</i>\r\n");
    EXPECT_EQ(fragment->html, "<html><body>\r\n" + fragment->fragment + "<!--EndFragment -->\r\n</body>\r\n</html>");

    std::optional<html_block::Reading> const document =
        html_block::Read(TextOf(L"<html><head></head><body>\u00B5V</body></html>"));
    ASSERT_TRUE(document);
    EXPECT_EQ(document->html, "<html><head></head><body>\xC2\xB5V</body></html>");
    EXPECT_EQ(document->fragment, "<!--StartFragment -->\r\n" + document->html + "\r\n");
}

TEST(HtmlBlock, EachFieldHasEightDigitsAndItsLineEnd)
{
    for (std::size_t const length : {1U, 10U, 1000U, 9000U, 100000U, 1200000U})
    {
        std::string const text = TextOf(std::wstring(length, L'x'));
        std::optional<html_block::Reading> const reading = html_block::Read(text);
        ASSERT_TRUE(reading) << length;
        EXPECT_EQ(reading->fields.size(), 5U);
        for (auto const & [name, digits] : reading->fields)
        {
            if (name != "Version")
            {
                EXPECT_EQ(digits.size(), 8U) << name;
                std::string line = name;
                line.append(":").append(digits).append("\r\n");
                EXPECT_NE(text.find(line), std::string::npos) << name;
            }
        }
        EXPECT_EQ(std::stoul(reading->fields.at("EndHTML")), text.size()) << "the block's end";
        EXPECT_EQ(reading->fragment.size(), start_comment.size() + 2 + length + 2);
    }
}

TEST(HtmlBlock, OnlyTheExactTagMakesADocument)
{
    for (wchar_t const * const html : {L"<BODY>x</BODY>", L"<body class=\"a\">x", L"body", L"<body", L"</body>"})
        EXPECT_NE(TextOf(html).find("<!DOCTYPE><html><body>\r\n"), std::string::npos);
    EXPECT_EQ(TextOf(L"x<body>").find("<!DOCTYPE>"), std::string::npos);
}

TEST(HtmlBlock, EachTagIsTheFirstOneFromTheStart)
{
    std::string const text = TextOf(L"<html>a</html><!--EndFragment -->");
    std::optional<html_block::Reading> const reading = html_block::Read(text);
    ASSERT_TRUE(reading);
    EXPECT_EQ(std::stoul(reading->fields.at("StartHTML")), 97U + 10);
    EXPECT_EQ(std::stoul(reading->fields.at("EndHTML")), text.find("</html>") + 7);
    EXPECT_EQ(reading->fragment, "<!--StartFragment -->\r\n<html>a</html>");
}

TEST(HtmlBlock, AFieldWhoseTagIsMissingStaysZero)
{
    std::optional<html_block::Reading> const fields = html_block::Read(TextOf(L"<body>x</body>"));
    ASSERT_TRUE(fields);
    EXPECT_EQ(fields->fields.at("StartHTML"), "00000000");
    EXPECT_EQ(fields->fields.at("EndHTML"), "00000000");
    EXPECT_EQ(fields->fragment, "<!--StartFragment -->\r\n<body>x</body>\r\n");
}

TEST(HtmlBlock, TheBlockHasTwoBytesACharacterAndSomeMore)
{
    EXPECT_EQ(HtmlBlock::SizeOf(L""), 400U);
    EXPECT_EQ(HtmlBlock::SizeOf(L"abc"), 406U);
    EXPECT_EQ(HtmlBlock::SizeOf(L"\u20AC"), 402U);
    EXPECT_EQ(HtmlBlock::SizeOf(L"\U0001F600"), 404U) << "a character of two units";
    EXPECT_EQ(HtmlBlock::SizeOf(L"\uFFFF\U00010000\U0010FFFF"), 400U + 2 + 4 + 4);
    EXPECT_EQ(HtmlBlock::SizeOf(std::wstring_view(L"ab\0c", 4)), 404U) << "text ends at its terminator";
    EXPECT_EQ(HtmlBlock::Build(L"abc").size(), 406U);
}

TEST(HtmlBlock, WhatFollowsTheTerminatorIsZero)
{
    std::vector<char> memory(500, 'x');
    std::size_t const length = HtmlBlock::Build(L"a", memory);
    EXPECT_EQ(length, TextOf(L"a").size());
    EXPECT_EQ(std::count(memory.begin() + static_cast<std::ptrdiff_t>(length), memory.end(), '\0'),
              static_cast<std::ptrdiff_t>(500 - length));
    EXPECT_NE(memory[length - 1], '\0');
}

// 97 bytes of fields, 24 + 23 around the start and 39 at the end leave 217 bytes of the 400 for the third bytes of the
// characters and the terminator, so that a block of 216 such characters is full.
TEST(HtmlBlock, TextOfThreeBytesACharacterIsWholeAsLongAsItFits)
{
    std::string const whole = TextOf(std::wstring(216, L'\u20AC'));
    EXPECT_EQ(whole.size(), 2U * 216 + 400 - 1);
    std::optional<html_block::Reading> const reading = html_block::Read(whole);
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->fragment, "<!--StartFragment -->\r\n" + Repeated("\xE2\x82\xAC", 216) + "\r\n");
    EXPECT_EQ(std::stoul(reading->fields.at("EndHTML")), whole.size());

    std::string const cut = TextOf(std::wstring(217, L'\u20AC'));
    EXPECT_EQ(cut.size(), 2U * 217 + 400 - 1);
    EXPECT_EQ(cut.substr(cut.size() - 6), "</html") << "the trailer is cut first";
    EXPECT_NE(cut.find("EndHTML:00000000\r\n"), std::string::npos);
    EXPECT_EQ(cut.find("EndFragment:00000000"), std::string::npos);
}

TEST(HtmlBlock, LongerTextStopsWithAWholeCharacterAtTheBlocksEnd)
{
    std::vector<char> const block = HtmlBlock::Build(std::wstring(1000, L'\u20AC'));
    ASSERT_EQ(block.size(), 2400U);
    // 2400 - 1 - 144 bytes of header leave room for 751 characters and two bytes, into which the trailer starts.
    std::string const text(block.data());
    EXPECT_EQ(text.substr(144), Repeated("\xE2\x82\xAC", 751) + "\r\n");
    EXPECT_NE(text.find("EndFragment:00000000\r\n"), std::string::npos);
    EXPECT_NE(text.find("StartFragment:00000121\r\n"), std::string::npos);
}

TEST(HtmlBlock, AnyMemoryHoldsWhatFits)
{
    std::vector<char> const whole = HtmlBlock::Build(L"ab\u20ACc");
    std::size_t const length = TextOf(L"ab\u20ACc").size();
    for (std::size_t size = 0; size <= whole.size(); ++size)
    {
        std::vector<char> memory(size, 'x');
        std::size_t const written = HtmlBlock::Build(L"ab\u20ACc", memory);
        if (size == 0)
        {
            EXPECT_EQ(written, 0U);
            continue;
        }
        ASSERT_LT(written, size);
        ASSERT_EQ(memory[written], '\0');
        if (size > length)
        {
            ASSERT_EQ(written, length);
        }
    }
}

TEST(Utf8, CharactersTakeOneToFourBytes)
{
    auto const encode = [](std::wstring_view text) {
        char target[32];
        return std::string(target, Utf8::Encode(text, target));
    };
    EXPECT_EQ(encode(L"\x01 A\x7F"), "\x01 A\x7F");
    EXPECT_EQ(encode(L"\u0080\u07FF"), "\xC2\x80\xDF\xBF");
    EXPECT_EQ(encode(L"\u0800\uFFFF"), "\xE0\xA0\x80\xEF\xBF\xBF");
    EXPECT_EQ(encode(L"\U00010000\U0010FFFF"), "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
    EXPECT_EQ(encode(L"\U0001F5A9"), "\xF0\x9F\x96\xA9");
}

TEST(Utf8, APairIsOneCharacterAndHalfOfOneIsReplaced)
{
    auto const encode = [](std::initializer_list<unsigned> units) {
        std::wstring text;
        for (unsigned const unit : units)
            text.push_back(static_cast<wchar_t>(unit));
        char target[32];
        return std::string(target, Utf8::Encode(text, target));
    };
    EXPECT_EQ(encode({0xD83D, 0xDE00}), "\xF0\x9F\x98\x80");
    EXPECT_EQ(encode({0xD800, 0xDC00}), "\xF0\x90\x80\x80");
    EXPECT_EQ(encode({0xDBFF, 0xDFFF}), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(encode({0xD83D}), "\xEF\xBF\xBD");
    EXPECT_EQ(encode({0xDE00}), "\xEF\xBF\xBD");
    EXPECT_EQ(encode({0xDE00, 0xD83D}), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(encode({0xD83D, 'a'}), "\xEF\xBF\xBD"
                                     "a");
    EXPECT_EQ(encode({0xD83D, 0xD83D, 0xDE00}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
    EXPECT_EQ(encode({0xD7FF, 0xE000}), "\xED\x9F\xBF\xEE\x80\x80");
}

TEST(Utf8, EndsBeforeTheCharacterThatDoesNotFit)
{
    std::wstring const text = L"a\u00E4\u20AC\U0001F600";
    constexpr std::size_t expected[] = {0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10, 10};
    for (std::size_t limit = 0; limit < std::size(expected); ++limit)
    {
        std::vector<char> target(limit);
        EXPECT_EQ(Utf8::Encode(text, target), expected[limit]) << limit;
    }
}
