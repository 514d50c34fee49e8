#include "Playing.h"

#include "logic/Amplification.h"
#include "logic/Texts.h"
#include "WaveOutDevice.h"

namespace
{

constexpr UINT_PTR feed_timer = 1;
constexpr UINT feed_period = 33; // milliseconds

} // namespace

BEGIN_MESSAGE_MAP(CPlaying, CWnd)
    ON_WM_TIMER()
END_MESSAGE_MAP()

CPlaying::CPlaying() : CPlaying([] { return std::make_unique<CWaveOutDevice>(); }) {}

CPlaying::CPlaying(std::function<std::unique_ptr<workbench::AudioDevice>()> makeDevice)
    : m_player(std::move(makeDevice))
{
}

CPlaying::~CPlaying()
{
    m_player.Stop();
    DestroyWindow();
}

void CPlaying::Play(CWnd & owner, std::filesystem::path const & file, workbench::FrameRange const & stretch)
{
    if (m_hWnd == nullptr && !CreateEx(0, AfxRegisterWndClass(0), L"", 0, CRect(), CWnd::FromHandle(HWND_MESSAGE), 0))
    {
        return;
    }
    workbench::PlayStart const start = m_player.Play(file, stretch);
    if (start == workbench::PlayStart::playing)
    {
        SetTimer(feed_timer, feed_period, nullptr);
    }
    Moved();
    if (start == workbench::PlayStart::no_device)
    {
        owner.MessageBox(workbench::Text(L"There is no audio device to play the recording on."), nullptr,
                         MB_OK | MB_ICONINFORMATION);
    }
    else if (start == workbench::PlayStart::unreadable)
    {
        owner.MessageBox(workbench::Text(L"The recording cannot be read any more."), nullptr,
                         MB_OK | MB_ICONINFORMATION);
    }
}

void CPlaying::Stop()
{
    m_player.Stop();
    Moved();
}

void CPlaying::SetGain(int decibels)
{
    m_player.SetGain(workbench::AmplificationFactor(decibels));
}

void CPlaying::OnTimer(UINT_PTR id)
{
    if (id != feed_timer)
    {
        CWnd::OnTimer(id);
        return;
    }
    m_player.Poll();
    Moved();
}

void CPlaying::Moved()
{
    if (!m_player.IsPlaying() && m_hWnd != nullptr)
    {
        KillTimer(feed_timer);
    }
    // A copy, as what it does may replace it.
    if (auto const onMoved = m_onMoved)
    {
        onMoved(m_player.Position());
    }
}
