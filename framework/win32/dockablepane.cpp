// CDockablePane: a pane with a caption.

#include "afxcontrolbars.h"

#include <algorithm>

#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

using framework::DockHost;
using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CDockablePane, CPane)

// clang-format off
BEGIN_MESSAGE_MAP(CDockablePane, CPane)
    ON_WM_CONTEXTMENU()
    ON_WM_DESTROY()
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCPAINT()
    ON_WM_NCRBUTTONDOWN()
    ON_WM_NCRBUTTONUP()
    ON_MESSAGE(WM_SETTEXT, &CDockablePane::HandleSetText)
END_MESSAGE_MAP()
// clang-format on

BOOL CDockablePane::m_bDisableAnimation = TRUE;
BOOL CDockablePane::m_bHideInAutoHideMode = FALSE;
int CDockablePane::m_nSlideSteps = 1;

namespace
{
constexpr int least_contents = 24; // that a pane shows beside or below its caption, at 96 dpi

/// A cross, or a pin that stands or lies.
void DrawButton(CDC & dc, CRect const & button, UINT hit, bool lying, COLORREF colour)
{
    CPen pen(PS_SOLID, std::max(1, button.Width() / 12), colour);
    CPen * const formerPen = dc.SelectObject(&pen);
    CGdiObject * const formerBrush = dc.SelectStockObject(NULL_BRUSH);
    CRect box(button);
    int const inset = button.Width() / 4;
    box.DeflateRect(inset, inset);
    if (hit == HTCLOSE)
    {
        dc.MoveTo(box.left, box.top);
        dc.LineTo(box.right, box.bottom);
        dc.MoveTo(box.left, box.bottom - 1);
        dc.LineTo(box.right, box.top - 1);
    }
    else
    {
        CPoint const middle = box.CenterPoint();
        int const half = std::max(2, box.Width() / 4);
        if (lying)
        {
            dc.Rectangle(middle.x - half + 1, middle.y - half, box.right, middle.y + half + 1);
            dc.MoveTo(middle.x - half + 1, box.top);
            dc.LineTo(middle.x - half + 1, box.bottom);
            dc.MoveTo(box.left, middle.y);
            dc.LineTo(middle.x - half + 1, middle.y);
        }
        else
        {
            dc.Rectangle(middle.x - half, box.top, middle.x + half + 1, middle.y + half);
            dc.MoveTo(box.left, middle.y + half - 1);
            dc.LineTo(box.right, middle.y + half - 1);
            dc.MoveTo(middle.x, middle.y + half - 1);
            dc.LineTo(middle.x, box.bottom);
        }
    }
    dc.SelectObject(formerPen);
    dc.SelectObject(static_cast<CBrush *>(formerBrush));
}
} // namespace

CDockablePane::CDockablePane()
    : m_host(nullptr),
      m_dockId(0),
      m_tabbedPaneClass(nullptr),
      m_defaultSize(0, 0),
      m_captionShown(true),
      m_active(false)
{
}

CDockablePane::~CDockablePane()
{
    if (m_hWnd != nullptr)
        DestroyWindow();
    if (m_host != nullptr)
        m_host->Leave(*this, true);
}

BOOL CDockablePane::Create(LPCTSTR lpszCaption, CWnd * pParentWnd, const RECT & rect, BOOL bHasGripper, UINT nID,
                           DWORD dwStyle, DWORD dwTabbedStyle, DWORD dwControlBarStyle, CCreateContext * pContext)
{
    return CreateEx(0, lpszCaption, pParentWnd, rect, bHasGripper, nID, dwStyle, dwTabbedStyle, dwControlBarStyle,
                    pContext);
}

BOOL CDockablePane::Create(LPCTSTR lpszWindowName, CWnd * pParentWnd, CSize sizeDefault, BOOL bHasGripper, UINT nID,
                           DWORD dwStyle, DWORD dwTabbedStyle, DWORD dwControlBarStyle)
{
    return CreateEx(0, lpszWindowName, pParentWnd, CRect(CPoint(0, 0), sizeDefault), bHasGripper, nID, dwStyle,
                    dwTabbedStyle, dwControlBarStyle);
}

