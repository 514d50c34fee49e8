// The slider that shows its level.

#include <afxpriv.h>

#include <gtest/gtest.h>

#include <functional>

#include "Bitmap.h"
#include "controls/LevelSliderCtrl.h"
#include "DialogTemplate.h"
#include "GdiHandleCount.h"
#include "GoldenImage.h"
#include "Input.h"
#include "MessageRecorder.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
constexpr COLORREF behind = RGB(200, 10, 200);

class OpenSlider : public CLevelSliderCtrl
{
public:
    using CLevelSliderCtrl::GetThisMessageMap;
    using CLevelSliderCtrl::InitStandardColors;
    using CLevelSliderCtrl::m_gradientRects;
    using CLevelSliderCtrl::m_mainBrush;
    using CLevelSliderCtrl::m_mainColor;
    using CLevelSliderCtrl::m_mainDark;
    using CLevelSliderCtrl::m_mainLight;
    using CLevelSliderCtrl::m_mainLightBrush;
    using CLevelSliderCtrl::m_secondBrush;
    using CLevelSliderCtrl::m_secondColor;
    using CLevelSliderCtrl::m_secondDark;
    using CLevelSliderCtrl::m_secondLight;
    using CLevelSliderCtrl::m_vertices;

    /// The rectangle as the painting leaves it. The context is given as a temporary object.
    CRect Channel(tests::Canvas & canvas, CRect rect)
    {
        HDC const handle = canvas.Dc().Detach();
        CDC * const dc = CDC::FromHandle(handle);
        DrawChannel(dc, rect);
        m_detached = dc->m_hDC == nullptr;
        canvas.Dc().Attach(handle);
        return rect;
    }
    CRect Thumb(tests::Canvas & canvas, CRect rect, bool selected)
    {
        HDC const handle = canvas.Dc().Detach();
        CDC * const dc = CDC::FromHandle(handle);
        DrawThumb(dc, rect, selected);
        m_detached = dc->m_hDC == nullptr;
        canvas.Dc().Attach(handle);
        return rect;
    }
    /// The answer to a stage; 1234 where it is left untouched.
    LRESULT Stage(tests::Canvas & canvas, DWORD stage, DWORD_PTR item = 0, UINT state = 0, CRect const & rect = CRect())
    {
        HDC const handle = canvas.Dc().Detach();
        NMCUSTOMDRAW draw{};
        draw.hdr = {m_hWnd, static_cast<UINT_PTR>(GetDlgCtrlID()), static_cast<UINT>(NM_CUSTOMDRAW)};
        draw.dwDrawStage = stage;
        draw.dwItemSpec = item;
        draw.uItemState = state;
        draw.hdc = handle;
        draw.rc = rect;
        LRESULT result = 1234;
        OnReflectedCustomDraw(&draw.hdr, &result);
        EXPECT_EQ(CRect(draw.rc), rect);
        canvas.Dc().Attach(handle);
        return result;
    }

    bool m_detached = false;
    UINT m_watched = 0;
    std::function<void()> m_action;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (m_watched != 0 && message == m_watched)
        {
            auto const action = m_action;
            action();
            return 0;
        }
        return CLevelSliderCtrl::WindowProc(message, wParam, lParam);
    }
};

COLORREF Color(CBrush & brush)
{
    LOGBRUSH log{};
    brush.GetLogBrush(&log);
    return log.lbColor;
}

COLORREF Color(TRIVERTEX const & vertex)
{
    EXPECT_EQ(vertex.Alpha, 0);
    EXPECT_EQ((vertex.Red | vertex.Green | vertex.Blue) & 0xFF, 0) << "the value is in the high byte";
    return RGB(vertex.Red >> 8, vertex.Green >> 8, vertex.Blue >> 8);
}

class LevelSliderTest : public testing::Test
{
protected:
    void Open(DWORD style = TBS_HORZ, CRect const & rect = CRect(20, 20, 220, 50))
    {
        ASSERT_TRUE(m_slider.Create(WS_CHILD | WS_VISIBLE | style, rect, m_host, 44));
        m_slider.SetRange(0, 100);
        tests::PumpPosted();
    }

    /// The thumb stands there in one of its colours. Not every platform tells of a thumb at rest that it has no state.
    bool IsThumb(tests::Canvas const & screen, CRect const & thumb) const
    {
        COLORREF const color = screen.Pixel(thumb.CenterPoint().x, thumb.CenterPoint().y);
        return color == m_slider.m_mainColor || color == m_slider.m_mainLight;
    }

