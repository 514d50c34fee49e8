// Frames and documents that are opened and closed many times leave nothing behind.

#include "GdiHandleCount.h"
#include "GuardedHeap.h"
#include "ThreadWindows.h"
#include "views_FramesTest.h"
#include "windows/StandaloneFrameUser.h"
#include "windows/StandaloneFrameWnd.h"

namespace
{
constexpr int cycles = 200;
constexpr int cycles_before = 20; // in which the window system makes what it keeps
/// Blocks that are kept by a list's or map's growth, whatever the number of cycles.
constexpr size_t kept_blocks = 40;

class User : public CStandaloneFrameUser
{
public:
    CStandaloneFrameWnd * Open() { return CreateFrame<frames::TestView>(L"Cycle"); }
};

/// The list of all managers, which a derived class alone can see.
class ManagerList : public CFensterManager
{
public:
    static size_t Size() { return m_managerListe.size(); }
};

class FrameCycles : public frames::FramesTest
{
protected:
    template <typename Action> void Repeat(Action const & action)
    {
        size_t const managers = ManagerList::Size();
        size_t blocks = 0;
        int gdiObjects = 0;
        int windows = 0;
        int children = 0;
        tests::GuardedHeap heap;
        for (int cycle = 0; cycle < cycles_before + cycles; ++cycle)
        {
            if (cycle == cycles_before)
            {
                tests::PumpPosted();
                blocks = heap.LiveBlocks();
                gdiObjects = tests::GdiHandleCount();
                windows = tests::ThreadWindows();
                children = Children();
            }
            action();
            ASSERT_FALSE(HasFailure()) << "in cycle " << cycle;
            tests::PumpPosted();
            tests::App().OnIdle(0);
            tests::App().OnIdle(1);
            frames::g_log.clear();
        }
        EXPECT_EQ(ManagerList::Size(), managers);
        EXPECT_EQ(tests::ThreadWindows(), windows);
        EXPECT_EQ(Children(), children);
        EXPECT_LE(tests::GdiHandleCount(), gdiObjects + 4);
        EXPECT_LE(heap.LiveBlocks(), blocks + kept_blocks);
        EXPECT_EQ(heap.Check(), 0u);
    }
    int Children() const
    {
        int count = 0;
        ::EnumChildWindows(
            m_window,
            [](HWND, LPARAM counter) {
                ++*reinterpret_cast<int *>(counter);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&count));
        return count;
    }
};
} // namespace

TEST_F(FrameCycles, OfStandaloneFramesLeaveNothing)
{
    User user;
    Repeat([&] {
        CStandaloneFrameWnd * const frame = user.Open();
        ASSERT_NE(frame, nullptr);
        frame->SendMessage(WM_CLOSE);
    });
}

TEST_F(FrameCycles, OfGridsLeaveNothing)
{
    CRuntimeClass * classes[] = {RUNTIME_CLASS(frames::TestView), RUNTIME_CLASS(frames::TestView),
                                 RUNTIME_CLASS(frames::TestView), RUNTIME_CLASS(frames::TestView)};
    Repeat([&] {
        auto * const frame = new CStandaloneFrameWnd;
        ASSERT_TRUE(frame->SplitFrameErzeugen(L"Cycle", 2, 2, classes));
        frame->DestroyWindow();
    });
}

TEST_F(FrameCycles, OfDocumentsLeaveNothing)
{
    CMultiDocTemplate docTemplate(IDR_CHILD, RUNTIME_CLASS(frames::TestDocument), RUNTIME_CLASS(frames::TestChild),
                                  RUNTIME_CLASS(frames::TestView));
    Repeat([&] {
        CDocument * const document = docTemplate.OpenDocumentFile(nullptr);
        ASSERT_NE(document, nullptr);
        m_main->SendMessage(WM_COMMAND, ID_WINDOW_NEW);
        ASSERT_EQ(frames::g_views, 2);
        document->OnCloseDocument();
        ASSERT_EQ(frames::g_views, 0);
    });
}
