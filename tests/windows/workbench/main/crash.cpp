// What the user did is there after the program has been killed.

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "MainWindowTest.h"

namespace
{
using Lines = std::vector<int>;

constexpr int recordings = 6;
constexpr int kills = 20;
constexpr wchar_t step_variable[] = L"WORKBENCH_CRASH_STEP";
constexpr wchar_t event_name[] = L"workbench_crash_test_changed";
constexpr DWORD kill_delay = 1000; // milliseconds after a change
constexpr DWORD hang_limit = 120'000;

/// What the user has said and done after so many steps.
struct Expected
{
    std::vector<CRecordingList::Notes> notes = std::vector<CRecordingList::Notes>(recordings);
    Lines order;
    int column = -1;
    bool ascending = true;

    Expected()
    {
        order.resize(recordings);
        std::iota(order.begin(), order.end(), 0);
    }
};

/// The recording that a step is about.
int LineOf(int step)
{
    return step * 7 % recordings;
}

Expected After(int steps)
{
    Expected expected;
    for (int step = 0; step < steps; ++step)
    {
        workbench::RecordingNotes & notes = expected.notes[static_cast<std::size_t>(LineOf(step))];
        Lines & order = expected.order;
        switch (step % 5)
        {
        case 0:
            notes.checked = !notes.checked;
            break;
        case 1:
            notes.rating = 1 + step % 3;
            break;
        case 2:
            notes.comment = L"step " + std::to_wstring(step);
            break;
        case 3:
            expected.ascending = expected.column != CRecordingList::column_name || !expected.ascending;
            expected.column = CRecordingList::column_name;
            std::ranges::sort(order);
            if (!expected.ascending)
            {
                std::ranges::reverse(order);
            }
            break;
        default: {
            auto const at = std::ranges::find(order, LineOf(step));
            if (at + 1 != order.end())
            {
                std::iter_swap(at, at + 1);
                expected.column = -1;
                expected.ascending = true;
            }
        }
        }
    }
    return expected;
}

/// The program that is killed. It is a test only where a step is asked for.
class WorkbenchCrashProgram : public tests::MainWindowTest
{
protected:
    void SetUp() override
    {
        wchar_t step[16] = L"";
        ASSERT_NE(::GetEnvironmentVariableW(step_variable, step, 16), 0U);
        m_step = std::stoi(step);
        tests::App().m_pszRegistryKey = registry_key;
        tests::App().m_pszProfileName = L"Settings";
        tests::App().m_keepsWorkspace = true;
        CVeskBase::SetPreferenceVesk(&m_store);
        OpenWindow();
    }
    void TearDown() override
    {
        if (m_window)
        {
            CloseWindow();
        }
    }

    CRecordingList & List() { return m_window->List(); }
    bool IsAsExpected(Expected const & expected)
    {
        for (int line = 0; line < recordings; ++line)
        {
            if (List().NotesOf(line) != expected.notes[static_cast<std::size_t>(line)])
            {
                return false;
            }
        }
        return List().Order() == workbench::ListOrder{expected.column, expected.ascending, expected.order};
    }
    void Change()
    {
        int const line = LineOf(m_step);
        List().ChooseLine(line);
        List().SetFocus();
        switch (m_step % 5)
        {
        case 0:
            tests::Key(VK_SPACE);
            break;
        case 1:
            List().ChooseRating(line);
            tests::PumpPosted();
            for (int i = List().NotesOf(line).rating; i < 1 + m_step % 3; ++i)
            {
                tests::Key(VK_DOWN);
            }
            for (int i = List().NotesOf(line).rating; i > 1 + m_step % 3; --i)
            {
                tests::Key(VK_UP);
            }
            tests::Key(VK_RETURN);
            break;
        case 2:
            tests::Key(VK_F2);
            ASSERT_TRUE(tests::PumpUntil([this] { return List().CommentEditor() != nullptr; }));
            tests::Key(VK_HOME);
            tests::Key(VK_END, {VK_SHIFT});
            tests::Type(L"step " + std::to_wstring(m_step));
            tests::Key(VK_RETURN);
            break;
        case 3: {
            CRect title;
            ASSERT_TRUE(List().GetHeaderCtrl()->GetItemRect(CRecordingList::column_name, &title));
            tests::Click(tests::ClientPoint(List().GetHeaderCtrl()->m_hWnd, title.CenterPoint()));
            break;
        }
        default:
            tests::Key(VK_DOWN, {VK_MENU});
        }
    }

