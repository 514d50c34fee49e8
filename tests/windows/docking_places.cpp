// Panes that programs place: docked, in tabs, floating, folded away.

#include "docking_DockTest.h"

// clang-format off
BEGIN_MESSAGE_MAP(docking::Pane, CDockablePane)
    ON_WM_PAINT()
    ON_WM_SIZE()
END_MESSAGE_MAP()
// clang-format on

using namespace docking;

class DockPlaces : public DockTest
{
};

TEST_F(DockPlaces, APaneTakesItsSideAndTheClientAreaTheRest)
{
    Pane & left = Docked(CBRS_ALIGN_LEFT, 150);
    Pane & bottom = Docked(CBRS_ALIGN_BOTTOM, 120);
    CRect const inside = Inside();
    int const gap = CPaneDivider::GetDefaultWidth();
    EXPECT_EQ(Place(left), CRect(0, 0, 150, inside.bottom));
    EXPECT_EQ(Place(bottom), CRect(150 + gap, inside.bottom - 120, inside.right, inside.bottom));
    EXPECT_EQ(Centre(), CRect(150 + gap, 0, inside.right, inside.bottom - 120 - gap));
    EXPECT_TRUE(left.IsDocked());
    EXPECT_FALSE(left.IsFloating());
    EXPECT_FALSE(left.IsTabbed());
    EXPECT_EQ(left.m_docks, 1);
}

TEST_F(DockPlaces, EachSideIsTakenByItsIdentifier)
{
    CRect const inside = Inside();
    for (UINT const id : {AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_RIGHT, AFX_IDW_DOCKBAR_BOTTOM})
    {
        Pane & pane = NewPane();
        m_frame->DockPane(&pane, id);
        CRect const rect = Place(pane);
        switch (id)
        {
        case AFX_IDW_DOCKBAR_LEFT:
            EXPECT_EQ(rect.left, 0);
            break;
        case AFX_IDW_DOCKBAR_TOP:
            EXPECT_EQ(rect.top, 0);
            break;
        case AFX_IDW_DOCKBAR_RIGHT:
            EXPECT_EQ(rect.right, inside.right);
            break;
        default:
            EXPECT_EQ(rect.bottom, inside.bottom);
            break;
        }
        pane.ShowPane(FALSE, FALSE, FALSE);
    }
}

TEST_F(DockPlaces, ASideThatIsNotEnabledIsNotTaken)
{
    Pane & pane = NewPane();
    pane.EnableDocking(CBRS_ALIGN_LEFT);
    EXPECT_FALSE(pane.DockToFrameWindow(CBRS_ALIGN_RIGHT));
    m_frame->EnableDocking(CBRS_ALIGN_RIGHT);
    EXPECT_FALSE(pane.DockToFrameWindow(CBRS_ALIGN_LEFT));
    EXPECT_EQ(Centre(), Inside());
}

TEST_F(DockPlaces, DockPaneLeftOfPutsAPaneBesideAnother)
{
    Pane & target = Docked(CBRS_ALIGN_BOTTOM, 200);
    Pane & pane = NewPane();
    ASSERT_TRUE(m_frame->DockPaneLeftOf(&pane, &target));
    EXPECT_EQ(Place(pane).left, 0);
    EXPECT_EQ(Place(pane).top, Place(target).top);
    EXPECT_LT(Place(pane).right, Place(target).left);
}

TEST_F(DockPlaces, APaneWithoutAPlaceIsLeftWhereItIs)
{
    Pane & pane = NewPane();
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_FALSE(pane.IsFloating());
    EXPECT_EQ(Place(pane), CRect(0, 0, 200, 150));
    pane.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(pane.IsVisible());
    pane.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_TRUE(pane.IsVisible());
    EXPECT_EQ(Centre(), Inside());
}

