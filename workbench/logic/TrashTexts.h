#pragma once
// What is asked before files go to the trash, and said of those that could not.

#include <filesystem>
#include <span>
#include <string>
#include <utility>

namespace workbench
{

/// Why something could not be done with a file, by the system's number of the error, in the present language.
std::wstring FileErrorText(unsigned long error);

/// Asks about the files: by the name of a single one, by their number and the first names of several.
std::wstring TrashQuestion(std::span<std::filesystem::path const> files);

/// A file, and the system's number of why it stays.
using FileFailure = std::pair<std::filesystem::path, unsigned long>;

/// Says which files could not be moved, and why. There is at least one.
std::wstring TrashFailureText(std::span<FileFailure const> failures);

} // namespace workbench
