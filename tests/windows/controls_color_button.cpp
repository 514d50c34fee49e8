// The colour button on a window: what it paints in its states, and how it notices the pointer.

#include "controls/ColorButton.h"

#include "Bitmap.h"
#include "DialogTemplate.h"
#include "GdiHandleCount.h"
#include "GoldenImage.h"
#include "Input.h"
#include "MessageRecorder.h"
#include "Pump.h"
#include "ScopedWindow.h"

#include <gtest/gtest.h>

#include <functional>

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
            button.Create(text, WS_CHILD | WS_VISIBLE, CRect(20, 20, 20 + width, 20 + height), parent, button_id));
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
        item.hwndItem = button.m_hWnd;
        item.hDC = canvas.Dc();
        item.rcItem = CRect(0, 0, width, height);
        button.DrawItem(&item);
    }
    /// The rectangle within the frame's edges.
    static CRect Inner()
    {
        CRect inner(0, 0, width, height);
        inner.DeflateRect(::GetSystemMetrics(SM_CXEDGE), ::GetSystemMetrics(SM_CYEDGE));
        return inner;
    }
    static int Area(CRect const & rect) { return rect.Width() * rect.Height(); }

    tests::ScopedWindow parent{CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE};
    OpenButton button;
    tests::WindowCloser closer{button};
    tests::Canvas canvas{width, height, behind};
};

using ColorButton = ColorButtonTest;
using ColorButtonPaint = ColorButtonTest;
using ColorButtonHot = ColorButtonTest;
using ColorButtonGolden = ColorButtonTest;
} // namespace

TEST_F(ColorButton, StartsWithItsDefaults)
{
    EXPECT_TRUE(button.m_drawFrame);
    EXPECT_FALSE(button.m_drawFocusFrame);
    EXPECT_EQ(button.m_icon, nullptr);
    EXPECT_EQ(button.m_disabledIcon, nullptr);
    EXPECT_EQ(button.m_iconSize, 32);
    EXPECT_FALSE(button.m_hot);
}

TEST_F(ColorButton, IsAButtonWithColors)
{
    EXPECT_TRUE(button.IsKindOf(RUNTIME_CLASS(CButton)));
    CColorControl & colors = button;
    colors.SetFgColor(7UL);
    EXPECT_EQ(button.m_fgColor, 7U);
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
    EXPECT_EQ(button.GetButtonStyle(), 11U);
    button.DestroyWindow();

    tests::DialogTemplate layout(L"Buttons");
    layout.Add(L"Button", L"caption", button_id, CRect(10, 10, 60, 30), BS_PUSHBUTTON);
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(layout.Get(), parent));
    tests::WindowCloser const dialogCloser(dialog);
    ASSERT_TRUE(button.SubclassDlgItem(button_id, &dialog));
    EXPECT_EQ(button.GetStyle() & 0x0B, 11U);
}

