#include "Settings.h"

#include <afxwin.h>
#include <shlobj.h>

#include <sstream>
#include <string>

#include "logic/Texts.h"

namespace workbench
{

namespace
{

constexpr wchar_t c_section[] = L"Settings";
constexpr wchar_t c_fadeIn[] = L"FadeIn";
constexpr wchar_t c_dragByBackground[] = L"DragByBackground";
constexpr wchar_t c_inactiveOpacity[] = L"InactiveOpacity";
constexpr wchar_t c_spectrogramScale[] = L"SpectrogramScale";
constexpr wchar_t c_startFolders[] = L"StartFolders";
constexpr wchar_t c_language[] = L"Language";
constexpr wchar_t c_columnWidths[] = L"ColumnWidths"; // the average width of a letter, then column:width
constexpr wchar_t c_company[] = L"Instrument Suite";
constexpr wchar_t c_program[] = L"Instrument Workbench";
constexpr wchar_t c_notesName[] = L"Notes.txt";
constexpr wchar_t c_separator = L'|'; // no name of a folder has it

std::vector<std::filesystem::path> Split(std::wstring const & text)
{
    std::vector<std::filesystem::path> parts;
    for (std::size_t begin = 0; begin < text.size();)
    {
        auto const end = std::min(text.find(c_separator, begin), text.size());
        if (end > begin)
        {
            parts.emplace_back(text.substr(begin, end - begin));
        }
        begin = end + 1;
    }
    return parts;
}

} // namespace

unsigned char Settings::InactiveAlpha() const
{
    return static_cast<unsigned char>(::MulDiv(inactiveOpacity, 255, 100));
}

Settings ReadSettings()
{
    auto & app = *AfxGetApp();
    Settings settings;
    settings.fadeIn = app.GetProfileInt(c_section, c_fadeIn, settings.fadeIn) != 0;
    settings.dragByBackground = app.GetProfileInt(c_section, c_dragByBackground, settings.dragByBackground) != 0;
    auto const opacity = static_cast<int>(app.GetProfileInt(c_section, c_inactiveOpacity, settings.inactiveOpacity));
    if (opacity >= Settings::least_opacity && opacity <= Settings::most_opacity)
    {
        settings.inactiveOpacity = opacity;
    }
    settings.spectrogramScale =
        app.GetProfileInt(c_section, c_spectrogramScale, static_cast<int>(settings.spectrogramScale));
    settings.startFolders = Split(app.GetProfileString(c_section, c_startFolders).GetString());
    return settings;
}

bool StoreSettings(Settings const & settings)
{
    auto & app = *AfxGetApp();
    std::wstring folders;
    for (auto const & folder : settings.startFolders)
    {
        folders += (folders.empty() ? L"" : std::wstring(1, c_separator)) + folder.wstring();
    }
    return app.WriteProfileInt(c_section, c_fadeIn, settings.fadeIn) &&
           app.WriteProfileInt(c_section, c_dragByBackground, settings.dragByBackground) &&
           app.WriteProfileInt(c_section, c_inactiveOpacity, settings.inactiveOpacity) &&
           app.WriteProfileInt(c_section, c_spectrogramScale, static_cast<int>(settings.spectrogramScale)) &&
           app.WriteProfileString(c_section, c_startFolders, folders.c_str());
}

std::map<int, int> ReadColumnWidths(int averageWidth)
{
    constexpr int greatest = 10'000; // pixels
    std::map<int, int> widths;
    std::wistringstream stream(AfxGetApp()->GetProfileString(c_section, c_columnWidths).GetString());
    auto storedFor = 0;
    if (!(stream >> storedFor) || storedFor <= 0)
    {
        return widths;
    }
    auto column = 0;
    auto width = 0;
    for (wchar_t colon = 0; stream >> column >> colon >> width && colon == L':';)
    {
        if (column >= 0 && width >= 0 && width <= greatest)
        {
            widths[column] = ::MulDiv(width, averageWidth, storedFor);
        }
    }
    return widths;
}

bool StoreColumnWidths(std::map<int, int> const & widths, int averageWidth)
{
    auto text = std::to_wstring(averageWidth);
    for (auto const & [column, width] : widths)
    {
        text += L' ' + std::to_wstring(column) + L':' + std::to_wstring(width);
    }
    return AfxGetApp()->WriteProfileString(c_section, c_columnWidths, text.c_str()) != FALSE;
}

std::filesystem::path NotesFile()
{
    auto const & app = *AfxGetApp();
    std::filesystem::path const profile(
        app.m_pszRegistryKey == nullptr && app.m_pszProfileName != nullptr ? app.m_pszProfileName : L"");
    if (profile.is_absolute())
    {
        return profile.parent_path() / c_notesName;
    }
    wchar_t folder[MAX_PATH] = L"";
    ::SHGetFolderPathW(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, folder);
    return std::filesystem::path(folder) / c_company / c_program / c_notesName;
}

unsigned short ReadLanguage()
{
    return static_cast<unsigned short>(AfxGetApp()->GetProfileInt(c_section, c_language, c_usersDefaultLanguage));
}

bool StoreLanguage(unsigned short languageId)
{
    return AfxGetApp()->WriteProfileInt(c_section, c_language, languageId) != FALSE;
}

void UseLanguage(unsigned short languageId)
{
    ::SetThreadUILanguage(languageId);
    // Where the system has no languages of the user interface, resources follow the thread's locale.
    ::SetThreadLocale(MAKELCID(languageId, SORT_DEFAULT));
    SetLanguage(LanguageOf(languageId == c_usersDefaultLanguage ? ::GetUserDefaultUILanguage() : languageId));
}

} // namespace workbench
