// CSplitterWnd: creation, panes, layout, activation.

#include "afxpriv.h"

#include <algorithm>

#include "detail/FrameSupport.h"
#include "detail/SplitterMetrics.h"
#include "detail/WndAccess.h"

using framework::SplitterLine;
using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CSplitterWnd, CWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CSplitterWnd, CWnd)
    ON_WM_NCCREATE()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_SETCURSOR()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_WM_CANCELMODE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr wchar_t splitter_class_name[] = L"FrameworkSplitter";
constexpr int max_lines = 16;
constexpr int max_dynamic_lines = 2;
using framework::splitter_border;
using framework::splitter_gap;

LPCTSTR SplitterClassName()
{
    // Without a background: panes and bars cover everything.
    WNDCLASS description{};
    description.style = CS_DBLCLKS;
    description.lpfnWndProc = ::DefWindowProc;
    description.hInstance = AfxGetInstanceHandle();
    description.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    description.lpszClassName = splitter_class_name;
    return AfxRegisterClass(&description) ? splitter_class_name : nullptr;
}
} // namespace

CSplitterWnd::CSplitterWnd()
    : m_dynamicViewClass(nullptr),
      m_maxRows(0),
      m_maxColumns(0),
      m_rows(0),
      m_columns(0),
      m_hasHorizontal(false),
      m_hasVertical(false),
      m_tracking(false)
{
}

CSplitterWnd::~CSplitterWnd() = default;

BOOL CSplitterWnd::Create(CWnd * pParentWnd, int nMaxRows, int nMaxCols, SIZE sizeMin, CCreateContext * pContext,
                          DWORD dwStyle, UINT nID)
{
    ASSERT(pContext != nullptr && (dwStyle & SPLS_DYNAMIC_SPLIT) != 0);
    if (pContext == nullptr || nMaxRows < 1 || nMaxRows > max_dynamic_lines || nMaxCols < 1 ||
        nMaxCols > max_dynamic_lines)
        return FALSE;
    m_maxRows = nMaxRows;
    m_maxColumns = nMaxCols;
    m_rows = 1;
    m_columns = 1;
    m_dynamicViewClass = pContext->m_pNewViewClass;
    if (!CreateFrame(pParentWnd, sizeMin, dwStyle, nID))
        return FALSE;
    WindowGuard const guard(this);
    if (!CreateView(0, 0, m_dynamicViewClass, sizeMin, pContext))
    {
        if (guard.Alive())
            DestroyWindow();
        return FALSE;
    }
    return guard.Alive();
}

BOOL CSplitterWnd::CreateStatic(CWnd * pParentWnd, int nRows, int nCols, DWORD dwStyle, UINT nID)
{
    ASSERT((dwStyle & SPLS_DYNAMIC_SPLIT) == 0);
    if (nRows < 1 || nRows > max_lines || nCols < 1 || nCols > max_lines)
        return FALSE;
    m_maxRows = m_rows = nRows;
    m_maxColumns = m_columns = nCols;
    return CreateFrame(pParentWnd, CSize(0, 0), dwStyle, nID);
}

bool CSplitterWnd::CreateFrame(CWnd * pParentWnd, SIZE minimum, DWORD dwStyle, UINT nID)
{
    ASSERT(pParentWnd != nullptr && m_hWnd == nullptr);
    m_rowLines.assign(static_cast<size_t>(m_maxRows), {minimum.cy, minimum.cy, 0});
    m_columnLines.assign(static_cast<size_t>(m_maxColumns), {minimum.cx, minimum.cx, 0});
    m_hasHorizontal = false;
    m_hasVertical = false;
    m_tracking = false;
    DWORD const ownStyle = dwStyle & ~static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL | WS_BORDER);
    if (!CreateEx(0, SplitterClassName(), nullptr, ownStyle, 0, 0, 0, 0, pParentWnd->m_hWnd,
                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), nullptr))
        return false;
    SetScrollStyle(dwStyle);
    return true;
}

BOOL CSplitterWnd::OnNcCreate(LPCREATESTRUCT lpcs)
{
    if (!CWnd::OnNcCreate(lpcs))
        return FALSE;
    // The panes have edges of their own.
    if (CWnd * const parent = GetParent())
        parent->ModifyStyleEx(WS_EX_CLIENTEDGE, 0, SWP_DRAWFRAME);
    return TRUE;
}

