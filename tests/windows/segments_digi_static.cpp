// The segment display as a control: what its setters do to its text, its style and its window.

#include <gtest/gtest.h>

#include <functional>

#include "DialogTemplate.h"
#include "MessageRecorder.h"
#include "resource.h"
#include "segments/DigiStyle.h"
#include "segments_DigiStaticTest.h"

namespace
{
constexpr UINT missing_string = 29999;
constexpr int display_id = 300;

class DigiStaticControl : public tests::DisplayTest
{
protected:
    /// Whether the action asks for a repaint.
    bool Invalidates(std::function<void()> const & action)
    {
        m_display.ValidateRect(nullptr);
        action();
        return m_display.NeedsPaint();
    }
    /// Whether the next paint makes the characters anew.
    bool Rebuilds()
    {
        m_display.WasRebuilt();
        Paint();
        return m_display.WasRebuilt();
    }
};

using DigiStaticText = DigiStaticControl;
using DigiStaticStyle = DigiStaticControl;
using DigiStaticColors = DigiStaticControl;
using DigiStaticRepaint = DigiStaticControl;
} // namespace

TEST_F(DigiStaticControl, StartsWithItsDefaults)
{
    EXPECT_EQ(m_display.m_chars.GetSize(), 50);
    EXPECT_EQ(m_display.LineWidth(), 2450);
    EXPECT_EQ(m_display.m_text, L"");
    EXPECT_FALSE(m_display.m_modified);
    EXPECT_EQ(m_display.m_offColor, 0x005000U);
    EXPECT_EQ(m_display.m_onColor, 0x00FF00U);
    EXPECT_EQ(m_display.m_backColor, 0x501E00U);
    EXPECT_EQ(m_display.m_digiStyle, 20U);
    EXPECT_FALSE(m_display.m_drawImmediately);
    EXPECT_FALSE(m_display.m_transparent);
    EXPECT_EQ(m_display.m_buttonRect, CRect(0, 0, 0, 0));
}

TEST_F(DigiStaticControl, IsAStaticWithARunTimeClass)
{
    CDigiStatic const plain;
    EXPECT_STREQ(plain.GetRuntimeClass()->m_lpszClassName, "CDigiStatic");
    EXPECT_EQ(plain.GetRuntimeClass(), RUNTIME_CLASS(CDigiStatic));
    EXPECT_TRUE(plain.IsKindOf(RUNTIME_CLASS(CStatic)));
    EXPECT_EQ(RUNTIME_CLASS(CDigiStatic)->m_pfnGetBaseClass(), RUNTIME_CLASS(CStatic));
    Open();
    wchar_t name[16] = L"";
    GetClassNameW(m_display, name, 16);
    EXPECT_STREQ(name, L"Static");
}

TEST_F(DigiStaticControl, HandlesPaintAndEraseOnly)
{
    AFX_MSGMAP const * const map = tests::OpenDisplay::GetThisMessageMap();
    EXPECT_EQ(map->lpEntries[0].nMessage, static_cast<UINT>(WM_PAINT));
    EXPECT_EQ(map->lpEntries[1].nMessage, static_cast<UINT>(WM_ERASEBKGND));
    EXPECT_EQ(map->lpEntries[2].nMessage, 0U);
    EXPECT_EQ(map->lpEntries[2].pfn, nullptr);
}

TEST_F(DigiStaticControl, ErasesNothing)
{
    Open();
    tests::Canvas canvas(20, 20, RGB(1, 2, 3));
    EXPECT_EQ(m_display.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc().GetSafeHdc())), 0);
    EXPECT_EQ(canvas.Count(RGB(1, 2, 3)), 400);
}

TEST_F(DigiStaticControl, StandsInForADialogsStatic)
{
    tests::DialogTemplate layout(L"Display");
    layout.Add(L"Static", L"volt", display_id, CRect(10, 10, 150, 40), 0);
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(layout.Get(), m_host));
    tests::WindowCloser const dialogCloser(dialog);
    ASSERT_TRUE(m_display.SubclassDlgItem(display_id, &dialog));
    dialog.ShowWindow(SW_SHOW);
    tests::PumpPosted();
    m_display.SetText(L"?");
    Update();
    EXPECT_EQ(m_display.m_text, L"VOLT");
    EXPECT_EQ(m_display.m_chars.GetSize(), 4);
    tests::Canvas canvas(60, 30);
    canvas.CopyFromScreen(m_display);
    EXPECT_EQ(canvas.Pixel(0, 0), tests::display_back);
}

