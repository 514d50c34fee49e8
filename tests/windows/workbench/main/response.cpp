// The main window answers while it does what takes long. How soon is measured by the benchmark, as times on a busy
// machine say nothing.

#include <atomic>
#include <thread>

#include "MainWindowTest.h"

namespace
{

/// Sends a window messages without a meaning, one after the other, and counts the answers.
class ResponseWatch
{
public:
    explicit ResponseWatch(HWND window) : m_thread([this, window] { Run(window); }) {}
    ResponseWatch(ResponseWatch const &) = delete;
    ResponseWatch & operator=(ResponseWatch const &) = delete;
    ~ResponseWatch()
    {
        m_stop = true;
        tests::PumpUntil([this] { return m_finished.load(); }); // it may wait for an answer
        m_thread.join();
    }
    int Answers() const { return m_answers; }

private:
    void Run(HWND window)
    {
        while (!m_stop)
        {
            DWORD_PTR result = 0;
            ::SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 60'000, &result);
            ++m_answers;
            ::Sleep(2);
        }
        m_finished = true;
    }

    std::atomic<bool> m_stop = false;
    std::atomic<bool> m_finished = false;
    std::atomic<int> m_answers = 0;
    std::thread m_thread;
};

class ResponseWatchTest : public tests::MainWindowTest
{
};

} // namespace

TEST_F(ResponseWatchTest, TheWindowAnswersWhileItListsAndReads)
{
    std::filesystem::path const folder = Folder(300);
    ResponseWatch const watch(m_window->m_hWnd);
    m_window->ShowTargets({folder});
    int const before = watch.Answers();
    int answered = 0;
    EXPECT_TRUE(tests::PumpUntil(
        [&] {
            answered = m_window->IsBusy() ? watch.Answers() - before : answered;
            return !m_window->IsBusy();
        },
        tests::read_limit));
    EXPECT_GT(answered, 3);
}
