#pragma once
// What has become of the files of folders since they were listed.

#include <cstddef>
#include <filesystem>
#include <span>
#include <utility>
#include <vector>

#include "logic/FileFacts.h"

namespace workbench
{

/// A file and what was known of it then.
struct KnownFile
{
    std::filesystem::path file;
    FileFacts facts; ///< empty where nothing is known
};

struct FolderChanges
{
    std::vector<std::size_t> gone;                                      ///< places among the listed ones
    std::vector<std::size_t> changed;                                   ///< likewise: another size or time
    std::vector<std::pair<std::size_t, std::filesystem::path>> renamed; ///< and what they are called now
    std::vector<std::filesystem::path> come;                            ///< in the order in which they were found

    bool IsEmpty() const { return gone.empty() && changed.empty() && renamed.empty() && come.empty(); }
};

/// Compares what is listed with what has been found. A file that is found without facts does not exist: it is gone if
/// it had some. One that has come with the size and time of one that is gone, and of no other, is that one with another
/// name. Listed files without facts have not been read yet, and have not changed.
FolderChanges CompareFolder(std::span<KnownFile const> listed, std::span<KnownFile const> found);

} // namespace workbench
