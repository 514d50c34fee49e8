#include <gtest/gtest.h>

#include <climits>

#include "MemoryPreferenceStore.h"

TEST(SuiteMemoryStore, GivesTheFallbackForWhatIsMissing)
{
    MemoryPreferenceStore store;
    EXPECT_EQ(store.LookupGetInt(L"Key", 0, 7), 7);
    EXPECT_TRUE(store.LookupGetBool(L"Key", 0, true));
    EXPECT_FALSE(store.LookupGetBool(L"Key", 0, false));
    EXPECT_EQ(store.LookupSetInt(L"Key", 1, 1), lookup::success);
    EXPECT_EQ(store.LookupGetInt(L"Key", 0, 7), 7);
    EXPECT_EQ(store.CreateEntry(L"Key", 0)->GetIntFb(2, 9), 9);
}

TEST(SuiteMemoryStore, KeepsKeysAndIndicesApart)
{
    MemoryPreferenceStore store;
    for (wchar_t const * const key : {L"Key", L"key", L"Key@0", L"", L"K\u00C4", L"K\u00E4"})
    {
        for (std::size_t index = 0; index < 3; ++index)
            EXPECT_EQ(store.LookupSetInt(key, key[0] * 100 + static_cast<int>(index), index), lookup::success);
    }
    EXPECT_EQ(store.LookupGetInt(L"Key", 2, 0), L'K' * 100 + 2);
    EXPECT_EQ(store.LookupGetInt(L"key", 2, 0), L'k' * 100 + 2);
    EXPECT_EQ(store.LookupGetInt(L"", 1, 0), 1);
    EXPECT_EQ(store.LookupSetInt(L"Key", INT_MIN, 2), lookup::success);
    EXPECT_EQ(store.LookupGetInt(L"Key", 2, 0), INT_MIN);
    EXPECT_EQ(store.LookupGetInt(L"Key", 1, 0), L'K' * 100 + 1);
}

TEST(SuiteMemoryStore, KeepsBooleans)
{
    MemoryPreferenceStore store;
    EXPECT_EQ(store.LookupSetBool(L"Key", true, 0), lookup::success);
    EXPECT_TRUE(store.LookupGetBool(L"Key", 0, false));
    EXPECT_EQ(store.LookupSetBool(L"Key", false, 0), lookup::success);
    EXPECT_FALSE(store.LookupGetBool(L"Key", 0, true));
    store.LookupSetInt(L"Key", 5, 0);
    EXPECT_TRUE(store.LookupGetBool(L"Key", 0, false));
}

TEST(SuiteMemoryStore, AnEntryIsTheKeysOwn)
{
    MemoryPreferenceStore store;
    CVeskEntry * const entry = store.CreateEntry(L"Key", 0);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(store.CreateEntry(L"Key", 0), entry);
    EXPECT_NE(store.CreateEntry(L"Other", 0), entry);
    entry->SetInt(5, 3);
    EXPECT_EQ(store.LookupGetInt(L"Key", 3, 0), 5);
    store.LookupSetInt(L"Key", 6, 3);
    EXPECT_EQ(entry->GetIntFb(3, 0), 6);
}

TEST(SuiteMemoryStore, DeleteRemovesAllIndicesAndTellsOfAMissingKey)
{
    MemoryPreferenceStore store;
    CVeskEntry * const entry = store.CreateEntry(L"Key", 0);
    EXPECT_EQ(store.Delete(L"Key"), 0) << "no value yet";
    for (std::size_t index : {0, 1, 77})
        entry->SetInt(1, index);
    store.LookupSetInt(L"key", 2, 0);
    EXPECT_NE(store.Delete(L"Key"), 0);
    for (std::size_t index : {0, 1, 77})
        EXPECT_EQ(store.LookupGetInt(L"Key", index, -1), -1);
    EXPECT_EQ(store.LookupGetInt(L"key", 0, -1), 2);
    EXPECT_EQ(store.Delete(L"Key"), 0);
    EXPECT_EQ(store.Delete(L"Unknown"), 0);
    entry->SetInt(4, 0);
    EXPECT_EQ(store.LookupGetInt(L"Key", 0, -1), 4) << "the entry stays usable";
}

TEST(SuiteMemoryStore, ANullKeyIsRefused)
{
    MemoryPreferenceStore store;
    EXPECT_EQ(store.CreateEntry(nullptr, 0), nullptr);
    EXPECT_EQ(store.LookupSetInt(nullptr, 1, 0), lookup::bad_key);
    EXPECT_EQ(store.LookupSetBool(nullptr, true, 0), lookup::bad_key);
    EXPECT_EQ(store.LookupGetInt(nullptr, 0, 3), 3);
    EXPECT_TRUE(store.LookupGetBool(nullptr, 0, true));
    EXPECT_EQ(store.Delete(nullptr), 0);
}

TEST(SuiteMemoryStore, TheProcessesStoreIsTheOneSet)
{
    EXPECT_EQ(CVeskBase::PreferenceVesk(), nullptr);
    MemoryPreferenceStore store;
    CVeskBase::SetPreferenceVesk(&store);
    EXPECT_EQ(CVeskBase::PreferenceVesk(), &store);
    CVeskBase::SetPreferenceVesk(nullptr);
    EXPECT_EQ(CVeskBase::PreferenceVesk(), nullptr);
}
