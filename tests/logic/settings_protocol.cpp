// Export and import of settings, on a tree in memory and (settings_registry_windows.cpp) in the registry.

#include "settings_TreeTest.h"
#include "windows/MemorySettingsTree.h"

namespace settings_tests
{
namespace
{
class MemoryHost final : public TreeHost
{
public:
    SettingsTree & Tree() override { return m_tree; }
    bool TakesRootValues() const override { return true; }

private:
    MemorySettingsTree m_tree;
};

/// A memory tree that refuses what the registry refuses.
class CheckedMemoryHost final : public TreeHost
{
public:
    SettingsTree & Tree() override { return m_tree; }
    bool TakesRootValues() const override { return false; }

private:
    MemorySettingsTree m_tree{MemorySettingsTree::rights_t::checked};
};
} // namespace

INSTANTIATE_TEST_SUITE_P(Memory, SettingsProtocol,
                         testing::Values([] { return std::unique_ptr<TreeHost>(std::make_unique<MemoryHost>()); }));
INSTANTIATE_TEST_SUITE_P(CheckedMemory, SettingsProtocol, testing::Values([] {
                             return std::unique_ptr<TreeHost>(std::make_unique<CheckedMemoryHost>());
                         }));

TEST_P(SettingsProtocol, AnEmptyTreeGivesAFileOfOneByte)
{
    ASSERT_TRUE(export_registry_settings(m_tree, m_files));
    EXPECT_EQ(ReadBytes(m_files.saved), (Bytes{1}));

    Fill({Value(u"old", type_dword, {1, 2, 3, 4}), Begin(u"Old"), Value(u"a", type_sz, {}), End()});
    fs::rename(m_files.saved, m_files.plain);
    EXPECT_TRUE(import_registry_settings(m_tree, m_files));
    EXPECT_TRUE(Content().empty());
    EXPECT_TRUE(registry_key_exists(m_tree, u"")) << "the root is there";
    EXPECT_FALSE(registry_key_exists(m_tree, u"Old"));
}

TEST_P(SettingsProtocol, AKeysDefaultValueHasANameOfNoLength)
{
    Fill({Value(u"", type_sz, {'x', 0, 0, 0})});
    ASSERT_TRUE(export_registry_settings(m_tree, m_files));
    EXPECT_EQ(ReadBytes(m_files.saved), (Bytes{1, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 4, 0, 0, 0, 'x', 0, 0, 0}));
}

TEST_P(SettingsProtocol, AnEmptyKeyIsABeginAndAnEnd)
{
    Fill({Begin(u"K\u20AC"), End()});
    ASSERT_TRUE(export_registry_settings(m_tree, m_files));
    EXPECT_EQ(ReadBytes(m_files.saved), (Bytes{1,                                                            //
                                               2, 0, 'K', 0, 0xAC, 0x20, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, //
                                               0, 0, 3,   0, 0,    0,    0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_P(SettingsProtocol, AKeysValuesComeBeforeItsSubkeysAndTheRootsFirst)
{
    Fill({Begin(u"A"), Begin(u"AA"), Value(u"v", type_dword, {1, 0, 0, 0}), End(),
          Value(u"v", type_dword, {2, 0, 0, 0}), End(), Begin(u"B"), End(), Value(u"v", type_dword, {3, 0, 0, 0})});
    EXPECT_EQ(Content(), (registry_entry_list{
                             Value(u"v", type_dword, {3, 0, 0, 0}), Begin(u"A"), Value(u"v", type_dword, {2, 0, 0, 0}),
                             Begin(u"AA"), Value(u"v", type_dword, {1, 0, 0, 0}), End(), End(), Begin(u"B"), End()}));
}

TEST_P(SettingsProtocol, TheExportOverwritesALongerFile)
{
    WriteBytes(m_files.saved, Bytes(1000, 7));
    Fill({Begin(u"A"), End()});
    ASSERT_TRUE(export_registry_settings(m_tree, m_files));
    EXPECT_EQ(ReadBytes(m_files.saved).size(), 1U + 16 + 14);
    EXPECT_FALSE(fs::exists(m_files.plain)) << "an export does not feed an import";
    EXPECT_FALSE(fs::exists(m_files.restored));
}

TEST_P(SettingsProtocol, AnImportReplacesTheTreeAndTakesThePlainNameAway)
{
    Fill({Begin(u"Old"), End()});
    registry_entry_list const list{Begin(u"A"), Value(u"a", type_dword, {1, 0, 0, 0}), Begin(u"AA"), End(), End(),
                                   Begin(u"B"), Value(u"", type_qword, Bytes(8, 9)),   End()};
    Bytes const bytes = FileBytes().Records(list).Get();
    WriteBytes(m_files.plain, bytes);
    WriteBytes(m_files.restored, {42});
    EXPECT_TRUE(import_registry_settings(m_tree, m_files));
    EXPECT_EQ(Content(), list);
    EXPECT_FALSE(fs::exists(m_files.plain));
    EXPECT_EQ(ReadBytes(m_files.restored), bytes);
}

TEST_P(SettingsProtocol, ASecondImportFindsNoFile)
{
    WriteBytes(m_files.plain, FileBytes().Records({Begin(u"A"), End()}).Get());
    EXPECT_TRUE(import_registry_settings(m_tree, m_files));
    EXPECT_FALSE(import_registry_settings(m_tree, m_files));
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"A"), End()})) << "and changes nothing";
}

TEST_P(SettingsProtocol, AnotherVersionIsRefusedAndTheFileKeepsItsName)
{
    Fill({Begin(u"Old"), End()});
    for (std::uint8_t const version : {std::uint8_t{2}, std::uint8_t{0}, std::uint8_t{255}, std::uint8_t{'1'}})
    {
        Bytes const bytes = FileBytes(version).Records({Begin(u"A"), End()}).Get();
        WriteBytes(m_files.plain, bytes);
        EXPECT_FALSE(import_registry_settings(m_tree, m_files));
        EXPECT_EQ(ReadBytes(m_files.plain), bytes);
        EXPECT_FALSE(fs::exists(m_files.restored));
    }
    WriteBytes(m_files.plain, {});
    EXPECT_FALSE(import_registry_settings(m_tree, m_files)) << "no version at all";
    EXPECT_TRUE(fs::exists(m_files.plain));
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"Old"), End()}));
}