TEST_F(ColorButton, ResetGivesAlmostBlackToTheDisabledState)
{
    button.SetColors(1, 2, 3, 4);
    button.ResetColors();
    EXPECT_EQ(button.m_fgColor, ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(button.m_bgColor, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(button.m_hotFgColor, ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(button.m_hotBgColor, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(button.m_disabledFgColor, 0x000006U);
    EXPECT_EQ(button.m_disabledBgColor, 0x00000AU);
    Open();
    Draw(canvas, ODS_DISABLED);
    EXPECT_EQ(canvas.Count(0x00000A, Inner()), Area(Inner()));
}

TEST_F(ColorButton, SettersDoNotRepaint)
{
    Open();
    button.ValidateRect(nullptr);
    button.ResetColors();
    button.SetColors(1, 2, 3, 4);
    button.DrawFrame(false);
    button.DrawFocusFrame(true);
    EXPECT_FALSE(::GetUpdateRect(button.m_hWnd, nullptr, FALSE));
}

TEST_F(ColorButton, IconGoesToTheButton)
{
    FlatIcon const icon(RGB(0, 0, 255), 16);
    FlatIcon const other(RGB(255, 0, 0), 16);
    Open();
    button.SetIcons(icon, other, 16);
    EXPECT_EQ(button.GetIcon(), static_cast<HICON>(icon));
    EXPECT_EQ(button.m_icon, nullptr) << "read at the next paint";
    EXPECT_EQ(button.m_disabledIcon, static_cast<HICON>(other));
    EXPECT_EQ(button.m_iconSize, 16);
    Draw(canvas);
    EXPECT_EQ(button.m_icon, static_cast<HICON>(icon));
    button.SetIcon(nullptr);
    Draw(canvas);
    EXPECT_EQ(button.m_icon, nullptr);
}

TEST_F(ColorButton, WithoutAWindowTakesWhatItIsTold)
{
    FlatIcon const icon(RGB(0, 0, 255), 16);
    button.SetIcons(icon, icon, 24);
    button.SetColors(1UL, 2UL);
    button.ResetColors();
    EXPECT_EQ(button.m_iconSize, 24);
    button.DrawItem(nullptr);
    DRAWITEMSTRUCT item{};
    button.DrawItem(&item);
}

TEST_F(ColorButtonPaint, FillsWithTheStatesColor)
{
    Open();
    button.SetColors(1, 0x102030, 2, 0x405060);
    button.SetDisabledColors(3, 0x708090);
    Draw(canvas);
    EXPECT_EQ(canvas.Count(0x102030, Inner()), Area(Inner()));
    button.m_hot = true;
    Draw(canvas);
    EXPECT_EQ(canvas.Count(0x405060, Inner()), Area(Inner()));
    Draw(canvas, ODS_DISABLED);
    EXPECT_EQ(canvas.Count(0x708090, Inner()), Area(Inner()));
}

TEST_F(ColorButtonPaint, FrameIsSunkenWhilePressed)
{
    Open();
    Draw(canvas);
    EXPECT_EQ(canvas.Count(behind), 0);
    tests::Canvas expected(width, height, behind);
    CRect frame(0, 0, width, height);
    expected.Dc().DrawFrameControl(frame, DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_PUSHED);
    Draw(canvas, ODS_SELECTED);
    for (int x = 0; x < width; ++x)
        EXPECT_EQ(canvas.Pixel(x, 0), expected.Pixel(x, 0)) << x;
    tests::Canvas raised(width, height, behind);
    raised.Dc().DrawFrameControl(frame, DFC_BUTTON, DFCS_BUTTONPUSH);
    EXPECT_NE(raised.Pixel(5, 0), expected.Pixel(5, 0));
}

TEST_F(ColorButtonPaint, WithoutFrameAndInTheFacesColorFillsNothing)
{
    Open();
    button.DrawFrame(false);
    Draw(canvas);
    EXPECT_EQ(canvas.Count(behind), width * height);
    button.SetBgColor(0x102030UL);
    Draw(canvas);
    EXPECT_EQ(canvas.Count(0x102030), Area(Inner()));
    EXPECT_EQ(canvas.Count(behind), width * height - Area(Inner()));
}

TEST_F(ColorButtonPaint, FocusFrameIsGreenUntilTheHotColorChanges)
{
    Open();
    button.DrawFrame(false);
    button.DrawFocusFrame(true);
    Draw(canvas);
    EXPECT_EQ(canvas.Count(behind), width * height) << "not hot";
    button.m_hot = true;
    Draw(canvas);
    EXPECT_EQ(canvas.BoundsOf(RGB(0, 255, 0)), CRect(0, 0, width, height));
    EXPECT_EQ(canvas.Count(RGB(0, 255, 0)), 2 * width + 2 * height - 4);
    button.SetHotFgColor(::GetSysColor(COLOR_BTNTEXT));
    Draw(canvas);
    EXPECT_EQ(canvas.Count(RGB(0, 255, 0)), 2 * width + 2 * height - 4) << "the color as it is";
    button.SetHotFgColor(0x112233);
    Draw(canvas);
    EXPECT_EQ(canvas.Count(RGB(0, 255, 0)), 0);
    EXPECT_EQ(canvas.Count(0x112233), 2 * width + 2 * height - 4);
}

TEST_F(ColorButtonPaint, DisabledButtonDrawsItsNormalIconWithoutAnotherOne)
{
    FlatIcon const icon(RGB(0, 0, 255), 32);
    FlatIcon const other(RGB(255, 0, 0), 32);
    Open();
    button.SetIcons(icon, nullptr, 32);
    Draw(canvas, ODS_DISABLED);
    EXPECT_EQ(canvas.BoundsOf(RGB(0, 0, 255)), CRect(34, 4, 66, 36));
    EXPECT_EQ(canvas.Count(RGB(0, 0, 255)), 32 * 32);
    button.SetIcons(icon, other, 32);
    Draw(canvas, ODS_DISABLED);
    EXPECT_EQ(canvas.Count(RGB(0, 0, 255)), 0);
    EXPECT_EQ(canvas.BoundsOf(RGB(255, 0, 0)), CRect(34, 4, 66, 36));
    Draw(canvas);
    EXPECT_EQ(canvas.Count(RGB(255, 0, 0)), 0);
    button.SetIcons(nullptr, other, 32);
    Draw(canvas, ODS_DISABLED);
    EXPECT_EQ(canvas.Count(RGB(255, 0, 0)), 0) << "no icon at all without the normal one";
}

TEST_F(ColorButtonPaint, IconSizeOnlyCentres)
{
    FlatIcon const icon(RGB(0, 0, 255), 32);
    Open();
    button.SetIcons(icon, nullptr, 16);
    Draw(canvas);
    EXPECT_EQ(canvas.BoundsOf(RGB(0, 0, 255)), CRect(42, 12, 74, height));
}

TEST_F(ColorButtonPaint, PressedButtonMovesItsCaptionByOnePixelAndNotItsIcon)
{
    FlatIcon const icon(RGB(0, 0, 255), 32);
    Open(L"I");
    button.SetFgColor(0x00FF00UL);
    button.SetBgColor(0xFFFFFFUL);
    auto const caption = [this](UINT state) {
        Draw(canvas, state);
        return canvas.BoundsOf([](COLORREF color) { return GetGValue(color) > GetRValue(color) + 60; });
    };
    CRect const normal = caption(0);
    ASSERT_FALSE(normal.IsRectEmpty());
    EXPECT_EQ(caption(ODS_SELECTED), normal + CPoint(1, 1));

    button.SetIcons(icon, nullptr, 32);
    Draw(canvas);
    EXPECT_EQ(canvas.BoundsOf(RGB(0, 0, 255)), CRect(34, 4, 66, 36));
    EXPECT_GT(canvas.Count(RGB(0, 255, 0)), 0) << "the text stands over the icon";
    Draw(canvas, ODS_SELECTED);
    EXPECT_EQ(canvas.BoundsOf(RGB(0, 0, 255)), CRect(34, 4, 66, 36));
}

TEST_F(ColorButtonPaint, CaptionStandsAtTheCentreLessHalfItsExtent)
{
    Open(L"III");
    button.SetFgColor(0x0000FFUL);
    button.SetBgColor(0xFFFFFFUL);
    CSize const extent = canvas.Dc().GetTextExtent(L"III");
    Draw(canvas);
    CPoint const origin(width / 2 - extent.cx / 2, height / 2 - extent.cy / 2);
    tests::Canvas expected(width, height, behind);
    CRect frame(0, 0, width, height);
    expected.Dc().DrawFrameControl(frame, DFC_BUTTON, DFCS_BUTTONPUSH);
    expected.Dc().FillSolidRect(Inner(), 0xFFFFFF);
    expected.Dc().SetBkMode(TRANSPARENT);
    expected.Dc().SetTextColor(0x0000FF);
    expected.Dc().TextOut(origin.x, origin.y, L"III");
    EXPECT_TRUE(tests::SamePixels(canvas, expected));
}

TEST_F(ColorButtonPaint, AmpersandUnderlinesOnlyWhileDisabled)
{
    Open(L"&I");
    button.SetBgColor(0xFFFFFFUL);
    button.SetDisabledBgColor(0xFFFFFF);
    Draw(canvas);
    tests::Canvas expected(width, height, behind);
    CSize const extent = canvas.Dc().GetTextExtent(L"&I", 2);
    CRect frame(0, 0, width, height);
    expected.Dc().DrawFrameControl(frame, DFC_BUTTON, DFCS_BUTTONPUSH);
    expected.Dc().FillSolidRect(Inner(), 0xFFFFFF);
    expected.Dc().SetBkMode(TRANSPARENT);
    expected.Dc().SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    expected.Dc().TextOut(width / 2 - extent.cx / 2, height / 2 - extent.cy / 2, L"&I", 2);
    EXPECT_TRUE(tests::SamePixels(canvas, expected)) << "a plain character";

    auto const inked = [this](wchar_t const * text) {
        button.SetWindowText(text);
        Draw(canvas, ODS_DISABLED);
        return Area(Inner()) - canvas.Count(0xFFFFFF, Inner());
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
    button.SetDisabledBgColor(0);
    button.DrawFrame(false);
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
        button.DrawItem(&item);
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
        canvas.Dc().SetBkMode(OPAQUE);
        canvas.Dc().SetTextColor(0x123123);
        CPen * const pen = canvas.Dc().GetCurrentPen();
        button.DrawFocusFrame(true);
        button.m_hot = true;
        Draw(canvas, state);
        EXPECT_EQ(canvas.Dc().GetBkMode(), OPAQUE);
        EXPECT_EQ(canvas.Dc().GetTextColor(), 0x123123U);
        EXPECT_EQ(canvas.Dc().GetCurrentPen()->GetSafeHandle(), pen->GetSafeHandle());
    }
}

TEST_F(ColorButtonPaint, ShowsOnTheScreen)
{
    Open();
    button.SetBgColor(0x336699UL);
    button.RedrawWindow();
    tests::Canvas screen(width, height);
    screen.CopyFromScreen(button);
    EXPECT_EQ(screen.Count(0x336699, Inner()), Area(Inner()));
}

TEST_F(ColorButtonPaint, EndsInTheMiddleOfAPaintWithoutHarm)
{
    for (bool const atIcon : {true, false})
    {
        auto * const doomed = new OpenButton;
        ASSERT_TRUE(doomed->Create(L"x", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), parent, 9));
        auto const end = [doomed] { delete doomed; };
        if (atIcon)
            doomed->m_onGetIcon = end;
        else
            doomed->m_onGetText = end;
        HWND const window = doomed->m_hWnd;
        DRAWITEMSTRUCT item{};
        item.hDC = canvas.Dc();
        item.rcItem = CRect(0, 0, 50, 20);
        doomed->DrawItem(&item);
        EXPECT_FALSE(::IsWindow(window));
    }
}

TEST_F(ColorButtonPaint, LeavesNoGdiObjectBehind)
{
    FlatIcon const icon(RGB(0, 0, 255), 32);
    Open(L"text");
    button.DrawFocusFrame(true);
    button.SetIcons(icon, nullptr, 32);
    EXPECT_EQ(tests::GdiGrowth(
                  [this] {
                      for (int i = 0; i < 1700; ++i)
                      {
                          button.m_hot = i % 2 == 0;
                          Draw(canvas, i % 3 == 0 ? ODS_DISABLED : 0);
                          button.SetHotFgColor(static_cast<COLORREF>(i));
                      }
                  },
                  3),
              0);
}

TEST_F(ColorButtonGolden, StatesWithoutText)
{
    FlatIcon const icon(RGB(0, 0, 255), 32);
    Open();
    button.SetColors(1, RGB(250, 220, 160), 2, RGB(255, 240, 200));
    button.SetDisabledColors(3, RGB(220, 220, 220));
    button.SetIcons(icon, nullptr, 32);
    Draw(canvas);
    tests::ExpectGolden(canvas, "color_button_normal");
    Draw(canvas, ODS_SELECTED);
    tests::ExpectGolden(canvas, "color_button_pressed");
    Draw(canvas, ODS_DISABLED);
    tests::ExpectGolden(canvas, "color_button_disabled");
    button.m_hot = true;
    Draw(canvas);
    tests::ExpectGolden(canvas, "color_button_hot");
    button.DrawFrame(false);
    button.DrawFocusFrame(true);
    canvas.Fill(behind);
    Draw(canvas);
    tests::ExpectGolden(canvas, "color_button_hot_frameless");
}

TEST_F(ColorButtonHot, FollowsTheRealPointer)
{
    Open();
    button.SetHotBgColor(0x00AAFF);
    ASSERT_TRUE(tests::BringToFront(parent.m_hWnd));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(parent.m_hWnd, {250, 150})));
    tests::PumpPosted();
    EXPECT_FALSE(button.m_hot);
    ASSERT_TRUE(tests::MoveMouse(tests::Centre(button.m_hWnd)));
    ASSERT_TRUE(tests::PumpUntil([this] { return button.m_hot; }));
    tests::Canvas screen(width, height);
    EXPECT_TRUE(tests::PumpUntil([&] {
        screen.CopyFromScreen(button);
        return screen.Count(0x00AAFF, Inner()) == Area(Inner());
    }));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(parent.m_hWnd, {250, 150})));
    ASSERT_TRUE(tests::PumpUntil([this] { return !button.m_hot; }));
    EXPECT_TRUE(tests::PumpUntil([&] {
        screen.CopyFromScreen(button);
        return screen.Count(0x00AAFF) == 0;
    }));
    EXPECT_FALSE(button.KillTimer(1)) << "the timer is gone";
}

