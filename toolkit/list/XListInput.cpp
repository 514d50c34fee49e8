#include "list/XListInput.h"

HeaderPress DecideHeaderPress(int headerState, bool autoCheckbox)
{
    bool const drives = headerState == XHC_UNCHECKED || headerState == XHC_CHECKED || headerState == XHC_MIXED;
    if (!autoCheckbox || !drives)
        return {false, headerState, headerState};
    bool const check = headerState != XHC_CHECKED;
    return {true, check ? XHC_CHECKED : XHC_UNCHECKED, check ? XLC_CHECKED : XLC_UNCHECKED};
}

int HeaderStateOfCells(unsigned long long rows, unsigned long long unchecked, unsigned long long checked,
                       unsigned long long crossed)
{
    if (unchecked == rows)
        return XHC_UNCHECKED;
    if (checked == rows)
        return XHC_CHECKED;
    if (crossed == rows)
        return XHC_CROSSED;
    return XHC_MIXED;
}

bool HeaderFollowsCells(int headerState)
{
    return headerState >= XHC_UNCHECKED && headerState <= XHC_CROSSED;
}

bool CountsAsChecked(int checkedState, int searched)
{
    return checkedState == searched || (searched < 0 && checkedState != XLC_NONE);
}

int RowAfterNavigationKey(int selectedBefore, int rowCount, bool down, std::function<bool(int)> const & isEnabled)
{
    if (selectedBefore != 0 || rowCount <= 0)
        return selectedBefore;
    int row = 0;
    while (!isEnabled(row))
    {
        row = down ? row + 1 : row - 1;
        if (row >= rowCount)
            row = 0;
        if (row < 0)
            row = rowCount - 1;
        if (row == 0)
            break;
    }
    return row;
}
