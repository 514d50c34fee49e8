// CWnd: the handlers of the other messages that leave everything to the system or to the window's own class.

#include "detail/WndAccess.h"

void CWnd::OnAskCbFormatName(UINT, LPTSTR)
{
    Default();
}

void CWnd::OnCancelMode()
{
    Default();
}

void CWnd::OnChangeCbChain(HWND, HWND)
{
    Default();
}

void CWnd::OnChildActivate()
{
    Default();
}

void CWnd::OnClipboardUpdate()
{
    Default();
}

void CWnd::OnClose()
{
    Default();
}

void CWnd::OnCompacting(UINT)
{
    Default();
}

BOOL CWnd::OnCopyData(CWnd *, COPYDATASTRUCT *)
{
    return static_cast<BOOL>(Default());
}

int CWnd::OnCreate(LPCREATESTRUCT)
{
    return static_cast<int>(Default());
}

void CWnd::OnDestroy()
{
    Default();
}

void CWnd::OnDestroyClipboard()
{
    Default();
}

BOOL CWnd::OnDeviceChange(UINT, DWORD_PTR)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnDevModeChange(LPTSTR)
{
    Default();
}

void CWnd::OnDrawClipboard()
{
    Default();
}

void CWnd::OnDropFiles(HDROP)
{
    Default();
}

void CWnd::OnColorizationColorChanged(DWORD, BOOL)
{
    Default();
}

void CWnd::OnCompositionChanged()
{
    Default();
}

void CWnd::OnNcRenderingChanged(BOOL)
{
    Default();
}

void CWnd::OnWindowMaximizedChanged(BOOL)
{
    Default();
}

void CWnd::OnEnable(BOOL)
{
    Default();
}

void CWnd::OnEndSession(BOOL)
{
    Default();
}

void CWnd::OnEnterIdle(UINT, CWnd *)
{
    Default();
}

void CWnd::OnEnterSizeMove()
{
    Default();
}

BOOL CWnd::OnEraseBkgnd(CDC *)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnExitSizeMove()
{
    Default();
}

void CWnd::OnFontChange()
{
    Default();
}

void CWnd::OnGetMinMaxInfo(MINMAXINFO *)
{
    Default();
}

void CWnd::OnHScrollClipboard(CWnd *, UINT, UINT)
{
    Default();
}

void CWnd::OnIconEraseBkgnd(CDC *)
{
    Default();
}

void CWnd::OnMDIActivate(BOOL, CWnd *, CWnd *)
{
    Default();
}

void CWnd::OnMove(int, int)
{
    Default();
}

void CWnd::OnMoving(UINT, LPRECT)
{
    Default();
}

BOOL CWnd::OnNcActivate(BOOL)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS *)
{
    Default();
}

BOOL CWnd::OnNcCreate(LPCREATESTRUCT)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnNcPaint()
{
    Default();
}

UINT CWnd::OnNotifyFormat(CWnd *, UINT)
{
    return static_cast<UINT>(Default());
}

void CWnd::OnPaintClipboard(CWnd *, HGLOBAL)
{
    Default();
}

void CWnd::OnPaletteChanged(CWnd *)
{
    Default();
}

void CWnd::OnPaletteIsChanging(CWnd *)
{
    Default();
}

UINT CWnd::OnPowerBroadcast(UINT, UINT)
{
    return static_cast<UINT>(Default());
}

HCURSOR CWnd::OnQueryDragIcon()
{
    return reinterpret_cast<HCURSOR>(Default());
}

BOOL CWnd::OnQueryEndSession()
{
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnQueryNewPalette()
{
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnQueryOpen()
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnRenderAllFormats()
{
    Default();
}

void CWnd::OnRenderFormat(UINT)
{
    Default();
}

void CWnd::OnShowWindow(BOOL, UINT)
{
    Default();
}

void CWnd::OnSize(UINT, int, int)
{
    Default();
}

void CWnd::OnSizeClipboard(CWnd *, HGLOBAL)
{
    Default();
}

void CWnd::OnSizing(UINT, LPRECT)
{
    Default();
}

void CWnd::OnSpoolerStatus(UINT, UINT)
{
    Default();
}

void CWnd::OnStyleChanged(int, LPSTYLESTRUCT)
{
    Default();
}

void CWnd::OnStyleChanging(int, LPSTYLESTRUCT)
{
    Default();
}

void CWnd::OnTCard(UINT, DWORD)
{
    Default();
}

void CWnd::OnTimeChange()
{
    Default();
}

void CWnd::OnTimer(UINT_PTR)
{
    Default();
}

void CWnd::OnUserChanged()
{
    Default();
}

void CWnd::OnVScrollClipboard(CWnd *, UINT, UINT)
{
    Default();
}

void CWnd::OnWindowPosChanged(WINDOWPOS *)
{
    Default();
}

void CWnd::OnWindowPosChanging(WINDOWPOS *)
{
    Default();
}

void CWnd::OnSessionChange(UINT, UINT)
{
    Default();
}
