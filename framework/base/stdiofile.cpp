// CStdioFile.

#include "afx.h"

#include "FilePlatform.h"

namespace files = framework::files;

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

CStdioFile::CStdioFile() = default;

CStdioFile::CStdioFile(CAtlTransactionManager * pTM) : CFile(pTM) {}

CStdioFile::CStdioFile(FILE * pOpenStream) : m_pStream(pOpenStream)
{
    if (pOpenStream == nullptr)
        AfxThrowInvalidArgException();
    m_hFile = files::HandleOf(pOpenStream);
}

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags) : CStdioFile(lpszFileName, nOpenFlags, nullptr) {}

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager * pTM) : CFile(pTM)
{
    CFileException error;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CStdioFile::~CStdioFile()
{
    if (m_pStream != nullptr && m_bCloseOnDelete)
        CStdioFile::Abort();
    // The handle is the stream's.
    m_bCloseOnDelete = FALSE;
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException * pError)
{
    m_pStream = nullptr;
    m_wideText = (nOpenFlags & (typeBinary | typeUnicode)) != 0;
    if (!CFile::Open(lpszFileName, nOpenFlags & ~static_cast<UINT>(typeText | typeUnicode), pError))
        return FALSE;
    LONG error = 0;
    m_pStream = files::OpenStream(m_hFile, nOpenFlags, error);
    if (m_pStream != nullptr)
        return TRUE;
    if (pError != nullptr)
    {
        pError->m_cause = files::CauseOf(error);
        pError->m_lOsError = error;
        pError->m_strFileName = lpszFileName;
    }
    CFile::Abort();
    return FALSE;
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager * pTM, CFileException * pError)
{
    m_pTM = pTM;
    return Open(lpszFileName, nOpenFlags, pError);
}

void CStdioFile::Close()
{
    bool const failed = m_pStream != nullptr && std::fclose(m_pStream) != 0;
    LONG const error = failed ? files::StreamError() : 0;
    m_pStream = nullptr;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    CString const path = m_strFileName;
    m_strFileName.Empty();
    if (failed)
        AfxThrowFileException(CFileException::diskFull, error, path);
}

void CStdioFile::Abort()
{
    if (m_pStream != nullptr && m_bCloseOnDelete)
        std::fclose(m_pStream);
    m_pStream = nullptr;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

UINT CStdioFile::Read(void * lpBuf, UINT nCount)
{
    if (nCount == 0)
        return 0;
    if (m_pStream == nullptr)
        AfxThrowFileException(CFileException::invalidFile, -1, m_strFileName);
    size_t const count = std::fread(lpBuf, 1, nCount, m_pStream);
    if (count == 0 && std::feof(m_pStream) == 0)
        AfxThrowFileException(CFileException::genericException, files::StreamError(), m_strFileName);
    if (std::ferror(m_pStream) != 0)
    {
        LONG const error = files::StreamError();
        std::clearerr(m_pStream);
        AfxThrowFileException(CFileException::genericException, error, m_strFileName);
    }
    return static_cast<UINT>(count);
}

void CStdioFile::Write(void const * lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    if (m_pStream == nullptr)
        AfxThrowFileException(CFileException::invalidFile, -1, m_strFileName);
    if (std::fwrite(lpBuf, 1, nCount, m_pStream) != nCount)
        AfxThrowFileException(CFileException::genericException, files::StreamError(), m_strFileName);
}

void CStdioFile::Flush()
{
    if (m_pStream != nullptr && std::fflush(m_pStream) != 0)
        AfxThrowFileException(CFileException::diskFull, files::StreamError(), m_strFileName);
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom)
{
    if (m_pStream == nullptr)
        AfxThrowFileException(CFileException::invalidFile, -1, m_strFileName);
    if (nFrom > end || !files::SeekStream(m_pStream, lOff, nFrom))
        AfxThrowFileException(CFileException::badSeek, files::StreamError(), m_strFileName);
    return CStdioFile::GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const
{
    LONGLONG const position = m_pStream == nullptr ? -1 : files::StreamPosition(m_pStream);
    if (position < 0)
        AfxThrowFileException(CFileException::invalidFile, files::StreamError(), m_strFileName);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile::GetLength() const
{
    ULONGLONG const position = GetPosition();
    auto * const self = const_cast<CStdioFile *>(this);
    ULONGLONG const length = self->SeekToEnd();
    self->Seek(static_cast<LONGLONG>(position), begin);
    return length;
}

void CStdioFile::SetLength(ULONGLONG dwNewLen)
{
    Flush();
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
    files::SetLength(m_hFile, dwNewLen, m_strFileName);
}

void CStdioFile::WriteString(LPCTSTR lpsz)
{
    if (lpsz == nullptr)
        AfxThrowInvalidArgException();
    if (m_pStream == nullptr)
        AfxThrowFileException(CFileException::invalidFile, -1, m_strFileName);
    if (!files::WriteText(m_pStream, lpsz, m_wideText))
        AfxThrowFileException(CFileException::diskFull, files::StreamError(), m_strFileName);
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax)
{
    if (lpsz == nullptr || nMax == 0)
        AfxThrowInvalidArgException();
    if (m_pStream == nullptr)
        AfxThrowFileException(CFileException::invalidFile, -1, m_strFileName);
    if (files::ReadText(m_pStream, lpsz, nMax, m_wideText))
        return lpsz;
    if (std::feof(m_pStream) == 0)
    {
        LONG const error = files::StreamError();
        std::clearerr(m_pStream);
        AfxThrowFileException(CFileException::genericException, error, m_strFileName);
    }
    return nullptr;
}

BOOL CStdioFile::ReadString(CString & rString)
{
    constexpr UINT room = 256;
    rString.Empty();
    TCHAR part[room];
    bool found = false;
    while (ReadString(part, room) != nullptr)
    {
        found = true;
        size_t length = _tcslen(part);
        bool const ends = length > 0 && part[length - 1] == _T('\n');
        rString.Append(part, static_cast<int>(ends ? length - 1 : length));
        if (ends || length + 1 < room)
            break;
    }
    return found;
}

CFile * CStdioFile::Duplicate() const
{
    AfxThrowNotSupportedException();
}

void CStdioFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CStdioFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CStdioFile::Dump(CDumpContext & dc) const
{
    CFile::Dump(dc);
    dc << "on a stream at " << static_cast<void const *>(m_pStream) << "\n";
}
