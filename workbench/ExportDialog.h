#pragma once

#include <filesystem>
#include <set>
#include <vector>

#include "ColumnsField.h"
#include "controls/ComboBoxX.h"
#include "controls/XEditBrowseCtrl.h"
#include "dialogs/Dialog3d.h"
#include "RecordingList.h"
#include "Settings.h"

/// Asks what of the list is to be written into which file.
class CExportDialog : public CDialog3d
{
public:
    /// order: in which the columns are listed.
    CExportDialog(workbench::Settings const & settings, std::vector<int> order, CWnd & owner);

    /// What the user has chosen, once the dialog has ended with IDOK.
    std::filesystem::path const & File() const { return m_file; }
    std::set<int> const & HiddenColumns() const { return m_hidden; }
    CRecordingList::Lines Lines() const { return m_lines; }

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG * message) override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    void OnOK() override;

    DECLARE_MESSAGE_MAP()

private:
    afx_msg LRESULT OnBrowsed(WPARAM tag, LPARAM);

    bool MayReplace(std::filesystem::path const & file) const;

    std::filesystem::path m_file;
    std::set<int> m_hidden;
    std::vector<int> m_order;
    CRecordingList::Lines m_lines;
    std::filesystem::path m_agreed; ///< that may be replaced: the user was asked already
    CXEditBrowseCtrl m_fileField;
    CColumnsField m_columns;
    CComboBoxX m_lineChoice;
};