TEST_F(DigiStaticText, OfTheWindowDoesNotShowByItself)
{
    Open(L"88");
    Paint();
    EXPECT_EQ(m_display.m_chars.GetSize(), 50);
    EXPECT_EQ(m_display.LineWidth(), 2450);
    tests::Canvas canvas(display_width, display_height);
    Show(canvas);
    EXPECT_EQ(canvas.Count(tests::display_back), display_width * display_height);
}

TEST_F(DigiStaticText, IsBuiltInUpperCaseAtTheNextPaint)
{
    Open();
    m_display.SetText(L"12 v²");
    EXPECT_TRUE(m_display.m_modified);
    EXPECT_EQ(m_display.m_text, L"12 v²");
    EXPECT_EQ(m_display.m_chars.GetSize(), 50);
    Update();
    EXPECT_FALSE(m_display.m_modified);
    EXPECT_EQ(m_display.m_text, L"12 V²");
    ASSERT_EQ(m_display.m_chars.GetSize(), 5);
    EXPECT_EQ(m_display.m_chars[0].mask, 0x24);
    EXPECT_EQ(m_display.m_chars[3].mask, 0x030C);
    EXPECT_EQ(m_display.m_chars[4].mask, 0x20C4);
}

TEST_F(DigiStaticText, QuestionMarkStandsForTheWindowText)
{
    Open(L"Volt");
    m_display.SetText(L"?");
    EXPECT_EQ(m_display.m_text, L"?");
    Update();
    EXPECT_EQ(m_display.m_text, L"VOLT");
    EXPECT_EQ(m_display.m_chars.GetSize(), 4);
}

TEST_F(DigiStaticText, QuestionMarkAmongOthersStandsForItself)
{
    Open(L"Volt");
    m_display.SetText(L"1?");
    Update();
    EXPECT_EQ(m_display.m_text, L"1?");
    EXPECT_EQ(m_display.m_chars.GetSize(), 2);
}

TEST_F(DigiStaticText, InLowerCaseIsBuiltEachTime)
{
    Open();
    m_display.SetText(L"abc");
    EXPECT_TRUE(Rebuilds());
    m_display.SetText(L"abc");
    EXPECT_TRUE(m_display.m_modified);
    EXPECT_TRUE(Rebuilds());
    EXPECT_FALSE(Invalidates([this] { m_display.SetText(L"ABC"); }));
    EXPECT_FALSE(m_display.m_modified);
    EXPECT_FALSE(Rebuilds());
}

TEST_F(DigiStaticText, ThatIsTheSameDoesNothing)
{
    Open();
    m_display.SetText(L"123");
    Update();
    EXPECT_FALSE(Invalidates([this] { m_display.SetText(L"123"); }));
    EXPECT_FALSE(m_display.m_modified);
    EXPECT_TRUE(Invalidates([this] { m_display.SetText(L"124"); }));
    EXPECT_TRUE(m_display.m_modified);
}

TEST_F(DigiStaticText, EmptyLeavesNoCharactersAndTheBackground)
{
    Open();
    m_display.SetText(L"123");
    Update();
    m_display.SetText(L"");
    Update();
    EXPECT_EQ(m_display.m_chars.GetSize(), 0);
    tests::Canvas canvas(display_width, display_height);
    canvas.CopyFromScreen(m_display);
    EXPECT_EQ(canvas.Count(tests::display_back), display_width * display_height);
    m_display.ModifyDigiStyle(DigiStyleKeepAspect, 0);
    Show(canvas);
    EXPECT_EQ(canvas.Count(tests::display_back), display_width * display_height);
}

TEST_F(DigiStaticText, OfANullPointerIsEmpty)
{
    Open();
    m_display.SetText(L"123");
    m_display.SetText(nullptr);
    EXPECT_EQ(m_display.m_text, L"");
}

TEST_F(DigiStaticText, IsFormatted)
{
    Open();
    m_display.Format(L"%d.%02d %s", 3, 7, L"V");
    EXPECT_EQ(m_display.m_text, L"3.07 V");
    EXPECT_TRUE(m_display.m_modified);
}

