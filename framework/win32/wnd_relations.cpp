// CWnd: parents, owners, children, and what is done with all of them.

#include "afxpriv.h"

#include <algorithm>

#include "detail/ChildWalk.h"
#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

namespace
{
bool IsChildStyle(HWND window)
{
    return (::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD) != 0;
}

HWND ParentOrOwner(HWND window)
{
    if (CWnd const * const object = CWnd::FromHandlePermanent(window))
        return framework::SafeHandle(object->GetOwner());
    return IsChildStyle(window) ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
}

CWnd * Object(HWND window, BOOL onlyPermanent)
{
    return onlyPermanent ? CWnd::FromHandlePermanent(window) : CWnd::FromHandle(window);
}

CWnd * FindDescendant(HWND window, int id, BOOL onlyPermanent)
{
    HWND const child = ::GetDlgItem(window, id);
    if (child != nullptr)
    {
        // A descendant with the same id comes before the child that holds it.
        if (::GetTopWindow(child) != nullptr)
        {
            if (CWnd * const found = FindDescendant(child, id, onlyPermanent))
                return found;
        }
        if (CWnd * const object = Object(child, onlyPermanent))
            return object;
    }
    for (HWND next = ::GetTopWindow(window); next != nullptr; next = ::GetWindow(next, GW_HWNDNEXT))
    {
        if (CWnd * const found = FindDescendant(next, id, onlyPermanent))
            return found;
    }
    return nullptr;
}
} // namespace

void framework::SendMessageToDescendants(HWND window, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                         BOOL onlyPermanent)
{
    ChildWalk children(window);
    while (HWND const child = children.Next())
    {
        if (!onlyPermanent)
            ::SendMessage(child, message, wParam, lParam);
        else if (CWnd * const object = CWnd::FromHandlePermanent(child))
            AfxCallWndProc(object, object->m_hWnd, message, wParam, lParam);
        if (deep && ::GetTopWindow(child) != nullptr)
            SendMessageToDescendants(child, message, wParam, lParam, deep, onlyPermanent);
    }
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm)
{
    framework::SendMessageToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
}

CWnd * CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}

CWnd * CWnd::SetParent(CWnd * pWndNewParent)
{
    return FromHandle(::SetParent(m_hWnd, framework::SafeHandle(pWndNewParent)));
}

CWnd * CWnd::GetOwner() const
{
    return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent();
}

void CWnd::SetOwner(CWnd * pOwnerWnd)
{
    m_hWndOwner = framework::SafeHandle(pOwnerWnd);
}

CWnd * CWnd::GetAncestor(UINT gaFlags) const
{
    return FromHandle(::GetAncestor(m_hWnd, gaFlags));
}

CWnd * CWnd::GetParentOwner() const
{
    HWND window = GetSafeHwnd();
    while (window != nullptr && IsChildStyle(window))
    {
        HWND const parent = ::GetParent(window);
        if (parent == nullptr)
            break;
        window = parent;
    }
    return FromHandle(window);
}

CWnd * CWnd::GetTopLevelParent() const
{
    HWND window = GetSafeHwnd();
    if (window == nullptr)
        return nullptr;
    while (HWND const above = ParentOrOwner(window))
        window = above;
    return FromHandle(window);
}

CWnd * CWnd::GetTopLevelOwner() const
{
    HWND window = GetSafeHwnd();
    if (window == nullptr)
        return nullptr;
    while (HWND const owner = ::GetWindow(window, GW_OWNER))
        window = owner;
    return FromHandle(window);
}

CFrameWnd * CWnd::GetParentFrame() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    for (CWnd * window = GetParent(); window != nullptr; window = window->GetParent())
    {
        if (window->IsFrameWnd())
            return reinterpret_cast<CFrameWnd *>(window);
    }
    return nullptr;
}

CFrameWnd * CWnd::GetTopLevelFrame() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    CWnd * frame = const_cast<CWnd *>(this);
    if (!IsFrameWnd())
        frame = reinterpret_cast<CWnd *>(GetParentFrame());
    while (frame != nullptr)
    {
        CWnd * const above = reinterpret_cast<CWnd *>(frame->GetParentFrame());
        if (above == nullptr)
            break;
        frame = above;
    }
    return reinterpret_cast<CFrameWnd *>(frame);
}

HWND framework::FindSafeOwner(HWND parent, HWND * topLevel)
{
    HWND owner = parent;
    if (owner == nullptr)
        owner = framework::SafeHandle(AfxGetMainWnd());
    while (owner != nullptr && IsChildStyle(owner))
        owner = ::GetParent(owner);
    HWND top = owner;
    for (HWND above = owner; above != nullptr; above = ::GetParent(above))
        top = above;
    if (parent == nullptr && owner != nullptr)
        owner = ::GetLastActivePopup(owner);
    if (topLevel != nullptr)
    {
        *topLevel = nullptr;
        if (top != nullptr && top != owner && ::IsWindowEnabled(top))
        {
            *topLevel = top;
            ::EnableWindow(top, FALSE);
        }
    }
    return owner;
}

CWnd * CWnd::GetSafeOwner(CWnd * pParent, HWND * pWndTop)
{
    return FromHandle(framework::FindSafeOwner(framework::SafeHandle(pParent), pWndTop));
}