    tests::ScopedWindow m_host{CRect(100, 100, 400, 400), WS_POPUP | WS_VISIBLE};
    OpenSlider m_slider;
    tests::WindowCloser m_closer{m_slider};
    tests::Canvas m_canvas{120, 40, behind};
};

using LevelSlider = LevelSliderTest;
using LevelSliderColors = LevelSliderTest;
using LevelSliderPaint = LevelSliderTest;
using LevelSliderScreen = LevelSliderTest;
} // namespace

TEST_F(LevelSlider, IsASliderWithARunTimeClass)
{
    EXPECT_STREQ(RUNTIME_CLASS(CLevelSliderCtrl)->m_lpszClassName, "CLevelSliderCtrl");
    EXPECT_EQ(&CLevelSliderCtrl::classCLevelSliderCtrl, RUNTIME_CLASS(CLevelSliderCtrl));
    EXPECT_EQ(RUNTIME_CLASS(CLevelSliderCtrl)->m_pfnGetBaseClass(), RUNTIME_CLASS(CSliderCtrl));
}

TEST_F(LevelSlider, HandlesItsOwnCustomDrawOnly)
{
    AFX_MSGMAP const * const map = OpenSlider::GetThisMessageMap();
    EXPECT_EQ(map->lpEntries[0].nMessage, static_cast<UINT>(WM_NOTIFY + WM_REFLECT_BASE));
    EXPECT_EQ(static_cast<WORD>(map->lpEntries[0].nCode), static_cast<WORD>(NM_CUSTOMDRAW));
    EXPECT_EQ(map->lpEntries[1].nMessage, 0U);
}

TEST_F(LevelSlider, AnswersTheStagesOfPainting)
{
    Open();
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_PREPAINT), 48);
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_POSTPAINT), 4);
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_PREERASE), 0);
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_POSTERASE), 0);
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_ITEMPOSTPAINT), 4);
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_ITEMPREERASE), 0);
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_ITEMPOSTERASE), 0);
    EXPECT_EQ(m_slider.Stage(m_canvas, 0), 1234) << "untouched";
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_SUBITEM | CDDS_ITEMPREPAINT, 2), 1234);
    EXPECT_EQ(m_canvas.Count(behind), 120 * 40);

    CRect const rect(20, 10, 40, 20);
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_ITEMPREPAINT, 1, 0, rect), 4) << "tick marks";
    EXPECT_EQ(m_canvas.Count(behind), 120 * 40);
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_ITEMPREPAINT, 2, 0, rect), 4);
    EXPECT_EQ(m_canvas.BoundsOfOther(behind), CRect(21, 10, 39, 20)) << "the thumb";
    EXPECT_EQ(m_canvas.Pixel(30, 15), m_slider.m_mainColor);
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_ITEMPREPAINT, 2, CDIS_SELECTED, rect), 4);
    EXPECT_EQ(m_canvas.Pixel(30, 15), m_slider.m_mainLight);
    m_canvas.Fill(behind);
    m_slider.SetPos(50);
    EXPECT_EQ(m_slider.Stage(m_canvas, CDDS_ITEMPREPAINT, 3, 0, CRect(10, 18, 110, 22)), 4);
    EXPECT_EQ(m_canvas.BoundsOfOther(behind), CRect(10, 15, 110, 25)) << "the channel";
}

