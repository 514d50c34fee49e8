// CWnd: commands and notifications, and how a control gets those that it sent its parent.

#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

using framework::ControlColour;

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

namespace
{
/// Only asks whether a command is enabled.
class EnabledTest : public CCmdUI
{
public:
    void Enable(BOOL bOn) override { m_enabled = bOn; }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}

    BOOL m_enabled = TRUE;
};
} // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    UINT const id = LOWORD(wParam);
    auto const control = reinterpret_cast<HWND>(lParam);
    if (control == nullptr)
    {
        if (id == 0)
            return FALSE;
        EnabledTest test;
        test.m_nID = id;
        HWND const handle = m_hWnd;
        OnCmdMsg(id, static_cast<int>(CN_UPDATE_COMMAND_UI), &test, nullptr);
        if (!test.m_enabled || FromHandlePermanent(handle) != this)
            return TRUE; // not to be done, or the handler has ended the window
        return OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
    }
    if (framework::CurrentThreadState().lockedOut == m_hWnd || ReflectLastMsg(control))
        return TRUE;
    if (id == 0)
        return FALSE;
    return OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT * pResult)
{
    auto * const header = reinterpret_cast<NMHDR *>(lParam);
    HWND const control = header->hwndFrom;
    // The id is the sender's own: idFrom may be something else, such as a tool's window.
    UINT const id = static_cast<WORD>(::GetDlgCtrlID(control));
    if (framework::CurrentThreadState().lockedOut == m_hWnd || ReflectLastMsg(control, pResult))
        return TRUE;
    AFX_NOTIFY notification{pResult, header};
    return OnCmdMsg(id, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notification, nullptr);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT * pResult)
{
    CWnd * const child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT * pResult)
{
    MSG const message = framework::CurrentThreadState().lastSentMessage;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    switch (message)
    {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    case WM_COMPAREITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);
    case WM_COMMAND:
        if (!CWnd::OnCmdMsg(0, static_cast<int>(MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND)), nullptr,
                            nullptr))
            return FALSE;
        if (pResult != nullptr)
            *pResult = 1;
        return TRUE;
    case WM_NOTIFY: {
        LRESULT unused = 0;
        auto * const header = reinterpret_cast<NMHDR *>(lParam);
        AFX_NOTIFY notification{pResult != nullptr ? pResult : &unused, header};
        return CWnd::OnCmdMsg(0, static_cast<int>(MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY)), &notification,
                              nullptr);
    }
    default:
        break;
    }
    if (message < WM_CTLCOLORMSGBOX || message > WM_CTLCOLORSTATIC)
        return FALSE;
    ControlColour colour{m_hWnd, reinterpret_cast<HDC>(wParam), message - WM_CTLCOLORMSGBOX};
    LRESULT brush = 0;
    BOOL const handled = CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&colour), &brush);
    if (!handled || brush == 0)
        return FALSE;
    if (pResult != nullptr)
        *pResult = brush;
    return TRUE;
}

LRESULT CWnd::OnNtCtlColor(WPARAM wParam, LPARAM lParam)
{
    UINT const kind = GetCurrentMessage()->message - WM_CTLCOLORMSGBOX;
    ControlColour colour{reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam), kind};
    LRESULT brush = 0;
    if (!OnWndMsg(WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&colour), &brush) || brush == 0)
        return Default();
    return brush;
}

HBRUSH CWnd::OnCtlColor(CDC *, CWnd * pWnd, UINT)
{
    LRESULT brush = 0;
    if (pWnd->SendChildNotifyLastMsg(&brush))
        return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(Default());
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    LRESULT result = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &result))
        return static_cast<int>(result);
    return static_cast<int>(Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->CtlType == ODT_MENU)
    {
        auto const handle = reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem);
        if (CMenu * const menu = framework::MenuMap().LookupPermanent(handle))
        {
            menu->DrawItem(lpDrawItemStruct);
            return;
        }
    }
    else if (ReflectLastMsg(lpDrawItemStruct->hwndItem))
        return;
    Default();
}

namespace
{
/// The object of the menu that holds a command, looked for from a menu downwards.
CMenu * FindMenuOfCommand(HMENU menu, UINT id)
{
    int const count = ::GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position)
    {
        HMENU const popup = ::GetSubMenu(menu, position);
        if (popup != nullptr)
        {
            if (CMenu * const found = FindMenuOfCommand(popup, id))
                return found;
        }
        else if (::GetMenuItemID(menu, position) == id)
            return framework::MenuMap().LookupPermanent(menu);
    }
    return nullptr;
}
} // namespace

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct->CtlType == ODT_MENU)
    {
        HMENU const used = framework::CurrentThreadState().menuInUse;
        CMenu * const menu = FindMenuOfCommand(used != nullptr ? used : ::GetMenu(m_hWnd), lpMeasureItemStruct->itemID);
        if (menu != nullptr)
        {
            menu->MeasureItem(lpMeasureItemStruct);
            return;
        }
    }
    else if (CWnd * const child = GetDescendantWindow(static_cast<int>(lpMeasureItemStruct->CtlID), TRUE))
    {
        if (child->SendChildNotifyLastMsg())
            return;
    }
    Default();
}

int CWnd::OnCharToItem(UINT, CListBox * pListBox, UINT)
{
    LRESULT result = 0;
    if (pListBox->SendChildNotifyLastMsg(&result))
        return static_cast<int>(result);
    return static_cast<int>(Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox * pListBox, UINT)
{
    LRESULT result = 0;
    if (pListBox->SendChildNotifyLastMsg(&result))
        return static_cast<int>(result);
    return static_cast<int>(Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar * pScrollBar)
{
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar * pScrollBar)
{
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    bool const child = LOWORD(message) == WM_CREATE || LOWORD(message) == WM_DESTROY;
    if (!child || !ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        Default();
}
