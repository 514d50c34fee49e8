#include "logic/RecordingFilter.h"

#include <algorithm>
#include <utility>

namespace workbench
{

namespace
{

constexpr std::size_t first_long_number = 9; // digits from which on one character doesn't say how many
constexpr std::size_t most_digits = 99;      // that are told apart

bool IsDigit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

bool IsBlank(wchar_t character)
{
    return character == L' ' || (character >= L'\t' && character <= L'\r') || character == L'\u00A0';
}

/// The small letter of a capital one in Latin, Greek and Cyrillic, whatever the system's language is.
wchar_t Folded(wchar_t character)
{
    auto const code = static_cast<unsigned long>(character);
    auto const isIn = [code](unsigned long first, unsigned long last) { return code >= first && code <= last; };
    if (isIn('A', 'Z') || (isIn(0xC0, 0xDE) && code != 0xD7) || (isIn(0x391, 0x3A9) && code != 0x3A2) ||
        isIn(0x410, 0x42F))
    {
        return static_cast<wchar_t>(code + 32);
    }
    // Capitals and small letters take turns.
    if ((isIn(0x100, 0x137) && code != 0x130) || isIn(0x14A, 0x177))
    {
        return static_cast<wchar_t>(code | 1);
    }
    if (isIn(0x139, 0x148) || isIn(0x179, 0x17E))
    {
        return static_cast<wchar_t>(code + (code & 1));
    }
    return isIn(0x400, 0x40F) ? static_cast<wchar_t>(code + 80) : character;
}

} // namespace

bool RecordingFilter::LetsAllThrough() const
{
    return !marked && !rating && state == State::any && std::ranges::all_of(words, IsBlank);
}

std::wstring FoldedText(std::wstring_view text)
{
    std::wstring folded(text);
    std::ranges::transform(folded, folded.begin(), Folded);
    return folded;
}

std::wstring SearchedText(std::filesystem::path const & file, std::wstring_view comment)
{
    // No word has a line's end, so none is found across.
    return FoldedText(file.filename().wstring() + L'\n' + file.parent_path().wstring() + L'\n' + std::wstring(comment));
}

FilterMatch::FilterMatch(RecordingFilter filter) : m_filter(std::move(filter))
{
    std::wstring const text = FoldedText(m_filter.words);
    for (auto begin = text.begin(); begin != text.end();)
    {
        begin = std::find_if_not(begin, text.end(), IsBlank);
        auto const end = std::find_if(begin, text.end(), IsBlank);
        if (begin != end)
        {
            m_words.emplace_back(begin, end);
        }
        begin = end;
    }
}

bool FilterMatch::operator()(Facts const & facts) const
{
    return (!m_filter.marked || facts.marked) && (!m_filter.rating || *m_filter.rating == facts.rating) &&
           (m_filter.state == RecordingFilter::State::any || m_filter.state == facts.state) &&
           std::ranges::all_of(m_words,
                               [&facts](auto const & word) { return facts.text.find(word) != facts.text.npos; });
}

std::wstring NaturalText(std::wstring_view text)
{
    std::wstring natural;
    natural.reserve(text.size() + 4);
    for (std::size_t i = 0; i < text.size();)
    {
        if (!IsDigit(text[i]))
        {
            natural += text[i++];
            continue;
        }
        while (i < text.size() && text[i] == L'0')
        {
            ++i;
        }
        std::size_t const begin = i;
        while (i < text.size() && IsDigit(text[i]))
        {
            ++i;
        }
        std::size_t const digits = std::min(i - begin, most_digits);
        natural += static_cast<wchar_t>(L'0' + std::min(digits, first_long_number));
        if (digits >= first_long_number)
        {
            natural += static_cast<wchar_t>(L'0' + digits / 10);
            natural += static_cast<wchar_t>(L'0' + digits % 10);
        }
        natural += text.substr(begin, i - begin);
    }
    return natural;
}

bool IsFileName(std::wstring_view name)
{
    return !name.empty() && name.back() != L' ' && name.back() != L'.' && std::ranges::none_of(name, [](wchar_t c) {
        return static_cast<unsigned long>(c) < L' ' ||
               std::wstring_view(L"\\/:*?\"<>|").find(c) != std::wstring_view::npos;
    });
}

} // namespace workbench
