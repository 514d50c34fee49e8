#include "segments/LedTextAnzeiger.h"

#include "segments/DigiCharArray.h"
#include "segments/DigiColors.h"

namespace
{
constexpr unsigned int initial_capacity = 20;

void SetBits(DWORD & flags, DWORD bits, bool on)
{
    flags = on ? flags | bits : flags & ~bits;
}
} // namespace

CLedTextAnzeiger::CLedTextAnzeiger()
    : m_flags(DigiStyleKeepAspect),
      m_offColor(DigiStatic::default_off_color),
      m_onColor(DigiStatic::default_on_color),
      m_backColor(DigiStatic::default_back_color),
      m_extraSpacing(0),
      m_chars(std::make_shared<DigiStatic::CDigiCharArray>(initial_capacity)),
      m_charCount(0),
      m_capacity(initial_capacity),
      m_textWidth(0)
{
}

CLedTextAnzeiger::CLedTextAnzeiger(CLedTextAnzeiger const & other) = default;
CLedTextAnzeiger & CLedTextAnzeiger::operator=(CLedTextAnzeiger const & other) = default;
CLedTextAnzeiger::~CLedTextAnzeiger() = default;

void CLedTextAnzeiger::SetText(CString const & text)
{
    BuildString(text);
}

void CLedTextAnzeiger::SetTextAlign(unsigned int align)
{
    if (align != 0 && align != LedAlignLeft && align != LedAlignRight)
        return;
    SetBits(m_flags, LedAlignLeft, align == LedAlignLeft);
    SetBits(m_flags, LedAlignRight, align == LedAlignRight);
}

void CLedTextAnzeiger::SetColors(COLORREF onColor, COLORREF offColor, COLORREF backColor)
{
    m_onColor = onColor;
    m_offColor = offColor;
    m_backColor = backColor;
}

void CLedTextAnzeiger::SetExtraSpacing(unsigned int spacing)
{
    m_extraSpacing = spacing;
}

void CLedTextAnzeiger::ShowOffSegments(bool show)
{
    SetBits(m_flags, DigiStyleHideOff, !show);
}

void CLedTextAnzeiger::Always14Sement(bool always)
{
    SetBits(m_flags, DigiStyleAlways14, always);
}

unsigned int CLedTextAnzeiger::TextWidht() const
{
    return m_textWidth;
}

void CLedTextAnzeiger::BuildString(CString const & text)
{
    if (text == m_text)
        return;
    FreeCharArray();
    // Empty until all is built: memory may fail at any character.
    m_text.Empty();
    m_charCount = 0;
    m_textWidth = 0;
    auto const length = static_cast<unsigned int>(text.GetLength());
    if (length > m_capacity)
    {
        m_chars = std::make_shared<DigiStatic::CDigiCharArray>(m_capacity + length);
        m_capacity += length;
    }
    unsigned int width = 0;
    for (unsigned int i = 0; i < length; ++i)
    {
        DigiStatic::CDigiCharOwner & character = m_chars->entries[i];
        character.reset(DigiStatic::CreateDigiChar(text[static_cast<int>(i)], m_flags));
        width += static_cast<unsigned int>(character->GetWidth()) + m_extraSpacing;
    }
    m_text = text;
    m_charCount = length;
    m_textWidth = length != 0 ? width - m_extraSpacing : 0;
}

void CLedTextAnzeiger::FreeCharArray()
{
    for (unsigned int i = 0; i < m_charCount; ++i)
        m_chars->entries[i].reset();
}
