#include "DialogTemplate.h"

namespace tests
{
namespace
{
constexpr size_t count_index = 8; // the word with the number of controls in the extended template
constexpr WORD point_size = 8;
} // namespace

DialogTemplate::DialogTemplate(std::wstring_view title, CRect const & rect, DWORD style, DWORD exStyle,
                               std::wstring_view font)
{
    m_words = {1, 0xFFFF}; // version and signature of the extended form
    PutDword(0);           // help identifier
    PutDword(exStyle);
    PutDword(font.empty() ? style : style | DS_SETFONT);
    m_words.push_back(0); // number of controls
    PutRect(rect);
    m_words.push_back(0); // no menu
    m_words.push_back(0); // the dialog class
    PutText(title);
    if (!font.empty())
    {
        m_words.push_back(point_size);
        m_words.push_back(FW_NORMAL);
        m_words.push_back(DEFAULT_CHARSET << 8); // not italic, character set
        PutText(font);
    }
}

void DialogTemplate::Add(std::wstring_view className, std::wstring_view text, int id, CRect const & rect, DWORD style,
                         DWORD exStyle)
{
    if (m_words.size() % 2 != 0)
        m_words.push_back(0); // items start at multiples of four bytes
    PutDword(0);              // help identifier
    PutDword(exStyle);
    PutDword(style | WS_CHILD | WS_VISIBLE);
    PutRect(rect);
    PutDword(static_cast<DWORD>(id));
    PutText(className);
    PutText(text);
    m_words.push_back(0); // no creation data
    m_words[count_index] = ++m_count;
}

void DialogTemplate::PutDword(DWORD value)
{
    m_words.push_back(LOWORD(value));
    m_words.push_back(HIWORD(value));
}

void DialogTemplate::PutText(std::wstring_view text)
{
    for (wchar_t const character : text)
        m_words.push_back(static_cast<WORD>(character));
    m_words.push_back(0);
}

void DialogTemplate::PutRect(CRect const & rect)
{
    for (int const value : {rect.left, rect.top, static_cast<LONG>(rect.Width()), static_cast<LONG>(rect.Height())})
        m_words.push_back(static_cast<WORD>(value));
}
} // namespace tests
