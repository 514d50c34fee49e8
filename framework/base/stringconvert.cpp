// Conversion between narrow and wide text, the environment, and the order of the user's language.

#include "afx.h"

#include <cstdlib>
#include <string>

#include "StringText.h"

#if !defined(_WIN32)
namespace
{
constexpr char32_t replacement = 0xFFFD;

bool IsContinuation(char ch)
{
    return (static_cast<unsigned char>(ch) & 0xC0U) == 0x80U;
}

// The code point at index, which moves behind it. A byte that is not part of a valid sequence is replaced.
char32_t DecodeUtf8(char const * text, int length, int & index)
{
    auto const lead = static_cast<unsigned char>(text[index++]);
    if (lead < 0x80)
        return lead;
    int const count = lead >= 0xF0 && lead < 0xF5 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead >= 0xF5 || count > length - index)
        return replacement;
    char32_t value = lead & (0x3FU >> count);
    for (int i = 0; i < count; ++i)
    {
        if (!IsContinuation(text[index + i]))
            return replacement;
        value = (value << 6) | (static_cast<unsigned char>(text[index + i]) & 0x3FU);
    }
    constexpr char32_t least[] = {0x80, 0x800, 0x10000};
    if (value < least[count - 1] || value > 0x10FFFF || (value >= 0xD800 && value < 0xE000))
        return replacement;
    index += count;
    return value;
}

void EncodeUtf8(std::string & target, char32_t value)
{
    if (value > 0x10FFFF || (value >= 0xD800 && value < 0xE000))
        value = replacement;
    if (value < 0x80)
    {
        target += static_cast<char>(value);
        return;
    }
    if (value < 0x800)
    {
        target += static_cast<char>(0xC0 | (value >> 6));
    }
    else
    {
        if (value < 0x10000)
        {
            target += static_cast<char>(0xE0 | (value >> 12));
        }
        else
        {
            target += static_cast<char>(0xF0 | (value >> 18));
            target += static_cast<char>(0x80 | ((value >> 12) & 0x3F));
        }
        target += static_cast<char>(0x80 | ((value >> 6) & 0x3F));
    }
    target += static_cast<char>(0x80 | (value & 0x3F));
}
} // namespace
#endif

namespace framework
{
#if defined(_WIN32)
std::wstring ToWide(char const * source, int length)
{
    if (length <= 0)
        return {};
    int const count = ::MultiByteToWideChar(CP_ACP, 0, source, length, nullptr, 0);
    std::wstring wide(static_cast<size_t>(count), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, source, length, wide.data(), count);
    return wide;
}

std::string ToNarrow(wchar_t const * source, int length)
{
    if (length <= 0)
        return {};
    int const count = ::WideCharToMultiByte(CP_ACP, 0, source, length, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<size_t>(count), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, source, length, narrow.data(), count, nullptr, nullptr);
    return narrow;
}
#else
std::wstring ToWide(char const * source, int length)
{
    std::wstring wide;
    wide.reserve(static_cast<size_t>(length > 0 ? length : 0));
    for (int i = 0; i < length;)
        wide += static_cast<wchar_t>(DecodeUtf8(source, length, i));
    return wide;
}

std::string ToNarrow(wchar_t const * source, int length)
{
    std::string narrow;
    narrow.reserve(static_cast<size_t>(length > 0 ? length : 0));
    for (int i = 0; i < length; ++i)
    {
        auto value = static_cast<char32_t>(source[i]);
        char32_t const next = i + 1 < length ? static_cast<char32_t>(source[i + 1]) : 0;
        if (value >= 0xD800 && value < 0xDC00 && next >= 0xDC00 && next < 0xE000)
        {
            value = 0x10000 + ((value - 0xD800) << 10) + (next - 0xDC00);
            ++i;
        }
        EncodeUtf8(narrow, value);
    }
    return narrow;
}
#endif

std::u16string ToUtf16(wchar_t const * source, int length)
{
    std::u16string units;
    units.reserve(static_cast<size_t>(length > 0 ? length : 0));
    for (int i = 0; i < length; ++i)
    {
        auto const value = static_cast<char32_t>(source[i]);
        if (value > 0x10FFFF)
        {
            units += u'\xFFFD';
        }
        else if (value > 0xFFFF)
        {
            units += static_cast<char16_t>(0xD800 + ((value - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((value - 0x10000) & 0x3FF));
        }
        else
        {
            units += static_cast<char16_t>(value);
        }
    }
    return units;
}

std::wstring FromUtf16(std::u16string_view source)
{
    std::wstring wide;
    wide.reserve(source.size());
    for (size_t i = 0; i < source.size(); ++i)
    {
        char32_t value = source[i];
        char32_t const next = i + 1 < source.size() ? source[i + 1] : 0;
        if (sizeof(wchar_t) > sizeof(char16_t) && value >= 0xD800 && value < 0xDC00 && next >= 0xDC00 && next < 0xE000)
        {
            value = 0x10000 + ((value - 0xD800) << 10) + (next - 0xDC00);
            ++i;
        }
        wide += static_cast<wchar_t>(value);
    }
    return wide;
}

void AppendConverted(ATL::CSimpleStringT<wchar_t> & target, char const * source, int length)
{
    AppendText(target, ToWide(source, length));
}

void AppendConverted(ATL::CSimpleStringT<char> & target, wchar_t const * source, int length)
{
    AppendText(target, ToNarrow(source, length));
}

bool ReadEnvironment(ATL::CSimpleStringT<wchar_t> & target, wchar_t const * name)
{
    if (name == nullptr)
        AtlThrow(E_INVALIDARG);
#if defined(_WIN32)
    DWORD const size = ::GetEnvironmentVariableW(name, nullptr, 0);
    if (size == 0)
        return false;
    std::wstring value(size, L'\0');
    value.resize(::GetEnvironmentVariableW(name, value.data(), size));
    AppendText(target, value);
    return true;
#else
    char const * const value = std::getenv(ToNarrow(name, ATL::CSimpleStringW::StringLength(name)).c_str());
    AppendConverted(target, value, ATL::CSimpleStringA::StringLength(value));
    return value != nullptr;
#endif
}

bool ReadEnvironment(ATL::CSimpleStringT<char> & target, char const * name)
{
    if (name == nullptr)
        AtlThrow(E_INVALIDARG);
    CStringW value;
    bool const found = ReadEnvironment(value, CStringW(name).GetString());
    AppendConverted(target, value.GetString(), value.GetLength());
    return found;
}

int CollateText(wchar_t const * a, wchar_t const * b, bool ignoreCase)
{
    a = a == nullptr ? L"" : a;
    b = b == nullptr ? L"" : b;
#if defined(_WIN32)
    return ::CompareStringW(LOCALE_USER_DEFAULT, ignoreCase ? NORM_IGNORECASE : 0, a, -1, b, -1) - CSTR_EQUAL;
#else
    int const order = ignoreCase
                          ? std::wcscoll(CStringW(a).MakeLower().GetString(), CStringW(b).MakeLower().GetString())
                          : std::wcscoll(a, b);
    return (order > 0) - (order < 0);
#endif
}

int CollateText(char const * a, char const * b, bool ignoreCase)
{
    return CollateText(CStringW(a).GetString(), CStringW(b).GetString(), ignoreCase);
}
} // namespace framework
