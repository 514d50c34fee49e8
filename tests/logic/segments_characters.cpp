// Which character lights which segments of which kind of cell.

#include <algorithm>
#include <map>
#include <tuple>
#include <type_traits>
#include <typeinfo>

#include "segments_Support.h"

namespace
{
using namespace segments;
using DigiStatic::CDigi14Segment;
using DigiStatic::CDigi7Segment;
using DigiStatic::CDigiColonDotChar;

constexpr unsigned int crossed_box = 0x241E;
constexpr wchar_t degree = 0xB0;
constexpr wchar_t squared = 0xB2;
constexpr wchar_t micro = 0xB5;

/// The segments that are lit, in ascending order.
using Lit = std::vector<int>;

Lit LitOf(CDigiChar const & character)
{
    Lit lit;
    for (int bit = 0; bit < 16; ++bit)
    {
        if ((character.mask & 1u << bit) != 0)
            lit.push_back(bit);
    }
    return lit;
}

std::map<wchar_t, Lit> const seven = {
    {L' ', {}},
    {L'0', {0, 1, 2, 4, 5, 6}},
    {L'1', {2, 5}},
    {L'2', {0, 2, 3, 4, 6}},
    {L'3', {0, 2, 3, 5, 6}},
    {L'4', {1, 2, 3, 5}},
    {L'5', {0, 1, 3, 5, 6}},
    {L'6', {0, 1, 3, 4, 5, 6}},
    {L'7', {0, 2, 5}},
    {L'8', {0, 1, 2, 3, 4, 5, 6}},
    {L'9', {0, 1, 2, 3, 5, 6}},
    {L'-', {3}},
    {L'_', {3}},
    {degree, {0, 1, 6, 7}},
};

std::map<wchar_t, Lit> const fourteen_when_always = {
    {L' ', {}},
    {L'0', {8, 9, 10, 11, 12, 13}},
    {L'1', {11, 12}},
    {L'2', {6, 7, 9, 10, 12, 13}},
    {L'3', {6, 7, 10, 11, 12, 13}},
    {L'4', {6, 7, 8, 11, 12}},
    {L'5', {6, 7, 8, 10, 11, 13}},
    {L'6', {6, 7, 8, 9, 10, 11, 13}},
    {L'7', {11, 12, 13}},
    {L'8', {6, 7, 8, 9, 10, 11, 12, 13}},
    {L'9', {6, 7, 8, 10, 11, 12, 13}},
    {L'-', {6, 7}},
    {L'_', {10}},
    {degree, {6, 7, 8, 12, 13}},
};

std::map<wchar_t, Lit> const letters = {
    {L'A', {6, 7, 8, 9, 11, 12, 13}},
    {L'B', {0, 5, 7, 10, 11, 12, 13}},
    {L'C', {8, 9, 10, 13}},
    {L'D', {0, 5, 10, 11, 12, 13}},
    {L'E', {6, 7, 8, 9, 10, 13}},
    {L'F', {6, 7, 8, 9, 13}},
    {L'G', {7, 8, 9, 10, 11, 13}},
    {L'H', {6, 7, 8, 9, 11, 12}},
    {L'I', {0, 5, 10, 13}},
    {L'J', {9, 10, 11, 12}},
    {L'K', {2, 4, 6, 8, 9}},
    {L'L', {8, 9, 10}},
    {L'M', {1, 2, 8, 9, 11, 12}},
    {L'N', {1, 4, 8, 9, 11, 12}},
    {L'O', {8, 9, 10, 11, 12, 13}},
    {L'P', {6, 7, 8, 9, 12, 13}},
    {L'Q', {4, 8, 9, 10, 11, 12, 13}},
    {L'R', {4, 6, 7, 8, 9, 12, 13}},
    {L'S', {6, 7, 8, 10, 11, 13}},
    {L'T', {0, 5, 13}},
    {L'U', {8, 9, 10, 11, 12}},
    {L'V', {2, 3, 8, 9}},
    {L'W', {3, 4, 8, 9, 11, 12}},
    {L'X', {1, 2, 3, 4}},
    {L'Y', {5, 6, 7, 8, 12}},
    {L'Z', {2, 3, 10, 13}},
};

std::map<wchar_t, Lit> const fourteen_signs = {
    {L'*', {0, 1, 2, 3, 4, 5, 6, 7}},
    {L'+', {0, 5, 6, 7}},
    {L'(', {2, 4}},
    {L')', {1, 3}},
    {L'\\', {1, 4}},
    {L'/', {2, 3}},
    {L'\'', {0}},
    {squared, {2, 6, 7, 13}},
    {L'%', {1, 2, 3, 4, 8, 11}},
    {micro, {0, 3, 7, 12}},
};

std::map<wchar_t, Lit> const narrow = {{L'.', {2}}, {L':', {0, 1}}};

template <class Character> void ExpectAll(std::map<wchar_t, Lit> const & expected, unsigned long style)
{
    for (auto const & [code, lit] : expected)
    {
        CDigiCharOwner const character = Make(code, style);
        EXPECT_EQ(LitOf(*character), lit) << static_cast<unsigned int>(code) << " in style " << style;
        CDigiChar const & object = *character;
        EXPECT_EQ(typeid(object), typeid(Character)) << static_cast<unsigned int>(code) << " in style " << style;
    }
}

bool HasEntry(wchar_t code)
{
    return seven.contains(code) || letters.contains(code) || fourteen_signs.contains(code) || narrow.contains(code) ||
           (code >= L'a' && code <= L'z');
}

TEST(SegmentCharacters, DigitsAndTheirSignsLightSevenSegments)
{
    ExpectAll<CDigi7Segment>(seven, 0);
    ExpectAll<CDigi7Segment>(seven, ~DigiStyleAlways14);
}

TEST(SegmentCharacters, DigitsAndTheirSignsLightFourteenSegmentsOnRequest)
{
    ExpectAll<CDigi14Segment>(fourteen_when_always, DigiStyleAlways14);
    ExpectAll<CDigi14Segment>(fourteen_when_always, ~0ul);
}

TEST(SegmentCharacters, LettersLightFourteenSegmentsInAnyStyle)
{
    for (unsigned long const style : {0ul, DigiStyleRounded, DigiStyleAlways14, DigiStyleHideOff})
    {
        ExpectAll<CDigi14Segment>(letters, style);
        ExpectAll<CDigi14Segment>(fourteen_signs, style);
    }
}

TEST(SegmentCharacters, ColonAndDotHaveACellOfTheirOwn)
{
    for (unsigned long const style : {0ul, DigiStyleRounded, DigiStyleAlways14, DigiStyleHideOff})
        ExpectAll<CDigiColonDotChar>(narrow, style);
}

TEST(SegmentCharacters, LowerCaseLettersAreTheUpperCaseOnes)
{
    for (wchar_t code = L'a'; code <= L'z'; ++code)
    {
        CDigiCharOwner const lower = Make(code);
        CDigiCharOwner const upper = Make(static_cast<wchar_t>(code - 32));
        EXPECT_EQ(lower->mask, upper->mask) << static_cast<char>(code);
        EXPECT_EQ(lower->GetWidth(), upper->GetWidth());
        EXPECT_EQ(lower->segmentCount, upper->segmentCount);
        EXPECT_EQ(Trace(*lower, {0, 0, 49, 83}), Trace(*upper, {0, 0, 49, 83}));
    }
}

TEST(SegmentCharacters, UmlautsAreCrossedBoxes)
{
    for (wchar_t const code : {wchar_t{0xE4}, wchar_t{0xC4}, wchar_t{0xF6}, wchar_t{0xDF}})
        EXPECT_EQ(Make(code)->mask, crossed_box);
    EXPECT_EQ(LitOf(*Make(wchar_t{0xE4})), (Lit{1, 2, 3, 4, 10, 13}));
}

TEST(SegmentCharacters, AllCodesWithoutAnEntryAreCrossedBoxes)
{
    int count = 0;
    for (unsigned int code = 0; code <= 0xFFFF; ++code)
    {
        wchar_t const character = static_cast<wchar_t>(code);
        if (HasEntry(character))
            continue;
        ++count;
        for (unsigned long const style : {0ul, DigiStyleAlways14})
        {
            CDigiCharOwner const box = Make(character, style);
            ASSERT_EQ(box->mask, crossed_box) << code;
            ASSERT_EQ(box->segmentCount, 14) << code;
            ASSERT_EQ(box->GetWidth(), 49) << code;
        }
    }
    EXPECT_EQ(count, 0x10000 - 14 - 52 - 10 - 2);
}

TEST(SegmentCharacters, SomeLettersAndDigitsHaveTheSameMask)
{
    EXPECT_EQ(Make(L'O')->mask, 0x3F00);
    EXPECT_EQ(Make(L'0', DigiStyleAlways14)->mask, 0x3F00);
    EXPECT_EQ(Make(L'S')->mask, 0x2DC0);
    EXPECT_EQ(Make(L'5', DigiStyleAlways14)->mask, 0x2DC0);
}

TEST(SegmentCharacters, HyphenAndUnderscoreDependOnTheCell)
{
    EXPECT_EQ(Make(L'-')->mask, 0x08);
    EXPECT_EQ(Make(L'-', DigiStyleAlways14)->mask, 0x00C0);
    EXPECT_EQ(Make(L'_')->mask, 0x08);
    EXPECT_EQ(Make(L'_', DigiStyleAlways14)->mask, 0x0400);
}

TEST(SegmentCharacters, DegreeSignLacksTheUpperRightSegmentInASevenSegmentCell)
{
    EXPECT_EQ(Make(degree)->mask, 0xC3);
    EXPECT_EQ(Make(degree)->mask & 1 << 2, 0);
    EXPECT_EQ(Make(degree, DigiStyleAlways14)->mask, 0x31C0);
}

TEST(SegmentCharacters, WidthDependsOnThePunctuation)
{
    EXPECT_EQ(Make(L'.')->GetWidth(), 18);
    EXPECT_EQ(Make(L':')->GetWidth(), 18);
    EXPECT_EQ(Make(L'7')->GetWidth(), 49);
    EXPECT_EQ(Make(L'7', DigiStyleAlways14)->GetWidth(), 49);
    EXPECT_EQ(Make(L'G')->GetWidth(), 49);
    EXPECT_EQ(Make(L',')->GetWidth(), 49);
    EXPECT_EQ(CDigiChar().GetWidth(), 49);
}

TEST(SegmentCharacters, OnlyTheHideStyleHidesUnlitSegments)
{
    for (wchar_t const code : {L'7', L'K', L':'})
    {
        EXPECT_EQ(Make(code, 0)->hideOff, 0);
        EXPECT_EQ(Make(code, ~DigiStyleHideOff)->hideOff, 0);
        EXPECT_EQ(Make(code, DigiStyleHideOff)->hideOff, 1);
        EXPECT_EQ(Make(code, ~0ul)->hideOff, 1);
    }
}

TEST(SegmentCharacters, BaseHasNoSegmentsAndTakesMaskAndHiding)
{
    CDigiChar character;
    EXPECT_EQ(character.mask, 0);
    EXPECT_EQ(character.segmentCount, 0);
    EXPECT_EQ(character.hideOff, 0);
    for (CDigiSegment const & segment : character.segments)
        EXPECT_EQ(segment.count, 0u);

    character.SetSegmentMask(0xFFFF, DigiStyleHideOff | DigiStyleRounded);
    EXPECT_EQ(character.mask, 0xFFFF);
    EXPECT_EQ(character.hideOff, 1);
    EXPECT_EQ(character.segmentCount, 0);
    EXPECT_EQ(character.segments[0].count, 0u);

    character.SetSegmentMask(1, 0);
    EXPECT_EQ(character.mask, 1);
    EXPECT_EQ(character.hideOff, 0);
}

TEST(SegmentCharacters, MaskOfADerivedClassIsSetThroughTheBase)
{
    CDigi7Segment digit;
    EXPECT_EQ(digit.segmentCount, 7);
    EXPECT_EQ(digit.segments[0].count, 0u);
    CDigiChar & base = digit;
    base.SetSegmentMask(0x24, DigiStyleHideOff);
    EXPECT_EQ(digit.mask, 0x24);
    EXPECT_EQ(digit.hideOff, 1);
    EXPECT_EQ(digit.segments[0].count, 4u);
    base.SetSegmentMask(0x24, DigiStyleRounded);
    EXPECT_EQ(digit.segments[0].count, 7u);
    EXPECT_EQ(digit.hideOff, 0);
}

TEST(SegmentCharacters, CopyHasNoOutlines)
{
    CDigiCharOwner const original = Make(L':', DigiStyleHideOff);
    CDigiChar const copy(*original);
    EXPECT_EQ(copy.segmentCount, 3);
    EXPECT_EQ(copy.width, 18);
    EXPECT_EQ(copy.mask, 0x03);
    EXPECT_EQ(copy.hideOff, 1);
    for (CDigiSegment const & segment : copy.segments)
        EXPECT_EQ(segment.count, 0u);
    EXPECT_EQ(Trace(copy, {0, 0, 18, 83}), "on begin end paint region on begin end paint region off");
}

TEST(SegmentCharacters, AssignmentCopiesTheOutlinesInUseAndLeavesTheOthers)
{
    CDigiCharOwner const letter = Make(L'W');
    CDigiCharOwner const dot = Make(L'.', DigiStyleHideOff);
    CDigiChar target;
    target = *letter;
    EXPECT_EQ(Trace(target, {3, 4, 100, 200}), Trace(*letter, {3, 4, 100, 200}));
    EXPECT_EQ(target.segmentCount, 14);
    EXPECT_EQ(target.mask, 0x1B18);

    target = *dot;
    EXPECT_EQ(target.segmentCount, 3);
    EXPECT_EQ(target.width, 18);
    EXPECT_EQ(target.mask, 0x04);
    EXPECT_EQ(target.hideOff, 1);
    EXPECT_EQ(target.segments[2].points[0].y, 68);
    EXPECT_EQ(target.segments[3].points[0].x, letter->segments[3].points[0].x);
    EXPECT_EQ(target.segments[3].count, letter->segments[3].count);
}

TEST(SegmentCharacters, AssignmentToItselfChangesNothing)
{
    CDigiCharOwner const letter = Make(L'W');
    std::string const before = Trace(*letter, {0, 0, 49, 83});
    CDigiChar const & same = *letter;
    *letter = same;
    EXPECT_EQ(Trace(*letter, {0, 0, 49, 83}), before);
}

TEST(SegmentCharacters, MaskIsTheOnlyVirtualOperation)
{
    EXPECT_TRUE(std::is_polymorphic_v<CDigiChar>);
    EXPECT_FALSE(std::has_virtual_destructor_v<CDigiChar>);
    DigiStatic::DeleteDigiChar(nullptr);
}

TEST(SegmentCharacters, OutlinesAreThoseOfTheTables)
{
    int count = 0;
    for (std::istringstream & line : ReadExpectations("outlines.txt"))
    {
        CDigiCharOwner const character = ReadKind(line);
        int segment = 0;
        std::uint32_t points = 0;
        line >> segment >> points;
        CDigiSegment const & outline = character->segments[segment];
        ASSERT_EQ(outline.count, points) << line.str();
        for (std::uint32_t i = 0; i < points; ++i)
        {
            int x = 0;
            int y = 0;
            int type = 0;
            line >> x >> y >> type;
            EXPECT_EQ(std::tuple(outline.points[i].x, outline.points[i].y, outline.types[i]), std::tuple(x, y, type))
                << line.str() << ", point " << i;
        }
        EXPECT_TRUE(line) << line.str();
        ++count;
    }
    EXPECT_EQ(count, 2 * (7 + 14 + 3));
}
} // namespace
