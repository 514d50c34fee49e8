// CDocument: its file.

#include <iterator>
#include <memory>
#include <utility>

#include "detail/FrameSupport.h"

using framework::DocumentWatch;

namespace
{
/// Writes beside the file that it is to replace, so that one that fails leaves the old one as it was.
class ReplacingFile : public CFile
{
public:
    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException * pError) override
    {
        m_target.Empty();
        CFileStatus status;
        if ((nOpenFlags & modeCreate) != 0 && CFile::GetStatus(lpszFileName, status))
        {
            CString const path(status.m_szFullName);
            CString const folder = path.Left(path.ReverseFind(L'\\') + 1);
            wchar_t draft[MAX_PATH] = {};
            // Where the folder takes no other file, the file itself is written.
            if (::GetTempFileName(folder, L"doc", 0, draft) != 0 && CFile::Open(draft, nOpenFlags, pError))
            {
                m_target = path;
                return TRUE;
            }
            if (draft[0] != 0)
                ::DeleteFile(draft);
        }
        return CFile::Open(lpszFileName, nOpenFlags, pError);
    }
    void Close() override
    {
        CString const draft = m_strFileName;
        CString const target = m_target;
        m_target.Empty();
        CFile::Close();
        if (target.IsEmpty())
            return;
        // What others may do with the file stays as it was.
        if (!::ReplaceFile(target, draft, nullptr, 0, nullptr, nullptr) &&
            !::MoveFileEx(draft, target, MOVEFILE_REPLACE_EXISTING))
        {
            auto const error = static_cast<LONG>(::GetLastError());
            ::DeleteFile(draft);
            CFileException::ThrowOsError(error, target);
        }
    }
    void Abort() override
    {
        CString const draft = m_target.IsEmpty() ? CString() : m_strFileName;
        m_target.Empty();
        CFile::Abort();
        if (!draft.IsEmpty())
            ::DeleteFile(draft);
    }

private:
    CString m_target; // what the draft will replace; empty where the file itself is open
};

/// Gives a file up by its document, which may have gone.
void Abandon(CDocument * document, CFile * file)
{
    if (document != nullptr)
    {
        document->ReleaseFile(file, TRUE);
        return;
    }
    file->Abort();
    delete file;
}
} // namespace

CFile * CDocument::GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException * pError)
{
    auto * const file = new ReplacingFile;
    if (file->Open(lpszFileName, nOpenFlags, pError))
        return file;
    delete file;
    return nullptr;
}

void CDocument::ReleaseFile(CFile * pFile, BOOL bAbort)
{
    std::unique_ptr<CFile> const file(pFile);
    if (bAbort)
        file->Abort();
    else
        file->Close();
}

BOOL CDocument::OnOpenDocument(LPCTSTR lpszPathName)
{
    CFileException failure;
    CFile * const file = GetFile(lpszPathName, CFile::modeRead | CFile::shareDenyWrite, &failure);
    if (file == nullptr)
    {
        ReportSaveLoadException(lpszPathName, &failure, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
        return FALSE;
    }
    DocumentWatch const watch(this);
    DeleteContents();
    if (watch.Alive())
        SetModifiedFlag(); // while it is read
    try
    {
        if (!watch.Alive())
            AfxThrowUserException();
        CArchive archive(file, CArchive::load | CArchive::bNoFlushOnDelete);
        archive.m_pDocument = this;
        CWaitCursor wait;
        if (file->GetLength() != 0)
            Serialize(archive);
        archive.Close();
    }
    catch (CException * exception)
    {
        Abandon(watch.Alive() ? this : nullptr, file);
        if (watch.Alive())
        {
            DeleteContents();
            if (watch.Alive())
                ReportSaveLoadException(lpszPathName, exception, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC);
        }
        exception->Delete();
        return FALSE;
    }
    if (!watch.Alive())
    {
        Abandon(nullptr, file);
        return FALSE;
    }
    ReleaseFile(file, FALSE);
    SetModifiedFlag(FALSE);
    return TRUE;
}

BOOL CDocument::OnSaveDocument(LPCTSTR lpszPathName)
{
    CFileException failure;
    CFile * file = GetFile(lpszPathName, CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive, &failure);
    if (file == nullptr)
    {
        ReportSaveLoadException(lpszPathName, &failure, TRUE, AFX_IDP_INVALID_FILENAME);
        return FALSE;
    }
    DocumentWatch const watch(this);
    try
    {
        {
            CArchive archive(file, CArchive::store | CArchive::bNoFlushOnDelete);
            archive.m_pDocument = this;
            CWaitCursor wait;
            Serialize(archive);
            archive.Close();
        }
        if (!watch.Alive())
            AfxThrowUserException();
        ReleaseFile(std::exchange(file, nullptr), FALSE); // where it fails, the old file stays
    }
    catch (CException * exception)
    {
        if (file != nullptr)
            Abandon(watch.Alive() ? this : nullptr, file);
        if (watch.Alive())
            ReportSaveLoadException(lpszPathName, exception, TRUE, AFX_IDP_FAILED_TO_SAVE_DOC);
        exception->Delete();
        return FALSE;
    }
    if (!watch.Alive())
        return FALSE;
    SetModifiedFlag(FALSE);
    return TRUE;
}

void CDocument::ReportSaveLoadException(LPCTSTR lpszPathName, CException * e, BOOL, UINT nIDPDefault)
{
    CString text;
    if (e != nullptr)
    {
        if (e->IsKindOf(RUNTIME_CLASS(CUserException)))
            return; // the user has been told
        auto * const failure = DYNAMIC_DOWNCAST(CFileException, e);
        wchar_t message[512] = {};
        if (failure != nullptr && failure->m_cause != CFileException::none &&
            failure->m_cause != CFileException::genericException)
        {
            if (failure->m_strFileName.IsEmpty())
                failure->m_strFileName = lpszPathName;
            if (failure->GetErrorMessage(message, static_cast<UINT>(std::size(message))))
                text = message;
        }
    }
    if (text.IsEmpty())
    {
        LPCTSTR const inserted = lpszPathName;
        AfxFormatStrings(text, framework::MessageText(nIDPDefault).GetString(), &inserted, 1);
    }
    AfxMessageBox(text, MB_ICONEXCLAMATION, nIDPDefault);
}