TEST_P(SettingsProtocol, AFileCutInItsLastRecordGivesAllRecordsBeforeIt)
{
    registry_entry_list const whole{Begin(u"A"), Value(u"a", type_dword, {1, 0, 0, 0})};
    Bytes const before = FileBytes().Records(whole).Get();
    Bytes const bytes = FileBytes().Records(whole).Record(u"bcd", entry_value, type_binary, {1, 2, 3}).Get();
    for (std::size_t size = before.size(); size < bytes.size(); ++size)
    {
        WriteBytes(m_files.plain, Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)));
        ASSERT_TRUE(import_registry_settings(m_tree, m_files)) << size;
        ASSERT_EQ(Content(), (registry_entry_list{Begin(u"A"), Value(u"a", type_dword, {1, 0, 0, 0}), End()})) << size;
    }
}

TEST_P(SettingsProtocol, AnUnknownKindEndsTheImportWhenTheTreeIsDeleted)
{
    for (std::uint32_t const kind : {7U, 0U, 4U, 0xFFFFFFFFU})
    {
        Fill({Begin(u"Old"), Value(u"a", type_sz, {}), End()});
        Bytes const bytes =
            FileBytes().Records({Begin(u"A"), End()}).Record(u"", kind, 0, {}).Records({Begin(u"B"), End()}).Get();
        WriteBytes(m_files.plain, bytes);
        EXPECT_FALSE(import_registry_settings(m_tree, m_files)) << kind;
        EXPECT_EQ(Content(), (registry_entry_list{Begin(u"A"), End()})) << "what was written before it stays";
        EXPECT_FALSE(fs::exists(m_files.plain));
        EXPECT_EQ(ReadBytes(m_files.restored), bytes) << "it is not tried again";
    }
}

TEST_P(SettingsProtocol, AValueOfNoTypeMakesTheExportFail)
{
    WriteBytes(m_files.saved, {42});
    Fill({Begin(u"A"), Begin(u"AA"), Value(u"a", type_dword, {1, 0, 0, 0}), Value(u"b", value_type_none, {1}), End(),
          End(), Begin(u"B"), End()});
    EXPECT_FALSE(export_registry_settings(m_tree, m_files));
    EXPECT_EQ(ReadBytes(m_files.saved), (Bytes{42})) << "no file is touched";

    ASSERT_TRUE(delete_registry_tree(m_tree, u"A"));
    EXPECT_TRUE(export_registry_settings(m_tree, m_files));
    Fill({Value(u"b", value_type_none, {})});
    EXPECT_FALSE(export_registry_settings(m_tree, m_files)) << "also in the root";
}

