#include <algorithm>
#include <cmath>

#include "frame/GraphicsScopes.h"
#include "list/CheckMarks.h"
#include "list/table/ValueCell.h"
#include "list/table/XTableCtrlState.h"

namespace
{
/// Whether cells of the column may end at different distances from their decimal sign.
bool HasDifferentTails(TableColumn const & column)
{
    if (column.align != TableAlign::by_kind || !IsNumber(column.kind))
        return false;
    return column.format.engineering ||
           (column.kind == TableKind::floating && column.format.style != NumberStyle::fixed);
}

UINT TextFormatOf(CellAlign align)
{
    switch (align)
    {
    case CellAlign::left:
        break;
    case CellAlign::centre:
        return DT_CENTER;
    case CellAlign::right:
        return DT_RIGHT;
    }
    return DT_LEFT;
}

/// The ground of selected rows without the focus: the system's, unless nobody would see it.
COLORREF InactiveSelection(ControlColors const & palette)
{
    if (palette.adapts)
        return palette.inactiveSelection;
    constexpr int least_seen = 24;
    auto const apart = [&palette](int shift) {
        return std::abs(static_cast<int>(palette.inactiveSelection >> shift & 0xFF) -
                        static_cast<int>(palette.window >> shift & 0xFF));
    };
    if (std::max({apart(0), apart(8), apart(16)}) >= least_seen)
        return palette.inactiveSelection;
    auto const mixed = [&palette](int shift) {
        return (3 * (palette.window >> shift & 0xFF) + (palette.selection >> shift & 0xFF)) / 4 << shift;
    };
    return mixed(0) | mixed(8) | mixed(16);
}
} // namespace

void CXTableCtrl::State::FollowSet(HWND window)
{
    ControlColorSet const set = control_colors::SetOf(window);
    if (set != ControlColorSet::standard || look.palette.adapts)
        look.palette = control_colors::Of(set);
}

// Where columns and rows stand, for all cells of one paint.
void CXTableCtrl::PrepareLook()
{
    State & state = *m_state;
    state.FollowSet(m_hWnd);
    state.edges.clear();
    state.frozen = state.layout.Frozen();
    state.frozenRight = 0;
    CHeaderCtrl * const header = Titles();
    if (header == nullptr)
        return;
    CPoint origin(0, 0);
    ::MapWindowPoints(header->m_hWnd, m_hWnd, &origin, 1);
    int still = 0;
    for (std::size_t i = 0; i < state.shown.size(); ++i)
    {
        CRect rect(0, 0, 0, 0);
        header->GetItemRect(static_cast<int>(i), &rect);
        State::Edges edges;
        edges.left = rect.left + origin.x;
        edges.right = rect.right + origin.x;
        if (i < state.frozen)
        {
            edges.left = still;
            still += rect.Width();
            edges.right = still;
            state.frozenRight = still;
        }
        state.edges.push_back(edges);
    }
    state.focused = ::GetFocus() == m_hWnd;
    state.focusRow = state.model.FocusRow();
    state.topPosition = TopPosition();
    state.topRect = RowRect(state.topPosition);
}

// The widest part behind the decimal sign among the rows that are seen.
void CXTableCtrl::MeasureDecimals(CDC & dc, TableRow first, TableRow last)
{
    State & state = *m_state;
    for (std::size_t i = 0; i < state.edges.size(); ++i)
    {
        unsigned int const column = state.shown[i];
        TableColumn const * const described = state.Column(column);
        if (described == nullptr || !HasDifferentTails(*described))
            continue;
        int widest = 0;
        for (TableRow position = first; position <= last; ++position)
        {
            state.model.Read(position, column, state.value);
            if (!IsNumber(state.value.Kind()))
                continue;
            std::size_t const sign = ShowValue(state.text, state.value, *described, state.model.Looks().locale);
            CSize size(0, 0);
            ::GetTextExtentPoint32W(dc.m_hDC, state.text.c_str() + sign, static_cast<int>(state.text.size() - sign),
                                    &size);
            widest = std::max<int>(widest, size.cx);
        }
        state.edges[i].tail = widest;
    }
}

void CXTableCtrl::OnPaint()
{
    Watch const watch(*this);
    ++m_state->repaints;
    PrepareLook();
    ++m_state->painting;
    Default();
    if (!watch.IsThere())
        return;
    m_state->edges.clear();
    --m_state->painting;
    if (m_state->editing && m_state->editing->window->m_hWnd != nullptr)
        m_state->editing->window->PaintFrame();
}

