#pragma once
// The block of the clipboard format "HTML Format": a header with byte offsets, then the fragment in UTF-8.

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace HtmlBlock
{
/// Bytes of the block for that text: two for each of its UTF-16 units, and 400 for header and trailer. Text with many
/// characters of three bytes can need more, as hosts expect: what does not fit is cut.
std::size_t SizeOf(std::wstring_view html);

/// Builds the block in the memory given, usually of SizeOf(html) bytes, and gives its length in bytes without the
/// terminator. html: up to its first null character. Text that holds "<body>" brings "<html>" and "</html>" along; any
/// other is put between them. An offset whose tag is not there stays 00000000. Memory behind the block is zeroed; if
/// text and trailer don't fit, they end with the last whole character that does, followed by the terminator.
std::size_t Build(std::wstring_view html, std::span<char> memory);

/// The same in memory of its own, of SizeOf(html) bytes.
std::vector<char> Build(std::wstring_view html);
} // namespace HtmlBlock

namespace Utf8
{
/// Bytes that a character takes at most.
constexpr std::size_t longest_character = 4;

/// Converts UTF-16, or UTF-32 where wchar_t is as wide, to UTF-8 and gives the number of bytes written. Half a
/// surrogate pair and what is no character become U+FFFD. Ends before the first character that does not fit.
std::size_t Encode(std::wstring_view text, std::span<char> target);
} // namespace Utf8
