#pragma once
// CStringT: text with searching, changing, formatting and conversion between narrow and wide.

#include "StringServices.h"

namespace ATL
{
#ifdef _ATL_CSTRING_EXPLICIT_CONSTRUCTORS
#define CSTRING_EXPLICIT explicit
#else
#define CSTRING_EXPLICIT
#endif

/// Gives CStringT its manager of buffers.
template <class BaseType> struct StrTraitMFC_DLL
{
    static IAtlStringMgr * GetDefaultManager() noexcept { return AfxGetStringManager(); }
};

template <typename BaseType, class StringTraits> class CStringT : public CSimpleStringT<BaseType>
{
public:
    using CThisSimpleString = CSimpleStringT<BaseType>;
    using XCHAR = typename CThisSimpleString::XCHAR;
    using PXSTR = typename CThisSimpleString::PXSTR;
    using PCXSTR = typename CThisSimpleString::PCXSTR;
    using YCHAR = typename CThisSimpleString::YCHAR;
    using PYSTR = typename CThisSimpleString::PYSTR;
    using PCYSTR = typename CThisSimpleString::PCYSTR;
    using StrTraits = StringTraits;

    CStringT() noexcept : CThisSimpleString(StringTraits::GetDefaultManager()) {}
    explicit CStringT(IAtlStringMgr * pStringMgr) noexcept : CThisSimpleString(pStringMgr) {}
    CStringT(CStringT const & strSrc) : CThisSimpleString(strSrc) {}
    CStringT(CThisSimpleString const & strSrc) : CThisSimpleString(strSrc) {}
    /// On Windows a number made by MAKEINTRESOURCE loads that string.
    CStringT(XCHAR const * pszSrc) : CStringT(pszSrc, StringTraits::GetDefaultManager()) {}
    CStringT(XCHAR const * pszSrc, IAtlStringMgr * pStringMgr) : CThisSimpleString(pStringMgr)
    {
        if (!LoadNumbered(pszSrc))
            this->SetString(pszSrc);
    }
    CSTRING_EXPLICIT CStringT(YCHAR const * pszSrc) : CStringT(pszSrc, StringTraits::GetDefaultManager()) {}
    CStringT(YCHAR const * pszSrc, IAtlStringMgr * pStringMgr) : CThisSimpleString(pStringMgr)
    {
        if (!LoadNumbered(pszSrc))
            *this = pszSrc;
    }
    CSTRING_EXPLICIT CStringT(unsigned char const * pszSrc) : CStringT(pszSrc, StringTraits::GetDefaultManager()) {}
    CStringT(unsigned char const * pszSrc, IAtlStringMgr * pStringMgr)
        : CStringT(reinterpret_cast<char const *>(pszSrc), pStringMgr)
    {
    }
    CSTRING_EXPLICIT CStringT(char ch, int nLength = 1) : CStringT() { Fill(Widen(ch), nLength); }
    CSTRING_EXPLICIT CStringT(wchar_t ch, int nLength = 1) : CStringT() { Fill(Widen(ch), nLength); }
    CStringT(XCHAR const * pch, int nLength) : CStringT() { this->SetString(pch, nLength); }
    CStringT(XCHAR const * pch, int nLength, IAtlStringMgr * pStringMgr) : CThisSimpleString(pch, nLength, pStringMgr)
    {
    }
    CStringT(YCHAR const * pch, int nLength) : CStringT(pch, nLength, StringTraits::GetDefaultManager()) {}
    CStringT(YCHAR const * pch, int nLength, IAtlStringMgr * pStringMgr) : CThisSimpleString(pStringMgr)
    {
        if (nLength < 0 || (pch == nullptr && nLength != 0))
            AtlThrow(E_INVALIDARG);
        framework::AppendConverted(*this, pch, nLength);
    }
#if defined(_WIN32)
    CSTRING_EXPLICIT CStringT(VARIANT const & varSrc) : CStringT()
    {
        framework::AppendVariant(*this, varSrc);
    }
    CStringT(VARIANT const & varSrc, IAtlStringMgr * pStringMgr) : CThisSimpleString(pStringMgr)
    {
        framework::AppendVariant(*this, varSrc);
    }
#endif
    ~CStringT() noexcept = default;

    CStringT & operator=(CStringT const & strSrc)
    {
        CThisSimpleString::operator=(strSrc);
        return *this;
    }
    CStringT & operator=(CThisSimpleString const & strSrc)
    {
        CThisSimpleString::operator=(strSrc);
        return *this;
    }
    CStringT & operator=(PCXSTR pszSrc)
    {
        this->SetString(pszSrc);
        return *this;
    }
    CStringT & operator=(PCYSTR pszSrc)
    {
        CStringT converted(this->GetManager());
        framework::AppendConverted(converted, pszSrc, CSimpleStringT<YCHAR>::StringLength(pszSrc));
        return *this = converted;
    }
    CStringT & operator=(unsigned char const * pszSrc)
    {
        return *this = CStringT(pszSrc);
    }
    CStringT & operator=(char ch)
    {
        return AssignCharacter(Widen(ch));
    }
    CStringT & operator=(wchar_t ch)
    {
        return AssignCharacter(Widen(ch));
    }

    CStringT & operator+=(CThisSimpleString const & str)
    {
        this->Append(str);
        return *this;
    }
    CStringT & operator+=(PCXSTR pszSrc)
    {
        this->Append(pszSrc);
        return *this;
    }
    template <int t_nSize> CStringT & operator+=(CStaticString<XCHAR, t_nSize> const & strSrc)
    {
        CThisSimpleString::operator+=(strSrc);
        return *this;
    }
    CStringT & operator+=(PCYSTR pszSrc)
    {
        framework::AppendConverted(*this, pszSrc, CSimpleStringT<YCHAR>::StringLength(pszSrc));
        return *this;
    }
    CStringT & operator+=(char ch)
    {
        return AppendCharacter(Widen(ch));
    }
    CStringT & operator+=(unsigned char ch)
    {
        return AppendCharacter(static_cast<XCHAR>(ch));
    }
    CStringT & operator+=(wchar_t ch)
    {
        return AppendCharacter(Widen(ch));
    }

#if defined(_WIN32)
    CStringT & operator=(VARIANT const & var)
    {
        return *this = CStringT(var);
    }
    CStringT & operator+=(VARIANT const & var)
    {
        framework::AppendVariant(*this, var);
        return *this;
    }

    /// FALSE, and the text stands, when there is no such string.
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
    {
        return framework::LoadText(*this, hInstance, nID, &wLanguageID);
    }
    BOOL LoadString(HINSTANCE hInstance, UINT nID)
    {
        return framework::LoadText(*this, hInstance, nID, nullptr);
    }
    BOOL LoadString(UINT nID)
    {
        return framework::LoadText(*this, nID);
    }

    BSTR AllocSysString() const
    {
        CStringT<wchar_t, StrTraitMFC_DLL<wchar_t>> const wide(this->GetString(), this->GetLength());
        return framework::AllocateBstr(wide.GetString(), wide.GetLength());
    }
    BSTR SetSysString(BSTR * pbstr) const
    {
        CStringT<wchar_t, StrTraitMFC_DLL<wchar_t>> const wide(this->GetString(), this->GetLength());
        framework::AssignBstr(pbstr, wide.GetString(), wide.GetLength());
        return *pbstr;
    }

    void AnsiToOem() requires std::is_same_v<BaseType, char>
    {
        ::CharToOemBuffA(this->GetString(), this->GetBuffer(), static_cast<DWORD>(this->GetLength()));
    }
    void OemToAnsi() requires std::is_same_v<BaseType, char>
    {
        ::OemToCharBuffA(this->GetString(), this->GetBuffer(), static_cast<DWORD>(this->GetLength()));
    }

    // Unlike a C function, the forms with "..." take strings as arguments, too.
    template <class... Arguments> void __cdecl Format(UINT nFormatID, Arguments... arguments)
    {
        Format(LoadFormat(nFormatID).GetString(), arguments...);
    }
    template <class... Arguments> void __cdecl AppendFormat(UINT nFormatID, Arguments... arguments)
    {
        AppendFormat(LoadFormat(nFormatID).GetString(), arguments...);
    }
    template <class... Arguments> void __cdecl FormatMessage(UINT nFormatID, Arguments... arguments)
    {
        FormatMessage(LoadFormat(nFormatID).GetString(), arguments...);
    }
#endif
    template <class... Arguments> void __cdecl Format(PCXSTR pszFormat, Arguments... arguments)
    {
        CStringT result(this->GetManager());
        FormatPlain(result, pszFormat, framework::FormatArgument(arguments)...);
        *this = result;
    }
    template <class... Arguments> void __cdecl AppendFormat(PCXSTR pszFormat, Arguments... arguments)
    {
        CStringT result(this->GetManager());
        FormatPlain(result, pszFormat, framework::FormatArgument(arguments)...);
        this->Append(result);
    }
    template <class... Arguments> void __cdecl FormatMessage(PCXSTR pszFormat, Arguments... arguments)
    {
        CStringT result(this->GetManager());
        FormatMessagePlain(result, pszFormat, framework::FormatArgument(arguments)...);
        *this = result;
    }
    void FormatV(PCXSTR pszFormat, va_list args)
    {
        CStringT result(this->GetManager());
        framework::AppendFormatted(result, pszFormat, args);
        *this = result;
    }
    void FormatMessageV(PCXSTR pszFormat, va_list * pArgList)
    {
        CStringT result(this->GetManager());
        framework::AppendMessage(result, pszFormat, pArgList);
        *this = result;
    }

    /// FALSE, and the text becomes empty, when there is no such variable.
    BOOL GetEnvironmentVariable(PCXSTR pszVar)
    {
        CStringT value(this->GetManager());
        BOOL const found = framework::ReadEnvironment(value, pszVar);
        *this = value;
        return found;
    }

    int Collate(PCXSTR psz) const noexcept
    {
        return framework::CollateText(this->GetString(), psz, false);
    }
    int CollateNoCase(PCXSTR psz) const noexcept
    {
        return framework::CollateText(this->GetString(), psz, true);
    }
    int Compare(PCXSTR psz) const
    {
        if (psz == nullptr)
            AtlThrow(E_INVALIDARG);
        return framework::CompareText(this->GetString(), psz, false);
    }
    int CompareNoCase(PCXSTR psz) const noexcept
    {
        return framework::CompareText(this->GetString(), psz, true);
    }

    int Delete(int iIndex, int nCount = 1)
    {
        iIndex = iIndex < 0 ? 0 : iIndex;
        int const length = this->GetLength();
        if (nCount <= 0 || iIndex >= length)
            return length;
        nCount = nCount > length - iIndex ? length - iIndex : nCount;
        PXSTR const buffer = this->GetBuffer();
        int const left = length - nCount;
        this->CopyCharsOverlapped(buffer + iIndex, buffer + iIndex + nCount, left - iIndex);
        this->ReleaseBufferSetLength(left);
        return left;
    }
    int Insert(int iIndex, XCHAR ch)
    {
        return InsertText(iIndex, &ch, 1);
    }
    int Insert(int iIndex, PCXSTR psz)
    {
        CStringT const text(psz == nullptr ? CStringT() : CStringT(psz, CThisSimpleString::StringLength(psz)));
        return InsertText(iIndex, text.GetString(), text.GetLength());
    }
    int Remove(XCHAR chRemove)
    {
        int const length = this->GetLength();
        int left = length;
        for (int i = 0; i < length; ++i)
            left -= this->GetString()[i] == chRemove ? 1 : 0;
        if (left == length)
            return 0;
        PXSTR const buffer = this->GetBuffer();
        PXSTR target = buffer;
        for (int i = 0; i < length; ++i)
        {
            if (buffer[i] != chRemove)
                *target++ = buffer[i];
        }
        this->ReleaseBufferSetLength(left);
        return length - left;
    }
    int Replace(XCHAR chOld, XCHAR chNew)
    {
        int count = 0;
        int const length = this->GetLength();
        if (chOld == chNew)
            return 0;
        for (int i = 0; i < length; ++i)
        {
            if (this->GetString()[i] == chOld)
            {
                this->GetBuffer()[i] = chNew;
                ++count;
            }
        }
        return count;
    }
    /// An empty pszOld replaces nothing. A null pszNew removes.
    int Replace(PCXSTR pszOld, PCXSTR pszNew)
    {
        View const oldText = ViewOf(pszOld);
        View const newText = ViewOf(pszNew);
        View const whole = ThisView();
        size_t at = oldText.empty() ? View::npos : whole.find(oldText);
        if (at == View::npos)
            return 0;
        CStringT result(this->GetManager());
        int count = 0;
        size_t from = 0;
        for (; at != View::npos; at = whole.find(oldText, from), ++count)
        {
            AppendExact(result, whole.substr(from, at - from));
            AppendExact(result, newText);
            from = at + oldText.size();
        }
        AppendExact(result, whole.substr(from));
        *this = result;
        return count;
    }

    int Find(XCHAR ch, int iStart = 0) const noexcept
    {
        if (iStart < 0 || iStart >= this->GetLength())
            return -1;
        PCXSTR const text = this->GetString();
        for (int i = iStart;; ++i)
        {
            if (text[i] == ch)
                return i;
            if (text[i] == 0)
                return -1;
        }
    }
    int Find(PCXSTR pszSub, int iStart = 0) const noexcept
    {
        if (pszSub == nullptr || iStart < 0 || iStart > this->GetLength())
            return -1;
        size_t const at = View(this->GetString()).find(pszSub, static_cast<size_t>(iStart));
        return at == View::npos ? -1 : static_cast<int>(at);
    }
    int FindOneOf(PCXSTR pszCharSet) const noexcept
    {
        size_t const at = View(this->GetString()).find_first_of(ViewOf(pszCharSet));
        return at == View::npos ? -1 : static_cast<int>(at);
    }
    int ReverseFind(XCHAR ch) const noexcept
    {
        size_t const at = View(this->GetString()).rfind(ch);
        return at == View::npos ? -1 : static_cast<int>(at);
    }

    CStringT Left(int nCount) const
    {
        return Mid(0, nCount);
    }
    CStringT Mid(int iFirst) const
    {
        return Mid(iFirst, this->GetLength());
    }
    /// Bounds outside the text are moved to its ends.
    CStringT Mid(int iFirst, int nCount) const
    {
        int const length = this->GetLength();
        iFirst = iFirst < 0 ? 0 : iFirst > length ? length : iFirst;
        nCount = nCount < 0 ? 0 : nCount > length - iFirst ? length - iFirst : nCount;
        if (iFirst == 0 && nCount == length)
            return *this;
        return CStringT(this->GetString() + iFirst, nCount, this->GetManager());
    }
    CStringT Right(int nCount) const
    {
        int const length = this->GetLength();
        nCount = nCount < 0 ? 0 : nCount > length ? length : nCount;
        return Mid(length - nCount, nCount);
    }
    CStringT SpanExcluding(PCXSTR pszCharSet) const
    {
        if (pszCharSet == nullptr)
            AtlThrow(E_INVALIDARG);
        size_t const at = View(this->GetString()).find_first_of(pszCharSet);
        return at == View::npos ? *this : Left(static_cast<int>(at));
    }
    CStringT SpanIncluding(PCXSTR pszCharSet) const
    {
        if (pszCharSet == nullptr)
            AtlThrow(E_INVALIDARG);
        size_t const at = View(this->GetString()).find_first_not_of(pszCharSet);
        return at == View::npos ? *this : Left(static_cast<int>(at));
    }
    /// The next token from iStart on, which moves behind it. Empty, and iStart -1, when there is none.
    CStringT Tokenize(PCXSTR pszTokens, int & iStart) const
    {
        if (iStart < 0)
            AtlThrow(E_INVALIDARG);
        View const whole = ThisView();
        View const separators = ViewOf(pszTokens);
        size_t const first = static_cast<size_t>(iStart) >= whole.size()
                                 ? View::npos
                                 : whole.find_first_not_of(separators, static_cast<size_t>(iStart));
        if (first == View::npos)
        {
            iStart = -1;
            return CStringT(this->GetManager());
        }
        size_t const found = whole.find_first_of(separators, first);
        size_t const end = found == View::npos ? whole.size() : found;
        iStart = static_cast<int>(end) + 1;
        return Mid(static_cast<int>(first), static_cast<int>(end - first));
    }

    CStringT & MakeLower()
    {
        return Transform([](XCHAR ch) { return framework::LowerCharacter(ch); });
    }
    CStringT & MakeUpper()
    {
        return Transform([](XCHAR ch) { return framework::UpperCharacter(ch); });
    }
    CStringT & MakeReverse()
    {
        PXSTR const buffer = this->GetBuffer();
        for (int i = 0, j = this->GetLength() - 1; i < j; ++i, --j)
        {
            XCHAR const left = buffer[i];
            buffer[i] = buffer[j];
            buffer[j] = left;
        }
        return *this;
    }

    CStringT & Trim()
    {
        return TrimRight().TrimLeft();
    }
    CStringT & Trim(XCHAR chTarget)
    {
        return TrimRight(chTarget).TrimLeft(chTarget);
    }
    CStringT & Trim(PCXSTR pszTargets)
    {
        return TrimRight(pszTargets).TrimLeft(pszTargets);
    }
    CStringT & TrimLeft()
    {
        return TrimLeftWhere([](XCHAR ch) { return framework::IsSpaceCharacter(ch); });
    }
    CStringT & TrimLeft(XCHAR chTarget)
    {
        return TrimLeftWhere([=](XCHAR ch) { return ch == chTarget; });
    }
    CStringT & TrimLeft(PCXSTR pszTargets)
    {
        return TrimLeftWhere([=](XCHAR ch) { return ViewOf(pszTargets).find(ch) != View::npos; });
    }
    CStringT & TrimRight()
    {
        return TrimRightWhere([](XCHAR ch) { return framework::IsSpaceCharacter(ch); });
    }
    CStringT & TrimRight(XCHAR chTarget)
    {
        return TrimRightWhere([=](XCHAR ch) { return ch == chTarget; });
    }
    CStringT & TrimRight(PCXSTR pszTargets)
    {
        return TrimRightWhere([=](XCHAR ch) { return ViewOf(pszTargets).find(ch) != View::npos; });
    }

    friend CStringT operator+(CStringT const & str1, CStringT const & str2)
    {
        return Joined(str1, str2);
    }
    friend CStringT operator+(CStringT const & str1, PCXSTR psz2)
    {
        return Joined(str1, psz2);
    }
    friend CStringT operator+(PCXSTR psz1, CStringT const & str2)
    {
        return Joined(psz1, str2);
    }
    friend CStringT operator+(CStringT const & str1, char ch2)
    {
        return Joined(str1, CStringT(ch2));
    }
    friend CStringT operator+(char ch1, CStringT const & str2)
    {
        return Joined(CStringT(ch1), str2);
    }
    friend CStringT operator+(CStringT const & str1, wchar_t ch2)
    {
        return Joined(str1, CStringT(ch2));
    }
    friend CStringT operator+(wchar_t ch1, CStringT const & str2)
    {
        return Joined(CStringT(ch1), str2);
    }

    friend bool operator==(CStringT const & str1, CStringT const & str2) noexcept
    {
        return Order(str1, str2) == 0;
    }
    friend bool operator==(CStringT const & str1, PCXSTR psz2) noexcept
    {
        return Order(str1, psz2) == 0;
    }
    friend bool operator==(CStringT const & str1, PCYSTR psz2) noexcept
    {
        return Order(str1, CStringT(psz2)) == 0;
    }
    friend bool operator==(CStringT const & str1, XCHAR ch2) noexcept
    {
        return OrderCharacter(str1, ch2) == 0;
    }
    friend bool operator==(PCXSTR psz1, CStringT const & str2) noexcept
    {
        return Order(psz1, str2) == 0;
    }
    friend bool operator==(PCYSTR psz1, CStringT const & str2) noexcept
    {
        return Order(CStringT(psz1), str2) == 0;
    }
    friend bool operator==(XCHAR ch1, CStringT const & str2) noexcept
    {
        return OrderCharacter(str2, ch1) == 0;
    }
    friend bool operator!=(CStringT const & str1, CStringT const & str2) noexcept
    {
        return Order(str1, str2) != 0;
    }
    friend bool operator!=(CStringT const & str1, PCXSTR psz2) noexcept
    {
        return Order(str1, psz2) != 0;
    }
    friend bool operator!=(CStringT const & str1, PCYSTR psz2) noexcept
    {
        return Order(str1, CStringT(psz2)) != 0;
    }
    friend bool operator!=(CStringT const & str1, XCHAR ch2) noexcept
    {
        return OrderCharacter(str1, ch2) != 0;
    }
    friend bool operator!=(PCXSTR psz1, CStringT const & str2) noexcept
    {
        return Order(psz1, str2) != 0;
    }
    friend bool operator!=(PCYSTR psz1, CStringT const & str2) noexcept
    {
        return Order(CStringT(psz1), str2) != 0;
    }
    friend bool operator!=(XCHAR ch1, CStringT const & str2) noexcept
    {
        return OrderCharacter(str2, ch1) != 0;
    }
    friend bool operator<(CStringT const & str1, CStringT const & str2) noexcept
    {
        return Order(str1, str2) < 0;
    }
    friend bool operator<(CStringT const & str1, PCXSTR psz2) noexcept
    {
        return Order(str1, psz2) < 0;
    }
    friend bool operator<(PCXSTR psz1, CStringT const & str2) noexcept
    {
        return Order(psz1, str2) < 0;
    }
    friend bool operator>(CStringT const & str1, CStringT const & str2) noexcept
    {
        return Order(str1, str2) > 0;
    }
    friend bool operator>(CStringT const & str1, PCXSTR psz2) noexcept
    {
        return Order(str1, psz2) > 0;
    }
    friend bool operator>(PCXSTR psz1, CStringT const & str2) noexcept
    {
        return Order(psz1, str2) > 0;
    }
    friend bool operator<=(CStringT const & str1, CStringT const & str2) noexcept
    {
        return Order(str1, str2) <= 0;
    }
    friend bool operator<=(CStringT const & str1, PCXSTR psz2) noexcept
    {
        return Order(str1, psz2) <= 0;
    }
    friend bool operator<=(PCXSTR psz1, CStringT const & str2) noexcept
    {
        return Order(psz1, str2) <= 0;
    }
    friend bool operator>=(CStringT const & str1, CStringT const & str2) noexcept
    {
        return Order(str1, str2) >= 0;
    }
    friend bool operator>=(CStringT const & str1, PCXSTR psz2) noexcept
    {
        return Order(str1, psz2) >= 0;
    }
    friend bool operator>=(PCXSTR psz1, CStringT const & str2) noexcept
    {
        return Order(psz1, str2) >= 0;
    }

private:
    using View = std::basic_string_view<XCHAR>;

    static View ViewOf(PCXSTR text) noexcept
    {
        return text == nullptr ? View() : View(text);
    }
    View ThisView() const noexcept
    {
        return View(this->GetString(), static_cast<size_t>(this->GetLength()));
    }
    static XCHAR Widen(char ch) noexcept
    {
        return static_cast<XCHAR>(static_cast<unsigned char>(ch));
    }
    static XCHAR Widen(wchar_t ch) noexcept
    {
        return static_cast<XCHAR>(ch);
    }
    static int Order(PCXSTR a, PCXSTR b) noexcept
    {
        return framework::CompareText(a, b, false);
    }
    static int OrderCharacter(CStringT const & string, XCHAR ch) noexcept
    {
        return string.GetLength() == 1 && string.GetString()[0] == ch ? 0 : 1;
    }
    static CStringT Joined(CStringT const & a, CStringT const & b)
    {
        CStringT result(a.GetManager());
        result.Preallocate(a.GetLength() + b.GetLength());
        result.CThisSimpleString::Append(a);
        result.CThisSimpleString::Append(b);
        return result;
    }
    static void AppendExact(CStringT & target, View text)
    {
        int const at = target.GetLength();
        int const length = static_cast<int>(text.size());
        if (length == 0)
            return;
        PXSTR const buffer = target.GetBuffer(at + length);
        CThisSimpleString::CopyChars(buffer + at, text.data(), length);
        target.ReleaseBufferSetLength(at + length);
    }
    static void FormatPlain(CStringT & target, PCXSTR format, ...)
    {
        va_list arguments;
        va_start(arguments, format);
        try
        {
            framework::AppendFormatted(target, format, arguments);
        }
        catch (...)
        {
            va_end(arguments);
            throw;
        }
        va_end(arguments);
    }
    static void FormatMessagePlain(CStringT & target, PCXSTR format, ...)
    {
        va_list arguments;
        va_start(arguments, format);
        try
        {
            framework::AppendMessage(target, format, &arguments);
        }
        catch (...)
        {
            va_end(arguments);
            throw;
        }
        va_end(arguments);
    }
    template <class Char> bool LoadNumbered([[maybe_unused]] Char const * name)
    {
#if defined(_WIN32)
        if (name != nullptr && IS_INTRESOURCE(name))
        {
            framework::LoadText(*this, static_cast<UINT>(reinterpret_cast<ULONG_PTR>(name)));
            return true;
        }
#endif
        return false;
    }
#if defined(_WIN32)
    CStringT LoadFormat(UINT id) const
    {
        CStringT format(this->GetManager());
        if (!format.LoadString(id))
            AtlThrow(E_INVALIDARG);
        return format;
    }
#endif
    void Fill(XCHAR ch, int count)
    {
        if (count <= 0)
            return;
        PXSTR const buffer = this->GetBuffer(count);
        for (int i = 0; i < count; ++i)
            buffer[i] = ch;
        this->ReleaseBufferSetLength(count);
    }
    CStringT & AssignCharacter(XCHAR ch)
    {
        this->SetString(&ch, 1);
        return *this;
    }
    CStringT & AppendCharacter(XCHAR ch)
    {
        this->AppendChar(ch);
        return *this;
    }
    int InsertText(int index, PCXSTR text, int count)
    {
        int const length = this->GetLength();
        index = index < 0 ? 0 : index > length ? length : index;
        if (count == 0)
            return length;
        PXSTR const buffer = this->GetBuffer(length + count);
        this->CopyCharsOverlapped(buffer + index + count, buffer + index, length - index);
        this->CopyChars(buffer + index, text, count);
        this->ReleaseBufferSetLength(length + count);
        return length + count;
    }
    template <class Change> CStringT & Transform(Change change)
    {
        int const length = this->GetLength();
        PXSTR const buffer = this->GetBuffer();
        for (int i = 0; i < length; ++i)
            buffer[i] = change(buffer[i]);
        return *this;
    }
    template <class Test> CStringT & TrimLeftWhere(Test test)
    {
        int count = 0;
        while (count < this->GetLength() && test(this->GetString()[count]))
            ++count;
        Delete(0, count);
        return *this;
    }
    template <class Test> CStringT & TrimRightWhere(Test test)
    {
        int length = this->GetLength();
        while (length > 0 && test(this->GetString()[length - 1]))
            --length;
        this->Truncate(length);
        return *this;
    }
};
} // namespace ATL

#include "FixedString.h"
