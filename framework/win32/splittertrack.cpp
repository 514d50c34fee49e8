// CSplitterWnd: painting, moving bars by mouse and keyboard, shared scroll bars.

#include <algorithm>

#include "detail/FrameSupport.h"
#include "detail/SplitterMetrics.h"
#include "detail/WndAccess.h"

using framework::SplitterLine;
using framework::WindowGuard;

namespace
{
using framework::splitter_border;
using framework::splitter_gap;

constexpr int key_step = 5; // pixels that an arrow key moves a bar; with Ctrl it is one

/// The part of a row or column of panes that a coordinate lies in: a bar behind it, or none.
int BarAt(std::vector<SplitterLine> const & lines, int count, int start, int place)
{
    for (int line = 0; line + 1 < count; ++line)
    {
        start += lines[static_cast<size_t>(line)].current;
        if (place >= start && place < start + splitter_gap)
            return line;
        start += splitter_gap;
    }
    return -1;
}
} // namespace

CSplitterWnd::Part CSplitterWnd::PartAt(CPoint point) const
{
    CRect const inner = InnerRect();
    CRect const area = PaneArea();
    Part part;
    if (!inner.PtInRect(point))
        return part;
    // The boxes lie at the near end of the first scroll bar.
    if (m_hasVertical && m_rows < m_maxRows && point.x >= area.right && point.y < inner.top + splitter_gap)
    {
        part.rowBox = true;
        return part;
    }
    if (m_hasHorizontal && m_columns < m_maxColumns && point.y >= area.bottom && point.x < inner.left + splitter_gap)
    {
        part.columnBox = true;
        return part;
    }
    part.row = BarAt(m_rowLines, m_rows, inner.top, point.y);
    part.column = BarAt(m_columnLines, m_columns, inner.left, point.x);
    return part;
}

BOOL CSplitterWnd::IsTracking()
{
    return m_tracking;
}

void CSplitterWnd::OnPaint()
{
    CPaintDC dc(this);
    CRect const inner = InnerRect();
    CRect const area = PaneArea();
    CRect all;
    GetClientRect(&all);
    dc.FillSolidRect(&all, ::GetSysColor(COLOR_BTNFACE));
    if (m_hasVertical && m_rows < m_maxRows)
        OnDrawSplitter(&dc, splitBox, CRect(area.right, inner.top, inner.right, inner.top + splitter_gap));
    if (m_hasHorizontal && m_columns < m_maxColumns)
        OnDrawSplitter(&dc, splitBox, CRect(inner.left, area.bottom, inner.left + splitter_gap, inner.bottom));
    int place = inner.left;
    for (int column = 0; column + 1 < m_columns; ++column)
    {
        place += m_columnLines[static_cast<size_t>(column)].current;
        OnDrawSplitter(&dc, splitBar, CRect(place, inner.top, place + splitter_gap, inner.bottom));
        place += splitter_gap;
    }
    place = inner.top;
    for (int row = 0; row + 1 < m_rows; ++row)
    {
        place += m_rowLines[static_cast<size_t>(row)].current;
        OnDrawSplitter(&dc, splitBar, CRect(inner.left, place, inner.right, place + splitter_gap));
        place += splitter_gap;
    }
    int x = inner.left;
    for (int column = 0; column < m_columns; ++column)
    {
        int const width = m_columnLines[static_cast<size_t>(column)].current;
        int y = inner.top;
        for (int row = 0; row < m_rows; ++row)
        {
            int const height = m_rowLines[static_cast<size_t>(row)].current;
            CRect edge(x, y, x + width, y + height);
            edge.InflateRect(splitter_border, splitter_border);
            OnDrawSplitter(&dc, splitBorder, edge);
            if (row + 1 < m_rows && column + 1 < m_columns)
            {
                OnDrawSplitter(&dc, splitIntersection,
                               CRect(x + width, y + height, x + width + splitter_gap, y + height + splitter_gap));
            }
            y += height + splitter_gap;
        }
        x += width + splitter_gap;
    }
}

