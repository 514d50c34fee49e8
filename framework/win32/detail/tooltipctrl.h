#pragma once
// The tooltip control.

#include "ControlHandles.h"

/// A tool of a tooltip control together with room for its text.
class CToolInfo : public TOOLINFO
{
public:
    TCHAR szText[256];
};

class FRAMEWORK_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl();
    ~CToolTipCtrl() override;
    virtual BOOL Create(CWnd * pParentWnd, DWORD dwStyle = 0);
    virtual BOOL CreateEx(CWnd * pParentWnd, DWORD dwStyle = 0, DWORD dwStyleEx = 0);

    void GetText(CString & str, CWnd * pWnd, UINT_PTR nIDTool = 0) const;
    BOOL GetToolInfo(CToolInfo & ToolInfo, CWnd * pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo) { framework::Send(m_hWnd, TTM_SETTOOLINFO, 0, lpToolInfo); }
    void SetToolRect(CWnd * pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    int GetToolCount() const { return framework::Send<int>(m_hWnd, TTM_GETTOOLCOUNT); }
    BOOL GetCurrentTool(LPTOOLINFO lpToolInfo) const
    {
        return framework::Send<BOOL>(m_hWnd, TTM_GETCURRENTTOOL, 0, lpToolInfo);
    }
    int GetDelayTime(DWORD dwDuration) const { return framework::Send<int>(m_hWnd, TTM_GETDELAYTIME, dwDuration); }
    void SetDelayTime(DWORD dwDuration, int iTime)
    {
        framework::Send(m_hWnd, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
    }
    void SetDelayTime(UINT nDelay) { SetDelayTime(TTDT_AUTOMATIC, static_cast<int>(nDelay)); }
    void GetMargin(LPRECT lprc) const { framework::Send(m_hWnd, TTM_GETMARGIN, 0, lprc); }
    void SetMargin(LPRECT lprc) { framework::Send(m_hWnd, TTM_SETMARGIN, 0, lprc); }
    int GetMaxTipWidth() const { return framework::Send<int>(m_hWnd, TTM_GETMAXTIPWIDTH); }
    int SetMaxTipWidth(int iWidth) { return framework::Send<int>(m_hWnd, TTM_SETMAXTIPWIDTH, 0, iWidth); }
    COLORREF GetTipBkColor() const { return framework::Send<COLORREF>(m_hWnd, TTM_GETTIPBKCOLOR); }
    void SetTipBkColor(COLORREF clr) { framework::Send(m_hWnd, TTM_SETTIPBKCOLOR, clr); }
    COLORREF GetTipTextColor() const { return framework::Send<COLORREF>(m_hWnd, TTM_GETTIPTEXTCOLOR); }
    void SetTipTextColor(COLORREF clr) { framework::Send(m_hWnd, TTM_SETTIPTEXTCOLOR, clr); }
    CSize GetBubbleSize(LPTOOLINFO lpToolInfo) const;
    void GetTitle(PTTGETTITLE pttgt) const { framework::Send(m_hWnd, TTM_GETTITLE, 0, pttgt); }
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle)
    {
        return framework::Send<BOOL>(m_hWnd, TTM_SETTITLE, uIcon, lpstrTitle);
    }
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName)
    {
        return framework::Send<HRESULT>(m_hWnd, TTM_SETWINDOWTHEME, 0, pszSubAppName);
    }

    void Activate(BOOL bActivate) { framework::Send(m_hWnd, TTM_ACTIVATE, bActivate); }
    BOOL AddTool(CWnd * pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd * pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd * pWnd, UINT_PTR nIDTool = 0);
    BOOL HitTest(CWnd * pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    void RelayEvent(LPMSG lpMsg) { framework::Send(m_hWnd, TTM_RELAYEVENT, 0, lpMsg); }
    void UpdateTipText(LPCTSTR lpszText, CWnd * pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd * pWnd, UINT_PTR nIDTool = 0);
    void Update() { framework::Send(m_hWnd, TTM_UPDATE); }
    void Pop() { framework::Send(m_hWnd, TTM_POP); }
    void Popup() { framework::Send(m_hWnd, TTM_POPUP); }
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE)
    {
        return framework::Send<BOOL>(m_hWnd, TTM_ADJUSTRECT, bLarger, lprc);
    }
};
