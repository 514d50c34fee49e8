#pragma once
// Where a cell of a frame's grid of views lies. Internal to the module.

#include <cstddef>
#include <optional>

namespace frame_grid
{
/// Whether row and column lie before the ends of the grid: in signed comparison, on the low 32 bits of its sizes. A
/// negative index passes; whoever looks the cell up refuses it.
bool BeforeEnds(int row, int column, unsigned long long rows, unsigned long long columns);

/// How many cells a grid has, or none if nobody could store a pointer for each.
std::optional<std::size_t> CellCount(unsigned long long rows, unsigned long long columns);
} // namespace frame_grid
