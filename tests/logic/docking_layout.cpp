// The arithmetic of docking: where panes go, and that nothing ever overlaps, leaves its space or gets lost.

#include <gtest/gtest.h>

#include <random>

#include "docking_LayoutChecks.h"

using namespace docking_tests;

namespace
{
CRect const frame_rect(0, 0, 1000, 700);

DockLayout WithPanes(UINT count)
{
    DockLayout layout;
    for (UINT pane = 1; pane <= count; ++pane)
        layout.AddPane(pane, CSize(50, 40), CSize(200, 150));
    return layout;
}

CRect RectOf(DockPlan const & plan, UINT pane)
{
    for (framework::DockPlan::Group const & group : plan.groups)
    {
        if (std::find(group.panes.begin(), group.panes.end(), pane) != group.panes.end())
            return group.rect;
    }
    return CRect(-1, -1, -1, -1);
}
} // namespace

TEST(DockLayout, AnEmptyFrameBelongsToTheCentre)
{
    DockLayout layout;
    DockPlan const plan = layout.Arrange(0, frame_rect);
    EXPECT_EQ(plan.centre, frame_rect);
    EXPECT_TRUE(plan.groups.empty() && plan.dividers.empty());
}

TEST(DockLayout, TheRoomOfACentreThatDoesNotShowGoesToWhatIsNextToIt)
{
    DockLayout layout = WithPanes(3);
    layout.metrics.centreShown = false;
    EXPECT_FALSE(layout.Arrange(0, frame_rect).centre);
    layout.DockAtSide(1, DockSide::left, false, 200);
    EXPECT_EQ(layout.Arrange(0, frame_rect).groups.at(0).rect, frame_rect);
    layout.DockAtSide(2, DockSide::bottom, false, 150);
    EXPECT_EQ(RectOf(layout.Arrange(0, frame_rect), 2), CRect(200 + layout.metrics.divider, 0, 1000, 700));
    layout.DockAtSide(3, DockSide::top, false, 120);
    for (int const width : {1000, 1400, 900})
    {
        CRect const rect(0, 0, width, 700);
        DockPlan const plan = layout.Arrange(0, rect);
        EXPECT_FALSE(plan.centre);
        EXPECT_EQ(plan.dividers.size(), 2u);
        int const gap = layout.metrics.divider;
        EXPECT_EQ(RectOf(plan, 1), CRect(0, 0, 200, 700));
        EXPECT_EQ(RectOf(plan, 3), CRect(200 + gap, 0, width, 700 - 150 - gap)); // before the centre
        EXPECT_EQ(RectOf(plan, 2), CRect(200 + gap, 700 - 150, width, 700));
    }
    // With that one gone, what is behind it.
    layout.Show(3, false);
    DockPlan const plan = layout.Arrange(0, frame_rect);
    EXPECT_EQ(RectOf(plan, 2), CRect(200 + layout.metrics.divider, 0, frame_rect.right, frame_rect.bottom));
    // And the centre comes back between them.
    layout.Show(3, true);
    layout.metrics.centreShown = true;
    DockPlan const again = layout.Arrange(0, frame_rect);
    ASSERT_TRUE(again.centre);
    EXPECT_EQ(again.centre->top, 120 + layout.metrics.divider);
    EXPECT_EQ(again.centre->bottom, frame_rect.bottom - 150 - layout.metrics.divider);
}

TEST(DockLayout, APaneTakesItsSizeAtEachSide)
{
    for (auto const & [side, wanted] :
         {std::pair(DockSide::left, CRect(0, 0, 200, 700)), std::pair(DockSide::right, CRect(800, 0, 1000, 700)),
          std::pair(DockSide::top, CRect(0, 0, 1000, 150)), std::pair(DockSide::bottom, CRect(0, 550, 1000, 700))})
    {
        DockLayout layout = WithPanes(1);
        ASSERT_TRUE(layout.DockAtSide(1, side, false));
        EXPECT_EQ(RectOf(layout.Arrange(0, frame_rect), 1), wanted);
        EXPECT_EQ(layout.SideOf(1), side);
    }
}

