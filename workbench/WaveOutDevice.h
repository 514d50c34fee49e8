#pragma once

#include <afxwin.h>
#include <mmsystem.h>

#include <array>
#include <vector>

#include "logic/Player.h"

/// The audio device that the user's system plays on.
class CWaveOutDevice : public workbench::AudioDevice
{
public:
    CWaveOutDevice() = default;
    CWaveOutDevice(CWaveOutDevice const &) = delete;
    CWaveOutDevice & operator=(CWaveOutDevice const &) = delete;
    /// Falls silent at once.
    ~CWaveOutDevice() override;

    bool Open(std::uint32_t sampleRate, std::size_t channels) override;
    bool HasRoom() const override;
    void Write(std::span<std::int16_t const> samples) override;
    bool IsDone() const override;
    std::uint64_t FramesHeard() const override;
    void Pause(bool paused) override;

private:
    struct Block
    {
        WAVEHDR header{};
        std::vector<std::int16_t> samples;
        bool IsFree() const { return (header.dwFlags & WHDR_INQUEUE) == 0; }
    };

    HWAVEOUT m_device = nullptr;
    std::array<Block, 8> m_blocks;
    std::size_t m_channels = 1;
    std::uint64_t m_written = 0; ///< frames
};