BOOL CXTableCtrl::OnCustomDraw(NMHDR * header, LRESULT * result)
{
    auto const & draw = *reinterpret_cast<NMLVCUSTOMDRAW const *>(header);
    *result = CDRF_DODEFAULT;
    CDC & dc = *CDC::FromHandle(draw.nmcd.hdc);
    switch (draw.nmcd.dwDrawStage)
    {
    case CDDS_PREPAINT: {
        // Painted for somebody else, without a paint of the window's own.
        if (m_state->edges.empty())
            PrepareLook();
        TableRow const size = m_state->model.Size();
        TableRow const top = m_state->topPosition;
        if (top < size)
            MeasureDecimals(dc, top, std::min(top + PageRows(), size - 1));
        *result = CDRF_NOTIFYITEMDRAW;
        break;
    }
    case CDDS_ITEMPREPAINT:
        *result = CDRF_SKIPDEFAULT;
        PaintRow(dc, static_cast<TableRow>(draw.nmcd.dwItemSpec));
        break;
    default:
        break;
    }
    return TRUE;
}

void CXTableCtrl::PaintRow(CDC & dc, TableRow position)
{
    State & state = *m_state;
    // What stands above the top row is erased, so a native list that shows a strip of the row there must not paint it.
    if (position < state.topPosition || state.edges.empty())
        return;
    Watch const watch(*this);
    int const height = state.topRect.Height();
    int const top = state.topRect.top + static_cast<int>(position - state.topPosition) * height;
    TableRow const row = state.model.RowAt(position);
    bool const selected = state.model.IsRowSelected(row);
    CRect clip;
    dc.GetClipBox(&clip);
    std::size_t const count = state.edges.size();
    {
        ContextStateScope const scope(dc);
        if (state.frozen != 0)
            dc.IntersectClipRect(state.frozenRight, top, clip.right, top + height);
        for (std::size_t i = state.frozen; i < count; ++i)
        {
            CRect const rect(state.edges[i].left, top, state.edges[i].right, top + height);
            if (rect.right <= std::max<LONG>(clip.left, state.frozenRight) || rect.left >= clip.right)
                continue;
            PaintRowCell(dc, row, static_cast<unsigned int>(i), rect, selected);
            if (!watch.IsThere() || state.edges.size() != count)
                return;
        }
    }
    for (std::size_t i = 0; i < state.frozen && i < count; ++i)
    {
        PaintRowCell(dc, row, static_cast<unsigned int>(i),
                     CRect(state.edges[i].left, top, state.edges[i].right, top + height), selected);
        if (!watch.IsThere() || state.edges.size() != count)
            return;
    }
    if (row != no_table_row && row == state.focusRow && state.focused)
    {
        CRect const frame(0, top, state.edges.back().right, top + height);
        ControlColors const & palette = state.look.palette;
        dc.SetTextColor(palette.windowText);
        dc.SetBkColor(palette.window);
        auto const draw = [&](CRect const & rect) {
            if (palette.adapts)
                check_marks::DrawFrame(dc, rect, selected ? palette.selectionText : palette.windowText);
            else
                dc.DrawFocusRect(&rect);
        };
        draw(frame);
        // Within the row the cell where keys do something.
        auto const cell = std::find(state.shown.begin(), state.shown.end(), CursorColumn());
        if (cell != state.shown.end() &&
            (state.cursor || (state.Column(*cell) != nullptr && state.Column(*cell)->editable)))
        {
            State::Edges const & edges = state.edges[static_cast<std::size_t>(cell - state.shown.begin())];
            CRect const inner(edges.left + 1, top + 1, edges.right - 1, top + height - 1);
            if (edges.left >= state.frozenRight || cell - state.shown.begin() < static_cast<int>(state.frozen))
                draw(inner);
        }
    }
}

void CXTableCtrl::GetCellColors(TableRow row, unsigned int column, COLORREF & text, COLORREF & background)
{
    static_cast<void>(row);
    static_cast<void>(column);
    static_cast<void>(text);
    static_cast<void>(background);
}