BOOL CSplitterWnd::CreateScrollBarCtrl(DWORD dwStyle, UINT nID)
{
    HWND const bar =
        ::CreateWindow(L"SCROLLBAR", nullptr, dwStyle | WS_VISIBLE | WS_CHILD, 0, 0, 1, 1, m_hWnd,
                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), AfxGetInstanceHandle(), nullptr);
    return bar != nullptr;
}

BOOL CSplitterWnd::CreateView(int row, int col, CRuntimeClass * pViewClass, SIZE sizeInit, CCreateContext * pContext)
{
    ASSERT(pViewClass != nullptr && pViewClass->IsDerivedFrom(RUNTIME_CLASS(CWnd)));
    if (pViewClass == nullptr || row < 0 || row >= m_rows || col < 0 || col >= m_columns ||
        GetPane(row, col) != nullptr)
        return FALSE;
    m_columnLines[static_cast<size_t>(col)].ideal = sizeInit.cx;
    m_rowLines[static_cast<size_t>(row)].ideal = sizeInit.cy;

    CCreateContext own;
    bool const update = pContext == nullptr;
    if (pContext == nullptr)
    {
        // As the active pane is.
        if (auto * const active = DYNAMIC_DOWNCAST(CView, GetActivePane()))
        {
            own.m_pLastView = active;
            own.m_pCurrentDoc = active->GetDocument();
            if (own.m_pCurrentDoc != nullptr)
                own.m_pNewDocTemplate = own.m_pCurrentDoc->GetDocTemplate();
        }
        own.m_pNewViewClass = pViewClass;
        pContext = &own;
    }
    auto * const pane = DYNAMIC_DOWNCAST(CWnd, pViewClass->CreateObject());
    if (pane == nullptr)
        return FALSE;
    ASSERT(pane->m_hWnd == nullptr);
    WindowGuard const guard(this);
    if (!pane->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW & ~static_cast<DWORD>(WS_BORDER),
                      CRect(CPoint(0, 0), sizeInit), this, static_cast<UINT>(IdFromRowCol(row, col)), pContext))
        return FALSE; // the pane has deleted itself
    if (!guard.Alive() || GetPane(row, col) != pane)
        return FALSE;
    if (update)
        pane->SendMessage(WM_INITIALUPDATE);
    return guard.Alive() && GetPane(row, col) == pane;
}

int CSplitterWnd::GetRowCount() const
{
    return m_rows;
}

int CSplitterWnd::GetColumnCount() const
{
    return m_columns;
}

void CSplitterWnd::GetRowInfo(int row, int & cyCur, int & cyMin) const
{
    SplitterLine const & line = m_rowLines.at(static_cast<size_t>(row));
    cyCur = line.current;
    cyMin = line.minimum;
}

void CSplitterWnd::SetRowInfo(int row, int cyIdeal, int cyMin)
{
    SplitterLine & line = m_rowLines.at(static_cast<size_t>(row));
    line.ideal = cyIdeal;
    line.minimum = cyMin;
}

void CSplitterWnd::GetColumnInfo(int col, int & cxCur, int & cxMin) const
{
    SplitterLine const & line = m_columnLines.at(static_cast<size_t>(col));
    cxCur = line.current;
    cxMin = line.minimum;
}

void CSplitterWnd::SetColumnInfo(int col, int cxIdeal, int cxMin)
{
    SplitterLine & line = m_columnLines.at(static_cast<size_t>(col));
    line.ideal = cxIdeal;
    line.minimum = cxMin;
}

int CSplitterWnd::IdFromRowCol(int row, int col) const
{
    return AFX_IDW_PANE_FIRST + row * max_lines + col;
}

CWnd * CSplitterWnd::GetPane(int row, int col) const
{
    if (m_hWnd == nullptr || row < 0 || row >= m_rows || col < 0 || col >= m_columns)
        return nullptr;
    HWND const pane = ::GetDlgItem(m_hWnd, IdFromRowCol(row, col));
    return pane != nullptr ? FromHandle(pane) : nullptr;
}

BOOL CSplitterWnd::IsChildPane(CWnd * pWnd, int * pRow, int * pCol)
{
    if (pWnd == nullptr || pWnd->m_hWnd == nullptr || ::GetParent(pWnd->m_hWnd) != m_hWnd)
        return FALSE;
    int const id = static_cast<WORD>(pWnd->GetDlgCtrlID());
    int const row = (id - AFX_IDW_PANE_FIRST) / max_lines;
    int const column = (id - AFX_IDW_PANE_FIRST) % max_lines;
    bool const inside = id >= AFX_IDW_PANE_FIRST && row < m_rows && column < m_columns;
    if (pRow != nullptr)
        *pRow = inside ? row : -1;
    if (pCol != nullptr)
        *pCol = inside ? column : -1;
    return inside;
}

