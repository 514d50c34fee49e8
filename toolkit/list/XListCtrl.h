#pragma once

#include <afxcmn.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "frame/Export.h"
#include "list/XHeaderCtrl.h"
#include "list/XListCellKind.h"
#include "list/XListCtrlData.h"

class CellText;
class CListRowOrder;
class XLISTCTRLROW;
struct CellPaint;

/// A report list whose every cell is a small typed object: text, number, date, check box, radio button, in-place edit,
/// combo box, hyperlink, progress bar or custom-drawn area.
///
/// Rows and columns count from 0; lengths are in pixels, colours 0x00BBGGRR. Every operation that writes what the user
/// can see repaints the cell, unless it says otherwise. A row or column that does not exist gives false, -1, 0, null or
/// an empty text, and changes nothing. Columns come first, rows after: inserting columns into a filled list leaves its
/// rows short. The list owns its rows and cells for its own life and recycles them. For the user-interface thread
/// alone.
class INSTRUMENT_UI_API CXListCtrl : public CListCtrl
{
    DECLARE_DYNAMIC(CXListCtrl)

public:
    CXListCtrl();
    CXListCtrl(CXListCtrl const &) = delete;
    CXListCtrl & operator=(CXListCtrl const &) = delete;
    ~CXListCtrl() override;

    // What the list calls back is called through a copy, so that it may replace itself: what it must remember from one
    // call to the next stands outside of it.

    /// A left click on an enabled cell, before the cell acts: row, column.
    std::function<void(int, int)> m_onCellClick;
    /// The user changed a cell: row, column.
    std::function<void(int, int)> m_onStateChange;
    /// A double click on a cell: row, column.
    std::function<void(int, int)> m_onDoubleClick;
    /// A drop swapped two rows: the upper one, the lower one.
    std::function<void(int, int)> m_onRowsSwapped;
    /// Its presence enables the context menu: command, row, column.
    std::function<void(int, int, int)> m_onContextCommand;

    // --- Columns ---

    /// Adds a column behind the last one; its index.
    int AddColumn(wchar_t const * title, int format, int width);
    /// One less than the index at which the column landed, as hosts expect; -1 without a header.
    int InsertColumn(int col, wchar_t const * title, int format, int width, int subItem);
    /// Columns that cells can stand in.
    int GetColumnCount() const;
    /// Deletes all rows as well.
    void DeleteAllColumns();
    /// Sets the width, or what an auto-size constant gives, plus twice the header's spacing. The last native result.
    virtual int SetColumnWidth(int col, int width);
    /// Fits all columns to the window, so that no horizontal scroll bar appears. col takes up the difference first, if
    /// it can; negative: all columns share it.
    void AutosizeColumnWidth(int col);

    // --- Rows ---

    /// A negative position means behind the last row. The index of the row, or the negative native result. Only the
    /// first cell gets the colours. ptr and data are the row's words; ptr is not owned.
    int InsertItem(int pos, wchar_t const * text, COLORREF textColor, COLORREF background, void const * ptr,
                   long long data);
    int InsertItem(int pos, wchar_t const * text, void const * ptr, long long data);
    /// The same behind the last row.
    int AddItem(wchar_t const * text, void const * ptr, long long data);
    /// lParam becomes the row's pointer word. A negative iItem gives -1.
    int InsertItem(LVITEMW const * item);
    /// Non-zero on success.
    int DeleteItem(int row);
    /// Deletes all rows, the columns stay. Non-zero on success.
    int DeleteAllItems();
    /// While on, no operation repaints its cell; the model changes at once all the same. Switching it off repaints all.
    void SetBatchInsertMode(bool on);
    /// Enables every cell and the window itself.
    void EnableAll(bool enable);
    /// The opposite of EnableAll.
    void DisableAll(bool disable);

    // --- Selection ---

