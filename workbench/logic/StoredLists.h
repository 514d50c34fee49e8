#pragma once
// Lists of numbers and folders as the settings keep them: one text each.

#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace workbench
{

/// The folders of a text made by FolderText; empty ones are left out.
std::vector<std::filesystem::path> FoldersOf(std::wstring_view text);
std::wstring FolderText(std::vector<std::filesystem::path> const & folders);

/// The folders with one put first, where it was before included, whatever the case of its letters; the last ones go
/// where there are more than `most_recent_folders`.
constexpr std::size_t most_recent_folders = 10;
void PutFirst(std::vector<std::filesystem::path> & folders, std::filesystem::path const & folder);

/// The item of a menu for a path: a number from 1 to 9 as its key, and the path, shortened in its middle where it is
/// very long.
std::wstring RecentItemText(int number, std::filesystem::path const & path);

/// What paths of one file or folder have in common for a system that doesn't mind the case of letters.
std::wstring PathKey(std::filesystem::path const & path);

/// Whether two paths are the same for a system that doesn't mind the case of letters, a separator at the end aside.
bool IsSameFolder(std::filesystem::path const & a, std::filesystem::path const & b);

/// Whether a path is below a folder, or the folder itself.
bool IsInFolder(std::filesystem::path const & path, std::filesystem::path const & folder);

/// The numbers of a text made by NumberText, from 0 on and below `end`; what is none of them is left out.
std::set<int> NumbersOf(std::wstring_view text, int end);
std::wstring NumberText(std::set<int> const & numbers);

/// An order of the numbers below `end` from a text made by OrderText. Each is there once: those that the text lacks
/// come last.
std::vector<int> OrderOf(std::wstring_view text, int end);
std::wstring OrderText(std::vector<int> const & order);

} // namespace workbench
