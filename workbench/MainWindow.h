#pragma once

#include <afxcontrolbars.h>
#include <afxwin.h>

#include <array>
#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "DetailsDialog.h"
#include "Divider.h"
#include "FolderTree.h"
#include "FolderWatch.h"
#include "frame/LifeWatch.h"
#include "FrameMeasuresPanel.h"
#include "HelpDialog.h"
#include "HelpKey.h"
#include "HostView.h"
#include "ListPanel.h"
#include "logic/AnalysisQueue.h"
#include "logic/FolderViews.h"
#include "logic/MainLayout.h"
#include "logic/NotesStore.h"
#include "logic/RecordingSearch.h"
#include "MeasurePanel.h"
#include "PictureCopy.h"
#include "Playing.h"
#include "PreviewDialog.h"
#include "RecordingList.h"
#include "ReportWriter.h"
#include "ScreenMetrics.h"
#include "SettingsSheet.h"
#include "SpectrogramView.h"
#include "StatusStrip.h"
#include "WaveformFrames.h"
#include "WaveformPanel.h"
#include "WindowMenu.h"
#include "windows/FensterManager.h"
#include "windows/MainFrmInterface.h"

/// The workbench's main window: the list of recordings, the waveform of the chosen one, the frames with other
/// waveforms, and the commands. The object is its owner's, and lasts longer than the window.
class CMainWindow : public CMDIFrameWndEx, public CMainFrmInterface
{
public:
    /// dotsPerInch: of the screen, where it is not what the system says.
    explicit CMainWindow(int dotsPerInch = 0);
    ~CMainWindow() override;

    /// Creates the window at the place where it stood last, with the frames that were open.
    bool CreateMainWindow();

    /// Shows the window after its creation: maximised where it was so last and the command leaves that open.
    void ShowAsBefore(int command);

    /// Shows the recordings that folders and files stand for, in place of the present ones. They are looked for, listed
    /// and read a little at a time, while the window goes on handling messages.
    void ShowTargets(std::vector<std::filesystem::path> targets);

    /// Whether recordings are still being looked for, listed or read.
    bool IsBusy() const
    {
        return (m_search && !m_following) || m_listed < m_found.size() || !m_followed.empty() || m_toReread > 0 ||
               m_queued > 0;
    }

    /// Gives up looking for recordings, listing and reading them; what is there stays.
    void CancelReading();

    /// The number of recordings listed so far.
    int RecordingCount() const { return static_cast<int>(m_recordings.size()); }

    /// Chooses a recording by its place in the list. Gives false for one that does not exist.
    bool ChooseRecording(int index);

    /// Moves the cursor to a part of the chosen recording, in percent.
    void MoveCursorToPart(int percent);

    /// The place of the first recording that cannot be shown, or is damaged; -1 if there is none.
    int FirstDamagedRecording() const;

    /// The list, for what a walk does in place of a user.
    CRecordingList & List() { return m_list; }

    /// The list with the strip by which it is filtered.
    CListPanel & ListPanel() { return m_listPanel; }

    /// The tree of folders, the waveform, and what is set, for what a walk or a test looks at.
    CFolderTree & Folders() { return m_tree; }
    CWaveformView & Waveform() { return m_waveformPanel.View(); }
    workbench::Settings const & Settings() const { return m_settings; }

    /// Whether the tree of folders shows, and its showing by the program, which is remembered as the user's is.
    bool ShowsFolders() const { return ShowsPane(part_folders); }
    void ShowFolders(bool show);

    /// The parts, which are panes that the user can move, put into tabs, let float and hide. Their order is that of
    /// their identifiers, which are stored.
    enum Part
    {
        part_folders,
        part_waveform,
        part_spectrogram,
        part_measures,
        part_list,
        part_frame_measures,
        part_count
    };
    /// The pane of a part.
    CDockableViewPane & Pane(Part part) { return *m_panes[part]; }
    bool ShowsPane(Part part) const { return m_panes[part] != nullptr && m_panes[part]->IsVisible(); }
    /// Whether it shows only by its tab, with another pane in front.
    bool IsBehindTab(Part part) const { return ShowsPane(part) && !m_panes[part]->IsWindowVisible(); }
    void ShowPane(Part part, bool show);
    using CMDIFrameWndEx::ShowPane;
    /// Puts all panes back to where they are at the first start.
    void ResetLayout();

    /// Lets the user choose the list's columns at a place of the screen.
    void ChooseColumns(CPoint screen);

    /// Shows a recording in a frame of its own, or brings that to the front. Gives false for one that does not exist.
    bool ShowInFrame(int index);
    /// Shows the first four marked recordings in a frame; the chosen one and those below it, where none are marked.
    bool CompareFour();
    CWaveformFrames & Frames() { return m_frames; }

