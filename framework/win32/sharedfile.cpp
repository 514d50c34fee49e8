// CSharedFile.

#include <afxadv.h>

IMPLEMENT_DYNAMIC(CSharedFile, CMemFile)

CSharedFile::CSharedFile(UINT nAllocFlags, UINT nGrowBytes) : CMemFile(nGrowBytes), m_allocFlags(nAllocFlags) {}

CSharedFile::~CSharedFile()
{
    if (m_lpBuffer != nullptr)
        CSharedFile::Free(m_lpBuffer);
    m_lpBuffer = nullptr;
}

void CSharedFile::SetHandle(HGLOBAL hGlobalMemory, BOOL bAllowGrow)
{
    if (hGlobalMemory == nullptr)
        AfxThrowInvalidArgException();
    if (m_lpBuffer != nullptr)
        Free(m_lpBuffer);
    m_memory = hGlobalMemory;
    m_lpBuffer = static_cast<BYTE *>(::GlobalLock(hGlobalMemory));
    m_nBufferSize = m_nFileSize = ::GlobalSize(hGlobalMemory);
    m_nPosition = 0;
    m_allowGrow = bAllowGrow;
    m_bAutoDelete = TRUE;
}

BYTE * CSharedFile::Alloc(SIZE_T nBytes)
{
    m_memory = ::GlobalAlloc(m_allocFlags, nBytes);
    return m_memory == nullptr ? nullptr : static_cast<BYTE *>(::GlobalLock(m_memory));
}

BYTE * CSharedFile::Realloc(BYTE *, SIZE_T nBytes)
{
    if (!m_allowGrow || m_memory == nullptr)
        return nullptr;
    ::GlobalUnlock(m_memory);
    HGLOBAL const larger = ::GlobalReAlloc(m_memory, nBytes, m_allocFlags);
    if (larger == nullptr)
    {
        // The file goes on with what it has.
        m_lpBuffer = static_cast<BYTE *>(::GlobalLock(m_memory));
        return nullptr;
    }
    m_memory = larger;
    return static_cast<BYTE *>(::GlobalLock(m_memory));
}

void CSharedFile::Free(BYTE *)
{
    if (m_memory == nullptr)
        return;
    ::GlobalUnlock(m_memory);
    ::GlobalFree(m_memory);
    m_memory = nullptr;
}

HGLOBAL CSharedFile::Detach()
{
    HGLOBAL const memory = m_memory;
    if (memory != nullptr)
        ::GlobalUnlock(memory);
    m_memory = nullptr;
    m_lpBuffer = nullptr;
    m_nPosition = m_nBufferSize = m_nFileSize = 0;
    return memory;
}
