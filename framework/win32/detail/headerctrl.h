#pragma once
// The header control.

#include "ControlHandles.h"

class FRAMEWORK_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    CHeaderCtrl();
    ~CHeaderCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    int GetItemCount() const { return framework::Send<int>(m_hWnd, HDM_GETITEMCOUNT); }
    BOOL GetItem(int nPos, HDITEM * pHeaderItem) const
    {
        return framework::Send<BOOL>(m_hWnd, HDM_GETITEM, nPos, pHeaderItem);
    }
    BOOL SetItem(int nPos, HDITEM * pHeaderItem)
    {
        return framework::Send<BOOL>(m_hWnd, HDM_SETITEM, nPos, pHeaderItem);
    }
    CImageList * GetImageList() const { return framework::SendForImages(m_hWnd, HDM_GETIMAGELIST); }
    CImageList * SetImageList(CImageList * pImageList)
    {
        return framework::SendForImages(m_hWnd, HDM_SETIMAGELIST, 0, framework::HandleOf(pImageList));
    }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return framework::Send<BOOL>(m_hWnd, HDM_GETITEMRECT, nIndex, lpRect);
    }
    BOOL GetItemDropDownRect(int iItem, LPRECT lpRect) const
    {
        return framework::Send<BOOL>(m_hWnd, HDM_GETITEMDROPDOWNRECT, iItem, lpRect);
    }
    BOOL GetOverflowRect(LPRECT lpRect) const { return framework::Send<BOOL>(m_hWnd, HDM_GETOVERFLOWRECT, 0, lpRect); }
    BOOL GetOrderArray(LPINT piArray, int iCount)
    {
        return framework::Send<BOOL>(m_hWnd, HDM_GETORDERARRAY, iCount, piArray);
    }
    BOOL SetOrderArray(int iCount, LPINT piArray)
    {
        return framework::Send<BOOL>(m_hWnd, HDM_SETORDERARRAY, iCount, piArray);
    }
    int OrderToIndex(int nOrder) const { return framework::Send<int>(m_hWnd, HDM_ORDERTOINDEX, nOrder); }
    int GetBitmapMargin() const { return framework::Send<int>(m_hWnd, HDM_GETBITMAPMARGIN); }
    int SetBitmapMargin(int nWidth) { return framework::Send<int>(m_hWnd, HDM_SETBITMAPMARGIN, nWidth); }
    int GetFocusedItem() const { return framework::Send<int>(m_hWnd, HDM_GETFOCUSEDITEM); }
    BOOL SetFocusedItem(int iItem) { return framework::Send<BOOL>(m_hWnd, HDM_SETFOCUSEDITEM, 0, iItem); }
    int SetHotDivider(CPoint pt)
    {
        return framework::Send<int>(m_hWnd, HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y));
    }
    int SetHotDivider(int nIndex) { return framework::Send<int>(m_hWnd, HDM_SETHOTDIVIDER, FALSE, nIndex); }

    int InsertItem(int nPos, HDITEM * phdi) { return framework::Send<int>(m_hWnd, HDM_INSERTITEM, nPos, phdi); }
    BOOL DeleteItem(int nPos) { return framework::Send<BOOL>(m_hWnd, HDM_DELETEITEM, nPos); }
    BOOL Layout(HDLAYOUT * pHeaderLayout) { return framework::Send<BOOL>(m_hWnd, HDM_LAYOUT, 0, pHeaderLayout); }
    int HitTest(LPHDHITTESTINFO phdhti) { return framework::Send<int>(m_hWnd, HDM_HITTEST, 0, phdhti); }
    /// The object is temporary.
    CImageList * CreateDragImage(int nIndex) { return framework::SendForImages(m_hWnd, HDM_CREATEDRAGIMAGE, nIndex); }
    BOOL ClearFilter(int nColumn) { return framework::Send<BOOL>(m_hWnd, HDM_CLEARFILTER, nColumn); }
    BOOL ClearAllFilters() { return framework::Send<BOOL>(m_hWnd, HDM_CLEARFILTER, -1); }
    BOOL EditFilter(int nColumn, BOOL bDiscardChanges)
    {
        return framework::Send<BOOL>(m_hWnd, HDM_EDITFILTER, nColumn, MAKELPARAM(bDiscardChanges, 0));
    }
    int SetFilterChangeTimeout(DWORD dwTimeOut)
    {
        return framework::Send<int>(m_hWnd, HDM_SETFILTERCHANGETIMEOUT, 0, dwTimeOut);
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;
};
