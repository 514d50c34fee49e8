// List box and combo box.

#include <afxwin.h>

#include <utility>

#include "detail/ControlSupport.h"

IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)

// CListBox

CListBox::CListBox() = default;

CListBox::~CListBox()
{
    DestroyWindow();
}

BOOL CListBox::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, 0, _T("LISTBOX"), nullptr, dwStyle, rect, pParentWnd, nID);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL & bOutside) const
{
    auto const found = framework::Send<DWORD>(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(found) != 0;
    return LOWORD(found);
}

void CListBox::GetText(int nIndex, CString & rString) const
{
    int const length = GetTextLen(nIndex);
    if (length == LB_ERR)
    {
        rString.Empty();
        return;
    }
    GetText(nIndex, rString.GetBuffer(length));
    rString.ReleaseBuffer(length);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
{
    // The message selects where the first index isn't the larger one, and deselects else.
    if (nFirstItem > nLastItem)
        std::swap(nFirstItem, nLastItem);
    if (!bSelect && nFirstItem == nLastItem)
        return SetSel(nFirstItem, FALSE);
    return bSelect ? framework::Send<int>(m_hWnd, LB_SELITEMRANGEEX, nFirstItem, nLastItem)
                   : framework::Send<int>(m_hWnd, LB_SELITEMRANGEEX, nLastItem, nFirstItem);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}

int CListBox::VKeyToItem(UINT, UINT)
{
    return static_cast<int>(Default());
}

int CListBox::CharToItem(UINT, UINT)
{
    return static_cast<int>(Default());
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    LRESULT ignored = 0;
    LRESULT & result = pResult != nullptr ? *pResult : ignored;
    switch (message)
    {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        result = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    case WM_VKEYTOITEM:
        result = VKeyToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    case WM_CHARTOITEM:
        result = CharToItem(LOWORD(wParam), HIWORD(wParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    return TRUE;
}

// CComboBox

CComboBox::CComboBox() = default;

CComboBox::~CComboBox()
{
    DestroyWindow();
}

BOOL CComboBox::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, 0, _T("COMBOBOX"), nullptr, dwStyle, rect, pParentWnd, nID);
}

CString CComboBox::GetCueBanner() const
{
    return framework::CollectText([this](LPTSTR buffer, int size) { return GetCueBanner(buffer, size) != FALSE; });
}

void CComboBox::GetLBText(int nIndex, CString & rString) const
{
    int const length = GetLBTextLen(nIndex);
    if (length == CB_ERR)
    {
        rString.Empty();
        return;
    }
    GetLBText(nIndex, rString.GetBuffer(length));
    rString.ReleaseBuffer(length);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    LRESULT ignored = 0;
    LRESULT & result = pResult != nullptr ? *pResult : ignored;
    switch (message)
    {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        result = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    return TRUE;
}
