// The text display that paints with a graphics object: everything but the painting.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "segments/DigiCharArray.h"
#include "segments/LedTextAnzeiger.h"

namespace
{
class Display : public CLedTextAnzeiger
{
public:
    using CLedTextAnzeiger::FreeCharArray;
    using CLedTextAnzeiger::m_backColor;
    using CLedTextAnzeiger::m_capacity;
    using CLedTextAnzeiger::m_charCount;
    using CLedTextAnzeiger::m_chars;
    using CLedTextAnzeiger::m_extraSpacing;
    using CLedTextAnzeiger::m_flags;
    using CLedTextAnzeiger::m_offColor;
    using CLedTextAnzeiger::m_onColor;
    using CLedTextAnzeiger::m_text;
    using CLedTextAnzeiger::m_textWidth;

    DigiStatic::CDigiChar const * Character(unsigned int index) const { return m_chars->entries.at(index).get(); }
    std::ptrdiff_t Characters() const
    {
        return std::ranges::count_if(m_chars->entries, [](auto const & character) { return character != nullptr; });
    }
};
} // namespace

TEST(LedText, StartsEmpty)
{
    Display display;
    EXPECT_EQ(display.m_flags, 4U);
    EXPECT_EQ(display.m_offColor, 0x005000U);
    EXPECT_EQ(display.m_onColor, 0x00FF00U);
    EXPECT_EQ(display.m_backColor, 0x501E00U);
    EXPECT_EQ(display.m_extraSpacing, 0U);
    EXPECT_EQ(display.m_text, L"");
    EXPECT_EQ(display.m_charCount, 0U);
    EXPECT_EQ(display.m_capacity, 20U);
    EXPECT_EQ(display.m_textWidth, 0U);
    EXPECT_EQ(display.m_chars->entries.size(), 20U);
    EXPECT_EQ(display.Characters(), 0);
    EXPECT_EQ(display.TextWidht(), 0U);
}

TEST(LedText, TwentyCharactersFitTheFirstArray)
{
    Display display;
    DigiStatic::CDigiCharArray const * const array = display.m_chars.get();
    display.SetText(L"12345678901234567890");
    EXPECT_EQ(display.m_capacity, 20U);
    EXPECT_EQ(display.m_chars.get(), array);
    EXPECT_EQ(display.Characters(), 20);
    EXPECT_EQ(display.TextWidht(), 980U);
}

TEST(LedText, ArrayGrowsByTheNewLength)
{
    Display display;
    display.SetText(L"123456789012345678901");
    EXPECT_EQ(display.m_capacity, 41U);
    EXPECT_EQ(display.m_chars->entries.size(), 41U);
    EXPECT_EQ(display.Characters(), 21);
    DigiStatic::CDigiCharArray const * const array = display.m_chars.get();
    display.SetText(CString(L'8', 41));
    EXPECT_EQ(display.m_capacity, 41U);
    EXPECT_EQ(display.m_chars.get(), array);
    display.SetText(CString(L'8', 42));
    EXPECT_EQ(display.m_capacity, 83U);
    display.SetText(L"1");
    EXPECT_EQ(display.m_capacity, 83U);
    EXPECT_EQ(display.Characters(), 1);
}

TEST(LedText, WidthHasSpacingBetweenCharacters)
{
    Display display;
    display.SetExtraSpacing(5);
    display.SetText(L"12");
    EXPECT_EQ(display.TextWidht(), 103U);
    display.SetText(L"1:2");
    EXPECT_EQ(display.TextWidht(), 49U + 5 + 18 + 5 + 49);
    display.SetText(L"1");
    EXPECT_EQ(display.TextWidht(), 49U);
}

TEST(LedText, SpacingCountsForTheNextTextOnly)
{
    Display display;
    display.SetText(L"12");
    display.SetExtraSpacing(5);
    EXPECT_EQ(display.TextWidht(), 98U);
    EXPECT_EQ(display.m_extraSpacing, 5U);
    display.SetText(L"12");
    EXPECT_EQ(display.TextWidht(), 98U) << "the same text is not built anew";
    display.SetText(L"21");
    EXPECT_EQ(display.TextWidht(), 103U);
}

TEST(LedText, EmptyTextHasNoWidth)
{
    Display display;
    display.SetExtraSpacing(5);
    display.SetText(L"123");
    display.SetText(L"");
    EXPECT_EQ(display.TextWidht(), 0U);
    EXPECT_EQ(display.m_charCount, 0U);
    EXPECT_EQ(display.Characters(), 0);
}

