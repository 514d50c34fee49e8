// The colour button: its paint is compared with a painter written after the definition.

#include <type_traits>

#include "ControlTest.h"

namespace outside::controls
{
namespace
{
using tests::Canvas;

class Button : public CColorButton
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
    using CColorButton::m_timerId;

    std::function<void(UINT)> before;
    int defaultTimers = 0;
    int defaultMoves = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (before)
        {
            auto const copy = before;
            copy(message);
        }
        return CColorButton::WindowProc(message, wParam, lParam);
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        defaultTimers += message == WM_TIMER ? 1 : 0;
        defaultMoves += message == WM_MOUSEMOVE ? 1 : 0;
        return CColorButton::DefWindowProc(message, wParam, lParam);
    }
};

/// The paint, step by step.
void Reference(Button & button, CDC & dc, CRect r, UINT state)
{
    bool const selected = (state & ODS_SELECTED) != 0;
    bool const disabled = (state & ODS_DISABLED) != 0;
    if (button.m_drawFrame)
        ::DrawFrameControl(dc.m_hDC, &r, DFC_BUTTON, DFCS_BUTTONPUSH | (selected ? DFCS_PUSHED : 0));
    if (button.m_drawFocusFrame && button.m_hot)
    {
        HGDIOBJ const former = ::SelectObject(dc.m_hDC, button.m_hotPen->m_hObject);
        ::Rectangle(dc.m_hDC, r.left, r.top, r.right, r.bottom);
        ::SelectObject(dc.m_hDC, former);
    }
    r.DeflateRect(::GetSystemMetrics(SM_CXEDGE), ::GetSystemMetrics(SM_CYEDGE));
    COLORREF const background = disabled       ? button.m_disabledBgColor
                                : button.m_hot ? button.m_hotBgColor
                                               : button.m_bgColor;
    if (button.m_drawFrame || background != button.RgbColor(CColorControl::ButtonFace))
        dc.FillSolidRect(r, background);
    CPoint const c((r.left + r.right) / 2, (r.top + r.bottom) / 2);
    auto icon = reinterpret_cast<HICON>(button.SendMessage(BM_GETIMAGE, IMAGE_ICON, 0));
    if (icon != nullptr)
    {
        if (disabled && button.m_disabledIcon != nullptr)
            icon = button.m_disabledIcon;
        ::DrawIcon(dc.m_hDC, c.x - button.m_iconSize / 2, c.y - button.m_iconSize / 2, icon);
    }
    CString text;
    button.GetWindowText(text);
    if (text.IsEmpty())
        return;
    CSize const extent = dc.GetTextExtent(text);
    CPoint origin(c.x - extent.cx / 2, c.y - extent.cy / 2);
    if (selected)
        origin.Offset(1, 1);
    int const mode = dc.SetBkMode(TRANSPARENT);
    if (disabled)
    {
        COLORREF const former = dc.SetTextColor(button.m_disabledFgColor);
        ::DrawStateW(dc.m_hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(text.GetString()), 0, origin.x, origin.y,
                     extent.cx, extent.cy, DST_PREFIXTEXT | DSS_DISABLED);
        dc.SetTextColor(former);
    }
    else
    {
        COLORREF const former = dc.SetTextColor(button.m_hot ? button.m_hotFgColor : button.m_fgColor);
        ::TextOutW(dc.m_hDC, origin.x, origin.y, text, text.GetLength());
        dc.SetTextColor(former);
    }
    dc.SetBkMode(mode);
}

DRAWITEMSTRUCT Item(Button & button, CDC & dc, CRect const & rect, UINT state)
{
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_BUTTON;
    item.CtlID = 7;
    item.itemAction = ODA_DRAWENTIRE;
    item.itemState = state;
    item.hwndItem = button.m_hWnd;
    item.hDC = dc.m_hDC;
    item.rcItem = rect;
    return item;
}

constexpr COLORREF ground = RGB(1, 130, 77);

testing::AssertionResult PaintsAsDefined(Button & button, CRect const & rect, UINT state)
{
    Canvas ours(120, 70, ground);
    Canvas theirs(120, 70, ground);
    DRAWITEMSTRUCT item = Item(button, ours.Dc(), rect, state);
    button.DrawItem(&item);
    Reference(button, theirs.Dc(), rect, state);
    return tests::SamePixels(ours, theirs);
}

