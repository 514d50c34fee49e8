#include "list/XListCtrl.h"

#include <algorithm>

#include "frame/GraphicsScopes.h"
#include "list/CellPainters.h"
#include "list/PaintMemory.h"
#include "list/XListCtrlCursor.h"
#include "list/XListCtrlHold.h"
#include "list/XListCtrlResolution.h"

namespace
{
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
} // namespace

/// Remembers for the length of one paint, which may run within another. The list may end before the paint does.
class CXListCtrl::PaintScope
{
public:
    explicit PaintScope(CXListCtrl & list) : m_watch(list), m_list(list), m_outer(list.m_paint->scope)
    {
        list.m_paint->scope = this;
    }
    ~PaintScope()
    {
        if (m_watch.IsThere())
            m_list.m_paint->scope = m_outer;
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
        scope->memory.Forget();
}

// Host code can run at any point of a paint, with the notifications and in painters of its own. Whatever it changes
// comes here; what painting asks the list for does not change anything.
void CXListCtrl::HeedMessage(UINT message)
{
    if (m_paint->scope == nullptr)
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
        m_paint->scope->ForgetAll();
        break;
    }
}

void CXListCtrl::GetColors()
{
    m_paint->standard = control_colors::Of(ControlColorSet::standard);
    m_paint->palette = m_paint->standard;
    m_paint->defaults.Note(m_paint->standard);
}

void CXListCtrl::PaintState::FollowSet(HWND window)
{
    ControlColorSet const set = control_colors::SetOf(window);
    if (set != ControlColorSet::standard)
        palette = control_colors::Of(set);
    else if (palette.adapts)
        palette = standard;
}

void CXListCtrl::OnSysColorChange()
{
    CListCtrl::OnSysColorChange();
    GetColors();
    m_paint->FollowSet(m_hWnd);
    if (m_paint->palette.adapts && m_hWnd != nullptr)
        Invalidate();
}

void CXListCtrl::OnCustomDraw(NMHDR * header, LRESULT * result)
{
    auto & draw = *reinterpret_cast<NMLVCUSTOMDRAW *>(header);
    *result = CDRF_DODEFAULT;
    switch (draw.nmcd.dwDrawStage)
    {
    case CDDS_PREPAINT:
        m_paint->FollowSet(m_hWnd);
        [[fallthrough]];
    case CDDS_ITEMPREPAINT:
        *result = CDRF_NOTIFYSUBITEMDRAW;
        return;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
        break;
    default:
        return;
    }
    if (!m_cursor->IsAt(static_cast<int>(draw.nmcd.dwItemSpec), draw.iSubItem))
    {
        DrawSubItem(draw, result);
        return;
    }
    // Painting can run the host's code.
    Watch const watch(*this);
    CellCursor::Frame const frame{static_cast<int>(draw.nmcd.dwItemSpec), draw.iSubItem, draw.nmcd.hdc};
    DrawSubItem(draw, result);
    if (watch.IsAlive())
        m_cursor->Paint(frame);
}

/// The list asks for the colours, which a host may choose, with each part, for the image before there is a text, and
/// for alignment and text where there is something to write. So each part is an operation of the list's.
class CXListCtrl::PaintedParts final : public CellParts
{
public:
    struct Cell
    {
        int row;
        int col;
        CDC * dc;
        COLORREF text;
        COLORREF background;
        CRect rect;
        XLISTCTRLDATA * cells;
    };
    PaintedParts(CXListCtrl & list, Cell const & cell) : m_list(list), m_cell(cell) {}

    void Margin() override
    {
        if (m_list.m_paint->scope != nullptr)
            cell_painters::FillMargin(*m_cell.dc, m_cell.rect, m_list.m_paint->palette.window);
    }
    void Image() override
    {
        m_cell.rect.left += m_list.DrawImage(m_cell.row, m_cell.col, m_cell.dc, m_cell.text, m_cell.background,
                                             m_cell.rect, m_cell.cells);
    }
    void Text() override { Draw(&CXListCtrl::DrawTextW); }
    void Check() override { Draw(&CXListCtrl::DrawCheckbox); }
    void Combo() override { Draw(&CXListCtrl::DrawComboBox); }
    void Progress() override { Draw(&CXListCtrl::DrawProgress); }
    void Custom() override
    {
        // The host's code may change or end anything, the painter itself and this list included.
        auto const painter = m_cell.cells[m_cell.col].customDraw;
        painter(m_cell.row, m_cell.col, m_cell.dc, m_cell.rect);
    }

private:
    void Draw(void (CXListCtrl::*part)(int, int, CDC *, COLORREF, COLORREF, CRect &, XLISTCTRLDATA *))
    {
        (m_list.*part)(m_cell.row, m_cell.col, m_cell.dc, m_cell.text, m_cell.background, m_cell.rect, m_cell.cells);
    }

