// The drop window on the screen: place, list, scroll bar, grip and mouse capture, with the real mouse.

#include "combo_ComboTest.h"

using namespace combo_test;

namespace
{
class ComboDropWindow : public ComboTest
{
protected:
    int RowHeight() { return List().GetItemHeight(0); }
    CRect ComboRect()
    {
        CRect rect;
        m_combo->GetWindowRect(rect);
        return rect;
    }
    static CRect WorkArea()
    {
        CRect work;
        ::SystemParametersInfo(SPI_GETWORKAREA, 0, &work, 0);
        return work;
    }
    /// Moves the parent so that the combo's upper left corner is there.
    void PutComboAt(int x, int y)
    {
        CRect parent;
        m_host.GetWindowRect(parent);
        CRect const combo = ComboRect();
        m_host.SetWindowPos(nullptr, parent.left + x - combo.left, parent.top + y - combo.top, 0, 0,
                            SWP_NOSIZE | SWP_NOZORDER);
        ASSERT_EQ(ComboRect().TopLeft(), CPoint(x, y));
    }
    CPoint GripPoint()
    {
        CRect const drop = DropRect();
        return CPoint(drop.right - 6, drop.bottom - 6);
    }
    void MoveOnto(int row)
    {
        tests::MoveMouse(RowPoint(row));
        tests::PumpPosted();
    }
};
} // namespace

TEST_F(ComboDropWindow, IsATopmostToolWindowBelowTheCombo)
{
    MakeCombo();
    ASSERT_TRUE(Open());
    CRect const drop = DropRect();
    CRect const combo = ComboRect();
    EXPECT_EQ(drop, CRect(combo.left, combo.bottom, combo.right, combo.bottom + 10 * RowHeight() + 2));
    HWND const window = m_combo->GetDropWnd()->m_hWnd;
    EXPECT_NE(::GetWindowLong(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW, 0);
    EXPECT_NE(::GetWindowLong(window, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    EXPECT_EQ(::GetAncestor(window, GA_PARENT), ::GetDesktopWindow());
    EXPECT_TRUE(::IsWindowVisible(window));
    EXPECT_EQ(::GetFocus(), ::GetActiveWindow()); // the drop window takes no focus
    EXPECT_EQ(List().GetCount(), 10);
    EXPECT_EQ(List().GetDlgCtrlID(), 101);
    EXPECT_EQ(::GetCapture(), window);
}

TEST_F(ComboDropWindow, ListScrollBarAndGripShareTheClient)
{
    MakeCombo();
    ASSERT_TRUE(Open());
    CRect const drop = DropRect();
    CRect list;
    List().GetWindowRect(list);
    CRect scroll;
    ScrollBar().GetWindowRect(scroll);
    int const cx = ::GetSystemMetrics(SM_CXVSCROLL);
    int const cy = ::GetSystemMetrics(SM_CYVSCROLL);
    EXPECT_EQ(list, CRect(drop.left + 1, drop.top + 1, drop.right - cx - 1, drop.bottom - 1));
    EXPECT_EQ(scroll, CRect(drop.right - cx + 1, drop.top + 1, drop.right - 1, drop.bottom - cy - 1));
}

TEST_F(ComboDropWindow, RowsAreLimitedByTheirNumber)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(5));
    m_combo->SetMaxVisible(3);
    ASSERT_TRUE(Open());
    EXPECT_EQ(DropRect().Height(), 3 * RowHeight() + 2);
    m_combo->ShowDropDown(false);
    m_combo->SetMaxVisible(8);
    ASSERT_TRUE(Open());
    EXPECT_EQ(DropRect().Height(), 5 * RowHeight() + 2);
}

TEST_F(ComboDropWindow, OpensUpwardsWhereFewRowsFitBelow)
{
    MakeCombo();
    ASSERT_TRUE(Open());
    int const row = RowHeight();
    m_combo->ShowDropDown(false);
    int const height = ComboRect().Height();
    PutComboAt(300, WorkArea().bottom - 5 * row - height); // room for five
    ASSERT_TRUE(Open());
    EXPECT_EQ(DropRect().top, ComboRect().bottom);
    m_combo->ShowDropDown(false);
    PutComboAt(300, WorkArea().bottom - 5 * row - height + 1);
    ASSERT_TRUE(Open());
    EXPECT_EQ(DropRect().bottom, ComboRect().top);
    EXPECT_EQ(DropRect().Height(), 10 * row + 2);
    m_combo->ShowDropDown(false);
    m_combo->SetMinVisible(4);
    ASSERT_TRUE(Open());
    EXPECT_EQ(DropRect().top, ComboRect().bottom);
}

TEST_F(ComboDropWindow, UpwardsItEndsAtTheScreensTop)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(200));
    PutComboAt(300, WorkArea().bottom - 40);
    ASSERT_TRUE(Open());
    EXPECT_EQ(DropRect().top, 0);
    EXPECT_EQ(DropRect().bottom, ComboRect().top);
}

