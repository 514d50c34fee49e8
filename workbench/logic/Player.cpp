#include "logic/Player.h"

#include <algorithm>
#include <utility>

namespace workbench
{

namespace
{

constexpr std::uint32_t blocks_per_second = 10;

} // namespace

PlayStart Player::Play(std::filesystem::path const & path, FrameRange const & stretch)
{
    return Play(std::unique_ptr<ByteSource>(FileByteSource::Open(path)), stretch);
}

PlayStart Player::Play(std::unique_ptr<ByteSource> source, FrameRange const & stretch)
{
    Stop();
    auto stream = PlaybackStream::Open(std::move(source), stretch);
    if (!stream)
    {
        return PlayStart::unreadable;
    }
    std::unique_ptr<AudioDevice> device = m_makeDevice();
    if (device == nullptr || !device->Open(stream->SampleRate(), stream->Channels()))
    {
        return PlayStart::no_device;
    }
    m_stream = std::move(stream);
    m_device = std::move(device);
    m_stream->SetLoop(m_loop);
    m_stream->SetGain(m_gain);
    auto const frames = std::max<std::size_t>(m_stream->SampleRate() / blocks_per_second, 1);
    m_block.assign(frames * m_stream->Channels(), 0);
    m_ended = false;
    Poll();
    return PlayStart::playing;
}

void Player::Stop()
{
    m_device.reset();
    m_stream.reset();
    m_paused = false;
}

void Player::Pause(bool paused)
{
    if (m_device != nullptr)
    {
        m_paused = paused;
        m_device->Pause(paused);
    }
}

void Player::SetLoop(bool loop)
{
    m_loop = loop;
    if (m_stream)
    {
        m_stream->SetLoop(loop);
    }
}

void Player::SetGain(double factor)
{
    m_gain = factor;
    if (m_stream)
    {
        m_stream->SetGain(factor);
    }
}

void Player::Poll()
{
    while (m_device != nullptr && !m_ended && m_device->HasRoom())
    {
        std::size_t const samples = m_stream->Read(m_block) * m_stream->Channels();
        m_ended = samples < m_block.size();
        if (samples > 0)
        {
            m_device->Write(std::span(m_block).first(samples));
        }
    }
    if (m_device != nullptr && m_ended && m_device->IsDone())
    {
        Stop();
    }
}

std::optional<std::uint64_t> Player::Position()
{
    if (m_device == nullptr)
    {
        return std::nullopt;
    }
    return m_stream->FrameAfter(m_device->FramesHeard());
}

} // namespace workbench
