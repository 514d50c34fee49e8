#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>

#include "list/XListCtrlData.h"

namespace
{
// Every bit set, so that what an operation keeps is seen.
constexpr unsigned int all_bits = 0xFFFFFFFF;

void ExpectRecycled(XLISTCTRLDATA const & cell)
{
    EXPECT_EQ(cell.properties, 1u);
    EXPECT_EQ(cell.valueType, 0u);
    EXPECT_EQ(cell.imageIndex, -1);
    EXPECT_EQ(cell.intValue, 0);
    EXPECT_EQ(cell.floatValue, 0.0f);
    EXPECT_EQ(cell.timeValue.GetTime(), 0);
    EXPECT_EQ(cell.itemData64, 0);
    EXPECT_EQ(cell.itemDataPtr, nullptr);
    ASSERT_EQ(std::size(cell.idx8), 8u);
    for (int const number : cell.idx8)
        EXPECT_EQ(number, -1);
    EXPECT_EQ(cell.textColor, 0u);
    EXPECT_EQ(cell.backgroundColor, 0xFFFFFFu);
    EXPECT_EQ(cell.gradientColor, 0xFFFFFFu);
    EXPECT_EQ(cell.checkedState, -1);
    EXPECT_TRUE(cell.comboStrings.empty());
    EXPECT_FALSE(cell.comboSorted);
    EXPECT_EQ(cell.comboVisibleItems, 20);
    EXPECT_EQ(cell.comboDefaultId, -1);
    EXPECT_EQ(cell.comboCurrentId, -1);
    EXPECT_EQ(cell.progressValue, 0);
    EXPECT_EQ(cell.progressDisplayValue, 0);
    EXPECT_FALSE(cell.customDraw);
}

void FillEverything(XLISTCTRLDATA & cell)
{
    cell.properties = all_bits;
    cell.valueType = XLV_DATETIME;
    cell.imageIndex = 3;
    cell.toolTipText = L"tip";
    cell.intValue = 4;
    cell.floatValue = 5;
    cell.timeValue = CTime(6);
    cell.itemData64 = 7;
    cell.itemDataPtr = &cell;
    for (int & number : cell.idx8)
        number = 8;
    cell.textColor = 9;
    cell.backgroundColor = 10;
    cell.gradientColor = 11;
    cell.checkedState = XLC_RADIO_ON;
    cell.comboStrings = {{1, L"one"}};
    cell.comboSorted = true;
    cell.comboVisibleItems = 12;
    cell.comboDefaultId = 13;
    cell.comboCurrentId = 14;
    cell.progressValue = 15;
    cell.progressDisplayValue = 16;
    cell.progressFormat = L"%d";
    cell.progressShowText = true;
    cell.customDraw = [](int, int, CDC *, CRect const &) {};
}

TEST(ListCell, NewCellHasTheDefaults)
{
    XLISTCTRLDATA const cell;
    ExpectRecycled(cell);
    EXPECT_TRUE(cell.toolTipText.IsEmpty());
    EXPECT_TRUE(cell.progressFormat.IsEmpty());
    EXPECT_FALSE(cell.progressShowText);
}

TEST(ListCell, FieldsHaveTheirSizes)
{
    XLISTCTRLDATA const cell;
    EXPECT_EQ(sizeof(cell.properties), 4u);
    EXPECT_EQ(sizeof(cell.valueType), 4u);
    EXPECT_EQ(sizeof(cell.imageIndex), 4u);
    EXPECT_EQ(sizeof(cell.intValue), 4u);
    EXPECT_EQ(sizeof(cell.floatValue), 4u);
    EXPECT_EQ(sizeof(cell.timeValue), 8u);
    EXPECT_EQ(sizeof(cell.itemData64), 8u);
    EXPECT_EQ(sizeof(cell.idx8), 32u);
    EXPECT_EQ(sizeof(cell.textColor), 4u);
    EXPECT_EQ(sizeof(cell.checkedState), 4u);
}

TEST(ListCell, FieldsStandInTheirOrder)
{
    XLISTCTRLDATA const cell;
    void const * const fields[] = {&cell.properties,     &cell.valueType,         &cell.imageIndex,
                                   &cell.toolTipText,    &cell.intValue,          &cell.floatValue,
                                   &cell.timeValue,      &cell.itemData64,        &cell.itemDataPtr,
                                   &cell.idx8,           &cell.textColor,         &cell.backgroundColor,
                                   &cell.gradientColor,  &cell.checkedState,      &cell.comboStrings,
                                   &cell.comboSorted,    &cell.comboVisibleItems, &cell.comboDefaultId,
                                   &cell.comboCurrentId, &cell.progressValue,     &cell.progressDisplayValue,
                                   &cell.progressFormat, &cell.progressShowText,  &cell.customDraw};
    EXPECT_EQ(fields[0], &cell);
    for (std::size_t i = 1; i < std::size(fields); ++i)
    {
        EXPECT_LT(reinterpret_cast<std::uintptr_t>(fields[i - 1]), reinterpret_cast<std::uintptr_t>(fields[i]))
            << "field " << i;
    }
    RecordProperty("bytes_per_cell", static_cast<int>(sizeof(XLISTCTRLDATA)));
}

TEST(ListCell, NumbersOfTheBits)
{
    EXPECT_EQ(XLP_ENABLED | XLP_EDIT | XLP_LINK | XLP_PROGRESS | XLP_COMBO | XLP_CUSTOMDRAW, 0x3Fu);
    EXPECT_EQ(XLP_EDIT, 2u);
    EXPECT_EQ(XLP_LINK, 4u);
    EXPECT_EQ(XLP_PROGRESS, 8u);
    EXPECT_EQ(XLP_COMBO, 16u);
    EXPECT_EQ(XLP_BOLD, 256u);
    EXPECT_EQ(XLP_UNDERLINE, 512u);
    EXPECT_EQ(XLP_MODIFIED, 1024u);
    EXPECT_EQ(XLP_SORT_LAST, 2048u);
    EXPECT_EQ(XLP_SORT_FIRST, 4096u);
}

TEST(ListCell, RecyclingKeepsTooltipAndProgressFormatAlone)
{
    XLISTCTRLDATA cell;
    FillEverything(cell);
    cell.Recycle();
    ExpectRecycled(cell);
    EXPECT_EQ(cell.toolTipText, L"tip");
    EXPECT_EQ(cell.progressFormat, L"%d");
    EXPECT_TRUE(cell.progressShowText);
}

struct KindChange
{
    char const * name;
    void (*make)(XLISTCTRLDATA &);
    unsigned int fromAll;     // properties made of all bits
    unsigned int fromNothing; // properties made of none
    int checkedState;
};

constexpr KindChange kind_changes[] = {
    {"unchecked", [](XLISTCTRLDATA & cell) { cell.MakeCheck(XLC_UNCHECKED); }, 0xFF01, 0, 0},
    {"crossed", [](XLISTCTRLDATA & cell) { cell.MakeCheck(XLC_CROSSED); }, 0xFF01, 0, 2},
    {"radio", [](XLISTCTRLDATA & cell) { cell.MakeCheck(XLC_RADIO_OFF); }, 0xFF01, 0, 4},
    {"no check", [](XLISTCTRLDATA & cell) { cell.MakeCheck(XLC_NONE); }, 0xFF01, 0, -1},
    {"plain", [](XLISTCTRLDATA & cell) { cell.MakePlain(); }, 0xFF01, 0, -1},
    {"edit", [](XLISTCTRLDATA & cell) { cell.MakeEdit(); }, 3, 3, -1},
    {"link", [](XLISTCTRLDATA & cell) { cell.MakeLink(); }, 517, 517, -1},
    {"progress", [](XLISTCTRLDATA & cell) { cell.MakeProgress(); }, 9, 9, -1},
    {"combo", [](XLISTCTRLDATA & cell) { cell.MakeCombo(); }, 17, 17, -1},
};

TEST(ListCell, ChangesOfKindKeepTheBitsThatTheyMust)
{
    for (KindChange const & change : kind_changes)
    {
        XLISTCTRLDATA cell;
        cell.properties = all_bits;
        cell.checkedState = XLC_RADIO_ON;
        change.make(cell);
        EXPECT_EQ(cell.properties, change.fromAll) << change.name;
        EXPECT_EQ(cell.checkedState, change.checkedState) << change.name;

        cell.properties = 0;
        change.make(cell);
        EXPECT_EQ(cell.properties, change.fromNothing) << change.name;
    }
}

TEST(ListCell, EditForgetsBoldModifiedAndSortBits)
{
    XLISTCTRLDATA cell;
    cell.properties |= XLP_BOLD | XLP_MODIFIED | XLP_SORT_FIRST;
    cell.MakeEdit();
    EXPECT_EQ(cell.properties & (XLP_BOLD | XLP_MODIFIED | XLP_SORT_FIRST), 0u);
}

TEST(ListCell, CheckKeepsBoldModifiedAndSortBits)
{
    XLISTCTRLDATA cell;
    cell.MakeEdit();
    cell.properties |= XLP_BOLD | XLP_MODIFIED | XLP_SORT_FIRST;
    cell.MakeCheck(XLC_CHECKED);
    EXPECT_EQ(cell.properties, XLP_ENABLED | XLP_BOLD | XLP_MODIFIED | XLP_SORT_FIRST);
}

TEST(ListCell, CheckKeepsADisabledCellDisabledAndALinkEnablesIt)
{
    XLISTCTRLDATA cell;
    cell.properties &= ~XLP_ENABLED;
    cell.MakeCheck(XLC_UNCHECKED);
    EXPECT_EQ(cell.properties & XLP_ENABLED, 0u);
    cell.MakeLink();
    EXPECT_EQ(cell.properties & XLP_ENABLED, XLP_ENABLED);
}

TEST(ListCell, ChangesOfKindLeaveEverythingElse)
{
    for (KindChange const & change : kind_changes)
    {
        XLISTCTRLDATA cell;
        FillEverything(cell);
        change.make(cell);
        EXPECT_EQ(cell.valueType, XLV_DATETIME) << change.name;
        EXPECT_EQ(cell.imageIndex, 3) << change.name;
        EXPECT_EQ(cell.textColor, 9u) << change.name;
        EXPECT_EQ(cell.backgroundColor, 10u) << change.name;
        EXPECT_EQ(cell.progressValue, 15) << change.name;
        EXPECT_EQ(cell.comboStrings.size(), 1u) << change.name;
        EXPECT_TRUE(cell.customDraw) << change.name;
    }
}
} // namespace