TEST(DockLayout, TheSecondPaneAtASideLiesFurtherInAndOneAtTheOuterEdgeBeforeAll)
{
    DockLayout layout = WithPanes(3);
    layout.DockAtSide(1, DockSide::left, false, 100);
    layout.DockAtSide(2, DockSide::left, false, 120);
    layout.DockAtSide(3, DockSide::bottom, true, 90);
    DockPlan const plan = layout.Arrange(0, frame_rect);
    EXPECT_EQ(RectOf(plan, 1), CRect(0, 0, 100, 606));
    EXPECT_EQ(RectOf(plan, 2), CRect(104, 0, 224, 606));
    EXPECT_EQ(RectOf(plan, 3), CRect(0, 610, 1000, 700));
    EXPECT_EQ(plan.centre, CRect(228, 0, 1000, 606));
}

TEST(DockLayout, BesideAPaneHalfOfItsPlaceIsTaken)
{
    DockLayout layout = WithPanes(2);
    layout.DockAtSide(1, DockSide::left, false);
    layout.Arrange(0, frame_rect);
    ASSERT_TRUE(layout.DockBeside(2, 1, DockSide::bottom));
    DockPlan const plan = layout.Arrange(0, frame_rect);
    EXPECT_EQ(RectOf(plan, 1), CRect(0, 0, 200, 348));
    EXPECT_EQ(RectOf(plan, 2), CRect(0, 352, 200, 700));
}

TEST(DockLayout, APaneIsNotDockedBesideItselfNorBesideOneWithoutAPlace)
{
    DockLayout layout = WithPanes(2);
    layout.DockAtSide(1, DockSide::left, false);
    EXPECT_FALSE(layout.DockBeside(1, 1, DockSide::left));
    EXPECT_FALSE(layout.DockAsTab(1, 1));
    EXPECT_FALSE(layout.DockBeside(1, 2, DockSide::left));
    EXPECT_FALSE(layout.DockBeside(2, 77, DockSide::left));
    EXPECT_FALSE(layout.DockAtSide(77, DockSide::left, false));
}

TEST(DockLayout, TabsShareAPlaceAndTheNewOneIsInFront)
{
    DockLayout layout = WithPanes(3);
    layout.DockAtSide(1, DockSide::left, false);
    ASSERT_TRUE(layout.DockAsTab(2, 1));
    ASSERT_TRUE(layout.DockAsTab(3, 1, 0));
    DockPlan plan = layout.Arrange(0, frame_rect);
    ASSERT_EQ(plan.groups.size(), 1u);
    EXPECT_EQ(plan.groups[0].panes, (std::vector<UINT>{3, 1, 2}));
    EXPECT_EQ(plan.groups[0].active, 3u);
    layout.Show(3, false);
    plan = layout.Arrange(0, frame_rect);
    EXPECT_EQ(plan.groups[0].panes, (std::vector<UINT>{1, 2}));
    EXPECT_EQ(plan.groups[0].active, 1u);
}

TEST(DockLayout, AHiddenPaneComesBackToItsPlace)
{
    DockLayout layout = WithPanes(3);
    layout.DockAtSide(1, DockSide::left, false, 100);
    layout.DockBeside(2, 1, DockSide::bottom);
    layout.DockBeside(3, 2, DockSide::right);
    DockPlan const before = layout.Arrange(0, frame_rect);
    layout.Show(1, false);
    layout.Show(3, false);
    EXPECT_EQ(RectOf(layout.Arrange(0, frame_rect), 2), CRect(0, 0, 100, 700));
    layout.Show(3, true);
    layout.Show(1, true);
    DockPlan const after = layout.Arrange(0, frame_rect);
    for (UINT pane = 1; pane <= 3; ++pane)
        EXPECT_EQ(RectOf(after, pane), RectOf(before, pane));
}

TEST(DockLayout, AFloatingPaneComesBackAndFloatsAgainWhereItWas)
{
    DockLayout layout = WithPanes(2);
    layout.DockAtSide(1, DockSide::left, false, 100);
    layout.DockAsTab(2, 1);
    ASSERT_TRUE(layout.Float(2, CRect(300, 300, 500, 450)));
    EXPECT_EQ(layout.Find(2)->place, DockPlace::floating);
    UINT const frame = layout.FrameOf(2);
    EXPECT_EQ(layout.FindFrame(frame)->rect, CRect(300, 300, 500, 450));
    EXPECT_EQ(layout.Together(1), (std::vector<UINT>{1, 2}));
    EXPECT_EQ(layout.ShownTogether(1), (std::vector<UINT>{1}));
    ASSERT_TRUE(layout.DockBack(2));
    EXPECT_EQ(layout.ShownTogether(1), (std::vector<UINT>{1, 2}));
    ASSERT_TRUE(layout.FloatBack(2));
    EXPECT_EQ(layout.FrameOf(2), frame);
}

