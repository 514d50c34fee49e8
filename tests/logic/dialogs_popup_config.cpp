// The description of popup menus.

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "dialogs/PopupConfig.h"

namespace
{
std::vector<int> IdsOf(CPopupConfig const & config)
{
    std::vector<int> ids;
    for (CPopupConfigEntry const & entry : config)
        ids.push_back(entry.ID());
    return ids;
}

CPopupConfig ThreeEntries()
{
    CPopupConfig config;
    config.Add(L"First", [] {});
    config.AddSeparator();
    config.Add(CPopupConfigEntry(L"Greyed", {}));
    return config;
}
} // namespace

TEST(PopupConfig, AnEntryKeepsWhatItWasGiven)
{
    int calls = 0;
    CPopupConfigEntry const entry(L"Print", [&calls] { ++calls; });
    EXPECT_TRUE(entry.Text() == L"Print");
    EXPECT_EQ(entry.ID(), -1);
    ASSERT_TRUE(static_cast<bool>(entry.Callback()));
    entry.Callback()();
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(static_cast<bool>(CPopupConfigEntry(L"Greyed", {}).Callback()));
}

TEST(PopupConfig, EntriesAreCopiedAndMoved)
{
    int calls = 0;
    CPopupConfigEntry entry(L"Print", [&calls] { ++calls; });
    CPopupConfigEntry copy(entry);
    copy.Callback()();
    CPopupConfigEntry const moved(std::move(copy));
    EXPECT_TRUE(moved.Text() == L"Print");
    moved.Callback()();
    CPopupConfigEntry assigned(L"", {});
    assigned = entry;
    assigned.Callback()();
    EXPECT_EQ(calls, 3);
    assigned = CPopupConfigEntry(L"Other", {});
    EXPECT_TRUE(assigned.Text() == L"Other");
    EXPECT_TRUE(entry.Text() == L"Print");
}

TEST(PopupConfig, TheOrderIsThatOfAdding)
{
    CPopupConfig const config = ThreeEntries();
    EXPECT_EQ(config.size(), 3u);
    EXPECT_FALSE(config.empty());
    EXPECT_TRUE(CPopupConfig().empty());
    std::vector<bool> separators;
    std::vector<bool> callbacks;
    for (CPopupConfigEntry const & entry : config)
    {
        separators.push_back(entry.Text().IsEmpty());
        callbacks.push_back(static_cast<bool>(entry.Callback()));
    }
    EXPECT_EQ(separators, (std::vector<bool>{false, true, false}));
    EXPECT_EQ(callbacks, (std::vector<bool>{true, false, false}));
}

TEST(PopupConfig, NumbersFollowTheLastIdAndCountSeparators)
{
    CPopupConfig config = ThreeEntries();
    EXPECT_EQ(IdsOf(config), (std::vector<int>{-1, -1, -1}));
    config.NumberAfter(1016);
    EXPECT_EQ(IdsOf(config), (std::vector<int>{1017, 1018, 1019}));
    config.NumberAfter(0);
    EXPECT_EQ(IdsOf(config), (std::vector<int>{1, 2, 3}));
}

TEST(PopupConfig, NumbersWrapAroundBehindTheLargestId)
{
    CPopupConfig config = ThreeEntries();
    config.NumberAfter(std::numeric_limits<int>::max());
    EXPECT_EQ(config.begin()->ID(), std::numeric_limits<int>::min());
}

TEST(PopupConfig, NumberingACopyLeavesTheOriginal)
{
    CPopupConfig const config = ThreeEntries();
    CPopupConfig copy(config);
    copy.NumberAfter(5);
    EXPECT_EQ(IdsOf(config), (std::vector<int>{-1, -1, -1}));
    EXPECT_EQ(IdsOf(copy), (std::vector<int>{6, 7, 8}));
}

TEST(PopupConfig, FindComparesTheLowSixteenBits)
{
    CPopupConfig config = ThreeEntries();
    config.NumberAfter(1016);
    ASSERT_NE(config.Find(1017), nullptr);
    EXPECT_TRUE(config.Find(1017)->Text() == L"First");
    EXPECT_EQ(config.Find(1019)->ID(), 1019);
    EXPECT_EQ(config.Find(1020), nullptr);
    EXPECT_EQ(config.Find(1016), nullptr);
    EXPECT_EQ(config.Find(1017 + 0x10000), config.Find(1017));

    config.NumberAfter(65535); // the last id of an old dialog template's static text
    EXPECT_EQ(config.begin()->ID(), 65536);
    EXPECT_EQ(config.Find(0), &*config.begin());
    EXPECT_EQ(config.Find(65536), &*config.begin());
}

TEST(PopupConfig, FindGivesTheFirstOfEqualIds)
{
    CPopupConfig config;
    config.Add(L"First", {});
    config.Add(L"Second", {});
    EXPECT_EQ(config.Find(0xFFFF), &*config.begin()) << "not numbered yet: all are -1";
    EXPECT_EQ(CPopupConfig().Find(0), nullptr);
}