class OutsideColorButton : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_button.Create(L"", WS_CHILD | WS_VISIBLE, CRect(20, 20, 120, 60), m_host, 7));
    }
    void TearDown() override
    {
        if (m_button.GetSafeHwnd() != nullptr)
            m_button.DestroyWindow();
    }
    Host m_host;
    Button m_button;
};

TEST_F(OutsideColorButton, Shape)
{
    static_assert(std::is_base_of_v<CButton, CColorButton> && std::is_base_of_v<CColorControl, CColorButton>);
    EXPECT_EQ(static_cast<void *>(static_cast<CButton *>(&m_button)), static_cast<void *>(&m_button));
    EXPECT_GT(static_cast<void *>(static_cast<CColorControl *>(&m_button)),
              static_cast<void *>(static_cast<CButton *>(&m_button)));
    void const * const order[] = {&m_button.m_drawFrame, &m_button.m_drawFocusFrame, &m_button.m_icon,
                                  &m_button.m_disabledIcon, &m_button.m_iconSize};
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(order[i - 1], order[i]);
    std::vector<MapEntry> const entries = EntriesOf(Button::GetThisMessageMap());
    EXPECT_TRUE(Handles(entries, WM_MOUSEMOVE));
    EXPECT_TRUE(Handles(entries, WM_TIMER));
    EXPECT_EQ(entries.size(), 2u);
}

TEST_F(OutsideColorButton, OwnerDrawStyleIsAdded)
{
    EXPECT_EQ(m_button.GetStyle() & 0xF, 11u);
    for (DWORD style : {BS_PUSHBUTTON, BS_DEFPUSHBUTTON, BS_AUTOCHECKBOX, BS_CHECKBOX})
    {
        Button other;
        ASSERT_TRUE(other.Create(L"x", WS_CHILD | style, CRect(0, 0, 10, 10), m_host, 8));
        EXPECT_EQ(other.GetStyle() & 0xF, style | 11u) << style;
        other.DestroyWindow();
    }
    HWND const native = ::CreateWindowW(L"BUTTON", L"x", WS_CHILD | BS_NOTIFY, 0, 0, 10, 10, m_host.m_hWnd,
                                        reinterpret_cast<HMENU>(9), nullptr, nullptr);
    Button taken;
    ASSERT_TRUE(taken.SubclassDlgItem(9, m_host));
    EXPECT_EQ(static_cast<DWORD>(::GetWindowLongW(native, GWL_STYLE)) & (0xFu | BS_NOTIFY), 11u | BS_NOTIFY);
    taken.DestroyWindow();
}

TEST_F(OutsideColorButton, ResetColorsAtOnceKeepsTheGreenPen)
{
    Button fresh;
    fresh.ResetColors();
    LOGPEN pen = {};
    ::GetObjectW(fresh.m_hotPen->m_hObject, sizeof(pen), &pen);
    EXPECT_EQ(pen.lopnColor, 0x00FF00u);
}

TEST_F(OutsideColorButton, SetIconsStoresAndGivesTheButtonItsIcon)
{
    SolidIcon const icon(RGB(255, 0, 0));
    SolidIcon const disabled(RGB(0, 0, 255));
    m_button.SetIcons(icon, disabled, 16);
    EXPECT_EQ(reinterpret_cast<HICON>(m_button.SendMessage(BM_GETIMAGE, IMAGE_ICON, 0)), static_cast<HICON>(icon));
    EXPECT_EQ(m_button.m_disabledIcon, static_cast<HICON>(disabled));
    EXPECT_EQ(m_button.m_iconSize, 16);
    EXPECT_TRUE(PaintsAsDefined(m_button, CRect(0, 0, 100, 40), 0));
    EXPECT_EQ(m_button.m_icon, static_cast<HICON>(icon));
    m_button.SetIcons(nullptr, disabled, 32);
    EXPECT_EQ(m_button.SendMessage(BM_GETIMAGE, IMAGE_ICON, 0), 0);
}

TEST_F(OutsideColorButton, CurrentIconIsReadAtEachPaint)
{
    SolidIcon const first(RGB(255, 0, 0));
    SolidIcon const second(RGB(0, 255, 255));
    m_button.SetIcons(first, nullptr, 32);
    m_button.SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(static_cast<HICON>(second)));
    Canvas canvas(120, 70, ground);
    DRAWITEMSTRUCT item = Item(m_button, canvas.Dc(), CRect(0, 0, 100, 40), 0);
    m_button.DrawItem(&item);
    EXPECT_EQ(m_button.m_icon, static_cast<HICON>(second));
    EXPECT_EQ(canvas.Pixel(50, 20), RGB(0, 255, 255));
}

