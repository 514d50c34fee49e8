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
constexpr int c_mostChecked = 3;
constexpr ULONGLONG c_settleTime = 300; // milliseconds for painting to reach the screen

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

/// Announces the next step to the script. False if a marker could not be written.
bool CWalk::WriteReady(char const * picture)
{
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
    return !error;
}

/// Whether the script has taken the present step's picture.
bool CWalk::IsDone() const
{
    std::error_code ignored;
    return std::filesystem::exists(m_folder / ("step-" + std::to_string(m_step) + ".done"), ignored);
}

bool CWalk::Step(char const * picture)
{
    Settle();
    return ::IsWindow(m_window.GetSafeHwnd()) && WriteReady(picture) &&
           PumpUntil([this] { return IsDone(); }, c_stepLimit);
}

/// Opens the menu of a line and takes the step while it is open. The menu has a message loop of its own, in which
/// timers run; one of them takes the step and closes the menu at its end.
bool CWalk::StepInMenu(char const * picture, int line)
{
    enum class Phase
    {
        opening,
        waiting,
        failed,
        done
    };
    static CWalk * walk;
    static char const * name;
    static Phase phase;
    static ULONGLONG end;
    walk = this;
    name = picture;
    phase = Phase::opening;
    end = ::GetTickCount64() + c_settleTime;

    auto const timer = ::SetTimer(nullptr, 0, c_pollInterval, [](HWND, UINT, UINT_PTR, DWORD) {
        auto const late = ::GetTickCount64() >= end;
        if (phase == Phase::opening && late)
        {
            phase = walk->WriteReady(name) ? Phase::waiting : Phase::failed;
            end = ::GetTickCount64() + c_stepLimit;
        }
        else if (phase == Phase::waiting && (late || walk->IsDone()))
        {
            phase = late ? Phase::failed : Phase::done;
        }
        if (phase == Phase::failed || phase == Phase::done)
        {
            walk->m_window.List().SendMessage(WM_CANCELMODE);
        }
    });
    auto & list = m_window.List();
    auto point = list.CellCentre(line, CRecordingList::column_overview);
    list.ClientToScreen(&point);
    list.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list.m_hWnd), MAKELPARAM(point.x, point.y));
    ::KillTimer(nullptr, timer);
    return phase == Phase::done;
}

void CWalk::Click(int line, int column)
{
    auto & list = m_window.List();
    auto const point = list.CellCentre(line, static_cast<CRecordingList::Column>(column));
    auto const where = MAKELPARAM(point.x, point.y);
    list.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, where);
    list.PostMessage(WM_LBUTTONUP, 0, where);
    Settle();
}

/// Checks some recordings and makes the first other one the reference, as a user would with the mouse.
bool CWalk::CheckSome()
{
    auto & list = m_window.List();
    auto checked = 0;
    for (int line = 0; line < m_window.RecordingCount() && checked < c_mostChecked; line += 2)
    {
        if (list.GetCheckbox(line, CRecordingList::column_check) == XLC_UNCHECKED)
        {
            Click(line, CRecordingList::column_check);
            if (!list.IsChecked(line))
            {
                return false;
            }
            ++checked;
        }
    }
    for (int line = 0; line < m_window.RecordingCount(); ++line)
    {
        if (list.GetCheckbox(line, CRecordingList::column_check) == XLC_UNCHECKED)
        {
            Click(line, CRecordingList::column_reference);
            return list.ReferenceLine() == line && m_window.ChooseRecording((line + 1) % m_window.RecordingCount());
        }
    }
    return true;
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
    if (m_window.RecordingCount() > 0 &&
        !(CheckSome() && Step("workbench-checked") && StepInMenu("workbench-menu", m_window.RecordingCount() / 3) &&
          m_window.ShowDetails(0) && Step("workbench-details")))
    {
        return false;
    }
    m_window.CloseDetails();
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
    return Resize(work.left + 30, work.top + 110, work.Width() * 95 / 100, work.Height() * 6 / 10) &&
           Step("workbench-before-restart");
}

bool CWalk::RunAfterRestart()
{
    return WaitForRecordings() && Step("workbench-after-restart");
}
