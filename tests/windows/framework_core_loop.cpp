// The message loop: PreTranslateMessage, idle time, modal loops, threads, and exceptions in handlers.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <vector>

#include "Pump.h"
#include "ScopedWindow.h"
#include "TestApp.h"

namespace
{
using Calls = std::vector<std::string>;
using Texts = std::vector<std::wstring>;

class Translating : public CWnd
{
public:
    Translating(Calls & calls, char const * name) : m_calls(calls), m_name(name) {}

    BOOL m_take = FALSE;

    BOOL PreTranslateMessage(MSG * pMsg) override
    {
        if (pMsg->message == WM_APP)
            m_calls.push_back(m_name);
        return pMsg->message == WM_APP ? m_take : CWnd::PreTranslateMessage(pMsg);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP)
            m_calls.push_back(std::string(m_name) + " window");
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    Calls & m_calls;
    char const * m_name;
};

class CorePreTranslate : public testing::Test
{
protected:
    CorePreTranslate() : m_main(m_calls, "main"), m_child(m_calls, "child"), m_other(m_calls, "other")
    {
        LPCTSTR const name = AfxRegisterWndClass(0);
        m_main.CreateEx(0, name, L"", WS_OVERLAPPED, CRect(0, 0, 50, 50), nullptr, 0);
        m_child.Create(name, L"", WS_CHILD, CRect(0, 0, 5, 5), &m_main, 1);
        m_other.CreateEx(0, name, L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0);
        AfxGetApp()->m_pMainWnd = &m_main;
        tests::PumpPosted();
        m_calls.clear();
    }
    ~CorePreTranslate() override
    {
        AfxGetApp()->m_pMainWnd = nullptr;
        m_other.DestroyWindow();
        m_main.DestroyWindow();
    }
    Calls PostTo(CWnd & window)
    {
        window.PostMessage(WM_APP);
        tests::PumpPosted();
        return std::exchange(m_calls, {});
    }

    Calls m_calls;
    Translating m_main;
    Translating m_child;
    Translating m_other;
};

TEST_F(CorePreTranslate, MessageIsOfferedFromTheWindowUpToTheMainWindow)
{
    EXPECT_EQ(PostTo(m_child), (Calls{"child", "main", "child window"}));
}

TEST_F(CorePreTranslate, TakenMessageIsNotDispatched)
{
    m_child.m_take = TRUE;
    EXPECT_EQ(PostTo(m_child), Calls{"child"});
    m_child.m_take = FALSE;
    m_main.m_take = TRUE;
    EXPECT_EQ(PostTo(m_child), (Calls{"child", "main"}));
}

TEST_F(CorePreTranslate, MainWindowIsAskedAboutOtherTopLevelWindowsToo)
{
    EXPECT_EQ(PostTo(m_other), (Calls{"other", "main", "other window"}));
}

// Idle time

TEST(CoreIdle, TemporaryObjectsGoInIdleTimeUnlessLocked)
{
    tests::ScopedWindow window(CRect(0, 0, 50, 50), WS_OVERLAPPED);
    HWND const foreign = ::CreateWindow(L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, window.m_hWnd, nullptr, nullptr, nullptr);
    CWnd::FromHandle(foreign)->SetOwner(&window); // marks the object
    ::DestroyWindow(foreign);
    AfxLockTempMaps();
    AfxGetApp()->OnIdle(0);
    AfxGetApp()->OnIdle(1);
    EXPECT_EQ(CWnd::FromHandle(foreign)->GetOwner(), &window);
    EXPECT_FALSE(AfxUnlockTempMaps(FALSE));
    EXPECT_EQ(CWnd::FromHandle(foreign)->GetOwner(), &window);
    AfxGetApp()->OnIdle(1);
    EXPECT_EQ(CWnd::FromHandle(foreign)->GetOwner(), nullptr); // a new object
    AfxGetApp()->OnIdle(1);
}

TEST(CoreIdle, VisibleMainWindowAndItsDescendantsUpdateTheirCommands)
{
    constexpr UINT idle_update = 0x0363;
    class Updating : public CWnd
    {
    public:
        int m_updates = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            m_updates += message == idle_update && wParam == TRUE ? 1 : 0;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Updating main;
    Updating child;
    LPCTSTR const name = AfxRegisterWndClass(0);
    ASSERT_TRUE(main.CreateEx(0, name, L"", WS_OVERLAPPED, CRect(0, 0, 50, 50), nullptr, 0));
    ASSERT_TRUE(child.Create(name, L"", WS_CHILD, CRect(0, 0, 5, 5), &main, 1));
    AfxGetApp()->m_pMainWnd = &main;
    EXPECT_TRUE(AfxGetApp()->OnIdle(0));
    EXPECT_EQ(main.m_updates, 0); // it doesn't show
    main.ShowWindow(SW_SHOWNOACTIVATE);
    EXPECT_TRUE(AfxGetApp()->OnIdle(0));
    EXPECT_FALSE(AfxGetApp()->OnIdle(1));
    EXPECT_EQ(main.m_updates, 1);
    EXPECT_EQ(child.m_updates, 1);
    AfxGetApp()->m_pMainWnd = nullptr;
    main.DestroyWindow();
}

TEST(CoreIdle, StandingMouseAndPaintingAreNoReasonForIdleWork)
{
    MSG message{};
    message.message = WM_MOUSEMOVE;
    message.pt = {1234, 567};
    EXPECT_TRUE(AfxIsIdleMessage(&message));
    EXPECT_FALSE(AfxIsIdleMessage(&message));
    message.pt.x = 1235;
    EXPECT_TRUE(AfxIsIdleMessage(&message));
    message.message = WM_PAINT;
    EXPECT_FALSE(AfxIsIdleMessage(&message));
    message.message = WM_TIMER;
    EXPECT_TRUE(AfxIsIdleMessage(&message));
}

// Modal loops

class Modal : public CWnd
{
public:
    int m_kicks = 0;
    int m_wantedKicks = 2;
    bool m_quit = false;
    std::vector<LPARAM> m_counts; ///< that came with the kicks

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        constexpr UINT kick_idle = 0x036A;
        if (message == kick_idle)
        {
            m_counts.push_back(lParam);
            if (++m_kicks < m_wantedKicks)
                return TRUE;
            if (m_quit)
                ::PostQuitMessage(3);
            else
                EndModalLoop(42);
            return FALSE;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST(CoreModal, LoopKicksWhileIdleAndGivesItsResult)
{
    Modal window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0));
    // Out of sight the window gets no input, with which the kicks would be counted anew.
    EXPECT_EQ(window.RunModalLoop(), 42);
    EXPECT_EQ(window.m_counts, (std::vector<LPARAM>{0, 1}));
    EXPECT_FALSE(window.IsWindowVisible());
    EXPECT_FALSE(window.ContinueModal());
    window.DestroyWindow();
}

TEST(CoreModal, LoopShowsTheWindowOnceItIsIdle)
{
    Modal window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0));
    EXPECT_EQ(window.RunModalLoop(MLF_SHOWONIDLE), 42);
    EXPECT_EQ(window.m_kicks, 2);
    EXPECT_TRUE(window.IsWindowVisible());
    EXPECT_FALSE(window.ContinueModal());
    window.DestroyWindow();
}