TEST(LedText, SameTextKeepsItsCharacters)
{
    Display display;
    display.SetText(L"12");
    DigiStatic::CDigiChar const * const character = display.Character(0);
    display.SetText(L"12");
    EXPECT_EQ(display.Character(0), character);
}

TEST(LedText, LettersOfBothCasesLookTheSameAndAreKeptAsGiven)
{
    Display display;
    display.SetText(L"aBc");
    EXPECT_EQ(display.m_text, L"aBc");
    EXPECT_EQ(display.Character(0)->mask, 0x3BC0);
    EXPECT_EQ(display.Character(1)->mask, 0x3CA1);
    EXPECT_EQ(display.Character(2)->mask, 0x2700);
    DigiStatic::CDigiChar const * const character = display.Character(0);
    display.SetText(L"aBc");
    EXPECT_EQ(display.Character(0), character);
    display.SetText(L"ABC");
    EXPECT_EQ(display.m_text, L"ABC");
}

TEST(LedText, HiddenSegmentsStayVisibleInTextThatIsThere)
{
    Display display;
    display.SetText(L"1");
    display.ShowOffSegments(false);
    display.ShowOffSegments(false);
    display.SetText(L"1");
    EXPECT_EQ(display.Character(0)->hideOff, 0);
    display.SetText(L"2");
    EXPECT_EQ(display.Character(0)->hideOff, 1);
    display.ShowOffSegments(true);
    display.SetText(L"3");
    EXPECT_EQ(display.Character(0)->hideOff, 0);
}

TEST(LedText, FourteenSegmentsComeWithTheNextText)
{
    Display display;
    display.SetText(L"1");
    display.Always14Sement(true);
    display.SetText(L"1");
    EXPECT_EQ(display.Character(0)->segmentCount, 7);
    display.SetText(L"2");
    EXPECT_EQ(display.Character(0)->segmentCount, 14);
    display.Always14Sement(false);
    display.SetText(L"3");
    EXPECT_EQ(display.Character(0)->segmentCount, 7);
}

TEST(LedText, SwitchesSetTheirBitsAlone)
{
    Display display;
    display.ShowOffSegments(false);
    EXPECT_EQ(display.m_flags, 4U + 8);
    display.Always14Sement(true);
    EXPECT_EQ(display.m_flags, 4U + 8 + 2);
    display.SetTextAlign(64);
    EXPECT_EQ(display.m_flags, 4U + 8 + 2 + 64);
    display.ShowOffSegments(true);
    display.Always14Sement(false);
    EXPECT_EQ(display.m_flags, 4U + 64);
}

TEST(LedText, AlignmentTakesItsThreeValuesOnly)
{
    Display display;
    display.SetTextAlign(128);
    EXPECT_EQ(display.m_flags, 4U + 128);
    display.SetTextAlign(64);
    EXPECT_EQ(display.m_flags, 4U + 64);
    for (unsigned int const other : {1U, 8U, 63U, 65U, 192U, 256U})
    {
        display.SetTextAlign(other);
        EXPECT_EQ(display.m_flags, 4U + 64) << other;
    }
    display.SetTextAlign(128);
    EXPECT_EQ(display.m_flags, 4U + 128);
    display.SetTextAlign(0);
    EXPECT_EQ(display.m_flags, 4U);
}

TEST(LedText, ColorsComeOnFirst)
{
    Display display;
    display.SetColors(1, 2, 3);
    EXPECT_EQ(display.m_onColor, 1U);
    EXPECT_EQ(display.m_offColor, 2U);
    EXPECT_EQ(display.m_backColor, 3U);
}

TEST(LedText, FreeingKeepsCountAndArray)
{
    Display display;
    display.SetText(L"123");
    DigiStatic::CDigiCharArray const * const array = display.m_chars.get();
    display.FreeCharArray();
    EXPECT_EQ(display.m_charCount, 3U);
    EXPECT_EQ(display.m_chars.get(), array);
    EXPECT_EQ(display.Characters(), 0);
}

TEST(LedTextCopy, SharesTheCharacters)
{
    Display display;
    display.SetExtraSpacing(7);
    display.SetTextAlign(64);
    display.SetColors(1, 2, 3);
    display.SetText(L"123");
    Display const copy(display);
    EXPECT_EQ(copy.m_chars, display.m_chars);
    EXPECT_EQ(copy.m_flags, 4U + 64);
    EXPECT_EQ(copy.m_onColor, 1U);
    EXPECT_EQ(copy.m_offColor, 2U);
    EXPECT_EQ(copy.m_backColor, 3U);
    EXPECT_EQ(copy.m_extraSpacing, 7U);
    EXPECT_EQ(copy.m_text, L"123");
    EXPECT_EQ(copy.m_charCount, 3U);
    EXPECT_EQ(copy.m_capacity, 20U);
    EXPECT_EQ(copy.TextWidht(), 3U * 49 + 2 * 7);
}

