#include "dialogs/TabRows.h"

#include "frame/WrappingArithmetic.h"

namespace TabRows
{
Change ChangeOfRows(int formerRows, int rows, CRect const & tab)
{
    int const height = wrapping::Difference(tab.bottom, tab.top);
    int const dy = wrapping::Product(wrapping::Difference(rows, formerRows), height);
    return {CSize(0, dy), CSize(0, wrapping::Difference(0, dy))};
}

CRect PageArea(CRect const & former, Change const & change)
{
    CRect area = former;
    area.top = wrapping::Sum(area.top, change.offset.cy);
    return area;
}
} // namespace TabRows
