// Every window message's macro takes a handler of the documented type. The handlers are never called: what is tested is
// that the map can be written so, and that each message has its one entry.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <set>

namespace
{
class EveryMessage : public CWnd
{
public:
    AFX_MSGMAP const * Map() const { return GetMessageMap(); }

protected:
    afx_msg void OnActivate(UINT, CWnd *, BOOL) {}
    afx_msg void OnActivateApp(BOOL, DWORD) {}
    afx_msg void OnAppCommand(CWnd *, UINT, UINT, UINT) {}
    afx_msg void OnAskCbFormatName(UINT, LPTSTR) {}
    afx_msg void OnCancelMode() {}
    afx_msg void OnCaptureChanged(CWnd *) {}
    afx_msg void OnChangeCbChain(HWND, HWND) {}
    afx_msg void OnChangeUIState(UINT, UINT) {}
    afx_msg void OnChar(UINT, UINT, UINT) {}
    afx_msg int OnCharToItem(UINT, CListBox *, UINT) { return {}; }
    afx_msg void OnChildActivate() {}
    afx_msg void OnClipboardUpdate() {}
    afx_msg void OnClose() {}
    afx_msg void OnCompacting(UINT) {}
    afx_msg int OnCompareItem(int, LPCOMPAREITEMSTRUCT) { return {}; }
    afx_msg void OnContextMenu(CWnd *, CPoint) {}
    afx_msg BOOL OnCopyData(CWnd *, COPYDATASTRUCT *) { return {}; }
    afx_msg int OnCreate(LPCREATESTRUCT) { return {}; }
    afx_msg HBRUSH OnCtlColor(CDC *, CWnd *, UINT) { return {}; }
    afx_msg void OnDeadChar(UINT, UINT, UINT) {}
    afx_msg void OnDeleteItem(int, LPDELETEITEMSTRUCT) {}
    afx_msg void OnDestroy() {}
    afx_msg void OnDestroyClipboard() {}
    afx_msg BOOL OnDeviceChange(UINT, DWORD_PTR) { return {}; }
    afx_msg void OnDevModeChange(LPTSTR) {}
    afx_msg void OnDrawClipboard() {}
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT) {}
    afx_msg void OnDropFiles(HDROP) {}
    afx_msg void OnColorizationColorChanged(DWORD, BOOL) {}
    afx_msg void OnCompositionChanged() {}
    afx_msg void OnNcRenderingChanged(BOOL) {}
    afx_msg void OnWindowMaximizedChanged(BOOL) {}
    afx_msg void OnEnable(BOOL) {}
    afx_msg void OnEndSession(BOOL) {}
    afx_msg void OnEnterIdle(UINT, CWnd *) {}
    afx_msg void OnEnterMenuLoop(BOOL) {}
    afx_msg void OnEnterSizeMove() {}
    afx_msg BOOL OnEraseBkgnd(CDC *) { return {}; }
    afx_msg void OnExitMenuLoop(BOOL) {}
    afx_msg void OnExitSizeMove() {}
    afx_msg void OnFontChange() {}
    afx_msg UINT OnGetDlgCode() { return {}; }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO *) {}
    afx_msg BOOL OnHelpInfo(HELPINFO *) { return {}; }
    afx_msg void OnHotKey(UINT, UINT, UINT) {}
    afx_msg void OnHScroll(UINT, UINT, CScrollBar *) {}
    afx_msg void OnHScrollClipboard(CWnd *, UINT, UINT) {}
    afx_msg void OnIconEraseBkgnd(CDC *) {}
    afx_msg void OnInitMenu(CMenu *) {}
    afx_msg void OnInitMenuPopup(CMenu *, UINT, BOOL) {}
    afx_msg void OnRawInput(UINT, HRAWINPUT) {}
    afx_msg void OnInputDeviceChange(unsigned short) {}
    afx_msg void OnInputLangChange(UINT, UINT) {}
    afx_msg void OnInputLangChangeRequest(UINT, UINT) {}
    afx_msg void OnKeyDown(UINT, UINT, UINT) {}
    afx_msg void OnKeyUp(UINT, UINT, UINT) {}
    afx_msg void OnKillFocus(CWnd *) {}
    afx_msg void OnLButtonDblClk(UINT, CPoint) {}
    afx_msg void OnLButtonDown(UINT, CPoint) {}
    afx_msg void OnLButtonUp(UINT, CPoint) {}
    afx_msg void OnMButtonDblClk(UINT, CPoint) {}
    afx_msg void OnMButtonDown(UINT, CPoint) {}
    afx_msg void OnMButtonUp(UINT, CPoint) {}
    afx_msg void OnMDIActivate(BOOL, CWnd *, CWnd *) {}
    afx_msg void OnMeasureItem(int, LPMEASUREITEMSTRUCT) {}
    afx_msg LRESULT OnMenuChar(UINT, UINT, CMenu *) { return {}; }
    afx_msg UINT OnMenuDrag(UINT, CMenu *) { return {}; }
    afx_msg UINT OnMenuGetObject(MENUGETOBJECTINFO *) { return {}; }
    afx_msg void OnMenuRButtonUp(UINT, CMenu *) {}
    afx_msg void OnMenuSelect(UINT, UINT, HMENU) {}
    afx_msg int OnMouseActivate(CWnd *, UINT, UINT) { return {}; }
    afx_msg void OnMouseHover(UINT, CPoint) {}
    afx_msg void OnMouseHWheel(UINT, short, CPoint) {}
    afx_msg void OnMouseLeave() {}
    afx_msg void OnMouseMove(UINT, CPoint) {}
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return {}; }
    afx_msg void OnMove(int, int) {}
    afx_msg void OnMoving(UINT, LPRECT) {}
    afx_msg BOOL OnNcActivate(BOOL) { return {}; }
    afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS *) {}
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return {}; }
    afx_msg void OnNcDestroy() {}
    afx_msg LRESULT OnNcHitTest(CPoint) { return {}; }
    afx_msg void OnNcLButtonDblClk(UINT, CPoint) {}
    afx_msg void OnNcLButtonDown(UINT, CPoint) {}
    afx_msg void OnNcLButtonUp(UINT, CPoint) {}
    afx_msg void OnNcMButtonDblClk(UINT, CPoint) {}
    afx_msg void OnNcMButtonDown(UINT, CPoint) {}
    afx_msg void OnNcMButtonUp(UINT, CPoint) {}
    afx_msg void OnNcMouseHover(UINT, CPoint) {}
    afx_msg void OnNcMouseLeave() {}
    afx_msg void OnNcMouseMove(UINT, CPoint) {}
    afx_msg void OnNcPaint() {}
    afx_msg void OnNcRButtonDblClk(UINT, CPoint) {}
    afx_msg void OnNcRButtonDown(UINT, CPoint) {}
    afx_msg void OnNcRButtonUp(UINT, CPoint) {}
    afx_msg void OnNcXButtonDblClk(short, UINT, CPoint) {}
    afx_msg void OnNcXButtonDown(short, UINT, CPoint) {}
    afx_msg void OnNcXButtonUp(short, UINT, CPoint) {}
    afx_msg void OnNextMenu(UINT, LPMDINEXTMENU) {}
    afx_msg UINT OnNotifyFormat(CWnd *, UINT) { return {}; }
    afx_msg void OnPaint() {}
    afx_msg void OnPaintClipboard(CWnd *, HGLOBAL) {}
    afx_msg void OnPaletteChanged(CWnd *) {}
    afx_msg void OnPaletteIsChanging(CWnd *) {}
    afx_msg void OnParentNotify(UINT, LPARAM) {}
    afx_msg UINT OnPowerBroadcast(UINT, UINT) { return {}; }
    afx_msg HCURSOR OnQueryDragIcon() { return {}; }
    afx_msg BOOL OnQueryEndSession() { return {}; }
    afx_msg BOOL OnQueryNewPalette() { return {}; }
    afx_msg BOOL OnQueryOpen() { return {}; }
    afx_msg UINT OnQueryUIState() { return {}; }
    afx_msg void OnRButtonDblClk(UINT, CPoint) {}
    afx_msg void OnRButtonDown(UINT, CPoint) {}
    afx_msg void OnRButtonUp(UINT, CPoint) {}
    afx_msg void OnRenderAllFormats() {}
    afx_msg void OnRenderFormat(UINT) {}
    afx_msg BOOL OnSetCursor(CWnd *, UINT, UINT) { return {}; }
    afx_msg void OnSetFocus(CWnd *) {}
    afx_msg void OnSettingChange(UINT, LPCTSTR) {}
    afx_msg void OnShowWindow(BOOL, UINT) {}
    afx_msg void OnSize(UINT, int, int) {}
    afx_msg void OnSizeClipboard(CWnd *, HGLOBAL) {}
    afx_msg void OnSizing(UINT, LPRECT) {}
    afx_msg void OnSpoolerStatus(UINT, UINT) {}
    afx_msg void OnStyleChanged(int, LPSTYLESTRUCT) {}
    afx_msg void OnStyleChanging(int, LPSTYLESTRUCT) {}
    afx_msg void OnSysChar(UINT, UINT, UINT) {}
    afx_msg void OnSysColorChange() {}
    afx_msg void OnSysCommand(UINT, LPARAM) {}
    afx_msg void OnSysDeadChar(UINT, UINT, UINT) {}
    afx_msg void OnSysKeyDown(UINT, UINT, UINT) {}
    afx_msg void OnSysKeyUp(UINT, UINT, UINT) {}
    afx_msg void OnTCard(UINT, DWORD) {}
    afx_msg void OnTimeChange() {}
    afx_msg void OnTimer(UINT_PTR) {}
    afx_msg void OnUniChar(UINT, UINT, UINT) {}
    afx_msg void OnUnInitMenuPopup(CMenu *, UINT) {}
    afx_msg void OnUpdateUIState(UINT, UINT) {}
    afx_msg void OnUserChanged() {}
    afx_msg int OnVKeyToItem(UINT, CListBox *, UINT) { return {}; }
    afx_msg void OnVScroll(UINT, UINT, CScrollBar *) {}
    afx_msg void OnVScrollClipboard(CWnd *, UINT, UINT) {}
    afx_msg void OnWindowPosChanged(WINDOWPOS *) {}
    afx_msg void OnWindowPosChanging(WINDOWPOS *) {}
    afx_msg void OnWinIniChange(LPCTSTR) {}
    afx_msg void OnSessionChange(UINT, UINT) {}
    afx_msg void OnXButtonDblClk(UINT, UINT, CPoint) {}
    afx_msg void OnXButtonDown(UINT, UINT, CPoint) {}
    afx_msg void OnXButtonUp(UINT, UINT, CPoint) {}

    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(EveryMessage, CWnd)
    ON_WM_ACTIVATE()
    ON_WM_ACTIVATEAPP()
    ON_WM_APPCOMMAND()
    ON_WM_ASKCBFORMATNAME()
    ON_WM_CANCELMODE()
    ON_WM_CAPTURECHANGED()
    ON_WM_CHANGECBCHAIN()
    ON_WM_CHANGEUISTATE()
    ON_WM_CHAR()
    ON_WM_CHARTOITEM()
    ON_WM_CHILDACTIVATE()
    ON_WM_CLIPBOARDUPDATE()
    ON_WM_CLOSE()
    ON_WM_COMPACTING()
    ON_WM_COMPAREITEM()
    ON_WM_CONTEXTMENU()
    ON_WM_COPYDATA()
    ON_WM_CREATE()
    ON_WM_CTLCOLOR()
    ON_WM_DEADCHAR()
    ON_WM_DELETEITEM()
    ON_WM_DESTROY()
    ON_WM_DESTROYCLIPBOARD()
    ON_WM_DEVICECHANGE()
    ON_WM_DEVMODECHANGE()
    ON_WM_DRAWCLIPBOARD()
    ON_WM_DRAWITEM()
    ON_WM_DROPFILES()
    ON_WM_DWMCOLORIZATIONCOLORCHANGED()
    ON_WM_DWMCOMPOSITIONCHANGED()
    ON_WM_DWMNCRENDERINGCHANGED()
    ON_WM_DWMWINDOWMAXIMIZEDCHANGE()
    ON_WM_ENABLE()
    ON_WM_ENDSESSION()
    ON_WM_ENTERIDLE()
    ON_WM_ENTERMENULOOP()
    ON_WM_ENTERSIZEMOVE()
    ON_WM_ERASEBKGND()
    ON_WM_EXITMENULOOP()
    ON_WM_EXITSIZEMOVE()
    ON_WM_FONTCHANGE()
    ON_WM_GETDLGCODE()
    ON_WM_GETMINMAXINFO()
    ON_WM_HELPINFO()
    ON_WM_HOTKEY()
    ON_WM_HSCROLL()
    ON_WM_HSCROLLCLIPBOARD()
    ON_WM_ICONERASEBKGND()
    ON_WM_INITMENU()
    ON_WM_INITMENUPOPUP()
    ON_WM_INPUT()
    ON_WM_INPUT_DEVICE_CHANGE()
    ON_WM_INPUTLANGCHANGE()
    ON_WM_INPUTLANGCHANGEREQUEST()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_KILLFOCUS()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MBUTTONDBLCLK()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONUP()
    ON_WM_MDIACTIVATE()
    ON_WM_MEASUREITEM()
    ON_WM_MENUCHAR()
    ON_WM_MENUDRAG()
    ON_WM_MENUGETOBJECT()
    ON_WM_MENURBUTTONUP()
    ON_WM_MENUSELECT()
    ON_WM_MOUSEACTIVATE()
    ON_WM_MOUSEHOVER()
    ON_WM_MOUSEHWHEEL()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_MOVE()
    ON_WM_MOVING()
    ON_WM_NCACTIVATE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCCREATE()
    ON_WM_NCDESTROY()
    ON_WM_NCHITTEST()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCMBUTTONDBLCLK()
    ON_WM_NCMBUTTONDOWN()
    ON_WM_NCMBUTTONUP()
    ON_WM_NCMOUSEHOVER()
    ON_WM_NCMOUSELEAVE()
    ON_WM_NCMOUSEMOVE()
    ON_WM_NCPAINT()
    ON_WM_NCRBUTTONDBLCLK()
    ON_WM_NCRBUTTONDOWN()
    ON_WM_NCRBUTTONUP()
    ON_WM_NCXBUTTONDBLCLK()
    ON_WM_NCXBUTTONDOWN()
    ON_WM_NCXBUTTONUP()
    ON_WM_NEXTMENU()
    ON_WM_NOTIFYFORMAT()
    ON_WM_PAINT()
    ON_WM_PAINTCLIPBOARD()
    ON_WM_PALETTECHANGED()
    ON_WM_PALETTEISCHANGING()
    ON_WM_PARENTNOTIFY()
    ON_WM_POWERBROADCAST()
    ON_WM_QUERYDRAGICON()
    ON_WM_QUERYENDSESSION()
    ON_WM_QUERYNEWPALETTE()
    ON_WM_QUERYOPEN()
    ON_WM_QUERYUISTATE()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_RENDERALLFORMATS()
    ON_WM_RENDERFORMAT()
    ON_WM_SETCURSOR()
    ON_WM_SETFOCUS()
    ON_WM_SETTINGCHANGE()
    ON_WM_SHOWWINDOW()
    ON_WM_SIZE()
    ON_WM_SIZECLIPBOARD()
    ON_WM_SIZING()
    ON_WM_SPOOLERSTATUS()
    ON_WM_STYLECHANGED()
    ON_WM_STYLECHANGING()
    ON_WM_SYSCHAR()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SYSCOMMAND()
    ON_WM_SYSDEADCHAR()
    ON_WM_SYSKEYDOWN()
    ON_WM_SYSKEYUP()
    ON_WM_TCARD()
    ON_WM_TIMECHANGE()
    ON_WM_TIMER()
    ON_WM_UNICHAR()
    ON_WM_UNINITMENUPOPUP()
    ON_WM_UPDATEUISTATE()
    ON_WM_USERCHANGED()
    ON_WM_VKEYTOITEM()
    ON_WM_VSCROLL()
    ON_WM_VSCROLLCLIPBOARD()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WININICHANGE()
    ON_WM_WTSSESSION_CHANGE()
    ON_WM_XBUTTONDBLCLK()
    ON_WM_XBUTTONDOWN()
    ON_WM_XBUTTONUP()