CWnd * CSplitterWnd::GetActivePane(int * pRow, int * pCol)
{
    CFrameWnd * const frame = GetParentFrame();
    CWnd * pane = frame != nullptr ? frame->GetActiveView() : nullptr;
    if (pane == nullptr)
        pane = GetFocus();
    return pane != nullptr && IsChildPane(pane, pRow, pCol) ? pane : nullptr;
}

void CSplitterWnd::SetActivePane(int row, int col, CWnd * pWnd)
{
    CWnd * const pane = pWnd != nullptr ? pWnd : GetPane(row, col);
    if (pane == nullptr)
        return;
    CFrameWnd * const frame = GetParentFrame();
    if (frame != nullptr && pane->IsKindOf(RUNTIME_CLASS(CView)))
        frame->SetActiveView(static_cast<CView *>(pane));
    else
        pane->SetFocus();
}

BOOL CSplitterWnd::CanActivateNext(BOOL)
{
    return GetActivePane() != nullptr && (m_rows > 1 || m_columns > 1);
}

void CSplitterWnd::ActivateNext(BOOL bPrev)
{
    int row = 0;
    int column = 0;
    if (GetActivePane(&row, &column) == nullptr)
        return;
    int const count = m_rows * m_columns;
    int const place = (row * m_columns + column + (bPrev ? count - 1 : 1)) % count;
    SetActivePane(place / m_columns, place % m_columns);
}

void CSplitterWnd::DeleteView(int row, int col)
{
    CWnd * const pane = GetPane(row, col);
    if (pane == nullptr)
        return;
    WindowGuard const guard(pane);
    if (GetActivePane() == pane)
        ActivateNext(FALSE);
    if (guard.Alive())
        pane->DestroyWindow();
}

/// What is left of a line that is split, or -1 if one of the two would be too small.
int CSplitterWnd::SplitRest(SplitterLine const & before, SplitterLine const & behind, int size)
{
    int const rest = before.current - size - splitter_gap;
    return size < before.minimum || rest < behind.minimum ? -1 : rest;
}

BOOL CSplitterWnd::SplitRow(int cyBefore)
{
    return Split(true, cyBefore);
}

BOOL CSplitterWnd::SplitColumn(int cxBefore)
{
    return Split(false, cxBefore);
}

bool CSplitterWnd::Split(bool rows, int before)
{
    int & count = rows ? m_rows : m_columns;
    std::vector<SplitterLine> & lines = rows ? m_rowLines : m_columnLines;
    ASSERT((GetStyle() & SPLS_DYNAMIC_SPLIT) != 0);
    if (count >= static_cast<int>(lines.size()))
        return false;
    before -= splitter_border;
    int const line = count;
    auto const at = static_cast<size_t>(line);
    int const rest = SplitRest(lines[at - 1], lines[at], before);
    if (rest < 0)
        return false;
    // The scroll bar comes first, so that the new views find it.
    bool const bars = rows ? m_hasVertical : m_hasHorizontal;
    if (bars && !CreateScrollBarCtrl(rows ? SBS_VERT : SBS_HORZ, static_cast<UINT>(ScrollBarId(rows, line))))
        return false;
    WindowGuard const guard(this);
    int const saved = lines[at - 1].ideal;
    ++count;
    int const across = rows ? m_columns : m_rows;
    for (int other = 0; other < across; ++other)
    {
        int const extent = (rows ? m_columnLines : m_rowLines)[static_cast<size_t>(other)].current;
        int const kept = (rows ? m_columnLines : m_rowLines)[static_cast<size_t>(other)].ideal;
        bool const made = rows ? CreateView(line, other, m_dynamicViewClass, CSize(extent, rest), nullptr)
                               : CreateView(other, line, m_dynamicViewClass, CSize(rest, extent), nullptr);
        if (!guard.Alive())
            return false;
        (rows ? m_columnLines : m_rowLines)[static_cast<size_t>(other)].ideal = kept;
        if (made)
            continue;
        while (--other >= 0 && guard.Alive())
            rows ? DeleteView(line, other) : DeleteView(other, line);
        if (!guard.Alive())
            return false;
        if (HWND const bar = bars ? ::GetDlgItem(m_hWnd, ScrollBarId(rows, line)) : nullptr)
            ::DestroyWindow(bar);
        lines[at - 1].ideal = saved;
        --count;
        return false;
    }
    lines[at - 1].ideal = before;
    lines[at].ideal = rest;
    RecalcLayout();
    return true;
}

