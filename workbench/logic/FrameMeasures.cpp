#include "logic/FrameMeasures.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>
#include <utility>

#include "logic/Spectrogram.h"

namespace workbench
{

namespace
{

constexpr std::size_t frames_per_step = 2048;
constexpr std::size_t least_forgotten = 32768; // frames that are let go of at once

std::size_t CheckedWindow(std::size_t window, std::uint32_t sampleRate)
{
    return CheckedSpectrogramSettings({window, 0}, sampleRate).window;
}

/// Sums that do not wait for one another, so that the processor works on several at once.
template <class Value> class Sums
{
public:
    static constexpr std::size_t count = 8;

    Value & operator[](std::size_t i) { return m_sums[i]; }
    Value Total() const
    {
        return (m_sums[0] + m_sums[1] + (m_sums[2] + m_sums[3])) + (m_sums[4] + m_sums[5] + (m_sums[6] + m_sums[7]));
    }
    Value Greatest() const { return *std::max_element(m_sums.begin(), m_sums.end()); }

private:
    std::array<Value, count> m_sums{};
};

} // namespace

FrameRaster::FrameRaster(std::uint32_t sampleRate, std::uint64_t frames, std::uint32_t step)
    : m_rate(sampleRate),
      m_microseconds(step > 0 ? step : FrameSettings().step)
{
    if (sampleRate == 0 || frames == 0)
    {
        return;
    }
    // Each row has a frame of its own.
    std::uint64_t const last = Scaled(frames - 1, 1'000'000, m_rate); // in microseconds
    m_microseconds = std::max({m_microseconds, (999'999 + m_rate) / m_rate, last / (most_rows - 1) + 1});
    m_rows = last / m_microseconds + 1;
}

std::uint64_t FrameRaster::RowAt(std::uint64_t frame) const
{
    if (m_rows == 0)
    {
        return 0;
    }
    std::size_t const below = std::min(Scaled(frame, 1'000'000, m_rate) / m_microseconds, m_rows - 1);
    auto const isNearer = [&](std::uint64_t row) {
        return row < m_rows && FrameOf(row) <= frame + (frame - FrameOf(below));
    };
    // The time of a row can lie between two frames: then its frame is the one before.
    return FrameOf(below) < frame && isNearer(below + 1) ? below + 1 : below;
}

FrameMeter::FrameMeter(std::uint32_t sampleRate, std::size_t channels, std::uint64_t frames,
                       FrameSettings const & settings)
    : m_raster(sampleRate, frames, settings.step),
      m_rate(sampleRate),
      m_frames(frames),
      m_channels(std::max<std::size_t>(channels, 1)),
      m_fft(CheckedWindow(settings.window, sampleRate)),
      m_lanes(std::min(m_channels, maximum_channels)),
      m_real(m_fft.Size()),
      m_imaginary(m_fft.Size()),
      m_firstPower(m_fft.Size() / 2),
      m_secondPower(m_fft.Size() / 2)
{
    for (std::size_t i = 0; i < Window(); ++i)
    {
        auto const angle = 2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(Window());
        m_weights.push_back(static_cast<float>(0.5 - 0.5 * std::cos(angle)));
    }
}

/// The first frame of a row's window.
std::uint64_t FrameMeter::StartOf(std::uint64_t row) const
{
    std::uint64_t const middle = m_raster.FrameOf(row);
    std::size_t const half = Window() / 2;
    return std::min(middle - std::min<std::uint64_t>(middle, half),
                    m_frames - std::min<std::uint64_t>(m_frames, Window()));
}

void FrameMeter::Add(std::span<double const> samples, std::vector<FrameMeasures> & rows)
{
    auto const frames = static_cast<std::size_t>(std::min<std::uint64_t>(
        samples.size() / m_channels, m_frames - std::min(m_frames, m_first + m_lanes.front().size())));
    for (std::size_t lane = 0; lane < m_lanes.size(); ++lane)
    {
        std::vector<float> & values = m_lanes[lane];
        for (std::size_t frame = 0; frame < frames; ++frame)
        {
            values.push_back(static_cast<float>(samples[frame * m_channels + lane]));
        }
    }
    std::size_t const known = m_first + m_lanes.front().size();
    if (m_frames >= Window())
    {
        while (m_nextRow + 1 < m_raster.Rows() && StartOf(m_nextRow + 1) + Window() <= known)
        {
            Take(m_nextRow, true, rows);
            m_nextRow += 2;
        }
    }
    Forget();
}

void FrameMeter::Finish(std::vector<FrameMeasures> & rows)
{
    m_frames = std::min(m_frames, m_first + m_lanes.front().size());
    while (m_nextRow < m_raster.Rows() && m_raster.FrameOf(m_nextRow) < m_frames)
    {
        bool const both = m_nextRow + 1 < m_raster.Rows() && m_raster.FrameOf(m_nextRow + 1) < m_frames;
        Take(m_nextRow, both, rows);
        m_nextRow += both ? 2 : 1;
    }
    m_nextRow = m_raster.Rows();
}

/// Lets go of frames that no row needs any more, also if the recording ends here.
void FrameMeter::Forget()
{
    std::size_t const size = m_lanes.front().size();
    std::size_t const known = m_first + size;
    std::size_t const keepFrom = std::min(m_nextRow < m_raster.Rows() ? StartOf(m_nextRow) : known,
                                          known - std::min<std::uint64_t>(known, Window()));
    if (keepFrom < m_first + std::max(least_forgotten, Window()))
    {
        return;
    }
    for (std::vector<float> & values : m_lanes)
    {
        values.erase(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(keepFrom - m_first));
    }
    m_first = keepFrom;
}

/// Puts a channel's samples from a frame on, without their mean, into what is transformed. Gives their peak, and the
/// mean of their squares in place of the RMS value.
FrameMeasures FrameMeter::Weigh(std::uint64_t start, std::size_t lane, std::span<float> weighted) const
{
    std::vector<float> const & values = m_lanes[lane];
    auto const from = static_cast<std::size_t>(start - m_first);
    std::size_t const count = std::min(Window(), values.size() - from);
    float const * const samples = values.data() + from;
    Sums<float> peaks;
    Sums<double> sums;
    Sums<double> squares;
    for (std::size_t i = 0; i + Sums<float>::count <= count; i += Sums<float>::count)
    {
        for (std::size_t k = 0; k < Sums<float>::count; ++k)
        {
            float const sample = samples[i + k];
            peaks[k] = std::max(peaks[k], std::abs(sample));
            sums[k] += static_cast<double>(sample);
            squares[k] += static_cast<double>(sample) * static_cast<double>(sample);
        }
    }
    for (std::size_t i = count - count % Sums<float>::count; i < count; ++i)
    {
        peaks[0] = std::max(peaks[0], std::abs(samples[i]));
        sums[0] += static_cast<double>(samples[i]);
        squares[0] += static_cast<double>(samples[i]) * static_cast<double>(samples[i]);
    }
    FrameMeasures row;
    row.peak = peaks.Greatest();
    row.rms = static_cast<float>(squares.Total() / static_cast<double>(std::max<std::size_t>(count, 1)));
    if (count == Window())
    {
        auto const mean = static_cast<float>(sums.Total() / static_cast<double>(count));
        for (std::size_t i = 0; i < count; ++i)
        {
            weighted[i] = (samples[i] - mean) * m_weights[i];
        }
    }
    return row;
}

/// Measures a row, or two.
void FrameMeter::Take(std::uint64_t row, bool both, std::vector<FrameMeasures> & rows)
{
    std::array<FrameMeasures, 2> measured;
    std::array<double, 2> squares{};
    bool const spectra = m_frames >= Window();
    std::ranges::fill(m_firstPower, 0.0F);
    std::ranges::fill(m_secondPower, 0.0F);
    for (std::size_t lane = 0; lane < m_lanes.size(); ++lane)
    {
        for (std::size_t which = 0; which < (both ? 2u : 1u); ++which)
        {
            FrameMeasures const own = Weigh(StartOf(row + which), lane, which == 0 ? m_real : m_imaginary);
            measured[which].peak = std::max(measured[which].peak, own.peak);
            squares[which] += static_cast<double>(own.rms);
        }
        if (!both)
        {
            std::ranges::fill(m_imaginary, 0.0F);
        }
        if (spectra)
        {
            m_fft.Transform(m_real, m_imaginary);
            AddPowers(both);
        }
    }
    for (std::size_t which = 0; which < (both ? 2u : 1u); ++which)
    {
        measured[which].rms = static_cast<float>(std::sqrt(squares[which] / static_cast<double>(m_lanes.size())));
        Describe(measured[which], which == 0 ? m_firstPower : m_secondPower);
        rows.push_back(measured[which]);
    }
}

/// Tells the spectra of both parts apart. All powers are four times as large, which does not matter.
void FrameMeter::AddPowers(bool both)
{
    std::size_t const half = Window() / 2;
    float const * const real = m_real.data();
    float const * const imaginary = m_imaginary.data();
    float const * const realBack = real + Window();
    float const * const imaginaryBack = imaginary + Window();
    float * const first = m_firstPower.data();
    float * const second = m_secondPower.data();
    for (std::size_t i = 1; i < half; ++i)
    {
        float const x = real[i] + realBack[-static_cast<std::ptrdiff_t>(i)];
        float const y = imaginary[i] - imaginaryBack[-static_cast<std::ptrdiff_t>(i)];
        first[i] += x * x + y * y;
    }
    for (std::size_t i = 1; both && i < half; ++i)
    {
        float const x = imaginary[i] + imaginaryBack[-static_cast<std::ptrdiff_t>(i)];
        auto const y = realBack[-static_cast<std::ptrdiff_t>(i)] - real[i];
        second[i] += x * x + y * y;
    }
}

/// What the powers of a row's frequencies say.
void FrameMeter::Describe(FrameMeasures & row, std::span<float const> power) const
{
    Sums<double> all;
    Sums<double> weighted;
    Sums<float> greatest;
    // Entry 0, the constant part, is none; the number of entries is a multiple of eight.
    for (std::size_t i = 0; i < power.size(); i += Sums<float>::count)
    {
        for (std::size_t k = 0; k < Sums<float>::count; ++k)
        {
            auto const value = static_cast<double>(power[i + k]);
            all[k] += value;
            weighted[k] += value * static_cast<double>(i + k);
            greatest[k] = std::max(greatest[k], power[i + k]);
        }
    }
    double const sum = all.Total();
    if (!(sum > 0.0) || !std::isfinite(sum))
    {
        return;
    }
    auto const entryWidth = static_cast<double>(m_rate) / static_cast<double>(Window());
    row.centroid = static_cast<float>(weighted.Total() / sum * entryWidth);
    auto const strongest = static_cast<std::size_t>(std::ranges::find(power, greatest.Greatest()) - power.begin());
    // Of a tone between two entries, the raised cosine has these stand to each other as 1 + x to 2 - x.
    auto const before = strongest > 1 ? static_cast<double>(power[strongest - 1]) : 0.0;
    auto const after = strongest + 1 < power.size() ? static_cast<double>(power[strongest + 1]) : 0.0;
    auto const ratio = std::sqrt(std::max(before, after) / static_cast<double>(power[strongest]));
    double const beside = std::clamp((2.0 * ratio - 1.0) / (ratio + 1.0), 0.0, 0.5);
    row.frequency =
        static_cast<float>((static_cast<double>(strongest) + (after >= before ? beside : -beside)) * entryWidth);
}

void FrameStore::Append(std::span<FrameMeasures const> rows)
{
    std::size_t size = m_size.load(std::memory_order_relaxed);
    for (FrameMeasures const & row : rows)
    {
        if (size >= FrameRaster::most_rows)
        {
            break;
        }
        auto & chunk = m_chunks[size / chunk_rows];
        if (!chunk)
        {
            chunk = std::make_unique<Chunk>();
        }
        (*chunk)[size++ % chunk_rows] = row;
    }
    m_size.store(size, std::memory_order_release);
}

std::size_t FrameStore::Memory() const
{
    return sizeof(*this) + (Size() + chunk_rows - 1) / chunk_rows * sizeof(Chunk);
}

FrameAnalyser::FrameAnalyser(std::unique_ptr<ByteSource> source, FrameSettings const & settings)
{
    auto opened = WavReader::Open(std::move(source));
    if (auto const * const problem = std::get_if<ReadProblem>(&opened))
    {
        m_problem = *problem;
        return;
    }
    m_reader.emplace(std::move(std::get<WavReader>(opened)));
    RecordingInfo const & info = m_reader->Info();
    m_meter.emplace(info.sampleRate, info.channels, info.frames, settings);
    m_samples.resize(frames_per_step * std::max<std::size_t>(info.channels, 1));
}

bool FrameAnalyser::Step(std::vector<FrameMeasures> & rows)
{
    if (!m_reader)
    {
        return false;
    }
    std::size_t const frames = m_reader->ReadFrames(m_samples);
    m_framesRead += frames;
    if (frames == 0)
    {
        m_meter->Finish(rows);
        return false;
    }
    m_meter->Add(std::span(m_samples).first(frames * m_reader->Info().channels), rows);
    return true;
}

double FrameAnalyser::Progress() const
{
    std::uint64_t const frames = Info().frames;
    return frames > 0 ? static_cast<double>(m_framesRead) / static_cast<double>(frames) : 1.0;
}

} // namespace workbench