    /// Opens the details of a recording, or shows them in the open window. Gives false for one that does not exist or
    /// is not read.
    bool ShowDetails(int index);
    CDetailsDialog & Details() { return m_details; }
    CPreviewDialog & Preview() { return m_preview; }
    CFrameMeasuresPanel & FrameMeasures() { return m_frameMeasures; }

    /// Opens the help at a topic, or shows that in the open window.
    bool ShowHelp(workbench::HelpTopic topic);
    CHelpDialog & Help() { return m_help; }

    /// Writes a report about the marked recordings, in the order of the list, whether the filter shows them or not. It
    /// goes on after the call. False if there are none, or the file cannot be written.
    bool WriteReport(std::filesystem::path const & file);
    CReportWriter & Report() { return m_report; }

    /// Opens the settings, or brings them to the front.
    bool ShowSettings();
    CSettingsSheet & SettingsSheet() { return m_settingsSheet; }

    /// Opens the print preview of the chosen recording. False if it cannot be opened.
    bool ShowPreview();

    /// Whether the spectrogram of the chosen recording is still being computed.
    bool IsComputing() const { return m_spectrogram.IsComputing(); }

    /// Makes it the language of this window and of those that open from now on, and stores it.
    void ChooseLanguage(unsigned short languageId);

    void CloseDialogs();

    LRESULT WindowProc(UINT message, WPARAM wide, LPARAM parameter) override;
    BOOL PreCreateWindow(CREATESTRUCT & create) override;
    BOOL PreTranslateMessage(MSG * message) override;
    void RecalcLayout(BOOL notify = TRUE) override;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT create, CCreateContext * context) override;
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()

