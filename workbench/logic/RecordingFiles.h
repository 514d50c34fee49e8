#pragma once
// Finds the recordings that a list of folders and files stands for.

#include <filesystem>
#include <functional>
#include <span>
#include <vector>

#include "logic/FileFacts.h"

namespace workbench
{

/// What folders and files stand for.
struct FoundRecordings
{
    std::vector<std::filesystem::path> files;
    std::vector<FileFacts> facts;               ///< of the files, where they were asked for
    std::vector<std::filesystem::path> folders; ///< those of the targets that are folders and could be read
    std::vector<std::filesystem::path> missing; ///< folders that do not exist or cannot be read
};

/// Folders are replaced by the WAV files directly in them, sorted by name; everything else stays as it is, missing
/// recordings included. What does not exist and is not named like a recording counts as a missing folder. A path that
/// comes twice is taken once. giveUp, if given, is asked for each file; once it says so, what was found so far is lost.
FoundRecordings FindRecordings(std::span<std::filesystem::path const> targets,
                               std::function<bool()> const & giveUp = {});

/// Sorts paths by their last name, whatever the case of its letters.
void SortByName(std::vector<std::filesystem::path> & paths);

/// The file's extension is .wav or .wave, in any case.
bool HasRecordingExtension(std::filesystem::path const & path);

} // namespace workbench
