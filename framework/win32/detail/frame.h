#pragma once
// Frame windows. Included by afxwin.h, after the windows and the application.

#include "wnd.h"

class CControlBar;
class CDocument;
class CMDIChildWnd;
class CMDIFrameWnd;
class CView;
struct CPrintPreviewState;

// Styles of frames, in the half of the style word that belongs to the window's class
#define FWS_ADDTOTITLE 0x8000  // the document's name stands in the title
#define FWS_PREFIXTITLE 0x4000 // before the frame's own
#define FWS_SNAPTOBARS 0x2000  // the frame is as large as its bars

#define AFX_WS_DEFAULT_VIEW (WS_CHILD | WS_VISIBLE | WS_BORDER)

namespace framework
{
struct FrameAccess;
} // namespace framework

/// A window with a menu, accelerators and a title around one active view. Lives on the heap and deletes itself with its
/// window.
class FRAMEWORK_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd();
    ~CFrameWnd() override;

    static const CRect rectDefault; // size and place are left to the system
    BOOL m_bAutoMenuEnable;         // menu items without a handler are greyed
    HACCEL m_hAccelTable;           // who replaces it ends the former one

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT & rect = rectDefault, CWnd * pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                        DWORD dwExStyle = 0, CCreateContext * pContext = nullptr);
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd * pParentWnd = nullptr, CCreateContext * pContext = nullptr);
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    CWnd * CreateView(CCreateContext * pContext, UINT nID = AFX_IDW_PANE_FIRST);
    void InitialUpdateFrame(CDocument * pDoc, BOOL bMakeVisible);
    virtual void ActivateFrame(int nCmdShow = -1);

    virtual CDocument * GetActiveDocument();
    CView * GetActiveView() const;
    void SetActiveView(CView * pViewNew, BOOL bNotify = TRUE);
    virtual CFrameWnd * GetActiveFrame();

    CString GetTitle() const;
    void SetTitle(LPCTSTR lpszTitle);
    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);

    virtual void GetMessageString(UINT nID, CString & rMessage) const;
    virtual CWnd * GetMessageBar();
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    BOOL IsTracking() const;

    /// The frame's bar of that identifier, also in a bar of bands.
    CControlBar * GetControlBar(UINT nID);
    /// bDelay: at the next idle time, together with what else is shown or hidden.
    void ShowControlBar(CControlBar * pBar, BOOL bShow, BOOL bDelay);
    /// The sides that bars may be docked at.
    void EnableDocking(DWORD dwDockStyle);
    /// Moves a bar to the side of the identifier (AFX_IDW_DOCKBAR_...), or to the one of its style, after the bars that
    /// are there.
    void DockControlBar(CControlBar * pBar, UINT nDockBarID = 0, LPCRECT lpRect = nullptr);
    /// Keeps in the application's profile which bars are visible and at which side, and brings that back.
    void SaveBarState(LPCTSTR lpszProfileName) const;
    void LoadBarState(LPCTSTR lpszProfileName);
    afx_msg BOOL OnBarCheck(UINT nID);
    afx_msg void OnUpdateControlBarMenu(CCmdUI * pCmdUI);

    virtual void RecalcLayout(BOOL bNotify = TRUE);
    enum BorderCmd
    {
        borderGet = 1,
        borderRequest = 2,
        borderSet = 3
    };
    virtual BOOL NegotiateBorderSpace(UINT nBorderCmd, LPRECT lpRectBorder);

    /// Makes room for a preview and takes it back: bars, menu and accelerators, and what fills the frame.
    virtual void OnSetPreviewMode(BOOL bPreview, CPrintPreviewState * pState);

    BOOL InModalState() const;
    void BeginModalState() override;
    void EndModalState() override;
    void ShowOwnedWindows(BOOL bShow);

    BOOL PreCreateWindow(CREATESTRUCT & cs) override;
    BOOL PreTranslateMessage(MSG * pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override;

    afx_msg void OnContextHelp();
    // What the message maps of programs name for the help commands
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();

protected:
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext * pContext);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg void OnActivate(UINT nState, CWnd * pWndOther, BOOL bMinimized);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnSetFocus(CWnd * pOldWnd);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC * pDC);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar * pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar * pScrollBar);
    afx_msg void OnInitMenuPopup(CMenu * pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg void OnEnterIdle(UINT nWhy, CWnd * pWho);
    afx_msg void OnDropFiles(HDROP hDropInfo);

private:
    friend class CDocument;
    friend class CMDIChildWnd;
    friend class CMDIFrameWnd;
    friend struct framework::FrameAccess;

    BOOL IsFrameWnd() const override;
    virtual void OnUpdateFrameMenu(HMENU hMenuAlt);
    virtual HACCEL GetDefaultAccelerator();
    LPCTSTR GetIconWndClass(DWORD dwDefaultStyle, UINT nIDResource);
    int CreateContents(LPCREATESTRUCT lpcs, CCreateContext * pContext);
    void UpdateFrameTitleForDocument(LPCTSTR lpszDocName);
    void BringToTop(int nCmdShow);
    bool IsLastFrameOf(CDocument & document) const;

    LRESULT HandleSetMessageString(WPARAM wParam, LPARAM lParam);
    LRESULT HandleIdleUpdate(WPARAM wParam, LPARAM lParam);
    LRESULT HandlePopMessageString(WPARAM wParam, LPARAM lParam);
    BOOL HandleToolTipText(UINT nID, NMHDR * pNMHDR, LRESULT * pResult);
    void UpdateKeyIndicator(CCmdUI * pCmdUI);
    void LayOutSoon();

    CString m_title;
    CView * m_activeView;
    HMENU m_defaultMenu;    // the one that the frame was loaded with
    int m_number;           // among the frames of one document, from 1; 0 if there is only one
    UINT m_messageTracking; // what shall be shown as a message, and what is
    UINT m_messageShown;
    UINT m_helpId;
    int m_modalDepth;
    bool m_modalByDisabling;
    CArray<HWND> m_disabled; // what the modal state has disabled
    CRect m_border;          // kept free around bars and view
    bool m_inLayout;
    bool m_layoutPending;                         // for the next idle time
    DWORD m_dockStyle;                            // the sides that bars may be docked at
    BOOL(CALLBACK * m_previewClose)(CFrameWnd *); // asked before the frame closes
    CArray<HWND> m_hiddenByPreview;

    DECLARE_MESSAGE_MAP()
};

