#pragma once
// Files: CFile, and those on a stream of the C library and in memory; searching folders. Included by afx.h.

#include "afxexcept.h"

#include <cstdio>

class CAtlTransactionManager;

/// What a file's folder knows of it.
struct CFileStatus
{
    CTime m_ctime; // made
    CTime m_mtime; // changed last
    CTime m_atime; // read last
    ULONGLONG m_size = 0;
    BYTE m_attribute = 0; // CFile::Attribute bits
    BYTE _m_padding = 0;
    TCHAR m_szFullName[MAX_PATH] = {};
};

/// A file of the platform, without a buffer. Failures throw CFileException, but for Open, which tells.
/// Transactions are not supported: their manager is taken and left alone.
class FRAMEWORK_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

public:
    enum OpenFlags
    {
        modeRead = 0x00000,
        modeWrite = 0x00001,
        modeReadWrite = 0x00002,
        shareCompat = 0x00000,
        shareExclusive = 0x00010,
        shareDenyWrite = 0x00020,
        shareDenyRead = 0x00030,
        shareDenyNone = 0x00040,
        modeNoInherit = 0x00080,
        typeUnicode = 0x00400, // of CStdioFile
        modeCreate = 0x01000,
        modeNoTruncate = 0x02000,
        typeText = 0x04000,   // of CStdioFile
        typeBinary = 0x08000, // of CStdioFile
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    enum Attribute
    {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };
    enum SeekPosition
    {
        begin = 0,
        current = 1,
        end = 2
    };
    enum BufferCommand
    {
        bufferRead,
        bufferWrite,
        bufferCommit,
        bufferCheck,
        bufferBlocking,
        bufferDirect
    };

    static HANDLE const hFileNull;

    CFile();
    explicit CFile(CAtlTransactionManager * pTM);
    /// For an open file, which the destructor leaves open.
    CFile(HANDLE hFile);
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager * pTM);
    /// Closes a file that this object has opened.
    ~CFile() override;

    HANDLE m_hFile;
    CAtlTransactionManager * m_pTM = nullptr;

    operator HANDLE() const { return m_hFile; }

    /// FALSE, with the reason in pError, when the file can't be opened. A path of MAX_PATH characters or more can't.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException * pError = nullptr);
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager * pTM,
                      CFileException * pError = nullptr);
    virtual void Close();
    /// Closes without an exception, and without writing what is still buffered.
    virtual void Abort();
    /// Another object for the same open file, with its position in common. The caller deletes it.
    virtual CFile * Duplicate() const;

    virtual UINT Read(void * lpBuf, UINT nCount);
    virtual void Write(void const * lpBuf, UINT nCount);
    virtual void Flush();
    /// The new position, which may lie behind the end; one before the beginning throws badSeek.
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    /// The position is at the new end then.
    virtual void SetLength(ULONGLONG dwNewLen);
    /// Where the platform's locks bind nobody who doesn't ask for one, neither do these.
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);

    /// With extension, without folders.
    virtual CString GetFileName() const;
    /// Without extension and folders.
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const;
    /// Changes only what the object says of itself.
    virtual void SetFilePath(LPCTSTR lpszNewName);
    BOOL GetStatus(CFileStatus & rStatus) const;

    /// FALSE for a file that isn't there, and for a path that is too long.
    static BOOL PASCAL GetStatus(LPCTSTR lpszFileName, CFileStatus & rStatus, CAtlTransactionManager * pTM = nullptr);
    /// Sets the attributes, and each of the times that isn't 0.
    static void PASCAL SetStatus(LPCTSTR lpszFileName, CFileStatus const & status,
                                 CAtlTransactionManager * pTM = nullptr);
    static void PASCAL Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName, CAtlTransactionManager * pTM = nullptr);
    static void PASCAL Remove(LPCTSTR lpszFileName, CAtlTransactionManager * pTM = nullptr);

    void AssertValid() const override;
    void Dump(CDumpContext & dc) const override;

protected:
    BOOL m_bCloseOnDelete = FALSE;
    CString m_strFileName;
};

/// A file on a stream of the C library: buffered, and read and written by lines. Text unless opened as typeBinary.
class FRAMEWORK_API CStdioFile : public CFile
{
    DECLARE_DYNAMIC(CStdioFile)

public:
    CStdioFile();
    explicit CStdioFile(CAtlTransactionManager * pTM);
    /// For an open stream, which the destructor leaves open.
    CStdioFile(FILE * pOpenStream);
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager * pTM);
    ~CStdioFile() override;

    FILE * m_pStream = nullptr;

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException * pError = nullptr) override;
    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CAtlTransactionManager * pTM,
              CFileException * pError = nullptr) override;
    void Close() override;
    void Abort() override;
    UINT Read(void * lpBuf, UINT nCount) override;
    void Write(void const * lpBuf, UINT nCount) override;
    void Flush() override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;

    virtual void WriteString(LPCTSTR lpsz);
    /// At most nMax - 1 characters, up to a line's end, which is kept. Null at the end of the file.
    virtual LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    /// A line without its end. FALSE at the end of the file.
    virtual BOOL ReadString(CString & rString);

    // Not supported: these throw.
    CFile * Duplicate() const override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;

    void Dump(CDumpContext & dc) const override;

