#pragma once
// A list with cells as programs that read the screen see it: the list, its rows, their cells. Knows no window. Internal
// to the module.

#include <atltypes.h>

#include <optional>
#include <string>
#include <utility>

#include "access/AccessElement.h"
#include "list/XListCtrlData.h"

/// What has to be known of a list. Every answer may have run the host's code.
class AccessibleList
{
public:
    virtual int RowCount() const = 0;
    virtual int ColumnCount() const = 0;
    /// Null for a place without a cell. Serves until the next question.
    virtual XLISTCTRLDATA const * Cell(int row, int col) const = 0;
    virtual std::wstring Text(int row, int col) const = 0;
    virtual std::wstring Title(int col) const = 0;
    /// What a kind of the host's own says of the cell; nothing without one.
    virtual std::optional<std::wstring> KindText(int row, int col) const = 0;

    // Client coordinates.
    virtual std::optional<CRect> CellRect(int row, int col) const = 0;
    virtual std::optional<CRect> RowRect(int row) const = 0;
    virtual CRect ClientRect() const = 0;
    /// Where the cells of a column show; with -1, where rows do.
    virtual CRect SightRect(int /*col*/) const { return ClientRect(); }
    /// -1 where there is none.
    virtual std::pair<int, int> CellAt(CPoint point) const = 0;

    virtual bool IsEnabled() const = 0;
    virtual bool HasFocus() const = 0;
    virtual bool IsMultiSelect() const = 0;
    virtual int FocusedRow() const = 0;
    virtual bool IsFocused(int row) const { return FocusedRow() == row; }
    /// The column of the cell cursor; -1 without one.
    virtual int FocusedCol() const = 0;
    /// -1 behind the last one.
    virtual int NextSelected(int after) const = 0;
    virtual bool IsSelected(int row) const { return NextSelected(row - 1) == row; }
    /// Whether the user can tick a column's check boxes.
    virtual bool CanTick(int /*col*/) const { return true; }

protected:
    ~AccessibleList() = default;
};

namespace accessible
{
bool Exists(AccessibleList const & list, Element element);
int ChildCount(AccessibleList const & list, Element element);
/// The child at a place counted from 0; nothing if there is none.
std::optional<Element> Child(AccessibleList const & list, Element element, int place);
/// The element beside an element; nothing if there is none.
std::optional<Element> Navigate(AccessibleList const & list, Element from, Direction direction);
/// The element at a client point; nothing outside of the list.
std::optional<Element> ElementAt(AccessibleList const & list, CPoint point);
/// Client coordinates.
std::optional<CRect> RectOf(AccessibleList const & list, Element element);
/// What a cell is.
Role RoleOf(XLISTCTRLDATA const & cell);
/// What its default action is called; empty for none.
wchar_t const * ActionOf(XLISTCTRLDATA const & cell);
/// Of an element that exists. May have run the host's code.
Description Describe(AccessibleList const & list, Element element);
} // namespace accessible
