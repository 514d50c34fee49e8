#pragma once
// How a list's columns are fitted to its window, so that no horizontal scroll bar appears.

#include <vector>

#include "frame/CoreLibrary.h"

/// What one-pixel differences leave behind from one fitting to the next, so that the column that last took a pixel is
/// the first to give it back.
struct CColumnFitMemory
{
    /// Goes over the columns in turns.
    CStepCounter counter;
    /// Whether columns grew when a pixel was given or taken last.
    bool lastGrew = true;
};

/// What became of the columns.
enum class ColumnFit
{
    /// The widths fit as they are.
    unchanged,
    /// The preferred column alone takes the difference; its new width is in the array.
    preferred_only,
    /// The preferred column, if any, first shrinks to the minimum plus 1; then all widths of the array hold.
    all
};

/// Fits widths (pixels) to the room available. preferred is the column that takes up the difference first, cut down to
/// the last column; negative for none. No column is taken to or below minimum by a share. widths must not be empty.
ColumnFit FitColumns(std::vector<int> & widths, int available, int minimum, int preferred, CColumnFitMemory & memory);