TEST_P(SettingsProtocol, AMultiStringSurvivesByteForByte)
{
    Bytes const proper{'a', 0, 0, 0, 'b', 0, 'c', 0, 0, 0, 0, 0};
    Bytes const cut{'a', 0, 0, 0, 'b', 0};
    registry_entry_list const list{Begin(u"A"), Value(u"a", type_multi_sz, proper), Value(u"b", type_multi_sz, cut),
                                   Value(u"c", type_multi_sz, {}), End()};
    Fill(list);
    ExportAndImport();
    EXPECT_EQ(Content(), list);
    EXPECT_EQ(ReadBytes(m_files.restored), FileBytes().Records(list).Get());
}

TEST_P(SettingsProtocol, TextKeepsTheTerminatorsThatItHas)
{
    registry_entry_list list{Begin(u"A")};
    char16_t name = u'a';
    for (std::uint32_t const type : {type_sz, type_expand_sz, type_multi_sz})
    {
        for (Bytes const & data : {Bytes{}, Bytes{'x'}, Bytes{'x', 0}, Bytes{'x', 0, 'y'}, Bytes{'x', 0, 0},
                                   Bytes{0, 0}, Bytes{'x', 0, 0, 0}, Bytes{'x', 0, 0, 0, 0, 0}, Bytes(64, 'x')})
            list.push_back(Value(std::u16string(1, name++), type, data));
    }
    list.push_back(End());
    Fill(list);
    EXPECT_EQ(Sorted(Content()), Sorted(list));
    for (int round = 0; round < 20; ++round)
        ExportAndImport();
    EXPECT_EQ(Sorted(Content()), Sorted(list));
}

TEST_P(SettingsProtocol, ValuesOfTheRootNeedATreeThatTakesThemThroughAKeyForReading)
{
    registry_entry_list const list{Value(u"a", type_dword, {1, 0, 0, 0}), Begin(u"A"), End()};
    Fill(list);
    ASSERT_TRUE(export_registry_settings(m_tree, m_files));
    EXPECT_EQ(ReadBytes(m_files.saved), FileBytes().Records(list).Get());
    fs::rename(m_files.saved, m_files.plain);
    EXPECT_EQ(import_registry_settings(m_tree, m_files), m_host->TakesRootValues());
    EXPECT_EQ(Content(), m_host->TakesRootValues() ? list : registry_entry_list{});
    EXPECT_TRUE(fs::exists(m_files.restored));
}

TEST_P(SettingsProtocol, AKeysEndAtTheRootEndsTheImport)
{
    WriteBytes(m_files.plain, FileBytes().Records({Begin(u"A"), End(), End(), Begin(u"B"), Kind(7)}).Get());
    EXPECT_TRUE(import_registry_settings(m_tree, m_files));
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"A"), End()}));
}

TEST_P(SettingsProtocol, MissingEndsAtTheEndAreNone)
{
    WriteBytes(m_files.plain, FileBytes().Records({Begin(u"A"), Begin(u"B"), Begin(u"C")}).Get());
    EXPECT_TRUE(import_registry_settings(m_tree, m_files));
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"A"), Begin(u"B"), Begin(u"C"), End(), End(), End()}));
}

TEST_P(SettingsProtocol, AFileThatCannotBeRenamedIsNotApplied)
{
    Fill({Begin(u"Old"), End()});
    Bytes const bytes = FileBytes().Records({Begin(u"A"), End()}).Get();
    WriteBytes(m_files.plain, bytes);
    fs::create_directories(m_files.restored / "occupied");
    EXPECT_FALSE(import_registry_settings(m_tree, m_files));
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"Old"), End()}));
    EXPECT_EQ(ReadBytes(m_files.plain), bytes);
}

TEST_P(SettingsProtocol, AnExportWithoutAFolderFails)
{
    EXPECT_FALSE(export_registry_settings(m_tree, settings_files(m_folder.Path() / "missing")));
    EXPECT_FALSE(import_registry_settings(m_tree, settings_files(m_folder.Path() / "missing")));
}

TEST_P(SettingsProtocol, ATreeIsDeletedWithAllBeneathItAndNothingElse)
{
    Fill({Begin(u"A"), Value(u"a", type_sz, {}), Begin(u"AA"), Value(u"a", type_sz, {}), Begin(u"AAA"), End(), End(),
          End(), Begin(u"B"), End()});
    EXPECT_TRUE(registry_key_exists(m_tree, u"A"));
    EXPECT_TRUE(registry_key_exists(m_tree, u"A\\AA"));
    EXPECT_FALSE(registry_key_exists(m_tree, u"AA"));
    EXPECT_TRUE(delete_registry_tree(m_tree, u"A\\AA"));
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"A"), Value(u"a", type_sz, {}), End(), Begin(u"B"), End()}));
    EXPECT_TRUE(delete_registry_tree(m_tree, u"A"));
    EXPECT_FALSE(registry_key_exists(m_tree, u"A"));
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"B"), End()}));
    EXPECT_FALSE(delete_registry_tree(m_tree, u"A")) << "it is not there any more";
}

