// A settings file on a device that takes nothing.

#include "settings_TreeTest.h"
#include "windows/MemorySettingsTree.h"

TEST(SettingsFullDisk, AnExportThatCannotBeWrittenInFullFails)
{
    using namespace settings_tests;
    // Small enough to wait in the stream's buffer until the end.
    EXPECT_FALSE(write_settings_file("/dev/full", {}));
    EXPECT_FALSE(write_settings_file("/dev/full", {Value(u"a", type_binary, Bytes(100000, 1))}));
    MemorySettingsTree tree;
    EXPECT_FALSE(export_registry_settings(tree, {"/dev/full", "", ""}));
}
