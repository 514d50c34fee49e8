#include "list/combo/DropWnd.h"

#include "colours/ControlColors.h"
#include "frame/GraphicsScopes.h"
#include "frame/WindowAlive.h"
#include "layout/WindowDpi.h"
#include "list/combo/AdvComboBox.h"
#include "list/combo/DropListBox.h"
#include "list/combo/DropPlacement.h"
#include "list/combo/DropScrollBar.h"
#include "list/VisualStyles.h"

namespace XListCtrl
{
namespace
{
constexpr int font_height = 12;
constexpr UINT scroll_id = 100;
constexpr UINT list_id = 101;

// Parts and states of the theme class "SCROLLBAR".
constexpr int theme_lower_track = 6;
constexpr int theme_size_box = 10;
constexpr int theme_state = 1;

CRect WorkAreaAt(CPoint point)
{
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    if (::GetMonitorInfoW(::MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST), &info))
        return info.rcWork;
    return CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
}

/// The size grip of a set that the system knows nothing of.
void DrawGrip(CDC & dc, CRect const & grip, ControlColors const & colors)
{
    constexpr int first_line = 2;
    constexpr int line_distance = 4;
    constexpr int line_count = 3;
    dc.FillSolidRect(grip, colors.face);
    PenScope const pen(dc, colors.buttonText);
    for (int line = 0; line < line_count; ++line)
    {
        int const length = first_line + line * line_distance;
        dc.MoveTo(grip.right - 1 - length, grip.bottom - 1);
        dc.LineTo(grip.right, grip.bottom - 2 - length);
    }
}
} // namespace

BEGIN_MESSAGE_MAP(CDropWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_LBUTTONUP()
    ON_WM_SHOWWINDOW()
    ON_WM_ACTIVATEAPP()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_ADVCOMBO_SET_CAPTURE, &CDropWnd::OnSetCapture)
    ON_MESSAGE(WM_ADVCOMBO_RELEASE_CAPTURE, &CDropWnd::OnReleaseCapture)
END_MESSAGE_MAP()

CDropWnd::CDropWnd(CAdvComboBox * combo, std::list<combo_item> const & items, DWORD comboFlags)
    : m_combo(combo),
      m_font(std::make_unique<CFont>()),
      m_items(items),
      m_iter(m_items.end()),
      m_comboFlags(comboFlags)
{
    m_font->CreateFont(font_height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                       CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, L"MS Sans Serif");
}

CDropWnd::~CDropWnd()
{
    if (m_hWnd != nullptr)
        CDropWnd::DestroyWindow();
}

BOOL CDropWnd::PreCreateWindow(CREATESTRUCT & create)
{
    return CWnd::PreCreateWindow(create);
}

BOOL CDropWnd::DestroyWindow()
{
    ::ReleaseCapture();
    if (m_list != nullptr && m_list->m_hWnd != nullptr)
        m_list->DestroyWindow();
    return CWnd::DestroyWindow();
}

int CDropWnd::OnCreate(LPCREATESTRUCT create)
{
    WindowAlive const watch(*this, m_life);
    if (CWnd::OnCreate(create) == -1)
        return -1;
    ModifyStyleEx(0, WS_EX_TOOLWINDOW);
    SetWindowPos(&wndTopMost, create->x, create->y, create->cx, create->cy, SWP_SHOWWINDOW);
    if (!watch.IsAlive() || !CreateChildren(*create))
        return -1;

    CRect const place = Place(*create);
    if (!watch.IsAlive())
        return -1;
    int const growth = resolution::Scaled(drop_growth, m_combo->GetDpi());
    m_maxSize = {place.Width() + growth, place.Height() + growth};
    SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_SHOWWINDOW | SWP_NOZORDER);

    CRect client;
    GetClientRect(client);
    m_rcGrip = CRect(CPoint(client.BottomRight() - ArrowSize()), ArrowSize());

    m_list->AddListItems(m_items);
    m_scroll->SetListBox(m_list.get());
    m_scroll->ShowScrollBar();
    SetCapture(); // whoever had it hears of it
    return watch.IsAlive() ? 0 : -1;
}

CSize CDropWnd::ArrowSize() const
{
    UINT const dpi = m_combo->GetDpi();
    return CSize(window_dpi::Metric(SM_CXVSCROLL, dpi), window_dpi::Metric(SM_CYVSCROLL, dpi));
}

