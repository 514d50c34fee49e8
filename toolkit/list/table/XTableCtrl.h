#pragma once

#include <afxcmn.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "frame/Export.h"
#include "frame/LifeWatch.h"
#include "list/table/TableFeed.h"
#include "list/table/TableForms.h"
#include "list/table/TableOrder.h"
#include "list/table/TableSource.h"
#include "list/table/TableText.h"

struct TableEditing;
struct TableEffect;

/// A report of any number of rows that lie with the host. Its cells look and act as those of the report list; they are
/// asked for only where they are shown, sorted, filtered or copied. The native list view below it has owner data: it
/// keeps no rows, and its selection is the table's.
///
/// A row is one of the source's; a position is a row's place as shown. Columns count as the host has given them,
/// wherever they stand. What is called back is called through a copy, and may end the table.
///
/// Programs that read the screen see what the user sees: the rows shown are its children, in the order shown, and
/// theirs are the cells of the columns shown, from left to right, those that stand still ahead of the others. Rows that
/// a filter keeps out and hidden columns are not there. An object stands for a place, not for what is there at the
/// moment, as in the report list.
class INSTRUMENT_UI_API CXTableCtrl : public CListCtrl
{
    DECLARE_DYNAMIC(CXTableCtrl)

public:
    CXTableCtrl();
    CXTableCtrl(CXTableCtrl const &) = delete;
    CXTableCtrl & operator=(CXTableCtrl const &) = delete;
    ~CXTableCtrl() override;

    /// The user's selection or focus changed.
    std::function<void()> m_onSelectionChange;
    /// A double click on a cell that is not typed into, or Return: row, column.
    std::function<void(TableRow, unsigned int)> m_onDoubleClick;
    /// A click on a link: row, column.
    std::function<void(TableRow, unsigned int)> m_onLinkClick;
    /// The user pasted a block; what became of it.
    std::function<void(TablePasteReport const &)> m_onPaste;
    /// A text that was typed into that cell was refused: gives what the user is told beside the edit, which stays open.
    /// Without it, or where it gives nothing, that is the reason that the column's check gave, or one in the words of
    /// the module. Where the row is no more, the edit has ended.
    std::function<std::wstring(TableRow, unsigned int, TableRefused const &)> m_onEditRefused;
    /// An export to a file has ended: whether there is the whole file.
    std::function<void(bool)> m_onExportEnd;

    /// A table from a dialog template must have LVS_REPORT and LVS_OWNERDATA; here both are added.
    BOOL Create(DWORD style, RECT const & rect, CWnd * parent, UINT id) override;

    // --- What it shows ---

    /// name: under it places, widths and hidden columns are kept in the preference store; empty for not at all.
    void SetColumns(std::vector<TableColumn> columns, std::wstring const & name = {});
    /// Held weakly: the host ends the source when it likes. Null for none.
    void SetSource(std::shared_ptr<TableSource> const & source);
    /// Decimal sign and times; by default as the user has set them in the system.
    void SetTableLocale(TableLocale locale);
    /// The first columns shown that stand still when the others are scrolled.
    void SetFrozenColumns(unsigned int count);
    /// What threads tell of changes with. It may outlive the table.
    std::shared_ptr<TableFeed> const & Feed() const;

    // --- Order and choice ---

    /// The first one decides first; none for the source's order.
    void SortBy(std::vector<TableSortColumn> columns);
    /// What was wished for last, by the host or the user.
    std::vector<TableSortColumn> const & SortColumns() const;
    /// Shows the rows that fulfil it.
    void SetRowFilter(TableFilter filter);
    /// Whether many rows are being put in order, which is done beside the window.
    bool IsOrdering() const;
    /// How far that is, per mille.
    int OrderProgress() const;
    /// Leaves the rows as they are. Escape does the same.
    void StopOrdering();

    // --- Rows, focus and selection ---

