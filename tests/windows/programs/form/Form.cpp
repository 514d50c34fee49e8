// Form.cpp : a form in a window that may be smaller than it, printed on two pages
//

#include "StdAfx.h"
#include "Form.h"
#include <math.h>

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CFormApp

BEGIN_MESSAGE_MAP(CFormApp, CWinApp)
    //{{AFX_MSG_MAP(CFormApp)
    ON_COMMAND(ID_APP_ABOUT, &CFormApp::OnAppAbout)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
    ON_COMMAND(ID_FILE_PRINT_SETUP, &CWinApp::OnFilePrintSetup)
END_MESSAGE_MAP()

CFormApp::CFormApp()
{
}

// The application object

CFormApp theApp;

BOOL CFormApp::InitInstance()
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
        RUNTIME_CLASS(CFormDoc),
        RUNTIME_CLASS(CMainFrame),
        RUNTIME_CLASS(CFormSheetView));
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

void CFormApp::OnAppAbout()
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
// CFormDoc

IMPLEMENT_DYNCREATE(CFormDoc, CDocument)

BEGIN_MESSAGE_MAP(CFormDoc, CDocument)
    //{{AFX_MSG_MAP(CFormDoc)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

CFormDoc::CFormDoc()
{
}

CFormDoc::~CFormDoc()
{
}

BOOL CFormDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return FALSE;
    m_strDevice = _T("");
    m_nKind = 0;
    m_dReference = 0;
    m_dReading = 0;
    m_bPassed = FALSE;
    m_strRemarks = _T("");
    UpdateAllViews(NULL);
    return TRUE;
}

void CFormDoc::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
        ar << m_strDevice << m_nKind << m_dReference << m_dReading << m_bPassed << m_strRemarks;
    else
    {
        ar >> m_strDevice >> m_nKind >> m_dReference >> m_dReading >> m_bPassed >> m_strRemarks;
        UpdateAllViews(NULL);
    }
}

/////////////////////////////////////////////////////////////////////////////
// CFormSheetView

IMPLEMENT_DYNCREATE(CFormSheetView, CFormView)

BEGIN_MESSAGE_MAP(CFormSheetView, CFormView)
    //{{AFX_MSG_MAP(CFormSheetView)
    ON_EN_CHANGE(IDC_DEVICE, &CFormSheetView::OnChange)
    ON_EN_CHANGE(IDC_REFERENCE, &CFormSheetView::OnChange)
    ON_EN_CHANGE(IDC_READING, &CFormSheetView::OnChange)
    ON_EN_CHANGE(IDC_REMARKS, &CFormSheetView::OnChange)
    ON_CBN_SELCHANGE(IDC_KIND, &CFormSheetView::OnChange)
    ON_BN_CLICKED(IDC_PASSED, &CFormSheetView::OnChange)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_FILE_PRINT, &CFormView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_DIRECT, &CFormView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CFormView::OnFilePrintPreview)
END_MESSAGE_MAP()

CFormSheetView::CFormSheetView()
    : CFormView(CFormSheetView::IDD)
{
    //{{AFX_DATA_INIT(CFormSheetView)
    //}}AFX_DATA_INIT
}

CFormSheetView::~CFormSheetView()
{
}

#ifdef _DEBUG
void CFormSheetView::AssertValid() const
{
    CFormView::AssertValid();
}

void CFormSheetView::Dump(CDumpContext& dc) const
{
    CFormView::Dump(dc);
}

CFormDoc* CFormSheetView::GetDocument() // the other is inline
{
    ASSERT(m_pDocument->IsKindOf(RUNTIME_CLASS(CFormDoc)));
    return (CFormDoc*)m_pDocument;
}
#endif

BOOL CFormSheetView::PreCreateWindow(CREATESTRUCT& cs)
{
    return CFormView::PreCreateWindow(cs);
}

