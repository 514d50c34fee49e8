// CFrameWnd: commands, menus, titles, message texts, layout.

#include "afxpriv.h"
#include <shellapi.h>

#include "detail/FrameSupport.h"
#include "detail/MenuMode.h"
#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

using framework::CmdUiAccess;
using framework::WindowGuard;

namespace
{
constexpr UINT first_system_command = 0xF000;
constexpr UINT last_system_command = 0xF1F0;
constexpr UINT first_framework_id = 0xF000; // items from here on aren't greyed for want of a handler
} // namespace

void framework::ChangeWindowText(HWND window, LPCTSTR text)
{
    CString present;
    int const length = ::GetWindowTextLength(window);
    ::GetWindowText(window, present.GetBuffer(length + 1), length + 1);
    present.ReleaseBuffer();
    if (present != text)
        ::SetWindowText(window, text);
}

BOOL CFrameWnd::PreTranslateMessage(MSG * pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST)
        return FALSE;
    HACCEL const accelerators = GetDefaultAccelerator();
    return accelerators != nullptr && ::TranslateAccelerator(m_hWnd, accelerators, pMsg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    WindowGuard const guard(this);
    if (CView * const view = GetActiveView())
    {
        if (view->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
            return TRUE;
        if (!guard.Alive())
            return TRUE; // a handler that leaves the command to others has ended the frame
    }
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp * const app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    return CWnd::OnCommand(wParam, lParam);
}

void CFrameWnd::OnInitMenuPopup(CMenu * pPopupMenu, UINT, BOOL bSysMenu)
{
    if (bSysMenu || pPopupMenu == nullptr)
        return;
    WindowGuard const guard(this);
    HMENU const menu = pPopupMenu->m_hMenu;
    CCmdUI state;
    state.m_pMenu = pPopupMenu;
    // A menu of the bar knows its bar; one that is tracked alone is its own.
    if (framework::CurrentThreadState().menuInUse == menu)
        CmdUiAccess::SetParentMenu(state, pPopupMenu);
    else
    {
        CWnd * const top = GetTopLevelParent();
        HMENU const bar = top != nullptr ? ::GetMenu(top->m_hWnd) : nullptr;
        int const count = bar != nullptr ? ::GetMenuItemCount(bar) : 0;
        for (int at = 0; at < count; ++at)
        {
            if (::GetSubMenu(bar, at) == menu)
            {
                CmdUiAccess::SetParentMenu(state, CMenu::FromHandle(bar));
                break;
            }
        }
    }
    int total = ::GetMenuItemCount(menu);
    CmdUiAccess::SetIndexMax(state, static_cast<UINT>(total));
    for (int at = 0; at < total; ++at)
    {
        state.m_nIndex = static_cast<UINT>(at);
        state.m_nID = ::GetMenuItemID(menu, at);
        if (state.m_nID == 0)
            continue; // a separator
        if (state.m_nID == static_cast<UINT>(-1))
        {
            // A menu below this one is asked about by its first item, and never greyed by itself.
            HMENU const below = ::GetSubMenu(menu, at);
            state.m_nID = below != nullptr ? ::GetMenuItemID(below, 0) : 0;
            if (state.m_nID == 0 || state.m_nID == static_cast<UINT>(-1))
                continue;
            state.m_pSubMenu = CMenu::FromHandle(below);
            CmdUiAccess::DoUpdate(state, this, FALSE);
        }
        else
        {
            state.m_pSubMenu = nullptr;
            CmdUiAccess::DoUpdate(state, this, m_bAutoMenuEnable && state.m_nID < first_framework_id);
        }
        if (!guard.Alive() || !::IsMenu(menu))
            return;
        // Handlers may put items in and take them out.
        int const count = ::GetMenuItemCount(menu);
        if (count != total)
        {
            at = static_cast<int>(state.m_nIndex);
            if (count < total)
            {
                at -= total - count;
                while (at + 1 >= 0 && at + 1 < count && at >= 0 && ::GetMenuItemID(menu, at + 1) == state.m_nID)
                    ++at;
                if (at < -1)
                    at = -1;
            }
            total = count;
        }
        else
            at = static_cast<int>(state.m_nIndex);
        CmdUiAccess::SetIndexMax(state, static_cast<UINT>(total));
    }
}

void CFrameWnd::OnMenuSelect(UINT nItemID, UINT nFlags, HMENU)
{
    if (nFlags == 0xFFFF)
        m_messageTracking = AFX_IDS_IDLEMESSAGE; // the menu is closed
    else if (nItemID == 0 || (nFlags & (MF_SEPARATOR | MF_POPUP)) != 0)
        m_messageTracking = 0;
    else if (nItemID >= first_system_command && nItemID < last_system_command)
        m_messageTracking = ((nItemID - first_system_command) >> 4) + AFX_IDS_SCFIRST;
    else if (nItemID >= AFX_IDM_FIRST_MDICHILD)
        m_messageTracking = AFX_IDS_MDICHILD;
    else
        m_messageTracking = nItemID;
    // A child frame's menu is tracked by the frame around it, where idle time finds it.
    if (m_messageTracking != m_messageShown && GetParent() != nullptr)
        PostMessage(WM_KICKIDLE);
}

void CFrameWnd::OnEnterIdle(UINT nWhy, CWnd * pWho)
{
    CWnd::OnEnterIdle(nWhy, pWho);
    if (nWhy == MSGF_MENU && m_messageTracking != m_messageShown)
        SetMessageText(m_messageTracking);
}

LRESULT CFrameWnd::HandleIdleUpdate(WPARAM, LPARAM)
{
    WindowGuard const guard(this);
    if (m_messageTracking != m_messageShown)
        SetMessageText(m_messageTracking);
    if (guard.Alive() && m_layoutPending)
        RecalcLayout();
    return 0;
}

void CFrameWnd::GetMessageString(UINT nID, CString & rMessage) const
{
    rMessage.Empty();
    CString text;
    if (!text.LoadString(nID))
        return;
    // The second line is for tool tips.
    int const end = text.Find(L'\n');
    rMessage = end >= 0 ? text.Left(end) : text;
}

CWnd * CFrameWnd::GetMessageBar()
{
    return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE);
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText)
{
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CFrameWnd::SetMessageText(UINT nID)
{
    SendMessage(WM_SETMESSAGESTRING, nID, 0);
}

BOOL CFrameWnd::IsTracking() const
{
    return m_messageTracking != 0 && m_messageTracking != AFX_IDS_IDLEMESSAGE;
}

LRESULT CFrameWnd::HandleSetMessageString(WPARAM wParam, LPARAM lParam)
{
    WindowGuard const guard(this);
    UINT const last = m_messageShown;
    auto const id = static_cast<UINT>(wParam);
    if (CWnd * const bar = GetMessageBar())
    {
        CString text;
        if (lParam != 0)
            text = reinterpret_cast<LPCTSTR>(lParam);
        else if (id != 0)
            GetMessageString(id, text);
        CFrameWnd * const owner = bar->GetParentFrame();
        WindowGuard const ownerGuard(owner);
        bar->SetWindowText(text);
        if (ownerGuard.Alive())
        {
            owner->m_messageShown = id;
            owner->m_messageTracking = id;
        }
    }
    if (guard.Alive())
    {
        m_messageShown = id;
        m_messageTracking = id;
    }
    return last;
}

CString CFrameWnd::GetTitle() const
{
    return m_title;
}

void CFrameWnd::SetTitle(LPCTSTR lpszTitle)
{
    m_title = lpszTitle;
}

void CFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    if ((GetStyle() & FWS_ADDTOTITLE) == 0)
        return;
    CDocument const * const document = GetActiveDocument();
    if (bAddToTitle && document != nullptr)
        UpdateFrameTitleForDocument(document->GetTitle());
    else
        UpdateFrameTitleForDocument(nullptr);
}

