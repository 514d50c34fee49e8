#include "list/XListCtrl.h"

#include <algorithm>

#include "frame/GdiplusModule.h"
#include "list/CheckMarks.h"

namespace
{
/// The colour stands solid at the left and fades out to the right, not quite to nothing.
void PaintWash(CDC & dc, CRect const & cell, COLORREF color)
{
    constexpr int margin_x = 1;
    constexpr int margin_y = 2;
    constexpr float reach = 1.05f;
    constexpr BYTE nearly_solid = 240;
    constexpr Gdiplus::REAL positions[] = {0.0f, 0.3f, 1.0f};

    CRect area = cell;
    area.DeflateRect(margin_x, margin_y);
    if (area.Width() <= 0 || area.Height() <= 0 || !StartGdiplus())
        return;
    Gdiplus::RectF const fill(static_cast<float>(area.left), static_cast<float>(area.top),
                              static_cast<float>(area.Width()), static_cast<float>(area.Height()));
    BYTE const red = GetRValue(color);
    BYTE const green = GetGValue(color);
    BYTE const blue = GetBValue(color);
    Gdiplus::Color const colors[] = {Gdiplus::Color(255, red, green, blue),
                                     Gdiplus::Color(nearly_solid, red, green, blue),
                                     Gdiplus::Color(0, red, green, blue)};

    Gdiplus::Graphics graphics(dc.GetSafeHdc());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    Gdiplus::LinearGradientBrush brush(Gdiplus::PointF(fill.X, fill.Y),
                                       Gdiplus::PointF(fill.X + reach * fill.Width, fill.Y), colors[0], colors[2]);
    brush.SetInterpolationColors(colors, positions, static_cast<INT>(std::size(colors)));
    graphics.FillRectangle(&brush, fill);
}

/// Gives a device context its state back at the end of a scope.
class StateScope
{
public:
    explicit StateScope(CDC & dc) : m_dc(dc), m_saved(dc.SaveDC()) {}
    ~StateScope() { m_dc.RestoreDC(m_saved); }
    StateScope(StateScope const &) = delete;
    StateScope & operator=(StateScope const &) = delete;

private:
    CDC & m_dc;
    int m_saved;
};
} // namespace

/// Remembers for the length of one paint, which may run within another.
class CXListCtrl::PaintScope
{
public:
    explicit PaintScope(CXListCtrl & list) : m_list(list), m_outer(list.m_paint) { m_list.m_paint = &m_memory; }
    ~PaintScope() { m_list.m_paint = m_outer; }
    PaintScope(PaintScope const &) = delete;
    PaintScope & operator=(PaintScope const &) = delete;

private:
    CXListCtrl & m_list;
    PaintMemory * m_outer;
    PaintMemory m_memory;
};

void CXListCtrl::GetColors()
{
    m_colorFace = ::GetSysColor(COLOR_BTNFACE);
    m_colorEdgeHighlight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    m_colorEdgeShadow = ::GetSysColor(COLOR_BTNSHADOW);
    m_colorActiveCaption = ::GetSysColor(COLOR_ACTIVECAPTION);
    m_colorInactiveSelection = ::GetSysColor(COLOR_BTNFACE);
    m_colorBarFrame = ::GetSysColor(COLOR_BTNSHADOW);
    m_colorButtonText = ::GetSysColor(COLOR_BTNTEXT);
    m_colorDisabled = ::GetSysColor(COLOR_GRAYTEXT);
    m_colorSelection = ::GetSysColor(COLOR_HIGHLIGHT);
    m_colorSelectionText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    m_colorInactiveCaption = ::GetSysColor(COLOR_INACTIVECAPTION);
    m_colorInactiveCaptionText = ::GetSysColor(COLOR_INACTIVECAPTIONTEXT);
    m_colorWindow = ::GetSysColor(COLOR_WINDOW);
    m_colorWindowText = ::GetSysColor(COLOR_WINDOWTEXT);
    m_colorCheckFrame = check_marks::frame_color;
    m_colorCheckMark = check_marks::tick_color;
}

void CXListCtrl::OnSysColorChange()
{
    CListCtrl::OnSysColorChange();
    GetColors();
}

