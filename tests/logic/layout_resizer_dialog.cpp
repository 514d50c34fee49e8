// What the layout engine does for the dialog itself: its size limits, its stored rectangle, and the check that it
// lives.

#include <map>
#include <type_traits>
#include <utility>

#include "layout_ResizerTest.h"
#include "substitutes/RecordingStore.h"

namespace
{
using namespace resizer_tests;

class LayoutDialog : public ResizerTest
{
};

MINMAXINFO FilledInfo()
{
    MINMAXINFO info{};
    info.ptMaxSize = {11, 12};
    info.ptMaxPosition = {13, 14};
    info.ptMinTrackSize = {15, 16};
    info.ptMaxTrackSize = {5000, 6000};
    return info;
}
} // namespace

TEST_F(LayoutDialog, IsAPlainClass)
{
    EXPECT_FALSE(std::is_polymorphic_v<CDialogResizer>);
    EXPECT_FALSE(std::is_copy_constructible_v<CDialogResizer>);
    EXPECT_EQ(CDialogResizer::RESIZE_NONE, 0);
    EXPECT_EQ(CDialogResizer::RESIZE_HORIZONTAL, 1);
    EXPECT_EQ(CDialogResizer::RESIZE_VERTICAL, 2);
    EXPECT_EQ(CDialogResizer::RESIZE_BOTH, 3);
}

TEST_F(LayoutDialog, NeverLaysOutForLessThanTheDesignSize)
{
    RecordingStore store;
    {
        CWnd & dialog = m_platform.AddDialog(design_outer);
        CWnd & child = m_platform.AddChild(dialog, child_place);
        CDialogResizer resizer(dialog, L"Dialog");
        resizer.PositionChild(&child, CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
        m_platform.SetOuter(dialog, CRect(7, 9, 307, 209));
        resizer.OnSize();
        EXPECT_RECT(m_platform.PlaceOf(child), 10, 20, 110, 60);
    }
    // The clamped rectangle, at the real left and top.
    EXPECT_EQ(store.calls, (std::vector<std::string>{"entry Dialog 0", "set Dialog[0]=7", "set Dialog[1]=9",
                                                     "set Dialog[2]=407", "set Dialog[3]=309"}));
}

TEST_F(LayoutDialog, WithoutChildrenNothingIsUpdatedAndTheConstructionRectangleIsSaved)
{
    RecordingStore store;
    {
        CWnd & dialog = m_platform.AddDialog(design_outer);
        CDialogResizer resizer(dialog, L"Dialog");
        Resize(dialog, 800, 600);
        m_platform.calls.clear();
        resizer.OnSize();
        EXPECT_TRUE(m_platform.calls.empty());
    }
    EXPECT_EQ(store.calls, (std::vector<std::string>{"entry Dialog 0", "set Dialog[0]=100", "set Dialog[1]=50",
                                                     "set Dialog[2]=500", "set Dialog[3]=350"}));
}

TEST_F(LayoutDialog, WithoutChildrenTheRestoredRectangleIsSaved)
{
    RecordingStore store;
    store.values = {{{L"Dialog", 0}, 1}, {{L"Dialog", 1}, 2}, {{L"Dialog", 2}, 701}, {{L"Dialog", 3}, 502}};
    {
        CWnd & dialog = m_platform.AddDialog(design_outer);
        CDialogResizer resizer(dialog, L"Dialog");
        resizer.RestoreStoredPosition();
        resizer.OnSize();
        store.values.clear();
    }
    EXPECT_EQ(store.values,
              (std::map<std::pair<std::wstring, std::size_t>, int>{
                  {{L"Dialog", 0}, 1}, {{L"Dialog", 1}, 2}, {{L"Dialog", 2}, 701}, {{L"Dialog", 3}, 502}}));
}

TEST_F(LayoutDialog, TheLastLaidOutRectangleIsSavedWithoutALiveWindow)
{
    RecordingStore store;
    {
        CWnd & dialog = m_platform.AddDialog(design_outer);
        CWnd & child = m_platform.AddChild(dialog, child_place);
        CDialogResizer resizer(dialog, L"Dialog");
        resizer.PositionChild(&child, CEdges::RIGHT(), nullptr);
        m_platform.SetOuter(dialog, CRect(-20, -10, 780, 590));
        resizer.OnSize();
        m_platform.Destroy(dialog);
        EXPECT_TRUE(store.calls.empty()) << "only the destructor saves";
    }
    EXPECT_EQ(store.calls, (std::vector<std::string>{"entry Dialog 0", "set Dialog[0]=-20", "set Dialog[1]=-10",
                                                     "set Dialog[2]=780", "set Dialog[3]=590"}));
}

TEST_F(LayoutDialog, RestoringMovesTheDialogWithEachMissingFieldAtItsPresentValue)
{
    RecordingStore store;
    store.values = {{{L"Dialog", 0}, 33}, {{L"Dialog", 2}, 633}};
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CDialogResizer resizer(dialog, L"Dialog");
    m_platform.calls.clear();
    resizer.RestoreStoredPosition();
    EXPECT_EQ(store.calls, (std::vector<std::string>{"entry Dialog 0", "get Dialog[0]", "get Dialog[1]",
                                                     "get Dialog[2]", "get Dialog[3]"}));
    EXPECT_EQ(m_platform.calls, (std::vector<std::string>{"MoveDialog 0 33 50 600 300"}));
}

TEST_F(LayoutDialog, AnEmptyKeyStoresNothingAndMovesNothing)
{
    RecordingStore store;
    {
        CWnd & dialog = m_platform.AddDialog(design_outer);
        CDialogResizer resizer(dialog, L"");
        m_platform.calls.clear();
        resizer.RestoreStoredPosition();
        EXPECT_TRUE(m_platform.calls.empty());
    }
    EXPECT_TRUE(store.calls.empty());
}

TEST_F(LayoutDialog, WithoutAStoreNothingIsMoved)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    {
        CDialogResizer resizer(dialog, L"Dialog");
        m_platform.calls.clear();
        resizer.RestoreStoredPosition();
    }
    EXPECT_TRUE(m_platform.calls.empty());
}