    /// Positions.
    TableRow RowsShown() const;
    /// no_table_row for a position that is none.
    TableRow RowAt(TableRow position) const;
    /// no_table_row for a row that is not shown.
    TableRow PositionOf(TableRow row) const;
    /// In the order shown.
    std::vector<TableRow> SelectedRows() const;
    /// Whether it is shown or not.
    bool IsRowSelected(TableRow row) const;
    /// no_table_row if none has it.
    TableRow FocusRow() const;
    /// Selects the row alone, as a click would, and brings it into view. Calls nothing back. False if it is not shown.
    bool GoToRow(TableRow row);
    /// All rows shown. Calls nothing back.
    void SelectAllRows();
    /// What the cell shows.
    std::wstring ShownText(TableRow row, unsigned int column) const;

    // --- The cell cursor ---

    /// A cursor on one cell of the row with the focus. Keys move it from column to column, and do at its cell what a
    /// click or typing does there. Off at first, and all keys do then what they did ever.
    void EnableCellCursor(bool enable = true);
    /// Whether there is one.
    bool HasCellCursor() const;
    /// Row and column; no_table_row without a cursor, or while no row that is shown has the focus.
    std::pair<TableRow, unsigned int> GetCellCursor() const;
    /// Puts it on a cell, as GoToRow and with the column in view. False without a cursor, and where that is not shown.
    bool SetCellCursor(TableRow row, unsigned int column);

    // --- Columns ---

    /// From left to right.
    std::vector<unsigned int> ShownColumns() const;
    /// False for the last one shown.
    bool HideTableColumn(unsigned int column, bool hidden);
    /// place: among those shown.
    void MoveTableColumn(unsigned int column, unsigned int place);

    // --- Cells that are typed into ---

    /// Opens the edit of a cell in an editable column, as F2 does. False if there is no such cell, or another one keeps
    /// a text that was refused.
    bool EditCell(TableRow row, unsigned int column);
    /// Whether a cell is being typed into.
    bool IsEditing() const;
    /// take: its text goes into the cell, as with Return; else it is left, as with Escape. False if it stays open,
    /// since its text was refused.
    bool EndEdit(bool take);

    // --- Copies, export and paste ---

    /// The selection, or all rows shown, with the columns shown. As text it goes to the clipboard together with the
    /// table in HTML.
    bool CopyRows(TableForm form, bool selectionOnly, bool titles);
    /// Writes a file in UTF-8 beside the window; false if one is being written already. A former file of that name is
    /// as it was until the new one is whole, and stays if that cannot be.
    bool ExportRows(std::wstring const & path, TableForm form, bool selectionOnly);
    /// Whether a file is being written.
    bool IsExporting() const;
    /// Per mille.
    int ExportProgress() const;
    /// Ends it, without a new file.
    void StopExport();
    /// Puts what the clipboard has into cells, from the one with the focus on.
    TablePasteReport PasteBlock();

    // --- Resolution ---

    /// The dots an inch that the table is shown with: boxes, distances, the least height of rows and the columns
    /// follow. The font stays the host's. Without it cells are those of 96, and columns as wide as the screen asks for.
    /// Columns are described and kept at 96 always. FALSE, and nothing else, below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi; 96 at first.
    UINT GetDpi() const;
    /// Whether the table takes its window's resolution, at once and whenever that changes. Off at first.
    void FollowDpi(BOOL follow);

