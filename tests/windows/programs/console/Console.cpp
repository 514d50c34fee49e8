// Console.cpp : bars on all sides: tools, channels, a dialog, bands, a status bar with panes of its own
//

#include "StdAfx.h"
#include "Console.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CConsoleApp

BEGIN_MESSAGE_MAP(CConsoleApp, CWinApp)
    //{{AFX_MSG_MAP(CConsoleApp)
    ON_COMMAND(ID_APP_ABOUT, &CConsoleApp::OnAppAbout)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
END_MESSAGE_MAP()

CConsoleApp::CConsoleApp()
{
}

// The application object

CConsoleApp theApp;

BOOL CConsoleApp::InitInstance()
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
        RUNTIME_CLASS(CConsoleDoc),
        RUNTIME_CLASS(CMainFrame),
        RUNTIME_CLASS(CConsoleView));
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

void CConsoleApp::OnAppAbout()
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
    ON_COMMAND(ID_RUN_START, &CMainFrame::OnRunStart)
    ON_COMMAND(ID_RUN_STOP, &CMainFrame::OnRunStop)
    ON_UPDATE_COMMAND_UI(ID_RUN_START, &CMainFrame::OnUpdateRunStart)
    ON_UPDATE_COMMAND_UI(ID_RUN_STOP, &CMainFrame::OnUpdateRunStop)
    ON_WM_TIMER()
    ON_COMMAND(ID_TARGET_SET, &CMainFrame::OnTargetSet)
    ON_UPDATE_COMMAND_UI(ID_TARGET_SET, &CMainFrame::OnUpdateTargetSet)
    ON_COMMAND_EX(ID_VIEW_CHANNELS, &CMainFrame::OnViewChannels)
    ON_UPDATE_COMMAND_UI(ID_VIEW_CHANNELS, &CMainFrame::OnUpdateViewChannels)
    ON_COMMAND_RANGE(ID_CHANNEL_1, ID_CHANNEL_4, &CMainFrame::OnChannel)
    ON_UPDATE_COMMAND_UI_RANGE(ID_CHANNEL_1, ID_CHANNEL_4, &CMainFrame::OnUpdateChannel)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_RUN, &CMainFrame::OnUpdateIndicatorRun)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_TIME, &CMainFrame::OnUpdateIndicatorTime)
    ON_WM_CLOSE()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

static UINT indicators[] =
{
    ID_SEPARATOR,
    ID_INDICATOR_RUN,
    ID_INDICATOR_TIME,
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

    m_nSeconds = 0;
    m_bRuns = FALSE;
    for (int i = 0; i < 4; i++)
        m_bChannel[i] = i == 0;

    if (!m_wndChannels.CreateEx(this, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_LEFT
        | CBRS_TOOLTIPS | CBRS_FLYBY, CRect(0, 0, 0, 0), AFX_IDW_CONTROLBAR_FIRST + 40) ||
        !m_wndChannels.LoadToolBar(IDR_CHANNELS))
        return -1;
    m_wndChannels.SetWindowText(_T("Channels"));
    for (int i = 0; i < 4; i++)
        m_wndChannels.SetButtonStyle(i, TBBS_CHECKBOX);
    m_wndChannels.EnableDocking(CBRS_ALIGN_ANY);
    DockControlBar(&m_wndChannels, AFX_IDW_DOCKBAR_LEFT);

    if (!m_wndTarget.Create(this, IDD_TARGET, CBRS_BOTTOM | CBRS_TOOLTIPS | CBRS_FLYBY, IDD_TARGET))
        return -1;
    CComboBox* pRate = (CComboBox*)m_wndTarget.GetDlgItem(IDC_RATE);
    pRate->AddString(_T("8 kHz"));
    pRate->AddString(_T("48 kHz"));
    pRate->SetCurSel(1);

    m_wndStatusBar.SetPaneInfo(1, ID_INDICATOR_RUN, SBPS_NORMAL, 40);
    LoadBarState(_T("Bars"));

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

void CMainFrame::OnClose()
{
    SaveBarState(_T("Bars"));
    CFrameWnd::OnClose();
}

void CMainFrame::OnRunStart()
{
    m_bRuns = TRUE;
    m_nSeconds = 0;
    SetTimer(1, 50, NULL);
    ((CConsoleDoc*)GetActiveDocument())->Log(_T("started"));
}

void CMainFrame::OnRunStop()
{
    m_bRuns = FALSE;
    KillTimer(1);
    ((CConsoleDoc*)GetActiveDocument())->Log(_T("stopped"));
}

void CMainFrame::OnUpdateRunStart(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(!m_bRuns);
}

void CMainFrame::OnUpdateRunStop(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_bRuns);
}