    /// The next selected row behind that one, -1 for the first; -1 if there is none.
    int GetCurSel(int after) const;
    /// The first selected row; -1 if there is none.
    int GetSelectedItem() const;
    /// The same as GetCurSel.
    int GetSelectedItemAfter(int row) const;
    /// Selects and focuses the row; a negative row clears as SetNoSelection does.
    bool SetCurSel(int row, bool ensureVisible);
    /// Clears the first selected row only; hosts expect that others stay.
    void SetNoSelection();

    // --- Text and values ---

    /// The cell becomes a text.
    bool SetItemText(int row, int col, wchar_t const * text);
    /// A null text leaves the text alone; a colour of -1 stands for the list's own. The value type stays.
    bool SetItemText(int row, int col, wchar_t const * text, COLORREF textColor, COLORREF background);
    bool SetItemText(int row, int col, int value);
    /// format is printf-style; null for "%5.2f". A text of more than 49 characters is cut.
    bool SetItemText(int row, int col, float value, wchar_t const * format);
    /// Shows the text and keeps the value behind it; without a text, as SetItemText with the default format.
    bool SetItemFloatVal(int row, int col, float value, wchar_t const * text);
    /// Keeps the time only: neither text nor screen change.
    bool SetItemDatetime(int row, int col, CTime time);
    /// iImage becomes the cell's image, also where the structure doesn't ask for one, as hosts expect. 1 on success, -1
    /// for a negative iItem, else 0.
    int SetItem(LVITEMW const * item);
    /// image: of the small image list; -1 for none.
    bool SetItemImage(int row, int col, int image);

    // --- Kinds of cell ---

    /// A click opens the in-place edit; off: the cell becomes a plain text.
    bool SetEdit(int row, int col, bool on);
    /// setColor: the text becomes blue, or black again.
    bool SetHyperlink(int row, int col, bool on, bool setColor);
    /// format: printf-style with one int, for the text on the bar; empty or null for percent.
    bool SetProgress(int row, int col, bool showText, wchar_t const * format);
    /// value is in percent, from 0 on, without an upper limit; displayValue is what the cell's own format is given.
    void UpdateProgress(int row, int col, int value, int displayValue);
    /// The cell becomes a plain text.
    void DeleteProgress(int row, int col);
    /// painter draws the cell from now on: row, column, device context, the cell's rectangle.
    bool SetCustomDraw(int row, int col, std::function<void(int, int, CDC *, CRect const &)> painter);
    /// Repaints the cell.
    void UpdateCustomDraw(int row, int col);
    /// Does not repaint.
    void RemoveCustomDraw(int row, int col);
    /// Gives the cell a kind of the host's own, beside whatever it is; null takes it away. It stays with the row
    /// wherever that goes, and ends with it. The record is left alone.
    bool SetCellKind(int row, int col, std::shared_ptr<CXListCellKind> kind);
    /// Null for a cell without one.
    std::shared_ptr<CXListCellKind> GetCellKind(int row, int col) const;
    /// Keeps the pointers, not the texts, which must outlive the cell's use of them. Without entries the cell is plain.
    bool SetComboBox(int row, int col, std::map<int, wchar_t const *> const & strings, int selectedId, int defaultId);
    /// strings may be null; else it must outlive the cell unchanged.
    bool SetComboBox(int row, int col, std::map<int, CString> const * strings, int selectedId, int defaultId);
    /// With the list's shared table, which is filled before.
    bool SetComboBoxGlobalStrings(int row, int col, int selectedId, int defaultId);
    /// Does not repaint.
    bool SetComboStyle(int row, int col, bool sorted, int visibleItems);
    /// An unknown id selects the default id and empties the text shown, as hosts expect.
    bool SetComboSelection(int row, int col, int id);
    bool SetComboSelection(int row, int col, CString const & text);
    /// The selected id; -1 if there is none.
    int GetComboCurSel(int row, int col) const;
    /// The text shown.
    CString GetComboText(int row, int col);

    // --- The list's shared combo strings ---

