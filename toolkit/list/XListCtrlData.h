#pragma once
// The record of one list cell, and the numbers that it is written with.

#include <afx.h>
#include <atltypes.h>

#include <functional>
#include <map>

#include "frame/Export.h"

class CDC;

// Property bits. Those of the low byte but the first say what kind of cell it is; those of the high byte survive most
// changes of kind.
/// The cell reacts and is drawn in its normal colours.
constexpr unsigned int XLP_ENABLED = 1;
/// A click opens the in-place edit.
constexpr unsigned int XLP_EDIT = 2;
/// A hyperlink: a click notifies the parent.
constexpr unsigned int XLP_LINK = 4;
/// A progress bar.
constexpr unsigned int XLP_PROGRESS = 8;
/// A click opens the in-place combo.
constexpr unsigned int XLP_COMBO = 16;
/// The cell is painted by its customDraw.
constexpr unsigned int XLP_CUSTOMDRAW = 32;
/// The text is bold.
constexpr unsigned int XLP_BOLD = 256;
/// The text is underlined.
constexpr unsigned int XLP_UNDERLINE = 512;
/// The user changed this cell.
constexpr unsigned int XLP_MODIFIED = 1024;
/// The row sorts behind all others, whatever the direction.
constexpr unsigned int XLP_SORT_LAST = 2048;
/// The row sorts ahead of all others, whatever the direction.
constexpr unsigned int XLP_SORT_FIRST = 4096;

// Value types: which of the value fields is current. They steer sorting and export, not painting.
/// The text shown.
constexpr unsigned int XLV_TEXT = 0;
/// intValue.
constexpr unsigned int XLV_INT = 1;
/// floatValue.
constexpr unsigned int XLV_FLOAT = 2;
/// timeValue.
constexpr unsigned int XLV_DATETIME = 3;

// Checked states.
/// Not a check cell.
constexpr int XLC_NONE = -1;
/// An empty check box.
constexpr int XLC_UNCHECKED = 0;
/// A ticked check box.
constexpr int XLC_CHECKED = 1;
/// A red cross; a click does not change it.
constexpr int XLC_CROSSED = 2;
/// A radio button that is on.
constexpr int XLC_RADIO_ON = 3;
/// A radio button that is off.
constexpr int XLC_RADIO_OFF = 4;

// States of a column's header.
/// No mark.
constexpr int XHC_NONE = 0;
/// An empty check box.
constexpr int XHC_UNCHECKED = 1;
/// A ticked check box.
constexpr int XHC_CHECKED = 2;
/// A check box for cells that differ.
constexpr int XHC_MIXED = 3;
/// A crossed check box.
constexpr int XHC_CROSSED = 4;
/// An arrow pointing down.
constexpr int XHC_SORT_ASCENDING = 5;
/// An arrow pointing up.
constexpr int XHC_SORT_DESCENDING = 6;
/// States from here on show nothing.
constexpr int XHC_END = 7;

/// One cell of a list. The text that it shows is not here but in the native list. Row words and keys are used in the
/// row's first cell only. Pointers are not owned.
class XLISTCTRLDATA
{
public:
    /// Numbers of a row's key.
    static constexpr int key_length = 8;
    /// The first numbers of the key that are its Clavis.
    static constexpr int clavis_length = 6;
    /// Stands for no wash.
    static constexpr COLORREF no_gradient = 0xFFFFFF;

    /// XLP_ bits.
    unsigned int properties = XLP_ENABLED;
    /// An XLV_ type.
    unsigned int valueType = XLV_TEXT;
    /// Of the list's small image list; -1 for none.
    int imageIndex = -1;
    /// Empty for the list's default.
    CString toolTipText;
    /// The value behind the text where valueType is XLV_INT.
    int intValue = 0;
    /// The value behind the text where valueType is XLV_FLOAT.
    float floatValue = 0;
    /// The value behind the text where valueType is XLV_DATETIME.
    CTime timeValue;
    /// The row's word.
    long long itemData64 = 0;
    /// The row's pointer.
    void * itemDataPtr = nullptr;
    /// The row's key; its first six numbers are the Clavis.
    int idx8[key_length] = {-1, -1, -1, -1, -1, -1, -1, -1};
    /// The colour of the text.
    COLORREF textColor = 0;
    /// Of a progress cell, the bar's colour.
    COLORREF backgroundColor = 0xFFFFFF;
    /// The colour of the wash over the cell; no_gradient for none.
    COLORREF gradientColor = no_gradient;
    /// An XLC_ state.
    int checkedState = XLC_NONE;
    /// From id to text. The texts belong to whoever filled the cell and must stay as long as it uses them.
    std::map<int, wchar_t const *> comboStrings;
    /// The drop-down shows the texts in their order, not in that of the ids.
    bool comboSorted = false;
    /// Rows of the drop-down.
    int comboVisibleItems = 20;
    /// The id that stands where a selection cannot be found.
    int comboDefaultId = -1;
    /// The selected id; -1 for none.
    int comboCurrentId = -1;
    /// Percent.
    int progressValue = 0;
    /// What progressFormat is given.
    int progressDisplayValue = 0;
    /// printf-style format of the bar's text; empty for percent.
    CString progressFormat;
    /// A text stands on the bar.
    bool progressShowText = false;
    /// Painter of a custom-drawn cell: row, column, device context, the cell's rectangle.
    std::function<void(int, int, CDC *, CRect const &)> customDraw;

    /// Everything as in a new cell, but for toolTipText, progressFormat and progressShowText, which stay. That is
    /// meant: a recycled row keeps the tooltips and the progress format of the row that it once was.
    INSTRUMENT_UI_API void Recycle();

    // Changes of kind. It is meant that some keep the look of the cell and others forget it and enable the cell.

    /// Plain: keeps the enabled bit and the high byte, takes any check or radio state away.
    INSTRUMENT_UI_API void MakePlain();
    /// A check box or radio button in the state given: keeps the enabled bit and the high byte.
    INSTRUMENT_UI_API void MakeCheck(int state);
    /// A text that a click opens for editing.
    INSTRUMENT_UI_API void MakeEdit();
    /// A hyperlink.
    INSTRUMENT_UI_API void MakeLink();
    /// A progress bar.
    INSTRUMENT_UI_API void MakeProgress();
    /// A text with a drop-down.
    INSTRUMENT_UI_API void MakeCombo();
};