void CFrameWnd::UpdateFrameTitleForDocument(LPCTSTR lpszDocName)
{
    CString name(lpszDocName);
    if (lpszDocName != nullptr && m_number > 0)
        name.AppendFormat(L":%d", m_number);
    CString title;
    if (lpszDocName == nullptr)
        title = m_title;
    else if ((GetStyle() & FWS_PREFIXTITLE) != 0)
        title = name + L" - " + m_title;
    else
        title = m_title + L" - " + name;
    framework::ChangeWindowText(m_hWnd, title);
}

void CFrameWnd::OnUpdateFrameMenu(HMENU hMenuAlt)
{
    if (framework::ShowMenuInBar(m_hWnd, hMenuAlt))
        return;
    ::SetMenu(m_hWnd, hMenuAlt != nullptr ? hMenuAlt : m_defaultMenu);
}

void CFrameWnd::RecalcLayout(BOOL)
{
    if (m_inLayout)
        return;
    m_inLayout = true;
    m_layoutPending = false;
    WindowGuard const guard(this);
    if ((GetStyle() & FWS_SNAPTOBARS) != 0)
    {
        CRect rect(0, 0, 32767, 32767);
        RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposQuery, &rect, &rect, FALSE);
        if (guard.Alive())
            RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, &m_border, &rect, TRUE);
        if (guard.Alive())
        {
            CalcWindowRect(&rect);
            SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(), SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOZORDER);
        }
    }
    else
        RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, &m_border);
    if (guard.Alive())
        m_inLayout = false;
}

