#pragma once
// CSimpleStringT: a reference to a shared, counted buffer of characters that is copied when it is written to.
//
// The buffer's CStringData stands right in front of its characters; a string object is one pointer to the characters.

#include "afxver_.h"

#include <atomic>
#include <cstring>
#include <string_view>

namespace ATL
{
struct CStringData;

/// Throws the exception that stands for the code: CMemoryException, CInvalidArgException, else CNotSupportedException.
[[noreturn]] FRAMEWORK_API void WINAPI AtlThrow(HRESULT hr);

/// Allocates the buffers of strings. Lengths are in characters, without the terminating null.
struct IAtlStringMgr
{
    /// Null when there is no memory.
    virtual CStringData * Allocate(int nAllocLength, int nCharSize) noexcept = 0;
    virtual void Free(CStringData * pData) noexcept = 0;
    /// Null when there is no memory; the old buffer stands then.
    virtual CStringData * Reallocate(CStringData * pData, int nAllocLength, int nCharSize) noexcept = 0;
    virtual CStringData * GetNilString() noexcept = 0;
    /// The manager that copies of a string use.
    virtual IAtlStringMgr * Clone() noexcept = 0;

protected:
    ~IAtlStringMgr() = default;
};

struct CStringData
{
    IAtlStringMgr * pStringMgr;
    int nDataLength;
    int nAllocLength;
    // Negative: locked, so that the buffer is neither shared nor moved.
    long nRefs;

