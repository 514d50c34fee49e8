#pragma once
// List box and combo box.

#include "ControlMessage.h"
#include "wnd.h"

class FRAMEWORK_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox();
    ~CListBox() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    int GetCount() const { return framework::Send<int>(m_hWnd, LB_GETCOUNT); }
    int GetHorizontalExtent() const { return framework::Send<int>(m_hWnd, LB_GETHORIZONTALEXTENT); }
    void SetHorizontalExtent(int cxExtent) { framework::Send(m_hWnd, LB_SETHORIZONTALEXTENT, cxExtent); }
    int GetTopIndex() const { return framework::Send<int>(m_hWnd, LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return framework::Send<int>(m_hWnd, LB_SETTOPINDEX, nIndex); }
    LCID GetLocale() const { return framework::Send<LCID>(m_hWnd, LB_GETLOCALE); }
    LCID SetLocale(LCID nNewLocale) { return framework::Send<LCID>(m_hWnd, LB_SETLOCALE, nNewLocale); }
    int InitStorage(int nItems, UINT nBytes) { return framework::Send<int>(m_hWnd, LB_INITSTORAGE, nItems, nBytes); }
    UINT ItemFromPoint(CPoint pt, BOOL & bOutside) const;
    DWORD GetListBoxInfo() const { return framework::Send<DWORD>(m_hWnd, LB_GETLISTBOXINFO); }

    int GetCurSel() const { return framework::Send<int>(m_hWnd, LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return framework::Send<int>(m_hWnd, LB_SETCURSEL, nSelect); }
    int GetSel(int nIndex) const { return framework::Send<int>(m_hWnd, LB_GETSEL, nIndex); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) { return framework::Send<int>(m_hWnd, LB_SETSEL, bSelect, nIndex); }
    int GetSelCount() const { return framework::Send<int>(m_hWnd, LB_GETSELCOUNT); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const
    {
        return framework::Send<int>(m_hWnd, LB_GETSELITEMS, nMaxItems, rgIndex);
    }
    int GetAnchorIndex() const { return framework::Send<int>(m_hWnd, LB_GETANCHORINDEX); }
    void SetAnchorIndex(int nIndex) { framework::Send(m_hWnd, LB_SETANCHORINDEX, nIndex); }
    int GetCaretIndex() const { return framework::Send<int>(m_hWnd, LB_GETCARETINDEX); }
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE)
    {
        return framework::Send<int>(m_hWnd, LB_SETCARETINDEX, nIndex, MAKELONG(bScroll, 0));
    }

    DWORD_PTR GetItemData(int nIndex) const { return framework::Send<DWORD_PTR>(m_hWnd, LB_GETITEMDATA, nIndex); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return framework::Send<int>(m_hWnd, LB_SETITEMDATA, nIndex, dwItemData);
    }
    void * GetItemDataPtr(int nIndex) const { return reinterpret_cast<void *>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void * pData) { return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData)); }
    int GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return framework::Send<int>(m_hWnd, LB_GETITEMRECT, nIndex, lpRect);
    }
    int GetText(int nIndex, LPTSTR lpszBuffer) const
    {
        return framework::Send<int>(m_hWnd, LB_GETTEXT, nIndex, lpszBuffer);
    }
    /// A bad index gives an empty text.
    void GetText(int nIndex, CString & rString) const;
    int GetTextLen(int nIndex) const { return framework::Send<int>(m_hWnd, LB_GETTEXTLEN, nIndex); }
    void SetColumnWidth(int cxWidth) { framework::Send(m_hWnd, LB_SETCOLUMNWIDTH, cxWidth); }
    void SetTabStops() { framework::Send(m_hWnd, LB_SETTABSTOPS); }
    BOOL SetTabStops(int const & cxEachStop) { return framework::Send<BOOL>(m_hWnd, LB_SETTABSTOPS, 1, &cxEachStop); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops)
    {
        return framework::Send<BOOL>(m_hWnd, LB_SETTABSTOPS, nTabStops, rgTabStops);
    }
    int GetItemHeight(int nIndex) const { return framework::Send<int>(m_hWnd, LB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight)
    {
        return framework::Send<int>(m_hWnd, LB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
    }

    int AddString(LPCTSTR lpszItem) { return framework::Send<int>(m_hWnd, LB_ADDSTRING, 0, lpszItem); }
    int DeleteString(UINT nIndex) { return framework::Send<int>(m_hWnd, LB_DELETESTRING, nIndex); }
    int InsertString(int nIndex, LPCTSTR lpszItem)
    {
        return framework::Send<int>(m_hWnd, LB_INSERTSTRING, nIndex, lpszItem);
    }
    void ResetContent() { framework::Send(m_hWnd, LB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) { return framework::Send<int>(m_hWnd, LB_DIR, attr, lpszWildCard); }
    int FindString(int nStartAfter, LPCTSTR lpszItem) const
    {
        return framework::Send<int>(m_hWnd, LB_FINDSTRING, nStartAfter, lpszItem);
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
    {
        return framework::Send<int>(m_hWnd, LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }
    int SelectString(int nStartAfter, LPCTSTR lpszItem)
    {
        return framework::Send<int>(m_hWnd, LB_SELECTSTRING, nStartAfter, lpszItem);
    }
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;
};

#ifndef CLBN_CHKCHANGE
#define CLBN_CHKCHANGE 40 // notification: the user changed the check of a row
#endif

class FRAMEWORK_API CCheckListBox : public CListBox
{
    DECLARE_DYNAMIC(CCheckListBox)

public:
    CCheckListBox();
    ~CCheckListBox() override;
    BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID) override;

    void SetCheckStyle(UINT nStyle);
    UINT GetCheckStyle();
    void SetCheck(int nIndex, int nCheck);
    int GetCheck(int nIndex);
    void Enable(int nIndex, BOOL bEnabled = TRUE);
    BOOL IsEnabled(int nIndex);

    virtual CRect OnGetCheckPosition(CRect rectItem, CRect rectCheckBox);
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;
    void PreSubclassWindow() override;
    DECLARE_MESSAGE_MAP()

private:
    struct Row;
    Row * RowAt(int index) const;
    int Added(LRESULT index, DWORD_PTR data);
    void DrawRow(LPDRAWITEMSTRUCT item, Row const & row);
    CSize CheckSize() const;
    CRect CheckRect(int index);
    void ToggleSelected(int index);
    void Notify();

    afx_msg LRESULT OnAddString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInsertString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetItemData(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetItemData(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);

    UINT m_checkStyle = BS_AUTOCHECKBOX;
    int m_textHeight = 0;
};

class FRAMEWORK_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox();
    ~CComboBox() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    int GetCount() const { return framework::Send<int>(m_hWnd, CB_GETCOUNT); }
    int GetCurSel() const { return framework::Send<int>(m_hWnd, CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return framework::Send<int>(m_hWnd, CB_SETCURSEL, nSelect); }
    LCID GetLocale() const { return framework::Send<LCID>(m_hWnd, CB_GETLOCALE); }
    LCID SetLocale(LCID nNewLocale) { return framework::Send<LCID>(m_hWnd, CB_SETLOCALE, nNewLocale); }
    int GetTopIndex() const { return framework::Send<int>(m_hWnd, CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return framework::Send<int>(m_hWnd, CB_SETTOPINDEX, nIndex); }
    int InitStorage(int nItems, UINT nBytes) { return framework::Send<int>(m_hWnd, CB_INITSTORAGE, nItems, nBytes); }
    UINT GetHorizontalExtent() const { return framework::Send<UINT>(m_hWnd, CB_GETHORIZONTALEXTENT); }
    void SetHorizontalExtent(UINT nExtent) { framework::Send(m_hWnd, CB_SETHORIZONTALEXTENT, nExtent); }
    int GetDroppedWidth() const { return framework::Send<int>(m_hWnd, CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT nWidth) { return framework::Send<int>(m_hWnd, CB_SETDROPPEDWIDTH, nWidth); }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const
    {
        return framework::Send<BOOL>(m_hWnd, CB_GETCOMBOBOXINFO, 0, pcbi);
    }
    int GetMinVisible() const { return framework::Send<int>(m_hWnd, CB_GETMINVISIBLE); }
    BOOL SetMinVisibleItems(int iMinVisible) { return framework::Send<BOOL>(m_hWnd, CB_SETMINVISIBLE, iMinVisible); }
    CString GetCueBanner() const;
    BOOL GetCueBanner(LPTSTR lpszText, int cchText) const
    {
        return framework::Send<BOOL>(m_hWnd, CB_GETCUEBANNER, lpszText, cchText);
    }
    BOOL SetCueBanner(LPCTSTR lpszText) { return framework::Send<BOOL>(m_hWnd, CB_SETCUEBANNER, 0, lpszText); }

    DWORD GetEditSel() const { return framework::Send<DWORD>(m_hWnd, CB_GETEDITSEL); }
    BOOL SetEditSel(int nStartChar, int nEndChar)
    {
        return framework::Send<BOOL>(m_hWnd, CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar));
    }
    BOOL LimitText(int nMaxChars) { return framework::Send<BOOL>(m_hWnd, CB_LIMITTEXT, nMaxChars); }

    DWORD_PTR GetItemData(int nIndex) const { return framework::Send<DWORD_PTR>(m_hWnd, CB_GETITEMDATA, nIndex); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return framework::Send<int>(m_hWnd, CB_SETITEMDATA, nIndex, dwItemData);
    }
    void * GetItemDataPtr(int nIndex) const { return reinterpret_cast<void *>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void * pData) { return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData)); }
    int GetLBText(int nIndex, LPTSTR lpszText) const
    {
        return framework::Send<int>(m_hWnd, CB_GETLBTEXT, nIndex, lpszText);
    }
    /// A bad index gives an empty text.
    void GetLBText(int nIndex, CString & rString) const;
    int GetLBTextLen(int nIndex) const { return framework::Send<int>(m_hWnd, CB_GETLBTEXTLEN, nIndex); }
    int GetItemHeight(int nIndex) const { return framework::Send<int>(m_hWnd, CB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight)
    {
        return framework::Send<int>(m_hWnd, CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
    }
    BOOL GetExtendedUI() const { return framework::Send<BOOL>(m_hWnd, CB_GETEXTENDEDUI); }
    int SetExtendedUI(BOOL bExtended = TRUE) { return framework::Send<int>(m_hWnd, CB_SETEXTENDEDUI, bExtended); }
    void GetDroppedControlRect(LPRECT lprect) const { framework::Send(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, lprect); }
    BOOL GetDroppedState() const { return framework::Send<BOOL>(m_hWnd, CB_GETDROPPEDSTATE); }
    void ShowDropDown(BOOL bShowIt = TRUE) { framework::Send(m_hWnd, CB_SHOWDROPDOWN, bShowIt); }

    int AddString(LPCTSTR lpszString) { return framework::Send<int>(m_hWnd, CB_ADDSTRING, 0, lpszString); }
    int DeleteString(UINT nIndex) { return framework::Send<int>(m_hWnd, CB_DELETESTRING, nIndex); }
    int InsertString(int nIndex, LPCTSTR lpszString)
    {
        return framework::Send<int>(m_hWnd, CB_INSERTSTRING, nIndex, lpszString);
    }
    void ResetContent() { framework::Send(m_hWnd, CB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) { return framework::Send<int>(m_hWnd, CB_DIR, attr, lpszWildCard); }
    int FindString(int nStartAfter, LPCTSTR lpszString) const
    {
        return framework::Send<int>(m_hWnd, CB_FINDSTRING, nStartAfter, lpszString);
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
    {
        return framework::Send<int>(m_hWnd, CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }
    int SelectString(int nStartAfter, LPCTSTR lpszString)
    {
        return framework::Send<int>(m_hWnd, CB_SELECTSTRING, nStartAfter, lpszString);
    }
    void Clear() { framework::Send(m_hWnd, WM_CLEAR); }
    void Copy() { framework::Send(m_hWnd, WM_COPY); }
    void Cut() { framework::Send(m_hWnd, WM_CUT); }
    void Paste() { framework::Send(m_hWnd, WM_PASTE); }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;
};
