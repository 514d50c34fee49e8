// The layout engine on real windows.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "ChildProgram.h"
#include "layout/DialogResizer.h"
#include "MemoryPreferenceStore.h"
#include "ScopedWindow.h"

namespace
{
constexpr int left_of_dialog = 60;
constexpr int top_of_dialog = 50;
constexpr int child_id = 1001;
CRect const child_place(10, 20, 110, 60);

/// A dialog-like window of 400 by 300 that passes its messages to a resizer, if it has one.
class ResizedWindow : public tests::ScopedWindow
{
public:
    explicit ResizedWindow(DWORD style = WS_POPUP | WS_CAPTION | WS_VISIBLE)
        : ScopedWindow(CRect(left_of_dialog, top_of_dialog, left_of_dialog + 400, top_of_dialog + 300), style)
    {
    }

    void SetSize(int width, int height)
    {
        SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    CDialogResizer * m_resizer = nullptr;
    CDialogResizer::resize_dims_t m_dims = CDialogResizer::RESIZE_BOTH;
    bool m_limited = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        LRESULT const result = ScopedWindow::WindowProc(message, wParam, lParam);
        if (m_resizer != nullptr && message == WM_SIZE)
            m_resizer->OnSize();
        if (m_resizer != nullptr && m_limited && message == WM_GETMINMAXINFO)
            m_resizer->OnGetMinMaxInfo(reinterpret_cast<MINMAXINFO *>(lParam), m_dims);
        return result;
    }
};

CRect PlaceOf(CWnd const & child)
{
    CRect place;
    child.GetWindowRect(&place);
    child.GetParent()->ScreenToClient(&place);
    return place;
}

CRect OuterOf(CWnd const & window)
{
    CRect outer;
    window.GetWindowRect(&outer);
    return outer;
}

class LayoutOnWindows : public testing::Test
{
protected:
    LayoutOnWindows() { m_child.Create(L"Button", WS_CHILD | WS_VISIBLE, child_place, m_dialog, child_id); }

    ResizedWindow m_dialog;
    CButton m_child;
};
} // namespace

TEST_F(LayoutOnWindows, BottomRightMovesAndKeepsTheSize)
{
    CDialogResizer resizer(m_dialog, L"");
    resizer.PositionChild(&m_child, CEdges::BOTTOM_RIGHT(), nullptr);
    m_dialog.SetSize(450, 340);
    EXPECT_EQ(PlaceOf(m_child), child_place) << "not before OnSize";
    resizer.OnSize();
    EXPECT_EQ(PlaceOf(m_child), CRect(60, 60, 160, 100));
}

