#pragma once
// The list view control.

#include "ControlHandles.h"
#include "headerctrl.h"
#include "stdctrls.h"
#include "tooltipctrl.h"

class FRAMEWORK_API CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)

public:
    CListCtrl();
    ~CListCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    // The control as a whole.
    COLORREF GetBkColor() const { return framework::Send<COLORREF>(m_hWnd, LVM_GETBKCOLOR); }
    BOOL SetBkColor(COLORREF cr) { return framework::Send<BOOL>(m_hWnd, LVM_SETBKCOLOR, 0, cr); }
    COLORREF GetTextColor() const { return framework::Send<COLORREF>(m_hWnd, LVM_GETTEXTCOLOR); }
    BOOL SetTextColor(COLORREF cr) { return framework::Send<BOOL>(m_hWnd, LVM_SETTEXTCOLOR, 0, cr); }
    COLORREF GetTextBkColor() const { return framework::Send<COLORREF>(m_hWnd, LVM_GETTEXTBKCOLOR); }
    BOOL SetTextBkColor(COLORREF cr) { return framework::Send<BOOL>(m_hWnd, LVM_SETTEXTBKCOLOR, 0, cr); }
    COLORREF GetOutlineColor() const { return framework::Send<COLORREF>(m_hWnd, LVM_GETOUTLINECOLOR); }
    COLORREF SetOutlineColor(COLORREF color)
    {
        return framework::Send<COLORREF>(m_hWnd, LVM_SETOUTLINECOLOR, 0, color);
    }
    BOOL GetBkImage(LVBKIMAGE * plvbkImage) const
    {
        return framework::Send<BOOL>(m_hWnd, LVM_GETBKIMAGE, 0, plvbkImage);
    }
    BOOL SetBkImage(LVBKIMAGE * plvbkImage) { return framework::Send<BOOL>(m_hWnd, LVM_SETBKIMAGE, 0, plvbkImage); }
    BOOL SetBkImage(HBITMAP hBitmap, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    BOOL SetBkImage(LPTSTR pszUrl, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    CImageList * GetImageList(int nImageList) const
    {
        return framework::SendForImages(m_hWnd, LVM_GETIMAGELIST, nImageList);
    }
    CImageList * SetImageList(CImageList * pImageList, int nImageListType)
    {
        return framework::SendForImages(m_hWnd, LVM_SETIMAGELIST, nImageListType, framework::HandleOf(pImageList));
    }
    UINT GetCallbackMask() const { return framework::Send<UINT>(m_hWnd, LVM_GETCALLBACKMASK); }
    BOOL SetCallbackMask(UINT nMask) { return framework::Send<BOOL>(m_hWnd, LVM_SETCALLBACKMASK, nMask); }
    DWORD GetExtendedStyle() { return framework::Send<DWORD>(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE); }
    DWORD SetExtendedStyle(DWORD dwNewStyle)
    {
        return framework::Send<DWORD>(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
    }
    DWORD GetView() const { return framework::Send<DWORD>(m_hWnd, LVM_GETVIEW); }
    DWORD SetView(int iView) { return framework::Send<DWORD>(m_hWnd, LVM_SETVIEW, iView); }
    int GetHotItem() { return framework::Send<int>(m_hWnd, LVM_GETHOTITEM); }
    int SetHotItem(int iIndex) { return framework::Send<int>(m_hWnd, LVM_SETHOTITEM, iIndex); }
    HCURSOR GetHotCursor() { return framework::Send<HCURSOR>(m_hWnd, LVM_GETHOTCURSOR); }
    HCURSOR SetHotCursor(HCURSOR hc) { return framework::Send<HCURSOR>(m_hWnd, LVM_SETHOTCURSOR, 0, hc); }
    DWORD GetHoverTime() const { return framework::Send<DWORD>(m_hWnd, LVM_GETHOVERTIME); }
    DWORD SetHoverTime(DWORD dwHoverTime = static_cast<DWORD>(-1))
    {
        return framework::Send<DWORD>(m_hWnd, LVM_SETHOVERTIME, 0, dwHoverTime);
    }
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size) { return SetIconSpacing(size.cx, size.cy); }
    BOOL GetItemSpacing(BOOL fSmall, int * pnHorzSpacing, int * pnVertSpacing) const;
    CHeaderCtrl * GetHeaderCtrl() { return framework::SendForWindow<CHeaderCtrl>(m_hWnd, LVM_GETHEADER); }
    CEdit * GetEditControl() const { return framework::SendForWindow<CEdit>(m_hWnd, LVM_GETEDITCONTROL); }
    CToolTipCtrl * GetToolTips() const { return framework::SendForWindow<CToolTipCtrl>(m_hWnd, LVM_GETTOOLTIPS); }
    CToolTipCtrl * SetToolTips(CToolTipCtrl * pWndTip)
    {
        return framework::SendForWindow<CToolTipCtrl>(m_hWnd, LVM_SETTOOLTIPS, framework::HandleOf(pWndTip));
    }
    BOOL SetInfoTip(PLVSETINFOTIP plvInfoTip) { return framework::Send<BOOL>(m_hWnd, LVM_SETINFOTIP, 0, plvInfoTip); }
    CString GetEmptyText() const;
    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;
    BOOL GetOrigin(LPPOINT lpPoint) const { return framework::Send<BOOL>(m_hWnd, LVM_GETORIGIN, 0, lpPoint); }
    BOOL GetViewRect(LPRECT lpRect) const { return framework::Send<BOOL>(m_hWnd, LVM_GETVIEWRECT, 0, lpRect); }
    int GetTopIndex() const { return framework::Send<int>(m_hWnd, LVM_GETTOPINDEX); }
    int GetCountPerPage() const { return framework::Send<int>(m_hWnd, LVM_GETCOUNTPERPAGE); }
    int GetStringWidth(LPCTSTR lpsz) const { return framework::Send<int>(m_hWnd, LVM_GETSTRINGWIDTH, 0, lpsz); }
    UINT GetNumberOfWorkAreas() const;
    void GetWorkAreas(int nWorkAreas, LPRECT pRect) const
    {
        framework::Send(m_hWnd, LVM_GETWORKAREAS, nWorkAreas, pRect);
    }
    void SetWorkAreas(int nWorkAreas, LPRECT lpRect) { framework::Send(m_hWnd, LVM_SETWORKAREAS, nWorkAreas, lpRect); }

    // Items.
    int GetItemCount() const { return framework::Send<int>(m_hWnd, LVM_GETITEMCOUNT); }
    void SetItemCount(int nItems) { framework::Send(m_hWnd, LVM_SETITEMCOUNT, nItems); }
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL)
    {
        return framework::Send<BOOL>(m_hWnd, LVM_SETITEMCOUNT, iCount, dwFlags);
    }
    BOOL GetItem(LVITEM * pItem) const { return framework::Send<BOOL>(m_hWnd, LVM_GETITEM, 0, pItem); }
    BOOL SetItem(LVITEM const * pItem) { return framework::Send<BOOL>(m_hWnd, LVM_SETITEM, 0, pItem); }
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                 LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                 LPARAM lParam, int nIndent);
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    UINT GetItemState(int nItem, UINT nMask) const
    {
        return framework::Send<UINT>(m_hWnd, LVM_GETITEMSTATE, nItem, nMask);
    }
    BOOL SetItemState(int nItem, LVITEM * pItem)
    {
        return framework::Send<BOOL>(m_hWnd, LVM_SETITEMSTATE, nItem, pItem);
    }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    BOOL SetItemIndexState(PLVITEMINDEX pItemIndex, DWORD dwState, DWORD dwMask) const;
    CString GetItemText(int nItem, int nSubItem) const;
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const
    {
        return framework::Send<BOOL>(m_hWnd, LVM_GETITEMPOSITION, nItem, lpPoint);
    }
    BOOL SetItemPosition(int nItem, POINT pt)
    {
        return framework::Send<BOOL>(m_hWnd, LVM_SETITEMPOSITION32, nItem, &pt);
    }
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetItemIndexRect(PLVITEMINDEX pItemIndex, int iColumn, int rectType, LPRECT pRect) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect & ref);
    int GetNextItem(int nItem, int nFlags) const
    {
        return framework::Send<int>(m_hWnd, LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0));
    }
    BOOL GetNextItemIndex(PLVITEMINDEX pItemIndex, int nFlags) const
    {
        return framework::Send<BOOL>(m_hWnd, LVM_GETNEXTITEMINDEX, pItemIndex, MAKELPARAM(nFlags, 0));
    }
    BOOL IsItemVisible(int index) const { return framework::Send<BOOL>(m_hWnd, LVM_ISITEMVISIBLE, index); }
    UINT MapIDToIndex(UINT id) const { return framework::Send<UINT>(m_hWnd, LVM_MAPIDTOINDEX, id); }
    UINT MapIndexToID(UINT index) const { return framework::Send<UINT>(m_hWnd, LVM_MAPINDEXTOID, index); }
    int InsertItem(LVITEM const * pItem) { return framework::Send<int>(m_hWnd, LVM_INSERTITEM, 0, pItem); }
    int InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0); }
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
    {
        return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
    }
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem) { return framework::Send<BOOL>(m_hWnd, LVM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return framework::Send<BOOL>(m_hWnd, LVM_DELETEALLITEMS); }
    int FindItem(LVFINDINFO * pFindInfo, int nStart = -1) const
    {
        return framework::Send<int>(m_hWnd, LVM_FINDITEM, nStart, pFindInfo);
    }
    int HitTest(LVHITTESTINFO * pHitTestInfo) const
    {
        return framework::Send<int>(m_hWnd, LVM_HITTEST, 0, pHitTestInfo);
    }
    int HitTest(CPoint pt, UINT * pFlags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo) { return framework::Send<int>(m_hWnd, LVM_SUBITEMHITTEST, 0, pInfo); }
    BOOL EnsureVisible(int nItem, BOOL bPartialOK)
    {
        return framework::Send<BOOL>(m_hWnd, LVM_ENSUREVISIBLE, nItem, MAKELPARAM(bPartialOK, 0));
    }
    BOOL Scroll(CSize size) { return framework::Send<BOOL>(m_hWnd, LVM_SCROLL, size.cx, size.cy); }
    BOOL RedrawItems(int nFirst, int nLast) { return framework::Send<BOOL>(m_hWnd, LVM_REDRAWITEMS, nFirst, nLast); }
    BOOL Update(int nItem) { return framework::Send<BOOL>(m_hWnd, LVM_UPDATE, nItem); }
    BOOL Arrange(UINT nCode) { return framework::Send<BOOL>(m_hWnd, LVM_ARRANGE, nCode); }
    CEdit * EditLabel(int nItem) { return framework::SendForWindow<CEdit>(m_hWnd, LVM_EDITLABEL, nItem); }
    void CancelEditLabel() { framework::Send(m_hWnd, LVM_CANCELEDITLABEL); }
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
    {
        return framework::Send<BOOL>(m_hWnd, LVM_SORTITEMS, dwData, pfnCompare);
    }
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
    {
        return framework::Send<BOOL>(m_hWnd, LVM_SORTITEMSEX, dwData, pfnCompare);
    }
    /// The caller deletes the image list.
    CImageList * CreateDragImage(int nItem, LPPOINT lpPoint);

    // Selection.
    UINT GetSelectedCount() const { return framework::Send<UINT>(m_hWnd, LVM_GETSELECTEDCOUNT); }
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION & pos) const;
    int GetSelectionMark() { return framework::Send<int>(m_hWnd, LVM_GETSELECTIONMARK); }
    int SetSelectionMark(int iIndex) { return framework::Send<int>(m_hWnd, LVM_SETSELECTIONMARK, 0, iIndex); }

    // Columns.
    BOOL GetColumn(int nCol, LVCOLUMN * pColumn) const
    {
        return framework::Send<BOOL>(m_hWnd, LVM_GETCOLUMN, nCol, pColumn);
    }
    BOOL SetColumn(int nCol, LVCOLUMN const * pColumn)
    {
        return framework::Send<BOOL>(m_hWnd, LVM_SETCOLUMN, nCol, pColumn);
    }
    int GetColumnWidth(int nCol) const { return framework::Send<int>(m_hWnd, LVM_GETCOLUMNWIDTH, nCol); }
    BOOL SetColumnWidth(int nCol, int cx)
    {
        return framework::Send<BOOL>(m_hWnd, LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0));
    }
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray)
    {
        return framework::Send<BOOL>(m_hWnd, LVM_SETCOLUMNORDERARRAY, iCount, piArray);
    }
    UINT GetSelectedColumn() const { return framework::Send<UINT>(m_hWnd, LVM_GETSELECTEDCOLUMN); }
    LRESULT SetSelectedColumn(int iCol) { return framework::Send(m_hWnd, LVM_SETSELECTEDCOLUMN, iCol); }
    int InsertColumn(int nCol, LVCOLUMN const * pColumn)
    {
        return framework::Send<int>(m_hWnd, LVM_INSERTCOLUMN, nCol, pColumn);
    }
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol) { return framework::Send<BOOL>(m_hWnd, LVM_DELETECOLUMN, nCol); }

    // Groups.
    LRESULT EnableGroupView(BOOL fEnable) { return framework::Send(m_hWnd, LVM_ENABLEGROUPVIEW, fEnable); }
    BOOL IsGroupViewEnabled() const { return framework::Send<BOOL>(m_hWnd, LVM_ISGROUPVIEWENABLED); }
    int GetGroupCount() const { return framework::Send<int>(m_hWnd, LVM_GETGROUPCOUNT); }
    int GetFocusedGroup() const { return framework::Send<int>(m_hWnd, LVM_GETFOCUSEDGROUP); }
    int GetGroupInfo(int iGroupId, PLVGROUP pgrp) const
    {
        return framework::Send<int>(m_hWnd, LVM_GETGROUPINFO, iGroupId, pgrp);
    }
    int SetGroupInfo(int iGroupId, PLVGROUP pgrp)
    {
        return framework::Send<int>(m_hWnd, LVM_SETGROUPINFO, iGroupId, pgrp);
    }
    BOOL GetGroupInfoByIndex(int iIndex, PLVGROUP pGroup) const
    {
        return framework::Send<BOOL>(m_hWnd, LVM_GETGROUPINFOBYINDEX, iIndex, pGroup);
    }
    void GetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) const
    {
        framework::Send(m_hWnd, LVM_GETGROUPMETRICS, 0, pGroupMetrics);
    }
    void SetGroupMetrics(PLVGROUPMETRICS pGroupMetrics)
    {
        framework::Send(m_hWnd, LVM_SETGROUPMETRICS, 0, pGroupMetrics);
    }
    BOOL GetGroupRect(int iGroupId, LPRECT lpRect, int iCoords = LVGGR_GROUP) const;
    UINT GetGroupState(int iGroupId, DWORD dwMask) const
    {
        return framework::Send<UINT>(m_hWnd, LVM_GETGROUPSTATE, iGroupId, dwMask);
    }
    BOOL HasGroup(int iGroupId) const { return framework::Send<BOOL>(m_hWnd, LVM_HASGROUP, iGroupId); }
    LRESULT InsertGroup(int index, PLVGROUP pgrp) { return framework::Send(m_hWnd, LVM_INSERTGROUP, index, pgrp); }
    LRESULT InsertGroupSorted(PLVINSERTGROUPSORTED pStructInsert)
    {
        return framework::Send(m_hWnd, LVM_INSERTGROUPSORTED, pStructInsert);
    }
    LRESULT MoveGroup(int iGroupId, int toIndex) { return framework::Send(m_hWnd, LVM_MOVEGROUP, iGroupId, toIndex); }
    void MoveItemToGroup(int idItemFrom, int idGroupTo)
    {
        framework::Send(m_hWnd, LVM_MOVEITEMTOGROUP, idItemFrom, idGroupTo);
    }
    LRESULT RemoveGroup(int iGroupId) { return framework::Send(m_hWnd, LVM_REMOVEGROUP, iGroupId); }
    void RemoveAllGroups() { framework::Send(m_hWnd, LVM_REMOVEALLGROUPS); }
    BOOL SortGroups(PFNLVGROUPCOMPARE _pfnGroupCompare, LPVOID _plv)
    {
        return framework::Send<BOOL>(m_hWnd, LVM_SORTGROUPS, _pfnGroupCompare, _plv);
    }

    // Tiles and insertion marks.
    BOOL GetTileInfo(PLVTILEINFO plvti) const { return framework::Send<BOOL>(m_hWnd, LVM_GETTILEINFO, 0, plvti); }
    BOOL SetTileInfo(PLVTILEINFO pTileInfo) { return framework::Send<BOOL>(m_hWnd, LVM_SETTILEINFO, 0, pTileInfo); }
    BOOL GetTileViewInfo(PLVTILEVIEWINFO ptvi) const
    {
        return framework::Send<BOOL>(m_hWnd, LVM_GETTILEVIEWINFO, 0, ptvi);
    }
    BOOL SetTileViewInfo(PLVTILEVIEWINFO ptvi) { return framework::Send<BOOL>(m_hWnd, LVM_SETTILEVIEWINFO, 0, ptvi); }
    BOOL GetInsertMark(LPLVINSERTMARK plvim) const
    {
        return framework::Send<BOOL>(m_hWnd, LVM_GETINSERTMARK, 0, plvim);
    }
    BOOL SetInsertMark(LPLVINSERTMARK plvim) { return framework::Send<BOOL>(m_hWnd, LVM_SETINSERTMARK, 0, plvim); }
    COLORREF GetInsertMarkColor() const { return framework::Send<COLORREF>(m_hWnd, LVM_GETINSERTMARKCOLOR); }
    COLORREF SetInsertMarkColor(COLORREF color)
    {
        return framework::Send<COLORREF>(m_hWnd, LVM_SETINSERTMARKCOLOR, 0, color);
    }
    int GetInsertMarkRect(LPRECT pRect) const { return framework::Send<int>(m_hWnd, LVM_GETINSERTMARKRECT, 0, pRect); }
    int InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK plvim) const
    {
        return framework::Send<int>(m_hWnd, LVM_INSERTMARKHITTEST, pPoint, plvim);
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnNcDestroy();
};
