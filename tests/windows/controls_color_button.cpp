// The colour button on a window: what it paints in its states, and how it notices the pointer.

#include <gtest/gtest.h>

#include <functional>

#include "Bitmap.h"
#include "controls/ColorButton.h"
#include "DialogTemplate.h"
#include "GdiHandleCount.h"
#include "GoldenImage.h"
#include "Input.h"
#include "MessageRecorder.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
constexpr int width = 100;
constexpr int height = 40;
constexpr UINT button_id = 40;
constexpr COLORREF behind = RGB(200, 10, 200);

/// The button with its inside open.
class OpenButton : public CColorButton
{
public:
    using CColorButton::GetThisMessageMap;
    using CColorButton::m_bgColor;
    using CColorButton::m_disabledBgColor;
    using CColorButton::m_disabledFgColor;
    using CColorButton::m_disabledIcon;
    using CColorButton::m_drawFocusFrame;
    using CColorButton::m_drawFrame;
    using CColorButton::m_fgColor;
    using CColorButton::m_hot;
    using CColorButton::m_hotBgColor;
    using CColorButton::m_hotFgColor;
    using CColorButton::m_hotPen;
    using CColorButton::m_icon;
    using CColorButton::m_iconSize;
    using CColorButton::m_rolloverDelay;

    std::function<void()> m_onGetIcon;
    std::function<void()> m_onGetText;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        auto const action = message == BM_GETIMAGE ? m_onGetIcon : message == WM_GETTEXT ? m_onGetText : nullptr;
        if (action)
        {
            action();
            return 0;
        }
        return CColorButton::WindowProc(message, wParam, lParam);
    }
};

/// An icon in one colour.
class FlatIcon
{
public:
    FlatIcon(COLORREF color, int edge)
    {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        CBitmap picture;
        CBitmap mask;
        HDC const screen = ::GetDC(nullptr);
        picture.Attach(::CreateCompatibleBitmap(screen, edge, edge));
        ::ReleaseDC(nullptr, screen);
        mask.CreateBitmap(edge, edge, 1, 1, nullptr);
        CBitmap * const former = dc.SelectObject(&picture);
        dc.FillSolidRect(0, 0, edge, edge, color);
        dc.SelectObject(&mask);
        dc.PatBlt(0, 0, edge, edge, BLACKNESS);
        dc.SelectObject(former);
        ICONINFO info{TRUE, 0, 0, mask, picture};
        m_icon = ::CreateIconIndirect(&info);
    }
    ~FlatIcon() { ::DestroyIcon(m_icon); }
    FlatIcon(FlatIcon const &) = delete;
    FlatIcon & operator=(FlatIcon const &) = delete;

    operator HICON() const { return m_icon; }

private:
    HICON m_icon;
};

class ColorButtonTest : public testing::Test
{
protected:
    void Open(wchar_t const * text = L"")
    {
        ASSERT_TRUE(
            m_button.Create(text, WS_CHILD | WS_VISIBLE, CRect(20, 20, 20 + width, 20 + height), m_host, button_id));
        tests::PumpPosted();
    }
    /// The button as it paints itself in that state.
    void Draw(tests::Canvas & canvas, UINT state = 0)
    {
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.CtlID = button_id;
        item.itemAction = ODA_DRAWENTIRE;
        item.itemState = state;
        item.hwndItem = m_button.m_hWnd;
        item.hDC = canvas.Dc();
        item.rcItem = CRect(0, 0, width, height);
        m_button.DrawItem(&item);
    }
    /// The rectangle within the frame's edges.
    static CRect Inner()
    {
        CRect inner(0, 0, width, height);
        inner.DeflateRect(::GetSystemMetrics(SM_CXEDGE), ::GetSystemMetrics(SM_CYEDGE));
        return inner;
    }
    static int Area(CRect const & rect) { return rect.Width() * rect.Height(); }

    tests::ScopedWindow m_host{CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE};
    OpenButton m_button;
    tests::WindowCloser m_closer{m_button};
    tests::Canvas m_canvas{width, height, behind};
};

using ColorButton = ColorButtonTest;
using ColorButtonPaint = ColorButtonTest;
using ColorButtonHot = ColorButtonTest;
using ColorButtonGolden = ColorButtonTest;
} // namespace