TEST_F(OutsideColorButton, SetIconsWithoutAWindowStores)
{
    Button none;
    SolidIcon const icon(RGB(255, 0, 0));
    none.SetIcons(nullptr, icon, 24);
    EXPECT_EQ(none.m_disabledIcon, static_cast<HICON>(icon));
    EXPECT_EQ(none.m_iconSize, 24);
}

TEST_F(OutsideColorButton, PaintsEveryStateAsDefined)
{
    SolidIcon const icon(RGB(255, 0, 0), 32);
    SolidIcon const disabledIcon(RGB(0, 0, 255), 32);
    int checks = 0;
    for (int frame = 0; frame < 2; ++frame)
    {
        for (int focus = 0; focus < 2; ++focus)
        {
            for (int hot = 0; hot < 2; ++hot)
            {
                for (UINT const state :
                     {0u, UINT{ODS_SELECTED}, UINT{ODS_DISABLED}, UINT{ODS_SELECTED | ODS_DISABLED}, UINT{ODS_FOCUS}})
                {
                    for (int colours = 0; colours < 3; ++colours)
                    {
                        for (int icons = 0; icons < 3; ++icons)
                        {
                            for (wchar_t const * const text : {L"", L"Text", L"A&b&&c"})
                            {
                                Button & b = m_button;
                                b.DrawFrame(frame != 0);
                                b.DrawFocusFrame(focus != 0);
                                b.m_hot = hot != 0;
                                if (colours == 0)
                                {
                                    b.SetColors(CColorControl::ButtonText, CColorControl::ButtonFace);
                                    b.SetDisabledColors(0x808080, b.RgbColor(CColorControl::ButtonFace));
                                }
                                else if (colours == 1)
                                {
                                    b.SetColors(RGB(200, 10, 10), RGB(20, 20, 90), RGB(250, 250, 0), RGB(90, 20, 20));
                                    b.SetDisabledColors(RGB(1, 2, 3), RGB(40, 90, 40));
                                }
                                else
                                    b.ResetColors();
                                b.SetIcons(icons != 0 ? static_cast<HICON>(icon) : nullptr,
                                           icons == 2 ? static_cast<HICON>(disabledIcon) : nullptr,
                                           colours == 0 ? 32 : 17);
                                b.SetWindowText(text);
                                EXPECT_TRUE(PaintsAsDefined(b, CRect(7, 5, 104, 52), state))
                                    << "frame " << frame << " focus " << focus << " hot " << hot << " state " << state
                                    << " colours " << colours << " icons " << icons << " text " << text;
                                ++checks;
                            }
                        }
                    }
                }
            }
        }
    }
    EXPECT_EQ(checks, 2 * 2 * 2 * 5 * 3 * 3 * 3);
}

TEST_F(OutsideColorButton, FocusFrameIsGreenAtFirst)
{
    m_button.DrawFrame(false);
    m_button.DrawFocusFrame(true);
    m_button.m_hot = true;
    Canvas canvas(120, 70, ground);
    DRAWITEMSTRUCT item = Item(m_button, canvas.Dc(), CRect(0, 0, 100, 40), 0);
    m_button.DrawItem(&item);
    EXPECT_EQ(canvas.Pixel(0, 0), RGB(0, 255, 0));
    EXPECT_EQ(canvas.Pixel(99, 39), RGB(0, 255, 0));
    EXPECT_EQ(canvas.Pixel(50, 0), RGB(0, 255, 0));
    m_button.m_hot = false;
    Canvas cold(120, 70, ground);
    item.hDC = cold.Dc().m_hDC;
    m_button.DrawItem(&item);
    EXPECT_EQ(cold.Pixel(0, 0), ground);
}

TEST_F(OutsideColorButton, FocusFrameUsesTheContextsBrush)
{
    m_button.DrawFrame(false);
    m_button.DrawFocusFrame(true);
    m_button.m_hot = true;
    Canvas canvas(120, 70, ground);
    CBrush brush(RGB(12, 34, 56));
    CBrush * const former = canvas.Dc().SelectObject(&brush);
    DRAWITEMSTRUCT item = Item(m_button, canvas.Dc(), CRect(0, 0, 100, 40), 0);
    m_button.DrawItem(&item);
    EXPECT_EQ(canvas.Pixel(50, 20), RGB(12, 34, 56));
    canvas.Dc().SelectObject(former);
}

