// What takes long runs beside the window.

#include <shlobj.h>

#include <atomic>
#include <vector>

#include "BusyDialog.h"
#include "MainWindowTest.h"

namespace
{

class WorkbenchBusyDialog : public tests::MainWindowTest
{
};

} // namespace

TEST_F(WorkbenchBusyDialog, DoesEachItemInOrderOnAThreadOfItsOwn)
{
    std::vector<std::size_t> items;
    DWORD thread = ::GetCurrentThreadId();
    CBusyDialog dialog(*m_window, L"Counting", 50, [&](std::size_t item) {
        items.push_back(item);
        thread = ::GetCurrentThreadId();
    });
    EXPECT_EQ(dialog.Run(), 50U);
    ASSERT_EQ(items.size(), 50U);
    EXPECT_EQ(items.front(), 0U);
    EXPECT_EQ(items.back(), 49U);
    EXPECT_NE(thread, ::GetCurrentThreadId());
    EXPECT_TRUE(m_window->IsWindowEnabled());
}

TEST_F(WorkbenchBusyDialog, IsCancelledByEscapeWhenTheItemIsFinished)
{
    std::atomic<bool> begun = false;
    std::atomic<bool> goOn = false;
    std::atomic<int> finished = 0;
    CBusyDialog dialog(*m_window, L"Waiting", 1000, [&](std::size_t) {
        begun = true;
        while (!goOn)
        {
            ::Sleep(1);
        }
        ++finished;
    });
    tests::LaterActions later;
    later.Add([] { tests::Key(VK_ESCAPE); },
              [&] { return begun && dialog.IsWindowVisible() && ::GetActiveWindow() == dialog.m_hWnd; });
    later.Add(
        [&] {
            EXPECT_FALSE(m_window->IsWindowEnabled());
            goOn = true;
        },
        [&] { return !dialog.GetDlgItem(IDCANCEL)->IsWindowEnabled(); });
    std::size_t const done = dialog.Run();
    EXPECT_FALSE(later.Failed());
    EXPECT_EQ(done, static_cast<std::size_t>(finished));
    EXPECT_LT(done, 1000U);
    EXPECT_GE(done, 1U);
}

TEST_F(WorkbenchBusyDialog, NothingToDoEndsAtOnce)
{
    EXPECT_EQ(CBusyDialog(*m_window, L"Nothing", 0, [](std::size_t) {}).Run(), 0U);
}

TEST_F(WorkbenchBusyDialog, ShowsNothingForWhatIsDoneInAMoment)
{
    std::atomic<bool> shown = false;
    CBusyDialog dialog(*m_window, L"Quick", 20, [&](std::size_t) {
        ::Sleep(5);
        shown = shown || (dialog.m_hWnd != nullptr && ::IsWindowVisible(dialog.m_hWnd));
    });
    EXPECT_EQ(dialog.Run(), 20U);
    EXPECT_FALSE(shown);
    EXPECT_TRUE(m_window->IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), m_window->m_hWnd);
    EXPECT_EQ(::GetFocus(), m_window->List().m_hWnd);
}

TEST_F(WorkbenchBusyDialog, ItsThreadCanUseCom)
{
    HRESULT result = E_FAIL;
    CBusyDialog dialog(*m_window, L"With objects", 1, [&result](std::size_t) {
        IUnknown * link = nullptr;
        result = ::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                                    reinterpret_cast<void **>(&link));
        if (link != nullptr)
        {
            link->Release();
        }
    });
    EXPECT_EQ(dialog.Run(), 1U);
    EXPECT_EQ(result, S_OK);
}
