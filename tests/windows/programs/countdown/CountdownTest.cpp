// The test of the program: the minutes and seconds chosen by keys and mouse, the countdown, the question at its close.

#include "StdAfx.h"

#include "../ProgramTest.h"
#include "Input.h"
#include "Pump.h"
#include "Resource.h"

namespace
{
HWND Item(int id)
{
    return AfxGetMainWnd()->GetDlgItem(id)->m_hWnd;
}

void Prepare()
{
    PROGRAM_CHECK(tests::BringToFront(AfxGetMainWnd()->m_hWnd));
    ::SetFocus(Item(IDC_MINUTES));
    ::SendMessage(Item(IDC_MINUTES), EM_SETSEL, 0, -1);
    tests::Type(L"2");
    PROGRAM_WAIT(ProgramTest::TextOf(Item(IDC_MINUTES)) == _T("2"));
    // The arrow at the top of the spin control.
    CRect spin;
    ::GetWindowRect(Item(IDC_SPIN), &spin);
    tests::Click(CPoint(spin.CenterPoint().x, spin.top + 4));
    PROGRAM_WAIT(ProgramTest::TextOf(Item(IDC_MINUTES)) == _T("3"));
    ::SetFocus(Item(IDC_SECONDS));
    tests::Key(VK_RIGHT);
    tests::Key(VK_RIGHT);
    PROGRAM_WAIT(ProgramTest::TextOf(Item(IDC_REST)) == _T("03:02"));
    AfxGetMainWnd()->CheckDlgButton(IDC_SOUND, BST_UNCHECKED); // whatever was kept from another time
    tests::Click(tests::Centre(Item(IDC_SOUND)));
    PROGRAM_WAIT(AfxGetMainWnd()->IsDlgButtonChecked(IDC_SOUND) != 0);
}

void Script()
{
    // A number that isn't allowed is told of, and nothing starts.
    ::SetWindowText(Item(IDC_MINUTES), _T("100"));
    bool told = false;
    ProgramTest::WhenShown(_T("Countdown"), [&told](HWND window) {
        told = true;
        ::PostMessage(window, WM_COMMAND, IDOK, 0);
    });
    ::SendMessage(Item(IDC_START), BM_CLICK, 0, 0);
    PROGRAM_CHECK(told);
    PROGRAM_CHECK(ProgramTest::TextOf(Item(IDC_START)) == _T("&Start"));

    ::SetWindowText(Item(IDC_MINUTES), _T("0"));
    tests::Key(VK_RETURN);
    PROGRAM_WAIT(ProgramTest::TextOf(Item(IDC_START)) == _T("&Stop"));
    PROGRAM_CHECK(!::IsWindowEnabled(Item(IDC_MINUTES)));
    PROGRAM_WAIT(ProgramTest::TextOf(Item(IDC_REST)) == _T("00:00"));
    PROGRAM_CHECK(::SendMessage(Item(IDC_PROGRESS), PBM_GETPOS, 0, 0) == 100);
    PROGRAM_CHECK(ProgramTest::TextOf(Item(IDC_START)) == _T("&Start"));

    bool about = false;
    ProgramTest::WhenShown(_T("About Countdown"), [&about](HWND window) {
        about = !AfxGetMainWnd()->IsWindowEnabled();
        ::PostMessage(window, WM_COMMAND, IDOK, 0);
    });
    AfxGetMainWnd()->SendMessage(WM_SYSCOMMAND, IDM_ABOUTBOX);
    PROGRAM_CHECK(about);

    // While it runs, closing asks first.
    ::SetWindowText(Item(IDC_MINUTES), _T("50"));
    ::SendMessage(Item(IDC_START), BM_CLICK, 0, 0);
    HWND const window = AfxGetMainWnd()->m_hWnd;
    bool asked = false;
    ProgramTest::WhenShown(_T("Countdown"), [&asked](HWND box) {
        asked = true;
        ::PostMessage(box, WM_COMMAND, IDNO, 0);
    });
    ::SendMessage(window, WM_COMMAND, IDCANCEL, 0);
    PROGRAM_CHECK(asked);
    PROGRAM_CHECK(::IsWindowVisible(window));
    ::SendMessage(Item(IDC_START), BM_CLICK, 0, 0);
}

ProgramTest const theTest(Prepare, Script);
} // namespace
