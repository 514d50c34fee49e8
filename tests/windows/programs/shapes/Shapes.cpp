// Shapes.cpp : drawings of rectangles and ellipses, each in a window of its own
//

#include "StdAfx.h"
#include "Shapes.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CShapesApp

BEGIN_MESSAGE_MAP(CShapesApp, CWinApp)
    //{{AFX_MSG_MAP(CShapesApp)
    ON_COMMAND(ID_APP_ABOUT, &CShapesApp::OnAppAbout)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
    ON_COMMAND(ID_FILE_PRINT_SETUP, &CWinApp::OnFilePrintSetup)
END_MESSAGE_MAP()

CShapesApp::CShapesApp()
{
}

// The application object

CShapesApp theApp;

BOOL CShapesApp::InitInstance()
{
    AfxEnableControlContainer();

#if _MSC_VER <= 1200
#ifdef _AFXDLL
    InitCommonControls();
#endif
#endif

    SetRegistryKey(_T("Sample Works"));
    LoadStdProfileSettings();

    CMultiDocTemplate* pDocTemplate;
    pDocTemplate = new CMultiDocTemplate(IDR_SHAPETYPE,
        RUNTIME_CLASS(CShapesDoc),
        RUNTIME_CLASS(CChildFrame),
        RUNTIME_CLASS(CShapesView));
    AddDocTemplate(pDocTemplate);

    // The main frame comes before the documents.
    CMainFrame* pMainFrame = new CMainFrame;
    if (!pMainFrame->LoadFrame(IDR_MAINFRAME))
        return FALSE;
    m_pMainWnd = pMainFrame;

    CCommandLineInfo cmdInfo;
    ParseCommandLine(cmdInfo);
    if (!ProcessShellCommand(cmdInfo))
        return FALSE;

    pMainFrame->ShowWindow(m_nCmdShow);
    pMainFrame->UpdateWindow();

    return TRUE;
}

/////////////////////////////////////////////////////////////////////////////
// CAboutDlg

class CAboutDlg : public CDialog
{
public:
    CAboutDlg();

    //{{AFX_DATA(CAboutDlg)
    enum { IDD = IDD_ABOUTBOX };
    //}}AFX_DATA

    //{{AFX_VIRTUAL(CAboutDlg)
protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    //}}AFX_VIRTUAL

protected:
    //{{AFX_MSG(CAboutDlg)
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

CAboutDlg::CAboutDlg() : CDialog(CAboutDlg::IDD)
{
    //{{AFX_DATA_INIT(CAboutDlg)
    //}}AFX_DATA_INIT
}

void CAboutDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CAboutDlg)
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CAboutDlg, CDialog)
    //{{AFX_MSG_MAP(CAboutDlg)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

void CShapesApp::OnAppAbout()
{
    CAboutDlg aboutDlg;
    aboutDlg.DoModal();
}

/////////////////////////////////////////////////////////////////////////////
// CMainFrame

IMPLEMENT_DYNAMIC(CMainFrame, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CMDIFrameWnd)
    //{{AFX_MSG_MAP(CMainFrame)
    ON_WM_CREATE()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

static UINT indicators[] =
{
    ID_SEPARATOR,
    ID_INDICATOR_CAPS,
    ID_INDICATOR_NUM,
    ID_INDICATOR_SCRL,
};

CMainFrame::CMainFrame()
{
}

CMainFrame::~CMainFrame()
{
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CMDIFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;

    if (!m_wndToolBar.CreateEx(this, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP
        | CBRS_GRIPPER | CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC) ||
        !m_wndToolBar.LoadToolBar(IDR_MAINFRAME))
    {
        TRACE0("the tool bar could not be made\n");
        return -1;
    }

    if (!m_wndStatusBar.Create(this) ||
        !m_wndStatusBar.SetIndicators(indicators,
          sizeof(indicators)/sizeof(UINT)))
    {
        TRACE0("the status bar could not be made\n");
        return -1;
    }

    m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
    EnableDocking(CBRS_ALIGN_ANY);
    DockControlBar(&m_wndToolBar);

    return 0;
}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CMDIFrameWnd::PreCreateWindow(cs))
        return FALSE;
    return TRUE;
}

#ifdef _DEBUG
void CMainFrame::AssertValid() const
{
    CMDIFrameWnd::AssertValid();
}

void CMainFrame::Dump(CDumpContext& dc) const
{
    CMDIFrameWnd::Dump(dc);
}
#endif

/////////////////////////////////////////////////////////////////////////////
// CChildFrame

IMPLEMENT_DYNCREATE(CChildFrame, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CChildFrame, CMDIChildWnd)
    //{{AFX_MSG_MAP(CChildFrame)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CChildFrame::CChildFrame()
{
}

CChildFrame::~CChildFrame()
{
}

BOOL CChildFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CMDIChildWnd::PreCreateWindow(cs))
        return FALSE;
    return TRUE;
}

/////////////////////////////////////////////////////////////////////////////
// CShape

IMPLEMENT_SERIAL(CShape, CObject, 1)

CShape::CShape() : m_rect(0, 0, 0, 0), m_bEllipse(FALSE)
{
}

CShape::CShape(const CRect& rect, BOOL bEllipse) : m_rect(rect), m_bEllipse(bEllipse)
{
}

