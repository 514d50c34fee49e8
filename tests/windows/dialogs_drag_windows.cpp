// Dragging of real dialogs by their client area, with the real mouse, and the touch freeze.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "dialogs_Dialog3dTest.h"

using namespace dialog_tests;
using namespace std::chrono_literals;

namespace
{
CPoint const client_point(220, 60); // no control there

class Dialog3dDrag : public DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        ASSERT_NE(m_dialog.DisplayDialog(), 0);
        ASSERT_TRUE(tests::BringToFront(m_dialog));
        m_place = OuterOf(m_dialog);
        m_start = tests::ClientPoint(m_dialog, client_point);
        m_dialog.m_defaulted.clear();
    }
    void TearDown() override
    {
        tests::Release();
        tests::PumpPosted();
        DialogTest::TearDown();
    }
    bool PumpToPlace(CPoint corner)
    {
        return tests::PumpUntil([&] { return OuterOf(m_dialog).TopLeft() == corner; });
    }
    /// Moves the mouse by that distance from where it started; whether the dialog comes along. A late message of the
    /// display may take the pointer back, so it is moved again if need be.
    bool DragBy(CPoint distance)
    {
        CPoint const corner = m_place.TopLeft() + distance;
        return tests::PumpUntil([&] {
            tests::MoveMouse(m_start + distance);
            return tests::PumpUntil([&] { return OuterOf(m_dialog).TopLeft() == corner; }, 500ms);
        });
    }
    bool PressReaches()
    {
        EXPECT_TRUE(tests::MoveMouse(m_start));
        tests::Press();
        return tests::PumpUntil([&] { return m_dialog.DefaultedCount(WM_LBUTTONDOWN) > 0; });
    }

    TestDialog m_dialog;
    CRect m_place;
    CPoint m_start;
};
} // namespace

TEST_F(Dialog3dDrag, OffAtFirst)
{
    ASSERT_TRUE(PressReaches());
    EXPECT_NE(::GetCapture(), m_dialog.m_hWnd);
    tests::MoveMouse(m_start + CPoint(40, 30));
    tests::PumpPosted();
    EXPECT_EQ(OuterOf(m_dialog), m_place);
}

TEST_F(Dialog3dDrag, TheDialogFollowsTheMouseUntilTheButtonIsReleased)
{
    m_dialog.SetGrabAndMove(true);
    ASSERT_TRUE(PressReaches());
    EXPECT_EQ(::GetCapture(), m_dialog.m_hWnd);
    EXPECT_TRUE(DragBy(CPoint(40, 30)));
    EXPECT_EQ(OuterOf(m_dialog).Size(), m_place.Size());
    EXPECT_TRUE(DragBy(CPoint(-25, 130)));
    EXPECT_GT(m_dialog.DefaultedCount(WM_MOUSEMOVE), 0) << "the base handler sees the moves";
    tests::Release();
    EXPECT_TRUE(tests::PumpUntil([&] { return ::GetCapture() == nullptr; }));
    EXPECT_EQ(m_dialog.DefaultedCount(WM_LBUTTONUP), 1);
    tests::MoveMouse(m_start);
    tests::PumpPosted();
    EXPECT_EQ(OuterOf(m_dialog).TopLeft(), m_place.TopLeft() + CPoint(-25, 130));
}

TEST_F(Dialog3dDrag, ShiftOrControlHeldStartsNoDrag)
{
    m_dialog.SetGrabAndMove(true);
    for (WORD const modifier : {VK_SHIFT, VK_CONTROL})
    {
        ASSERT_TRUE(tests::MoveMouse(m_start));
        tests::PumpPosted();
        m_dialog.m_defaulted.clear();
        tests::KeyDown(modifier);
        ASSERT_TRUE(tests::PumpUntil([&] { return ::GetKeyState(modifier) < 0; }));
        EXPECT_TRUE(PressReaches()) << "the base handler still sees the click";
        EXPECT_NE(::GetCapture(), m_dialog.m_hWnd);
        tests::MoveMouse(m_start + CPoint(40, 30));
        tests::Release();
        tests::KeyUp(modifier);
        tests::PumpPosted();
        EXPECT_EQ(OuterOf(m_dialog), m_place);
    }
}

