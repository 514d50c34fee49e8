// Users who drag panes, tabs and dividers, press the buttons of captions and the keys.

#include "docking_DockTest.h"

using namespace docking;

class DockDrags : public DockTest
{
protected:
    void SetUp() override
    {
        DockTest::SetUp();
        ShowFrame();
    }

    /// The window that shows where a drag would end; null if none shows.
    static HWND Preview()
    {
        HWND found = nullptr;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM result) -> BOOL {
                if ((::GetWindowLong(window, GWL_EXSTYLE) & WS_EX_NOACTIVATE) == 0 || !::IsWindowVisible(window))
                    return TRUE;
                *reinterpret_cast<HWND *>(result) = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }
    /// Takes hold of it, and stays at a place with the button pressed until the preview shows.
    void Hold(CPoint from, CPoint to)
    {
        ASSERT_TRUE(tests::MoveMouse(from));
        tests::Press();
        ASSERT_TRUE(tests::PumpUntil([] { return ::GetCapture() != nullptr; }));
        ASSERT_TRUE(tests::MoveMouse(CPoint((from.x + to.x) / 2, (from.y + to.y) / 2)));
        ASSERT_TRUE(tests::MoveMouse(to));
    }
    /// Some systems raise the main frame above its floating frames a little after a click, and say nothing.
    void Raise(CWnd const & floating, CPoint place)
    {
        ASSERT_TRUE(tests::PumpUntil([&] {
            if (::GetAncestor(::WindowFromPoint(place), GA_ROOT) == floating.m_hWnd)
                return true;
            ::SetWindowPos(floating.m_hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
            return false;
        }));
    }
    void Drop()
    {
        tests::Release();
        ASSERT_TRUE(tests::PumpUntil([] { return ::GetCapture() == nullptr; }));
    }
    void DragTo(CPoint from, CPoint to)
    {
        Hold(from, to);
        Drop();
    }
    CPoint OnScreen(CPoint point) const
    {
        m_frame->ClientToScreen(&point);
        return point;
    }
    CPoint MiddleOfCentre() const { return OnScreen(Centre().CenterPoint()); }
};

TEST_F(DockDrags, ACaptionDraggedOutFloatsThePane)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    CPoint const target = MiddleOfCentre();
    DragTo(CaptionOf(pane), target);
    ASSERT_TRUE(pane.IsFloating());
    EXPECT_TRUE(Screen(pane.GetParentMiniFrame()->m_hWnd).PtInRect(target));
    EXPECT_EQ(Centre(), Inside());
    EXPECT_EQ(pane.m_floats, 1);
}

TEST_F(DockDrags, AClickOnACaptionMovesNothing)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    CRect const place = Place(pane);
    ASSERT_TRUE(tests::MoveMouse(CaptionOf(pane)));
    tests::Press();
    ASSERT_TRUE(tests::PumpUntil([] { return ::GetCapture() != nullptr; }));
    Drop();
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(Place(pane), place);
    EXPECT_EQ(::GetFocus(), pane.m_hWnd);
}

TEST_F(DockDrags, APaneIsDraggedToEachSide)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    CRect const inside = Inside();
    int const middle = inside.CenterPoint().x;
    DragTo(CaptionOf(pane), OnScreen(CPoint(inside.right - 3, 200)));
    EXPECT_EQ(Place(pane), CRect(inside.right - 200, 0, inside.right, inside.bottom));
    DragTo(CaptionOf(pane), OnScreen(CPoint(middle, inside.bottom - 3)));
    EXPECT_EQ(Place(pane).bottom, inside.bottom);
    EXPECT_EQ(Place(pane).Width(), inside.right);
    DragTo(CaptionOf(pane), OnScreen(CPoint(middle, 3)));
    EXPECT_EQ(Place(pane).top, 0);
    EXPECT_EQ(Place(pane).Width(), inside.right);
    DragTo(CaptionOf(pane), OnScreen(CPoint(3, inside.bottom - 200)));
    EXPECT_EQ(Place(pane), CRect(0, 0, 200, inside.bottom));
}