TEST_F(LevelSliderColors, StartWithTheStandard)
{
    EXPECT_EQ(m_slider.m_mainColor, 0xC8B4B4U);
    EXPECT_EQ(m_slider.m_secondColor, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(m_slider.m_gradientRects[0].UpperLeft, 0U);
    EXPECT_EQ(m_slider.m_gradientRects[0].LowerRight, 1U);
    EXPECT_EQ(m_slider.m_gradientRects[1].UpperLeft, 2U);
    EXPECT_EQ(m_slider.m_gradientRects[1].LowerRight, 3U);
    m_slider.SetMainColor(1);
    m_slider.SetSecondColor(2);
    m_slider.InitStandardColors();
    EXPECT_EQ(m_slider.m_mainColor, 0xC8B4B4U);
    EXPECT_EQ(m_slider.m_secondColor, ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(LevelSliderColors, MainColorBringsItsOwn)
{
    m_slider.SetMainColor(0x0000FF);
    EXPECT_EQ(m_slider.m_mainColor, 0x0000FFU);
    EXPECT_EQ(m_slider.m_mainLight, 0x8080FFU);
    EXPECT_EQ(m_slider.m_mainDark, 0x0000AAU);
    EXPECT_EQ(Color(m_slider.m_mainBrush), 0x0000FFU);
    EXPECT_EQ(Color(m_slider.m_mainLightBrush), m_slider.m_mainLight);
    EXPECT_EQ(Color(m_slider.m_vertices[0]), m_slider.m_mainLight);
    EXPECT_EQ(Color(m_slider.m_vertices[1]), m_slider.m_mainDark);
    EXPECT_EQ(m_slider.m_secondColor, ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(LevelSliderColors, SecondColorBringsItsOwn)
{
    m_slider.SetSecondColor(0x00FF00);
    EXPECT_EQ(m_slider.m_secondColor, 0x00FF00U);
    EXPECT_EQ(m_slider.m_secondLight, 0x80FF80U);
    EXPECT_EQ(m_slider.m_secondDark, 0x00AA00U);
    EXPECT_EQ(Color(m_slider.m_secondBrush), 0x00FF00U);
    EXPECT_EQ(Color(m_slider.m_vertices[2]), m_slider.m_secondLight);
    EXPECT_EQ(Color(m_slider.m_vertices[3]), m_slider.m_secondDark);
    EXPECT_EQ(m_slider.m_mainColor, 0xC8B4B4U);
}

TEST_F(LevelSliderColors, BlackStaysDarkAndGetsLightHalfWayToWhite)
{
    m_slider.SetMainColor(0);
    EXPECT_EQ(m_slider.m_mainDark, 0U);
    EXPECT_EQ(m_slider.m_mainLight, 0x7F7F7FU);
}

TEST_F(LevelSliderColors, SettersDoNotRepaint)
{
    Open();
    m_slider.ValidateRect(nullptr);
    m_slider.SetMainColor(0x0000FF);
    m_slider.SetSecondColor(0x00FF00);
    EXPECT_FALSE(::GetUpdateRect(m_slider.m_hWnd, nullptr, FALSE));
}

TEST_F(LevelSliderColors, LeaveNoGdiObjectBehind)
{
    EXPECT_EQ(tests::GdiGrowth([] {
                  for (COLORREF color = 0; color < 500; ++color)
                  {
                      OpenSlider one;
                      one.SetMainColor(color);
                      one.SetSecondColor(color);
                  }
              }),
              0);
}

namespace
{
/// A part of a channel by the drawing calls that it is made of.
void DrawPart(CDC & dc, CRect const & part, COLORREF light, COLORREF dark, ULONG mode)
{
    TRIVERTEX corners[2]{};
    COLORREF const colors[] = {light, dark};
    for (int i = 0; i < 2; ++i)
    {
        corners[i].Red = static_cast<COLOR16>(GetRValue(colors[i]) << 8);
        corners[i].Green = static_cast<COLOR16>(GetGValue(colors[i]) << 8);
        corners[i].Blue = static_cast<COLOR16>(GetBValue(colors[i]) << 8);
    }
    corners[0].x = part.left;
    corners[0].y = part.top;
    corners[1].x = part.right;
    corners[1].y = part.bottom;
    GRADIENT_RECT both{0, 1};
    ::GradientFill(dc, corners, 2, &both, 1, mode);
    dc.Draw3dRect(part, dark, light);
}
} // namespace

TEST_F(LevelSliderPaint, HorizontalChannelShadesFromLightToDarkAcross)
{
    Open();
    m_slider.SetMainColor(0x0000FF);
    m_slider.SetSecondColor(0x00FF00);
    m_slider.SetPos(25);
    EXPECT_EQ(m_slider.Channel(m_canvas, CRect(10, 18, 110, 22)), CRect(10, 15, 110, 25)) << "the rectangle is changed";
    EXPECT_TRUE(m_slider.m_detached);
    tests::Canvas expected(120, 40, behind);
    DrawPart(expected.Dc(), CRect(10, 15, 35, 25), 0x8080FF, 0x0000AA, GRADIENT_FILL_RECT_V);
    DrawPart(expected.Dc(), CRect(35, 15, 110, 25), 0x80FF80, 0x00AA00, GRADIENT_FILL_RECT_V);
    EXPECT_TRUE(tests::SamePixels(m_canvas, expected));
    EXPECT_EQ(m_canvas.Pixel(20, 15), 0x0000AAU) << "sunken: dark above";
    EXPECT_EQ(m_canvas.Pixel(20, 24), 0x8080FFU) << "and light below";
    EXPECT_GT(GetGValue(m_canvas.Pixel(20, 17)), GetGValue(m_canvas.Pixel(20, 22))) << "the shading from light to dark";
    EXPECT_EQ(m_canvas.Pixel(15, 20), m_canvas.Pixel(30, 20));
}

TEST_F(LevelSliderPaint, VerticalChannelShowsTheMainColorBelow)
{
    Open(TBS_VERT, CRect(20, 20, 60, 220));
    m_slider.SetMainColor(0x0000FF);
    m_slider.SetSecondColor(0x00FF00);
    m_slider.SetPos(25);
    tests::Canvas tall(40, 120, behind);
    EXPECT_EQ(m_slider.Channel(tall, CRect(18, 10, 22, 110)), CRect(15, 10, 25, 110));
    tests::Canvas expected(40, 120, behind);
    DrawPart(expected.Dc(), CRect(15, 35, 25, 110), 0x8080FF, 0x0000AA, GRADIENT_FILL_RECT_H);
    DrawPart(expected.Dc(), CRect(15, 10, 25, 35), 0x80FF80, 0x00AA00, GRADIENT_FILL_RECT_H);
    EXPECT_TRUE(tests::SamePixels(tall, expected));
    EXPECT_EQ(tall.Pixel(20, 70), tall.Pixel(20, 90));
    EXPECT_GT(GetGValue(tall.Pixel(17, 70)), GetGValue(tall.Pixel(22, 70)));
}

TEST_F(LevelSliderPaint, LeastPositionGivesTheWholeChannelToTheSecondPart)
{
    Open();
    m_slider.SetMainColor(0x0000FF);
    m_slider.SetSecondColor(0x00FF00);
    m_slider.SetPos(0);
    m_slider.Channel(m_canvas, CRect(10, 18, 110, 22));
    tests::Canvas expected(120, 40, behind);
    DrawPart(expected.Dc(), CRect(10, 15, 110, 25), 0x80FF80, 0x00AA00, GRADIENT_FILL_RECT_V);
    EXPECT_TRUE(tests::SamePixels(m_canvas, expected)) << "and nothing of the main part";
    EXPECT_EQ(m_canvas.Pixel(10, 20), 0x00AA00U);
    EXPECT_EQ(m_canvas.Pixel(109, 20), 0x80FF80U);
}

TEST_F(LevelSliderPaint, GreatestPositionGivesTheWholeChannelToTheMainPart)
{
    Open();
    m_slider.SetMainColor(0x0000FF);
    m_slider.SetSecondColor(0x00FF00);
    m_slider.SetPos(100);
    m_slider.Channel(m_canvas, CRect(10, 18, 110, 22));
    tests::Canvas expected(120, 40, behind);
    DrawPart(expected.Dc(), CRect(10, 15, 110, 25), 0x8080FF, 0x0000AA, GRADIENT_FILL_RECT_V);
    EXPECT_TRUE(tests::SamePixels(m_canvas, expected)) << "and nothing of the second part";
    EXPECT_EQ(m_canvas.Pixel(10, 20), 0x0000AAU);
}

TEST_F(LevelSliderPaint, RangeWithoutExtentDoesNotCrash)
{
    Open();
    m_slider.SetRange(50, 50);
    m_slider.SetPos(50);
    EXPECT_EQ(m_slider.Channel(m_canvas, CRect(10, 18, 110, 22)), CRect(10, 15, 110, 25));
    EXPECT_EQ(m_canvas.Count(behind, CRect(11, 16, 109, 24)), 0);
    m_slider.RedrawWindow();
}

TEST_F(LevelSliderPaint, WithoutAWindowTheChannelIsAllSecond)
{
    m_slider.SetSecondColor(0x00FF00);
    m_slider.Channel(m_canvas, CRect(10, 18, 110, 22));
    EXPECT_EQ(m_canvas.Pixel(10, 20), 0x00AA00U);
    EXPECT_EQ(m_canvas.Pixel(109, 20), 0x80FF80U);
}

TEST_F(LevelSliderPaint, ThumbIsARoundRectangleInTheDarkColor)
{
    Open();
    m_slider.SetMainColor(0x0000FF);
    EXPECT_EQ(m_slider.Thumb(m_canvas, CRect(20, 5, 32, 35), false), CRect(21, 5, 31, 35));
    EXPECT_TRUE(m_slider.m_detached);
    tests::Canvas expected(120, 40, behind);
    {
        CPen pen(PS_SOLID, 1, 0x0000AA);
        CBrush brush(0x0000FF);
        int const saved = expected.Dc().SaveDC();
        expected.Dc().SelectObject(&pen);
        expected.Dc().SelectObject(&brush);
        expected.Dc().RoundRect(CRect(21, 5, 31, 35), CPoint(2, 2));
        expected.Dc().RestoreDC(saved);
    }
    EXPECT_TRUE(tests::SamePixels(m_canvas, expected));
    m_slider.Thumb(m_canvas, CRect(20, 5, 32, 35), true);
    EXPECT_EQ(m_canvas.Pixel(25, 20), 0x8080FFU) << "the light colour while it is held";
}

TEST_F(LevelSliderPaint, VerticalThumbIsNarrowedAboveAndBelow)
{
    Open(TBS_VERT, CRect(20, 20, 60, 220));
    EXPECT_EQ(m_slider.Thumb(m_canvas, CRect(5, 10, 35, 22), false), CRect(5, 11, 35, 21));
}

TEST_F(LevelSliderPaint, ThumbLeavesTheContextAsItWas)
{
    Open();
    m_canvas.Dc().SetTextColor(0x222222);
    HGDIOBJ const pen = m_canvas.Dc().GetCurrentPen()->GetSafeHandle();
    HGDIOBJ const brush = m_canvas.Dc().GetCurrentBrush()->GetSafeHandle();
    tests::GdiBalance const balance;
    m_slider.Channel(m_canvas, CRect(10, 18, 110, 22));
    m_canvas.Dc().SetBkColor(0x111111); // the channel's edges are filled in the background colour
    m_slider.Thumb(m_canvas, CRect(20, 5, 32, 35), true);
    EXPECT_EQ(m_canvas.Dc().GetBkColor(), 0x111111U);
    EXPECT_EQ(m_canvas.Dc().GetTextColor(), 0x222222U);
    EXPECT_EQ(::GetCurrentObject(m_canvas.Dc(), OBJ_PEN), pen);
    EXPECT_EQ(::GetCurrentObject(m_canvas.Dc(), OBJ_BRUSH), brush);
}

TEST_F(LevelSliderPaint, EndsInTheMiddleOfThePaintingWithoutHarm)
{
    for (UINT const question : {TBM_GETRANGEMIN, TBM_GETRANGEMAX, TBM_GETPOS})
    {
        auto * const doomed = new OpenSlider;
        ASSERT_TRUE(doomed->Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 30), m_host, 45));
        HWND const window = doomed->m_hWnd;
        doomed->m_watched = question;
        doomed->m_action = [doomed] { delete doomed; };
        NMCUSTOMDRAW draw{};
        draw.hdr = {window, 45, static_cast<UINT>(NM_CUSTOMDRAW)};
        draw.dwDrawStage = CDDS_ITEMPREPAINT;
        draw.dwItemSpec = TBCD_CHANNEL;
        draw.hdc = m_canvas.Dc().Detach();
        draw.rc = CRect(10, 18, 110, 22);
        m_host.SendMessage(WM_NOTIFY, 45, reinterpret_cast<LPARAM>(&draw));
        m_canvas.Dc().Attach(draw.hdc);
        EXPECT_FALSE(::IsWindow(window));
    }
}

TEST_F(LevelSliderScreen, ShowsTheLevelUpToTheThumb)
{
    Open();
    m_slider.SetMainColor(0x0000FF);
    m_slider.SetSecondColor(0x00FF00);
    m_slider.SetPos(50);
    m_slider.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    CRect thumb;
    CRect channel;
    m_slider.GetThumbRect(thumb);
    m_slider.GetChannelRect(channel);
    int const y = channel.CenterPoint().y;
    tests::Canvas screen(200, 30);
    screen.CopyFromScreen(m_slider);
    EXPECT_GT(GetRValue(screen.Pixel(thumb.left - 10, y)), GetGValue(screen.Pixel(thumb.left - 10, y)));
    EXPECT_GT(GetGValue(screen.Pixel(thumb.right + 10, y)), GetRValue(screen.Pixel(thumb.right + 10, y)));
    EXPECT_TRUE(IsThumb(screen, thumb));
}

TEST_F(LevelSliderScreen, ThumbFollowsTheRealMouseAndIsLightWhileHeld)
{
    Open();
    m_slider.SetMainColor(0x0000FF);
    m_slider.SetPos(50);
    m_slider.RedrawWindow();
    ASSERT_TRUE(tests::BringToFront(m_host.m_hWnd));
    CRect thumb;
    m_slider.GetThumbRect(thumb);
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_slider.m_hWnd, thumb.CenterPoint())));
    tests::Press();
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetCapture() == m_slider.m_hWnd; }));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_slider.m_hWnd, thumb.CenterPoint() + CPoint(40, 0))));
    ASSERT_TRUE(tests::PumpUntil([this] { return m_slider.GetPos() > 60; }));
    tests::Canvas screen(200, 30);
    EXPECT_TRUE(tests::PumpUntil([&] {
        m_slider.GetThumbRect(thumb);
        screen.CopyFromScreen(m_slider);
        return screen.Pixel(thumb.CenterPoint().x, thumb.CenterPoint().y) == m_slider.m_mainLight;
    }));
    tests::Release();
    EXPECT_TRUE(tests::PumpUntil([this] { return ::GetCapture() == nullptr; }));
}

