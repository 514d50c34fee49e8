// Register.cpp : a list of measuring instruments in four views, sorted by its columns
//

#include "StdAfx.h"
#include "Register.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CRegisterApp

BEGIN_MESSAGE_MAP(CRegisterApp, CWinApp)
    //{{AFX_MSG_MAP(CRegisterApp)
    ON_COMMAND(ID_APP_ABOUT, &CRegisterApp::OnAppAbout)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
END_MESSAGE_MAP()

CRegisterApp::CRegisterApp()
{
}

// The application object

CRegisterApp theApp;

BOOL CRegisterApp::InitInstance()
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
        RUNTIME_CLASS(CRegisterDoc),
        RUNTIME_CLASS(CMainFrame),
        RUNTIME_CLASS(CRegisterView));
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

void CRegisterApp::OnAppAbout()
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
// CRegisterDoc

IMPLEMENT_DYNCREATE(CRegisterDoc, CDocument)

BEGIN_MESSAGE_MAP(CRegisterDoc, CDocument)
    //{{AFX_MSG_MAP(CRegisterDoc)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CRegisterDoc::CRegisterDoc()
{
}

CRegisterDoc::~CRegisterDoc()
{
}

BOOL CRegisterDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return FALSE;
    return TRUE;
}

void CRegisterDoc::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
    {
    }
    else
    {
    }
}

/////////////////////////////////////////////////////////////////////////////
// CRegisterView

IMPLEMENT_DYNCREATE(CRegisterView, CListView)

BEGIN_MESSAGE_MAP(CRegisterView, CListView)
    //{{AFX_MSG_MAP(CRegisterView)
    ON_NOTIFY_REFLECT(LVN_COLUMNCLICK, &CRegisterView::OnColumnclick)
    ON_NOTIFY_REFLECT(LVN_ITEMCHANGED, &CRegisterView::OnItemchanged)
    ON_COMMAND_RANGE(ID_VIEW_SMALLICON, ID_VIEW_DETAILS, &CRegisterView::OnViewStyle)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_SMALLICON, ID_VIEW_DETAILS, &CRegisterView::OnUpdateViewStyle)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CRegisterView::CRegisterView()
{
    m_nSortColumn = 0;
    m_bAscending = TRUE;
}

CRegisterView::~CRegisterView()
{
}

#ifdef _DEBUG
void CRegisterView::AssertValid() const
{
    CListView::AssertValid();
}

void CRegisterView::Dump(CDumpContext& dc) const
{
    CListView::Dump(dc);
}

CRegisterDoc* CRegisterView::GetDocument() // the other is inline
{
    ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CRegisterDoc)));
    return (CRegisterDoc*)m_pDocument;
}
#endif

BOOL CRegisterView::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style |= LVS_REPORT | LVS_SHOWSELALWAYS;
    return CListView::PreCreateWindow(cs);
}

static const LPCTSTR rows[][3] =
{
    { _T("Microphone 1"), _T("94.0"), _T("2024-03-01") },
    { _T("Accelerometer"), _T("9.81"), _T("2023-11-20") },
    { _T("Thermometer"), _T("21.5"), _T("2024-01-15") },
    { _T("Force gauge"), _T("450.0"), _T("2022-07-08") },
    { _T("Microphone 2"), _T("93.8"), _T("2024-03-02") },
};

void CRegisterView::OnInitialUpdate()
{
    CListView::OnInitialUpdate();

    CListCtrl& list = GetListCtrl();
    list.DeleteAllItems();
    while (list.DeleteColumn(0))
        ;
    list.InsertColumn(0, _T("Instrument"), LVCFMT_LEFT, 160);
    list.InsertColumn(1, _T("Value"), LVCFMT_RIGHT, 80);
    list.InsertColumn(2, _T("Calibrated"), LVCFMT_LEFT, 120);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    for (int i = 0; i < (int)(sizeof(rows) / sizeof(rows[0])); i++)
    {
        int nItem = list.InsertItem(i, rows[i][0]);
        list.SetItemText(nItem, 1, rows[i][1]);
        list.SetItemText(nItem, 2, rows[i][2]);
        list.SetItemData(nItem, i);
    }
}

static int CALLBACK CompareRows(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort)
{
    const CRegisterView* pView = (const CRegisterView*)lParamSort;
    LPCTSTR psz1 = rows[lParam1][pView->m_nSortColumn];
    LPCTSTR psz2 = rows[lParam2][pView->m_nSortColumn];
    int nResult;
    if (pView->m_nSortColumn == 1)
    {
        double d1 = _tstof(psz1);
        double d2 = _tstof(psz2);
        nResult = d1 < d2 ? -1 : d1 > d2;
    }
    else
        nResult = _tcscmp(psz1, psz2);
    return pView->m_bAscending ? nResult : -nResult;
}

void CRegisterView::OnColumnclick(NMHDR* pNMHDR, LRESULT* pResult)
{
    NM_LISTVIEW* pNMListView = (NM_LISTVIEW*)pNMHDR;
    m_bAscending = pNMListView->iSubItem != m_nSortColumn || !m_bAscending;
    m_nSortColumn = pNMListView->iSubItem;
    GetListCtrl().SortItems(CompareRows, (LPARAM)this);
    *pResult = 0;
}

void CRegisterView::OnItemchanged(NMHDR* pNMHDR, LRESULT* pResult)
{
    NM_LISTVIEW* pNMListView = (NM_LISTVIEW*)pNMHDR;
    if ((pNMListView->uNewState & LVIS_SELECTED) != 0)
    {
        CString strMessage;
        strMessage.Format(_T("%d selected"), GetListCtrl().GetSelectedCount());
        CFrameWnd* pFrame = GetParentFrame();
        if (pFrame != NULL && pFrame->GetMessageBar() != NULL)
            pFrame->SetMessageText(strMessage);
    }
    *pResult = 0;
}

void CRegisterView::OnViewStyle(UINT nCommandID)
{
    static const DWORD styles[] = { LVS_SMALLICON, LVS_ICON, LVS_LIST, LVS_REPORT };
    ModifyStyle(LVS_TYPEMASK, styles[nCommandID - ID_VIEW_SMALLICON]);
}

void CRegisterView::OnUpdateViewStyle(CCmdUI* pCmdUI)
{
    static const DWORD styles[] = { LVS_SMALLICON, LVS_ICON, LVS_LIST, LVS_REPORT };
    pCmdUI->SetRadio((GetStyle() & LVS_TYPEMASK) == styles[pCmdUI->m_nID - ID_VIEW_SMALLICON]);
}