    /// Empties the table. Cells keep pointers to its texts: fill them anew.
    void GlobalComboStringsReset();
    /// An id that is there keeps its text.
    void GlobalComboStringsInsert(int id, CString const & text);
    /// The lowest id with that text, or the fallback.
    int GlobalComboStringsGetId(CString const & text, int fallback) const;
    /// An empty text for an unknown id. Valid until the table is emptied.
    wchar_t const * GlobalComboStringsGetText(int id) const;

    // --- The native list's own forms of names that this class has as well ---
    // A row that they insert is the native list's alone, and has no cells. Columns that the native list is told to
    // insert or delete past this class are counted, and cells move as texts do: the first column takes none with it.

    using CListCtrl::GetItem;
    using CListCtrl::InsertColumn;
    using CListCtrl::InsertItem;
    using CListCtrl::SetItem;

    // --- Access to cells ---

    /// Whether there are such a row and such a column.
    bool IsValidItem(int row, int col) const;
    /// The row's first cell; null if there is no such row, or none with cells.
    XLISTCTRLDATA * GetRowData(int row);
    XLISTCTRLDATA const * GetRowData(int row) const;
    /// The cell; null if there is none. A negative column is not tested.
    XLISTCTRLDATA * GetRowItemData(int row, int col);
    XLISTCTRLDATA const * GetRowItemData(int row, int col) const;
    /// Without any range test; null only for a row without cells.
    XLISTCTRLDATA * GetRowItemDataDirect(int row, int col);

    // --- Row words and keys; none of the writers repaints ---

    /// Sets the row's word; a number of 32 bits keeps its value.
    bool SetItemData(int row, long long data);
    bool SetItemData(int row, int data);
    bool SetItemData(int row, unsigned int data);
    bool SetItemData(int row, long data);
    bool SetItemData(int row, unsigned long data);
    /// All 64 bits as they are.
    bool SetItemData(int row, unsigned long long data);
    /// The two halves of the word.
    bool SetItemData(int row, int low, int high);
    /// The whole word.
    long long GetItemData64(int row) const;
    /// The low 32 bits.
    int GetItemData(int row) const;
    /// The high 32 bits.
    int GetItemData2(int row) const;
    /// Sets the row's pointer, which is not owned.
    bool SetItemDataPtr(int row, void const * ptr);
    /// The row's pointer.
    void * GetItemDataPtr(int row) const;
    /// Eight numbers.
    bool SetItemIdx8(int row, int const * key);
    /// Copies the eight numbers to key; false for a null key.
    bool GetItemIdx8(int row, int * key) const;
    /// The first six of the eight.
    bool SetItemClavis(int row, int const * key);
    /// Copies the first six of the eight to key; false for a null key.
    bool GetItemClavis(int row, int * key) const;
    /// The first row from the top; -1 if there is none.
    int FindDataItem(long long data) const;
    int FindDataItem(int data) const;
    int FindDataItem(unsigned int data) const;
    int FindDataItem(long data) const;
    int FindDataItem(unsigned long data) const;
    /// All 64 bits as they are.
    int FindDataItem(unsigned long long data) const;
    /// The first row from the top with that pointer; -1 if there is none.
    int FindDataItemPtr(void const * ptr) const;
    /// The first row from the top with those six numbers; -1 if there is none or key is null.
    int FindDataItemClavis(int const * key) const;
    /// The low 32 bits of the selected row's word, with their sign.
    long long GetSelectedItemData(long long fallback) const;
    /// The pointer of the selected row; null if none is selected.
    void * GetSelectedItemDataPtr() const;

    // --- Properties (the XLP_ bits) ---