TEST_F(LayoutDialog, MinMaxInfoPinsTheDirectionsThatMayNotGrow)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CDialogResizer resizer(dialog, L"");
    Resize(dialog, 800, 600);
    struct Case
    {
        CDialogResizer::resize_dims_t dims;
        int width, height;
    };
    for (Case const & one : {Case{CDialogResizer::RESIZE_NONE, 400, 300},
                             {CDialogResizer::RESIZE_HORIZONTAL, 5000, 300},
                             {CDialogResizer::RESIZE_VERTICAL, 400, 6000},
                             {CDialogResizer::RESIZE_BOTH, 5000, 6000}})
    {
        MINMAXINFO info = FilledInfo();
        resizer.OnGetMinMaxInfo(&info, one.dims);
        EXPECT_EQ(info.ptMinTrackSize.x, 400);
        EXPECT_EQ(info.ptMinTrackSize.y, 300);
        EXPECT_EQ(info.ptMaxTrackSize.x, one.width);
        EXPECT_EQ(info.ptMaxTrackSize.y, one.height);
        EXPECT_EQ(info.ptMaxSize.x, 11);
        EXPECT_EQ(info.ptMaxSize.y, 12);
        EXPECT_EQ(info.ptMaxPosition.x, 13);
        EXPECT_EQ(info.ptMaxPosition.y, 14);
    }
}

TEST_F(LayoutDialog, ADeadDialogIsReportedAndConstructionGoesOn)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    m_platform.Destroy(dialog);
    CDialogResizer resizer(dialog, L"");
    ASSERT_EQ(m_platform.assertions.size(), 1U);
    EXPECT_EQ(m_platform.assertions[0].expression, L"::IsWindow( dialog.m_hWnd)");
    EXPECT_EQ(m_platform.assertions[0].source, L"DialogResizer");
    EXPECT_EQ(m_platform.assertions[0].line, 45U);
    EXPECT_EQ(m_platform.calls, (std::vector<std::string>{"GetWindowRect none"})) << "construction goes on";
}

TEST_F(LayoutDialog, ALiveDialogIsNotReported)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CDialogResizer resizer(dialog, L"");
    EXPECT_TRUE(m_platform.assertions.empty());
}
