#pragma once

#include <afxwin.h>

#include <array>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "DetailsDialog.h"
#include "MeasurePanel.h"
#include "RecordingList.h"
#include "PreviewDialog.h"
#include "ScreenMetrics.h"
#include "SettingsDialog.h"
#include "WaveformView.h"
#include "WindowMenu.h"
#include "layout/DialogResizer.h"
#include "logic/AnalysisQueue.h"
#include "windows/FensterManager.h"

/// The workbench's main window: the list of recordings, the waveform of the chosen one, and the commands.
class CMainWindow : public CWnd
{
public:
    CMainWindow();

    /// Creates the window at the place where it stood last.
    bool CreateMainWindow();

    /// Shows the recordings that folders and files stand for, in place of the present ones.
    void ShowTargets(std::vector<std::filesystem::path> targets);

    /// The number of recordings, and of those that are still being read.
    int RecordingCount() const { return static_cast<int>(m_files.size()); }
    int UnreadCount() const { return m_unread; }

    /// Chooses a recording by its place in the list. Gives false for one that does not exist.
    bool ChooseRecording(int index);

    /// Moves the cursor to a part of the chosen recording, in percent.
    void MoveCursorToPart(int percent);

    /// The place of the first recording that cannot be shown, or is damaged; -1 if there is none.
    int FirstDamagedRecording() const;

    /// The list, for what a walk does in place of a user.
    CRecordingList & List() { return m_list; }

    /// Opens the details of a recording, or shows them in the open window. Gives false for one that does not exist or
    /// is being read.
    bool ShowDetails(int index);
    CDetailsDialog & Details() { return m_details; }

    /// Opens the settings, or brings them to the front.
    bool ShowSettings();
    CSettingsDialog & SettingsDialog() { return m_settingsDialog; }

    /// Opens the print preview of the chosen recording. False if it cannot be opened.
    bool ShowPreview();

    /// Makes it the language of the windows that open from now on, and stores it.
    void ChooseLanguage(unsigned short languageId);

    void CloseDialogs();

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnEndSession(BOOL ending);
    afx_msg void OnInitMenuPopup(CMenu * menu, UINT index, BOOL systemMenu);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO * info);
    afx_msg void OnActivate(UINT state, CWnd * other, BOOL minimized);
    afx_msg void OnSetFocus(CWnd * previous);
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg void OnOpenFiles();
    afx_msg void OnOpenFolder();
    afx_msg void OnReload();
    afx_msg void OnCloseCommand();
    afx_msg void OnShowSettings();
    afx_msg void OnChooseLanguage();
    afx_msg void OnExportSettings();
    afx_msg void OnImportSettings();
    afx_msg void OnPrintPreview();
    afx_msg void OnCloseDialogs();
    afx_msg void OnDialogChosen(UINT id);
    afx_msg void OnItemChanged(NMHDR * header, LRESULT * result);
    afx_msg void OnReadAgain();
    afx_msg void OnShowDetails();
    afx_msg void OnSetReference();
    afx_msg void OnMarkAll();
    afx_msg void OnMarkNone();
    afx_msg LRESULT OnListCheckClicked(WPARAM row, LPARAM column);
    afx_msg LRESULT OnListLinkClicked(WPARAM row, LPARAM column);
    afx_msg LRESULT OnListDoubleClicked(WPARAM row, LPARAM column);
    afx_msg LRESULT OnListColumnClicked(WPARAM state, LPARAM column);
    afx_msg LRESULT OnRecordingsReady(WPARAM, LPARAM);

    bool CreateChildren();
    void Arrange();
    void PrepareDialogs();
    std::array<CWorkbenchDialog *, 3> Dialogs();
    void FollowSettings(workbench::Settings const & settings);
    void TakeSettings(workbench::Settings const & settings);
    void DrawPage(CDC & dc, CRect const & page);
    CDetailsDialog::Actions DetailsActions();
    void RememberPlace();
    void ShowChosen();
    void ShowReading();
    void ReadAgain(int index);
    void KeepNotes();
    std::wstring ComparisonText() const;
    void UpdateStatusLine();

    workbench::ScreenMetrics m_metrics;
    CFensterManager m_memory;
    CRecordingList m_list;
    CWaveformView m_waveform;
    CMeasurePanel m_panel;
    CStatic m_statusLine;
    CWindowMenu m_windowMenu;
    CDetailsDialog m_details;
    int m_detailsIndex = -1; ///< the recording whose details are shown
    CSettingsDialog m_settingsDialog;
    CPreviewDialog m_preview;
    workbench::Settings m_settings;
    std::unique_ptr<CDialogResizer> m_resizer;
    HACCEL m_accelerators = nullptr;
    HWND m_lastFocus = nullptr;

    std::vector<std::filesystem::path> m_targets;
    std::vector<std::filesystem::path> m_files;
    std::vector<std::shared_ptr<workbench::RecordingAnalysis const>> m_analyses; ///< null while being read
    std::map<std::filesystem::path, CRecordingList::Notes> m_notes; ///< of all recordings shown since the start
    int m_unread = 0;
    std::unique_ptr<workbench::AnalysisQueue> m_queue;
};
