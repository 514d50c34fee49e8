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

int CompareValues(XLISTCTRLDATA const & a, XLISTCTRLDATA const & b)
{
    if ((a.properties & XLP_PROGRESS) != 0)
        return Compare(a.progressValue, b.progressValue);
    switch (a.valueType)
    {
    case XLV_INT:
        return Compare(a.intValue, b.intValue);
    case XLV_FLOAT:
        return Compare(a.floatValue, b.floatValue);
    case XLV_DATETIME:
        return Compare(a.timeValue.GetTime(), b.timeValue.GetTime());
    default:
        return 0;
    }
}
