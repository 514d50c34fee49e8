#pragma once
// Popup menus that are windows of the program.

#include <afxpopupmenubar.h>

#include "detail/miniframe.h"

/// A menu in a window of its own. It lives on the heap and ends with its window: once something is chosen, the user
/// goes elsewhere, or its owner ends. The focus stays where it is.
class FRAMEWORK_API CMFCPopupMenu : public CMiniFrameWnd
{
    DECLARE_DYNCREATE(CMFCPopupMenu)

public:
    CMFCPopupMenu();
    ~CMFCPopupMenu() override;

    enum DROP_DIRECTION
    {
        DROP_DIRECTION_NONE,
        DROP_DIRECTION_TOP,
        DROP_DIRECTION_BOTTOM,
        DROP_DIRECTION_LEFT,
        DROP_DIRECTION_RIGHT
    };
    enum MENUAREA_TYPE
    {
        MENU,
        OUTSIDE
    };

    /// Opens at that point of the screen, or at the cursor for -1, -1. hMenu stays the caller's and has to last while
    /// the menu is open, or is null for one whose items are inserted. Commands go to pWndParent. FALSE if it has no
    /// items or its owner ended meanwhile; the object is gone then.
    virtual BOOL Create(CWnd * pWndParent, int x, int y, HMENU hMenu, BOOL bLocked = FALSE, BOOL bOwnMessage = FALSE);
    static BOOL PASCAL ActivatePopupMenu(CFrameWnd * pTopFrame, CMFCPopupMenu * pPopupMenu);
    void CloseMenu(BOOL bSetFocusToBar = FALSE);

    /// The innermost one that is open, or null.
    static CMFCPopupMenu * GetActiveMenu();
    virtual CMFCPopupMenuBar * GetMenuBar();
    HMENU GetHMenu();
    CMFCPopupMenu * GetParentPopupMenu() const;
    CMFCToolBarMenuButton * GetParentButton() const;
    CMFCToolBar * GetParentToolBar() const;
    virtual CWnd * GetParentArea(CRect & rectParentBtn);
    CWnd * GetMessageWnd() const;
    void SetMessageWnd(CWnd * pMsgWnd);
    DROP_DIRECTION GetDropDirection() const;
    MENUAREA_TYPE CheckArea(const CPoint & ptScreen) const;

    int GetMenuItemCount() const;
    CMFCToolBarMenuButton * GetMenuItem(int iIndex) const;
    CMFCToolBarMenuButton * GetSelItem();
    CMFCToolBarMenuButton * FindSubItemByCommand(UINT uiCmd) const;
    int InsertItem(const CMFCToolBarMenuButton & button, int iInsertAt = -1);
    int InsertSeparator(int iInsertAt = -1);
    BOOL RemoveItem(int iIndex);
    void RemoveAllItems();
    void SetDefaultItem(UINT uiCmd);
    void SetMaxWidth(int iMaxWidth);
    void SetRightAlign(BOOL bRightAlign = TRUE);
    BOOL IsRightAlign() const;
    BOOL IsShown() const;
    BOOL IsScrollable() const;
    void MoveTo(const CPoint & pt);
    static void SetSendMenuSelectMsg(BOOL bSet = TRUE);
    static BOOL IsSendMenuSelectMsg();

    virtual void OnChangeHot(int nHot);
    virtual void OnChooseItem(UINT uidCmdID);
    BOOL PostCommand(UINT uiCommandID);
    virtual BOOL InCommand();
    virtual BOOL IsAlwaysClose() const;
    virtual BOOL IsIdle() const;
    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override;
    void RecalcLayout(BOOL bNotify = TRUE) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT & cs) override;

    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC * pDC);
    afx_msg int OnMouseActivate(CWnd * pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnPaint();

private:
    friend class CMFCMenuBar;
    friend class CMFCPopupMenuBar;
    friend class CMFCToolBarMenuButton;
    friend class framework::MenuMode;

    bool Open(CWnd & owner, CPoint point, HMENU menu);
    void Place();
    CFrameWnd * TargetFrame() const;

    CMFCPopupMenuBar m_bar;
    HMENU m_menu;
    HWND m_message;
    HWND m_parentPopup;
    HWND m_parentBar;
    int m_parentIndex;
    CRect m_parentRect; // of the button, on the screen
    bool m_fromBar;     // below a button of a bar, or beside an item
    bool m_rightAlign;
    bool m_shown;
    bool m_systemMenu;
    bool m_inCommand;
    int m_maxWidth;
    UINT m_default;
    CPoint m_point;
    DROP_DIRECTION m_direction;

    DECLARE_MESSAGE_MAP()
};