TEST_F(ColorButton, StartsWithItsDefaults)
{
    EXPECT_TRUE(m_button.m_drawFrame);
    EXPECT_FALSE(m_button.m_drawFocusFrame);
    EXPECT_EQ(m_button.m_icon, nullptr);
    EXPECT_EQ(m_button.m_disabledIcon, nullptr);
    EXPECT_EQ(m_button.m_iconSize, 32);
    EXPECT_FALSE(m_button.m_hot);
}

TEST_F(ColorButton, IsAButtonWithColors)
{
    EXPECT_TRUE(m_button.IsKindOf(RUNTIME_CLASS(CButton)));
    CColorControl & colors = m_button;
    colors.SetFgColor(7UL);
    EXPECT_EQ(m_button.m_fgColor, 7U);
}

TEST_F(ColorButton, HandlesMouseMovesAndTimersOnly)
{
    AFX_MSGMAP const * const map = OpenButton::GetThisMessageMap();
    EXPECT_EQ(map->lpEntries[0].nMessage, static_cast<UINT>(WM_MOUSEMOVE));
    EXPECT_EQ(map->lpEntries[1].nMessage, static_cast<UINT>(WM_TIMER));
    EXPECT_EQ(map->lpEntries[2].nMessage, 0U);
    EXPECT_EQ(map->lpEntries[2].pfn, nullptr);
}

TEST_F(ColorButton, BecomesOwnerDrawnWhereverItComesFrom)
{
    Open();
    EXPECT_EQ(m_button.GetButtonStyle(), 11U);
    m_button.DestroyWindow();

    tests::DialogTemplate layout(L"Buttons");
    layout.Add(L"Button", L"caption", button_id, CRect(10, 10, 60, 30), BS_PUSHBUTTON);
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(layout.Get(), m_host));
    tests::WindowCloser const dialogCloser(dialog);
    ASSERT_TRUE(m_button.SubclassDlgItem(button_id, &dialog));
    EXPECT_EQ(m_button.GetStyle() & 0x0B, 11U);
}