TEST_F(DockDrags, APaneIsDraggedBesideAnother)
{
    Pane & target = Docked(CBRS_ALIGN_LEFT, 300);
    Pane & pane = Docked(CBRS_ALIGN_RIGHT, 200);
    CRect const place = Place(target);
    DragTo(CaptionOf(pane), OnScreen(CPoint(place.CenterPoint().x, place.bottom - 25)));
    EXPECT_EQ(Place(pane).left, place.left);
    EXPECT_EQ(Place(pane).bottom, place.bottom);
    EXPECT_EQ(Place(target).top, place.top);
    EXPECT_EQ(Place(pane).Width(), 300);
}

TEST_F(DockDrags, APaneOnACaptionBecomesATab)
{
    Pane & target = Docked(CBRS_ALIGN_LEFT, 300);
    Pane & pane = Docked(CBRS_ALIGN_RIGHT, 200);
    DragTo(CaptionOf(pane), CaptionOf(target) + CSize(60, 4));
    ASSERT_TRUE(pane.IsTabbed());
    EXPECT_EQ(pane.GetParentTabbedPane(), target.GetParentTabbedPane());
    EXPECT_TRUE(pane.IsPaneVisible());
    EXPECT_FALSE(target.IsPaneVisible());
}

TEST_F(DockDrags, ATabIsDraggedOutAloneAndACaptionTakesAllTabs)
{
    Pane & one = Docked(CBRS_ALIGN_LEFT, 300);
    Pane & two = NewPane();
    Pane & three = NewPane();
    two.AttachToTabWnd(&one, DM_SHOW);
    three.AttachToTabWnd(&one, DM_SHOW);
    tests::PumpPosted();
    CRect top;
    CRect bottom;
    one.GetParentTabbedPane()->GetTabArea(top, bottom);
    ASSERT_FALSE(bottom.IsRectEmpty());
    DragTo(CPoint(bottom.left + 12, bottom.CenterPoint().y), MiddleOfCentre());
    EXPECT_TRUE(one.IsFloating());
    EXPECT_FALSE(one.IsTabbed());
    EXPECT_TRUE(two.IsDocked() && three.IsDocked() && two.IsTabbed());
    DragTo(CaptionOf(two), OnScreen(CPoint(Inside().right - 3, 300)));
    EXPECT_TRUE(two.IsTabbed() && three.IsTabbed());
    EXPECT_EQ(Place(*two.GetParentTabbedPane()).right, Inside().right);
}

TEST_F(DockDrags, AClickOnATabBringsItsPaneToTheFront)
{
    Pane & one = Docked(CBRS_ALIGN_LEFT, 300);
    Pane & two = NewPane();
    two.AttachToTabWnd(&one, DM_SHOW);
    tests::PumpPosted();
    CRect top;
    CRect bottom;
    one.GetParentTabbedPane()->GetTabArea(top, bottom);
    tests::Click(CPoint(bottom.left + 12, bottom.CenterPoint().y));
    EXPECT_TRUE(tests::PumpUntil([&] { return one.IsPaneVisible() && ::GetCapture() == nullptr; }));
    EXPECT_FALSE(two.IsPaneVisible());
    EXPECT_TRUE(one.IsTabbed());
}

TEST_F(DockDrags, AFloatingFrameIsMovedByItsCaption)
{
    Pane & pane = NewPane();
    pane.FloatPane(CRect(400, 300, 660, 460));
    tests::PumpPosted();
    CRect const frame = Screen(pane.GetParentMiniFrame()->m_hWnd);
    CPoint const grip(frame.left + 60, frame.top + 10);
    Raise(*pane.GetParentMiniFrame(), grip);
    DragTo(grip, grip + CPoint(70, 50));
    ASSERT_TRUE(pane.IsFloating());
    EXPECT_EQ(Screen(pane.GetParentMiniFrame()->m_hWnd), frame + CPoint(70, 50));
}

