#include "list/table/NaturalOrder.h"

#include <array>
#include <cstdint>

namespace
{
/// What the characters of the first block count as: small letters without accents. 0 where two characters stand for
/// one.
constexpr std::array<unsigned char, 256> MakeBaseLetters()
{
    std::array<unsigned char, 256> table{};
    for (unsigned int i = 0; i < 256; ++i)
        table[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i + 32 : i);
    // From 0xC0 on, capitals and small letters in the same order.
    constexpr char bases[] = "aaaaaa\0ceeeeiiiidnooooo\0ouuuuy\0\0";
    for (unsigned int i = 0; i < 32; ++i)
    {
        if (bases[i] != '\0')
            table[0xC0 + i] = table[0xE0 + i] = static_cast<unsigned char>(bases[i]);
    }
    table[0xD7] = 0xD7;
    table[0xF7] = 0xF7;
    table[0xFF] = 'y';
    // The null character, which must not look like the end.
    table[0] = 1;
    return table;
}
constexpr std::array<unsigned char, 256> base_letters = MakeBaseLetters();

constexpr wchar_t capital_ae = 0xC6;
constexpr wchar_t small_ae = 0xE6;
constexpr wchar_t capital_thorn = 0xDE;
constexpr wchar_t small_thorn = 0xFE;
constexpr wchar_t sharp_s = 0xDF;

/// Numbers with fewer digits say how many in the first byte.
constexpr std::size_t first_long_number = 9;
constexpr std::size_t greatest_step = 254;

constexpr std::array<wchar_t, 256> MakeSmallLetters()
{
    std::array<wchar_t, 256> table{};
    for (unsigned int i = 0; i < 256; ++i)
    {
        bool const capital = (i >= 'A' && i <= 'Z') || (i >= 0xC0 && i <= 0xDE && i != 0xD7);
        table[i] = static_cast<wchar_t>(capital ? i + 32 : i);
    }
    return table;
}
constexpr std::array<wchar_t, 256> small_letters = MakeSmallLetters();

bool IsDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

wchar_t Small(wchar_t character)
{
    auto const code = static_cast<std::uint32_t>(character);
    return code < 256 ? small_letters[code] : FoldCase(character);
}

wchar_t CapitalOf(wchar_t small)
{
    auto const code = static_cast<std::uint32_t>(small);
    wchar_t const candidates[] = {static_cast<wchar_t>(code - 32), static_cast<wchar_t>(code - 1),
                                  static_cast<wchar_t>(code - 80)};
    for (wchar_t const each : candidates)
    {
        if (code > 80 && FoldCase(each) == small)
            return each;
    }
    return small;
}
} // namespace

unsigned char NaturalBytes::NextDigit()
{
    if (m_lengthOpen)
    {
        if (m_longer >= greatest_step)
        {
            m_longer -= greatest_step;
            return 0xFF;
        }
        m_lengthOpen = false;
        return static_cast<unsigned char>(1 + m_longer);
    }
    --m_digits;
    return static_cast<unsigned char>('0' + (m_text[m_at++] - L'0'));
}

