// The main program of the window tests: GoogleTest within an application of the framework.

#include <framework_testing.h>

#include <gtest/gtest.h>

#include <cstdio>

#include "ChildProgram.h"
#include "HangWatch.h"
#include "TestApp.h"

namespace
{
tests::TestApp g_app;

bool OnAssertion(char const * file, int line)
{
    ADD_FAILURE_AT(file, line) << "an assertion of the framework failed";
    return true;
}

BOOL CALLBACK CloseIfVisible(HWND window, LPARAM count)
{
    if (::IsWindowVisible(window))
    {
        ++*reinterpret_cast<int *>(count);
        ::DestroyWindow(window);
    }
    return TRUE;
}

/// Checks after each test that it took its message boxes and closed its windows.
class LeftOverCheck : public testing::EmptyTestEventListener
{
    void OnTestStart(testing::TestInfo const &) override { g_app.Reset(); }

    void OnTestEnd(testing::TestInfo const &) override
    {
        for (tests::TestApp::Message const & message : g_app.Take())
            ADD_FAILURE() << "a message box that the test did not expect: " << testing::PrintToString(message.text);
        int windows = 0;
        ::EnumThreadWindows(::GetCurrentThreadId(), CloseIfVisible, reinterpret_cast<LPARAM>(&windows));
        if (windows != 0)
            ADD_FAILURE() << windows << " windows are left on the screen";
        g_app.m_pMainWnd = nullptr;
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessage(&message);
    }
};
} // namespace

namespace tests
{
TestApp & App()
{
    return g_app;
}
} // namespace tests

int main(int argc, char ** argv)
{
    testing::InitGoogleTest(&argc, argv);
    ::SetPriorityClass(::GetCurrentProcess(), NORMAL_PRIORITY_CLASS);
    framework::SetAssertHandler(OnAssertion);
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL) || !g_app.InitInstance())
    {
        std::fprintf(stderr, "the framework could not be initialised\n");
        return 2;
    }
    if (std::optional<int> const exitCode = tests::RunAsChild())
        return *exitCode;
    testing::UnitTest::GetInstance()->listeners().Append(new LeftOverCheck);
    tests::WatchForHang();
    int const result = RUN_ALL_TESTS();
    g_app.ExitInstance();
    return result;
}
