// CXListCtrl: the painting of each kind of cell, which knows where the cell's text and colours come from; how it looks
// is known by the painters.

#include "list/XListCtrl.h"

#include "list/CellPainters.h"
#include "list/XListCtrlResolution.h"
#include "list/XListCtrlState.h"

namespace
{
bool NothingToDraw(CRect const & rect, CDC const * dc, XLISTCTRLDATA const * cells)
{
    return rect.IsRectEmpty() || dc == nullptr || cells == nullptr;
}
} // namespace

CellText CXListCtrl::ReadCellText(int row, int col) const
{
    return ReadCellText(row, col, CellText::whole);
}

CellText CXListCtrl::ReadCellText(int row, int col, int limit) const
{
    return CellText([this, row, col](wchar_t * buffer, int room) { return GetItemText(row, col, buffer, room); },
                    limit);
}

int CXListCtrl::DrawImage(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect rect,
                          XLISTCTRLDATA * cells)
{
    if (dc == nullptr || cells == nullptr || rect.Width() <= 0 || cells[col].imageIndex < 0)
        return 0;
    CImageList * const images = GetImageList(LVSIL_SMALL);
    if (images == nullptr)
        return 0;
    CellPaint const paint = PaintOf(row, col, *dc, text, background, rect, cells[col]);
    return cell_painters::PaintImage(paint, *images, m_header.GetSpacing());
}

void CXListCtrl::DrawTextW(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                           XLISTCTRLDATA * cells)
{
    if (NothingToDraw(rect, dc, cells))
        return;
    CellPaint const paint = PaintOf(row, col, *dc, text, background, rect, cells[col]);
    CellText const shown = ReadCellText(row, col);
    cell_painters::PaintText(paint, shown, shown.IsEmpty() ? 0 : TextFormat(col), m_resolution->Scaled(m_cellPadding));
}

void CXListCtrl::DrawCheckbox(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                              XLISTCTRLDATA * cells)
{
    if (NothingToDraw(rect, dc, cells))
        return;
    CellPaint const paint = PaintOf(row, col, *dc, text, background, rect, cells[col]);
    CellText const shown = ReadCellText(row, col);
    cell_painters::PaintCheck(paint, shown, m_ellipsis, m_paint->palette);
}

void CXListCtrl::DrawCheckboxBox(CRect & box, int state, bool enabled, CDC * dc)
{
    if (!box.IsRectEmpty() && dc != nullptr)
        cell_painters::PaintCheckBox(*dc, box, state, enabled, m_paint->palette, m_resolution->Dpi());
}

void CXListCtrl::DrawRadioBox(CRect & box, int state, bool enabled, CDC * dc)
{
    if (!box.IsRectEmpty() && dc != nullptr)
        cell_painters::PaintRadioBox(*dc, box, state, enabled, m_paint->palette, m_resolution->Dpi());
}

void CXListCtrl::DrawComboBox(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                              XLISTCTRLDATA * cells)
{
    if (NothingToDraw(rect, dc, cells))
        return;
    CellPaint paint = PaintOf(row, col, *dc, text, background, rect, cells[col]);
    cell_painters::SetArrow(paint, m_paint->palette);
    CellText const shown = ReadCellText(row, col);
    cell_painters::PaintCombo(paint, shown, shown.IsEmpty() ? 0 : TextFormat(col), m_resolution->Scaled(m_cellPadding));
}

void CXListCtrl::DrawProgress(int, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                              XLISTCTRLDATA * cells)
{
    if (dc != nullptr && cells != nullptr)
        cell_painters::PaintProgress({*dc, cells[col], rect, text, background}, m_paint->palette);
}
