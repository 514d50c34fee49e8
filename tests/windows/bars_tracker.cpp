// The rectangle that is tracked: by the real mouse, with Escape, its handles.

#include "bars_BarTest.h"
#include "ScopedWindow.h"

namespace
{
class CountingTracker : public CRectTracker
{
public:
    using CRectTracker::CRectTracker;

    int m_changes = 0;
    int m_adjustments = 0;
    int m_snap = 0;

    void OnChangedRect(const CRect &) override { ++m_changes; }
    void AdjustRect(int, LPRECT rect) override
    {
        ++m_adjustments;
        if (m_snap != 0)
            rect->right = (rect->right / m_snap) * m_snap;
    }
};

/// A window that begins to track where the button goes down.
class TrackingWindow : public tests::ScopedWindow
{
public:
    explicit TrackingWindow(CRect const & rect) : ScopedWindow(CRect(100, 100, 700, 500)), m_tracker(&rect, styles) {}

    static constexpr UINT styles = CRectTracker::solidLine | CRectTracker::resizeOutside;
    CountingTracker m_tracker;
    bool m_rubberBand = false;
    bool m_invert = false;
    int m_ended = 0;
    BOOL m_result = FALSE;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_LBUTTONDOWN)
        {
            CPoint const point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
            m_result = m_rubberBand ? m_tracker.TrackRubberBand(this, point, m_invert)
                                    : m_tracker.Track(this, point, m_invert);
            ++m_ended;
            return 0;
        }
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
};

class RectTracker : public testing::Test
{
protected:
    /// Presses at a client point, moves through the points inside the tracker's loop, and ends with the action.
    void Run(TrackingWindow & window, CPoint from, std::vector<CPoint> const & through, std::function<void()> end)
    {
        ASSERT_TRUE(tests::BringToFront(window.m_hWnd));
        ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(window.m_hWnd, from)));
        tests::LaterActions later;
        for (CPoint const & point : through)
        {
            later.Add([&window, point] { tests::InjectMove(tests::ClientPoint(window.m_hWnd, point)); },
                      [&window] { return ::GetCapture() == window.m_hWnd; });
            later.Add([] {},
                      [&window, point] {
                          CPoint now;
                          ::GetCursorPos(&now);
                          return now == tests::ClientPoint(window.m_hWnd, point);
                      });
        }
        later.Add(std::move(end), [&window] { return ::GetCapture() == window.m_hWnd; });
        tests::Press();
        EXPECT_TRUE(tests::PumpUntil([&] { return window.m_ended > 0; }));
        EXPECT_FALSE(later.Failed());
        tests::Release();
        tests::PumpPosted();
    }
};

TEST_F(RectTracker, InsideMovesTheRectangle)
{
    TrackingWindow window(CRect(50, 60, 150, 160));
    Run(window, {100, 110}, {{120, 120}, {170, 140}}, [] { tests::Release(); });
    EXPECT_TRUE(window.m_result);
    EXPECT_EQ(window.m_tracker.m_rect, CRect(120, 90, 220, 190));
    EXPECT_GT(window.m_tracker.m_changes, 0);
    EXPECT_GT(window.m_tracker.m_adjustments, 0);
}

TEST_F(RectTracker, CornerResizesAndStopsAtTheLeastSize)
{
    TrackingWindow window(CRect(50, 60, 150, 160));
    window.m_tracker.m_sizeMin = CSize(30, 20);
    Run(window, {151, 161}, {{100, 100}, {10, 10}}, [] { tests::Release(); });
    EXPECT_TRUE(window.m_result);
    EXPECT_EQ(window.m_tracker.m_rect, CRect(50, 60, 80, 80));
}

TEST_F(RectTracker, RectangleTurnsOverWhereThatIsAllowed)
{
    TrackingWindow window(CRect(50, 60, 150, 160));
    window.m_invert = true;
    Run(window, {151, 161}, {{100, 100}, {31, 41}}, [] { tests::Release(); });
    EXPECT_TRUE(window.m_result);
    EXPECT_EQ(window.m_tracker.m_rect, CRect(50, 60, 30, 40));
    EXPECT_EQ(window.m_tracker.NormalizeHit(CRectTracker::hitTopLeft), CRectTracker::hitBottomRight);
    EXPECT_EQ(window.m_tracker.NormalizeHit(CRectTracker::hitLeft), CRectTracker::hitRight);
    EXPECT_EQ(window.m_tracker.NormalizeHit(CRectTracker::hitMiddle), CRectTracker::hitMiddle);
}

