#include "logic/DialogTexts.h"

#include <utility>

namespace workbench
{

namespace
{

constexpr std::uint16_t extended_mark = 0xFFFF;
constexpr std::uint16_t ordinal_mark = 0xFFFF; // a number follows in place of a text
constexpr std::uint32_t font_style = 0x40;     // DS_SETFONT
constexpr std::size_t item_alignment = 4;

/// Reads one field after the other. After the end everything is 0, and it has failed.
class Reader
{
public:
    explicit Reader(std::span<std::byte const> bytes) : m_bytes(bytes) {}

    bool Failed() const { return m_failed; }
    void Skip(std::size_t count) { m_place += count; }
    void Align() { m_place = (m_place + item_alignment - 1) / item_alignment * item_alignment; }
    std::uint16_t Word()
    {
        if (m_place > m_bytes.size() || m_bytes.size() - m_place < 2)
        {
            m_failed = true;
            return 0;
        }
        auto const low = static_cast<unsigned>(m_bytes[m_place]);
        auto const high = static_cast<unsigned>(m_bytes[m_place + 1]);
        m_place += 2;
        return static_cast<std::uint16_t>(low | high << 8);
    }
    std::uint32_t DoubleWord()
    {
        std::uint32_t const low = Word();
        return low | std::uint32_t{Word()} << 16;
    }
    /// A text, or nothing where a number stands.
    std::wstring Text()
    {
        std::uint16_t character = Word();
        if (character == ordinal_mark)
        {
            Word();
            return {};
        }
        std::wstring text;
        for (; character != 0; character = Word())
        {
            text += static_cast<wchar_t>(character);
        }
        return text;
    }

private:
    std::span<std::byte const> m_bytes;
    std::size_t m_place = 0;
    bool m_failed = false;
};

} // namespace

std::optional<DialogTexts> ReadDialogTexts(std::span<std::byte const> bytes)
{
    Reader reader(bytes);
    if (reader.Word() != 1 || reader.Word() != extended_mark)
    {
        return std::nullopt;
    }
    reader.Skip(8); // help, extended style
    std::uint32_t const style = reader.DoubleWord();
    std::uint16_t const count = reader.Word();
    reader.Skip(8); // place
    reader.Text();  // menu
    reader.Text();  // class
    DialogTexts texts;
    texts.caption = reader.Text();
    if ((style & font_style) != 0)
    {
        reader.Skip(6); // size, weight, slant, characters
        reader.Text();
    }
    for (int i = 0; i < count && !reader.Failed(); ++i)
    {
        reader.Align();
        reader.Skip(20); // help, styles, place
        DialogTexts::Control control;
        control.id = reader.DoubleWord();
        reader.Text(); // class
        control.text = reader.Text();
        reader.Skip(reader.Word());
        texts.controls.push_back(std::move(control));
    }
    return reader.Failed() ? std::nullopt : std::optional(std::move(texts));
}

} // namespace workbench