CWnd * CWnd::GetWindow(UINT nCmd) const
{
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

CWnd * CWnd::GetNextWindow(UINT nFlag) const
{
    return FromHandle(::GetWindow(m_hWnd, nFlag));
}

CWnd * CWnd::GetTopWindow() const
{
    return FromHandle(::GetTopWindow(m_hWnd));
}

CWnd * CWnd::GetLastActivePopup() const
{
    return FromHandle(::GetLastActivePopup(m_hWnd));
}

BOOL CWnd::IsChild(const CWnd * pWnd) const
{
    return ::IsChild(m_hWnd, framework::SafeHandle(pWnd));
}

CWnd * CWnd::ChildWindowFromPoint(POINT point) const
{
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd * CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const
{
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}

CWnd * PASCAL CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName)
{
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}

CWnd * CWnd::FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass, LPCTSTR lpszWindow)
{
    return FromHandle(::FindWindowEx(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
}

CWnd * PASCAL CWnd::WindowFromPoint(POINT point)
{
    return FromHandle(::WindowFromPoint(point));
}

CWnd * CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const
{
    return FindDescendant(m_hWnd, nID, bOnlyPerm);
}

int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID)
{
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID));
}

CWnd * CWnd::GetDlgItem(int nID) const
{
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}

void CWnd::GetDlgItem(int nID, HWND * phWnd) const
{
    ASSERT(phWnd != nullptr);
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}

void CWnd::CenterWindow(CWnd * pAlternateOwner)
{
    bool const child = (GetStyle() & WS_CHILD) != 0;
    HWND centre = framework::SafeHandle(pAlternateOwner);
    if (centre == nullptr)
        centre = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    if (!child && centre != nullptr)
    {
        auto const other = reinterpret_cast<HWND>(::SendMessage(centre, WM_QUERYCENTERWND, 0, 0));
        if (other != nullptr)
            centre = other;
    }
    CRect area;
    CRect middle;
    if (child)
    {
        HWND const parent = ::GetParent(m_hWnd);
        ::GetClientRect(parent, &area);
        ::GetClientRect(centre, &middle);
        ::MapWindowPoints(centre, parent, reinterpret_cast<LPPOINT>(&middle), 2);
    }
    else
    {
        if (centre != nullptr && (!::IsWindowVisible(centre) || ::IsIconic(centre)))
            centre = nullptr;
        HWND const reference = centre != nullptr ? centre : framework::SafeHandle(AfxGetMainWnd());
        MONITORINFO monitor{};
        monitor.cbSize = sizeof monitor;
        ::GetMonitorInfo(
            ::MonitorFromWindow(reference, centre != nullptr ? MONITOR_DEFAULTTONEAREST : MONITOR_DEFAULTTOPRIMARY),
            &monitor);
        area = monitor.rcWork;
        if (centre != nullptr)
            ::GetWindowRect(centre, &middle);
        else
            middle = area;
    }
    CRect own;
    GetWindowRect(&own);
    int left = (middle.left + middle.right) / 2 - own.Width() / 2;
    int top = (middle.top + middle.bottom) / 2 - own.Height() / 2;
    left = std::max<int>(std::min<int>(left, area.right - own.Width()), area.left);
    top = std::max<int>(std::min<int>(top, area.bottom - own.Height()), area.top);
    SetWindowPos(nullptr, left, top, -1, -1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch)
{
    constexpr int most_passes = 8;
    HWND const window = m_hWnd;
    bool const query = (nFlag & ~reposNoPosLeftOver) == reposQuery;
    AFX_SIZEPARENTPARAMS layout{};
    HWND leftOver = nullptr;
    // A bar that ends meanwhile leaves its place to the others.
    bool again = true;
    for (int pass = 0; again && pass < most_passes; ++pass)
    {
        if (layout.hDWP != nullptr)
            ::EndDeferWindowPos(layout.hDWP);
        layout = {};
        layout.bStretch = bStretch;
        if (lpRectClient != nullptr)
            layout.rect = *lpRectClient;
        else
            ::GetClientRect(window, &layout.rect);
        if (!query)
            layout.hDWP = ::BeginDeferWindowPos(8);
        leftOver = nullptr;
        framework::ChildWalk children(window);
        while (HWND const child = children.Next())
        {
            auto const id = static_cast<UINT>(static_cast<WORD>(::GetDlgCtrlID(child)));
            if (id == nIDLeftOver)
                leftOver = child;
            else if (id >= nIDFirst && id <= nIDLast && FromHandlePermanent(child) != nullptr)
                ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
        }
        again = children.HasLost() && ::IsWindow(window);
        if (leftOver != nullptr && !children.IsChild(leftOver))
            leftOver = nullptr;
    }
    if (query)
    {
        if (bStretch)
            *lpRectParam = layout.rect;
        else
            ::SetRect(lpRectParam, 0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy);
        return;
    }
    if (nIDLeftOver != 0 && leftOver != nullptr && (nFlag & reposNoPosLeftOver) == 0)
    {
        if ((nFlag & ~reposNoPosLeftOver) == reposExtra)
        {
            layout.rect.left += lpRectParam->left;
            layout.rect.top += lpRectParam->top;
            layout.rect.right -= lpRectParam->right;
            layout.rect.bottom -= lpRectParam->bottom;
        }
        FromHandle(leftOver)->CalcWindowRect(&layout.rect);
        if (layout.hDWP != nullptr)
        {
            layout.hDWP = ::DeferWindowPos(layout.hDWP, leftOver, nullptr, layout.rect.left, layout.rect.top,
                                           layout.rect.right - layout.rect.left, layout.rect.bottom - layout.rect.top,
                                           SWP_NOACTIVATE | SWP_NOZORDER);
        }
    }
    if (layout.hDWP != nullptr)
        ::EndDeferWindowPos(layout.hDWP);
}