END_MESSAGE_MAP()
// clang-format on

class EveryReflection : public CWnd
{
public:
    AFX_MSGMAP const * Map() const { return GetMessageMap(); }

protected:
    afx_msg int CharToItem(UINT, UINT) { return {}; }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT) { return {}; }
    afx_msg HBRUSH CtlColor(CDC *, UINT) { return {}; }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT) {}
    afx_msg void DrawItem(LPDRAWITEMSTRUCT) {}
    afx_msg void HScroll(UINT, UINT) {}
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT) {}
    afx_msg void ParentNotify(UINT, LPARAM) {}
    afx_msg int VKeyToItem(UINT, UINT) { return {}; }
    afx_msg void VScroll(UINT, UINT) {}

    DECLARE_MESSAGE_MAP()
};

// clang-format off
BEGIN_MESSAGE_MAP(EveryReflection, CWnd)
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_VSCROLL_REFLECT()
END_MESSAGE_MAP()
// clang-format on

std::multiset<UINT> Messages(AFX_MSGMAP const * map)
{
    std::multiset<UINT> messages;
    for (AFX_MSGMAP_ENTRY const * entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
        messages.insert(entry->nMessage);
    return messages;
}

TEST(CoreMessageMacros, EachMessageHasAnEntry)
{
    std::multiset<UINT> const messages = Messages(EveryMessage().Map());
    EXPECT_EQ(messages.size(), 150u);
    EXPECT_EQ(messages.count(WM_SETTINGCHANGE), 2u); // WM_WININICHANGE is the same message
    std::set<UINT> const distinct(messages.begin(), messages.end());
    EXPECT_EQ(distinct.size(), 149u);
}

TEST(CoreMessageMacros, ReflectedMessagesAreMarked)
{
    std::multiset<UINT> const messages = Messages(EveryReflection().Map());
    EXPECT_EQ(messages.size(), 10u);
    for (UINT const message : messages)
        EXPECT_GE(message, static_cast<UINT>(WM_REFLECT_BASE));
}
} // namespace
