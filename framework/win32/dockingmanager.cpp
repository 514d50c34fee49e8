// CDockingManager, and what the extended main frames have of it.

#include "afxcontrolbars.h"

#include <algorithm>

#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

using framework::DockHost;
using framework::DockSide;
using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CDockingManager, CObject)

int CDockingManager::m_nDockSensitivity = 20;

namespace
{
constexpr wchar_t layout_entry[] = L"Layout";
constexpr wchar_t default_section[] = L"Workspace";

CString Section(LPCTSTR profileName, LPCTSTR below)
{
    CString section(profileName != nullptr ? profileName : default_section);
    section += L"\\";
    section += below;
    return section;
}

CString KeyOf(LPCTSTR kind, UINT id)
{
    CString key;
    key.Format(L"%s-%u", kind, id);
    return key;
}

/// Whether there is a key below the application's.
bool KeyExists(CWinApp & app, CString const & name)
{
    if (app.m_pszRegistryKey == nullptr)
        return true; // settings in a file have no keys
    HKEY const root = app.GetAppRegistryKey();
    HKEY key = nullptr;
    bool const exists = root != nullptr && ::RegOpenKeyEx(root, name, 0, KEY_READ, &key) == ERROR_SUCCESS;
    if (key != nullptr)
        ::RegCloseKey(key);
    if (root != nullptr)
        ::RegCloseKey(root);
    return exists;
}
} // namespace

CDockingManager::CDockingManager() : m_host(nullptr) {}

CDockingManager::~CDockingManager()
{
    delete m_host;
}

BOOL CDockingManager::Create(CFrameWnd * pParentWnd)
{
    ASSERT(pParentWnd != nullptr);
    if (m_host == nullptr)
        m_host = new DockHost(*this, *pParentWnd);
    return &m_host->Frame() == pParentWnd;
}

CFrameWnd * CDockingManager::GetDockSiteFrameWnd() const
{
    return m_host != nullptr ? &m_host->Frame() : nullptr;
}

BOOL CDockingManager::AddPane(CBasePane * pWnd, BOOL, BOOL, BOOL)
{
    ASSERT(pWnd != nullptr);
    if (m_host == nullptr || pWnd->m_hWnd == nullptr)
        return FALSE;
    auto * const dockable = DYNAMIC_DOWNCAST(CDockablePane, pWnd);
    // Other panes are found among the frame's windows.
    return dockable == nullptr || m_host->Register(*dockable);
}

BOOL CDockingManager::InsertPane(CBasePane * pControlBar, CBasePane *, BOOL)
{
    return AddPane(pControlBar);
}

void CDockingManager::RemovePaneFromDockManager(CBasePane * pWnd, BOOL bDestroy, BOOL, BOOL,
                                                CBasePane * pBarReplacement)
{
    auto * const dockable = DYNAMIC_DOWNCAST(CDockablePane, pWnd);
    if (m_host == nullptr || dockable == nullptr)
        return;
    WindowGuard const guard(dockable);
    DockHost::Life const life(*m_host);
    if (auto * const other = DYNAMIC_DOWNCAST(CDockablePane, pBarReplacement))
    {
        if (m_host->Register(*other) && life && guard.Alive())
            m_host->Attach(*other, *dockable, -1, true);
    }
    if (!life || !guard.Alive())
        return;
    m_host->Leave(*dockable, false);
    if (bDestroy && guard.Alive())
        dockable->DestroyWindow();
}

CBasePane * CDockingManager::FindPaneByID(UINT uBarID, BOOL)
{
    return m_host != nullptr ? m_host->FindBar(uBarID) : nullptr;
}

void CDockingManager::GetPaneList(CObList & lstBars, BOOL bIncludeAutohide, CRuntimeClass * pRTCFilter, BOOL)
{
    if (m_host == nullptr)
        return;
    for (CDockablePane * const pane : m_host->Panes())
    {
        if ((pRTCFilter == nullptr || pane->GetRuntimeClass() == pRTCFilter) &&
            (bIncludeAutohide || !pane->IsAutoHideMode()))
            lstBars.AddTail(pane);
    }
}

BOOL CDockingManager::EnableDocking(DWORD dwStyle)
{
    if (m_host == nullptr)
        return FALSE;
    m_host->sides = dwStyle & CBRS_ALIGN_ANY;
    return TRUE;
}

