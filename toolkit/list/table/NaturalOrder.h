#pragma once
// Texts in the order that people expect ("Ch 2" ahead of "Ch 10"), and the search for one text in another.

#include <cstddef>
#include <string>
#include <string_view>

/// Gives a text's characters as bytes whose plain order is the natural one of texts: numbers by their value, letters
/// without regard to case and accents. No byte is 0. Texts that differ in leading zeros, case or accents alone give the
/// same bytes.
class NaturalBytes
{
public:
    explicit NaturalBytes(std::wstring_view text) : m_text(text) {}

    /// The next byte; 0 at the end, from then on.
    unsigned char Next()
    {
        if (m_given < m_length)
            return m_pending[m_given++];
        return NextCharacter();
    }

private:
    unsigned char NextCharacter();
    unsigned char NextDigit();
    unsigned char Give(std::size_t length)
    {
        m_given = 1;
        m_length = length;
        return m_pending[0];
    }

    std::wstring_view m_text;
    std::size_t m_at = 0;
    /// Digits of the present number that are still to be given.
    std::size_t m_digits = 0;
    /// Bytes of the present number's length that are still to be given; its last one follows them.
    std::size_t m_longer = 0;
    bool m_lengthOpen = false;
    unsigned char m_pending[4] = {};
    std::size_t m_given = 0;
    std::size_t m_length = 0;
};

/// The natural order of two texts: negative, 0 or positive.
int CompareNaturally(std::wstring_view a, std::wstring_view b);

/// The small letter of a capital one; any other character as it is.
wchar_t FoldCase(wchar_t character);

/// Looks for a text in others.
class TextSearch
{
public:
    explicit TextSearch(std::wstring_view wanted, bool matchCase = false);
    bool IsIn(std::wstring_view text) const;
    bool BeginsIn(std::wstring_view text) const { return text.size() >= m_wanted.size() && MatchesAt(text.data()); }

private:
    bool MatchesAt(wchar_t const * text) const;

    std::wstring m_wanted;
    bool m_matchCase;
    /// The two forms of its first character.
    wchar_t m_first = 0;
    wchar_t m_otherFirst = 0;
};