bool CDropWnd::CreateChildren(CREATESTRUCT const & create)
{
    CSize const arrow = ArrowSize();
    WindowAlive const watch(*this, m_life);

    GetClientRect(m_rcScroll);
    m_rcScroll.left = m_rcScroll.right - arrow.cx;
    m_rcScroll.bottom -= arrow.cy;
    m_scroll = std::make_unique<CDropScrollBar>();
    if (!m_scroll->Create(WS_CHILD | SBS_VERT | SBS_RIGHTALIGN, m_rcScroll, this, scroll_id))
        return false;

    m_rcList = CRect(create.x, create.y, create.x + create.cx - arrow.cx, create.y + create.cy);
    ScreenToClient(m_rcList);
    m_list = std::make_unique<CDropListBox>(m_combo, m_scroll.get());
    bool const created = m_list->Create(WS_CHILD | LBS_NOINTEGRALHEIGHT, m_rcList, this, list_id) != FALSE;
    if (!watch.IsAlive() || !created)
        return false;
    m_list->SetComboFlags(m_comboFlags);
    m_list->ShowWindow(SW_SHOW);
    return watch.IsAlive();
}

CRect CDropWnd::Place(CREATESTRUCT const & create)
{
    CRect const work = WorkAreaAt(CPoint(create.x, create.y));
    CRect combo;
    m_combo->GetWindowRect(combo);
    WindowAlive const watch(*this, m_life);

    DropRequest request;
    request.widestText = m_list->GetWidestText(m_items);
    if (!watch.IsAlive())
        return CRect();
    request.x = create.x;
    request.y = create.y;
    request.cx = create.cx;
    request.comboWidth = combo.Width();
    request.comboHeight = combo.Height();
    request.workRight = work.right;
    request.workBottom = work.bottom;
    request.itemCount = static_cast<int>(m_items.size());
    request.itemHeight = m_list->GetItemHeight(0);
    request.maxVisible = m_combo->GetMaxVisible();
    request.minVisible = m_combo->GetMinVisible();
    request.listWidth = m_rcList.Width();
    request.scrollWidth = m_rcScroll.Width();
    request.arrowHeight = ArrowSize().cy;
    request.dpi = m_combo->GetDpi();
    DropPlace const place = PlaceDrop(request);
    return CRect(CPoint(place.x, place.y), CSize(place.width, place.height));
}

void CDropWnd::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    CSize const arrow = ArrowSize();
    m_rcList.SetRect(0, 0, cx - arrow.cx, cy);
    m_rcList.DeflateRect(1, 1);
    m_rcScroll.SetRect(cx - arrow.cx, 0, cx, cy - arrow.cy);
    m_rcScroll.DeflateRect(1, 1);
    m_rcGrip.SetRect(cx - arrow.cx, cy - arrow.cy, cx, cy);
    m_rcGrip.DeflateRect(1, 1);
    if (m_list == nullptr || m_list->m_hWnd == nullptr || m_scroll->m_hWnd == nullptr)
        return;
    m_list->MoveWindow(m_rcList);
    m_scroll->MoveWindow(m_rcScroll);
    {
        CClientDC dc(this);
        DrawFrame(dc);
    }
    InvalidateRect(m_rcGrip);

    SCROLLINFO info = {};
    if (m_scroll->GetScrollInfo(&info, SIF_ALL))
    {
        info.nPage = static_cast<UINT>(m_list->GetBottomIndex() - m_list->GetTopIndex());
        m_scroll->SetScrollInfo(&info);
    }
}

void CDropWnd::DrawFrame(CDC & dc)
{
    CRect frame = m_rcList;
    frame.InflateRect(1, 1);
    frame.right = m_rcScroll.right + 1;
    COLORREF const color = control_colors::Of(m_combo->m_hWnd).dropFrame;
    dc.Draw3dRect(frame, color, color);
}

void CDropWnd::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);

    ControlColors const colors = control_colors::Of(m_combo->m_hWnd);
    {
        // What lies between list, scroll bar, grip and frame.
        ContextStateScope const saved(dc);
        for (CRect const & covered : {m_rcList, m_rcScroll, m_rcGrip})
            dc.ExcludeClipRect(covered);
        dc.FillSolidRect(client, colors.face);
    }
    DrawFrame(dc);

    if (colors.adapts)
    {
        DrawGrip(dc, m_rcGrip, colors);
        return;
    }
    CVisualStyles const & styles = VisualStyles();
    if (styles.IsStyledPaintingOn())
    {
        HTHEME const theme = styles.OpenThemeData(m_hWnd, L"SCROLLBAR");
        styles.DrawThemeBackground(theme, dc, theme_lower_track, theme_state, m_rcGrip, nullptr);
        styles.DrawThemeBackground(theme, dc, theme_size_box, theme_state, m_rcGrip, nullptr);
        styles.CloseThemeData(theme);
    }
    else
    {
        dc.DrawFrameControl(m_rcGrip, DFC_SCROLL, DFCS_SCROLLSIZEGRIP);
    }
}