    /// Sets or clears all of the bits.
    void SetItemProperty(int row, int col, unsigned int bits, bool on);
    /// True if any of the bits is set.
    bool GetItemProperty(int row, int col, unsigned int bits) const;
    /// Every column; does not repaint.
    void SetRowProperty(int row, unsigned int bits, bool on);
    /// Always true.
    bool SetBold(int row, int col, bool bold);
    /// Whether the text is bold.
    bool GetBold(int row, int col) const;
    /// Marks the cell as changed by the user, or not.
    void SetModified(int row, int col, bool modified);
    /// Whether the cell is marked as changed by the user.
    bool GetModified(int row, int col) const;
    /// Enables or disables the cell.
    bool SetEnabled(int row, int col, bool enabled);
    /// Enables or disables every cell of the row.
    bool SetEnabled(int row, bool enabled);
    /// Whether the cell is enabled.
    bool GetEnabled(int row, int col) const;
    /// True as soon as one cell of the row is enabled.
    bool GetEnabled(int row) const;
    /// An XLV_ type; does not repaint.
    void SetItemValueType(int row, int col, unsigned int type);
    /// An XLV_ type.
    unsigned int GetItemValueType(int row, int col);
    /// The colours of every cell of the row.
    void SetRowColors(int row, COLORREF text, COLORREF background);
    /// gradient is the colour of the wash over the cell; XLISTCTRLDATA::no_gradient for none.
    void SetItemColors(int row, int col, COLORREF text, COLORREF background, COLORREF gradient);
    /// Both outputs are 0 where the result is false.
    bool GetItemColors(int row, int col, COLORREF & text, COLORREF & background) const;

    // --- Check boxes and radio buttons (the XLC_ states) ---

    /// XLC_NONE, XLC_UNCHECKED, XLC_CHECKED or XLC_CROSSED; false for any other.
    bool SetCheckbox(int row, int col, int state);
    /// The same as GetItemCheckedState.
    int GetCheckbox(int row, int col) const;
    /// An XLC_ state; XLC_NONE if there is no such cell.
    int GetItemCheckedState(int row, int col) const;
    /// Any value; the cell's properties stay.
    void SetItemCheckedState(int row, int col, int state);
    /// XLC_NONE, XLC_RADIO_ON or XLC_RADIO_OFF. On switches the column's present radio row off.
    bool SetRadioButton(int row, int col, int state);
    /// Whether the cell is a radio button that is on.
    bool GetItemRadioOn(int row, int col) const;
    /// The row of the column's radio button that is on; -1 if there is none.
    int GetActiveRadioItem(int col) const;
    /// Rows whose cell has that state. XLC_NONE counts every row; another negative state every check or radio cell.
    unsigned long long CountCheckedItems(int col, int state) const;

    // --- Look ---

    /// The LVS_ display type; only LVS_REPORT has the behaviour of cells.
    void SetDisplayStyle(long style);
    /// The LVS_ display type.
    long GetDisplayStyle();
    /// A selected row is marked over its whole width. There is no way back.
    void SetFullRowSelect();
    /// The native list's LVS_EX_TWOCLICKACTIVATE. There is no way back.
    void SetHoverSelection();
    /// The native list's check boxes; LVS_EX_CHECKBOXES. There is no way back.
    void SetWithCheckboxes();
    /// Lines between rows and columns. There is no way back.
    void SetWithGridlines();
    /// The former setting. Does not repaint.
    bool SetEllipsis(bool ellipsis);
    /// Whether texts that are too long end in dots.
    bool GetEllipsis() const;
    /// Room left and right of a cell's text. Does not repaint.
    void SetCellPadding(int padding);
    /// See SetCellPadding.
    int GetCellPadding() const;
    /// The text shown in a list without rows; empty for none. Does not repaint.
    void SetEmptyListText(CString const & text);
    /// The module's own text for a list without rows, in its language. Does not repaint.
    void SetEmptyListTextDefault();
    /// Marks the whole list as changed by the user, or not.
    void SetListModified(bool modified);
    /// Whether the list is marked as changed.
    bool GetListModified() const;
    /// The dots an inch that the list is shown with, 96 at first. Boxes, distances, images and the least height of rows
    /// follow, columns keep their share, and header and editors go along. The font stays the host's, and an image list
    /// that the host sets from now on is for this resolution. A column's width is in pixels of the screen at all times,
    /// the cell padding in pixels at 96. FALSE, and nothing else, below 48 and above 960.
    BOOL SetDpi(UINT dpi);
    /// See SetDpi.
    UINT GetDpi() const;
    /// Whether the list takes its window's resolution, at once and whenever that changes. Off at first.
    void FollowDpi(BOOL follow);
    /// Repaints one cell, or the whole row for column -1. Does nothing in batch mode.
    void UpdateSubItem(int row, int col);
    /// A cell's rectangle in client coordinates; area is an LVIR_ constant. Column 0 ends where the next column begins.
    bool GetSubItemRect(int row, int col, int area, CRect & rect) const;

