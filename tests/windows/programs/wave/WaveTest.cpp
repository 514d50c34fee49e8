// The test of the program: the window is split by the mouse, panes scroll together, the keys go from pane to pane.

#include "StdAfx.h"

#include "../ProgramTest.h"
#include "Input.h"
#include "Pump.h"
#include "Wave.h"

namespace
{
CSplitterWnd & Splitter()
{
    return *ProgramTest::Find<CSplitterWnd>();
}

CWaveView & Pane(int row, int column)
{
    return *static_cast<CWaveView *>(Splitter().GetPane(row, column));
}

void Prepare()
{
    PROGRAM_CHECK(tests::BringToFront(AfxGetMainWnd()->m_hWnd));
    AfxGetMainWnd()->SetWindowPos(nullptr, 20, 20, 800, 600, SWP_NOZORDER);
    ProgramTest::Idle();
    // The box above the scroll bar at the right is pulled down.
    CRect client;
    Splitter().GetClientRect(&client);
    int const bar = ::GetSystemMetrics(SM_CXVSCROLL);
    tests::Drag(tests::ClientPoint(Splitter().m_hWnd, CPoint(client.right - bar / 2 - 2, 4)),
                tests::ClientPoint(Splitter().m_hWnd, CPoint(client.right - bar / 2 - 2, client.bottom / 2)));
    PROGRAM_WAIT(Splitter().GetRowCount() == 2);
    PROGRAM_CHECK(Splitter().SplitColumn(client.right / 3));
    PROGRAM_WAIT(Splitter().GetColumnCount() == 2);
    Pane(1, 1).ScrollToPosition(CPoint(500, 300));
    ProgramTest::Idle();
}

void Script()
{
    // Panes of a column have one place across, panes of a row one down.
    HWND const bar = ::GetDlgItem(Splitter().m_hWnd, AFX_IDW_HSCROLL_FIRST);
    Splitter().SendMessage(WM_HSCROLL, SB_PAGERIGHT, reinterpret_cast<LPARAM>(bar));
    PROGRAM_CHECK(Pane(0, 0).GetScrollPosition().x == 300);
    PROGRAM_CHECK(Pane(1, 0).GetScrollPosition().x == 300);
    PROGRAM_CHECK(Pane(1, 1).GetScrollPosition() == CPoint(500, 300));

    PROGRAM_CHECK(ProgramTest::Frame().GetActiveView() != nullptr);
    Splitter().SetActivePane(0, 0);
    PROGRAM_WAIT(::GetFocus() == Pane(0, 0).m_hWnd);
    tests::Key(VK_F6);
    PROGRAM_WAIT(::GetFocus() == Pane(0, 1).m_hWnd);
    tests::Key(VK_F6, {VK_SHIFT});
    PROGRAM_WAIT(::GetFocus() == Pane(0, 0).m_hWnd);
    tests::Wheel(tests::Centre(Pane(0, 0).m_hWnd), -1);
    PROGRAM_WAIT(Pane(0, 0).GetScrollPosition().y > 0);
    PROGRAM_CHECK(Pane(0, 1).GetScrollPosition().y == Pane(0, 0).GetScrollPosition().y);

    // A double click on the bar between the rows joins them.
    CRect upper;
    Pane(0, 0).GetWindowRect(&upper);
    CRect lower;
    Pane(1, 0).GetWindowRect(&lower);
    tests::DoubleClick(CPoint(upper.CenterPoint().x, (upper.bottom + lower.top) / 2));
    PROGRAM_WAIT(Splitter().GetRowCount() == 1);
    Splitter().DeleteColumn(1);
    PROGRAM_CHECK(Splitter().GetColumnCount() == 1);
}

ProgramTest const theTest(Prepare, Script);
} // namespace
