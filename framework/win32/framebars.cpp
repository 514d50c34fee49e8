// CFrameWnd: its bars.

#include <afxext.h>
#include <afxpriv.h>

#include <vector>

#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

namespace
{
/// The bars that belong to the window, also those in other bars, in the order of the layout.
void CollectBars(HWND window, std::vector<CControlBar *> & bars)
{
    for (HWND child = ::GetTopWindow(window); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        auto * const bar = DYNAMIC_DOWNCAST(CControlBar, CWnd::FromHandlePermanent(child));
        if (bar == nullptr)
            continue;
        bars.push_back(bar);
        CollectBars(child, bars);
    }
}

CString BarSection(LPCTSTR profileName, int number)
{
    CString section;
    section.Format(L"%s-Bar%d", profileName, number);
    return section;
}

CString SummarySection(LPCTSTR profileName)
{
    return CString(profileName) + L"-Summary";
}

constexpr wchar_t count_entry[] = L"Bars";
constexpr wchar_t id_entry[] = L"BarID";
constexpr wchar_t visible_entry[] = L"Visible";
constexpr wchar_t side_entry[] = L"Side";
} // namespace

CControlBar * CFrameWnd::GetControlBar(UINT nID)
{
    if (nID == 0)
        return nullptr;
    std::vector<CControlBar *> bars;
    CollectBars(m_hWnd, bars);
    for (CControlBar * const bar : bars)
    {
        if (static_cast<WORD>(bar->GetDlgCtrlID()) == nID)
            return bar;
    }
    return nullptr;
}

void CFrameWnd::LayOutSoon()
{
    m_layoutPending = true;
}

