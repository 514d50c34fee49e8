// CFileFind.

#include "afx.h"

#if defined(_WIN32)

IMPLEMENT_DYNAMIC(CFileFind, CObject)

CFileFind::~CFileFind()
{
    if (m_context != INVALID_HANDLE_VALUE)
        ::FindClose(m_context);
}

void CFileFind::Close()
{
    CloseContext();
    m_stepped = m_more = false;
    m_root.Empty();
}

void CFileFind::CloseContext()
{
    if (m_context != INVALID_HANDLE_VALUE)
        ::FindClose(m_context);
    m_context = INVALID_HANDLE_VALUE;
}

BOOL CFileFind::FindFile(LPCTSTR pstrName, DWORD)
{
    Close();
    if (pstrName == nullptr)
        pstrName = _T("*.*");
    TCHAR path[MAX_PATH];
    DWORD const length = ::GetFullPathName(pstrName, MAX_PATH, path, nullptr);
    if (length == 0 || length >= MAX_PATH)
    {
        ::SetLastError(ERROR_INVALID_NAME);
        return FALSE;
    }
    m_context = ::FindFirstFile(pstrName, &m_next);
    if (m_context == INVALID_HANDLE_VALUE)
        return FALSE;
    m_more = true;
    CString const full(path);
    m_root = full.Left(full.ReverseFind(_T('\\')) + 1);
    return TRUE;
}

BOOL CFileFind::FindNextFile()
{
    if (m_context == INVALID_HANDLE_VALUE || !m_more)
        return FALSE;
    m_found = m_next;
    m_stepped = true;
    m_more = ::FindNextFile(m_context, &m_next) != FALSE;
    return m_more;
}

ULONGLONG CFileFind::GetLength() const
{
    return HasFile() ? (static_cast<ULONGLONG>(m_found.nFileSizeHigh) << 32) | m_found.nFileSizeLow : 0;
}

CString CFileFind::GetFileName() const
{
    return HasFile() ? CString(m_found.cFileName) : CString();
}

CString CFileFind::GetFilePath() const
{
    return m_root + GetFileName();
}

CString CFileFind::GetFileTitle() const
{
    CString const name = GetFileName();
    int const dot = IsDots() ? -1 : name.ReverseFind(_T('.'));
    return dot > 0 ? name.Left(dot) : name;
}

CString CFileFind::GetFileURL() const
{
    return _T("file://") + GetFilePath();
}

CString CFileFind::GetRoot() const
{
    // Only the root of a drive ends with the separator.
    int const length = m_root.GetLength();
    return length > 3 ? m_root.Left(length - 1) : m_root;
}

BOOL CFileFind::GetCreationTime(FILETIME * pTimeStamp) const
{
    if (!HasFile() || pTimeStamp == nullptr)
        return FALSE;
    *pTimeStamp = m_found.ftCreationTime;
    return TRUE;
}

BOOL CFileFind::GetCreationTime(CTime & refTime) const
{
    refTime = HasFile() ? CTime(m_found.ftCreationTime) : CTime();
    return HasFile();
}

BOOL CFileFind::GetLastAccessTime(FILETIME * pTimeStamp) const
{
    if (!HasFile() || pTimeStamp == nullptr)
        return FALSE;
    *pTimeStamp = m_found.ftLastAccessTime;
    return TRUE;
}

BOOL CFileFind::GetLastAccessTime(CTime & refTime) const
{
    refTime = HasFile() ? CTime(m_found.ftLastAccessTime) : CTime();
    return HasFile();
}

BOOL CFileFind::GetLastWriteTime(FILETIME * pTimeStamp) const
{
    if (!HasFile() || pTimeStamp == nullptr)
        return FALSE;
    *pTimeStamp = m_found.ftLastWriteTime;
    return TRUE;
}

BOOL CFileFind::GetLastWriteTime(CTime & refTime) const
{
    refTime = HasFile() ? CTime(m_found.ftLastWriteTime) : CTime();
    return HasFile();
}

BOOL CFileFind::MatchesMask(DWORD dwMask) const
{
    return HasFile() && (m_found.dwFileAttributes & dwMask) != 0;
}

BOOL CFileFind::IsDots() const
{
    if (!IsDirectory())
        return FALSE;
    CString const name(m_found.cFileName);
    return name == _T(".") || name == _T("..");
}

void CFileFind::Dump(CDumpContext & dc) const
{
    CObject::Dump(dc);
    dc << "in " << m_root.GetString() << "\n";
}

void CFileFind::AssertValid() const
{
    CObject::AssertValid();
}

#endif