TEST_F(ColorButton, ResetGivesAlmostBlackToTheDisabledState)
{
    m_button.SetColors(1, 2, 3, 4);
    m_button.ResetColors();
    EXPECT_EQ(m_button.m_fgColor, ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(m_button.m_bgColor, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(m_button.m_hotFgColor, ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(m_button.m_hotBgColor, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(m_button.m_disabledFgColor, 0x000006U);
    EXPECT_EQ(m_button.m_disabledBgColor, 0x00000AU);
    Open();
    Draw(m_canvas, ODS_DISABLED);
    EXPECT_EQ(m_canvas.Count(0x00000A, Inner()), Area(Inner()));
}

TEST_F(ColorButton, SettersDoNotRepaint)
{
    Open();
    m_button.ValidateRect(nullptr);
    m_button.ResetColors();
    m_button.SetColors(1, 2, 3, 4);
    m_button.DrawFrame(false);
    m_button.DrawFocusFrame(true);
    EXPECT_FALSE(::GetUpdateRect(m_button.m_hWnd, nullptr, FALSE));
}

TEST_F(ColorButton, IconGoesToTheButton)
{
    FlatIcon const icon(RGB(0, 0, 255), 16);
    FlatIcon const other(RGB(255, 0, 0), 16);
    Open();
    m_button.SetIcons(icon, other, 16);
    EXPECT_EQ(m_button.GetIcon(), static_cast<HICON>(icon));
    EXPECT_EQ(m_button.m_icon, nullptr) << "read at the next paint";
    EXPECT_EQ(m_button.m_disabledIcon, static_cast<HICON>(other));
    EXPECT_EQ(m_button.m_iconSize, 16);
    Draw(m_canvas);
    EXPECT_EQ(m_button.m_icon, static_cast<HICON>(icon));
    m_button.SetIcon(nullptr);
    Draw(m_canvas);
    EXPECT_EQ(m_button.m_icon, nullptr);
}

TEST_F(ColorButton, WithoutAWindowTakesWhatItIsTold)
{
    FlatIcon const icon(RGB(0, 0, 255), 16);
    m_button.SetIcons(icon, icon, 24);
    m_button.SetColors(1UL, 2UL);
    m_button.ResetColors();
    EXPECT_EQ(m_button.m_iconSize, 24);
    m_button.DrawItem(nullptr);
    DRAWITEMSTRUCT item{};
    m_button.DrawItem(&item);
}

TEST_F(ColorButtonPaint, FillsWithTheStatesColor)
{
    Open();
    m_button.SetColors(1, 0x102030, 2, 0x405060);
    m_button.SetDisabledColors(3, 0x708090);
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.Count(0x102030, Inner()), Area(Inner()));
    m_button.m_hot = true;
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.Count(0x405060, Inner()), Area(Inner()));
    Draw(m_canvas, ODS_DISABLED);
    EXPECT_EQ(m_canvas.Count(0x708090, Inner()), Area(Inner()));
}

TEST_F(ColorButtonPaint, FrameIsSunkenWhilePressed)
{
    Open();
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.Count(behind), 0);
    tests::Canvas expected(width, height, behind);
    CRect frame(0, 0, width, height);
    expected.Dc().DrawFrameControl(frame, DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_PUSHED);
    Draw(m_canvas, ODS_SELECTED);
    for (int x = 0; x < width; ++x)
        EXPECT_EQ(m_canvas.Pixel(x, 0), expected.Pixel(x, 0)) << x;
    tests::Canvas raised(width, height, behind);
    raised.Dc().DrawFrameControl(frame, DFC_BUTTON, DFCS_BUTTONPUSH);
    EXPECT_NE(raised.Pixel(5, 0), expected.Pixel(5, 0));
}

TEST_F(ColorButtonPaint, WithoutFrameAndInTheFacesColorFillsNothing)
{
    Open();
    m_button.DrawFrame(false);
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.Count(behind), width * height);
    m_button.SetBgColor(0x102030UL);
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.Count(0x102030), Area(Inner()));
    EXPECT_EQ(m_canvas.Count(behind), width * height - Area(Inner()));
}

TEST_F(ColorButtonPaint, FocusFrameIsGreenUntilTheHotColorChanges)
{
    Open();
    m_button.DrawFrame(false);
    m_button.DrawFocusFrame(true);
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.Count(behind), width * height) << "not hot";
    m_button.m_hot = true;
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.BoundsOf(RGB(0, 255, 0)), CRect(0, 0, width, height));
    EXPECT_EQ(m_canvas.Count(RGB(0, 255, 0)), 2 * width + 2 * height - 4);
    m_button.SetHotFgColor(::GetSysColor(COLOR_BTNTEXT));
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.Count(RGB(0, 255, 0)), 2 * width + 2 * height - 4) << "the color as it is";
    m_button.SetHotFgColor(0x112233);
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.Count(RGB(0, 255, 0)), 0);
    EXPECT_EQ(m_canvas.Count(0x112233), 2 * width + 2 * height - 4);
}

TEST_F(ColorButtonPaint, DisabledButtonDrawsItsNormalIconWithoutAnotherOne)
{
    FlatIcon const icon(RGB(0, 0, 255), 32);
    FlatIcon const other(RGB(255, 0, 0), 32);
    Open();
    m_button.SetIcons(icon, nullptr, 32);
    Draw(m_canvas, ODS_DISABLED);
    EXPECT_EQ(m_canvas.BoundsOf(RGB(0, 0, 255)), CRect(34, 4, 66, 36));
    EXPECT_EQ(m_canvas.Count(RGB(0, 0, 255)), 32 * 32);
    m_button.SetIcons(icon, other, 32);
    Draw(m_canvas, ODS_DISABLED);
    EXPECT_EQ(m_canvas.Count(RGB(0, 0, 255)), 0);
    EXPECT_EQ(m_canvas.BoundsOf(RGB(255, 0, 0)), CRect(34, 4, 66, 36));
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.Count(RGB(255, 0, 0)), 0);
    m_button.SetIcons(nullptr, other, 32);
    Draw(m_canvas, ODS_DISABLED);
    EXPECT_EQ(m_canvas.Count(RGB(255, 0, 0)), 0) << "no icon at all without the normal one";
}

