#pragma once
// Reads an "HTML Format" block as a receiving program does: line by line until the offsets are known, then by them
// alone.

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace html_block
{
struct Reading
{
    std::map<std::string, std::string> fields; // as they are written
    std::string html;
    std::string fragment;
};

/// What stands between two offsets of the block; nothing if a field is missing, is no number or lies outside.
inline std::optional<std::string> Between(std::string_view block, std::map<std::string, std::string> const & fields,
                                          char const * start, char const * end)
{
    auto const offset = [&](char const * name) -> std::optional<std::size_t> {
        auto const field = fields.find(name);
        if (field == fields.end() || field->second.empty() ||
            field->second.find_first_not_of("0123456789") != std::string::npos)
            return std::nullopt;
        return std::stoull(field->second);
    };
    std::optional<std::size_t> const from = offset(start);
    std::optional<std::size_t> const to = offset(end);
    if (!from || !to || *from > *to || *to > block.size())
        return std::nullopt;
    return std::string(block.substr(*from, *to - *from));
}

/// block: with or without what follows its terminator.
inline std::optional<Reading> Read(std::string_view block)
{
    block = block.substr(0, block.find('\0'));
    Reading reading;
    std::size_t at = 0;
    for (;;)
    {
        std::size_t const end = block.find("\r\n", at);
        auto const line = block.substr(at, end == std::string_view::npos ? end : end - at);
        std::size_t const colon = line.find(':');
        if (line.empty() || line.front() == '<' || colon == std::string_view::npos || end == std::string_view::npos)
            break;
        reading.fields[std::string(line.substr(0, colon))] = std::string(line.substr(colon + 1));
        at = end + 2;
    }
    std::optional<std::string> const html = Between(block, reading.fields, "StartHTML", "EndHTML");
    std::optional<std::string> const fragment = Between(block, reading.fields, "StartFragment", "EndFragment");
    if (!html || !fragment)
        return std::nullopt;
    reading.html = *html;
    reading.fragment = *fragment;
    return reading;
}
} // namespace html_block
