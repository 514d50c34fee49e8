// The settings file and the list of records: damaged files, deep nesting, memory.

#include <sstream>
#include <streambuf>

#include "AllocationCount.h"
#include "settings_TreeTest.h"
#include "windows/MemorySettingsTree.h"

namespace
{
using namespace settings_tests;

bool Read(std::string const & bytes, registry_entry_list & list)
{
    std::istringstream stream(bytes);
    return read_settings(stream, list);
}

/// Gives bytes that can't be sought, and fails at their end if it is to.
class PlainSource : public std::streambuf
{
public:
    PlainSource(std::string bytes, bool fails) : m_bytes(std::move(bytes)), m_fails(fails)
    {
        setg(m_bytes.data(), m_bytes.data(), m_bytes.data() + m_bytes.size());
    }

protected:
    int_type underflow() override
    {
        if (m_fails)
            throw std::runtime_error("the medium is broken");
        return traits_type::eof();
    }

private:
    std::string m_bytes;
    bool m_fails;
};

/// Tells where it stands, and can't be sought all the same.
class TellingSource : public PlainSource
{
public:
    using PlainSource::PlainSource;

protected:
    pos_type seekoff(off_type offset, std::ios::seekdir way, std::ios::openmode) override
    {
        return offset == 0 && way == std::ios::cur ? pos_type(gptr() - eback()) : pos_type(off_type(-1));
    }
};

/// Takes so many bytes and no more.
class SmallSink : public std::streambuf
{
public:
    explicit SmallSink(std::size_t room) : m_room(room) {}
    std::string written;

protected:
    int_type overflow(int_type character) override
    {
        if (written.size() == m_room)
            return traits_type::eof();
        written.push_back(traits_type::to_char_type(character));
        return character;
    }

private:
    std::size_t m_room;
};

registry_entry_list SomeRecords()
{
    return {Value(u"n\u20AC", type_binary, {0, 255, 10}), Begin(u"A"), Value(u"", type_dword, {1, 2, 3, 4}), End()};
}
} // namespace

TEST(SettingsFile, HasTheSuitesNames)
{
    settings_file_names const here = settings_files();
    EXPECT_EQ(here.saved.string(), "BrenholtRegistryEntries-saved.wst");
    EXPECT_EQ(here.plain.string(), "BrenholtRegistryEntries.wst");
    EXPECT_EQ(here.restored.string(), "BrenholtRegistryEntries-restored.wst");
    settings_file_names const there = settings_files("folder");
    EXPECT_EQ(there.plain, std::filesystem::path("folder") / here.plain);
    EXPECT_EQ(there.saved.parent_path(), "folder");
    EXPECT_EQ(there.restored.parent_path(), "folder");
}

TEST(SettingsFile, IsWrittenFieldByField)
{
    std::ostringstream stream;
    ASSERT_TRUE(write_settings(stream, SomeRecords()));
    std::string const expected("\x01"
                               "\x02\0n\0\xAC\x20\x01\0\0\0\x03\0\0\0\x03\0\0\0\0\xFF\x0A"
                               "\x01\0A\0\x02\0\0\0\0\0\0\0\0\0\0\0"
                               "\0\0\x01\0\0\0\x04\0\0\0\x04\0\0\0\x01\x02\x03\x04"
                               "\0\0\x03\0\0\0\0\0\0\0\0\0\0\0",
                               1 + 21 + 16 + 18 + 14);
    EXPECT_EQ(stream.str(), expected);
}

TEST(SettingsFile, IsReadBackAsWritten)
{
    registry_entry_list list{Begin(u"left over")};
    ASSERT_TRUE(Read(FileBytes().Records(SomeRecords()).Text(), list));
    EXPECT_EQ(list, SomeRecords());
}