TEST(LedTextCopy, OutlivesTheOriginal)
{
    auto display = std::make_unique<Display>();
    display->SetText(L"123");
    Display const copy(*display);
    display.reset();
    EXPECT_EQ(copy.Characters(), 3);
    EXPECT_EQ(copy.Character(2)->mask, 0x6D);
}

TEST(LedTextCopy, OriginalOutlivesIt)
{
    Display display;
    display.SetText(L"123");
    {
        Display const copy(display);
    }
    EXPECT_EQ(display.Characters(), 3);
    EXPECT_EQ(display.Character(2)->mask, 0x6D);
}

TEST(LedTextCopy, SharedCharactersEndWithTheLast)
{
    std::weak_ptr<DigiStatic::CDigiCharArray> array;
    {
        Display display;
        display.SetText(L"123");
        array = display.m_chars;
        {
            Display const copy(display);
            EXPECT_EQ(array.use_count(), 2);
        }
        EXPECT_EQ(array.use_count(), 1);
    }
    EXPECT_TRUE(array.expired());
}

TEST(LedTextCopy, AssignmentTakesEverythingOver)
{
    Display source;
    source.SetExtraSpacing(7);
    source.SetText(L"123");
    Display target;
    target.SetText(CString(L'8', 30));
    std::weak_ptr<DigiStatic::CDigiCharArray> const former = target.m_chars;
    target = source;
    EXPECT_EQ(target.m_chars, source.m_chars);
    EXPECT_EQ(target.m_text, L"123");
    EXPECT_EQ(target.m_charCount, 3U);
    EXPECT_EQ(target.m_capacity, 20U);
    EXPECT_EQ(target.m_extraSpacing, 7U);
    EXPECT_EQ(target.TextWidht(), source.TextWidht());
    EXPECT_TRUE(former.expired()) << "nobody has them any more";
    EXPECT_EQ(source.Characters(), 3);
}

TEST(LedTextCopy, AssignmentToItselfChangesNothing)
{
    Display display;
    display.SetText(L"123");
    Display & same = display;
    display = same;
    EXPECT_EQ(display.Characters(), 3);
    EXPECT_EQ(display.TextWidht(), 147U);
}

TEST(LedTextCopy, NewTextOfTheOneShowsInTheOther)
{
    Display display;
    display.SetText(L"123");
    Display copy(display);
    copy.SetText(L"8");
    EXPECT_EQ(display.Character(0)->mask, 0x7F);
    EXPECT_EQ(display.Characters(), 1) << "the others are deleted";
    EXPECT_EQ(display.m_charCount, 3U);
    EXPECT_EQ(display.TextWidht(), 147U);
    display.SetText(L"12345");
    copy.SetText(L"7");
    display.SetText(L"9876543");
    EXPECT_EQ(display.Characters(), 7);
}

TEST(LedTextCopy, GoesItsOwnWayWithALongerText)
{
    Display display;
    display.SetText(L"123");
    Display copy(display);
    copy.SetText(CString(L'8', 21));
    EXPECT_NE(copy.m_chars, display.m_chars);
    EXPECT_EQ(copy.Characters(), 21);
    EXPECT_EQ(display.m_capacity, 20U);
    EXPECT_EQ(display.Characters(), 0) << "the characters were deleted before the copy left the array";
    display.SetText(L"12");
    EXPECT_EQ(display.Characters(), 2);
    EXPECT_EQ(copy.Characters(), 21);
}

TEST(LedTextCopy, ManyInAnyOrder)
{
    std::vector<Display> displays(8);
    unsigned int random = 7;
    auto const next = [&random](unsigned int end) {
        random = random * 1664525 + 1013904223;
        return (random >> 8) % end;
    };
    for (int step = 0; step < 5000; ++step)
    {
        Display & display = displays[next(8)];
        switch (next(4))
        {
        case 0:
            display = displays[next(8)];
            break;
        case 1:
            display = Display();
            break;
        default:
            display.SetText(CString(static_cast<wchar_t>(L'0' + next(10)), static_cast<int>(next(60))));
            ASSERT_EQ(display.m_charCount, static_cast<unsigned int>(display.m_text.GetLength()));
            for (unsigned int i = 0; i < display.m_charCount; ++i)
                ASSERT_NE(display.Character(i), nullptr);
        }
        ASSERT_LE(display.m_charCount, display.m_capacity);
        ASSERT_EQ(display.m_capacity, display.m_chars->entries.size());
    }
}