TEST(DockLayout, TabsThatFloatedAloneFloatTogether)
{
    DockLayout layout = WithPanes(2);
    layout.DockAtSide(1, DockSide::left, false, 100);
    layout.DockAtSide(2, DockSide::left, false, 100);
    for (UINT const pane : {1u, 2u})
    {
        ASSERT_TRUE(layout.Float(pane, CRect(300, 300, 500, 450)));
        ASSERT_TRUE(layout.DockBack(pane));
    }
    layout.DockAsTab(2, 1);
    ASSERT_TRUE(layout.FloatBack(DockContent(std::vector<UINT>{2, 1})));
    EXPECT_EQ(layout.FrameOf(1), layout.FrameOf(2));
    EXPECT_NE(layout.FrameOf(1), 0u);
    EXPECT_EQ(layout.FindFrame(layout.FrameOf(1))->rect, CRect(300, 300, 500, 450));
    EXPECT_EQ(layout.ShownTogether(1).size(), 2u);
}

TEST(DockLayout, AFloatingFrameDocksWithItsShape)
{
    DockLayout layout = WithPanes(4);
    layout.DockAtSide(1, DockSide::left, false, 100);
    layout.Float(2, CRect(0, 0, 204, 100));
    layout.Arrange(layout.FrameOf(2), CRect(0, 0, 204, 100));
    layout.DockBeside(3, 2, DockSide::right);
    layout.DockAsTab(4, 3);
    ASSERT_TRUE(layout.DockBeside(DockContent::Frame(layout.FrameOf(2)), 1, DockSide::bottom));
    DockPlan const plan = layout.Arrange(0, frame_rect);
    EXPECT_EQ(RectOf(plan, 2).top, RectOf(plan, 3).top);
    EXPECT_EQ(RectOf(plan, 3), RectOf(plan, 4));
    EXPECT_EQ(plan.groups.size(), 3u);
}

TEST(DockLayout, FoldingTakesAllTabsOfAPlaceToTheStripAndBack)
{
    DockLayout layout = WithPanes(3);
    layout.DockAtSide(1, DockSide::right, false);
    layout.DockAsTab(2, 1);
    layout.DockAtSide(3, DockSide::bottom, false);
    DockPlan const before = layout.Arrange(0, frame_rect);
    ASSERT_TRUE(layout.Fold(2, true));
    EXPECT_EQ(layout.Folded(DockSide::right), (std::vector<UINT>{1, 2}));
    EXPECT_EQ(layout.Arrange(0, frame_rect).groups.size(), 1u);
    EXPECT_FALSE(layout.Fold(2, true));
    ASSERT_TRUE(layout.Fold(2, false));
    EXPECT_TRUE(layout.Folded(DockSide::right).empty());
    EXPECT_EQ(RectOf(layout.Arrange(0, frame_rect), 1), RectOf(before, 1));
}

TEST(DockLayout, ADividerMovesAsFarAsTheLeastSizesAllow)
{
    DockLayout layout = WithPanes(2);
    layout.DockAtSide(1, DockSide::left, false, 100);
    layout.DockAtSide(2, DockSide::right, false, 100);
    DockPlan plan = layout.Arrange(0, frame_rect);
    ASSERT_EQ(plan.dividers.size(), 2u);
    framework::DockPlan::Divider const divider = plan.dividers[0];
    EXPECT_EQ(layout.MoveDivider(0, frame_rect, divider.split, divider.index, 30), 30);
    EXPECT_EQ(RectOf(layout.Arrange(0, frame_rect), 1).right, 130);
    EXPECT_EQ(layout.MoveDivider(0, frame_rect, divider.split, divider.index, -500), -80);
    EXPECT_EQ(RectOf(layout.Arrange(0, frame_rect), 1).right, 50);
    // The pane behind the centre stands still.
    EXPECT_EQ(layout.MoveDivider(0, frame_rect, divider.split, divider.index, 5000), 1000 - 100 - 8 - 50 - 40);
    EXPECT_EQ(RectOf(layout.Arrange(0, frame_rect), 2), CRect(900, 0, 1000, 700));
}

