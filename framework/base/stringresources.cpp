// Strings out of resources and into the system's string types.

#include "afx.h"

#include "StringText.h"

BOOL AFXAPI AfxExtractSubString(CString & rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep)
{
    rString.Empty();
    if (lpszFullString == nullptr || iSubString < 0)
        return FALSE;
    std::wstring_view rest(lpszFullString);
    for (; iSubString > 0; --iSubString)
    {
        size_t const at = rest.find(chSep);
        if (at == std::wstring_view::npos)
            return FALSE;
        rest.remove_prefix(at + 1);
    }
    rest = rest.substr(0, rest.find(chSep));
    rString = CString(rest.data(), static_cast<int>(rest.size()));
    return TRUE;
}

#if defined(_WIN32)

namespace
{
// The characters of a string in a module's string table, which are not terminated. Empty when there is none.
std::wstring_view FindString(HINSTANCE module, UINT id, WORD const * language)
{
    constexpr UINT strings_per_block = 16;
    LPWSTR const block = MAKEINTRESOURCEW(id / strings_per_block + 1);
    HRSRC const resource = language != nullptr ? ::FindResourceExW(module, RT_STRING, block, *language)
                                               : ::FindResourceW(module, block, RT_STRING);
    if (resource == nullptr)
        return {};
    HGLOBAL const loaded = ::LoadResource(module, resource);
    auto const * at = static_cast<WORD const *>(::LockResource(loaded));
    if (at == nullptr)
        return {};
    WORD const * const end = at + ::SizeofResource(module, resource) / sizeof(WORD);
    for (UINT skip = id % strings_per_block; skip > 0 && at < end; --skip)
        at += *at + 1;
    if (at >= end || end - at <= *at)
        return {};
    return {reinterpret_cast<wchar_t const *>(at + 1), *at};
}
} // namespace

namespace framework
{
bool LoadText(ATL::CSimpleStringT<wchar_t> & target, HINSTANCE module, UINT id, WORD const * language)
{
    std::wstring_view const text = FindString(module, id, language);
    if (text.empty())
        return false;
    target.SetString(text.data(), static_cast<int>(text.size()));
    return true;
}

bool LoadText(ATL::CSimpleStringT<char> & target, HINSTANCE module, UINT id, WORD const * language)
{
    std::wstring_view const text = FindString(module, id, language);
    if (text.empty())
        return false;
    std::string const narrow = ToNarrow(text.data(), static_cast<int>(text.size()));
    target.SetString(narrow.data(), static_cast<int>(narrow.size()));
    return true;
}

bool LoadText(ATL::CSimpleStringT<wchar_t> & target, UINT id)
{
    return LoadText(target, AfxFindStringResourceHandle(id), id, nullptr);
}

bool LoadText(ATL::CSimpleStringT<char> & target, UINT id)
{
    return LoadText(target, AfxFindStringResourceHandle(id), id, nullptr);
}

void AppendVariant(ATL::CSimpleStringT<wchar_t> & target, VARIANT const & value)
{
    VARIANT text;
    ::VariantInit(&text);
    HRESULT const result = ::VariantChangeType(&text, const_cast<VARIANT *>(&value), 0, VT_BSTR);
    if (FAILED(result))
        AtlThrow(result == E_OUTOFMEMORY ? E_OUTOFMEMORY : E_INVALIDARG);
    std::wstring const characters(text.bstrVal != nullptr ? text.bstrVal : L"", ::SysStringLen(text.bstrVal));
    ::VariantClear(&text);
    AppendText(target, characters);
}

void AppendVariant(ATL::CSimpleStringT<char> & target, VARIANT const & value)
{
    CStringW wide;
    AppendVariant(wide, value);
    AppendConverted(target, wide.GetString(), wide.GetLength());
}

BSTR AllocateBstr(wchar_t const * text, int length)
{
    BSTR const result = ::SysAllocStringLen(text, static_cast<UINT>(length));
    if (result == nullptr)
        AtlThrow(E_OUTOFMEMORY);
    return result;
}

void AssignBstr(BSTR * target, wchar_t const * text, int length)
{
    if (target == nullptr)
        AtlThrow(E_INVALIDARG);
    if (!::SysReAllocStringLen(target, text, static_cast<UINT>(length)))
        AtlThrow(E_OUTOFMEMORY);
}
} // namespace framework

#endif
