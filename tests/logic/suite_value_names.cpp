#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <set>

#include "PreferenceValueNames.h"

namespace
{
using preference_value_names::KeyAndIndex;
using preference_value_names::max_length;
using preference_value_names::ParseValueName;
using preference_value_names::ValueName;

/// As the registry compares names, for the characters that may stand in one.
std::u16string Folded(std::u16string name)
{
    for (char16_t & unit : name)
    {
        if ((unit >= u'a' && unit <= u'z') || (unit >= 0xE0 && unit <= 0xFE && unit != 0xF7))
            unit = static_cast<char16_t>(unit - 0x20);
    }
    return name;
}

void ExpectThereAndBack(std::u16string const & key, std::uint64_t index)
{
    std::optional<std::u16string> const name = ValueName(key, index);
    ASSERT_TRUE(name.has_value());
    std::optional<KeyAndIndex> const parsed = ParseValueName(*name);
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(parsed->key, key);
    EXPECT_EQ(parsed->index, index);
}
} // namespace

TEST(SuiteValueNames, OrdinaryKeysStayReadable)
{
    EXPECT_EQ(ValueName(u"level-meter_1", 0), u"level-meter_1@0");
    EXPECT_EQ(ValueName(u"Scope_1-IstOffen", 0), u"Scope_1-IstOffen@0~848");
    EXPECT_EQ(ValueName(u"Scope_1-Fensterpos", 3), u"Scope_1-Fensterpos@3~84");
    EXPECT_EQ(ValueName(u"\u00DCbersicht-Gestalt", 12), u"\u00DCbersicht-Gestalt@12~804");
    EXPECT_EQ(ValueName(u"espa\u00F1a", 1), u"espa\u00F1a@1");
    EXPECT_EQ(ValueName(u"", 0), u"@0");
}

TEST(SuiteValueNames, EscapesWhatARegistryEditorCannotShow)
{
    EXPECT_EQ(ValueName(u"a\nb\x7F", 0), u"a%000ab%007f@0");
    EXPECT_EQ(ValueName(u"50%", 0), u"50%0025@0");
    EXPECT_EQ(ValueName(std::u16string_view(u"a\0b", 3), 0), u"a%0000b@0");
    EXPECT_EQ(ValueName(u"\u03A9\u20AC", 0), u"%03a9%20ac@0");
    EXPECT_EQ(ValueName(u"\u00A0\u00AD\u0085", 0), u"%00a0%00ad%0085@0");
    EXPECT_EQ(ValueName(u"\U0001F600", 0), u"%d83d%de00@0");
}

TEST(SuiteValueNames, KeysComeBack)
{
    for (std::u16string const & key :
         {std::u16string(u""), std::u16string(u"a"), std::u16string(u"Main Window: 1"), std::u16string(u"a\\b\\c"),
          std::u16string(u"a@b"), std::u16string(u"@"), std::u16string(u"a@1~8"), std::u16string(u"~"),
          std::u16string(u"%"), std::u16string(u"%0041"), std::u16string(u"\r\n\t"), std::u16string(u" x "),
          std::u16string(u"\u00C4\u00E4\u00D7\u00F7\u00DF\u00B5\u00FF"), std::u16string(u"\u0178\u0130\u0131\u017F"),
          std::u16string(u"\U0001F600"), std::u16string(1, char16_t(0xD800)), std::u16string(1, char16_t(0xDFFF)),
          std::u16string(u"\uFFFF"), std::u16string(3, u'\0')})
    {
        for (std::uint64_t const index :
             {std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{10}, std::numeric_limits<std::uint64_t>::max()})
            ExpectThereAndBack(key, index);
    }
}

TEST(SuiteValueNames, EveryCharacterComesBackAndIsDistinct)
{
    std::set<std::u16string> names;
    for (unsigned int unit = 0; unit <= 0xFFFF; ++unit)
    {
        std::u16string const key(1, static_cast<char16_t>(unit));
        ExpectThereAndBack(key, 0);
        EXPECT_TRUE(names.insert(Folded(*ValueName(key, 0))).second) << unit;
    }
}

TEST(SuiteValueNames, AllCaseVariantsOfAKeyAreDistinctForTheRegistry)
{
    std::u16string const lower = u"ab-\u00FCcd_ef"; // seven letters and two that have no case
    std::set<std::u16string> names;
    for (unsigned int variant = 0; variant < 128; ++variant)
    {
        std::u16string key = lower;
        unsigned int letter = 0;
        for (char16_t & unit : key)
        {
            if (unit == u'-' || unit == u'_')
                continue;
            if ((variant >> letter++ & 1) != 0)
                unit = static_cast<char16_t>(unit - 0x20);
        }
        for (std::uint64_t const index : {0, 1, 8})
        {
            ExpectThereAndBack(key, index);
            EXPECT_TRUE(names.insert(Folded(*ValueName(key, index))).second);
        }
    }
    EXPECT_EQ(names.size(), 384U);
}