TEST_F(DockPlaces, AttachedPanesShareAPlaceByTabs)
{
    Pane & one = Docked(CBRS_ALIGN_LEFT);
    Pane & two = NewPane();
    CRect const place = Place(one);
    CDockablePane * tabbed = nullptr;
    ASSERT_EQ(two.AttachToTabWnd(&one, DM_SHOW, TRUE, &tabbed), &two);
    ASSERT_NE(tabbed, nullptr);
    EXPECT_TRUE(tabbed->IsKindOf(RUNTIME_CLASS(CTabbedPane)));
    EXPECT_TRUE(one.IsTabbed() && two.IsTabbed());
    EXPECT_EQ(one.GetParentTabbedPane(), tabbed);
    EXPECT_EQ(Place(*tabbed), place);
    auto * const tabs = static_cast<CTabbedPane *>(tabbed);
    EXPECT_EQ(tabs->GetTabsNum(), 2);
    EXPECT_EQ(tabs->FindPaneByID(first_pane), &one);
    // The one in front shows; both count as visible.
    EXPECT_TRUE(two.IsPaneVisible());
    EXPECT_FALSE(one.IsPaneVisible());
    EXPECT_TRUE(one.IsVisible() && two.IsVisible());
    one.ShowPane(TRUE, FALSE, TRUE);
    EXPECT_TRUE(one.IsPaneVisible());
    EXPECT_FALSE(two.IsPaneVisible());
}

TEST_F(DockPlaces, TabsEndWithTheLastButOne)
{
    Pane & one = Docked(CBRS_ALIGN_LEFT);
    Pane & two = NewPane();
    CRect const place = Place(one);
    two.AttachToTabWnd(&one, DM_SHOW);
    two.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(one.IsTabbed());
    EXPECT_TRUE(one.IsPaneVisible());
    EXPECT_EQ(Place(one), place);
    two.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_TRUE(one.IsTabbed() && two.IsTabbed());
}

TEST_F(DockPlaces, AFloatingPaneHasAFrameOfItsOwn)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    CRect const wanted(300, 200, 560, 400);
    ASSERT_TRUE(pane.FloatPane(wanted));
    EXPECT_FALSE(pane.IsDocked());
    EXPECT_TRUE(pane.IsFloating());
    EXPECT_FALSE(pane.IsTabbed());
    CPaneFrameWnd * const mini = pane.GetParentMiniFrame();
    ASSERT_NE(mini, nullptr);
    EXPECT_EQ(pane.GetParent(), mini);
    EXPECT_EQ(Screen(mini->m_hWnd), wanted);
    EXPECT_EQ(mini->GetPaneCount(), 1);
    CRect inside;
    mini->GetClientRect(&inside);
    mini->ClientToScreen(&inside);
    EXPECT_EQ(Screen(pane.m_hWnd), inside);
    EXPECT_EQ(Centre(), Inside());
    EXPECT_EQ(pane.m_floats, 1);
    CString caption;
    mini->GetWindowText(caption);
    EXPECT_STREQ(caption, L"Pane 0");
}

TEST_F(DockPlaces, APaneThatMayNotFloatDoesNot)
{
    Pane & fixed = NewPane(0, CSize(100, 100), CBRS_LEFT, AFX_CBRS_RESIZE);
    EXPECT_FALSE(fixed.FloatPane(CRect(300, 200, 500, 400)));
    Pane & unwilling = NewPane();
    unwilling.m_mayFloat = false;
    EXPECT_FALSE(unwilling.FloatPane(CRect(300, 200, 500, 400)));
    unwilling.m_mayDock = false;
    EXPECT_FALSE(unwilling.DockToFrameWindow(CBRS_ALIGN_LEFT));
}

TEST_F(DockPlaces, AFloatingPaneComesBackToWhereItWasDocked)
{
    Pane & one = Docked(CBRS_ALIGN_LEFT);
    Pane & two = NewPane();
    two.DockToWindow(&one, CBRS_ALIGN_BOTTOM);
    CRect const place = Place(two);
    two.FloatPane(CRect(300, 200, 560, 400));
    HWND const mini = two.GetParentMiniFrame()->m_hWnd;
    ASSERT_TRUE(two.DockToRecentPos());
    EXPECT_EQ(Place(two), place);
    EXPECT_FALSE(::IsWindow(mini));
}

TEST_F(DockPlaces, AHiddenFloatingPaneStaysInItsHiddenFrame)
{
    Pane & pane = NewPane();
    pane.FloatPane(CRect(300, 200, 560, 400));
    CPaneFrameWnd * const mini = pane.GetParentMiniFrame();
    pane.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(mini->IsWindowVisible());
    EXPECT_EQ(pane.GetParentMiniFrame(), mini);
    EXPECT_FALSE(pane.IsDocked());
    // Moving the frame moves where it will be.
    mini->MoveWindow(CRect(350, 250, 600, 420));
    pane.ShowPane(TRUE, FALSE, TRUE);
    EXPECT_TRUE(mini->GetStyle() & WS_VISIBLE);
    EXPECT_EQ(Screen(mini->m_hWnd), CRect(350, 250, 600, 420));
}

