#include "list/XListCtrlData.h"

#include <algorithm>
#include <iterator>

namespace
{
// What a change to plain or check keeps.
constexpr unsigned int kept_bits = 0xFF01;
} // namespace

void XLISTCTRLDATA::Recycle()
{
    properties = XLP_ENABLED;
    valueType = XLV_TEXT;
    imageIndex = -1;
    intValue = 0;
    floatValue = 0;
    timeValue = CTime();
    itemData64 = 0;
    itemDataPtr = nullptr;
    std::fill(std::begin(idx8), std::end(idx8), -1);
    textColor = 0;
    backgroundColor = 0xFFFFFF;
    gradientColor = no_gradient;
    checkedState = XLC_NONE;
    comboStrings.clear();
    comboSorted = false;
    comboVisibleItems = 20;
    comboDefaultId = -1;
    comboCurrentId = -1;
    progressValue = 0;
    progressDisplayValue = 0;
    customDraw = nullptr;
}

void XLISTCTRLDATA::MakePlain()
{
    MakeCheck(XLC_NONE);
}

void XLISTCTRLDATA::MakeCheck(int state)
{
    properties &= kept_bits;
    checkedState = state;
}

void XLISTCTRLDATA::MakeEdit()
{
    properties = XLP_ENABLED | XLP_EDIT;
    checkedState = XLC_NONE;
}

void XLISTCTRLDATA::MakeLink()
{
    properties = XLP_ENABLED | XLP_LINK | XLP_UNDERLINE;
    checkedState = XLC_NONE;
}

void XLISTCTRLDATA::MakeProgress()
{
    properties = XLP_ENABLED | XLP_PROGRESS;
    checkedState = XLC_NONE;
}

void XLISTCTRLDATA::MakeCombo()
{
    properties = XLP_ENABLED | XLP_COMBO;
    checkedState = XLC_NONE;
}