TEST_F(ColorButtonHot, FirstMoveInvalidatesAndStartsTheTimer)
{
    Open();
    tests::MoveMouse(tests::ClientPoint(parent.m_hWnd, {250, 150}));
    button.SetRolloverDelay(100000);
    button.ValidateRect(nullptr);
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(button.m_hot);
    EXPECT_TRUE(::GetUpdateRect(button.m_hWnd, nullptr, FALSE));
    button.ValidateRect(nullptr);
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
    EXPECT_FALSE(::GetUpdateRect(button.m_hWnd, nullptr, FALSE)) << "hot already";
    EXPECT_TRUE(button.KillTimer(1));
}

TEST_F(ColorButtonHot, AnyTimerLooksForThePointer)
{
    Open();
    ASSERT_TRUE(tests::BringToFront(parent.m_hWnd));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(parent.m_hWnd, {250, 150})));
    tests::PumpPosted();
    button.SetRolloverDelay(100000);
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    ASSERT_TRUE(button.m_hot);
    button.ValidateRect(nullptr);
    button.PostMessage(WM_TIMER, 77);
    ASSERT_TRUE(tests::PumpUntil([this] { return !button.m_hot; }));
    EXPECT_FALSE(button.KillTimer(1));
}

TEST_F(ColorButtonHot, DelayChangedWhileHotCountsFromTheNextEntry)
{
    Open();
    ASSERT_TRUE(tests::BringToFront(parent.m_hWnd));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(parent.m_hWnd, {250, 150})));
    tests::PumpPosted();
    button.SetRolloverDelay(100000);
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    button.SetRolloverDelay(10);
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
    tests::PumpFor(std::chrono::milliseconds(150));
    EXPECT_TRUE(button.m_hot) << "the long period goes on";
    button.PostMessage(WM_TIMER, 1);
    ASSERT_TRUE(tests::PumpUntil([this] { return !button.m_hot; }));
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(tests::PumpUntil([this] { return !button.m_hot; })) << "the short one ends it";
}

TEST_F(ColorButtonHot, SecondWindowStartsCold)
{
    Open();
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    ASSERT_TRUE(button.m_hot);
    button.DestroyWindow();
    Open();
    EXPECT_FALSE(button.m_hot);
}
