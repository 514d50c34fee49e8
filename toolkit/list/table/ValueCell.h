#pragma once
// A table's value as a cell of a report list would be: its record, and where its text stands. Internal to the module.

#include "list/table/TableText.h"
#include "list/XListCtrlData.h"

/// Where the text of a cell stands.
enum class CellAlign
{
    left,
    centre,
    right
};

/// Whether values of the kind stand below each other at their decimal sign.
bool IsNumber(TableKind kind);
/// Of a column's cell with a value of that kind. A title stands as values of the column's own kind do.
CellAlign AlignmentOf(TableColumn const & column, TableKind kind);

/// Makes the record the value's cell, whatever cell it was before. isTyped: the column's texts are typed; ticks and
/// links are pressed all the same.
void MakeCellOf(TableValue const & value, bool isTyped, XLISTCTRLDATA & cell);
