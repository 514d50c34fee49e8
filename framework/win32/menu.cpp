#include "detail/GdiHandles.h"
#include "detail/ThreadState.h"

using framework::HandleOf;
using framework::MaybeNull;
using framework::MenuMap;

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace framework
{
CMenu * MakeTemporaryMenu(void * handle)
{
    CMenu * const menu = new CMenu;
    menu->m_hMenu = static_cast<HMENU>(handle);
    return menu;
}

void ReleaseTemporaryMenu(CMenu * menu)
{
    menu->m_hMenu = nullptr;
}
} // namespace framework

namespace
{
// A bitmap takes the place of an item's text.
LPCTSTR AsItemText(CBitmap const * bitmap)
{
    return reinterpret_cast<LPCTSTR>(HandleOf(bitmap));
}
} // namespace

CMenu::CMenu() : m_hMenu(nullptr) {}

CMenu::~CMenu()
{
    DestroyMenu();
}

CMenu * PASCAL CMenu::FromHandle(HMENU hMenu)
{
    return MenuMap().FromHandle(hMenu);
}

void PASCAL CMenu::DeleteTempMap()
{
    MenuMap().DeleteTemporaries();
}

CMenu::operator HMENU() const
{
    return GetSafeHmenu();
}

HMENU CMenu::GetSafeHmenu() const
{
    CMenu const * const menu = MaybeNull(this);
    return menu == nullptr ? nullptr : menu->m_hMenu;
}

BOOL CMenu::operator==(CMenu const & menu) const
{
    return m_hMenu == menu.m_hMenu;
}

BOOL CMenu::operator!=(CMenu const & menu) const
{
    return m_hMenu != menu.m_hMenu;
}

BOOL CMenu::Attach(HMENU hMenu)
{
    ASSERT(m_hMenu == nullptr);
    if (hMenu == nullptr)
        return FALSE;
    m_hMenu = hMenu;
    MenuMap().SetPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    HMENU const handle = m_hMenu;
    if (handle != nullptr && MenuMap().LookupPermanent(handle) == this)
        MenuMap().RemovePermanent(handle);
    m_hMenu = nullptr;
    return handle;
}

BOOL CMenu::CreateMenu()
{
    return Attach(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu()
{
    return Attach(::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    return Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::LoadMenu(UINT nIDResource)
{
    return LoadMenu(MAKEINTRESOURCE(nIDResource));
}

BOOL CMenu::LoadMenuIndirect(void const * lpMenuTemplate)
{
    return Attach(::LoadMenuIndirect(lpMenuTemplate));
}

BOOL CMenu::DestroyMenu()
{
    return m_hMenu != nullptr && ::DestroyMenu(Detach());
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, CBitmap const * pBmp)
{
    return ::AppendMenu(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, AsItemText(pBmp));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, CBitmap const * pBmp)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItemText(pBmp));
}

BOOL CMenu::InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return ::InsertMenuItem(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, CBitmap const * pBmp)
{
    return ::ModifyMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItemText(pBmp));
}

BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags)
{
    return ::RemoveMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags)
{
    return ::DeleteMenu(m_hMenu, nPosition, nFlags);
}

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
{
    return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
}

BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags)
{
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
{
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
}

BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos)
{
    return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
}

UINT CMenu::GetDefaultItem(UINT gmdiFlags, BOOL fByPos)
{
    return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, CBitmap const * pBmpUnchecked, CBitmap const * pBmpChecked)
{
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, static_cast<HBITMAP>(HandleOf(pBmpUnchecked)),
                                static_cast<HBITMAP>(HandleOf(pBmpChecked)));
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuInfo(LPCMENUINFO lpcmi)
{
    return ::SetMenuInfo(m_hMenu, lpcmi);
}

BOOL CMenu::GetMenuInfo(LPMENUINFO lpcmi) const
{
    return ::GetMenuInfo(m_hMenu, lpcmi);
}

BOOL CMenu::SetMenuContextHelpId(DWORD dwContextHelpId)
{
    return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
}

DWORD CMenu::GetMenuContextHelpId() const
{
    return ::GetMenuContextHelpId(m_hMenu);
}

UINT CMenu::GetMenuItemCount() const
{
    return static_cast<UINT>(::GetMenuItemCount(m_hMenu));
}

UINT CMenu::GetMenuItemID(int nPos) const
{
    return ::GetMenuItemID(m_hMenu, nPos);
}

UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const
{
    return ::GetMenuState(m_hMenu, nID, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const
{
    return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, CString & rString, UINT nFlags) const
{
    int const length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (length <= 0)
    {
        rString.Empty();
        return 0;
    }
    int const copied = ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(length), length + 1, nFlags);
    rString.ReleaseBuffer(copied);
    return copied;
}

CMenu * CMenu::GetSubMenu(int nPos) const
{
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd * pWnd, LPCRECT lpRect)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, HandleOf(pWnd), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd * pWnd, LPTPMPARAMS lptpm)
{
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, HandleOf(pWnd), lptpm);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}
