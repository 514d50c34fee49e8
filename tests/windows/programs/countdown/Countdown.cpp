// Countdown.cpp : the application, its dialog and the box about it
//

#include "StdAfx.h"
#include "Countdown.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CCountdownApp

BEGIN_MESSAGE_MAP(CCountdownApp, CWinApp)
    //{{AFX_MSG_MAP(CCountdownApp)
    //}}AFX_MSG
    ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
END_MESSAGE_MAP()

CCountdownApp::CCountdownApp()
{
}

// The application object

CCountdownApp theApp;

BOOL CCountdownApp::InitInstance()
{
    InitCommonControls();
    CWinApp::InitInstance();

    AfxEnableControlContainer();
    SetRegistryKey(_T("Sample Works"));

    CCountdownDlg dlg;
    m_pMainWnd = &dlg;
    INT_PTR nResponse = dlg.DoModal();
    if (nResponse == IDOK)
    {
        // not reached: the Return key starts and stops
    }
    else if (nResponse == IDCANCEL)
    {
    }

    // The dialog was all of the program, so no message loop follows.
    return FALSE;
}

/////////////////////////////////////////////////////////////////////////////
// CAboutDlg: the box about the program

class CAboutDlg : public CDialog
{
public:
    CAboutDlg();

// Dialog Data
    //{{AFX_DATA(CAboutDlg)
    enum { IDD = IDD_ABOUTBOX };
    //}}AFX_DATA