TEST_F(LayoutOnWindows, AllFourEdgesStretch)
{
    CDialogResizer resizer(m_dialog, L"");
    resizer.PositionChild(child_id, CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
    m_dialog.SetSize(450, 340);
    resizer.OnSize();
    EXPECT_EQ(PlaceOf(m_child), CRect(10, 20, 160, 100));
}

TEST_F(LayoutOnWindows, BottomThirdTruncates)
{
    CDialogResizer resizer(m_dialog, L"");
    resizer.PositionChild(child_id, CEdges::BOTTOM_THIRD(), nullptr);
    m_dialog.SetSize(400, 400);
    resizer.OnSize();
    EXPECT_EQ(PlaceOf(m_child), CRect(10, 86, 110, 160));
}

TEST_F(LayoutOnWindows, GivenFractionsAndAGivenDesignRectangleAreUsed)
{
    CDialogResizer resizer(m_dialog, L"");
    CRect const place(5, 6, 25, 36);
    resizer.PositionChild(child_id, CRect(1250, 0, 2500, 10000), &place);
    m_dialog.SetSize(440, 317);
    resizer.OnSize();
    EXPECT_EQ(PlaceOf(m_child), CRect(10, 6, 35, 53));
}

TEST_F(LayoutOnWindows, GrowingAndComingBackRestoresEveryDesignRectangle)
{
    CStatic others[3];
    CEdges const edges[] = {CEdges::BOTTOM_TWOTHIRD() | CEdges::RIGHT_HALF(), CEdges::BOTTOM_CENTER(),
                            CEdges::VERT_CENTER() | CEdges::LEFT_RIGHT()};
    CDialogResizer resizer(m_dialog, L"");
    resizer.PositionChild(&m_child, CEdges::BOTTOM_RIGHT(), nullptr);
    for (int at = 0; at < 3; ++at)
    {
        others[at].Create(L"", WS_CHILD | WS_VISIBLE, CRect(20, 80 + at * 40, 220, 110 + at * 40), m_dialog);
        resizer.PositionChild(&others[at], edges[at], nullptr);
    }
    m_dialog.m_resizer = &resizer;
    for (int const growth : {1, 3, 50, 200, 7})
    {
        m_dialog.SetSize(400 + growth, 300 + growth);
        EXPECT_EQ(PlaceOf(m_child).left, 10 + growth);
    }
    m_dialog.SetSize(400, 300);
    EXPECT_EQ(PlaceOf(m_child), child_place);
    for (int at = 0; at < 3; ++at)
        EXPECT_EQ(PlaceOf(others[at]), CRect(20, 80 + at * 40, 220, 110 + at * 40)) << at;
    m_dialog.m_resizer = nullptr;
}

TEST_F(LayoutOnWindows, ADialogBelowItsDesignSizeIsLaidOutAsAtIt)
{
    MemoryPreferenceStore store;
    CVeskBase::SetPreferenceVesk(&store);
    {
        CDialogResizer resizer(m_dialog, L"Dialog");
        resizer.PositionChild(child_id, CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
        m_dialog.SetWindowPos(nullptr, 7, 9, 300, 200, SWP_NOZORDER | SWP_NOACTIVATE);
        resizer.OnSize();
        EXPECT_EQ(PlaceOf(m_child), child_place);
    }
    CVeskBase::SetPreferenceVesk(nullptr);
    EXPECT_EQ(store.LookupGetInt(L"Dialog", 0, -1), 7);
    EXPECT_EQ(store.LookupGetInt(L"Dialog", 1, -1), 9);
    EXPECT_EQ(store.LookupGetInt(L"Dialog", 2, -1), 407);
    EXPECT_EQ(store.LookupGetInt(L"Dialog", 3, -1), 309);
}

TEST_F(LayoutOnWindows, TheSecondPositionChildReplacesTheFirst)
{
    CDialogResizer resizer(m_dialog, L"");
    CRect const first(1, 2, 3, 4);
    resizer.PositionChild(&m_child, CEdges::BOTTOM_RIGHT(), &first);
    resizer.PositionChild(child_id, CEdges::LEFT_RIGHT(), nullptr);
    m_dialog.SetSize(450, 340);
    resizer.OnSize();
    EXPECT_EQ(PlaceOf(m_child), CRect(10, 20, 160, 60));
}

TEST_F(LayoutOnWindows, ScaledRepositionDropsTheDirectionThatHasGrown)
{
    CDialogResizer resizer(m_dialog, L"");
    CSize const offset(3, 4);
    CSize const growth(20, 30);
    resizer.PositionChild(child_id, CEdges::TOP_LEFT(), nullptr);
    m_dialog.SetSize(401, 300);
    resizer.RepositionChild(&m_child, &offset, &growth, true);
    resizer.OnSize();
    EXPECT_EQ(PlaceOf(m_child), CRect(10, 24, 110, 94));
    resizer.RepositionChild(child_id, &offset, nullptr, false);
    resizer.OnSize();
    EXPECT_EQ(PlaceOf(m_child), CRect(13, 28, 113, 98));
}

TEST_F(LayoutOnWindows, AnUnknownIdIsIgnored)
{
    CDialogResizer resizer(m_dialog, L"");
    CSize const offset(3, 4);
    resizer.PositionChild(child_id + 1, CEdges::RIGHT(), nullptr);
    resizer.RepositionChild(child_id + 1, &offset, nullptr, false);
    m_dialog.SetSize(450, 340);
    resizer.OnSize();
    EXPECT_EQ(PlaceOf(m_child), child_place);
}

TEST_F(LayoutOnWindows, AGoneChildIsSkipped)
{
    CStatic gone;
    gone.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), m_dialog);
    CDialogResizer resizer(m_dialog, L"");
    resizer.PositionChild(&gone, CEdges::RIGHT(), nullptr);
    resizer.PositionChild(&m_child, CEdges::RIGHT(), nullptr);
    gone.DestroyWindow();
    m_dialog.SetSize(450, 300);
    resizer.OnSize();
    EXPECT_EQ(PlaceOf(m_child), CRect(60, 20, 160, 60));
}

TEST_F(LayoutOnWindows, ChildrenAreMovedInWindowOrder)
{
    // The order in which the children were put on top of each other, not that of their handles or records.
    struct Watched : CStatic
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_WINDOWPOSCHANGED)
                log->push_back(name);
            return CStatic::WindowProc(message, wParam, lParam);
        }
        std::vector<int> * log = nullptr;
        int name = 0;
    };
    std::vector<int> log;
    Watched children[4];
    CDialogResizer resizer(m_dialog, L"");
    for (int at = 0; at < 4; ++at)
    {
        children[at].Create(L"", WS_CHILD | WS_VISIBLE, CRect(at * 20, 100, at * 20 + 10, 110), m_dialog);
        children[at].log = &log;
        children[at].name = at;
        resizer.PositionChild(&children[at], CEdges::RIGHT(), nullptr);
    }
    children[2].SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    children[0].SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    log.clear();
    m_dialog.SetSize(410, 300);
    resizer.OnSize();
    EXPECT_EQ(log, (std::vector<int>{2, 1, 3, 0}));
}

