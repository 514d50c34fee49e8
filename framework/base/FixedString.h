#pragma once
// CFixedStringT. Included by cstringt.h.

#include "cstringt.h"

namespace framework
{
/// The buffer of a CFixedStringT, and the manager that takes others when it is too small.
template <class Char, int Count> class FixedStringManager : public ATL::IAtlStringMgr
{
public:
    explicit FixedStringManager(ATL::IAtlStringMgr * fallback) noexcept : m_fallback(fallback) {}
    FixedStringManager(FixedStringManager const &) = delete;
    FixedStringManager & operator=(FixedStringManager const &) = delete;

    ATL::CStringData * Allocate(int nAllocLength, int nCharSize) noexcept override
    {
        return Adopt(m_fallback->Allocate(nAllocLength, nCharSize));
    }
    void Free(ATL::CStringData * pData) noexcept override
    {
        if (pData != &m_header)
            m_fallback->Free(pData);
    }
    ATL::CStringData * Reallocate(ATL::CStringData * pData, int nAllocLength, int nCharSize) noexcept override
    {
        if (pData != &m_header)
            return Adopt(m_fallback->Reallocate(pData, nAllocLength, nCharSize));
        if (nAllocLength <= Count)
            return pData;
        ATL::CStringData * const larger = Allocate(nAllocLength, nCharSize);
        if (larger != nullptr)
        {
            larger->nDataLength = pData->nDataLength;
            std::memcpy(larger->data(), pData->data(), sizeof(Char) * (static_cast<size_t>(pData->nDataLength) + 1));
        }
        return larger;
    }
    ATL::CStringData * GetNilString() noexcept override
    {
        m_header = {this, 0, Count, 1};
        m_characters[0] = 0;
        return &m_header;
    }
    ATL::IAtlStringMgr * Clone() noexcept override { return m_fallback; }

private:
    ATL::CStringData * Adopt(ATL::CStringData * data) noexcept
    {
        if (data != nullptr)
            data->pStringMgr = this;
        return data;
    }

    ATL::IAtlStringMgr * m_fallback;
    ATL::CStringData m_header;
    Char m_characters[Count + 1];
    static_assert(sizeof(ATL::CStringData) % alignof(Char) == 0);
};
} // namespace framework

namespace ATL
{
/// A string with room for t_nChars characters in the object itself. Longer text goes to the heap.
template <class StringType, int t_nChars>
class CFixedStringT : private framework::FixedStringManager<typename StringType::XCHAR, t_nChars>, public StringType
{
    using Manager = framework::FixedStringManager<typename StringType::XCHAR, t_nChars>;

public:
    CFixedStringT() noexcept : CFixedStringT(StringType::StrTraits::GetDefaultManager()) {}
    explicit CFixedStringT(IAtlStringMgr * pStringMgr) noexcept
        : Manager(pStringMgr),
          StringType(static_cast<Manager *>(this))
    {
    }
    CFixedStringT(CFixedStringT const & strSrc) : CFixedStringT() { *this = strSrc; }
    CFixedStringT(StringType const & strSrc) : CFixedStringT() { *this = strSrc; }
    CFixedStringT(typename StringType::XCHAR const * pszSrc) : CFixedStringT() { *this = pszSrc; }
    explicit CFixedStringT(typename StringType::YCHAR const * pszSrc) : CFixedStringT() { *this = pszSrc; }
    explicit CFixedStringT(unsigned char const * pszSrc) : CFixedStringT() { *this = pszSrc; }

    CFixedStringT & operator=(CFixedStringT const & strSrc) { return Assign(strSrc); }
    CFixedStringT & operator=(StringType const & strSrc) { return Assign(strSrc); }
    CFixedStringT & operator=(char const * pszSrc) { return Assign(StringType(pszSrc)); }
    CFixedStringT & operator=(wchar_t const * pszSrc) { return Assign(StringType(pszSrc)); }
    CFixedStringT & operator=(unsigned char const * pszSrc) { return Assign(StringType(pszSrc)); }

private:
    CFixedStringT & Assign(StringType const & source)
    {
        if (this != &source)
            this->SetString(source.GetString(), source.GetLength());
        return *this;
    }
};
} // namespace ATL
