#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <filesystem>
#include <string>
#include <vector>

#include "ScreenMetrics.h"
#include "logic/RecordingAnalysis.h"

/// The list of recordings: one line a file, with its header's values, its levels and what there is to say about it.
class CRecordingList : public CListCtrl
{
public:
    /// Creates the list with its columns. The font is the caller's and must outlive the window.
    bool CreateList(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics);

    /// The width in pixels at which all columns with usual contents are seen.
    int UsualWidth() const { return m_usualWidth; }

    /// Replaces all lines by one for each file, which says that it is being read.
    void ShowFiles(std::vector<std::filesystem::path> const & files);

    /// Fills a line. A line that does not exist is ignored.
    void ShowAnalysis(int line, workbench::RecordingAnalysis const & analysis);

    /// Says again that a line's file is being read.
    void ShowReading(int line);

    /// The chosen line, -1 for none.
    int ChosenLine() const;

    /// Chooses a line, which gets the focus rectangle and is scrolled into view.
    void ChooseLine(int line);

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnSize(UINT type, int width, int height);

    int WidthOf(std::wstring const & text) const;
    void Require(int column, std::wstring const & text);
    void FitColumns();

    int m_usualWidth = 0;
    std::vector<int> m_usual; ///< of each column: the width that it never goes below
    std::vector<int> m_needs; ///< of each column: the width that shows its longest text
    bool m_fitting = false;
};
