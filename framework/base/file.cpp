// CFile: what does not depend on the platform.

#include "afx.h"

#include <cstring>
#include <memory>

#include "FilePlatform.h"

namespace files = framework::files;

IMPLEMENT_DYNAMIC(CFile, CObject)

HANDLE const CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace
{
CString NameOf(CString const & path)
{
    int at = path.GetLength();
    while (at > 0 && !files::IsSeparator(path[at - 1]))
        --at;
    return path.Mid(at);
}

void Tell(CFileException * error, int cause, LONG osError, LPCTSTR path)
{
    if (error == nullptr)
        return;
    error->m_cause = cause;
    error->m_lOsError = osError;
    error->m_strFileName = path;
}
} // namespace

CFile::CFile() : m_hFile(hFileNull) {}

CFile::CFile(CAtlTransactionManager * pTM) : m_hFile(hFileNull), m_pTM(pTM) {}

CFile::CFile(HANDLE hFile) : m_hFile(hFile) {}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) : CFile(lpszFileName, nOpenFlags, nullptr) {}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager * pTM) : m_hFile(hFileNull), m_pTM(pTM)
{
    CFileException error;
    if (!CFile::Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile()
{
    if (m_hFile != hFileNull && m_bCloseOnDelete)
        files::Close(m_hFile);
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException * pError)
{
    ASSERT((nOpenFlags & typeText) == 0);
    m_bCloseOnDelete = FALSE;
    m_hFile = hFileNull;
    m_strFileName.Empty();

    CString full;
    if (lpszFileName == nullptr || !files::FullPath(lpszFileName, full))
    {
        Tell(pError, CFileException::badPath, -1, lpszFileName);
        return FALSE;
    }
    LONG error = 0;
    HANDLE const file = files::Open(full, nOpenFlags, error);
    if (file == hFileNull)
    {
        Tell(pError, files::CauseOf(error), error, lpszFileName);
        return FALSE;
    }
    m_strFileName = full;
    m_hFile = file;
    m_bCloseOnDelete = TRUE;
    return TRUE;
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager * pTM, CFileException * pError)
{
    m_pTM = pTM;
    return Open(lpszFileName, nOpenFlags, pError);
}

void CFile::Close()
{
    bool const failed = m_hFile != hFileNull && !files::Close(m_hFile);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    CString const path = m_strFileName;
    m_strFileName.Empty();
    if (failed)
        AfxThrowFileException(CFileException::hardIO, -1, path);
}

void CFile::Abort()
{
    if (m_hFile != hFileNull)
        files::Close(m_hFile);
    m_hFile = hFileNull;
    m_strFileName.Empty();
}

CFile * CFile::Duplicate() const
{
    // The null handle means something else to the system.
    if (m_hFile == hFileNull)
        AfxThrowFileException(CFileException::invalidFile, -1, m_strFileName);
    auto copy = std::make_unique<CFile>();
    copy->m_hFile = files::Duplicate(m_hFile, m_strFileName);
    copy->m_bCloseOnDelete = TRUE;
    copy->m_strFileName = m_strFileName;
    return copy.release();
}

UINT CFile::Read(void * lpBuf, UINT nCount)
{
    return nCount == 0 ? 0 : files::Read(m_hFile, lpBuf, nCount, m_strFileName);
}

void CFile::Write(void const * lpBuf, UINT nCount)
{
    if (nCount != 0)
        files::Write(m_hFile, lpBuf, nCount, m_strFileName);
}

void CFile::Flush()
{
    if (m_hFile != hFileNull)
        files::Flush(m_hFile, m_strFileName);
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom)
{
    return files::Seek(m_hFile, lOff, nFrom, m_strFileName);
}

ULONGLONG CFile::GetPosition() const
{
    return files::Seek(m_hFile, 0, current, m_strFileName);
}

ULONGLONG CFile::GetLength() const
{
    return files::Length(m_hFile, m_strFileName);
}

void CFile::SetLength(ULONGLONG dwNewLen)
{
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
    files::SetLength(m_hFile, dwNewLen, m_strFileName);
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    files::Lock(m_hFile, dwPos, dwCount, true, m_strFileName);
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    files::Lock(m_hFile, dwPos, dwCount, false, m_strFileName);
}

CString CFile::GetFileName() const
{
    return NameOf(m_strFileName);
}

CString CFile::GetFileTitle() const
{
    CString const name = NameOf(m_strFileName);
    int const dot = name.ReverseFind(_T('.'));
    return dot > 0 ? name.Left(dot) : name;
}

CString CFile::GetFilePath() const
{
    return m_strFileName;
}

void CFile::SetFilePath(LPCTSTR lpszNewName)
{
    m_strFileName = lpszNewName;
}

BOOL CFile::GetStatus(CFileStatus & rStatus) const
{
    rStatus = CFileStatus();
    if (m_strFileName.GetLength() < MAX_PATH)
        std::wmemcpy(rStatus.m_szFullName, m_strFileName, static_cast<size_t>(m_strFileName.GetLength()));
    return m_hFile == hFileNull || files::Status(m_hFile, rStatus);
}

BOOL PASCAL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus & rStatus, CAtlTransactionManager *)
{
    if (lpszFileName == nullptr || *lpszFileName == 0)
        return FALSE;
    CString full;
    if (!files::FullPath(lpszFileName, full))
    {
        rStatus.m_szFullName[0] = 0;
        return FALSE;
    }
    std::wmemcpy(rStatus.m_szFullName, full, static_cast<size_t>(full.GetLength()) + 1);
    return files::Status(full, rStatus);
}

void PASCAL CFile::SetStatus(LPCTSTR lpszFileName, CFileStatus const & status, CAtlTransactionManager *)
{
    files::SetStatus(lpszFileName, status);
}

void PASCAL CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName, CAtlTransactionManager *)
{
    files::Rename(lpszOldName, lpszNewName);
}

void PASCAL CFile::Remove(LPCTSTR lpszFileName, CAtlTransactionManager *)
{
    files::Remove(lpszFileName);
}

void CFile::AssertValid() const
{
    CObject::AssertValid();
}

void CFile::Dump(CDumpContext & dc) const
{
    CObject::Dump(dc);
    dc << "for " << m_strFileName.GetString() << "\n";
}
