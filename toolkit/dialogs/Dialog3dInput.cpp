// Keys, popup menus, dragging by the client area, the touch freeze and the message pumps.

#include "dialogs/Dialog3d.h"

#include "dialogs/KeyGroups.h"
#include "frame/ToolkitResources.h"
#include "frame/WindowAlive.h"
#include "resource_ids.h"

namespace
{
constexpr UINT host_message = WM_USER + 1000;

UINT MenuFlags(CPopupConfigEntry const & entry)
{
    if (entry.Text().IsEmpty())
        return MF_SEPARATOR;
    return entry.Callback() ? MF_STRING : MF_GRAYED;
}
} // namespace

void CDialog3d::DontAbsorbKeys(unsigned int mask)
{
    m_noAbsorbKeys = mask;
}

void CDialog3d::DontAbsorbAnyKeys()
{
    DontAbsorbKeys(KeyGroups::every_key);
}

void CDialog3d::DontAbsorbNormalKeys()
{
    DontAbsorbKeys(KeyGroups::normal_keys);
}

void CDialog3d::DontAbsorbControlKeys(bool withSpace)
{
    DontAbsorbKeys(withSpace ? KeyGroups::function_keys | KeyGroups::space : KeyGroups::function_keys);
}

BOOL CDialog3d::PreTranslateMessage(MSG * message)
{
    bool const key = message->message == WM_KEYDOWN || message->message == WM_KEYUP;
    if (key && KeyGroups::LeavesToOthers(m_noAbsorbKeys, static_cast<unsigned int>(message->wParam)))
        return FALSE;
    return CDialogEx::PreTranslateMessage(message);
}

void CDialog3d::ActivatePopup(CPopupConfig const & config, int x, int y)
{
    m_popupConfig = std::make_unique<CPopupConfig>(config);
    m_popupConfig->NumberAfter(GetMaxID());

    CMenu menu;
    menu.Attach(LoadToolkitMenu(TOOLKIT_MENU_GENERIC_POPUP));
    CMenu * const popup = menu.GetSafeHmenu() != nullptr ? menu.GetSubMenu(0) : nullptr;
    if (popup == nullptr)
        return;
    while (static_cast<int>(popup->GetMenuItemCount()) > 0)
        popup->DeleteMenu(0, MF_BYPOSITION);
    for (CPopupConfigEntry const & entry : *m_popupConfig)
        popup->AppendMenu(MenuFlags(entry), static_cast<UINT_PTR>(entry.ID()), entry.Text());
    popup->TrackPopupMenu(TPM_RIGHTBUTTON, x, y, this, nullptr);
}

BOOL CDialog3d::OnCmdMsg(UINT id, int code, void * extra, AFX_CMDHANDLERINFO * info)
{
    LifeWatch const life(m_life);
    if (CDialogEx::OnCmdMsg(id, code, extra, info))
        return TRUE;
    // The owner was asked as well and may have ended the dialog.
    if (life.Over())
        return FALSE;
    if (m_popupConfig == nullptr || code != CN_COMMAND)
        return FALSE;
    CPopupConfigEntry const * const entry = m_popupConfig->Find(id);
    if (entry == nullptr)
        return FALSE;
    if (info != nullptr)
        return TRUE; // only a question whether somebody handles the command

    // Out of the member: the callback may show the next popup, whose entries stay, or end the dialog.
    std::unique_ptr<CPopupConfig> const chosen = std::move(m_popupConfig);
    if (entry->Callback())
        entry->Callback()();
    return TRUE;
}

void CDialog3d::SetGrabAndMove(bool enable)
{
    m_drag.Enable(enable);
}

void CDialog3d::OnLButtonDown(UINT flags, CPoint point)
{
    WindowAlive const alive(*this, m_life);
    if (m_drag.StartsWith(flags, g_touchFreeze))
    {
        CPoint mouse = point;
        ClientToScreen(&mouse);
        WINDOWPLACEMENT placement{};
        placement.length = sizeof(placement);
        GetWindowPlacement(&placement);
        m_drag.Start(mouse, placement.rcNormalPosition);
        SetCapture();
    }
    if (alive.IsAlive())
        CDialogEx::OnLButtonDown(flags, point);
}

void CDialog3d::OnMouseMove(UINT flags, CPoint point)
{
    WindowAlive const alive(*this, m_life);
    if (m_drag.Runs())
    {
        CPoint mouse = point;
        ClientToScreen(&mouse);
        CPoint const corner = m_drag.MoveTo(mouse);
        SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }
    if (alive.IsAlive())
        CDialogEx::OnMouseMove(flags, point);
}

void CDialog3d::OnLButtonUp(UINT flags, CPoint point)
{
    WindowAlive const alive(*this, m_life);
    if (m_drag.End())
        ::ReleaseCapture();
    if (alive.IsAlive())
        CDialogEx::OnLButtonUp(flags, point);
}

void CDialog3d::SetTouchFreeze(bool freeze)
{
    g_touchFreeze = freeze;
}

bool CDialog3d::IsInTouchFreeze()
{
    return g_touchFreeze;
}

void CDialog3d::OnMoving(UINT side, LPRECT rect)
{
    CDialogEx::OnMoving(side, rect);
    KeepPlace(rect);
}

void CDialog3d::OnSizing(UINT side, LPRECT rect)
{
    CDialogEx::OnSizing(side, rect);
    KeepPlace(rect);
}

void CDialog3d::KeepPlace(LPRECT proposed) const
{
    if (g_touchFreeze)
        GetWindowRect(proposed);
}

bool CDialog3d::PumpWindowsMessages(unsigned int message)
{
    MSG next{};
    while (::PeekMessageW(&next, nullptr, message, message, PM_REMOVE))
    {
        if (message == 0 && next.message == WM_QUIT)
        {
            ::PostQuitMessage(static_cast<int>(next.wParam));
            return false;
        }
        ::TranslateMessage(&next);
        ::DispatchMessageW(&next);
    }
    return true;
}

void CDialog3d::PumpPaintMessages(bool withUserMessage)
{
    if (withUserMessage)
        PumpWindowsMessages(host_message);
    PumpWindowsMessages(WM_PAINT);
}
