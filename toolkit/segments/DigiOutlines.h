#pragma once
// The outlines of all segments on the design grid, and where each of them stands in its character.

#include "segments/DigiChar.h"

namespace DigiStatic
{
/// Fills the segments of a character in a cell of its width; rounded takes the rounded outlines.
void FillSevenSegments(CDigiChar & character, bool rounded);
void FillFourteenSegments(CDigiChar & character, bool rounded);
/// Both colon squares and the dot, which have one form only.
void FillColonAndDot(CDigiChar & character);
} // namespace DigiStatic