void CXListCtrl::OnCustomDraw(NMHDR * header, LRESULT * result)
{
    auto & draw = *reinterpret_cast<NMLVCUSTOMDRAW *>(header);
    *result = CDRF_DODEFAULT;
    switch (draw.nmcd.dwDrawStage)
    {
    case CDDS_PREPAINT:
    case CDDS_ITEMPREPAINT:
        *result = CDRF_NOTIFYSUBITEMDRAW;
        return;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
        break;
    default:
        return;
    }

    int const row = static_cast<int>(draw.nmcd.dwItemSpec);
    int const col = draw.iSubItem;
    auto const * const rowData = reinterpret_cast<XLISTCTRLROW const *>(draw.nmcd.lItemlParam);
    if (rowData == nullptr || col < 0 || static_cast<unsigned int>(col) >= rowData->capacity())
        return;
    XLISTCTRLDATA * const cells = rowData->cells();
    XLISTCTRLDATA const & cell = cells[col];

    COLORREF text = cell.textColor;
    COLORREF background = cell.backgroundColor;
    if ((cell.properties & XLP_ENABLED) == 0)
    {
        text = m_colorDisabled;
        if (background == m_colorWindow)
            background = m_colorInactiveSelection;
    }
    draw.clrText = text;
    draw.clrTextBk = background;

    CDC * const dc = CDC::FromHandle(draw.nmcd.hdc);
    CRect rect = PaintedRect(row, col);

    if ((cell.properties & XLP_PROGRESS) != 0)
    {
        rect.left += DrawImage(row, col, dc, text, background, rect, cells);
        DrawProgress(row, col, dc, text, background, rect, cells);
    }
    else if (cell.checkedState >= 0)
    {
        DrawCheckbox(row, col, dc, text, background, rect, cells);
    }
    else if ((cell.properties & XLP_COMBO) != 0)
    {
        rect.left += DrawImage(row, col, dc, text, background, rect, cells);
        DrawComboBox(row, col, dc, text, background, rect, cells);
    }
    else if ((cell.properties & XLP_CUSTOMDRAW) != 0)
    {
        // A copy: it may replace itself.
        auto const painter = cell.customDraw;
        painter(row, col, dc, rect);
        // The host's code may have changed anything.
        if (m_paint != nullptr)
            *m_paint = {};
    }
    else
    {
        rect.left += DrawImage(row, col, dc, text, background, rect, cells);
        DrawTextW(row, col, dc, text, background, rect, cells);
    }
    *result = CDRF_SKIPDEFAULT;
}

void CXListCtrl::GetDrawColors(int row, int col, COLORREF & text, COLORREF & background)
{
    if (!IsSelected(row))
        return;
    if (col != 0 && (GetExtendedStyle() & LVS_EX_FULLROWSELECT) == 0)
        return;
    if (HasFocus())
    {
        text = m_colorSelectionText;
        background = m_colorSelection;
    }
    else if ((GetStyle() & LVS_SHOWSELALWAYS) != 0)
    {
        text = m_colorWindowText;
        background = m_colorInactiveSelection;
    }
}

void CXListCtrl::FillCell(int row, int col, CDC & dc, COLORREF & text, COLORREF & background, CRect const & rect,
                          XLISTCTRLDATA const & cell)
{
    GetDrawColors(row, col, text, background);
    dc.FillSolidRect(rect, background);
    if (cell.gradientColor != XLISTCTRLDATA::no_gradient)
        PaintWash(dc, rect, cell.gradientColor);
}

UINT CXListCtrl::TextFormat(int col) const
{
    if (m_paint == nullptr || col < 0)
        return AskTextFormat(col);
    auto const index = static_cast<std::size_t>(col);
    if (m_paint->columns.size() <= index)
        m_paint->columns.resize(index + 1);
    PaintMemory::Column & column = m_paint->columns[index];
    if (!column.formatKnown)
    {
        column.format = AskTextFormat(col);
        column.formatKnown = true;
    }
    return column.format;
}

