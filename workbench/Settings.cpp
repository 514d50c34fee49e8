#include "Settings.h"

#include <afxwin.h>
#include <shlobj.h>

#include <sstream>
#include <string>

#include "logic/Amplification.h"
#include "logic/StoredLists.h"
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
constexpr wchar_t c_recentFolders[] = L"RecentFolders";
constexpr wchar_t c_traceColour[] = L"TraceColour";
constexpr wchar_t c_backgroundColour[] = L"BackgroundColour";
constexpr wchar_t c_gridColour[] = L"GridColour";
constexpr wchar_t c_cursorColour[] = L"CursorColour";
constexpr wchar_t c_amplification[] = L"Amplification";
constexpr wchar_t c_hiddenColumns[] = L"HiddenColumns";
constexpr wchar_t c_folderPane[] = L"FolderPane"; // 0: hidden, 1: shown, else not said
constexpr wchar_t c_folderPaneWidth[] = L"FolderPaneWidth";
constexpr wchar_t c_frameShare[] = L"FrameShare";
constexpr wchar_t c_frameSection[] = L"Frames"; // an entry for each frame: its recordings
constexpr wchar_t c_exportFile[] = L"ExportFile";
constexpr wchar_t c_exportHidden[] = L"ExportHidden";
constexpr wchar_t c_exportLines[] = L"ExportLines";
constexpr wchar_t c_settingsPage[] = L"SettingsPage";

constexpr int c_mostPages = 100;   // more than the settings have
constexpr int c_mostColumns = 100; // more than any list of the workbench has
constexpr int c_lineChoices = 3;

std::wstring ReadText(wchar_t const * entry)
{
    return AfxGetApp()->GetProfileString(c_section, entry).GetString();
}

bool WriteText(wchar_t const * entry, std::wstring const & text)
{
    return AfxGetApp()->WriteProfileString(c_section, entry, text.c_str()) != FALSE;
}

/// The number, or what else it is to be where it is out of its limits.
int ReadNumber(wchar_t const * entry, int least, int most, int otherwise)
{
    auto const number = static_cast<int>(AfxGetApp()->GetProfileInt(c_section, entry, otherwise));
    return number >= least && number <= most ? number : otherwise;
}

void ReadColour(wchar_t const * entry, COLORREF & colour)
{
    colour = ColourOf(ReadText(entry)).value_or(colour);
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
    settings.inactiveOpacity =
        ReadNumber(c_inactiveOpacity, Settings::least_opacity, Settings::most_opacity, settings.inactiveOpacity);
    settings.spectrogramScale =
        app.GetProfileInt(c_section, c_spectrogramScale, static_cast<int>(settings.spectrogramScale));
    settings.startFolders = FoldersOf(ReadText(c_startFolders));
    settings.recentFolders = FoldersOf(ReadText(c_recentFolders));
    if (settings.recentFolders.size() > c_mostRecentFolders)
    {
        settings.recentFolders.resize(c_mostRecentFolders);
    }
    ReadColour(c_traceColour, settings.waveform.trace);
    ReadColour(c_backgroundColour, settings.waveform.background);
    ReadColour(c_gridColour, settings.waveform.grid);
    ReadColour(c_cursorColour, settings.waveform.cursor);
    settings.amplification =
        CheckedAmplification(static_cast<int>(app.GetProfileInt(c_section, c_amplification, settings.amplification)));
    settings.hiddenColumns = NumbersOf(ReadText(c_hiddenColumns), c_mostColumns);
    if (auto const shown = ReadNumber(c_folderPane, 0, 1, -1); shown >= 0)
    {
        settings.folderPane = shown != 0;
    }
    settings.folderPaneWidth = ReadNumber(c_folderPaneWidth, Settings::least_pane_width, Settings::most_pane_width, 0);
    settings.frameShare =
        ReadNumber(c_frameShare, Settings::least_frame_share, Settings::most_frame_share, settings.frameShare);
    settings.exportFile = ReadText(c_exportFile);
    settings.exportHidden = NumbersOf(ReadText(c_exportHidden), c_mostColumns);
    settings.exportLines = ReadNumber(c_exportLines, 0, c_lineChoices - 1, 0);
    return settings;
}

bool StoreSettings(Settings const & settings)
{
    auto & app = *AfxGetApp();
    return app.WriteProfileInt(c_section, c_fadeIn, settings.fadeIn) &&
           app.WriteProfileInt(c_section, c_dragByBackground, settings.dragByBackground) &&
           app.WriteProfileInt(c_section, c_inactiveOpacity, settings.inactiveOpacity) &&
           app.WriteProfileInt(c_section, c_spectrogramScale, static_cast<int>(settings.spectrogramScale)) &&
           WriteText(c_startFolders, FolderText(settings.startFolders)) &&
           WriteText(c_recentFolders, FolderText(settings.recentFolders)) &&
           WriteText(c_traceColour, ColourText(settings.waveform.trace)) &&
           WriteText(c_backgroundColour, ColourText(settings.waveform.background)) &&
           WriteText(c_gridColour, ColourText(settings.waveform.grid)) &&
           WriteText(c_cursorColour, ColourText(settings.waveform.cursor)) &&
           StoreAmplification(settings.amplification) &&
           WriteText(c_hiddenColumns, NumberText(settings.hiddenColumns)) && StoreFolderPane(settings) &&
           StoreFrameShare(settings.frameShare) && WriteText(c_exportFile, settings.exportFile.wstring()) &&
           WriteText(c_exportHidden, NumberText(settings.exportHidden)) &&
           app.WriteProfileInt(c_section, c_exportLines, settings.exportLines);
}

bool StoreFolderPane(Settings const & settings)
{
    auto & app = *AfxGetApp();
    return app.WriteProfileInt(c_section, c_folderPane, settings.folderPane ? *settings.folderPane : -1) &&
           app.WriteProfileInt(c_section, c_folderPaneWidth, settings.folderPaneWidth);
}

bool StoreFrameShare(int percent)
{
    return AfxGetApp()->WriteProfileInt(c_section, c_frameShare, percent) != FALSE;
}

std::vector<std::filesystem::path> ReadFrameRecordings(CString const & frame)
{
    return FoldersOf(AfxGetApp()->GetProfileString(c_frameSection, frame).GetString());
}

bool StoreFrameRecordings(CString const & frame, std::vector<std::filesystem::path> const & files)
{
    return AfxGetApp()->WriteProfileString(c_frameSection, frame, FolderText(files).c_str()) != FALSE;
}

bool StoreAmplification(int decibels)
{
    return AfxGetApp()->WriteProfileInt(c_section, c_amplification, decibels) != FALSE;
}

int ReadSettingsPage()
{
    return ReadNumber(c_settingsPage, 0, c_mostPages, 0);
}

bool StoreSettingsPage(int page)
{
    return AfxGetApp()->WriteProfileInt(c_section, c_settingsPage, page) != FALSE;
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
