// Options.cpp : a program that is a property sheet; a wizard opens from it
//

#include "StdAfx.h"
#include "Options.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// COptionsApp

BEGIN_MESSAGE_MAP(COptionsApp, CWinApp)
    //{{AFX_MSG_MAP(COptionsApp)
    //}}AFX_MSG_MAP
    ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
END_MESSAGE_MAP()

COptionsApp::COptionsApp()
{
}

// The application object

COptionsApp theApp;

BOOL COptionsApp::InitInstance()
{
    AfxEnableControlContainer();
    SetRegistryKey(_T("Sample Works"));

    COptionsSheet sheet(IDS_CAPTION);
    m_pMainWnd = &sheet;
    sheet.m_pageGeneral.m_strName = GetProfileString(_T("Options"), _T("Name"), _T("nobody"));
    sheet.m_pageChannels.m_nCount = GetProfileInt(_T("Options"), _T("Count"), 2);
    INT_PTR nResponse = sheet.DoModal();
    if (nResponse == IDOK)
        WriteProfileInt(_T("Options"), _T("Count"), sheet.m_pageChannels.m_nCount);

    // The sheet was all of the program, so no message loop follows.
    return FALSE;
}

/////////////////////////////////////////////////////////////////////////////
// CGeneralPage

IMPLEMENT_DYNCREATE(CGeneralPage, CPropertyPage)

CGeneralPage::CGeneralPage() : CPropertyPage(CGeneralPage::IDD)
{
    //{{AFX_DATA_INIT(CGeneralPage)
    m_strName = _T("");
    m_strFolder = _T("");
    //}}AFX_DATA_INIT
}

CGeneralPage::~CGeneralPage()
{
}

void CGeneralPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CGeneralPage)
    DDX_Text(pDX, IDC_NAME, m_strName);
    DDX_Text(pDX, IDC_FOLDER, m_strFolder);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CGeneralPage, CPropertyPage)
    //{{AFX_MSG_MAP(CGeneralPage)
    ON_EN_CHANGE(IDC_NAME, &CGeneralPage::OnChange)
    ON_EN_CHANGE(IDC_FOLDER, &CGeneralPage::OnChange)
    ON_BN_CLICKED(IDC_WIZARD, &CGeneralPage::OnWizard)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

void CGeneralPage::OnChange()
{
    SetModified();
}

BOOL CGeneralPage::OnKillActive()
{
    if (!CPropertyPage::OnKillActive())
        return FALSE;
    if (m_strName.IsEmpty())
    {
        AfxMessageBox(IDP_NO_NAME);
        return FALSE;
    }
    return TRUE;
}

BOOL CGeneralPage::OnApply()
{
    theApp.WriteProfileString(_T("Options"), _T("Name"), m_strName);
    return CPropertyPage::OnApply();
}

void CGeneralPage::OnWizard()
{
    CWelcomePage pageWelcome;
    CSummaryPage pageSummary;
    pageWelcome.m_strName = m_strName;
    pageSummary.m_pWelcome = &pageWelcome;
    CPropertySheet sheet(_T("Wizard"), this);
    sheet.AddPage(&pageWelcome);
    sheet.AddPage(&pageSummary);
    sheet.SetWizardMode();
    if (sheet.DoModal() == ID_WIZFINISH)
    {
        SetDlgItemText(IDC_NAME, pageWelcome.m_strName);
        SetModified();
    }
}

/////////////////////////////////////////////////////////////////////////////
// CChannelsPage

IMPLEMENT_DYNCREATE(CChannelsPage, CPropertyPage)

CChannelsPage::CChannelsPage() : CPropertyPage(CChannelsPage::IDD)
{
    //{{AFX_DATA_INIT(CChannelsPage)
    m_nCount = 0;
    //}}AFX_DATA_INIT
}

CChannelsPage::~CChannelsPage()
{
}

void CChannelsPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CChannelsPage)
    DDX_Control(pDX, IDC_LIST, m_wndList);
    DDX_Control(pDX, IDC_SPIN, m_wndSpin);
    DDX_Text(pDX, IDC_COUNT, m_nCount);
    DDV_MinMaxInt(pDX, m_nCount, 1, 16);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CChannelsPage, CPropertyPage)
    //{{AFX_MSG_MAP(CChannelsPage)
    ON_EN_CHANGE(IDC_COUNT, &CChannelsPage::OnChangeCount)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

