#pragma once
// Tab control, status bar, tool bar and rebar.

#include <uxtheme.h>

#include "ControlHandles.h"
#include "tooltipctrl.h"

class FRAMEWORK_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl();
    ~CTabCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    CImageList * GetImageList() const { return framework::SendForImages(m_hWnd, TCM_GETIMAGELIST); }
    CImageList * SetImageList(CImageList * pImageList)
    {
        return framework::SendForImages(m_hWnd, TCM_SETIMAGELIST, 0, framework::HandleOf(pImageList));
    }
    int GetItemCount() const { return framework::Send<int>(m_hWnd, TCM_GETITEMCOUNT); }
    BOOL GetItem(int nItem, TCITEM * pTabCtrlItem) const
    {
        return framework::Send<BOOL>(m_hWnd, TCM_GETITEM, nItem, pTabCtrlItem);
    }
    BOOL SetItem(int nItem, TCITEM * pTabCtrlItem)
    {
        return framework::Send<BOOL>(m_hWnd, TCM_SETITEM, nItem, pTabCtrlItem);
    }
    BOOL SetItemExtra(int nBytes) { return framework::Send<BOOL>(m_hWnd, TCM_SETITEMEXTRA, nBytes); }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const
    {
        return framework::Send<BOOL>(m_hWnd, TCM_GETITEMRECT, nItem, lpRect);
    }
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    int GetCurSel() const { return framework::Send<int>(m_hWnd, TCM_GETCURSEL); }
    int SetCurSel(int nItem) { return framework::Send<int>(m_hWnd, TCM_SETCURSEL, nItem); }
    int GetCurFocus() const { return framework::Send<int>(m_hWnd, TCM_GETCURFOCUS); }
    void SetCurFocus(int nItem) { framework::Send(m_hWnd, TCM_SETCURFOCUS, nItem); }
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size) { framework::Send(m_hWnd, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    int GetRowCount() const { return framework::Send<int>(m_hWnd, TCM_GETROWCOUNT); }
    int SetMinTabWidth(int cx) { return framework::Send<int>(m_hWnd, TCM_SETMINTABWIDTH, 0, cx); }
    CToolTipCtrl * GetToolTips() const { return framework::SendForWindow<CToolTipCtrl>(m_hWnd, TCM_GETTOOLTIPS); }
    void SetToolTips(CToolTipCtrl * pWndTip) { framework::Send(m_hWnd, TCM_SETTOOLTIPS, framework::HandleOf(pWndTip)); }
    DWORD GetExtendedStyle() { return framework::Send<DWORD>(m_hWnd, TCM_GETEXTENDEDSTYLE); }
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0)
    {
        return framework::Send<DWORD>(m_hWnd, TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle);
    }

    LONG InsertItem(int nItem, TCITEM * pTabCtrlItem)
    {
        return framework::Send<LONG>(m_hWnd, TCM_INSERTITEM, nItem, pTabCtrlItem);
    }
    LONG InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0); }
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
    {
        return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
    }
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam)
    {
        return InsertItem(nMask, nItem, lpszItem, nImage, lParam, 0, 0);
    }
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                    DWORD dwStateMask);
    BOOL DeleteItem(int nItem) { return framework::Send<BOOL>(m_hWnd, TCM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return framework::Send<BOOL>(m_hWnd, TCM_DELETEALLITEMS); }
    void AdjustRect(BOOL bLarger, LPRECT lpRect) { framework::Send(m_hWnd, TCM_ADJUSTRECT, bLarger, lpRect); }
    void RemoveImage(int nImage) { framework::Send(m_hWnd, TCM_REMOVEIMAGE, nImage); }
    int HitTest(TCHITTESTINFO * pHitTestInfo) const
    {
        return framework::Send<int>(m_hWnd, TCM_HITTEST, 0, pHitTestInfo);
    }
    void DeselectAll(BOOL fExcludeFocus) { framework::Send(m_hWnd, TCM_DESELECTALL, fExcludeFocus); }
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE)
    {
        return framework::Send<BOOL>(m_hWnd, TCM_HIGHLIGHTITEM, idItem, MAKELPARAM(fHighlight, 0));
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnDestroy();
};

class FRAMEWORK_API CStatusBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CStatusBarCtrl)

