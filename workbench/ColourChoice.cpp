#include "ColourChoice.h"

#include <afxdlgs.h>

#include "logic/ReadableColours.h"
#include "logic/WaveformColours.h"

namespace
{

constexpr double hot_part = 0.2; // of the caption's colour in a hot button
constexpr int focus_inset = 3;   // pixels

} // namespace

void CColourChoice::ShowColour(COLORREF colour)
{
    m_colour = colour;
    COLORREF const text = workbench::FarthestColour(colour);
    COLORREF const hot = workbench::MixedColour(colour, text, hot_part);
    SetColors(text, colour, workbench::FarthestColour(hot), hot);
    SetWindowText(workbench::ColourText(colour).c_str());
    Invalidate();
}

bool CColourChoice::Choose()
{
    if (m_choosing)
    {
        return false;
    }
    m_choosing = true;
    LifeWatch const life(m_sign);
    CColorDialog dialog(m_colour, CC_FULLOPEN | CC_ANYCOLOR, this);
    bool const chosen = dialog.DoModal() == IDOK;
    // Whatever the button stands in can have been closed meanwhile.
    if (life.Over())
    {
        return false;
    }
    m_choosing = false;
    if (!chosen || !::IsWindow(m_hWnd) || dialog.GetColor() == m_colour)
    {
        return false;
    }
    ShowColour(dialog.GetColor());
    return true;
}

void CColourChoice::DrawItem(LPDRAWITEMSTRUCT item)
{
    CColorButton::DrawItem(item);
    if ((item->itemState & ODS_FOCUS) != 0)
    {
        CRect inside(item->rcItem);
        inside.DeflateRect(focus_inset, focus_inset);
        // Drawn in the opposite of what is there, which needs these two colours.
        ::SetTextColor(item->hDC, RGB(0, 0, 0));
        ::SetBkColor(item->hDC, RGB(255, 255, 255));
        ::DrawFocusRect(item->hDC, &inside);
    }
}
