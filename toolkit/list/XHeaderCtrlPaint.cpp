#include "list/XHeaderCtrl.h"

#include "frame/GraphicsScopes.h"
#include "list/CheckMarks.h"
#include "list/XListCtrlData.h"

namespace
{
constexpr UINT painted_item_parts = HDI_WIDTH | HDI_TEXT | HDI_FORMAT | HDI_BITMAP | HDI_IMAGE;
constexpr int title_length = 160;
constexpr unsigned int alignment_by_column = 0xFFFFFFFF;
constexpr int divider_inset = 2;
constexpr int mixed_inset = 3;
constexpr COLORREF mixed_color = RGB(90, 192, 90);
constexpr int arrow_head = 5;
constexpr int arrow_shaft_inset = 3;

void DrawVerticalLine(CDC & dc, int x, int top, int bottom)
{
    dc.MoveTo(x, top);
    dc.LineTo(x, bottom);
}

/// Leaves the background colour as it is, since the title is drawn with it.
void Fill(CDC & dc, CRect const & rect, COLORREF color)
{
    COLORREF const background = dc.GetBkColor();
    dc.FillSolidRect(rect, color);
    dc.SetBkColor(background);
}

void DrawArrowOutline(CDC & dc, CRect const & rect, bool down, COLORREF color)
{
    int const left = rect.left;
    int const right = rect.right;
    int const shaftLeft = left + arrow_shaft_inset;
    int const shaftRight = right - arrow_shaft_inset;
    // The end of the shaft, where the head begins, and the tip.
    int const end = down ? rect.top : rect.bottom;
    int const head = down ? rect.bottom - arrow_head : rect.top + arrow_head;
    int const tip = down ? rect.bottom : rect.top;
    int const middle = left + rect.Width() / 2;
    POINT pointsDown[] = {{shaftLeft, end}, {shaftLeft, head},  {left, head},      {middle, tip},
                          {right, head},    {shaftRight, head}, {shaftRight, end}, {shaftLeft, end}};
    POINT pointsUp[] = {{left, head},       {shaftLeft, head}, {shaftLeft, end}, {shaftRight, end},
                        {shaftRight, head}, {right, head},     {middle, tip},    {left, head}};
    PenScope const pen(dc, color);
    dc.Polyline(down ? pointsDown : pointsUp, 8);
}
} // namespace

void CXHeaderCtrl::PaintHeader(CDC * dc)
{
    CRect clip;
    int const region = dc->GetClipBox(&clip);
    if (region == ERROR || region == NULLREGION)
    {
        return;
    }
    dc->FillSolidRect(clip, m_colorFace);

    int const count = GetItemCount();
    CPen highlight(PS_SOLID, 1, m_colorHighlight);
    CPen shadow(PS_SOLID, 1, m_colorShadow);
    CFont * const font = GetFont();
    SelectScope const fontSelection(*dc, font != nullptr ? font->GetSafeHandle() : nullptr);
    SelectScope pen(*dc, highlight);
    dc->SetBkColor(m_colorFace);
    dc->SetTextColor(m_colorText);

    int total = 0;
    for (int order = 0; order < count; ++order)
    {
        int const index = OrderToIndex(order);
        TCHAR text[title_length] = {};
        HDITEM item = {};
        item.mask = painted_item_parts;
        item.pszText = text;
        item.cchTextMax = title_length;
        GetItem(index, &item);
        CRect rect;
        GetItemRect(index, &rect);
        total += item.cxy;

        if ((item.fmt & HDF_OWNERDRAW) != 0)
        {
            DRAWITEMSTRUCT drawItem = {};
            drawItem.CtlType = ODT_BUTTON; // meant: not the header's own type
            drawItem.CtlID = GetDlgCtrlID();
            drawItem.itemID = index;
            drawItem.itemAction = ODA_DRAWENTIRE;
            drawItem.hwndItem = m_hWnd;
            drawItem.hDC = dc->m_hDC;
            drawItem.rcItem = rect;
            DrawHeaderItem(&drawItem);
        }
        else
        {
            DrawHeaderItem(dc, CRect(rect.left + m_spacing, rect.top, rect.right - m_spacing, rect.bottom), &item);
        }

        if (order < count - 1 && m_dividers != 0)
        {
            pen.Change(shadow);
            DrawVerticalLine(*dc, rect.right - 1, rect.top + divider_inset, rect.bottom - divider_inset);
            pen.Change(highlight);
            DrawVerticalLine(*dc, rect.right, rect.top + divider_inset, rect.bottom - divider_inset);
        }
    }

    if (total >= 1)
    {
        CRect rect;
        GetClientRect(&rect);
        rect.right = rect.left + total;
        dc->Draw3dRect(rect, m_colorHighlight, m_colorShadow);
    }
}

void CXHeaderCtrl::DrawHeaderItem(LPDRAWITEMSTRUCT) {}

