#pragma once

#include <afxcmn.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "controls/XTreeCtrl.h"
#include "logic/FolderContents.h"
#include "ScreenMetrics.h"

/// A tree of folders and the recordings in them. A folder is read, on a thread of its own, when it is opened for the
/// first time, and its items are entered a little at a time.
class CFolderTree : public CXTreeCtrl
{
public:
    /// Creates the tree. The metrics must outlive the window.
    bool CreateTree(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics);

    /// Adds folders to the top level, behind those that are there; one that is in the tree already stays where it is.
    void AddPlaces(std::vector<std::filesystem::path> const & folders);

    /// Marks folders as those whose recordings are listed, and reads them anew. One that is in no place of the tree
    /// becomes the first place. One that was not marked yet is opened and brought in sight; but for that, nothing
    /// moves.
    void ShowOpened(std::vector<std::filesystem::path> const & folders);

    /// Opens the items of the marked folders and brings them in sight.
    void RevealOpened();

    /// Selects a recording below the folders that are marked, as far as it is there.
    void SelectRecording(std::filesystem::path const & file);

    /// Acts on the selected item as a click does.
    void ChooseSelected();

    /// Gives up all reading.
    void Stop();

    /// Whether a folder is being read or its items are being entered.
    bool IsBusy() const { return m_reading != nullptr || !m_waiting.empty() || m_entering; }

    /// Called when the user has chosen a folder or a recording.
    std::function<void(std::filesystem::path const &)> m_onFolder;
    std::function<void(std::filesystem::path const &)> m_onRecording;
    /// Called when the user wants to see a recording in detail.
    std::function<void(std::filesystem::path const &)> m_onDetails;

    /// What an item is; its records have these as type.
    enum ItemType
    {
        type_folder,
        type_recording,
        type_note ///< that a folder is being read
    };

    /// The path of a folder's or recording's item; empty for others.
    std::filesystem::path PathOf(HTREEITEM item) const;
    /// The item of a folder, null if there is none.
    HTREEITEM FolderItem(std::filesystem::path const & folder) const;

protected:
    DECLARE_MESSAGE_MAP()

private:
    static constexpr UINT message_folder_read = WM_APP + 1;
    static constexpr UINT_PTR enter_timer = 1;

    /// Sort keys: in a folder, folders come before recordings.
    enum SortKey
    {
        key_folder = 1,
        key_recording = 2,
        key_note = 3
    };
    /// The first number of a folder's key: what is known of its contents.
    enum Knowledge
    {
        unread,
        reading,
        known
    };

    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnItemExpanding(NMHDR * header, LRESULT * result);
    afx_msg void OnSelectionChanged(NMHDR * header, LRESULT * result);
    afx_msg void OnDoubleClick(NMHDR * header, LRESULT * result);
    afx_msg void OnGetInfoTip(NMHDR * header, LRESULT * result);
    afx_msg LRESULT OnFolderRead(WPARAM, LPARAM);

    struct Entering
    {
        std::filesystem::path folder;
        std::vector<workbench::FolderStep> steps;
        std::size_t done = 0;
    };

    HTREEITEM AddFolder(std::filesystem::path const & folder, HTREEITEM parent, HTREEITEM after, int sortKey);
    void AddRecording(std::filesystem::path const & file, HTREEITEM parent, HTREEITEM after, int sortKey);
    void Take(workbench::FolderStep const & step, HTREEITEM folder);
    void Remove(HTREEITEM item);
    int Remember(std::filesystem::path const & path);
    Knowledge KnowledgeOf(HTREEITEM folder) const;
    void Note(HTREEITEM folder, Knowledge knowledge);
    void Read(HTREEITEM folder);
    void ReadNext();
    void EnterSome();
    void FinishEntering(HTREEITEM folder, bool changed);
    void Choose(HTREEITEM item);
    void SetHasChildren(HTREEITEM folder, bool has);
    void Reveal(HTREEITEM folder);

    CImageList m_images;
    std::vector<std::filesystem::path> m_paths; ///< by the id of their records
    std::unordered_map<std::wstring, HTREEITEM> m_folders;
    std::unordered_map<std::wstring, HTREEITEM> m_recordings;
    /// What is known of folders, by their key.
    std::unordered_map<std::wstring, std::shared_ptr<workbench::FolderContents const>> m_contents;
    std::vector<std::filesystem::path> m_opened;
    std::filesystem::path m_wanted;              ///< a recording to select once it is there
    std::deque<std::filesystem::path> m_waiting; ///< folders to be read
    std::filesystem::path m_readFolder;          ///< that is being read
    std::unique_ptr<workbench::FolderReading> m_reading;
    std::optional<Entering> m_entering;
    HTREEITEM m_top = nullptr; ///< that stays at the top while items are entered
};
