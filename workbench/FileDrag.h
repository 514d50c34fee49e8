#pragma once

#include <filesystem>
#include <vector>

namespace workbench
{

/// Lets the user drop files on other programs, with the mouse button that is pressed. False if they were not taken.
bool DragFiles(std::vector<std::filesystem::path> const & files);

} // namespace workbench
