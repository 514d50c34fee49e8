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
constexpr unsigned int XLP_BOLD = 256;
constexpr unsigned int XLP_UNDERLINE = 512;
/// The user changed this cell.
constexpr unsigned int XLP_MODIFIED = 1024;
/// The row sorts behind all others, whatever the direction.
constexpr unsigned int XLP_SORT_LAST = 2048;
/// The row sorts ahead of all others, whatever the direction.
constexpr unsigned int XLP_SORT_FIRST = 4096;

// Value types: which of the value fields is current. They steer sorting and export, not painting.
constexpr unsigned int XLV_TEXT = 0;
constexpr unsigned int XLV_INT = 1;
constexpr unsigned int XLV_FLOAT = 2;
constexpr unsigned int XLV_DATETIME = 3;

// Checked states.
/// Not a check cell.
constexpr int XLC_NONE = -1;
constexpr int XLC_UNCHECKED = 0;
constexpr int XLC_CHECKED = 1;
/// A red cross; a click does not change it.
constexpr int XLC_CROSSED = 2;
constexpr int XLC_RADIO_ON = 3;
constexpr int XLC_RADIO_OFF = 4;

// States of a column's header.
constexpr int XHC_NONE = 0;
constexpr int XHC_UNCHECKED = 1;
constexpr int XHC_CHECKED = 2;
constexpr int XHC_MIXED = 3;
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
    static constexpr int key_length = 8;
    static constexpr int clavis_length = 6;
    static constexpr COLORREF no_gradient = 0xFFFFFF;

    unsigned int properties = XLP_ENABLED;
    unsigned int valueType = XLV_TEXT;
    /// Of the list's small image list; -1 for none.
    int imageIndex = -1;
    CString toolTipText;
    int intValue = 0;
    float floatValue = 0;
    CTime timeValue;
    long long itemData64 = 0;
    void * itemDataPtr = nullptr;
    /// The row's key; its first six numbers are the Clavis.
    int idx8[key_length] = {-1, -1, -1, -1, -1, -1, -1, -1};
    COLORREF textColor = 0;
    /// Of a progress cell, the bar's colour.
    COLORREF backgroundColor = 0xFFFFFF;
    /// The colour of the wash over the cell; no_gradient for none.
    COLORREF gradientColor = no_gradient;
    int checkedState = XLC_NONE;
    /// From id to text. The texts belong to whoever filled the cell and must stay as long as it uses them.
    std::map<int, wchar_t const *> comboStrings;
    bool comboSorted = false;
    /// Rows of the drop-down.
    int comboVisibleItems = 20;
    /// The id that stands where a selection cannot be found.
    int comboDefaultId = -1;
    int comboCurrentId = -1;
    /// Percent.
    int progressValue = 0;
    /// What progressFormat is given.
    int progressDisplayValue = 0;
    /// printf-style format of the bar's text; empty for percent.
    CString progressFormat;
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
    INSTRUMENT_UI_API void MakeEdit();
    INSTRUMENT_UI_API void MakeLink();
    INSTRUMENT_UI_API void MakeProgress();
    INSTRUMENT_UI_API void MakeCombo();
};
