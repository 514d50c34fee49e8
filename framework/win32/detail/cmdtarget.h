#pragma once
// Command targets: objects that have a message map, and what is passed along when a command is routed.

#include <afx.h>

#include "FrameworkExport.h"

class CCmdTarget;
class CCmdUI;
class CMenu;
class CWinThread;
class CWnd;

namespace framework
{
struct CmdTargetAccess;
struct CmdUiAccess;
} // namespace framework

#ifndef afx_msg
#define afx_msg
#endif

typedef void (AFX_MSG_CALL CCmdTarget::*AFX_PMSG)();

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP * PASCAL GetThisMessageMap();                                                              \
    virtual const AFX_MSGMAP * GetMessageMap() const;

struct AFX_MSGMAP_ENTRY
{
    UINT nMessage; // the window message
    UINT nCode;    // the control's notification code, or 0
    UINT nID;      // the first control or command id, or 0
    UINT nLastID;  // the last one
    UINT_PTR nSig; // the address of how the handler is called; for a registered message that of its number
    AFX_PMSG pfn;
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP *(PASCAL * pfnGetBaseMap)(); // null in CCmdTarget's own map
    const AFX_MSGMAP_ENTRY * lpEntries;
};

/// What OnCmdMsg reports instead of calling the handler.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget * pTarget;
    void (AFX_MSG_CALL CCmdTarget::*pmf)();
};

/// A WM_NOTIFY on its way through OnCmdMsg.
struct AFX_NOTIFY
{
    LRESULT * pResult;
    NMHDR * pNMHDR;
};

class FRAMEWORK_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    ~CCmdTarget() override;

    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

    virtual BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo);

    DECLARE_MESSAGE_MAP()

private:
    friend struct framework::CmdTargetAccess;
};

class FRAMEWORK_API CCmdUI
{
public:
    CCmdUI();
    virtual ~CCmdUI();

    UINT m_nID;
    UINT m_nIndex;      // of the menu item or of the bar's item
    CMenu * m_pMenu;    // set if the item stands in a menu
    CMenu * m_pSubMenu; // set if the item opens a menu
    CWnd * m_pOther;    // set if the item is a window

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1);
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);
    void ContinueRouting();

private:
    BOOL m_bEnableChanged;
    BOOL m_bContinueRouting;
    UINT m_nIndexMax;
    CMenu * m_pParentMenu;

    friend struct framework::CmdUiAccess;
};

class FRAMEWORK_API CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor &) = delete;
    CWaitCursor & operator=(const CWaitCursor &) = delete;

    void Restore();
};

namespace framework
{
/// For the framework's own bars and menus: asks the targets about one item, and walks a menu's items.
struct FRAMEWORK_API CmdUiAccess
{
    /// Routes CN_UPDATE_COMMAND_UI. If nobody enabled or disabled the item and disableIfNoHandler is set, the item is
    /// enabled just if there is a handler of its command. TRUE if a handler was found.
    static BOOL DoUpdate(CCmdUI & ui, CCmdTarget * target, BOOL disableIfNoHandler);
    static void SetIndexMax(CCmdUI & ui, UINT count);
    static UINT IndexMax(CCmdUI const & ui);
    static void SetParentMenu(CCmdUI & ui, CMenu * menu);
    static CMenu * ParentMenu(CCmdUI const & ui);
    static BOOL EnableChanged(CCmdUI const & ui);
    static void SetEnableChanged(CCmdUI & ui, BOOL changed);
    /// Whether the handler asked for further routing; asking clears the wish.
    static BOOL TakeContinueRouting(CCmdUI & ui);
};
} // namespace framework