BOOL CDockingManager::EnableAutoHidePanes(DWORD dwStyle)
{
    if (m_host == nullptr)
        return FALSE;
    m_host->foldSides = dwStyle & CBRS_ALIGN_ANY;
    return TRUE;
}

DWORD CDockingManager::GetEnabledAutoHideAlignment() const
{
    return m_host != nullptr ? m_host->foldSides : 0;
}

void CDockingManager::DockPane(CBasePane * pBar, UINT nDockBarID, LPCRECT lpRect)
{
    ASSERT(pBar != nullptr);
    if (m_host == nullptr || pBar->m_hWnd == nullptr)
        return;
    DWORD alignment = 0;
    switch (nDockBarID)
    {
    case AFX_IDW_DOCKBAR_TOP:
        alignment = CBRS_ALIGN_TOP;
        break;
    case AFX_IDW_DOCKBAR_LEFT:
        alignment = CBRS_ALIGN_LEFT;
        break;
    case AFX_IDW_DOCKBAR_RIGHT:
        alignment = CBRS_ALIGN_RIGHT;
        break;
    case AFX_IDW_DOCKBAR_BOTTOM:
        alignment = CBRS_ALIGN_BOTTOM;
        break;
    default:
        break;
    }
    auto * const dockable = DYNAMIC_DOWNCAST(CDockablePane, pBar);
    if (dockable == nullptr)
    {
        DWORD const own = alignment != 0 ? alignment : pBar->GetCurrentAlignment();
        if (own != 0 && (own & pBar->GetEnabledAlignment()) == own)
            pBar->SetPaneAlignment(own);
        m_host->Frame().RecalcLayout();
        return;
    }
    CRect wanted(0, 0, 0, 0);
    if (lpRect != nullptr)
        wanted = *lpRect;
    if (alignment == 0 && lpRect != nullptr)
    {
        // The side of the frame that the rectangle lies at.
        CRect frame;
        m_host->Frame().GetClientRect(&frame);
        m_host->Frame().ClientToScreen(&frame);
        CPoint const middle = wanted.CenterPoint();
        std::pair<int, DWORD> const distances[] = {{middle.x - frame.left, CBRS_ALIGN_LEFT},
                                                   {middle.y - frame.top, CBRS_ALIGN_TOP},
                                                   {frame.right - middle.x, CBRS_ALIGN_RIGHT},
                                                   {frame.bottom - middle.y, CBRS_ALIGN_BOTTOM}};
        alignment = std::min_element(std::begin(distances), std::end(distances))->second;
    }
    if (alignment == 0)
        alignment = dockable->GetPaneStyle() & CBRS_ALIGN_ANY;
    DockSide const side = framework::SideOf(alignment, DockSide::left);
    bool const across = side == DockSide::left || side == DockSide::right;
    m_host->Dock(*dockable, side, false, across ? wanted.Width() : wanted.Height());
}

