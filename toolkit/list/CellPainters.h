#pragma once
// How cells are painted. The painters know a cell's record, its place, the context and the colours, and nothing of rows
// or of the control that shows the cell. Internal to the module.
//
//     CellPaint paint{dc, cell, rect, cell.textColor, cell.backgroundColor};
//     cell_painters::GreyDisabled(cell, look.palette, paint.text, paint.background);
//     // ... the colours of a selection
//     cell_painters::PaintCell(paint, look, text);

#include <afxcmn.h>

#include "list/CellText.h"
#include "list/XListCtrlData.h"

/// The colours of a control with cells, as the system has them but for the marks.
struct CellPalette
{
    static CellPalette OfSystem();

    COLORREF face;
    COLORREF edgeHighlight;
    COLORREF edgeShadow;
    COLORREF activeCaption;
    /// Of a selection without the focus, and of disabled cells.
    COLORREF inactiveSelection;
    COLORREF barFrame;
    COLORREF buttonText;
    /// Text, frames and marks of disabled cells.
    COLORREF disabled;
    COLORREF selection;
    COLORREF selectionText;
    COLORREF inactiveCaption;
    COLORREF inactiveCaptionText;
    COLORREF window;
    COLORREF windowText;
    COLORREF checkFrame;
    COLORREF checkMark;
};

/// A cell that is being painted.
struct CellPaint
{
    CDC & dc;
    XLISTCTRLDATA const & cell;
    CRect rect;
    COLORREF text;
    COLORREF background;
};

/// What the cells of a column have in common.
struct CellLook
{
    CellPalette palette;
    /// DT_LEFT, DT_CENTER or DT_RIGHT.
    UINT alignment = DT_LEFT;
    /// Long texts end in an ellipsis.
    bool ellipsis = true;
    /// Pixels left and right of a text.
    int padding = 5;
    /// Pixels ahead of an image and behind it.
    int spacing = 6;
    /// Null for none. Not owned.
    CImageList * images = nullptr;
};

namespace cell_painters
{
/// The whole cell, with its image where its kind shows one. False for a cell that its record's customDraw paints: only
/// the control can call that.
bool PaintCell(CellPaint paint, CellLook const & look, CellText const & text);

/// Turns a cell's own colours into those of a disabled one, if it is. A background of its own stays.
void GreyDisabled(XLISTCTRLDATA const & cell, CellPalette const & palette, COLORREF & text, COLORREF & background);
/// The DrawText format of a text in a column of that alignment.
UINT TextFormat(UINT alignment, bool ellipsis);

// One a kind. Each paints all of the rectangle, which is not empty; format is that of the text.

void PaintText(CellPaint const & paint, CellText const & text, UINT format, int padding);
/// Check boxes and radio buttons. The text is always at the left; an ampersand in it marks a mnemonic, which is meant.
void PaintCheck(CellPaint const & paint, CellText const & text, bool ellipsis, CellPalette const & palette);
void PaintCombo(CellPaint const & paint, CellText const & text, UINT format, int padding);
/// Paints the trough alone, which leaves a pixel of the cell free at the left and below. text is the caption's colour,
/// background the bar's.
void PaintProgress(CellPaint const & paint, CellPalette const & palette);

// Parts of them.

/// Fills the cell and lays the wash on.
void FillCell(CellPaint const & paint);
/// Fills the cell and paints the image at its left. The width used.
int PaintImage(CellPaint const & paint, CImageList & images, int spacing);
/// What a trough leaves free of its cell.
void FillMargin(CDC & dc, CRect const & cell, COLORREF color);
/// The boxes; nothing for a state that has none.
void PaintCheckBox(CDC & dc, CRect const & box, int state, bool enabled, CellPalette const & palette);
void PaintRadioBox(CDC & dc, CRect const & box, int state, bool enabled, CellPalette const & palette);
} // namespace cell_painters
