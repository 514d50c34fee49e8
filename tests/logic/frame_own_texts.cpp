// The module's texts that are not in its string table.

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "access/AccessibleControls.h"
#include "frame/OwnTexts.h"
#include "substitutes/SpokenLanguage.h"

namespace
{
constexpr unsigned short english = 0x0409;
constexpr unsigned short german = 0x0407;
constexpr unsigned short austrian = 0x0C07;
constexpr unsigned short spanish = 0x0C0A;
constexpr unsigned short french = 0x040C;
} // namespace

TEST(OwnTexts, AreThereInEachLanguage)
{
    for (unsigned short const language : {english, german, spanish})
    {
        std::set<std::wstring> all;
        for (int i = 0; i < own_texts; ++i)
        {
            std::wstring const text = OwnTextIn(static_cast<OwnText>(i), language);
            EXPECT_FALSE(text.empty()) << i;
            EXPECT_TRUE(all.insert(text).second) << "two texts are the same: " << i;
        }
    }
    for (int i = 0; i < own_texts; ++i)
    {
        auto const text = static_cast<OwnText>(i);
        EXPECT_STRNE(OwnTextIn(text, german), OwnTextIn(text, english)) << i;
        EXPECT_STRNE(OwnTextIn(text, spanish), OwnTextIn(text, english)) << i;
        EXPECT_STREQ(OwnTextIn(text, austrian), OwnTextIn(text, german)) << "whatever the country";
        EXPECT_STREQ(OwnTextIn(text, french), OwnTextIn(text, english)) << "where there is none";
    }
}

TEST(OwnTexts, ActionsAreSpokenInTheLanguageInForce)
{
    substitutes::s_language = german;
    std::wstring const action = accessible::DescribeButton({}, false).action;
    std::wstring const order = accessible::DescribeColumn({}, accessible::HeaderMark::descending, true).value;
    substitutes::s_language = english;
    EXPECT_EQ(action, OwnTextIn(OwnText::press, german));
    EXPECT_EQ(order, OwnTextIn(OwnText::descending, german));
    EXPECT_EQ(accessible::DescribeButton({}, false).action, L"Press");
}