TEST_F(ComboDropWindow, EndsAtTheWorkAreasRightEdge)
{
    MakeCombo(CBS_DROPDOWNLIST, {L"short", std::wstring(60, L'w')});
    PutComboAt(WorkArea().right - 170, 200);
    ASSERT_TRUE(Open());
    EXPECT_GT(DropRect().Width(), ComboRect().Width());
    EXPECT_EQ(DropRect().right, WorkArea().right);
}

TEST_F(ComboDropWindow, IsAsWideAsItsWidestText)
{
    MakeCombo(CBS_DROPDOWNLIST, {L"short", std::wstring(40, L'w')});
    ASSERT_TRUE(Open());
    CSize size;
    ASSERT_TRUE(List().GetTextSize(std::wstring(40, L'w').c_str(), 40, size));
    int const scroll = ::GetSystemMetrics(SM_CXVSCROLL);
    EXPECT_EQ(DropRect().Width(), size.cx + scroll + 8);
    m_combo->ShowDropDown(false);
    m_combo->ModifyComboFlags(0, XListCtrl::combo_wide_items);
    ASSERT_TRUE(Open());
    EXPECT_EQ(DropRect().Width(), size.cx + 14 + scroll + 8);
}

TEST_F(ComboDropWindow, WidestTextIsThatOfAllTexts)
{
    std::vector<std::wstring> texts = {L"",          L"short",        std::wstring(20, L'i'),
                                       L"WWWWWWWWW", L"AVAVAVAVA To", L"\u00E4\u00F6\u00FC\u4E2D"};
    for (int i = 0; i < 200; ++i)
        texts.push_back(L"channel " + std::to_wstring(i * 7919 % 1000003));
    MakeCombo(CBS_DROPDOWNLIST, {L"one"});
    ASSERT_TRUE(Open());
    for (std::size_t first = 0; first < texts.size(); first += 5)
    {
        std::list<XListCtrl::combo_item> items;
        int widest = 0;
        for (std::size_t i = first; i < texts.size(); ++i)
        {
            items.emplace_back();
            items.back().text = texts[i];
            CSize size;
            ASSERT_TRUE(List().GetTextSize(texts[i].c_str(), static_cast<int>(texts[i].size()), size));
            widest = std::max(widest, static_cast<int>(size.cx));
        }
        EXPECT_EQ(List().GetWidestText(items), widest);
    }
    EXPECT_EQ(List().GetWidestText({}), 0);
}

TEST_F(ComboDropWindow, PointerSelectsTheRowUnderIt)
{
    MakeCombo();
    ASSERT_TRUE(Open());
    MoveOnto(4);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetCurSel() == 4; }));
    MoveOnto(7);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetCurSel() == 7; }));
    EXPECT_EQ(m_combo->m_curSel, -1);
}

TEST_F(ComboDropWindow, PointerLeavesTheSelectionOverADisabledRow)
{
    MakeCombo();
    m_combo->SetItemDisabled(5, true);
    ASSERT_TRUE(Open());
    MoveOnto(4);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetCurSel() == 4; }));
    MoveOnto(5);
    EXPECT_EQ(List().GetCurSel(), 4);
    // The same with the button held.
    tests::MoveMouse(RowPoint(3));
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetCurSel() == 3; }));
    tests::Press();
    tests::PumpPosted();
    tests::MoveMouse(RowPoint(5));
    tests::PumpPosted();
    EXPECT_EQ(List().GetCurSel(), 3);
    tests::MoveMouse(RowPoint(2));
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetCurSel() == 2; }));
    tests::Release();
    ASSERT_TRUE(WaitClosed());
    EXPECT_EQ(m_combo->GetCurSel(), 2);
}

TEST_F(ComboDropWindow, ClickOnADisabledRowDoesNothing)
{
    MakeCombo();
    m_combo->SetItemDisabled(5, true);
    ASSERT_TRUE(Open());
    MoveOnto(4);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetCurSel() == 4; }));
    tests::Click(RowPoint(5));
    tests::PumpFor(std::chrono::milliseconds(50));
    EXPECT_TRUE(m_combo->GetDroppedState());
    EXPECT_EQ(List().GetCurSel(), 4);
    EXPECT_EQ(m_combo->m_curSel, -1);
    EXPECT_EQ(m_host.TakeHeard(), Heard{});
    tests::Click(RowPoint(6));
    ASSERT_TRUE(WaitClosed());
    EXPECT_EQ(m_combo->GetCurSel(), 6);
}

