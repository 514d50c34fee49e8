#pragma once
// A main frame's dynamic menu commands and what becomes of its accelerators. Internal to the module.

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <utility>

namespace menu_registry
{
/// Command identifier to callback and text.
using menus_t = std::map<unsigned int, std::pair<std::function<void()>, std::wstring>>;
/// Parent identifier to its commands.
using elements_t = std::multimap<unsigned int, menus_t::iterator>;
/// First identifier and end, the end excluded.
using range_t = std::pair<unsigned int, unsigned int>;

constexpr int refused = -1;

/// The lowest free identifier of the range, or `refused`. The map is taken to hold none below the range.
int NextFreeId(menus_t const & menus, range_t const & range);
/// Enters a command under the identifier that NextFreeId gave, and gives that, or `refused`.
int Add(menus_t & menus, elements_t & elements, int id, unsigned int parent, std::wstring text,
        std::function<void()> callback);
/// Takes the first element that stands for the entry out.
void RemoveElement(elements_t & elements, menus_t::iterator entry);

/// Writes an accelerator behind the first count of a table with room for one more. Accelerator has the members of the
/// window system's ACCEL.
template <class Accelerator>
void AppendAccelerator(Accelerator * table, int count, unsigned char flags, unsigned short key, int id)
{
    table[count].fVirt = flags;
    table[count].key = key;
    table[count].cmd = static_cast<unsigned short>(id);
}

/// Takes the command's first accelerator out, the others moving up, and gives the new count: it is one less in any
/// case, so that without one of the command the last accelerator is lost. Hosts expect that.
template <class Accelerator> int RemoveAccelerator(Accelerator * table, int count, int id)
{
    Accelerator * const end = table + count;
    Accelerator * const found =
        std::find_if(table, end, [id](Accelerator const & entry) { return static_cast<int>(entry.cmd) == id; });
    if (found != end)
        std::move(found + 1, end, found);
    return count - 1;
}
} // namespace menu_registry