void CXHeaderCtrl::DrawHeaderItem(CDC * dc, CRect rect, LPHDITEM item)
{
    if ((item->mask & HDI_FORMAT) == 0)
    {
        return;
    }
    bool const hasBitmap = (item->fmt & HDF_BITMAP) != 0;
    CSize bitmapSize(0, 0);
    if (hasBitmap)
    {
        if ((item->mask & HDI_BITMAP) == 0 || item->hbm == nullptr)
        {
            return;
        }
        BITMAP bitmap = {};
        ::GetObject(item->hbm, sizeof(bitmap), &bitmap);
        bitmapSize = CSize(bitmap.bmWidth, bitmap.bmHeight);
    }

    if (int const width = DrawItemImage(dc, rect, item, false); width != 0)
    {
        rect.left += width + m_spacing;
    }
    if (hasBitmap)
    {
        if (int const width = DrawItemBitmap(dc, rect, item, bitmapSize); width != 0)
        {
            rect.right -= width + m_spacing;
        }
    }
    DrawItemText(dc, rect, item);
}

int CXHeaderCtrl::DrawItemImage(CDC * dc, CRect rect, LPHDITEM item, bool right)
{
    int const state = item->iImage;
    if (state == XHC_NONE || rect.Width() <= 0)
    {
        return 0;
    }

    CImageList * const images = m_useImageList ? GetImageList() : nullptr;
    if (images != nullptr)
    {
        int const width = m_imageWidth < rect.Width() ? m_imageWidth : rect.Width();
        int const height = m_imageHeight < rect.Height() ? m_imageHeight : rect.Height();
        CPoint const position(right ? rect.right - width : rect.left, rect.CenterPoint().y - (m_imageHeight + 1) / 2);
        ImageBackgroundScope const background(*images, dc->GetBkColor());
        images->DrawIndirect(dc, state, position, CSize(width, height), CPoint(0, 0));
        return m_imageWidth;
    }

    if (state >= XHC_END)
    {
        return 0;
    }
    CPoint const corner(right ? rect.right - check_marks::box_size : rect.left,
                        rect.top + (rect.Height() - check_marks::box_size) / 2);
    CRect const box(corner, CSize(check_marks::box_size, check_marks::box_size));

    if (state >= XHC_UNCHECKED && state <= XHC_CROSSED)
    {
        Fill(*dc, box, ::GetSysColor(COLOR_WINDOW));
        check_marks::DrawFrame(*dc, box, check_marks::frame_color);
    }
    switch (state)
    {
    case XHC_CHECKED:
        check_marks::DrawTick(*dc, box, check_marks::tick_color);
        break;
    case XHC_MIXED: {
        CRect square = box;
        square.DeflateRect(mixed_inset, mixed_inset);
        Fill(*dc, square, mixed_color);
        break;
    }
    case XHC_CROSSED:
        check_marks::DrawCross(*dc, box, check_marks::cross_inset_header, check_marks::cross_color);
        break;
    case XHC_SORT_ASCENDING:
    case XHC_SORT_DESCENDING: {
        bool const down = state == XHC_SORT_ASCENDING;
        CRect arrow(box.left - 1, box.top, box.right - 4, box.bottom - 2);
        DrawArrowOutline(*dc, arrow + CPoint(-1, -1), down, m_colorHighlight);
        DrawArrowOutline(*dc, arrow + CPoint(1, 0), down, m_colorShadow);
        DrawArrowOutline(*dc, arrow + CPoint(0, 1), down, m_colorShadow);
        DrawArrowOutline(*dc, arrow, down, check_marks::frame_color);
        break;
    }
    default:
        // A negative number shows nothing and, as is meant, keeps the room of a mark.
        break;
    }
    return box.Width();
}

int CXHeaderCtrl::DrawItemBitmap(CDC * dc, CRect rect, LPHDITEM item, CSize size)
{
    if (rect.Width() < 1 || size.cx > rect.Width())
    {
        return 0;
    }
    CDC memory;
    if (!memory.CreateCompatibleDC(dc))
    {
        return 0;
    }
    SelectScope const selection(memory, item->hbm);
    BOOL const copied =
        dc->BitBlt(rect.right - size.cx, rect.CenterPoint().y - size.cy / 2, size.cx, size.cy, &memory, 0, 0, SRCCOPY);
    return copied ? size.cx : 0;
}

void CXHeaderCtrl::DrawItemText(CDC * dc, CRect rect, LPHDITEM item)
{
    if (rect.Width() <= 0 || (item->mask & HDI_TEXT) == 0 || item->pszText == nullptr || (item->fmt & HDF_STRING) == 0)
    {
        return;
    }
    unsigned int alignment = m_alignment;
    if (alignment == alignment_by_column)
    {
        int const justification = item->fmt & HDF_JUSTIFYMASK;
        alignment = justification == HDF_CENTER ? DT_CENTER : justification == HDF_RIGHT ? DT_RIGHT : DT_LEFT;
    }
    dc->SetTextColor(m_textColor);
    dc->DrawText(item->pszText, -1, &rect, alignment | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}
