// Ledger.cpp : Protokolle von Messungen, die gespeichert, wieder gelesen und hereingezogen werden
//

#include "StdAfx.h"
#include "Ledger.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CLedgerApp

BEGIN_MESSAGE_MAP(CLedgerApp, CWinApp)
    //{{AFX_MSG_MAP(CLedgerApp)
    ON_COMMAND(ID_APP_ABOUT, &CLedgerApp::OnAppAbout)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
END_MESSAGE_MAP()

CLedgerApp::CLedgerApp()
{
}

// The application object

CLedgerApp theApp;

BOOL CLedgerApp::InitInstance()
{
    AfxEnableControlContainer();

#if _MSC_VER <= 1200
#ifdef _AFXDLL
    InitCommonControls();
#endif
#endif

    SetRegistryKey(_T("Sample Works"));
    LoadStdProfileSettings(6);

    CMultiDocTemplate* pDocTemplate;
    pDocTemplate = new CMultiDocTemplate(IDR_LEDTYPE,
        RUNTIME_CLASS(CLedgerDoc),
        RUNTIME_CLASS(CChildFrame),
        RUNTIME_CLASS(CLedgerView));
    AddDocTemplate(pDocTemplate);

    // The main frame comes before the documents.
    CMainFrame* pMainFrame = new CMainFrame;
    if (!pMainFrame->LoadFrame(IDR_MAINFRAME))
        return FALSE;
    m_pMainWnd = pMainFrame;

    EnableShellOpen();
    // Files that are dragged here are opened.
    m_pMainWnd->DragAcceptFiles();

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

void CLedgerApp::OnAppAbout()
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
// CEntry

IMPLEMENT_SERIAL(CEntry, CObject, VERSIONABLE_SCHEMA | 2)

CEntry::CEntry()
{
    m_dValue = 0;
}

void CEntry::Serialize(CArchive& ar)
{
    CObject::Serialize(ar);
    if (ar.IsStoring())
        ar << m_time << m_strChannel << m_dValue;
    else
    {
        // The first version had no time.
        if (ar.GetObjectSchema() >= 2)
            ar >> m_time;
        ar >> m_strChannel >> m_dValue;
    }
    m_flags.Serialize(ar);
}

/////////////////////////////////////////////////////////////////////////////
// CLedgerDoc

IMPLEMENT_DYNCREATE(CLedgerDoc, CDocument)

BEGIN_MESSAGE_MAP(CLedgerDoc, CDocument)
    //{{AFX_MSG_MAP(CLedgerDoc)
    ON_COMMAND(ID_ENTRY_ADD, &CLedgerDoc::OnEntryAdd)
    ON_COMMAND(ID_ENTRY_REMOVE, &CLedgerDoc::OnEntryRemove)
    ON_UPDATE_COMMAND_UI(ID_ENTRY_REMOVE, &CLedgerDoc::OnUpdateEntryRemove)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CLedgerDoc::CLedgerDoc()
{
}

CLedgerDoc::~CLedgerDoc()
{
}

BOOL CLedgerDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return FALSE;
    return TRUE;
}

void CLedgerDoc::Serialize(CArchive& ar)
{
    m_entries.Serialize(ar);
    m_last.Serialize(ar);
    m_remarks.Serialize(ar);
}

void CLedgerDoc::DeleteContents()
{
    for (int i = 0; i < m_entries.GetSize(); i++)
        delete m_entries[i];
    m_entries.RemoveAll();
    m_last.RemoveAll();
    m_remarks.RemoveAll();
    CDocument::DeleteContents();
}

void CLedgerDoc::OnEntryAdd()
{
    CEntry* pEntry = new CEntry;
    pEntry->m_time = CTime::GetCurrentTime();
    pEntry->m_strChannel.Format(_T("Kanal %d"), (int)(m_entries.GetSize() % 4) + 1);
    pEntry->m_dValue = 1.5 * (m_entries.GetSize() + 1);
    pEntry->m_flags.Add((WORD)m_entries.GetSize());
    m_entries.Add(pEntry);
    m_last[pEntry->m_strChannel] = pEntry->m_dValue;
    m_remarks.AddTail(_T("von Hand"));
    SetModifiedFlag();
    UpdateAllViews(NULL);
}

void CLedgerDoc::OnEntryRemove()
{
    int nLast = (int)m_entries.GetUpperBound();
    delete m_entries[nLast];
    m_entries.RemoveAt(nLast);
    SetModifiedFlag();
    UpdateAllViews(NULL);
}

void CLedgerDoc::OnUpdateEntryRemove(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_entries.GetSize() > 0);
}

/////////////////////////////////////////////////////////////////////////////
// CLedgerView

IMPLEMENT_DYNCREATE(CLedgerView, CScrollView)

BEGIN_MESSAGE_MAP(CLedgerView, CScrollView)
    //{{AFX_MSG_MAP(CLedgerView)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CLedgerView::CLedgerView()
{
}

CLedgerView::~CLedgerView()
{
}

#ifdef _DEBUG
void CLedgerView::AssertValid() const
{
    CScrollView::AssertValid();
}

void CLedgerView::Dump(CDumpContext& dc) const
{
    CScrollView::Dump(dc);
}

CLedgerDoc* CLedgerView::GetDocument() // the other is inline
{
    ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CLedgerDoc)));
    return (CLedgerDoc*)m_pDocument;
}
#endif

static const int nLine = 20;

void CLedgerView::OnInitialUpdate()
{
    CScrollView::OnInitialUpdate();
}

void CLedgerView::OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint)
{
    SetScrollSizes(MM_TEXT, CSize(360, (int)GetDocument()->m_entries.GetSize() * nLine + 8));
    CScrollView::OnUpdate(pSender, lHint, pHint);
}

void CLedgerView::OnDraw(CDC* pDC)
{
    CLedgerDoc* pDoc = GetDocument();
    ASSERT_VALID(pDoc);
    for (int i = 0; i < pDoc->m_entries.GetSize(); i++)
    {
        CEntry* pEntry = pDoc->m_entries[i];
        CString str;
        str.Format(_T("%.1f"), pEntry->m_dValue);
        pDC->TextOut(8, 4 + i * nLine, pEntry->m_time.Format(_T("%d.%m.%Y %H:%M:%S")));
        pDC->TextOut(170, 4 + i * nLine, pEntry->m_strChannel);
        pDC->TextOut(270, 4 + i * nLine, str);
    }
}
