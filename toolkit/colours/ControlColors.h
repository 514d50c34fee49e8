#pragma once
// The colours that the controls paint with, in one record, and the sets of them that a host can choose from:
//
//     control_colors::UseForProcess(ControlColorSet::follow_system);
//     control_colors::UseFor(m_previewPane.m_hWnd, ControlColorSet::dark);
//
// Until a host chooses, everything is painted in the standard set. Colours that a host gives a cell, a header, a slider
// or a button stay what they are in every set; only what nobody has chosen follows. A colour of a cell counts as chosen
// if it is none that the list itself gives to new cells: records keep it as a plain number. A host that has chosen just
// that one says so by PALETTERGB, which is painted alike: PALETTERGB(0, 0, 0) is black in every set.

#include <afx.h>

#include "frame/Export.h"

/// Which colours controls are painted in.
enum class ControlColorSet
{
    /// The system's colours, and fixed ones for marks.
    standard,
    /// Light texts on dark grounds.
    dark,
    /// The system's colours alone, each text made readable on its ground.
    high_contrast,
    /// high_contrast while the user has switched the system's high contrast on, else standard.
    follow_system
};

/// Every colour of list, table, header, combo box, drop-down, edit frame, slider and colour button that no host
/// chooses. In the dark and the high-contrast set each text has a contrast of 4.5 to 1 at least to every ground that it
/// can stand on, and so have marks: where a mark's own colour does not, control_colors::MarkOn gives the text's.
struct ControlColors
{
    /// False for the standard set: nothing is made readable there.
    bool adapts;

    // Grounds, and the texts on them.

    /// The ground of lists, edits and boxes.
    COLORREF window;
    /// Also on inactiveSelection and trough.
    COLORREF windowText;
    /// Links, on window and inactiveSelection.
    COLORREF link;
    /// The ground of what is selected, while the list has the focus.
    COLORREF selection;
    /// Texts on selection.
    COLORREF selectionText;
    /// Of a selection without the focus, and of disabled cells.
    COLORREF inactiveSelection;
    /// Text, frames and marks of what is disabled, on window, inactiveSelection, trough and face.
    COLORREF disabled;
    /// Of buttons, and of disabled combo boxes.
    COLORREF face;
    /// Also the text of a combo box, on window.
    COLORREF buttonText;
    /// The light edge of what is raised.
    COLORREF edgeHighlight;
    /// The shadow of what is raised.
    COLORREF edgeShadow;
    /// The outer edge on the side of the shadow.
    COLORREF edgeDark;
    /// The inner edge on the side of the light.
    COLORREF edgeLight;
    /// The system's of an active caption. Bars are made of it; for hosts besides, as no control has a caption.
    COLORREF activeCaption;
    /// The system's of an inactive caption: for hosts, as no control has one.
    COLORREF inactiveCaption;
    /// Texts on inactiveCaption: for hosts.
    COLORREF inactiveCaptionText;

    // Marks in cells.

    /// The frame of a check box.
    COLORREF checkFrame;
    /// The tick in it.
    COLORREF checkMark;
    /// The cross in it.
    COLORREF crossMark;
    /// Inside of a radio button that is off.
    COLORREF radioGround;
    /// Where the light falls on a radio button that is on.
    COLORREF radioLight;
    /// The downward arrow of a combo cell.
    COLORREF comboArrow;

    // Progress.

    /// The ground of a progress bar.
    COLORREF trough;
    /// Its edge above and at the left; the other one is edgeShadow.
    COLORREF troughFrame;
    /// A progress bar.
    COLORREF bar;
    /// The text where it stands on the bar.
    COLORREF barText;
    /// A bar in a table's cells.
    COLORREF tableBar;
    /// A progress bar at the lower edge of a table's header.
    COLORREF headerBar;

    // The header; its check boxes have the frame and the marks of cells.

    /// The ground of titles.
    COLORREF headerFace;
    /// The titles.
    COLORREF headerText;
    /// The light edge of a title.
    COLORREF headerHighlight;
    /// The dark edge of a title.
    COLORREF headerShadow;
    /// The ground of a check box in a title.
    COLORREF headerBox;
    /// The square in a box that is neither checked nor unchecked.
    COLORREF headerMixed;
    /// The arrow of a sorted column, on headerFace.
    COLORREF headerArrow;

    // Combo box, drop-down and in-place edit.

    /// What is left of a themed frame where the theme has no colours.
    COLORREF comboFrame;
    /// The outline of a combo box's button.
    COLORREF comboOutline;
    /// The frame of a drop-down.
    COLORREF dropFrame;
    /// The frame of an in-place edit.
    COLORREF editFrame;

    // The slider.

    /// Of the level and the thumb.
    COLORREF sliderMain;
    /// Of the rest of the channel.
    COLORREF sliderSecond;

    // The colour button.

    /// A disabled button.
    COLORREF buttonDisabled;
    /// The frame of a button that is pointed at, where nobody has chosen the colour of its text then.
    COLORREF buttonHotFrame;
};

/// Asks for a colour of the system by its number, a COLOR_ constant.
using SystemColorLookup = COLORREF (*)(int number);

namespace control_colors
{
/// The least contrast of a text to its ground.
constexpr double least_contrast = 4.5;

/// From 1 for the same colour to 21 for black and white.
INSTRUMENT_UI_API double ContrastOf(COLORREF one, COLORREF other);
/// The colour of a mark on a ground where a text has the colour given: the mark's own if it is seen there, else of both
/// the one that is seen better.
INSTRUMENT_UI_API COLORREF MarkOn(COLORREF ground, COLORREF mark, COLORREF text);
/// The colour of a text that nobody has chosen, on any ground: the first one of both that is read there, else black or
/// white.
INSTRUMENT_UI_API COLORREF TextOn(COLORREF ground, COLORREF text, COLORREF other);

/// The standard set for such system colours.
INSTRUMENT_UI_API ControlColors Standard(SystemColorLookup system);
/// The dark set.
INSTRUMENT_UI_API ControlColors Dark();
/// The high-contrast set for such system colours.
INSTRUMENT_UI_API ControlColors HighContrast(SystemColorLookup system);

// The choice. Each call repaints the windows that it concerns, by posted paints alone: no message is sent, so it may
// come from a paint or a notification handler. For user-interface threads.

/// For all windows of the process without a choice of their own or an ancestor's.
INSTRUMENT_UI_API void UseForProcess(ControlColorSet set);
/// The choice for the whole process.
INSTRUMENT_UI_API ControlColorSet ChosenForProcess();
/// For a window, its descendants, and what they own, as far as none of these has a choice of its own. It ends with the
/// window. False without a window.
INSTRUMENT_UI_API bool UseFor(HWND window, ControlColorSet set);
/// Takes the window's own choice away.
INSTRUMENT_UI_API void RemoveFrom(HWND window);
/// The set that the window is painted in now: its own choice, the nearest ancestor's or owner's, or the process's.
/// Never follow_system. Null stands for a window without ancestors.
INSTRUMENT_UI_API ControlColorSet SetOf(HWND window);
/// The colours that the window is painted in now.
INSTRUMENT_UI_API ControlColors Of(HWND window);
/// The colours of a set now.
INSTRUMENT_UI_API ControlColors Of(ControlColorSet set);
/// For parents of native controls: colours such a child and gives its brush in answer to a
/// WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC, WM_CTLCOLORLISTBOX or WM_CTLCOLORSCROLLBAR; 0 for other messages, and in the
/// standard set.
INSTRUMENT_UI_API LRESULT AnswerColorQuestion(HWND parent, UINT message, WPARAM context);
} // namespace control_colors