void CSplitterWnd::DeleteRow(int rowDelete)
{
    Delete(true, rowDelete);
}

void CSplitterWnd::DeleteColumn(int colDelete)
{
    Delete(false, colDelete);
}

void CSplitterWnd::Delete(bool rows, int line)
{
    int & count = rows ? m_rows : m_columns;
    int const across = rows ? m_columns : m_rows;
    if (count < 2 || line < 0 || line >= count)
        return;
    WindowGuard const guard(this);
    int activeRow = 0;
    int activeColumn = 0;
    if (GetActivePane(&activeRow, &activeColumn) != nullptr)
    {
        int & active = rows ? activeRow : activeColumn;
        if (active == line)
        {
            active = (active + 1) % count;
            SetActivePane(activeRow, activeColumn);
            if (!guard.Alive())
                return;
        }
    }
    bool const bars = rows ? m_hasVertical : m_hasHorizontal;
    if (HWND const bar = bars ? ::GetDlgItem(m_hWnd, ScrollBarId(rows, line)) : nullptr)
        ::DestroyWindow(bar);
    for (int other = 0; other < across; ++other)
    {
        rows ? DeleteView(line, other) : DeleteView(other, line);
        if (!guard.Alive())
            return;
    }
    for (int next = line + 1; next < count; ++next)
    {
        for (int other = 0; other < across; ++other)
        {
            CWnd * const pane = rows ? GetPane(next, other) : GetPane(other, next);
            if (pane != nullptr)
                pane->SetDlgCtrlID(rows ? IdFromRowCol(next - 1, other) : IdFromRowCol(other, next - 1));
        }
        if (HWND const bar = bars ? ::GetDlgItem(m_hWnd, ScrollBarId(rows, next)) : nullptr)
            ::SetWindowLongPtr(bar, GWLP_ID, ScrollBarId(rows, next - 1));
    }
    --count;
    RecalcLayout();
}

DWORD CSplitterWnd::GetScrollStyle() const
{
    return (m_hasHorizontal ? WS_HSCROLL : 0U) | (m_hasVertical ? WS_VSCROLL : 0U);
}

int CSplitterWnd::ScrollBarId(bool rows, int line) const
{
    return (rows ? AFX_IDW_VSCROLL_FIRST : AFX_IDW_HSCROLL_FIRST) + line;
}

void CSplitterWnd::SetScrollStyle(DWORD dwStyle)
{
    dwStyle &= WS_HSCROLL | WS_VSCROLL;
    if (GetScrollStyle() == dwStyle)
        return;
    m_hasHorizontal = (dwStyle & WS_HSCROLL) != 0;
    m_hasVertical = (dwStyle & WS_VSCROLL) != 0;
    auto const show = [this](int id, DWORD style, bool visible) {
        HWND bar = ::GetDlgItem(m_hWnd, id);
        if (bar == nullptr && visible)
        {
            if (!CreateScrollBarCtrl(style, static_cast<UINT>(id)))
                AfxThrowResourceException();
            bar = ::GetDlgItem(m_hWnd, id);
        }
        if (bar != nullptr)
            ::ShowWindow(bar, visible ? SW_SHOW : SW_HIDE);
    };
    for (int column = 0; column < m_columns; ++column)
        show(ScrollBarId(false, column), SBS_HORZ, m_hasHorizontal);
    for (int row = 0; row < m_rows; ++row)
        show(ScrollBarId(true, row), SBS_VERT, m_hasVertical);
    show(AFX_IDW_SIZE_BOX, SBS_SIZEBOX | WS_DISABLED, m_hasHorizontal && m_hasVertical);
}

CRect CSplitterWnd::InnerRect() const
{
    CRect rect;
    GetClientRect(&rect);
    rect.DeflateRect(splitter_border, splitter_border);
    return rect;
}

CRect CSplitterWnd::PaneArea() const
{
    CRect rect = InnerRect();
    if (m_hasVertical)
        rect.right -= ::GetSystemMetrics(SM_CXVSCROLL);
    if (m_hasHorizontal)
        rect.bottom -= ::GetSystemMetrics(SM_CYHSCROLL);
    return rect;
}

