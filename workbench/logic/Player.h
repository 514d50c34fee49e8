#pragma once
// Plays recordings on an audio device.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "logic/PlaybackStream.h"

namespace workbench
{

/// What sounds come out of. It takes blocks of samples and plays them one after another; its end stops them.
class AudioDevice
{
public:
    virtual ~AudioDevice() = default;

    /// Opens it for samples of 16 bits. False if there is none, or not for these.
    virtual bool Open(std::uint32_t sampleRate, std::size_t channels) = 0;
    /// Whether it takes another block at present.
    virtual bool HasRoom() const = 0;
    /// Puts a block behind the others; the samples are copied.
    virtual void Write(std::span<std::int16_t const> samples) = 0;
    /// Whether everything that was written has been heard.
    virtual bool IsDone() const = 0;
    /// The frames that have been heard since it was opened.
    virtual std::uint64_t FramesHeard() const = 0;
    virtual void Pause(bool paused) = 0;
};

/// What became of the wish to play.
enum class PlayStart
{
    Playing,
    NoDevice,
    Unreadable, ///< the recording cannot be read, or has nothing at that place
};

/// Plays a stretch of a recording. It does something in its calls alone: whoever owns it calls `Poll` often enough,
/// about each 30 ms.
class Player
{
public:
    /// makeDevice gives a device for each recording played; null if there is none.
    explicit Player(std::function<std::unique_ptr<AudioDevice>()> makeDevice) : m_makeDevice(std::move(makeDevice)) {}

    /// Plays a stretch, an empty one for all; what was played before ends.
    PlayStart Play(std::unique_ptr<ByteSource> source, FrameRange const & stretch);
    PlayStart Play(std::filesystem::path const & path, FrameRange const & stretch);
    void Stop();

    /// Nothing while nothing is played.
    void Pause(bool paused);
    /// These stay for what is played later.
    void SetLoop(bool loop);
    void SetGain(double factor);

    /// Hands more to the device, and ends behind the last sample.
    void Poll();

    bool IsPlaying() const { return m_device != nullptr; }
    bool IsPaused() const { return m_paused; }
    bool Loops() const { return m_loop; }
    /// The frame that is heard; nothing while nothing is played.
    std::optional<std::uint64_t> Position();

private:
    std::function<std::unique_ptr<AudioDevice>()> m_makeDevice;
    std::optional<PlaybackStream> m_stream;
    std::unique_ptr<AudioDevice> m_device;
    std::vector<std::int16_t> m_block;
    bool m_paused = false;
    bool m_loop = false;
    bool m_ended = false; ///< everything has been handed over
    double m_gain = 1.0;
};

} // namespace workbench
