#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "ScreenMetrics.h"
#include "list/XListCtrl.h"
#include "logic/RecordingAnalysis.h"
#include "logic/TableText.h"

class CRecordingOverview;

/// The list of recordings: one line a file, with its header's values, its levels, what the user says about it and what
/// there is to say about the file.
///
/// The user can sort the lines by a click on a column's title, and swap two by dragging. A line is known by its number,
/// which is its file's place in what ShowFiles was given and stays whatever row the line moves to. What the base class
/// offers and what it posts to the parent go by rows.
class CRecordingList : public CXListCtrl
{
public:
    enum Column
    {
        column_check, ///< selected for what is done with several recordings
        column_name,
        column_reference, ///< the recording that others are compared with
        column_overview,
        column_duration,
        column_channels,
        column_rate,
        column_peak,
        column_rms,
        column_date,
        column_rating,
        column_comment,
        column_status,
        column_count
    };

    /// What the user says about a recording.
    struct Notes
    {
        bool checked = false;
        bool reference = false;
        int rating = 0; ///< a place in the list of ratings
        std::wstring comment;
    };

    /// Creates the list with its columns and its context menu, whose commands are those of the workbench. The font is
    /// the metrics' and must outlive the window.
    bool CreateList(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics);

    /// The width in pixels at which all columns are seen, the flexible ones at their least.
    int LeastWidth() const { return m_leastWidth; }

    /// Replaces all lines by one for each file, which says that it is being read. There are as many notes as files.
    void ShowFiles(std::vector<std::filesystem::path> const & files, std::vector<Notes> const & notes);

    /// Fills a line; a file that could not be read gets a disabled one. A line that does not exist is ignored.
    void ShowAnalysis(int line, std::shared_ptr<workbench::RecordingAnalysis const> const & analysis);

    /// Says again that a line's file is being read.
    void ShowReading(int line, std::filesystem::path const & file);

    /// The line that stands in a row now, and the row of a line; -1 where there is none.
    int LineAt(int row) const;
    int PlaceOf(int line) const;

    /// Sorts the lines by a column, whose title gets the arrow; lines without a value there come last. The column of
    /// the check boxes sorts nothing.
    void SortLines(Column column, bool ascending);

    /// Copies the selected lines, or all of them, as a table for other programs: as text and as HTML. Without a
    /// selection all lines are copied. False if there are none or the clipboard refuses.
    bool CopyToClipboard(bool all);

    /// The line that commands go to: the selected one with the focus, else the first selected; -1 for none.
    int ChosenLine() const;

    /// Selects one line alone, which gets the focus and is scrolled into view. Negative: none.
    void ChooseLine(int line);

    /// What the user has said so far about a line's recording.
    Notes NotesOf(int line);

    bool IsChecked(int line) const { return GetCheckbox(PlaceOf(line), column_check) == XLC_CHECKED; }
    /// Checks or clears all recordings that can be read; the parent hears of each that changes.
    void CheckAll(bool checked);
    /// Makes the header's check box show what the lines have together, those that could not be read left out.
    void ShowHeaderCheck();

    /// The line of the reference recording; -1 if there is none.
    int ReferenceLine() const { return LineAt(GetActiveRadioItem(column_reference)); }
    /// Makes a line's recording the reference. A line that could not be read is ignored.
    void SetReference(int line);
    /// Shows the reference's name in bold.
    void ShowReference();

    /// The middle of a cell in client pixels.
    CPoint CellCentre(int line, Column column);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result) override;
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnSetFocus(CWnd * other);
    afx_msg void OnKillFocus(CWnd * other);
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg BOOL OnItemChanged(NMHDR * header, LRESULT * result);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnContextMenu(CWnd * window, CPoint point);
    afx_msg BOOL OnTitleClick(NMHDR * header, LRESULT * result);
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);

    void CreateColumns();
    void CreateImages();
    void CreateMenu();
    // These go by rows.
    void PrepareRow(int row, std::filesystem::path const & file, Notes const & notes);
    void ShowProblem(int row, workbench::RecordingAnalysis const & analysis);
    void ShowValues(int row, std::shared_ptr<workbench::RecordingAnalysis const> const & analysis);
    void ShowStatus(int row, workbench::RecordingAnalysis const & analysis);
    void MarkValue(int row, Column column);
    void SortValuesLast(int row, bool last);
    void DrawOverview(int row, CDC & dc, CRect const & rect, CRecordingOverview & overview);
    Notes NotesAt(int row);
    void SetChecked(int row, bool checked);
    void ToggleSelected();
    void ForgetOrder();
    static int CompareInList(long long a, long long b, long long list);
    int CompareRows(int a, int b);
    double SortValue(int row);
    std::vector<int> RowsToCopy(bool all) const;
    workbench::TextTable TableOf(std::vector<int> const & rows);
    void RepaintSelected();
    int WidthOf(std::wstring const & text) const;
    void Require(Column column, int width);
    void FitColumns();

    CImageList m_images;
    int m_leastWidth = 0;
    std::array<int, column_count> m_least{}; ///< the width that a column never goes below
    std::array<int, column_count> m_needs{}; ///< the width that shows its longest text
    bool m_fitting = false;
    mutable std::vector<int> m_places; ///< of each line, the row where it was seen last
    int m_sortedColumn = -1;
    bool m_ascending = true;
    bool m_draggingRow = false;
};