TEST(DockLayout, AFrameThatGetsSmallAndLargeAgainIsAsBefore)
{
    DockLayout layout = WithPanes(5);
    layout.DockAtSide(1, DockSide::left, false, 300);
    layout.DockAtSide(2, DockSide::right, false, 400);
    layout.DockBeside(3, 1, DockSide::bottom);
    layout.DockBeside(4, 3, DockSide::bottom);
    layout.DockAtSide(5, DockSide::top, true);
    DockPlan const before = layout.Arrange(0, frame_rect);
    for (int width = 1000; width >= 0; width -= 37)
        CheckPlan(layout, layout.Arrange(0, CRect(0, 0, width, width * 7 / 10)), CRect(0, 0, width, width * 7 / 10), 0);
    DockPlan const after = layout.Arrange(0, frame_rect);
    for (UINT pane = 1; pane <= 5; ++pane)
        EXPECT_EQ(RectOf(after, pane), RectOf(before, pane));
}

TEST(DockLayout, APaneWithoutAWindowKeepsItsPlace)
{
    DockLayout layout = WithPanes(2);
    layout.DockAtSide(1, DockSide::left, false, 100);
    layout.DockBeside(2, 1, DockSide::bottom);
    DockPlan const before = layout.Arrange(0, frame_rect);
    layout.LeavePane(2);
    EXPECT_EQ(RectOf(layout.Arrange(0, frame_rect), 1), CRect(0, 0, 100, 700));
    layout.AddPane(2, CSize(10, 10), CSize(1, 1));
    EXPECT_EQ(RectOf(layout.Arrange(0, frame_rect), 2), RectOf(before, 2));
    layout.LeavePane(2);
    layout.RemoveAbsent([](UINT) { return true; });
    EXPECT_EQ(layout.Find(2), nullptr);
    CheckLayout(layout);
}

TEST(DockLayout, ManyOperationsLeaveASoundLayout)
{
    std::mt19937 random(20);
    auto const below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    DockLayout layout = WithPanes(14);
    for (UINT pane = 1; pane <= 14; ++pane)
        layout.SetMinSize(pane, CSize(below(60), below(60)));
    CRect rect = frame_rect;
    auto const any = [&] { return static_cast<UINT>(1 + below(14)); };
    auto const side = [&] { return static_cast<DockSide>(below(4)); };
    auto const content = [&]() -> DockContent {
        switch (below(6))
        {
        case 0:
            return DockContent(layout.ShownTogether(any()));
        case 1:
            if (!layout.Frames().empty())
            {
                return DockContent::Frame(
                    layout.Frames()[static_cast<size_t>(below(static_cast<int>(layout.Frames().size())))].id);
            }
            [[fallthrough]];
        default:
            return any();
        }
    };
    int const steps = 100000;
    for (int step = 0; step < steps; ++step)
    {
        switch (below(15))
        {
        case 14:
            layout.metrics.centreShown = below(3) != 0;
            break;
        case 0:
            layout.DockAtSide(content(), side(), below(2) == 0, below(2) * below(300));
            break;
        case 1:
        case 2:
            layout.DockBeside(content(), any(), side(), below(2) * below(300));
            break;
        case 3:
        case 4:
            layout.DockAsTab(content(), any(), below(5) - 1);
            break;
        case 5:
            layout.Float(content(), CRect(CPoint(below(900), below(600)), CSize(below(400), below(300))));
            break;
        case 6:
            layout.DockBack(content());
            break;
        case 7:
            layout.FloatBack(content());
            break;
        case 8:
            layout.Show(any(), below(3) != 0);
            break;
        case 9:
            layout.Fold(any(), below(2) == 0, below(2) == 0 ? std::optional(side()) : std::nullopt);
            break;
        case 10:
            layout.Activate(any());
            break;
        case 11:
            rect = CRect(0, 0, 200 + below(1500), 100 + below(1200));
            break;
        case 12: {
            DockPlan const plan = layout.Arrange(0, rect);
            if (!plan.dividers.empty())
            {
                framework::DockPlan::Divider const & divider =
                    plan.dividers[static_cast<size_t>(below(static_cast<int>(plan.dividers.size())))];
                layout.MoveDivider(0, rect, divider.split, divider.index, below(600) - 300);
            }
            break;
        }
        case 13: {
            UINT const pane = any();
            if (below(3) == 0)
                layout.RemovePane(pane);
            else
                layout.LeavePane(pane);
            layout.AddPane(pane, CSize(below(60), below(60)), CSize(below(300), below(300)));
            break;
        }
        }
        ASSERT_NO_FATAL_FAILURE(CheckLayout(layout)) << "step " << step;
        ASSERT_NO_FATAL_FAILURE(CheckPlan(layout, layout.Arrange(0, rect), rect, 0)) << "step " << step;
        for (framework::DockLayout::Frame const & frame : std::vector(layout.Frames()))
        {
            if (!layout.ShownIn(frame.id).empty())
            {
                ASSERT_NO_FATAL_FAILURE(CheckPlan(layout, layout.Arrange(frame.id, frame.rect), frame.rect, frame.id))
                    << "step " << step;
            }
        }
        auto const stored = DockLayout::Load(layout.Save());
        ASSERT_TRUE(stored) << "step " << step;
        ASSERT_TRUE(stored->SameAs(layout)) << "step " << step;
    }
}