TEST_F(RectTracker, EscapePutsTheRectangleBack)
{
    TrackingWindow window(CRect(50, 60, 150, 160));
    Run(window, {100, 110}, {{120, 120}, {170, 140}}, [] { tests::Key(VK_ESCAPE); });
    EXPECT_FALSE(window.m_result);
    EXPECT_EQ(window.m_tracker.m_rect, CRect(50, 60, 150, 160));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(RectTracker, CaptureThatIsTakenAwayPutsTheRectangleBack)
{
    TrackingWindow window(CRect(50, 60, 150, 160));
    Run(window, {100, 110}, {{120, 120}, {170, 140}}, [] { ::ReleaseCapture(); });
    EXPECT_FALSE(window.m_result);
    EXPECT_EQ(window.m_tracker.m_rect, CRect(50, 60, 150, 160));
}

TEST_F(RectTracker, WindowThatGoesEndsTheTracking)
{
    auto window = std::make_unique<TrackingWindow>(CRect(50, 60, 150, 160));
    TrackingWindow & tracking = *window;
    Run(tracking, {100, 110}, {{120, 120}}, [&] { tracking.DestroyWindow(); });
    EXPECT_FALSE(tracking.m_result);
}

TEST_F(RectTracker, RubberBandSpansFromThePress)
{
    TrackingWindow window(CRect(0, 0, 0, 0));
    window.m_rubberBand = true;
    window.m_invert = true;
    Run(window, {200, 100}, {{150, 150}, {120, 180}}, [] { tests::Release(); });
    EXPECT_TRUE(window.m_result);
    CRect rect = window.m_tracker.m_rect;
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(120, 100, 200, 180));
}

TEST_F(RectTracker, PressWithoutAMoveChangesNothing)
{
    TrackingWindow window(CRect(50, 60, 150, 160));
    Run(window, {100, 110}, {}, [] { tests::Release(); });
    EXPECT_FALSE(window.m_result);
    EXPECT_EQ(window.m_tracker.m_rect, CRect(50, 60, 150, 160));
}

TEST_F(RectTracker, DerivingClassAdjustsTheRectangle)
{
    TrackingWindow window(CRect(50, 60, 150, 160));
    window.m_tracker.m_snap = 50;
    Run(window, {151, 110}, {{180, 110}, {231, 110}}, [] { tests::Release(); });
    EXPECT_TRUE(window.m_result);
    EXPECT_EQ(window.m_tracker.m_rect, CRect(50, 60, 200, 160));
}

TEST_F(RectTracker, HandlesAreHitAtTheirPlaces)
{
    CRectTracker tracker(CRect(100, 100, 200, 160), CRectTracker::solidLine | CRectTracker::resizeOutside);
    CRect outside;
    tracker.GetTrueRect(&outside);
    EXPECT_EQ(outside, CRect(97, 97, 203, 163));
    EXPECT_EQ(tracker.HitTest({98, 98}), CRectTracker::hitTopLeft);
    EXPECT_EQ(tracker.HitTest({201, 98}), CRectTracker::hitTopRight);
    EXPECT_EQ(tracker.HitTest({201, 161}), CRectTracker::hitBottomRight);
    EXPECT_EQ(tracker.HitTest({98, 161}), CRectTracker::hitBottomLeft);
    EXPECT_EQ(tracker.HitTest({150, 98}), CRectTracker::hitTop);
    EXPECT_EQ(tracker.HitTest({201, 130}), CRectTracker::hitRight);
    EXPECT_EQ(tracker.HitTest({150, 161}), CRectTracker::hitBottom);
    EXPECT_EQ(tracker.HitTest({98, 130}), CRectTracker::hitLeft);
    EXPECT_EQ(tracker.HitTest({150, 130}), CRectTracker::hitMiddle);
    EXPECT_EQ(tracker.HitTest({90, 90}), CRectTracker::hitNothing);
    CRectTracker const plain(CRect(0, 0, 50, 50), CRectTracker::solidLine);
    EXPECT_EQ(plain.HitTest({0, 0}), CRectTracker::hitMiddle); // without handles there is only the inside
    CRectTracker const small(CRect(0, 0, 10, 10), CRectTracker::resizeInside);
    EXPECT_EQ(small.GetHandleMask(), 0x0Fu); // no room between the corners
}

TEST_F(RectTracker, CursorFollowsTheHandle)
{
    tests::ScopedWindow window;
    ASSERT_TRUE(tests::BringToFront(window.m_hWnd));
    CRectTracker const tracker(CRect(100, 100, 200, 160), CRectTracker::resizeOutside);
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(window.m_hWnd, {98, 98})));
    EXPECT_TRUE(tracker.SetCursor(&window, HTCLIENT));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_SIZENWSE));
    EXPECT_FALSE(tracker.SetCursor(&window, HTCAPTION));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(window.m_hWnd, {20, 20})));
    EXPECT_FALSE(tracker.SetCursor(&window, HTCLIENT));
}
} // namespace
