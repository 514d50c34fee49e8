// Notebook.h : the classes of the program
//

#if !defined(AFX_NOTEBOOK_H__INCLUDED_)
#define AFX_NOTEBOOK_H__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
    #error include 'StdAfx.h' first
#endif

#include "Resource.h"

/////////////////////////////////////////////////////////////////////////////
// CNotebookApp

class CNotebookApp : public CWinApp
{
public:
    CNotebookApp();

    //{{AFX_VIRTUAL(CNotebookApp)
public:
    virtual BOOL InitInstance();
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CNotebookApp)
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

    //{{AFX_MSG(CMainFrame)
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CNotebookDoc

class CNotebookDoc : public CDocument
{
protected: // made by the template alone
    CNotebookDoc();
    DECLARE_DYNCREATE(CNotebookDoc)

public:
    //{{AFX_VIRTUAL(CNotebookDoc)
public:
    virtual BOOL OnNewDocument();
    virtual void Serialize(CArchive& ar);
    //}}AFX_VIRTUAL

    virtual ~CNotebookDoc();

protected:
    //{{AFX_MSG(CNotebookDoc)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CNotebookView

class CNotebookView : public CEditView
{
protected: // made by the template alone
    CNotebookView();
    DECLARE_DYNCREATE(CNotebookView)

public:
    CNotebookDoc* GetDocument();

    //{{AFX_VIRTUAL(CNotebookView)
public:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
protected:
    virtual BOOL OnPreparePrinting(CPrintInfo* pInfo);
    virtual void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo);
    //}}AFX_VIRTUAL

public:
    virtual ~CNotebookView();

protected:
    //{{AFX_MSG(CNotebookView)
    afx_msg void OnEditStamp();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

inline CNotebookDoc* CNotebookView::GetDocument()
   { return (CNotebookDoc*)CEditView::GetDocument(); }

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_NOTEBOOK_H__INCLUDED_)