TEST_F(Dialog3dDrag, WhileFrozenNoDragStarts)
{
    m_dialog.SetGrabAndMove(true);
    EXPECT_FALSE(CDialog3d::IsInTouchFreeze());
    CDialog3d::SetTouchFreeze(true);
    EXPECT_TRUE(CDialog3d::IsInTouchFreeze());
    EXPECT_TRUE(CDialog3d::g_touchFreeze);
    EXPECT_TRUE(PressReaches());
    EXPECT_NE(::GetCapture(), m_dialog.m_hWnd);
    tests::MoveMouse(m_start + CPoint(40, 30));
    tests::PumpPosted();
    EXPECT_EQ(OuterOf(m_dialog), m_place);
    tests::Release();
    tests::PumpPosted();
    CDialog3d::g_touchFreeze = false;
    EXPECT_FALSE(CDialog3d::IsInTouchFreeze());
}

TEST_F(Dialog3dDrag, ADragThatRunsGoesOnWhenTheFreezeBegins)
{
    m_dialog.SetGrabAndMove(true);
    ASSERT_TRUE(PressReaches());
    CDialog3d::SetTouchFreeze(true);
    EXPECT_TRUE(DragBy(CPoint(15, 20)));
}

TEST_F(Dialog3dDrag, ADragEndsWithTheWindow)
{
    m_dialog.SetGrabAndMove(true);
    ASSERT_TRUE(PressReaches());
    m_dialog.DestroyWindow();
    tests::Release();
    ASSERT_NE(m_dialog.DisplayDialog(), 0);
    CRect const place = OuterOf(m_dialog);
    m_dialog.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(OuterOf(m_dialog), place);
}

TEST_F(Dialog3dDrag, TheCaptionStillMovesTheDialog)
{
    CPoint const caption(m_place.left + 60, m_place.top + 12);
    CPoint const end = caption + CPoint(30, 25);
    ASSERT_TRUE(tests::MoveMouse(caption));
    tests::LaterActions later; // runs inside the system's own loop of a move
    later.Add([&] { tests::InjectMove(end); }, [&] { return ::GetCapture() == m_dialog.m_hWnd; });
    later.Add([] { tests::Release(); });
    tests::Press();
    EXPECT_TRUE(PumpToPlace(m_place.TopLeft() + CPoint(30, 25)));
    EXPECT_FALSE(later.Failed());
}

TEST_F(Dialog3dDrag, WhileFrozenTheCaptionDoesNotMoveTheDialog)
{
    CDialog3d::SetTouchFreeze(true);
    CPoint const caption(m_place.left + 60, m_place.top + 12);
    ASSERT_TRUE(tests::MoveMouse(caption));
    tests::LaterActions later;
    later.Add([&] { tests::InjectMove(caption + CPoint(30, 25)); }, [&] { return ::GetCapture() == m_dialog.m_hWnd; });
    later.Add([] { tests::Release(); });
    tests::Press();
    EXPECT_TRUE(tests::PumpUntil([&] { return later.Done() && ::GetCapture() == nullptr; }));
    EXPECT_FALSE(later.Failed());
    EXPECT_GT(m_dialog.DefaultedCount(WM_MOVING), 0);
    EXPECT_EQ(OuterOf(m_dialog), m_place);
}

TEST_F(Dialog3dDrag, AProposedRectangleIsReplacedWhileFrozen)
{
    for (UINT const message : {WM_SIZING, WM_MOVING})
    {
        CRect const proposal(10, 20, 910, 820);
        CRect rect = proposal;
        m_dialog.SendMessage(message, WMSZ_BOTTOMRIGHT, reinterpret_cast<LPARAM>(&rect));
        EXPECT_EQ(rect, proposal) << "free";
        EXPECT_EQ(m_dialog.DefaultedCount(message), 1);
        CDialog3d::SetTouchFreeze(true);
        m_dialog.SendMessage(message, WMSZ_BOTTOMRIGHT, reinterpret_cast<LPARAM>(&rect));
        EXPECT_EQ(rect, m_place);
        EXPECT_EQ(m_dialog.DefaultedCount(message), 2) << "the default handling comes first";
        CDialog3d::SetTouchFreeze(false);
    }
}
