#include "list/XListColumnFit.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numeric>

namespace
{
// A column's part of the difference, rounded as the fitting has always done it: half a pixel is added and the rest cut
// off towards zero, in single precision.
std::int64_t Share(std::int64_t difference, int width, std::int64_t sum)
{
    float const part = static_cast<float>(difference) * static_cast<float>(width) / static_cast<float>(sum);
    return static_cast<std::int64_t>(part + 0.5f); // NOLINT(bugprone-incorrect-roundings)
}

void ShareProportionally(std::vector<int> & widths, std::int64_t sum, int minimum, std::int64_t & difference)
{
    std::int64_t const whole = difference;
    for (int & width : widths)
    {
        std::int64_t const share = sum != 0 ? Share(whole, width, sum) : 0;
        std::int64_t const result = width + share;
        if (result <= minimum)
        {
            difference -= std::int64_t{minimum} - width;
            width = minimum;
        }
        else
        {
            difference -= share;
            width = static_cast<int>(std::min<std::int64_t>(result, std::numeric_limits<int>::max()));
        }
    }
}

void ShareSinglePixels(std::vector<int> & widths, int minimum, std::int64_t difference, CColumnFitMemory & memory)
{
    int const count = static_cast<int>(widths.size());
    bool const grow = difference > 0;
    int const step = grow ? 1 : -1;
    memory.counter.set_range(0, count);
    bool stay = grow != memory.lastGrew;
    memory.lastGrew = grow;

    for (bool changed = true; changed && difference != 0;)
    {
        changed = false;
        for (int turn = 0; turn < count && difference != 0; ++turn)
        {
            if (!stay)
                memory.counter.step(grow);
            stay = false;
            int & width = widths[static_cast<std::size_t>(memory.counter())];
            if (width + step > minimum)
            {
                width += step;
                difference -= step;
                changed = true;
            }
        }
    }
}
} // namespace

ColumnFit FitColumns(std::vector<int> & widths, int available, int minimum, int preferred, CColumnFitMemory & memory)
{
    // Single widths may be anything that a header takes, so their sum may pass the range of an int.
    std::int64_t const sum = std::accumulate(widths.begin(), widths.end(), std::int64_t{0});
    std::int64_t difference = available - sum;
    if (difference == 0)
        return ColumnFit::unchanged;

    preferred = std::min(preferred, static_cast<int>(widths.size()) - 1);
    if (preferred >= 0)
    {
        int & width = widths[static_cast<std::size_t>(preferred)];
        if (width + difference > minimum)
        {
            width += static_cast<int>(difference);
            return ColumnFit::preferred_only;
        }
        // The array keeps the old width; the sharing below goes on from it.
        difference += width - (minimum + 1);
    }
    ShareProportionally(widths, sum, minimum, difference);
    if (difference != 0)
        ShareSinglePixels(widths, minimum, difference, memory);
    return ColumnFit::all;
}
