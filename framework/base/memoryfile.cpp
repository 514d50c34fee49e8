// CMemFile.

#include "afx.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT nGrowBytes) : m_nGrowBytes(nGrowBytes) {}

CMemFile::CMemFile(BYTE * lpBuffer, UINT nBufferSize, UINT nGrowBytes) : m_nGrowBytes(nGrowBytes)
{
    CMemFile::Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile()
{
    if (m_lpBuffer != nullptr && m_bAutoDelete)
        CMemFile::Free(m_lpBuffer);
}

void CMemFile::Attach(BYTE * lpBuffer, UINT nBufferSize, UINT nGrowBytes)
{
    if (m_lpBuffer != nullptr && m_bAutoDelete)
        Free(m_lpBuffer);
    m_nGrowBytes = nGrowBytes;
    m_nPosition = 0;
    m_nBufferSize = nBufferSize;
    m_nFileSize = nGrowBytes == 0 ? nBufferSize : 0;
    m_lpBuffer = lpBuffer;
    m_bAutoDelete = FALSE;
}

BYTE * CMemFile::Detach()
{
    BYTE * const buffer = m_lpBuffer;
    m_lpBuffer = nullptr;
    m_nPosition = m_nBufferSize = m_nFileSize = 0;
    return buffer;
}

BOOL CMemFile::GetStatus(CFileStatus & rStatus) const
{
    rStatus = CFileStatus();
    rStatus.m_size = m_nFileSize;
    if (m_strFileName.GetLength() < MAX_PATH)
        std::wmemcpy(rStatus.m_szFullName, m_strFileName, static_cast<size_t>(m_strFileName.GetLength()));
    return TRUE;
}

void CMemFile::Close()
{
    m_nGrowBytes = 0;
    m_nPosition = m_nBufferSize = m_nFileSize = 0;
    if (m_lpBuffer != nullptr && m_bAutoDelete)
        Free(m_lpBuffer);
    m_lpBuffer = nullptr;
}

void CMemFile::Abort()
{
    Close();
}

UINT CMemFile::Read(void * lpBuf, UINT nCount)
{
    if (m_nPosition >= m_nFileSize || nCount == 0)
        return 0;
    auto const count = static_cast<UINT>(std::min<SIZE_T>(nCount, m_nFileSize - m_nPosition));
    Memcpy(static_cast<BYTE *>(lpBuf), m_lpBuffer + m_nPosition, count);
    m_nPosition += count;
    return count;
}

void CMemFile::Write(void const * lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    if (nCount > SIZE_MAX - m_nPosition)
        AfxThrowMemoryException();
    SIZE_T const end = m_nPosition + nCount;
    if (end > m_nBufferSize)
        GrowFile(end);
    FillGap();
    Memcpy(m_lpBuffer + m_nPosition, static_cast<BYTE const *>(lpBuf), nCount);
    m_nPosition = end;
    m_nFileSize = std::max(m_nFileSize, m_nPosition);
}

// What lies between the end and a position behind it was never written.
void CMemFile::FillGap()
{
    if (m_nPosition > m_nFileSize)
        std::memset(m_lpBuffer + m_nFileSize, 0, m_nPosition - m_nFileSize);
}

void CMemFile::Flush() {}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom)
{
    ULONGLONG const base = nFrom == begin ? 0 : nFrom == current ? m_nPosition : m_nFileSize;
    if (nFrom > end)
        AfxThrowFileException(CFileException::badSeek, -1, m_strFileName);
    auto const offset = static_cast<ULONGLONG>(lOff);
    ULONGLONG const target = base + offset;
    bool const wrapped = lOff < 0 ? target > base : target < base;
    if (wrapped || target > static_cast<ULONGLONG>(INT64_MAX))
        AfxThrowFileException(CFileException::badSeek, -1, m_strFileName);
    m_nPosition = static_cast<SIZE_T>(target);
    return target;
}

ULONGLONG CMemFile::GetPosition() const
{
    return m_nPosition;
}

ULONGLONG CMemFile::GetLength() const
{
    return m_nFileSize;
}