TEST_F(DockPlaces, PanesDockInAFloatingFrame)
{
    Pane & one = NewPane();
    Pane & two = NewPane();
    Pane & three = NewPane();
    one.FloatPane(CRect(300, 200, 800, 500));
    ASSERT_TRUE(two.DockToWindow(&one, CBRS_ALIGN_RIGHT));
    ASSERT_NE(three.AttachToTabWnd(&two, DM_SHOW), nullptr);
    CPaneFrameWnd * const mini = one.GetParentMiniFrame();
    EXPECT_EQ(two.GetParentMiniFrame(), mini);
    EXPECT_EQ(three.GetParentMiniFrame(), mini);
    EXPECT_EQ(mini->GetVisiblePaneCount(), 3);
    EXPECT_LE(Screen(one.m_hWnd).right, Screen(Holder(two).m_hWnd).left);
    EXPECT_GT(one.GetCaptionHeight(), 0);
    // A pane alone in its frame has the frame's caption.
    two.DockToFrameWindow(CBRS_ALIGN_LEFT);
    three.DockToFrameWindow(CBRS_ALIGN_LEFT);
    EXPECT_EQ(one.GetCaptionHeight(), 0);
    EXPECT_EQ(mini->GetVisiblePaneCount(), 1);
}

TEST_F(DockPlaces, HidingGivesTheRoomToTheOthersAndShowingTakesItBack)
{
    Pane & one = Docked(CBRS_ALIGN_LEFT, 150);
    Pane & two = Docked(CBRS_ALIGN_LEFT, 120);
    CRect const place = Place(one);
    CRect const other = Place(two);
    one.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(one.IsVisible());
    EXPECT_EQ(Place(two), CRect(0, 0, 120, Inside().bottom));
    one.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_EQ(Place(one), place);
    EXPECT_EQ(Place(two), other);
}

TEST_F(DockPlaces, AResizedFrameGivesTheDifferenceToTheClientArea)
{
    ShowFrame();
    Pane & left = Docked(CBRS_ALIGN_LEFT, 150);
    Pane & bottom = Docked(CBRS_ALIGN_BOTTOM, 120);
    m_frame->SetWindowPos(nullptr, 0, 0, 1100, 780, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Place(left).Width(), 150);
    EXPECT_EQ(Place(bottom).Height(), 120);
    EXPECT_EQ(Place(bottom).bottom, Inside().bottom);
    EXPECT_EQ(Centre().right, Inside().right);
}

TEST_F(DockPlaces, NoPanePaintsMoreThanOnceAStep)
{
    ShowFrame();
    for (DWORD const side : {CBRS_ALIGN_LEFT, CBRS_ALIGN_RIGHT, CBRS_ALIGN_TOP, CBRS_ALIGN_BOTTOM})
        Docked(side, 100);
    m_panes[0]->DockToWindow(m_panes[1].get(), CBRS_ALIGN_BOTTOM);
    NewPane().AttachToTabWnd(m_panes[2].get(), DM_SHOW);
    tests::PumpPosted();
    for (std::unique_ptr<Pane> const & pane : m_panes)
    {
        pane->UpdateWindow();
        pane->m_paints = 0;
    }
    for (int step = 1; step <= 10; ++step)
    {
        m_frame->SetWindowPos(nullptr, 0, 0, 1000 + 8 * step, 700 + 5 * step, SWP_NOMOVE | SWP_NOZORDER);
        tests::PumpPosted();
        for (std::unique_ptr<Pane> const & pane : m_panes)
            EXPECT_LE(pane->m_paints, step) << "step " << step;
    }
}