    // --- Header ---

    /// A DT_ alignment for every title; all bits set: each column's own format.
    void SetHeaderAlignment(unsigned int alignment);
    /// The colour of the titles.
    void SetHeaderTextColor(COLORREF color);
    /// Item images come from the header's image list instead of the built-in marks.
    void SetHeaderUseImageList(bool use);
    /// The header tells the list itself of clicks on columns, without a notification. There is no way back.
    void SetHeaderDirectColumnClick();
    /// Check boxes in the header follow their column's cells and drive them.
    void SetHeaderAutoCheckbox(bool on);
    /// An XHC_ state; false for any other.
    bool SetHeaderCheckedState(int col, int state);
    /// An XHC_ state.
    int GetHeaderCheckedState(int col) const;
    /// Takes check boxes away as well as sort arrows.
    void SetHeaderRemoveAllMarks();

    // --- Order, dragging and export ---

    /// Sorts the rows by a column. compare gets two row indices of the unsorted list and the CXListCtrl as an integer;
    /// a negative result puts the first row ahead. It must not change the list. Null compares cells by their values or
    /// texts. setMark: the column's header shows an arrow, and every other mark goes, check boxes too; with a negative
    /// column that is all that happens. Any other column that does not exist changes nothing.
    void SortByColumn(int col, bool ascending, bool setMark, int (*compare)(long long, long long, long long));
    /// From now on the user can drag a row onto another one, which swaps the two. There is no way back. Hosts expect
    /// that the list goes on marking rows below the pointer after the first drop, and that a later release of the
    /// button over another row swaps the row last dragged with it.
    void EnableDragAndDrop();
    /// Puts a block of cells on the clipboard as text: tabs between columns, CR LF behind each line. Cells with a
    /// number or date give that, in the system's form; all others the text shown, at most 199 characters of it. A
    /// negative last row or column, or one past the end, means the last one; one ahead of the first is the first. Rows
    /// without cells are left out. False for a first row or column past the end, or if the clipboard refuses.
    bool ExportToClipboard(bool withHeader, int firstRow, int lastRow, int firstCol, int lastCol);

    // --- Mouse, keyboard, menu and tooltips ---

    /// From now on the focused row has a cursor on one of its cells. The arrow keys, Home, End and the page keys move
    /// it, Ctrl+Home and Ctrl+End to the first and last cell of all. Space ticks, F2 or typing edits, Alt+Down opens a
    /// combo, Enter follows a link; Shift+F10 and the menu key open the menu there, Tab goes on to the next cell that
    /// can be changed and, behind the last one or with Ctrl, to the next control. Ctrl and Plus of the number pad fit
    /// the columns to their texts. Off at first; a list without it leaves all of these keys to the native one.
    void EnableCellCursor(bool enable = true);
    /// Whether there is a cursor.
    bool HasCellCursor() const;
    /// The cursor's row and column; (-1, -1) without one, or without a focused row.
    std::pair<int, int> GetCellCursor() const;
    /// Puts the cursor on a cell, focuses and selects its row and scrolls it into view. False without a cursor.
    bool SetCellCursor(int row, int col);
    /// Calls m_onStateChange and posts the message (row, column) to the parent, else to the owner.
    virtual void OnItemStateChange(int row, int col, unsigned int message);
    /// What a click on a column's header does; the header calls it.
    void OnHeaderColumnClick(int col);
    /// The row at a client point and its column; -1 off any cell.
    int GetPointItem(CPoint const & point, int & col);
    /// The menu that the host fills. It has no handle in a list from a dialog template.
    CMenu & PopUpMenu();
    /// Call it before the window is subclassed or created.
    void EnableItemToolTipps();
    /// The tooltip of cells without one.
    void SetDefaultToolTipText(wchar_t const * text);
    /// Hosts expect that only the tooltip of column 1 shows, over all cells of the row.
    bool SetItemToolTipText(int row, int col, wchar_t const * text);
    /// The cell's own tooltip; empty if it has none.
    CString GetItemToolTipText(int row, int col);
    /// Empties the tooltips of all cells; the default stays.
    void DeleteAllToolTips();
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO * info) const override;