TEST_F(ColorButtonPaint, IconSizeOnlyCentres)
{
    FlatIcon const icon(RGB(0, 0, 255), 32);
    Open();
    m_button.SetIcons(icon, nullptr, 16);
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.BoundsOf(RGB(0, 0, 255)), CRect(42, 12, 74, height));
}

TEST_F(ColorButtonPaint, PressedButtonMovesItsCaptionByOnePixelAndNotItsIcon)
{
    FlatIcon const icon(RGB(0, 0, 255), 32);
    Open(L"I");
    m_button.SetFgColor(0x00FF00UL);
    m_button.SetBgColor(0xFFFFFFUL);
    auto const caption = [this](UINT state) {
        Draw(m_canvas, state);
        return m_canvas.BoundsOf([](COLORREF color) { return GetGValue(color) > GetRValue(color) + 60; });
    };
    CRect const normal = caption(0);
    ASSERT_FALSE(normal.IsRectEmpty());
    EXPECT_EQ(caption(ODS_SELECTED), normal + CPoint(1, 1));

    m_button.SetIcons(icon, nullptr, 32);
    Draw(m_canvas);
    EXPECT_EQ(m_canvas.BoundsOf(RGB(0, 0, 255)), CRect(34, 4, 66, 36));
    EXPECT_GT(m_canvas.Count(RGB(0, 255, 0)), 0) << "the text stands over the icon";
    Draw(m_canvas, ODS_SELECTED);
    EXPECT_EQ(m_canvas.BoundsOf(RGB(0, 0, 255)), CRect(34, 4, 66, 36));
}

TEST_F(ColorButtonPaint, CaptionStandsAtTheCentreLessHalfItsExtent)
{
    Open(L"III");
    m_button.SetFgColor(0x0000FFUL);
    m_button.SetBgColor(0xFFFFFFUL);
    CSize const extent = m_canvas.Dc().GetTextExtent(L"III");
    Draw(m_canvas);
    CPoint const origin(width / 2 - extent.cx / 2, height / 2 - extent.cy / 2);
    tests::Canvas expected(width, height, behind);
    CRect frame(0, 0, width, height);
    expected.Dc().DrawFrameControl(frame, DFC_BUTTON, DFCS_BUTTONPUSH);
    expected.Dc().FillSolidRect(Inner(), 0xFFFFFF);
    expected.Dc().SetBkMode(TRANSPARENT);
    expected.Dc().SetTextColor(0x0000FF);
    expected.Dc().TextOut(origin.x, origin.y, L"III");
    EXPECT_TRUE(tests::SamePixels(m_canvas, expected));
}

TEST_F(ColorButtonPaint, AmpersandUnderlinesOnlyWhileDisabled)
{
    Open(L"&I");
    m_button.SetBgColor(0xFFFFFFUL);
    m_button.SetDisabledBgColor(0xFFFFFF);
    Draw(m_canvas);
    tests::Canvas expected(width, height, behind);
    CSize const extent = m_canvas.Dc().GetTextExtent(L"&I", 2);
    CRect frame(0, 0, width, height);
    expected.Dc().DrawFrameControl(frame, DFC_BUTTON, DFCS_BUTTONPUSH);
    expected.Dc().FillSolidRect(Inner(), 0xFFFFFF);
    expected.Dc().SetBkMode(TRANSPARENT);
    expected.Dc().SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    expected.Dc().TextOut(width / 2 - extent.cx / 2, height / 2 - extent.cy / 2, L"&I", 2);
    EXPECT_TRUE(tests::SamePixels(m_canvas, expected)) << "a plain character";

    auto const inked = [this](wchar_t const * text) {
        m_button.SetWindowText(text);
        Draw(m_canvas, ODS_DISABLED);
        return Area(Inner()) - m_canvas.Count(0xFFFFFF, Inner());
    };
    int const plain = inked(L"I");
    int const underlined = inked(L"&I");
    int const twoSigns = inked(L"&&I");
    EXPECT_GT(plain, 0);
    EXPECT_GT(underlined, plain) << "the line below the letter";
    EXPECT_GT(twoSigns, underlined) << "but no sign";
}

