#include "logic/LineMove.h"

#include <algorithm>
#include <unordered_set>

namespace workbench
{

std::vector<int> MovedLines(std::span<int const> order, std::span<int const> seen, std::span<int const> moved,
                            std::size_t place)
{
    std::unordered_set<int> const goes(moved.begin(), moved.end());
    std::vector<int> together;
    std::vector<int> rest;
    for (int const line : order)
    {
        (goes.contains(line) ? together : rest).push_back(line);
    }
    // Before the next seen line that stays, or else behind the last one.
    auto at = rest.end();
    auto next = seen.begin() + static_cast<std::ptrdiff_t>(std::min(place, seen.size()));
    next = std::find_if_not(next, seen.end(), [&goes](int line) { return goes.contains(line); });
    if (next != seen.end())
    {
        at = std::find(rest.begin(), rest.end(), *next);
    }
    rest.insert(at, together.begin(), together.end());
    return rest;
}

std::size_t PlaceOneUp(std::span<int const> seen, std::span<int const> moved)
{
    std::unordered_set<int> const goes(moved.begin(), moved.end());
    auto const first = std::ranges::find_if(seen, [&goes](int line) { return goes.contains(line); });
    auto const place = static_cast<std::size_t>(first - seen.begin());
    return place > 0 && first != seen.end() ? place - 1 : place;
}

std::size_t PlaceOneDown(std::span<int const> seen, std::span<int const> moved)
{
    std::unordered_set<int> const goes(moved.begin(), moved.end());
    std::size_t behind = seen.size();
    while (behind > 0 && !goes.contains(seen[behind - 1]))
    {
        --behind;
    }
    return behind > 0 ? std::min(behind + 1, seen.size()) : seen.size();
}

} // namespace workbench
