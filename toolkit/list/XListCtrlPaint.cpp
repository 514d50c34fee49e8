#include "list/XListCtrl.h"

#include <algorithm>

#include "frame/GdiplusModule.h"
#include "list/CheckMarks.h"
#include "list/XListCtrlHold.h"

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

/// What a trough leaves free of its cell, and nothing else fills, since rows are not erased.
void FillMargin(CDC & dc, CRect const & cell, COLORREF color)
{
    dc.FillSolidRect(CRect(cell.left, cell.top, cell.left + 1, cell.bottom), color);
    dc.FillSolidRect(CRect(cell.left, cell.bottom - 1, cell.right, cell.bottom), color);
}

/// Fills a cell that the native list is about to draw, since rows are not erased. The context's colours stay.
void FillNativeCell(CListCtrl & list, HDC target, int row, int col, CRect rect, COLORREF color)
{
    // Of a column that the list has not counted.
    if (rect.IsRectEmpty() && col > 0)
        list.GetSubItemRect(row, col, LVIR_BOUNDS, rect);
    CDC & dc = *CDC::FromHandle(target);
    COLORREF const former = dc.GetBkColor();
    dc.FillSolidRect(rect, color);
    dc.SetBkColor(former);
}

/// The place of the first column in the list's client area if another column stands ahead of it, else empty.
CRect MovedFirstColumn(CListCtrl & list, CHeaderCtrl const & header)
{
    HDITEMW item = {};
    item.mask = HDI_ORDER;
    CRect place(0, 0, 0, 0);
    if (header.GetSafeHwnd() != nullptr && header.GetItem(0, &item) && item.iOrder != 0 &&
        header.GetItemRect(0, &place))
    {
        header.MapWindowPoints(&list, place);
    }
    return place;
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

struct CXListCtrl::PaintMemory
{
    struct Column
    {
        int left;
        int right;
        bool edgesKnown = false;
        UINT format;
        bool formatKnown = false;
    };
    std::vector<Column> columns;
    int row = -1;
    int top;
    int bottom;
    int topRow = -1;
    /// Left and right of the first column's place if another column stands ahead of it.
    int movedLeft = 0;
    int movedRight = 0;
    bool movedKnown = false;
    int stateRow = -1;
    bool selected;
    bool focusKnown = false;
    bool focused;

    Column const * Find(int col) const
    {
        auto const index = static_cast<std::size_t>(col);
        return index < columns.size() ? &columns[index] : nullptr;
    }
    Column & ColumnAt(int col)
    {
        auto const index = static_cast<std::size_t>(col);
        if (columns.size() <= index)
            columns.resize(index + 1);
        return columns[index];
    }
};

/// Remembers for the length of one paint, which may run within another. The list may end before the paint does.
class CXListCtrl::PaintScope
{
public:
    explicit PaintScope(CXListCtrl & list) : m_watch(list), m_list(list), m_outer(list.m_paint) { list.m_paint = this; }
    ~PaintScope()
    {
        if (m_watch.IsThere())
            m_list.m_paint = m_outer;
    }
    PaintScope(PaintScope const &) = delete;
    PaintScope & operator=(PaintScope const &) = delete;

    bool ListIsGone() const { return !m_watch.IsThere(); }
    /// Of this paint and those that it runs within.
    void ForgetAll();

    PaintMemory memory;

private:
    Watch m_watch;
    CXListCtrl & m_list;
    PaintScope * m_outer;
};

void CXListCtrl::PaintScope::ForgetAll()
{
    for (PaintScope * scope = this; scope != nullptr; scope = scope->m_outer)
        scope->memory = {};
}

// Host code can run at any point of a paint, with the notifications and in painters of its own. Whatever it changes
// comes here; what painting asks the list for does not change anything.
void CXListCtrl::HeedMessage(UINT message)
{
    if (m_paint == nullptr)
        return;
    switch (message)
    {
    case LVM_GETITEMTEXTW:
    case LVM_GETITEMSTATE:
    case LVM_GETSUBITEMRECT:
    case LVM_GETITEMCOUNT:
    case LVM_GETTOPINDEX:
    case LVM_GETHEADER:
    case LVM_GETIMAGELIST:
    case LVM_GETEXTENDEDLISTVIEWSTYLE:
        break;
    default:
        m_paint->ForgetAll();
        break;
    }
}

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
    // What stands above the top row is erased, so a native list that shows a strip of the row there must not paint it.
    if (IsAboveTop(row))
    {
        *result = CDRF_SKIPDEFAULT;
        return;
    }
    if (col == 0 && m_paint != nullptr)
        FillMovedFirstColumn(*CDC::FromHandle(draw.nmcd.hdc), PaintedRect(row, col));
    if (rowData == nullptr || col < 0 || static_cast<unsigned int>(col) >= rowData->capacity())
    {
        if (m_paint != nullptr)
            FillNativeCell(*this, draw.nmcd.hdc, row, col, PaintedRect(row, col), m_colorWindow);
        return;
    }
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
        if (m_paint != nullptr)
            FillMargin(*dc, rect, m_colorWindow);
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
        // The host's code may change or end anything, the painter itself and this list included.
        *result = CDRF_SKIPDEFAULT;
        auto const painter = cell.customDraw;
        painter(row, col, dc, rect);
        return;
    }
    else
    {
        rect.left += DrawImage(row, col, dc, text, background, rect, cells);
        DrawTextW(row, col, dc, text, background, rect, cells);
    }
    *result = CDRF_SKIPDEFAULT;
}

