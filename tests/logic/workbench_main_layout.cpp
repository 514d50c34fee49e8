// Where the parts of the workbench's main window lie.

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "logic/MainLayout.h"

using workbench::LayOutMain;
using workbench::LeastMainArea;
using workbench::MainLayout;
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
    needs.statusHeight = 20;
    return needs;
}
} // namespace

TEST(WorkbenchMainLayout, TheLeastAreaHoldsAllPartsAtTheirLeastHeights)
{
    auto needs = Needs(0, 0);
    auto const least = LeastMainArea(needs, 500);
    EXPECT_EQ(least, CSize(520, 8 + 100 + 6 + 120 + 6 + 110 + 6 + 40 + 6 + 20 + 8));
    needs.client = least;
    auto const layout = LayOutMain(needs);
    EXPECT_EQ(layout.list, CRect(10, 8, 510, 108));
    EXPECT_EQ(layout.waveform, CRect(10, 114, 510, 234));
    EXPECT_EQ(layout.spectrogram, CRect(10, 240, 510, 350));
    EXPECT_EQ(layout.panel, CRect(10, 356, 510, 396));
    EXPECT_EQ(layout.status, CRect(10, 402, 510, 422));
    EXPECT_TRUE(layout.folders.IsRectEmpty());
    EXPECT_TRUE(layout.folderDivider.IsRectEmpty());
    EXPECT_TRUE(layout.frames.IsRectEmpty());
    EXPECT_TRUE(layout.framesDivider.IsRectEmpty());
}

TEST(WorkbenchMainLayout, GrowthGoesToListWaveformAndSpectrogram)
{
    auto needs = Needs(520, 530); // 100 more
    auto const layout = LayOutMain(needs);
    EXPECT_EQ(layout.list.Height(), 130);
    EXPECT_EQ(layout.waveform.Height(), 150);
    EXPECT_EQ(layout.spectrogram.Height(), 150);
    EXPECT_EQ(layout.panel.Height(), 40);
    EXPECT_EQ(layout.status.bottom, 522);
}

TEST(WorkbenchMainLayout, FoldersAndFramesTakeTheirWidthFromTheRest)
{
    auto needs = Needs(1020, 530);
    needs.folderWidth = 150;
    needs.framesWidth = 400;
    auto const layout = LayOutMain(needs);
    EXPECT_EQ(layout.frames, CRect(610, 8, 1010, 450));
    EXPECT_EQ(layout.framesDivider, CRect(606, 8, 610, 450));
    EXPECT_EQ(layout.folders, CRect(10, 8, 160, 450));
    EXPECT_EQ(layout.folderDivider, CRect(160, 8, 164, 450));
    EXPECT_EQ(layout.list.left, 164);
    EXPECT_EQ(layout.list.right, 606);
    EXPECT_EQ(layout.panel.left, 10);
    EXPECT_EQ(layout.panel.right, 1010);
    EXPECT_EQ(layout.status.right, 1010);
}

TEST(WorkbenchMainLayout, TheListKeepsItsLeastWidthWhereThereIsAsMuch)
{
    auto needs = Needs(620, 530);
    needs.folderWidth = 500;
    needs.framesWidth = 500;
    auto layout = LayOutMain(needs);
    EXPECT_EQ(layout.frames.Width(), 600 - 4 - 300);
    EXPECT_EQ(layout.folders.Width(), 0);
    EXPECT_EQ(layout.list.Width(), 300 - 4);
    needs.framesWidth = 0;
    layout = LayOutMain(needs);
    EXPECT_EQ(layout.folders.Width(), 600 - 4 - 300);
    EXPECT_EQ(layout.list.Width(), 300);
}

TEST(WorkbenchMainLayout, NothingOverlapsOrLiesOutsideWhateverTheSizes)
{
    std::mt19937 random(7);
    auto const upTo = [&random](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    for (int round = 0; round < 20'000; ++round)
    {
        auto needs = Needs(upTo(1500), 430 + upTo(900));
        needs.folderWidth = upTo(1) * upTo(1000);
        needs.framesWidth = upTo(1) * upTo(1600);
        auto const layout = LayOutMain(needs);
        std::array<CRect, 9> const all{layout.folders,     layout.folderDivider, layout.list,
                                       layout.waveform,    layout.spectrogram,   layout.panel,
                                       layout.status,      layout.framesDivider, layout.frames};
        CRect const client(CPoint(0, 0), needs.client);
        for (std::size_t i = 0; i < all.size(); ++i)
        {
            ASSERT_GE(all[i].Width(), 0) << round << ' ' << i;
            ASSERT_GE(all[i].Height(), 0) << round << ' ' << i;
            CRect common;
            if (!all[i].IsRectEmpty())
            {
                ASSERT_TRUE(common.IntersectRect(all[i], client) && common == all[i]) << round << ' ' << i;
            }
            for (std::size_t j = 0; j < i; ++j)
            {
                ASSERT_FALSE(common.IntersectRect(all[i], all[j])) << round << ' ' << i << ' ' << j;
            }
        }
    }
}
