// Extended combo box and link control.

#include <afxcmn.h>

#include "detail/ControlSupport.h"

IMPLEMENT_DYNAMIC(CComboBoxEx, CComboBox)
IMPLEMENT_DYNAMIC(CLinkCtrl, CWnd)

// CComboBoxEx

CComboBoxEx::CComboBoxEx() = default;

CComboBoxEx::~CComboBoxEx()
{
    DestroyWindow();
}

BOOL CComboBoxEx::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_USEREX_CLASSES, WC_COMBOBOXEX, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CComboBoxEx::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_USEREX_CLASSES, dwExStyle, WC_COMBOBOXEX, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

// CLinkCtrl

namespace
{
LITEM LinkOf(int index, UINT mask)
{
    LITEM item{};
    item.mask = mask | LIF_ITEMINDEX;
    item.iLink = index;
    return item;
}
} // namespace

CLinkCtrl::CLinkCtrl() = default;

CLinkCtrl::~CLinkCtrl()
{
    DestroyWindow();
}

BOOL CLinkCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return Create(nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_LINK_CLASS, WC_LINK, lpszLinkMarkup, dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return CreateEx(nullptr, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::CreateEx(LPCTSTR lpszLinkMarkup, DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd,
                         UINT nID)
{
    return framework::CreateControlEx(*this, ICC_LINK_CLASS, dwExStyle, WC_LINK, lpszLinkMarkup, dwStyle, rect,
                                      pParentWnd, nID);
}

BOOL CLinkCtrl::GetItemID(int iLink, CString & strID) const
{
    LITEM item = LinkOf(iLink, LIF_ITEMID);
    BOOL const found = GetItem(&item);
    strID = found ? item.szID : L"";
    return found;
}

BOOL CLinkCtrl::GetItemID(int iLink, LPWSTR szID, UINT cchID) const
{
    LITEM item = LinkOf(iLink, LIF_ITEMID);
    if (!GetItem(&item))
        return FALSE;
    lstrcpynW(szID, item.szID, static_cast<int>(cchID));
    return TRUE;
}

BOOL CLinkCtrl::SetItemID(int iLink, LPCWSTR szID)
{
    LITEM item = LinkOf(iLink, LIF_ITEMID);
    lstrcpynW(item.szID, szID, MAX_LINKID_TEXT);
    return SetItem(&item);
}

BOOL CLinkCtrl::GetItemState(int iLink, UINT * pnState, UINT stateMask) const
{
    LITEM item = LinkOf(iLink, LIF_STATE);
    item.stateMask = stateMask;
    BOOL const found = GetItem(&item);
    *pnState = item.state;
    return found;
}

BOOL CLinkCtrl::SetItemState(int iLink, UINT state, UINT stateMask)
{
    LITEM item = LinkOf(iLink, LIF_STATE);
    item.state = state;
    item.stateMask = stateMask;
    return SetItem(&item);
}

BOOL CLinkCtrl::GetItemUrl(int iLink, CString & strUrl) const
{
    LITEM item = LinkOf(iLink, LIF_URL);
    BOOL const found = GetItem(&item);
    strUrl = found ? item.szUrl : L"";
    return found;
}

BOOL CLinkCtrl::GetItemUrl(int iLink, LPWSTR szUrl, UINT cchUrl) const
{
    LITEM item = LinkOf(iLink, LIF_URL);
    if (!GetItem(&item))
        return FALSE;
    lstrcpynW(szUrl, item.szUrl, static_cast<int>(cchUrl));
    return TRUE;
}

BOOL CLinkCtrl::SetItemUrl(int iLink, LPCWSTR szUrl)
{
    LITEM item = LinkOf(iLink, LIF_URL);
    lstrcpynW(item.szUrl, szUrl, L_MAX_URL_LENGTH);
    return SetItem(&item);
}