TEST_F(ColorButtonPaint, DisabledCaptionIsNotCut)
{
    constexpr wchar_t const * text = L"Reset, disabled";
    constexpr int wide = 260;
    Open(text);
    m_button.SetDisabledBgColor(0);
    m_button.DrawFrame(false);
    for (int size = 9; size < 25; ++size)
    {
        CFont font;
        font.CreateFont(-size, 0, 0, 0, FW_NORMAL, FALSE, FALSE, 0, DEFAULT_CHARSET, 0, 0, CLEARTYPE_QUALITY, 0,
                        L"Tahoma");
        tests::Canvas own(wide, height, 0);
        tests::Canvas expected(wide, height, 0);
        own.Dc().SelectObject(&font);
        expected.Dc().SelectObject(&font);
        DRAWITEMSTRUCT item{};
        item.itemState = ODS_DISABLED;
        item.hDC = own.Dc();
        item.rcItem = CRect(0, 0, wide, height);
        m_button.DrawItem(&item);
        CSize const extent = own.Dc().GetTextExtent(text);
        CPoint const origin(wide / 2 - extent.cx / 2, height / 2 - extent.cy / 2);
        expected.Dc().DrawState(origin, CSize(wide, extent.cy), text, DSS_DISABLED, TRUE, 0,
                                static_cast<CBrush *>(nullptr));
        EXPECT_TRUE(tests::SamePixels(own, expected)) << "font of " << size << " pixels";
        own.Dc().SelectStockObject(SYSTEM_FONT);
        expected.Dc().SelectStockObject(SYSTEM_FONT);
    }
}

TEST_F(ColorButtonPaint, RestoresModeAndColorOfTheContext)
{
    Open(L"text");
    for (UINT const state : {0U, static_cast<UINT>(ODS_DISABLED)})
    {
        m_canvas.Dc().SetBkMode(OPAQUE);
        m_canvas.Dc().SetTextColor(0x123123);
        CPen * const pen = m_canvas.Dc().GetCurrentPen();
        m_button.DrawFocusFrame(true);
        m_button.m_hot = true;
        Draw(m_canvas, state);
        EXPECT_EQ(m_canvas.Dc().GetBkMode(), OPAQUE);
        EXPECT_EQ(m_canvas.Dc().GetTextColor(), 0x123123U);
        EXPECT_EQ(m_canvas.Dc().GetCurrentPen()->GetSafeHandle(), pen->GetSafeHandle());
    }
}

TEST_F(ColorButtonPaint, ShowsOnTheScreen)
{
    Open();
    m_button.SetBgColor(0x336699UL);
    m_button.RedrawWindow();
    tests::Canvas screen(width, height);
    screen.CopyFromScreen(m_button);
    EXPECT_EQ(screen.Count(0x336699, Inner()), Area(Inner()));
}

TEST_F(ColorButtonPaint, EndsInTheMiddleOfAPaintWithoutHarm)
{
    for (bool const atIcon : {true, false})
    {
        auto * const doomed = new OpenButton;
        ASSERT_TRUE(doomed->Create(L"x", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), m_host, 9));
        auto const end = [doomed] { delete doomed; };
        if (atIcon)
            doomed->m_onGetIcon = end;
        else
            doomed->m_onGetText = end;
        HWND const window = doomed->m_hWnd;
        DRAWITEMSTRUCT item{};
        item.hDC = m_canvas.Dc();
        item.rcItem = CRect(0, 0, 50, 20);
        doomed->DrawItem(&item);
        EXPECT_FALSE(::IsWindow(window));
    }
}

TEST_F(ColorButtonPaint, LeavesNoGdiObjectBehind)
{
    FlatIcon const icon(RGB(0, 0, 255), 32);
    Open(L"text");
    m_button.DrawFocusFrame(true);
    m_button.SetIcons(icon, nullptr, 32);
    EXPECT_EQ(tests::GdiGrowth(
                  [this] {
                      for (int i = 0; i < 1700; ++i)
                      {
                          m_button.m_hot = i % 2 == 0;
                          Draw(m_canvas, i % 3 == 0 ? ODS_DISABLED : 0);
                          m_button.SetHotFgColor(static_cast<COLORREF>(i));
                      }
                  },
                  3),
              0);
}