BOOL CDockingManager::DockPaneLeftOf(CPane * pBarToDock, CPane * pTargetBar)
{
    auto * const dockable = DYNAMIC_DOWNCAST(CDockablePane, pBarToDock);
    auto * const target = DYNAMIC_DOWNCAST(CDockablePane, pTargetBar);
    if (dockable != nullptr && target != nullptr)
        return dockable->DockToWindow(target, CBRS_ALIGN_LEFT);
    if (m_host == nullptr || dockable != nullptr || target != nullptr)
        return FALSE;
    // Bars of a side are laid out in the order of their windows.
    WindowGuard const guard(pBarToDock);
    pBarToDock->SetPaneAlignment(pTargetBar->GetCurrentAlignment());
    CWnd const * const before = pTargetBar->GetWindow(GW_HWNDPREV);
    pBarToDock->SetWindowPos(before != nullptr ? before : &CWnd::wndTop, 0, 0, 0, 0,
                             SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    if (guard.Alive())
        m_host->Frame().RecalcLayout();
    return TRUE;
}

void CDockingManager::HideAutoHidePanes(CDockablePane * pBarToExclude, BOOL)
{
    if (m_host == nullptr)
        return;
    if (pBarToExclude == nullptr || m_host->Pane(m_host->Slid()) != pBarToExclude)
        m_host->SlideBack();
}

BOOL CDockingManager::ShowPanes(BOOL bShow)
{
    if (m_host == nullptr)
        return FALSE;
    DockHost::Life const life(*m_host);
    DockHost & host = *m_host;
    host.Lock(true);
    std::vector<UINT> ids;
    for (CDockablePane const * const pane : host.Panes())
        ids.push_back(framework::PaneAccess::Id(*pane));
    for (UINT const id : ids)
    {
        if (CDockablePane * const pane = host.Pane(id))
            pane->ShowPane(bShow, FALSE, FALSE);
        if (!life)
            return TRUE;
    }
    host.Lock(false);
    return TRUE;
}

void CDockingManager::AdjustDockingLayout(HDWP)
{
    if (m_host != nullptr)
        m_host->Arrange();
}

void CDockingManager::RecalcLayout(BOOL)
{
    if (m_host != nullptr)
        m_host->Arrange();
}

BOOL CDockingManager::IsInAdjustLayout() const
{
    return m_host != nullptr && m_host->InArrange();
}

void CDockingManager::LockUpdate(BOOL bLock)
{
    if (m_host != nullptr)
        m_host->Lock(bLock != FALSE);
}

CRect CDockingManager::GetClientAreaBounds() const
{
    return m_host != nullptr ? m_host->Centre() : CRect(0, 0, 0, 0);
}

void CDockingManager::GetClientAreaBounds(CRect & rcClient)
{
    rcClient = std::as_const(*this).GetClientAreaBounds();
}

CRect CDockingManager::GetOuterEdgeBounds() const
{
    return m_host != nullptr ? m_host->SpaceOf(0) : CRect(0, 0, 0, 0);
}

CBasePane * CDockingManager::PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar, CRuntimeClass * pRTCBarType,
                                           BOOL bCheckVisibility, const CBasePane * pBarToIgnore) const
{
    if (m_host == nullptr)
        return nullptr;
    for (CDockablePane * const pane : m_host->Panes())
    {
        if (pane == pBarToIgnore || !pane->IsPaneVisible() || (bCheckVisibility && !pane->IsVisible()) ||
            (pRTCBarType != nullptr && !pane->IsKindOf(pRTCBarType)))
            continue;
        CRect rect;
        pane->GetWindowRect(&rect);
        if (!bExactBar)
            rect.InflateRect(nSensitivity, nSensitivity);
        if (rect.PtInRect(point))
            return pane;
    }
    return nullptr;
}

AFX_DOCK_TYPE CDockingManager::GetDockingMode()
{
    return DT_STANDARD;
}

void CDockingManager::DisableRestoreDockState(BOOL bDisable)
{
    if (m_host != nullptr)
        m_host->restoreDocking = bDisable == FALSE;
}

// The workspace. Which panes have something stored is told by their keys, where all are by one value, written at once:
// a program that ends in between leaves the former arrangement, perhaps with keys that the next save takes away.

BOOL CDockingManager::SaveState(LPCTSTR lpszProfileName, UINT)
{
    CWinApp * const app = AfxGetApp();
    if (app == nullptr || m_host == nullptr)
        return FALSE;
    std::vector<std::uint8_t> bytes = m_host->Save();
    std::optional<framework::DockLayout> const stored = framework::DockLayout::Load(bytes);
    if (!stored)
        return FALSE;
    bool written = true;
    DockHost::Life const life(*m_host);
    for (auto const & [id, known] : stored->Panes())
    {
        CBasePane * const pane = m_host->FindBar(id);
        if (pane != nullptr)
            written = pane->SaveState(lpszProfileName, -1, id) && written;
        if (!life)
            return FALSE;
    }
    return app->WriteProfileBinary(Section(lpszProfileName, L"DockingManager"), layout_entry, bytes.data(),
                                   static_cast<UINT>(bytes.size())) &&
           written;
}

BOOL CDockingManager::LoadState(LPCTSTR lpszProfileName, UINT)
{
    CWinApp * const app = AfxGetApp();
    if (app == nullptr || m_host == nullptr || !m_host->restoreDocking)
        return FALSE;
    BYTE * data = nullptr;
    UINT size = 0;
    if (!app->GetProfileBinary(Section(lpszProfileName, L"DockingManager"), layout_entry, &data, &size))
        return FALSE;
    std::vector<std::uint8_t> const bytes(data, data + size);
    delete[] data;
    return m_host->Load(bytes,
                        [&](UINT id) { return KeyExists(*app, Section(lpszProfileName, KeyOf(L"BasePane", id))); });
}
