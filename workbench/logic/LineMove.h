#pragma once
// Lines of a list that are moved together.

#include <cstddef>
#include <span>
#include <vector>

namespace workbench
{

/// The order of lines after some have been moved to a place among those that are seen, where they stand together as
/// they did among each other. order: all lines; seen: those that are seen, in that order; place: the number of the seen
/// line that comes next then, seen.size() for none. All other lines stay as they are among each other.
std::vector<int> MovedLines(std::span<int const> order, std::span<int const> seen, std::span<int const> moved,
                            std::size_t place);

/// The places for lines that go one line up or down together. seen.size() without any.
std::size_t PlaceOneUp(std::span<int const> seen, std::span<int const> moved);
std::size_t PlaceOneDown(std::span<int const> seen, std::span<int const> moved);

} // namespace workbench
