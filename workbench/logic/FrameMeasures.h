#pragma once
// A recording in analysis frames: short stretches that follow one another closely, each with its levels and what its
// spectrum says.
//
// An analysis frame is called a row here, since a frame is a sample of each channel elsewhere. Row n stands for the
// point in time of n steps, 1 ms each if nothing else is wanted. Its measures are of a window around that point, of
// about 20 ms if nothing else is wanted: long enough for a frequency of 100 Hz and more, which a stretch of one step
// would not tell. At the recording's ends the window is moved inside.

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "logic/ByteSource.h"
#include "logic/Fft.h"
#include "logic/WavReader.h"

namespace workbench
{

/// How a recording is divided.
struct FrameSettings
{
    /// The samples of a window: a power of two from 64 to 32,768, or 0 for SpectrogramWindow. Others count as 0.
    std::size_t window = 0;
    /// From one row to the next, in microseconds; 0 counts as 1 ms.
    std::uint32_t step = 1000;

    bool operator==(FrameSettings const &) const = default;
};

/// Which sample frames rows stand for.
class FrameRaster
{
public:
    /// No further rows: a longer step takes the place of one that would give more.
    static constexpr std::uint64_t most_rows = 100'000'000;

    FrameRaster() = default;
    FrameRaster(std::uint32_t sampleRate, std::uint64_t frames, std::uint32_t step);

    std::uint32_t SampleRate() const { return static_cast<std::uint32_t>(m_rate); }
    /// 0 without samples or sample rate.
    std::uint64_t Rows() const { return m_rows; }
    /// The sample frame for whose time a row stands.
    std::uint64_t FrameOf(std::uint64_t row) const { return Scaled(row, m_microseconds * m_rate, 1'000'000); }
    /// The row nearest to a sample frame; the last one for what lies behind it, 0 if there is none.
    std::uint64_t RowAt(std::uint64_t frame) const;
    /// In seconds.
    double TimeOf(std::uint64_t row) const { return static_cast<double>(row * m_microseconds) / 1e6; }

private:
    /// a * b / c without overflow.
    static std::uint64_t Scaled(std::uint64_t a, std::uint64_t b, std::uint64_t c)
    {
        return a / c * b + a % c * (b / c) + a % c * (b % c) / c;
    }

    std::uint64_t m_rate = 0;
    std::uint64_t m_microseconds = 1000; ///< a step
    std::uint64_t m_rows = 0;
};

/// What is known of a row, in 16 bytes.
struct FrameMeasures
{
    static constexpr float unknown = std::numeric_limits<float>::quiet_NaN();

    float peak = 0; ///< the greatest amplitude of all channels
    float rms = 0;  ///< of all channels together
    /// The strongest frequency of all channels together, in Hz, without a constant part; unknown for silence and for
    /// recordings shorter than the window.
    float frequency = unknown;
    /// The mean of all frequencies, weighted by their power; unknown likewise.
    float centroid = unknown;
};

/// Measures rows of samples that come piece by piece. Its memory does not depend on the recording's length.
class FrameMeter
{
public:
    /// Channels beyond this many are left out.
    static constexpr std::size_t maximum_channels = 32;

    /// For so many frames of so many channels.
    FrameMeter(std::uint32_t sampleRate, std::size_t channels, std::uint64_t frames, FrameSettings const & settings);

    FrameRaster const & Raster() const { return m_raster; }
    /// The samples of a window.
    std::size_t Window() const { return m_fft.Size(); }

    /// Adds whole frames, channels interleaved, finite numbers, and appends the rows that are known by then.
    void Add(std::span<double const> samples, std::vector<FrameMeasures> & rows);

    /// Appends the rows that are left; those that fewer frames than announced stand for alone.
    void Finish(std::vector<FrameMeasures> & rows);

private:
    std::uint64_t StartOf(std::uint64_t row) const;
    FrameMeasures Weigh(std::uint64_t start, std::size_t lane, std::span<float> weighted) const;
    void Take(std::uint64_t row, bool both, std::vector<FrameMeasures> & rows);
    void AddPowers(bool both);
    void Describe(FrameMeasures & row, std::span<float const> power) const;
    void Forget();

    FrameRaster m_raster;
    std::uint64_t m_rate;
    std::uint64_t m_frames;
    std::size_t m_channels;
    Fft m_fft;
    std::vector<float> m_weights;
    std::vector<std::vector<float>> m_lanes; ///< the last samples of each channel
    std::uint64_t m_first = 0;               ///< the frame of their first one
    std::uint64_t m_nextRow = 0;
    // Two rows are transformed at once, one as the real part and one as the imaginary part.
    std::vector<float> m_real;
    std::vector<float> m_imaginary;
    std::vector<float> m_firstPower;
    std::vector<float> m_secondPower;
};

/// The rows of a recording, which one thread appends while others read: nobody waits.
class FrameStore
{
public:
    FrameStore() = default;
    FrameStore(FrameStore const &) = delete;
    FrameStore & operator=(FrameStore const &) = delete;

    /// The rows there are by now.
    std::size_t Size() const { return m_size.load(std::memory_order_acquire); }
    /// Of a row that there is.
    FrameMeasures At(std::size_t row) const { return (*m_chunks[row / chunk_rows])[row % chunk_rows]; }
    /// Which frames rows stand for; known as soon as there is one.
    FrameRaster const & Raster() const { return m_raster; }

    /// Of the writing thread alone, before it appends.
    void SetRaster(FrameRaster const & raster) { m_raster = raster; }
    void Append(std::span<FrameMeasures const> rows);
    /// In bytes.
    std::size_t Memory() const;

private:
    static constexpr std::size_t chunk_rows = 65536;
    using Chunk = std::array<FrameMeasures, chunk_rows>;

    FrameRaster m_raster;
    std::array<std::unique_ptr<Chunk>, FrameRaster::most_rows / chunk_rows + 1> m_chunks;
    std::atomic<std::size_t> m_size = 0;
};

/// Gives the bytes of a recording; null where they cannot be had. Called on any thread.
using OpenBytes = std::function<std::unique_ptr<ByteSource>()>;

/// Reads a recording once, from front to end, in steps of a few milliseconds, and gives its rows.
class FrameAnalyser
{
public:
    explicit FrameAnalyser(std::unique_ptr<ByteSource> source, FrameSettings const & settings = {});

    /// Measures the next samples and appends their rows. False when everything is read; to be called until then.
    bool Step(std::vector<FrameMeasures> & rows);

    /// The part that is done, 0.0 to 1.0.
    double Progress() const;
    /// Why the recording cannot be read.
    std::optional<ReadProblem> const & Problem() const { return m_problem; }
    /// What the header says; all zero with a problem.
    RecordingInfo Info() const { return m_reader ? m_reader->Info() : RecordingInfo(); }
    /// Whether there were as many frames as the header announces, by now.
    bool IsWhole() const { return m_reader && m_framesRead == Info().announcedFrames; }
    FrameRaster Raster() const { return m_meter ? m_meter->Raster() : FrameRaster(); }

private:
    std::optional<ReadProblem> m_problem;
    std::optional<WavReader> m_reader;
    std::optional<FrameMeter> m_meter;
    std::vector<double> m_samples;
    std::uint64_t m_framesRead = 0;
};

} // namespace workbench
