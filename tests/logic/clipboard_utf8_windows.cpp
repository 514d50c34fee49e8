// The conversion to UTF-8 beside the system's own.

#include <windows.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "clipboard/HtmlBlock.h"

namespace
{
/// What the system leaves in a buffer of that size, filled up with 'x'.
std::vector<char> ByTheSystem(std::wstring const & text, std::size_t size)
{
    std::vector<char> buffer(size, 'x');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), buffer.data(), static_cast<int>(size),
                          nullptr, nullptr);
    return buffer;
}

std::vector<char> ByUs(std::wstring const & text, std::size_t size)
{
    std::vector<char> buffer(size, 'x');
    Utf8::Encode(text, buffer);
    return buffer;
}

std::wstring RandomText(std::mt19937 & random)
{
    std::wstring text;
    for (std::size_t left = 1 + random() % 40; left > 0; --left)
    {
        switch (random() % 5)
        {
        case 0:
            text.push_back(static_cast<wchar_t>(1 + random() % 0x7F));
            break;
        case 1:
            text.push_back(static_cast<wchar_t>(0x80 + random() % 0x780));
            break;
        case 2:
            text.push_back(static_cast<wchar_t>(0xD800 + random() % 0x400));
            break;
        case 3:
            text.push_back(static_cast<wchar_t>(0xDC00 + random() % 0x400));
            break;
        default:
            text.push_back(static_cast<wchar_t>(random()));
            break;
        }
    }
    return text;
}
} // namespace

TEST(Utf8System, EveryUnitAloneIsConvertedAsByTheSystem)
{
    for (unsigned unit = 1; unit < 0x10000; ++unit)
    {
        std::wstring const text(1, static_cast<wchar_t>(unit));
        ASSERT_EQ(ByUs(text, 8), ByTheSystem(text, 8)) << unit;
    }
}

TEST(Utf8System, TextWithHalfPairsIsConvertedAsByTheSystemUpToAnyLimit)
{
    std::mt19937 random(20240607);
    for (int round = 0; round < 2000; ++round)
    {
        std::wstring const text = RandomText(random);
        std::size_t const needed = static_cast<std::size_t>(::WideCharToMultiByte(
            CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0, nullptr, nullptr));
        for (std::size_t size = 1; size <= needed + 1; ++size)
            ASSERT_EQ(ByUs(text, size), ByTheSystem(text, size)) << "round " << round << ", " << size << " bytes";
    }
}
