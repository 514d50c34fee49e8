#pragma once
// What the string templates leave to the library: formatting, conversion between narrow and wide text, resources.

#include "atlsimpstr.h"

#include <cctype>
#include <cstdarg>
#include <cwctype>
#include <type_traits>

#if defined(_WIN32)
#include <oleauto.h>
#endif

/// The manager of the framework's strings.
FRAMEWORK_API ATL::IAtlStringMgr * AFXAPI AfxGetStringManager();

namespace framework
{
// Narrow text is in the system's code page on Windows, in UTF-8 elsewhere. What can't be converted becomes a
// replacement character.
FRAMEWORK_API void AppendConverted(ATL::CSimpleStringT<wchar_t> & target, char const * source, int length);
FRAMEWORK_API void AppendConverted(ATL::CSimpleStringT<char> & target, wchar_t const * source, int length);

// Formats as the Windows C run-time library does: in a wide format %s is wide text and %S narrow, in a narrow one the
// other way round, and the modifier l is 32 bits wide.
FRAMEWORK_API void AppendFormatted(ATL::CSimpleStringT<char> & target, char const * format, va_list arguments);
FRAMEWORK_API void AppendFormatted(ATL::CSimpleStringT<wchar_t> & target, wchar_t const * format, va_list arguments);

// Formats with numbered inserts (%1, %2!d!).
FRAMEWORK_API void AppendMessage(ATL::CSimpleStringT<char> & target, char const * format, va_list * arguments);
FRAMEWORK_API void AppendMessage(ATL::CSimpleStringT<wchar_t> & target, wchar_t const * format, va_list * arguments);

// In the order of the user's language.
FRAMEWORK_API int CollateText(char const * a, char const * b, bool ignoreCase);
FRAMEWORK_API int CollateText(wchar_t const * a, wchar_t const * b, bool ignoreCase);

FRAMEWORK_API bool ReadEnvironment(ATL::CSimpleStringT<char> & target, char const * name);
FRAMEWORK_API bool ReadEnvironment(ATL::CSimpleStringT<wchar_t> & target, wchar_t const * name);

#if defined(_WIN32)
// False, and the target stands, when there is no such string.
FRAMEWORK_API bool LoadText(ATL::CSimpleStringT<char> & target, HINSTANCE module, UINT id, WORD const * language);
FRAMEWORK_API bool LoadText(ATL::CSimpleStringT<wchar_t> & target, HINSTANCE module, UINT id, WORD const * language);
FRAMEWORK_API bool LoadText(ATL::CSimpleStringT<char> & target, UINT id);
FRAMEWORK_API bool LoadText(ATL::CSimpleStringT<wchar_t> & target, UINT id);
FRAMEWORK_API void AppendVariant(ATL::CSimpleStringT<char> & target, VARIANT const & value);
FRAMEWORK_API void AppendVariant(ATL::CSimpleStringT<wchar_t> & target, VARIANT const & value);
FRAMEWORK_API BSTR AllocateBstr(wchar_t const * text, int length);
FRAMEWORK_API void AssignBstr(BSTR * target, wchar_t const * text, int length);
#endif

inline bool IsSpaceCharacter(char ch)
{
    return std::isspace(static_cast<unsigned char>(ch)) != 0;
}

inline bool IsSpaceCharacter(wchar_t ch)
{
    return std::iswspace(static_cast<std::wint_t>(ch)) != 0;
}

inline char LowerCharacter(char ch)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
}

inline wchar_t LowerCharacter(wchar_t ch)
{
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(ch)));
}

inline char UpperCharacter(char ch)
{
    return static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
}

inline wchar_t UpperCharacter(wchar_t ch)
{
    return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(ch)));
}

/// -1, 0 or 1. A null pointer counts as the empty text.
template <class Char> int CompareText(Char const * a, Char const * b, bool ignoreCase)
{
    using Unsigned = std::make_unsigned_t<Char>;
    Char const empty = 0;
    a = a == nullptr ? &empty : a;
    b = b == nullptr ? &empty : b;
    for (;; ++a, ++b)
    {
        auto const left = static_cast<Unsigned>(ignoreCase ? LowerCharacter(*a) : *a);
        auto const right = static_cast<Unsigned>(ignoreCase ? LowerCharacter(*b) : *b);
        if (left != right)
            return left < right ? -1 : 1;
        if (left == 0)
            return 0;
    }
}

/// What a format function receives for a value: strings are passed as the pointer to their characters.
template <class Value> auto FormatArgument(Value const & value)
{
    if constexpr (std::is_convertible_v<Value const *, ATL::CSimpleStringT<char> const *> ||
                  std::is_convertible_v<Value const *, ATL::CSimpleStringT<wchar_t> const *>)
        return value.GetString();
    else
        return value;
}
} // namespace framework
