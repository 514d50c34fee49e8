#include "logic/WaveformDetail.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

namespace workbench
{

namespace
{

constexpr std::size_t samples_per_step = 32768;

/// Whether the file still holds what was analysed.
bool IsSame(RecordingInfo const & now, RecordingInfo const & then)
{
    return now.frames == then.frames && now.channels == then.channels && now.sampleRate == then.sampleRate &&
           now.coding == then.coding && now.bytesPerSample == then.bytesPerSample;
}

std::optional<WavReader> OpenSame(std::filesystem::path const & path, RecordingInfo const & info)
{
    auto opened = WavReader::Open(std::unique_ptr<ByteSource>(FileByteSource::Open(path)));
    auto * const reader = std::get_if<WavReader>(&opened);
    return reader != nullptr && IsSame(reader->Info(), info) ? std::optional(std::move(*reader)) : std::nullopt;
}

std::size_t SamplesAtOnce(std::size_t channels)
{
    return std::max<std::size_t>(samples_per_step / channels, 1) * channels;
}

} // namespace

WaveformDetail::WaveformDetail(std::shared_ptr<RecordingAnalysis const> analysis, std::filesystem::path path,
                               std::function<void()> notify)
    : m_analysis(std::move(analysis)),
      m_path(std::move(path)),
      m_notify(std::move(notify)),
      m_unreadable(m_path.empty())
{
}

WaveformDetail::~WaveformDetail()
{
    m_stop = true;
    if (m_thread.joinable())
    {
        m_thread.join();
    }
}

std::vector<std::vector<MinMax>> WaveformDetail::Columns(FrameRange const & wanted, std::size_t width)
{
    std::uint64_t const frames = m_analysis->info.frames;
    FrameRange const range{std::min(wanted.first, frames), std::min(wanted.end, frames)};
    auto const from = [&](Waveform const & waveform) {
        m_coarseness = waveform.FramesPerBucket();
        std::vector<std::vector<MinMax>> lanes;
        for (std::size_t lane = 0; lane < waveform.Lanes(); ++lane)
        {
            lanes.push_back(waveform.Columns(lane, width, range));
        }
        return lanes;
    };
    Waveform const & overview = m_analysis->waveform;
    std::uint64_t const framesPerColumn = width > 0 ? range.Length() / width : range.Length();
    if (m_unreadable || range.IsEmpty() || framesPerColumn >= overview.FramesPerBucket() ||
        overview.FramesPerBucket() == 1)
    {
        return from(overview);
    }
    if (m_done && framesPerColumn >= m_finer.FramesPerBucket() && m_finer.Lanes() == overview.Lanes())
    {
        return from(m_finer);
    }
    if (range.Length() <= most_read && Read(range))
    {
        m_coarseness = 1;
        return FromBlock(range, width);
    }
    if (!m_unreadable && !m_thread.joinable())
    {
        m_thread = std::thread([this] { Refine(); });
    }
    return from(m_done && m_finer.Lanes() == overview.Lanes() ? m_finer : overview);
}

/// Opens the file unless it is open. A failure is remembered.
bool WaveformDetail::OpenFile()
{
    if (!m_reader && !m_unreadable)
    {
        m_reader = OpenSame(m_path, m_analysis->info);
    }
    m_unreadable = !m_reader;
    return !m_unreadable;
}

double WaveformDetail::Amplitude(FrameRange const & wanted)
{
    RecordingInfo const & info = m_analysis->info;
    FrameRange const range{std::min(wanted.first, info.frames), std::min(wanted.end, info.frames)};
    Waveform const & overview = m_analysis->waveform;
    double amplitude = 0.0;
    try
    {
        // Nothing of what is kept for pictures goes for it.
        if (!range.IsEmpty() && range.Length() <= most_read && overview.FramesPerBucket() > 1 && OpenFile())
        {
            std::vector<double> samples(static_cast<std::size_t>(range.Length()) * info.channels);
            m_reader->Seek(range.first);
            if (m_reader->ReadFrames(samples) == range.Length())
            {
                for (std::size_t i = 0; i < samples.size(); ++i)
                {
                    bool const isShown = i % info.channels < overview.Lanes();
                    amplitude = std::max(amplitude, isShown ? std::fabs(samples[i]) : 0.0);
                }
                return amplitude;
            }
        }
    }
    catch (std::exception const &)
    {
        m_unreadable = true;
    }
    for (std::size_t lane = 0; lane < overview.Lanes() && !range.IsEmpty(); ++lane)
    {
        MinMax const found = overview.Range(lane, range.first, range.end);
        amplitude = std::max(
            {amplitude, std::fabs(static_cast<double>(found.least)), std::fabs(static_cast<double>(found.greatest))});
    }
    return amplitude;
}

/// Reads a stretch, and as much before and behind it, so that scrolling does not read again at each step.
bool WaveformDetail::Read(FrameRange const & range)
{
    if (m_block.range.first <= range.first && range.end <= m_block.range.end)
    {
        return true;
    }
    try
    {
        RecordingInfo const & info = m_analysis->info;
        if (!OpenFile())
        {
            return false;
        }
        std::uint64_t const around = std::min(range.Length(), most_read / 2);
        FrameRange const wanted{range.first - std::min(range.first, around), std::min(range.end + around, info.frames)};
        std::size_t const channels = info.channels;
        std::size_t const lanes = m_analysis->waveform.Lanes();
        std::vector<double> samples(SamplesAtOnce(channels));
        m_block.range = {};
        m_block.samples.clear();
        m_block.samples.reserve(static_cast<std::size_t>(wanted.Length()) * lanes);
        m_reader->Seek(wanted.first);
        for (std::uint64_t left = wanted.Length(); left > 0;)
        {
            auto const now = static_cast<std::size_t>(std::min<std::uint64_t>(left, samples.size() / channels));
            std::size_t const got = m_reader->ReadFrames(std::span(samples).first(now * channels));
            for (std::size_t frame = 0; frame < got; ++frame)
            {
                for (std::size_t lane = 0; lane < lanes; ++lane)
                {
                    m_block.samples.push_back(static_cast<float>(samples[frame * channels + lane]));
                }
            }
            if (got < now)
            {
                m_unreadable = true;
                return false;
            }
            left -= got;
        }
        m_block.range = wanted;
        return true;
    }
    catch (std::exception const &)
    {
        m_unreadable = true;
        return false;
    }
}

std::vector<std::vector<MinMax>> WaveformDetail::FromBlock(FrameRange const & range, std::size_t width) const
{
    std::size_t const lanes = m_analysis->waveform.Lanes();
    std::vector<std::vector<MinMax>> columns(lanes, std::vector<MinMax>(width));
    std::uint64_t const length = range.Length();
    auto const edge = [&](std::size_t column) { return column * (length / width) + column * (length % width) / width; };
    for (std::size_t column = 0; column < width; ++column)
    {
        auto const first = static_cast<std::size_t>(range.first - m_block.range.first + edge(column));
        auto const end = static_cast<std::size_t>(range.first - m_block.range.first + edge(column + 1));
        for (std::size_t lane = 0; lane < lanes; ++lane)
        {
            float const sample = m_block.samples[first * lanes + lane];
            MinMax found{sample, sample};
            for (std::size_t frame = first + 1; frame < end; ++frame)
            {
                float const next = m_block.samples[frame * lanes + lane];
                found.least = std::min(found.least, next);
                found.greatest = std::max(found.greatest, next);
            }
            columns[lane][column] = found;
        }
    }
    return columns;
}

void WaveformDetail::Refine()
{
    try
    {
        RecordingInfo const & info = m_analysis->info;
        std::size_t const lanes = std::max<std::size_t>(m_analysis->waveform.Lanes(), 1);
        WaveformBuilder builder(info.channels, most_buckets / lanes);
        std::vector<double> samples(SamplesAtOnce(info.channels));
        std::optional<WavReader> reader = OpenSame(m_path, info);
        for (std::size_t frames = 1; reader && frames > 0 && !m_stop;)
        {
            frames = reader->ReadFrames(samples);
            builder.Add(std::span<double const>(samples).first(frames * info.channels));
        }
        if (m_stop)
        {
            return;
        }
        Waveform finer = builder.Finish();
        if (finer.Frames() == info.frames)
        {
            m_finer = std::move(finer);
        }
    }
    catch (std::exception const &)
    {
        m_finer = {};
    }
    m_done = true;
    if (m_notify)
    {
        m_notify();
    }
}

} // namespace workbench
