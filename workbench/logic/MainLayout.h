#pragma once
// Where the parts of the main window lie.

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
    int spacing = 0;     ///< between parts that lie below one another
    int dividerGap = 0;  ///< between parts that lie side by side
    int leastBeside = 0; ///< the width that the list keeps beside folders and frames, where there is as much
    int listHeight = 0;  ///< the least heights; what is more goes to these three
    int waveformHeight = 0;
    int spectrogramHeight = 0;
    int panelHeight = 0;
    int statusHeight = 0;
    int folderWidth = 0; ///< wanted; 0: without the folders
    int framesWidth = 0; ///< wanted; 0: without frames
};

/// The places, in the window's client area. What does not show is empty.
struct MainLayout
{
    CRect folders;
    CRect folderDivider;
    CRect list;
    CRect waveform;
    CRect spectrogram;
    CRect panel;
    CRect status;
    CRect framesDivider;
    CRect frames;
};

/// The client area that all parts need with a list of that width, without folders and frames.
CSize LeastMainArea(MainLayoutNeeds const & needs, int listWidth);

MainLayout LayOutMain(MainLayoutNeeds const & needs);

} // namespace workbench
