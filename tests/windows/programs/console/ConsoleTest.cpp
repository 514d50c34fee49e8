// The test of the program: its bars by the mouse, panes that follow, and what it keeps of the bars.

#include "StdAfx.h"

#include "../ProgramTest.h"
#include "Console.h"
#include "Input.h"
#include "Pump.h"

namespace
{
CToolBar & Tools(UINT id)
{
    return *static_cast<CToolBar *>(ProgramTest::Frame().GetControlBar(id));
}

CStatusBar & Status()
{
    return *static_cast<CStatusBar *>(ProgramTest::Frame().GetControlBar(AFX_IDW_STATUS_BAR));
}

constexpr UINT channels = AFX_IDW_CONTROLBAR_FIRST + 40;

void Press(UINT bar, UINT id)
{
    CRect rect;
    Tools(bar).GetItemRect(Tools(bar).CommandToIndex(id), &rect);
    tests::Click(tests::ClientPoint(Tools(bar).m_hWnd, rect.CenterPoint()));
}

bool Has(UINT bar, UINT id, BYTE state)
{
    return (Tools(bar).GetToolBarCtrl().GetState(static_cast<int>(id)) & state) != 0;
}

CString Log()
{
    return static_cast<CConsoleDoc *>(ProgramTest::Frame().GetActiveDocument())->m_strLog;
}

void Prepare()
{
    PROGRAM_CHECK(tests::BringToFront(AfxGetMainWnd()->m_hWnd));
    AfxGetMainWnd()->SetWindowPos(nullptr, 20, 20, 700, 450, SWP_NOZORDER);
    // Whatever was kept of the bars from another time.
    ProgramTest::Frame().ShowControlBar(&Tools(channels), TRUE, FALSE);
    ProgramTest::Frame().ShowControlBar(&Tools(AFX_IDW_TOOLBAR), TRUE, FALSE);
    ProgramTest::Idle();
    Press(channels, ID_CHANNEL_3);
    PROGRAM_WAIT(Has(channels, ID_CHANNEL_3, TBSTATE_CHECKED));
    Press(AFX_IDW_TOOLBAR, ID_RUN_START);
    PROGRAM_WAIT(Log() == _T("started\n"));
    PROGRAM_WAIT(!Has(AFX_IDW_TOOLBAR, ID_RUN_START, TBSTATE_ENABLED));
}

void Script()
{
    PROGRAM_CHECK(Has(channels, ID_CHANNEL_1, TBSTATE_CHECKED));
    PROGRAM_CHECK(Has(AFX_IDW_TOOLBAR, ID_RUN_STOP, TBSTATE_ENABLED));
    PROGRAM_CHECK(Status().GetPaneText(1) == _T("RUN"));
    PROGRAM_WAIT(Status().GetPaneText(2) != _T("000 s"));
    tests::Key(VK_F5, {VK_SHIFT});
    PROGRAM_WAIT(Log() == _T("started\nstopped\n"));

    // The bar's button is enabled once there is a text, and is a command of the frame's.
    CControlBar & target = *ProgramTest::Frame().GetControlBar(IDD_TARGET);
    HWND const button = target.GetDlgItem(ID_TARGET_SET)->m_hWnd;
    ProgramTest::Idle();
    PROGRAM_CHECK(!::IsWindowEnabled(button));
    tests::Click(tests::Centre(target.GetDlgItem(IDC_TARGET)->m_hWnd));
    tests::Type(L"4.2");
    PROGRAM_WAIT(::IsWindowEnabled(button) != 0);
    tests::Key(VK_TAB);
    PROGRAM_WAIT(::GetFocus() == button);
    tests::Key(VK_SPACE);
    PROGRAM_WAIT(Log() == _T("started\nstopped\ntarget 4.2\n"));

    // A tip is the second line of the command's string, the message the first.
    CRect rect;
    Tools(AFX_IDW_TOOLBAR).GetItemRect(0, &rect);
    tests::MoveMouse(tests::ClientPoint(Tools(AFX_IDW_TOOLBAR).m_hWnd, rect.CenterPoint()));
    PROGRAM_WAIT(Status().GetPaneText(0) == _T("Create a new document"));

    // All bars leave their place where they are hidden.
    CRect before;
    ProgramTest::Frame().GetActiveView()->GetWindowRect(&before);
    ProgramTest::Command(ID_VIEW_CHANNELS);
    ProgramTest::Command(ID_VIEW_TOOLBAR);
    CRect after;
    ProgramTest::Frame().GetActiveView()->GetWindowRect(&after);
    PROGRAM_CHECK(after.left < before.left && after.top < before.top);
    ProgramTest::Frame().SaveBarState(_T("Bars"));
    ProgramTest::Command(ID_VIEW_CHANNELS);
    ProgramTest::Command(ID_VIEW_TOOLBAR);
    ProgramTest::Frame().LoadBarState(_T("Bars"));
    PROGRAM_CHECK(!Tools(channels).IsWindowVisible());
    ProgramTest::Command(ID_VIEW_CHANNELS);
    ProgramTest::Command(ID_VIEW_TOOLBAR);
}

ProgramTest const theTest(Prepare, Script);
} // namespace
