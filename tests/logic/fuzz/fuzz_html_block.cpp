// The clipboard's HTML block from any text and in memory of any size, read again by the block's own offsets.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "clipboard/HtmlBlock.h"
#include "clipboard_HtmlBlockReader.h"

namespace
{
void Require(bool condition)
{
    if (!condition)
        std::abort();
}

std::wstring UnitsOf(std::uint8_t const * data, std::size_t size)
{
    std::wstring units;
    for (std::size_t at = 0; at + 1 < size; at += 2)
        units.push_back(static_cast<wchar_t>(data[at] | data[at + 1] << 8));
    return units;
}

void CheckBlock(std::wstring const & html)
{
    std::vector<char> const block = HtmlBlock::Build(html);
    Require(block.size() == HtmlBlock::SizeOf(html));
    Require(block.back() == '\0');
    std::string const text(block.data());
    std::optional<html_block::Reading> const reading = html_block::Read(text);
    bool const hasOwnTags = html.find(L"html>") != std::wstring::npos ||
                            html.find(L"Fragment -->") != std::wstring::npos ||
                            html.find(L"<body>") != std::wstring::npos;
    // A whole block whose text has none of the tags that are searched can be read again.
    bool const isWhole = text.find("\r\n<!--EndFragment -->\r\n</body>\r\n</html>") != std::string::npos;
    if (hasOwnTags || !isWhole)
        return;
    Require(reading.has_value());
    std::vector<char> utf8(html.size() * Utf8::longest_character);
    utf8.resize(Utf8::Encode(html.substr(0, html.find(L'\0')), utf8));
    Require(reading->fragment == "<!--StartFragment -->\r\n" + std::string(utf8.begin(), utf8.end()) + "\r\n");
    Require(reading->html.size() >= 7 && reading->html.substr(reading->html.size() - 7) == "</html>");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    CheckBlock(UnitsOf(data, size));
    std::wstring const narrow(data, data + size);
    CheckBlock(narrow);

    std::vector<char> memory(size == 0 ? 0 : data[0] * std::size_t{3} % 701, 'x');
    std::size_t const length = HtmlBlock::Build(narrow, memory);
    Require(memory.empty() ? length == 0 : length < memory.size() && memory[length] == '\0');
    return 0;
}