TEST_F(DigiStaticText, IsFormattedByAResource)
{
    Open();
    m_display.Format(static_cast<unsigned int>(IDS_READING), 42, L"V");
    EXPECT_EQ(m_display.m_text, L"42 of V");
    m_display.Format(missing_string, 42);
    EXPECT_EQ(m_display.m_text, L"");
}

TEST_F(DigiStaticStyle, ConflictingRequestChangesNothing)
{
    Open();
    m_display.ValidateRect(nullptr);
    EXPECT_EQ(m_display.ModifyDigiStyle(4, 4), 0);
    EXPECT_EQ(m_display.ModifyDigiStyle(4 | 8, 8 | 1), 0);
    EXPECT_EQ(m_display.m_digiStyle, 20U);
    EXPECT_FALSE(m_display.m_modified);
    EXPECT_FALSE(m_display.NeedsPaint());
}

TEST_F(DigiStaticStyle, EmptyRequestRebuildsAndRepaints)
{
    Open();
    m_display.SetText(L"1");
    Update();
    EXPECT_TRUE(Invalidates([this] { EXPECT_EQ(m_display.ModifyDigiStyle(0, 0), 1); }));
    EXPECT_TRUE(m_display.m_modified);
    EXPECT_TRUE(Rebuilds());
    EXPECT_EQ(m_display.m_digiStyle, 20U);
}

TEST_F(DigiStaticStyle, BitsAreSetAndCleared)
{
    EXPECT_EQ(m_display.ModifyDigiStyle(4, 1 | 8), 1);
    EXPECT_EQ(m_display.m_digiStyle, 1U + 8 + 16);
    EXPECT_EQ(m_display.ModifyDigiStyle(1, 4), 1);
    EXPECT_EQ(m_display.m_digiStyle, 4U + 8 + 16);
    EXPECT_EQ(m_display.ModifyDigiStyle(1, 4), 1) << "as it is already";
    EXPECT_EQ(m_display.m_digiStyle, 4U + 8 + 16);
}

TEST_F(DigiStaticStyle, GoesIntoTheCharacters)
{
    Open();
    m_display.SetText(L"1");
    m_display.ModifyDigiStyle(0, DigiStyleAlways14 | DigiStyleHideOff);
    Update();
    ASSERT_EQ(m_display.m_chars.GetSize(), 1);
    EXPECT_EQ(m_display.m_chars[0].segmentCount, 14);
    EXPECT_EQ(m_display.m_chars[0].hideOff, 1);
}

TEST_F(DigiStaticStyle, ButtonRectSetsAndClearsItsBit)
{
    Open();
    CRect rect(5, 6, 25, 16);
    EXPECT_TRUE(Invalidates([&] { m_display.SetButtonRect(&rect); }));
    EXPECT_EQ(m_display.m_digiStyle, 20U + 32);
    EXPECT_EQ(m_display.m_buttonRect, CRect(5, 6, 25, 16));
    EXPECT_TRUE(m_display.m_modified);
    Update();
    EXPECT_FALSE(m_display.m_modified);
    m_display.SetButtonRect(&rect);
    EXPECT_EQ(m_display.m_digiStyle, 20U + 32);
    EXPECT_TRUE(Invalidates([&] { m_display.SetButtonRect(nullptr); }));
    EXPECT_EQ(m_display.m_digiStyle, 20U);
    EXPECT_TRUE(m_display.m_modified);
}

TEST_F(DigiStaticColors, OffComesFirst)
{
    Open();
    EXPECT_TRUE(Invalidates([this] { m_display.SetColor(1, 2); }));
    EXPECT_EQ(m_display.GetOffColor(), 1U);
    EXPECT_EQ(m_display.GetOnColor(), 2U);
    EXPECT_FALSE(Invalidates([this] { m_display.SetColor(1, 2); }));
    EXPECT_TRUE(Invalidates([this] { m_display.SetColor(1, 3); }));
    EXPECT_TRUE(Invalidates([this] { m_display.SetColor(4, 3); }));
    EXPECT_EQ(m_display.GetOffColor(), 4U);
    EXPECT_EQ(m_display.GetOnColor(), 3U);
}

TEST_F(DigiStaticColors, BackgroundGivesTheFormer)
{
    Open();
    EXPECT_TRUE(Invalidates([this] { EXPECT_EQ(m_display.SetBkColor(7), 0x501E00U); }));
    EXPECT_FALSE(Invalidates([this] { EXPECT_EQ(m_display.SetBkColor(7), 7U); }));
    EXPECT_EQ(m_display.m_backColor, 7U);
}

