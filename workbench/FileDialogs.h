#pragma once

#include <afxwin.h>

#include <filesystem>
#include <optional>
#include <vector>

namespace workbench
{

/// Lets the user choose WAV files; empty if the choice was given up.
std::vector<std::filesystem::path> ChooseFiles(CWnd & owner);

/// Lets the user choose a folder; empty if the choice was given up.
std::optional<std::filesystem::path> ChooseFolder(CWnd & owner);

} // namespace workbench
