#pragma once
// What is too wide for its field, and what a tip then shows. Internal to the module.

#include <afx.h>
#include <atltypes.h>

/// Whether a tip shows the text: a field keeps six pixels for its edges, at 96 dots an inch.
bool IsTooWide(int textWidth, int fieldWidth, unsigned int dpi = 96);

/// The part of a combo box that shows its text: its client area without the button. thumb: the width of a scroll bar's
/// thumb.
CRect ComboTextField(CRect const & client, int thumb, unsigned int dpi = 96);

/// The width that a drop-down needs for its widest text.
int DropWidth(int widestText, int scrollBar, int edge);

/// Room for a tip's text in its notification, the end included.
constexpr int tip_text_room = 80;

/// What a tip shows of a text: its end behind three dots where it is too long.
CString TipText(CString const & text);
