// Icon button and level slider: paint compared with painters written after the definition.

#include <algorithm>
#include <cstdlib>

#include "ControlTest.h"

namespace outside::controls
{
namespace
{
using tests::Canvas;

constexpr COLORREF ground = RGB(1, 130, 77);

// --- Icon button ---

class IconButton : public CFreeIconButton
{
public:
    using CFreeIconButton::GetThisMessageMap;
    using CFreeIconButton::m_icon;
};

TEST(OutsideFreeIconButton, RuntimeClassAndMap)
{
    EXPECT_STREQ(RUNTIME_CLASS(CFreeIconButton)->m_lpszClassName, "CFreeIconButton");
    EXPECT_EQ(CFreeIconButton::classCFreeIconButton.m_pfnGetBaseClass(), RUNTIME_CLASS(CButton));
    IconButton const b;
    EXPECT_TRUE(b.IsKindOf(RUNTIME_CLASS(CFreeIconButton)));
    EXPECT_TRUE(EntriesOf(IconButton::GetThisMessageMap()).empty());
}

TEST(OutsideFreeIconButton, IconIsTheToolkitsAndShared)
{
    HINSTANCE const before = ::AfxGetResourceHandle();
    HICON const expected = ::LoadIconW(Toolkit(), MAKEINTRESOURCEW(124));
    ASSERT_NE(expected, nullptr);
    {
        IconButton const b;
        EXPECT_EQ(b.m_icon, expected);
        EXPECT_EQ(::AfxGetResourceHandle(), before);
    }
    ICONINFO info = {};
    EXPECT_TRUE(::GetIconInfo(expected, &info));
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    // The same where another module's resources are in force.
    ::AfxSetResourceHandle(::GetModuleHandleW(L"framework.dll"));
    {
        IconButton const b;
        EXPECT_EQ(b.m_icon, expected);
        EXPECT_EQ(::AfxGetResourceHandle(), ::GetModuleHandleW(L"framework.dll"));
    }
    ::AfxSetResourceHandle(before);
}

TEST(OutsideFreeIconButton, StyleIsAdded)
{
    Host host;
    IconButton a, b;
    ASSERT_TRUE(a.Create(L"x", WS_CHILD, CRect(0, 0, 40, 40), host, 3));
    EXPECT_EQ(a.GetStyle() & 0xFFFF, 0x808Bu);
    ASSERT_TRUE(b.Create(L"x", WS_CHILD | BS_DEFPUSHBUTTON | BS_MULTILINE, CRect(0, 0, 40, 40), host, 4));
    EXPECT_EQ(b.GetStyle() & 0xFFFF, 0x808Bu | BS_DEFPUSHBUTTON | BS_MULTILINE);
    a.DestroyWindow();
    b.DestroyWindow();
}

TEST(OutsideFreeIconButton, DrawsAtTheOriginInEveryState)
{
    IconButton b;
    Canvas expected(60, 60, ground);
    ::DrawIcon(expected.Dc().m_hDC, 0, 0, b.m_icon);
    for (UINT const state : {0u, UINT{ODS_SELECTED}, UINT{ODS_DISABLED}, UINT{ODS_FOCUS}, UINT{ODS_DEFAULT}, 0xFFFFu})
    {
        Canvas canvas(60, 60, ground);
        canvas.Dc().SetBkMode(OPAQUE);
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.itemState = state;
        item.hDC = canvas.Dc().m_hDC;
        item.rcItem = CRect(10, 10, 50, 50);
        b.DrawItem(&item);
        EXPECT_TRUE(tests::SamePixels(canvas, expected)) << state;
        EXPECT_EQ(::GetBkMode(canvas.Dc().m_hDC), TRANSPARENT) << state;
    }
    b.m_icon = nullptr;
    Canvas canvas(60, 60, ground);
    DRAWITEMSTRUCT item = {};
    item.hDC = canvas.Dc().m_hDC;
    b.DrawItem(&item);
    EXPECT_TRUE(canvas.BoundsOfOther(ground).IsRectEmpty());
}

TEST(OutsideFreeIconButton, ShowsTheSameWhenPressedAndClicks)
{
    Host host;
    IconButton b;
    ASSERT_TRUE(b.Create(L"x", WS_CHILD | WS_VISIBLE, CRect(20, 20, 70, 70), host, 3));
    ASSERT_TRUE(tests::BringToFront(host));
    ASSERT_TRUE(tests::MoveMouse(tests::Centre(b)));
    b.UpdateWindow();
    tests::PumpPosted();
    Canvas up(50, 50), down(50, 50);
    up.CopyFromScreen(b);
    EXPECT_FALSE(up.BoundsOfOther(up.Pixel(49, 49)).IsRectEmpty());
    tests::Press();
    ASSERT_TRUE(tests::PumpUntil([&] { return (b.GetState() & BST_PUSHED) != 0; }));
    b.UpdateWindow();
    down.CopyFromScreen(b);
    EXPECT_TRUE(tests::SamePixels(up, down));
    tests::Release();
    EXPECT_TRUE(tests::PumpUntil([&] { return host.Commands(BN_CLICKED) == 1; }));
    b.EnableWindow(FALSE);
    b.UpdateWindow();
    Canvas off(50, 50);
    off.CopyFromScreen(b);
    EXPECT_TRUE(tests::SamePixels(up, off));
    b.DestroyWindow();
}

TEST(OutsideFreeIconButton, RepaintingLeavesThePictureAsItIs)
{
    Host host;
    IconButton b;
    ASSERT_TRUE(b.Create(L"x", WS_CHILD | WS_VISIBLE, CRect(20, 20, 70, 70), host, 3));
    ASSERT_TRUE(tests::BringToFront(host));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(host, {300, 250})));
    tests::PumpPosted();
    Canvas once(50, 50), twice(50, 50);
    once.CopyFromScreen(b);
    for (int i = 0; i < 3; ++i)
    {
        b.SetState(TRUE);
        b.SetState(FALSE);
    }
    b.UpdateWindow();
    twice.CopyFromScreen(b);
    EXPECT_TRUE(tests::SamePixels(once, twice));
    b.DestroyWindow();
}