TEST_F(ColorButtonGolden, StatesWithoutText)
{
    FlatIcon const icon(RGB(0, 0, 255), 32);
    Open();
    m_button.SetColors(1, RGB(250, 220, 160), 2, RGB(255, 240, 200));
    m_button.SetDisabledColors(3, RGB(220, 220, 220));
    m_button.SetIcons(icon, nullptr, 32);
    Draw(m_canvas);
    tests::ExpectGolden(m_canvas, "color_button_normal");
    Draw(m_canvas, ODS_SELECTED);
    tests::ExpectGolden(m_canvas, "color_button_pressed");
    Draw(m_canvas, ODS_DISABLED);
    tests::ExpectGolden(m_canvas, "color_button_disabled");
    m_button.m_hot = true;
    Draw(m_canvas);
    tests::ExpectGolden(m_canvas, "color_button_hot");
    m_button.DrawFrame(false);
    m_button.DrawFocusFrame(true);
    m_canvas.Fill(behind);
    Draw(m_canvas);
    tests::ExpectGolden(m_canvas, "color_button_hot_frameless");
}

TEST_F(ColorButtonHot, FollowsTheRealPointer)
{
    Open();
    m_button.SetHotBgColor(0x00AAFF);
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {250, 150})));
    tests::PumpPosted();
    EXPECT_FALSE(m_button.m_hot);
    ASSERT_TRUE(tests::MoveMouse(tests::Centre(m_button.m_hWnd)));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_button.m_hot; }));
    tests::Canvas screen(width, height);
    EXPECT_TRUE(tests::PumpUntil([&] {
        screen.CopyFromScreen(m_button);
        return screen.Count(0x00AAFF, Inner()) == Area(Inner());
    }));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {250, 150})));
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_button.m_hot; }));
    EXPECT_TRUE(tests::PumpUntil([&] {
        screen.CopyFromScreen(m_button);
        return screen.Count(0x00AAFF) == 0;
    }));
    EXPECT_FALSE(m_button.KillTimer(1)) << "the timer is gone";
}

TEST_F(ColorButtonHot, FirstMoveInvalidatesAndStartsTheTimer)
{
    Open();
    tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {250, 150}));
    m_button.SetRolloverDelay(100000);
    m_button.ValidateRect(nullptr);
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(m_button.m_hot);
    EXPECT_TRUE(::GetUpdateRect(m_button.m_hWnd, nullptr, FALSE));
    m_button.ValidateRect(nullptr);
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
    EXPECT_FALSE(::GetUpdateRect(m_button.m_hWnd, nullptr, FALSE)) << "hot already";
    EXPECT_TRUE(m_button.KillTimer(1));
}

TEST_F(ColorButtonHot, AnyTimerLooksForThePointer)
{
    Open();
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {250, 150})));
    tests::PumpPosted();
    m_button.SetRolloverDelay(100000);
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    ASSERT_TRUE(m_button.m_hot);
    m_button.ValidateRect(nullptr);
    m_button.PostMessage(WM_TIMER, 77);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_button.m_hot; }));
    EXPECT_FALSE(m_button.KillTimer(1));
}

TEST_F(ColorButtonHot, DelayChangedWhileHotCountsFromTheNextEntry)
{
    Open();
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host.m_hWnd, {250, 150})));
    tests::PumpPosted();
    m_button.SetRolloverDelay(100000);
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    m_button.SetRolloverDelay(10);
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
    tests::PumpFor(std::chrono::milliseconds(150));
    EXPECT_TRUE(m_button.m_hot) << "the long period goes on";
    m_button.PostMessage(WM_TIMER, 1);
    ASSERT_TRUE(tests::PumpUntil([this] { return !m_button.m_hot; }));
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(tests::PumpUntil([this] { return !m_button.m_hot; })) << "the short one ends it";
}

TEST_F(ColorButtonHot, SecondWindowStartsCold)
{
    Open();
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    ASSERT_TRUE(m_button.m_hot);
    m_button.DestroyWindow();
    Open();
    EXPECT_FALSE(m_button.m_hot);
}
