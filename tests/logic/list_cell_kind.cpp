#include <gtest/gtest.h>

#include <string>

#include "list/CellKind.h"
#include "list/CellText.h"

namespace
{
struct Kinds
{
    char const * name;
    unsigned int properties;
    int checkedState;
    CellKind painted;
    CellKind pressed;
};

// Bits by their numbers: 2 edit, 4 link, 8 progress, 16 combo, 32 custom drawn.
constexpr Kinds kinds[] = {
    {"plain", 1, -1, CellKind::text, CellKind::text},
    {"edit", 1 + 2, -1, CellKind::edit, CellKind::edit},
    {"link", 1 + 4 + 512, -1, CellKind::link, CellKind::link},
    {"progress", 1 + 8, -1, CellKind::progress, CellKind::text},
    {"combo", 1 + 16, -1, CellKind::combo, CellKind::combo},
    {"custom drawn", 1 + 32, -1, CellKind::custom, CellKind::text},
    {"unchecked", 1, 0, CellKind::check, CellKind::check},
    {"crossed", 1, 2, CellKind::check, CellKind::check},
    {"radio on", 1, 3, CellKind::radio, CellKind::radio},
    {"radio off", 1, 4, CellKind::radio, CellKind::radio},
    {"a state without a mark", 1, 5, CellKind::check, CellKind::check},
    {"another negative state", 1, -2, CellKind::text, CellKind::text},
    {"disabled", 0, 1, CellKind::check, CellKind::check},
    // Of several kinds painting takes one and a press another.
    {"everything", 1 + 2 + 4 + 8 + 16 + 32, 3, CellKind::progress, CellKind::combo},
    {"all but progress", 1 + 2 + 4 + 16 + 32, 3, CellKind::radio, CellKind::combo},
    {"combo, edit, link, painter", 1 + 2 + 4 + 16 + 32, -1, CellKind::combo, CellKind::combo},
    {"edit, link, painter", 1 + 2 + 4 + 32, -1, CellKind::custom, CellKind::edit},
    {"edit, link, check", 1 + 2 + 4, 0, CellKind::check, CellKind::edit},
    {"edit, link", 1 + 2 + 4, -1, CellKind::edit, CellKind::edit},
    {"link, check", 1 + 4, 1, CellKind::check, CellKind::link},
    {"progress, check", 1 + 8, 1, CellKind::progress, CellKind::check},
    {"painter, radio", 1 + 32, 4, CellKind::radio, CellKind::radio},
};

TEST(ListCellKind, PaintingAndPressesEachHaveTheirOrder)
{
    for (Kinds const & each : kinds)
    {
        XLISTCTRLDATA cell;
        cell.properties = each.properties;
        cell.checkedState = each.checkedState;
        EXPECT_EQ(PaintedKind(cell), each.painted) << each.name;
        EXPECT_EQ(PressedKind(cell), each.pressed) << each.name;
    }
}

TEST(ListCellKind, AnAdmittedPressActsOnACellDisabledSince)
{
    XLISTCTRLDATA cell;
    cell.properties = 0;
    cell.checkedState = 0;
    EXPECT_EQ(DecidePress(cell), CellPress::ignored);
    EXPECT_EQ(DecideAdmittedPress(cell), CellPress::flip_check);
}

TEST(ListCellKind, BarsHaveTheirOwnColoursAndLinksKeepTheirsAsOtherCells)
{
    auto const tintOf = [](unsigned int properties, int checkedState) {
        XLISTCTRLDATA cell;
        cell.properties = properties;
        cell.checkedState = checkedState;
        return TintOf(cell);
    };
    EXPECT_EQ(tintOf(1, -1), CellTint::text);
    EXPECT_EQ(tintOf(1 + 2, 3), CellTint::text);
    EXPECT_EQ(tintOf(1 + 16, -1), CellTint::text);
    EXPECT_EQ(tintOf(1 + 4, -1), CellTint::link);
    EXPECT_EQ(tintOf(1 + 4, 1), CellTint::link);
    EXPECT_EQ(tintOf(1 + 4 + 16, -1), CellTint::link);
    EXPECT_EQ(tintOf(1 + 8, -1), CellTint::bar);
    EXPECT_EQ(tintOf(1 + 4 + 8, 1), CellTint::bar);
}

TEST(ListCellKind, ChecksAndRadioButtonsAloneShowAState)
{
    EXPECT_TRUE(ShowsState(CellKind::check));
    EXPECT_TRUE(ShowsState(CellKind::radio));
    for (CellKind const kind :
         {CellKind::text, CellKind::edit, CellKind::link, CellKind::combo, CellKind::progress, CellKind::custom})
        EXPECT_FALSE(ShowsState(kind));
}

TEST(ListCellKind, OnlySortingLooksAtABarsPercent)
{
    XLISTCTRLDATA cell;
    constexpr CellValue by_type[] = {CellValue::text, CellValue::integer, CellValue::real, CellValue::time};
    for (unsigned int type = 0; type < 4; ++type)
    {
        cell.valueType = type;
        cell.properties = 1;
        EXPECT_EQ(SortedValue(cell), by_type[type]);
        EXPECT_EQ(ExportedValue(cell), by_type[type]);
        cell.properties = 1 + 8;
        EXPECT_EQ(SortedValue(cell), CellValue::percent);
        EXPECT_EQ(ExportedValue(cell), by_type[type]);
    }
    cell.properties = 1;
    cell.valueType = 4;
    EXPECT_EQ(SortedValue(cell), CellValue::none);
    EXPECT_EQ(ExportedValue(cell), CellValue::text) << "what it shows";
}

/// Reads a text as the native list gives it; how often it was asked goes to asked.
std::wstring Read(std::wstring const & text, int & asked, int limit = CellText::whole)
{
    asked = 0;
    CellText const read(
        [&](wchar_t * buffer, int room) {
            ++asked;
            auto const length = text.copy(buffer, static_cast<std::size_t>(room - 1));
            buffer[length] = L'\0';
            return static_cast<int>(length);
        },
        limit);
    EXPECT_EQ(std::wstring(read.Characters()), read.View());
    EXPECT_EQ(read.IsEmpty(), text.empty());
    return std::wstring(read.View());
}

TEST(ListCellText, UsualTextsAreAskedForOnce)
{
    int asked = 0;
    for (std::size_t const length : {0u, 1u, 254u})
    {
        std::wstring const text(length, L'x');
        EXPECT_EQ(Read(text, asked), text);
        EXPECT_EQ(asked, 1) << length;
    }
}

TEST(ListCellText, LongTextsAreReadWhole)
{
    int asked = 0;
    for (std::size_t const length : {255u, 256u, 511u, 512u, 70000u})
    {
        std::wstring const text = std::wstring(length - 1, L'x') + L'y';
        EXPECT_EQ(Read(text, asked), text) << length;
        EXPECT_GT(asked, 1) << length;
    }
}

TEST(ListCellText, NoMoreIsAskedForThanIsEnough)
{
    int asked = 0;
    std::wstring const text(5000, L'x');
    EXPECT_EQ(Read(text, asked, 199).size(), 199u);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(Read(text, asked, 300).size(), 300u);
    EXPECT_EQ(asked, 2);
}
} // namespace
