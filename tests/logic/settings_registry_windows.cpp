// Export and import of settings in the real registry: the tests of settings_protocol.cpp, and what only it can show.

#include <windows.h>

#include "settings_TreeTest.h"
#include "windows/RegistrySettingsTree.h"

namespace settings_tests
{
namespace
{
constexpr wchar_t tests_key[] = L"Software\\InstrumentUiTests";

/// A key of the process's own, deleted in the end.
class RegistryHost final : public TreeHost
{
public:
    RegistryHost() { ::RegDeleteTreeW(HKEY_CURRENT_USER, Path().c_str()); }
    ~RegistryHost() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, Path().c_str()); }

    SettingsTree & Tree() override { return m_tree; }
    bool TakesRootValues() const override { return false; }

    static std::wstring Path()
    {
        return std::wstring(tests_key) + L"\\Settings " + std::to_wstring(::GetCurrentProcessId());
    }

    /// As CWinApp::GetAppRegistryKey: made if it is not there, and the caller's to close.
    static HKEY ApplicationKey()
    {
        HKEY key = nullptr;
        ::RegCreateKeyExW(HKEY_CURRENT_USER, Path().c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key,
                          nullptr);
        return key;
    }

private:
    RegistrySettingsTree m_tree{&ApplicationKey};
};

class SettingsRegistry : public testing::Test
{
protected:
    RegistryHost m_host;
    SettingsTree & m_tree = m_host.Tree();
};
} // namespace

INSTANTIATE_TEST_SUITE_P(Registry, SettingsProtocol,
                         testing::Values([] { return std::unique_ptr<TreeHost>(std::make_unique<RegistryHost>()); }));

TEST_F(SettingsRegistry, WithoutAWayToTheApplicationsKeyNothingCanBeOpened)
{
    RegistrySettingsTree nowhere(nullptr);
    registry_entry_list list;
    EXPECT_FALSE(read_registry_tree(nowhere, list));
    list = {Begin(u"A"), End()};
    EXPECT_FALSE(write_registry_tree(nowhere, list));
    EXPECT_FALSE(delete_registry_tree(nowhere, u"A"));
    EXPECT_FALSE(registry_key_exists(nowhere, u""));
    nowhere.DeleteKey(u"A");
}

TEST_F(SettingsRegistry, ValuesAreTheRegistrysOwn)
{
    registry_entry_list list{Begin(u"A"), Value(u"number", type_dword, {0x78, 0x56, 0x34, 0x12}),
                             Value(u"text", type_sz, {'h', 0, 'i', 0, 0, 0}), End()};
    ASSERT_TRUE(write_registry_tree(m_tree, list));
    std::wstring const key = RegistryHost::Path() + L"\\A";
    DWORD number = 0;
    DWORD size = sizeof(number);
    ASSERT_EQ(::RegGetValueW(HKEY_CURRENT_USER, key.c_str(), L"number", RRF_RT_REG_DWORD, nullptr, &number, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(number, 0x12345678U);
    wchar_t text[8];
    size = sizeof(text);
    ASSERT_EQ(::RegGetValueW(HKEY_CURRENT_USER, key.c_str(), L"text", RRF_RT_REG_SZ, nullptr, text, &size),
              ERROR_SUCCESS);
    EXPECT_STREQ(text, L"hi");
}

TEST_F(SettingsRegistry, KeysOutliveTheSystemsRun)
{
    registry_entry_list list{Begin(u"A"), End()};
    ASSERT_TRUE(write_registry_tree(m_tree, list));
    // A key that lasts can't stand below one that doesn't.
    HKEY key = nullptr;
    std::wstring const path = RegistryHost::Path() + L"\\A\\Lasting";
    EXPECT_EQ(::RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ, nullptr,
                                &key, nullptr),
              ERROR_SUCCESS);
    ::RegCloseKey(key);
}

TEST_F(SettingsRegistry, AValueThatHasGrownSinceItWasDescribedIsNotRead)
{
    registry_entry_list list{Begin(u"A"), Value(u"v", type_binary, {}), End()};
    ASSERT_TRUE(write_registry_tree(m_tree, list));
    std::wstring const path = RegistryHost::Path() + L"\\A";
    SettingsTree::key_t const key = m_tree.Open(u"A", SettingsTree::access_t::read);
    for (DWORD const size : {4U, 8U})
    {
        registry_entry entry;
        ASSERT_TRUE(m_tree.DescribeValue(key, 0, entry));
        EXPECT_EQ(entry.name, u"v");
        EXPECT_EQ(entry.value_type, type_binary);
        EXPECT_EQ(entry.data.size(), size - 4);
        ::RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), L"v", REG_BINARY, "12345678", size);
        EXPECT_FALSE(m_tree.ReadValue(key, 0, entry)) << size;
    }
    registry_entry entry;
    ASSERT_TRUE(m_tree.DescribeValue(key, 0, entry));
    ::RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), L"v", REG_BINARY, "12", 2);
    EXPECT_TRUE(m_tree.ReadValue(key, 0, entry));
    EXPECT_EQ(entry.data, (Bytes{'1', '2'}));
    m_tree.Close(key);
}

TEST_F(SettingsRegistry, AValueOfTheRootIsRefusedByTheSystem)
{
    SettingsTree::key_t const root = m_tree.Open({}, SettingsTree::access_t::read);
    ASSERT_NE(root, 0U);
    EXPECT_EQ(::RegSetValueExW(reinterpret_cast<HKEY>(root), L"a", 0, REG_SZ, nullptr, 0), ERROR_ACCESS_DENIED);
    EXPECT_FALSE(m_tree.SetValue(root, Value(u"a", type_sz, {})));
    m_tree.Close(root);
    registry_entry_list list{Value(u"a", type_sz, {}), Begin(u"A"), End()};
    EXPECT_FALSE(write_registry_tree(m_tree, list));
    EXPECT_EQ(list.size(), 3U) << "the record stays in the list";
}

TEST_F(SettingsRegistry, NothingCanBeDoneWithoutAnApplicationKey)
{
    RegistrySettingsTree none([] { return static_cast<HKEY>(nullptr); });
    registry_entry_list list{Begin(u"A"), End()};
    EXPECT_FALSE(read_registry_tree(none, list));
    EXPECT_TRUE(list.empty());
    EXPECT_FALSE(write_registry_tree(none, list));
    EXPECT_FALSE(delete_registry_tree(none, u"A"));
    EXPECT_FALSE(registry_key_exists(none, u""));
}

TEST_F(SettingsRegistry, TheRootItselfIsDeletedAndMadeAnew)
{
    HKEY const former = RegistryHost::ApplicationKey();
    ASSERT_TRUE(delete_registry_tree(m_tree, u""));
    EXPECT_NE(::RegQueryInfoKeyW(former, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                 nullptr, nullptr, nullptr),
              ERROR_SUCCESS)
        << "the key that was there is gone";
    ::RegCloseKey(former);
    EXPECT_TRUE(registry_key_exists(m_tree, u""));
}

TEST_F(SettingsRegistry, AFileNestedTooDeepForTheRegistryEndsTheImport)
{
    // Windows allows 512 levels.
    registry_entry_list list(600, Begin(u"A"));
    bool const done = write_registry_tree(m_tree, list);
    EXPECT_EQ(done, list.empty());
    EXPECT_TRUE(delete_registry_tree(m_tree, u""));
}
} // namespace settings_tests