/// A frame that shows child frames in a client area of its own.
class FRAMEWORK_API CMDIFrameWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMDIFrameWnd)

public:
    CMDIFrameWnd();

    HWND m_hWndMDIClient;

    virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu * pWindowMenu);
    CMDIChildWnd * CreateNewChild(CRuntimeClass * pClass, UINT nResource, HMENU hMenu = nullptr,
                                  HACCEL hAccel = nullptr);
    virtual HMENU GetWindowMenuPopup(HMENU hMenuBar);

    void MDIActivate(CWnd * pWndActivate);
    CMDIChildWnd * MDIGetActive(BOOL * pbMaximized = nullptr) const;
    void MDICascade();
    void MDICascade(int nType);
    void MDITile();
    void MDITile(int nType);
    void MDIIconArrange();
    void MDIMaximize(CWnd * pWnd);
    void MDIRestore(CWnd * pWnd);
    void MDINext();
    void MDIPrev();
    CMenu * MDISetMenu(CMenu * pFrameMenu, CMenu * pWindowMenu);

    CFrameWnd * GetActiveFrame() override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd * pParentWnd = nullptr, CCreateContext * pContext = nullptr) override;
    BOOL PreCreateWindow(CREATESTRUCT & cs) override;
    BOOL PreTranslateMessage(MSG * pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext * pContext) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);

private:
    void OnUpdateFrameMenu(HMENU hMenuAlt) override;
    BOOL HandleWindowCommand(UINT nID);
    void UpdateWindowCommand(CCmdUI * pCmdUI);
    void NewWindow();

    DECLARE_MESSAGE_MAP()
};

/// A frame inside a CMDIFrameWnd.
class FRAMEWORK_API CMDIChildWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMDIChildWnd)

public:
    CMDIChildWnd();

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, const RECT & rect = rectDefault,
                        CMDIFrameWnd * pParentWnd = nullptr, CCreateContext * pContext = nullptr);
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd * pParentWnd,
                   CCreateContext * pContext = nullptr) override;
    /// Menu and accelerators while this child is the active one. Both stay the caller's.
    void SetHandles(HMENU hMenu, HACCEL hAccel);

    CMDIFrameWnd * GetMDIFrame();
    void MDIActivate();
    void MDIDestroy();
    void MDIMaximize();
    void MDIRestore();

    void ActivateFrame(int nCmdShow = -1) override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    CWnd * GetMessageBar() override;
    BOOL DestroyWindow() override;
    BOOL PreCreateWindow(CREATESTRUCT & cs) override;
    BOOL PreTranslateMessage(MSG * pMsg) override;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg int OnMouseActivate(CWnd * pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd * pActivateWnd, CWnd * pDeactivateWnd);

private:
    friend class CMDIFrameWnd;

    HACCEL GetDefaultAccelerator() override;
    void UpdateMenu(BOOL bActivate, CWnd * pActivateWnd, HMENU hNewMenu);
    void SetMenuOfFrame(HMENU hMenu);

    HMENU m_sharedMenu;
    bool m_pseudoInactive; // hidden, and told that it isn't active, though the client has no other to activate

    DECLARE_MESSAGE_MAP()
};
