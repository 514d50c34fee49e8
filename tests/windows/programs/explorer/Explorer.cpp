// Explorer.cpp : Ordner als Baum, ihr Inhalt als Liste daneben
//

#include "StdAfx.h"
#include "Explorer.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CExplorerApp

BEGIN_MESSAGE_MAP(CExplorerApp, CWinApp)
    //{{AFX_MSG_MAP(CExplorerApp)
    ON_COMMAND(ID_APP_ABOUT, &CExplorerApp::OnAppAbout)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
END_MESSAGE_MAP()

CExplorerApp::CExplorerApp()
{
}

// The application object

CExplorerApp theApp;

BOOL CExplorerApp::InitInstance()
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
        RUNTIME_CLASS(CExplorerDoc),
        RUNTIME_CLASS(CMainFrame),
        RUNTIME_CLASS(CLeftView));
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

void CExplorerApp::OnAppAbout()
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
    if (!m_wndSplitter.CreateStatic(this, 1, 2))
        return FALSE;
    if (!m_wndSplitter.CreateView(0, 0, RUNTIME_CLASS(CLeftView), CSize(220, 100), pContext) ||
        !m_wndSplitter.CreateView(0, 1, RUNTIME_CLASS(CExplorerView), CSize(100, 100), pContext))
    {
        m_wndSplitter.DestroyWindow();
        return FALSE;
    }
    return TRUE;
}

CExplorerView* CMainFrame::GetRightPane()
{
    CWnd* pWnd = m_wndSplitter.GetPane(0, 1);
    CExplorerView* pView = DYNAMIC_DOWNCAST(CExplorerView, pWnd);
    return pView;
}

/////////////////////////////////////////////////////////////////////////////
// CExplorerDoc

IMPLEMENT_DYNCREATE(CExplorerDoc, CDocument)

BEGIN_MESSAGE_MAP(CExplorerDoc, CDocument)
    //{{AFX_MSG_MAP(CExplorerDoc)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CExplorerDoc::CExplorerDoc()
{
}

CExplorerDoc::~CExplorerDoc()
{
}

BOOL CExplorerDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return FALSE;
    TCHAR szFolder[MAX_PATH];
    GetTempPath(MAX_PATH, szFolder);
    m_strRoot = szFolder;
    m_strRoot += _T("Explorer");
    m_strFolder = m_strRoot;
    return TRUE;
}

void CExplorerDoc::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
    {
    }
    else
    {
    }
}

/////////////////////////////////////////////////////////////////////////////
// CLeftView

IMPLEMENT_DYNCREATE(CLeftView, CTreeView)

BEGIN_MESSAGE_MAP(CLeftView, CTreeView)
    //{{AFX_MSG_MAP(CLeftView)
    ON_NOTIFY_REFLECT(TVN_SELCHANGED, &CLeftView::OnSelchanged)
    ON_NOTIFY_REFLECT(TVN_ITEMEXPANDING, &CLeftView::OnItemexpanding)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CLeftView::CLeftView()
{
}

CLeftView::~CLeftView()
{
}

#ifdef _DEBUG
void CLeftView::AssertValid() const
{
    CTreeView::AssertValid();
}

void CLeftView::Dump(CDumpContext& dc) const
{
    CTreeView::Dump(dc);
}

CExplorerDoc* CLeftView::GetDocument() // the other is inline
{
    ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CExplorerDoc)));
    return (CExplorerDoc*)m_pDocument;
}
#endif

BOOL CLeftView::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style |= TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS;
    return CTreeView::PreCreateWindow(cs);
}

void CLeftView::OnInitialUpdate()
{
    CTreeView::OnInitialUpdate();

    CTreeCtrl& tree = GetTreeCtrl();
    if (m_images.m_hImageList == NULL)
    {
        m_images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 1, 1);
        m_images.Add(AfxGetApp()->LoadIcon(IDR_EXPTYPE));
        tree.SetImageList(&m_images, TVSIL_NORMAL);
    }
    tree.DeleteAllItems();
    HTREEITEM hRoot = tree.InsertItem(_T("Ablage"), 0, 0);
    AddFolders(hRoot, GetDocument()->m_strRoot);
    tree.Expand(hRoot, TVE_EXPAND);
    tree.SelectItem(hRoot);
}

