// Explorer.h : the classes of the program
//

#if !defined(AFX_EXPLORER_H__INCLUDED_)
#define AFX_EXPLORER_H__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
    #error include 'StdAfx.h' first
#endif

#include "Resource.h"

/////////////////////////////////////////////////////////////////////////////
// CExplorerApp

class CExplorerApp : public CWinApp
{
public:
    CExplorerApp();

    //{{AFX_VIRTUAL(CExplorerApp)
public:
    virtual BOOL InitInstance();
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CExplorerApp)
    afx_msg void OnAppAbout();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

class CExplorerView;

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
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    //}}AFX_VIRTUAL
    CExplorerView* GetRightPane();

#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected: // bars are members of the frame
    CStatusBar m_wndStatusBar;
    CToolBar m_wndToolBar;
    CSplitterWnd m_wndSplitter;

    //{{AFX_MSG(CMainFrame)
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CExplorerDoc

class CExplorerDoc : public CDocument
{
protected: // made by the template alone
    CExplorerDoc();
    DECLARE_DYNCREATE(CExplorerDoc)

public:
    CString m_strRoot;
    CString m_strFolder; // whose contents are shown

    //{{AFX_VIRTUAL(CExplorerDoc)
public:
    virtual BOOL OnNewDocument();
    virtual void Serialize(CArchive& ar);
    //}}AFX_VIRTUAL

    virtual ~CExplorerDoc();

protected:
    //{{AFX_MSG(CExplorerDoc)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CLeftView

class CLeftView : public CTreeView
{
protected: // made by the template alone
    CLeftView();
    DECLARE_DYNCREATE(CLeftView)

public:
    CExplorerDoc* GetDocument();
    CImageList m_images;
    void AddFolders(HTREEITEM hParent, const CString& strFolder);
    CString PathOf(HTREEITEM hItem);

    //{{AFX_VIRTUAL(CLeftView)
public:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
protected:
    virtual void OnInitialUpdate();
    //}}AFX_VIRTUAL

public:
    virtual ~CLeftView();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected:
    //{{AFX_MSG(CLeftView)
    afx_msg void OnSelchanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnItemexpanding(NMHDR* pNMHDR, LRESULT* pResult);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#ifndef _DEBUG
inline CExplorerDoc* CLeftView::GetDocument()
   { return (CExplorerDoc*)m_pDocument; }
#endif

/////////////////////////////////////////////////////////////////////////////
// CExplorerView

class CExplorerView : public CListView
{
protected: // made by the template alone
    CExplorerView();
    DECLARE_DYNCREATE(CExplorerView)

public:
    CExplorerDoc* GetDocument();

    //{{AFX_VIRTUAL(CExplorerView)
public:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
protected:
    virtual void OnInitialUpdate();
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    //}}AFX_VIRTUAL

public:
    virtual ~CExplorerView();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected:
    //{{AFX_MSG(CExplorerView)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#ifndef _DEBUG
inline CExplorerDoc* CExplorerView::GetDocument()
   { return (CExplorerDoc*)m_pDocument; }
#endif

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_EXPLORER_H__INCLUDED_)