/// Each line gets its ideal size as far as there is room, the last one the rest.
void CSplitterWnd::LayOut(std::vector<SplitterLine> & lines, int count, int size)
{
    int left = std::max(size, 0);
    for (int at = 0; at < count; ++at)
    {
        SplitterLine & line = lines[static_cast<size_t>(at)];
        if (line.ideal < line.minimum)
            line.ideal = 0;
        line.current = at == count - 1 ? left : std::min(std::max(line.ideal, 0), left);
        if (at == count - 1 && line.current < line.minimum)
            line.current = 0;
        left = std::max(left - line.current - splitter_gap, 0);
    }
}

void CSplitterWnd::PlaceScrollBars(bool rows)
{
    CRect const inner = InnerRect();
    CRect const area = PaneArea();
    std::vector<SplitterLine> const & lines = rows ? m_rowLines : m_columnLines;
    int const count = rows ? m_rows : m_columns;
    int place = rows ? inner.top : inner.left;
    for (int line = 0; line < count; ++line)
    {
        int extent = lines[static_cast<size_t>(line)].current;
        int start = place;
        place += extent + splitter_gap;
        if (line == 0 && count < static_cast<int>(lines.size()))
        {
            start += splitter_gap; // the box that splits
            extent -= splitter_gap;
        }
        HWND const bar = ::GetDlgItem(m_hWnd, ScrollBarId(rows, line));
        if (bar == nullptr)
            continue;
        if (rows)
        {
            ::SetWindowPos(bar, nullptr, area.right, start, inner.right - area.right, std::max(extent, 0),
                           SWP_NOACTIVATE | SWP_NOZORDER);
        }
        else
        {
            ::SetWindowPos(bar, nullptr, start, area.bottom, std::max(extent, 0), inner.bottom - area.bottom,
                           SWP_NOACTIVATE | SWP_NOZORDER);
        }
    }
}

void CSplitterWnd::RecalcLayout()
{
    WindowGuard const guard(this);
    CRect const inner = InnerRect();
    CRect const area = PaneArea();
    LayOut(m_columnLines, m_columns, area.Width());
    LayOut(m_rowLines, m_rows, area.Height());
    if (m_hasHorizontal)
        PlaceScrollBars(false);
    if (m_hasVertical)
        PlaceScrollBars(true);
    HWND const box = m_hasHorizontal && m_hasVertical ? ::GetDlgItem(m_hWnd, AFX_IDW_SIZE_BOX) : nullptr;
    if (box != nullptr)
    {
        ::SetWindowPos(box, nullptr, area.right, area.bottom, inner.right - area.right, inner.bottom - area.bottom,
                       SWP_NOACTIVATE | SWP_NOZORDER);
    }

    HDWP moved = ::BeginDeferWindowPos(m_rows * m_columns);
    int x = inner.left;
    for (int column = 0; column < m_columns; ++column)
    {
        int const width = m_columnLines[static_cast<size_t>(column)].current;
        int y = inner.top;
        for (int row = 0; row < m_rows; ++row)
        {
            int const height = m_rowLines[static_cast<size_t>(row)].current;
            HWND const pane = ::GetDlgItem(m_hWnd, IdFromRowCol(row, column));
            if (pane != nullptr && moved != nullptr)
                moved = ::DeferWindowPos(moved, pane, nullptr, x, y, width, height, SWP_NOACTIVATE | SWP_NOZORDER);
            y += height + splitter_gap;
        }
        x += width + splitter_gap;
    }
    if (moved != nullptr)
        ::EndDeferWindowPos(moved);
    if (guard.Alive())
        ::RedrawWindow(m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
}

void CSplitterWnd::OnSize(UINT nType, int cx, int cy)
{
    WindowGuard const guard(this);
    if (nType != SIZE_MINIMIZED && cx > 0 && cy > 0)
        RecalcLayout();
    if (guard.Alive())
        CWnd::OnSize(nType, cx, cy);
}

BOOL CSplitterWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    WindowGuard const guard(this);
    if (CWnd::OnCommand(wParam, lParam) || !guard.Alive())
        return TRUE;
    CFrameWnd * const frame = GetParentFrame();
    return frame != nullptr && frame->SendMessage(WM_COMMAND, wParam, lParam) != 0;
}

BOOL CSplitterWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    WindowGuard const guard(this);
    if (CWnd::OnNotify(wParam, lParam, pResult) || !guard.Alive())
        return TRUE;
    CFrameWnd * const frame = GetParentFrame();
    if (frame == nullptr)
        return FALSE;
    *pResult = frame->SendMessage(WM_NOTIFY, wParam, lParam);
    return TRUE;
}