TEST(SettingsFile, KeepsKindsAndTypesOfAnyNumber)
{
    registry_entry_list list;
    ASSERT_TRUE(Read(FileBytes().Record(u"x", 0xFEDCBA98, 0x89ABCDEF, {1}).Text(), list));
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(static_cast<std::uint32_t>(list[0].kind), 0xFEDCBA98U);
    EXPECT_EQ(list[0].value_type, 0x89ABCDEFU);
}

TEST(SettingsFile, WhiteSpaceBeforeTheVersionIsSkipped)
{
    std::string const bytes = FileBytes().Records(SomeRecords()).Text();
    registry_entry_list list;
    EXPECT_TRUE(Read(" \t\r\n\v\f" + bytes, list));
    EXPECT_EQ(list, SomeRecords());
    EXPECT_FALSE(Read(" \n", list));
    EXPECT_TRUE(list.empty());
    EXPECT_FALSE(Read(" \x02" + bytes, list));
}

TEST(SettingsFile, ARecordThatBeginsWithWhiteSpaceIsReadWhole)
{
    // The name's length is 0x200A: a line feed and a space.
    registry_entry_list const records{Value(std::u16string(0x200A, u'x'), type_binary, {9, 10, 32})};
    registry_entry_list list;
    ASSERT_TRUE(Read(FileBytes().Records(records).Text(), list));
    EXPECT_EQ(list, records);
}

TEST(SettingsFile, ACutRecordIsDroppedWhereverItIsCut)
{
    std::string const bytes = FileBytes().Records(SomeRecords()).Text();
    std::size_t const ends[] = {1, 22, 38, 56, 70};
    for (std::size_t size = 1; size <= bytes.size(); ++size)
    {
        registry_entry_list list;
        ASSERT_TRUE(Read(bytes.substr(0, size), list)) << size;
        std::size_t const whole = static_cast<std::size_t>(
            std::count_if(std::begin(ends) + 1, std::end(ends), [&](std::size_t end) { return end <= size; }));
        ASSERT_EQ(list.size(), whole) << size;
    }
}

TEST(SettingsFile, AReadThatFailsOtherwiseThanByTheEndIsAFailure)
{
    std::string const bytes = FileBytes().Records(SomeRecords()).Text();
    for (bool const fails : {false, true})
    {
        for (std::size_t const size : {bytes.size(), bytes.size() - 5})
        {
            PlainSource source(bytes.substr(0, size), fails);
            std::istream stream(&source);
            registry_entry_list list;
            EXPECT_EQ(read_settings(stream, list), !fails);
            EXPECT_EQ(list.size(), size == bytes.size() ? 4U : 3U);
        }
    }
}

TEST(SettingsFile, AStreamThatCannotBeSoughtIsReadAllTheSame)
{
    registry_entry_list const records{Value(u"large", type_binary, Bytes(300000, 7)), Value(u"b", type_binary, {})};
    PlainSource source(FileBytes().Records(records).Text(), false);
    std::istream stream(&source);
    registry_entry_list list;
    EXPECT_TRUE(read_settings(stream, list));
    EXPECT_EQ(list, records);

    TellingSource telling(FileBytes().Records(records).Text(), false);
    std::istream tellingStream(&telling);
    EXPECT_TRUE(read_settings(tellingStream, list));
    EXPECT_EQ(list, records);
}

