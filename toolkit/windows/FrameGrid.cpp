#include "windows/FrameGrid.h"

#include <cstdint>
#include <limits>

namespace frame_grid
{
namespace
{
int LowHalf(unsigned long long size)
{
    return static_cast<int>(static_cast<std::uint32_t>(size));
}
} // namespace

bool BeforeEnds(int row, int column, unsigned long long rows, unsigned long long columns)
{
    return row < LowHalf(rows) && column < LowHalf(columns);
}

std::optional<std::size_t> CellCount(unsigned long long rows, unsigned long long columns)
{
    constexpr unsigned long long limit = std::numeric_limits<std::ptrdiff_t>::max() / sizeof(void *);
    if (columns != 0 && rows > limit / columns)
        return std::nullopt;
    return static_cast<std::size_t>(rows * columns);
}
} // namespace frame_grid
