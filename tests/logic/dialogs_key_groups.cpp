// The groups of keys that a window leaves to others.

#include <gtest/gtest.h>

#include <array>
#include <set>

#include "dialogs/KeyGroups.h"

namespace
{
using Keys = std::set<unsigned int>;

/// The keys of each bit, written out.
struct Group
{
    unsigned int bit;
    Keys keys;
};

std::array<Group, 6> const & Groups()
{
    static std::array<Group, 6> const groups = {{
        {1, {0x71, 0x72, 0x73, 0x74, 0x75, 0x76, 0x77, 0x78, 0x79, 0x7A, 0x7B}},
        {2, {0x30, 0x31, 0x32, 0x33, 0x34, 0x35, 0x36, 0x37, 0x38, 0x39,
             0x60, 0x61, 0x62, 0x63, 0x64, 0x65, 0x66, 0x67, 0x68, 0x69}},
        {4, {0x41, 0x42, 0x43, 0x44, 0x45, 0x46, 0x47, 0x48, 0x49, 0x4A, 0x4B, 0x4C, 0x4D,
             0x4E, 0x4F, 0x50, 0x51, 0x52, 0x53, 0x54, 0x55, 0x56, 0x57, 0x58, 0x59, 0x5A}},
        {8, {0x2E, 0x08, 0x09, 0x0D, 0x10, 0x11, 0x20, 0x14}},
        {16, {0x25, 0x26, 0x27, 0x28, 0x0C, 0x21, 0x22, 0x23, 0x24}},
        {32, {0x20}},
    }};
    return groups;
}

constexpr unsigned int last_key = 0x2FF; // beyond the byte that a key code takes
} // namespace

TEST(KeyGroups, EveryMaskAndEveryKey)
{
    for (unsigned int mask = 0; mask < 512; ++mask)
    {
        for (unsigned int key = 0; key <= last_key; ++key)
        {
            bool expected = mask == 255;
            for (Group const & group : Groups())
                expected = expected || ((mask & group.bit) != 0 && group.keys.contains(key));
            ASSERT_EQ(KeyGroups::LeavesToOthers(mask, key), expected) << "mask " << mask << ", key " << key;
        }
    }
}

TEST(KeyGroups, F1IsInNoGroup)
{
    EXPECT_FALSE(KeyGroups::LeavesToOthers(63, 0x70));
    EXPECT_TRUE(KeyGroups::LeavesToOthers(63, 0x71));
    EXPECT_TRUE(KeyGroups::LeavesToOthers(255, 0x70));
}

TEST(KeyGroups, OnlyTheWholeMask255MeansEveryKey)
{
    unsigned int const escape = 0x1B;
    EXPECT_TRUE(KeyGroups::LeavesToOthers(255, escape));
    EXPECT_FALSE(KeyGroups::LeavesToOthers(63, escape));
    EXPECT_FALSE(KeyGroups::LeavesToOthers(254, escape));
    EXPECT_FALSE(KeyGroups::LeavesToOthers(0xFFFFFFFFu, escape));
    EXPECT_FALSE(KeyGroups::LeavesToOthers(0x1FF, escape));
}

TEST(KeyGroups, TheNamedMasks)
{
    EXPECT_EQ(KeyGroups::function_keys, 1u);
    EXPECT_EQ(KeyGroups::normal_keys, 23u);
    EXPECT_EQ(KeyGroups::function_keys | KeyGroups::space, 33u);
    EXPECT_EQ(KeyGroups::every_key, 255u);
    EXPECT_EQ(KeyGroups::digits | KeyGroups::letters | KeyGroups::editing | KeyGroups::navigation, 30u);
}

TEST(KeyGroups, SpaceIsInTwoGroups)
{
    EXPECT_TRUE(KeyGroups::LeavesToOthers(8, 0x20));
    EXPECT_TRUE(KeyGroups::LeavesToOthers(32, 0x20));
    EXPECT_FALSE(KeyGroups::LeavesToOthers(23, 0x20));
    EXPECT_FALSE(KeyGroups::LeavesToOthers(32, 0x0D));
}