BOOL CDockablePane::CreateEx(DWORD dwStyleEx, LPCTSTR lpszCaption, CWnd * pParentWnd, const RECT & rect,
                             BOOL bHasGripper, UINT nID, DWORD dwStyle, DWORD, DWORD dwControlBarStyle,
                             CCreateContext * pContext)
{
    m_gripper = bHasGripper != FALSE;
    m_captionShown = true;
    m_defaultSize = CRect(rect).Size();
    if (!CBasePane::CreateEx(dwStyleEx, nullptr, lpszCaption, dwStyle | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, rect,
                             pParentWnd, nID, dwControlBarStyle, pContext))
        return FALSE;
    WindowGuard const guard(this);
    if (DockHost * const host = DockHost::Of(pParentWnd))
        host->Register(*this);
    return guard.Alive();
}

void CDockablePane::OnDestroy()
{
    if (m_host != nullptr)
        m_host->Leave(*this, true);
    CPane::OnDestroy();
}

// Placing

CDockablePane * CDockablePane::AttachToTabWnd(CDockablePane * pTabControlBarAttachTo, AFX_DOCK_METHOD, BOOL bSetActive,
                                              CDockablePane ** ppTabbedControlBar)
{
    ASSERT(pTabControlBarAttachTo != nullptr);
    if (ppTabbedControlBar != nullptr)
        *ppTabbedControlBar = nullptr;
    // Both have to be in one frame.
    CDockablePane * target = pTabControlBarAttachTo;
    if (auto * const tabbed = DYNAMIC_DOWNCAST(CBaseTabbedPane, target))
    {
        int number = 0;
        target = DYNAMIC_DOWNCAST(CDockablePane, tabbed->GetFirstVisibleTab(number));
    }
    if (target == nullptr || target == this || target->m_host == nullptr)
        return nullptr;
    WindowGuard const guard(this);
    if (m_host != target->m_host && !target->m_host->Register(*this))
        return nullptr;
    if (!guard.Alive() || !m_host->Attach(*this, *target, -1, bSetActive != FALSE) || !guard.Alive())
        return nullptr;
    if (ppTabbedControlBar != nullptr)
        *ppTabbedControlBar = GetParentTabbedPane();
    return this;
}

BOOL CDockablePane::DockToWindow(CDockablePane * pTargetWindow, DWORD dwAlignment, LPCRECT lpRect)
{
    ASSERT(pTargetWindow != nullptr);
    if (pTargetWindow == this || pTargetWindow->m_host == nullptr || m_hWnd == nullptr ||
        (dwAlignment & CBRS_ALIGN_ANY) == 0)
        return FALSE;
    WindowGuard const guard(this);
    if (m_host != pTargetWindow->m_host && !pTargetWindow->m_host->Register(*this))
        return FALSE;
    framework::DockSide const side = framework::SideOf(dwAlignment, framework::DockSide::left);
    bool const across = side == framework::DockSide::left || side == framework::DockSide::right;
    int extent = 0;
    if (lpRect != nullptr)
        extent = across ? lpRect->right - lpRect->left : lpRect->bottom - lpRect->top;
    return guard.Alive() && m_host->Beside(*this, *pTargetWindow, side, extent);
}

BOOL CDockablePane::DockToRecentPos()
{
    return m_host != nullptr && m_host->DockBack(m_dockId);
}

void CDockablePane::UndockPane(BOOL)
{
    if (m_host != nullptr)
        m_host->Leave(*this, false);
}

void CDockablePane::ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate)
{
    if (m_host != nullptr)
        m_host->Show(*this, bShow != FALSE, bActivate != FALSE);
    else
        CPane::ShowPane(bShow, bDelay, bActivate);
}

BOOL CDockablePane::OnBeforeFloat(CRect & rectFloat, AFX_DOCK_METHOD dockMethod)
{
    return CPane::OnBeforeFloat(rectFloat, dockMethod);
}

void CDockablePane::OnAfterChangeParent(CWnd * pWndOldParent)
{
    CPane::OnAfterChangeParent(pWndOldParent);
}