public:
    CStatusBarCtrl();
    ~CStatusBarCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    /// The type: border flags of SBT_. Null if not wanted.
    CString GetText(int nPane, int * pType = nullptr) const;
    int GetText(LPTSTR lpszText, int nPane, int * pType = nullptr) const;
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType);
    int GetTextLength(int nPane, int * pType = nullptr) const;
    int GetParts(int nParts, int * pParts) const { return framework::Send<int>(m_hWnd, SB_GETPARTS, nParts, pParts); }
    BOOL SetParts(int nParts, int * pWidths) { return framework::Send<BOOL>(m_hWnd, SB_SETPARTS, nParts, pWidths); }
    BOOL GetBorders(int * pBorders) const { return framework::Send<BOOL>(m_hWnd, SB_GETBORDERS, 0, pBorders); }
    BOOL GetBorders(int & nHorz, int & nVert, int & nSpacing) const;
    void SetMinHeight(int nMin) { framework::Send(m_hWnd, SB_SETMINHEIGHT, nMin); }
    BOOL SetSimple(BOOL bSimple = TRUE) { return framework::Send<BOOL>(m_hWnd, SB_SIMPLE, bSimple); }
    BOOL IsSimple() const { return framework::Send<BOOL>(m_hWnd, SB_ISSIMPLE); }
    BOOL GetRect(int nPane, LPRECT lpRect) const { return framework::Send<BOOL>(m_hWnd, SB_GETRECT, nPane, lpRect); }
    HICON GetIcon(int iPart) const { return framework::Send<HICON>(m_hWnd, SB_GETICON, iPart); }
    BOOL SetIcon(int nPane, HICON hIcon) { return framework::Send<BOOL>(m_hWnd, SB_SETICON, nPane, hIcon); }
    CString GetTipText(int nPane) const;
    void SetTipText(int nPane, LPCTSTR pszTipText) { framework::Send(m_hWnd, SB_SETTIPTEXT, nPane, pszTipText); }
    COLORREF SetBkColor(COLORREF cr) { return framework::Send<COLORREF>(m_hWnd, SB_SETBKCOLOR, 0, cr); }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;
};

class FRAMEWORK_API CReBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CReBarCtrl)