void CSplitterWnd::OnDrawSplitter(CDC * pDC, ESplitType nType, const CRect & rect)
{
    if (pDC == nullptr)
    {
        ::RedrawWindow(m_hWnd, &rect, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
        return;
    }
    CRect inside = rect;
    switch (nType)
    {
    case splitBorder:
        pDC->Draw3dRect(&inside, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNHIGHLIGHT));
        inside.DeflateRect(1, 1);
        pDC->Draw3dRect(&inside, ::GetSysColor(COLOR_WINDOWFRAME), ::GetSysColor(COLOR_BTNFACE));
        break;
    case splitBox:
        pDC->Draw3dRect(&inside, ::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_WINDOWFRAME));
        inside.DeflateRect(1, 1);
        pDC->Draw3dRect(&inside, ::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetSysColor(COLOR_BTNSHADOW));
        inside.DeflateRect(1, 1);
        pDC->FillSolidRect(&inside, ::GetSysColor(COLOR_BTNFACE));
        break;
    case splitBar:
        pDC->FillSolidRect(&inside, ::GetSysColor(COLOR_BTNFACE));
        break;
    case splitIntersection:
        break;
    }
}

void CSplitterWnd::OnInvertTracker(const CRect & rect)
{
    // Over the panes, too, which the window's own device context leaves out.
    HDC const dc = ::GetDCEx(m_hWnd, nullptr, DCX_CACHE | DCX_LOCKWINDOWUPDATE);
    if (dc == nullptr)
        return;
    HGDIOBJ const brush = ::SelectObject(dc, static_cast<HBRUSH>(CDC::GetHalftoneBrush()->GetSafeHandle()));
    ::PatBlt(dc, rect.left, rect.top, rect.Width(), rect.Height(), PATINVERT);
    ::SelectObject(dc, brush);
    ::ReleaseDC(m_hWnd, dc);
}

CRect CSplitterWnd::TrackerRect(bool rows) const
{
    CRect const area = PaneArea();
    return rows ? CRect(area.left, m_tracker.y, area.right, m_tracker.y + splitter_gap)
                : CRect(m_tracker.x, area.top, m_tracker.x + splitter_gap, area.bottom);
}

void CSplitterWnd::InvertTrackers()
{
    if (m_tracked.OfRows())
        OnInvertTracker(TrackerRect(true));
    if (m_tracked.OfColumns())
        OnInvertTracker(TrackerRect(false));
}

void CSplitterWnd::StartTracking(Part const & part, CPoint point)
{
    if (!part.Any())
        return;
    CRect const inner = InnerRect();
    m_tracker = inner.TopLeft();
    for (int row = 0; row <= part.row; ++row)
        m_tracker.y += m_rowLines[static_cast<size_t>(row)].current + (row > 0 ? splitter_gap : 0);
    for (int column = 0; column <= part.column; ++column)
        m_tracker.x += m_columnLines[static_cast<size_t>(column)].current + (column > 0 ? splitter_gap : 0);
    m_grip = point - m_tracker;
    m_tracked = part;
    m_tracking = true;
    // The focus comes here, for the keys.
    WindowGuard const guard(this);
    SetCapture();
    SetFocus();
    if (guard.Alive() && m_tracking)
        InvertTrackers();
}

void CSplitterWnd::MoveTracker(CPoint point)
{
    CRect const area = PaneArea();
    InvertTrackers();
    CPoint const place = point - m_grip;
    m_tracker.x = std::clamp<LONG>(place.x, area.left, std::max<LONG>(area.right - splitter_gap, area.left));
    m_tracker.y = std::clamp<LONG>(place.y, area.top, std::max<LONG>(area.bottom - splitter_gap, area.top));
    InvertTrackers();
}

void CSplitterWnd::Track(bool rows, int line, int place)
{
    std::vector<SplitterLine> & lines = rows ? m_rowLines : m_columnLines;
    CRect const inner = InnerRect();
    int start = rows ? inner.top : inner.left;
    for (int at = 0; at < line; ++at)
        start += lines[static_cast<size_t>(at)].current + splitter_gap;
    int const size = place - start;
    SplitterLine & before = lines[static_cast<size_t>(line)];
    SplitterLine const & behind = lines[static_cast<size_t>(line) + 1];
    bool const dynamic = (GetStyle() & SPLS_DYNAMIC_SPLIT) != 0;
    before.ideal = size;
    if (size < before.minimum || size < 0)
    {
        before.ideal = 0;
        if (dynamic)
            Delete(rows, line);
    }
    else if (before.current + behind.current < size + behind.minimum && dynamic)
        Delete(rows, line + 1);
}

