// CMFCToolBar: mouse, keys, commands, tool tips.

#include "afxtoolbar.h"
#include <afxpriv.h>

#include <algorithm>

#include "detail/BarLooks.h"
#include "detail/FrameSupport.h"
#include "detail/MenuMode.h"
#include "detail/WndAccess.h"

using framework::MenuMode;
using framework::WindowGuard;

namespace
{
constexpr UINT_PTR watch_timer = 0xE010;
constexpr UINT watch_time = 100;

// The bar whose button the frame tells of.
thread_local CMFCToolBar const * g_messageBar = nullptr;
} // namespace

int CMFCToolBar::HitTest(CPoint point)
{
    EnsureLayout();
    int index = 0;
    for (POSITION at = m_buttons.GetHeadPosition(); at != nullptr; ++index)
    {
        auto const * const button = static_cast<CMFCToolBarButton const *>(m_buttons.GetNext(at));
        if (!button->IsHidden() && (button->m_nStyle & TBBS_SEPARATOR) == 0 && button->Rect().PtInRect(point))
            return index;
    }
    return -1;
}

bool CMFCToolBar::CanHighlight(int index) const
{
    CMFCToolBarButton const * const button = GetButton(index);
    return button != nullptr && !button->IsHidden() && (button->m_nStyle & TBBS_SEPARATOR) == 0;
}

void CMFCToolBar::Highlight(int index)
{
    if (index == m_hot)
        return;
    InvalidateButton(m_hot);
    m_hot = index;
    InvalidateButton(m_hot);
    WindowGuard const guard(this);
    OnChangeHot(index);
    if (guard.Alive())
        ShowMessageOf(index);
}

void CMFCToolBar::OnChangeHot(int) {}

void CMFCToolBar::ShowMessageOf(int index)
{
    if ((GetPaneStyle() & CBRS_FLYBY) == 0)
        return;
    CMFCToolBarButton const * const button = GetButton(index);
    UINT const id = button != nullptr && button->m_nID != 0 ? button->m_nID : AFX_IDS_IDLEMESSAGE;
    // One that the mouse leaves hears of that after the one that it comes to: what that says stays.
    if (index < 0 && g_messageBar != this)
        return;
    g_messageBar = index < 0 ? nullptr : this;
    if (CFrameWnd * const frame = TargetFrame())
        frame->SendMessage(WM_SETMESSAGESTRING, id);
}

CMFCToolBarButton * CMFCToolBar::GetHighlightedButton() const
{
    return GetButton(m_hot);
}

BOOL CMFCToolBar::IsButtonHighlighted(int iButton) const
{
    return iButton >= 0 && iButton == m_hot;
}

CMFCToolBarMenuButton * CMFCToolBar::GetDroppedDownMenu(int * pIndex) const
{
    int index = 0;
    for (POSITION at = m_buttons.GetHeadPosition(); at != nullptr; ++index)
    {
        auto * const button = DYNAMIC_DOWNCAST(
            CMFCToolBarMenuButton, const_cast<CObject *>(static_cast<CObject const *>(m_buttons.GetNext(at))));
        if (button == nullptr || !button->IsDroppedDown())
            continue;
        if (pIndex != nullptr)
            *pIndex = index;
        return button;
    }
    if (pIndex != nullptr)
        *pIndex = -1;
    return nullptr;
}

BOOL CMFCToolBar::SetHot(CMFCToolBarButton * pMenuButton)
{
    int const index = ButtonToIndex(pMenuButton);
    Highlight(index);
    return index >= 0;
}

void CMFCToolBar::Deactivate()
{
    MenuMode & mode = MenuMode::Current();
    WindowGuard const guard(this);
    if (mode.IsOn(*this))
        mode.End();
    if (guard.Alive())
        Highlight(-1);
}

void CMFCToolBar::RestoreFocus() {}

BOOL CMFCToolBar::NextMenu()
{
    MenuMode::Current().NextMenu(1);
    return TRUE;
}

BOOL CMFCToolBar::PrevMenu()
{
    MenuMode::Current().NextMenu(-1);
    return TRUE;
}

