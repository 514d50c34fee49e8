#include "Pump.h"

#include <algorithm>
#include <map>

namespace tests
{
namespace
{
std::map<UINT_PTR, LaterActions *> & Timers()
{
    static std::map<UINT_PTR, LaterActions *> timers;
    return timers;
}

constexpr UINT step_interval = 10; // milliseconds

bool PumpOne()
{
    // Taken at once: what was only seen may be gone when the loop's own function asks, which would wait for another.
    MSG message;
    if (!::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        return false;
    // A quit message belongs to the program's loop; the test's own loop drops it.
    if (message.message == WM_QUIT || AfxPreTranslateMessage(&message))
        return true;
    ::TranslateMessage(&message);
    ::DispatchMessage(&message);
    return true;
}
} // namespace

void PumpPosted(int limit)
{
    while (limit-- > 0 && PumpOne())
    {
    }
}

bool PumpUntil(std::function<bool()> const & predicate, std::chrono::milliseconds limit)
{
    auto const end = std::chrono::steady_clock::now() + limit;
    // Some come behind the limit, where the machine was busy; those of a window that sends itself one for each don't
    // end.
    int lateMessages = 10000;
    bool idleDone = false;
    for (;;)
    {
        if (predicate())
            return true;
        if (PumpOne())
        {
            idleDone = false;
            if (std::chrono::steady_clock::now() >= end && --lateMessages == 0)
                return predicate();
            continue;
        }
        if (!idleDone)
        {
            for (LONG count = 0; count < 8 && AfxGetThread()->OnIdle(count); ++count)
            {
            }
            idleDone = true;
            continue;
        }
        auto const left = std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        if (left.count() <= 0)
            return predicate();
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(std::min<long long>(left.count(), 10)),
                                    QS_ALLINPUT);
    }
}

void PumpFor(std::chrono::milliseconds time)
{
    PumpUntil([] { return false; }, time);
}

LaterActions::LaterActions()
{
    m_timer = ::SetTimer(nullptr, 0, step_interval, OnTimer);
    Timers()[m_timer] = this;
}

LaterActions::~LaterActions()
{
    ::KillTimer(nullptr, m_timer);
    Timers().erase(m_timer);
}

void LaterActions::Add(std::function<void()> action, std::function<bool()> ready)
{
    m_actions.push_back({std::move(action), std::move(ready)});
}

bool LaterActions::Done() const
{
    return m_next == m_actions.size();
}

void CALLBACK LaterActions::OnTimer(HWND, UINT, UINT_PTR id, DWORD)
{
    auto const found = Timers().find(id);
    if (found != Timers().end())
        found->second->Step();
}

void LaterActions::Step()
{
    if (Done())
        return;
    Action const action = m_actions[m_next];
    if (action.ready && !action.ready())
    {
        ULONGLONG const now = ::GetTickCount64();
        if (m_waitingSince == 0)
            m_waitingSince = now;
        if (now - m_waitingSince < static_cast<ULONGLONG>(hang_limit.count()))
            return;
        m_failed = true;
    }
    m_waitingSince = 0;
    ++m_next; // before the action: it may run a loop of its own, which steps on
    action.run();
}
} // namespace tests
