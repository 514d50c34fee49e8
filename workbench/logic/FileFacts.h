#pragma once
// Size and time of a file.

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>

namespace workbench
{

/// What the file system says about a file; empty where it says nothing.
struct FileFacts
{
    std::optional<std::uint64_t> size;    ///< bytes
    std::optional<std::time_t> lastWrite; ///< seconds since 1970, UTC

    bool operator==(FileFacts const &) const = default;
};

/// Asks the file system. A file that does not exist has neither.
FileFacts ReadFileFacts(std::filesystem::path const & path);

} // namespace workbench
