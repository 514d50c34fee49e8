#pragma once
// What a press on a header or a key means for a list, and how headers follow cells, as decisions that know no window.
// What a press on a cell means is in CellKind.h.

#include <functional>

#include "list/XListCtrlData.h"

/// The state that a press on a column's header gives the column's cells and header.
struct HeaderPress
{
    bool changesCells;
    int headerState;
    int cellState;
};

/// autoCheckbox: the header's check boxes drive the cells of their column.
HeaderPress DecideHeaderPress(int headerState, bool autoCheckbox);

/// The header state of a column with so many rows, of which so many are unchecked, checked and crossed.
int HeaderStateOfCells(unsigned long long rows, unsigned long long unchecked, unsigned long long checked,
                       unsigned long long crossed);
/// Whether a header state follows its column's cells.
bool HeaderFollowsCells(int headerState);

/// Whether a cell in that state counts when cells in the state searched are counted. A negative state other than
/// XLC_NONE stands for any check or radio state; XLC_NONE itself counts every cell, which is meant.
bool CountsAsChecked(int checkedState, int searched);

/// The row that a list of single selection shows selected after a navigation key. selectedBefore: the row before the
/// key, not negative. down: Down or Page Down, else Up or Page Up. It is meant that these keys leave any row but the
/// first selected.
int RowAfterNavigationKey(int selectedBefore, int rowCount, bool down, std::function<bool(int)> const & isEnabled);