void CDockablePane::OnBeforeChangeParent(CWnd * pWndNewParent, BOOL bDelay)
{
    CPane::OnBeforeChangeParent(pWndNewParent, bDelay);
}

CTabbedPane * CDockablePane::CreateTabbedPane()
{
    CRuntimeClass * const wanted = GetTabbedPaneRTC();
    return DYNAMIC_DOWNCAST(CTabbedPane, wanted->CreateObject());
}

CRuntimeClass * CDockablePane::GetTabbedPaneRTC() const
{
    return m_tabbedPaneClass != nullptr ? m_tabbedPaneClass : RUNTIME_CLASS(CTabbedPane);
}

void CDockablePane::SetTabbedPaneRTC(CRuntimeClass * pRTC)
{
    m_tabbedPaneClass = pRTC;
}

// Folding away

CMFCAutoHideBar * CDockablePane::SetAutoHideMode(BOOL bMode, DWORD dwAlignment, CMFCAutoHideBar *, BOOL)
{
    if (m_host == nullptr)
        return nullptr;
    std::optional<framework::DockSide> side;
    if ((dwAlignment & CBRS_ALIGN_ANY) != 0)
        side = framework::SideOf(dwAlignment, framework::DockSide::left);
    WindowGuard const guard(this);
    DockHost::Life const life(*m_host);
    DockHost & host = *m_host;
    if (!host.Fold(*this, bMode != FALSE, side) || !life || !guard.Alive())
        return nullptr;
    framework::DockPane const * const pane = host.Layout().Find(m_dockId);
    return bMode && pane != nullptr ? host.Strip(pane->foldSide) : nullptr;
}

void CDockablePane::ToggleAutoHide()
{
    SetAutoHideMode(!IsAutoHideMode(), 0);
}

void CDockablePane::Slide(BOOL bSlideOut, BOOL)
{
    if (m_host == nullptr || !IsAutoHideMode())
        return;
    if (bSlideOut)
        m_host->SlideOut(m_dockId);
    else if (m_host->Slid() == m_dockId)
        m_host->SlideBack();
}

void CDockablePane::OnSlide(BOOL) {}

BOOL CDockablePane::IsAutoHideMode() const
{
    framework::DockPane const * const pane = m_host != nullptr ? m_host->Layout().Find(m_dockId) : nullptr;
    return pane != nullptr && pane->place == framework::DockPlace::folded;
}

BOOL CDockablePane::HasAutoHideMode() const
{
    return TRUE;
}

BOOL CDockablePane::IsHideInAutoHideMode() const
{
    return m_bHideInAutoHideMode;
}

BOOL CDockablePane::CanAutoHide() const
{
    return CPane::CanAutoHide() && m_host != nullptr && m_host->foldSides != 0 && IsDocked();
}

// State

BOOL CDockablePane::CanAcceptPane(const CBasePane * pBar) const
{
    return pBar != nullptr && pBar->IsKindOf(RUNTIME_CLASS(CDockablePane));
}

BOOL CDockablePane::CanBeAttached() const
{
    return TRUE;
}

CSize CDockablePane::CalcFixedLayout(BOOL, BOOL)
{
    CRect rect(0, 0, 0, 0);
    if (m_hWnd != nullptr)
        GetWindowRect(&rect);
    return rect.Size();
}

void CDockablePane::EnableGripper(BOOL bEnable)
{
    CPane::EnableGripper(bEnable);
    if (m_hWnd != nullptr)
    {
        CWnd::SetWindowPos(nullptr, 0, 0, 0, 0,
                           SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    }
}

int CDockablePane::GetCaptionHeight() const
{
    if (!m_gripper || !m_captionShown)
        return 0;
    return m_host != nullptr ? m_host->Sizes().caption : framework::DockSizes::Measure().caption;
}

BOOL CDockablePane::IsDocked() const
{
    return CPane::IsDocked();
}

BOOL CDockablePane::IsInFloatingMultiPaneFrameWnd() const
{
    return CPane::IsInFloatingMultiPaneFrameWnd();
}

BOOL CDockablePane::IsResizable() const
{
    return CanBeResized();
}

BOOL CDockablePane::IsVisible() const
{
    framework::DockPane const * const pane = m_host != nullptr ? m_host->Layout().Find(m_dockId) : nullptr;
    if (pane == nullptr || pane->place == framework::DockPlace::none)
        return CPane::IsVisible();
    return pane->visible;
}

BOOL CDockablePane::IsTracked() const
{
    return m_host != nullptr && m_host->Dragging();
}

BOOL CDockablePane::IsTabLocationBottom() const
{
    return TRUE;
}

void CDockablePane::GetTabArea(CRect & rectTabAreaTop, CRect & rectTabAreaBottom) const
{
    rectTabAreaTop.SetRectEmpty();
    rectTabAreaBottom.SetRectEmpty();
}

BOOL CDockablePane::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID)
{
    return CPane::LoadState(lpszProfileName, nIndex, uiID);
}