    void * data() noexcept { return this + 1; }
    void AddRef() noexcept { std::atomic_ref(nRefs).fetch_add(1, std::memory_order_relaxed); }
    bool IsLocked() const noexcept { return Refs() < 0; }
    bool IsShared() const noexcept { return Refs() > 1; }
    void Lock() noexcept
    {
        if (--nRefs == 0)
            nRefs = -1;
    }
    void Release() noexcept
    {
        if (std::atomic_ref(nRefs).fetch_sub(1, std::memory_order_acq_rel) <= 1)
            pStringMgr->Free(this);
    }
    void Unlock() noexcept
    {
        if (IsLocked() && ++nRefs == 0)
            nRefs = 1;
    }

private:
    long Refs() const noexcept { return std::atomic_ref(const_cast<long &>(nRefs)).load(std::memory_order_acquire); }
};

template <class BaseType> struct ChTraitsBase;

template <> struct ChTraitsBase<char>
{
    using XCHAR = char;
    using PXSTR = LPSTR;
    using PCXSTR = LPCSTR;
    using YCHAR = wchar_t;
    using PYSTR = LPWSTR;
    using PCYSTR = LPCWSTR;
};

template <> struct ChTraitsBase<wchar_t>
{
    using XCHAR = wchar_t;
    using PXSTR = LPWSTR;
    using PCXSTR = LPCWSTR;
    using YCHAR = char;
    using PYSTR = LPSTR;
    using PCYSTR = LPCSTR;
};

template <class BaseType, int t_nSize> class CStaticString;

template <class BaseType, bool t_bMFCDLL = false> class CSimpleStringT
{
public:
    using XCHAR = typename ChTraitsBase<BaseType>::XCHAR;
    using PXSTR = typename ChTraitsBase<BaseType>::PXSTR;
    using PCXSTR = typename ChTraitsBase<BaseType>::PCXSTR;
    using YCHAR = typename ChTraitsBase<BaseType>::YCHAR;
    using PYSTR = typename ChTraitsBase<BaseType>::PYSTR;
    using PCYSTR = typename ChTraitsBase<BaseType>::PCYSTR;

    explicit CSimpleStringT(IAtlStringMgr * pStringMgr) noexcept { Attach(pStringMgr->GetNilString()); }
    CSimpleStringT(CSimpleStringT const & strSrc) { Attach(Share(strSrc.Data())); }
    CSimpleStringT(PCXSTR pszSrc, IAtlStringMgr * pStringMgr) : CSimpleStringT(pStringMgr) { SetString(pszSrc); }
    CSimpleStringT(XCHAR const * pchSrc, int nLength, IAtlStringMgr * pStringMgr) : CSimpleStringT(pStringMgr)
    {
        SetString(pchSrc, nLength);
    }
    ~CSimpleStringT() noexcept { Data()->Release(); }

    CSimpleStringT & operator=(CSimpleStringT const & strSrc)
    {
        CStringData * const source = strSrc.Data();
        CStringData * const old = Data();
        if (source == old)
            return *this;
        if (old->IsLocked() || source->pStringMgr != old->pStringMgr)
        {
            SetString(strSrc.GetString(), strSrc.GetLength());
            return *this;
        }
        CStringData * const shared = Share(source);
        old->Release();
        Attach(shared);
        return *this;
    }
    CSimpleStringT & operator=(PCXSTR pszSrc)
    {
        SetString(pszSrc);
        return *this;
    }

    CSimpleStringT & operator+=(CSimpleStringT const & strSrc)
    {
        Append(strSrc);
        return *this;
    }
    CSimpleStringT & operator+=(PCXSTR pszSrc)
    {
        Append(pszSrc);
        return *this;
    }
    template <int t_nSize> CSimpleStringT & operator+=(CStaticString<XCHAR, t_nSize> const & strSrc)
    {
        Append(static_cast<XCHAR const *>(strSrc), strSrc.GetLength());
        return *this;
    }
    CSimpleStringT & operator+=(char ch)
    {
        AppendChar(static_cast<XCHAR>(static_cast<unsigned char>(ch)));
        return *this;
    }
    CSimpleStringT & operator+=(unsigned char ch)
    {
        AppendChar(static_cast<XCHAR>(ch));
        return *this;
    }
    CSimpleStringT & operator+=(wchar_t ch)
    {
        AppendChar(static_cast<XCHAR>(ch));
        return *this;
    }

    XCHAR operator[](int iChar) const { return GetAt(iChar); }
    operator PCXSTR() const noexcept { return m_pszData; }

    void Append(PCXSTR pszSrc) { AppendExactly(pszSrc, StringLength(pszSrc)); }
    void Append(CSimpleStringT const & strSrc) { AppendExactly(strSrc.GetString(), strSrc.GetLength()); }
    /// Appends at most nLength characters, and ends at a null among them.
    void Append(PCXSTR pszSrc, int nLength)
    {
        if (nLength < 0 || (pszSrc == nullptr && nLength != 0))
            AtlThrow(E_INVALIDARG);
        AppendExactly(pszSrc, BoundedLength(pszSrc, nLength));
    }
    void AppendChar(XCHAR ch)
    {
        int const oldLength = GetLength();
        if (oldLength == max_length)
            AtlThrow(E_OUTOFMEMORY);
        PrepareWrite(oldLength + 1);
        m_pszData[oldLength] = ch;
        SetLength(oldLength + 1);
    }

    static void CopyChars(XCHAR * pchDest, XCHAR const * pchSrc, int nChars) noexcept
    {
        if (nChars > 0)
            std::memcpy(pchDest, pchSrc, static_cast<size_t>(nChars) * sizeof(XCHAR));
    }
    /// Copies nothing when the characters do not fit into nDestLen.
    static void CopyChars(XCHAR * pchDest, size_t nDestLen, XCHAR const * pchSrc, int nChars) noexcept
    {
        if (nChars > 0 && static_cast<size_t>(nChars) <= nDestLen)
            std::memcpy(pchDest, pchSrc, static_cast<size_t>(nChars) * sizeof(XCHAR));
    }
    static void CopyCharsOverlapped(XCHAR * pchDest, XCHAR const * pchSrc, int nChars) noexcept
    {
        if (nChars > 0)
            std::memmove(pchDest, pchSrc, static_cast<size_t>(nChars) * sizeof(XCHAR));
    }
    static void CopyCharsOverlapped(XCHAR * pchDest, size_t nDestLen, XCHAR const * pchSrc, int nChars) noexcept
    {
        if (nChars > 0 && static_cast<size_t>(nChars) <= nDestLen)
            std::memmove(pchDest, pchSrc, static_cast<size_t>(nChars) * sizeof(XCHAR));
    }
    static int StringLength(PCXSTR psz) noexcept
    {
        return psz == nullptr ? 0 : static_cast<int>(std::char_traits<XCHAR>::length(psz));
    }

    void Empty() noexcept
    {
        CStringData * const old = Data();
        if (old->nDataLength == 0)
            return;
        if (old->IsLocked())
        {
            SetLength(0);
            return;
        }
        IAtlStringMgr * const manager = old->pStringMgr;
        old->Release();
        Attach(manager->GetNilString());
    }
    void FreeExtra()
    {
        CStringData * const old = Data();
        if (old->nAllocLength == old->nDataLength || old->IsLocked() || old->IsShared())
            return;
        if (old->nDataLength == 0)
        {
            IAtlStringMgr * const manager = old->pStringMgr;
            old->Release();
            Attach(manager->GetNilString());
            return;
        }
        // Without memory for a smaller buffer the old one is still good.
        if (CStringData * const smaller = old->pStringMgr->Reallocate(old, old->nDataLength, sizeof(XCHAR)))
            Attach(smaller);
    }
    int GetAllocLength() const noexcept { return Data()->nAllocLength; }
    /// The terminating null may be read; an index outside throws CInvalidArgException.
    XCHAR GetAt(int iChar) const
    {
        if (iChar < 0 || iChar > GetLength())
            AtlThrow(E_INVALIDARG);
        return m_pszData[iChar];
    }
    PXSTR GetBuffer()
    {
        PrepareWrite(GetLength());
        return m_pszData;
    }
    PXSTR GetBuffer(int nMinBufferLength)
    {
        PrepareWrite(nMinBufferLength);
        return m_pszData;
    }
    PXSTR GetBufferSetLength(int nLength)
    {
        PXSTR const buffer = GetBuffer(nLength);
        SetLength(nLength);
        return buffer;
    }
    int GetLength() const noexcept { return Data()->nDataLength; }
    IAtlStringMgr * GetManager() const noexcept { return Data()->pStringMgr->Clone(); }
    PCXSTR GetString() const noexcept { return m_pszData; }
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    PXSTR LockBuffer()
    {
        PXSTR const buffer = GetBuffer();
        Data()->Lock();
        return buffer;
    }
    void UnlockBuffer() noexcept { Data()->Unlock(); }
    void Preallocate(int nLength) { PrepareWrite(nLength); }
    void ReleaseBuffer(int nNewLength = -1)
    {
        ReleaseBufferSetLength(nNewLength == -1 ? BoundedLength(m_pszData, Data()->nAllocLength) : nNewLength);
    }
    void ReleaseBufferSetLength(int nNewLength)
    {
        if (nNewLength == 0 && Data()->nAllocLength == 0)
            return;
        SetLength(nNewLength);
    }
    void SetAt(int iChar, XCHAR ch)
    {
        if (iChar < 0 || iChar >= GetLength())
            AtlThrow(E_INVALIDARG);
        GetBuffer()[iChar] = ch;
    }
    /// The string must be empty.
    void SetManager(IAtlStringMgr * pStringMgr)
    {
        if (!IsEmpty() || pStringMgr == nullptr)
            AtlThrow(E_INVALIDARG);
        Data()->Release();
        Attach(pStringMgr->GetNilString());
    }
    void SetString(PCXSTR pszSrc) { SetString(pszSrc, StringLength(pszSrc)); }
    /// The characters may be part of this string.
    void SetString(PCXSTR pszSrc, int nLength)
    {
        if (nLength == 0)
        {
            Empty();
            return;
        }
        if (pszSrc == nullptr || nLength < 0)
            AtlThrow(E_INVALIDARG);
        Keep const own(*this, pszSrc);
        PrepareWrite(nLength);
        CopyCharsOverlapped(m_pszData, own.Source(*this, pszSrc), nLength);
        SetLength(nLength);
    }
    void Truncate(int nNewLength)
    {
        if (nNewLength < 0 || nNewLength > GetLength())
            AtlThrow(E_INVALIDARG);
        if (nNewLength == GetLength())
            return;
        GetBuffer(nNewLength);
        SetLength(nNewLength);
    }

private:
    static constexpr int max_length = 0x7ffffff0 / static_cast<int>(sizeof(XCHAR));

    // Remembers where in the string's own buffer a source lies, since writing may move the buffer.
    class Keep
    {
    public:
        Keep(CSimpleStringT const & string, PCXSTR source)
        {
            auto const begin = reinterpret_cast<std::uintptr_t>(string.m_pszData);
            auto const at = reinterpret_cast<std::uintptr_t>(source);
            if (at >= begin && at - begin <= static_cast<size_t>(string.GetLength()) * sizeof(XCHAR))
                m_offset = static_cast<int>((at - begin) / sizeof(XCHAR));
        }
        PCXSTR Source(CSimpleStringT const & string, PCXSTR source) const
        {
            return m_offset < 0 ? source : string.m_pszData + m_offset;
        }

    private:
        int m_offset = -1;
    };

    CStringData * Data() const noexcept { return reinterpret_cast<CStringData *>(m_pszData) - 1; }
    void Attach(CStringData * data) noexcept { m_pszData = static_cast<PXSTR>(data->data()); }
    static int BoundedLength(PCXSTR text, int limit) noexcept
    {
        int length = 0;
        while (length < limit && text[length] != 0)
            ++length;
        return length;
    }

    // A reference to the data, or a copy of it when it is locked or its manager does not share.
    static CStringData * Share(CStringData * data)
    {
        IAtlStringMgr * const manager = data->pStringMgr->Clone();
        if (!data->IsLocked() && manager == data->pStringMgr)
        {
            data->AddRef();
            return data;
        }
        CStringData * const copy = manager->Allocate(data->nDataLength, sizeof(XCHAR));
        if (copy == nullptr)
            AtlThrow(E_OUTOFMEMORY);
        copy->nDataLength = data->nDataLength;
        CopyChars(static_cast<PXSTR>(copy->data()), static_cast<PCXSTR>(data->data()), data->nDataLength + 1);
        return copy;
    }

    // Makes the buffer this string's own, with room for length characters at least; keeps the text.
    void PrepareWrite(int length)
    {
        if (length < 0)
            AtlThrow(E_INVALIDARG);
        if (length > max_length)
            AtlThrow(E_OUTOFMEMORY);
        CStringData * const old = Data();
        int const needed = length > old->nDataLength ? length : old->nDataLength;
        if (old->IsShared())
        {
            CStringData * const copy = old->pStringMgr->Clone()->Allocate(needed, sizeof(XCHAR));
            if (copy == nullptr)
                AtlThrow(E_OUTOFMEMORY);
            copy->nDataLength = old->nDataLength;
            CopyChars(static_cast<PXSTR>(copy->data()), m_pszData, old->nDataLength + 1);
            old->Release();
            Attach(copy);
        }
        else if (needed > old->nAllocLength)
        {
            if (old->IsLocked())
                AtlThrow(E_INVALIDARG);
            int const half = old->nAllocLength / 2;
            int const grown = half > max_length - old->nAllocLength ? max_length : old->nAllocLength + half;
            CStringData * const larger =
                old->pStringMgr->Reallocate(old, grown > needed ? grown : needed, sizeof(XCHAR));
            if (larger == nullptr)
                AtlThrow(E_OUTOFMEMORY);
            Attach(larger);
        }
    }
    void SetLength(int length)
    {
        if (length < 0 || length > Data()->nAllocLength)
            AtlThrow(E_INVALIDARG);
        Data()->nDataLength = length;
        m_pszData[length] = 0;
    }
    void AppendExactly(PCXSTR source, int length)
    {
        if (length == 0)
            return;
        int const oldLength = GetLength();
        if (length > max_length - oldLength)
            AtlThrow(E_OUTOFMEMORY);
        Keep const own(*this, source);
        PrepareWrite(oldLength + length);
        CopyCharsOverlapped(m_pszData + oldLength, own.Source(*this, source), length);
        SetLength(oldLength + length);
    }

    PXSTR m_pszData;
};

/// Gives the buffer of a string for as long as the object lives.
template <class TCharType> class CStrBufT
{
public:
    using StringType = CSimpleStringT<TCharType>;
    using PCXSTR = typename StringType::PCXSTR;
    using PXSTR = typename StringType::PXSTR;

    static const DWORD AUTO_LENGTH = 0x01;
    static const DWORD SET_LENGTH = 0x02;

    explicit CStrBufT(StringType & str) : m_string(str), m_buffer(str.GetBuffer()), m_length(str.GetLength()) {}
    CStrBufT(StringType & str, int nMinLength, DWORD dwFlags = AUTO_LENGTH)
        : m_string(str),
          m_buffer((dwFlags & SET_LENGTH) != 0 ? str.GetBufferSetLength(nMinLength) : str.GetBuffer(nMinLength)),
          m_length((dwFlags & AUTO_LENGTH) != 0 ? -1 : nMinLength)
    {
    }
    CStrBufT(CStrBufT const &) = delete;
    CStrBufT & operator=(CStrBufT const &) = delete;
    ~CStrBufT() { m_string.ReleaseBuffer(m_length); }

    operator PXSTR() noexcept { return m_buffer; }
    operator PCXSTR() const noexcept { return m_buffer; }
    void SetLength(int nLength)
    {
        if (nLength < 0)
            AtlThrow(E_INVALIDARG);
        m_length = nLength;
    }

private:
    StringType & m_string;
    PXSTR m_buffer;
    int m_length;
};

using CSimpleStringA = CSimpleStringT<char>;
using CSimpleStringW = CSimpleStringT<wchar_t>;
using CSimpleString = CSimpleStringT<TCHAR>;
using CStrBufA = CStrBufT<char>;
using CStrBufW = CStrBufT<wchar_t>;
using CStrBuf = CStrBufT<TCHAR>;
} // namespace ATL

using namespace ATL;
