#pragma once

#include "controls/ColorButton.h"
#include "frame/LifeWatch.h"

/// A button in a colour, which lets the user choose another one.
class CColourChoice : public CColorButton
{
public:
    COLORREF Colour() const { return m_colour; }
    /// Shows the colour, whose number is the caption.
    void ShowColour(COLORREF colour);
    /// Asks the user. True if another colour was chosen; nothing while the question is open already, or if the button
    /// went meanwhile.
    bool Choose();

    void DrawItem(LPDRAWITEMSTRUCT item) override;

private:
    COLORREF m_colour = 0;
    bool m_choosing = false;
    LifeSign m_sign;
};
