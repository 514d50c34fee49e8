// Wave.cpp : eine Kurve, breiter als das Fenster, in bis zu vier Bereichen
//

#include "StdAfx.h"
#include "Wave.h"
#include <math.h>

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CWaveApp

BEGIN_MESSAGE_MAP(CWaveApp, CWinApp)
    //{{AFX_MSG_MAP(CWaveApp)
    ON_COMMAND(ID_APP_ABOUT, &CWaveApp::OnAppAbout)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
END_MESSAGE_MAP()

CWaveApp::CWaveApp()
{
}

// The application object

CWaveApp theApp;

BOOL CWaveApp::InitInstance()
{
    AfxEnableControlContainer();

#if _MSC_VER <= 1200
#ifdef _AFXDLL
    InitCommonControls();
#endif
#endif

    SetRegistryKey(_T("Sample Works"));
    LoadStdProfileSettings();

    CSingleDocTemplate* pDocTemplate;
    pDocTemplate = new CSingleDocTemplate(
        IDR_MAINFRAME,
        RUNTIME_CLASS(CWaveDoc),
        RUNTIME_CLASS(CMainFrame),
        RUNTIME_CLASS(CWaveView));
    AddDocTemplate(pDocTemplate);

    CCommandLineInfo cmdInfo;
    ParseCommandLine(cmdInfo);
    if (!ProcessShellCommand(cmdInfo))
        return FALSE;

    m_pMainWnd->ShowWindow(SW_SHOW);
    m_pMainWnd->UpdateWindow();

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

void CWaveApp::OnAppAbout()
{
    CAboutDlg aboutDlg;
    aboutDlg.DoModal();
}

/////////////////////////////////////////////////////////////////////////////
// CMainFrame

IMPLEMENT_DYNCREATE(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
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
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
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
    if (!CFrameWnd::PreCreateWindow(cs))
        return FALSE;
    return TRUE;
}

#ifdef _DEBUG
void CMainFrame::AssertValid() const
{
    CFrameWnd::AssertValid();
}

void CMainFrame::Dump(CDumpContext& dc) const
{
    CFrameWnd::Dump(dc);
}
#endif

BOOL CMainFrame::OnCreateClient(LPCREATESTRUCT /*lpcs*/, CCreateContext* pContext)
{
    return m_wndSplitter.Create(this, 2, 2, CSize(10, 10), pContext);
}

/////////////////////////////////////////////////////////////////////////////
// CWaveDoc

IMPLEMENT_DYNCREATE(CWaveDoc, CDocument)

BEGIN_MESSAGE_MAP(CWaveDoc, CDocument)
    //{{AFX_MSG_MAP(CWaveDoc)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CWaveDoc::CWaveDoc()
{
}

CWaveDoc::~CWaveDoc()
{
}

BOOL CWaveDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return FALSE;
    m_size = CSize(3000, 800);
    return TRUE;
}

void CWaveDoc::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
    {
    }
    else
    {
    }
}

double CWaveDoc::ValueAt(int x) const
{
    return sin(x / 60.0) * (0.6 + 0.4 * sin(x / 700.0));
}

/////////////////////////////////////////////////////////////////////////////
// CWaveView

IMPLEMENT_DYNCREATE(CWaveView, CScrollView)

BEGIN_MESSAGE_MAP(CWaveView, CScrollView)
    //{{AFX_MSG_MAP(CWaveView)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CWaveView::CWaveView()
{
}

CWaveView::~CWaveView()
{
}

#ifdef _DEBUG
void CWaveView::AssertValid() const
{
    CScrollView::AssertValid();
}

void CWaveView::Dump(CDumpContext& dc) const
{
    CScrollView::Dump(dc);
}

CWaveDoc* CWaveView::GetDocument() // the other is inline
{
    ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CWaveDoc)));
    return (CWaveDoc*)m_pDocument;
}
#endif

void CWaveView::OnInitialUpdate()
{
    CScrollView::OnInitialUpdate();
    SetScrollSizes(MM_TEXT, GetDocument()->m_size);
}

void CWaveView::OnDraw(CDC* pDC)
{
    CWaveDoc* pDoc = GetDocument();
    ASSERT_VALID(pDoc);
    int nMiddle = pDoc->m_size.cy / 2;
    CPen penGrid(PS_SOLID, 1, RGB(220, 220, 220));
    CPen* pOldPen = pDC->SelectObject(&penGrid);
    for (int x = 0; x <= pDoc->m_size.cx; x += 100)
    {
        pDC->MoveTo(x, 0);
        pDC->LineTo(x, pDoc->m_size.cy);
        CString str;
        str.Format(_T("%d ms"), x);
        pDC->TextOut(x + 3, nMiddle + 3, str);
    }
    pDC->MoveTo(0, nMiddle);
    pDC->LineTo(pDoc->m_size.cx, nMiddle);
    CPen penCurve(PS_SOLID, 2, RGB(0, 70, 150));
    pDC->SelectObject(&penCurve);
    CRect rectClip;
    pDC->GetClipBox(&rectClip);
    BOOL bFirst = TRUE;
    for (int x = rectClip.left - 2; x <= rectClip.right + 2; x += 2)
    {
        CPoint point(x, nMiddle - (int)(pDoc->ValueAt(x) * 300));
        if (bFirst)
            pDC->MoveTo(point);
        else
            pDC->LineTo(point);
        bFirst = FALSE;
    }
    pDC->SelectObject(pOldPen);
}
