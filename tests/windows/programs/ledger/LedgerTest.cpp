// The test of the program: changes ask to be saved, files come by the menu's list, by the shell and by being dropped.

#include "StdAfx.h"

#include <shlobj.h>

#include "../ProgramTest.h"
#include "Input.h"
#include "Ledger.h"
#include "Pump.h"

namespace
{
CMDIFrameWnd & Main()
{
    return static_cast<CMDIFrameWnd &>(ProgramTest::Frame());
}

CLedgerDoc & Document()
{
    return *static_cast<CLedgerDoc *>(Main().MDIGetActive()->GetActiveDocument());
}

CString TemporaryFile(LPCTSTR name)
{
    TCHAR folder[MAX_PATH] = {};
    ::GetTempPath(MAX_PATH, folder);
    return CString(folder) + name;
}

/// As the shell drops a file.
void Drop(CString const & file)
{
    size_t const bytes = sizeof(DROPFILES) + (static_cast<size_t>(file.GetLength()) + 2) * sizeof(wchar_t);
    HGLOBAL const memory = ::GlobalAlloc(GHND, bytes);
    auto * const drop = static_cast<DROPFILES *>(::GlobalLock(memory));
    drop->pFiles = sizeof(DROPFILES);
    drop->fWide = TRUE;
    ::memcpy(drop + 1, file.GetString(), static_cast<size_t>(file.GetLength()) * sizeof(wchar_t));
    ::GlobalUnlock(memory);
    AfxGetMainWnd()->PostMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
}

void Prepare()
{
    PROGRAM_CHECK(tests::BringToFront(AfxGetMainWnd()->m_hWnd));
    AfxGetMainWnd()->SetWindowPos(nullptr, 20, 20, 700, 450, SWP_NOZORDER);
    ProgramTest::Idle();
    for (INT_PTR count = 1; count <= 3; ++count)
    {
        tests::Key(VK_INSERT);
        PROGRAM_WAIT(Document().m_entries.GetSize() == count);
    }
}

void Script()
{
    PROGRAM_CHECK((AfxGetMainWnd()->GetExStyle() & WS_EX_ACCEPTFILES) != 0);
    CString const file = TemporaryFile(_T("eins.prt"));
    ::DeleteFile(file);
    // Saving for the first time asks for a name.
    bool asked = false;
    ProgramTest::WhenShown(nullptr, [&](HWND dialog) {
        asked = true;
        ::SetDlgItemText(dialog, edt1, file);
        if (::GetDlgItem(dialog, edt1) == nullptr)
            ::SetDlgItemText(dialog, cmb13, file);
        ::PostMessage(dialog, WM_COMMAND, IDOK, 0);
    });
    tests::Key('S', {VK_CONTROL});
    PROGRAM_WAIT(!Document().IsModified());
    PROGRAM_CHECK(asked);
    PROGRAM_CHECK(ProgramTest::TextOf(Main().m_hWnd) == _T("eins.prt - Ledger"));

    // A change: closing asks, and the answer is no.
    tests::Key(VK_DELETE);
    PROGRAM_WAIT(Document().IsModified() != 0);
    CString question;
    ProgramTest::WhenShown(nullptr, [&question](HWND box) {
        for (HWND child = ::GetTopWindow(box); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
            question += ProgramTest::TextOf(child);
        ::PostMessage(box, WM_COMMAND, IDNO, 0);
    });
    ProgramTest::Command(ID_FILE_CLOSE);
    PROGRAM_CHECK(Main().MDIGetActive() == nullptr);
    PROGRAM_CHECK(question.Find(_T("eins.prt")) >= 0);

    // It stands in the menu and opens from there.
    CMenu * const menu = AfxGetMainWnd()->GetMenu()->GetSubMenu(0);
    AfxGetMainWnd()->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu->m_hMenu), 0);
    CString item;
    menu->GetMenuString(ID_FILE_MRU_FILE1, item, MF_BYCOMMAND);
    PROGRAM_CHECK(item.Right(8) == _T("eins.prt"));
    ProgramTest::Command(ID_FILE_MRU_FILE1);
    PROGRAM_CHECK(Document().m_entries.GetSize() == 3);
    PROGRAM_CHECK(Document().m_entries[2]->m_dValue == 4.5);
    PROGRAM_CHECK(Document().m_entries[1]->m_flags[0] == 1);
    PROGRAM_CHECK(Document().m_last[_T("Kanal 2")] == 3.0);
    PROGRAM_CHECK(Document().m_remarks.GetCount() == 3);

    // A second one comes by being dropped; one that is open already is only brought to the front.
    CString const copy = TemporaryFile(_T("zwei.prt"));
    ::CopyFile(file, copy, FALSE);
    Drop(copy);
    PROGRAM_WAIT(Document().GetTitle() == _T("zwei.prt"));
    Drop(file);
    PROGRAM_WAIT(Document().GetTitle() == _T("eins.prt"));

    // A damaged file is told of and leaves no window.
    CString const damaged = TemporaryFile(_T("drei.prt"));
    CFile out(damaged, CFile::modeCreate | CFile::modeWrite);
    out.Write("\x05\x00\xFF\xFF\x77\x00\x30", 7);
    out.Close();
    bool told = false;
    ProgramTest::WhenShown(nullptr, [&told](HWND box) {
        told = true;
        ::PostMessage(box, WM_COMMAND, IDOK, 0);
    });
    PROGRAM_CHECK(AfxGetApp()->OpenDocumentFile(damaged) == nullptr);
    PROGRAM_CHECK(told);
    PROGRAM_CHECK(Document().GetTitle() == _T("eins.prt"));
    ::DeleteFile(file);
    ::DeleteFile(copy);
    ::DeleteFile(damaged);
}

ProgramTest const theTest(Prepare, Script);
} // namespace
