#pragma once
// Where the parts of the main window lie that are no panes, and how large panes are at first.

#include <afx.h>
#include <atltypes.h>

namespace workbench
{

/// What the places depend on. All lengths are in pixels.
struct MainLayoutNeeds
{
    CSize client;
    int marginX = 0;
    int marginY = 0;
    int spacing = 0;     ///< above the status
    int dividerGap = 0;  ///< between parts
    int leastBeside = 0; ///< the width that the panes keep beside frames, where there is as much
    int listHeight = 0;  ///< the least heights, without captions; what is more goes to these three
    int waveformHeight = 0;
    int spectrogramHeight = 0;
    int panelHeight = 0;
    int captionHeight = 0; ///< of a pane
    int statusHeight = 0;
    int framesWidth = 0; ///< wanted; 0: without frames
};

/// The places, in the window's client area. What does not show is empty.
struct MainLayout
{
    CRect border; ///< what is left free around the panes, at each side
    CRect status;
    CRect framesDivider;
    CRect frames;
};

/// The heights of panes at first, with their captions.
struct PaneHeights
{
    int list = 0;
    int waveform = 0;
    int spectrogram = 0;
    int measures = 0;
    bool plotsShareTabs = false; ///< there is no room for both of them: each has the height of both
    bool listSharesTabs = false; ///< nor for one of them below the list: each of the three has all
};

/// The client area that list, panes and status need with a list of that width, without folders and frames.
CSize LeastMainArea(MainLayoutNeeds const & needs, int listWidth);

/// The least size of the list's pane, which no other pane may take: some rows, and columns enough to tell recordings
/// apart, as far as the client area leaves others room beside it.
CSize LeastListPane(MainLayoutNeeds const & needs);

MainLayout LayOutMain(MainLayoutNeeds const & needs);

/// Where there is less than the least area, waveform and spectrogram stand in tabs.
PaneHeights DefaultPanes(MainLayoutNeeds const & needs);

} // namespace workbench
