#pragma once
// Menus.

#include <afx.h>
#include <windows.h>

#include "FrameworkExport.h"

class CBitmap;
class CWnd;

class FRAMEWORK_API CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)

public:
    HMENU m_hMenu;

    CMenu();
    ~CMenu() override;

    static CMenu * PASCAL FromHandle(HMENU hMenu);
    static void PASCAL DeleteTempMap();

    operator HMENU() const;
    HMENU GetSafeHmenu() const;
    BOOL operator==(CMenu const & menu) const;
    BOOL operator!=(CMenu const & menu) const;

    BOOL Attach(HMENU hMenu);
    HMENU Detach();
    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);
    BOOL LoadMenuIndirect(void const * lpMenuTemplate);
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, CBitmap const * pBmp);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, CBitmap const * pBmp);
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, CBitmap const * pBmp);
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);
    BOOL DeleteMenu(UINT nPosition, UINT nFlags);

    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE);
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, CBitmap const * pBmpUnchecked, CBitmap const * pBmpChecked);
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuInfo(LPCMENUINFO lpcmi);
    BOOL GetMenuInfo(LPMENUINFO lpcmi) const;
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId);
    DWORD GetMenuContextHelpId() const;

    UINT GetMenuItemCount() const;
    UINT GetMenuItemID(int nPos) const;
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, CString & rString, UINT nFlags) const;
    CMenu * GetSubMenu(int nPos) const;

    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd * pWnd, LPCRECT lpRect = nullptr);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd * pWnd, LPTPMPARAMS lptpm);

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
};