    int m_step = 0;
};

class IsKilledAfterAChange : public WorkbenchCrashProgram
{
    void TestBody() override;
};

void IsKilledAfterAChange::TestBody()
{
    m_window->ShowTargets({m_folder / "recordings"});
    ASSERT_TRUE(WaitUntilRead());
    ASSERT_EQ(List().LineCount(), recordings);
    ASSERT_TRUE(tests::PumpUntil([this] { return IsAsExpected(After(m_step)); }, std::chrono::seconds(10)))
        << "after step " << m_step - 1;
    if (m_step == kills)
    {
        return;
    }
    Change();
    ASSERT_TRUE(tests::PumpUntil([this] { return IsAsExpected(After(m_step + 1)); }, std::chrono::seconds(20)))
        << "step " << m_step;
    HANDLE const changed = ::OpenEventW(EVENT_MODIFY_STATE, FALSE, event_name);
    ASSERT_NE(changed, nullptr);
    ::SetEvent(changed);
    ::CloseHandle(changed);
    tests::PumpUntil([] { return false; });
    FAIL() << "was not killed";
}

// Among the other tests there is nobody to kill it.
[[maybe_unused]] bool const is_registered = [] {
    if (::GetEnvironmentVariableW(step_variable, nullptr, 0) == 0)
    {
        return false;
    }
    ::testing::RegisterTest("WorkbenchCrashProgram", "IsKilledAfterAChange", nullptr, nullptr, __FILE__, __LINE__,
                            []() -> WorkbenchCrashProgram * { return new IsKilledAfterAChange; });
    return true;
}();

class WorkbenchCrash : public tests::MainWindowTest
{
protected:
    /// Starts the program for a step.
    static PROCESS_INFORMATION Start(int step)
    {
        wchar_t file[MAX_PATH] = L"";
        ::GetModuleFileNameW(nullptr, file, MAX_PATH);
        ::SetEnvironmentVariableW(step_variable, std::to_wstring(step).c_str());
        auto command = L'"' + std::wstring(file) + L"\" --gtest_filter=WorkbenchCrashProgram.* --gtest_brief=1";
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process{};
        ::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process);
        ::SetEnvironmentVariableW(step_variable, nullptr);
        return process;
    }
    static void Close(PROCESS_INFORMATION const & process)
    {
        ::CloseHandle(process.hThread);
        ::CloseHandle(process.hProcess);
    }
};

TEST_F(WorkbenchCrash, ASecondAfterAChangeNothingIsLost)
{
    Folder(recordings);
    CloseWindow();
    HANDLE const changed = ::CreateEventW(nullptr, FALSE, FALSE, event_name);
    std::mt19937 random(11);
    for (int step = 0; step < kills; ++step)
    {
        PROCESS_INFORMATION const process = Start(step);
        ASSERT_NE(process.hProcess, nullptr);
        HANDLE const waits[] = {changed, process.hProcess};
        DWORD const result = ::WaitForMultipleObjects(2, waits, FALSE, hang_limit);
        if (result == WAIT_OBJECT_0)
        {
            ::WaitForSingleObject(process.hProcess, kill_delay + random() % 100);
        }
        ::TerminateProcess(process.hProcess, 9);
        ::WaitForSingleObject(process.hProcess, hang_limit);
        Close(process);
        ASSERT_EQ(result, WAIT_OBJECT_0) << "the program of step " << step << " says above what it missed";
    }
    PROCESS_INFORMATION const process = Start(kills);
    ::WaitForSingleObject(process.hProcess, hang_limit);
    DWORD code = 1;
    ::GetExitCodeProcess(process.hProcess, &code);
    Close(process);
    ::CloseHandle(changed);
    EXPECT_EQ(code, 0U);
    OpenWindow();
}
} // namespace
