#pragma once
// CArchive, and the operators that store the framework's values in it. Included by afx.h.

#include "FileClasses.h"

class CArchive;
class CDocument;

namespace framework
{
struct ArchiveAccess;

/// Reads a count of elements that take elementSize bytes of memory each. One that is far out of proportion to the bytes
/// that follow throws endOfFile, where the file's length is known.
FRAMEWORK_API DWORD_PTR ReadElementCount(CArchive & ar, size_t elementSize);
/// Throws endOfFile where there are fewer bytes.
FRAMEWORK_API void ReadBytes(CArchive & ar, void * bytes, size_t count);
FRAMEWORK_API void WriteBytes(CArchive & ar, void const * bytes, size_t count);
} // namespace framework

/// Stores objects and values in a file, or loads them. Numbers have fixed widths, least byte first: char, BYTE, bool 1;
/// short, WORD, wchar_t 2; int, unsigned, LONG, DWORD, float 4; LONGLONG, ULONGLONG, double 8.
///
/// What is read is not trusted: an archive that is damaged ends with CArchiveException or CFileException. Objects that
/// were loaded until then belong to nobody, as others may refer to them.
class FRAMEWORK_API CArchive
{
public:
    enum Mode
    {
        store = 0,
        load = 1,
        bNoFlushOnDelete = 2,
        bNoByteSwap = 4
    };

    /// The file stays the caller's, as does a buffer of his own, which counts from 128 bytes on.
    CArchive(CFile * pFile, UINT nMode, int nBufSize = 4096, void * lpBuf = nullptr);
    CArchive(CArchive const &) = delete;
    CArchive & operator=(CArchive const &) = delete;
    /// Closes, unless created with bNoFlushOnDelete.
    ~CArchive() noexcept(false);

    /// Of a document that is stored or loaded; else null.
    CDocument * m_pDocument = nullptr;

    BOOL IsLoading() const { return (m_mode & load) != 0; }
    BOOL IsStoring() const { return (m_mode & load) == 0; }
    BOOL IsBufferEmpty() const;
    CFile * GetFile() const { return m_file; }

    /// Once in each Serialize, while loading: the schema of the object's class when it was stored. Then -1.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT nSchema) { m_objectSchema = nSchema; }
    void SetLoadParams(UINT nGrowBy = 1024);
    void SetStoreParams(UINT nHashSize = 2053, UINT nBlockSize = 128);

    /// Writes what is buffered; when loading, sets the file's position back to behind what was read.
    void Flush();
    void Close();
    /// Closes without an exception, and without writing what is still buffered.
    void Abort();

    /// Less than asked for only at the end.
    UINT Read(void * lpBuf, UINT nMax);
    void Write(void const * lpBuf, UINT nMax);
    /// The characters alone, without length or end.
    void WriteString(LPCTSTR lpsz);
    /// At most nMax characters and a null, up to a line's end, which is dropped. Null at the end of the archive.
    LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    BOOL ReadString(CString & rString);

    /// Two bytes for counts below 0xFFFF; else these and four bytes; eight more behind 0xFFFFFFFF.
    void WriteCount(DWORD_PTR dwCount);
    DWORD_PTR ReadCount();

    void WriteObject(CObject const * pOb);
    /// Null for an object stored as null. The caller owns what was created.
    CObject * ReadObject(CRuntimeClass const * pClass);
    void WriteClass(CRuntimeClass const * pClassRef);
    /// Null, with the object's tag, where an object follows that was stored before.
    CRuntimeClass * ReadClass(CRuntimeClass const * pClassRefRequested = nullptr, UINT * pSchema = nullptr,
                              DWORD * pObTag = nullptr);
    void SerializeClass(CRuntimeClass const * pClassRef);
    /// Lets later references mean this object, though it is serialised by its owner and not as an object.
    void MapObject(CObject const * pOb);

