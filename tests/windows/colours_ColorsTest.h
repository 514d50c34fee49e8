#pragma once
// What the tests of the sets of colours share.

#include <gtest/gtest.h>

#include <ostream>

#include "colours/ControlColors.h"

/// The set's name.
inline void PrintTo(ControlColorSet set, std::ostream * out)
{
    char const * const names[] = {"standard", "dark", "high_contrast", "follow_system"};
    *out << names[static_cast<int>(set)];
}

namespace colours_tests
{
/// Takes the process's choice back at the end.
class ProcessChoice
{
public:
    ProcessChoice() = default;
    explicit ProcessChoice(ControlColorSet set) { control_colors::UseForProcess(set); }
    ~ProcessChoice() { control_colors::UseForProcess(ControlColorSet::standard); }
    ProcessChoice(ProcessChoice const &) = delete;
    ProcessChoice & operator=(ProcessChoice const &) = delete;
};

/// The sets that adapt.
inline constexpr ControlColorSet adapting_sets[] = {ControlColorSet::dark, ControlColorSet::high_contrast};
} // namespace colours_tests