BOOL CMFCToolBar::TranslateChar(UINT nChar)
{
    CString const character(static_cast<wchar_t>(nChar));
    wchar_t const wanted = framework::MnemonicOf(L"&" + character);
    if (wanted == 0 || wanted == L' ')
        return FALSE;
    for (int at = 0; at < GetCount(); ++at)
    {
        CMFCToolBarButton * const button = GetButton(at);
        if (!CanHighlight(at) || !IsEnabled(*button) || framework::MnemonicOf(button->m_strText) != wanted)
            continue;
        MenuMode & mode = MenuMode::Current();
        if (mode.OpenMenu(*this, at, true))
            return TRUE;
        mode.End();
        ProcessCommand(button);
        return TRUE;
    }
    return FALSE;
}

// Commands

HWND CMFCToolBar::CommandTarget() const
{
    return framework::SafeHandle(m_viaFrame && GetOwner() == nullptr ? GetParentFrame() : GetOwner());
}

BOOL CMFCToolBar::OnSendCommand(const CMFCToolBarButton *)
{
    return FALSE;
}

BOOL CMFCToolBar::ProcessCommand(CMFCToolBarButton * pButton)
{
    if (pButton == nullptr || ButtonToIndex(pButton) < 0 || !IsEnabled(*pButton))
        return FALSE;
    SendCommand(*pButton);
    return TRUE;
}

void CMFCToolBar::SendCommand(CMFCToolBarButton & button)
{
    UINT const id = button.m_nID;
    HWND const target = CommandTarget();
    if (OnSendCommand(&button) || id == 0 || id == static_cast<UINT>(-1) || target == nullptr)
        return;
    ::SendMessage(target, WM_COMMAND, id, 0);
}

// The mouse

void CMFCToolBar::ReleasePress()
{
    int const pressed = std::exchange(m_pressed, -1);
    if (CMFCToolBarButton * const button = GetButton(pressed))
    {
        button->SetStyle(button->m_nStyle & ~static_cast<UINT>(TBBS_PRESSED));
        InvalidateButton(pressed);
    }
}

void CMFCToolBar::OnLButtonDown(UINT, CPoint point)
{
    int const hit = HitTest(point);
    CMFCToolBarButton * const button = GetButton(hit);
    if (button == nullptr || !IsEnabled(*button))
        return;
    WindowGuard const guard(this);
    if (auto * const menuButton = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button))
    {
        if (menuButton->IsDroppedDown())
        {
            MenuMode::Current().End();
            return;
        }
        // The first press on a menu of the bar opens it; where a menu of the bar is open already, so does every other.
    }
    if (button->OnClick(this, FALSE) || !guard.Alive() || ButtonToIndex(button) != hit)
        return;
    MenuMode::Current().End();
    if (!guard.Alive() || ButtonToIndex(button) != hit)
        return;
    m_pressed = hit;
    button->SetStyle(button->m_nStyle | TBBS_PRESSED);
    InvalidateButton(hit);
    SetCapture();
}

void CMFCToolBar::OnLButtonUp(UINT, CPoint point)
{
    int const pressed = m_pressed;
    CMFCToolBarButton * const button = GetButton(pressed);
    if (button == nullptr)
        return;
    WindowGuard const guard(this);
    ReleasePress();
    if (GetCapture() == this)
        ::ReleaseCapture();
    if (!guard.Alive() || ButtonToIndex(button) != pressed || HitTest(point) != pressed || !IsEnabled(*button))
        return;
    if (!button->OnClickUp() && guard.Alive() && ButtonToIndex(button) == pressed)
        SendCommand(*button);
}

void CMFCToolBar::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    WindowGuard const guard(this);
    if (CMFCToolBarButton * const button = GetButton(HitTest(point)))
        button->OnDblClk(this);
    // Two quick presses are two presses.
    if (guard.Alive())
        OnLButtonDown(nFlags, point);
}

