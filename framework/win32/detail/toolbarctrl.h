#pragma once
// The tool bar control.

#include "ControlHandles.h"
#include "tooltipctrl.h"

class CBitmap;

class FRAMEWORK_API CToolBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolBarCtrl)

public:
    CToolBarCtrl();
    ~CToolBarCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    // The bar.
    DWORD GetStyle() const { return framework::Send<DWORD>(m_hWnd, TB_GETSTYLE); }
    void SetStyle(DWORD dwStyle) { framework::Send(m_hWnd, TB_SETSTYLE, 0, dwStyle); }
    DWORD GetExtendedStyle() const { return framework::Send<DWORD>(m_hWnd, TB_GETEXTENDEDSTYLE); }
    DWORD SetExtendedStyle(DWORD dwExStyle)
    {
        return framework::Send<DWORD>(m_hWnd, TB_SETEXTENDEDSTYLE, 0, dwExStyle);
    }
    CImageList * GetImageList() const { return framework::SendForImages(m_hWnd, TB_GETIMAGELIST); }
    CImageList * SetImageList(CImageList * pImageList)
    {
        return framework::SendForImages(m_hWnd, TB_SETIMAGELIST, 0, framework::HandleOf(pImageList));
    }
    CImageList * GetHotImageList() const { return framework::SendForImages(m_hWnd, TB_GETHOTIMAGELIST); }
    CImageList * SetHotImageList(CImageList * pImageList)
    {
        return framework::SendForImages(m_hWnd, TB_SETHOTIMAGELIST, 0, framework::HandleOf(pImageList));
    }
    CImageList * GetDisabledImageList() const { return framework::SendForImages(m_hWnd, TB_GETDISABLEDIMAGELIST); }
    CImageList * SetDisabledImageList(CImageList * pImageList)
    {
        return framework::SendForImages(m_hWnd, TB_SETDISABLEDIMAGELIST, 0, framework::HandleOf(pImageList));
    }
    CImageList * GetPressedImageList() { return framework::SendForImages(m_hWnd, TB_GETPRESSEDIMAGELIST); }
    CImageList * SetPressedImageList(int iImageID, CImageList * pImageList)
    {
        return framework::SendForImages(m_hWnd, TB_SETPRESSEDIMAGELIST, iImageID, framework::HandleOf(pImageList));
    }
    CToolTipCtrl * GetToolTips() const { return framework::SendForWindow<CToolTipCtrl>(m_hWnd, TB_GETTOOLTIPS); }
    void SetToolTips(CToolTipCtrl * pTip) { framework::Send(m_hWnd, TB_SETTOOLTIPS, framework::HandleOf(pTip)); }
    /// The window that gets the bar's notifications.
    void SetOwner(CWnd * pWnd) { framework::Send(m_hWnd, TB_SETPARENT, framework::HandleOf(pWnd)); }
    int GetRows() const { return framework::Send<int>(m_hWnd, TB_GETROWS); }
    void SetRows(int nRows, BOOL bLarger, LPRECT lpRect)
    {
        framework::Send(m_hWnd, TB_SETROWS, MAKEWPARAM(nRows, bLarger), lpRect);
    }
    int GetMaxTextRows() const { return framework::Send<int>(m_hWnd, TB_GETTEXTROWS); }
    BOOL SetMaxTextRows(int iMaxRows) { return framework::Send<BOOL>(m_hWnd, TB_SETMAXTEXTROWS, iMaxRows); }
    BOOL GetMaxSize(LPSIZE pSize) const { return framework::Send<BOOL>(m_hWnd, TB_GETMAXSIZE, 0, pSize); }
    void GetMetrics(LPTBMETRICS ptbm) const { framework::Send(m_hWnd, TB_GETMETRICS, 0, ptbm); }
    void SetMetrics(LPTBMETRICS ptbm) { framework::Send(m_hWnd, TB_SETMETRICS, 0, ptbm); }
    BOOL GetPadding(int * pnHorzPadding, int * pnVertPadding) const;
    DWORD SetPadding(int nHorzPadding, int nVertPadding)
    {
        return framework::Send<DWORD>(m_hWnd, TB_SETPADDING, 0, MAKELPARAM(nHorzPadding, nVertPadding));
    }
    BOOL SetIndent(int iIndent) { return framework::Send<BOOL>(m_hWnd, TB_SETINDENT, iIndent); }
    UINT GetBitmapFlags() const { return framework::Send<UINT>(m_hWnd, TB_GETBITMAPFLAGS); }
    BOOL SetBitmapSize(CSize size)
    {
        return framework::Send<BOOL>(m_hWnd, TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy));
    }
    /// The low word is the width, the high word the height.
    DWORD GetButtonSize() const { return framework::Send<DWORD>(m_hWnd, TB_GETBUTTONSIZE); }
    BOOL SetButtonSize(CSize size)
    {
        return framework::Send<BOOL>(m_hWnd, TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy));
    }
    BOOL SetButtonWidth(int cxMin, int cxMax)
    {
        return framework::Send<BOOL>(m_hWnd, TB_SETBUTTONWIDTH, 0, MAKELPARAM(cxMin, cxMax));
    }
    void SetButtonStructSize(int nSize) { framework::Send(m_hWnd, TB_BUTTONSTRUCTSIZE, nSize); }
    DWORD SetDrawTextFlags(DWORD dwMask, DWORD dwDTFlags)
    {
        return framework::Send<DWORD>(m_hWnd, TB_SETDRAWTEXTFLAGS, dwMask, dwDTFlags);
    }
    BOOL GetColorScheme(COLORSCHEME * lpColorScheme) const
    {
        return framework::Send<BOOL>(m_hWnd, TB_GETCOLORSCHEME, 0, lpColorScheme);
    }
    void SetColorScheme(COLORSCHEME const * lpColorScheme)
    {
        framework::Send(m_hWnd, TB_SETCOLORSCHEME, 0, lpColorScheme);
    }
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName)
    {
        return framework::Send<HRESULT>(m_hWnd, TB_SETWINDOWTHEME, 0, pszSubAppName);
    }
    void AutoSize() { framework::Send(m_hWnd, TB_AUTOSIZE); }
    void Customize() { framework::Send(m_hWnd, TB_CUSTOMIZE); }
    void RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    void SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);

    // Buttons.
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons)
    {
        return framework::Send<BOOL>(m_hWnd, TB_ADDBUTTONS, nNumButtons, lpButtons);
    }
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton)
    {
        return framework::Send<BOOL>(m_hWnd, TB_INSERTBUTTON, nIndex, lpButton);
    }
    BOOL DeleteButton(int nIndex) { return framework::Send<BOOL>(m_hWnd, TB_DELETEBUTTON, nIndex); }
    BOOL MoveButton(UINT nOldPos, UINT nNewPos)
    {
        return framework::Send<BOOL>(m_hWnd, TB_MOVEBUTTON, nOldPos, nNewPos);
    }
    int GetButtonCount() const { return framework::Send<int>(m_hWnd, TB_BUTTONCOUNT); }
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const
    {
        return framework::Send<BOOL>(m_hWnd, TB_GETBUTTON, nIndex, lpButton);
    }
    int GetButtonInfo(int nID, TBBUTTONINFO * ptbbi) const
    {
        return framework::Send<int>(m_hWnd, TB_GETBUTTONINFO, nID, ptbbi);
    }
    BOOL SetButtonInfo(int nID, TBBUTTONINFO * ptbbi)
    {
        return framework::Send<BOOL>(m_hWnd, TB_SETBUTTONINFO, nID, ptbbi);
    }
    CString GetButtonText(int idButton) const;
    UINT CommandToIndex(UINT nID) const { return framework::Send<UINT>(m_hWnd, TB_COMMANDTOINDEX, nID); }
    BOOL SetCmdID(int nIndex, UINT nID) { return framework::Send<BOOL>(m_hWnd, TB_SETCMDID, nIndex, nID); }
    int GetState(int nID) const { return framework::Send<int>(m_hWnd, TB_GETSTATE, nID); }
    BOOL SetState(int nID, UINT nState)
    {
        return framework::Send<BOOL>(m_hWnd, TB_SETSTATE, nID, MAKELPARAM(nState, 0));
    }
    BOOL EnableButton(int nID, BOOL bEnable = TRUE)
    {
        return framework::Send<BOOL>(m_hWnd, TB_ENABLEBUTTON, nID, MAKELPARAM(bEnable, 0));
    }
    BOOL CheckButton(int nID, BOOL bCheck = TRUE)
    {
        return framework::Send<BOOL>(m_hWnd, TB_CHECKBUTTON, nID, MAKELPARAM(bCheck, 0));
    }
    BOOL PressButton(int nID, BOOL bPress = TRUE)
    {
        return framework::Send<BOOL>(m_hWnd, TB_PRESSBUTTON, nID, MAKELPARAM(bPress, 0));
    }
    BOOL HideButton(int nID, BOOL bHide = TRUE)
    {
        return framework::Send<BOOL>(m_hWnd, TB_HIDEBUTTON, nID, MAKELPARAM(bHide, 0));
    }
    BOOL Indeterminate(int nID, BOOL bIndeterminate = TRUE)
    {
        return framework::Send<BOOL>(m_hWnd, TB_INDETERMINATE, nID, MAKELPARAM(bIndeterminate, 0));
    }
    BOOL MarkButton(int nID, BOOL fHighlight = TRUE)
    {
        return framework::Send<BOOL>(m_hWnd, TB_MARKBUTTON, nID, MAKELPARAM(fHighlight, 0));
    }
    BOOL IsButtonEnabled(int nID) const { return framework::Send<BOOL>(m_hWnd, TB_ISBUTTONENABLED, nID); }
    BOOL IsButtonChecked(int nID) const { return framework::Send<BOOL>(m_hWnd, TB_ISBUTTONCHECKED, nID); }
    BOOL IsButtonPressed(int nID) const { return framework::Send<BOOL>(m_hWnd, TB_ISBUTTONPRESSED, nID); }
    BOOL IsButtonHidden(int nID) const { return framework::Send<BOOL>(m_hWnd, TB_ISBUTTONHIDDEN, nID); }
    BOOL IsButtonIndeterminate(int nID) const { return framework::Send<BOOL>(m_hWnd, TB_ISBUTTONINDETERMINATE, nID); }
    BOOL IsButtonHighlighted(int nID) const { return framework::Send<BOOL>(m_hWnd, TB_ISBUTTONHIGHLIGHTED, nID); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return framework::Send<BOOL>(m_hWnd, TB_GETITEMRECT, nIndex, lpRect);
    }
    BOOL GetRect(int nID, LPRECT lpRect) const { return framework::Send<BOOL>(m_hWnd, TB_GETRECT, nID, lpRect); }
    int HitTest(LPPOINT ppt) const { return framework::Send<int>(m_hWnd, TB_HITTEST, 0, ppt); }
    int GetHotItem() const { return framework::Send<int>(m_hWnd, TB_GETHOTITEM); }
    int SetHotItem(int nHot) { return framework::Send<int>(m_hWnd, TB_SETHOTITEM, nHot); }
    BOOL GetAnchorHighlight() const { return framework::Send<BOOL>(m_hWnd, TB_GETANCHORHIGHLIGHT); }
    BOOL SetAnchorHighlight(BOOL fAnchor = TRUE)
    {
        return framework::Send<BOOL>(m_hWnd, TB_SETANCHORHIGHLIGHT, fAnchor);
    }
    BOOL MapAccelerator(TCHAR chAccel, UINT * pIDBtn)
    {
        return framework::Send<BOOL>(m_hWnd, TB_MAPACCELERATOR, chAccel, pIDBtn);
    }
    void GetInsertMark(TBINSERTMARK * ptbim) const { framework::Send(m_hWnd, TB_GETINSERTMARK, 0, ptbim); }
    void SetInsertMark(TBINSERTMARK * ptbim) { framework::Send(m_hWnd, TB_SETINSERTMARK, 0, ptbim); }
    COLORREF GetInsertMarkColor() const { return framework::Send<COLORREF>(m_hWnd, TB_GETINSERTMARKCOLOR); }
    COLORREF SetInsertMarkColor(COLORREF clrNew)
    {
        return framework::Send<COLORREF>(m_hWnd, TB_SETINSERTMARKCOLOR, 0, clrNew);
    }
    BOOL InsertMarkHitTest(LPPOINT ppt, LPTBINSERTMARK ptbim) const
    {
        return framework::Send<BOOL>(m_hWnd, TB_INSERTMARKHITTEST, ppt, ptbim);
    }

    // Pictures and texts.
    int AddBitmap(int nNumButtons, UINT nBitmapID);
    int AddBitmap(int nNumButtons, CBitmap * pBitmap);
    int GetBitmap(int nID) const { return framework::Send<int>(m_hWnd, TB_GETBITMAP, nID); }
    BOOL ChangeBitmap(int idButton, int iBitmap)
    {
        return framework::Send<BOOL>(m_hWnd, TB_CHANGEBITMAP, idButton, MAKELPARAM(iBitmap, 0));
    }
    BOOL ReplaceBitmap(LPTBREPLACEBITMAP pReplaceBitmap)
    {
        return framework::Send<BOOL>(m_hWnd, TB_REPLACEBITMAP, 0, pReplaceBitmap);
    }
    void LoadImages(int iBitmapID, HINSTANCE hinst) { framework::Send(m_hWnd, TB_LOADIMAGES, iBitmapID, hinst); }
    int AddString(UINT nStringID);
    /// Texts that each end in a null character, and one more null character at the end.
    int AddStrings(LPCTSTR lpszStrings) { return framework::Send<int>(m_hWnd, TB_ADDSTRING, 0, lpszStrings); }
    /// cchMaxLen: the size of the buffer in bytes. -1 for a bad index.
    int GetString(int nString, LPTSTR lpstrString, int cchMaxLen) const;
    int GetString(int nString, CString & str) const;
};