    CArchive & operator<<(BYTE by);
    CArchive & operator<<(WORD w);
    CArchive & operator<<(short w);
    CArchive & operator<<(int i);
    CArchive & operator<<(unsigned u);
#if defined(_WIN32)
    CArchive & operator<<(LONG l);
    CArchive & operator<<(DWORD dw);
#endif
    CArchive & operator<<(LONGLONG dwdw);
    CArchive & operator<<(ULONGLONG dwdw);
    CArchive & operator<<(float f);
    CArchive & operator<<(double d);
    CArchive & operator<<(char ch);
    CArchive & operator<<(wchar_t ch);
    CArchive & operator<<(bool b);

    CArchive & operator>>(BYTE & by);
    CArchive & operator>>(WORD & w);
    CArchive & operator>>(short & w);
    CArchive & operator>>(int & i);
    CArchive & operator>>(unsigned & u);
#if defined(_WIN32)
    CArchive & operator>>(LONG & l);
    CArchive & operator>>(DWORD & dw);
#endif
    CArchive & operator>>(LONGLONG & dwdw);
    CArchive & operator>>(ULONGLONG & dwdw);
    CArchive & operator>>(float & f);
    CArchive & operator>>(double & d);
    CArchive & operator>>(char & ch);
    CArchive & operator>>(wchar_t & ch);
    CArchive & operator>>(bool & b);

    /// Wide text: the bytes FF FE FF, then the length and two bytes for each unit of UTF-16. Narrow text: the length
    /// and the characters. The length is a byte below 255; else 255 and two bytes below 0xFFFE; else two of 0xFFFF and
    /// four.
    template <class BaseType, class StringTraits>
    CArchive & operator<<(ATL::CStringT<BaseType, StringTraits> const & str)
    {
        StoreText(str.GetString(), str.GetLength());
        return *this;
    }
    /// Takes either kind of text.
    template <class BaseType, class StringTraits> CArchive & operator>>(ATL::CStringT<BaseType, StringTraits> & str)
    {
        LoadText(str);
        return *this;
    }

private:
    friend struct framework::ArchiveAccess;

    struct Maps;

    template <class Value> CArchive & Store(Value value);
    template <class Value> CArchive & Load(Value & value);
    void ReadAll(void * bytes, UINT count);
    bool ReadUnit(WORD & unit);
    void StoreText(char const * text, int length);
    void StoreText(wchar_t const * text, int length);
    void StoreLength(int length);
    void LoadText(ATL::CSimpleStringT<char> & text);
    void LoadText(ATL::CSimpleStringT<wchar_t> & text);
    ULONGLONG LoadLength(bool & wide);
    std::basic_string<char> LoadBytes(ULONGLONG count);
    void NeedStoring() const;
    void NeedLoading() const;
    bool Fill();
    void CheckDepth() const;
    Maps & MapsInUse();
    [[noreturn]] void Throw(int cause) const;

    CFile * m_file;
    UINT m_mode;
    UINT m_objectSchema = static_cast<UINT>(-1);
    BYTE * m_buffer;
    size_t m_size;
    size_t m_at = 0;  // next byte to read or write
    size_t m_end = 0; // of what was read
    bool m_ownBuffer;
    int m_exceptions; // that were on their way when this was made
    CString m_name;
    Maps * m_maps = nullptr;
};

FRAMEWORK_API CArchive & AFXAPI operator<<(CArchive & ar, CObject const * pOb);
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CObject *& pOb);
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, CObject const *& pOb);
FRAMEWORK_API CArchive & AFXAPI operator<<(CArchive & ar, SIZE size);
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, SIZE & size);
FRAMEWORK_API CArchive & AFXAPI operator<<(CArchive & ar, POINT point);
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, POINT & point);
FRAMEWORK_API CArchive & AFXAPI operator<<(CArchive & ar, RECT const & rect);
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, RECT & rect);
FRAMEWORK_API CArchive & AFXAPI operator<<(CArchive & ar, ATL::CTime time);
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, ATL::CTime & rtime);
FRAMEWORK_API CArchive & AFXAPI operator<<(CArchive & ar, ATL::CTimeSpan timeSpan);
FRAMEWORK_API CArchive & AFXAPI operator>>(CArchive & ar, ATL::CTimeSpan & rtimeSpan);
