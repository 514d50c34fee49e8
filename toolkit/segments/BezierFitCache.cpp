#include "segments/BezierFitCache.h"

#include <bit>

namespace DigiStatic
{
namespace
{
constexpr std::uint64_t hash_start = 0xCBF29CE484222325;
constexpr std::uint64_t hash_factor = 0x9E3779B97F4A7C15;
constexpr int hash_shift = 29;
} // namespace

std::size_t CBezierFitCache::HashOfRun::operator()(Run const & run) const
{
    std::uint64_t hash = hash_start ^ run.count;
    for (std::size_t i = 0; i < 2 * run.count; ++i)
    {
        hash = (hash ^ run.bits[i]) * hash_factor;
        hash ^= hash >> hash_shift; // the low bits of most coordinates are zeros
    }
    return static_cast<std::size_t>(hash);
}

CBezierControls CBezierFitCache::Fit(std::span<CDigiPoint const> points)
{
    if (points.size() > longest_run)
        return FitBezier(points);

    Run run = {points.size(), {}};
    std::uint64_t * bits = run.bits.data();
    for (CDigiPoint const & point : points)
    {
        *bits++ = std::bit_cast<std::uint64_t>(point.x);
        *bits++ = std::bit_cast<std::uint64_t>(point.y);
    }
    auto const kept = m_curves.find(run);
    if (kept != m_curves.end())
        return kept->second;

    if (m_curves.size() >= limit)
        m_curves.clear();
    CBezierControls const controls = FitBezier(points);
    m_curves.emplace(run, controls);
    return controls;
}
} // namespace DigiStatic