BOOL CFrameWnd::NegotiateBorderSpace(UINT nBorderCmd, LPRECT lpRectBorder)
{
    switch (nBorderCmd)
    {
    case borderGet: {
        CRect rect;
        GetClientRect(&rect);
        RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposQuery, lpRectBorder, &rect);
        return TRUE;
    }
    case borderRequest:
        return TRUE;
    case borderSet: {
        CRect const wanted = lpRectBorder != nullptr ? CRect(lpRectBorder) : CRect(0, 0, 0, 0);
        if (wanted == m_border)
            return FALSE; // nothing has changed
        m_border = wanted;
        return TRUE;
    }
    default:
        ASSERT(FALSE);
        return FALSE;
    }
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    WindowGuard const guard(this);
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED && guard.Alive())
        RecalcLayout();
}

BOOL CFrameWnd::OnEraseBkgnd(CDC * pDC)
{
    if (m_activeView != nullptr && m_activeView->IsWindowVisible())
        return TRUE; // the view covers the frame
    return CWnd::OnEraseBkgnd(pDC);
}

void CFrameWnd::OnHScroll(UINT, UINT, CScrollBar *)
{
    MSG const message = *GetCurrentMessage();
    if (CView * const view = GetActiveView())
        view->SendMessage(WM_HSCROLL, message.wParam, message.lParam);
}

void CFrameWnd::OnVScroll(UINT, UINT, CScrollBar *)
{
    MSG const message = *GetCurrentMessage();
    if (CView * const view = GetActiveView())
        view->SendMessage(WM_VSCROLL, message.wParam, message.lParam);
}

void CFrameWnd::OnDropFiles(HDROP hDropInfo)
{
    SetActiveWindow();
    UINT const count = ::DragQueryFile(hDropInfo, 0xFFFFFFFF, nullptr, 0);
    for (UINT file = 0; file < count; ++file)
    {
        CString name;
        UINT const length = ::DragQueryFile(hDropInfo, file, nullptr, 0);
        ::DragQueryFile(hDropInfo, file, name.GetBuffer(static_cast<int>(length)), length + 1);
        name.ReleaseBuffer();
        if (CWinApp * const app = AfxGetApp())
            app->OpenDocumentFile(name);
    }
    ::DragFinish(hDropInfo);
}

void CFrameWnd::OnHelp()
{
    if (CWinApp * const app = AfxGetApp())
        app->WinHelp(m_helpId, HELP_CONTEXT);
}

void CFrameWnd::OnHelpIndex()
{
    if (CWinApp * const app = AfxGetApp())
        app->WinHelp(0, HELP_INDEX);
}

void CFrameWnd::OnHelpFinder()
{
    if (CWinApp * const app = AfxGetApp())
        app->WinHelp(0, HELP_FINDER);
}

void CFrameWnd::OnHelpUsing()
{
    if (CWinApp * const app = AfxGetApp())
        app->WinHelp(0, HELP_HELPONHELP);
}

void CFrameWnd::OnContextHelp()
{
    OnHelp();
}
