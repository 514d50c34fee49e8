#include "logic/MainLayout.h"

#include <algorithm>

namespace workbench
{

namespace
{

// Where the parts of the growth end that go to the list and to the waveform, in 1/10; the spectrogram gets the rest.
constexpr int c_listEnd = 3;
constexpr int c_waveformEnd = 6;
constexpr int c_whole = 10;

} // namespace

CSize LeastMainArea(MainLayoutNeeds const & needs, int listWidth)
{
    return CSize(2 * needs.marginX + listWidth,
                 2 * needs.marginY + needs.listHeight + needs.waveformHeight + needs.spectrogramHeight +
                     needs.panelHeight + needs.statusHeight + 4 * needs.spacing);
}

MainLayout LayOutMain(MainLayoutNeeds const & needs)
{
    MainLayout layout;
    auto const growth = std::max<int>(needs.client.cy - LeastMainArea(needs, 0).cy, 0);
    auto left = needs.marginX;
    auto const edge = std::max<int>(needs.client.cx - needs.marginX, left);
    auto right = edge;
    auto const listTop = needs.marginY;
    auto const listBottom = listTop + needs.listHeight + growth * c_listEnd / c_whole;
    auto const waveformTop = listBottom + needs.spacing;
    auto const waveformBottom =
        waveformTop + needs.waveformHeight + growth * c_waveformEnd / c_whole - growth * c_listEnd / c_whole;
    auto const spectrogramTop = waveformBottom + needs.spacing;
    auto const spectrogramBottom =
        spectrogramTop + needs.spectrogramHeight + growth - growth * c_waveformEnd / c_whole;
    auto const panelTop = spectrogramBottom + needs.spacing;
    auto const panelBottom = panelTop + needs.panelHeight;
    auto const statusTop = panelBottom + needs.spacing;
    layout.panel = CRect(left, panelTop, edge, panelBottom);
    layout.status = CRect(left, statusTop, edge, statusTop + needs.statusHeight);

    if (needs.framesWidth > 0)
    {
        auto const most = right - left - needs.dividerGap - needs.leastBeside;
        layout.frames = CRect(right - std::clamp(needs.framesWidth, 0, std::max(most, 0)), listTop, right,
                              spectrogramBottom);
        right = std::max<int>(layout.frames.left - needs.dividerGap, left);
        layout.framesDivider = CRect(right, listTop, layout.frames.left, spectrogramBottom);
    }
    if (needs.folderWidth > 0)
    {
        auto const most = right - left - needs.dividerGap - needs.leastBeside;
        layout.folders =
            CRect(left, listTop, left + std::clamp(needs.folderWidth, 0, std::max(most, 0)), spectrogramBottom);
        left = std::min<int>(layout.folders.right + needs.dividerGap, right);
        layout.folderDivider = CRect(layout.folders.right, listTop, left, spectrogramBottom);
    }
    layout.list = CRect(left, listTop, right, listBottom);
    layout.waveform = CRect(left, waveformTop, right, waveformBottom);
    layout.spectrogram = CRect(left, spectrogramTop, right, spectrogramBottom);
    return layout;
}

} // namespace workbench
