// CDocument: its file.

#include "detail/FrameSupport.h"

namespace
{
/// Whether a file can be opened for that access; creates it for writing.
bool CanOpen(LPCTSTR path, DWORD access, DWORD disposition)
{
    HANDLE const file =
        ::CreateFile(path, access, FILE_SHARE_READ, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    ::CloseHandle(file);
    return true;
}
} // namespace

BOOL CDocument::OnOpenDocument(LPCTSTR lpszPathName)
{
    if (!CanOpen(lpszPathName, GENERIC_READ, OPEN_EXISTING))
    {
        ReportSaveLoadException(lpszPathName, nullptr, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
        return FALSE;
    }
    DeleteContents();
    SetModifiedFlag(FALSE);
    return TRUE;
}

BOOL CDocument::OnSaveDocument(LPCTSTR lpszPathName)
{
    if (!CanOpen(lpszPathName, GENERIC_WRITE, CREATE_ALWAYS))
    {
        ReportSaveLoadException(lpszPathName, nullptr, TRUE, AFX_IDP_FAILED_TO_SAVE_DOC);
        return FALSE;
    }
    SetModifiedFlag(FALSE);
    return TRUE;
}

void CDocument::ReportSaveLoadException(LPCTSTR lpszPathName, CException * e, BOOL, UINT nIDPDefault)
{
    if (e != nullptr && e->IsKindOf(RUNTIME_CLASS(CUserException)))
        return; // the user has been told
    CString text;
    LPCTSTR const inserted = lpszPathName;
    AfxFormatStrings(text, framework::MessageText(nIDPDefault).GetString(), &inserted, 1);
    AfxMessageBox(text, MB_ICONEXCLAMATION, nIDPDefault);
}

CFile * CDocument::GetFile(LPCTSTR, UINT, CFileException *)
{
    return nullptr;
}

void CDocument::ReleaseFile(CFile *, BOOL) {}
