#include "logic/Spectrogram.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>
#include <utility>

namespace workbench
{

namespace
{

constexpr std::uint32_t windows_per_second = 50;
constexpr std::size_t least_window = 64;
constexpr std::size_t greatest_window = 8192;
constexpr std::size_t longest_window = 32768; // that can be wished for
constexpr std::size_t samples_per_step = 32768;

/// a * b / c without overflow, for b up to c.
std::uint64_t Scale(std::uint64_t a, std::uint64_t b, std::uint64_t c)
{
    return a / c * b + a % c * b / c;
}

/// The points that fall on place `at` of `places`, both ends within; at least one.
std::pair<std::size_t, std::size_t> PointsOf(std::size_t at, std::size_t places, std::size_t points)
{
    std::size_t const first = at * points / places;
    std::size_t const end = (at + 1) * points / places;
    return {first, std::max(end, first + 1) - 1};
}

} // namespace

int ScaleEntry(double decibels)
{
    double const entry = std::floor((decibels - lowest_scale_level) / decibels_per_entry);
    return static_cast<int>(std::clamp(entry, 0.0, static_cast<double>(scale_entries - 1)));
}

std::size_t SpectrogramWindow(std::uint32_t sampleRate)
{
    return std::clamp(std::bit_ceil(std::size_t{sampleRate} / windows_per_second), least_window, greatest_window);
}

SpectrogramSettings CheckedSpectrogramSettings(SpectrogramSettings settings, std::uint32_t sampleRate)
{
    if (!std::has_single_bit(settings.window) || settings.window < least_window || settings.window > longest_window)
    {
        settings.window = SpectrogramWindow(sampleRate);
    }
    if (settings.overlap != 0 && settings.overlap != 75 && settings.overlap != 87)
    {
        settings.overlap = 50;
    }
    return settings;
}

double Spectrogram::Frequency(std::size_t row) const
{
    return m_rows > 1 ? m_sampleRate / 2.0 * static_cast<double>(row) / static_cast<double>(m_rows - 1) : 0.0;
}

int Spectrogram::Entry(std::size_t column, std::size_t row) const
{
    return column < m_columns && row < m_rows ? m_entries[column * m_rows + row] : 0;
}

std::size_t Spectrogram::ColumnOfFrame(std::uint64_t frame) const
{
    if (m_columns == 0)
    {
        return 0;
    }
    std::size_t const window = std::min((frame - std::min(frame, m_first)) / m_hop, m_windows - 1);
    return static_cast<std::size_t>(Scale(window, m_columns, m_windows));
}

std::uint8_t Spectrogram::Highest(std::size_t firstColumn, std::size_t lastColumn, std::size_t firstRow,
                                  std::size_t lastRow) const
{
    std::uint8_t highest = 0;
    for (std::size_t column = firstColumn; column <= lastColumn; ++column)
    {
        unsigned char const * const entries = m_entries.data() + column * m_rows;
        highest = std::max(highest, *std::max_element(entries + firstRow, entries + lastRow + 1));
    }
    return highest;
}

std::vector<std::uint8_t> Spectrogram::Picture(std::size_t width, std::size_t height) const
{
    return Picture(width, height, Stretch(), FrequencyScale::linear);
}

std::vector<std::uint8_t> Spectrogram::Picture(std::size_t width, std::size_t height, FrameRange const & stretch,
                                               FrequencyScale scale) const
{
    if (m_columns == 0)
    {
        return {};
    }
    std::vector<std::pair<std::size_t, std::size_t>> rows; // of each line of the picture, from the lowest up
    for (std::size_t line = 0; line < height; ++line)
    {
        if (scale == FrequencyScale::linear)
        {
            rows.push_back(PointsOf(line, height, m_rows));
            continue;
        }
        auto const rowAt = [&](std::size_t edge) {
            double const hertz =
                FrequencyAt(scale, m_sampleRate / 2.0, static_cast<double>(edge) / static_cast<double>(height));
            return hertz / (m_sampleRate / 2.0) * static_cast<double>(m_rows - 1);
        };
        auto const last = static_cast<double>(m_rows - 1);
        auto const first = static_cast<std::size_t>(std::clamp(std::round(rowAt(line)), 0.0, last));
        auto const end = static_cast<std::size_t>(std::clamp(std::round(rowAt(line + 1)), 0.0, last));
        rows.emplace_back(first, end > first ? end - 1 : first);
    }
    std::vector<std::uint8_t> picture(width * height);
    for (std::size_t x = 0; x < width; ++x)
    {
        // By frames, since the last window may reach beyond the end.
        std::size_t const firstFrame = stretch.first + Scale(stretch.Length(), x, width);
        std::size_t const endFrame = std::max(stretch.first + Scale(stretch.Length(), x + 1, width), firstFrame + 1);
        if (endFrame <= m_first || firstFrame >= m_first + m_frames)
        {
            continue;
        }
        std::size_t const firstColumn = ColumnOfFrame(firstFrame);
        std::size_t const lastColumn = ColumnOfFrame(endFrame - 1);
        for (std::size_t line = 0; line < height; ++line)
        {
            auto const [firstRow, lastRow] = rows[line];
            picture[(height - 1 - line) * width + x] = Highest(firstColumn, lastColumn, firstRow, lastRow);
        }
    }
    return picture;
}

SpectrogramBuilder::SpectrogramBuilder(std::size_t channels, std::uint32_t sampleRate, std::uint64_t frames,
                                       SpectrogramSettings const & settings, std::uint64_t first)
    : m_channels(std::max<std::size_t>(channels, 1)),
      m_lanes(std::min(m_channels, maximum_channels)),
      m_fft(CheckedSpectrogramSettings(settings, sampleRate).window)
{
    if (sampleRate == 0 || frames == 0)
    {
        return;
    }
    std::size_t const size = m_fft.Size();
    m_result.m_sampleRate = sampleRate;
    m_result.m_first = first;
    m_result.m_frames = frames;
    auto const overlap = static_cast<std::size_t>(CheckedSpectrogramSettings(settings, sampleRate).overlap);
    // 87 stands for seven eighths.
    m_result.m_hop = overlap == 87 ? size / 8 : size * (100 - overlap) / 100;
    m_result.m_windows = (frames - 1) / m_result.m_hop + 1;
    m_result.m_columns =
        static_cast<std::size_t>(std::min<std::uint64_t>(m_result.m_windows, Spectrogram::maximum_columns));
    m_result.m_rows = size / 2 + 1;
    m_result.m_entries.resize(m_result.m_columns * m_result.m_rows);

    double sum = 0.0;
    for (std::size_t i = 0; i < size; ++i)
    {
        auto const angle = 2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(size);
        double const weight = 0.5 - 0.5 * std::cos(angle);
        m_weights.push_back(static_cast<float>(weight));
        sum += weight;
    }
    m_fullScalePower = static_cast<float>(sum * sum / 4.0);

    // A window's middle is the stretch that it stands for; what lies before the start is silence.
    m_filled = (size - static_cast<std::size_t>(m_result.m_hop)) / 2;
    m_samples.assign(m_lanes, std::vector<float>(size));
    m_framesLeft = frames;
    m_real.resize(size);
    m_imaginary.resize(size);
    m_power.resize(m_result.m_rows);
    m_firstPower.resize(m_result.m_rows);
    m_secondPower.resize(m_result.m_rows);
}

void SpectrogramBuilder::Add(std::span<double const> samples)
{
    auto frames = std::min<std::uint64_t>(samples.size() / m_channels, m_framesLeft);
    m_framesLeft -= frames;
    double const * from = samples.data();
    while (frames > 0)
    {
        auto const count = static_cast<std::size_t>(std::min<std::uint64_t>(frames, m_fft.Size() - m_filled));
        for (std::size_t lane = 0; lane < m_lanes; ++lane)
        {
            float * const to = m_samples[lane].data() + m_filled;
            for (std::size_t i = 0; i < count; ++i)
            {
                to[i] = static_cast<float>(from[i * m_channels + lane]);
            }
        }
        from += count * m_channels;
        frames -= count;
        m_filled += count;
        if (m_filled == m_fft.Size())
        {
            TransformWindows();
        }
    }
}

void SpectrogramBuilder::TransformWindows()
{
    auto const hop = static_cast<std::size_t>(m_result.m_hop);
    for (std::vector<float> & samples : m_samples)
    {
        Take(samples, m_nextWindow);
        std::copy(samples.begin() + static_cast<std::ptrdiff_t>(hop), samples.end(), samples.begin());
    }
    m_filled = m_fft.Size() - hop;
    ++m_nextWindow;
}

void SpectrogramBuilder::Take(std::span<float const> samples, std::uint64_t window)
{
    std::vector<float> & part = m_waiting ? m_imaginary : m_real;
    for (std::size_t i = 0; i < samples.size(); ++i)
    {
        part[i] = samples[i] * m_weights[i];
    }
    if (!m_waiting)
    {
        m_waiting = window;
        return;
    }
    m_second = window;
    TransformPair(true);
}

void SpectrogramBuilder::TransformPair(bool both)
{
    if (!both)
    {
        std::fill(m_imaginary.begin(), m_imaginary.end(), 0.0F);
    }
    m_fft.Transform(m_real, m_imaginary);
    std::size_t const size = m_fft.Size();
    for (std::size_t row = 0; row < m_result.m_rows; ++row)
    {
        // The even part of the transform is the real signal's, the odd part the imaginary one's.
        std::size_t const mirror = (size - row) % size;
        float const evenReal = m_real[row] + m_real[mirror];
        float const evenImaginary = m_imaginary[row] - m_imaginary[mirror];
        float const oddReal = m_real[row] - m_real[mirror];
        float const oddImaginary = m_imaginary[row] + m_imaginary[mirror];
        m_firstPower[row] = (evenReal * evenReal + evenImaginary * evenImaginary) / 4.0F;
        m_secondPower[row] = (oddReal * oddReal + oddImaginary * oddImaginary) / 4.0F;
    }
    Raise(*m_waiting, m_firstPower);
    if (both)
    {
        Raise(m_second, m_secondPower);
    }
    m_waiting.reset();
}

void SpectrogramBuilder::Raise(std::uint64_t window, std::span<float const> power)
{
    auto const column = static_cast<std::size_t>(Scale(window, m_result.m_columns, m_result.m_windows));
    if (column != m_column)
    {
        FinishColumn();
        m_column = column;
    }
    for (std::size_t row = 0; row < power.size(); ++row)
    {
        m_power[row] = std::max(m_power[row], power[row]);
    }
}

void SpectrogramBuilder::FinishColumn()
{
    for (std::size_t row = 0; row < m_result.m_rows; ++row)
    {
        // Silence is minus infinity, which falls on the lowest entry.
        double const level = 10.0 * std::log10(m_power[row] / m_fullScalePower);
        m_result.m_entries[m_column * m_result.m_rows + row] = static_cast<std::uint8_t>(ScaleEntry(level));
        m_power[row] = 0.0F;
    }
}

Spectrogram SpectrogramBuilder::Finish()
{
    if (m_result.m_columns > 0)
    {
        // Silence up to the end of the last window that has samples.
        std::size_t const reached = m_result.m_frames - m_framesLeft;
        while (m_nextWindow * m_result.m_hop < reached)
        {
            for (std::vector<float> & samples : m_samples)
            {
                std::fill(samples.begin() + static_cast<std::ptrdiff_t>(m_filled), samples.end(), 0.0F);
            }
            TransformWindows();
        }
        if (m_waiting)
        {
            TransformPair(false);
        }
        FinishColumn();
    }
    return std::exchange(m_result, {});
}

SpectrogramAnalyser::SpectrogramAnalyser(std::unique_ptr<ByteSource> source, SpectrogramSettings const & settings,
                                         std::optional<FrameRange> const & stretch)
{
    auto opened = WavReader::Open(std::move(source));
    if (auto const * const problem = std::get_if<ReadProblem>(&opened))
    {
        m_problem = *problem;
        return;
    }
    m_reader.emplace(std::move(std::get<WavReader>(opened)));
    RecordingInfo const & info = m_reader->Info();
    FrameRange read{0, info.frames};
    if (stretch)
    {
        std::uint64_t const around = CheckedSpectrogramSettings(settings, info.sampleRate).window;
        read.first = std::min(stretch->first - std::min(stretch->first, around), info.frames);
        read.end = std::clamp(stretch->end + around, read.first, info.frames);
        m_reader->Seek(read.first);
    }
    m_framesWanted = read.Length();
    m_builder.emplace(info.channels, info.sampleRate, m_framesWanted, settings, read.first);
    m_samples.resize(std::max<std::size_t>(samples_per_step / info.channels, 1) * info.channels);
}

SpectrogramAnalyser::SpectrogramAnalyser(std::filesystem::path const & path, SpectrogramSettings const & settings,
                                         std::optional<FrameRange> const & stretch)
    : SpectrogramAnalyser(std::unique_ptr<ByteSource>(FileByteSource::Open(path)), settings, stretch)
{
}

bool SpectrogramAnalyser::Step()
{
    if (!m_reader)
    {
        return false;
    }
    std::size_t const channels = m_reader->Info().channels;
    auto const left = std::min<std::uint64_t>(m_framesWanted - m_framesRead, m_samples.size() / channels);
    auto const frames = m_reader->ReadFrames(std::span(m_samples).first(static_cast<std::size_t>(left) * channels));
    m_framesRead += frames;
    m_builder->Add(std::span<double const>(m_samples).first(frames * channels));
    return frames > 0;
}

double SpectrogramAnalyser::Progress() const
{
    return m_framesWanted > 0 ? std::min(static_cast<double>(m_framesRead) / static_cast<double>(m_framesWanted), 1.0)
                              : 1.0;
}

Spectrogram SpectrogramAnalyser::Take()
{
    return m_builder ? m_builder->Finish() : Spectrogram();
}

} // namespace workbench