TEST(SettingsFile, LengthsOfADamagedFileTakeNoMemory)
{
    // 40 bytes that announce 4 GB of data.
    FileBytes bytes;
    bytes.Number(2, 2).Number(u'a', 2).Number(u'b', 2).Number(entry_value, 4).Number(type_binary, 4);
    bytes.Number(0xFFFFFFFF, 4).Number(0, 8).Number(0, 8).Number(0, 5);
    ASSERT_EQ(bytes.Get().size(), 40U);
    std::istringstream stream(bytes.Text());
    registry_entry_list list;
    std::size_t const before = tests::AllocationsSoFar().bytes;
    EXPECT_TRUE(read_settings(stream, list));
    std::size_t const taken = tests::AllocationsSoFar().bytes - before;
    EXPECT_LT(taken, 200000U);
    EXPECT_TRUE(list.empty());

    // The same where the length of the whole can't be known.
    PlainSource source(bytes.Text(), false);
    std::istream plain(&source);
    std::size_t const beforePlain = tests::AllocationsSoFar().bytes;
    EXPECT_TRUE(read_settings(plain, list));
    EXPECT_LT(tests::AllocationsSoFar().bytes - beforePlain, 200000U);
    EXPECT_GT(tests::AllocationsSoFar().bytes, beforePlain) << "the count works";

    // A name of 65,535 units in a file of three bytes.
    std::istringstream name(std::string("\x01\xFF\xFF", 3));
    std::size_t const beforeName = tests::AllocationsSoFar().bytes;
    EXPECT_TRUE(read_settings(name, list));
    EXPECT_LT(tests::AllocationsSoFar().bytes - beforeName, 200000U);
}

TEST(SettingsFile, ALengthIsHeldAgainstWhatIsLeftOfTheFile)
{
    constexpr std::size_t size = 4'000'000;
    std::string const bytes = FileBytes()
                                  .Record(u"a", entry_value, type_binary, Bytes(size, 1))
                                  .Number(0, 2)
                                  .Number(entry_value, 4)
                                  .Number(type_binary, 4)
                                  .Number(0xFFFFFFFF, 4)
                                  .Text();
    std::istringstream stream(bytes);
    registry_entry_list list;
    std::size_t const before = tests::AllocationsSoFar().bytes;
    EXPECT_TRUE(read_settings(stream, list));
    EXPECT_LT(tests::AllocationsSoFar().bytes - before, size + 300000U);
    EXPECT_EQ(list.size(), 1U);
}

TEST(SettingsFile, DataOfAKnownLengthIsAllocatedOnce)
{
    constexpr std::size_t size = 8'000'000;
    std::string const bytes = FileBytes().Record(u"a", entry_value, type_binary, Bytes(size, 1)).Text();
    std::istringstream stream(bytes);
    registry_entry_list list;
    std::size_t const before = tests::AllocationsSoFar().bytes;
    ASSERT_TRUE(read_settings(stream, list));
    EXPECT_LT(tests::AllocationsSoFar().bytes - before, size + 100000U);
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0].data.size(), size);
}

TEST(SettingsFile, WritingStopsAtTheFirstFailure)
{
    std::string const whole = FileBytes().Records(SomeRecords()).Text();
    for (std::size_t room = 0; room < whole.size(); ++room)
    {
        SmallSink sink(room);
        std::ostream stream(&sink);
        ASSERT_FALSE(write_settings(stream, SomeRecords())) << room;
        ASSERT_EQ(sink.written, whole.substr(0, room));
    }
    SmallSink sink(whole.size());
    std::ostream stream(&sink);
    EXPECT_TRUE(write_settings(stream, SomeRecords()));
}

TEST(SettingsFile, ANameIsWrittenUpToTheLow16BitsOfItsLength)
{
    std::ostringstream stream;
    ASSERT_TRUE(write_settings(stream, {Value(std::u16string(65536 + 2, u'x'), type_binary, {}), Begin(u"A")}));
    registry_entry_list list;
    ASSERT_TRUE(Read(stream.str(), list));
    EXPECT_EQ(list, (registry_entry_list{Value(u"xx", type_binary, {}), Begin(u"A")}));
}

TEST(SettingsFile, AFolderIsNoFile)
{
    OwnFolder const folder;
    registry_entry_list list{Begin(u"A")};
    EXPECT_FALSE(read_settings_file(folder.Path(), list));
    EXPECT_TRUE(list.empty());
    EXPECT_FALSE(write_settings_file(folder.Path(), {}));
    list = {Begin(u"A")};
    EXPECT_FALSE(read_settings_file(folder.Path() / "missing", list));
    EXPECT_TRUE(list.empty());
}

