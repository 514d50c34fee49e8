#pragma once

#include <afxwin.h>

#include <filesystem>
#include <functional>
#include <optional>

#include "logic/Player.h"

/// Plays recordings while the user works on: an invisible window whose timer feeds the audio device.
class CPlaying : public CWnd
{
public:
    /// Plays on the system's audio device.
    CPlaying();
    /// Plays on devices that makeDevice gives.
    explicit CPlaying(std::function<std::unique_ptr<workbench::AudioDevice>()> makeDevice);
    ~CPlaying() override;

    /// Plays a stretch of a recording, an empty one for all of it. Where it cannot, the user is told why.
    void Play(CWnd & owner, std::filesystem::path const & file, workbench::FrameRange const & stretch);
    void Pause(bool paused) { m_player.Pause(paused); }
    void Stop();

    void SetLoop(bool loop) { m_player.SetLoop(loop); }
    /// How much louder it is heard, in decibels.
    void SetGain(int decibels);

    bool IsPlaying() const { return m_player.IsPlaying(); }
    bool IsPaused() const { return m_player.IsPaused(); }
    bool Loops() const { return m_player.Loops(); }

    /// Called with the frame that is heard, about 30 times a second, and with none behind the end.
    std::function<void(std::optional<std::uint64_t>)> m_onMoved;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnTimer(UINT_PTR id);

    void Moved();

    workbench::Player m_player;
};