TEST(DockLayoutStore, DamagedBytesGiveNoLayout)
{
    DockLayout layout = WithPanes(5);
    layout.DockAtSide(1, DockSide::left, false);
    layout.DockBeside(2, 1, DockSide::bottom);
    layout.DockAsTab(3, 2);
    layout.Float(4, CRect(1, 2, 3, 4));
    layout.Fold(1, true);
    std::vector<std::uint8_t> const bytes = layout.Save();
    ASSERT_TRUE(DockLayout::Load(bytes));
    for (size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(DockLayout::Load(std::span(bytes).first(length)));
    for (size_t at = 0; at < bytes.size(); ++at)
    {
        std::vector<std::uint8_t> damaged = bytes;
        damaged[at] ^= 0x11;
        EXPECT_FALSE(DockLayout::Load(damaged)) << "byte " << at;
    }
}

// What a program could leave that is ended while it writes, had it written the bytes one after the other.
TEST(DockLayoutStore, NoMixOfTwoStoredLayoutsIsTaken)
{
    DockLayout layout = WithPanes(5);
    layout.DockAtSide(1, DockSide::left, false, 300);
    layout.DockBeside(2, 1, DockSide::bottom);
    layout.Float(4, CRect(1, 2, 300, 400));
    std::vector<std::vector<std::uint8_t>> stored{layout.Save()};
    layout.Float(4, CRect(60, 70, 310, 400)); // as many bytes
    stored.push_back(layout.Save());
    ASSERT_EQ(stored[0].size(), stored[1].size());
    layout.DockAsTab(3, 2);
    layout.Fold(1, true);
    stored.push_back(layout.Save());
    auto const taken = [&](std::vector<std::uint8_t> const & bytes) {
        return std::find(stored.begin(), stored.end(), bytes) == stored.end() && DockLayout::Load(bytes).has_value();
    };
    constexpr std::ptrdiff_t longest_part = 64;
    for (std::vector<unsigned char> const & former : stored)
    {
        for (std::vector<unsigned char> const & wanted : stored)
        {
            auto const size = static_cast<std::ptrdiff_t>(std::min(former.size(), wanted.size()));
            for (std::ptrdiff_t cut = 0; cut <= size; ++cut)
            {
                std::vector<std::uint8_t> bytes(wanted.begin(), wanted.begin() + cut);
                EXPECT_FALSE(taken(bytes)) << "cut off at " << cut;
                bytes.resize(wanted.size());
                EXPECT_FALSE(taken(bytes)) << "zeros from " << cut;
                bytes.resize(static_cast<size_t>(cut));
                bytes.insert(bytes.end(), former.begin() + cut, former.end());
                EXPECT_FALSE(taken(bytes)) << "former bytes from " << cut;
                bytes = former;
                std::copy(wanted.begin() + cut, wanted.begin() + std::min(size, cut + longest_part),
                          bytes.begin() + cut);
                EXPECT_FALSE(taken(bytes)) << "new bytes at " << cut;
            }
        }
    }
}

TEST(DockLayoutStore, AStoredLayoutWaitsForItsPanes)
{
    DockLayout layout = WithPanes(2);
    layout.DockAtSide(1, DockSide::left, false, 100);
    layout.DockBeside(2, 1, DockSide::bottom);
    DockPlan const before = layout.Arrange(0, frame_rect);
    auto stored = DockLayout::Load(layout.Save());
    ASSERT_TRUE(stored);
    EXPECT_TRUE(stored->Arrange(0, frame_rect).groups.empty());
    stored->AddPane(2, CSize(50, 40), CSize(1, 1));
    stored->AddPane(1, CSize(50, 40), CSize(1, 1));
    DockPlan const after = stored->Arrange(0, frame_rect);
    EXPECT_EQ(RectOf(after, 1), RectOf(before, 1));
    EXPECT_EQ(RectOf(after, 2), RectOf(before, 2));
}
