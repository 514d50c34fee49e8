#pragma once
// What the workbench is asked for on its command line.

#include <span>
#include <string>
#include <vector>

namespace workbench
{

/// How the program runs.
enum class RunMode
{
    interactive,  ///< for a user
    walk,         ///< walks through its windows by itself, pausing at each step, and ends
    walk_restart, ///< the same with the one step that shows the window back at its stored place
};

/// The command line, taken apart.
struct CommandLine
{
    RunMode mode = RunMode::interactive;
    std::wstring walkFolder;           ///< where a walk leaves its markers
    std::vector<std::wstring> targets; ///< folders and files to show
    std::wstring error;                ///< not empty: what is wrong with the command line, in English
};

/// Takes the arguments without the program's name. "/walk FOLDER" and "/walk-restart FOLDER", in any case, set the
/// mode; everything else is a folder or a file.
CommandLine ParseCommandLine(std::span<std::wstring const> arguments);

} // namespace workbench
