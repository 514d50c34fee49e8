// Ledger.h : the classes of the program
//

#if !defined(AFX_LEDGER_H__INCLUDED_)
#define AFX_LEDGER_H__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
    #error include 'StdAfx.h' first
#endif

#include "Resource.h"

/////////////////////////////////////////////////////////////////////////////
// CLedgerApp

class CLedgerApp : public CWinApp
{
public:
    CLedgerApp();

    //{{AFX_VIRTUAL(CLedgerApp)
public:
    virtual BOOL InitInstance();
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CLedgerApp)
    afx_msg void OnAppAbout();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CMainFrame

class CMainFrame : public CMDIFrameWnd
{
    DECLARE_DYNAMIC(CMainFrame)
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

    //{{AFX_MSG(CMainFrame)
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CChildFrame

class CChildFrame : public CMDIChildWnd
{
    DECLARE_DYNCREATE(CChildFrame)
public:
    CChildFrame();
    virtual ~CChildFrame();

    //{{AFX_VIRTUAL(CChildFrame)
public:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    //}}AFX_VIRTUAL

protected:
    //{{AFX_MSG(CChildFrame)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CEntry

class CEntry : public CObject
{
    DECLARE_SERIAL(CEntry)
public:
    CEntry();

    CTime m_time;
    CString m_strChannel;
    double m_dValue;
    CWordArray m_flags;

    virtual void Serialize(CArchive& ar);
};

/////////////////////////////////////////////////////////////////////////////
// CLedgerDoc

class CLedgerDoc : public CDocument
{
protected: // made by the template alone
    CLedgerDoc();
    DECLARE_DYNCREATE(CLedgerDoc)

public:
    CTypedPtrArray<CObArray, CEntry*> m_entries;
    CMap<CString, LPCTSTR, double, double> m_last; // of each channel
    CStringList m_remarks;

    //{{AFX_VIRTUAL(CLedgerDoc)
public:
    virtual BOOL OnNewDocument();
    virtual void Serialize(CArchive& ar);
    virtual void DeleteContents();
    //}}AFX_VIRTUAL

    virtual ~CLedgerDoc();

protected:
    //{{AFX_MSG(CLedgerDoc)
    afx_msg void OnEntryAdd();
    afx_msg void OnEntryRemove();
    afx_msg void OnUpdateEntryRemove(CCmdUI* pCmdUI);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CLedgerView

class CLedgerView : public CScrollView
{
protected: // made by the template alone
    CLedgerView();
    DECLARE_DYNCREATE(CLedgerView)

public:
    CLedgerDoc* GetDocument();

    //{{AFX_VIRTUAL(CLedgerView)
public:
    virtual void OnDraw(CDC* pDC);
    virtual void OnInitialUpdate();
protected:
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    //}}AFX_VIRTUAL

public:
    virtual ~CLedgerView();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected:
    //{{AFX_MSG(CLedgerView)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#ifndef _DEBUG
inline CLedgerDoc* CLedgerView::GetDocument()
   { return (CLedgerDoc*)m_pDocument; }
#endif

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_LEDGER_H__INCLUDED_)
