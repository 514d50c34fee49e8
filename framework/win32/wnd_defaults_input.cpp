// CWnd: the handlers of input, focus and menus that leave everything to the system or to the window's own class.

#include "detail/WndAccess.h"

void CWnd::OnActivate(UINT, CWnd *, BOOL)
{
    Default();
}

void CWnd::OnActivateApp(BOOL, DWORD)
{
    Default();
}

void CWnd::OnAppCommand(CWnd *, UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnCaptureChanged(CWnd *)
{
    Default();
}

void CWnd::OnChangeUIState(UINT, UINT)
{
    Default();
}

void CWnd::OnChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnContextMenu(CWnd *, CPoint)
{
    Default();
}

void CWnd::OnDeadChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnEnterMenuLoop(BOOL)
{
    Default();
}

void CWnd::OnExitMenuLoop(BOOL)
{
    Default();
}

UINT CWnd::OnGetDlgCode()
{
    return static_cast<UINT>(Default());
}

void CWnd::OnHotKey(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnInitMenu(CMenu *)
{
    Default();
}

void CWnd::OnInitMenuPopup(CMenu *, UINT, BOOL)
{
    Default();
}

void CWnd::OnRawInput(UINT, HRAWINPUT)
{
    Default();
}

void CWnd::OnInputDeviceChange(unsigned short)
{
    Default();
}

void CWnd::OnInputLangChange(UINT, UINT)
{
    Default();
}

void CWnd::OnInputLangChangeRequest(UINT, UINT)
{
    Default();
}

void CWnd::OnKeyDown(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnKeyUp(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnKillFocus(CWnd *)
{
    Default();
}

void CWnd::OnLButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnMButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnMButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnMButtonUp(UINT, CPoint)
{
    Default();
}

LRESULT CWnd::OnMenuChar(UINT, UINT, CMenu *)
{
    return Default();
}

UINT CWnd::OnMenuDrag(UINT, CMenu *)
{
    return static_cast<UINT>(Default());
}

UINT CWnd::OnMenuGetObject(MENUGETOBJECTINFO *)
{
    return static_cast<UINT>(Default());
}

void CWnd::OnMenuRButtonUp(UINT, CMenu *)
{
    Default();
}

void CWnd::OnMenuSelect(UINT, UINT, HMENU)
{
    Default();
}

int CWnd::OnMouseActivate(CWnd *, UINT, UINT)
{
    return static_cast<int>(Default());
}

void CWnd::OnMouseHover(UINT, CPoint)
{
    Default();
}

void CWnd::OnMouseHWheel(UINT, short, CPoint)
{
    Default();
}

void CWnd::OnMouseLeave()
{
    Default();
}

void CWnd::OnMouseMove(UINT, CPoint)
{
    Default();
}

BOOL CWnd::OnMouseWheel(UINT, short, CPoint)
{
    return static_cast<BOOL>(Default());
}

LRESULT CWnd::OnNcHitTest(CPoint)
{
    return Default();
}

void CWnd::OnNcLButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcLButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcLButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcMButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcMButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcMButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcMouseHover(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcMouseLeave()
{
    Default();
}

void CWnd::OnNcMouseMove(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcRButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcRButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcRButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcXButtonDblClk(short, UINT, CPoint)
{
    Default();
}

void CWnd::OnNcXButtonDown(short, UINT, CPoint)
{
    Default();
}

void CWnd::OnNcXButtonUp(short, UINT, CPoint)
{
    Default();
}

void CWnd::OnNextMenu(UINT, LPMDINEXTMENU)
{
    Default();
}

UINT CWnd::OnQueryUIState()
{
    return static_cast<UINT>(Default());
}

void CWnd::OnRButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonUp(UINT, CPoint)
{
    Default();
}

BOOL CWnd::OnSetCursor(CWnd *, UINT, UINT)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnSetFocus(CWnd *)
{
    Default();
}

void CWnd::OnSysChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnSysCommand(UINT, LPARAM)
{
    Default();
}

void CWnd::OnSysDeadChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnSysKeyDown(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnSysKeyUp(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnUniChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnUnInitMenuPopup(CMenu *, UINT)
{
    Default();
}

void CWnd::OnUpdateUIState(UINT, UINT)
{
    Default();
}

void CWnd::OnXButtonDblClk(UINT, UINT, CPoint)
{
    Default();
}

void CWnd::OnXButtonDown(UINT, UINT, CPoint)
{
    Default();
}

void CWnd::OnXButtonUp(UINT, UINT, CPoint)
{
    Default();
}
