#include "list/table/TableHeaderPaint.h"

#include <algorithm>
#include <iterator>

#include "colours/ControlColors.h"

namespace
{
constexpr int text_inset = 6;
constexpr int arrow_room = 14;

/// A triangle that points to where the greater values are.
void PaintSortMark(CDC & dc, CPoint corner, bool down, COLORREF color)
{
    constexpr int rows = 4;
    for (int row = 0; row < rows; ++row)
    {
        int const inset = down ? row : rows - 1 - row;
        dc.FillSolidRect(CRect(corner.x + inset, corner.y + row, corner.x + 2 * rows - 1 - inset, corner.y + row + 1),
                         color);
    }
}

void PaintTitle(CDC & dc, HWND header, NMCUSTOMDRAW const & draw, ControlColors const & colors)
{
    CRect area(draw.rc);
    bool const pressed = (draw.uItemState & CDIS_SELECTED) != 0;
    COLORREF const ground = pressed ? colors.selection : colors.headerFace;
    COLORREF const ink = pressed ? colors.selectionText : colors.headerText;
    dc.FillSolidRect(area, ground);
    dc.FillSolidRect(CRect(area.right - 1, area.top, area.right, area.bottom), colors.headerHighlight);
    dc.FillSolidRect(CRect(area.left, area.bottom - 1, area.right, area.bottom), colors.headerHighlight);

    wchar_t title[256] = {};
    HDITEMW item = {};
    item.mask = HDI_TEXT | HDI_FORMAT;
    item.pszText = title;
    item.cchTextMax = static_cast<int>(std::size(title));
    ::SendMessageW(header, HDM_GETITEMW, draw.dwItemSpec, reinterpret_cast<LPARAM>(&item));
    bool const sorted = (item.fmt & (HDF_SORTUP | HDF_SORTDOWN)) != 0;
    area.DeflateRect(text_inset, 0);
    if (sorted)
        area.right = std::max(area.left, area.right - arrow_room);
    UINT const side = (item.fmt & HDF_JUSTIFYMASK) == HDF_RIGHT    ? DT_RIGHT
                      : (item.fmt & HDF_JUSTIFYMASK) == HDF_CENTER ? DT_CENTER
                                                                   : DT_LEFT;
    int const mode = dc.SetBkMode(TRANSPARENT);
    COLORREF const former = dc.SetTextColor(ink);
    dc.DrawText(title, -1, &area, side | DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    dc.SetTextColor(former);
    dc.SetBkMode(mode);
    if (sorted)
    {
        PaintSortMark(dc, CPoint(area.right + text_inset, area.CenterPoint().y - 2), (item.fmt & HDF_SORTDOWN) != 0,
                      pressed ? ink : colors.headerArrow);
    }
}

/// What is right of the titles.
void PaintRest(CDC & dc, HWND header, ControlColors const & colors)
{
    CRect rest;
    ::GetClientRect(header, &rest);
    int const count = static_cast<int>(::SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    CRect last(0, 0, 0, 0);
    if (count > 0)
        ::SendMessageW(header, HDM_GETITEMRECT, static_cast<WPARAM>(count) - 1, reinterpret_cast<LPARAM>(&last));
    rest.left = last.right;
    if (rest.left < rest.right)
        dc.FillSolidRect(rest, colors.headerFace);
}
} // namespace

bool PaintTableHeader(NMCUSTOMDRAW const & draw, LRESULT & result)
{
    HWND const header = draw.hdr.hwndFrom;
    ControlColorSet const set = control_colors::SetOf(header);
    if (set == ControlColorSet::standard)
        return false;
    CDC & dc = *CDC::FromHandle(draw.hdc);
    switch (draw.dwDrawStage)
    {
    case CDDS_PREPAINT:
        result = CDRF_NOTIFYITEMDRAW | CDRF_NOTIFYPOSTPAINT;
        return true;
    case CDDS_ITEMPREPAINT:
        PaintTitle(dc, header, draw, control_colors::Of(set));
        result = CDRF_SKIPDEFAULT;
        return true;
    case CDDS_POSTPAINT:
        PaintRest(dc, header, control_colors::Of(set));
        return true;
    default:
        return false;
    }
}
