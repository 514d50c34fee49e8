#pragma once

#include <afxwin.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace workbench
{

/// Lets the user choose WAV files; empty if the choice was given up.
std::vector<std::filesystem::path> ChooseFiles(CWnd & owner);

/// Lets the user say where a picture goes; nothing if the choice was given up. name: what it is called at first.
std::optional<std::filesystem::path> ChoosePictureFile(CWnd & owner, std::wstring const & name);

/// Lets the user say where a report goes; nothing if the choice was given up.
std::optional<std::filesystem::path> ChooseReportFile(CWnd & owner, std::wstring const & name);

/// Lets the user choose a folder; empty if the choice was given up. title: says what for.
std::optional<std::filesystem::path> ChooseFolder(CWnd & owner, wchar_t const * title);

} // namespace workbench
