#include "Walk.h"

#include <fstream>
#include <functional>
#include <string>
#include <system_error>

#include "MainWindow.h"

namespace
{

constexpr ULONGLONG c_stepLimit = 10'000; // milliseconds that the script has for a picture
constexpr ULONGLONG c_readLimit = 60'000; // milliseconds that reading the recordings may take
constexpr DWORD c_pollInterval = 20;      // milliseconds
constexpr ULONGLONG c_settleTime = 300;   // milliseconds for painting to reach the screen

/// Handles messages until the condition holds. False after the time limit, or when the program is told to quit.
bool PumpUntil(std::function<bool()> const & holds, ULONGLONG limit)
{
    auto const end = ::GetTickCount64() + limit;
    while (!holds())
    {
        if (::GetTickCount64() >= end)
        {
            return false;
        }
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, c_pollInterval, QS_ALLINPUT);
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE))
        {
            if (message.message == WM_QUIT || !AfxGetApp()->PumpMessage())
            {
                return false;
            }
        }
    }
    return true;
}

void Settle()
{
    auto const end = ::GetTickCount64() + c_settleTime;
    PumpUntil([end] { return ::GetTickCount64() >= end; }, 2 * c_settleTime);
}

} // namespace

CWalk::CWalk(CMainWindow & window, std::filesystem::path folder) : m_window(window), m_folder(std::move(folder))
{
    std::error_code error;
    std::filesystem::create_directories(m_folder, error);
    for (int step = 1;; ++step)
    {
        auto const name = "step-" + std::to_string(step);
        auto const ready = std::filesystem::remove(m_folder / (name + ".ready"), error);
        auto const done = std::filesystem::remove(m_folder / (name + ".done"), error);
        if (!ready && !done)
        {
            break;
        }
    }
    std::filesystem::remove(m_folder / "places.txt", error);
}

bool CWalk::WaitForRecordings()
{
    return PumpUntil([this] { return m_window.UnreadCount() == 0; }, c_readLimit);
}

bool CWalk::Resize(int left, int top, int width, int height)
{
    return m_window.SetWindowPos(nullptr, left, top, width, height, SWP_NOZORDER) != FALSE;
}

bool CWalk::Step(char const * picture)
{
    Settle();
    if (!::IsWindow(m_window.GetSafeHwnd()))
    {
        return false;
    }
    CRect place;
    m_window.GetWindowRect(&place);
    std::ofstream(m_folder / "places.txt", std::ios::app | std::ios::binary)
        << picture << ' ' << place.left << ' ' << place.top << ' ' << place.right << ' ' << place.bottom << '\n';

    // The marker appears under its name only when it is complete.
    auto const name = "step-" + std::to_string(++m_step);
    auto const draft = m_folder / (name + ".writing");
    std::error_code error;
    if (!(std::ofstream(draft, std::ios::binary) << picture << '\n'))
    {
        return false;
    }
    std::filesystem::rename(draft, m_folder / (name + ".ready"), error);
    if (error)
    {
        return false;
    }
    auto const done = m_folder / (name + ".done");
    return PumpUntil(
        [&done] {
            std::error_code ignored;
            return std::filesystem::exists(done, ignored);
        },
        c_stepLimit);
}

bool CWalk::Run()
{
    if (!WaitForRecordings() || !Step("workbench-initial"))
    {
        return false;
    }
    if (m_window.ChooseRecording(m_window.RecordingCount() / 2) && !Step("workbench-chosen"))
    {
        return false;
    }
    if (m_window.ChooseRecording(m_window.FirstDamagedRecording()) && !Step("workbench-damaged"))
    {
        return false;
    }
    m_window.ChooseRecording(0);
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    if (!Resize(work.left, work.top, work.Width(), work.Height()) || !Step("workbench-large"))
    {
        return false;
    }
    // The window's least size is larger than this and is what comes out.
    if (!Resize(work.left + 60, work.top + 50, 100, 100) || !Step("workbench-least"))
    {
        return false;
    }
    // A place that the next start can be told by.
    return Resize(work.left + 90, work.top + 110, work.Width() * 9 / 10, work.Height() * 6 / 10) &&
           Step("workbench-before-restart");
}

bool CWalk::RunAfterRestart()
{
    return WaitForRecordings() && Step("workbench-after-restart");
}
