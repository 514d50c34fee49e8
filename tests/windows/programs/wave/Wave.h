// Wave.h : the classes of the program
//

#if !defined(AFX_WAVE_H__INCLUDED_)
#define AFX_WAVE_H__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
    #error include 'StdAfx.h' first
#endif

#include "Resource.h"

/////////////////////////////////////////////////////////////////////////////
// CWaveApp

class CWaveApp : public CWinApp
{
public:
    CWaveApp();

    //{{AFX_VIRTUAL(CWaveApp)
public:
    virtual BOOL InitInstance();
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CWaveApp)
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
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    //}}AFX_VIRTUAL

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
// CWaveDoc

class CWaveDoc : public CDocument
{
protected: // made by the template alone
    CWaveDoc();
    DECLARE_DYNCREATE(CWaveDoc)

public:
    double ValueAt(int x) const;
    CSize m_size;

    //{{AFX_VIRTUAL(CWaveDoc)
public:
    virtual BOOL OnNewDocument();
    virtual void Serialize(CArchive& ar);
    //}}AFX_VIRTUAL

    virtual ~CWaveDoc();

protected:
    //{{AFX_MSG(CWaveDoc)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CWaveView

class CWaveView : public CScrollView
{
protected: // made by the template alone
    CWaveView();
    DECLARE_DYNCREATE(CWaveView)

public:
    CWaveDoc* GetDocument();

    //{{AFX_VIRTUAL(CWaveView)
public:
    virtual void OnDraw(CDC* pDC);
    virtual void OnInitialUpdate();
    //}}AFX_VIRTUAL

public:
    virtual ~CWaveView();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected:
    //{{AFX_MSG(CWaveView)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#ifndef _DEBUG
inline CWaveDoc* CWaveView::GetDocument()
   { return (CWaveDoc*)m_pDocument; }
#endif

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_WAVE_H__INCLUDED_)