void CSplitterWnd::StopTracking(bool accept)
{
    if (!m_tracking)
        return;
    m_tracking = false;
    InvertTrackers();
    WindowGuard const guard(this);
    ReleaseCapture();
    if (!guard.Alive())
        return;
    CWnd * const active = GetActivePane();
    WindowGuard const activeGuard(active);
    Part const part = m_tracked;
    CPoint const place = m_tracker;
    if (accept)
    {
        // A box splits at the place where it was let go.
        if (part.rowBox)
            SplitRow(place.y);
        if (part.columnBox && guard.Alive())
            SplitColumn(place.x);
        if (part.row >= 0 && guard.Alive())
            Track(true, part.row, place.y);
        if (part.column >= 0 && guard.Alive())
            Track(false, part.column, place.x);
        if (guard.Alive())
            RecalcLayout();
    }
    if (guard.Alive() && active != nullptr && activeGuard.Alive() && GetActivePane() == active)
    {
        SetActivePane(-1, -1, active);
        if (guard.Alive() && ::GetFocus() == m_hWnd)
            active->SetFocus();
    }
}

BOOL CSplitterWnd::DoKeyboardSplit()
{
    if (m_tracking)
        return FALSE;
    Part part;
    if (m_rows > 1)
        part.row = 0;
    if (m_columns > 1)
        part.column = 0;
    if (!part.Any())
    {
        part.rowBox = m_maxRows > 1;
        part.columnBox = m_maxColumns > 1;
    }
    if (!part.Any())
        return FALSE;
    CRect const area = PaneArea();
    WindowGuard const guard(this);
    StartTracking(part, InnerRect().TopLeft());
    if (!guard.Alive() || !m_tracking)
        return TRUE;
    // Bars are held where they are, boxes in the middle.
    m_grip = CPoint(0, 0);
    CPoint point = m_tracker;
    if (part.rowBox || part.row < 0)
        point.y = area.CenterPoint().y;
    if (part.columnBox || part.column < 0)
        point.x = area.CenterPoint().x;
    MoveTracker(point);
    ClientToScreen(&point);
    ::SetCursorPos(point.x, point.y);
    return TRUE;
}

BOOL CSplitterWnd::OnSetCursor(CWnd * pWnd, UINT nHitTest, UINT message)
{
    if (nHitTest == HTCLIENT && pWnd == this && !m_tracking)
        return TRUE; // the moves of the mouse see to it
    return CWnd::OnSetCursor(pWnd, nHitTest, message);
}

void CSplitterWnd::OnMouseMove(UINT, CPoint point)
{
    if (m_tracking && GetCapture() != this)
        StopTracking(false);
    if (m_tracking)
    {
        MoveTracker(point);
        return;
    }
    Part const part = PartAt(point);
    LPCTSTR cursor = IDC_ARROW;
    if (part.OfRows() && part.OfColumns())
        cursor = IDC_SIZEALL;
    else if (part.OfRows())
        cursor = IDC_SIZENS;
    else if (part.OfColumns())
        cursor = IDC_SIZEWE;
    ::SetCursor(::LoadCursor(nullptr, cursor));
}

void CSplitterWnd::OnLButtonDown(UINT, CPoint point)
{
    if (!m_tracking)
        StartTracking(PartAt(point), point);
}

void CSplitterWnd::OnLButtonUp(UINT, CPoint)
{
    StopTracking(true);
}

void CSplitterWnd::OnLButtonDblClk(UINT, CPoint point)
{
    Part const part = PartAt(point);
    WindowGuard const guard(this);
    StopTracking(false);
    if (!guard.Alive() || (GetStyle() & SPLS_DYNAMIC_SPLIT) == 0)
        return;
    CRect const area = PaneArea();
    if (part.rowBox)
        SplitRow(area.Height() / 2);
    else if (part.columnBox)
        SplitColumn(area.Width() / 2);
    if (part.row >= 0)
        DeleteRow(part.row + 1 < m_rows ? part.row + 1 : part.row);
    if (part.column >= 0 && guard.Alive())
        DeleteColumn(part.column + 1 < m_columns ? part.column + 1 : part.column);
}

void CSplitterWnd::OnKeyDown(UINT nChar, UINT, UINT)
{
    if (!m_tracking)
    {
        Default();
        return;
    }
    int const step = ::GetKeyState(VK_CONTROL) < 0 ? 1 : key_step;
    CPoint point = m_tracker + m_grip;
    switch (nChar)
    {
    case VK_ESCAPE:
        StopTracking(false);
        return;
    case VK_RETURN:
        StopTracking(true);
        return;
    case VK_LEFT:
        point.x -= step;
        break;
    case VK_RIGHT:
        point.x += step;
        break;
    case VK_UP:
        point.y -= step;
        break;
    case VK_DOWN:
        point.y += step;
        break;
    default:
        Default();
        return;
    }
    MoveTracker(point);
    point = m_tracker + m_grip;
    ClientToScreen(&point);
    ::SetCursorPos(point.x, point.y);
}

