// A program whose main window is a dialog: data exchange and validation, notifications of controls, an entry in the
// system menu that opens a second dialog.

#include <afxwin.h>

#include <vector>

#include "../SelfTest.h"
#include "resource.h"

CSelfTest theSelfTest;

class CAboutDialog : public CDialog
{
public:
    CAboutDialog() : CDialog(IDD_ABOUT) {}

protected:
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (CSelfTest::IsWanted())
            SetTimer(self_test_timer, 10, nullptr); // a dialog shows when its loop is idle for the first time
        return TRUE;
    }

    void OnTimer(UINT_PTR nIDEvent)
    {
        if (nIDEvent != self_test_timer)
        {
            CDialog::OnTimer(nIDEvent);
            return;
        }
        // The dialog is shown when its loop is idle for the first time.
        constexpr int most_ticks = 500;
        if (!IsWindowVisible() && ++m_ticks < most_ticks)
            return;
        KillTimer(self_test_timer);
        CString version;
        GetDlgItemText(IDC_VERSION, version);
        SELFTEST_CHECK(version == _T("Version 1"));
        SELFTEST_CHECK(IsWindowVisible());
        SELFTEST_CHECK(!AfxGetMainWnd()->IsWindowEnabled());
        SendMessage(WM_COMMAND, IDOK);
    }

private:
    static constexpr UINT_PTR self_test_timer = 1;
    int m_ticks = 0;

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CAboutDialog, CDialog)
    ON_WM_TIMER()
END_MESSAGE_MAP()

class CConverterDialog : public CDialog
{
public:
    explicit CConverterDialog(CWnd * parent = nullptr) : CDialog(IDD_CONVERTER, parent) {}

protected:
    void DoDataExchange(CDataExchange * pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override {} // the Return key converts; it does not close the window

    void OnConvert();
    void OnUnit(UINT nID);
    void OnChangeInput() { m_result.SetWindowText(_T("")); }
    void OnSysCommand(UINT nID, LPARAM lParam);
    HBRUSH OnCtlColor(CDC * pDC, CWnd * pWnd, UINT nCtlColor);
    LRESULT OnSelfTest(WPARAM wParam, LPARAM lParam);

private:
    static constexpr double absolute_zero = -273.15;

    double m_celsius = 20;
    int m_unit = 0; // 0: Fahrenheit, 1: Kelvin
    BOOL m_round = FALSE;
    CStatic m_result;
    CStatic m_note;

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CConverterDialog, CDialog)
    ON_BN_CLICKED(IDC_CONVERT, &CConverterDialog::OnConvert)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_TO_FAHRENHEIT, IDC_TO_KELVIN, &CConverterDialog::OnUnit)
    ON_EN_CHANGE(IDC_INPUT, &CConverterDialog::OnChangeInput)
    ON_WM_SYSCOMMAND()
    ON_WM_CTLCOLOR()
    ON_MESSAGE(CSelfTest::message, &CConverterDialog::OnSelfTest)
END_MESSAGE_MAP()

void CConverterDialog::DoDataExchange(CDataExchange * pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_RESULT, m_result);
    DDX_Control(pDX, IDC_UNIT_NOTE, m_note);
    DDX_Text(pDX, IDC_INPUT, m_celsius);
    DDV_MinMaxDouble(pDX, m_celsius, absolute_zero, 1e6);
    DDX_Radio(pDX, IDC_TO_FAHRENHEIT, m_unit);
    DDX_Check(pDX, IDC_ROUND, m_round);
}

BOOL CConverterDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    CString text;
    VERIFY(text.LoadString(IDS_ABOUT_MENU));
    CMenu * const systemMenu = GetSystemMenu(FALSE);
    systemMenu->AppendMenu(MF_SEPARATOR);
    systemMenu->AppendMenu(MF_STRING, IDM_ABOUT, text);
    OnUnit(IDC_TO_FAHRENHEIT);
    if (CSelfTest::IsWanted())
        PostMessage(CSelfTest::message);
    return TRUE;
}

