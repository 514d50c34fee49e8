// The set of colours that is mixed into controls.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "controls/ColorControl.h"
#include "GdiHandleCount.h"
#include "GuardedHeap.h"

namespace
{
/// The set with its inside open.
class OpenColors : public CColorControl
{
public:
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

LOGPEN Pen(OpenColors const & colors)
{
    LOGPEN pen{};
    colors.m_hotPen->GetLogPen(&pen);
    return pen;
}

COLORREF Color(CBrush & brush)
{
    LOGBRUSH log{};
    brush.GetLogBrush(&log);
    EXPECT_EQ(log.lbStyle, static_cast<UINT>(BS_SOLID));
    return log.lbColor;
}

COLORREF const face = ::GetSysColor(COLOR_BTNFACE);
COLORREF const text = ::GetSysColor(COLOR_BTNTEXT);
} // namespace

TEST(ColorControl, StartsWithItsDefaults)
{
    OpenColors const colors;
    EXPECT_EQ(colors.m_fgColor, text);
    EXPECT_EQ(colors.m_bgColor, face);
    EXPECT_EQ(colors.m_disabledFgColor, 0x808080U);
    EXPECT_EQ(colors.m_disabledBgColor, face);
    EXPECT_EQ(colors.m_hotFgColor, text);
    EXPECT_EQ(colors.m_hotBgColor, face);
    EXPECT_EQ(colors.m_timerId, 1U);
    EXPECT_EQ(colors.m_rolloverDelay, 10U);
    EXPECT_FALSE(colors.m_hot);
    EXPECT_EQ(Color(*colors.m_hotFgBrush), face);
    EXPECT_EQ(Color(*colors.m_hotBgBrush), face);
    LOGPEN const pen = Pen(colors);
    EXPECT_EQ(pen.lopnColor, 0x00FF00U);
    EXPECT_EQ(pen.lopnStyle, static_cast<UINT>(PS_SOLID));
    EXPECT_EQ(pen.lopnWidth.x, 0);
}

TEST(ColorControl, TableHasTwelveColors)
{
    CColorControl const colors;
    EXPECT_EQ(colors.RgbColor(CColorControl::Black), 0x000000U);
    EXPECT_EQ(colors.RgbColor(CColorControl::White), 0xFFFFFFU);
    EXPECT_EQ(colors.RgbColor(CColorControl::Red), 0x0000FFU);
    EXPECT_EQ(colors.RgbColor(CColorControl::Green), 0x00FF00U);
    EXPECT_EQ(colors.RgbColor(CColorControl::Yellow), 0x00FFFFU);
    EXPECT_EQ(colors.RgbColor(CColorControl::Blue), 0xFF0000U);
    EXPECT_EQ(colors.RgbColor(CColorControl::DarkGrey), 0x808080U);
    EXPECT_EQ(colors.RgbColor(CColorControl::LightGrey), 0xC0C0C0U);
    EXPECT_EQ(colors.RgbColor(CColorControl::ButtonText), text);
    EXPECT_EQ(colors.RgbColor(CColorControl::GrayText), ::GetSysColor(COLOR_GRAYTEXT));
    EXPECT_EQ(colors.RgbColor(CColorControl::ButtonFace), face);
    EXPECT_EQ(colors.RgbColor(CColorControl::WindowBackground), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(CColorControl::WindowBackground, 11);
}

TEST(ColorControl, IndexOutsideOfTheTableIsBlack)
{
    CColorControl const colors;
    EXPECT_EQ(colors.RgbColor(static_cast<CColorControl::Color_e>(12)), 0U);
    EXPECT_EQ(colors.RgbColor(static_cast<CColorControl::Color_e>(15)), 0U);
}

TEST(ColorControl, ChangeOfTheSystemsColorsDoesNotReachAnObject)
{
    OpenColors const before;
    int const index = COLOR_BTNFACE;
    COLORREF const other = face ^ 0x0F0F0F;
    ::SetSysColors(1, &index, &other);
    OpenColors const after;
    ::SetSysColors(1, &index, &face);
    EXPECT_EQ(before.RgbColor(CColorControl::ButtonFace), face);
    EXPECT_EQ(after.RgbColor(CColorControl::ButtonFace), other);
    EXPECT_EQ(after.m_bgColor, other);
}

TEST(ColorControl, TwoColorsAreTheHotOnesToo)
{
    OpenColors colors;
    colors.SetColors(1UL, 2UL);
    EXPECT_EQ(colors.m_fgColor, 1U);
    EXPECT_EQ(colors.m_bgColor, 2U);
    EXPECT_EQ(colors.m_hotFgColor, 1U);
    EXPECT_EQ(colors.m_hotBgColor, 2U);
    colors.SetColors(CColorControl::Red, CColorControl::Blue);
    EXPECT_EQ(colors.m_fgColor, 0x0000FFU);
    EXPECT_EQ(colors.m_bgColor, 0xFF0000U);
    EXPECT_EQ(colors.m_hotFgColor, 0x0000FFU);
    EXPECT_EQ(colors.m_hotBgColor, 0xFF0000U);
}

TEST(ColorControl, SingleForegroundAndBackgroundLeaveTheHotColors)
{
    OpenColors colors;
    colors.SetFgColor(5UL);
    colors.SetBgColor(6UL);
    EXPECT_EQ(colors.m_fgColor, 5U);
    EXPECT_EQ(colors.m_bgColor, 6U);
    EXPECT_EQ(colors.m_hotFgColor, text);
    EXPECT_EQ(colors.m_hotBgColor, face);
    colors.SetFgColor(CColorControl::Yellow);
    colors.SetBgColor(CColorControl::DarkGrey);
    EXPECT_EQ(colors.m_fgColor, 0x00FFFFU);
    EXPECT_EQ(colors.m_bgColor, 0x808080U);
    EXPECT_EQ(Pen(colors).lopnColor, 0x00FF00U);
}

TEST(ColorControl, FourColorsAreSet)
{
    OpenColors colors;
    colors.SetColors(1, 2, 3, 4);
    EXPECT_EQ(colors.m_fgColor, 1U);
    EXPECT_EQ(colors.m_bgColor, 2U);
    EXPECT_EQ(colors.m_hotFgColor, 3U);
    EXPECT_EQ(colors.m_hotBgColor, 4U);
    colors.SetColors(CColorControl::Black, CColorControl::White, CColorControl::Red, CColorControl::Green);
    EXPECT_EQ(colors.m_fgColor, 0U);
    EXPECT_EQ(colors.m_bgColor, 0xFFFFFFU);
    EXPECT_EQ(colors.m_hotFgColor, 0x0000FFU);
    EXPECT_EQ(colors.m_hotBgColor, 0x00FF00U);
}

TEST(ColorControl, HotForegroundMakesPenAndBrush)
{
    OpenColors colors;
    colors.SetHotFgColor(0x123456);
    EXPECT_EQ(Color(*colors.m_hotFgBrush), 0x123456U);
    EXPECT_EQ(Color(*colors.m_hotBgBrush), face);
    LOGPEN const pen = Pen(colors);
    EXPECT_EQ(pen.lopnColor, 0x123456U);
    EXPECT_EQ(pen.lopnStyle, static_cast<UINT>(PS_SOLID));
    EXPECT_EQ(pen.lopnWidth.x, 0);
}

TEST(ColorControl, HotForegroundAsItIsLeavesTheGreenPen)
{
    OpenColors colors;
    CPen const * const pen = colors.m_hotPen;
    colors.SetHotFgColor(text);
    EXPECT_EQ(colors.m_hotPen, pen);
    EXPECT_EQ(Pen(colors).lopnColor, 0x00FF00U);
    EXPECT_EQ(Color(*colors.m_hotFgBrush), face);
}

TEST(ColorControl, HotBackgroundMakesItsBrushAlone)
{
    OpenColors colors;
    CPen const * const pen = colors.m_hotPen;
    CBrush const * const brush = colors.m_hotBgBrush;
    colors.SetHotBgColor(face);
    EXPECT_EQ(colors.m_hotBgBrush, brush);
    colors.SetHotBgColor(0x654321);
    EXPECT_EQ(Color(*colors.m_hotBgBrush), 0x654321U);
    EXPECT_EQ(Color(*colors.m_hotFgBrush), face);
    EXPECT_EQ(colors.m_hotPen, pen);
}

TEST(ColorControl, DisabledColorsAreSetTogetherOrAlone)
{
    OpenColors colors;
    colors.SetDisabledColors(1, 2);
    EXPECT_EQ(colors.m_disabledFgColor, 1U);
    EXPECT_EQ(colors.m_disabledBgColor, 2U);
    colors.SetDisabledFgColor(3);
    colors.SetDisabledBgColor(4);
    EXPECT_EQ(colors.m_disabledFgColor, 3U);
    EXPECT_EQ(colors.m_disabledBgColor, 4U);
}

TEST(ColorControl, RolloverDelayIsStored)
{
    OpenColors colors;
    colors.SetRolloverDelay(250);
    EXPECT_EQ(colors.m_rolloverDelay, 250U);
}

TEST(ColorControlCopy, SharesItsDrawingObjects)
{
    OpenColors colors;
    colors.SetColors(1, 2, 3, 4);
    colors.SetDisabledColors(5, 6);
    colors.SetRolloverDelay(70);
    colors.m_hot = true;
    OpenColors const copy(colors);
    EXPECT_EQ(copy.m_hotPen, colors.m_hotPen);
    EXPECT_EQ(copy.m_hotFgBrush, colors.m_hotFgBrush);
    EXPECT_EQ(copy.m_hotBgBrush, colors.m_hotBgBrush);
    EXPECT_EQ(copy.m_fgColor, 1U);
    EXPECT_EQ(copy.m_bgColor, 2U);
    EXPECT_EQ(copy.m_hotFgColor, 3U);
    EXPECT_EQ(copy.m_hotBgColor, 4U);
    EXPECT_EQ(copy.m_disabledFgColor, 5U);
    EXPECT_EQ(copy.m_disabledBgColor, 6U);
    EXPECT_EQ(copy.m_rolloverDelay, 70U);
    EXPECT_EQ(copy.m_timerId, 1U);
    EXPECT_TRUE(copy.m_hot);
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(copy.m_colorTable[i], colors.m_colorTable[i]);
}

TEST(ColorControlCopy, KeepsThePenThatTheOtherReplaces)
{
    OpenColors colors;
    OpenColors const copy(colors);
    colors.SetHotFgColor(0x010203);
    colors.SetHotBgColor(0x040506);
    EXPECT_EQ(Pen(copy).lopnColor, 0x00FF00U);
    EXPECT_EQ(Color(*copy.m_hotBgBrush), face);
    EXPECT_EQ(Pen(colors).lopnColor, 0x010203U);
}

TEST(ColorControlCopy, OutlivesTheOther)
{
    auto colors = std::make_unique<OpenColors>();
    colors->SetHotFgColor(0x010203);
    OpenColors const copy(*colors);
    colors.reset();
    EXPECT_EQ(Pen(copy).lopnColor, 0x010203U);
}

TEST(ColorControlCopy, DeletesEachObjectOnce)
{
    tests::GuardedHeap heap;
    tests::GdiBalance const balance;
    size_t const blocks = heap.LiveBlocks();
    {
        OpenColors first;
        first.SetHotFgColor(1);
        OpenColors second(first);
        OpenColors third;
        third = second;
        third = *&third; // itself
        EXPECT_EQ(third.m_hotPen, first.m_hotPen);
        second.SetHotFgColor(2);
        first = second;
        std::vector<OpenColors> many(10, third);
        many[3].SetHotBgColor(9);
        many[4] = many[3];
        many.erase(many.begin() + 3);
    }
    EXPECT_EQ(heap.Check(), 0U);
    EXPECT_EQ(heap.LiveBlocks(), blocks);
}
