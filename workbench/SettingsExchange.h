#pragma once

#include <afxwin.h>

#include <filesystem>

namespace workbench
{

/// What came of an export or import.
enum class SettingsFileResult
{
    done,
    given_up,   ///< by the user
    failed,     ///< the settings are as they were
    incomplete, ///< an import failed in the middle: some of the settings are gone
};

/// Lets the user choose a folder and writes all settings to a file there, over an earlier one.
SettingsFileResult ExportSettings(CWnd & owner);

/// Lets the user choose a folder and replaces all settings by the file that somebody put or exported there.
SettingsFileResult ImportSettings(CWnd & owner);

} // namespace workbench
