// CControlBar: its place at a side of the frame, its borders, its update in idle time, the frame's message for it.

#include <afxext.h>
#include <afxpriv.h>

#include <algorithm>

#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_TIMER()
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::HandleSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::HandleIdleUpdate)
    ON_MESSAGE(WM_INITIALUPDATE, &CControlBar::HandleInitialUpdate)
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr wchar_t bar_class_name[] = L"FrameworkControlBar";
constexpr int gripper_space = 7;         // what a gripper takes of the bar's length
constexpr int gripper_width = 3;         // and what is painted of it
constexpr UINT_PTR wait_timer = 0xE000;  // until the mouse rests on an item
constexpr UINT_PTR check_timer = 0xE001; // whether it still does
constexpr UINT wait_time = 300;
constexpr UINT check_time = 200;

// The bar whose item the frame tells of.
thread_local CControlBar const * g_flyByBar = nullptr;

CSize BorderSize()
{
    return CSize(2 * ::GetSystemMetrics(SM_CXBORDER), 2 * ::GetSystemMetrics(SM_CYBORDER));
}

bool IsMouseMove(UINT message)
{
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE || message == WM_LBUTTONUP || message == WM_NCLBUTTONUP;
}

bool IsMousePress(UINT message)
{
    return message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK;
}
} // namespace

CControlBar::CControlBar()
    : m_bAutoDelete(FALSE),
      m_pInPlaceOwner(nullptr),
      m_style(0),
      m_dockStyle(0),
      m_borders(6, 1, 6, 1),
      m_sizeShown(0, 0),
      m_count(0),
      m_alive(nullptr),
      m_delay(Delay::none),
      m_flyBy(-1),
      m_flyByWaiting(false)
{
}

CControlBar::~CControlBar()
{
    if (m_alive != nullptr)
        *m_alive = false;
    DestroyWindow();
}

void CControlBar::PostNcDestroy()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT & cs)
{
    if (cs.lpszClass == nullptr)
    {
        WNDCLASS description{};
        description.style = CS_DBLCLKS;
        description.lpfnWndProc = ::DefWindowProc;
        description.hInstance = AfxGetInstanceHandle();
        description.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
        description.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_BTNFACE + 1));
        description.lpszClassName = bar_class_name;
        if (!AfxRegisterClass(&description))
            return FALSE;
        cs.lpszClass = bar_class_name;
    }
    if (!CWnd::PreCreateWindow(cs))
        return FALSE;
    cs.style |= WS_CLIPSIBLINGS;
    return TRUE;
}

bool CControlBar::CreateNative(LPCTSTR className, DWORD style, CWnd * parent, UINT id)
{
    bool alive = true;
    m_alive = &alive;
    SetOwner(parent);
    BOOL const created = CWnd::Create(className, nullptr, style, CRect(0, 0, 0, 0), parent, id);
    if (!alive)
        return false;
    m_alive = nullptr;
    return created && m_hWnd != nullptr;
}

DWORD CControlBar::TakeStyles(DWORD dwStyle, UINT nID)
{
    m_style = dwStyle & CBRS_ALL;
    if (nID == AFX_IDW_TOOLBAR)
        m_style |= CBRS_HIDE_INPLACE;
    return (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
}

int CControlBar::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    if ((m_style & CBRS_TOOLTIPS) != 0)
        EnableToolTips();
    return 0;
}

void CControlBar::OnDestroy()
{
    if (m_flyBy != -1)
        ShowFlyBy(-1);
    CWnd::OnDestroy();
}

DWORD CControlBar::GetBarStyle()
{
    return m_style;
}

void CControlBar::SetBarStyle(DWORD dwStyle)
{
    dwStyle &= CBRS_ALL;
    DWORD const changed = m_style ^ dwStyle;
    if (changed == 0)
        return;
    m_style = dwStyle;
    if (m_hWnd == nullptr)
        return;
    if ((changed & CBRS_TOOLTIPS) != 0)
        EnableToolTips((dwStyle & CBRS_TOOLTIPS) != 0);
    if ((changed & (CBRS_BORDER_ANY | CBRS_BORDER_3D | CBRS_GRIPPER | CBRS_ORIENT_ANY)) != 0)
    {
        HWND const window = m_hWnd; // the object may end with what the window is told
        SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        ::InvalidateRect(window, nullptr, TRUE);
    }
}

