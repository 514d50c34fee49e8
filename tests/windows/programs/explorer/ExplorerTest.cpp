// The test of the program: a few folders and files, opened and chosen by mouse and keys.

#include "StdAfx.h"

#include "../ProgramTest.h"
#include "Input.h"
#include "Pump.h"
#include "Explorer.h"

namespace
{
CTreeCtrl & Tree()
{
    return ProgramTest::Find<CLeftView>()->GetTreeCtrl();
}

CListCtrl & List()
{
    return ProgramTest::Find<CExplorerView>()->GetListCtrl();
}

void MakeFile(CString const & name, UINT size)
{
    CFile file(name, CFile::modeCreate | CFile::modeWrite);
    std::vector<char> const bytes(size, 'x');
    file.Write(bytes.data(), size);
}

CString Root()
{
    TCHAR folder[MAX_PATH] = {};
    ::GetTempPath(MAX_PATH, folder);
    return CString(folder) + _T("Explorer");
}

void ClickItem(HTREEITEM item)
{
    CRect rect;
    Tree().GetItemRect(item, &rect, TRUE);
    tests::Click(tests::ClientPoint(Tree().m_hWnd, rect.CenterPoint()));
}

void Prepare()
{
    CString const root = Root();
    for (LPCTSTR folder : {_T(""), _T("\\Motor"), _T("\\Motor\\kalt"), _T("\\Motor\\warm"), _T("\\Getriebe")})
        ::CreateDirectory(root + folder, nullptr);
    MakeFile(root + _T("\\lies mich.txt"), 12);
    MakeFile(root + _T("\\Motor\\lauf1.wav"), 44100);
    MakeFile(root + _T("\\Motor\\lauf2.wav"), 22050);
    PROGRAM_CHECK(tests::BringToFront(AfxGetMainWnd()->m_hWnd));
    AfxGetMainWnd()->SetWindowPos(nullptr, 20, 20, 700, 450, SWP_NOZORDER);
    ProgramTest::Command(ID_FILE_NEW); // as the folders are now
    ProgramTest::Idle();
    HTREEITEM const top = Tree().GetRootItem();
    HTREEITEM const gear = Tree().GetChildItem(top);
    PROGRAM_CHECK(Tree().GetItemText(gear) == _T("Getriebe"));
    HTREEITEM const motor = Tree().GetNextSiblingItem(gear);
    ClickItem(motor);
    PROGRAM_WAIT(List().GetItemCount() == 2);
    tests::Key(VK_RIGHT);
    PROGRAM_WAIT(Tree().GetChildItem(motor) != nullptr);
    ProgramTest::Idle();
}

void Script()
{
    PROGRAM_CHECK(List().GetItemText(0, 0) == _T("lauf1.wav"));
    PROGRAM_CHECK(List().GetItemText(0, 1) == _T("44100"));
    HTREEITEM const top = Tree().GetRootItem();
    HTREEITEM const motor = Tree().GetSelectedItem();
    HTREEITEM const cold = Tree().GetChildItem(motor);
    PROGRAM_CHECK(Tree().GetItemText(cold) == _T("kalt"));
    tests::Key(VK_RIGHT);
    PROGRAM_WAIT(Tree().GetSelectedItem() == cold);
    PROGRAM_CHECK(List().GetItemCount() == 0);
    ClickItem(top);
    PROGRAM_WAIT(List().GetItemCount() == 1 && List().GetItemText(0, 0) == _T("lies mich.txt"));

    // The bar between tree and list is pulled to the right.
    CRect left;
    Tree().GetWindowRect(&left);
    CRect right;
    List().GetWindowRect(&right);
    CPoint const bar((left.right + right.left) / 2, left.CenterPoint().y);
    tests::Drag(bar, bar + CSize(60, 0));
    PROGRAM_WAIT([&] {
        CRect now;
        Tree().GetWindowRect(&now);
        return now.Width() == left.Width() + 60;
    }());
    ProgramTest::Frame().SetActiveView(ProgramTest::Find<CExplorerView>());
    PROGRAM_WAIT(::GetFocus() == List().m_hWnd);

    CString const root = Root();
    for (LPCTSTR file : {_T("\\lies mich.txt"), _T("\\Motor\\lauf1.wav"), _T("\\Motor\\lauf2.wav")})
        ::DeleteFile(root + file);
    for (LPCTSTR folder : {_T("\\Motor\\kalt"), _T("\\Motor\\warm"), _T("\\Motor"), _T("\\Getriebe"), _T("")})
        ::RemoveDirectory(root + folder);
}

ProgramTest const theTest(Prepare, Script);
} // namespace
