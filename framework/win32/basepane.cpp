// CBasePane and CPane.

#include "afxcontrolbars.h"
#include "afxpriv.h"

#include <algorithm>

#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

using framework::DockHost;
using framework::PaneAccess;
using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CBasePane, CWnd)
IMPLEMENT_DYNCREATE(CPane, CBasePane)

// clang-format off
BEGIN_MESSAGE_MAP(CBasePane, CWnd)
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_MESSAGE(WM_SIZEPARENT, &CBasePane::HandleSizeParent)
END_MESSAGE_MAP()
// clang-format on

namespace
{
constexpr wchar_t class_name[] = L"FrameworkPane";

CString PaneSection(LPCTSTR profileName, LPCTSTR kind, UINT id)
{
    CString section;
    section.Format(L"%s\\%s-%u", profileName != nullptr ? profileName : L"Workspace", kind, id);
    return section;
}
} // namespace

CBasePane::CBasePane()
    : m_style(0),
      m_controlBarStyle(0),
      m_enabledAlignment(CBRS_ALIGN_ANY),
      m_dockingMode(DT_UNDEFINED),
      m_gripper(false),
      m_restored(false),
      m_recentVisible(true)
{
}

CBasePane::~CBasePane() = default;

BOOL CBasePane::PreCreateWindow(CREATESTRUCT & cs)
{
    if (cs.lpszClass == nullptr)
    {
        WNDCLASS description{};
        description.style = CS_DBLCLKS;
        description.lpfnWndProc = ::DefWindowProc;
        description.hInstance = AfxGetInstanceHandle();
        description.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
        description.lpszClassName = class_name;
        if (!AfxRegisterClass(&description))
            return FALSE;
        cs.lpszClass = class_name;
    }
    return CWnd::PreCreateWindow(cs);
}

BOOL CBasePane::CreateEx(DWORD dwStyleEx, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                         const RECT & rect, CWnd * pParentWnd, UINT nID, DWORD dwControlBarStyle,
                         CCreateContext * pContext)
{
    m_style = dwStyle & CBRS_ALL;
    m_controlBarStyle = dwControlBarStyle;
    return CWnd::CreateEx(dwStyleEx, lpszClassName, lpszWindowName, dwStyle & ~static_cast<DWORD>(CBRS_ALL), rect,
                          pParentWnd, nID, pContext);
}

DWORD CBasePane::GetPaneStyle() const
{
    return m_style;
}

void CBasePane::SetPaneStyle(DWORD dwNewStyle)
{
    m_style = dwNewStyle & CBRS_ALL;
}

DWORD CBasePane::GetControlBarStyle() const
{
    return m_controlBarStyle;
}

void CBasePane::SetControlBarStyle(DWORD dwNewStyle)
{
    m_controlBarStyle = dwNewStyle;
}

DWORD CBasePane::GetCurrentAlignment() const
{
    return m_style & CBRS_ALIGN_ANY;
}

void CBasePane::SetPaneAlignment(DWORD dwAlignment)
{
    m_style = (m_style & ~static_cast<DWORD>(CBRS_ALIGN_ANY)) | (dwAlignment & CBRS_ALIGN_ANY);
}

BOOL CBasePane::IsHorizontal() const
{
    return (GetCurrentAlignment() & CBRS_ORIENT_VERT) == 0;
}

DWORD CBasePane::GetEnabledAlignment() const
{
    return m_enabledAlignment;
}

void CBasePane::EnableDocking(DWORD dwAlignment)
{
    m_enabledAlignment = dwAlignment;
}

AFX_DOCK_TYPE CBasePane::GetDockingMode() const
{
    return m_dockingMode == DT_UNDEFINED ? CDockingManager::GetDockingMode() : m_dockingMode;
}

void CBasePane::SetDockingMode(AFX_DOCK_TYPE dockModeNew)
{
    m_dockingMode = dockModeNew;
}

void CBasePane::EnableGripper(BOOL bEnable)
{
    m_gripper = bEnable != FALSE;
}