private:
    bool m_wideText = false; // the text in the file is UTF-16
};

/// A file in memory.
class FRAMEWORK_API CMemFile : public CFile
{
    DECLARE_DYNAMIC(CMemFile)

public:
    explicit CMemFile(UINT nGrowBytes = 1024);
    /// As Attach.
    CMemFile(BYTE * lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override;

    /// Uses the caller's memory: as the file's contents when it shall not grow (nGrowBytes 0), else for a file that is
    /// empty yet and whose growth reallocates the memory. It stays the caller's: see Detach.
    void Attach(BYTE * lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// The memory, which is the caller's then; the file is empty.
    BYTE * Detach();

    BOOL GetStatus(CFileStatus & rStatus) const;
    void Close() override;
    void Abort() override;
    UINT Read(void * lpBuf, UINT nCount) override;
    void Write(void const * lpBuf, UINT nCount) override;
    void Flush() override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;
    /// The file's own memory at its position, instead of a copy. bufferCommit tells how much of it was written.
    virtual UINT GetBufferPtr(UINT nCommand, UINT nCount = 0, void ** ppBufStart = nullptr, void ** ppBufMax = nullptr);

    // Not supported: these throw.
    CFile * Duplicate() const override;
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;

    void AssertValid() const override;
    void Dump(CDumpContext & dc) const override;

protected:
    virtual BYTE * Alloc(SIZE_T nBytes);
    virtual void Free(BYTE * lpMem);
    virtual BYTE * Realloc(BYTE * lpMem, SIZE_T nBytes);
    virtual BYTE * Memcpy(BYTE * lpMemTarget, BYTE const * lpMemSource, SIZE_T nBytes);
    virtual void GrowFile(SIZE_T dwNewLen);

    UINT m_nGrowBytes;
    SIZE_T m_nPosition = 0;
    SIZE_T m_nBufferSize = 0;
    SIZE_T m_nFileSize = 0;
    BYTE * m_lpBuffer = nullptr;
    BOOL m_bAutoDelete = TRUE;

private:
    void FillGap();
};

#if defined(_WIN32)

/// Searches a folder. FindFile looks, FindNextFile steps to each file found, the first one too; it says whether there
/// are more.
class FRAMEWORK_API CFileFind : public CObject
{
    DECLARE_DYNAMIC(CFileFind)

public:
    CFileFind() = default;
    explicit CFileFind(CAtlTransactionManager * pTM) : m_pTM(pTM) {}
    ~CFileFind() override;

    CAtlTransactionManager * m_pTM = nullptr;

    void Close();
    /// Without a name all files of the current folder.
    virtual BOOL FindFile(LPCTSTR pstrName = nullptr, DWORD dwUnused = 0);
    virtual BOOL FindNextFile();

    ULONGLONG GetLength() const;
    virtual CString GetFileName() const;
    virtual CString GetFilePath() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFileURL() const;
    virtual CString GetRoot() const;
    virtual BOOL GetCreationTime(FILETIME * pTimeStamp) const;
    virtual BOOL GetCreationTime(CTime & refTime) const;
    virtual BOOL GetLastAccessTime(FILETIME * pTimeStamp) const;
    virtual BOOL GetLastAccessTime(CTime & refTime) const;
    virtual BOOL GetLastWriteTime(FILETIME * pTimeStamp) const;
    virtual BOOL GetLastWriteTime(CTime & refTime) const;

    virtual BOOL MatchesMask(DWORD dwMask) const;
    virtual BOOL IsDots() const;
    BOOL IsReadOnly() const { return MatchesMask(FILE_ATTRIBUTE_READONLY); }
    BOOL IsDirectory() const { return MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    BOOL IsCompressed() const { return MatchesMask(FILE_ATTRIBUTE_COMPRESSED); }
    BOOL IsSystem() const { return MatchesMask(FILE_ATTRIBUTE_SYSTEM); }
    BOOL IsHidden() const { return MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    BOOL IsTemporary() const { return MatchesMask(FILE_ATTRIBUTE_TEMPORARY); }
    BOOL IsNormal() const { return MatchesMask(FILE_ATTRIBUTE_NORMAL); }
    BOOL IsArchived() const { return MatchesMask(FILE_ATTRIBUTE_ARCHIVE); }

    void Dump(CDumpContext & dc) const override;
    void AssertValid() const override;

protected:
    virtual void CloseContext();

private:
    bool HasFile() const { return m_stepped && m_context != INVALID_HANDLE_VALUE; }

    HANDLE m_context = INVALID_HANDLE_VALUE;
    bool m_stepped = false; // onto the first file
    bool m_more = false;    // m_next is another file
    CString m_root;         // with its separator at the end
    WIN32_FIND_DATA m_found{};
    WIN32_FIND_DATA m_next{};
};

#endif
