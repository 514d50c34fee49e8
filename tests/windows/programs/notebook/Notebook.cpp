// Notebook.cpp : ein Notizbuch mit einem Dokument, das ein Textfeld zeigt
//

#include "StdAfx.h"
#include "Notebook.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CNotebookApp

BEGIN_MESSAGE_MAP(CNotebookApp, CWinApp)
    //{{AFX_MSG_MAP(CNotebookApp)
    ON_COMMAND(ID_APP_ABOUT, &CNotebookApp::OnAppAbout)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
    ON_COMMAND(ID_FILE_PRINT_SETUP, &CWinApp::OnFilePrintSetup)
END_MESSAGE_MAP()

CNotebookApp::CNotebookApp()
{
}

// The application object

CNotebookApp theApp;

BOOL CNotebookApp::InitInstance()
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
        RUNTIME_CLASS(CNotebookDoc),
        RUNTIME_CLASS(CMainFrame),
        RUNTIME_CLASS(CNotebookView));
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

void CNotebookApp::OnAppAbout()
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

/////////////////////////////////////////////////////////////////////////////
// CNotebookDoc

IMPLEMENT_DYNCREATE(CNotebookDoc, CDocument)

BEGIN_MESSAGE_MAP(CNotebookDoc, CDocument)
    //{{AFX_MSG_MAP(CNotebookDoc)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CNotebookDoc::CNotebookDoc()
{
}

CNotebookDoc::~CNotebookDoc()
{
}

BOOL CNotebookDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return FALSE;
    ((CEditView*)m_viewList.GetHead())->SetWindowText(NULL);
    return TRUE;
}

void CNotebookDoc::Serialize(CArchive& ar)
{
    // The edit field of the view keeps the text.
    ((CEditView*)m_viewList.GetHead())->SerializeRaw(ar);
}

/////////////////////////////////////////////////////////////////////////////
// CNotebookView

IMPLEMENT_DYNCREATE(CNotebookView, CEditView)

BEGIN_MESSAGE_MAP(CNotebookView, CEditView)
    //{{AFX_MSG_MAP(CNotebookView)
    ON_COMMAND(ID_EDIT_STAMP, &CNotebookView::OnEditStamp)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_PRINT, &CEditView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_DIRECT, &CEditView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CEditView::OnFilePrintPreview)
END_MESSAGE_MAP()

CNotebookView::CNotebookView()
{
}

CNotebookView::~CNotebookView()
{
}

BOOL CNotebookView::PreCreateWindow(CREATESTRUCT& cs)
{
    BOOL bPreCreated = CEditView::PreCreateWindow(cs);
    cs.style &= ~(ES_AUTOHSCROLL|WS_HSCROLL); // long lines are wrapped
    return bPreCreated;
}

BOOL CNotebookView::OnPreparePrinting(CPrintInfo* pInfo)
{
    return CEditView::OnPreparePrinting(pInfo);
}

void CNotebookView::OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo)
{
    CEditView::OnBeginPrinting(pDC, pInfo);
}

void CNotebookView::OnEndPrinting(CDC* pDC, CPrintInfo* pInfo)
{
    CEditView::OnEndPrinting(pDC, pInfo);
}

void CNotebookView::OnEditStamp()
{
    CTime now = CTime::GetCurrentTime();
    GetEditCtrl().ReplaceSel(now.Format(_T("%H:%M ")), TRUE);
}
