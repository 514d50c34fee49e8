#pragma once
// The characters of a text display. Internal to the module.

#include <vector>

#include "segments/DigiChar.h"

namespace DigiStatic
{
/// An array of fixed length whose entries own their characters. Entries may be null.
struct CDigiCharArray
{
    explicit CDigiCharArray(unsigned int length) : entries(length) {}

    std::vector<CDigiCharOwner> entries;
};
} // namespace DigiStatic