TEST(SettingsFile, FilesWithOtherCharactersInTheirNamesAreFound)
{
    OwnFolder const folder;
    std::filesystem::path const file = folder.Path() / u"\u03A9 settings.wst";
    ASSERT_TRUE(write_settings_file(file, SomeRecords()));
    registry_entry_list list;
    EXPECT_TRUE(read_settings_file(file, list));
    EXPECT_EQ(list, SomeRecords());
}

TEST(SettingsTree, DeeplyNestedKeysNeedNoStack)
{
    constexpr std::size_t depth = 200'000;
    registry_entry_list list(depth, Begin(u"A"));
    MemorySettingsTree tree;
    ASSERT_TRUE(write_registry_tree(tree, list));
    registry_entry_list again;
    ASSERT_TRUE(read_registry_tree(tree, again));
    EXPECT_EQ(again.size(), 2 * depth);
    EXPECT_EQ(again.back().kind, entry_key_end);
    EXPECT_EQ(tree.OpenKeyCount(), 1U);
    EXPECT_TRUE(delete_registry_tree(tree, u"A"));
    ASSERT_TRUE(read_registry_tree(tree, again));
    EXPECT_TRUE(again.empty());
}

TEST(SettingsTree, AReplayLeavesTheRootAloneOpen)
{
    MemorySettingsTree tree;
    registry_entry_list list{Begin(u"A"), Begin(u"B"), End(), End()};
    ASSERT_TRUE(write_registry_tree(tree, list));
    EXPECT_EQ(tree.OpenKeyCount(), 1U) << "the root stays open, as hosts expect";
    list = {Begin(u"A"), Begin(u"B"), Kind(7)};
    ASSERT_FALSE(write_registry_tree(tree, list));
    EXPECT_EQ(tree.OpenKeyCount(), 2U) << "keys below it are closed also on failure";
    list = {Begin(u"A"), Begin(u"B")};
    ASSERT_TRUE(write_registry_tree(tree, list));
    EXPECT_EQ(tree.OpenKeyCount(), 3U);
}

TEST(SettingsTree, ReadingAndDeletingLeaveNoKeyOpen)
{
    MemorySettingsTree tree(MemorySettingsTree::rights_t::unchecked);
    registry_entry_list list{Begin(u"A"), Begin(u"B"), Value(u"a", value_type_none, {}), End(), End()};
    ASSERT_TRUE(write_registry_tree(tree, list));
    std::size_t const before = tree.OpenKeyCount();
    EXPECT_FALSE(read_registry_tree(tree, list));
    EXPECT_EQ(list, (registry_entry_list{Begin(u"A"), Begin(u"B")})) << "what was read until then";
    EXPECT_EQ(tree.OpenKeyCount(), before);
    EXPECT_TRUE(registry_key_exists(tree, u"A"));
    EXPECT_TRUE(delete_registry_tree(tree, u"A"));
    EXPECT_TRUE(read_registry_tree(tree, list));
    EXPECT_EQ(tree.OpenKeyCount(), before);
}

TEST(SettingsTree, AKeysEndAtTheRootLeavesTheRestInTheList)
{
    MemorySettingsTree tree;
    registry_entry_list list{End(), Begin(u"A"), End()};
    EXPECT_TRUE(write_registry_tree(tree, list));
    EXPECT_EQ(list, (registry_entry_list{Begin(u"A"), End()}));
}

TEST(SettingsTree, RecordsOfFailedKeysStayInTheList)
{
    MemorySettingsTree tree;
    for (std::u16string const & name : {std::u16string(u"\\A"), std::u16string(u"A\\\\B"), std::u16string(256, u'x')})
    {
        registry_entry_list list{Begin(u"First"), End(), Begin(name), End()};
        EXPECT_FALSE(write_registry_tree(tree, list));
        EXPECT_EQ(list, (registry_entry_list{Begin(name), End()}));
    }
}