int CBasePane::GetCaptionHeight() const
{
    return 0;
}

BOOL CBasePane::CanAcceptPane(const CBasePane *) const
{
    return FALSE;
}

BOOL CBasePane::CanAutoHide() const
{
    return (GetControlBarStyle() & AFX_CBRS_AUTOHIDE) != 0;
}

BOOL CBasePane::CanBeAttached() const
{
    return FALSE;
}

BOOL CBasePane::CanBeClosed() const
{
    return (GetControlBarStyle() & AFX_CBRS_CLOSE) != 0;
}

BOOL CBasePane::CanBeDocked(CBasePane *) const
{
    return FALSE;
}

BOOL CBasePane::CanBeResized() const
{
    return (GetControlBarStyle() & AFX_CBRS_RESIZE) != 0;
}

BOOL CBasePane::CanBeTabbedDocument() const
{
    return FALSE;
}

BOOL CBasePane::CanFloat() const
{
    return (GetControlBarStyle() & AFX_CBRS_FLOAT) != 0;
}

BOOL CBasePane::CanFocus() const
{
    return TRUE;
}

BOOL CBasePane::IsResizable() const
{
    return FALSE;
}

BOOL CBasePane::DoesAllowDynInsertBefore() const
{
    return TRUE;
}

BOOL CBasePane::HideInPrintPreviewMode() const
{
    return TRUE;
}

BOOL CBasePane::IsAutoHideMode() const
{
    return FALSE;
}

BOOL CBasePane::IsDocked() const
{
    return GetParentMiniFrame(TRUE) == nullptr;
}

BOOL CBasePane::IsFloating() const
{
    return GetParentMiniFrame(TRUE) != nullptr;
}

BOOL CBasePane::IsTabbed() const
{
    return GetParentTabbedPane() != nullptr;
}

BOOL CBasePane::IsMDITabbed() const
{
    return FALSE;
}

BOOL CBasePane::IsInFloatingMultiPaneFrameWnd() const
{
    return DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, GetParentMiniFrame(TRUE)) != nullptr;
}

BOOL CBasePane::IsVisible() const
{
    return IsPaneVisible();
}

BOOL CBasePane::IsPaneVisible() const
{
    return m_hWnd != nullptr && (GetStyle() & WS_VISIBLE) != 0;
}

BOOL CBasePane::GetRecentVisibleState() const
{
    return m_recentVisible;
}

BOOL CBasePane::IsRestoredFromRegistry() const
{
    return m_restored;
}

CWnd * CBasePane::GetDockSiteFrameWnd() const
{
    return m_hWnd != nullptr ? GetParentFrame() : nullptr;
}

CPaneFrameWnd * CBasePane::GetParentMiniFrame(BOOL) const
{
    for (HWND window = m_hWnd; window != nullptr; window = ::GetAncestor(window, GA_PARENT))
    {
        if (auto * const frame = DYNAMIC_DOWNCAST(CPaneFrameWnd, CWnd::FromHandlePermanent(window)))
            return frame;
    }
    return nullptr;
}

CBaseTabbedPane * CBasePane::GetParentTabbedPane() const
{
    return m_hWnd != nullptr ? DYNAMIC_DOWNCAST(CBaseTabbedPane, CWnd::FromHandlePermanent(::GetParent(m_hWnd)))
                             : nullptr;
}

BOOL CBasePane::DockPane(CBasePane *, LPCRECT, AFX_DOCK_METHOD)
{
    return FALSE;
}

BOOL CBasePane::DockToFrameWindow(DWORD, LPCRECT, DWORD, CBasePane *, int, BOOL)
{
    return FALSE;
}

BOOL CBasePane::FloatPane(CRect, AFX_DOCK_METHOD, bool)
{
    return FALSE;
}

void CBasePane::UndockPane(BOOL) {}

