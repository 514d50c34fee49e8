#pragma once
// The overview of a recording: least and greatest sample of any stretch of it, for any width in pixels.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "logic/TimeWindow.h"

namespace workbench
{

/// Least and greatest sample of a stretch, full scale at 1.0.
struct MinMax
{
    float least = 0.0F;
    float greatest = 0.0F;

    bool operator==(MinMax const &) const = default;
};

/// The overview. It keeps buckets of equal length and, above them, their pairwise unions, so that a stretch is looked
/// up in logarithmic time.
class Waveform
{
public:
    /// An overview of no lanes.
    Waveform() = default;

    /// The number of lanes: one for each channel, up to `WaveformBuilder::maximum_lanes`.
    std::size_t Lanes() const { return m_lanes.size(); }

    /// The number of frames.
    std::uint64_t Frames() const { return m_frames; }

    /// The frames of one bucket. Stretches are widened to whole buckets; 1 means that they are exact.
    std::uint64_t FramesPerBucket() const { return m_framesPerBucket; }

    /// The memory that its buckets take.
    std::size_t Bytes() const;

    /// Least and greatest sample of the frames from `first` up to and without `end`, widened to whole buckets. An
    /// empty stretch is taken as the one frame at `first`. Zeros for a lane or frames that do not exist.
    MinMax Range(std::size_t lane, std::uint64_t first, std::uint64_t end) const;

    /// One range for each of `width` pixel columns: column c covers the frames from c * frames / width on, up to the
    /// next column's, and at least one.
    std::vector<MinMax> Columns(std::size_t lane, std::size_t width) const;

    /// The same of a stretch. Frames beyond the end are not there.
    std::vector<MinMax> Columns(std::size_t lane, std::size_t width, FrameRange const & range) const;

    bool operator==(Waveform const &) const = default;

private:
    friend class WaveformBuilder;

    using Level = std::vector<MinMax>;

    std::vector<std::vector<Level>> m_lanes;
    std::uint64_t m_frames = 0;
    std::uint64_t m_framesPerBucket = 1;
};

/// Builds an overview from front to end, without knowing the length beforehand. Memory is bounded: when the buckets of
/// a lane are used up, each pair becomes one of twice the length.
class WaveformBuilder
{
public:
    /// Channels beyond this many get no lane.
    static constexpr std::size_t maximum_lanes = 32;

    /// The most buckets of a lane, where nothing else is said; even.
    static constexpr std::size_t maximum_buckets = 32768;

    /// A builder for frames of so many channels, at least 1. The most buckets of a lane are even, at least 2.
    explicit WaveformBuilder(std::size_t channels, std::size_t mostBuckets = maximum_buckets);

    /// Adds whole frames, channels interleaved; samples behind the last whole frame are left out.
    void Add(std::span<double const> samples);

    /// Gives the overview of everything added and leaves the builder empty.
    Waveform Finish();

private:
    void StartBucket();

    std::size_t m_channels;
    std::size_t m_mostBuckets;
    std::vector<std::vector<MinMax>> m_buckets;
    std::uint64_t m_frames = 0;
    std::uint64_t m_framesPerBucket = 1;
    std::uint64_t m_framesInBucket = 0;
};

} // namespace workbench
