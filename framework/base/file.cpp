#include "afx.h"
#include "FileStatus.h"

#if defined(_WIN32)

#include <iterator>

IMPLEMENT_DYNAMIC(CFile, CObject)

namespace
{
/// A moment that can't be told stays at none.
CTime TimeOf(FILETIME const & time)
{
    FILETIME const none{};
    return ::CompareFileTime(&time, &none) == 0 ? CTime() : CTime(time);
}
} // namespace

BOOL PASCAL CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus & rStatus, CAtlTransactionManager *)
{
    if (lpszFileName == nullptr || *lpszFileName == 0)
        return FALSE;
    DWORD const room = static_cast<DWORD>(std::size(rStatus.m_szFullName));
    DWORD const length = ::GetFullPathName(lpszFileName, room, rStatus.m_szFullName, nullptr);
    if (length == 0 || length >= room)
    {
        rStatus.m_szFullName[0] = 0;
        return FALSE;
    }
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!::GetFileAttributesEx(rStatus.m_szFullName, GetFileExInfoStandard, &data))
        return FALSE;
    rStatus.m_attribute = static_cast<BYTE>(data.dwFileAttributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL));
    rStatus.m_size = (static_cast<ULONGLONG>(data.nFileSizeHigh) << 32) | data.nFileSizeLow;
    rStatus.m_ctime = TimeOf(data.ftCreationTime);
    rStatus.m_mtime = TimeOf(data.ftLastWriteTime);
    rStatus.m_atime = TimeOf(data.ftLastAccessTime);
    return TRUE;
}

#endif