CRect CControlBar::GetBorders() const
{
    return m_borders;
}

void CControlBar::SetBorders(int cxLeft, int cyTop, int cxRight, int cyBottom)
{
    m_borders.SetRect(cxLeft, cyTop, cxRight, cyBottom);
}

void CControlBar::SetBorders(LPCRECT lpRect)
{
    SetBorders(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

void CControlBar::SetInPlaceOwner(CWnd * pWnd)
{
    m_pInPlaceOwner = pWnd;
}

int CControlBar::GetCount() const
{
    return m_count;
}

void CControlBar::EnableDocking(DWORD dwDockStyle)
{
    m_dockStyle = dwDockStyle & (CBRS_ALIGN_ANY | CBRS_FLOAT_MULTI);
}

BOOL CControlBar::IsFloating() const
{
    return (m_style & CBRS_FLOATING) != 0;
}

CFrameWnd * CControlBar::GetDockingFrame() const
{
    return GetParentFrame();
}

CFrameWnd * CControlBar::TargetFrame() const
{
    CFrameWnd * const owner = DYNAMIC_DOWNCAST(CFrameWnd, GetOwner());
    return owner != nullptr ? owner : GetParentFrame();
}

// Layout

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    constexpr int as_long_as_the_frame = 32767;
    CSize size(0, 0);
    if (bStretch)
        (bHorz ? size.cx : size.cy) = as_long_as_the_frame;
    return size;
}

CSize CControlBar::CalcDynamicLayout(int, DWORD nMode)
{
    return CalcFixedLayout((nMode & LM_STRETCH) != 0, (nMode & LM_HORZ) != 0);
}

void CControlBar::CalcInsideRect(CRect & rect, BOOL bHorz) const
{
    CSize const border = BorderSize();
    if ((m_style & CBRS_BORDER_LEFT) != 0)
        rect.left += border.cx;
    if ((m_style & CBRS_BORDER_TOP) != 0)
        rect.top += border.cy;
    if ((m_style & CBRS_BORDER_RIGHT) != 0)
        rect.right -= border.cx;
    if ((m_style & CBRS_BORDER_BOTTOM) != 0)
        rect.bottom -= border.cy;
    int const gripper = (m_style & (CBRS_GRIPPER | CBRS_FLOATING)) == CBRS_GRIPPER ? gripper_space : 0;
    // The space turns with the bar.
    if (bHorz)
    {
        rect.DeflateRect(m_borders);
        rect.left += gripper;
    }
    else
    {
        rect.DeflateRect(m_borders.top, m_borders.left, m_borders.bottom, m_borders.right);
        rect.top += gripper;
    }
}

void CControlBar::Arrange(DWORD) {}

bool CControlBar::IsToBeVisible() const
{
    if (m_delay != Delay::none)
        return m_delay == Delay::show;
    return (GetStyle() & WS_VISIBLE) != 0;
}

void CControlBar::DelayShow(BOOL bShow)
{
    m_delay = Delay::none;
    bool const visible = (GetStyle() & WS_VISIBLE) != 0;
    if (bShow && !visible)
        m_delay = Delay::show;
    else if (!bShow && visible)
        m_delay = Delay::hide;
}

DWORD CControlBar::LayoutMode(bool stretch) const
{
    DWORD mode = stretch ? LM_STRETCH : 0;
    if ((m_style & CBRS_SIZE_DYNAMIC) != 0 && (m_style & CBRS_FLOATING) != 0)
        mode |= LM_HORZ | LM_MRUWIDTH;
    else if (IsHorizontal())
        mode |= LM_HORZ | LM_HORZDOCK;
    else
        mode |= LM_VERTDOCK;
    return mode;
}

LRESULT CControlBar::HandleSizeParent(WPARAM, LPARAM lParam)
{
    auto & layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS *>(lParam);
    bool const visible = IsToBeVisible();
    if (layout.hDWP != nullptr && m_delay != Delay::none)
    {
        UINT const show = visible ? SWP_SHOWWINDOW : SWP_HIDEWINDOW;
        m_delay = Delay::none;
        layout.hDWP = ::DeferWindowPos(layout.hDWP, m_hWnd, nullptr, 0, 0, 0, 0,
                                       show | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (!visible || (m_style & CBRS_ALIGN_ANY) == 0)
        return 0;
    WindowGuard const guard(this);
    DWORD const mode = LayoutMode(layout.bStretch);
    if (layout.hDWP != nullptr)
        Arrange(mode);
    CRect rect(layout.rect);
    CSize size = guard.Alive() ? CalcDynamicLayout(-1, mode) : CSize(0, 0);
    if (!guard.Alive())
        return 0;
    size.cx = std::min<LONG>(size.cx, std::max<LONG>(rect.Width(), 0));
    size.cy = std::min<LONG>(size.cy, std::max<LONG>(rect.Height(), 0));
    if (IsHorizontal())
    {
        layout.sizeTotal.cy += size.cy;
        layout.sizeTotal.cx = std::max(layout.sizeTotal.cx, size.cx);
        if ((m_style & CBRS_ALIGN_TOP) != 0)
            layout.rect.top += size.cy;
        else
        {
            rect.top = rect.bottom - size.cy;
            layout.rect.bottom -= size.cy;
        }
    }
    else
    {
        layout.sizeTotal.cx += size.cx;
        layout.sizeTotal.cy = std::max(layout.sizeTotal.cy, size.cy);
        if ((m_style & CBRS_ALIGN_LEFT) != 0)
            layout.rect.left += size.cx;
        else
        {
            rect.left = rect.right - size.cx;
            layout.rect.right -= size.cx;
        }
    }
    rect.right = rect.left + size.cx;
    rect.bottom = rect.top + size.cy;
    if (layout.hDWP == nullptr)
        return 0;
    CRect present;
    GetWindowRect(&present);
    ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(&present), 2);
    if (present != rect)
    {
        layout.hDWP = ::DeferWindowPos(layout.hDWP, m_hWnd, nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                                       SWP_NOACTIVATE | SWP_NOZORDER);
    }
    return 0;
}

// Messages

LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_NOTIFY:
    case WM_COMMAND:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        break;
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
    // What the bar itself does nothing about is its owner's.
    WindowGuard const guard(this);
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result) || !guard.Alive())
        return result;
    HWND const owner = framework::SafeHandle(GetOwner());
    return owner != nullptr ? ::SendMessage(owner, message, wParam, lParam) : 0;
}

