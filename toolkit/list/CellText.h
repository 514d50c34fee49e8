#pragma once
// The text that a cell shows. Internal to the list family.

#include <cstddef>
#include <string>
#include <string_view>

/// The text of a cell, asked for once where it has no more than the usual length. Not moved: it may be in the object.
class CellText
{
public:
    static constexpr int whole = 1 << 24;

    /// ask(wchar_t * buffer, int room): copies the text as far as there is room for it and its end mark; the number of
    /// characters. limit: so many are enough.
    template <class Ask> explicit CellText(Ask ask, int limit = whole)
    {
        int room = limit < usual_room ? limit + 1 : usual_room;
        m_short[0] = L'\0';
        m_length = ask(m_short, room);
        while (m_length >= room - 1 && room < limit)
        {
            room = room < limit / 2 ? room * 2 : limit + 1;
            m_long.resize(static_cast<std::size_t>(room));
            m_length = ask(m_long.data(), room);
            m_text = m_long.data();
        }
    }
    CellText(CellText const &) = delete;
    CellText & operator=(CellText const &) = delete;

    bool IsEmpty() const { return m_length <= 0; }
    int Length() const { return m_length > 0 ? m_length : 0; }
    wchar_t const * Characters() const { return m_text; }
    std::wstring_view View() const { return {m_text, static_cast<std::size_t>(Length())}; }

private:
    static constexpr int usual_room = 256;

    wchar_t m_short[usual_room];
    std::wstring m_long;
    int m_length;
    wchar_t const * m_text = m_short;
};
