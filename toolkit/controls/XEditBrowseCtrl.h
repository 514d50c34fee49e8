#pragma once

#include <afxcoll.h>
#include <afxeditbrowsectrl.h>

#include <map>
#include <memory>
#include <set>

#include "controls/IdNameMultiselectDlg.h"
#include "frame/Export.h"
#include "frame/LifeWatch.h"

/// An edit field with a button at its right end. The button asks for a file, whose path then stands in the field, or
/// opens an id-name multiselect below the field, whose chosen names then stand there. Choose one with a Prepare
/// operation. Once the user has chosen, WM_XEDITBROWSE_COMPLETED is posted to the parent, or else to the owner, with
/// the notify tag as its wParam. For the user-interface thread alone.
///
/// Texts that are kept in 260 characters (default extension, default file name, initial directory) must not be longer.
class INSTRUMENT_UI_API CXEditBrowseCtrl : public CMFCEditBrowseCtrl
{
    DECLARE_DYNAMIC(CXEditBrowseCtrl)

public:
    CXEditBrowseCtrl();
    CXEditBrowseCtrl(CXEditBrowseCtrl const &) = delete;
    CXEditBrowseCtrl & operator=(CXEditBrowseCtrl const &) = delete;
    /// Cancels an open drop-down.
    ~CXEditBrowseCtrl() override;

    /// The button asks for a file to open. filter: as CFileDialog takes it. The strings count as empty if null.
    void PrepareFileOpenBrowser(CString const & filter, wchar_t const * defaultExtension,
                                wchar_t const * initialDirectory);
    /// The button asks for a file to save to. A null string leaves the stored value.
    void PrepareFileSaveAsBrowser(CString const & filter, wchar_t const * defaultExtension,
                                  wchar_t const * initialDirectory);
    /// The button opens the multiselect. There is no way back to files.
    void PrepareIdNameBrowser();
    /// The same with a drop-down about twice as high.
    void PrepareLongIdNameBrowser();

    /// The file name that the file dialog opens with; null or empty for none.
    void SetDefaultFilename(wchar_t const * name);
    /// The caption of the file dialog.
    void SetDlgTitle(CString const & title);
    /// Adds OFN_ flags to those of the file dialog; there is no way to remove one.
    void SetAdditionalFileFlags(unsigned long flags);
    /// The number that the parent is told with WM_XEDITBROWSE_COMPLETED.
    void SetNotifyTag(unsigned int tag);
    /// Opens the browser once the message loop is reached.
    void BrowseNow();

    // Items of the multiselect; see CIdNameMultiselectCtrl.
    /// Takes all items away.
    void ResetTheMap();
    /// An id that is there already keeps its name.
    void AddItem(int id, CString const & name);
    /// Replaces the items.
    void SetTheMap(std::map<int, CString> const & map);

    // The selection, -1 in it being all items. Call UpdateSelectionText to show it.
    /// The selected ids.
    void SetSelection(std::set<int> const & ids);
    /// This id alone.
    void SetSelection(int id);
    /// Selects all items.
    void SetSelectionAll();
    /// Selects nothing.
    void SetSelectionNone();
    /// The selected ids.
    std::set<int> const & TheSelection() const;
    /// The last drop-down was accepted, and nobody has acknowledged it.
    bool SelectionChanged() const;
    /// The change of the selection is known: SelectionChanged is false from now on.
    void SelectionAcknowledged();
    /// Shows the names of the selected items, as many as there is room for.
    void UpdateSelectionText();

    /// The dots an inch that it is shown with, 96 at first: the button with its picture and the drop-down follow. A
    /// button that has dots instead keeps its width, which goes by the system's font: a picture makes it wider. The
    /// field's font stays the host's. FALSE, and nothing else, below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi.
    UINT GetDpi() const { return m_dpi; }
    /// Whether it takes its window's resolution, at once and whenever that changes. Off at first.
    void FollowDpi(BOOL follow);

    /// Asks for a file or opens the drop-down and returns when that is closed. Nothing while one is open.
    void OnBrowse() override;

protected:
    /// Posts WM_XEDITBROWSE_COMPLETED to the parent, else to the owner.
    void NotifyParent(unsigned int tag, long value);
    /// Opens the drop-down below the field and returns when it is closed.
    void ShowIdNameBrowser();
    void PreSubclassWindow() override;
    void PostNcDestroy() override;

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg LRESULT OnInterneNachricht(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    /// 260, with the end.
    static constexpr int longest_text = 260;

    /// 1: open, 0: save as.
    BOOL m_openDialog;
    CString m_filter;
    /// Empty for none, as the next two.
    wchar_t m_defaultExtension[longest_text];
    wchar_t m_defaultFilename[longest_text];
    wchar_t m_initialDirectory[longest_text];
    CString m_dlgTitle;
    /// Of the last dialog.
    unsigned int m_fileFlags;

public:
    /// A file to open must exist; of several, those that don't are left out.
    bool m_fileMustExist;
    /// Several files at once.
    bool m_multiSelect;
    /// Asks before a file to save is overwritten.
    bool m_overwritePrompt;

protected:
    unsigned int m_additionalFileFlags;
    /// Files of the last multiple choice.
    CStringList m_pathList;
    bool m_idNameMode;

private:
    /// Kept by an open drop-down, too, which may outlast the field for a moment.
    std::shared_ptr<CIdNameMultiselectDlg> m_dialogHold;

protected:
    CIdNameMultiselectDlg & m_dialog;
    /// As the field shows it.
    std::set<int> m_selection;
    bool m_selectionChanged;
    /// The height of the drop-down as a multiple of the field's width.
    float m_dropHeightFactor;
    /// The wParam of WM_XEDITBROWSE_COMPLETED.
    unsigned int m_notifyTag;

private:
    void ShowFileBrowser();
    void EndDropDown();
    /// The button's picture at the resolution.
    void ShowButtonImage();
    unsigned int ComputedFileFlags() const;

    bool m_browsing;
    /// The button has the module's picture.
    bool m_hasImage = false;
    UINT m_dpi = 96;
    bool m_followsDpi = false;
    LifeSign m_life;
};