    //{{AFX_VIRTUAL(CAboutDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    //}}AFX_VIRTUAL

// Implementation
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

/////////////////////////////////////////////////////////////////////////////
// CCountdownDlg dialog

CCountdownDlg::CCountdownDlg(CWnd* pParent /*=NULL*/)
    : CDialog(CCountdownDlg::IDD, pParent)
{
    //{{AFX_DATA_INIT(CCountdownDlg)
    m_nMinutes = 0;
    m_bSound = FALSE;
    m_strRest = _T("");
    //}}AFX_DATA_INIT
    m_hIcon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
    m_nTimer = 0;
    m_nRest = 0;
    m_nWhole = 0;
    m_nMinutes = AfxGetApp()->GetProfileInt(_T("Settings"), _T("Minutes"), 3);
    m_bSound = AfxGetApp()->GetProfileInt(_T("Settings"), _T("Sound"), FALSE);
}

void CCountdownDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    //{{AFX_DATA_MAP(CCountdownDlg)
    DDX_Control(pDX, IDC_PROGRESS, m_wndProgress);
    DDX_Control(pDX, IDC_SECONDS, m_wndSeconds);
    DDX_Control(pDX, IDC_SPIN, m_wndSpin);
    DDX_Control(pDX, IDC_START, m_wndStart);
    DDX_Text(pDX, IDC_MINUTES, m_nMinutes);
    DDV_MinMaxUInt(pDX, m_nMinutes, 0, 99);
    DDX_Check(pDX, IDC_SOUND, m_bSound);
    DDX_Text(pDX, IDC_REST, m_strRest);
    //}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CCountdownDlg, CDialog)
    //{{AFX_MSG_MAP(CCountdownDlg)
    ON_WM_SYSCOMMAND()
    ON_WM_PAINT()
    ON_WM_QUERYDRAGICON()
    ON_BN_CLICKED(IDC_START, &CCountdownDlg::OnStart)
    ON_WM_TIMER()
    ON_WM_HSCROLL()
    ON_EN_CHANGE(IDC_MINUTES, &CCountdownDlg::OnChangeMinutes)
    ON_WM_DESTROY()
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

BOOL CCountdownDlg::OnInitDialog()
{
    CDialog::OnInitDialog();

    // The box about the program is reached from the system menu.
    ASSERT((IDM_ABOUTBOX & 0xFFF0) == IDM_ABOUTBOX);
    ASSERT(IDM_ABOUTBOX < 0xF000);

    CMenu* pSysMenu = GetSystemMenu(FALSE);
    if (pSysMenu != NULL)
    {
        CString strAboutMenu;
        strAboutMenu.LoadString(IDS_ABOUTBOX);
        if (!strAboutMenu.IsEmpty())
        {
            pSysMenu->AppendMenu(MF_SEPARATOR);
            pSysMenu->AppendMenu(MF_STRING, IDM_ABOUTBOX, strAboutMenu);
        }
    }

    // A dialog has no icon of its own.
    SetIcon(m_hIcon, TRUE);
    SetIcon(m_hIcon, FALSE);

    m_wndSpin.SetRange(0, 99);
    m_wndSeconds.SetRange(0, 59, TRUE);
    m_wndSeconds.SetTicFreq(10);
    m_wndProgress.SetRange(0, 100);
    OnChangeMinutes();

    return TRUE;
}

void CCountdownDlg::OnSysCommand(UINT nID, LPARAM lParam)
{
    if ((nID & 0xFFF0) == IDM_ABOUTBOX)
    {
        CAboutDlg dlgAbout;
        dlgAbout.DoModal();
    }
    else
    {
        CDialog::OnSysCommand(nID, lParam);
    }
}

void CCountdownDlg::OnPaint()
{
    if (IsIconic())
    {
        CPaintDC dc(this);

        SendMessage(WM_ICONERASEBKGND, (WPARAM) dc.GetSafeHdc(), 0);

        int cxIcon = GetSystemMetrics(SM_CXICON);
        int cyIcon = GetSystemMetrics(SM_CYICON);
        CRect rect;
        GetClientRect(&rect);
        int x = (rect.Width() - cxIcon + 1) / 2;
        int y = (rect.Height() - cyIcon + 1) / 2;

        dc.DrawIcon(x, y, m_hIcon);
    }
    else
    {
        CDialog::OnPaint();
    }
}

// What is dragged while the window is minimised.
HCURSOR CCountdownDlg::OnQueryDragIcon()
{
    return (HCURSOR) m_hIcon;
}

void CCountdownDlg::ShowRest()
{
    m_strRest.Format(_T("%02d:%02d"), m_nRest / 60, m_nRest % 60);
    SetDlgItemText(IDC_REST, m_strRest);
    m_wndProgress.SetPos(m_nWhole != 0 ? (m_nWhole - m_nRest) * 100 / m_nWhole : 0);
}

void CCountdownDlg::Stop()
{
    KillTimer(m_nTimer);
    m_nTimer = 0;
    m_wndStart.SetWindowText(_T("&Start"));
    GetDlgItem(IDC_MINUTES)->EnableWindow(TRUE);
    m_wndSeconds.EnableWindow(TRUE);
}

void CCountdownDlg::OnStart()
{
    if (m_nTimer != 0)
    {
        Stop();
        return;
    }
    if (!UpdateData(TRUE))
        return;
    m_nRest = m_nWhole = m_nMinutes * 60 + m_wndSeconds.GetPos();
    if (m_nWhole == 0)
    {
        MessageBeep(MB_OK);
        return;
    }
    m_wndStart.SetWindowText(_T("&Stop"));
    GetDlgItem(IDC_MINUTES)->EnableWindow(FALSE);
    m_wndSeconds.EnableWindow(FALSE);
    ShowRest();
    m_nTimer = SetTimer(1, 100, NULL);
}

void CCountdownDlg::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == m_nTimer)
    {
        --m_nRest;
        ShowRest();
        if (m_nRest <= 0)
        {
            Stop();
            if (m_bSound)
                MessageBeep(MB_ICONEXCLAMATION);
        }
    }
    CDialog::OnTimer(nIDEvent);
}

void CCountdownDlg::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    CDialog::OnHScroll(nSBCode, nPos, pScrollBar);
    OnChangeMinutes();
}

void CCountdownDlg::OnChangeMinutes()
{
    if (m_wndSeconds.m_hWnd == NULL || m_nTimer != 0)
        return;
    m_nRest = GetDlgItemInt(IDC_MINUTES) * 60 + m_wndSeconds.GetPos();
    m_nWhole = 0;
    ShowRest();
}

void CCountdownDlg::OnDestroy()
{
    CDialog::OnDestroy();
    AfxGetApp()->WriteProfileInt(_T("Settings"), _T("Minutes"), m_nMinutes);
    AfxGetApp()->WriteProfileInt(_T("Settings"), _T("Sound"), m_bSound);
}

void CCountdownDlg::OnCancel()
{
    if (m_nTimer != 0 && AfxMessageBox(IDP_RUNNING, MB_YESNO) != IDYES)
        return;
    CDialog::OnCancel();
}
