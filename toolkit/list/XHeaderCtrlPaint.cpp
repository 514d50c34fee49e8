#include "list/XHeaderCtrl.h"

#include "colours/ControlColors.h"
#include "frame/GraphicsScopes.h"
#include "layout/Resolution.h"
#include "layout/StretchedImages.h"
#include "list/CheckMarks.h"
#include "list/XListCtrlData.h"

namespace
{
constexpr UINT painted_item_parts = HDI_WIDTH | HDI_TEXT | HDI_FORMAT | HDI_BITMAP | HDI_IMAGE;
constexpr int title_length = 160;
constexpr unsigned int alignment_by_column = 0xFFFFFFFF;
// Pixels at 96 dots an inch.
constexpr int divider_inset = 2;
constexpr int mixed_inset = 3;
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

void DrawArrowOutline(CDC & dc, CRect const & rect, bool down, COLORREF color, UINT dpi)
{
    int const headLength = resolution::Scaled(arrow_head, dpi);
    int const left = rect.left;
    int const right = rect.right;
    int const shaftLeft = left + resolution::Scaled(arrow_shaft_inset, dpi);
    int const shaftRight = right - resolution::Scaled(arrow_shaft_inset, dpi);
    // The end of the shaft, where the head begins, and the tip.
    int const end = down ? rect.top : rect.bottom;
    int const head = down ? rect.bottom - headLength : rect.top + headLength;
    int const tip = down ? rect.bottom : rect.top;
    int const middle = left + rect.Width() / 2;
    POINT pointsDown[] = {{shaftLeft, end}, {shaftLeft, head},  {left, head},      {middle, tip},
                          {right, head},    {shaftRight, head}, {shaftRight, end}, {shaftLeft, end}};
    POINT pointsUp[] = {{left, head},       {shaftLeft, head}, {shaftLeft, end}, {shaftRight, end},
                        {shaftRight, head}, {right, head},     {middle, tip},    {left, head}};
    PenScope const pen(dc, color, resolution::LineWidth(1, dpi));
    dc.Polyline(down ? pointsDown : pointsUp, 8);
}

/// The colours of the header that is being painted: its marks are drawn with them, without asking for each.
class PaintedColors
{
public:
    explicit PaintedColors(HWND header) : m_header(header), m_colors(control_colors::Of(header)), m_outer(present)
    {
        present = this;
    }
    ~PaintedColors() { present = m_outer; }
    PaintedColors(PaintedColors const &) = delete;
    PaintedColors & operator=(PaintedColors const &) = delete;

    ControlColors const & Get() const { return m_colors; }
    /// What the header is being painted with, or would be.
    static ControlColors For(HWND header)
    {
        bool const painting = present != nullptr && present->m_header == header;
        return painting ? present->m_colors : control_colors::Of(header);
    }

private:
    static thread_local PaintedColors const * present;

    HWND m_header;
    ControlColors m_colors;
    PaintedColors const * m_outer;
};

thread_local PaintedColors const * PaintedColors::present = nullptr;
} // namespace

