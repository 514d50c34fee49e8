#pragma once
// What a colour button paints and where, as far as it can be said in values. Internal to the module.

#include <afx.h>
#include <atltypes.h>

/// How a button looks at the moment, by priority.
enum class ButtonLook
{
    normal,
    hot,
    disabled
};

ButtonLook LookOfButton(bool disabled, bool hot);

/// Whether the area is filled. Without a frame the colour of a button's face stands for what lies behind.
bool ButtonIsFilled(bool framed, COLORREF background, COLORREF buttonFace);

/// Where an icon of that edge starts, so that it is centred.
CPoint ButtonIconOrigin(CRect const & area, int edge);

/// Where a caption of that extent starts; a pressed button moves it by so many pixels.
CPoint ButtonCaptionOrigin(CRect const & area, CSize extent, bool pressed, int by = 1);

constexpr int color_table_size = 12;

/// The colours of the system that a colour table holds.
struct SystemColors
{
    COLORREF buttonText;
    COLORREF grayText;
    COLORREF buttonFace;
    COLORREF window;
};

/// Fills the table of CColorControl::Color_e: eight fixed colours, four of the system.
void FillColorTable(unsigned int (&table)[color_table_size], SystemColors const & system);