TEST_P(SettingsProtocol, NamesOfKeysEndAtANullCharacter)
{
    registry_entry_list list{Begin(std::u16string(u"A\0B", 3)), Value(std::u16string(u"a\0b", 3), type_sz, {}), End()};
    ASSERT_TRUE(write_registry_tree(m_tree, list));
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"A"), Value(u"a", type_sz, {}), End()}));
}

TEST_P(SettingsProtocol, LettersAreTheSameInEitherCase)
{
    registry_entry_list list{Begin(u"Key az"), Value(u"Name az", type_sz, {1}), End(),
                             Begin(u"KEY AZ"), Value(u"NAME AZ", type_sz, {2}), End()};
    ASSERT_TRUE(write_registry_tree(m_tree, list));
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"Key az"), Value(u"Name az", type_sz, {2}), End()}));
}

TEST_P(SettingsProtocol, AKeyNamedByAPathIsMadeWithItsParents)
{
    registry_entry_list list{Begin(u"A\\B"), Value(u"v\\w", type_sz, {1}), End(), Begin(u""), Begin(u"C"), End(),
                             End()};
    ASSERT_TRUE(write_registry_tree(m_tree, list));
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"A"), Begin(u"B"), Value(u"v\\w", type_sz, {1}), End(), End(),
                                              Begin(u"C"), End()}));
}

TEST_P(SettingsProtocol, NamesUpToTheLimitsComeBackAndLongerOnesEndTheReplay)
{
    std::u16string const longestKey(longest_key_name, u'k');
    std::u16string const longestValue(longest_value_name, u'v');
    registry_entry_list const whole{Begin(longestKey), Value(longestValue, type_binary, {1, 2}), End()};
    Fill(whole);
    ExportAndImport();
    EXPECT_EQ(Content(), whole);

    // Some systems allow one unit more.
    registry_entry_list longKey{Begin(u"A"), End(), Begin(std::u16string(longest_key_name + 2, u'k')), End()};
    EXPECT_FALSE(write_registry_tree(m_tree, longKey));
    EXPECT_EQ(longKey.size(), 2U) << "it begins with what could not be done";
    registry_entry_list longValue{Begin(u"A"), Value(longestValue + u"v", type_binary, {}), End()};
    EXPECT_FALSE(write_registry_tree(m_tree, longValue));
    EXPECT_EQ(longValue.size(), 2U);
    EXPECT_EQ(Content(), (registry_entry_list{Begin(u"A"), End()}));
}

TEST_P(SettingsProtocol, TwoHundredNestedKeysComeBack)
{
    registry_entry_list list;
    for (int depth = 0; depth < 200; ++depth)
    {
        list.push_back(Begin(u"Level"));
        list.push_back(Value(u"v", type_dword, {static_cast<std::uint8_t>(depth), 0, 0, 0}));
    }
    list.insert(list.end(), 200, End());
    Fill(list);
    ExportAndImport();
    EXPECT_EQ(Content(), list);
    EXPECT_EQ(ReadBytes(m_files.restored), FileBytes().Records(list).Get());
}

TEST_P(SettingsProtocol, TenThousandValuesComeBack)
{
    registry_entry_list const list = RandomTree(1, {1, 10000, 1, false, 5000}).Make();
    ASSERT_EQ(list.size(), 10002U);
    Fill(list);
    ExportAndImport();
    EXPECT_EQ(Sorted(Content()), Sorted(list));
    ASSERT_TRUE(export_registry_settings(m_tree, m_files));
    EXPECT_EQ(ReadBytes(m_files.saved), ReadBytes(m_files.restored));
}

TEST_P(SettingsProtocol, RandomTreesComeBackByteForByte)
{
    for (unsigned seed = 100; seed < 120; ++seed)
    {
        RandomShape const shape{1 + seed % 7 * 9, 60, 1 + seed % 30, m_host->TakesRootValues(), 40};
        registry_entry_list const list = RandomTree(seed, shape).Make();
        ASSERT_TRUE(delete_registry_tree(m_tree, u""));
        Fill(list);
        ASSERT_EQ(Sorted(Content()), Sorted(list)) << seed;
        ExportAndImport();
        ASSERT_EQ(Sorted(Content()), Sorted(list)) << seed;
        ASSERT_TRUE(export_registry_settings(m_tree, m_files));
        ASSERT_EQ(ReadBytes(m_files.saved), ReadBytes(m_files.restored)) << seed;
    }
}
} // namespace settings_tests