unsigned char NaturalBytes::NextCharacter()
{
    if (m_digits != 0)
        return NextDigit();
    if (m_at >= m_text.size())
        return 0;
    wchar_t const character = m_text[m_at];
    if (IsDigit(character))
    {
        while (m_at < m_text.size() && m_text[m_at] == L'0')
            ++m_at;
        std::size_t end = m_at;
        while (end < m_text.size() && IsDigit(m_text[end]))
            ++end;
        m_digits = end - m_at;
        if (m_digits < first_long_number)
            return static_cast<unsigned char>('0' + m_digits);
        m_longer = m_digits - first_long_number;
        m_lengthOpen = true;
        return '0' + first_long_number;
    }
    ++m_at;
    auto code = static_cast<std::uint32_t>(character);
    if (code < 0x80)
        return base_letters[code];
    if (code < 0x100)
    {
        if (base_letters[code] < 0x80)
            return base_letters[code];
        m_pending[0] = 'a';
        m_pending[1] = 'e';
        if (character == capital_ae || character == small_ae)
            return Give(2);
        m_pending[0] = 't';
        m_pending[1] = 'h';
        if (character == capital_thorn || character == small_thorn)
            return Give(2);
        m_pending[0] = m_pending[1] = 's';
        if (character == sharp_s)
            return Give(2);
    }
    else
    {
        code = static_cast<std::uint32_t>(FoldCase(character));
    }
    if (code >= 0xD800 && code < 0xDC00 && m_at < m_text.size())
    {
        auto const second = static_cast<std::uint32_t>(m_text[m_at]);
        if (second >= 0xDC00 && second < 0xE000)
        {
            ++m_at;
            code = 0x10000 + ((code - 0xD800) << 10 | (second - 0xDC00));
        }
    }
    if (code < 0x800)
    {
        m_pending[0] = static_cast<unsigned char>(0xC0 | code >> 6);
        m_pending[1] = static_cast<unsigned char>(0x80 | (code & 0x3F));
        return Give(2);
    }
    if (code < 0x10000)
    {
        m_pending[0] = static_cast<unsigned char>(0xE0 | code >> 12);
        m_pending[1] = static_cast<unsigned char>(0x80 | (code >> 6 & 0x3F));
        m_pending[2] = static_cast<unsigned char>(0x80 | (code & 0x3F));
        return Give(3);
    }
    m_pending[0] = static_cast<unsigned char>(0xF0 | (code >> 18 & 7));
    m_pending[1] = static_cast<unsigned char>(0x80 | (code >> 12 & 0x3F));
    m_pending[2] = static_cast<unsigned char>(0x80 | (code >> 6 & 0x3F));
    m_pending[3] = static_cast<unsigned char>(0x80 | (code & 0x3F));
    return Give(4);
}

int CompareNaturally(std::wstring_view a, std::wstring_view b)
{
    NaturalBytes first(a);
    NaturalBytes second(b);
    for (;;)
    {
        unsigned char const left = first.Next();
        unsigned char const right = second.Next();
        if (left != right)
            return left < right ? -1 : 1;
        if (left == 0)
            return 0;
    }
}

wchar_t FoldCase(wchar_t character)
{
    auto const code = static_cast<std::uint32_t>(character);
    if (code < 256)
        return small_letters[code];
    // Latin with accents, where capital and small letters take turns.
    if ((code >= 0x100 && code <= 0x137 && code != 0x130) || (code >= 0x14A && code <= 0x177))
        return static_cast<wchar_t>(code | 1);
    if ((code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E))
        return static_cast<wchar_t>(code + (code & 1));
    // Greek and Cyrillic.
    if ((code >= 0x391 && code <= 0x3A9 && code != 0x3A2) || (code >= 0x410 && code <= 0x42F))
        return static_cast<wchar_t>(code + 32);
    if (code >= 0x400 && code <= 0x40F)
        return static_cast<wchar_t>(code + 80);
    return character;
}

TextSearch::TextSearch(std::wstring_view wanted, bool matchCase) : m_wanted(wanted), m_matchCase(matchCase)
{
    if (!matchCase)
    {
        for (wchar_t & each : m_wanted)
            each = Small(each);
    }
    if (m_wanted.empty())
        return;
    m_first = m_wanted[0];
    m_otherFirst = matchCase ? m_first : CapitalOf(m_first);
}

bool TextSearch::MatchesAt(wchar_t const * text) const
{
    if (m_matchCase)
        return std::wstring_view(text, m_wanted.size()) == m_wanted;
    for (std::size_t i = 0; i < m_wanted.size(); ++i)
    {
        if (Small(text[i]) != m_wanted[i])
            return false;
    }
    return true;
}

bool TextSearch::IsIn(std::wstring_view text) const
{
    if (m_wanted.empty())
        return true;
    if (text.size() < m_wanted.size())
        return false;
    wchar_t const * const end = text.data() + (text.size() - m_wanted.size()) + 1;
    for (wchar_t const * at = text.data(); at != end; ++at)
    {
        if ((*at == m_first || *at == m_otherFirst) && MatchesAt(at))
            return true;
    }
    return false;
}
