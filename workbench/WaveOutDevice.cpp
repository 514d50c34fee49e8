#include "WaveOutDevice.h"

#include <algorithm>

CWaveOutDevice::~CWaveOutDevice()
{
    if (m_device == nullptr)
    {
        return;
    }
    ::waveOutReset(m_device);
    for (Block & block : m_blocks)
    {
        if ((block.header.dwFlags & WHDR_PREPARED) != 0)
        {
            ::waveOutUnprepareHeader(m_device, &block.header, sizeof(block.header));
        }
    }
    ::waveOutClose(m_device);
}

bool CWaveOutDevice::Open(std::uint32_t sampleRate, std::size_t channels)
{
    if (::waveOutGetNumDevs() == 0)
    {
        return false;
    }
    m_channels = channels;
    WAVEFORMATEX format{};
    format.wFormatTag = WAVE_FORMAT_PCM;
    format.nChannels = static_cast<WORD>(channels);
    format.nSamplesPerSec = sampleRate;
    format.wBitsPerSample = 16;
    format.nBlockAlign = static_cast<WORD>(channels * sizeof(std::int16_t));
    format.nAvgBytesPerSec = sampleRate * format.nBlockAlign;
    if (::waveOutOpen(&m_device, WAVE_MAPPER, &format, 0, 0, CALLBACK_NULL) != MMSYSERR_NOERROR)
    {
        m_device = nullptr;
    }
    return m_device != nullptr;
}

bool CWaveOutDevice::HasRoom() const
{
    return m_device != nullptr && std::ranges::any_of(m_blocks, &Block::IsFree);
}

void CWaveOutDevice::Write(std::span<std::int16_t const> samples)
{
    auto const block = std::ranges::find_if(m_blocks, &Block::IsFree);
    if (m_device == nullptr || block == m_blocks.end())
    {
        return;
    }
    if ((block->header.dwFlags & WHDR_PREPARED) != 0)
    {
        ::waveOutUnprepareHeader(m_device, &block->header, sizeof(block->header));
    }
    block->samples.assign(samples.begin(), samples.end());
    block->header = {};
    block->header.lpData = reinterpret_cast<LPSTR>(block->samples.data());
    block->header.dwBufferLength = static_cast<DWORD>(block->samples.size() * sizeof(std::int16_t));
    // A block that the device refuses, as one that was pulled out does, is as good as heard.
    if (::waveOutPrepareHeader(m_device, &block->header, sizeof(block->header)) == MMSYSERR_NOERROR)
    {
        ::waveOutWrite(m_device, &block->header, sizeof(block->header));
    }
    m_written += samples.size() / m_channels;
}

bool CWaveOutDevice::IsDone() const
{
    return std::ranges::all_of(m_blocks, &Block::IsFree);
}

std::uint64_t CWaveOutDevice::FramesHeard() const
{
    MMTIME time{};
    time.wType = TIME_SAMPLES;
    if (::waveOutGetPosition(m_device, &time, sizeof(time)) != MMSYSERR_NOERROR)
    {
        return 0;
    }
    // Some devices count bytes all the same.
    std::uint64_t const frames =
        time.wType == TIME_BYTES ? time.u.cb / (m_channels * sizeof(std::int16_t)) : std::uint64_t{time.u.sample};
    return std::min(frames, m_written);
}

void CWaveOutDevice::Pause(bool paused)
{
    if (paused)
    {
        ::waveOutPause(m_device);
    }
    else
    {
        ::waveOutRestart(m_device);
    }
}