// Caption

void CDockablePane::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS * lpncsp)
{
    RECT & rect = lpncsp->rgrc[0];
    rect.top = std::min(rect.bottom, rect.top + GetCaptionHeight());
}

void CDockablePane::OnNcPaint()
{
    int const height = GetCaptionHeight();
    if (height == 0)
        return;
    CRect rect;
    GetWindowRect(&rect);
    rect.OffsetRect(-rect.TopLeft());
    rect.bottom = std::min<LONG>(rect.bottom, height);
    CWindowDC dc(this);
    DrawCaption(&dc, rect);
}

void CDockablePane::DrawCaption(CDC * pDC, CRect rectCaption)
{
    HWND const focus = ::GetFocus();
    m_active = focus != nullptr && (focus == m_hWnd || ::IsChild(m_hWnd, focus));
    COLORREF const text = ::GetSysColor(m_active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT);
    pDC->FillSolidRect(&rectCaption, ::GetSysColor(m_active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
    CRect name(rectCaption);
    for (UINT const hit : {HTCLOSE, HTMINBUTTON})
    {
        CRect const button = framework::CaptionButton(*this, rectCaption, hit);
        if (button.IsRectEmpty())
            continue;
        name.right = std::min(name.right, button.left);
        DrawButton(*pDC, button, hit, IsAutoHideMode() != FALSE, text);
    }
    CDockablePane const * const front = m_host != nullptr ? m_host->Pane(m_host->FrontOf(*this)) : nullptr;
    CString const title = framework::TitleOf(front != nullptr ? *front : *this);
    name.DeflateRect(rectCaption.Height() / 4, 0);
    if (name.Width() <= 0)
        return;
    CFont * const former = SelectDefaultFont(pDC);
    int const formerMode = pDC->SetBkMode(TRANSPARENT);
    COLORREF const formerColour = pDC->SetTextColor(text);
    pDC->DrawText(title, &name, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_END_ELLIPSIS | DT_NOPREFIX);
    pDC->SetTextColor(formerColour);
    pDC->SetBkMode(formerMode);
    pDC->SelectObject(former);
}

LRESULT CDockablePane::OnNcHitTest(CPoint point)
{
    int const hit = HitTest(point, TRUE);
    return hit == HTNOWHERE ? HTCLIENT : HTCAPTION;
}

int CDockablePane::HitTest(CPoint point, BOOL bDetectCaption)
{
    CRect rect;
    GetWindowRect(&rect);
    CRect caption(rect);
    caption.bottom = std::min<LONG>(rect.bottom, rect.top + GetCaptionHeight());
    if (!caption.PtInRect(point))
        return HTNOWHERE;
    for (UINT const hit : {HTCLOSE, HTMINBUTTON})
    {
        if (framework::CaptionButton(*this, caption, hit).PtInRect(point))
            return static_cast<int>(hit);
    }
    return bDetectCaption ? HTCAPTION : HTNOWHERE;
}

void CDockablePane::OnNcLButtonDown(UINT, CPoint point)
{
    int const hit = HitTest(point, TRUE);
    if (hit == HTNOWHERE || m_host == nullptr)
        return;
    WindowGuard const guard(this);
    DockHost & host = *m_host;
    if (hit != HTCAPTION)
    {
        host.BeginButton(*this, static_cast<UINT>(hit));
        return;
    }
    framework::FocusPane(*this);
    if (!guard.Alive() || m_host != &host)
        return;
    framework::DockPane const * const known = host.Layout().Find(host.FrontOf(*this));
    if (known == nullptr || known->place == framework::DockPlace::folded || known->place == framework::DockPlace::none)
        return;
    host.BeginDrag(framework::DockContent(host.DraggedWith(*this)), point);
}

void CDockablePane::OnNcLButtonDblClk(UINT nHitTest, CPoint point)
{
    int const hit = HitTest(point, TRUE);
    if (hit != HTCAPTION)
    {
        OnNcLButtonDown(nHitTest, point);
        return;
    }
    if (m_host != nullptr)
        m_host->Toggle(framework::DockContent(m_host->DraggedWith(*this)));
}

// The system knows nothing of this caption.
void CDockablePane::OnNcRButtonDown(UINT, CPoint) {}

void CDockablePane::OnNcRButtonUp(UINT, CPoint point)
{
    SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_hWnd), MAKELPARAM(point.x, point.y));
}

