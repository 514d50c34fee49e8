// Form.h : the classes of the program
//

#if !defined(AFX_FORM_H__INCLUDED_)
#define AFX_FORM_H__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
    #error include 'StdAfx.h' first
#endif

#include "Resource.h"

/////////////////////////////////////////////////////////////////////////////
// CFormApp

class CFormApp : public CWinApp
{
public:
    CFormApp();

    //{{AFX_VIRTUAL(CFormApp)
public:
    virtual BOOL InitInstance();
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CFormApp)
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
// CFormDoc

class CFormDoc : public CDocument
{
protected: // made by the template alone
    CFormDoc();
    DECLARE_DYNCREATE(CFormDoc)

public:
    CString m_strDevice;
    int m_nKind;
    double m_dReference;
    double m_dReading;
    BOOL m_bPassed;
    CString m_strRemarks;

    //{{AFX_VIRTUAL(CFormDoc)
public:
    virtual BOOL OnNewDocument();
    virtual void Serialize(CArchive& ar);
    //}}AFX_VIRTUAL

    virtual ~CFormDoc();

protected:
    //{{AFX_MSG(CFormDoc)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CFormSheetView

class CFormSheetView : public CFormView
{
protected: // made by the template alone
    CFormSheetView();
    DECLARE_DYNCREATE(CFormSheetView)

public:
    CFormDoc* GetDocument();
    //{{AFX_DATA(CFormSheetView)
    enum { IDD = IDD_SHEET };
    CComboBox m_wndKind;
    CDateTimeCtrl m_wndDate;
    //}}AFX_DATA
    CFont m_fontPrinter;

    //{{AFX_VIRTUAL(CFormSheetView)
public:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void OnInitialUpdate();
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    virtual BOOL OnPreparePrinting(CPrintInfo* pInfo);
    virtual void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnPrint(CDC* pDC, CPrintInfo* pInfo);
    //}}AFX_VIRTUAL

public:
    virtual ~CFormSheetView();
#ifdef _DEBUG
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;
#endif

protected:
    //{{AFX_MSG(CFormSheetView)
    afx_msg void OnChange();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#ifndef _DEBUG
inline CFormDoc* CFormSheetView::GetDocument()
   { return (CFormDoc*)m_pDocument; }
#endif

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_FORM_H__INCLUDED_)
