// What a colour button paints and where.

#include <gtest/gtest.h>

#include <climits>

#include "controls/ButtonLayout.h"

TEST(ButtonLook, DisabledGoesBeforeHot)
{
    EXPECT_EQ(LookOfButton(false, false), ButtonLook::normal);
    EXPECT_EQ(LookOfButton(false, true), ButtonLook::hot);
    EXPECT_EQ(LookOfButton(true, false), ButtonLook::disabled);
    EXPECT_EQ(LookOfButton(true, true), ButtonLook::disabled);
}

TEST(ButtonLook, AreaIsNotFilledInTheFacesColorWithoutAFrame)
{
    EXPECT_FALSE(ButtonIsFilled(false, 0xC0C0C0, 0xC0C0C0));
    EXPECT_TRUE(ButtonIsFilled(false, 0xC0C0C1, 0xC0C0C0));
    EXPECT_TRUE(ButtonIsFilled(true, 0xC0C0C0, 0xC0C0C0));
}

TEST(ButtonLayout, IconIsCentredByItsEdge)
{
    EXPECT_EQ(ButtonIconOrigin(CRect(2, 2, 98, 38), 32), CPoint(34, 4));
    EXPECT_EQ(ButtonIconOrigin(CRect(2, 2, 97, 37), 15), CPoint(42, 12)) << "halves are cut";
    EXPECT_EQ(ButtonIconOrigin(CRect(2, 2, 98, 38), 0), CPoint(50, 20));
    EXPECT_EQ(ButtonIconOrigin(CRect(0, 0, 0, 0), INT_MAX), CPoint(-INT_MAX / 2, -INT_MAX / 2));
}

TEST(ButtonLayout, CaptionIsCentredByItsExtent)
{
    EXPECT_EQ(ButtonCaptionOrigin(CRect(2, 2, 98, 38), CSize(30, 13), false), CPoint(35, 14));
    EXPECT_EQ(ButtonCaptionOrigin(CRect(2, 2, 98, 38), CSize(31, 14), false), CPoint(35, 13));
}

TEST(ButtonLayout, PressedButtonMovesItsCaptionByOnePixel)
{
    EXPECT_EQ(ButtonCaptionOrigin(CRect(2, 2, 98, 38), CSize(30, 13), true), CPoint(36, 15));
}

TEST(ColorTable, HoldsEightFixedColorsAndFourOfTheSystem)
{
    unsigned int table[color_table_size];
    FillColorTable(table, {0x101112, 0x202122, 0x303132, 0x404142});
    constexpr unsigned int expected[] = {0x000000, 0xFFFFFF, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000,
                                         0x808080, 0xC0C0C0, 0x101112, 0x202122, 0x303132, 0x404142};
    for (int i = 0; i < color_table_size; ++i)
        EXPECT_EQ(table[i], expected[i]) << "entry " << i;
}
