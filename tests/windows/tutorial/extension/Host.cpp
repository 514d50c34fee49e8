// A program that uses an extension module: its classes directly and by name, its resources through the common search.

#include <afxwin.h>

#include <memory>

#include "../SelfTest.h"
#include "Shapes.h"

CSelfTest theSelfTest;

/// The module's dialog, driven by the script.
class CDrivenSizeDialog : public CSizeDialog
{
public:
    using CSizeDialog::CSizeDialog;

protected:
    BOOL OnInitDialog() override
    {
        CSizeDialog::OnInitDialog();
        CString title;
        GetWindowText(title);
        SELFTEST_CHECK(title == _T("Size"));
        SELFTEST_CHECK(GetDlgItemInt(IDC_SHAPES_SIZE) == 5);
        SetDlgItemText(IDC_SHAPES_SIZE, _T("42"));
        PostMessage(WM_COMMAND, IDOK);
        return TRUE;
    }
};

class CHostWindow : public CWnd
{
public:
    BOOL CreateMain()
    {
        CRect const place(100, 100, 400, 300);
        return CreateEx(0, AfxRegisterWndClass(0), _T("Host"), WS_OVERLAPPEDWINDOW, place, nullptr, 0);
    }

protected:
    LRESULT OnSelfTest(WPARAM, LPARAM)
    {
        CSquare square;
        SELFTEST_CHECK(square.Area() == 9);
        SELFTEST_CHECK(square.IsKindOf(RUNTIME_CLASS(CShape)));
        SELFTEST_CHECK(square.Name() == _T("square"));

        CRuntimeClass * const found = CRuntimeClass::FromName(_T("CSquare"));
        SELFTEST_CHECK(found == RUNTIME_CLASS(CSquare));
        std::unique_ptr<CObject> const object(CRuntimeClass::CreateObject(_T("CSquare")));
        auto const * const made = DYNAMIC_DOWNCAST(CShape, object.get());
        SELFTEST_CHECK(made != nullptr && made->Area() == 9);

        CString text;
        SELFTEST_CHECK(text.LoadString(IDS_SHAPES_GREETING) && text == _T("From the program"));
        SELFTEST_CHECK(text.LoadString(IDS_SHAPES_ONLY) && text == _T("Only in the extension module"));
        HINSTANCE const module = AfxFindResourceHandle(MAKEINTRESOURCE(IDD_SHAPES_SIZE), RT_DIALOG);
        SELFTEST_CHECK(module != AfxGetResourceHandle());
        SELFTEST_CHECK(module == ::GetModuleHandle(module_file));
        SELFTEST_CHECK(AfxFindResourceHandle(MAKEINTRESOURCE(999), RT_DIALOG) == AfxGetResourceHandle());

        CDrivenSizeDialog dialog(this);
        dialog.m_size = 5;
        INT_PTR const result = dialog.DoModal();
        SELFTEST_CHECK(result == IDOK);
        SELFTEST_CHECK(dialog.m_size == 42);

        theSelfTest.Finish();
        PostMessage(WM_CLOSE);
        return 0;
    }

private:
    static constexpr LPCTSTR module_file = _T("shapes.dll");

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CHostWindow, CWnd)
    ON_MESSAGE(CSelfTest::message, &CHostWindow::OnSelfTest)
END_MESSAGE_MAP()

class CHostApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        if (!m_window.CreateMain())
            return FALSE;
        m_pMainWnd = &m_window;
        m_window.ShowWindow(m_nCmdShow);
        if (CSelfTest::IsWanted())
            m_window.PostMessage(CSelfTest::message);
        return TRUE;
    }

    int ExitInstance() override
    {
        int const result = CWinApp::ExitInstance();
        return CSelfTest::IsWanted() ? theSelfTest.ExitCode() : result;
    }

private:
    CHostWindow m_window;
};

CHostApp theApp;