void CFrameWnd::ShowControlBar(CControlBar * pBar, BOOL bShow, BOOL bDelay)
{
    ASSERT(pBar != nullptr);
    if (bDelay)
    {
        pBar->DelayShow(bShow);
        LayOutSoon();
        PostMessage(WM_NULL); // idle time comes after a message
        return;
    }
    WindowGuard const guard(this);
    pBar->m_delay = CControlBar::Delay::none;
    pBar->SetWindowPos(nullptr, 0, 0, 0, 0,
                       SWP_NOZORDER | SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE |
                           (bShow ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    if (guard.Alive())
        RecalcLayout();
}

BOOL CFrameWnd::OnBarCheck(UINT nID)
{
    CControlBar * const bar = GetControlBar(nID);
    if (bar == nullptr)
        return FALSE;
    ShowControlBar(bar, !bar->IsToBeVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI * pCmdUI)
{
    CControlBar const * const bar = GetControlBar(pCmdUI->m_nID);
    if (bar == nullptr)
    {
        pCmdUI->ContinueRouting(); // a frame further out may have it
        return;
    }
    pCmdUI->SetCheck(bar->IsToBeVisible());
}

void CFrameWnd::UpdateKeyIndicator(CCmdUI * pCmdUI)
{
    int key = 0;
    switch (pCmdUI->m_nID)
    {
    case ID_INDICATOR_CAPS:
        key = VK_CAPITAL;
        break;
    case ID_INDICATOR_NUM:
        key = VK_NUMLOCK;
        break;
    case ID_INDICATOR_SCRL:
        key = VK_SCROLL;
        break;
    case ID_INDICATOR_KANA:
        key = VK_KANA;
        break;
    default:
        pCmdUI->ContinueRouting();
        return;
    }
    pCmdUI->Enable((::GetKeyState(key) & 1) != 0);
}

BOOL CFrameWnd::HandleToolTipText(UINT, NMHDR * pNMHDR, LRESULT * pResult)
{
    auto * const text = reinterpret_cast<NMTTDISPINFO *>(pNMHDR);
    UINT_PTR id = pNMHDR->idFrom;
    if ((text->uFlags & TTF_IDISHWND) != 0)
        id = static_cast<WORD>(::GetDlgCtrlID(reinterpret_cast<HWND>(pNMHDR->idFrom)));
    if (id == 0 || id > 0xFFFF)
        return FALSE;
    CString strings;
    CString tip;
    if (!strings.LoadString(static_cast<UINT>(id)) || !AfxExtractSubString(tip, strings, 1, L'\n'))
        return FALSE;
    ::lstrcpyn(text->szText, tip, static_cast<int>(std::size(text->szText)));
    text->lpszText = text->szText;
    *pResult = 0;
    return TRUE;
}

void CFrameWnd::EnableDocking(DWORD dwDockStyle)
{
    m_dockStyle = dwDockStyle & (CBRS_ALIGN_ANY | CBRS_FLOAT_MULTI);
}

void CFrameWnd::DockControlBar(CControlBar * pBar, UINT nDockBarID, LPCRECT)
{
    ASSERT(pBar != nullptr && ::IsWindow(pBar->m_hWnd));
    DWORD side = pBar->GetBarStyle() & CBRS_ALIGN_ANY;
    switch (nDockBarID)
    {
    case AFX_IDW_DOCKBAR_TOP:
        side = CBRS_ALIGN_TOP;
        break;
    case AFX_IDW_DOCKBAR_LEFT:
        side = CBRS_ALIGN_LEFT;
        break;
    case AFX_IDW_DOCKBAR_RIGHT:
        side = CBRS_ALIGN_RIGHT;
        break;
    case AFX_IDW_DOCKBAR_BOTTOM:
        side = CBRS_ALIGN_BOTTOM;
        break;
    default:
        break;
    }
    if (side == 0)
        side = CBRS_ALIGN_TOP;
    // Where neither bar nor frame allows that side, it stays where it is.
    if (nDockBarID != 0 && (pBar->m_dockStyle & m_dockStyle & side) == 0)
        return;
    WindowGuard const guard(this);
    WindowGuard const bar(pBar);
    pBar->SetBarStyle((pBar->GetBarStyle() & ~static_cast<DWORD>(CBRS_ALIGN_ANY)) | side);
    if (!guard.Alive() || !bar.Alive())
        return;
    // The layout takes the bars in the order of the windows; a status bar keeps its place at the edge.
    CWnd * after = nullptr;
    std::vector<CControlBar *> bars;
    CollectBars(m_hWnd, bars);
    for (CControlBar * const other : bars)
    {
        if (other != pBar && other->GetParent() == this && (other->GetBarStyle() & CBRS_ALIGN_ANY) == side)
            after = other;
    }
    if (after != nullptr && pBar->GetParent() == this)
        pBar->SetWindowPos(after, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    if (guard.Alive())
        RecalcLayout();
}

void CFrameWnd::SaveBarState(LPCTSTR lpszProfileName) const
{
    CWinApp * const app = AfxGetApp();
    if (app == nullptr)
        return;
    std::vector<CControlBar *> bars;
    CollectBars(m_hWnd, bars);
    int number = 0;
    for (CControlBar * const bar : bars)
    {
        CString const section = BarSection(lpszProfileName, number++);
        app->WriteProfileString(section, nullptr, nullptr);
        app->WriteProfileInt(section, id_entry, static_cast<WORD>(bar->GetDlgCtrlID()));
        app->WriteProfileInt(section, visible_entry, bar->IsToBeVisible());
        app->WriteProfileInt(section, side_entry, static_cast<int>(bar->GetBarStyle() & CBRS_ALIGN_ANY));
    }
    app->WriteProfileInt(SummarySection(lpszProfileName), count_entry, number);
}

void CFrameWnd::LoadBarState(LPCTSTR lpszProfileName)
{
    CWinApp * const app = AfxGetApp();
    if (app == nullptr)
        return;
    WindowGuard const guard(this);
    constexpr int most_bars = AFX_IDW_CONTROLBAR_LAST - AFX_IDW_CONTROLBAR_FIRST + 1;
    int const count =
        std::min<int>(static_cast<int>(app->GetProfileInt(SummarySection(lpszProfileName), count_entry, 0)), most_bars);
    for (int number = 0; number < count && guard.Alive(); ++number)
    {
        CString const section = BarSection(lpszProfileName, number);
        CControlBar * const bar = GetControlBar(app->GetProfileInt(section, id_entry, 0));
        if (bar == nullptr)
            continue;
        bar->DelayShow(static_cast<BOOL>(app->GetProfileInt(section, visible_entry, TRUE)));
        DWORD const side = app->GetProfileInt(section, side_entry, 0) & CBRS_ALIGN_ANY;
        if ((bar->m_dockStyle & m_dockStyle & side) == side && side != 0 && (side & (side - 1)) == 0)
            bar->SetBarStyle((bar->GetBarStyle() & ~static_cast<DWORD>(CBRS_ALIGN_ANY)) | side);
    }
    if (guard.Alive())
        RecalcLayout();
}

void CFrameWnd::OnSetPreviewMode(BOOL bPreview, CPrintPreviewState * pState)
{
    ASSERT(pState != nullptr);
    WindowGuard const guard(this);
    if (bPreview)
    {
        m_hiddenByPreview.RemoveAll();
        std::vector<CControlBar *> bars;
        CollectBars(m_hWnd, bars);
        for (CControlBar * const bar : bars)
        {
            UINT const place = static_cast<WORD>(bar->GetDlgCtrlID()) - static_cast<UINT>(AFX_IDW_CONTROLBAR_FIRST);
            bool const stays = place < 32 && (pState->dwStates >> place & 1) != 0;
            if (stays || bar->GetParent() != this || !bar->IsToBeVisible())
                continue;
            m_hiddenByPreview.Add(bar->m_hWnd);
            ShowControlBar(bar, FALSE, TRUE);
        }
        m_previewClose = pState->lpfnCloseProc;
        pState->hAccelTable = std::exchange(m_hAccelTable, nullptr);
        pState->hMenu = ::GetMenu(m_hWnd);
        if (pState->hMenu != nullptr)
            ::SetMenu(m_hWnd, nullptr);
        if (HWND const pane = guard.Alive() ? ::GetDlgItem(m_hWnd, static_cast<int>(pState->nIDMainPane)) : nullptr)
        {
            ::ShowWindow(pane, SW_HIDE);
            ::SetWindowLongPtr(pane, GWLP_ID, AFX_IDW_PANE_SAVE);
        }
        return;
    }
    m_previewClose = nullptr;
    if (HWND const pane = ::GetDlgItem(m_hWnd, AFX_IDW_PANE_SAVE))
    {
        if (HWND const preview = ::GetDlgItem(m_hWnd, static_cast<int>(pState->nIDMainPane)))
            ::SetWindowLongPtr(preview, GWLP_ID, AFX_IDW_PANE_SAVE);
        ::SetWindowLongPtr(pane, GWLP_ID, static_cast<LONG_PTR>(pState->nIDMainPane));
        ::ShowWindow(pane, SW_SHOW);
        if (!guard.Alive())
            return;
    }
    if (pState->hMenu != nullptr && ::IsMenu(pState->hMenu))
        ::SetMenu(m_hWnd, pState->hMenu);
    if (!guard.Alive())
        return;
    m_hAccelTable = pState->hAccelTable;
    for (INT_PTR at = 0; at < m_hiddenByPreview.GetSize(); ++at)
    {
        auto * const bar = DYNAMIC_DOWNCAST(CControlBar, CWnd::FromHandlePermanent(m_hiddenByPreview[at]));
        if (bar != nullptr && bar->GetParent() == this)
            ShowControlBar(bar, TRUE, TRUE);
    }
    m_hiddenByPreview.RemoveAll();
}
