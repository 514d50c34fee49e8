// List view and header control.

#include <afxcmn.h>

#include "detail/ControlSupport.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

BEGIN_MESSAGE_MAP(CListCtrl, CWnd)
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

namespace
{
constexpr int state_image_shift = 12;
constexpr UINT unchecked_image = 1;
constexpr UINT checked_image = 2;
} // namespace

// CHeaderCtrl

CHeaderCtrl::CHeaderCtrl() = default;

CHeaderCtrl::~CHeaderCtrl()
{
    DestroyWindow();
}

BOOL CHeaderCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_LISTVIEW_CLASSES, WC_HEADER, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_LISTVIEW_CLASSES, dwExStyle, WC_HEADER, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

// CListCtrl

CListCtrl::CListCtrl() = default;

CListCtrl::~CListCtrl()
{
    DestroyWindow();
}

BOOL CListCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_LISTVIEW_CLASSES, WC_LISTVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_LISTVIEW_CLASSES, dwExStyle, WC_LISTVIEW, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

void CListCtrl::OnNcDestroy()
{
    if (framework::ReleaseImages(*this, LVM_GETIMAGELIST, LVM_SETIMAGELIST, {LVSIL_NORMAL, LVSIL_SMALL, LVSIL_STATE}))
        CWnd::OnNcDestroy();
}

BOOL CListCtrl::SetBkImage(HBITMAP hBitmap, BOOL fTile, int xOffsetPercent, int yOffsetPercent)
{
    LVBKIMAGE image{};
    image.ulFlags = LVBKIF_SOURCE_HBITMAP | (fTile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.hbm = hBitmap;
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return SetBkImage(&image);
}

BOOL CListCtrl::SetBkImage(LPTSTR pszUrl, BOOL fTile, int xOffsetPercent, int yOffsetPercent)
{
    LVBKIMAGE image{};
    image.ulFlags = LVBKIF_SOURCE_URL | (fTile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.pszImage = pszUrl;
    image.cchImageMax = pszUrl != nullptr ? lstrlen(pszUrl) + 1 : 0;
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return SetBkImage(&image);
}

CSize CListCtrl::SetIconSpacing(int cx, int cy)
{
    return framework::SizeOf(framework::Send<DWORD>(m_hWnd, LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy)));
}

BOOL CListCtrl::GetItemSpacing(BOOL fSmall, int * pnHorzSpacing, int * pnVertSpacing) const
{
    auto const spacing = framework::Send<DWORD>(m_hWnd, LVM_GETITEMSPACING, fSmall);
    if (pnHorzSpacing != nullptr)
        *pnHorzSpacing = LOWORD(spacing);
    if (pnVertSpacing != nullptr)
        *pnVertSpacing = HIWORD(spacing);
    return TRUE;
}

CString CListCtrl::GetEmptyText() const
{
    return framework::CollectText([this](LPTSTR buffer, int size) {
        return framework::Send<BOOL>(m_hWnd, LVM_GETEMPTYTEXT, size, buffer) != FALSE;
    });
}

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const
{
    return framework::SizeOf(framework::Send<DWORD>(m_hWnd, LVM_APPROXIMATEVIEWRECT, iCount, MAKELPARAM(sz.cx, sz.cy)));
}

UINT CListCtrl::GetNumberOfWorkAreas() const
{
    UINT count = 0;
    framework::Send(m_hWnd, LVM_GETNUMBEROFWORKAREAS, 0, &count);
    return count;
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                        LPARAM lParam)
{
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                        LPARAM lParam, int nIndent)
{
    LVITEM item{};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.state = nState;
    item.stateMask = nStateMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

BOOL CListCtrl::GetCheck(int nItem) const
{
    UINT const image = GetItemState(nItem, LVIS_STATEIMAGEMASK) >> state_image_shift;
    return image >= checked_image ? static_cast<BOOL>(image - unchecked_image) : FALSE;
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck)
{
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? checked_image : unchecked_image), LVIS_STATEIMAGEMASK);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEM item{};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

BOOL CListCtrl::SetItemIndexState(PLVITEMINDEX pItemIndex, DWORD dwState, DWORD dwMask) const
{
    LVITEM item{};
    item.state = dwState;
    item.stateMask = dwMask;
    return SUCCEEDED(framework::Send<HRESULT>(m_hWnd, LVM_SETITEMINDEXSTATE, pItemIndex, &item));
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    return framework::CollectText(
        [this, nItem, nSubItem](LPTSTR buffer, int size) { return GetItemText(nItem, nSubItem, buffer, size) > 0; });
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const
{
    LVITEM item{};
    item.iSubItem = nSubItem;
    item.cchTextMax = nLen;
    item.pszText = lpszText;
    int const length = framework::Send<int>(m_hWnd, LVM_GETITEMTEXT, nItem, &item);
    // A list that asks its parent for the text may have been given another buffer.
    if (length > 0 && item.pszText != lpszText && item.pszText != nullptr)
        lstrcpyn(lpszText, item.pszText, nLen);
    return length;
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText)
{
    LVITEM item{};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return framework::Send<BOOL>(m_hWnd, LVM_SETITEMTEXT, nItem, &item);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEM item{};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const
{
    lpRect->left = static_cast<LONG>(nCode);
    return framework::Send<BOOL>(m_hWnd, LVM_GETITEMRECT, nItem, lpRect);
}

BOOL CListCtrl::GetItemIndexRect(PLVITEMINDEX pItemIndex, int iColumn, int rectType, LPRECT pRect) const
{
    pRect->top = iColumn;
    pRect->left = rectType;
    return framework::Send<BOOL>(m_hWnd, LVM_GETITEMINDEXRECT, pItemIndex, pRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect & ref)
{
    RECT rect{};
    rect.top = iSubItem;
    rect.left = nArea;
    if (!framework::Send<BOOL>(m_hWnd, LVM_GETSUBITEMRECT, iItem, &rect))
        return FALSE;
    ref = rect;
    return TRUE;
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam)
{
    LVITEM item{};
    item.mask = nMask;
    item.iItem = nItem;
    item.state = nState;
    item.stateMask = nStateMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

int CListCtrl::HitTest(CPoint pt, UINT * pFlags) const
{
    LVHITTESTINFO info{};
    info.pt = pt;
    int const item = HitTest(&info);
    if (pFlags != nullptr)
        *pFlags = info.flags;
    return item;
}

CImageList * CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint)
{
    auto const handle = framework::Send<HIMAGELIST>(m_hWnd, LVM_CREATEDRAGIMAGE, nItem, lpPoint);
    if (handle == nullptr)
        return nullptr;
    auto * const images = new CImageList;
    images->Attach(handle);
    return images;
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    // A position is the item's index plus one, so that null means none.
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(-1, LVNI_SELECTED)) + 1);
}

int CListCtrl::GetNextSelectedItem(POSITION & pos) const
{
    int const item = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    pos = reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(item, LVNI_SELECTED)) + 1);
    return item;
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount)
{
    if (iCount == -1)
    {
        CHeaderCtrl const * const header = GetHeaderCtrl();
        if (header == nullptr)
            return FALSE;
        iCount = header->GetItemCount();
    }
    return framework::Send<BOOL>(m_hWnd, LVM_GETCOLUMNORDERARRAY, iCount, piArray);
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem)
{
    LVCOLUMN column{};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1)
    {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1)
    {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::GetGroupRect(int iGroupId, LPRECT lpRect, int iCoords) const
{
    lpRect->top = iCoords;
    return framework::Send<BOOL>(m_hWnd, LVM_GETGROUPRECT, iGroupId, lpRect);
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