void CBasePane::ShowPane(BOOL bShow, BOOL bDelay, BOOL)
{
    m_recentVisible = bShow != FALSE;
    if (m_hWnd == nullptr)
        return;
    WindowGuard const guard(this);
    ShowWindow(bShow ? SW_SHOWNA : SW_HIDE);
    CFrameWnd * const frame = guard.Alive() ? GetParentFrame() : nullptr;
    if (frame != nullptr && !bDelay)
        frame->RecalcLayout();
}

CSize CBasePane::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    constexpr int as_long_as_the_frame = 32767;
    CSize size(0, 0);
    if (bStretch)
        (bHorz ? size.cx : size.cy) = as_long_as_the_frame;
    return size;
}

CSize CBasePane::StretchPane(int, BOOL)
{
    CRect rect;
    GetWindowRect(&rect);
    return rect.Size();
}

HDWP CBasePane::MoveWindow(CRect & rect, BOOL bRepaint, HDWP hdwp)
{
    return SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                        SWP_NOZORDER | SWP_NOACTIVATE | (bRepaint ? 0u : SWP_NOREDRAW), hdwp);
}

HDWP CBasePane::SetWindowPos(const CWnd * pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags, HDWP hdwp)
{
    if (hdwp == nullptr)
    {
        CWnd::SetWindowPos(pWndInsertAfter, x, y, cx, cy, nFlags);
        return nullptr;
    }
    return ::DeferWindowPos(hdwp, m_hWnd, pWndInsertAfter != nullptr ? pWndInsertAfter->m_hWnd : nullptr, x, y, cx, cy,
                            nFlags);
}

void CBasePane::AdjustDockingLayout(HDWP)
{
    if (CDockingManager * const manager = DockHost::ManagerOf(GetDockSiteFrameWnd()))
        manager->AdjustDockingLayout();
}

void CBasePane::AdjustLayout() {}

void CBasePane::RecalcLayout() {}

void CBasePane::OnBeforeChangeParent(CWnd *, BOOL) {}

void CBasePane::OnAfterChangeParent(CWnd *) {}

void CBasePane::OnPaneContextMenu(CWnd *, CPoint) {}

void CBasePane::DoPaint(CDC *) {}

void CBasePane::OnDrawCaption() {}

CFont * CBasePane::SelectDefaultFont(CDC * pDC)
{
    return framework::SelectPaneFont(*pDC);
}

HICON CBasePane::GetPaneIcon(BOOL bBigIcon)
{
    return GetIcon(bBigIcon);
}

BOOL CBasePane::LoadState(LPCTSTR lpszProfileName, int, UINT uiID)
{
    CWinApp * const app = AfxGetApp();
    if (app == nullptr)
        return FALSE;
    UINT const id = uiID != static_cast<UINT>(-1) ? uiID : static_cast<UINT>(GetDlgCtrlID());
    constexpr int missing = -1;
    int const visible =
        static_cast<int>(app->GetProfileInt(PaneSection(lpszProfileName, L"BasePane", id), L"IsVisible", missing));
    if (visible == missing)
        return FALSE;
    m_recentVisible = visible != 0;
    m_restored = true;
    return TRUE;
}

BOOL CBasePane::SaveState(LPCTSTR lpszProfileName, int, UINT uiID)
{
    CWinApp * const app = AfxGetApp();
    if (app == nullptr)
        return FALSE;
    UINT const id = uiID != static_cast<UINT>(-1) ? uiID : static_cast<UINT>(GetDlgCtrlID());
    return app->WriteProfileInt(PaneSection(lpszProfileName, L"BasePane", id), L"IsVisible", IsVisible() ? 1 : 0);
}

void CBasePane::OnDestroy()
{
    CWnd::OnDestroy();
}

BOOL CBasePane::OnEraseBkgnd(CDC * pDC)
{
    CRect rect;
    GetClientRect(&rect);
    pDC->FillSolidRect(&rect, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}

void CBasePane::OnPaint()
{
    WindowGuard const guard(this);
    CPaintDC dc(this); // has the ground erased, which may end the pane
    if (guard.Alive())
        DoPaint(&dc);
}

void CBasePane::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
}

