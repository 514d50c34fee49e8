// The colour set of a control.

#include <type_traits>

#include "ControlTest.h"

namespace outside::controls
{
namespace
{
class Colors : public CColorControl
{
public:
    using CColorControl::CColorControl;
    using CColorControl::m_bgColor;
    using CColorControl::m_colorTable;
    using CColorControl::m_disabledBgColor;
    using CColorControl::m_disabledFgColor;
    using CColorControl::m_fgColor;
    using CColorControl::m_hot;
    using CColorControl::m_hotBgBrush;
    using CColorControl::m_hotBgColor;
    using CColorControl::m_hotFgBrush;
    using CColorControl::m_hotFgColor;
    using CColorControl::m_hotPen;
    using CColorControl::m_rolloverDelay;
    using CColorControl::m_timerId;
};

COLORREF BrushColour(CBrush & brush)
{
    LOGBRUSH data = {};
    EXPECT_EQ(::GetObjectW(brush.m_hObject, sizeof(data), &data), static_cast<int>(sizeof(data)));
    EXPECT_EQ(data.lbStyle, static_cast<UINT>(BS_SOLID));
    return data.lbColor;
}

LOGPEN PenData(CPen & pen)
{
    LOGPEN data = {};
    EXPECT_NE(::GetObjectW(pen.m_hObject, sizeof(data), &data), 0);
    return data;
}

TEST(OutsideColorControl, EnumerationValues)
{
    EXPECT_EQ(CColorControl::Black, 0);
    EXPECT_EQ(CColorControl::White, 1);
    EXPECT_EQ(CColorControl::Red, 2);
    EXPECT_EQ(CColorControl::Green, 3);
    EXPECT_EQ(CColorControl::Yellow, 4);
    EXPECT_EQ(CColorControl::Blue, 5);
    EXPECT_EQ(CColorControl::DarkGrey, 6);
    EXPECT_EQ(CColorControl::LightGrey, 7);
    EXPECT_EQ(CColorControl::ButtonText, 8);
    EXPECT_EQ(CColorControl::GrayText, 9);
    EXPECT_EQ(CColorControl::ButtonFace, 10);
    EXPECT_EQ(CColorControl::WindowBackground, 11);
}

TEST(OutsideColorControl, TypesAndOrderOfFields)
{
    static_assert(std::is_polymorphic_v<CColorControl>);
    static_assert(std::has_virtual_destructor_v<CColorControl>);
    static_assert(!std::is_base_of_v<CObject, CColorControl>);
    static_assert(sizeof(Colors::m_timerId) == 4 && std::is_unsigned_v<decltype(Colors::m_timerId)>);
    static_assert(sizeof(Colors::m_rolloverDelay) == 4 && std::is_unsigned_v<decltype(Colors::m_rolloverDelay)>);
    static_assert(std::is_same_v<decltype(Colors::m_hot), bool>);
    static_assert(std::is_same_v<decltype(Colors::m_hotPen), CPen *>);
    static_assert(std::is_same_v<decltype(Colors::m_hotBgBrush), CBrush *>);
    static_assert(std::extent_v<decltype(Colors::m_colorTable)> == 12);
    static_assert(sizeof(Colors::m_colorTable[0]) == 4);
    Colors c;
    void const * const order[] = {&c.m_colorTable,      &c.m_fgColor,    &c.m_bgColor,    &c.m_disabledFgColor,
                                  &c.m_disabledBgColor, &c.m_hotFgColor, &c.m_hotBgColor, &c.m_timerId,
                                  &c.m_rolloverDelay,   &c.m_hot,        &c.m_hotFgBrush, &c.m_hotBgBrush,
                                  &c.m_hotPen};
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(order[i - 1], order[i]) << i;
}

TEST(OutsideColorControl, SetColorsThroughTheTable)
{
    Colors c;
    c.SetColors(CColorControl::Red, CColorControl::Yellow, CColorControl::Blue, CColorControl::LightGrey);
    EXPECT_EQ(c.m_fgColor, 0x0000FFu);
    EXPECT_EQ(c.m_bgColor, 0x00FFFFu);
    EXPECT_EQ(c.m_hotFgColor, 0xFF0000u);
    EXPECT_EQ(c.m_hotBgColor, 0xC0C0C0u);
    c.SetColors(CColorControl::White, CColorControl::Black);
    EXPECT_EQ(c.m_fgColor, 0xFFFFFFu);
    EXPECT_EQ(c.m_bgColor, 0u);
    EXPECT_EQ(c.m_hotFgColor, 0xFFFFFFu);
    EXPECT_EQ(c.m_hotBgColor, 0u);
}

TEST(OutsideColorControl, SettersKeepNoGdiObjects)
{
    int colour = 1;
    EXPECT_EQ(tests::GdiGrowth(
                  [&] {
                      Colors c;
                      for (int i = 0; i < 50; ++i)
                      {
                          c.SetHotFgColor(static_cast<unsigned long>(++colour));
                          c.SetHotBgColor(static_cast<unsigned long>(++colour));
                      }
                  },
                  3),
              0);
}

TEST(OutsideColorControl, AnEndedCopyLeavesTheOtherItsObjects)
{
    Colors warm;
    int const before = tests::GdiHandleCount();
    {
        Colors a;
        {
            Colors b(a);
            Colors c;
            c = b;
            c = c;
            b = a;
        }
        EXPECT_EQ(PenData(*a.m_hotPen).lopnColor, 0x00FF00u);
        EXPECT_EQ(BrushColour(*a.m_hotFgBrush), ::GetSysColor(COLOR_BTNFACE));
        auto * d = new Colors(a);
        Colors e(*d);
        e.SetHotFgColor(0x123456);
        EXPECT_EQ(PenData(*d->m_hotPen).lopnColor, 0x00FF00u);
        EXPECT_EQ(PenData(*a.m_hotPen).lopnColor, 0x00FF00u);
        delete d;
        EXPECT_EQ(PenData(*e.m_hotPen).lopnColor, 0x123456u);
        EXPECT_EQ(BrushColour(*e.m_hotBgBrush), ::GetSysColor(COLOR_BTNFACE));
        EXPECT_EQ(PenData(*a.m_hotPen).lopnColor, 0x00FF00u);
    }
    EXPECT_EQ(tests::GdiHandleCount(), before);
}
} // namespace
} // namespace outside::controls
