// How long the main window keeps a message waiting while it does what takes long. Measured by hand, as times on a busy
// machine say nothing:
//
//     main_window_tests.exe --gtest_also_run_disabled_tests --gtest_filter='*ResponseWatch*'

#include "MainWindowTest.h"

#include <atomic>
#include <cstdio>
#include <functional>
#include <thread>

#include "logic/TableText.h"

namespace
{

/// Sends a window messages without a meaning, one after the other, and notes the longest wait for an answer.
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
    /// In milliseconds, since the last call.
    double TakeLongest() { return static_cast<double>(m_longest.exchange(0)) / 1000.0; }

private:
    void Run(HWND window)
    {
        while (!m_stop)
        {
            auto const sent = std::chrono::steady_clock::now();
            DWORD_PTR result = 0;
            ::SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 60'000, &result);
            auto const waited =
                std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - sent);
            if (waited.count() > m_longest)
            {
                m_longest = waited.count();
            }
            ++m_answers;
            ::Sleep(2);
        }
        m_finished = true;
    }

    std::atomic<bool> m_stop = false;
    std::atomic<bool> m_finished = false;
    std::atomic<long long> m_longest = 0;
    std::atomic<int> m_answers = 0;
    std::thread m_thread;
};

class ResponseWatchTest : public tests::MainWindowTest
{
};

} // namespace

TEST_F(ResponseWatchTest, TheWindowAnswersWhileItListsAndReads)
{
    auto const folder = Folder(300);
    ResponseWatch const watch(m_window->m_hWnd);
    m_window->ShowTargets({folder});
    auto const before = watch.Answers();
    auto answered = 0;
    EXPECT_TRUE(tests::PumpUntil(
        [&] {
            answered = m_window->IsBusy() ? watch.Answers() - before : answered;
            return !m_window->IsBusy();
        },
        tests::read_limit));
    EXPECT_GT(answered, 3);
}

TEST_F(ResponseWatchTest, DISABLED_FiveThousandFiles)
{
    constexpr int count = 5000;
    auto const folder = Folder(count);
    auto & list = m_window->List();
    ResponseWatch watch(m_window->m_hWnd);
    tests::PumpFor(std::chrono::milliseconds(500));
    auto const measure = [&](char const * name, std::function<void()> const & act) {
        watch.TakeLongest();
        auto const began = std::chrono::steady_clock::now();
        act();
        tests::PumpUntil([&] { return !m_window->IsBusy() && !m_window->IsComputing(); }, tests::read_limit);
        tests::PumpFor(std::chrono::milliseconds(300));
        auto const took = std::chrono::steady_clock::now() - began;
        std::printf("%-28s longest wait %8.1f ms, all %8.1f ms\n", name, watch.TakeLongest(),
                    std::chrono::duration<double, std::milli>(took).count() - 300);
        std::fflush(stdout);
    };
    auto const command = [this](UINT id) { m_window->PostMessage(WM_COMMAND, id); };
    auto const type = [&](wchar_t const * text) {
        m_window->ListPanel().GetDescendantWindow(IDC_FILTER_WORDS)->SetWindowText(text);
    };
    measure("nothing", [] {});
    measure("list and read", [&] { m_window->ShowTargets({folder}); });
    EXPECT_EQ(m_window->RecordingCount(), count);
    measure("sort by name", [&] { list.SortLines(CRecordingList::column_name, false); });
    measure("sort by peak", [&] { list.SortLines(CRecordingList::column_peak, true); });
    measure("find strip", [&] { command(ID_FIND); });
    measure("filter by one letter", [&] { type(L"7"); });
    measure("filter by two letters", [&] { type(L"77"); });
    measure("no filter", [&] { type(L""); });
    measure("mark all", [&] { command(ID_MARK_ALL); });
    measure("undo", [&] { command(ID_UNDO); });
    measure("fit columns", [&] { command(ID_FIT_COLUMNS); });
    measure("copy all", [&] { command(ID_COPY_ALL); });
    measure("table for export", [&] { list.Table(CRecordingList::Lines::all, {}); });
    measure("language", [&] { m_window->ChooseLanguage(1031); });
    measure("language back", [&] { m_window->ChooseLanguage(1033); });
    measure("reload", [&] { command(ID_RELOAD); });
    list.SetFocus();
    measure("select all lines", [&] {
        tests::Key(VK_HOME);
        tests::Key(VK_END, {VK_SHIFT});
    });
    tests::App().Answer(IDYES);
    measure("delete", [&] { command(ID_DELETE_RECORDINGS); });
    tests::App().Reset();
}
