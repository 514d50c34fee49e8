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

constexpr wchar_t section[] = L"Settings";
constexpr wchar_t fade_in[] = L"FadeIn";
constexpr wchar_t drag_by_background[] = L"DragByBackground";
constexpr wchar_t inactive_opacity[] = L"InactiveOpacity";
constexpr wchar_t spectrogram_scale[] = L"SpectrogramScale";
constexpr wchar_t spectrogram_window[] = L"SpectrogramWindow";
constexpr wchar_t spectrogram_overlap[] = L"SpectrogramOverlap";
constexpr wchar_t frequency_scale[] = L"FrequencyScale"; // 1: logarithmic
constexpr wchar_t start_folders[] = L"StartFolders";
constexpr wchar_t language[] = L"Language";
constexpr wchar_t column_widths[] = L"ColumnWidths"; // the average width of a letter, then column:width
constexpr wchar_t column_order[] = L"ColumnOrder";
constexpr wchar_t company[] = L"Instrument Suite";
constexpr wchar_t program[] = L"Instrument Workbench";
constexpr wchar_t notes_name[] = L"Notes.txt";
constexpr wchar_t views_name[] = L"Views.txt";
constexpr wchar_t last_targets[] = L"LastTargets";
constexpr wchar_t known_columns[] = L"KnownColumns"; // how many the list had when its hidden ones were stored
constexpr wchar_t recent_folders[] = L"RecentFolders";
constexpr wchar_t recent_targets[] = L"RecentTargets";
constexpr wchar_t trace_colour[] = L"TraceColour";
constexpr wchar_t background_colour[] = L"BackgroundColour";
constexpr wchar_t grid_colour[] = L"GridColour";
constexpr wchar_t cursor_colour[] = L"CursorColour";
constexpr wchar_t amplification_entry[] = L"Amplification";
constexpr wchar_t hidden_columns[] = L"HiddenColumns";
constexpr wchar_t folder_pane[] = L"FolderPane"; // 0: hidden, 1: shown, else not said
constexpr wchar_t folder_pane_width[] = L"FolderPaneWidth";
constexpr wchar_t frame_share[] = L"FrameShare";
constexpr wchar_t frame_section[] = L"Frames"; // an entry for each frame: its recordings
constexpr wchar_t export_file[] = L"ExportFile";
constexpr wchar_t export_hidden[] = L"ExportHidden";
constexpr wchar_t export_lines[] = L"ExportLines";
constexpr wchar_t contrast[] = L"Contrast";
constexpr wchar_t settings_page[] = L"SettingsPage";
constexpr wchar_t scale_entry[] = L"Scale"; // percent, 0: the system's
constexpr wchar_t cell_cursor[] = L"CellCursor";
constexpr wchar_t main_maximised[] = L"Maximised";
constexpr wchar_t layout_resolution[] = L"LayoutResolution"; // dots an inch

constexpr int most_pages = 100;   // more than the settings have
constexpr int most_columns = 100; // more than any list of the workbench has
constexpr int line_choices = 3;

std::wstring ReadText(wchar_t const * entry)
{
    return AfxGetApp()->GetProfileString(section, entry).GetString();
}

bool WriteText(wchar_t const * entry, std::wstring const & text)
{
    return AfxGetApp()->WriteProfileString(section, entry, text.c_str()) != FALSE;
}