TEST_F(DigiStaticColors, GreenSchemeHasAnotherOffColorThanTheStart)
{
    Open();
    EXPECT_EQ(m_display.GetOffColor(), 0x005000U);
    EXPECT_TRUE(Invalidates([this] { m_display.SetColorScheme(ColorSchemeGreen); }));
    EXPECT_EQ(m_display.GetOffColor(), 0x283700U);
    EXPECT_EQ(m_display.GetOnColor(), 0x00FF00U);
    EXPECT_EQ(m_display.m_backColor, 0x501E00U);
    EXPECT_TRUE(Invalidates([this] { m_display.SetColorScheme(ColorSchemeGreen); })) << "even if nothing changes";
}

TEST_F(DigiStaticColors, OfTheLcdScheme)
{
    m_display.SetColorScheme(ColorSchemeLcd);
    EXPECT_EQ(m_display.GetOffColor(), 0xC5CEC5U);
    EXPECT_EQ(m_display.GetOnColor(), 0x404040U);
    EXPECT_EQ(m_display.m_backColor, 0xCDD7CDU);
}

TEST_F(DigiStaticColors, RepaintWithoutARebuild)
{
    Open();
    m_display.SetText(L"1");
    Update();
    m_display.SetColor(1, 2);
    EXPECT_FALSE(m_display.m_modified);
    m_display.SetBkColor(3);
    EXPECT_FALSE(m_display.m_modified);
    m_display.SetColorScheme(ColorSchemeRed);
    EXPECT_FALSE(m_display.m_modified);
    EXPECT_FALSE(Rebuilds());
}

TEST_F(DigiStaticRepaint, IsLeftToTheLoopAtFirst)
{
    Open();
    tests::MessageRecorder recorder({WM_PAINT, WM_ERASEBKGND});
    recorder.Watch(m_display.m_hWnd, "display");
    m_display.SetText(L"8");
    EXPECT_TRUE(m_display.m_modified);
    EXPECT_TRUE(recorder.Received().empty());
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_display.NeedsPaint(); }));
    EXPECT_TRUE(
        recorder.Matches({{"display", WM_PAINT, tests::Way::posted}, {"display", WM_ERASEBKGND, tests::Way::sent}}));
    EXPECT_FALSE(m_display.m_modified);
}

TEST_F(DigiStaticRepaint, IsDoneBeforeTheSetterReturnsIfWanted)
{
    Open();
    m_display.ValidateRect(nullptr);
    m_display.SetDrawImmediately(true);
    EXPECT_FALSE(m_display.NeedsPaint()) << "the switch itself repaints nothing";
    tests::MessageRecorder recorder({WM_PAINT, WM_ERASEBKGND});
    recorder.Watch(m_display.m_hWnd, "display");
    m_display.SetText(L"8");
    EXPECT_FALSE(m_display.m_modified);
    EXPECT_FALSE(m_display.NeedsPaint());
    EXPECT_TRUE(recorder.Matches({{"display", WM_PAINT, tests::Way::sent}})) << "nor is anything erased";
    tests::Canvas canvas(display_width, display_height);
    canvas.CopyFromScreen(m_display);
    EXPECT_GT(canvas.Count(tests::display_on), 0);

    m_display.SetDrawImmediately(false);
    m_display.SetText(L"7");
    EXPECT_TRUE(m_display.NeedsPaint());
}

TEST_F(DigiStaticRepaint, OfAControlWithoutAWindowTouchesNoOtherWindow)
{
    tests::PumpPosted();
    ::ValidateRect(m_host.m_hWnd, nullptr);
    m_display.SetText(L"8");
    EXPECT_FALSE(::GetUpdateRect(m_host.m_hWnd, nullptr, FALSE));
    tests::MessageRecorder recorder({WM_PAINT, WM_ERASEBKGND});
    recorder.Watch(m_host.m_hWnd, "parent");
    m_display.SetTransparent(true);
    m_display.SetDrawImmediately(true);
    m_display.SetColorScheme(ColorSchemeRed);
    EXPECT_TRUE(recorder.Matches({}));
    m_display.SetTransparent(false);
    Open();
    tests::Canvas canvas(display_width, display_height);
    Show(canvas);
    EXPECT_GT(canvas.Count(RGB(255, 0, 0)), 0) << "what was set before shows in the window";
}