void CLeftView::AddFolders(HTREEITEM hParent, const CString& strFolder)
{
    CTreeCtrl& tree = GetTreeCtrl();
    CFileFind finder;
    BOOL bWorking = finder.FindFile(strFolder + _T("\\*.*"));
    while (bWorking)
    {
        bWorking = finder.FindNextFile();
        if (finder.IsDots() || !finder.IsDirectory())
            continue;
        HTREEITEM hItem = tree.InsertItem(finder.GetFileName(), 0, 0, hParent, TVI_SORT);
        // Its own folders are found when it is opened.
        TV_ITEM item;
        item.mask = TVIF_HANDLE | TVIF_CHILDREN;
        item.hItem = hItem;
        item.cChildren = 1;
        tree.SetItem(&item);
    }
}

CString CLeftView::PathOf(HTREEITEM hItem)
{
    CTreeCtrl& tree = GetTreeCtrl();
    CString strPath;
    for (; tree.GetParentItem(hItem) != NULL; hItem = tree.GetParentItem(hItem))
        strPath = _T("\\") + tree.GetItemText(hItem) + strPath;
    return GetDocument()->m_strRoot + strPath;
}

void CLeftView::OnItemexpanding(NMHDR* pNMHDR, LRESULT* pResult)
{
    NM_TREEVIEW* pNMTreeView = (NM_TREEVIEW*)pNMHDR;
    HTREEITEM hItem = pNMTreeView->itemNew.hItem;
    if (pNMTreeView->action == TVE_EXPAND && GetTreeCtrl().GetChildItem(hItem) == NULL)
        AddFolders(hItem, PathOf(hItem));
    *pResult = 0;
}

void CLeftView::OnSelchanged(NMHDR* pNMHDR, LRESULT* pResult)
{
    NM_TREEVIEW* pNMTreeView = (NM_TREEVIEW*)pNMHDR;
    if (pNMTreeView->itemNew.hItem != NULL)
    {
        GetDocument()->m_strFolder = PathOf(pNMTreeView->itemNew.hItem);
        GetDocument()->UpdateAllViews(this);
    }
    *pResult = 0;
}

/////////////////////////////////////////////////////////////////////////////
// CExplorerView

IMPLEMENT_DYNCREATE(CExplorerView, CListView)

BEGIN_MESSAGE_MAP(CExplorerView, CListView)
    //{{AFX_MSG_MAP(CExplorerView)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CExplorerView::CExplorerView()
{
}

CExplorerView::~CExplorerView()
{
}

#ifdef _DEBUG
void CExplorerView::AssertValid() const
{
    CListView::AssertValid();
}

void CExplorerView::Dump(CDumpContext& dc) const
{
    CListView::Dump(dc);
}

CExplorerDoc* CExplorerView::GetDocument() // the other is inline
{
    ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CExplorerDoc)));
    return (CExplorerDoc*)m_pDocument;
}
#endif

BOOL CExplorerView::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style |= LVS_REPORT | LVS_SORTASCENDING;
    return CListView::PreCreateWindow(cs);
}

void CExplorerView::OnInitialUpdate()
{
    CListCtrl& list = GetListCtrl();
    while (list.DeleteColumn(0))
        ;
    list.InsertColumn(0, _T("Name"), LVCFMT_LEFT, 200);
    list.InsertColumn(1, _T("Gr\u00f6\u00dfe"), LVCFMT_RIGHT, 80);
    list.InsertColumn(2, _T("Ge\u00e4ndert"), LVCFMT_LEFT, 130);
    CListView::OnInitialUpdate();
}

void CExplorerView::OnUpdate(CView* /*pSender*/, LPARAM /*lHint*/, CObject* /*pHint*/)
{
    CListCtrl& list = GetListCtrl();
    list.SetRedraw(FALSE);
    list.DeleteAllItems();
    CFileFind finder;
    BOOL bWorking = finder.FindFile(GetDocument()->m_strFolder + _T("\\*.*"));
    while (bWorking)
    {
        bWorking = finder.FindNextFile();
        if (finder.IsDots() || finder.IsDirectory())
            continue;
        int nItem = list.InsertItem(0, finder.GetFileName());
        CString str;
        str.Format(_T("%I64u"), finder.GetLength());
        list.SetItemText(nItem, 1, str);
        CTime time;
        if (finder.GetLastWriteTime(time))
            list.SetItemText(nItem, 2, time.Format(_T("%d.%m.%Y %H:%M")));
    }
    list.SetRedraw(TRUE);
}