TEST(CoreModal, QuitEndsTheLoopAndTheOnesAround)
{
    Modal window;
    window.m_quit = true;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0));
    EXPECT_EQ(window.RunModalLoop(), -1);
    MSG message{};
    EXPECT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    window.DestroyWindow();
}

// Exceptions

class Throwing : public CWnd
{
public:
    enum class Kind
    {
        none,
        not_supported,
        user,
        standard,
        other
    };
    Kind m_kind = Kind::none;
    UINT m_at = WM_APP;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == m_at)
        {
            switch (m_kind)
            {
            case Kind::not_supported:
                AfxThrowNotSupportedException();
            case Kind::user:
                AfxThrowUserException();
            case Kind::standard:
                throw std::runtime_error("broken pipe");
            case Kind::other:
                throw 1;
            case Kind::none:
                break;
            }
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class CoreExceptions : public testing::Test
{
protected:
    BOOL Create()
    {
        return m_window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0);
    }
    Texts Raise(Throwing::Kind kind)
    {
        m_window.m_kind = kind;
        EXPECT_EQ(m_window.SendMessage(WM_APP), 0);
        m_window.m_kind = Throwing::Kind::none;
        return tests::App().TakeMessages();
    }
    ~CoreExceptions() override { m_window.DestroyWindow(); }

    Throwing m_window;
};

TEST_F(CoreExceptions, ExceptionInAHandlerIsReportedAndTheProgramGoesOn)
{
    ASSERT_TRUE(Create());
    EXPECT_EQ(Raise(Throwing::Kind::not_supported), Texts{L"An unsupported operation was attempted."});
    EXPECT_EQ(Raise(Throwing::Kind::standard), Texts{L"broken pipe"});
    EXPECT_EQ(Raise(Throwing::Kind::other).size(), 1u);
    EXPECT_TRUE(::IsWindow(m_window.m_hWnd));
}

TEST_F(CoreExceptions, UserExceptionIsSilent)
{
    ASSERT_TRUE(Create());
    EXPECT_EQ(Raise(Throwing::Kind::user), Texts{});
}

