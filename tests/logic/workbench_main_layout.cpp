// Where the parts of the workbench's main window lie that are no panes, and how large panes are at first.

#include <gtest/gtest.h>

#include <random>

#include "logic/MainLayout.h"

using workbench::DefaultPanes;
using workbench::LayOutMain;
using workbench::LeastListPane;
using workbench::LeastMainArea;
using workbench::MainLayoutNeeds;

namespace
{
MainLayoutNeeds Needs(int width, int height)
{
    MainLayoutNeeds needs;
    needs.client = CSize(width, height);
    needs.marginX = 10;
    needs.marginY = 8;
    needs.spacing = 6;
    needs.dividerGap = 4;
    needs.leastBeside = 300;
    needs.listHeight = 100;
    needs.waveformHeight = 120;
    needs.spectrogramHeight = 110;
    needs.panelHeight = 40;
    needs.captionHeight = 18;
    needs.statusHeight = 20;
    return needs;
}
} // namespace

TEST(WorkbenchMainLayout, TheLeastAreaHoldsPanesAndStatus)
{
    EXPECT_EQ(LeastMainArea(Needs(0, 0), 500), CSize(520, 8 + 100 + 120 + 110 + 40 + 4 * 18 + 3 * 4 + 6 + 20 + 8));
}

TEST(WorkbenchMainLayout, ThePanesHaveWhatMarginsAndStatusLeave)
{
    workbench::MainLayout const layout = LayOutMain(Needs(520, 478));
    EXPECT_EQ(layout.border, CRect(10, 8, 10, 34));
    EXPECT_EQ(layout.status, CRect(10, 450, 510, 470));
    EXPECT_TRUE(layout.frames.IsRectEmpty());
    EXPECT_TRUE(layout.framesDivider.IsRectEmpty());
}

TEST(WorkbenchMainLayout, TheListKeepsAPartOfItsFirstHeightAndHalfTheRoomAtMost)
{
    EXPECT_EQ(LeastListPane(Needs(1020, 530)), CSize(300, 18 + 80));
    // Of 200 pixels there are 96 beside margins, status and measures.
    EXPECT_EQ(LeastListPane(Needs(320, 200)), CSize(150, 48));
    MainLayoutNeeds needs = Needs(1020, 530);
    needs.framesWidth = 600;
    EXPECT_EQ(LeastListPane(needs).cx, 200);
    EXPECT_EQ(LeastListPane(Needs(5, 5)), CSize(0, 0));
}

TEST(WorkbenchMainLayout, FramesTakeTheirWidthFromThePanes)
{
    MainLayoutNeeds needs = Needs(1020, 530);
    needs.framesWidth = 400;
    workbench::MainLayout const layout = LayOutMain(needs);
    EXPECT_EQ(layout.frames, CRect(610, 8, 1010, 496));
    EXPECT_EQ(layout.framesDivider, CRect(606, 8, 610, 496));
    EXPECT_EQ(layout.border, CRect(10, 8, 414, 34));
    EXPECT_EQ(layout.status.right, 1010);
}

TEST(WorkbenchMainLayout, ThePanesKeepTheirLeastWidthWhereThereIsAsMuch)
{
    MainLayoutNeeds needs = Needs(620, 530);
    needs.framesWidth = 500;
    EXPECT_EQ(LayOutMain(needs).frames.Width(), 600 - 4 - 300);
    needs.client.cx = 310;
    EXPECT_TRUE(LayOutMain(needs).frames.IsRectEmpty());
}

TEST(WorkbenchMainLayout, GrowthGoesToListWaveformAndSpectrogram)
{
    MainLayoutNeeds needs = Needs(520, LeastMainArea(Needs(0, 0), 0).cy);
    EXPECT_EQ(DefaultPanes(needs).list, 118);
    EXPECT_EQ(DefaultPanes(needs).waveform, 138);
    EXPECT_EQ(DefaultPanes(needs).spectrogram, 128);
    EXPECT_EQ(DefaultPanes(needs).measures, 58);
    needs.client.cy += 100;
    EXPECT_EQ(DefaultPanes(needs).list, 148);
    EXPECT_EQ(DefaultPanes(needs).waveform, 168);
    EXPECT_EQ(DefaultPanes(needs).spectrogram, 168);
    EXPECT_EQ(DefaultPanes(needs).measures, 58);
    EXPECT_FALSE(DefaultPanes(needs).plotsShareTabs);
}

TEST(WorkbenchMainLayout, PlotsShareTabsWhereThereIsNoRoomForBoth)
{
    MainLayoutNeeds needs = Needs(520, LeastMainArea(Needs(0, 0), 0).cy - 1);
    workbench::PaneHeights const heights = DefaultPanes(needs);
    EXPECT_TRUE(heights.plotsShareTabs);
    EXPECT_EQ(heights.waveform, heights.spectrogram);
    EXPECT_GT(heights.waveform, heights.list);
    EXPECT_EQ(heights.measures, 58);
    // Together with captions' and tabs' height they take what margins, dividers and status leave.
    EXPECT_EQ(heights.list + heights.waveform + heights.measures, needs.client.cy - 16 - 2 * 4 - 6 - 20 - 18 + 18);
    EXPECT_FALSE(heights.listSharesTabs);
}

TEST(WorkbenchMainLayout, TheListSharesTheirTabsWhereThereIsNoRoomForOneOfThem)
{
    // Margins, measures, three captions, two dividers, spacing and status, and below the list's and a plot's least
    // height.
    MainLayoutNeeds needs = Needs(520, 16 + 58 + 3 * 18 + 2 * 4 + 6 + 20 + 100 + 120 - 1);
    workbench::PaneHeights const heights = DefaultPanes(needs);
    EXPECT_TRUE(heights.plotsShareTabs);
    EXPECT_TRUE(heights.listSharesTabs);
    EXPECT_EQ(heights.list, heights.waveform);
    EXPECT_EQ(heights.list, heights.spectrogram);
    needs.client.cy += 1;
    EXPECT_FALSE(DefaultPanes(needs).listSharesTabs);
    needs.client.cy = 10;
    EXPECT_GE(DefaultPanes(needs).list, 18);
}

TEST(WorkbenchMainLayout, NothingOverlapsOrLiesOutsideWhateverTheSizes)
{
    std::mt19937 random(7);
    auto const upTo = [&random](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    for (int round = 0; round < 20'000; ++round)
    {
        MainLayoutNeeds needs = Needs(upTo(1500), 60 + upTo(900));
        needs.framesWidth = upTo(1) * upTo(1600);
        workbench::MainLayout const layout = LayOutMain(needs);
        CRect const client(CPoint(0, 0), needs.client);
        CRect common;
        for (CRect const & rect : {layout.status, layout.framesDivider, layout.frames})
        {
            ASSERT_GE(rect.Width(), 0) << round;
            ASSERT_GE(rect.Height(), 0) << round;
            if (!rect.IsRectEmpty())
            {
                ASSERT_TRUE(common.IntersectRect(rect, client) && common == rect) << round;
            }
        }
        ASSERT_FALSE(common.IntersectRect(layout.status, layout.frames)) << round;
        ASSERT_FALSE(common.IntersectRect(layout.framesDivider, layout.frames)) << round;
        ASSERT_EQ(layout.frames.IsRectEmpty(), layout.framesDivider.IsRectEmpty()) << round;
        if (!layout.frames.IsRectEmpty())
        {
            ASSERT_EQ(needs.client.cx - layout.border.right, layout.framesDivider.left) << round;
        }
    }
}
