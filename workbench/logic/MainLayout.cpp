#include "logic/MainLayout.h"

#include <algorithm>

namespace workbench
{

namespace
{

// The parts of the growth, in 1/10.
constexpr int list_part = 3;
constexpr int waveform_part = 3;
constexpr int spectrogram_part = 4;
constexpr int whole = 10;

// The list's part of the height where both plots share the rest, in 1/10.
constexpr int list_part_beside_tabs = 4;

// The part of its height at first that the list always keeps, in 1/10.
constexpr int kept_list_part = 8;

constexpr int panes = 4; // above each other

} // namespace

CSize LeastMainArea(MainLayoutNeeds const & needs, int listWidth)
{
    return CSize(2 * needs.marginX + listWidth, 2 * needs.marginY + needs.listHeight + needs.waveformHeight +
                                                    needs.spectrogramHeight + needs.panelHeight +
                                                    panes * needs.captionHeight + (panes - 1) * needs.dividerGap +
                                                    needs.spacing + needs.statusHeight);
}

CSize LeastListPane(MainLayoutNeeds const & needs)
{
    long const width = needs.client.cx - 2 * needs.marginX - needs.framesWidth;
    long const height = needs.client.cy - 2 * needs.marginY - needs.spacing - needs.statusHeight - needs.panelHeight -
                        needs.captionHeight - needs.dividerGap;
    return CSize(std::clamp<int>(width / 2, 0, needs.leastBeside),
                 std::clamp<int>(height / 2, 0, needs.captionHeight + needs.listHeight * kept_list_part / whole));
}

MainLayout LayOutMain(MainLayoutNeeds const & needs)
{
    MainLayout layout;
    int const left = needs.marginX;
    auto const right = std::max<int>(needs.client.cx - needs.marginX, left);
    auto const statusBottom = std::max<int>(needs.client.cy - needs.marginY, 0);
    int const statusTop = std::max(statusBottom - needs.statusHeight, 0);
    int const top = needs.marginY;
    int const bottom = std::max(statusTop - needs.spacing, top);
    layout.status = CRect(left, statusTop, right, statusBottom);
    layout.border = CRect(left, top, needs.client.cx - right, needs.client.cy - bottom);
    int const most = right - left - needs.dividerGap - needs.leastBeside;
    int const width = std::min(needs.framesWidth, std::max(most, 0));
    if (width > 0)
    {
        layout.frames = CRect(right - width, top, right, bottom);
        layout.framesDivider = CRect(layout.frames.left - needs.dividerGap, top, layout.frames.left, bottom);
        layout.border.right += width + needs.dividerGap;
    }
    return layout;
}

PaneHeights DefaultPanes(MainLayoutNeeds const & needs)
{
    long const growth = needs.client.cy - LeastMainArea(needs, 0).cy;
    PaneHeights heights;
    heights.measures = needs.panelHeight + needs.captionHeight;
    if (growth < 0)
    {
        heights.plotsShareTabs = true;
        // Tabs are about as high as captions.
        auto const room =
            std::max<int>(needs.client.cy - 2 * needs.marginY - heights.measures - 3 * needs.captionHeight -
                              (panes - 2) * needs.dividerGap - needs.spacing - needs.statusHeight,
                          0);
        if (room < needs.listHeight + std::max(needs.waveformHeight, needs.spectrogramHeight))
        {
            heights.listSharesTabs = true;
            heights.list = heights.waveform = heights.spectrogram = 3 * needs.captionHeight + room;
            return heights;
        }
        heights.list = needs.captionHeight + room * list_part_beside_tabs / whole;
        heights.waveform = 3 * needs.captionHeight + room - heights.list;
        heights.spectrogram = heights.waveform;
        return heights;
    }
    heights.list = needs.listHeight + needs.captionHeight + growth * list_part / whole;
    heights.waveform = needs.waveformHeight + needs.captionHeight + growth * waveform_part / whole;
    heights.spectrogram = needs.spectrogramHeight + needs.captionHeight + growth * spectrogram_part / whole;
    return heights;
}

} // namespace workbench