    CXListCtrl & m_list;
    Cell m_cell;
};

void CXListCtrl::DrawSubItem(NMLVCUSTOMDRAW & draw, LRESULT * result)
{
    int const row = static_cast<int>(draw.nmcd.dwItemSpec);
    int const col = draw.iSubItem;
    auto const * const rowData = reinterpret_cast<XLISTCTRLROW const *>(draw.nmcd.lItemlParam);
    // What stands above the top row is erased, so a native list that shows a strip of the row there must not paint it.
    if (IsAboveTop(row))
    {
        *result = CDRF_SKIPDEFAULT;
        return;
    }
    if (col == 0 && m_paint->scope != nullptr)
        FillMovedFirstColumn(*CDC::FromHandle(draw.nmcd.hdc), PaintedRect(row, col));
    if (rowData == nullptr || col < 0 || static_cast<unsigned int>(col) >= rowData->capacity())
    {
        if (m_paint->scope != nullptr)
            FillNativeCell(*this, draw.nmcd.hdc, row, col, PaintedRect(row, col), m_paint->palette.window);
        if (m_paint->palette.adapts)
        {
            draw.clrText = m_paint->palette.windowText;
            draw.clrTextBk = m_paint->palette.window;
        }
        return;
    }
    XLISTCTRLDATA * const cells = rowData->cells();
    XLISTCTRLDATA const & cell = cells[col];

    COLORREF text = cell.textColor;
    COLORREF background = cell.backgroundColor;
    if (m_paint->palette.adapts)
        AdaptCellColors(cell, m_paint->defaults, m_paint->palette, text, background);
    cell_painters::GreyDisabled(cell, m_paint->palette, text, background);
    draw.clrText = text;
    draw.clrTextBk = background;

    CDC * const dc = CDC::FromHandle(draw.nmcd.hdc);
    CRect rect = PaintedRect(row, col);
    *result = CDRF_SKIPDEFAULT;
    if (auto const own = rowData->Kind(static_cast<unsigned int>(col)))
    {
        // The host's code may change or end anything, this list included; the kind is held by the copy.
        GetDrawColors(row, col, text, background);
        if (!rect.IsRectEmpty())
            own->Paint(cell, *dc, rect, text, background);
        return;
    }
    PaintedParts parts(*this, {row, col, dc, text, background, rect, cells});
    cell_painters::PaintParts(cell, parts);
}

// A first column that stands behind others is painted where they stand, up to the second column. Its own place would
// keep whatever was there before.
void CXListCtrl::FillMovedFirstColumn(CDC & dc, CRect const & row)
{
    CRect const place = m_paint->scope->memory.MovedFirstColumn([this] { return MovedFirstColumn(*this, m_header); });
    if (place.left >= place.right)
        return;
    COLORREF const former = dc.GetBkColor();
    dc.FillSolidRect(CRect(place.left, row.top, place.right, row.bottom), m_paint->palette.window);
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
        text = m_paint->palette.selectionText;
        background = m_paint->palette.selection;
    }
    else if ((GetStyle() & LVS_SHOWSELALWAYS) != 0)
    {
        text = m_paint->palette.windowText;
        background = m_paint->palette.inactiveSelection;
    }
}

CellPaint CXListCtrl::PaintOf(int row, int col, CDC & dc, COLORREF text, COLORREF background, CRect const & rect,
                              XLISTCTRLDATA const & cell)
{
    COLORREF const ownText = text;
    COLORREF const ownBackground = background;
    GetDrawColors(row, col, text, background);
    CellPaint paint{dc, cell, rect, text, background, m_resolution->Dpi(), m_resolution->ImageDpi()};
    paint.softensWash = m_paint->palette.adapts && (text != ownText || background != ownBackground);
    return paint;
}

UINT CXListCtrl::TextFormat(int col) const
{
    PaintScope * const paint = col >= 0 ? m_paint->scope : nullptr;
    auto const ask = [this, col] { return AskAlignment(col); };
    return cell_painters::TextFormat(paint != nullptr ? paint->memory.Alignment(col, ask) : ask(), m_ellipsis);
}