TEST_F(LayoutOnWindows, WithoutChildrenTheConstructionRectangleIsSavedEvenAfterTheWindow)
{
    MemoryPreferenceStore store;
    CVeskBase::SetPreferenceVesk(&store);
    {
        CDialogResizer resizer(m_dialog, L"Dialog");
        m_dialog.SetSize(450, 340);
        resizer.OnSize();
        m_dialog.DestroyWindow();
        EXPECT_EQ(store.LookupGetInt(L"Dialog", 0, -1), -1) << "only the destructor saves";
    }
    CVeskBase::SetPreferenceVesk(nullptr);
    EXPECT_EQ(store.LookupGetInt(L"Dialog", 0, -1), left_of_dialog);
    EXPECT_EQ(store.LookupGetInt(L"Dialog", 1, -1), top_of_dialog);
    EXPECT_EQ(store.LookupGetInt(L"Dialog", 2, -1), left_of_dialog + 400);
    EXPECT_EQ(store.LookupGetInt(L"Dialog", 3, -1), top_of_dialog + 300);
}

TEST_F(LayoutOnWindows, RestoringMovesTheDialogAndItsChildren)
{
    MemoryPreferenceStore store;
    CVeskBase::SetPreferenceVesk(&store);
    int const stored[] = {20, 30, 520, 430};
    for (std::size_t index = 0; index < 4; ++index)
        store.LookupSetInt(L"Dialog", stored[index], index);
    {
        CDialogResizer resizer(m_dialog, L"Dialog");
        resizer.PositionChild(child_id, CEdges::BOTTOM_RIGHT(), nullptr);
        m_dialog.m_resizer = &resizer;
        resizer.RestoreStoredPosition();
        EXPECT_EQ(OuterOf(m_dialog), CRect(20, 30, 520, 430));
        EXPECT_EQ(PlaceOf(m_child), CRect(110, 120, 210, 160)) << "by way of the size message";
        m_dialog.m_resizer = nullptr;
    }
    CVeskBase::SetPreferenceVesk(nullptr);
}

TEST_F(LayoutOnWindows, AnEmptyKeyOrAMissingStoreMovesNothing)
{
    MemoryPreferenceStore store;
    for (std::size_t index = 0; index < 4; ++index)
        store.LookupSetInt(L"", 300 + static_cast<int>(index) * 50, index);
    CRect const before = OuterOf(m_dialog);
    CVeskBase::SetPreferenceVesk(&store);
    {
        CDialogResizer resizer(m_dialog, L"");
        resizer.RestoreStoredPosition();
    }
    CVeskBase::SetPreferenceVesk(nullptr);
    {
        CDialogResizer resizer(m_dialog, L"Dialog");
        resizer.RestoreStoredPosition();
    }
    EXPECT_EQ(OuterOf(m_dialog), before);
}

TEST(LayoutLimits, TheSystemKeepsToTheTrackSizes)
{
    struct Case
    {
        CDialogResizer::resize_dims_t dims;
        int width, height;
    };
    for (Case const & one : {Case{CDialogResizer::RESIZE_NONE, 400, 300},
                             {CDialogResizer::RESIZE_HORIZONTAL, 480, 300},
                             {CDialogResizer::RESIZE_VERTICAL, 400, 360},
                             {CDialogResizer::RESIZE_BOTH, 480, 360}})
    {
        ResizedWindow dialog(WS_OVERLAPPEDWINDOW | WS_VISIBLE);
        CDialogResizer resizer(dialog, L"");
        dialog.m_resizer = &resizer;
        dialog.m_dims = one.dims;
        dialog.m_limited = true;
        dialog.SetSize(480, 360);
        EXPECT_EQ(OuterOf(dialog).Size(), CSize(one.width, one.height)) << one.dims;
        dialog.SetSize(200, 150);
        EXPECT_EQ(OuterOf(dialog).Size(), CSize(400, 300)) << one.dims;
        dialog.m_resizer = nullptr;
    }
}

// What the next test starts: a window object without a window.
CHILD_PROGRAM(ConstructsOnADeadWindow)
{
    CWnd dead;
    CDialogResizer const resizer(dead, L"");
    return 0;
}

TEST(LayoutAssertion, ADeadWindowIsReportedByTheRuntime)
{
    tests::ChildProgram child("ConstructsOnADeadWindow");
    ASSERT_TRUE(child.WaitForEnd());
    EXPECT_NE(child.ExitCode(), 0U);
    std::string const text = child.ErrorText();
    EXPECT_NE(text.find("::IsWindow( dialog.m_hWnd), file DialogResizer, line 45"), std::string::npos) << text;
}
