#pragma once
// A file in the system's shared memory, and the list of the files that were used last.

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

#define AFX_ABBREV_FILENAME_LEN 30

/// The files used last, the latest first, kept with the program's settings and shown in a menu.
class FRAMEWORK_API CRecentFileList
{
public:
    CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize,
                    int nMaxDispLen = AFX_ABBREV_FILENAME_LEN);
    virtual ~CRecentFileList();
    CRecentFileList(const CRecentFileList &) = delete;
    CRecentFileList & operator=(const CRecentFileList &) = delete;

    int GetSize() const;
    /// Throws CInvalidArgException for an index outside.
    CString & operator[](int nindex);

    virtual void Add(LPCTSTR lpszPathName);
    virtual void Add(LPCTSTR lpszPathName, LPCTSTR lpszAppID);
    virtual void Remove(int nIndex);
    /// The name as a menu shows it: without the folder if it is the given one, else shortened in its middle. FALSE if
    /// there is no file of that index.
    virtual BOOL GetDisplayName(CString & strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                BOOL bAtLeastName = TRUE) const;
    virtual void UpdateMenu(CCmdUI * pCmdUI);
    virtual void ReadList();
    virtual void WriteList();

private:
    UINT m_start; // counts the menu's items from here
    CString m_section;
    CString m_entryFormat;
    int m_maxDisplay;
    CString m_originalText; // of the menu's first item, while there are no files
    CArray<CString> m_names;
};
