#include "segments/LedTextAnzeiger.h"

#include "frame/GdiplusModule.h"
#include "segments/DigiCharArray.h"
#include "segments/DigiLine.h"

namespace
{
constexpr Gdiplus::REAL pen_width = 1.0F;

Gdiplus::Color Opaque(COLORREF color)
{
    return Gdiplus::Color(255, GetRValue(color), GetGValue(color), GetBValue(color));
}
} // namespace

void CLedTextAnzeiger::DrawTextW(Gdiplus::Graphics & graphics, CRect & rect)
{
    if (m_charCount == 0)
        return;
    DigiStatic::CLinePlace const place = DigiStatic::PlaceAlignedLine(rect, m_textWidth, m_flags);
    Gdiplus::Pen onPen(Opaque(m_onColor), pen_width);
    Gdiplus::Pen offPen(Opaque(m_offColor), pen_width);
    Gdiplus::SolidBrush onBrush(Opaque(m_onColor));
    Gdiplus::SolidBrush offBrush(Opaque(m_offColor));
    double const bottom = place.top + place.scaleY * DigiStatic::cell_height;
    double left = place.left;
    for (unsigned int i = 0; i < m_charCount; ++i)
    {
        // A copy that shares the array may have shortened the text.
        DigiStatic::CDigiChar const * const character = m_chars->entries[i].get();
        if (character == nullptr)
            continue;
        unsigned int const width = static_cast<unsigned int>(character->GetWidth());
        double const cell[] = {left, place.top, left + place.scaleX * width, bottom};
        character->DrawGdiPlus(graphics, cell, offPen, onPen, offBrush, onBrush);
        left += place.scaleX * (width + m_extraSpacing);
    }
}
