// Console.h : the classes of the program
//

#if !defined(AFX_CONSOLE_H__INCLUDED_)
#define AFX_CONSOLE_H__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
    #error include 'StdAfx.h' first
#endif

#include "Resource.h"

/////////////////////////////////////////////////////////////////////////////
// CConsoleApp

class CConsoleApp : public CWinApp
{
public:
    CConsoleApp();

    //{{AFX_VIRTUAL(CConsoleApp)
public:
    virtual BOOL InitInstance();
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CConsoleApp)
    afx_msg void OnAppAbout();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CMainFrame

class CMainFrame : public CFrameWnd
{
    DECLARE_DYNCREATE(CMainFrame)
public:
    CMainFrame();
    virtual ~CMainFrame();

    //{{AFX_VIRTUAL(CMainFrame)
public:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    //}}AFX_VIRTUAL

#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected: // bars are members of the frame
    CStatusBar m_wndStatusBar;
    CToolBar m_wndToolBar;
    CToolBar m_wndChannels;
    CDialogBar m_wndTarget;
    UINT m_nSeconds;
    BOOL m_bRuns;
    BOOL m_bChannel[4];

    //{{AFX_MSG(CMainFrame)
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnRunStart();
    afx_msg void OnRunStop();
    afx_msg void OnUpdateRunStart(CCmdUI* pCmdUI);
    afx_msg void OnUpdateRunStop(CCmdUI* pCmdUI);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnTargetSet();
    afx_msg void OnUpdateTargetSet(CCmdUI* pCmdUI);
    afx_msg BOOL OnViewChannels(UINT nID);
    afx_msg void OnUpdateViewChannels(CCmdUI* pCmdUI);
    afx_msg void OnChannel(UINT nID);
    afx_msg void OnUpdateChannel(CCmdUI* pCmdUI);
    afx_msg void OnUpdateIndicatorRun(CCmdUI* pCmdUI);
    afx_msg void OnUpdateIndicatorTime(CCmdUI* pCmdUI);
    afx_msg void OnClose();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CConsoleDoc

class CConsoleDoc : public CDocument
{
protected: // made by the template alone
    CConsoleDoc();
    DECLARE_DYNCREATE(CConsoleDoc)

public:
    CString m_strLog;
    void Log(LPCTSTR lpszLine);

    //{{AFX_VIRTUAL(CConsoleDoc)
public:
    virtual BOOL OnNewDocument();
    virtual void Serialize(CArchive& ar);
    //}}AFX_VIRTUAL

    virtual ~CConsoleDoc();

protected:
    //{{AFX_MSG(CConsoleDoc)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CConsoleView

class CConsoleView : public CView
{
protected: // made by the template alone
    CConsoleView();
    DECLARE_DYNCREATE(CConsoleView)

public:
    CConsoleDoc* GetDocument();

    //{{AFX_VIRTUAL(CConsoleView)
public:
    virtual void OnDraw(CDC* pDC);
    //}}AFX_VIRTUAL

public:
    virtual ~CConsoleView();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected:
    //{{AFX_MSG(CConsoleView)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#ifndef _DEBUG
inline CConsoleDoc* CConsoleView::GetDocument()
   { return (CConsoleDoc*)m_pDocument; }
#endif

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_CONSOLE_H__INCLUDED_)
