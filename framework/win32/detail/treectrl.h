#pragma once
// The tree control.

#include "ControlHandles.h"
#include "stdctrls.h"
#include "tooltipctrl.h"

class FRAMEWORK_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    CTreeCtrl();
    ~CTreeCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    UINT GetCount() const { return framework::Send<UINT>(m_hWnd, TVM_GETCOUNT); }
    UINT GetSelectedCount() { return framework::Send<UINT>(m_hWnd, TVM_GETSELECTEDCOUNT); }
    UINT GetVisibleCount() const { return framework::Send<UINT>(m_hWnd, TVM_GETVISIBLECOUNT); }
    UINT GetIndent() const { return framework::Send<UINT>(m_hWnd, TVM_GETINDENT); }
    void SetIndent(UINT nIndent) { framework::Send(m_hWnd, TVM_SETINDENT, nIndent); }
    CImageList * GetImageList(UINT nImageList) const
    {
        return framework::SendForImages(m_hWnd, TVM_GETIMAGELIST, nImageList);
    }
    CImageList * SetImageList(CImageList * pImageList, int nImageListType)
    {
        return framework::SendForImages(m_hWnd, TVM_SETIMAGELIST, nImageListType, framework::HandleOf(pImageList));
    }

    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const
    {
        return framework::Send<HTREEITEM>(m_hWnd, TVM_GETNEXTITEM, nCode, hItem);
    }
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PARENT); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetLastVisibleItem() const { return GetNextItem(nullptr, TVGN_LASTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXTVISIBLE); }
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(nullptr, TVGN_DROPHILITE); }
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }

    BOOL GetItem(TVITEM * pItem) const { return framework::Send<BOOL>(m_hWnd, TVM_GETITEM, 0, pItem); }
    BOOL SetItem(TVITEM * pItem) { return framework::Send<BOOL>(m_hWnd, TVM_SETITEM, 0, pItem); }
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL ItemHasChildren(HTREEITEM hItem) const;
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    UINT GetItemStateEx(HTREEITEM hItem) const;
    BOOL SetItemStateEx(HTREEITEM hItem, UINT uStateEx);
    BOOL GetItemImage(HTREEITEM hItem, int & nImage, int & nSelectedImage) const;
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    int GetItemExpandedImageIndex(HTREEITEM hItem) const;
    BOOL SetItemExpandedImageIndex(HTREEITEM hItem, int iExpandedImage);
    CString GetItemText(HTREEITEM hItem) const;
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL GetCheck(HTREEITEM hItem) const;
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;
    BOOL GetItemPartRect(HTREEITEM hItem, int nPart, LPRECT lpRect) const;
    SHORT GetItemHeight() const { return framework::Send<SHORT>(m_hWnd, TVM_GETITEMHEIGHT); }
    SHORT SetItemHeight(SHORT cyHeight) { return framework::Send<SHORT>(m_hWnd, TVM_SETITEMHEIGHT, cyHeight); }

    CEdit * GetEditControl() const { return framework::SendForWindow<CEdit>(m_hWnd, TVM_GETEDITCONTROL); }
    CToolTipCtrl * GetToolTips() const { return framework::SendForWindow<CToolTipCtrl>(m_hWnd, TVM_GETTOOLTIPS); }
    CToolTipCtrl * SetToolTips(CToolTipCtrl * pWndTip)
    {
        return framework::SendForWindow<CToolTipCtrl>(m_hWnd, TVM_SETTOOLTIPS, framework::HandleOf(pWndTip));
    }
    COLORREF GetBkColor() const { return framework::Send<COLORREF>(m_hWnd, TVM_GETBKCOLOR); }
    COLORREF SetBkColor(COLORREF clr) { return framework::Send<COLORREF>(m_hWnd, TVM_SETBKCOLOR, 0, clr); }
    COLORREF GetTextColor() const { return framework::Send<COLORREF>(m_hWnd, TVM_GETTEXTCOLOR); }
    COLORREF SetTextColor(COLORREF clr) { return framework::Send<COLORREF>(m_hWnd, TVM_SETTEXTCOLOR, 0, clr); }
    COLORREF GetLineColor() const { return framework::Send<COLORREF>(m_hWnd, TVM_GETLINECOLOR); }
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT)
    {
        return framework::Send<COLORREF>(m_hWnd, TVM_SETLINECOLOR, 0, clrNew);
    }
    COLORREF GetInsertMarkColor() const { return framework::Send<COLORREF>(m_hWnd, TVM_GETINSERTMARKCOLOR); }
    COLORREF SetInsertMarkColor(COLORREF clrNew)
    {
        return framework::Send<COLORREF>(m_hWnd, TVM_SETINSERTMARKCOLOR, 0, clrNew);
    }
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE)
    {
        return framework::Send<BOOL>(m_hWnd, TVM_SETINSERTMARK, fAfter, hItem);
    }
    UINT GetScrollTime() const { return framework::Send<UINT>(m_hWnd, TVM_GETSCROLLTIME); }
    UINT SetScrollTime(UINT uScrollTime) { return framework::Send<UINT>(m_hWnd, TVM_SETSCROLLTIME, uScrollTime); }
    BOOL SetAutoscrollInfo(UINT uPixelsPerSec, UINT uUpdateTime)
    {
        return framework::Send<BOOL>(m_hWnd, TVM_SETAUTOSCROLLINFO, uPixelsPerSec, uUpdateTime);
    }
    DWORD GetExtendedStyle() const { return framework::Send<DWORD>(m_hWnd, TVM_GETEXTENDEDSTYLE); }
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles)
    {
        return framework::Send<DWORD>(m_hWnd, TVM_SETEXTENDEDSTYLE, dwExMask, dwExStyles);
    }
    HTREEITEM MapAccIdToItem(UINT uAccId) const
    {
        return framework::Send<HTREEITEM>(m_hWnd, TVM_MAPACCIDTOHTREEITEM, uAccId);
    }
    UINT MapItemToAccID(HTREEITEM hItem) const { return framework::Send<UINT>(m_hWnd, TVM_MAPHTREEITEMTOACCID, hItem); }

    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct)
    {
        return framework::Send<HTREEITEM>(m_hWnd, TVM_INSERTITEM, 0, lpInsertStruct);
    }
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState, UINT nStateMask,
                         LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    BOOL DeleteItem(HTREEITEM hItem) { return framework::Send<BOOL>(m_hWnd, TVM_DELETEITEM, 0, hItem); }
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    BOOL Expand(HTREEITEM hItem, UINT nCode) { return framework::Send<BOOL>(m_hWnd, TVM_EXPAND, nCode, hItem); }
    BOOL Select(HTREEITEM hItem, UINT nCode) { return framework::Send<BOOL>(m_hWnd, TVM_SELECTITEM, nCode, hItem); }
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM hItem) { return Select(hItem, TVGN_DROPHILITE); }
    BOOL SelectSetFirstVisible(HTREEITEM hItem) { return Select(hItem, TVGN_FIRSTVISIBLE); }
    CEdit * EditLabel(HTREEITEM hItem) { return framework::SendForWindow<CEdit>(m_hWnd, TVM_EDITLABEL, 0, hItem); }
    BOOL EndEditLabelNow(BOOL fCancelWithoutSave)
    {
        return framework::Send<BOOL>(m_hWnd, TVM_ENDEDITLABELNOW, fCancelWithoutSave);
    }
    HTREEITEM HitTest(CPoint pt, UINT * pFlags = nullptr) const;
    HTREEITEM HitTest(TVHITTESTINFO * pHitTestInfo) const
    {
        return framework::Send<HTREEITEM>(m_hWnd, TVM_HITTEST, 0, pHitTestInfo);
    }
    /// The caller deletes the image list.
    CImageList * CreateDragImage(HTREEITEM hItem);
    BOOL SortChildren(HTREEITEM hItem) { return framework::Send<BOOL>(m_hWnd, TVM_SORTCHILDREN, 0, hItem); }
    BOOL SortChildrenCB(LPTVSORTCB pSort) { return framework::Send<BOOL>(m_hWnd, TVM_SORTCHILDRENCB, 0, pSort); }
    BOOL EnsureVisible(HTREEITEM hItem) { return framework::Send<BOOL>(m_hWnd, TVM_ENSUREVISIBLE, 0, hItem); }
    void ShowInfoTip(HTREEITEM hItem) { framework::Send(m_hWnd, TVM_SHOWINFOTIP, 0, hItem); }

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnDestroy();
};