TEST(SuiteValueNames, KeysThatLookLikeNamesAreDistinct)
{
    std::set<std::u16string> names;
    std::size_t count = 0;
    for (char16_t const * const key : {u"a", u"a@1", u"a@1@1", u"A", u"a~8", u"a@1~8", u"A@1~8", u"a%", u"a%0025", u""})
    {
        for (std::uint64_t const index : {1, 8, 18})
        {
            names.insert(Folded(*ValueName(key, index)));
            ++count;
        }
    }
    EXPECT_EQ(names.size(), count);
}

TEST(SuiteValueNames, ANameIsReadInAnyCase)
{
    KeyAndIndex const expected{u"Scope_1-IstOffen", 0};
    EXPECT_EQ(ParseValueName(u"Scope_1-IstOffen@0~848"), expected);
    EXPECT_EQ(ParseValueName(u"scope_1-istoffen@0~848"), expected);
    EXPECT_EQ(ParseValueName(u"SCOPE_1-ISTOFFEN@0~848"), expected);
    EXPECT_EQ(ParseValueName(u"SCOPE@0"), (KeyAndIndex{u"scope", 0}));
    EXPECT_EQ(ParseValueName(u"abcd@0~F"), (KeyAndIndex{u"ABCD", 0}));
}

TEST(SuiteValueNames, OtherTextIsNoName)
{
    for (char16_t const * const text : {u"",
                                        u"a",
                                        u"a@",
                                        u"a@x",
                                        u"a@-1",
                                        u"a@+1",
                                        u"a@ 1",
                                        u"a@1 ",
                                        u"a@01",
                                        u"a@00",
                                        u"a@18446744073709551616",
                                        u"a@99999999999999999999",
                                        u"a@1~",
                                        u"a@1~0",
                                        u"a@1~80",
                                        u"a@1~g",
                                        u"a@1~4",
                                        u"a@1~8~8",
                                        u"a@1~08",
                                        u"1@1~8",
                                        u"%@0",
                                        u"%00@0",
                                        u"%00g0@0",
                                        u"%0041@0",
                                        u"a\n@0",
                                        u"\u03A9@0",
                                        u"a@\uFF11",
                                        u"\u00A0@0",
                                        u"(Default)"})
    {
        EXPECT_FALSE(ParseValueName(text).has_value())
            << std::string(text, text + std::char_traits<char16_t>::length(text));
    }
}

TEST(SuiteValueNames, NamesBeyondTheRegistrysLimitAreRefused)
{
    EXPECT_EQ(max_length, 16383U);
    EXPECT_EQ(ValueName(std::u16string(16381, u'a'), 0)->size(), 16383U);
    ExpectThereAndBack(std::u16string(16381, u'a'), 9);
    EXPECT_FALSE(ValueName(std::u16string(16381, u'a'), 10).has_value());
    EXPECT_FALSE(ValueName(std::u16string(16382, u'a'), 0).has_value());
    EXPECT_FALSE(ValueName(std::u16string(1000000, u'a'), 0).has_value());
    EXPECT_TRUE(ValueName(std::u16string(3276, u'\n'), 0).has_value()) << "five for each, and two";
    EXPECT_FALSE(ValueName(std::u16string(3277, u'\n'), 0).has_value());
    EXPECT_TRUE(ValueName(std::u16string(13104, u'A'), 0).has_value()) << "a digit for each four, and three";
    EXPECT_FALSE(ValueName(std::u16string(13105, u'A'), 0).has_value());
    EXPECT_FALSE(ParseValueName(std::u16string(16382, u'a') + u"@0").has_value());
}

TEST(SuiteValueNames, RandomTextNeverGivesTwoNamesOneMeaning)
{
    std::mt19937 random(7);
    std::u16string const alphabet = u"aAbB@~%0128f\u00E4\u00C4 ";
    std::uniform_int_distribution<std::size_t> letter(0, alphabet.size() - 1);
    std::uniform_int_distribution<int> length(0, 12);
    int understood = 0;
    for (int round = 0; round < 200000; ++round)
    {
        std::u16string text;
        for (int left = length(random); left > 0; --left)
            text.push_back(alphabet[letter(random)]);
        ExpectThereAndBack(text, static_cast<std::uint64_t>(round));
        if (std::optional<KeyAndIndex> const parsed = ParseValueName(text))
        {
            ++understood;
            EXPECT_EQ(Folded(*ValueName(parsed->key, parsed->index)), Folded(text));
        }
    }
    EXPECT_GT(understood, 1000);
}