// Within one paint all cells of a row share its top and bottom, and all cells of a column its left and right.
CRect CXListCtrl::PaintedRect(int row, int col)
{
    CRect rect(0, 0, 0, 0);
    if (m_paint == nullptr)
    {
        GetSubItemRect(row, col, LVIR_BOUNDS, rect);
        return rect;
    }
    auto const index = static_cast<std::size_t>(col);
    if (m_paint->columns.size() <= index)
        m_paint->columns.resize(index + 1);
    PaintMemory::Column & column = m_paint->columns[index];
    if (m_paint->row == row && column.edgesKnown)
        return CRect(column.left, m_paint->top, column.right, m_paint->bottom);
    if (!GetSubItemRect(row, col, LVIR_BOUNDS, rect))
        return rect;
    m_paint->row = row;
    m_paint->top = rect.top;
    m_paint->bottom = rect.bottom;
    column.left = rect.left;
    column.right = rect.right;
    column.edgesKnown = true;
    return rect;
}

bool CXListCtrl::IsSelected(int row)
{
    if (m_paint == nullptr)
        return GetItemState(row, LVIS_SELECTED) != 0;
    if (m_paint->stateRow != row)
    {
        m_paint->selected = GetItemState(row, LVIS_SELECTED) != 0;
        m_paint->stateRow = row;
    }
    return m_paint->selected;
}

bool CXListCtrl::HasFocus()
{
    if (m_paint == nullptr)
        return ::GetFocus() == m_hWnd;
    if (!m_paint->focusKnown)
    {
        m_paint->focused = ::GetFocus() == m_hWnd;
        m_paint->focusKnown = true;
    }
    return m_paint->focused;
}

UINT CXListCtrl::AskTextFormat(int col) const
{
    UINT format = DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER;
    if (m_ellipsis)
        format |= DT_END_ELLIPSIS;

    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    if (m_header.GetSafeHwnd() == nullptr || !m_header.GetItem(col, &item))
        return format;
    switch (item.fmt & HDF_JUSTIFYMASK)
    {
    case HDF_CENTER:
        return format | DT_CENTER;
    case HDF_RIGHT:
        return format | DT_RIGHT;
    default:
        return format;
    }
}

// Rows are never erased, since every cell paints its whole area.
BOOL CXListCtrl::OnEraseBkgnd(CDC * dc)
{
    int const count = GetItemCount();
    CRect clip(0, 0, 0, 0);
    if (count <= 0 || dc->GetClipBox(&clip) <= NULLREGION)
        return CListCtrl::OnEraseBkgnd(dc);

    int const top = GetTopIndex();
    int const last = std::min(top + GetCountPerPage(), count - 1);
    CRect first(0, 0, 0, 0);
    CRect lowest(0, 0, 0, 0);
    CListCtrl::GetSubItemRect(top, 0, LVIR_BOUNDS, first);
    CListCtrl::GetSubItemRect(last, 0, LVIR_BOUNDS, lowest);

    CRect const strips[] = {CRect(clip.left, clip.top, clip.right, first.top),
                            CRect(clip.left, lowest.bottom, clip.right, clip.bottom),
                            CRect(first.right, first.top, clip.right, lowest.bottom)};
    for (CRect const & strip : strips)
    {
        CRect visible;
        if (visible.IntersectRect(strip, clip))
            dc->FillSolidRect(visible, m_colorWindow);
    }
    return TRUE;
}

void CXListCtrl::OnPaint()
{
    constexpr int gap_below_header = 10;

    {
        PaintScope const paint(*this);
        Default();
    }
    if (GetItemCount() > 0 || m_emptyListText.IsEmpty())
        return;

    CClientDC dc(this);
    StateScope const state(dc);
    CRect rect;
    GetWindowRect(&rect);
    ScreenToClient(&rect);
    if (m_header.GetSafeHwnd() != nullptr)
    {
        CRect item(0, 0, 0, 0);
        m_header.GetItemRect(0, &item);
        rect.top += item.bottom;
    }
    rect.top += gap_below_header;

    CBrush brush(m_colorWindow);
    dc.FillRect(rect, &brush);
    dc.SetTextColor(m_colorWindowText);
    dc.SetBkColor(m_colorWindow);
    dc.SelectStockObject(ANSI_VAR_FONT);
    dc.DrawText(m_emptyListText, &rect, DT_CENTER | DT_WORDBREAK | DT_NOCLIP | DT_NOPREFIX);
}