TEST(SettingsTree, AFailureOfTheTreeEndsTheReading)
{
    registry_entry_list list{Begin(u"A"), Value(u"a", type_sz, {1}), End()};
    MemorySettingsTree tree;
    ASSERT_TRUE(write_registry_tree(tree, list));

    class Failing final : public SettingsTree
    {
    public:
        Failing(SettingsTree & tree, int step) : m_tree(tree), m_step(step) {}
        key_t Open(std::u16string const & subkey, access_t access) override
        {
            bool const refused = m_step == 0 || (m_step == 5 && access == access_t::read);
            return refused ? 0 : m_tree.Open(subkey, access);
        }
        key_t OpenSubkey(key_t key, std::u16string const & name) override
        {
            return m_step == 1 ? 0 : m_tree.OpenSubkey(key, name);
        }
        key_t CreateSubkey(key_t key, std::u16string const & name) override { return m_tree.CreateSubkey(key, name); }
        void Close(key_t key) override { m_tree.Close(key); }
        counts_t Count(key_t key) override { return m_tree.Count(key); }
        bool DescribeValue(key_t key, std::uint32_t index, registry_entry & entry) override
        {
            return m_step != 2 && m_tree.DescribeValue(key, index, entry);
        }
        bool ReadValue(key_t key, std::uint32_t index, registry_entry & entry) override
        {
            return m_step != 3 && m_tree.ReadValue(key, index, entry);
        }
        bool SubkeyName(key_t key, std::uint32_t index, std::u16string & name) override
        {
            return m_step != 4 && m_tree.SubkeyName(key, index, name);
        }
        bool SetValue(key_t key, registry_entry const & entry) override { return m_tree.SetValue(key, entry); }
        void EmptyKey(key_t key) override { m_tree.EmptyKey(key); }
        void DeleteKey(std::u16string const & subkey) override { m_tree.DeleteKey(subkey); }

    private:
        SettingsTree & m_tree;
        int m_step;
    };

    for (int step = 0; step < 5; ++step)
    {
        Failing failing(tree, step);
        EXPECT_FALSE(read_registry_tree(failing, list)) << step;
        bool const keyBegun = step >= 1 && step <= 3;
        EXPECT_EQ(list, keyBegun ? registry_entry_list{Begin(u"A")} : registry_entry_list{}) << step;
        EXPECT_EQ(tree.OpenKeyCount(), 1U) << step;
    }
    Failing none(tree, 0);
    list = {Begin(u"B")};
    EXPECT_FALSE(write_registry_tree(none, list));
    EXPECT_FALSE(registry_key_exists(none, u"A"));
    EXPECT_TRUE(registry_key_exists(tree, u"A")) << "nothing was deleted";
    Failing sound(tree, 6);
    EXPECT_TRUE(read_registry_tree(sound, list));

    Failing unreadable(tree, 5);
    list.clear();
    EXPECT_FALSE(write_registry_tree(unreadable, list)) << "it is deleted and can't be opened again";
    EXPECT_FALSE(registry_key_exists(tree, u"A"));
}

TEST(MemorySettingsTree, SubkeysAreInTheOrderOfTheirNamesAndValuesAsTheyCame)
{
    MemorySettingsTree tree;
    registry_entry_list list{Value(u"z", type_sz, {}),
                             Value(u"a", type_sz, {}),
                             Begin(u"c"),
                             End(),
                             Begin(u"B"),
                             End(),
                             Begin(u"a"),
                             End(),
                             Begin(u"_"),
                             End()};
    ASSERT_TRUE(write_registry_tree(tree, list));
    ASSERT_TRUE(read_registry_tree(tree, list));
    EXPECT_EQ(list, (registry_entry_list{Value(u"z", type_sz, {}), Value(u"a", type_sz, {}), Begin(u"a"), End(),
                                         Begin(u"B"), End(), Begin(u"c"), End(), Begin(u"_"), End()}));
}