TEST_F(LevelSliderScreen, TickMarksAreNotPainted)
{
    CRect const place(20, 20, 220, 80);
    CSliderCtrl plain;
    ASSERT_TRUE(plain.Create(WS_CHILD | WS_VISIBLE | TBS_AUTOTICKS | TBS_BOTH, place, m_host, 46));
    auto const inTheMargin = [&](CSliderCtrl & control) {
        control.SetRange(0, 100);
        control.SetTicFreq(10);
        control.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        CRect thumb;
        control.GetThumbRect(thumb);
        tests::Canvas screen(place.Width(), place.Height());
        screen.CopyFromScreen(control);
        CRect const margin(0, thumb.bottom + 2, place.Width(), place.Height());
        return margin.Width() * margin.Height() - screen.Count(::GetSysColor(COLOR_BTNFACE), margin);
    };
    EXPECT_GT(inTheMargin(plain), 0);
    plain.DestroyWindow();
    Open(TBS_AUTOTICKS | TBS_BOTH, place);
    EXPECT_EQ(inTheMargin(m_slider), 0);
}

TEST_F(LevelSliderScreen, StandsInForADialogsSlider)
{
    tests::DialogTemplate layout(L"Slider");
    layout.Add(TRACKBAR_CLASSW, L"", 47, CRect(10, 10, 110, 30), 0);
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(layout.Get(), m_host));
    tests::WindowCloser const dialogCloser(dialog);
    ASSERT_TRUE(m_slider.SubclassDlgItem(47, &dialog));
    dialog.ShowWindow(SW_SHOW);
    m_slider.SetMainColor(0x0000FF);
    m_slider.SetRange(0, 100);
    m_slider.SetPos(100);
    m_slider.RedrawWindow();
    CRect thumb;
    m_slider.GetThumbRect(thumb);
    tests::Canvas screen(250, 60);
    screen.CopyFromScreen(m_slider);
    EXPECT_TRUE(IsThumb(screen, thumb));
    m_slider.UnsubclassWindow();
}