void CMemFile::SetLength(ULONGLONG dwNewLen)
{
    if (dwNewLen > SIZE_MAX)
        AfxThrowMemoryException();
    auto const length = static_cast<SIZE_T>(dwNewLen);
    if (length > m_nBufferSize)
        GrowFile(length);
    if (length > m_nFileSize)
        std::memset(m_lpBuffer + m_nFileSize, 0, length - m_nFileSize);
    m_nFileSize = length;
    m_nPosition = std::min(m_nPosition, length);
}

UINT CMemFile::GetBufferPtr(UINT nCommand, UINT nCount, void ** ppBufStart, void ** ppBufMax)
{
    if (nCommand == bufferCheck)
        return bufferDirect;
    if (nCommand == bufferCommit)
    {
        m_nPosition += std::min<SIZE_T>(nCount, m_nPosition < m_nBufferSize ? m_nBufferSize - m_nPosition : 0);
        m_nFileSize = std::max(m_nFileSize, m_nPosition);
        return 0;
    }
    if ((nCommand != bufferRead && nCommand != bufferWrite) || ppBufStart == nullptr || ppBufMax == nullptr)
        AfxThrowInvalidArgException();
    bool const writing = nCommand == bufferWrite;
    if (writing)
    {
        if (nCount > SIZE_MAX - m_nPosition)
            AfxThrowMemoryException();
        if (m_nPosition + nCount > m_nBufferSize)
            GrowFile(m_nPosition + nCount);
        FillGap();
    }
    SIZE_T const limit = writing ? m_nBufferSize : m_nFileSize;
    SIZE_T const start = std::min(m_nPosition, limit);
    SIZE_T const count = std::min<SIZE_T>(nCount, limit - start);
    *ppBufStart = m_lpBuffer + start;
    *ppBufMax = m_lpBuffer + start + count;
    if (!writing)
        m_nPosition += count;
    return static_cast<UINT>(count);
}

CFile * CMemFile::Duplicate() const
{
    AfxThrowNotSupportedException();
}

void CMemFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CMemFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

BYTE * CMemFile::Alloc(SIZE_T nBytes)
{
    return static_cast<BYTE *>(std::malloc(nBytes));
}

void CMemFile::Free(BYTE * lpMem)
{
    std::free(lpMem);
}

BYTE * CMemFile::Realloc(BYTE * lpMem, SIZE_T nBytes)
{
    return static_cast<BYTE *>(std::realloc(lpMem, nBytes));
}

BYTE * CMemFile::Memcpy(BYTE * lpMemTarget, BYTE const * lpMemSource, SIZE_T nBytes)
{
    std::memcpy(lpMemTarget, lpMemSource, nBytes);
    return lpMemTarget;
}

void CMemFile::GrowFile(SIZE_T dwNewLen)
{
    if (dwNewLen <= m_nBufferSize)
        return;
    if (m_nGrowBytes == 0)
        AfxThrowMemoryException();
    // Large files grow by an eighth, or growing would copy them all the time.
    SIZE_T const needed = (dwNewLen - m_nBufferSize - 1) / m_nGrowBytes + 1;
    SIZE_T const steps = std::max(needed, m_nBufferSize / m_nGrowBytes / 8);
    if (steps > (SIZE_MAX / 2 - m_nBufferSize) / m_nGrowBytes)
        AfxThrowMemoryException();
    SIZE_T const size = m_nBufferSize + steps * m_nGrowBytes;
    BYTE * const buffer = m_lpBuffer == nullptr ? Alloc(size) : Realloc(m_lpBuffer, size);
    if (buffer == nullptr)
        AfxThrowMemoryException();
    m_lpBuffer = buffer;
    m_nBufferSize = size;
}

void CMemFile::AssertValid() const
{
    CFile::AssertValid();
    ASSERT((m_lpBuffer == nullptr) == (m_nBufferSize == 0));
    ASSERT(m_nFileSize <= m_nBufferSize);
}

void CMemFile::Dump(CDumpContext & dc) const
{
    CFile::Dump(dc);
    dc << "of " << static_cast<ULONGLONG>(m_nFileSize) << " bytes\n";
}
