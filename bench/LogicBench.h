#pragma once
// The measures of the logic benchmark: each prints its lines and tells whether its goals are met. And what they share.

#include <map>
#include <string>

namespace bench
{
bool LayoutArithmetic();
bool SearchingRows();
bool PaintingSegments();
bool LookingAtAnHour();
bool TypingIntoACombo();
bool OrderingATable();

/// Runs the benchmarks registered since the last call; the best time of each in nanoseconds.
std::map<std::string, double> RunRegistered();
} // namespace bench