TEST_F(LevelSliderScreen, MinimumMiddleAndMaximumAsPictures)
{
    Open(TBS_HORZ, CRect(20, 20, 140, 50));
    m_slider.SetMainColor(RGB(40, 90, 200));
    m_slider.SetSecondColor(RGB(210, 210, 210));
    auto const picture = [this](CSize size, int position, char const * name) {
        m_slider.SetPos(position);
        m_slider.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        tests::Canvas screen(size.cx, size.cy);
        screen.CopyFromScreen(m_slider);
        tests::ExpectGolden(screen, name);
    };
    picture(CSize(120, 30), 0, "level_slider_horizontal_0");
    picture(CSize(120, 30), 50, "level_slider_horizontal_50");
    picture(CSize(120, 30), 100, "level_slider_horizontal_100");
    m_slider.DestroyWindow();
    Open(TBS_VERT, CRect(20, 20, 50, 140));
    picture(CSize(30, 120), 0, "level_slider_vertical_0");
    picture(CSize(30, 120), 50, "level_slider_vertical_50");
    picture(CSize(30, 120), 100, "level_slider_vertical_100");
}

TEST_F(LevelSliderScreen, RepaintsLeaveNoGdiObjectBehind)
{
    Open();
    EXPECT_EQ(tests::GdiGrowth(
                  [this] {
                      for (int i = 0; i < 1700; ++i)
                      {
                          m_slider.SetPos(i % 100);
                          m_slider.RedrawWindow();
                      }
                  },
                  3),
              0);
}