void CDockablePane::OnContextMenu(CWnd *, CPoint point)
{
    // What lies in the pane passes on what it has no menu for.
    if (HitTest(point, TRUE) == HTNOWHERE)
        Default();
    else
        OnShowControlBarMenu(point);
}

void CDockablePane::OnPressButtons(UINT nHit)
{
    if (m_host == nullptr)
        return;
    UINT const front = m_host->FrontOf(*this);
    if (nHit == HTCLOSE)
        m_host->Close(front);
    else if (CDockablePane * const pane = m_host->Pane(front))
        pane->ToggleAutoHide();
}

LRESULT CDockablePane::HandleSetText(WPARAM, LPARAM)
{
    WindowGuard const guard(this);
    LRESULT const result = Default();
    if (guard.Alive() && m_host != nullptr)
        m_host->TitleChanged(*this);
    return result;
}

void framework::FocusPane(CDockablePane & pane)
{
    CDockablePane * target = &pane;
    DockHost * const host = PaneAccess::Host(pane);
    if (host != nullptr)
    {
        CDockablePane * const front = host->Pane(host->FrontOf(pane));
        if (front != nullptr)
            target = front;
    }
    HWND const focus = ::GetFocus();
    if (target->m_hWnd == nullptr ||
        (focus != nullptr && (focus == target->m_hWnd || ::IsChild(target->m_hWnd, focus))))
        return;
    // What can be typed into comes before the pane itself.
    HWND inner = ::GetWindow(target->m_hWnd, GW_CHILD);
    while (inner != nullptr && (!::IsWindowVisible(inner) || !::IsWindowEnabled(inner)))
        inner = ::GetWindow(inner, GW_HWNDNEXT);
    ::SetFocus(inner != nullptr ? inner : target->m_hWnd);
}

CRect framework::CaptionButton(CDockablePane const & pane, CRect const & caption, UINT hit)
{
    int const size = caption.Height() - 2;
    CRect button(caption.right - size - 1, caption.top + 1, caption.right - 1, caption.top + 1 + size);
    DockHost * const host = PaneAccess::Host(pane);
    CDockablePane const * const front = host != nullptr ? host->Pane(host->FrontOf(pane)) : nullptr;
    if (front == nullptr)
        return CRect(0, 0, 0, 0);
    bool const closes = front->CanBeClosed() != FALSE;
    if (hit == HTCLOSE)
        return closes && button.left > caption.left ? button : CRect(0, 0, 0, 0);
    if (closes)
        button.OffsetRect(-size, 0);
    bool const pins = front->IsAutoHideMode() || front->CanAutoHide();
    return pins && button.left > caption.left ? button : CRect(0, 0, 0, 0);
}

CSize framework::LeastSize(CDockablePane const & pane, DockSizes const & sizes)
{
    CSize least(0, 0);
    pane.GetMinSize(least);
    if (least.cx <= 0)
        least.cx = 2 * sizes.caption + least_contents;
    if (least.cy <= 0)
        least.cy = sizes.caption + least_contents;
    return least;
}
