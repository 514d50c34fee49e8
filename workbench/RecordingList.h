#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "colours/ControlColors.h"
#include "DrawingScopes.h"
#include "list/XListCtrl.h"
#include "logic/ListHistory.h"
#include "logic/RecordingAnalysis.h"
#include "logic/RecordingFilter.h"
#include "logic/RecordingNotes.h"
#include "logic/RecordingTotals.h"
#include "logic/TextTable.h"
#include "ScreenMetrics.h"
#include "StarRating.h"

class CRecordingOverview;

namespace workbench
{
class RecordingTable;
}

/// The list of recordings: one line a file, with its header's values, its levels, what the user says about it and what
/// there is to say about the file.
///
/// The user can sort the lines by a click on a column's title, and move some by dragging or with Alt and an arrow key.
/// A line is known by its number, which is its file's place in what ShowFiles was given and stays whatever row the line
/// moves to. What the base class offers and what it posts to the parent go by rows; the host is told by m_onChanged and
/// m_onOpen instead, once the list is at rest.
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
        column_crest, ///< this and the following are hidden at first
        column_loudness,
        column_frequency,
        column_distortion,
        column_count
    };
    static constexpr int first_measure = column_crest;

    using Notes = workbench::RecordingNotes;

    /// What has changed, bits.
    enum Change : unsigned
    {
        changed_selection = 1,
        changed_marks = 2,  ///< what the user says, or what is known, of recordings
        changed_widths = 4, ///< the user has set a column's width or place
        changed_order = 8   ///< the user has sorted or moved lines
    };

    /// While one exists, lines change without being painted. At the end of the outermost one what they need together is
    /// done once: columns, the header's check box, painting. Without messages handled in between.
    class Batch
    {
    public:
        explicit Batch(CRecordingList & list);
        Batch(Batch const &) = delete;
        Batch & operator=(Batch const &) = delete;
        ~Batch();

    private:
        CRecordingList & m_list;
    };

    /// Called with Change bits when something has changed by the user or the program, once for all that happened
    /// before.
    std::function<void(unsigned changes)> m_onChanged;

    /// Called when the user wants to see a line's recording in detail.
    std::function<void(int line)> m_onOpen;

    /// Called when the user wants the selected recordings away.
    std::function<void()> m_onDelete;

    /// Called when the user has dragged lines out of the window. Without it, dragging ends at the list.
    std::function<void(std::vector<int> const & lines)> m_onDragOut;

    /// Called when the user wants to choose the columns at a place of the screen.
    std::function<void(CPoint screen)> m_onColumns;

    /// A column's title in the present language, and whether the user can hide it.
    static wchar_t const * Title(int column);

    /// What a line says in place of its state while it has none.
    static wchar_t const * WaitingText(bool isBeingRead);

    /// What a rating is called in the present language; empty for one that does not exist.
    static wchar_t const * RatingName(int rating);

    /// Shows everything in the present language.
    void ShowTexts();
    static bool CanBeHidden(int column);

    /// Creates the list with its columns and its context menu, whose commands are those of the workbench. The font is
    /// the metrics' and must outlive the window.
    bool CreateList(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics);

    /// The width in pixels at which all columns are seen, the flexible ones at their least.
    int LeastWidth() const { return m_leastWidth; }

    /// Replaces all lines by one for each file, which is not read yet. There are as many notes as files.
    void ShowFiles(std::vector<std::filesystem::path> const & files, std::vector<Notes> const & notes);

    /// Takes all lines away.
    void RemoveLines();

    /// Adds a line for a file that is not read yet, behind all others.
    void AppendFile(std::filesystem::path const & file, Notes const & notes);

    int LineCount() const { return static_cast<int>(m_notes.size()); }

    /// Gives lines other numbers, by their present ones: those below 0 go, and the others have the numbers up to how
    /// many they are. Rows stay where they are, as do selection, undoing, and what was done to the lines.
    void Renumber(std::vector<int> const & numbers);

    /// The line whose row is the uppermost one in sight, -1 for none; and scrolling so that a line's row is.
    int TopLine() const { return LineAt(GetTopIndex()); }
    void ScrollToLine(int line);
    bool IsInSight(int line) const;

    /// Says that a line's file has another name by now.
    void Rename(int line, std::filesystem::path const & file);

    /// Counts and sums over the lines.
    workbench::RecordingTotals const & Totals() const { return m_totals; }

    /// Fills a line; that of a file that could not be read is grey and has nothing to be set. A line that does not
    /// exist is ignored.
    void ShowAnalysis(int line, std::shared_ptr<workbench::RecordingAnalysis const> const & analysis);

    /// Shows what the lines say in the present language and with the present signs of numbers: those in sight at once,
    /// the others a few at a time.
    void RefreshLines();

    /// Says again that a line's file is being read. The values that the line has go.
    void ShowReading(int line, std::filesystem::path const & file);

    /// Lines that the filter keeps out have no row; they come back to their places, as they are. It is looked at again
    /// when it is set and when a recording has been read, and not at every mark.
    void SetFilter(workbench::RecordingFilter const & filter);
    workbench::RecordingFilter const & Filter() const { return m_match.Filter(); }
    /// How many lines the filter lets through.
    int ShownCount() const;
    /// Rows of many lines come, and are shown anew, a few at a time. This does the rest now.
    void FinishRows();

    /// The line that stands in a row now, and the row of a line; -1 where there is none.
    int LineAt(int row) const;
    int PlaceOf(int line) const;

    /// Sorts the lines by a column, whose title gets the arrow; lines without a value there come last. The column of
    /// the check boxes sorts nothing.
    void SortLines(Column column, bool ascending);

    /// Sorts them as a click on a column's title does: in the other direction if they are sorted by it. It can be
    /// undone.
    void SortByUser(Column column);

    /// The column by which the lines are sorted, -1 for none, and how.
    int SortedColumn() const { return m_sortedColumn; }
    bool IsAscending() const { return m_ascending; }

    /// All lines in their order, those without a row included.
    workbench::ListOrder Order() const { return {m_sortedColumn, m_ascending, m_order}; }
    /// Lines that it doesn't name come last, what is no line is passed over.
    void SetOrder(workbench::ListOrder const & order);

    /// Whether the user is dragging lines.
    bool IsDragging() const { return !m_dragged.empty(); }
    /// Moves the selected lines together one line up or down, as Alt with an arrow key does. False if there is none.
    bool MoveSelected(bool up);

    /// Takes back what the user did last to marks, ratings, comments, reference or order, or does it again. A gesture
    /// is one step. False if there is nothing to do.
    bool Undo();
    bool Redo();
    bool CanUndo() const { return m_history.CanUndo(); }
    bool CanRedo() const { return m_history.CanRedo(); }

    /// Copies the selected lines, or all of them, as a table for other programs: as text and as HTML. Without a
    /// selection all lines are copied. False if there are none or the clipboard refuses.
    bool CopyToClipboard(bool all);

    /// The line that commands go to: the selected one with the focus, else the first selected; -1 for none.
    int ChosenLine() const;

    /// All selected lines, from top to bottom.
    std::vector<int> SelectedLines() const;
    /// Selects these lines, and no others; the focus goes to one of them.
    void SelectLines(std::vector<int> const & lines, int focused);

    /// Selects one line alone, which gets the focus and is scrolled into view. Negative: none.
    void ChooseLine(int line);

    /// The line for which the context menu opened; -1 if it is gone since.
    int MenuLine() const { return m_menuGeneration == m_generation ? m_menuLine : -1; }

    /// What the user has said so far about a line's recording, one that cannot be read included.
    Notes NotesOf(int line) const;
    /// The lines about which the user has said something since the last call, each once.
    std::vector<int> TakeNotedLines();

    /// Opens the editor of a line's comment or the choice of its rating, as a click there does. Nothing happens where a
    /// recording has none.
    void EditComment(int line);
    void ChooseRating(int line);
    /// Whether one of them is open.
    bool IsEditing() const { return CommentEditor() != nullptr || RatingCombo() != nullptr; }
    /// The editor of a comment, while it is open; else null.
    HWND CommentEditor() const;
    /// The window in which a rating is chosen, while it is open; else null.
    HWND RatingCombo() const;
    /// Closes them. A comment is taken as it stands; the rating stays what it was.
    void EndEditing();

    bool IsChecked(int line) const { return line >= 0 && m_totals.IsChecked(static_cast<std::size_t>(line)); }
    /// Checks or clears all recordings that can be read.
    void CheckAll(bool checked);
    /// Makes the header's check box show what the lines have together, those that could not be read left out.
    void ShowHeaderCheck();

    /// The line of the reference recording; -1 if there is none.
    int ReferenceLine() const { return m_reference; }
    /// Makes a line's recording the reference. A line that could not be read is ignored.
    void SetReference(int line);
    /// Shows the reference's name in bold.
    void ShowReference();

    /// The widths that the user has set, by column; these columns keep them. The others share what is left.
    std::map<int, int> const & UserWidths() const { return m_userWidths; }
    void SetUserWidths(std::map<int, int> const & widths);

    /// The columns from left to right, hidden ones included, as the user has dragged their titles; copies follow it. An
    /// order that has not all of them once is ignored. The check boxes stand before the names in any order.
    std::vector<int> ColumnOrder() const;
    void SetColumnOrder(std::vector<int> order);

    /// Shows the lines in the colours that the window is painted in now.
    void FollowColours();

    /// The columns that don't show. Neither do they go into copies.
    std::set<int> const & HiddenColumns() const { return m_hidden; }
    void SetHiddenColumns(std::set<int> const & columns);
    bool IsHidden(int column) const { return m_hidden.contains(column); }

    /// Recordings that a table can be of.
    enum class Lines
    {
        all,
        selected, ///< all where none is
        marked
    };
    /// The recordings in their order as a table that is to be made, without those columns, without check boxes and
    /// pictures.
    workbench::RecordingTable Table(Lines lines, std::set<int> const & without);

    /// The middle of a cell in client pixels.
    CPoint CellCentre(int line, Column column);

    void OnItemStateChange(int row, int column, unsigned int message) override;
    BOOL PreTranslateMessage(MSG * message) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO * info) const override;