TEST_F(CoreExceptions, ExceptionInCreationMakesItFailSilently)
{
    m_window.m_kind = Throwing::Kind::not_supported;
    m_window.m_at = WM_CREATE;
    EXPECT_FALSE(Create());
    EXPECT_EQ(tests::App().TakeMessages(), Texts{});
}

TEST_F(CoreExceptions, ExceptionInPaintingValidatesTheWindow)
{
    ASSERT_TRUE(Create());
    m_window.ShowWindow(SW_SHOWNOACTIVATE);
    tests::PumpPosted();
    m_window.m_kind = Throwing::Kind::standard;
    m_window.m_at = WM_PAINT;
    m_window.Invalidate();
    m_window.UpdateWindow();
    EXPECT_FALSE(m_window.GetUpdateRect(nullptr));
    EXPECT_EQ(tests::App().TakeMessages(), Texts{});
    m_window.m_kind = Throwing::Kind::none;
}

TEST_F(CoreExceptions, CurrentMessageIsRestoredAfterAnException)
{
    ASSERT_TRUE(Create());
    UINT const before = CWnd::GetCurrentMessage()->message;
    Raise(Throwing::Kind::user);
    EXPECT_EQ(CWnd::GetCurrentMessage()->message, before);
}

// Threads

std::atomic<int> g_workerResult;

UINT Worker(LPVOID parameter)
{
    g_workerResult = static_cast<int>(reinterpret_cast<INT_PTR>(parameter)) + 1;
    return 5;
}

TEST(CoreThreads, WorkerGetsItsParameterAndGivesItsExitCode)
{
    CWinThread * const thread =
        AfxBeginThread(Worker, reinterpret_cast<LPVOID>(7), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    EXPECT_EQ(g_workerResult, 0);
    thread->ResumeThread();
    ASSERT_EQ(::WaitForSingleObject(thread->m_hThread, static_cast<DWORD>(tests::hang_limit.count())), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeThread(thread->m_hThread, &code);
    EXPECT_EQ(code, 5u);
    EXPECT_EQ(g_workerResult, 8);
    delete thread;
}

UINT const registered_thread_message = ::RegisterWindowMessage(L"framework_core_loop.thread");
std::atomic<int> g_threadMessages;
std::atomic<bool> g_ready;

class LoopThread : public CWinThread
{
    DECLARE_DYNCREATE(LoopThread)

public:
    BOOL InitInstance() override
    {
        EXPECT_EQ(AfxGetThread(), this);
        MSG message;
        ::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE); // makes the queue
        g_ready = true;
        return TRUE;
    }
    int ExitInstance() override { return 100 + CWinThread::ExitInstance(); }

protected:
    afx_msg void OnAdd(WPARAM wParam, LPARAM lParam)
    {
        g_threadMessages += static_cast<int>(wParam) + static_cast<int>(lParam);
    }
    afx_msg void OnEnd(WPARAM wParam, LPARAM) { ::PostQuitMessage(static_cast<int>(wParam)); }

    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(LoopThread, CWinThread)

BEGIN_MESSAGE_MAP(LoopThread, CWinThread)
    ON_THREAD_MESSAGE(WM_APP, &LoopThread::OnAdd)
    ON_REGISTERED_THREAD_MESSAGE(registered_thread_message, &LoopThread::OnEnd)
END_MESSAGE_MAP()

TEST(CoreThreads, LoopThreadHandlesPostedThreadMessages)
{
    CWinThread * const thread = AfxBeginThread(RUNTIME_CLASS(LoopThread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    ASSERT_TRUE(tests::PumpUntil([] { return g_ready.load(); }));
    EXPECT_TRUE(thread->PostThreadMessage(WM_APP, 3, 4));
    EXPECT_TRUE(thread->PostThreadMessage(registered_thread_message, 11, 0));
    ASSERT_EQ(::WaitForSingleObject(thread->m_hThread, static_cast<DWORD>(tests::hang_limit.count())), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeThread(thread->m_hThread, &code);
    EXPECT_EQ(code, 111u);
    EXPECT_EQ(g_threadMessages, 7);
    delete thread;
}

TEST(CoreThreads, EndOfTheMainWindowEndsTheLoop)
{
    CWnd main;
    ASSERT_TRUE(main.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPED, CRect(0, 0, 50, 50), nullptr, 0));
    AfxGetApp()->m_pMainWnd = &main;
    EXPECT_EQ(AfxGetMainWnd(), &main);
    main.DestroyWindow();
    EXPECT_EQ(AfxGetApp()->m_pMainWnd, nullptr);
    MSG message{};
    EXPECT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}
} // namespace
