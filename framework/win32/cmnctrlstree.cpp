// The tree control.

#include <afxcmn.h>

#include "detail/ControlSupport.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

BEGIN_MESSAGE_MAP(CTreeCtrl, CWnd)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace
{
constexpr int state_image_shift = 12;
constexpr UINT unchecked_image = 1;
constexpr UINT checked_image = 2;

TVITEMEX ItemOf(HTREEITEM item, UINT mask)
{
    TVITEMEX values{};
    values.mask = mask | TVIF_HANDLE;
    values.hItem = item;
    return values;
}

BOOL Ask(HWND tree, TVITEMEX & values)
{
    return framework::Send<BOOL>(tree, TVM_GETITEM, 0, &values);
}

BOOL Tell(HWND tree, TVITEMEX const & values)
{
    return framework::Send<BOOL>(tree, TVM_SETITEM, 0, &values);
}
} // namespace

CTreeCtrl::CTreeCtrl() = default;

CTreeCtrl::~CTreeCtrl()
{
    DestroyWindow();
}

BOOL CTreeCtrl::Create(DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControl(*this, ICC_TREEVIEW_CLASSES, WC_TREEVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CTreeCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, RECT const & rect, CWnd * pParentWnd, UINT nID)
{
    return framework::CreateControlEx(*this, ICC_TREEVIEW_CLASSES, dwExStyle, WC_TREEVIEW, nullptr, dwStyle, rect,
                                      pParentWnd, nID);
}

void CTreeCtrl::OnDestroy()
{
    if (framework::ReleaseImages(*this, TVM_GETIMAGELIST, TVM_SETIMAGELIST, {TVSIL_NORMAL, TVSIL_STATE}))
        CWnd::OnDestroy();
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                        UINT nStateMask, LPARAM lParam)
{
    TVITEM item{};
    item.mask = nMask;
    item.hItem = hItem;
    item.state = nState;
    item.stateMask = nStateMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.lParam = lParam;
    return SetItem(&item);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const
{
    TVITEMEX item = ItemOf(hItem, TVIF_CHILDREN);
    Ask(m_hWnd, item);
    return item.cChildren;
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const
{
    return framework::Send<UINT>(m_hWnd, TVM_GETITEMSTATE, hItem, nStateMask) & nStateMask;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask)
{
    TVITEMEX item = ItemOf(hItem, TVIF_STATE);
    item.state = nState;
    item.stateMask = nStateMask;
    return Tell(m_hWnd, item);
}

UINT CTreeCtrl::GetItemStateEx(HTREEITEM hItem) const
{
    TVITEMEX item = ItemOf(hItem, TVIF_STATEEX);
    Ask(m_hWnd, item);
    return item.uStateEx;
}

BOOL CTreeCtrl::SetItemStateEx(HTREEITEM hItem, UINT uStateEx)
{
    TVITEMEX item = ItemOf(hItem, TVIF_STATEEX);
    item.uStateEx = uStateEx;
    return Tell(m_hWnd, item);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int & nImage, int & nSelectedImage) const
{
    TVITEMEX item = ItemOf(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    BOOL const taken = Ask(m_hWnd, item);
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return taken;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage)
{
    TVITEMEX item = ItemOf(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    return Tell(m_hWnd, item);
}

int CTreeCtrl::GetItemExpandedImageIndex(HTREEITEM hItem) const
{
    TVITEMEX item = ItemOf(hItem, TVIF_EXPANDEDIMAGE);
    Ask(m_hWnd, item);
    return item.iExpandedImage;
}

BOOL CTreeCtrl::SetItemExpandedImageIndex(HTREEITEM hItem, int iExpandedImage)
{
    TVITEMEX item = ItemOf(hItem, TVIF_EXPANDEDIMAGE);
    item.iExpandedImage = iExpandedImage;
    return Tell(m_hWnd, item);
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    return framework::CollectText([this, hItem](LPTSTR buffer, int size) {
        TVITEMEX item = ItemOf(hItem, TVIF_TEXT);
        item.pszText = buffer;
        item.cchTextMax = size;
        return Ask(m_hWnd, item) != FALSE;
    });
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem)
{
    TVITEMEX item = ItemOf(hItem, TVIF_TEXT);
    item.pszText = const_cast<LPTSTR>(lpszItem);
    return Tell(m_hWnd, item);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    TVITEMEX item = ItemOf(hItem, TVIF_PARAM);
    Ask(m_hWnd, item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData)
{
    TVITEMEX item = ItemOf(hItem, TVIF_PARAM);
    item.lParam = static_cast<LPARAM>(dwData);
    return Tell(m_hWnd, item);
}

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const
{
    return GetItemState(hItem, TVIS_STATEIMAGEMASK) >> state_image_shift >= checked_image;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck)
{
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? checked_image : unchecked_image), TVIS_STATEIMAGEMASK);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const
{
    // The message takes the item at the start of the rectangle that it fills; the handle is wider than one field.
    union {
        HTREEITEM item;
        RECT rect;
    } exchange{hItem};
    BOOL const visible = framework::Send<BOOL>(m_hWnd, TVM_GETITEMRECT, bTextOnly, &exchange);
    if (visible)
        *lpRect = exchange.rect;
    return visible;
}

BOOL CTreeCtrl::GetItemPartRect(HTREEITEM hItem, int nPart, LPRECT lpRect) const
{
    TVGETITEMPARTRECTINFO info{hItem, lpRect, static_cast<TVITEMPART>(nPart)};
    return framework::Send<BOOL>(m_hWnd, TVM_GETITEMPARTRECT, 0, &info);
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                                UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCT insert{};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = nMask;
    insert.item.pszText = const_cast<LPTSTR>(lpszItem);
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    insert.item.state = nState;
    insert.item.stateMask = nStateMask;
    insert.item.lParam = lParam;
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage, 0, 0, 0, hParent,
                      hInsertAfter);
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT * pFlags) const
{
    TVHITTESTINFO info{};
    info.pt = pt;
    HTREEITEM const item = HitTest(&info);
    if (pFlags != nullptr)
        *pFlags = info.flags;
    return item;
}

CImageList * CTreeCtrl::CreateDragImage(HTREEITEM hItem)
{
    auto const handle = framework::Send<HIMAGELIST>(m_hWnd, TVM_CREATEDRAGIMAGE, 0, hItem);
    if (handle == nullptr)
        return nullptr;
    auto * const images = new CImageList;
    images->Attach(handle);
    return images;
}