BOOL CControlBar::PreTranslateMessage(MSG * pMsg)
{
    WindowGuard const guard(this);
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    if (!guard.Alive())
        return FALSE;
    FollowMouse(*pMsg);
    if (!guard.Alive() || pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST)
        return FALSE;
    // Keys of its controls are those of a dialog, once the frames' accelerators have had them.
    if (::GetWindow(m_hWnd, GW_CHILD) == nullptr)
        return FALSE;
    for (CFrameWnd * frame = GetParentFrame(); frame != nullptr; frame = frame->GetParentFrame())
    {
        if (frame->PreTranslateMessage(pMsg))
            return TRUE;
        if (!guard.Alive())
            return FALSE;
    }
    return IsDialogMessage(pMsg);
}

LRESULT CControlBar::HandleIdleUpdate(WPARAM wParam, LPARAM)
{
    WindowGuard const guard(this);
    // A bar that its parent doesn't lay out is shown or hidden here.
    if (m_delay != Delay::none)
    {
        bool const show = m_delay == Delay::show;
        m_delay = Delay::none;
        if (show != ((GetStyle() & WS_VISIBLE) != 0))
            ShowWindow(show ? SW_SHOWNA : SW_HIDE);
        if (!guard.Alive())
            return 0;
    }
    if ((GetStyle() & WS_VISIBLE) == 0)
        return 0;
    if (CFrameWnd * const target = TargetFrame())
        OnUpdateCmdUI(target, static_cast<BOOL>(wParam));
    return 0;
}

