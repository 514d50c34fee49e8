#pragma once
// The samples of a recording, or of a stretch of it, as an audio device takes them.

#include <cstdint>
#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "logic/TimeWindow.h"
#include "logic/WavReader.h"

namespace workbench
{

/// Reads a stretch of a recording in 16 bits and at most two channels, once or again and again.
class PlaybackStream
{
public:
    /// Opens the recording. An empty stretch stands for all of it; what lies beyond its end is left out. Nothing if it
    /// cannot be read, or if nothing of the stretch is there.
    static std::optional<PlaybackStream> Open(std::unique_ptr<ByteSource> source, FrameRange const & stretch);
    static std::optional<PlaybackStream> Open(std::filesystem::path const & path, FrameRange const & stretch);

    std::uint32_t SampleRate() const { return m_reader.Info().sampleRate; }
    /// 1 or 2. Of recordings with more, the first two are heard.
    std::size_t Channels() const { return m_channels; }
    FrameRange Stretch() const { return m_stretch; }

    /// How much louder it is heard, as a factor of the amplitude. What gets beyond full scale is limited.
    void SetGain(double factor) { m_gain = factor; }
    void SetLoop(bool loop) { m_loop = loop; }

    /// Reads as many whole frames as the buffer has room for, channels interleaved, and gives how many there were: less
    /// only at the end, which there is none in a loop.
    std::size_t Read(std::span<std::int16_t> samples);

    /// The frame that is heard when so many of all frames read have been heard before. Asked for numbers that grow:
    /// what lies behind is forgotten.
    std::uint64_t FrameAfter(std::uint64_t framesHeard);

private:
    PlaybackStream(WavReader reader, FrameRange const & stretch);

    WavReader m_reader;
    FrameRange m_stretch;
    std::uint64_t m_position;
    std::uint64_t m_read = 0;              ///< all frames that were read
    std::deque<std::uint64_t> m_passes{0}; ///< what had been read when each pass through the stretch began
    std::size_t m_channels;
    double m_gain = 1.0;
    bool m_loop = false;
    std::vector<double> m_samples;
};

} // namespace workbench
