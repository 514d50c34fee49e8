#pragma once
// A file in the system's shared memory.

#define __AFXADV_H__

#include <afxwin.h>

/// For the clipboard and other programs: its memory is a handle.
class FRAMEWORK_API CSharedFile : public CMemFile
{
    DECLARE_DYNAMIC(CSharedFile)

public:
    explicit CSharedFile(UINT nAllocFlags = GMEM_DDESHARE | GMEM_MOVEABLE, UINT nGrowBytes = 4096);
    ~CSharedFile() override;

    /// The memory, which is the caller's then. The file is empty.
    HGLOBAL Detach();
    /// Uses memory of the caller's, which holds the file. The file owns it from then on.
    void SetHandle(HGLOBAL hGlobalMemory, BOOL bAllowGrow = TRUE);

protected:
    BYTE * Alloc(SIZE_T nBytes) override;
    BYTE * Realloc(BYTE * lpMem, SIZE_T nBytes) override;
    void Free(BYTE * lpMem) override;

private:
    UINT m_allocFlags;
    HGLOBAL m_memory = nullptr;
    BOOL m_allowGrow = TRUE;
};
