#include "logic/PlaybackStream.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace workbench
{

std::optional<PlaybackStream> PlaybackStream::Open(std::unique_ptr<ByteSource> source, FrameRange const & stretch)
{
    auto opened = WavReader::Open(std::move(source));
    auto * const reader = std::get_if<WavReader>(&opened);
    if (reader == nullptr)
    {
        return std::nullopt;
    }
    std::uint64_t const frames = reader->Info().frames;
    FrameRange const wanted = stretch.IsEmpty()
                                  ? FrameRange{0, frames}
                                  : FrameRange{std::min(stretch.first, frames), std::min(stretch.end, frames)};
    if (wanted.IsEmpty() || reader->Info().sampleRate == 0)
    {
        return std::nullopt;
    }
    return PlaybackStream(std::move(*reader), wanted);
}

std::optional<PlaybackStream> PlaybackStream::Open(std::filesystem::path const & path, FrameRange const & stretch)
{
    return Open(std::unique_ptr<ByteSource>(FileByteSource::Open(path)), stretch);
}

PlaybackStream::PlaybackStream(WavReader reader, FrameRange const & stretch)
    : m_reader(std::move(reader)),
      m_stretch(stretch),
      m_position(stretch.first),
      m_channels(std::min<std::size_t>(m_reader.Info().channels, 2))
{
    m_reader.Seek(m_position);
}

std::size_t PlaybackStream::Read(std::span<std::int16_t> samples)
{
    std::size_t const all = m_reader.Info().channels;
    std::size_t const wanted = samples.size() / m_channels;
    std::size_t done = 0;
    while (done < wanted)
    {
        if (m_position >= m_stretch.end)
        {
            if (!m_loop)
            {
                break;
            }
            m_position = m_stretch.first;
            m_reader.Seek(m_position);
            m_passes.push_back(m_read);
        }
        auto const now = static_cast<std::size_t>(std::min<std::uint64_t>(wanted - done, m_stretch.end - m_position));
        m_samples.resize(now * all);
        std::size_t const got = m_reader.ReadFrames(m_samples);
        if (got == 0)
        {
            // The file has become shorter: what is there is all there is.
            m_stretch.end = std::max(m_position, m_stretch.first);
            if (m_stretch.IsEmpty())
            {
                break;
            }
            continue;
        }
        for (std::size_t frame = 0; frame < got; ++frame)
        {
            for (std::size_t channel = 0; channel < m_channels; ++channel)
            {
                constexpr double full_scale = 32768.0;
                double const value = std::round(m_samples[frame * all + channel] * m_gain * full_scale);
                samples[(done + frame) * m_channels + channel] =
                    static_cast<std::int16_t>(std::clamp(value, -full_scale, full_scale - 1.0));
            }
        }
        done += got;
        m_position += got;
        m_read += got;
    }
    return done;
}

std::uint64_t PlaybackStream::FrameAfter(std::uint64_t framesHeard)
{
    while (m_passes.size() > 1 && m_passes[1] <= framesHeard)
    {
        m_passes.pop_front();
    }
    std::uint64_t const offset = framesHeard - std::min(framesHeard, m_passes.front());
    std::uint64_t const length = m_stretch.Length();
    return m_stretch.first + std::min(offset, length > 0 ? length - 1 : 0);
}

} // namespace workbench