/// The number, or what else it is to be where it is out of its limits.
int ReadNumber(wchar_t const * entry, int least, int most, int otherwise)
{
    auto const number = static_cast<int>(AfxGetApp()->GetProfileInt(section, entry, otherwise));
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

int Settings::DotsPerInch() const
{
    return ::MulDiv(scale, USER_DEFAULT_SCREEN_DPI, 100);
}

Settings ReadSettings()
{
    CWinApp & app = *AfxGetApp();
    Settings settings;
    settings.fadeIn = app.GetProfileInt(section, fade_in, settings.fadeIn) != 0;
    settings.dragByBackground = app.GetProfileInt(section, drag_by_background, settings.dragByBackground) != 0;
    settings.inactiveOpacity =
        ReadNumber(inactive_opacity, Settings::least_opacity, Settings::most_opacity, settings.inactiveOpacity);
    settings.spectrogramScale =
        app.GetProfileInt(section, spectrogram_scale, static_cast<int>(settings.spectrogramScale));
    SpectrogramSettings const stored{
        app.GetProfileInt(section, spectrogram_window, 0),
        static_cast<int>(app.GetProfileInt(section, spectrogram_overlap, settings.spectrogram.overlap))};
    SpectrogramSettings const checked = CheckedSpectrogramSettings(stored, 0);
    settings.spectrogram = {checked.window == stored.window ? stored.window : 0, checked.overlap};
    settings.frequencyScale =
        ReadNumber(frequency_scale, 0, 1, 0) == 1 ? FrequencyScale::logarithmic : FrequencyScale::linear;
    settings.startFolders = FoldersOf(ReadText(start_folders));
    settings.recentFolders = FoldersOf(ReadText(recent_folders));
    if (settings.recentFolders.size() > most_recent_folders)
    {
        settings.recentFolders.resize(most_recent_folders);
    }
    settings.recentTargets = FoldersOf(ReadText(recent_targets));
    if (settings.recentTargets.size() > most_recent_folders)
    {
        settings.recentTargets.resize(most_recent_folders);
    }
    ReadColour(trace_colour, settings.waveform.trace);
    ReadColour(background_colour, settings.waveform.background);
    ReadColour(grid_colour, settings.waveform.grid);
    ReadColour(cursor_colour, settings.waveform.cursor);
    settings.amplification =
        CheckedAmplification(static_cast<int>(app.GetProfileInt(section, amplification_entry, settings.amplification)));
    settings.hiddenColumns = NumbersOf(ReadText(hidden_columns), most_columns);
    for (int column = ReadNumber(known_columns, 0, most_columns, Settings::first_later_column);
         column < Settings::columns; ++column)
    {
        settings.hiddenColumns.insert(column);
    }
    settings.lastTargets = FoldersOf(ReadText(last_targets));
    if (int const shown = ReadNumber(folder_pane, 0, 1, -1); shown >= 0)
    {
        settings.folderPane = shown != 0;
    }
    settings.folderPaneWidth = ReadNumber(folder_pane_width, Settings::least_pane_width, Settings::most_pane_width, 0);
    settings.frameShare =
        ReadNumber(frame_share, Settings::least_frame_share, Settings::most_frame_share, settings.frameShare);
    settings.exportFile = ReadText(export_file);
    settings.exportHidden = NumbersOf(ReadText(export_hidden), most_columns);
    settings.contrast =
        static_cast<ControlColorSet>(ReadNumber(contrast, 0, static_cast<int>(ControlColorSet::follow_system), 0));
    settings.exportLines = ReadNumber(export_lines, 0, line_choices - 1, 0);
    auto const scale = static_cast<int>(app.GetProfileInt(section, scale_entry, 0));
    settings.scale = Settings::scales.contains(scale) ? scale : 0;
    settings.cellCursor = app.GetProfileInt(section, cell_cursor, settings.cellCursor) != 0;
    return settings;
}

bool StoreSettings(Settings const & settings)
{
    CWinApp & app = *AfxGetApp();
    return app.WriteProfileInt(section, fade_in, settings.fadeIn) &&
           app.WriteProfileInt(section, drag_by_background, settings.dragByBackground) &&
           app.WriteProfileInt(section, inactive_opacity, settings.inactiveOpacity) &&
           app.WriteProfileInt(section, spectrogram_scale, static_cast<int>(settings.spectrogramScale)) &&
           app.WriteProfileInt(section, spectrogram_window, static_cast<int>(settings.spectrogram.window)) &&
           app.WriteProfileInt(section, spectrogram_overlap, settings.spectrogram.overlap) &&
           app.WriteProfileInt(section, frequency_scale,
                               settings.frequencyScale == FrequencyScale::logarithmic ? 1 : 0) &&
           WriteText(start_folders, FolderText(settings.startFolders)) &&
           WriteText(recent_folders, FolderText(settings.recentFolders)) &&
           StoreRecentTargets(settings.recentTargets) && WriteText(trace_colour, ColourText(settings.waveform.trace)) &&
           WriteText(background_colour, ColourText(settings.waveform.background)) &&
           WriteText(grid_colour, ColourText(settings.waveform.grid)) &&
           WriteText(cursor_colour, ColourText(settings.waveform.cursor)) &&
           StoreAmplification(settings.amplification) &&
           WriteText(hidden_columns, NumberText(settings.hiddenColumns)) &&
           app.WriteProfileInt(section, known_columns, Settings::columns) && StoreFolderPane(settings) &&
           StoreFrameShare(settings.frameShare) && WriteText(export_file, settings.exportFile.wstring()) &&
           WriteText(export_hidden, NumberText(settings.exportHidden)) &&
           app.WriteProfileInt(section, export_lines, settings.exportLines) &&
           app.WriteProfileInt(section, contrast, static_cast<int>(settings.contrast)) &&
           app.WriteProfileInt(section, scale_entry, settings.scale) &&
           app.WriteProfileInt(section, cell_cursor, settings.cellCursor);
}

bool StoreFolderPane(Settings const & settings)
{
    CWinApp & app = *AfxGetApp();
    return app.WriteProfileInt(section, folder_pane, settings.folderPane ? *settings.folderPane : -1) &&
           app.WriteProfileInt(section, folder_pane_width, settings.folderPaneWidth);
}

bool StoreFrameShare(int percent)
{
    return AfxGetApp()->WriteProfileInt(section, frame_share, percent) != FALSE;
}

std::vector<std::filesystem::path> ReadFrameRecordings(CString const & frame)
{
    return FoldersOf(AfxGetApp()->GetProfileString(frame_section, frame).GetString());
}

bool StoreFrameRecordings(CString const & frame, std::vector<std::filesystem::path> const & files)
{
    return AfxGetApp()->WriteProfileString(frame_section, frame, FolderText(files).c_str()) != FALSE;
}

bool StoreAmplification(int decibels)
{
    return AfxGetApp()->WriteProfileInt(section, amplification_entry, decibels) != FALSE;
}

bool ReadMaximised()
{
    return ReadNumber(main_maximised, 0, 1, 0) != 0;
}

bool StoreMaximised(bool maximised)
{
    return AfxGetApp()->WriteProfileInt(section, main_maximised, maximised ? 1 : 0) != FALSE;
}

int ReadLayoutResolution(int dotsPerInch)
{
    return static_cast<int>(AfxGetApp()->GetProfileInt(section, layout_resolution, dotsPerInch));
}

bool StoreLayoutResolution(int dotsPerInch)
{
    return AfxGetApp()->WriteProfileInt(section, layout_resolution, dotsPerInch) != FALSE;
}

int ReadSettingsPage()
{
    return ReadNumber(settings_page, 0, most_pages, 0);
}

bool StoreSettingsPage(int page)
{
    return AfxGetApp()->WriteProfileInt(section, settings_page, page) != FALSE;
}

std::map<int, int> ReadColumnWidths(int averageWidth)
{
    constexpr int greatest = 10'000; // pixels
    std::map<int, int> widths;
    std::wistringstream stream(AfxGetApp()->GetProfileString(section, column_widths).GetString());
    int storedFor = 0;
    if (!(stream >> storedFor) || storedFor <= 0)
    {
        return widths;
    }
    int column = 0;
    int width = 0;
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
    std::wstring text = std::to_wstring(averageWidth);
    for (auto const & [column, width] : widths)
    {
        text += L' ' + std::to_wstring(column) + L':' + std::to_wstring(width);
    }
    return AfxGetApp()->WriteProfileString(section, column_widths, text.c_str()) != FALSE;
}

std::vector<int> ReadColumnOrder()
{
    return OrderOf(ReadText(column_order), Settings::columns);
}

bool StoreColumnOrder(std::vector<int> const & order)
{
    return WriteText(column_order, OrderText(order));
}

std::filesystem::path NotesFile()
{
    CWinApp const & app = *AfxGetApp();
    std::filesystem::path const profile(
        app.m_pszRegistryKey == nullptr && app.m_pszProfileName != nullptr ? app.m_pszProfileName : L"");
    if (profile.is_absolute())
    {
        return profile.parent_path() / notes_name;
    }
    wchar_t folder[MAX_PATH] = L"";
    ::SHGetFolderPathW(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, folder);
    return std::filesystem::path(folder) / company / program / notes_name;
}

std::filesystem::path ViewsFile()
{
    return NotesFile().parent_path() / views_name;
}

bool StoreRecentTargets(std::vector<std::filesystem::path> const & targets)
{
    return WriteText(recent_targets, FolderText(targets));
}

bool StoreLastTargets(std::vector<std::filesystem::path> const & targets)
{
    return WriteText(last_targets, FolderText(targets));
}

unsigned short ReadLanguage()
{
    return static_cast<unsigned short>(AfxGetApp()->GetProfileInt(section, language, users_default_language));
}

bool StoreLanguage(unsigned short languageId)
{
    return AfxGetApp()->WriteProfileInt(section, language, languageId) != FALSE;
}

void UseLanguage(unsigned short languageId)
{
    ::SetThreadUILanguage(languageId);
    // Where the system has no languages of the user interface, resources follow the thread's locale.
    ::SetThreadLocale(MAKELCID(languageId, SORT_DEFAULT));
    SetLanguage(LanguageOf(languageId == users_default_language ? ::GetUserDefaultUILanguage() : languageId));
}

} // namespace workbench