void CDropWnd::OnLButtonDown(UINT flags, CPoint point)
{
    CRect client;
    GetClientRect(client);
    if (m_rcGrip.PtInRect(point))
    {
        m_resizing = true;
        m_dragStart = point;
        m_dragDx = client.Width() - point.x;
        m_dragDy = client.Height() - point.y;
        return;
    }
    if (!client.PtInRect(point))
    {
        // Hosts expect that a press on the combo's own window closes too, and that the combo gets the point as it
        // stands, counted from this window.
        WindowAlive const watch(*this, m_life);
        HWND const combo = m_combo->m_hWnd;
        ::ReleaseCapture();
        ::PostMessage(combo, WM_ADVCOMBO_CLOSE_DROP, 0, 0);
        ::SendMessage(combo, WM_LBUTTONDOWN, flags, MAKELPARAM(point.x, point.y));
        if (!watch.IsAlive())
            return;
    }
    CWnd::OnLButtonDown(flags, point);
}

void CDropWnd::OnMouseMove(UINT flags, CPoint point)
{
    if (m_resizing)
    {
        ResizeByGrip(point);
        return;
    }
    WindowAlive const watch(*this, m_life);
    HCURSOR const arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    if (m_rcList.PtInRect(point))
    {
        ::SetCursor(arrow);
        HWND const list = m_list->m_hWnd;
        HWND const scroll = m_scroll->m_hWnd;
        ::ReleaseCapture();
        ::SendMessage(scroll, WM_ADVCOMBO_RELEASE_CAPTURE, 0, 0);
        ::SetFocus(list);
        ::SendMessage(list, WM_ADVCOMBO_SET_CAPTURE, 0, 0);
    }
    else if (m_rcScroll.PtInRect(point))
    {
        ::SetCursor(arrow);
        HWND const list = m_list->m_hWnd;
        HWND const scroll = m_scroll->m_hWnd;
        ::SetFocus(scroll);
        ::ReleaseCapture();
        ::SendMessage(list, WM_ADVCOMBO_RELEASE_CAPTURE, 0, 0);
        ::SendMessage(scroll, WM_ADVCOMBO_SET_CAPTURE, 0, 0);
    }
    else
    {
        ::SetCursor(m_rcGrip.PtInRect(point) ? ::LoadCursorW(nullptr, IDC_SIZENWSE) : arrow);
        SetCapture();
        if (watch.IsAlive())
            CWnd::OnMouseMove(flags, point);
    }
}

void CDropWnd::ResizeByGrip(CPoint point)
{
    CRect window;
    GetWindowRect(window);
    CRect combo;
    m_combo->GetWindowRect(combo);
    GripRequest request;
    request.left = window.left;
    request.top = window.top;
    request.width = point.x + m_dragDx;
    request.height = point.y + m_dragDy;
    request.comboWidth = combo.Width();
    request.maxWidth = m_maxSize.width;
    request.maxHeight = m_maxSize.height;
    request.arrowWidth = ArrowSize().cx;
    request.arrowHeight = ArrowSize().cy;
    GripResult const size = SizeByGrip(request);
    MoveWindow(CRect(window.left, window.top, size.right, size.bottom));
}

void CDropWnd::OnLButtonUp(UINT flags, CPoint point)
{
    if (m_resizing)
    {
        m_resizing = false;
        ::LockWindowUpdate(nullptr);
        m_list->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
    CWnd::OnLButtonUp(flags, point);
}

void CDropWnd::OnActivateApp(BOOL active, DWORD thread)
{
    CWnd::OnActivateApp(active, thread);
    if (!active)
        ::PostMessage(m_combo->m_hWnd, WM_ADVCOMBO_CLOSE_DROP, 0, 0);
}

LRESULT CDropWnd::OnSetCapture(WPARAM, LPARAM)
{
    SetCapture();
    return 0;
}

LRESULT CDropWnd::OnReleaseCapture(WPARAM, LPARAM)
{
    ::ReleaseCapture();
    return 0;
}
} // namespace XListCtrl