TEST(MemorySettingsTree, AKeyIsDeletedOnlyWithoutSubkeys)
{
    MemorySettingsTree tree;
    registry_entry_list list{Begin(u"A"), Begin(u"B"), End(), End()};
    ASSERT_TRUE(write_registry_tree(tree, list));
    tree.DeleteKey(u"A");
    EXPECT_TRUE(registry_key_exists(tree, u"A\\B"));
    SettingsTree::key_t const root = tree.Open({}, SettingsTree::access_t::read);
    SettingsTree::key_t const below = tree.CreateSubkey(root, u"A\\B");
    ASSERT_TRUE(tree.SetValue(below, Value(u"v", type_sz, {})));
    ASSERT_EQ(tree.Count(below).values, 1U);
    tree.DeleteKey(u"A\\B");
    EXPECT_EQ(tree.Count(below).values, 0U) << "an open key does not keep it";
    EXPECT_FALSE(registry_key_exists(tree, u"A\\B"));
    tree.DeleteKey(u"a\\");
    EXPECT_FALSE(registry_key_exists(tree, u"A"));
    tree.DeleteKey(u"missing\\below");
    EXPECT_FALSE(registry_key_exists(tree, u"missing"));
    list = {Value(u"v", type_sz, {})};
    ASSERT_TRUE(write_registry_tree(tree, list));
    tree.DeleteKey(u"");
    ASSERT_TRUE(read_registry_tree(tree, list));
    EXPECT_TRUE(list.empty()) << "the root is there again, without its values";
}

TEST(MemorySettingsTree, AnEmptiedKeyTakesTheSameValuesAgain)
{
    MemorySettingsTree tree;
    SettingsTree::key_t const root = tree.Open({}, SettingsTree::access_t::read);
    SettingsTree::key_t const deep = tree.CreateSubkey(root, u"A\\B\\C");
    ASSERT_TRUE(tree.SetValue(deep, Value(u"v", type_sz, {})));
    for (int round = 0; round < 2; ++round)
    {
        ASSERT_TRUE(tree.SetValue(root, Value(u"v", type_sz, {1})));
        ASSERT_TRUE(tree.SetValue(root, Value(u"w", type_sz, {2})));
        ASSERT_EQ(tree.Count(root).values, 2U);
        if (round == 0)
            tree.EmptyKey(root);
        else
            tree.DeleteKey(u"");
        EXPECT_EQ(tree.Count(root).values, 0U);
        EXPECT_EQ(tree.Count(root).subkeys, 0U);
        EXPECT_EQ(tree.Count(deep).values, 0U) << "also keys far below are gone";
        ASSERT_TRUE(tree.SetValue(root, Value(u"w", type_dword, {3})));
        registry_entry entry;
        ASSERT_EQ(tree.Count(root).values, 1U);
        ASSERT_TRUE(tree.DescribeValue(root, 0, entry));
        EXPECT_EQ(entry.name, u"w");
        EXPECT_EQ(entry.value_type, type_dword);
        tree.EmptyKey(root);
    }
}

TEST(MemorySettingsTree, AnOpenKeyThatIsDeletedGivesNothing)
{
    MemorySettingsTree tree;
    registry_entry_list list{Begin(u"A"), Value(u"v", type_sz, {}), Begin(u"B"), End(), End()};
    ASSERT_TRUE(write_registry_tree(tree, list));
    SettingsTree::key_t const key = tree.Open(u"A", SettingsTree::access_t::read);
    ASSERT_EQ(tree.Count(key).values, 1U);
    ASSERT_EQ(tree.Count(key).subkeys, 1U);
    ASSERT_TRUE(delete_registry_tree(tree, u""));
    EXPECT_EQ(tree.Count(key).values, 0U);
    EXPECT_EQ(tree.Count(key).subkeys, 0U);
    registry_entry entry;
    std::u16string name;
    EXPECT_FALSE(tree.DescribeValue(key, 0, entry));
    EXPECT_FALSE(tree.ReadValue(key, 0, entry));
    EXPECT_FALSE(tree.SubkeyName(key, 0, name));
    EXPECT_FALSE(tree.SetValue(key, Value(u"v", type_sz, {})));
    EXPECT_EQ(tree.OpenSubkey(key, u"B"), 0U);
    EXPECT_EQ(tree.CreateSubkey(key, u"B"), 0U);
    tree.EmptyKey(key);
    tree.Close(key);
}

