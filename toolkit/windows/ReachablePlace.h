#pragma once
// Where a window stands whose stored place today's screens may not have any more. Plain code; lengths are in pixels of
// the virtual screen.

#include <afx.h>
#include <atltypes.h>

#include <span>

/// A screen: what windows may cover of it, and its resolution in dots an inch.
struct ScreenArea
{
    CRect work;
    int dpi = 96;
};

/// What is known of a window's former place.
struct StoredPlace
{
    CRect rect;
    /// FingerprintOf the screens of then; 0 if it was not stored.
    int screens = 0;
    /// The resolution of the screen on which the window stood; 0 if it was not stored.
    int dpi = 0;
};

/// What a window is like.
struct WindowShape
{
    /// From the upper edge down to the caption's lower edge.
    int captionHeight = 0;
    /// Whether it can have another size than the one stored.
    bool sizable = true;
};

/// A number that tells sets of screens apart, as far as a number can; never 0.
int FingerprintOf(std::span<ScreenArea const> screens);

/// The screen on which a window at that place is: the one that has most of it, or else the nearest; the first of
/// equals. Null without screens. A screen without an area is none.
ScreenArea const * ScreenOf(CRect const & place, std::span<ScreenArea const> screens);

/// Whether a user can take hold of the caption: on some screen it stands in its full height, and in a hundred pixels of
/// its width, or all of it if the window is lower or narrower.
bool IsCaptionReachable(CRect const & place, std::span<ScreenArea const> screens, int captionHeight);

/// Where the window is to stand now. Its place is kept while the screens are those of then and its caption can be
/// reached. Otherwise its size is that for the resolution of the screen on which it is now, and never larger than that
/// screen's work area; and if the size has changed or the caption can't be reached, it is moved by as little as brings
/// all of it into the work area. A window that can't be sized keeps its size and shows its upper left corner where it
/// is too large. Without screens nothing changes. A place whose edges have traded places is put right first.
CRect ReachablePlace(StoredPlace const & stored, std::span<ScreenArea const> screens, WindowShape const & shape);
