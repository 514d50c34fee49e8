#pragma once
// Finds the recordings that a list of folders and files stands for.

#include <filesystem>
#include <span>
#include <vector>

namespace workbench
{

/// Folders are replaced by the WAV files directly in them, sorted by name; everything else stays as it is, missing
/// files included. A path that comes twice is taken once.
std::vector<std::filesystem::path> FindRecordings(std::span<std::filesystem::path const> targets);

/// The file's extension is .wav or .wave, in any case.
bool HasRecordingExtension(std::filesystem::path const & path);

} // namespace workbench