TEST(MemorySettingsTree, APathHasAnyNumberOfNamesOfFullLength)
{
    MemorySettingsTree tree;
    std::u16string const name(longest_key_name, u'k');
    SettingsTree::key_t const root = tree.Open({}, SettingsTree::access_t::read);
    ASSERT_NE(tree.CreateSubkey(root, name + u"\\" + name + u"\\C\\D"), 0U);
    registry_entry_list list;
    ASSERT_TRUE(read_registry_tree(tree, list));
    EXPECT_EQ(list,
              (registry_entry_list{Begin(name), Begin(name), Begin(u"C"), Begin(u"D"), End(), End(), End(), End()}));
    EXPECT_EQ(tree.CreateSubkey(root, name + u"k\\C"), 0U);
}

TEST(MemorySettingsTree, WhatIsNotThereIsNotOpenedAndNotMade)
{
    MemorySettingsTree tree;
    SettingsTree::key_t const root = tree.Open({}, SettingsTree::access_t::read);
    ASSERT_TRUE(tree.SetValue(root, Value(u"v", type_sz, {1})));
    ASSERT_NE(tree.CreateSubkey(root, u"A"), 0U);
    EXPECT_EQ(tree.OpenSubkey(root, u"B"), 0U);
    EXPECT_EQ(tree.Open(u"B", SettingsTree::access_t::read), 0U);
    EXPECT_EQ(tree.Count(root).subkeys, 1U);
    registry_entry entry;
    std::u16string name;
    EXPECT_TRUE(tree.DescribeValue(root, 0, entry));
    EXPECT_FALSE(tree.DescribeValue(root, 1, entry));
    EXPECT_FALSE(tree.ReadValue(root, 1, entry));
    EXPECT_TRUE(tree.SubkeyName(root, 0, name));
    EXPECT_FALSE(tree.SubkeyName(root, 1, name));
}

TEST(MemorySettingsTree, CheckedRightsAreThoseOfTheOpening)
{
    MemorySettingsTree tree(MemorySettingsTree::rights_t::checked);
    SettingsTree::key_t const forReading = tree.Open({}, SettingsTree::access_t::read);
    SettingsTree::key_t const created = tree.CreateSubkey(forReading, u"A");
    SettingsTree::key_t const forRemoval = tree.Open(u"A", SettingsTree::access_t::remove);
    registry_entry const value = Value(u"v", type_sz, {});
    EXPECT_FALSE(tree.SetValue(forReading, value));
    EXPECT_FALSE(tree.SetValue(forRemoval, value));
    EXPECT_TRUE(tree.SetValue(created, value));
    tree.EmptyKey(created);
    EXPECT_EQ(tree.Count(created).values, 1U);
    tree.EmptyKey(forRemoval);
    EXPECT_EQ(tree.Count(created).values, 0U);
}

TEST(MemorySettingsTree, AValueThatHasGrownSinceItWasDescribedIsNotRead)
{
    MemorySettingsTree tree;
    SettingsTree::key_t const root = tree.Open({}, SettingsTree::access_t::read);
    ASSERT_TRUE(tree.SetValue(root, Value(u"v", type_sz, {1})));
    registry_entry entry;
    ASSERT_TRUE(tree.DescribeValue(root, 0, entry));
    ASSERT_TRUE(tree.SetValue(root, Value(u"v", type_sz, {1, 2})));
    EXPECT_FALSE(tree.ReadValue(root, 0, entry));
    ASSERT_TRUE(tree.SetValue(root, Value(u"v", type_sz, {})));
    EXPECT_TRUE(tree.ReadValue(root, 0, entry));
    EXPECT_TRUE(entry.data.empty());
}