// A first column that stands behind others is painted where they stand, up to the second column. Its own place would
// keep whatever was there before.
void CXListCtrl::FillMovedFirstColumn(CDC & dc, CRect const & row)
{
    PaintMemory & memory = m_paint->memory;
    if (!memory.movedKnown)
    {
        CRect const place = MovedFirstColumn(*this, m_header);
        memory.movedLeft = place.left;
        memory.movedRight = place.right;
        memory.movedKnown = true;
    }
    if (memory.movedLeft >= memory.movedRight)
        return;
    COLORREF const former = dc.GetBkColor();
    dc.FillSolidRect(CRect(memory.movedLeft, row.top, memory.movedRight, row.bottom), m_colorWindow);
    dc.SetBkColor(former);
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
    UINT const ellipsis = m_ellipsis ? DT_END_ELLIPSIS : 0;
    if (m_paint == nullptr || col < 0)
        return AskTextFormat(col) | ellipsis;
    if (PaintMemory::Column const * const known = m_paint->memory.Find(col); known != nullptr && known->formatKnown)
        return known->format | ellipsis;
    UINT const format = AskTextFormat(col);
    PaintMemory::Column & column = m_paint->memory.ColumnAt(col);
    column.format = format;
    column.formatKnown = true;
    return format | ellipsis;
}

// Within one paint all cells of a row share its top and bottom, and all cells of a column its left and right.
CRect CXListCtrl::PaintedRect(int row, int col)
{
    CRect rect(0, 0, 0, 0);
    if (m_paint != nullptr && m_paint->memory.row == row)
    {
        PaintMemory::Column const * const known = m_paint->memory.Find(col);
        if (known != nullptr && known->edgesKnown)
            return CRect(known->left, m_paint->memory.top, known->right, m_paint->memory.bottom);
    }
    if (!GetSubItemRect(row, col, LVIR_BOUNDS, rect) || m_paint == nullptr)
        return rect;
    m_paint->memory.row = row;
    m_paint->memory.top = rect.top;
    m_paint->memory.bottom = rect.bottom;
    PaintMemory::Column & column = m_paint->memory.ColumnAt(col);
    column.left = rect.left;
    column.right = rect.right;
    column.edgesKnown = true;
    return rect;
}

bool CXListCtrl::IsAboveTop(int row)
{
    if (m_paint == nullptr)
        return false;
    if (m_paint->memory.topRow < 0)
        m_paint->memory.topRow = GetTopIndex();
    return row < m_paint->memory.topRow;
}

bool CXListCtrl::IsSelected(int row)
{
    if (m_paint == nullptr)
        return GetItemState(row, LVIS_SELECTED) != 0;
    if (m_paint->memory.stateRow != row)
    {
        m_paint->memory.selected = GetItemState(row, LVIS_SELECTED) != 0;
        m_paint->memory.stateRow = row;
    }
    return m_paint->memory.selected;
}

bool CXListCtrl::HasFocus()
{
    if (m_paint == nullptr)
        return ::GetFocus() == m_hWnd;
    if (!m_paint->memory.focusKnown)
    {
        m_paint->memory.focused = ::GetFocus() == m_hWnd;
        m_paint->memory.focusKnown = true;
    }
    return m_paint->memory.focused;
}

UINT CXListCtrl::AskTextFormat(int col) const
{
    UINT const format = DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER;
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
        if (paint.ListIsGone())
            return;
    }
    if (m_hWnd == nullptr || GetItemCount() > 0 || m_emptyListText.IsEmpty())
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