LRESULT CControlBar::HandleInitialUpdate(WPARAM, LPARAM)
{
    return HandleIdleUpdate(TRUE, 0);
}

// Painting

void CControlBar::OnPaint()
{
    CPaintDC dc(this);
    DoPaint(&dc);
}

void CControlBar::DoPaint(CDC * pDC)
{
    CRect rect;
    GetClientRect(&rect);
    m_sizeShown = rect.Size();
    DrawBorders(pDC, rect);
    DrawGripper(pDC, rect);
}

void CControlBar::OnSize(UINT nType, int cx, int cy)
{
    WindowGuard const guard(this);
    CWnd::OnSize(nType, cx, cy);
    if (!guard.Alive())
        return;
    // The borders at the far sides, where they were and where they are; all else stays as it is painted.
    CSize const border = BorderSize();
    auto const invalidate = [this, border](CSize size) {
        if ((m_style & CBRS_BORDER_RIGHT) != 0)
            InvalidateRect(CRect(size.cx - border.cx, 0, size.cx, size.cy));
        if ((m_style & CBRS_BORDER_BOTTOM) != 0)
            InvalidateRect(CRect(0, size.cy - border.cy, size.cx, size.cy));
    };
    if (m_sizeShown == CSize(0, 0) || m_sizeShown == CSize(cx, cy))
        return; // nothing is painted yet, or nothing elsewhere
    invalidate(m_sizeShown);
    invalidate(CSize(cx, cy));
}

void CControlBar::DrawBorders(CDC * pDC, CRect & rect)
{
    if ((m_style & CBRS_BORDER_ANY) == 0)
        return;
    CSize const line(::GetSystemMetrics(SM_CXBORDER), ::GetSystemMetrics(SM_CYBORDER));
    CSize const border = BorderSize();
    COLORREF const dark = ::GetSysColor(COLOR_BTNSHADOW);
    COLORREF const light = ::GetSysColor((m_style & CBRS_BORDER_3D) != 0 ? COLOR_BTNHIGHLIGHT : COLOR_BTNFACE);
    // Each border is two lines, the outer and the inner one; shadow first, as light falls from above.
    if ((m_style & CBRS_BORDER_TOP) != 0)
    {
        pDC->FillSolidRect(rect.left, rect.top, rect.Width(), line.cy, dark);
        pDC->FillSolidRect(rect.left, rect.top + line.cy, rect.Width(), line.cy, light);
        rect.top += border.cy;
    }
    if ((m_style & CBRS_BORDER_BOTTOM) != 0)
    {
        pDC->FillSolidRect(rect.left, rect.bottom - border.cy, rect.Width(), line.cy, dark);
        pDC->FillSolidRect(rect.left, rect.bottom - line.cy, rect.Width(), line.cy, light);
        rect.bottom -= border.cy;
    }
    if ((m_style & CBRS_BORDER_LEFT) != 0)
    {
        pDC->FillSolidRect(rect.left, rect.top, line.cx, rect.Height(), dark);
        pDC->FillSolidRect(rect.left + line.cx, rect.top, line.cx, rect.Height(), light);
        rect.left += border.cx;
    }
    if ((m_style & CBRS_BORDER_RIGHT) != 0)
    {
        pDC->FillSolidRect(rect.right - border.cx, rect.top, line.cx, rect.Height(), dark);
        pDC->FillSolidRect(rect.right - line.cx, rect.top, line.cx, rect.Height(), light);
        rect.right -= border.cx;
    }
}