void CXHeaderCtrl::PaintHeader(CDC * dc)
{
    PaintedColors const painted(m_hWnd);
    ControlColors const & colors = painted.Get();
    COLORREF const face = colors.adapts ? colors.headerFace : m_colorFace;
    COLORREF const lightEdge = colors.adapts ? colors.headerHighlight : m_colorHighlight;
    COLORREF const darkEdge = colors.adapts ? colors.headerShadow : m_colorShadow;
    CRect clip;
    int const region = dc->GetClipBox(&clip);
    if (region == ERROR || region == NULLREGION)
    {
        return;
    }
    dc->FillSolidRect(clip, face);

    int const count = GetItemCount();
    CPen highlight(PS_SOLID, 1, lightEdge);
    CPen shadow(PS_SOLID, 1, darkEdge);
    CFont * const font = GetFont();
    SelectScope const fontSelection(*dc, font != nullptr ? font->GetSafeHandle() : nullptr);
    SelectScope pen(*dc, highlight);
    dc->SetBkColor(face);
    dc->SetTextColor(colors.adapts ? colors.headerText : m_colorText);

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
            drawItem.CtlType = ODT_BUTTON; // hosts expect it: not the header's own type
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
            int const inset = resolution::Scaled(divider_inset, m_dpi);
            pen.Change(shadow);
            DrawVerticalLine(*dc, rect.right - 1, rect.top + inset, rect.bottom - inset);
            pen.Change(highlight);
            DrawVerticalLine(*dc, rect.right, rect.top + inset, rect.bottom - inset);
        }
    }

    if (total >= 1)
    {
        CRect rect;
        GetClientRect(&rect);
        rect.right = rect.left + total;
        dc->Draw3dRect(rect, lightEdge, darkEdge);
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
        if (m_dpi != m_imageDpi)
        {
            CSize const size(resolution::Scaled(m_imageWidth, m_dpi, m_imageDpi),
                             resolution::Scaled(m_imageHeight, m_dpi, m_imageDpi));
            CPoint const at(right ? rect.right - size.cx : rect.left, rect.CenterPoint().y - (size.cy + 1) / 2);
            DrawStretchedImage(*dc, *images, state, at, size, rect.Size());
            return size.cx;
        }
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
    ControlColors const colors = PaintedColors::For(m_hWnd);
    int const edge = resolution::Scaled(check_marks::box_size, m_dpi);
    CPoint const corner(right ? rect.right - edge : rect.left, rect.top + (rect.Height() - edge) / 2);
    CRect const box(corner, CSize(edge, edge));

    if (state >= XHC_UNCHECKED && state <= XHC_CROSSED)
    {
        Fill(*dc, box, colors.headerBox);
        check_marks::DrawFrame(*dc, box, colors.checkFrame, m_dpi);
    }
    switch (state)
    {
    case XHC_CHECKED:
        check_marks::DrawTick(*dc, box, colors.checkMark, m_dpi);
        break;
    case XHC_MIXED: {
        CRect square = box;
        int const inset = resolution::Scaled(mixed_inset, m_dpi);
        square.DeflateRect(inset, inset);
        Fill(*dc, square, colors.headerMixed);
        break;
    }
    case XHC_CROSSED:
        check_marks::DrawCross(*dc, box, check_marks::cross_inset_header, colors.crossMark, m_dpi);
        break;
    case XHC_SORT_ASCENDING:
    case XHC_SORT_DESCENDING: {
        bool const down = state == XHC_SORT_ASCENDING;
        // What adapts has no relief, in which the arrow would not be told from its edges.
        COLORREF const lightEdge = colors.adapts ? colors.headerFace : m_colorHighlight;
        COLORREF const darkEdge = colors.adapts ? colors.headerFace : m_colorShadow;
        auto const scaled = [this](int pixels) { return resolution::Scaled(pixels, m_dpi); };
        CRect arrow(box.left - scaled(1), box.top, box.right - scaled(4), box.bottom - scaled(2));
        DrawArrowOutline(*dc, arrow + CPoint(-scaled(1), -scaled(1)), down, lightEdge, m_dpi);
        DrawArrowOutline(*dc, arrow + CPoint(scaled(1), 0), down, darkEdge, m_dpi);
        DrawArrowOutline(*dc, arrow + CPoint(0, scaled(1)), down, darkEdge, m_dpi);
        DrawArrowOutline(*dc, arrow, down, colors.headerArrow, m_dpi);
        break;
    }
    default:
        // A negative number shows nothing and, as hosts expect, keeps the room of a mark.
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
    // The usual colours of titles are nobody's choice.
    bool const chosen = m_textColor != m_colorText && m_textColor != RGB(0, 0, 0);
    ControlColors const colors = PaintedColors::For(m_hWnd);
    dc->SetTextColor(colors.adapts && !chosen ? colors.headerText : m_textColor);
    dc->DrawText(item->pszText, -1, &rect, alignment | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}
