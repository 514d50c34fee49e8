// The languages that the language chooser offers, and its decisions.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialogs/DisplayLanguages.h"

TEST(ChooserLanguages, StandInTheirOrderAndTheirOwnScripts)
{
    struct Row
    {
        std::wstring name;
        unsigned int id;
    };
    std::vector<Row> const expected = {
        {L"(Windows)", 1024},
        {L"Deutsch", 1031},
        {L"English", 1033},
        {L"\u4E2D\u6587 (Chinese)", 2052},
        {L"\u010Cesk\u00FD (Czech)", 1029},
        {L"Espa\u00F1ol", 3082},
        {L"Fran\u00E7ais", 1036},
        {L"Magyarul (Hungarian)", 1038},
        {L"Italiano", 1040},
        {L"\u65E5\u672C\u8A9E (Japanese)", 1041},
        {L"\uD55C\uAE00 (Korean)", 1042},
        {L"Portugu\u00EAs", 2070},
        {L"Polski", 1045},
        {L"\u0420\u0443\u0441\u0441\u043A\u0438\u0439 (Russian)", 1049},
    };
    ASSERT_EQ(DisplayLanguages().size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i)
    {
        EXPECT_EQ(DisplayLanguages()[i].name, expected[i].name) << i;
        EXPECT_EQ(DisplayLanguages()[i].id, expected[i].id) << i;
    }
}

TEST(ChooserLanguages, PositionIsThatOfTheLastItemOfTheLanguage)
{
    std::vector<std::uintptr_t> const data = {1031, 1033, 1031, 1040};
    EXPECT_EQ(PositionOfLanguage(data, 1031), 2);
    EXPECT_EQ(PositionOfLanguage(data, 1033), 1);
    EXPECT_EQ(PositionOfLanguage(data, 1040), 3);
}

TEST(ChooserLanguages, UnknownLanguageHasNoPosition)
{
    std::vector<std::uintptr_t> const data = {1031, 1033};
    EXPECT_EQ(PositionOfLanguage(data, 1034), -1);
    EXPECT_EQ(PositionOfLanguage({}, 1031), -1);
}

TEST(ChooserLanguages, DataBeyondSixteenBitsEqualsNoLanguage)
{
    std::vector<std::uintptr_t> const data = {0x10000 + 1031};
    EXPECT_EQ(PositionOfLanguage(data, 1031), -1);
}

TEST(ChooserLanguages, ChoiceTellsWhetherTheLanguageChanges)
{
    LanguageChoice const same = ChooseLanguage(1033, 1033);
    EXPECT_EQ(same.id, 1033);
    EXPECT_FALSE(same.changed);
    LanguageChoice const other = ChooseLanguage(1033, 1024);
    EXPECT_EQ(other.id, 1024);
    EXPECT_TRUE(other.changed);
}

TEST(ChooserLanguages, ChoiceTakesTheLowSixteenBits)
{
    LanguageChoice const choice = ChooseLanguage(1033, 0x10000 + 1033);
    EXPECT_EQ(choice.id, 1033);
    EXPECT_FALSE(choice.changed);
}