TEST_F(ComboDropWindow, OpensOnTheSelectionOrTheNextEnabledRow)
{
    MakeCombo();
    m_combo->SetCurSel(3);
    // A late report may put the pointer back over the list, where it selects.
    auto const opensOn = [this](int row) {
        for (int attempt = 0; attempt < 10; ++attempt)
        {
            if (!tests::MoveMouse(CPoint(900, 900)) || !Open())
                return false;
            int const selected = List().GetCurSel();
            m_combo->ShowDropDown(false);
            if (selected == row)
                return true;
        }
        return false;
    };
    EXPECT_TRUE(opensOn(3));
    m_combo->SetItemDisabled(3, true);
    EXPECT_TRUE(opensOn(4));
}

TEST_F(ComboDropWindow, SelectionStepsOverDisabledRows)
{
    MakeCombo();
    for (int const row : {0, 4, 5, 9})
        m_combo->SetItemDisabled(row, true);
    ASSERT_TRUE(Open());
    EXPECT_EQ(List().SetCurSel(3), 3);
    List().SetCurSel(4);
    EXPECT_EQ(List().GetCurSel(), 6);
    List().SetCurSel(5);
    EXPECT_EQ(List().GetCurSel(), 3);
    EXPECT_EQ(List().SetCurSel(9), 9);
    EXPECT_EQ(List().GetCurSel(), 3);
    EXPECT_EQ(List().SetCurSel(0), 0);
    EXPECT_EQ(List().GetCurSel(), 3);
}

TEST_F(ComboDropWindow, CaptureWandersWithThePointer)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(40));
    m_combo->SetMaxVisible(8);
    ASSERT_TRUE(Open());
    HWND const drop = m_combo->GetDropWnd()->m_hWnd;
    auto const captureAt = [](CPoint point, HWND expected) {
        // A pixel apart, so that each attempt is a move.
        for (int attempt = 0; attempt < 30; ++attempt)
        {
            tests::MoveMouse(CPoint(point.x + attempt % 2, point.y));
            if (tests::PumpUntil([&] { return ::GetCapture() == expected; }, std::chrono::milliseconds(2000)))
                return true;
        }
        return false;
    };
    CRect const rect = DropRect();
    EXPECT_TRUE(captureAt(RowPoint(2), List().m_hWnd));
    EXPECT_TRUE(captureAt(CPoint(rect.right + 60, rect.top + 30), drop));
    EXPECT_TRUE(captureAt(tests::Centre(ScrollBar().m_hWnd), ScrollBar().m_hWnd));
    EXPECT_TRUE(captureAt(GripPoint(), drop));
    EXPECT_TRUE(captureAt(RowPoint(5), List().m_hWnd));
    EXPECT_TRUE(captureAt(CPoint(rect.left - 60, rect.top - 60), drop));
}

TEST_F(ComboDropWindow, ScrollBarFollowsRangeAndPage)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(40));
    m_combo->SetMaxVisible(8);
    ASSERT_TRUE(Open());
    SCROLLINFO info = {};
    ASSERT_TRUE(ScrollBar().GetScrollInfo(&info));
    EXPECT_EQ(info.nMin, 0);
    EXPECT_EQ(info.nMax, 39);
    EXPECT_EQ(info.nPage, static_cast<UINT>(List().GetVisibleRows()));
    EXPECT_EQ(info.nPos, 0);
}

TEST_F(ComboDropWindow, ScrollCodesMoveTheList)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(40));
    m_combo->SetMaxVisible(8);
    ASSERT_TRUE(Open());
    int const page = List().GetVisibleRows();
    auto const scroll = [this](int code, int position = 0) {
        m_combo->GetDropWnd()->SendMessage(WM_VSCROLL, MAKEWPARAM(code, position),
                                           reinterpret_cast<LPARAM>(ScrollBar().m_hWnd));
        EXPECT_EQ(ScrollBar().GetScrollPos(), List().GetTopIndex());
        return List().GetTopIndex();
    };
    EXPECT_EQ(scroll(SB_LINEDOWN), 1);
    EXPECT_EQ(scroll(SB_PAGEDOWN), 1 + page);
    EXPECT_EQ(scroll(SB_LINEUP), page);
    EXPECT_EQ(scroll(SB_PAGEUP), 0);
    EXPECT_EQ(scroll(SB_LINEUP), 0);
    EXPECT_EQ(scroll(SB_THUMBTRACK, 12), 12);
    EXPECT_EQ(scroll(SB_THUMBPOSITION, 9), 9);
    EXPECT_EQ(scroll(SB_TOP), 9);
    EXPECT_EQ(scroll(SB_BOTTOM), 9);
}

