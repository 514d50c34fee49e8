#pragma once
// Groups of keys that a window leaves to others. A mask is a set of the bits below.

#include "frame/Export.h"

namespace KeyGroups
{
/// F2 to F12. F1 is in no group, which is meant: help stays with the window.
constexpr unsigned int function_keys = 1;
/// The digit row and the number pad's digits.
constexpr unsigned int digits = 2;
/// A to Z.
constexpr unsigned int letters = 4;
/// Delete, Backspace, Tab, Return, Shift, Control, Space, Caps Lock.
constexpr unsigned int editing = 8;
/// Arrows, Clear, Page Up, Page Down, End, Home.
constexpr unsigned int navigation = 16;
/// Space alone.
constexpr unsigned int space = 32;
/// As the whole mask: every key, also one in no group. All bits of the groups together don't mean that.
constexpr unsigned int every_key = 255;

/// The mask that leaves typing and moving about to others.
constexpr unsigned int normal_keys = function_keys | digits | letters | navigation;

/// Whether a window with that mask leaves the key to others. virtualKey: a VK_ value; the mask's other bits are
/// ignored.
INSTRUMENT_UI_API bool LeavesToOthers(unsigned int mask, unsigned int virtualKey);
} // namespace KeyGroups
