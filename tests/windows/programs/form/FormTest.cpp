// The test of the program: fields by keys, a window smaller than the form, a preview of two pages, no printer.

#include "StdAfx.h"

#include "../ProgramTest.h"
#include "Form.h"
#include "Input.h"
#include "Pump.h"
#include <afxpriv.h>

namespace
{
CFormSheetView & View()
{
    return *ProgramTest::Find<CFormSheetView>();
}

HWND Item(int id)
{
    return View().GetDlgItem(id)->m_hWnd;
}

void Prepare()
{
    PROGRAM_CHECK(tests::BringToFront(AfxGetMainWnd()->m_hWnd));
    ::SetFocus(Item(IDC_DEVICE));
    tests::Type(L"Microphone 7");
    PROGRAM_WAIT(View().GetDocument()->m_strDevice == _T("Microphone 7"));
    tests::Key(VK_TAB);
    PROGRAM_WAIT(::GetFocus() == Item(IDC_KIND));
    tests::Key(VK_DOWN);
    PROGRAM_WAIT(View().GetDocument()->m_nKind == 1);
    ::SetDlgItemText(View().m_hWnd, IDC_REFERENCE, _T("94"));
    ::SetDlgItemText(View().m_hWnd, IDC_READING, _T("93.75"));
    tests::Click(tests::Centre(Item(IDC_PASSED)));
    PROGRAM_WAIT(View().GetDocument()->m_bPassed != 0);
    ::SetDlgItemText(View().m_hWnd, IDC_REMARKS, _T("Stored in room 12."));
    ProgramTest::Idle();
}

void Script()
{
    PROGRAM_CHECK(ProgramTest::TextOf(Item(IDC_DEVIATION)) == _T("Deviation: -0.25"));
    PROGRAM_CHECK(View().GetDocument()->IsModified());
    // The window is as large as the form; smaller, it scrolls.
    PROGRAM_CHECK((View().GetStyle() & (WS_HSCROLL | WS_VSCROLL)) == 0);
    AfxGetMainWnd()->SetWindowPos(nullptr, 0, 0, 300, 250, SWP_NOZORDER | SWP_NOMOVE);
    PROGRAM_WAIT((View().GetStyle() & WS_VSCROLL) != 0);
    CRect before;
    ::GetWindowRect(Item(IDC_DEVICE), &before);
    View().SendMessage(WM_VSCROLL, SB_LINEDOWN);
    CRect after;
    ::GetWindowRect(Item(IDC_DEVICE), &after);
    PROGRAM_CHECK(after.top < before.top);
    AfxGetMainWnd()->SetWindowPos(nullptr, 0, 0, 700, 500, SWP_NOZORDER | SWP_NOMOVE);

    ProgramTest::Command(ID_FILE_PRINT_PREVIEW);
    CPreviewView * const preview = ProgramTest::Find<CPreviewView>();
    PROGRAM_CHECK(preview != nullptr);
    CControlBar & bar = *ProgramTest::Frame().GetControlBar(AFX_IDW_PREVIEW_BAR);
    ProgramTest::Idle();
    PROGRAM_CHECK(bar.GetDlgItem(AFX_ID_PREVIEW_NEXT)->IsWindowEnabled());
    PROGRAM_CHECK(!bar.GetDlgItem(AFX_ID_PREVIEW_PREV)->IsWindowEnabled());
    tests::Click(tests::Centre(bar.GetDlgItem(AFX_ID_PREVIEW_NEXT)->m_hWnd));
    PROGRAM_WAIT(!bar.GetDlgItem(AFX_ID_PREVIEW_NEXT)->IsWindowEnabled());
    PROGRAM_CHECK(bar.GetDlgItem(AFX_ID_PREVIEW_PREV)->IsWindowEnabled());
    auto & status = *static_cast<CStatusBar *>(ProgramTest::Frame().GetControlBar(AFX_IDW_STATUS_BAR));
    PROGRAM_CHECK(status.GetPaneText(0) == _T("Page 2"));
    tests::Click(tests::Centre(bar.GetDlgItem(AFX_ID_PREVIEW_CLOSE)->m_hWnd));
    PROGRAM_WAIT(ProgramTest::Find<CPreviewView>() == nullptr);
    PROGRAM_CHECK(View().IsWindowVisible());
    View().GetDocument()->SetModifiedFlag(FALSE);
}

ProgramTest const theTest(Prepare, Script);
} // namespace
