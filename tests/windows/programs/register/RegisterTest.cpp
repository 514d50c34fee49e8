// The test of the program: clicks on the header sort, clicks on rows are told in the status bar, views by the menu.

#include "StdAfx.h"

#include "../ProgramTest.h"
#include "Input.h"
#include "Pump.h"
#include "Register.h"

namespace
{
CListCtrl & List()
{
    return ProgramTest::Find<CRegisterView>()->GetListCtrl();
}

CString Row(int row)
{
    return List().GetItemText(row, 0);
}

void ClickHeader(int column)
{
    CHeaderCtrl & header = *List().GetHeaderCtrl();
    CRect rect;
    header.GetItemRect(column, &rect);
    tests::Click(tests::ClientPoint(header.m_hWnd, rect.CenterPoint()));
}

void Prepare()
{
    PROGRAM_CHECK(tests::BringToFront(AfxGetMainWnd()->m_hWnd));
    AfxGetMainWnd()->SetWindowPos(nullptr, 20, 20, 600, 400, SWP_NOZORDER);
    ProgramTest::Idle();
    PROGRAM_CHECK(List().GetItemCount() == 5);
    ClickHeader(1);
    PROGRAM_WAIT(Row(0) == _T("Accelerometer"));
    CRect row;
    List().GetItemRect(1, &row, LVIR_LABEL);
    tests::Click(tests::ClientPoint(List().m_hWnd, CPoint(row.left + 10, row.CenterPoint().y)));
    PROGRAM_WAIT(List().GetItemState(1, LVIS_SELECTED) != 0);
    ProgramTest::Idle();
}

void Script()
{
    PROGRAM_CHECK(Row(4) == _T("Force gauge"));
    auto & status = *static_cast<CStatusBar *>(ProgramTest::Frame().GetControlBar(AFX_IDW_STATUS_BAR));
    PROGRAM_CHECK(status.GetPaneText(0) == _T("1 selected"));
    ClickHeader(1);
    PROGRAM_WAIT(Row(0) == _T("Force gauge"));
    ClickHeader(0);
    PROGRAM_WAIT(Row(0) == _T("Accelerometer") && Row(4) == _T("Thermometer"));

    // The menu's point goes with the view.
    CMenu * const menu = AfxGetMainWnd()->GetMenu()->GetSubMenu(1);
    auto const checked = [menu](UINT id) {
        AfxGetMainWnd()->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu->m_hMenu), 1);
        return (menu->GetMenuState(id, MF_BYCOMMAND) & MF_CHECKED) != 0;
    };
    PROGRAM_CHECK(checked(ID_VIEW_DETAILS));
    ProgramTest::Command(ID_VIEW_LIST);
    PROGRAM_CHECK((List().GetStyle() & LVS_TYPEMASK) == LVS_LIST);
    PROGRAM_CHECK(checked(ID_VIEW_LIST) && !checked(ID_VIEW_DETAILS));
    ProgramTest::Command(ID_VIEW_DETAILS);
    ProgramTest::Command(ID_VIEW_STATUS_BAR);
    PROGRAM_CHECK(!status.IsWindowVisible());
    ProgramTest::Command(ID_FILE_NEW);
    PROGRAM_CHECK(List().GetItemCount() == 5);
}

ProgramTest const theTest(Prepare, Script);
} // namespace
