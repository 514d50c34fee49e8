#pragma once
// Extended combo box, link control and list box with draggable items.

#include "ControlHandles.h"
#include "stdctrls.h"

class FRAMEWORK_API CComboBoxEx : public CComboBox
{
    DECLARE_DYNAMIC(CComboBoxEx)

public:
    CComboBoxEx();
    ~CComboBoxEx() override;
    BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID) override;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);

    using CComboBox::DeleteItem;
    int DeleteItem(int iIndex) { return framework::Send<int>(m_hWnd, CBEM_DELETEITEM, iIndex); }
    BOOL GetItem(COMBOBOXEXITEM * pCBItem) { return framework::Send<BOOL>(m_hWnd, CBEM_GETITEM, 0, pCBItem); }
    BOOL SetItem(COMBOBOXEXITEM const * pCBItem) { return framework::Send<BOOL>(m_hWnd, CBEM_SETITEM, 0, pCBItem); }
    int InsertItem(COMBOBOXEXITEM const * pCBItem) { return framework::Send<int>(m_hWnd, CBEM_INSERTITEM, 0, pCBItem); }
    DWORD GetExtendedStyle() const { return framework::Send<DWORD>(m_hWnd, CBEM_GETEXTENDEDSTYLE); }
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles)
    {
        return framework::Send<DWORD>(m_hWnd, CBEM_SETEXTENDEDSTYLE, dwExMask, dwExStyles);
    }
    BOOL HasEditChanged() { return framework::Send<BOOL>(m_hWnd, CBEM_HASEDITCHANGED); }
    CEdit * GetEditCtrl() { return framework::SendForWindow<CEdit>(m_hWnd, CBEM_GETEDITCONTROL); }
    CComboBox * GetComboBoxCtrl() { return framework::SendForWindow<CComboBox>(m_hWnd, CBEM_GETCOMBOCONTROL); }
    CImageList * GetImageList() const { return framework::SendForImages(m_hWnd, CBEM_GETIMAGELIST); }
    CImageList * SetImageList(CImageList * pImageList)
    {
        return framework::SendForImages(m_hWnd, CBEM_SETIMAGELIST, 0, framework::HandleOf(pImageList));
    }
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName)
    {
        return framework::Send<HRESULT>(m_hWnd, CBEM_SETWINDOWTHEME, 0, pszSubAppName);
    }

private:
    // The control has no messages for these.
    using CComboBox::Dir;
    using CComboBox::FindString;
    using CComboBox::SelectString;
};

class FRAMEWORK_API CLinkCtrl : public CWnd
{
    DECLARE_DYNAMIC(CLinkCtrl)

public:
    CLinkCtrl();
    ~CLinkCtrl() override;
    virtual BOOL Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID);
    virtual BOOL CreateEx(LPCTSTR lpszLinkMarkup, DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd,
                          UINT nID);

    int GetIdealHeight() const { return framework::Send<int>(m_hWnd, LM_GETIDEALHEIGHT); }
    int GetIdealSize(int cxMaxWidth, SIZE * pSize) const
    {
        return framework::Send<int>(m_hWnd, LM_GETIDEALHEIGHT, cxMaxWidth, pSize);
    }
    BOOL GetItem(PLITEM pItem) const { return framework::Send<BOOL>(m_hWnd, LM_GETITEM, 0, pItem); }
    BOOL SetItem(PLITEM pItem) { return framework::Send<BOOL>(m_hWnd, LM_SETITEM, 0, pItem); }
    BOOL GetItemID(int iLink, CString & strID) const;
    BOOL GetItemID(int iLink, LPWSTR szID, UINT cchID) const;
    BOOL SetItemID(int iLink, LPCWSTR szID);
    BOOL GetItemState(int iLink, UINT * pnState, UINT stateMask = LIS_FOCUSED | LIS_ENABLED | LIS_VISITED) const;
    BOOL SetItemState(int iLink, UINT state, UINT stateMask = LIS_FOCUSED | LIS_ENABLED | LIS_VISITED);
    BOOL GetItemUrl(int iLink, CString & strUrl) const;
    BOOL GetItemUrl(int iLink, LPWSTR szUrl, UINT cchUrl) const;
    BOOL SetItemUrl(int iLink, LPCWSTR szUrl);
    BOOL HitTest(PLHITTESTINFO phti) const { return framework::Send<BOOL>(m_hWnd, LM_HITTEST, 0, phti); }
};
