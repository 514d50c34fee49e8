// A settings file of any bytes: read, applied to a tree, read back from it and written again, beside plain versions of
// the same.

#include <cstdint>
#include <cstdlib>
#include <sstream>

#include "settings_Reference.h"
#include "windows/MemorySettingsTree.h"
#include "windows/SettingsFile.h"

namespace
{
using namespace registry_settings;

void Require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Writes the list, reads it again and finds it unchanged.
void CheckFile(registry_entry_list const & list)
{
    std::stringstream stream;
    Require(write_settings(stream, list));
    registry_entry_list again;
    Require(read_settings(stream, again));
    Require(again == list);
}

void CheckReplay(registry_entry_list list)
{
    settings_reference::Key expected;
    std::size_t at = 0;
    bool const expectedDone = settings_reference::Replay(expected, list, at);
    registry_entry_list const rest(list.begin() + static_cast<std::ptrdiff_t>(at), list.end());

    MemorySettingsTree tree;
    Require(write_registry_tree(tree, list) == expectedDone);
    Require(list == rest);
    Require(tree.OpenKeyCount() == 1);

    registry_entry_list expectedTree;
    bool const expectedReading = settings_reference::Flatten(expected, expectedTree);
    registry_entry_list read;
    Require(read_registry_tree(tree, read) == expectedReading);
    Require(read == expectedTree);
    Require(tree.OpenKeyCount() == 1);
    if (!expectedReading)
        return;

    // What was exported gives the same tree, with no record left.
    CheckFile(read);
    registry_entry_list used = read;
    Require(write_registry_tree(tree, used) && used.empty());
    registry_entry_list again;
    Require(read_registry_tree(tree, again));
    Require(again == read);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::istringstream stream(std::string(data, data + size));
    registry_entry_list list;
    bool const done = read_settings(stream, list);
    settings_reference::Reading const expected = settings_reference::ReadFile({data, data + size});
    Require(done == expected.done);
    Require(list == expected.list);
    if (done)
    {
        CheckFile(list);
        CheckReplay(list);
    }
    return 0;
}
