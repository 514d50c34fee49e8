#include <afxwin.h>

#include <gtest/gtest.h>

#include <utility>

#include "ChildProgram.h"
#include "HangWatch.h"
#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
tests::ScopedWindow * s_ended = nullptr;

/// Ends a window while the queue is looked at: what was posted to it goes with it.
LRESULT CALLBACK EndWindow(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION && s_ended != nullptr)
        std::exchange(s_ended, nullptr)->DestroyWindow();
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

CHILD_PROGRAM(PumpsWhileAMessageGoes)
{
    tests::WatchForHang(std::chrono::seconds(60));
    tests::ScopedWindow window;
    tests::PumpPosted();
    s_ended = &window;
    HHOOK const hook = ::SetWindowsHookExW(WH_GETMESSAGE, EndWindow, nullptr, ::GetCurrentThreadId());
    window.PostMessage(WM_NULL);
    tests::PumpPosted();
    ::UnhookWindowsHookEx(hook);
    return s_ended == nullptr && window.m_hWnd == nullptr ? 0 : 1;
}

TEST(Pump, ComesBackWhereTheMessageThatItSawIsGone)
{
    tests::ChildProgram child("PumpsWhileAMessageGoes");
    ASSERT_TRUE(child.WaitForEnd());
    EXPECT_EQ(child.ExitCode(), 0u) << child.ErrorText();
}

/// Never has an empty queue.
class Restless : public tests::ScopedWindow
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP)
            PostMessage(WM_APP);
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
};

CHILD_PROGRAM(PumpsWithoutAnEnd)
{
    tests::WatchForHang(std::chrono::seconds(60));
    Restless window;
    window.PostMessage(WM_APP);
    return tests::PumpUntil([] { return false; }, std::chrono::milliseconds(1)) ? 1 : 0;
}

TEST(Pump, ComesBackWhereMessagesNeverEnd)
{
    tests::ChildProgram child("PumpsWithoutAnEnd");
    ASSERT_TRUE(child.WaitForEnd());
    EXPECT_EQ(child.ExitCode(), 0u) << child.ErrorText();
}
} // namespace