void CFormSheetView::DoDataExchange(CDataExchange* pDX)
{
    CFormView::DoDataExchange(pDX);
    CFormDoc* pDoc = GetDocument();
    //{{AFX_DATA_MAP(CFormSheetView)
    DDX_Control(pDX, IDC_KIND, m_wndKind);
    DDX_Control(pDX, IDC_DATE, m_wndDate);
    //}}AFX_DATA_MAP
    DDX_Text(pDX, IDC_DEVICE, pDoc->m_strDevice);
    DDV_MaxChars(pDX, pDoc->m_strDevice, 40);
    DDX_CBIndex(pDX, IDC_KIND, pDoc->m_nKind);
    DDX_Text(pDX, IDC_REFERENCE, pDoc->m_dReference);
    DDX_Text(pDX, IDC_READING, pDoc->m_dReading);
    DDX_Check(pDX, IDC_PASSED, pDoc->m_bPassed);
    DDX_Text(pDX, IDC_REMARKS, pDoc->m_strRemarks);
}

void CFormSheetView::OnInitialUpdate()
{
    CFormView::OnInitialUpdate();
    if (m_wndKind.GetCount() == 0)
    {
        m_wndKind.AddString(_T("Microphone"));
        m_wndKind.AddString(_T("Thermometer"));
        m_wndKind.AddString(_T("Force gauge"));
        UpdateData(FALSE);
    }
    GetParentFrame()->RecalcLayout();
    ResizeParentToFit(FALSE);
}

void CFormSheetView::OnUpdate(CView* /*pSender*/, LPARAM /*lHint*/, CObject* /*pHint*/)
{
    UpdateData(FALSE);
}

void CFormSheetView::OnChange()
{
    CFormDoc* pDoc = GetDocument();
    CString str;
    GetDlgItemText(IDC_DEVICE, pDoc->m_strDevice);
    GetDlgItemText(IDC_REMARKS, pDoc->m_strRemarks);
    GetDlgItemText(IDC_REFERENCE, str);
    pDoc->m_dReference = _tstof(str);
    GetDlgItemText(IDC_READING, str);
    pDoc->m_dReading = _tstof(str);
    pDoc->m_nKind = m_wndKind.GetCurSel();
    pDoc->m_bPassed = IsDlgButtonChecked(IDC_PASSED);
    str.Format(_T("Deviation: %.2f"), pDoc->m_dReading - pDoc->m_dReference);
    SetDlgItemText(IDC_DEVIATION, str);
    pDoc->SetModifiedFlag();
}

BOOL CFormSheetView::OnPreparePrinting(CPrintInfo* pInfo)
{
    pInfo->SetMaxPage(2);
    return DoPreparePrinting(pInfo);
}

void CFormSheetView::OnBeginPrinting(CDC* pDC, CPrintInfo* /*pInfo*/)
{
    m_fontPrinter.CreateFont(-MulDiv(12, pDC->GetDeviceCaps(LOGPIXELSY), 72), 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE,
        DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, _T("Tahoma"));
}

void CFormSheetView::OnEndPrinting(CDC* /*pDC*/, CPrintInfo* /*pInfo*/)
{
    m_fontPrinter.DeleteObject();
}

void CFormSheetView::OnPrint(CDC* pDC, CPrintInfo* pInfo)
{
    CFormDoc* pDoc = GetDocument();
    CFont* pOldFont = pDC->SelectObject(&m_fontPrinter);
    CRect rect = pInfo->m_rectDraw;
    rect.DeflateRect(rect.Width() / 10, rect.Height() / 10);
    CString str;
    if (pInfo->m_nCurPage == 1)
    {
        str.Format(_T("Calibration of %s\n\nReference\t%.2f\nReading\t%.2f\n\n%s"), (LPCTSTR)pDoc->m_strDevice,
            pDoc->m_dReference, pDoc->m_dReading, pDoc->m_bPassed ? _T("Passed") : _T("Not passed"));
        CPen pen(PS_SOLID, 3, RGB(0, 70, 150));
        CPen* pOldPen = pDC->SelectObject(&pen);
        pDC->SelectStockObject(NULL_BRUSH);
        pDC->Rectangle(rect);
        pDC->SelectObject(pOldPen);
        rect.DeflateRect(rect.Width() / 20, rect.Width() / 20);
    }
    else
        str = _T("Remarks\n\n") + pDoc->m_strRemarks;
    pDC->DrawText(str, rect, DT_LEFT | DT_WORDBREAK | DT_EXPANDTABS);
    pDC->SelectObject(pOldFont);
}