TEST_F(DockDrags, AFloatingFrameDocksByItsCaption)
{
    Pane & one = NewPane();
    Pane & two = NewPane();
    one.FloatPane(CRect(400, 300, 760, 500));
    two.DockToWindow(&one, CBRS_ALIGN_RIGHT);
    tests::PumpPosted();
    CRect const frame = Screen(one.GetParentMiniFrame()->m_hWnd);
    HWND const mini = one.GetParentMiniFrame()->m_hWnd;
    CPoint const grip(frame.left + 60, frame.top + 10);
    Raise(*one.GetParentMiniFrame(), grip);
    DragTo(grip, OnScreen(CPoint(3, 300)));
    EXPECT_TRUE(one.IsDocked() && two.IsDocked());
    EXPECT_EQ(Place(one).left, 0);
    EXPECT_EQ(Place(two).top, Place(one).top);
    EXPECT_FALSE(::IsWindow(mini));
}

TEST_F(DockDrags, ThePreviewShowsWhereThePaneWillBe)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    Hold(CaptionOf(pane), OnScreen(CPoint(Inside().right - 3, 300)));
    ASSERT_TRUE(tests::PumpUntil([] { return Preview() != nullptr; }));
    CRect const shown = Screen(Preview());
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(Place(pane).left, 0);
    Drop();
    EXPECT_EQ(Screen(pane.m_hWnd), shown);
    EXPECT_EQ(Preview(), nullptr);
}

TEST_F(DockDrags, EscapeEndsADragWithoutEffect)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    CRect const place = Place(pane);
    Hold(CaptionOf(pane), MiddleOfCentre());
    ASSERT_TRUE(tests::PumpUntil([] { return Preview() != nullptr; }));
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([] { return ::GetCapture() == nullptr; }));
    EXPECT_EQ(Preview(), nullptr);
    tests::Release();
    tests::PumpPosted();
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(Place(pane), place);
}

TEST_F(DockDrags, APaneThatMayNotDockStaysWhereItIs)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    pane.m_mayDock = false;
    DragTo(CaptionOf(pane), OnScreen(CPoint(Inside().right - 3, 300)));
    EXPECT_EQ(Place(pane).left, 0);
}

TEST_F(DockDrags, ADividerSharesTheRoomAnew)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT, 200);
    int const height = Inside().CenterPoint().y;
    DragTo(OnScreen(CPoint(201, height)), OnScreen(CPoint(271, height)));
    EXPECT_EQ(Place(pane).Width(), 270);
    EXPECT_EQ(Centre().left, 270 + CPaneDivider::GetDefaultWidth());
    Hold(OnScreen(CPoint(271, height)), OnScreen(CPoint(371, height)));
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([] { return ::GetCapture() == nullptr; }));
    tests::Release();
    tests::PumpPosted();
    EXPECT_EQ(Place(pane).Width(), 270);
}

TEST_F(DockDrags, TheCloseButtonHidesThePaneUnlessTheFrameSaysNo)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT, 200);
    m_frame->m_mayClose = false;
    CRect const rect = Screen(pane.m_hWnd);
    CPoint const button(rect.right - 8, rect.top + pane.GetCaptionHeight() / 2);
    tests::Click(button);
    ASSERT_TRUE(tests::PumpUntil([&] { return m_frame->m_closed == 1; }));
    EXPECT_TRUE(pane.IsVisible());
    m_frame->m_mayClose = true;
    tests::Click(button);
    ASSERT_TRUE(tests::PumpUntil([&] { return !pane.IsVisible(); }));
    EXPECT_EQ(pane.m_closes, 1);
    EXPECT_EQ(Centre(), Inside());
}