// index: of the column among those shown.
void CXTableCtrl::PaintRowCell(CDC & dc, TableRow row, unsigned int index, CRect const & rect, bool selected)
{
    State & state = *m_state;
    unsigned int const column = state.shown[index];
    TableColumn const * const described = state.Column(column);
    if (described == nullptr)
        return;
    state.model.ReadRow(row, column, state.value);
    TableKind const kind = state.value.Kind();
    std::size_t const sign = ShowValue(state.text, state.value, *described, state.model.Looks().locale);

    MakeCellOf(state.value, false, state.cell);
    COLORREF text = kind == TableKind::link ? state.look.palette.link : state.look.palette.windowText;
    COLORREF background = kind == TableKind::progress ? state.look.palette.tableBar : state.look.palette.window;
    // Of a tick the mark is shown alone.
    if (kind == TableKind::tick)
        state.text.clear();
    Watch const watch(*this);
    COLORREF const usual[] = {text, background};
    GetCellColors(row, column, text, background);
    if (!watch.IsThere() || index >= state.edges.size())
        return;
    if (state.look.palette.adapts && text == usual[0] && background != usual[1])
        text = control_colors::TextOn(background, text, state.look.palette.window);
    if (selected && kind != TableKind::progress)
    {
        if (state.focused)
        {
            text = state.look.palette.selectionText;
            background = state.look.palette.selection;
        }
        else
        {
            background = InactiveSelection(state.look.palette);
        }
    }
    CellPaint paint{dc, state.cell, rect, text, background};
    state.look.alignment = TextFormatOf(AlignmentOf(*described, kind));
    if (IsNumber(kind) && state.edges[index].tail >= 0)
    {
        CSize size(0, 0);
        ::GetTextExtentPoint32W(dc.m_hDC, state.text.c_str() + sign, static_cast<int>(state.text.size() - sign), &size);
        if (size.cx < state.edges[index].tail)
        {
            cell_painters::FillCell(paint);
            paint.rect.right -= state.edges[index].tail - size.cx;
        }
    }
    std::wstring const & shown = state.text;
    CellText const cellText([&shown](wchar_t * buffer, int room) {
        int const length = std::min(static_cast<int>(std::min<std::size_t>(shown.size(), CellText::whole)), room - 1);
        std::copy_n(shown.data(), length, buffer);
        buffer[length] = L'\0';
        return length;
    });
    cell_painters::PaintCell(paint, state.look, cellText);
}

// Rows are never erased, since every cell paints its whole area.
BOOL CXTableCtrl::OnEraseBkgnd(CDC * dc)
{
    CRect clip(0, 0, 0, 0);
    if (dc->GetClipBox(&clip) <= NULLREGION)
        return TRUE;
    m_state->FollowSet(m_hWnd);
    COLORREF const color = m_state->look.palette.window;
    TableRow const size = m_state->model.Size();
    CHeaderCtrl * const header = Titles();
    int right = 0;
    if (header != nullptr && !m_state->shown.empty())
    {
        CRect rect(0, 0, 0, 0);
        header->GetItemRect(static_cast<int>(m_state->shown.size()) - 1, &rect);
        header->MapWindowPoints(this, &rect);
        right = rect.right;
    }
    if (header != nullptr && header->IsWindowVisible())
    {
        // A repaint of the rows alone has the titles stay: what is painted over them would not be mended.
        CRect titles(0, 0, 0, 0);
        header->GetWindowRect(&titles);
        ScreenToClient(&titles);
        clip.top = std::max(clip.top, titles.bottom);
        if (clip.IsRectEmpty())
            return TRUE;
    }
    CRect first(0, 0, 0, 0);
    CRect lowest(0, 0, 0, 0);
    if (size != 0)
    {
        TableRow const top = TopPosition();
        first = RowRect(top);
        lowest = RowRect(std::min(top + PageRows(), size - 1));
    }
    else
    {
        lowest.bottom = clip.top;
        first.top = clip.top;
    }
    CRect const strips[] = {CRect(clip.left, clip.top, clip.right, first.top),
                            CRect(clip.left, lowest.bottom, clip.right, clip.bottom),
                            CRect(right, first.top, clip.right, lowest.bottom)};
    for (CRect const & strip : strips)
    {
        CRect visible;
        if (visible.IntersectRect(strip, clip))
            dc->FillSolidRect(visible, color);
    }
    return TRUE;
}

BOOL CXTableCtrl::OnGetDispInfo(NMHDR * header, LRESULT * result)
{
    LVITEMW & item = reinterpret_cast<NMLVDISPINFOW *>(header)->item;
    *result = 0;
    if ((item.mask & LVIF_TEXT) != 0 && item.pszText != nullptr && item.cchTextMax > 0)
    {
        std::wstring text;
        if (item.iSubItem >= 0 && static_cast<std::size_t>(item.iSubItem) < m_state->shown.size() && item.iItem >= 0)
        {
            text = m_state->model.Text(static_cast<TableRow>(item.iItem),
                                       m_state->shown[static_cast<std::size_t>(item.iSubItem)]);
        }
        ::lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
    }
    if ((item.mask & LVIF_IMAGE) != 0)
        item.iImage = -1;
    return TRUE;
}

void CXTableCtrl::OnSysColorChange()
{
    Watch const watch(*this);
    CListCtrl::OnSysColorChange();
    if (!watch.IsThere())
        return;
    m_state->look.palette = control_colors::Of(ControlColorSet::standard);
    m_state->FollowSet(m_hWnd);
    RepaintRows();
}
