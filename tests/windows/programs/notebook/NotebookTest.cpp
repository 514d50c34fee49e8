// The test of the program: a text is typed, saved, read again; the clipboard; the pages.

#include "StdAfx.h"

#include "../ProgramTest.h"
#include "Input.h"
#include "Notebook.h"
#include "Pump.h"
#include <afxpriv.h>

namespace
{
CNotebookView & View()
{
    return *ProgramTest::Find<CNotebookView>();
}

CString Text()
{
    CString text;
    View().GetWindowText(text);
    return text;
}

CString TemporaryFile()
{
    TCHAR folder[MAX_PATH] = {};
    ::GetTempPath(MAX_PATH, folder);
    return CString(folder) + _T("notebook.ntz");
}

void Prepare()
{
    PROGRAM_CHECK(tests::BringToFront(AfxGetMainWnd()->m_hWnd));
    View().SetFocus();
    tests::Type(L"Messreihe vom Vormittag");
    tests::Key(VK_RETURN);
    tests::Type(L"alle Werte plausibel");
    PROGRAM_WAIT(Text() == _T("Messreihe vom Vormittag\r\nalle Werte plausibel"));
    ProgramTest::Idle();
}

void Script()
{
    PROGRAM_CHECK(ProgramTest::TextOf(AfxGetMainWnd()->m_hWnd) == _T("Notiz - Notizbuch"));
    CDocument & document = *View().GetDocument();
    PROGRAM_CHECK(document.IsModified());
    CString const file = TemporaryFile();
    ::DeleteFile(file);
    PROGRAM_CHECK(document.OnSaveDocument(file));
    document.SetPathName(file);
    PROGRAM_CHECK(!document.IsModified());
    PROGRAM_CHECK(ProgramTest::TextOf(AfxGetMainWnd()->m_hWnd) == _T("notebook.ntz - Notizbuch"));

    // A raw text, as any editor reads it.
    CFile raw(file, CFile::modeRead);
    PROGRAM_CHECK(raw.GetLength() > 0);
    raw.Close();
    ProgramTest::Command(ID_FILE_NEW);
    PROGRAM_CHECK(Text().IsEmpty());
    PROGRAM_CHECK(AfxGetApp()->OpenDocumentFile(file) != nullptr);
    PROGRAM_CHECK(Text() == _T("Messreihe vom Vormittag\r\nalle Werte plausibel"));
    PROGRAM_CHECK(!document.IsModified());

    // Cut and paste by keys; the accelerators are the frame's.
    View().SetFocus();
    View().GetEditCtrl().SetSel(0, 9);
    tests::Key('X', {VK_CONTROL});
    PROGRAM_WAIT(Text().Left(4) == _T(" vom"));
    tests::Key('V', {VK_CONTROL});
    PROGRAM_WAIT(Text().Left(9) == _T("Messreihe"));
    tests::Key(VK_F5);
    PROGRAM_WAIT(Text().GetLength() > 46 && Text()[11] == _T(':'));

    // The pages on the screen, without a printer as well.
    ProgramTest::Command(ID_FILE_PRINT_PREVIEW);
    CPreviewView * const preview = ProgramTest::Find<CPreviewView>();
    PROGRAM_CHECK(preview != nullptr && preview->IsWindowVisible());
    PROGRAM_CHECK(!View().IsWindowVisible());
    ProgramTest::Command(AFX_ID_PREVIEW_CLOSE);
    PROGRAM_CHECK(ProgramTest::Find<CPreviewView>() == nullptr);
    PROGRAM_CHECK(View().IsWindowVisible());

    document.SetModifiedFlag(FALSE);
    ::DeleteFile(file);
}

ProgramTest const theTest(Prepare, Script);
} // namespace
