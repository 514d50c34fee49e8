#pragma once
// Message pumping with a time limit, for tests that wait for something to happen.
//
//     ASSERT_TRUE(tests::PumpUntil([&] { return dialog.m_clicks == 1; }));   // false only after hang_limit
//     tests::PumpPosted();                                                   // what is queued now, nothing later
//     tests::PumpFor(std::chrono::milliseconds(50));                         // only where nothing must happen
//
// Messages go the way of the application's own loop, so that PreTranslateMessage sees them.

#include <afxwin.h>

#include <chrono>
#include <functional>
#include <vector>

namespace tests
{
using namespace std::chrono_literals;

/// What only a hang reaches, on a machine with much other work too.
inline constexpr std::chrono::milliseconds hang_limit = 120s;

/// Dispatches what is queued at the moment of the call, at most limit messages.
void PumpPosted(int limit = 1000);

/// Dispatches messages until the predicate holds; false if it doesn't within the time limit. The predicate is asked
/// after each message and at least every 10 ms. Idle work of the application runs when the queue becomes empty.
bool PumpUntil(std::function<bool()> const & predicate, std::chrono::milliseconds limit = hang_limit);

/// Dispatches messages for the whole time. For checks that something does not happen.
void PumpFor(std::chrono::milliseconds time);

/// Runs the action from inside the message loop that is active at that moment, a modal loop for example. Actions run
/// in order, each once, delay after the one before. Those left over when the object dies are dropped.
class LaterActions
{
public:
    LaterActions();
    ~LaterActions();
    LaterActions(LaterActions const &) = delete;
    LaterActions & operator=(LaterActions const &) = delete;

    /// Adds an action. It is tried again every 10 ms until ready holds (if given); after hang_limit it is given up,
    /// `Failed` tells, and the remaining actions run so that a modal loop can still end.
    void Add(std::function<void()> action, std::function<bool()> ready = {});
    bool Failed() const { return m_failed; }
    bool Done() const;

private:
    struct Action
    {
        std::function<void()> run;
        std::function<bool()> ready;
    };
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR id, DWORD);
    void Step();

    std::vector<Action> m_actions;
    size_t m_next = 0;
    UINT_PTR m_timer = 0;
    ULONGLONG m_waitingSince = 0;
    bool m_failed = false;
};
} // namespace tests