void CControlBar::DrawGripper(CDC * pDC, const CRect & rect)
{
    if ((m_style & (CBRS_GRIPPER | CBRS_FLOATING)) != CBRS_GRIPPER)
        return;
    CRect bar(rect);
    if (IsHorizontal())
    {
        bar.DeflateRect(2, 2);
        bar.right = bar.left + gripper_width;
    }
    else
    {
        bar.DeflateRect(2, 2);
        bar.bottom = bar.top + gripper_width;
    }
    pDC->Draw3dRect(&bar, ::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetSysColor(COLOR_BTNSHADOW));
}

void CControlBar::CalcNonClient(NCCALCSIZE_PARAMS * params) const
{
    CRect rect(params->rgrc[0]);
    CalcInsideRect(rect, IsHorizontal());
    rect.right = std::max(rect.right, rect.left);
    rect.bottom = std::max(rect.bottom, rect.top);
    params->rgrc[0] = rect;
}

void CControlBar::PaintNonClient()
{
    CWindowDC dc(this);
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    CRect rect;
    GetWindowRect(&rect);
    client.OffsetRect(-rect.TopLeft());
    rect.OffsetRect(-rect.TopLeft());
    dc.ExcludeClipRect(&client);
    CRect background(rect);
    DrawBorders(&dc, background);
    dc.FillSolidRect(&background, ::GetSysColor(COLOR_BTNFACE));
    DrawGripper(&dc, background);
}

// The frame's message for the item below the mouse

INT_PTR CControlBar::HitAt(CPoint screen) const
{
    HWND const window = ::WindowFromPoint(screen);
    if (window == nullptr || (window != m_hWnd && !::IsChild(m_hWnd, window)))
        return -1;
    HWND const top = ::GetAncestor(m_hWnd, GA_ROOT);
    if (!::IsWindowEnabled(top))
        return -1;
    ::ScreenToClient(m_hWnd, &screen);
    return OnToolHitTest(screen, nullptr);
}

void CControlBar::FollowMouse(MSG const & message)
{
    bool const press = IsMousePress(message.message);
    if ((m_style & CBRS_FLYBY) == 0 || (!press && !IsMouseMove(message.message)))
        return;
    INT_PTR const hit = HitAt(message.pt); // the system may tell the cursor's place later than its message
    if (hit == m_flyBy)
    {
        if (hit == -1 && m_flyByWaiting)
        {
            m_flyByWaiting = false;
            KillTimer(wait_timer);
        }
        return;
    }
    // The first message waits for the mouse to rest; others follow it.
    if (hit == -1 || m_flyBy != -1 || press)
        ShowFlyBy(hit);
    else if (!m_flyByWaiting)
        m_flyByWaiting = SetTimer(wait_timer, wait_time, nullptr) != 0;
}

void CControlBar::ShowFlyBy(INT_PTR hit)
{
    if (m_flyByWaiting)
    {
        m_flyByWaiting = false;
        KillTimer(wait_timer);
    }
    if (hit == -1)
        KillTimer(check_timer);
    if (hit == m_flyBy)
        return;
    m_flyBy = hit;
    if (hit != -1)
        SetTimer(check_timer, check_time, nullptr);
    // The bar that the mouse has come to may have said so before the one that it has left: what that says stays.
    else if (g_flyByBar != this)
        return;
    g_flyByBar = hit != -1 ? this : nullptr;
    CFrameWnd * const frame = TargetFrame();
    if (frame != nullptr)
        frame->SendMessage(WM_SETMESSAGESTRING, hit == -1 ? AFX_IDS_IDLEMESSAGE : static_cast<WPARAM>(hit));
}

void CControlBar::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == wait_timer || nIDEvent == check_timer)
    {
        CPoint cursor;
        ::GetCursorPos(&cursor);
        INT_PTR const hit = HitAt(cursor);
        if (nIDEvent == wait_timer && hit == -1 && m_flyByWaiting)
        {
            // The system may still tell the place before the mouse's message: it is asked once more.
            KillTimer(wait_timer);
            SetTimer(check_timer, check_time, nullptr);
            return;
        }
        ShowFlyBy(hit);
    }
    else
        CWnd::OnTimer(nIDEvent);
}