void CMainFrame::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == 1)
        m_nSeconds++;
    CFrameWnd::OnTimer(nIDEvent);
}

void CMainFrame::OnTargetSet()
{
    CString str;
    m_wndTarget.GetDlgItemText(IDC_TARGET, str);
    ((CConsoleDoc*)GetActiveDocument())->Log(_T("target ") + str);
}

void CMainFrame::OnUpdateTargetSet(CCmdUI* pCmdUI)
{
    CWnd* pEdit = m_wndTarget.GetDlgItem(IDC_TARGET);
    pCmdUI->Enable(pEdit != NULL && pEdit->GetWindowTextLength() > 0);
}

BOOL CMainFrame::OnViewChannels(UINT /*nID*/)
{
    ShowControlBar(&m_wndChannels, !m_wndChannels.IsWindowVisible(), FALSE);
    return TRUE;
}

void CMainFrame::OnUpdateViewChannels(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(m_wndChannels.IsWindowVisible());
}

void CMainFrame::OnChannel(UINT nID)
{
    BOOL& bChannel = m_bChannel[nID - ID_CHANNEL_1];
    bChannel = !bChannel;
}

void CMainFrame::OnUpdateChannel(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(m_bChannel[pCmdUI->m_nID - ID_CHANNEL_1]);
}

void CMainFrame::OnUpdateIndicatorRun(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_bRuns);
}

void CMainFrame::OnUpdateIndicatorTime(CCmdUI* pCmdUI)
{
    CString str;
    str.Format(_T("%03u s"), m_nSeconds);
    pCmdUI->SetText(str);
    pCmdUI->Enable();
}

/////////////////////////////////////////////////////////////////////////////
// CConsoleDoc

IMPLEMENT_DYNCREATE(CConsoleDoc, CDocument)

BEGIN_MESSAGE_MAP(CConsoleDoc, CDocument)
    //{{AFX_MSG_MAP(CConsoleDoc)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CConsoleDoc::CConsoleDoc()
{
}

CConsoleDoc::~CConsoleDoc()
{
}

BOOL CConsoleDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return FALSE;
    return TRUE;
}

void CConsoleDoc::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
    {
    }
    else
    {
    }
}

void CConsoleDoc::Log(LPCTSTR lpszLine)
{
    m_strLog += lpszLine;
    m_strLog += _T("\n");
    UpdateAllViews(NULL);
}

/////////////////////////////////////////////////////////////////////////////
// CConsoleView

IMPLEMENT_DYNCREATE(CConsoleView, CView)

BEGIN_MESSAGE_MAP(CConsoleView, CView)
    //{{AFX_MSG_MAP(CConsoleView)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CConsoleView::CConsoleView()
{
}

CConsoleView::~CConsoleView()
{
}

#ifdef _DEBUG
void CConsoleView::AssertValid() const
{
    CView::AssertValid();
}

void CConsoleView::Dump(CDumpContext& dc) const
{
    CView::Dump(dc);
}

CConsoleDoc* CConsoleView::GetDocument() // the other is inline
{
    ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CConsoleDoc)));
    return (CConsoleDoc*)m_pDocument;
}
#endif

void CConsoleView::OnDraw(CDC* pDC)
{
    CConsoleDoc* pDoc = GetDocument();
    ASSERT_VALID(pDoc);
    CRect rect;
    GetClientRect(&rect);
    rect.DeflateRect(8, 8);
    pDC->DrawText(pDoc->m_strLog, rect, DT_LEFT | DT_EXPANDTABS);
}