TEST_F(DockPlaces, FoldedPanesLieInAStripAndSlideOutOverTheOthers)
{
    Pane & one = Docked(CBRS_ALIGN_RIGHT, 180);
    Pane & two = NewPane();
    two.AttachToTabWnd(&one, DM_SHOW);
    CMFCAutoHideBar * const strip = one.SetAutoHideMode(TRUE, 0);
    ASSERT_NE(strip, nullptr);
    EXPECT_TRUE(one.IsAutoHideMode() && two.IsAutoHideMode());
    EXPECT_EQ(strip->GetVisibleCount(), 2);
    EXPECT_EQ(strip->GetFirstAHWindow(), &one);
    EXPECT_EQ(Place(*strip).right, Inside().right);
    EXPECT_EQ(Centre().right, Place(*strip).left);
    EXPECT_FALSE(one.IsPaneVisible());
    one.Slide(TRUE);
    EXPECT_TRUE(one.IsPaneVisible());
    EXPECT_EQ(Place(one).right, Place(*strip).left);
    EXPECT_EQ(Place(one).Width(), 180);
    EXPECT_EQ(Centre().right, Place(*strip).left);
    one.Slide(FALSE);
    EXPECT_FALSE(one.IsPaneVisible());
    two.SetAutoHideMode(FALSE, 0);
    EXPECT_FALSE(one.IsAutoHideMode());
    EXPECT_TRUE(one.IsTabbed() && two.IsTabbed());
    EXPECT_EQ(Centre().right, Place(*one.GetParentTabbedPane()).left - CPaneDivider::GetDefaultWidth());
}

TEST_F(DockPlaces, AFoldedPaneThatIsActivatedSlidesOut)
{
    ShowFrame();
    Pane & pane = Docked(CBRS_ALIGN_LEFT, 180);
    pane.SetAutoHideMode(TRUE, CBRS_ALIGN_BOTTOM);
    ASSERT_TRUE(tests::MoveMouse(CPoint(100, 100)));
    pane.ShowPane(TRUE, FALSE, TRUE);
    EXPECT_TRUE(pane.IsPaneVisible());
    EXPECT_EQ(::GetFocus(), pane.m_hWnd);
    m_frame->SetFocus();
    EXPECT_TRUE(tests::PumpUntil([&] { return !pane.IsPaneVisible(); }));
}

TEST_F(DockPlaces, APaneEndsWithItsObjectAndLeavesItsRoom)
{
    Docked(CBRS_ALIGN_LEFT);
    Pane & two = NewPane();
    two.AttachToTabWnd(m_panes[0].get(), DM_SHOW);
    m_panes.pop_back();
    EXPECT_TRUE(tests::PumpUntil([&] { return !m_panes[0]->IsTabbed() && m_panes[0]->IsPaneVisible(); }));
    m_panes.clear();
    EXPECT_TRUE(tests::PumpUntil([&] { return Centre() == Inside(); }));
}

TEST_F(DockPlaces, AFloatingFrameEndsWithItsLastPane)
{
    Pane & pane = NewPane();
    pane.FloatPane(CRect(300, 200, 560, 400));
    HWND const mini = pane.GetParentMiniFrame()->m_hWnd;
    m_panes.clear();
    EXPECT_TRUE(tests::PumpUntil([&] { return !::IsWindow(mini); }));
}

TEST_F(DockPlaces, ThePanesAreFoundByTheirIdentifiers)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    Pane & floating = NewPane();
    floating.FloatPane(CRect(300, 200, 560, 400));
    EXPECT_EQ(m_frame->GetPane(first_pane), &pane);
    EXPECT_EQ(m_frame->GetPane(first_pane + 1), &floating);
    EXPECT_EQ(m_frame->GetPane(first_pane + 2), nullptr);
    EXPECT_EQ(CPaneFrameWnd::FindFloatingPaneByID(first_pane + 1), &floating);
    EXPECT_EQ(CPaneFrameWnd::FindFloatingPaneByID(first_pane), nullptr);
}

TEST_F(DockPlaces, PlainPanesTakeTheirSideFirst)
{
    class Strip : public CPane
    {
    public:
        CSize CalcFixedLayout(BOOL, BOOL horizontal) override
        {
            return horizontal ? CSize(32767, 30) : CSize(30, 32767);
        }
    };
    Pane & left = Docked(CBRS_ALIGN_LEFT, 150);
    Strip strip;
    ASSERT_TRUE(strip.Create(nullptr, WS_CHILD | WS_VISIBLE | CBRS_TOP, CRect(0, 0, 0, 0), m_frame, 900));
    strip.EnableDocking(CBRS_ALIGN_ANY);
    m_frame->AddPane(&strip);
    m_frame->DockPane(&strip);
    EXPECT_EQ(Place(strip), CRect(0, 0, Inside().right, 30));
    EXPECT_EQ(Place(left).top, 30);
    m_frame->DockPane(&strip, AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_EQ(Place(strip), CRect(Inside().right - 30, 0, Inside().right, Inside().bottom));
    strip.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(Centre().right, Inside().right);
    strip.DestroyWindow();
}