void CMFCToolBar::OnMouseMove(UINT nFlags, CPoint point)
{
    int const hit = HitTest(point);
    if (m_pressed >= 0)
    {
        CMFCToolBarButton * const button = GetButton(m_pressed);
        UINT const pressed = hit == m_pressed ? static_cast<UINT>(TBBS_PRESSED) : 0;
        if (button != nullptr && (button->m_nStyle & TBBS_PRESSED) != pressed)
        {
            button->SetStyle((button->m_nStyle & ~static_cast<UINT>(TBBS_PRESSED)) | pressed);
            InvalidateButton(m_pressed);
        }
        return;
    }
    WatchMouse();
    MenuMode & mode = MenuMode::Current();
    WindowGuard const guard(this);
    if (mode.IsOn(*this))
    {
        // While a menu of the bar is open, the mouse goes from one to the next.
        int open = -1;
        GetDroppedDownMenu(&open);
        auto const * const menuButton = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, GetButton(hit));
        if (open >= 0 && hit >= 0 && hit != open && menuButton != nullptr && IsMenuBar())
            mode.OpenMenu(*this, hit, false);
        else if (open < 0 && hit >= 0)
            Highlight(hit);
        return;
    }
    Highlight(hit);
    if (guard.Alive())
        CMFCBaseToolBar::OnMouseMove(nFlags, point);
}

/// Notices that the mouse has gone. A late report of its position may come after the system's message that says so.
void CMFCToolBar::WatchMouse()
{
    TRACKMOUSEEVENT track{};
    track.cbSize = sizeof track;
    track.dwFlags = TME_LEAVE;
    track.hwndTrack = m_hWnd;
    ::TrackMouseEvent(&track);
    SetTimer(watch_timer, watch_time, nullptr);
}

void CMFCToolBar::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent != watch_timer)
    {
        CMFCBaseToolBar::OnTimer(nIDEvent);
        return;
    }
    CPoint cursor;
    ::GetCursorPos(&cursor);
    if (GetCapture() == this || ::WindowFromPoint(cursor) == m_hWnd)
        return;
    KillTimer(watch_timer);
    SendMessage(WM_MOUSELEAVE);
}

void CMFCToolBar::OnMouseLeave()
{
    if (m_pressed < 0 && !MenuMode::Current().IsOn(*this))
        Highlight(-1);
}

void CMFCToolBar::OnCaptureChanged(CWnd * pWnd)
{
    if (pWnd != this)
        ReleasePress();
}

void CMFCToolBar::OnCancelMode()
{
    WindowGuard const guard(this);
    CMFCBaseToolBar::OnCancelMode();
    if (guard.Alive())
        ReleasePress();
}

int CMFCToolBar::OnMouseActivate(CWnd *, UINT, UINT)
{
    // The window that has the focus keeps it; the frame becomes active all the same.
    CWnd * const top = GetTopLevelParent();
    if (top != nullptr && top->IsWindowEnabled() && ::GetActiveWindow() != top->m_hWnd)
        return MA_ACTIVATE;
    return MA_NOACTIVATE;
}

// Tool tips

INT_PTR CMFCToolBar::OnToolHitTest(CPoint point, TOOLINFO * pTI) const
{
    int const hit = const_cast<CMFCToolBar *>(this)->HitTest(point);
    CMFCToolBarButton const * const button = GetButton(hit);
    if (button == nullptr || !GetShowTooltips() || button->m_nID == 0 || button->IsDroppedDown())
        return CWnd::OnToolHitTest(point, pTI);
    if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOW_V1_SIZE)
    {
        pTI->hwnd = m_hWnd;
        pTI->rect = button->Rect();
        pTI->uId = button->m_nID;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    return static_cast<INT_PTR>(button->m_nID);
}

BOOL CMFCToolBar::OnUserToolTip(CMFCToolBarButton * pButton, CString & strTTText) const
{
    return pButton->OnGetCustomToolTipText(strTTText);
}

BOOL CMFCToolBar::HandleToolTipText(UINT, NMHDR * header, LRESULT * result)
{
    CMFCToolBarButton * const button = GetButton(CommandToIndex(static_cast<UINT>(header->idFrom)));
    if (button == nullptr)
        return FALSE;
    WindowGuard const guard(this);
    CString text;
    if (!OnUserToolTip(button, text) || text.IsEmpty())
        text = guard.Alive() ? LabelOf(static_cast<UINT>(header->idFrom)) : CString();
    if (!guard.Alive())
        return TRUE;
    if (text.IsEmpty() && ButtonToIndex(button) >= 0 && !button->IsDrawText())
    {
        text = button->m_strText;
        text.Remove(L'&');
    }
    m_tip = text;
    auto & asked = *reinterpret_cast<NMTTDISPINFO *>(header);
    asked.lpszText = const_cast<LPTSTR>(m_tip.GetString());
    asked.hinst = nullptr;
    *result = 0;
    return TRUE;
}