TEST_F(ComboDropWindow, EndOfScrollingGivesTheCaptureBack)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(40));
    m_combo->SetMaxVisible(8);
    ASSERT_TRUE(Open());
    ScrollBar().SetCapture();
    m_combo->GetDropWnd()->SendMessage(WM_VSCROLL, SB_ENDSCROLL, reinterpret_cast<LPARAM>(ScrollBar().m_hWnd));
    EXPECT_EQ(::GetCapture(), nullptr);
    tests::PumpPosted();
    EXPECT_EQ(::GetCapture(), m_combo->GetDropWnd()->m_hWnd);
}

TEST_F(ComboDropWindow, RealClickOnTheScrollBarScrolls)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(40));
    m_combo->SetMaxVisible(8);
    ASSERT_TRUE(Open());
    CRect bar;
    ScrollBar().GetWindowRect(bar);
    CPoint const down(bar.CenterPoint().x, bar.bottom - 5);
    tests::MoveMouse(down);
    ASSERT_TRUE(tests::PumpUntil([this] { return ::GetCapture() == ScrollBar().m_hWnd; }));
    tests::Click(down);
    ASSERT_TRUE(tests::PumpUntil([this] { return List().GetTopIndex() == 1; }));
    EXPECT_TRUE(m_combo->GetDroppedState());
}

TEST_F(ComboDropWindow, GripSizesTheWindow)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(40));
    m_combo->SetMaxVisible(8);
    ASSERT_TRUE(Open());
    CRect const before = DropRect();
    tests::Drag(GripPoint(), GripPoint() + CSize(60, 40));
    ASSERT_TRUE(tests::PumpUntil([&] { return DropRect().Width() == before.Width() + 60; }));
    EXPECT_EQ(DropRect(), CRect(before.left, before.top, before.right + 60, before.bottom + 42));
    EXPECT_TRUE(m_combo->GetDroppedState());
    SCROLLINFO info = {};
    ScrollBar().GetScrollInfo(&info);
    EXPECT_EQ(info.nPage, static_cast<UINT>(List().GetVisibleRows()));
}

TEST_F(ComboDropWindow, GripKeepsWithinItsLimits)
{
    MakeCombo(CBS_DROPDOWNLIST, Numbered(40));
    m_combo->SetMaxVisible(8);
    ASSERT_TRUE(Open());
    CRect const before = DropRect();
    CPoint const grip = GripPoint();
    tests::Drag(grip, grip - CSize(200, 200));
    ASSERT_TRUE(tests::PumpUntil([&] { return DropRect().Height() < before.Height(); }));
    tests::PumpPosted();
    EXPECT_EQ(DropRect().Width(), ComboRect().Width());
    EXPECT_EQ(DropRect().Height(), ::GetSystemMetrics(SM_CXVSCROLL) + 1);
    m_combo->ShowDropDown(false);

    ASSERT_TRUE(Open());
    tests::Drag(GripPoint(), GripPoint() + CSize(400, 400));
    ASSERT_TRUE(tests::PumpUntil([&] { return DropRect().Width() == before.Width() + 100; }));
    tests::PumpPosted();
    EXPECT_EQ(DropRect().Height(), before.Height() + 100);
}

TEST_F(ComboDropWindow, GripHasItsOwnCursor)
{
    MakeCombo();
    ASSERT_TRUE(Open());
    CRect client;
    m_combo->GetDropWnd()->GetClientRect(client);
    m_combo->GetDropWnd()->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(client.right - 5, client.bottom - 5));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_SIZENWSE));
    m_combo->GetDropWnd()->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(client.right + 50, 5));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_ARROW));
}

TEST_F(ComboDropWindow, ReleaseOutsideTheListChoosesTheSelection)
{
    MakeCombo();
    ASSERT_TRUE(Open());
    List().SetCurSel(4);
    List().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(-20, 5));
    tests::PumpPosted();
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(m_combo->GetCurSel(), 4);
}

TEST_F(ComboDropWindow, EndsWithoutItsCombosHelp)
{
    MakeCombo();
    ASSERT_TRUE(Open());
    ::DestroyWindow(m_combo->GetDropWnd()->m_hWnd);
    EXPECT_EQ(m_combo->SendMessage(CB_GETTOPINDEX), -1);
    PostKey(VK_DOWN);
    PostKey(VK_NEXT);
    m_combo->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    m_combo->SendMessage(XListCtrl::WM_ADVCOMBO_CLOSE_DROP);
    EXPECT_FALSE(m_combo->GetDroppedState());
    ASSERT_TRUE(Open());
}
