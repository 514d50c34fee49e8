#include "list/XListSort.h"

namespace
{
template <class Value> int Compare(Value const & a, Value const & b)
{
    if (a < b)
        return -1;
    return b < a ? 1 : 0;
}
} // namespace

ListSortKey::ListSortKey(XLISTCTRLDATA const * cell) : hasCell(cell != nullptr)
{
    if (cell == nullptr)
        return;
    sortsFirst = (cell->properties & XLP_SORT_FIRST) != 0;
    sortsLast = (cell->properties & XLP_SORT_LAST) != 0;
    isProgress = (cell->properties & XLP_PROGRESS) != 0;
    valueType = cell->valueType;
    progressValue = cell->progressValue;
    intValue = cell->intValue;
    floatValue = cell->floatValue;
    timeValue = cell->timeValue.GetTime();
}

int CompareValues(ListSortKey const & a, ListSortKey const & b)
{
    if (a.isProgress)
        return Compare(a.progressValue, b.progressValue);
    switch (a.valueType)
    {
    case XLV_INT:
        return Compare(a.intValue, b.intValue);
    case XLV_FLOAT:
        return Compare(a.floatValue, b.floatValue);
    case XLV_DATETIME:
        return Compare(a.timeValue, b.timeValue);
    default:
        return 0;
    }
}