// --- Level slider ---

class Slider : public CLevelSliderCtrl
{
public:
    using CLevelSliderCtrl::DrawChannel;
    using CLevelSliderCtrl::DrawThumb;
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
    using CLevelSliderCtrl::OnReflectedCustomDraw;
    int channels = 0;
};

COLORREF BrushColour(CBrush & brush)
{
    LOGBRUSH data = {};
    ::GetObjectW(brush.m_hObject, sizeof(data), &data);
    EXPECT_EQ(data.lbStyle, static_cast<UINT>(BS_SOLID));
    return data.lbColor;
}

/// ColorAdjustLuma as documented: in hue, luminance and saturation of 0 to 240.
COLORREF Luma(COLORREF colour, int thousandths)
{
    double const r = GetRValue(colour) / 255.0, g = GetGValue(colour) / 255.0, b = GetBValue(colour) / 255.0;
    double const most = std::max({r, g, b}), least = std::min({r, g, b});
    double l = (most + least) / 2, s = 0, h = 0;
    if (most > least)
    {
        s = l <= 0.5 ? (most - least) / (most + least) : (most - least) / (2 - most - least);
        if (most == r)
            h = (g - b) / (most - least);
        else if (most == g)
            h = 2 + (b - r) / (most - least);
        else
            h = 4 + (r - g) / (most - least);
        h /= 6;
        if (h < 0)
            h += 1;
    }
    l = thousandths > 0 ? l + (1 - l) * thousandths / 1000.0 : l + l * thousandths / 1000.0;
    auto const channel = [&](double hue) {
        double const q = l <= 0.5 ? l * (1 + s) : l + s - l * s;
        double const p = 2 * l - q;
        if (hue < 0)
            hue += 1;
        if (hue > 1)
            hue -= 1;
        if (hue < 1.0 / 6)
            return p + (q - p) * 6 * hue;
        if (hue < 0.5)
            return q;
        if (hue < 2.0 / 3)
            return p + (q - p) * (2.0 / 3 - hue) * 6;
        return p;
    };
    auto const byte = [](double value) { return static_cast<BYTE>(std::clamp(value * 255 + 0.5, 0.0, 255.0)); };
    return RGB(byte(channel(h + 1.0 / 3)), byte(channel(h)), byte(channel(h - 1.0 / 3)));
}

testing::AssertionResult Near(COLORREF a, COLORREF b, int off = 4)
{
    if (std::abs(GetRValue(a) - GetRValue(b)) <= off && std::abs(GetGValue(a) - GetGValue(b)) <= off &&
        std::abs(GetBValue(a) - GetBValue(b)) <= off)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << std::hex << a << " and " << b;
}

TEST(OutsideLevelSlider, RuntimeClassAndMap)
{
    EXPECT_STREQ(RUNTIME_CLASS(CLevelSliderCtrl)->m_lpszClassName, "CLevelSliderCtrl");
    EXPECT_EQ(CLevelSliderCtrl::classCLevelSliderCtrl.m_pfnGetBaseClass(), RUNTIME_CLASS(CSliderCtrl));
    std::vector<MapEntry> const entries = EntriesOf(Slider::GetThisMessageMap());
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].code & 0xFFFF, static_cast<UINT>(NM_CUSTOMDRAW) & 0xFFFF);
}

