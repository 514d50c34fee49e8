#pragma once
// The texts of a dialog template, as they lie in a program's resources.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace workbench
{

struct DialogTexts
{
    struct Control
    {
        std::uint32_t id = 0;
        std::wstring text; ///< empty where it has none
    };
    std::wstring caption;
    std::vector<Control> controls; ///< in the order in which they are created
};

/// Reads an extended template (DLGTEMPLATEEX). Nothing for what is none.
std::optional<DialogTexts> ReadDialogTexts(std::span<std::byte const> bytes);

} // namespace workbench
