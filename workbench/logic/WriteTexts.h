#pragma once
// What is said of files that could not be written.

#include <filesystem>
#include <string>

namespace workbench
{

/// Why a file could not be written, by Windows' number of the error, in the present language; empty for 0.
std::wstring WriteErrorText(unsigned long error);

/// The file and why it could not be written, below a heading.
std::wstring WriteFailureText(wchar_t const * heading, std::filesystem::path const & file, unsigned long error);

/// The same below "This file could not be written:" in the present language.
std::wstring WriteFailureText(std::filesystem::path const & file, unsigned long error);

} // namespace workbench
