// Register.h : the classes of the program
//

#if !defined(AFX_REGISTER_H__INCLUDED_)
#define AFX_REGISTER_H__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
    #error include 'StdAfx.h' first
#endif

#include "Resource.h"

/////////////////////////////////////////////////////////////////////////////
// CRegisterApp

class CRegisterApp : public CWinApp
{
public:
    CRegisterApp();

    //{{AFX_VIRTUAL(CRegisterApp)
public:
    virtual BOOL InitInstance();
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CRegisterApp)
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
// CRegisterDoc

class CRegisterDoc : public CDocument
{
protected: // made by the template alone
    CRegisterDoc();
    DECLARE_DYNCREATE(CRegisterDoc)

public:

    //{{AFX_VIRTUAL(CRegisterDoc)
public:
    virtual BOOL OnNewDocument();
    virtual void Serialize(CArchive& ar);
    //}}AFX_VIRTUAL

    virtual ~CRegisterDoc();

protected:
    //{{AFX_MSG(CRegisterDoc)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CRegisterView

class CRegisterView : public CListView
{
protected: // made by the template alone
    CRegisterView();
    DECLARE_DYNCREATE(CRegisterView)

public:
    CRegisterDoc* GetDocument();
    int m_nSortColumn;
    BOOL m_bAscending;

    //{{AFX_VIRTUAL(CRegisterView)
public:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
protected:
    virtual void OnInitialUpdate();
    //}}AFX_VIRTUAL

public:
    virtual ~CRegisterView();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected:
    //{{AFX_MSG(CRegisterView)
    afx_msg void OnColumnclick(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnItemchanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnViewStyle(UINT nCommandID);
    afx_msg void OnUpdateViewStyle(CCmdUI* pCmdUI);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#ifndef _DEBUG
inline CRegisterDoc* CRegisterView::GetDocument()
   { return (CRegisterDoc*)m_pDocument; }
#endif

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_REGISTER_H__INCLUDED_)