protected:
    /// Answers the tooltip's question for its text; FALSE leaves it to others.
    virtual BOOL OnToolTipText(UINT id, NMHDR * header, LRESULT * result);
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    /// All that reaches the native list comes through here.
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result) override;

    /// Row and column at a client point; (-1, -1) off any cell.
    std::pair<int, int> GetItem(CPoint const & point);
    /// What the forms of SetComboBox end with, once the cell has its texts.
    bool InitializeComboBox(int row, int col, int selectedId, int defaultId);
    /// Has the header of this class's kind take the native one over, once there is one.
    void SubclassHeaderControl();

    // The editors open with these, over a cell that is enabled and can be scrolled into view. Row and column are kept
    // as numbers: a host that deletes or sorts rows meanwhile has the result in whatever cell stands there then.

    /// Opens the edit field; an open one ends, and its text is lost. Nothing happens over a column narrower than 5
    /// pixels.
    void DrawEditControl(int row, int col);
    /// Opens the combo box of a combo cell; an open one ends. Nothing happens over a cell narrower than 20 pixels.
    void DrawComboBoxControl(int row, int col);

    // Painting. cells is the row's first cell; nothing is drawn into an empty rectangle or without cells or context.
    /// Reads the system's colours anew.
    void GetColors();
    /// Turns a cell's colours into those that it is drawn with. A derived class may choose others for selected rows.
    virtual void GetDrawColors(int row, int col, COLORREF & text, COLORREF & background);
    /// The width used.
    int DrawImage(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect rect, XLISTCTRLDATA * cells);
    /// The text of the cell.
    void DrawTextW(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect, XLISTCTRLDATA * cells);
    /// The check box or radio button of the cell, and its text.
    void DrawCheckbox(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                      XLISTCTRLDATA * cells);
    /// A check box in that XLC_ state.
    void DrawCheckboxBox(CRect & box, int state, bool enabled, CDC * dc);
    /// A radio button in that XLC_ state.
    void DrawRadioBox(CRect & box, int state, bool enabled, CDC * dc);
    /// The text of a combo cell and its button.
    void DrawComboBox(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                      XLISTCTRLDATA * cells);
    /// The bar of a progress cell, and its text.
    void DrawProgress(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                      XLISTCTRLDATA * cells);

    afx_msg BOOL OnClick(NMHDR * header, LRESULT * result);
    afx_msg BOOL OnColumnClick(NMHDR * header, LRESULT * result);
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnCustomDraw(NMHDR * header, LRESULT * result);
    afx_msg void OnDestroy();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnPaint();
    afx_msg void OnSysColorChange();
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnNcLButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnContextMenu(CWnd * window, CPoint point);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg LRESULT OnComboEscape(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnComboComplete(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnXEditKillFocus(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnXEditEscape(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    class CellCursor;
    class HeldRow;
    class Resolution;
    class Watch;

    /// The row object in the native item; null where there is none.
    XLISTCTRLROW * RowOf(int row) const;
    /// The cell if row and column are in range and the row reaches that far, else null.
    XLISTCTRLDATA * ValidCell(int row, int col) const;
    /// Inserts the item together with a row object; where it landed, or the negative native result, or -1 if the host
    /// has deleted it at once. A failed insertion takes no row.
    int InsertWithRow(LVITEMW item, COLORREF text, COLORREF background, int image, void const * ptr, long long data);
    /// The number of rows; 0 without a window.
    int RowCount() const;
    /// The row that a row object hangs from; -1 if there is none.
    int PlaceOf(XLISTCTRLROW const * object) const;
    /// Sets the native text alone; false if that fails.
    bool ShowText(int row, int col, wchar_t const * text);
    /// Repaints the row's cell where the row is now.
    void Repaint(HeldRow & held, int col);
    /// Gives the columns the fitted widths of the work array, the preferred one the first width before.
    void SetNativeWidths(int preferred, int firstWidth);
    /// What the user has made of a cell: it is marked as modified, painted anew, and the parent told with the message.
    void TakeUserChange(XLISTCTRLDATA & cell, int row, int col, unsigned int message);
    /// Gives the cell of a host's own kind what a press or a key made of it.
    void ChangeByKind(int row, int col, CXListCellKind::Change const & change);
    /// Offers a press or a key to the host's kind of a cell; whether it took it. The list may be gone then.
    bool OfferPress(int row, int col, CPoint point);
    bool OfferKey(UINT key);
    /// What a left press on an enabled cell does. asInput: it is the mouse's, which the native list gets as well.
    void PressCell(int row, int col, CPoint point, bool asInput);

    // Accessibility (XListCtrlAccess).
    /// The list's accessible object as the answer to the question for it; 0 if there is none.
    LRESULT AnswerGetObject(WPARAM flags);
    /// Those who keep accessible objects of the list hear from now on that it is gone.
    void EndAccess();
    /// While on, changes are told together at its end.
    void HoldAccessEvents(bool batch, bool redrawOff);
    // These tell whoever listens of a change. They can run code of a listener's.
    void TellOfCell(int row, int col);
    void TellOfOrder();
    void TellOfItemState(NMLISTVIEW const & change);
    /// The text that the cell shows, up to that length.
    CellText ReadCellText(int row, int col) const;
    CellText ReadCellText(int row, int col, int limit) const;
    void PostToParent(unsigned int message, WPARAM wParam, LPARAM lParam) const;
    // Editors. An editor that ends tells nothing.
    void EndEdit();
    void EndCombo();
    /// Ends the combo, if there is one, and goes on with the keyboard.
    void CloseCombo();
    void EndEditors();
    void UnlockUpdate();
    /// What is selected in the open combo; false if nothing is.
    bool GetComboChoice(CString & text, int & id);
    /// Gives the combo's choice to its cell and ends the combo.
    void TakeComboChoice();
    /// Shows the combo's choice in its cell.
    void ShowComboChoice();
    /// A cell in the colours that it is drawn with.
    CellPaint PaintOf(int row, int col, CDC & dc, COLORREF text, COLORREF background, CRect const & rect,
                      XLISTCTRLDATA const & cell);
    /// Handles a message that may change columns: all is painted anew if it does.
    LRESULT ColumnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// Follows a column that was put in or taken out past this class: the list counts its columns, and cells move as
    /// texts do.
    void FollowColumns(UINT message, int col);
    void FillMovedFirstColumn(CDC & dc, CRect const & row);
    class PaintedParts;
    void DrawSubItem(NMLVCUSTOMDRAW & draw, LRESULT * result);
    /// Whether the row stands above the first one that shows.
    bool IsAboveTop(int row);
    /// Forgets what the paint under way remembers if a message that arrives could change it.
    void HeedMessage(UINT message);
    /// DrawText format of a column's texts.
    UINT TextFormat(int col) const;
    UINT AskAlignment(int col) const;
    /// The bounds of a cell that is being painted.
    CRect PaintedRect(int row, int col);
    bool IsSelected(int row);
    bool HasFocus();

    /// One column of a row that is being carried to another place.
    struct dd_list_Item;
    /// The row dragged and the row below the pointer.
    std::pair<int, int> indices() const;
    void begin_drag(NMHDR * header, LRESULT * result);
    /// Swaps the two rows.
    void drop_on_list();
    /// What trading the contents of two rows comes to; false if the host moved rows meanwhile or ended the list.
    bool SwapRows(std::vector<dd_list_Item> & upper, std::vector<dd_list_Item> & lower, int a, int b);
    /// As many columns as there are places.
    void save_row(std::vector<dd_list_Item> & saved, int row);
    /// Stops where the host changes rows. False if the parent refuses it.
    bool restore_row(std::vector<dd_list_Item> & saved, int row);
    /// Makes the picture that follows the pointer from an area of the client context.
    void MakeDragImage(CDC & client, CRect const & cell);
    /// Takes the picture off the screen; changes nothing without one.
    void EndDragImage();
    void SetDropMark(int row, bool on);
    /// Moves picture, mark and cursor to the pointer; false if the list ended meanwhile.
    bool FollowDrag(CPoint point);

    /// Whether the rows in use are those that hang from the native items, each from one. Not while the native list
    /// changes its items, nor after it was told to past this class.
    bool RowsAreKnown() const;
    /// Follows what a native message does to that; own: an operation of this class sent it and keeps the books.
    void NoteRowChange(UINT message, LPARAM lParam, bool own);
    /// Has the native list handle a message that changes rows.
    LRESULT ChangeRows(UINT message, WPARAM wParam, LPARAM lParam);
    /// A message to the native list itself, that only asks.
    LRESULT AskNative(UINT message, WPARAM wParam, LPARAM lParam) const;
    /// The item's parameter word as it is; null without an item.
    XLISTCTRLROW * NativeParam(int row) const;
    /// The row objects from the top; null for items without one of this list's own.
    std::vector<XLISTCTRLROW *> RowsFromTop() const;
    /// Calls visit(XLISTCTRLROW &) for each item's row object, in no particular order. visit runs no code of the
    /// host's.
    template <class Visit> void VisitRows(Visit && visit) const;
    void SortByCells(int col, bool ascending);
    /// Tells the order the texts of its column; false if the host changed the rows meanwhile.
    bool AddTexts(CListRowOrder & order, int col);
    void SortByHost(int (*compare)(long long, long long, long long));
    /// Has the native list put its rows in that order.
    void ApplyOrder(std::vector<int> const & order);
    /// Gives the native item that parameter word.
    bool SetNativeParam(int row, XLISTCTRLROW const * object);
    std::wstring HeaderTitle(int col) const;

    // What the sources of the list keep for themselves (XListCtrlState.h).
    class Items;
    class AccessRows;
    class AccessTargetOfList;
    struct AccessState;
    struct DragState;
    struct EditorState;
    struct FitState;
    struct PaintState;
    struct RowState;
    struct SortState;
    class PaintScope;

    CXHeaderCtrl m_header;
    int m_columnCount = 0;
    CString m_emptyListText;
    std::unique_ptr<SortState> m_sort;
    std::unique_ptr<RowState> m_rows;
    bool m_headerSubclassed = false;
    bool m_ellipsis = true;
    bool m_listModified = false;
    bool m_itemToolTips = false;
    CString m_defaultToolTipText;
    bool m_batchInsert = false;
    int m_cellPadding = 5;
    bool m_headerAutoCheckbox = false;
    std::unique_ptr<FitState> m_fit;
    std::unique_ptr<EditorState> m_editors;
    std::map<int, CString> m_globalComboStrings;
    std::unique_ptr<PaintState> m_paint;
    std::unique_ptr<DragState> m_drag;
    CMenu m_popupMenu;
    std::unique_ptr<AccessState> m_access;
    std::unique_ptr<CellCursor> m_cursor;
    std::unique_ptr<Resolution> m_resolution;
};
