#include "clipboard/HtmlBlock.h"

#include <algorithm>
#include <cstdio>

namespace
{
constexpr std::string_view header_around_document = "Version:0.9\r\n"
                                                    "StartHTML:00000000\r\n"
                                                    "EndHTML:00000000\r\n"
                                                    "StartFragment:00000000\r\n"
                                                    "EndFragment:00000000\r\n"
                                                    "<!--StartFragment -->\r\n";
constexpr std::string_view header_around_fragment = "Version:0.9\r\n"
                                                    "StartHTML:00000000\r\n"
                                                    "EndHTML:00000000\r\n"
                                                    "StartFragment:00000000\r\n"
                                                    "EndFragment:00000000\r\n"
                                                    "<!DOCTYPE><html><body>\r\n"
                                                    "<!--StartFragment -->\r\n";
constexpr std::string_view trailer_around_document = "\r\n<!--EndFragment -->\r\n";
constexpr std::string_view trailer_around_fragment = "\r\n<!--EndFragment -->\r\n</body>\r\n</html>";
constexpr std::string_view html_end = "</html>";

constexpr std::size_t bytes_per_unit = 2;
constexpr std::size_t bytes_around_text = 400;
static_assert(header_around_fragment.size() + trailer_around_fragment.size() < bytes_around_text);

constexpr std::size_t field_digits = 8;

constexpr char32_t replacement_character = 0xFFFD;
constexpr char32_t last_character = 0x10FFFF;

bool IsHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// How many units of UTF-16 a unit of text takes: a wider wchar_t may hold a whole pair.
std::size_t UnitsInUtf16(char32_t unit)
{
    return unit > 0xFFFF && unit <= last_character ? 2 : 1;
}

/// Takes the next character off the text.
char32_t TakeCharacter(std::wstring_view & text)
{
    auto const first = static_cast<char32_t>(text.front());
    text.remove_prefix(1);
    if (IsHighSurrogate(first) && !text.empty() && IsLowSurrogate(static_cast<char32_t>(text.front())))
    {
        char32_t const second = static_cast<char32_t>(text.front());
        text.remove_prefix(1);
        return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
    }
    bool const isCharacter = !IsHighSurrogate(first) && !IsLowSurrogate(first) && first <= last_character;
    return isCharacter ? first : replacement_character;
}

std::size_t EncodeCharacter(char32_t character, char (&bytes)[Utf8::longest_character])
{
    auto const following = [character](int shift) { return static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80)
    {
        bytes[0] = static_cast<char>(character);
        return 1;
    }
    if (character < 0x800)
    {
        bytes[0] = static_cast<char>(0xC0 | (character >> 6));
        bytes[1] = following(0);
        return 2;
    }
    if (character < 0x10000)
    {
        bytes[0] = static_cast<char>(0xE0 | (character >> 12));
        bytes[1] = following(6);
        bytes[2] = following(0);
        return 3;
    }
    bytes[0] = static_cast<char>(0xF0 | (character >> 18));
    bytes[1] = following(12);
    bytes[2] = following(6);
    bytes[3] = following(0);
    return 4;
}

/// Fills the field behind the label with the offset of the tag, both searched from the block's start.
void FillField(std::span<char> block, std::string_view label, std::string_view tag, std::size_t behindTag)
{
    std::string_view const text(block.data(), block.size());
    std::size_t const field = text.find(label);
    std::size_t const offset = text.find(tag);
    // Every tag stands behind the fields, so that a field whose tag is there is whole.
    if (field == std::string_view::npos || offset == std::string_view::npos)
        return;
    char digits[24];
    std::snprintf(digits, sizeof(digits), "%08llu", static_cast<unsigned long long>(offset) + behindTag);
    std::copy_n(digits, field_digits, block.begin() + static_cast<std::ptrdiff_t>(field + label.size()));
}
} // namespace

std::size_t HtmlBlock::SizeOf(std::wstring_view html)
{
    html = html.substr(0, html.find(L'\0'));
    std::size_t units = 0;
    for (wchar_t const unit : html)
        units += UnitsInUtf16(static_cast<char32_t>(unit));
    return units * bytes_per_unit + bytes_around_text;
}

std::size_t HtmlBlock::Build(std::wstring_view html, std::span<char> memory)
{
    std::fill(memory.begin(), memory.end(), '\0');
    if (memory.empty())
        return 0;
    html = html.substr(0, html.find(L'\0'));
    bool const isDocument = html.find(L"<body>") != std::wstring_view::npos;

    std::span<char> const room = memory.first(memory.size() - 1);
    std::size_t length = 0;
    auto const append = [&](std::string_view text) { length += text.copy(room.data() + length, room.size() - length); };
    append(isDocument ? header_around_document : header_around_fragment);
    length += Utf8::Encode(html, room.subspan(length));
    append(isDocument ? trailer_around_document : trailer_around_fragment);

    std::span<char> const block = room.first(length);
    FillField(block, "StartHTML:", "<html>", 0);
    FillField(block, "EndHTML:", html_end, html_end.size());
    FillField(block, "StartFragment:", "<!--StartFragment -->", 0);
    FillField(block, "EndFragment:", "<!--EndFragment -->", 0);
    return length;
}

std::vector<char> HtmlBlock::Build(std::wstring_view html)
{
    std::vector<char> memory(SizeOf(html));
    Build(html, memory);
    return memory;
}

std::size_t Utf8::Encode(std::wstring_view text, std::span<char> target)
{
    std::size_t length = 0;
    while (!text.empty())
    {
        char bytes[longest_character];
        std::size_t const count = EncodeCharacter(TakeCharacter(text), bytes);
        if (count > target.size() - length)
            break;
        std::copy_n(bytes, count, target.begin() + static_cast<std::ptrdiff_t>(length));
        length += count;
    }
    return length;
}