TEST_F(OutsideColorButton, ContextIsRestored)
{
    m_button.SetWindowText(L"text");
    m_button.DrawFocusFrame(true);
    m_button.m_hot = true;
    for (UINT const state : {0u, UINT{ODS_DISABLED}, UINT{ODS_SELECTED}})
    {
        Canvas canvas(120, 70, ground);
        CDC & dc = canvas.Dc();
        dc.SetBkMode(OPAQUE);
        dc.SetTextColor(RGB(1, 2, 3));
        HGDIOBJ const pen = ::GetCurrentObject(dc.m_hDC, OBJ_PEN);
        HGDIOBJ const brush = ::GetCurrentObject(dc.m_hDC, OBJ_BRUSH);
        HGDIOBJ const font = ::GetCurrentObject(dc.m_hDC, OBJ_FONT);
        DRAWITEMSTRUCT item = Item(m_button, dc, CRect(0, 0, 100, 40), state);
        m_button.DrawItem(&item);
        EXPECT_EQ(dc.GetBkMode(), OPAQUE);
        EXPECT_EQ(dc.GetTextColor(), RGB(1, 2, 3));
        EXPECT_EQ(::GetCurrentObject(dc.m_hDC, OBJ_PEN), pen);
        EXPECT_EQ(::GetCurrentObject(dc.m_hDC, OBJ_BRUSH), brush);
        EXPECT_EQ(::GetCurrentObject(dc.m_hDC, OBJ_FONT), font);
    }
}

TEST_F(OutsideColorButton, PaintKeepsNoGdiObjects)
{
    m_button.SetWindowText(L"te&xt");
    m_button.DrawFocusFrame(true);
    m_button.m_hot = true;
    Canvas canvas(120, 70, ground);
    EXPECT_EQ(tests::GdiGrowth([&] {
                  for (UINT const state : {0u, UINT{ODS_DISABLED}, UINT{ODS_SELECTED}})
                  {
                      DRAWITEMSTRUCT item = Item(m_button, canvas.Dc(), CRect(0, 0, 100, 40), state);
                      m_button.DrawItem(&item);
                  }
              }),
              0);
}

TEST_F(OutsideColorButton, TinyAndEmptyRectangles)
{
    m_button.SetWindowText(L"text");
    for (CRect const & rect : {CRect(0, 0, 0, 0), CRect(5, 5, 6, 6), CRect(10, 10, 13, 13), CRect(50, 40, 20, 10)})
        EXPECT_TRUE(PaintsAsDefined(m_button, rect, 0)) << rect.left << ' ' << rect.right;
}

TEST_F(OutsideColorButton, PointerMakesItHotAndLeavingEndsThat)
{
    ASSERT_TRUE(tests::BringToFront(m_host));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
    tests::PumpPosted();
    TimerSpy spy;
    m_button.SetRolloverDelay(15);
    ASSERT_TRUE(tests::MoveMouse(tests::Centre(m_button)));
    ASSERT_TRUE(tests::PumpUntil([&] { return m_button.m_hot; }));
    ASSERT_EQ(spy.set().size(), 1u);
    EXPECT_EQ(spy.set()[0].window, m_button.m_hWnd);
    EXPECT_EQ(spy.set()[0].id, 1u);
    EXPECT_EQ(spy.set()[0].period, 15u);
    // A delay set while hot counts from the next entry on.
    m_button.SetRolloverDelay(25);
    ASSERT_TRUE(tests::MoveMouse(tests::Centre(m_button) + CPoint(5, 5)));
    tests::PumpPosted();
    EXPECT_EQ(spy.set().size(), 1u);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_button.defaultTimers >= 2; }));
    EXPECT_TRUE(m_button.m_hot);
    EXPECT_GE(m_button.defaultMoves, 1);
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_button.m_hot; }));
    ASSERT_EQ(spy.killed().size(), 1u);
    EXPECT_EQ(spy.killed()[0].id, 1u);
    ASSERT_TRUE(tests::MoveMouse(tests::Centre(m_button)));
    ASSERT_TRUE(tests::PumpUntil([&] { return m_button.m_hot; }));
    ASSERT_EQ(spy.set().size(), 2u);
    EXPECT_EQ(spy.set()[1].period, 25u);
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_button.m_hot; }));
}

