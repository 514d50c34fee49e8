#pragma once
// The spectrogram of a recording: the level at each time and frequency, as an entry of a colour scale.
//
// Windows, of about 20 ms if nothing else is wanted, weighted with a raised cosine, follow one another at half their
// length, or closer. A point shows the
// loudest of the windows and channels that fall on it, so that a short click is not lost in a long recording. Levels
// are in dBFS of a sine: one of full scale, 1.0 in the samples, has 0 dBFS.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "logic/Axis.h"
#include "logic/Fft.h"
#include "logic/TimeWindow.h"
#include "logic/WavReader.h"

namespace workbench
{

/// The entries of a colour scale, from the lowest level to the highest.
constexpr int scale_entries = 32;

/// What one entry spans. The highest entry reaches up to 0 dBFS and beyond.
constexpr double decibels_per_entry = 3.0;

/// The lower end of the scale; all that is below falls on entry 0.
constexpr double lowest_scale_level = -scale_entries * decibels_per_entry;

/// The entry of a level in dBFS, 0 to `scale_entries - 1`.
int ScaleEntry(double decibels);

/// The samples of a window for a rate: a power of two.
std::size_t SpectrogramWindow(std::uint32_t sampleRate);

/// How a spectrogram is computed.
struct SpectrogramSettings
{
    /// The samples of a window: a power of two from 64 to 32,768, or 0 for SpectrogramWindow. Others count as 0.
    std::size_t window = 0;
    /// How much of a window the next one shares with it, in percent: 0, 50, 75 or 87. Others count as 50.
    int overlap = 50;

    bool operator==(SpectrogramSettings const &) const = default;
};

/// The settings with everything that is not allowed replaced.
SpectrogramSettings CheckedSpectrogramSettings(SpectrogramSettings settings, std::uint32_t sampleRate);

/// A finished spectrogram.
class Spectrogram
{
public:
    /// The most columns.
    static constexpr std::size_t maximum_columns = 2048;

    /// A spectrogram of nothing.
    Spectrogram() = default;

    /// The number of columns, from the start of what was computed to its end; 0 for one without samples or sample rate.
    std::size_t Columns() const { return m_columns; }

    /// The number of frequencies in a column, from 0 up to half the sample rate.
    std::size_t Rows() const { return m_rows; }

    /// The number of frames that were computed.
    std::uint64_t Frames() const { return m_frames; }

    /// The stretch of the recording that was computed.
    FrameRange Stretch() const { return {m_first, m_first + m_frames}; }

    /// Whether windows share columns, so that less of the recording would show more.
    bool IsCondensed() const { return m_windows > m_columns; }

    std::uint32_t SampleRate() const { return m_sampleRate; }

    /// The frequency of a row in hertz.
    double Frequency(std::size_t row) const;

    /// The scale's entry at a point; 0 outside.
    int Entry(std::size_t column, std::size_t row) const;

    /// The column on which a frame falls, the last one for frames behind the end.
    std::size_t ColumnOfFrame(std::uint64_t frame) const;

    /// A picture of `width` times `height` entries, the top line first: time runs over its whole width and frequency up
    /// its whole height. Where several points fall on one of the picture, the highest counts. Empty if there is nothing
    /// to show.
    std::vector<std::uint8_t> Picture(std::size_t width, std::size_t height) const;

    /// The same of a stretch of the recording; what of it was not computed is on entry 0.
    std::vector<std::uint8_t> Picture(std::size_t width, std::size_t height, FrameRange const & stretch,
                                      FrequencyScale scale) const;

private:
    friend class SpectrogramBuilder;

    /// The highest entry of a block of points; both ends are within.
    std::uint8_t Highest(std::size_t firstColumn, std::size_t lastColumn, std::size_t firstRow,
                         std::size_t lastRow) const;

    std::vector<std::uint8_t> m_entries; ///< column by column
    std::size_t m_columns = 0;
    std::size_t m_rows = 0;
    std::uint64_t m_first = 0; ///< of the recording's frames
    std::uint64_t m_windows = 0;
    std::uint64_t m_hop = 1; ///< frames from one window to the next
    std::uint64_t m_frames = 0;
    std::uint32_t m_sampleRate = 0;
};

/// Builds a spectrogram from front to end. Its memory does not depend on the recording's length.
class SpectrogramBuilder
{
public:
    /// Channels beyond this many are left out.
    static constexpr std::size_t maximum_channels = 32;

    /// A builder for so many frames of so many channels, at least 1. Without frames or sample rate the result is empty.
    SpectrogramBuilder(std::size_t channels, std::uint32_t sampleRate, std::uint64_t frames,
                       SpectrogramSettings const & settings = {}, std::uint64_t first = 0);

    /// Adds whole frames, channels interleaved, finite numbers; samples behind the last whole frame or the last frame
    /// announced are left out.
    void Add(std::span<double const> samples);

    /// Gives the spectrogram; frames that were announced and not added are silent. The builder is then used up.
    Spectrogram Finish();

private:
    void TransformWindows();
    void Take(std::span<float const> samples, std::uint64_t window);
    void TransformPair(bool both);
    void Raise(std::uint64_t window, std::span<float const> power);
    void FinishColumn();

    Spectrogram m_result;
    std::size_t m_channels;
    std::size_t m_lanes;
    Fft m_fft;
    std::vector<float> m_weights;
    float m_fullScalePower = 1.0F;             ///< what a sine of full scale has in its row
    std::vector<std::vector<float>> m_samples; ///< of each lane, what the next window has so far
    std::size_t m_filled = 0;
    std::uint64_t m_framesLeft = 0;
    std::uint64_t m_nextWindow = 0;
    // Two windows are transformed at once, one as the real part and one as the imaginary part.
    std::vector<float> m_real;
    std::vector<float> m_imaginary;
    std::optional<std::uint64_t> m_waiting; ///< the window in the real part
    std::uint64_t m_second = 0;             ///< the window in the imaginary part
    std::vector<float> m_firstPower;
    std::vector<float> m_secondPower;
    std::vector<float> m_power; ///< the highest of the current column
    std::size_t m_column = 0;
};

/// Reads a recording, or a stretch of it, once, from front to end, in steps, and gives its spectrogram.
class SpectrogramAnalyser
{
public:
    /// Opens the source, which may be null. Without a stretch, all of the recording is read; of one, as much as there
    /// is, and a window more on each side.
    explicit SpectrogramAnalyser(std::unique_ptr<ByteSource> source, SpectrogramSettings const & settings = {},
                                 std::optional<FrameRange> const & stretch = {});

    /// Opens a file.
    explicit SpectrogramAnalyser(std::filesystem::path const & path, SpectrogramSettings const & settings = {},
                                 std::optional<FrameRange> const & stretch = {});

    /// Takes the next samples, some 30,000 at a time. False when everything is read; to be called until then.
    bool Step();

    /// The part that is done, 0.0 to 1.0.
    double Progress() const;

    /// Why the recording cannot be read.
    std::optional<ReadProblem> const & Problem() const { return m_problem; }

    /// What the header says; all zero with a problem.
    RecordingInfo Info() const { return m_reader ? m_reader->Info() : RecordingInfo(); }

    /// The result, complete after `Step` gave false. It can be taken once.
    Spectrogram Take();

private:
    std::optional<ReadProblem> m_problem;
    std::optional<WavReader> m_reader;
    std::optional<SpectrogramBuilder> m_builder;
    std::vector<double> m_samples;
    std::uint64_t m_framesRead = 0;
    std::uint64_t m_framesWanted = 0;
};

} // namespace workbench
