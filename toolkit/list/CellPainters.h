#pragma once
// How cells are painted. The painters know a cell's record, its place, the context and the colours, and nothing of rows
// or of the control that shows the cell. Internal to the module.
//
//     CellPaint paint{dc, cell, rect, cell.textColor, cell.backgroundColor};
//     cell_painters::GreyDisabled(cell, look.palette, paint.text, paint.background);
//     // ... the colours of a selection
//     cell_painters::PaintCell(paint, look, text);

#include <afxcmn.h>

#include "colours/ControlColors.h"
#include "list/CellText.h"
#include "list/XListCtrlData.h"

/// A cell that is being painted.
struct CellPaint
{
    CDC & dc;
    XLISTCTRLDATA const & cell;
    CRect rect;
    COLORREF text;
    COLORREF background;
    /// Dots an inch: lengths of the painters' own follow them.
    UINT dpi = 96;
    /// What the images were made for.
    UINT imageDpi = 96;
    /// Of the arrow of a combo cell; softened by what lies behind it, unless it is to be solid.
    COLORREF arrow = RGB(51, 153, 51);
    bool solidArrow = false;
    /// The text has a colour that the wash was not chosen for: as much of the wash is seen as lets it be read.
    bool softensWash = false;
};

/// What the cells of a column have in common.
struct CellLook
{
    ControlColors palette;
    /// DT_LEFT, DT_CENTER or DT_RIGHT.
    UINT alignment = DT_LEFT;
    /// Long texts end in an ellipsis.
    bool ellipsis = true;
    /// Dots an inch that the cells are painted for, and that the images were made for.
    UINT dpi = 96;
    UINT imageDpi = 96;
    /// Pixels left and right of a text, as they are at that resolution; likewise the spacing.
    int padding = 5;
    /// Pixels ahead of an image and behind it.
    int spacing = 6;
    /// Null for none. Not owned.
    CImageList * images = nullptr;
};

/// What the parts of a cell are painted by, one after the other. image moves the rectangle's left edge behind it for
/// those that follow.
class CellParts
{
public:
    virtual ~CellParts() = default;

    virtual void Margin() = 0;
    virtual void Image() = 0;
    virtual void Text() = 0;
    virtual void Check() = 0;
    virtual void Combo() = 0;
    virtual void Progress() = 0;
    virtual void Custom() = 0;
};

namespace cell_painters
{
/// Which parts a cell has, and in which order: the one place that goes by the kind painted.
void PaintParts(XLISTCTRLDATA const & cell, CellParts & parts);

/// The whole cell, with its image where its kind shows one. False for a cell that its record's customDraw paints: only
/// the control can call that.
bool PaintCell(CellPaint paint, CellLook const & look, CellText const & text);

/// Turns a cell's own colours into those of a disabled one, if it is. A background of its own stays.
void GreyDisabled(XLISTCTRLDATA const & cell, ControlColors const & palette, COLORREF & text, COLORREF & background);
/// Gives the arrow of a combo cell its colour.
void SetArrow(CellPaint & paint, ControlColors const & palette);
/// The DrawText format of a text in a column of that alignment.
UINT TextFormat(UINT alignment, bool ellipsis);

// One a kind. Each paints all of the rectangle, which is not empty; format is that of the text.

void PaintText(CellPaint const & paint, CellText const & text, UINT format, int padding);
/// Check boxes and radio buttons. The text is always at the left; an ampersand in it marks a mnemonic, as hosts expect.
void PaintCheck(CellPaint const & paint, CellText const & text, bool ellipsis, ControlColors const & palette);
void PaintCombo(CellPaint const & paint, CellText const & text, UINT format, int padding);
/// Paints the trough alone, which leaves a pixel of the cell free at the left and below. text is the caption's colour,
/// background the bar's.
void PaintProgress(CellPaint const & paint, ControlColors const & palette);

// Parts of them.

/// Fills the cell and lays the wash on.
void FillCell(CellPaint const & paint);
/// Fills the cell and paints the image at its left. The width used.
int PaintImage(CellPaint const & paint, CImageList & images, int spacing);
/// What a trough leaves free of its cell.
void FillMargin(CDC & dc, CRect const & cell, COLORREF color);
/// The boxes; nothing for a state that has none.
void PaintCheckBox(CDC & dc, CRect const & box, int state, bool enabled, ControlColors const & palette, UINT dpi = 96);
void PaintRadioBox(CDC & dc, CRect const & box, int state, bool enabled, ControlColors const & palette, UINT dpi = 96);
} // namespace cell_painters
