#pragma once
// What a cell is. Property bits and check state can name several kinds at once; which of them counts depends on what is
// done with the cell. Everything that tells cells apart by their kind starts here.

#include "list/XListCtrlData.h"

enum class CellKind
{
    /// Text alone.
    text,
    edit,
    link,
    check,
    radio,
    combo,
    progress,
    /// Painted by the record's customDraw.
    custom
};

/// The kind that a cell is painted as: bars come before marks, marks before combos, these before painters of the
/// host's. Edit and link cells look like texts. A state without a mark of its own makes a check cell without a box.
CellKind PaintedKind(XLISTCTRLDATA const & cell);
/// The kind that a check or radio state alone makes of a cell; a text of XLC_NONE.
CellKind MarkedKind(int checkedState);
/// The kind that a press on a cell meets: combos come before edits, these before links and links before marks. Nothing
/// else acts, and is met as a text.
CellKind PressedKind(XLISTCTRLDATA const & cell);

/// What a left press on a cell does.
enum class CellPress
{
    /// Swallowed: the cell is disabled.
    ignored,
    open_combo,
    open_edit,
    follow_link,
    flip_check,
    switch_radio_on,
    /// The row is selected and nothing else happens.
    select_only
};

/// What a press does.
CellPress DecidePress(XLISTCTRLDATA const & cell);
/// The same for a cell that was found enabled before: it may have been disabled since.
CellPress DecideAdmittedPress(XLISTCTRLDATA const & cell);

/// Whether cells painted as that kind show a state that programs reading the screen are told of when it changes.
bool ShowsState(CellKind painted);

/// What a cell's two colours are of.
enum class CellTint
{
    /// The text and its ground.
    text,
    /// The same, where the text may have a link's colour.
    link,
    /// The text on a bar, and the bar.
    bar
};

/// A cell that is painted as something else may have a link's colours still.
CellTint TintOf(XLISTCTRLDATA const & cell);

/// Which of its values stands for a cell.
enum class CellValue
{
    /// The text shown.
    text,
    integer,
    real,
    time,
    percent,
    /// What a host's own kind says.
    own,
    /// A value type without a field.
    none
};

/// What a cell is sorted by: a bar by its percent, any other by its value type.
CellValue SortedValue(XLISTCTRLDATA const & cell);
/// What a cell is exported as, which its kind does not matter to. One without a field shows its text.
CellValue ExportedValue(XLISTCTRLDATA const & cell);