    /// Follows what was told by now at once, and paints it.
    void UpdateNow();
    /// Repaints of rows since the window was made.
    unsigned long long Repaints() const;

protected:
    void PreSubclassWindow() override;
    BOOL PreTranslateMessage(MSG * message) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result) override;
    /// The header's menu: which columns are shown. screen: where.
    virtual void ShowColumnMenu(CPoint screen);
    /// Colours of a cell that is about to be painted, but for those of the selection. Must not end the table.
    virtual void GetCellColors(TableRow row, unsigned int column, COLORREF & text, COLORREF & background);

    afx_msg BOOL OnCustomDraw(NMHDR * header, LRESULT * result);
    afx_msg BOOL OnGetDispInfo(NMHDR * header, LRESULT * result);
    afx_msg BOOL OnFindItem(NMHDR * header, LRESULT * result);
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT character, UINT repeats, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeats, UINT flags);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnSetFocus(CWnd * former);
    afx_msg void OnKillFocus(CWnd * next);
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnEditEnds(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEditLeft(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct State;
    class Waker;
    class Watch;
    class AccessRows;
    class AccessTargetOfTable;

    // The native list (XTableCtrlNative.cpp).
    void EndNative();
    LRESULT AskNative(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    CHeaderCtrl * Titles() const;
    TableRow TopPosition() const;
    TableRow PageRows() const;
    CRect RowRect(TableRow position) const;
    bool BringIntoView(TableRow position);
    bool ScrollSideways(int pixels);

    // Columns and header (XTableCtrlColumns.cpp).
    void PrepareWindow();
    void MakeNativeColumns();
    /// What had to wait for the end of a paint or notification.
    void FollowNatively();
    bool MustWait();
    void LoadColumns();
    void StoreColumn(unsigned int column);
    void StoreColumns();
    void ShowSortMarks();
    void PlaceFrozenHeader();
    bool OnHeaderNotify(NMHDR const & header, LRESULT * result);
    /// As wide as what is seen of it.
    void FitColumn(unsigned int place);
    bool DrawHeaderProgress(NMCUSTOMDRAW const & draw, LRESULT * result);
    /// What column widths are shown with.
    int ColumnDots() const;
    void KeepRowHeight();

    // Changes (XTableCtrlLive.cpp).
    void OnWoken();
    void Follow(bool now);
    /// What it was before a change of rows.
    struct View;
    View PresentView() const;
    void TakeEffect(TableEffect const & effect, View const & before);
    void WishOrder();
    void TakeOrder();
    void SetNativeCount();
    void ShowProgress();
    void RepaintRows();

    // Painting (XTableCtrlPaint.cpp).
    void PrepareLook();
    void MeasureDecimals(CDC & dc, TableRow first, TableRow last);
    void PaintRow(CDC & dc, TableRow position);
    void PaintRowCell(CDC & dc, TableRow row, unsigned int column, CRect const & rect, bool selected);

    // Input (XTableCtrlInput.cpp).
    int ColumnRects(std::vector<CRect> & rects) const;
    bool HitCell(CPoint point, TableRow & position, unsigned int & column) const;
    bool CellRect(TableRow position, unsigned int column, CRect & rect) const;
    void ShowColumn(unsigned int column);
    void MoveFocusColumn(bool right);
    bool PressSpace();
    bool ComeHere(Watch const & watch);
    CPoint MenuPlace();
    void GoTo(TableRow position, bool shift, bool control);
    void AfterSelection(bool tell);
    void PressCell(TableRow position, unsigned int column);
    bool AnswerState(UINT message, WPARAM wParam, LPARAM lParam, LRESULT & result);

    // The cell cursor (XTableCtrlCursor.cpp).
    unsigned int CursorColumn() const;
    bool PutCursorColumn(unsigned int column);
    bool TakeCursorKey(UINT key);
    bool MoveInRow(UINT key);
    bool PressLink(bool press);
    std::optional<std::pair<TableRow, unsigned int>> NextEditable(bool forth) const;
    void GoToNextEditable(std::pair<TableRow, unsigned int> const & next);
    void FitColumns();
    LRESULT WantedKeys(WPARAM key);

    // What programs that read the screen see, and what they are told (XTableCtrlAccess.cpp).
    LRESULT AnswerGetObject(WPARAM flags);
    void NoteFocus();
    /// position: TableModel::nowhere for several.
    void NoteSelection(TableRow position);
    /// column: TableFilter::any_column for the row; position: TableModel::nowhere for many rows.
    void NoteValue(TableRow position, unsigned int column);
    void NoteOrder();
    void WishNews();
    void TellNews();

    // Cells that are typed into (XTableCtrlEdit.cpp).
    bool IsTyped(unsigned int column) const;
    bool OpenEdit(TableRow row, unsigned int column, wchar_t const * typed);
    bool TakeEdit();
    void RefuseEdit(std::shared_ptr<TableEditing> const & editing, TableRefused const & refused, TableRow row);
    void ShowReason(std::wstring reason);
    void PlaceReason();
    void HideReason();
    void CloseEdit();
    void WishEditPlace();
    void PlaceEdit();
    void EditNext(TableKey key, unsigned int column, bool forth);

    /// Kept by who asks the source while that could end the table.
    std::shared_ptr<State> m_state;
    LifeSign m_lifeSign;
};
