#include "SettingsExchange.h"

#include <optional>
#include <system_error>

#include "FileDialogs.h"
#include "logic/SafeFile.h"
#include "logic/Texts.h"
#include "logic/WriteTexts.h"
#include "windows/RegistrySettingsTree.h"
#include "windows/SettingsFile.h"

namespace workbench
{

namespace
{

constexpr std::uintmax_t settings_length = 64 << 10; // bytes of a file, about

registry_settings::RegistrySettingsTree ApplicationTree()
{
    return registry_settings::RegistrySettingsTree([] { return AfxGetApp()->GetAppRegistryKey(); });
}

/// Puts text and file name below one another.
CString Message(wchar_t const * text, std::filesystem::path const & file)
{
    CString message(text);
    message += L"\n\n";
    message += file.wstring().c_str();
    return message;
}

} // namespace

SettingsFileResult ExportSettings(CWnd & owner)
{
    std::optional<std::filesystem::path> const folder =
        ChooseFolder(owner, Text(L"Choose the folder for the settings file:"));
    if (!folder)
    {
        return SettingsFileResult::given_up;
    }
    registry_settings::settings_file_names const files = registry_settings::settings_files(*folder);
    registry_settings::RegistrySettingsTree tree = ApplicationTree();
    if (!registry_settings::export_registry_settings(tree, files))
    {
        AfxMessageBox(WriteFailureText(Text(L"The settings could not be written to this file:"), files.saved,
                                       WriteObstacle(files.saved, settings_length))
                          .c_str(),
                      MB_ICONEXCLAMATION);
        return SettingsFileResult::failed;
    }
    AfxMessageBox(Message(Text(L"The settings are in this file now:"), files.saved), MB_ICONINFORMATION);
    return SettingsFileResult::done;
}

SettingsFileResult ImportSettings(CWnd & owner)
{
    std::optional<std::filesystem::path> const folder =
        ChooseFolder(owner, Text(L"Choose the folder that has the settings file:"));
    if (!folder)
    {
        return SettingsFileResult::given_up;
    }
    registry_settings::settings_file_names const files = registry_settings::settings_files(*folder);
    std::error_code error;
    if (!std::filesystem::exists(files.plain, error))
    {
        // An export is only taken once somebody says so.
        if (!std::filesystem::exists(files.saved, error))
        {
            AfxMessageBox(Message(Text(L"This folder has no settings file:"), *folder), MB_ICONEXCLAMATION);
            return SettingsFileResult::failed;
        }
        if (AfxMessageBox(Message(Text(L"Replace all settings by those in this file?"), files.saved),
                          MB_YESNO | MB_ICONQUESTION) != IDYES)
        {
            return SettingsFileResult::given_up;
        }
        std::filesystem::rename(files.saved, files.plain, error);
    }
    registry_settings::RegistrySettingsTree tree = ApplicationTree();
    if (registry_settings::import_registry_settings(tree, files))
    {
        AfxMessageBox(Text(L"The settings are those of the file now."), MB_ICONINFORMATION);
        return SettingsFileResult::done;
    }
    // The file has its new name once it has been read, so then it was the registry that refused.
    bool const read = !std::filesystem::exists(files.plain, error);
    AfxMessageBox(Message(read ? Text(L"Only a part of the settings could be taken from this file:")
                               : Text(L"This is no settings file, or it cannot be read:"),
                          read ? files.restored : files.plain),
                  MB_ICONEXCLAMATION);
    return read ? SettingsFileResult::incomplete : SettingsFileResult::failed;
}

} // namespace workbench
