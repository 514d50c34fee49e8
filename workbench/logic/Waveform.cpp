#include "logic/Waveform.h"

#include <algorithm>
#include <utility>

namespace workbench
{

namespace
{

MinMax Union(MinMax a, MinMax b)
{
    return {std::min(a.least, b.least), std::max(a.greatest, b.greatest)};
}

/// Each pair of buckets as one; an odd one at the end stays as it is.
std::vector<MinMax> Halve(std::vector<MinMax> const & buckets)
{
    std::vector<MinMax> result;
    result.reserve((buckets.size() + 1) / 2);
    for (std::size_t i = 0; i < buckets.size(); i += 2)
    {
        result.push_back(i + 1 < buckets.size() ? Union(buckets[i], buckets[i + 1]) : buckets[i]);
    }
    return result;
}

} // namespace

std::size_t Waveform::Bytes() const
{
    std::size_t bytes = 0;
    for (auto const & levels : m_lanes)
    {
        bytes += sizeof(decltype(m_lanes)::value_type);
        for (std::vector<MinMax> const & level : levels)
        {
            bytes += sizeof(decltype(m_lanes)::value_type::value_type) + level.capacity() * sizeof(MinMax);
        }
    }
    return bytes;
}

MinMax Waveform::Range(std::size_t lane, std::uint64_t first, std::uint64_t end) const
{
    if (lane >= m_lanes.size() || first >= m_frames)
    {
        return {};
    }
    std::size_t const last = std::min(std::max(end, first + 1), m_frames) - 1;
    auto from = static_cast<std::size_t>(first / m_framesPerBucket);
    auto to = static_cast<std::size_t>(last / m_framesPerBucket) + 1;
    MinMax result = m_lanes[lane][0][from];
    for (std::vector<MinMax> const & level : m_lanes[lane])
    {
        if (from >= to)
        {
            break;
        }
        if (from % 2 == 1)
        {
            result = Union(result, level[from++]);
        }
        if (to % 2 == 1)
        {
            result = Union(result, level[--to]);
        }
        from /= 2;
        to /= 2;
    }
    return result;
}

std::vector<MinMax> Waveform::Columns(std::size_t lane, std::size_t width) const
{
    return Columns(lane, width, {0, m_frames});
}

std::vector<MinMax> Waveform::Columns(std::size_t lane, std::size_t width, FrameRange const & range) const
{
    std::vector<MinMax> columns(width);
    // Whole frames and the remainder apart, so that the product below stays small.
    std::size_t const whole = width > 0 ? range.Length() / width : 0;
    std::size_t const remainder = width > 0 ? range.Length() % width : 0;
    auto const edge = [&](std::size_t column) { return range.first + column * whole + column * remainder / width; };
    for (std::size_t column = 0; column < width; ++column)
    {
        columns[column] = Range(lane, edge(column), edge(column + 1));
    }
    return columns;
}

WaveformBuilder::WaveformBuilder(std::size_t channels, std::size_t mostBuckets)
    : m_channels(std::max<std::size_t>(channels, 1)),
      m_mostBuckets(std::max<std::size_t>(mostBuckets / 2 * 2, 2)),
      m_buckets(std::min(m_channels, maximum_lanes))
{
}

void WaveformBuilder::StartBucket()
{
    if (m_buckets[0].size() == m_mostBuckets)
    {
        for (std::vector<MinMax> & lane : m_buckets)
        {
            lane = Halve(lane);
        }
        m_framesPerBucket *= 2;
    }
    m_framesInBucket = 0;
}

void WaveformBuilder::Add(std::span<double const> samples)
{
    for (std::size_t i = 0; i + m_channels <= samples.size(); i += m_channels)
    {
        if (m_framesInBucket == 0 || m_framesInBucket == m_framesPerBucket)
        {
            StartBucket();
        }
        for (std::size_t lane = 0; lane < m_buckets.size(); ++lane)
        {
            auto const value = static_cast<float>(samples[i + lane]);
            if (m_framesInBucket == 0)
            {
                m_buckets[lane].push_back({value, value});
            }
            else
            {
                m_buckets[lane].back() = Union(m_buckets[lane].back(), {value, value});
            }
        }
        ++m_framesInBucket;
        ++m_frames;
    }
}

Waveform WaveformBuilder::Finish()
{
    Waveform waveform;
    waveform.m_frames = m_frames;
    waveform.m_framesPerBucket = m_framesPerBucket;
    for (std::vector<MinMax> & buckets : m_buckets)
    {
        auto & levels = waveform.m_lanes.emplace_back();
        levels.push_back(std::move(buckets));
        levels.back().shrink_to_fit();
        while (levels.back().size() > 1)
        {
            levels.push_back(Halve(levels.back()));
        }
    }
    *this = WaveformBuilder(m_channels, m_mostBuckets);
    return waveform;
}

} // namespace workbench