LRESULT CBasePane::HandleSizeParent(WPARAM, LPARAM lParam)
{
    // What the frame's docking places takes no part in this.
    if (IsKindOf(RUNTIME_CLASS(CDockablePane)) || IsKindOf(RUNTIME_CLASS(CPaneDivider)) ||
        IsKindOf(RUNTIME_CLASS(CMFCAutoHideBar)))
        return 0;
    auto & layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS *>(lParam);
    DWORD const alignment = GetCurrentAlignment();
    if (alignment == 0 || !IsPaneVisible())
        return 0;
    bool const horizontal = IsHorizontal() != FALSE;
    WindowGuard const guard(this);
    CSize size = CalcFixedLayout(layout.bStretch, horizontal);
    if (!guard.Alive())
        return 0;
    CRect rect(layout.rect);
    size.cx = std::min<LONG>(size.cx, std::max(rect.Width(), 0));
    size.cy = std::min<LONG>(size.cy, std::max(rect.Height(), 0));
    if (horizontal)
    {
        layout.sizeTotal.cy += size.cy;
        layout.sizeTotal.cx = std::max(layout.sizeTotal.cx, size.cx);
        if ((alignment & CBRS_ALIGN_TOP) != 0)
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
        if ((alignment & CBRS_ALIGN_LEFT) != 0)
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

// CPane

CPane::CPane() : m_borders(0, 0, 0, 0), m_minSize(0, 0) {}

CPane::~CPane() = default;

BOOL CPane::Create(LPCTSTR lpszClassName, DWORD dwStyle, const RECT & rect, CWnd * pParentWnd, UINT nID,
                   DWORD dwControlBarStyle, CCreateContext * pContext)
{
    return CreateEx(0, lpszClassName, dwStyle, rect, pParentWnd, nID, dwControlBarStyle, pContext);
}

BOOL CPane::CreateEx(DWORD dwStyleEx, LPCTSTR lpszClassName, DWORD dwStyle, const RECT & rect, CWnd * pParentWnd,
                     UINT nID, DWORD dwControlBarStyle, CCreateContext * pContext)
{
    return CBasePane::CreateEx(dwStyleEx, lpszClassName, nullptr, dwStyle, rect, pParentWnd, nID, dwControlBarStyle,
                               pContext);
}

CRect CPane::GetBorders() const
{
    return m_borders;
}

void CPane::SetBorders(int cxLeft, int cyTop, int cxRight, int cyBottom)
{
    m_borders.SetRect(cxLeft, cyTop, cxRight, cyBottom);
}

void CPane::SetBorders(LPCRECT lpRect)
{
    m_borders = *lpRect;
}

void CPane::CalcInsideRect(CRect & rect, BOOL bHorz) const
{
    if (bHorz)
        rect.DeflateRect(m_borders);
    else
        rect.DeflateRect(m_borders.top, m_borders.left, m_borders.bottom, m_borders.right);
}

void CPane::GetMinSize(CSize & size) const
{
    size = m_minSize;
}

void CPane::SetMinSize(const CSize & size)
{
    m_minSize = size;
    auto * const pane = DYNAMIC_DOWNCAST(CDockablePane, this);
    if (framework::DockHost * const host = pane != nullptr ? framework::PaneAccess::Host(*pane) : nullptr)
        host->LeastSizeChanged(*pane);
}

void CPane::GetPaneName(CString & strName) const
{
    GetWindowText(strName);
}

BOOL CPane::AllowShowOnPaneMenu() const
{
    return TRUE;
}

void CPane::OnPressCloseButton() {}

BOOL CPane::OnShowControlBarMenu(CPoint point)
{
    auto * const pane = DYNAMIC_DOWNCAST(CDockablePane, this);
    return pane != nullptr && framework::ShowPaneMenu(*pane, point);
}

void CPane::ToggleAutoHide() {}

BOOL CPane::IsDragMode() const
{
    return FALSE;
}

BOOL CPane::OnBeforeDock(CBasePane **, LPCRECT, AFX_DOCK_METHOD)
{
    return TRUE;
}

void CPane::OnAfterDock(CBasePane *, LPCRECT, AFX_DOCK_METHOD) {}

BOOL CPane::OnBeforeFloat(CRect &, AFX_DOCK_METHOD)
{
    return TRUE;
}

void CPane::OnAfterFloat() {}

BOOL CPane::CanBeDocked(CBasePane *) const
{
    return (GetEnabledAlignment() & CBRS_ALIGN_ANY) != 0;
}

BOOL CPane::CanBeTabbedDocument() const
{
    return FALSE;
}

BOOL CPane::DockPane(CBasePane *, LPCRECT lpRect, AFX_DOCK_METHOD)
{
    CDockingManager * const manager = DockHost::ManagerOf(GetDockSiteFrameWnd());
    if (manager == nullptr)
        return FALSE;
    manager->DockPane(this, 0, lpRect);
    return TRUE;
}

BOOL CPane::DockToFrameWindow(DWORD dwAlignment, LPCRECT lpRect, DWORD, CBasePane *, int, BOOL bOuterEdge)
{
    DWORD const alignment = dwAlignment & CBRS_ALIGN_ANY;
    DockHost * const host = DockHost::Of(GetDockSiteFrameWnd());
    if (host == nullptr || (alignment & GetEnabledAlignment() & host->sides) == 0)
        return FALSE;
    framework::DockSide const side = framework::SideOf(alignment, framework::DockSide::top);
    if (auto * const dockable = DYNAMIC_DOWNCAST(CDockablePane, this))
    {
        bool const across = side == framework::DockSide::left || side == framework::DockSide::right;
        CRect const wanted = lpRect != nullptr ? CRect(lpRect) : CRect(0, 0, 0, 0);
        return host->Dock(*dockable, side, bOuterEdge != FALSE, across ? wanted.Width() : wanted.Height());
    }
    SetPaneAlignment(framework::AlignmentOf(side));
    host->Frame().RecalcLayout();
    return TRUE;
}

BOOL CPane::FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod, bool bShow)
{
    auto * const dockable = DYNAMIC_DOWNCAST(CDockablePane, this);
    DockHost * const host = dockable != nullptr ? PaneAccess::Host(*dockable) : nullptr;
    return host != nullptr && host->Float(*dockable, rectFloat, dockMethod, bShow);
}

BOOL CPane::IsInFloatingMultiPaneFrameWnd() const
{
    return CBasePane::IsInFloatingMultiPaneFrameWnd();
}

BOOL CPane::IsResizable() const
{
    return FALSE;
}

BOOL CPane::IsTabbed() const
{
    return CBasePane::IsTabbed();
}

void CPane::OnAfterChangeParent(CWnd * pWndOldParent)
{
    CBasePane::OnAfterChangeParent(pWndOldParent);
}

void CPane::OnBeforeChangeParent(CWnd * pWndNewParent, BOOL bDelay)
{
    CBasePane::OnBeforeChangeParent(pWndNewParent, bDelay);
}

void CPane::RecalcLayout()
{
    CBasePane::RecalcLayout();
}

void CPane::UndockPane(BOOL bDelay)
{
    CBasePane::UndockPane(bDelay);
}

BOOL CPane::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID)
{
    return CBasePane::LoadState(lpszProfileName, nIndex, uiID);
}

BOOL CPane::SaveState(LPCTSTR lpszProfileName, int nIndex, UINT uiID)
{
    CWinApp * const app = AfxGetApp();
    if (app == nullptr || !CBasePane::SaveState(lpszProfileName, nIndex, uiID))
        return FALSE;
    UINT const id = uiID != static_cast<UINT>(-1) ? uiID : static_cast<UINT>(GetDlgCtrlID());
    CString const section = PaneSection(lpszProfileName, L"Pane", id);
    return app->WriteProfileInt(section, L"ID", static_cast<int>(id)) &&
           app->WriteProfileInt(section, L"RecentFrameAlignment", static_cast<int>(GetCurrentAlignment())) &&
           app->WriteProfileInt(section, L"IsFloating", IsFloating() ? 1 : 0);
}
