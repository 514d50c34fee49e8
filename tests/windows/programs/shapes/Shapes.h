// Shapes.h : the classes of the program
//

#if !defined(AFX_SHAPES_H__INCLUDED_)
#define AFX_SHAPES_H__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#ifndef __AFXWIN_H__
    #error include 'StdAfx.h' first
#endif

#include "Resource.h"

/////////////////////////////////////////////////////////////////////////////
// CShapesApp

class CShapesApp : public CWinApp
{
public:
    CShapesApp();

    //{{AFX_VIRTUAL(CShapesApp)
public:
    virtual BOOL InitInstance();
    //}}AFX_VIRTUAL

    //{{AFX_MSG(CShapesApp)
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
// CShape

class CShape : public CObject
{
    DECLARE_SERIAL(CShape)
public:
    CShape();
    CShape(const CRect& rect, BOOL bEllipse);

    void Draw(CDC* pDC) const;
    virtual void Serialize(CArchive& ar);

    CRect m_rect;
    BOOL m_bEllipse;
};

/////////////////////////////////////////////////////////////////////////////
// CShapesDoc

class CShapesDoc : public CDocument
{
protected: // made by the template alone
    CShapesDoc();
    DECLARE_DYNCREATE(CShapesDoc)

public:
    CTypedPtrList<CObList, CShape*> m_shapes;
    void AddShape(CShape* pShape);

    //{{AFX_VIRTUAL(CShapesDoc)
public:
    virtual BOOL OnNewDocument();
    virtual void Serialize(CArchive& ar);
    virtual void DeleteContents();
    //}}AFX_VIRTUAL

    virtual ~CShapesDoc();

protected:
    //{{AFX_MSG(CShapesDoc)
    afx_msg void OnShapeUndo();
    afx_msg void OnUpdateShapeUndo(CCmdUI* pCmdUI);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

/////////////////////////////////////////////////////////////////////////////
// CShapesView

class CShapesView : public CView
{
protected: // made by the template alone
    CShapesView();
    DECLARE_DYNCREATE(CShapesView)

public:
    CShapesDoc* GetDocument();

    //{{AFX_VIRTUAL(CShapesView)
public:
    virtual void OnDraw(CDC* pDC);
    virtual void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = NULL);
protected:
    virtual BOOL OnPreparePrinting(CPrintInfo* pInfo);
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    //}}AFX_VIRTUAL

    virtual ~CShapesView();

protected:
    BOOL m_bEllipse;

    //{{AFX_MSG(CShapesView)
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnShapeRectangle();
    afx_msg void OnShapeEllipse();
    afx_msg void OnUpdateShapeRectangle(CCmdUI* pCmdUI);
    afx_msg void OnUpdateShapeEllipse(CCmdUI* pCmdUI);
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

#ifndef _DEBUG
inline CShapesDoc* CShapesView::GetDocument()
   { return (CShapesDoc*)m_pDocument; }
#endif

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_SHAPES_H__INCLUDED_)