void CSplitterWnd::OnCancelMode()
{
    StopTracking(false);
}

void CSplitterWnd::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar * pScrollBar)
{
    if (pScrollBar != nullptr)
        ScrollPanes(false, nSBCode, nPos, *pScrollBar);
}

void CSplitterWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar * pScrollBar)
{
    if (pScrollBar != nullptr)
        ScrollPanes(true, nSBCode, nPos, *pScrollBar);
}

/// All panes along a shared bar get its message; each finds the bar as it was before.
void CSplitterWnd::ScrollPanes(bool rows, UINT code, UINT position, CScrollBar & bar)
{
    HWND const control = bar.m_hWnd;
    int const line = static_cast<WORD>(::GetDlgCtrlID(control)) - ScrollBarId(rows, 0);
    int const across = rows ? m_columns : m_rows;
    int const old = ::GetScrollPos(control, SB_CTL);
    WindowGuard const guard(this);
    for (int other = 0; other < across; ++other)
    {
        CWnd * const pane = rows ? GetPane(line, other) : GetPane(other, line);
        if (pane == nullptr)
            continue;
        pane->SendMessage(rows ? WM_VSCROLL : WM_HSCROLL, MAKEWPARAM(code, position),
                          reinterpret_cast<LPARAM>(control));
        if (!guard.Alive() || !::IsWindow(control))
            return;
        if (other + 1 < across)
            ::SetScrollPos(control, SB_CTL, old, FALSE);
    }
}

BOOL CSplitterWnd::DoScroll(CView * pViewFrom, UINT nScrollCode, BOOL bDoScroll)
{
    int row = -1;
    int column = -1;
    if (!IsChildPane(pViewFrom, &row, &column))
        return FALSE;
    WindowGuard const guard(this);
    BOOL result = FALSE;
    // Each code stands for one direction; 0xFF means none.
    bool const horizontal = LOBYTE(nScrollCode) != 0xFF;
    bool const vertical = HIBYTE(nScrollCode) != 0xFF;
    auto const scroll = [&](bool rows) {
        HWND const bar = ::GetDlgItem(m_hWnd, ScrollBarId(rows, rows ? row : column));
        int const old = bar != nullptr ? ::GetScrollPos(bar, SB_CTL) : 0;
        UINT const code = rows ? MAKEWORD(0xFF, HIBYTE(nScrollCode)) : MAKEWORD(LOBYTE(nScrollCode), 0xFF);
        int const across = rows ? m_columns : m_rows;
        for (int other = 0; other < across && guard.Alive(); ++other)
        {
            auto * const view = DYNAMIC_DOWNCAST(CView, rows ? GetPane(row, other) : GetPane(other, column));
            if (view == nullptr)
                continue;
            if (bar != nullptr && other > 0)
                ::SetScrollPos(bar, SB_CTL, old, FALSE);
            if (view->OnScroll(code, 0, bDoScroll))
                result = TRUE;
        }
    };
    if (horizontal)
        scroll(false);
    if (vertical && guard.Alive())
        scroll(true);
    return result;
}

BOOL CSplitterWnd::DoScrollBy(CView * pViewFrom, CSize sizeScroll, BOOL bDoScroll)
{
    int row = -1;
    int column = -1;
    if (!IsChildPane(pViewFrom, &row, &column))
        return FALSE;
    WindowGuard const guard(this);
    BOOL result = FALSE;
    auto const scroll = [&](bool rows) {
        HWND const bar = ::GetDlgItem(m_hWnd, ScrollBarId(rows, rows ? row : column));
        int const old = bar != nullptr ? ::GetScrollPos(bar, SB_CTL) : 0;
        CSize const size = rows ? CSize(0, sizeScroll.cy) : CSize(sizeScroll.cx, 0);
        int const across = rows ? m_columns : m_rows;
        for (int other = 0; other < across && guard.Alive(); ++other)
        {
            auto * const view = DYNAMIC_DOWNCAST(CView, rows ? GetPane(row, other) : GetPane(other, column));
            if (view == nullptr)
                continue;
            if (bar != nullptr && other > 0)
                ::SetScrollPos(bar, SB_CTL, old, FALSE);
            if (view->OnScrollBy(size, bDoScroll))
                result = TRUE;
        }
    };
    if (sizeScroll.cx != 0)
        scroll(false);
    if (sizeScroll.cy != 0 && guard.Alive())
        scroll(true);
    return result;
}
