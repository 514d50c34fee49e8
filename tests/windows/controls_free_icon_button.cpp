// The button that is nothing but an icon.

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "controls/FreeIconButton.h"
#include "DialogTemplate.h"
#include "GdiHandleCount.h"
#include "GoldenImage.h"
#include "Input.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
constexpr COLORREF behind = RGB(200, 10, 200);
constexpr int edge = 40;

class OpenIconButton : public CFreeIconButton
{
public:
    using CFreeIconButton::GetThisMessageMap;
    using CFreeIconButton::m_icon;
};

class FreeIconButton : public testing::Test
{
protected:
    void Open()
    {
        ASSERT_TRUE(m_button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(20, 20, 20 + edge, 20 + edge), m_host, 41));
        tests::PumpPosted();
    }
    void Draw(tests::Canvas & canvas, UINT state)
    {
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.itemState = state;
        item.hwndItem = m_button.m_hWnd;
        item.hDC = canvas.Dc();
        item.rcItem = CRect(0, 0, edge, edge);
        m_button.DrawItem(&item);
    }

    tests::ScopedWindow m_host{CRect(100, 100, 400, 300), WS_POPUP | WS_VISIBLE};
    OpenIconButton m_button;
    tests::WindowCloser m_closer{m_button};
    tests::Canvas m_canvas{edge, edge, behind};
};
} // namespace

TEST_F(FreeIconButton, IsAButtonWithARunTimeClassAndNoHandler)
{
    EXPECT_STREQ(RUNTIME_CLASS(CFreeIconButton)->m_lpszClassName, "CFreeIconButton");
    EXPECT_EQ(&CFreeIconButton::classCFreeIconButton, RUNTIME_CLASS(CFreeIconButton));
    EXPECT_TRUE(m_button.IsKindOf(RUNTIME_CLASS(CButton)));
    EXPECT_EQ(RUNTIME_CLASS(CFreeIconButton)->m_pfnCreateObject, nullptr);
    EXPECT_EQ(OpenIconButton::GetThisMessageMap()->lpEntries[0].nMessage, 0U);
}

TEST_F(FreeIconButton, LoadsItsIconFromTheToolkitAndRestoresTheResourceModule)
{
    HINSTANCE const current = AfxGetResourceHandle();
    OpenIconButton const another;
    EXPECT_EQ(AfxGetResourceHandle(), current);
    HICON const expected = ::LoadIconW(::GetModuleHandleW(L"instrument_ui.dll"), MAKEINTRESOURCEW(124));
    ASSERT_NE(expected, nullptr);
    EXPECT_EQ(another.m_icon, expected) << "shared by the system";
}

TEST_F(FreeIconButton, AddsItsStyles)
{
    Open();
    EXPECT_EQ(m_button.GetStyle() & 0x808B, 0x808BU);
}

TEST_F(FreeIconButton, AddsItsStylesToADialogsButton)
{
    tests::DialogTemplate layout(L"Buttons");
    layout.Add(L"Button", L"caption", 41, CRect(10, 10, 60, 30), BS_PUSHBUTTON);
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(layout.Get(), m_host));
    tests::WindowCloser const dialogCloser(dialog);
    ASSERT_TRUE(m_button.SubclassDlgItem(41, &dialog));
    EXPECT_EQ(m_button.GetStyle() & 0x808B, 0x808BU);
}

TEST_F(FreeIconButton, ShowsTheSamePictureInEveryState)
{
    Open();
    Draw(m_canvas, 0);
    CRect const drawn = m_canvas.BoundsOfOther(behind);
    EXPECT_FALSE(drawn.IsRectEmpty());
    EXPECT_TRUE(CRect(0, 0, 32, 32).PtInRect(drawn.TopLeft()));
    EXPECT_EQ(m_canvas.Count(behind, CRect(32, 0, edge, edge)), 8 * edge) << "no look of its own";
    for (UINT const state : {ODS_SELECTED, ODS_DISABLED, ODS_FOCUS, ODS_SELECTED | ODS_FOCUS})
    {
        tests::Canvas other(edge, edge, behind);
        Draw(other, state);
        EXPECT_TRUE(tests::SamePixels(m_canvas, other)) << "state " << state;
    }
    tests::ExpectGolden(m_canvas, "free_icon_button");
}

TEST_F(FreeIconButton, PaintsTransparently)
{
    m_canvas.Dc().SetBkMode(OPAQUE);
    Draw(m_canvas, 0);
    EXPECT_EQ(m_canvas.Dc().GetBkMode(), TRANSPARENT);
}

TEST_F(FreeIconButton, WithoutContextOrIconDrawsNothing)
{
    m_button.DrawItem(nullptr);
    DRAWITEMSTRUCT item{};
    m_button.DrawItem(&item);
    m_button.m_icon = nullptr;
    Draw(m_canvas, 0);
    EXPECT_EQ(m_canvas.Count(behind), edge * edge);
}

TEST_F(FreeIconButton, ClickArrivesAtTheParent)
{
    Open();
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    tests::Canvas screen(edge, edge);
    screen.CopyFromScreen(m_button);
    Draw(m_canvas, 0);
    EXPECT_EQ(screen.Pixel(16, 16), m_canvas.Pixel(16, 16)) << "as it is on the screen";
    int clicks = 0;
    struct Watch : CWnd
    {
        int & clicks;
        explicit Watch(int & count) : clicks(count) {}
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED && LOWORD(wParam) == 42)
                ++clicks;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } watch(clicks);
    ASSERT_TRUE(
        watch.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(100, 100, 200, 190), m_host, 0));
    tests::WindowCloser const watchCloser(watch);
    OpenIconButton inner;
    ASSERT_TRUE(inner.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, edge, edge), &watch, 42));
    tests::WindowCloser const innerCloser(inner);
    tests::PumpPosted();
    tests::Click(tests::Centre(inner.m_hWnd));
    EXPECT_TRUE(tests::PumpUntil([&] { return clicks == 1; }));
}

TEST_F(FreeIconButton, LeavesNoGdiObjectBehind)
{
    EXPECT_EQ(tests::GdiGrowth([this] {
                  for (int i = 0; i < 100; ++i)
                  {
                      OpenIconButton one;
                      one.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, edge, edge), m_host, 43);
                      one.RedrawWindow();
                      one.DestroyWindow();
                  }
              }),
              0);
}

TEST_F(FreeIconButton, PaintsItsIconOverItselfWithoutATrace)
{
    Draw(m_canvas, 0);
    tests::Canvas again(edge, edge, behind);
    Draw(again, 0);
    Draw(again, ODS_SELECTED);
    Draw(again, ODS_DISABLED);
    EXPECT_TRUE(tests::SamePixels(m_canvas, again)) << "a frame that is half clear darkens each time";
}