TEST_F(OutsideColorButton, BecomingHotAndColdInvalidatesWithErase)
{
    ASSERT_TRUE(tests::BringToFront(m_host));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
    tests::PumpPosted();
    m_button.UpdateWindow();
    EXPECT_FALSE(m_button.GetUpdateRect(nullptr));
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    CRect update;
    EXPECT_TRUE(m_button.GetUpdateRect(&update));
    CRect client;
    m_button.GetClientRect(client);
    EXPECT_EQ(update, client);
    EXPECT_TRUE(m_button.m_hot);
    m_button.UpdateWindow();
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(6, 6));
    EXPECT_FALSE(m_button.GetUpdateRect(nullptr));
    // Outside: any timer tells it, and each goes on to the base.
    int const before = m_button.defaultTimers;
    m_button.SendMessage(WM_TIMER, 4711, 0);
    EXPECT_EQ(m_button.defaultTimers, before + 1);
    m_button.SendMessage(WM_TIMER, 1, 0);
    EXPECT_FALSE(m_button.m_hot);
    EXPECT_TRUE(m_button.GetUpdateRect(&update));
    EXPECT_EQ(update, client);
}

TEST_F(OutsideColorButton, BecomingHotAndColdErases)
{
    ASSERT_TRUE(tests::BringToFront(m_host));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
    tests::PumpPosted();
    m_button.UpdateWindow();
    tests::MessageRecorder recorder({WM_ERASEBKGND});
    recorder.Watch(m_button.m_hWnd, "button");
    m_button.Invalidate(FALSE);
    m_button.UpdateWindow();
    EXPECT_EQ(recorder.Count("button", WM_ERASEBKGND), 0);
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    m_button.UpdateWindow();
    EXPECT_EQ(recorder.Count("button", WM_ERASEBKGND), 1);
    m_button.SendMessage(WM_TIMER, 1, 0);
    m_button.UpdateWindow();
    EXPECT_EQ(recorder.Count("button", WM_ERASEBKGND), 2);
}

TEST_F(OutsideColorButton, RealClickIsReportedAndPaintsPressed)
{
    ASSERT_TRUE(tests::BringToFront(m_host));
    m_button.SetColors(0x0000FFul, 0xFFFFFFul, 0x0000FFul, 0x00FFFFul);
    m_button.Invalidate();
    ASSERT_TRUE(tests::MoveMouse(tests::Centre(m_button)));
    ASSERT_TRUE(tests::PumpUntil([&] { return m_button.m_hot; }));
    tests::PumpPosted();
    m_button.UpdateWindow();
    Canvas screen(100, 40);
    screen.CopyFromScreen(m_button);
    EXPECT_EQ(screen.Pixel(10, 10), 0x00FFFFu);
    tests::Press();
    tests::Release();
    EXPECT_TRUE(tests::PumpUntil([&] { return m_host.Commands(BN_CLICKED) == 1; }));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_host, {300, 250})));
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_button.m_hot; }));
    m_button.UpdateWindow();
    screen.CopyFromScreen(m_button);
    EXPECT_EQ(screen.Pixel(10, 10), 0xFFFFFFu);
}

TEST_F(OutsideColorButton, DestroyedWhilePainting)
{
    for (UINT const when : {UINT{BM_GETIMAGE}, UINT{WM_GETTEXT}, UINT{WM_GETTEXTLENGTH}})
    {
        auto * const button = new Button;
        ASSERT_TRUE(button->Create(L"text", WS_CHILD, CRect(0, 100, 100, 140), m_host, 8));
        bool gone = false;
        button->before = [&](UINT message) {
            if (message == when && !gone)
            {
                gone = true;
                button->DestroyWindow();
            }
        };
        Canvas canvas(120, 70, ground);
        DRAWITEMSTRUCT item = Item(*button, canvas.Dc(), CRect(0, 0, 100, 40), 0);
        button->DrawItem(&item);
        delete button;
    }
}

TEST_F(OutsideColorButton, DestroyedWhileHotLeavesNoTimer)
{
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(m_button.m_hot);
    m_button.DestroyWindow();
    tests::PumpFor(std::chrono::milliseconds(40));
}
} // namespace
} // namespace outside::controls