void CConverterDialog::OnConvert()
{
    if (!UpdateData(TRUE))
        return;
    double const value = m_unit == 0 ? m_celsius * 9 / 5 + 32 : m_celsius - absolute_zero;
    CString text;
    text.Format(m_round ? _T("%.0f") : _T("%.2f"), value);
    m_result.SetWindowText(text);
}

void CConverterDialog::OnUnit(UINT nID)
{
    m_note.SetWindowText(nID == IDC_TO_KELVIN ? _T("K") : _T("F"));
}

void CConverterDialog::OnSysCommand(UINT nID, LPARAM lParam)
{
    if ((nID & 0xFFF0) == IDM_ABOUT)
    {
        CAboutDialog about;
        INT_PTR const result = about.DoModal();
        SELFTEST_CHECK(result == IDOK);
        return;
    }
    CDialog::OnSysCommand(nID, lParam);
}

HBRUSH CConverterDialog::OnCtlColor(CDC * pDC, CWnd * pWnd, UINT nCtlColor)
{
    HBRUSH const brush = CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    if (pWnd->GetDlgCtrlID() == IDC_RESULT)
        pDC->SetTextColor(RGB(0, 0, 160));
    return brush;
}

class CConverterApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        CConverterDialog dialog;
        m_pMainWnd = &dialog;
        INT_PTR const result = dialog.DoModal();
        SELFTEST_CHECK(result == IDCANCEL);
        return FALSE; // the dialog was all there is, so no message loop follows
    }

    int ExitInstance() override
    {
        int const result = CWinApp::ExitInstance();
        return CSelfTest::IsWanted() ? theSelfTest.ExitCode() : result;
    }

    int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) override
    {
        if (!CSelfTest::IsWanted())
            return CWinApp::DoMessageBox(lpszPrompt, nType, nIDPrompt);
        m_prompts.push_back(lpszPrompt);
        return IDOK;
    }

    std::vector<CString> m_prompts;
};

CConverterApp theApp;

LRESULT CConverterDialog::OnSelfTest(WPARAM, LPARAM)
{
    auto const convert = [this](LPCTSTR input) {
        SetDlgItemText(IDC_INPUT, input);
        GetDlgItem(IDC_CONVERT)->SendMessage(BM_CLICK);
        CString text;
        m_result.GetWindowText(text);
        return text;
    };

    CString input;
    GetDlgItemText(IDC_INPUT, input);
    SELFTEST_CHECK(input == _T("20"));
    SELFTEST_CHECK(GetCheckedRadioButton(IDC_TO_FAHRENHEIT, IDC_TO_KELVIN) == IDC_TO_FAHRENHEIT);
    SELFTEST_CHECK(convert(_T("20")) == _T("68.00"));
    SELFTEST_CHECK(convert(_T("-40")) == _T("-40.00"));

    GetDlgItem(IDC_TO_KELVIN)->SendMessage(BM_CLICK);
    CString note;
    m_note.GetWindowText(note);
    SELFTEST_CHECK(note == _T("K"));
    SELFTEST_CHECK(convert(_T("0.5")) == _T("273.65"));
    CheckDlgButton(IDC_ROUND, BST_CHECKED);
    SELFTEST_CHECK(convert(_T("0.6")) == _T("274"));

    SELFTEST_CHECK(theApp.m_prompts.empty());
    SELFTEST_CHECK(convert(_T("warm")).IsEmpty());
    SELFTEST_CHECK(theApp.m_prompts.size() == 1 && theApp.m_prompts[0] == _T("Please enter a number."));
    SELFTEST_CHECK(convert(_T("-300")).IsEmpty());
    SELFTEST_CHECK(theApp.m_prompts.size() == 2 &&
                   theApp.m_prompts[1] == _T("Please enter a number between -273.15 and 1000000."));

    SendMessage(WM_COMMAND, IDOK);
    SELFTEST_CHECK(IsWindowVisible()); // our OnOK keeps the window
    SendMessage(WM_SYSCOMMAND, IDM_ABOUT);
    SELFTEST_CHECK(IsWindowEnabled());

    theSelfTest.Finish();
    SendMessage(WM_COMMAND, IDCANCEL);
    return 0;
}