TEST_F(DockDrags, ThePinFoldsThePaneAwayAndTheStripBringsItBack)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT, 200);
    CRect const rect = Screen(pane.m_hWnd);
    int const size = pane.GetCaptionHeight();
    tests::Click(CPoint(rect.right - size - 8, rect.top + size / 2));
    ASSERT_TRUE(tests::PumpUntil([&] { return pane.IsAutoHideMode(); }));
    EXPECT_FALSE(pane.IsPaneVisible());
    CMFCAutoHideBar * strip = nullptr;
    for (HWND child = ::GetTopWindow(m_window); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (strip == nullptr)
            strip = DYNAMIC_DOWNCAST(CMFCAutoHideBar, CWnd::FromHandlePermanent(child));
    }
    ASSERT_NE(strip, nullptr);
    CRect const bar = Screen(strip->m_hWnd);
    tests::Click(CPoint(bar.CenterPoint().x, bar.top + 20));
    ASSERT_TRUE(tests::PumpUntil([&] { return pane.IsPaneVisible() && ::GetFocus() == pane.m_hWnd; }));
    CRect const slid = Screen(pane.m_hWnd);
    tests::Click(CPoint(slid.right - size - 8, slid.top + size / 2));
    ASSERT_TRUE(tests::PumpUntil([&] { return !pane.IsAutoHideMode(); }));
    EXPECT_EQ(Place(pane), CRect(0, 0, 200, Inside().bottom));
}

TEST_F(DockDrags, ADoubleClickOnTheCaptionFloatsAndDocks)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT, 200);
    CRect const place = Place(pane);
    tests::DoubleClick(CaptionOf(pane));
    ASSERT_TRUE(tests::PumpUntil([&] { return pane.IsFloating() && ::GetCapture() == nullptr; }));
    CRect const frame = Screen(pane.GetParentMiniFrame()->m_hWnd);
    tests::PumpPosted();
    tests::DoubleClick(CPoint(frame.left + 60, frame.top + 10));
    ASSERT_TRUE(tests::PumpUntil([&] { return pane.IsDocked() && ::GetCapture() == nullptr; }));
    EXPECT_EQ(Place(pane), place);
}

TEST_F(DockDrags, CtrlTabGoesFromPaneToPane)
{
    Pane & one = Docked(CBRS_ALIGN_LEFT);
    Pane & two = Docked(CBRS_ALIGN_RIGHT);
    Pane & three = NewPane();
    three.FloatPane(CRect(400, 300, 660, 460));
    one.ShowPane(TRUE, FALSE, TRUE);
    ASSERT_EQ(::GetFocus(), one.m_hWnd);
    tests::Key(VK_TAB, {VK_CONTROL});
    EXPECT_TRUE(tests::PumpUntil([&] { return ::GetFocus() == two.m_hWnd; }));
    tests::Key(VK_TAB, {VK_CONTROL});
    EXPECT_TRUE(tests::PumpUntil([&] { return ::GetFocus() == three.m_hWnd; }));
    tests::Key(VK_TAB, {VK_CONTROL});
    EXPECT_TRUE(tests::PumpUntil([&] { return ::GetFocus() == one.m_hWnd; }));
    tests::Key(VK_TAB, {VK_CONTROL, VK_SHIFT});
    EXPECT_TRUE(tests::PumpUntil([&] { return ::GetFocus() == three.m_hWnd; }));
}

TEST_F(DockDrags, TheCloseButtonOfAFloatingFrameHidesItsPanes)
{
    Pane & one = NewPane();
    Pane & two = NewPane();
    one.FloatPane(CRect(400, 300, 800, 560));
    two.DockToWindow(&one, CBRS_ALIGN_RIGHT);
    CPaneFrameWnd * const mini = one.GetParentMiniFrame();
    mini->SendMessage(WM_CLOSE);
    EXPECT_FALSE(one.IsVisible() || two.IsVisible());
    EXPECT_FALSE(mini->IsWindowVisible());
    one.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_EQ(one.GetParentMiniFrame(), mini);
    EXPECT_TRUE(mini->IsWindowVisible());
}
