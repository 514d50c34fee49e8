#pragma once
// Private to the framework's sources: standard strings in and out of the framework's.

#include "atlsimpstr.h"

#include <string>

namespace framework
{
std::wstring ToWide(char const * source, int length);
std::string ToNarrow(wchar_t const * source, int length);
/// Pairs of surrogates where a wide character holds more than 16 bits. Halves of pairs stay as they are.
std::u16string ToUtf16(wchar_t const * source, int length);
std::wstring FromUtf16(std::u16string_view source);

/// Appends all characters, nulls among them.
template <class Char> void AppendText(ATL::CSimpleStringT<Char> & target, std::basic_string<Char> const & text)
{
    if (text.empty())
        return;
    int const at = target.GetLength();
    if (text.size() > static_cast<size_t>(0x7fffffff - at))
        ATL::AtlThrow(E_OUTOFMEMORY);
    int const length = static_cast<int>(text.size());
    Char * const buffer = target.GetBuffer(at + length);
    ATL::CSimpleStringT<Char>::CopyChars(buffer + at, text.data(), length);
    target.ReleaseBufferSetLength(at + length);
}
} // namespace framework
