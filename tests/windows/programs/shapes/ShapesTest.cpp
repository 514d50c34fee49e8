// The test of the program: shapes drawn by the mouse in two windows on one document, commands by the tool bar, saving.

#include "StdAfx.h"

#include "../ProgramTest.h"
#include "Input.h"
#include "Pump.h"
#include "Shapes.h"
#include <afxpriv.h>

namespace
{
CMDIFrameWnd & Main()
{
    return static_cast<CMDIFrameWnd &>(ProgramTest::Frame());
}

CShapesView & View()
{
    return *static_cast<CShapesView *>(Main().MDIGetActive()->GetActiveView());
}

/// The tracker that the press starts has a loop of its own, in which the moves and the release come.
void DrawByMouse(CRect const & rect)
{
    CPoint const from = tests::ClientPoint(View().m_hWnd, rect.TopLeft());
    CPoint const to = tests::ClientPoint(View().m_hWnd, rect.BottomRight());
    PROGRAM_CHECK(tests::MoveMouse(from));
    tests::LaterActions later;
    auto const tracks = [] { return ::GetCapture() != nullptr; };
    later.Add([=] { tests::InjectMove(CPoint((from.x + to.x) / 2, (from.y + to.y) / 2)); }, tracks);
    later.Add([=] { tests::InjectMove(to); });
    later.Add([=] { tests::InjectMove(to); });
    later.Add([] { tests::Release(); });
    tests::Press();
    PROGRAM_WAIT(later.Done());
}

void PressTool(UINT id)
{
    auto & bar = *static_cast<CToolBar *>(Main().GetControlBar(AFX_IDW_TOOLBAR));
    CRect rect;
    bar.GetItemRect(bar.CommandToIndex(id), &rect);
    tests::Click(tests::ClientPoint(bar.m_hWnd, rect.CenterPoint()));
}

void Prepare()
{
    PROGRAM_CHECK(tests::BringToFront(AfxGetMainWnd()->m_hWnd));
    AfxGetMainWnd()->SetWindowPos(nullptr, 20, 20, 800, 600, SWP_NOZORDER);
    ProgramTest::Idle();
    DrawByMouse(CRect(20, 20, 140, 100));
    PROGRAM_WAIT(View().GetDocument()->m_shapes.GetCount() == 1);
    PressTool(ID_SHAPE_ELLIPSE);
    ProgramTest::Idle();
    DrawByMouse(CRect(100, 60, 220, 160));
    PROGRAM_WAIT(View().GetDocument()->m_shapes.GetCount() == 2);
    ProgramTest::Command(ID_WINDOW_NEW);
    ProgramTest::Command(ID_WINDOW_TILE_HORZ);
    ProgramTest::Idle();
}

void Script()
{
    CShapesDoc & document = *View().GetDocument();
    PROGRAM_CHECK(document.IsModified());
    PROGRAM_CHECK(document.m_shapes.GetTail()->m_bEllipse);
    // Titles of two windows on one document.
    PROGRAM_CHECK(ProgramTest::TextOf(Main().MDIGetActive()->m_hWnd) == _T("Drawing1:2"));
    auto const pixel = [](CShapesView & view, CPoint place) {
        CClientDC dc(&view);
        return dc.GetPixel(place);
    };
    CShapesView & second = View();
    PROGRAM_WAIT(pixel(second, CPoint(40, 40)) == RGB(170, 210, 240));
    Main().MDINext();
    CShapesView & first = View();
    PROGRAM_CHECK(&first != &second);
    PROGRAM_WAIT(pixel(first, CPoint(40, 40)) == RGB(170, 210, 240));

    // What is taken back here goes there too.
    tests::Key('Z', {VK_CONTROL});
    PROGRAM_WAIT(document.m_shapes.GetCount() == 1);
    PROGRAM_WAIT(pixel(second, CPoint(180, 120)) == RGB(255, 255, 255));

    TCHAR folder[MAX_PATH] = {};
    ::GetTempPath(MAX_PATH, folder);
    CString const file = CString(folder) + _T("some.shp");
    PROGRAM_CHECK(document.OnSaveDocument(file));
    document.SetPathName(file);
    ProgramTest::Command(ID_FILE_CLOSE);
    PROGRAM_CHECK(Main().MDIGetActive() == nullptr);
    PROGRAM_CHECK(::GetMenuItemCount(::GetMenu(Main().m_hWnd)) == 3);
    auto * const opened = static_cast<CShapesDoc *>(AfxGetApp()->OpenDocumentFile(file));
    PROGRAM_CHECK(opened != nullptr && opened->m_shapes.GetCount() == 1);
    PROGRAM_CHECK(opened->m_shapes.GetHead()->m_rect == CRect(20, 20, 140, 100));
    PROGRAM_CHECK(ProgramTest::TextOf(Main().m_hWnd) == _T("some.shp - Shapes"));
    PROGRAM_CHECK(::GetMenuItemCount(::GetMenu(Main().m_hWnd)) == 5);
    ProgramTest::Command(ID_FILE_PRINT_PREVIEW);
    PROGRAM_CHECK(ProgramTest::Find<CPreviewView>() != nullptr);
    ProgramTest::Frame().SendMessage(WM_CLOSE); // ends the preview
    PROGRAM_CHECK(ProgramTest::Find<CPreviewView>() == nullptr);
    PROGRAM_CHECK(View().IsWindowVisible());
    ::DeleteFile(file);
}

ProgramTest const theTest(Prepare, Script);
} // namespace