private:
    /// From the searching and the reading thread: there is something to fetch.
    static constexpr UINT message_recordings_ready = WM_APP + 1;
    /// To the window itself, once it is active.
    static constexpr UINT message_raise_dialogs = WM_APP + 2;
    /// From the thread that stores notes: that has begun to fail or to succeed.
    static constexpr UINT message_notes_turned = WM_APP + 3;
    /// From the thread that reads what frames show: there is something to fetch.
    static constexpr UINT message_frame_read = WM_APP + 4;
    /// To the window itself, when frames have opened or closed.
    static constexpr UINT message_frames_changed = WM_APP + 5;
    /// To the window itself: F1 was pressed in another window.
    static constexpr UINT message_help = WM_APP + 6;
    /// From the thread that watches folders: something has changed in them.
    static constexpr UINT message_folder_changed = WM_APP + 7;

    static constexpr UINT_PTR work_timer = 1;
    static constexpr UINT_PTR raise_timer = 2;
    static constexpr int most_raises = 8;
    static constexpr UINT_PTR view_timer = 3;
    static constexpr UINT_PTR follow_timer = 4;
    static constexpr UINT_PTR layout_timer = 5;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnClose();
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnDestroy();
    afx_msg void OnSysColorChange();
    afx_msg void OnEndSession(BOOL ending);
    afx_msg void OnInitMenuPopup(CMenu * menu, UINT index, BOOL systemMenu);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO * info);
    afx_msg void OnActivate(UINT state, CWnd * other, BOOL minimized);
    afx_msg int OnMouseActivate(CWnd * top, UINT hit, UINT message);
    afx_msg void OnSetFocus(CWnd * previous);
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg void OnShowFolders();
    afx_msg void OnResetLayout();
    afx_msg void OnResizePane(UINT id);
    afx_msg void OnNextPart();
    afx_msg void OnPreviousPart();
    afx_msg void OnDynamicCommand(UINT id);
    afx_msg void OnChooseColumns();
    afx_msg void OnSortBy();
    afx_msg void OnExportList();
    afx_msg void OnWriteReport();
    afx_msg void OnMove(UINT id);
    afx_msg void OnAmplify(UINT id);
    afx_msg void OnOpenFiles();
    afx_msg void OnOpenFolder();
    afx_msg void OnOpenRecent(UINT id);
    afx_msg void OnReload();
    afx_msg void OnCloseCommand();
    afx_msg void OnShowSettings();
    afx_msg void OnChooseLanguage();
    afx_msg void OnExportSettings();
    afx_msg void OnImportSettings();
    afx_msg void OnPrintPreview();
    afx_msg void OnCopy();
    afx_msg void OnCopyAll();
    afx_msg void OnCopyWaveform();
    afx_msg void OnCopySpectrogram();
    afx_msg void OnSaveWaveform();
    afx_msg void OnSaveSpectrogram();
    afx_msg void OnPlay();
    afx_msg void OnStopPlaying();
    afx_msg void OnLoopPlaying();
    afx_msg void OnCloseDialogs();
    afx_msg void OnDialogChosen(UINT id);
    afx_msg void OnFitColumns();
    afx_msg void OnCancelReading();
    afx_msg void OnReadAgain();
    afx_msg void OnShowDetails();
    afx_msg void OnShowInFrame();
    afx_msg void OnCompareFour();
    afx_msg void OnSetReference();
    afx_msg void OnEditComment();
    afx_msg void OnChooseRating();
    afx_msg void OnMarkAll();
    afx_msg void OnMarkNone();
    afx_msg void OnFind();
    afx_msg void OnUndo();
    afx_msg void OnRedo();
    afx_msg void OnRename();
    afx_msg void OnDeleteRecordings();
    afx_msg void OnShowFile();
    afx_msg void OnShowHelp();
    afx_msg void OnShowKeys();
    afx_msg void OnAbout();
    afx_msg LRESULT OnHelpKey(WPARAM topic, LPARAM);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg LRESULT OnRecordingsReady(WPARAM, LPARAM);
    afx_msg LRESULT OnRaiseDialogs(WPARAM, LPARAM);
    afx_msg LRESULT OnNotesTurned(WPARAM, LPARAM);
    afx_msg LRESULT OnFrameRead(WPARAM, LPARAM);
    afx_msg LRESULT OnFramesChanged(WPARAM, LPARAM);
    afx_msg LRESULT OnFolderChanged(WPARAM, LPARAM);

    /// A file in the list.
    struct Recording
    {
        std::filesystem::path file;
        std::shared_ptr<workbench::RecordingAnalysis const> analysis; ///< null while it is not read
        bool queued = false;                                          ///< waits to be read, or is being read
    };

    /// An order of the list's lines.
    struct Order
    {
        CRecordingList::Column column;
        bool ascending;
    };

    bool CreateParts();
    std::vector<CWnd *> FocusStops();
    void GoToNext(bool back);
    void FocusList();
    void BringListInSight();
    CHostView * CreatePart(Part part);
    void PrepareContents();
    void PreparePaneMenu();
    CString PaneCommandText(Part part) const;
    void ShowTexts();
    void ShowTextsOfOpenWindows();
    void ShowNumbers();
    std::vector<workbench::DetailLine> DetailsOf(int index) const;
    CWaveformView & WaveformInUse();
    void KeepOnScreen();
    static wchar_t const * NameOf(Part part);
    static wchar_t const * TitleOf(Part part);
    void DockByDefault(std::array<bool, part_count> const & others);
    void KeepWorkspace();
    void KeepLayout();
    std::vector<LONG_PTR> LayoutNow();
    workbench::MainLayoutNeeds LayoutNeeds() const;
    CSize Arrange();
    void PrepareDialogs();
    void PrepareFrames();
    void PrepareHelp();
    workbench::HelpTopic TopicOf(HWND window) const;
    void CloseOwnedWindows();
    void LookAfterOwned();
    void PrepareReport();
    void ShowRecent(CMenu & menu) const;
    void RememberOpened(std::vector<std::filesystem::path> const & folders,
                        std::vector<std::filesystem::path> const & missing);
    void DragOut(std::vector<int> const & lines);
    std::wstring ReportText() const;
    void SayWritten(wchar_t const * what, std::filesystem::path const & file);
    bool IsInFrames(HWND window) const;
    CDockableViewPane & PaneInUse();
    bool CanResize(UINT id);

    std::array<CWorkbenchDialog *, 3> Dialogs();
    std::array<CWnd *, 4> OwnedWindows();
    void EnterInMenu(CWnd & window, CString const & text, bool open);
    CSize PictureSize(CWnd & view) const;
    void SavePictureOf(CWnd & view, workbench::Drawing const & draw);
    void FollowSettings(workbench::Settings const & settings);
    void TakeSettings(workbench::Settings const & settings);
    void DrawPage(CDC & dc, CRect const & page);
    CDetailsDialog::Actions DetailsActions();
    void RememberPlace();
    bool HasRoomForFolders() const;
    int FolderPaneWidth() const;
    void MoveFramesDivider(int x);
    void SetFrameShare(int share);
    void KeepSettings();
    void OpenFolder(std::filesystem::path const & folder);
    void ChooseFile(std::filesystem::path const & file);
    int LineOf(std::filesystem::path const & file) const;
    void FillFolders();
    void FollowInFolders();
    void ShowInFolders();
    void OnListChanged(unsigned changes);
    void OnFiltered();
    void Work();
    void StopWork();
    void StartSearch(bool withFacts = false);
    void Follow();
    bool MayFollow() const;
    void TakeFollowed(workbench::FoundRecordings found);
    void ShowFound(workbench::FoundRecordings found, bool readsAgain);
    void RenameRecording(int line, std::filesystem::path const & file);
    void Renumber(std::vector<int> const & numbers);
    void ArrangeFollowed();
    void ListAnew(std::vector<std::filesystem::path> files);
    std::optional<Order> PresentOrder() const;
    void SortAgain();
    void ChooseFirst();
    void ListNext();
    void TakeResult(workbench::AnalysisQueue::Finished const & finished);
    void Queue(int index);
    Recording const * RecordingAt(int index) const;
    bool IsReadable(int index) const;
    void ShowChosen();
    void ShowEmpty();
    void ShowProgress();
    void ShowText(wchar_t const * title, wchar_t const * text);
    void ShowReading();
    void ReadAgain(int index);
    void StoreNotes();
    void NoteView();
    void KeepView();
    void RestoreView();
    void RestoreStretch();
    std::filesystem::path ViewFolder() const;
    void KeepNotes();
    bool IsForEditor(MSG const & message) const;
    bool OpenMenuFromPane(MSG const & message);
    std::wstring ComparisonText() const;
    void UpdateStatusLine();

    workbench::ScreenMetrics m_metrics;
    CFensterManager m_memory;
    std::vector<LONG_PTR> m_layout; ///< as it was kept, or at the start
    CRecordingList m_list;
    CListPanel m_listPanel;
    CFolderTree m_tree;
    CWaveformPanel m_waveformPanel;
    CSpectrogramView m_spectrogram;
    CPlaying m_playing;
    CReportWriter m_report;
    std::wstring m_written;                                      ///< what the status line says of the last file written
    std::shared_ptr<workbench::RecordingAnalysis const> m_shown; ///< in both views; null for a text
    std::wstring m_shownText;
    CMeasurePanel m_panel;
    CFrameMeasuresPanel m_frameMeasures;
    CStatusStrip m_status;
    CWindowMenu m_windowMenu;
    CDetailsDialog m_details;
    int m_detailsIndex = -1; ///< the recording whose details are shown
    CSettingsSheet m_settingsSheet;
    CPreviewDialog m_preview;
    CHelpDialog m_help;
    std::optional<workbench::HelpKey> m_helpKey;
    workbench::Settings m_settings;
    CWaveformFrames m_frames;
    std::optional<bool> m_maximised;                       ///< as it is kept, once the window shows as it did last
    CSize m_leastList = CSize(0, 0);                       ///< of the list's pane
    CSize m_leastSize = CSize(0, 0);                       ///< of the window
    std::array<CDockableViewPane *, part_count> m_panes{}; ///< null until they are made
    static constexpr unsigned window_menu = 1;             ///< as dynamic commands know it
    std::array<UINT, part_count> m_paneCommands{};         ///< that show and hide the panes
    std::array<bool, part_count> m_isPlaced{};             ///< the pane had a place when it was made
    CDivider m_framesDivider;
    HWND m_lastFocus = nullptr;
    int m_raises = 0; ///< how often the dialogs are still to be looked after

    std::vector<std::filesystem::path> m_targets;
    std::vector<std::filesystem::path> m_openedFolders; ///< those of the targets that are folders
    bool m_rememberOpened = false;                      ///< as opened by the user
    bool m_isDraggingOut = false;                       ///< files of the list, which are not to be dropped here
    std::vector<std::filesystem::path> m_missing;       ///< those of the targets that do not exist
    std::vector<std::filesystem::path> m_found;         ///< the files to list
    std::size_t m_listed = 0;                           ///< how many of them have been
    std::vector<Recording> m_recordings;                ///< the lines of the list
    bool m_reloading = false;                           ///< the search is for the files that are shown
    std::size_t m_toReread = 0;                         ///< how many of the last lines wait to be queued again
    bool m_valuesChanged = false;                       ///< since the lines were sorted
    std::optional<Order> m_order;                       ///< the lines will be sorted so again
    /// What was known, before a reload, of the files to list.
    std::filesystem::path m_chooseFile;                       ///< to be chosen once it is listed
    int m_chooseLine = -1;                                    ///< its line then
    std::deque<workbench::AnalysisQueue::Finished> m_results; ///< not shown yet
    std::size_t m_queued = 0;                                 ///< recordings whose result is not shown yet
    unsigned m_generation = 0;                                ///< changes whenever other recordings are shown
    std::unique_ptr<workbench::NotesStore> m_notes;
    std::unique_ptr<workbench::FolderViews> m_views;
    std::optional<workbench::FolderView> m_wantedView; ///< to be shown once all lines are listed
    std::optional<workbench::FolderView> m_wantedPart; ///< whose stretch is to be shown with its recording
    std::unique_ptr<workbench::RecordingSearch> m_search;
    std::unique_ptr<workbench::AnalysisQueue> m_queue;
    std::unique_ptr<workbench::FolderWatch> m_watch;
    bool m_following = false;   ///< the search is for what has changed
    bool m_followAgain = false; ///< something has changed since
    /// The order in which the files would be listed now, until all are; empty while they stand so.
    std::vector<std::filesystem::path> m_followed;
    LifeSign m_life;
};
