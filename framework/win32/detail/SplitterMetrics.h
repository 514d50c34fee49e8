#pragma once
// Sizes of a splitter's parts. Inside framework.dll only.

namespace framework
{
inline constexpr int splitter_gap = 7;    // of a bar between panes, and a box beside a scroll bar
inline constexpr int splitter_border = 2; // around all of them
} // namespace framework
