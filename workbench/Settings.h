#pragma once

#include <afx.h>

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "colours/ControlColors.h"
#include "logic/Axis.h"
#include "logic/Spectrogram.h"
#include "logic/WaveformColours.h"

namespace workbench
{

/// What the user has set. Kept in the application's registry key.
struct Settings
{
    /// The limits of the opacity in percent.
    static constexpr int least_opacity = 20;
    static constexpr int most_opacity = 100;

    /// The columns that the list has had since a later version. They are hidden at first.
    static constexpr int first_later_column = 13;
    static constexpr int columns = 17;
    inline static std::set<int> const later_columns{13, 14, 15, 16};

    bool fadeIn = true;                ///< dialogs fade in when they open
    bool dragByBackground = true;      ///< dialogs can be moved by their background
    int inactiveOpacity = 50;          ///< of dialogs that are not active, in percent
    unsigned int spectrogramScale = 1; ///< the number of a colour scale
    SpectrogramSettings spectrogram;
    FrequencyScale frequencyScale = FrequencyScale::linear; ///< of the spectrogram
    std::vector<std::filesystem::path> startFolders;        ///< opened when the program starts without others
    std::vector<std::filesystem::path> recentFolders;       ///< that the user has opened, the last one first
    std::vector<std::filesystem::path> recentTargets;       ///< folders and files, for the menu
    std::vector<std::filesystem::path> lastTargets;         ///< that were shown last
    WaveformColours waveform;
    int amplification = 0;                       ///< of the waveform, in decibels
    std::set<int> hiddenColumns = later_columns; ///< of the list, by their number
    std::vector<int> columnOrder;                ///< of the list, which keeps it by itself; empty: as it is
    ControlColorSet contrast = ControlColorSet::standard;
    /// How large texts, lists and tables of the main window are, in percent; 0: as the system wants them. From the next
    /// start on.
    int scale = 0;
    inline static std::set<int> const scales{0, 100, 125, 150, 200};
    bool cellCursor = false;          ///< keys move from cell to cell of the list
    std::optional<bool> folderPane;   ///< whether the folders show; where there is room if the user has not said it
    int folderPaneWidth = 0;          ///< in average widths of a letter; 0: as it comes
    std::filesystem::path exportFile; ///< that the list was exported to last
    std::set<int> exportHidden;       ///< columns that are not exported
    int exportLines = 0;              ///< a number of CExportDialog's

    int frameShare = 50; ///< of the window's width that frames have while any are open, in percent

    /// The limits of the width of the folders.
    static constexpr int least_pane_width = 10;
    static constexpr int most_pane_width = 200;
    /// The limits of the share of frames.
    static constexpr int least_frame_share = 10;
    static constexpr int most_frame_share = 90;

    /// The scale in dots an inch; 0 for that of the system.
    int DotsPerInch() const;
    /// The alpha of a dialog that is not active: 0 to 255.
    unsigned char InactiveAlpha() const;
};

/// Reads the settings; what is missing or out of its limits is as in a new object.
Settings ReadSettings();

/// Stores the settings. False if that failed.
bool StoreSettings(Settings const & settings);

/// Stores alone whether the folders show and how wide. False if that failed.
bool StoreFolderPane(Settings const & settings);

/// Stores alone what the share of frames is. False if that failed.
bool StoreFrameShare(int percent);

/// The recordings of a frame, known by the frame's name. Storing gives false if that failed.
std::vector<std::filesystem::path> ReadFrameRecordings(CString const & frame);
bool StoreFrameRecordings(CString const & frame, std::vector<std::filesystem::path> const & files);

/// Stores the amplification alone, which changes often. False if that failed.
bool StoreAmplification(int decibels);

/// Whether the main window was maximised; not at first. Storing gives false if that failed.
bool ReadMaximised();
bool StoreMaximised(bool maximised);

/// The dots an inch that the panes' places were kept at; those given at first. Storing gives false if that failed.
int ReadLayoutResolution(int dotsPerInch);
bool StoreLayoutResolution(int dotsPerInch);

/// The number of the settings' page that showed last; 0 at first. Storing gives false if that failed.
int ReadSettingsPage();
bool StoreSettingsPage(int page);

/// The column widths that the user has set, by column, in pixels. Those of a font with another average width of its
/// letters come back scaled.
std::map<int, int> ReadColumnWidths(int averageWidth);

/// Stores the column widths. False if that failed.
bool StoreColumnWidths(std::map<int, int> const & widths, int averageWidth);

/// The order of the list's columns that the user has set. Storing gives false if that failed.
std::vector<int> ReadColumnOrder();
bool StoreColumnOrder(std::vector<int> const & order);

/// The file that keeps what the user says about recordings: beside the settings where these are in a file, else in the
/// folder that the user's account has for the data of programs.
std::filesystem::path NotesFile();

/// The file that keeps how folders were shown last, beside the former.
std::filesystem::path ViewsFile();

/// Stores alone what the user has opened, for the menu. False if that failed.
bool StoreRecentTargets(std::vector<std::filesystem::path> const & targets);

/// Stores alone what was shown last. False if that failed.
bool StoreLastTargets(std::vector<std::filesystem::path> const & targets);

/// The number that stands for the language of the user's system.
constexpr unsigned short users_default_language = 1024;

/// The number of the display language last chosen; the user's default at first.
unsigned short ReadLanguage();

/// Stores the display language. False if that failed.
bool StoreLanguage(unsigned short languageId);

/// Makes it the language of the windows that open from now on: of the workbench's texts and of all resources.
void UseLanguage(unsigned short languageId);

} // namespace workbench
