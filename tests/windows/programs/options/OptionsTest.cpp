// The test of the program: pages by the mouse, one that refuses to be left, Apply, a wizard with its steps.

#include "StdAfx.h"

#include "../ProgramTest.h"
#include "Input.h"
#include "Options.h"
#include "Pump.h"

namespace
{
COptionsSheet & Sheet()
{
    return *static_cast<COptionsSheet *>(AfxGetMainWnd());
}

void ClickTab(int page)
{
    CTabCtrl & tabs = *Sheet().GetTabControl();
    CRect rect;
    tabs.GetItemRect(page, &rect);
    tests::Click(tests::ClientPoint(tabs.m_hWnd, rect.CenterPoint()));
}

bool CanApply()
{
    return ::IsWindowEnabled(::GetDlgItem(Sheet().m_hWnd, ID_APPLY_NOW)) != 0;
}

void Prepare()
{
    PROGRAM_CHECK(tests::BringToFront(Sheet().m_hWnd));
    PROGRAM_CHECK(Sheet().GetActiveIndex() == 0);
    ::SetFocus(Sheet().m_pageGeneral.GetDlgItem(IDC_FOLDER)->m_hWnd);
    tests::Type(L"C:\\data");
    PROGRAM_WAIT(CanApply());
    ClickTab(1);
    PROGRAM_WAIT(Sheet().GetActivePage() == &Sheet().m_pageChannels);
    CRect spin;
    Sheet().m_pageChannels.m_wndSpin.GetWindowRect(&spin);
    int const before = Sheet().m_pageChannels.m_wndList.GetCount();
    tests::Click(CPoint(spin.CenterPoint().x, spin.top + 4));
    PROGRAM_WAIT(Sheet().m_pageChannels.m_wndList.GetCount() == before + 1);
}

void Script()
{
    PROGRAM_CHECK(Sheet().m_pageGeneral.m_strFolder == _T("C:\\data"));
    PROGRAM_CHECK(CanApply());
    tests::Click(tests::Centre(::GetDlgItem(Sheet().m_hWnd, ID_APPLY_NOW)));
    PROGRAM_WAIT(!CanApply());

    // Without a name the first page isn't left.
    ClickTab(0);
    PROGRAM_WAIT(Sheet().GetActiveIndex() == 0);
    Sheet().m_pageGeneral.SetDlgItemText(IDC_NAME, _T(""));
    bool told = false;
    ProgramTest::WhenShown(_T("Options"), [&told](HWND box) {
        told = true;
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
    });
    Sheet().SetActivePage(1);
    PROGRAM_WAIT(told);
    PROGRAM_CHECK(Sheet().GetActiveIndex() == 0);

    // The wizard has the name empty too; its first step stays until there is one.
    bool finished = false;
    ProgramTest::WhenShown(_T("Wizard"), [&finished](HWND wizard) {
        auto & sheet = *static_cast<CPropertySheet *>(CWnd::FromHandle(wizard));
        sheet.PressButton(PSBTN_NEXT);
        tests::PumpPosted();
        PROGRAM_CHECK(sheet.GetActiveIndex() == 0);
        sheet.GetActivePage()->SetDlgItemText(IDC_NAME, _T("somebody"));
        sheet.PressButton(PSBTN_NEXT);
        PROGRAM_WAIT(sheet.GetActiveIndex() == 1);
        CString text;
        sheet.GetActivePage()->GetDlgItemText(IDC_TEXT, text);
        PROGRAM_CHECK(text == _T("The name is somebody."));
        sheet.PressButton(PSBTN_BACK);
        PROGRAM_WAIT(sheet.GetActiveIndex() == 0);
        sheet.PressButton(PSBTN_NEXT);
        PROGRAM_WAIT(sheet.GetActiveIndex() == 1);
        finished = true;
        sheet.PressButton(PSBTN_FINISH);
    });
    Sheet().m_pageGeneral.SendMessage(WM_COMMAND, IDC_WIZARD);
    PROGRAM_CHECK(finished);
    CString name;
    Sheet().m_pageGeneral.GetDlgItemText(IDC_NAME, name);
    PROGRAM_CHECK(name == _T("somebody"));

    ClickTab(2);
    PROGRAM_WAIT(Sheet().GetActiveIndex() == 2);
    tests::Click(tests::Centre(Sheet().m_pageColours.GetDlgItem(IDC_DARK)->m_hWnd));
    PROGRAM_WAIT(Sheet().m_pageColours.IsDlgButtonChecked(IDC_DARK) != 0);
    PROGRAM_WAIT(CanApply());
    Sheet().PressButton(PSBTN_APPLYNOW);
    PROGRAM_WAIT(Sheet().m_pageColours.m_nScheme == 1);
    PROGRAM_WAIT(AfxGetApp()->GetProfileString(_T("Options"), _T("Name")) == _T("somebody"));
}

ProgramTest const theTest(Prepare, Script);
} // namespace