public:
    CReBarCtrl();
    ~CReBarCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    UINT GetBandCount() const { return framework::Send<UINT>(m_hWnd, RB_GETBANDCOUNT); }
    BOOL GetBandInfo(UINT uBand, REBARBANDINFO * prbbi) const
    {
        return framework::Send<BOOL>(m_hWnd, RB_GETBANDINFO, uBand, prbbi);
    }
    BOOL SetBandInfo(UINT uBand, REBARBANDINFO * prbbi)
    {
        return framework::Send<BOOL>(m_hWnd, RB_SETBANDINFO, uBand, prbbi);
    }
    void GetBandBorders(UINT uBand, LPRECT prc) const { framework::Send(m_hWnd, RB_GETBANDBORDERS, uBand, prc); }
    void GetBandMargins(PMARGINS pMargins) { framework::Send(m_hWnd, RB_GETBANDMARGINS, 0, pMargins); }
    BOOL SetBandWidth(UINT uBand, int cxWidth)
    {
        return framework::Send<BOOL>(m_hWnd, RB_SETBANDWIDTH, uBand, cxWidth);
    }
    UINT GetBarHeight() const { return framework::Send<UINT>(m_hWnd, RB_GETBARHEIGHT); }
    BOOL GetBarInfo(REBARINFO * prbi) const { return framework::Send<BOOL>(m_hWnd, RB_GETBARINFO, 0, prbi); }
    BOOL SetBarInfo(REBARINFO * prbi) { return framework::Send<BOOL>(m_hWnd, RB_SETBARINFO, 0, prbi); }
    COLORREF GetBkColor() const { return framework::Send<COLORREF>(m_hWnd, RB_GETBKCOLOR); }
    COLORREF SetBkColor(COLORREF clr) { return framework::Send<COLORREF>(m_hWnd, RB_SETBKCOLOR, 0, clr); }
    COLORREF GetTextColor() const { return framework::Send<COLORREF>(m_hWnd, RB_GETTEXTCOLOR); }
    COLORREF SetTextColor(COLORREF clr) { return framework::Send<COLORREF>(m_hWnd, RB_SETTEXTCOLOR, 0, clr); }
    BOOL GetColorScheme(COLORSCHEME * lpcs) { return framework::Send<BOOL>(m_hWnd, RB_GETCOLORSCHEME, 0, lpcs); }
    void SetColorScheme(COLORSCHEME const * lpcs) { framework::Send(m_hWnd, RB_SETCOLORSCHEME, 0, lpcs); }
    DWORD GetExtendedStyle() const { return framework::Send<DWORD>(m_hWnd, RB_GETEXTENDEDSTYLE); }
    DWORD SetExtendedStyle(DWORD dwMask, DWORD dwStyleEx)
    {
        return framework::Send<DWORD>(m_hWnd, RB_SETEXTENDEDSTYLE, dwMask, dwStyleEx);
    }
    CImageList * GetImageList() const;
    BOOL SetImageList(CImageList * pImageList);
    CPalette * GetPalette() const;
    CPalette * SetPalette(HPALETTE hPal);
    BOOL GetRect(UINT uBand, LPRECT prc) const { return framework::Send<BOOL>(m_hWnd, RB_GETRECT, uBand, prc); }
    UINT GetRowCount() const { return framework::Send<UINT>(m_hWnd, RB_GETROWCOUNT); }
    UINT GetRowHeight(UINT uRow) const { return framework::Send<UINT>(m_hWnd, RB_GETROWHEIGHT, uRow); }
    CToolTipCtrl * GetToolTips() const { return framework::SendForWindow<CToolTipCtrl>(m_hWnd, RB_GETTOOLTIPS); }
    void SetToolTips(CToolTipCtrl * pToolTip)
    {
        framework::Send(m_hWnd, RB_SETTOOLTIPS, framework::HandleOf(pToolTip));
    }
    CWnd * SetOwner(CWnd * pWnd)
    {
        return framework::SendForWindow<CWnd>(m_hWnd, RB_SETPARENT, framework::HandleOf(pWnd));
    }
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName)
    {
        return framework::Send<HRESULT>(m_hWnd, RB_SETWINDOWTHEME, 0, pszSubAppName);
    }

    int IDToIndex(UINT uBandID) const { return framework::Send<int>(m_hWnd, RB_IDTOINDEX, uBandID); }
    BOOL InsertBand(UINT uIndex, REBARBANDINFO * prbbi)
    {
        return framework::Send<BOOL>(m_hWnd, RB_INSERTBAND, uIndex, prbbi);
    }
    BOOL DeleteBand(UINT uBand) { return framework::Send<BOOL>(m_hWnd, RB_DELETEBAND, uBand); }
    BOOL ShowBand(UINT uBand, BOOL fShow = TRUE) { return framework::Send<BOOL>(m_hWnd, RB_SHOWBAND, uBand, fShow); }
    BOOL MoveBand(UINT uFrom, UINT uTo) { return framework::Send<BOOL>(m_hWnd, RB_MOVEBAND, uFrom, uTo); }
    void MaximizeBand(UINT uBand) { framework::Send(m_hWnd, RB_MAXIMIZEBAND, uBand); }
    void MinimizeBand(UINT uBand) { framework::Send(m_hWnd, RB_MINIMIZEBAND, uBand); }
    void RestoreBand(UINT uBand);
    void PushChevron(UINT uBand, LPARAM lAppValue) { framework::Send(m_hWnd, RB_PUSHCHEVRON, uBand, lAppValue); }
    int HitTest(RBHITTESTINFO * prbht) { return framework::Send<int>(m_hWnd, RB_HITTEST, 0, prbht); }
    BOOL SizeToRect(CRect & rect);
    void BeginDrag(UINT uBand, DWORD dwPos = static_cast<DWORD>(-1))
    {
        framework::Send(m_hWnd, RB_BEGINDRAG, uBand, dwPos);
    }
    void DragMove(DWORD dwPos = static_cast<DWORD>(-1)) { framework::Send(m_hWnd, RB_DRAGMOVE, 0, dwPos); }
    void EndDrag() { framework::Send(m_hWnd, RB_ENDDRAG); }
};