CRect CXListCtrl::PaintedRect(int row, int col)
{
    PaintScope * const paint = m_paint->scope;
    if (paint != nullptr)
    {
        if (std::optional<CRect> const known = paint->memory.Bounds(row, col))
            return *known;
    }
    CRect rect(0, 0, 0, 0);
    if (GetSubItemRect(row, col, LVIR_BOUNDS, rect) && paint != nullptr)
        paint->memory.RememberBounds(row, col, rect);
    return rect;
}

bool CXListCtrl::IsAboveTop(int row)
{
    if (m_paint->scope == nullptr)
        return false;
    return row < m_paint->scope->memory.TopRow([this] { return GetTopIndex(); });
}

bool CXListCtrl::IsSelected(int row)
{
    auto const ask = [this, row] { return GetItemState(row, LVIS_SELECTED) != 0; };
    return m_paint->scope != nullptr ? m_paint->scope->memory.IsSelected(row, ask) : ask();
}

bool CXListCtrl::HasFocus()
{
    auto const ask = [this] { return ::GetFocus() == m_hWnd; };
    return m_paint->scope != nullptr ? m_paint->scope->memory.HasFocus(ask) : ask();
}

UINT CXListCtrl::AskAlignment(int col) const
{
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    if (m_header.GetSafeHwnd() == nullptr || !m_header.GetItem(col, &item))
        return DT_LEFT;
    switch (item.fmt & HDF_JUSTIFYMASK)
    {
    case HDF_CENTER:
        return DT_CENTER;
    case HDF_RIGHT:
        return DT_RIGHT;
    default:
        return DT_LEFT;
    }
}

// Rows are never erased, since every cell paints its whole area.
BOOL CXListCtrl::OnEraseBkgnd(CDC * dc)
{
    m_paint->FollowSet(m_hWnd);
    Watch const watch(*this);
    int const count = GetItemCount();
    if (!watch.IsAlive())
        return TRUE;
    CRect clip(0, 0, 0, 0);
    if (dc->GetClipBox(&clip) <= NULLREGION || (count <= 0 && !m_paint->palette.adapts))
        return CListCtrl::OnEraseBkgnd(dc);
    if (count <= 0)
    {
        dc->FillSolidRect(clip, m_paint->palette.window);
        return TRUE;
    }

    int const top = GetTopIndex();
    int const page = watch.IsAlive() ? GetCountPerPage() : 0;
    CRect first(0, 0, 0, 0);
    CRect lowest(0, 0, 0, 0);
    if (watch.IsAlive())
        CListCtrl::GetSubItemRect(top, 0, LVIR_BOUNDS, first);
    if (watch.IsAlive())
        CListCtrl::GetSubItemRect(std::min(top + page, count - 1), 0, LVIR_BOUNDS, lowest);
    if (!watch.IsAlive())
        return TRUE;

    CRect const strips[] = {CRect(clip.left, clip.top, clip.right, first.top),
                            CRect(clip.left, lowest.bottom, clip.right, clip.bottom),
                            CRect(first.right, first.top, clip.right, lowest.bottom)};
    for (CRect const & strip : strips)
    {
        CRect visible;
        if (visible.IntersectRect(strip, clip))
            dc->FillSolidRect(visible, m_paint->palette.window);
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

    // The stock font has one size alone. Who is asked for the other may end the list.
    Watch const watch(*this);
    CFont * const font = m_resolution->Dpi() != resolution::usual ? GetFont() : nullptr;
    if (!watch.IsAlive())
        return;
    CClientDC dc(this);
    ContextStateScope const state(dc);
    CRect rect;
    GetWindowRect(&rect);
    ScreenToClient(&rect);
    if (m_header.GetSafeHwnd() != nullptr)
    {
        CRect item(0, 0, 0, 0);
        m_header.GetItemRect(0, &item);
        rect.top += item.bottom;
    }
    rect.top += m_resolution->Scaled(gap_below_header);

    CBrush brush(m_paint->palette.window);
    dc.FillRect(rect, &brush);
    dc.SetTextColor(m_paint->palette.windowText);
    dc.SetBkColor(m_paint->palette.window);
    if (font != nullptr)
        dc.SelectObject(font);
    else
        dc.SelectStockObject(ANSI_VAR_FONT);
    dc.DrawText(m_emptyListText, &rect, DT_CENTER | DT_WORDBREAK | DT_NOCLIP | DT_NOPREFIX);
}
