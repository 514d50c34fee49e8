#include "access/AccessElement.h"

#include <limits>

namespace accessible
{
long NumberOf(Element element)
{
    if (element.IsControl())
        return 0;
    if (element.IsRow())
        return element.row < std::numeric_limits<int>::max() ? element.row + 1 : 0;
    constexpr int numbered_rows = std::numeric_limits<int>::max() / numbered_columns;
    if (element.row >= numbered_rows || element.col >= numbered_columns)
        return 0;
    return -(element.row * numbered_columns + element.col + 1);
}

Element ElementOf(long number)
{
    if (number == 0 || number < -static_cast<long>(std::numeric_limits<int>::max()))
        return {};
    if (number > 0)
        return {static_cast<int>(number - 1), -1};
    long const place = -(number + 1);
    return {static_cast<int>(place / numbered_columns), static_cast<int>(place % numbered_columns)};
}
} // namespace accessible