protected:
    void GetDrawColors(int row, int column, COLORREF & text, COLORREF & background) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result) override;
    DECLARE_MESSAGE_MAP()

private:
    using Clock = std::chrono::steady_clock;
    static constexpr UINT_PTR refresh_timer = 42;

    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnSetFocus(CWnd * other);
    afx_msg void OnKillFocus(CWnd * other);
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg BOOL OnItemChanged(NMHDR * header, LRESULT * result);
    afx_msg BOOL OnDeleteAllItems(NMHDR * header, LRESULT * result);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnContextMenu(CWnd * window, CPoint point);
    afx_msg BOOL OnTitleClick(NMHDR * header, LRESULT * result);
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd * other);
    afx_msg BOOL OnBeginTrack(UINT id, NMHDR * header, LRESULT * result);
    afx_msg BOOL OnDividerDoubleClick(UINT id, NMHDR * header, LRESULT * result);
    afx_msg BOOL OnEndTrack(UINT id, NMHDR * header, LRESULT * result);
    afx_msg BOOL OnBeginColumnDrag(UINT id, NMHDR * header, LRESULT * result);
    afx_msg BOOL OnEndColumnDrag(UINT id, NMHDR * header, LRESULT * result);
    afx_msg BOOL OnToolTipShow(UINT id, NMHDR * header, LRESULT * result);
    afx_msg LRESULT OnTellChanges(WPARAM, LPARAM);
    afx_msg LRESULT OnTellOpen(WPARAM line, LPARAM generation);
    afx_msg LRESULT OnPlaceToolTip(WPARAM tool, LPARAM tip);

    void MeasureTitles();
    void CreateColumns();
    void PlaceEditors(int line);
    void NoteReference();
    void CreateImages();
    void SetFixedTexts();
    void CreateMenu();
    void Tell(unsigned changes);
    int ChosenRow() const;
    void ClearSelection();
    void SelectRows(std::vector<bool> const & isMeant, bool othersStay);
    void SelectRangeTo(CPoint point, bool othersStay);
    void RepaintSoon(int row);
    void RepaintRows(int first, int last, bool selectedOnly);
    void TellOpen(int line);
    void PlaceToolTip(HWND tip, UINT_PTR tool);
    // These go by rows.
    void PrepareRow(int row, std::filesystem::path const & file, Notes const & notes, wchar_t const * status);
    void ResetRow(int row);
    void Touch(int row);
    void GreyOut(int row);
    void MarkValues(int row, workbench::RecordingAnalysis const & analysis);
    void ShowProblem(int row, workbench::RecordingAnalysis const & analysis);
    static void KeepChecksBesideNames(std::vector<int> & order);
    void FollowDraggedColumn();
    void ShowNumbers(int row, workbench::RecordingAnalysis const & analysis);
    void ShowValues(int row, std::shared_ptr<workbench::RecordingAnalysis const> const & analysis);
    void ShowDate(int row, workbench::RecordingAnalysis const & analysis);
    void ShowStatus(int row, workbench::RecordingAnalysis const & analysis);
    void MarkValue(int row, Column column);
    void DrawOverview(int row, CDC & dc, CRect const & rect, CRecordingOverview & overview);
    void SetChecked(std::vector<int> const & lines, bool checked);
    void ToggleSelected();
    void ForgetOrder();
    void BeginDrag(int row);
    void EndDrag();
    int EdgeOf(int row) const;
    void MarkDrop(int row);
    int DropRowAt(CPoint point);
    void FollowDrag(CPoint point);
    void ScrollForDrag();
    bool OnDragTimer(UINT_PTR id);
    bool OnRefreshTimer(UINT_PTR id);
    bool MoveLines(std::vector<int> const & lines, int row);
    struct SortKey
    {
        bool last;
        double value;
    };
    SortKey KeyOf(int line, int column) const;
    std::vector<int> LinesWithRows() const;
    std::vector<int> ShownLines() const;
    void ArrangeRows(std::vector<int> rows, int column);
    void MakeRowsAnew(std::vector<int> lines);
    static int CompareInList(long long a, long long b, long long list);
    int CompareRows(int a, int b) const;
    bool Passes(int line) const;
    void Reconsider(int line);
    void ShowWantedRows();
    void HoldSelection();
    void HoldLines(std::vector<int> const & lines, int focused);
    void ShowHeldSelection(int focused);
    int StayingLineNear(int row, std::vector<int> const & numbers) const;
    void AddRow(int line, int row);
    CPoint ScrolledTo() const { return {GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT)}; }
    void FillRows(Clock::time_point end);
    void ScrollAfterFilling();
    void RefreshRows(Clock::time_point end);
    void RefreshRow(int row, int line);
    void FillRow(int row, std::shared_ptr<workbench::RecordingAnalysis const> const & analysis);
    bool IsReadable(int line) const;
    void SetNotes(int line, Notes const & notes);
    void NoteNews(int line, unsigned news);
    void ShowNotes();
    void ShowNewNotes(int row, int line);
    void Apply(workbench::ListStep const & step);
    void RateSelected(int row, int rating);
    bool IsTyping() const;
    std::vector<int> LinesOf(Lines lines);
    std::vector<double> RanksOfTexts(int column) const;
    std::wstring SortedText(int line, int column) const;
    void ShowColumn(int row, Column column);
    int WidthOf(std::wstring const & text) const;
    int WidthOfValue(std::wstring const & text) const;
    int WidthOfName(std::wstring const & name);
    void Require(Column column, int width);
    void FitColumns();

    /// For many texts in the list's font.
    struct Measuring
    {
        explicit Measuring(CFont & font);
        CDC dc;
        workbench::FontScope scope;
    };

    CImageList m_images;
    workbench::ScreenMetrics * m_metrics = nullptr;
    std::shared_ptr<CStarRating> m_stars;
    int m_leastWidth = 0;
    std::array<int, column_count> m_least{};                     ///< the width that a column never goes below
    std::array<int, column_count> m_needs{};                     ///< the width that shows its longest text
    mutable std::unordered_map<std::wstring, int> m_valueWidths; ///< in the list's font
    std::map<int, int> m_userWidths;
    std::set<int> m_hidden{column_crest, column_loudness, column_frequency, column_distortion};
    bool m_fitting = false;
    bool m_columnDragged = false; ///< what comes of it is not shown yet
    bool m_tracking = false;      ///< the header's mouse capture, while it lasts, is for a divider
    ControlColors m_colours = control_colors::Of(ControlColorSet::standard); ///< that it is painted in
    int m_fittedWidth = -1;                 ///< of the client area, for which the columns have their widths
    int m_batches = 0;                      ///< that exist
    std::unique_ptr<Measuring> m_measuring; ///< while one does, once it is needed
    bool m_wasClean = false;                ///< nothing was waiting to be painted when the outermost batch began
    CPoint m_scrolledTo;                    ///< where the list stood then
    bool m_touched = false;                 ///< the batch has changed what can be seen
    mutable std::vector<int> m_places;      ///< of each line, the row where it was seen last
    int m_sortedColumn = -1;
    bool m_ascending = true;
    std::vector<int> m_rowPlaces; ///< of each row, where it is to stand while rows are sorted
    std::vector<int> m_dragged;   ///< lines that the user is dragging
    int m_dropRow = -1;           ///< before which they would land
    bool m_dragsNothing = false;  ///< the present press has ended an editor

    /// What is new of a line's notes.
    enum News : unsigned
    {
        new_mark = 1,
        new_reference = 2,
        new_rating = 4,
        new_comment = 8
    };

    /// What there is to know of a line beside its notes.
    struct Source
    {
        std::filesystem::path file;
        std::shared_ptr<workbench::RecordingAnalysis const> analysis; ///< null while it is not read
        std::wstring searched;                                        ///< what the filter looks for words in
        bool reading = false;
        bool shown = true; ///< the filter lets it through
        bool hasRow = false;
        bool isHeld = false;   ///< selected, whether it has a row or not
        bool isStale = false;  ///< its row says what it said in another language or region
        unsigned newNotes = 0; ///< what is said about it and its row doesn't show yet, News bits
    };

    std::vector<Notes> m_notes; ///< of each line
    std::vector<Source> m_sources;
    std::vector<int> m_order;  ///< the lines from top to bottom
    std::vector<int> m_wanted; ///< while rows are missing: the lines that have one at the end
    std::size_t m_filled = 0;  ///< of them have one
    int m_refreshed = 0;       ///< the lines below it have no stale row
    workbench::FilterMatch m_match{workbench::RecordingFilter()};
    bool m_late = false;    ///< the filter lets lines through that have no row yet
    bool m_holds = false;   ///< the user has selected nothing else since the selection was held
    bool m_filling = false; ///< what happens to rows is no doing of the user
    int m_heldFocus = -1;
    bool m_allCame = false; ///< the last row that was missing, and nothing has been scrolled to yet
    int m_wantedTop = -1;   ///< the line to be the uppermost one in sight once all have rows
    workbench::ListHistory m_history;
    std::wstring m_typed; ///< by which a line is looked for
    DWORD m_typedAt = 0;
    std::vector<int> m_noted; ///< lines whose notes the user has changed
    int m_editedLine = -1;    ///< that the editor was opened for last
    HWND m_ratingCombo = nullptr;
    workbench::RecordingTotals m_totals;
    int m_reference = -1;
    int m_boldLine = -1;
    unsigned m_generation = 0; ///< changes whenever all lines are taken away
    unsigned m_changes = 0;    ///< to be told
    int m_repaintFirst = 0;    ///< rows of which the begin is to be painted when changes are told
    int m_repaintLast = -1;
    int m_menuLine = -1;
    unsigned m_menuGeneration = 0;
};