void CShape::Draw(CDC* pDC) const
{
    CBrush brush(m_bEllipse ? RGB(250, 220, 160) : RGB(170, 210, 240));
    CBrush* pOldBrush = pDC->SelectObject(&brush);
    if (m_bEllipse)
        pDC->Ellipse(m_rect);
    else
        pDC->Rectangle(m_rect);
    pDC->SelectObject(pOldBrush);
}

void CShape::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
        ar << m_rect << (DWORD)m_bEllipse;
    else
    {
        DWORD dwEllipse;
        ar >> m_rect >> dwEllipse;
        m_bEllipse = dwEllipse != 0;
    }
}

/////////////////////////////////////////////////////////////////////////////
// CShapesDoc

IMPLEMENT_DYNCREATE(CShapesDoc, CDocument)

BEGIN_MESSAGE_MAP(CShapesDoc, CDocument)
    //{{AFX_MSG_MAP(CShapesDoc)
    ON_COMMAND(ID_SHAPE_UNDO, &CShapesDoc::OnShapeUndo)
    ON_UPDATE_COMMAND_UI(ID_SHAPE_UNDO, &CShapesDoc::OnUpdateShapeUndo)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CShapesDoc::CShapesDoc()
{
}

CShapesDoc::~CShapesDoc()
{
}

BOOL CShapesDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return FALSE;
    return TRUE;
}

void CShapesDoc::DeleteContents()
{
    while (!m_shapes.IsEmpty())
        delete m_shapes.RemoveHead();
    CDocument::DeleteContents();
}

void CShapesDoc::AddShape(CShape* pShape)
{
    m_shapes.AddTail(pShape);
    SetModifiedFlag();
    UpdateAllViews(NULL, 0, pShape);
}

void CShapesDoc::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
    {
    }
    else
    {
    }
    m_shapes.Serialize(ar);
}

void CShapesDoc::OnShapeUndo()
{
    delete m_shapes.RemoveTail();
    SetModifiedFlag();
    UpdateAllViews(NULL);
}

void CShapesDoc::OnUpdateShapeUndo(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(!m_shapes.IsEmpty());
}

/////////////////////////////////////////////////////////////////////////////
// CShapesView

IMPLEMENT_DYNCREATE(CShapesView, CView)

BEGIN_MESSAGE_MAP(CShapesView, CView)
    //{{AFX_MSG_MAP(CShapesView)
    ON_WM_LBUTTONDOWN()
    ON_COMMAND(ID_SHAPE_RECTANGLE, &CShapesView::OnShapeRectangle)
    ON_COMMAND(ID_SHAPE_ELLIPSE, &CShapesView::OnShapeEllipse)
    ON_UPDATE_COMMAND_UI(ID_SHAPE_RECTANGLE, &CShapesView::OnUpdateShapeRectangle)
    ON_UPDATE_COMMAND_UI(ID_SHAPE_ELLIPSE, &CShapesView::OnUpdateShapeEllipse)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_DIRECT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

CShapesView::CShapesView()
{
    m_bEllipse = FALSE;
}

CShapesView::~CShapesView()
{
}

void CShapesView::OnPrepareDC(CDC* pDC, CPrintInfo* pInfo)
{
    CView::OnPrepareDC(pDC, pInfo);
    if (pDC->IsPrinting())
    {
        // As large as on the screen.
        pDC->SetMapMode(MM_ANISOTROPIC);
        pDC->SetWindowExt(96, 96);
        pDC->SetViewportExt(pDC->GetDeviceCaps(LOGPIXELSX), pDC->GetDeviceCaps(LOGPIXELSY));
    }
}

void CShapesView::OnDraw(CDC* pDC)
{
    CShapesDoc* pDoc = GetDocument();
    ASSERT_VALID(pDoc);
    POSITION pos = pDoc->m_shapes.GetHeadPosition();
    while (pos != NULL)
        pDoc->m_shapes.GetNext(pos)->Draw(pDC);
}

void CShapesView::OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint)
{
    if (pHint != NULL && pHint->IsKindOf(RUNTIME_CLASS(CShape)))
        InvalidateRect(((CShape*)pHint)->m_rect);
    else
        CView::OnUpdate(pSender, lHint, pHint);
}

BOOL CShapesView::OnPreparePrinting(CPrintInfo* pInfo)
{
    pInfo->SetMaxPage(1);
    return DoPreparePrinting(pInfo);
}

void CShapesView::OnLButtonDown(UINT nFlags, CPoint point)
{
    CRectTracker tracker;
    if (tracker.TrackRubberBand(this, point))
    {
        CRect rect = tracker.m_rect;
        rect.NormalizeRect();
        GetDocument()->AddShape(new CShape(rect, m_bEllipse));
    }
    CView::OnLButtonDown(nFlags, point);
}

void CShapesView::OnShapeRectangle()
{
    m_bEllipse = FALSE;
}

void CShapesView::OnShapeEllipse()
{
    m_bEllipse = TRUE;
}

void CShapesView::OnUpdateShapeRectangle(CCmdUI* pCmdUI)
{
    pCmdUI->SetRadio(!m_bEllipse);
}

void CShapesView::OnUpdateShapeEllipse(CCmdUI* pCmdUI)
{
    pCmdUI->SetRadio(m_bEllipse);
}

#ifdef _DEBUG
CShapesDoc* CShapesView::GetDocument() // the other is inline
{
    ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CShapesDoc)));
    return (CShapesDoc*)m_pDocument;
}
#endif