TEST(OutsideLevelSlider, StandardColours)
{
    Slider s;
    EXPECT_EQ(s.m_mainColor, 0xC8B4B4u);
    EXPECT_EQ(s.m_secondColor, ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(BrushColour(s.m_mainBrush), 0xC8B4B4u);
    EXPECT_EQ(BrushColour(s.m_mainLightBrush), s.m_mainLight);
    EXPECT_EQ(BrushColour(s.m_secondBrush), s.m_secondColor);
    EXPECT_TRUE(Near(s.m_mainLight, Luma(0xC8B4B4, 500)));
    EXPECT_TRUE(Near(s.m_mainDark, Luma(0xC8B4B4, -333)));
    EXPECT_TRUE(Near(s.m_secondLight, Luma(s.m_secondColor, 500)));
    EXPECT_TRUE(Near(s.m_secondDark, Luma(s.m_secondColor, -333)));
    EXPECT_EQ(s.m_gradientRects[0].UpperLeft, 0u);
    EXPECT_EQ(s.m_gradientRects[0].LowerRight, 1u);
    EXPECT_EQ(s.m_gradientRects[1].UpperLeft, 2u);
    EXPECT_EQ(s.m_gradientRects[1].LowerRight, 3u);
    COLORREF const corners[] = {s.m_mainLight, s.m_mainDark, s.m_secondLight, s.m_secondDark};
    for (int i = 0; i < 4; ++i)
    {
        EXPECT_EQ(s.m_vertices[i].Red, GetRValue(corners[i]) << 8) << i;
        EXPECT_EQ(s.m_vertices[i].Green, GetGValue(corners[i]) << 8) << i;
        EXPECT_EQ(s.m_vertices[i].Blue, GetBValue(corners[i]) << 8) << i;
        EXPECT_EQ(s.m_vertices[i].Alpha, 0) << i;
    }
}

TEST(OutsideLevelSlider, FieldsInOrder)
{
    Slider s;
    void const * const order[] = {&s.m_mainColor,   &s.m_secondColor, &s.m_mainDark,     &s.m_mainLight,
                                  &s.m_secondDark,  &s.m_secondLight, &s.m_mainBrush,    &s.m_mainLightBrush,
                                  &s.m_secondBrush, &s.m_vertices,    &s.m_gradientRects};
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(order[i - 1], order[i]) << i;
}

TEST(OutsideLevelSlider, SettersDeriveColours)
{
    for (COLORREF const colour : {RGB(255, 0, 0), RGB(0, 255, 0), RGB(10, 20, 200), RGB(128, 128, 128),
                                  RGB(255, 255, 255), RGB(0, 0, 0), RGB(200, 130, 5), RGB(1, 2, 3)})
    {
        Slider s;
        s.SetMainColor(colour);
        EXPECT_EQ(s.m_mainColor, colour);
        EXPECT_TRUE(Near(s.m_mainLight, Luma(colour, 500))) << colour;
        EXPECT_TRUE(Near(s.m_mainDark, Luma(colour, -333))) << colour;
        EXPECT_EQ(BrushColour(s.m_mainBrush), colour);
        EXPECT_EQ(BrushColour(s.m_mainLightBrush), s.m_mainLight);
        EXPECT_EQ(s.m_vertices[0].Red, GetRValue(s.m_mainLight) << 8);
        EXPECT_EQ(s.m_vertices[0].Green, GetGValue(s.m_mainLight) << 8);
        EXPECT_EQ(s.m_vertices[0].Blue, GetBValue(s.m_mainLight) << 8);
        EXPECT_EQ(s.m_vertices[1].Red, GetRValue(s.m_mainDark) << 8);
        EXPECT_EQ(s.m_vertices[1].Blue, GetBValue(s.m_mainDark) << 8);
        EXPECT_EQ(s.m_secondColor, ::GetSysColor(COLOR_BTNFACE));
        EXPECT_EQ(s.m_vertices[2].Red, GetRValue(s.m_secondLight) << 8);
        s.SetSecondColor(colour);
        EXPECT_EQ(s.m_secondColor, colour);
        EXPECT_EQ(s.m_secondLight, s.m_mainLight);
        EXPECT_EQ(s.m_secondDark, s.m_mainDark);
        EXPECT_EQ(BrushColour(s.m_secondBrush), colour);
        EXPECT_EQ(s.m_vertices[2].Green, GetGValue(s.m_secondLight) << 8);
        EXPECT_EQ(s.m_vertices[3].Green, GetGValue(s.m_secondDark) << 8);
        s.InitStandardColors();
        EXPECT_EQ(s.m_mainColor, 0xC8B4B4u);
        EXPECT_EQ(s.m_secondColor, ::GetSysColor(COLOR_BTNFACE));
    }
}

TEST(OutsideLevelSlider, SettersKeepNoGdiObjects)
{
    Slider s;
    EXPECT_EQ(tests::GdiGrowth([&] {
                  for (unsigned long i = 0; i < 50; ++i)
                  {
                      s.SetMainColor(i);
                      s.SetSecondColor(i * 3);
                      s.InitStandardColors();
                  }
              }),
              0);
}

class OutsideLevelSliderPaint : public testing::Test
{
protected:
    void Make(Slider & slider, DWORD style, int min, int max, int pos)
    {
        ASSERT_TRUE(slider.Create(WS_CHILD | style, CRect(10, 10, 210, 50), m_host, 5));
        slider.SetRange(min, max);
        slider.SetPos(pos);
    }
    Host m_host;
};

/// The channel, step by step.
void ReferenceChannel(Slider & s, HDC handle, CRect & rect, bool vertical, int min, int max, int pos)
{
    CDC dc;
    dc.Attach(handle);
    if (vertical)
        rect.InflateRect(rect.Width() - 1, 0);
    else
        rect.InflateRect(0, rect.Height() - 1);
    float const f = static_cast<float>(pos - min) / static_cast<float>(max - min);
    auto const paint = [&](CRect const & part, int first, COLORREF dark, COLORREF light) {
        TRIVERTEX vertices[4];
        std::copy(std::begin(s.m_vertices), std::end(s.m_vertices), vertices);
        vertices[first].x = part.left;
        vertices[first].y = part.top;
        vertices[first + 1].x = part.right;
        vertices[first + 1].y = part.bottom;
        GRADIENT_RECT which = {static_cast<ULONG>(first), static_cast<ULONG>(first + 1)};
        ::GradientFill(handle, vertices, 4, &which, 1, vertical ? GRADIENT_FILL_RECT_H : GRADIENT_FILL_RECT_V);
        dc.Draw3dRect(part, dark, light);
    };
    CRect first = rect;
    CRect second = rect;
    if (vertical)
    {
        first.top = rect.top + static_cast<int>(f * static_cast<float>(rect.Height()));
        second.bottom = rect.top + static_cast<int>(f * static_cast<float>(rect.Height()));
    }
    else
    {
        first.right = rect.left + static_cast<int>(f * static_cast<float>(rect.Width()));
        second.left = rect.left + static_cast<int>(f * static_cast<float>(rect.Width()));
    }
    paint(first, 0, s.m_mainDark, s.m_mainLight);
    paint(second, 2, s.m_secondDark, s.m_secondLight);
    dc.Detach();
}

/// The handle of a canvas without an object of its own, as a notification carries it.
class RawDc
{
public:
    explicit RawDc(Canvas & canvas) : m_canvas(canvas), m_handle(canvas.Dc().Detach()) {}
    ~RawDc() { m_canvas.Dc().Attach(m_handle); }
    RawDc(RawDc const &) = delete;
    RawDc & operator=(RawDc const &) = delete;
    operator HDC() const { return m_handle; }

private:
    Canvas & m_canvas;
    HDC m_handle;
};

struct Level
{
    int min, max, pos;
};

TEST_F(OutsideLevelSliderPaint, ChannelAsDefined)
{
    for (bool const vertical : {false, true})
    {
        for (Level const level : {Level{0, 100, 50}, Level{0, 100, 33}, Level{0, 3, 1}, Level{-5, 5, 0},
                                  Level{-10, -1, -2}, Level{0, 7, 6}, Level{0, 100, 99}, Level{0, 1000000, 333333}})
        {
            Slider s;
            Make(s, vertical ? TBS_VERT : TBS_HORZ, level.min, level.max, level.pos);
            s.SetMainColor(RGB(200, 40, 40));
            s.SetSecondColor(RGB(40, 40, 200));
            CRect rect = vertical ? CRect(30, 10, 35, 101) : CRect(10, 30, 101, 35);
            CRect expectedRect = rect;
            Canvas ours(140, 140, ground), theirs(140, 140, ground);
            RawDc const raw(ours), rawTheirs(theirs);
            CDC dc;
            dc.Attach(raw);
            s.DrawChannel(&dc, rect);
            EXPECT_EQ(dc.m_hDC, nullptr);
            if (dc.m_hDC != nullptr)
                dc.Detach();
            ReferenceChannel(s, rawTheirs, expectedRect, vertical, level.min, level.max, level.pos);
            EXPECT_EQ(rect, expectedRect);
            EXPECT_TRUE(tests::SamePixels(ours, theirs))
                << vertical << ' ' << level.min << ' ' << level.max << ' ' << level.pos;
            s.DestroyWindow();
        }
    }
}

TEST_F(OutsideLevelSliderPaint, RectangleGrowsAcross)
{
    Slider h, v;
    Make(h, TBS_HORZ, 0, 10, 5);
    Make(v, TBS_VERT, 0, 10, 5);
    Canvas canvas(140, 140, ground);
    RawDc const raw(canvas);
    CDC dc;
    dc.Attach(raw);
    CRect rect(10, 30, 100, 34);
    h.DrawChannel(&dc, rect);
    EXPECT_EQ(rect, CRect(10, 27, 100, 37));
    dc.Attach(raw);
    rect = CRect(30, 10, 34, 100);
    v.DrawChannel(&dc, rect);
    EXPECT_EQ(rect, CRect(27, 10, 37, 100));
    h.DestroyWindow();
    v.DestroyWindow();
}

TEST_F(OutsideLevelSliderPaint, AtTheEndsOnePartFillsTheChannel)
{
    for (bool const vertical : {false, true})
    {
        for (int const pos : {0, 10})
        {
            Slider s;
            Make(s, vertical ? TBS_VERT : TBS_HORZ, 0, 10, pos);
            s.SetMainColor(RGB(200, 0, 0));
            s.SetSecondColor(RGB(0, 0, 200));
            Canvas canvas(140, 140, ground);
            RawDc const raw(canvas);
            CDC dc;
            dc.Attach(raw);
            CRect rect = vertical ? CRect(30, 10, 34, 100) : CRect(10, 30, 100, 34);
            s.DrawChannel(&dc, rect);
            // Within the channel, beside its edges, only one of the two colours shows.
            CRect inner = rect;
            inner.DeflateRect(2, 2);
            bool const mainFills = vertical ? pos == 0 : pos == 10;
            int red = 0, blue = 0;
            for (int y = inner.top; y < inner.bottom; ++y)
            {
                for (int x = inner.left; x < inner.right; ++x)
                {
                    COLORREF const c = canvas.Pixel(x, y);
                    red += GetRValue(c) > GetBValue(c) ? 1 : 0;
                    blue += GetBValue(c) > GetRValue(c) ? 1 : 0;
                }
            }
            EXPECT_EQ(mainFills ? red : blue, inner.Width() * inner.Height()) << vertical << pos;
            EXPECT_EQ(mainFills ? blue : red, 0);
            s.DestroyWindow();
        }
    }
}

TEST_F(OutsideLevelSliderPaint, EmptyRectanglesDoNotCrash)
{
    Slider s;
    Make(s, TBS_HORZ, 0, 10, 5);
    for (CRect rect : {CRect(0, 0, 0, 0), CRect(50, 50, 40, 40), CRect(5, 5, 6, 6)})
    {
        Canvas canvas(60, 60, ground);
        RawDc const raw(canvas);
        CDC dc;
        dc.Attach(raw);
        s.DrawChannel(&dc, rect);
        dc.Attach(raw);
        s.DrawThumb(&dc, rect, true);
    }
    s.DestroyWindow();
}

TEST_F(OutsideLevelSliderPaint, DirectionIsReadAtEachPaint)
{
    Slider s;
    Make(s, TBS_HORZ, 0, 10, 5);
    s.ModifyStyle(0, TBS_VERT);
    Canvas canvas(140, 140, ground);
    RawDc const raw(canvas);
    CDC dc;
    dc.Attach(raw);
    CRect rect(30, 10, 34, 100);
    s.DrawChannel(&dc, rect);
    EXPECT_EQ(rect, CRect(27, 10, 37, 100));
    s.DestroyWindow();
}

TEST_F(OutsideLevelSliderPaint, RandomLevels)
{
    unsigned seed = 5;
    auto const below = [&seed](int n) {
        seed = seed * 1664525u + 1013904223u;
        return static_cast<int>((seed >> 8) % static_cast<unsigned>(n));
    };
    Slider sliders[2];
    Make(sliders[0], TBS_HORZ, 0, 10, 5);
    Make(sliders[1], TBS_VERT, 0, 10, 5);
    for (int round = 0; round < 300; ++round)
    {
        bool const vertical = below(2) != 0;
        Slider & s = sliders[vertical ? 1 : 0];
        int const min = below(2000) - 1000, max = min + 2 + below(5000);
        s.SetRange(min, max);
        // Both parts get some extent.
        int const extent = 20 + below(100);
        int const pos = min + 1 + below(max - min - 1);
        float const f = static_cast<float>(pos - min) / static_cast<float>(max - min);
        int const first = static_cast<int>(f * static_cast<float>(extent));
        if (first == 0 || first == extent)
            continue;
        s.SetPos(pos);
        s.SetMainColor(static_cast<unsigned long>(below(0x1000000)));
        s.SetSecondColor(static_cast<unsigned long>(below(0x1000000)));
        int const thick = 1 + below(7);
        CRect rect = vertical ? CRect(30, 10, 30 + thick, 10 + extent) : CRect(10, 30, 10 + extent, 30 + thick);
        CRect expected = rect;
        Canvas ours(140, 140, ground), theirs(140, 140, ground);
        RawDc const raw(ours), rawTheirs(theirs);
        CDC dc;
        dc.Attach(raw);
        s.DrawChannel(&dc, rect);
        ReferenceChannel(s, rawTheirs, expected, vertical, min, max, pos);
        ASSERT_EQ(rect, expected);
        ASSERT_TRUE(tests::SamePixels(ours, theirs)) << round;
    }
    sliders[0].DestroyWindow();
    sliders[1].DestroyWindow();
}

TEST_F(OutsideLevelSliderPaint, ThumbAsDefined)
{
    for (bool const vertical : {false, true})
    {
        for (bool const selected : {false, true})
        {
            Slider s;
            Make(s, vertical ? TBS_VERT : TBS_HORZ, 0, 10, 5);
            s.SetMainColor(RGB(200, 40, 40));
            Canvas ours(80, 80, ground), theirs(80, 80, ground);
            RawDc const raw(ours);
            HDC const handle = raw;
            HGDIOBJ const pen = ::GetCurrentObject(handle, OBJ_PEN);
            HGDIOBJ const brush = ::GetCurrentObject(handle, OBJ_BRUSH);
            ::SetBkColor(handle, RGB(3, 4, 5));
            ::SetTextColor(handle, RGB(6, 7, 8));
            CDC dc;
            dc.Attach(raw);
            CRect rect(20, 20, 31, 41);
            s.DrawThumb(&dc, rect, selected);
            EXPECT_EQ(dc.m_hDC, nullptr);
            EXPECT_EQ(rect, vertical ? CRect(20, 21, 31, 40) : CRect(21, 20, 30, 41));
            EXPECT_EQ(::GetCurrentObject(handle, OBJ_PEN), pen);
            EXPECT_EQ(::GetCurrentObject(handle, OBJ_BRUSH), brush);
            EXPECT_EQ(::GetBkColor(handle), RGB(3, 4, 5));
            EXPECT_EQ(::GetTextColor(handle), RGB(6, 7, 8));
            {
                CPen line(PS_SOLID, 1, s.m_mainDark);
                int const saved = theirs.Dc().SaveDC();
                theirs.Dc().SelectObject(&line);
                theirs.Dc().SelectObject(selected ? &s.m_mainLightBrush : &s.m_mainBrush);
                theirs.Dc().RoundRect(rect, CPoint(2, 2));
                theirs.Dc().RestoreDC(saved);
            }
            EXPECT_TRUE(tests::SamePixels(ours, theirs)) << vertical << selected;
            EXPECT_EQ(ours.Pixel(25, 30), selected ? s.m_mainLight : s.m_mainColor);
            s.DestroyWindow();
        }
    }
}

TEST_F(OutsideLevelSliderPaint, ResultsByStage)
{
    Slider s;
    Make(s, TBS_HORZ, 0, 10, 5);
    Canvas canvas(140, 140, ground);
    RawDc const handle(canvas);
    struct Row
    {
        DWORD stage;
        DWORD_PTR item;
        LRESULT result;
        bool paints;
    };
    LRESULT const untouched = 0x1234;
    for (Row const row :
         {Row{CDDS_PREPAINT, 0, 48, false}, Row{CDDS_POSTPAINT, 0, 4, false}, Row{CDDS_PREERASE, 0, 0, false},
          Row{CDDS_POSTERASE, 0, 0, false}, Row{CDDS_ITEMPREPAINT, TBCD_THUMB, 4, true},
          Row{CDDS_ITEMPREPAINT, TBCD_CHANNEL, 4, true}, Row{CDDS_ITEMPREPAINT, TBCD_TICS, 4, false},
          Row{CDDS_ITEMPREPAINT, 77, 4, false}, Row{CDDS_ITEMPOSTPAINT, TBCD_THUMB, 4, false},
          Row{CDDS_ITEMPOSTPAINT, TBCD_CHANNEL, 4, false}, Row{CDDS_ITEMPREERASE, TBCD_THUMB, 0, false},
          Row{CDDS_ITEMPOSTERASE, TBCD_CHANNEL, 0, false}, Row{CDDS_ITEM, TBCD_THUMB, untouched, false},
          Row{CDDS_ITEMPREPAINT | CDDS_SUBITEM, TBCD_THUMB, untouched, false}, Row{0, 0, untouched, false},
          Row{CDDS_SUBITEM, 0, untouched, false}})
    {
        canvas.Fill(ground);
        NMCUSTOMDRAW draw = {};
        draw.hdr.hwndFrom = s.m_hWnd;
        draw.hdr.idFrom = 5;
        draw.hdr.code = static_cast<UINT>(NM_CUSTOMDRAW);
        draw.dwDrawStage = row.stage;
        draw.hdc = handle;
        draw.rc = CRect(20, 50, 100, 60);
        draw.dwItemSpec = row.item;
        LRESULT result = untouched;
        s.OnReflectedCustomDraw(&draw.hdr, &result);
        EXPECT_EQ(result, row.result) << row.stage << ' ' << row.item;
        EXPECT_EQ(!canvas.BoundsOfOther(ground).IsRectEmpty(), row.paints) << row.stage << ' ' << row.item;
    }
    s.DestroyWindow();
}

TEST_F(OutsideLevelSliderPaint, AnyItemStateSelectsTheThumb)
{
    Slider s;
    Make(s, TBS_HORZ, 0, 10, 5);
    s.SetMainColor(RGB(200, 40, 40));
    for (UINT const state : {0u, UINT{CDIS_SELECTED}, UINT{CDIS_FOCUS}, UINT{CDIS_HOT}, UINT{CDIS_DISABLED}})
    {
        Canvas canvas(140, 140, ground);
        RawDc const handle(canvas);
        NMCUSTOMDRAW draw = {};
        draw.hdr.code = static_cast<UINT>(NM_CUSTOMDRAW);
        draw.dwDrawStage = CDDS_ITEMPREPAINT;
        draw.dwItemSpec = TBCD_THUMB;
        draw.hdc = handle;
        draw.rc = CRect(20, 20, 40, 40);
        draw.uItemState = state;
        LRESULT result = 0;
        s.OnReflectedCustomDraw(&draw.hdr, &result);
        EXPECT_EQ(canvas.Pixel(30, 30), state != 0 ? s.m_mainLight : s.m_mainColor) << state;
    }
    s.DestroyWindow();
}

TEST_F(OutsideLevelSliderPaint, ChannelByCustomDrawIsTheSameAsDrawChannel)
{
    Slider s;
    Make(s, TBS_HORZ, 0, 10, 3);
    Canvas a(140, 140, ground), b(140, 140, ground);
    RawDc const handleA(a), handleB(b);
    NMCUSTOMDRAW draw = {};
    draw.hdr.code = static_cast<UINT>(NM_CUSTOMDRAW);
    draw.dwDrawStage = CDDS_ITEMPREPAINT;
    draw.dwItemSpec = TBCD_CHANNEL;
    draw.hdc = handleA;
    draw.rc = CRect(20, 50, 100, 54);
    LRESULT result = 0;
    s.OnReflectedCustomDraw(&draw.hdr, &result);
    CDC dc;
    dc.Attach(handleB);
    CRect rect(20, 50, 100, 54);
    s.DrawChannel(&dc, rect);
    EXPECT_TRUE(tests::SamePixels(a, b));
    EXPECT_EQ(a.BoundsOfOther(ground), rect);
    s.DestroyWindow();
}

TEST_F(OutsideLevelSliderPaint, PaintKeepsNoGdiObjects)
{
    Slider s;
    Make(s, TBS_HORZ, 0, 10, 3);
    Canvas canvas(140, 140, ground);
    RawDc const handle(canvas);
    EXPECT_EQ(tests::GdiGrowth([&] {
                  for (DWORD_PTR const item : {DWORD_PTR{TBCD_THUMB}, DWORD_PTR{TBCD_CHANNEL}})
                  {
                      NMCUSTOMDRAW draw = {};
                      draw.hdr.code = static_cast<UINT>(NM_CUSTOMDRAW);
                      draw.dwDrawStage = CDDS_ITEMPREPAINT;
                      draw.dwItemSpec = item;
                      draw.uItemState = CDIS_SELECTED;
                      draw.hdc = handle;
                      draw.rc = CRect(20, 50, 100, 54);
                      LRESULT result = 0;
                      s.OnReflectedCustomDraw(&draw.hdr, &result);
                  }
              }),
              0);
    s.DestroyWindow();
}

TEST_F(OutsideLevelSliderPaint, OnTheScreenTheLevelShowsAndTicksDoNot)
{
    for (bool const vertical : {false, true})
    {
        Slider s;
        CRect const place = vertical ? CRect(10, 10, 60, 210) : CRect(10, 10, 210, 60);
        ASSERT_TRUE(s.Create(WS_CHILD | WS_VISIBLE | TBS_AUTOTICKS | TBS_BOTH | (vertical ? TBS_VERT : TBS_HORZ), place,
                             m_host, 5));
        s.SetMainColor(RGB(220, 0, 0));
        s.SetSecondColor(RGB(0, 0, 220));
        s.SetRange(0, 10);
        s.SetTicFreq(1);
        s.SetPos(5);
        s.Invalidate();
        m_host.UpdateWindow();
        s.UpdateWindow();
        tests::PumpPosted();
        Canvas canvas(place.Width(), place.Height());
        canvas.CopyFromScreen(s);
        CRect channel, thumb;
        s.GetChannelRect(channel);
        s.GetThumbRect(thumb);
        if (vertical && channel.Width() > channel.Height()) // Some platforms give a vertical channel lying.
            channel = CRect(channel.top, channel.left, channel.bottom, channel.right);
        CRect grown = channel;
        if (vertical)
            grown.InflateRect(channel.Width() - 1, 0);
        else
            grown.InflateRect(0, channel.Height() - 1);
        CPoint const middle = channel.CenterPoint();
        CPoint const before = vertical ? CPoint(middle.x, channel.top + 15) : CPoint(channel.left + 15, middle.y);
        CPoint const behind = vertical ? CPoint(middle.x, channel.bottom - 15) : CPoint(channel.right - 15, middle.y);
        COLORREF const first = canvas.Pixel(before.x, before.y);
        COLORREF const last = canvas.Pixel(behind.x, behind.y);
        COLORREF const mains = vertical ? last : first;
        COLORREF const seconds = vertical ? first : last;
        EXPECT_GT(GetRValue(mains), GetBValue(mains)) << vertical;
        EXPECT_GT(GetBValue(seconds), GetRValue(seconds)) << vertical;
        // Nothing else but the thumb, channel and the ground (and a frame of focus, which there is none of).
        COLORREF const back = canvas.Pixel(0, 0);
        int strange = 0;
        thumb.InflateRect(1, 1);
        grown.InflateRect(1, 1);
        for (int y = 0; y < place.Height(); ++y)
        {
            for (int x = 0; x < place.Width(); ++x)
            {
                if (!thumb.PtInRect({x, y}) && !grown.PtInRect({x, y}) && canvas.Pixel(x, y) != back)
                    ++strange;
            }
        }
        EXPECT_EQ(strange, 0) << vertical;
        s.DestroyWindow();
    }
}

TEST_F(OutsideLevelSliderPaint, DraggedByTheMouse)
{
    Slider s;
    ASSERT_TRUE(s.Create(WS_CHILD | WS_VISIBLE | TBS_HORZ, CRect(10, 10, 210, 50), m_host, 5));
    s.SetMainColor(RGB(220, 0, 0));
    s.SetSecondColor(RGB(0, 0, 220));
    s.SetRange(0, 100);
    ASSERT_TRUE(tests::BringToFront(m_host));
    CRect thumb;
    s.GetThumbRect(thumb);
    tests::Drag(tests::ClientPoint(s, thumb.CenterPoint()),
                tests::ClientPoint(s, thumb.CenterPoint() + CPoint(120, 0)));
    EXPECT_TRUE(tests::PumpUntil([&] { return s.GetPos() > 40; }));
    tests::PumpPosted();
    s.Invalidate();
    s.UpdateWindow();
    Canvas canvas(200, 40);
    canvas.CopyFromScreen(s);
    CRect channel;
    s.GetChannelRect(channel);
    COLORREF const c = canvas.Pixel(channel.left + 30, channel.CenterPoint().y);
    EXPECT_GT(GetRValue(c), GetBValue(c));
    s.DestroyWindow();
}
} // namespace
} // namespace outside::controls