BOOL CChannelsPage::OnInitDialog()
{
    CPropertyPage::OnInitDialog();
    m_wndSpin.SetRange(1, 16);
    return TRUE;
}

BOOL CChannelsPage::OnSetActive()
{
    if (!CPropertyPage::OnSetActive())
        return FALSE;
    OnChangeCount();
    SetModified(FALSE);
    return TRUE;
}

void CChannelsPage::OnChangeCount()
{
    if (m_wndList.m_hWnd == NULL)
        return;
    int nCount = GetDlgItemInt(IDC_COUNT);
    m_wndList.ResetContent();
    for (int i = 1; i <= nCount && i <= 16; i++)
    {
        CString str;
        str.Format(_T("Channel %d"), i);
        m_wndList.AddString(str);
    }
    SetModified();
}

/////////////////////////////////////////////////////////////////////////////
// CColoursPage

IMPLEMENT_DYNCREATE(CColoursPage, CPropertyPage)

CColoursPage::CColoursPage() : CPropertyPage(CColoursPage::IDD)
{
    //{{AFX_DATA_INIT(CColoursPage)
    m_nScheme = 0;
    m_nLevel = 50;
    //}}AFX_DATA_INIT
}

CColoursPage::~CColoursPage()
{
}

void CColoursPage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CColoursPage)
    DDX_Radio(pDX, IDC_LIGHT, m_nScheme);
    DDX_Slider(pDX, IDC_LEVEL, m_nLevel);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CColoursPage, CPropertyPage)
    //{{AFX_MSG_MAP(CColoursPage)
    ON_BN_CLICKED(IDC_LIGHT, &CColoursPage::OnScheme)
    ON_BN_CLICKED(IDC_DARK, &CColoursPage::OnScheme)
    ON_WM_HSCROLL()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

void CColoursPage::OnScheme()
{
    SetModified();
}

void CColoursPage::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    SetModified();
    CPropertyPage::OnHScroll(nSBCode, nPos, pScrollBar);
}

/////////////////////////////////////////////////////////////////////////////
// COptionsSheet

IMPLEMENT_DYNAMIC(COptionsSheet, CPropertySheet)

COptionsSheet::COptionsSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage)
    : CPropertySheet(nIDCaption, pParentWnd, iSelectPage)
{
    AddPage(&m_pageGeneral);
    AddPage(&m_pageChannels);
    AddPage(&m_pageColours);
}

COptionsSheet::~COptionsSheet()
{
}

BEGIN_MESSAGE_MAP(COptionsSheet, CPropertySheet)
    //{{AFX_MSG_MAP(COptionsSheet)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

BOOL COptionsSheet::OnInitDialog()
{
    BOOL bResult = CPropertySheet::OnInitDialog();
    HICON hIcon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
    SetIcon(hIcon, TRUE);
    SetIcon(hIcon, FALSE);
    return bResult;
}

/////////////////////////////////////////////////////////////////////////////
// CWelcomePage

IMPLEMENT_DYNCREATE(CWelcomePage, CPropertyPage)

CWelcomePage::CWelcomePage() : CPropertyPage(CWelcomePage::IDD)
{
    //{{AFX_DATA_INIT(CWelcomePage)
    m_strName = _T("");
    //}}AFX_DATA_INIT
}

void CWelcomePage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CWelcomePage)
    DDX_Text(pDX, IDC_NAME, m_strName);
    //}}AFX_DATA_MAP
}

BOOL CWelcomePage::OnSetActive()
{
    ((CPropertySheet*)GetParent())->SetWizardButtons(PSWIZB_NEXT);
    return CPropertyPage::OnSetActive();
}

LRESULT CWelcomePage::OnWizardNext()
{
    UpdateData(TRUE);
    if (m_strName.IsEmpty())
        return -1; // stays here
    return CPropertyPage::OnWizardNext();
}

/////////////////////////////////////////////////////////////////////////////
// CSummaryPage

IMPLEMENT_DYNCREATE(CSummaryPage, CPropertyPage)

CSummaryPage::CSummaryPage() : CPropertyPage(CSummaryPage::IDD)
{
    m_pWelcome = NULL;
}

BOOL CSummaryPage::OnSetActive()
{
    ((CPropertySheet*)GetParent())->SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
    SetDlgItemText(IDC_TEXT, _T("The name is ") + m_pWelcome->m_strName + _T("."));
    return CPropertyPage::OnSetActive();
}

BOOL CSummaryPage::OnWizardFinish()
{
    return CPropertyPage::OnWizardFinish();
}
