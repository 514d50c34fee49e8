// Tool bars: their buttons from resources, commands and updates, rows, tips and the frame's messages.

#include "bars_BarTest.h"
#include "GuardedHeap.h"
#include "ImportPatch.h"

namespace
{
using Ids = std::vector<UINT>;

class ToolBars : public bars::BarTest
{
protected:
    UINT StyleOf(UINT id) const { return m_frame->m_tools.GetButtonStyle(m_frame->m_tools.CommandToIndex(id)); }
    bool Has(UINT id, UINT flag) const { return (StyleOf(id) & flag) != 0; }
};

/// The visible tool tip of this thread; null if there is none.
HWND VisibleTip()
{
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            wchar_t name[64] = {};
            ::GetClassName(window, name, static_cast<int>(std::size(name)));
            if (!::IsWindowVisible(window) || ::lstrcmpi(name, TOOLTIPS_CLASS) != 0)
                return TRUE;
            *reinterpret_cast<HWND *>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

TEST_F(ToolBars, ResourceGivesSizeButtonsAndPictures)
{
    m_frame->AddTools();
    CToolBar & bar = m_frame->m_tools;
    EXPECT_EQ(bar.GetCount(), 7);
    EXPECT_EQ(bar.GetToolBarCtrl().GetButtonCount(), 7);
    EXPECT_EQ(bar.GetItemID(0), static_cast<UINT>(ID_TOOL_A));
    EXPECT_EQ(bar.GetItemID(3), static_cast<UINT>(ID_TOOL_C));
    EXPECT_EQ(bar.CommandToIndex(ID_TOOL_E), 6);
    EXPECT_EQ(bar.CommandToIndex(12345), -1);
    UINT id = 0;
    UINT style = 0;
    int image = 0;
    bar.GetButtonInfo(4, id, style, image);
    EXPECT_EQ(id, static_cast<UINT>(ID_TOOL_D));
    EXPECT_EQ(style, static_cast<UINT>(TBBS_BUTTON));
    EXPECT_EQ(image, 3); // separators have no picture
    bar.GetButtonInfo(2, id, style, image);
    EXPECT_EQ(style, static_cast<UINT>(TBBS_SEPARATOR));
    CRect rect;
    bar.GetItemRect(0, &rect);
    EXPECT_EQ(rect.Size(), CSize(23, 22));
    EXPECT_EQ(bar.GetToolBarCtrl().GetImageList()->GetImageCount(), 5);
    EXPECT_EQ(bar.GetToolBarCtrl().m_hWnd, bar.m_hWnd);
}

TEST_F(ToolBars, DamagedAndMissingResourcesAreRefused)
{
    CToolBar bar;
    ASSERT_TRUE(bar.Create(m_frame));
    EXPECT_FALSE(bar.LoadToolBar(IDR_BARS_DAMAGED));
    EXPECT_FALSE(bar.LoadToolBar(9999u));
    EXPECT_FALSE(bar.LoadBitmap(9999u));
    EXPECT_EQ(bar.GetToolBarCtrl().GetButtonCount(), 0);
}

TEST_F(ToolBars, ButtonsFromAListAndTheirInformation)
{
    CToolBar & bar = m_frame->m_tools;
    ASSERT_TRUE(bar.Create(m_frame));
    static UINT const ids[] = {ID_TOOL_A, ID_SEPARATOR, ID_TOOL_B};
    ASSERT_TRUE(bar.SetButtons(ids, 3));
    bar.SetButtonInfo(2, ID_TOOL_C, TBBS_CHECKBOX | TBBS_CHECKED, 4);
    UINT id = 0;
    UINT style = 0;
    int image = 0;
    bar.GetButtonInfo(2, id, style, image);
    EXPECT_EQ(id, static_cast<UINT>(ID_TOOL_C));
    EXPECT_EQ(style, static_cast<UINT>(TBBS_CHECKBOX | TBBS_CHECKED));
    EXPECT_EQ(image, 4);
    CRect before;
    bar.GetItemRect(2, &before);
    bar.SetButtonInfo(1, 0, TBBS_SEPARATOR, 40); // a separator's picture is its width
    CRect after;
    bar.GetItemRect(2, &after);
    EXPECT_EQ(after.left - before.left, 40 - 8);
    EXPECT_TRUE(bar.SetButtonText(0, L"Words"));
    EXPECT_EQ(bar.GetButtonText(0), L"Words");
    CString text;
    bar.GetButtonText(2, text);
    EXPECT_TRUE(text.IsEmpty());
    bar.SetButtonStyle(0, TBBS_BUTTON | TBBS_HIDDEN);
    CRect hidden;
    bar.GetItemRect(0, &hidden);
    EXPECT_TRUE(hidden.IsRectEmpty());
    ASSERT_TRUE(bar.SetButtons(nullptr, 2));
    EXPECT_EQ(bar.GetCount(), 2);
    EXPECT_NE(bar.GetButtonStyle(0) & TBBS_DISABLED, 0u);
}

TEST_F(ToolBars, HeightIsWhatWasAskedFor)
{
    m_frame->AddTools(CBRS_TOP);
    m_frame->m_tools.SetHeight(41);
    Show();
    EXPECT_EQ(m_frame->Place(m_frame->m_tools).Height(), 41);
    EXPECT_EQ(m_frame->m_tools.GetBorders().top - m_frame->m_tools.GetBorders().bottom, 1);
}

TEST_F(ToolBars, ClickReachesTheFramesHandler)
{
    m_frame->AddTools();
    Show();
    tests::Click(ButtonCentre(m_frame->m_tools, ID_TOOL_C));
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_frame->m_commands.empty(); }));
    EXPECT_EQ(m_frame->m_commands, Ids{ID_TOOL_C});
}

TEST_F(ToolBars, IdleTimeEnablesChecksAndGreys)
{
    m_frame->AddTools();
    m_frame->m_updates[ID_TOOL_A] = [](CCmdUI * state) { state->Enable(FALSE); };
    m_frame->m_updates[ID_TOOL_B] = [](CCmdUI * state) { state->SetCheck(1); };
    m_frame->m_updates[ID_TOOL_C] = [](CCmdUI * state) { state->SetCheck(2); };
    m_frame->m_updates[ID_TOOL_D] = [](CCmdUI * state) { state->SetText(L"not here"); };
    m_frame->m_tools.SetButtonInfo(6, 35000, TBBS_BUTTON, 4); // no handler
    Show();
    EXPECT_TRUE(Has(ID_TOOL_A, TBBS_DISABLED));
    EXPECT_TRUE(Has(ID_TOOL_B, TBBS_CHECKED));
    EXPECT_FALSE(Has(ID_TOOL_B, TBBS_DISABLED)); // there is a handler of its command
    EXPECT_TRUE(Has(ID_TOOL_C, TBBS_INDETERMINATE));
    EXPECT_FALSE(Has(ID_TOOL_C, TBBS_CHECKED));
    EXPECT_TRUE(m_frame->m_tools.GetButtonText(4).IsEmpty());
    EXPECT_TRUE(Has(35000, TBBS_DISABLED));
    m_frame->m_updates[ID_TOOL_A] = [](CCmdUI * state) { state->Enable(TRUE); };
    m_frame->m_updates[ID_TOOL_B] = [](CCmdUI * state) { state->SetCheck(0); };
    Idle();
    EXPECT_FALSE(Has(ID_TOOL_A, TBBS_DISABLED));
    EXPECT_FALSE(Has(ID_TOOL_B, TBBS_CHECKED));
}

TEST_F(ToolBars, UpdateThatChangesNothingPaintsNothing)
{
    m_frame->AddTools();
    m_frame->m_updates[ID_TOOL_B] = [](CCmdUI * state) { state->SetCheck(1); };
    Show();
    Idle();
    m_frame->m_tools.UpdateWindow();
    m_frame->m_tools.ValidateRect(nullptr);
    Idle();
    EXPECT_FALSE(m_frame->m_tools.GetUpdateRect(nullptr));
}

TEST_F(ToolBars, HiddenBarIsNotUpdated)
{
    m_frame->AddTools();
    Show();
    m_frame->ShowControlBar(&m_frame->m_tools, FALSE, FALSE);
    int asked = 0;
    m_frame->m_updates[ID_TOOL_A] = [&](CCmdUI *) { ++asked; };
    Idle();
    EXPECT_EQ(asked, 0);
    m_frame->ShowControlBar(&m_frame->m_tools, TRUE, FALSE);
    Idle();
    EXPECT_EQ(asked, 1);
}

TEST_F(ToolBars, VerticalBarIsAColumn)
{
    m_frame->AddSide(CBRS_LEFT);
    m_frame->AddClient();
    Show();
    CToolBar const & bar = m_frame->m_side;
    int last = -1;
    for (UINT const id : {ID_TOOL_A, ID_TOOL_B, ID_TOOL_C, ID_TOOL_D, ID_TOOL_E})
    {
        CRect rect;
        bar.GetItemRect(bar.CommandToIndex(id), &rect);
        EXPECT_EQ(rect.left, 0);
        EXPECT_GT(rect.top, last);
        last = rect.bottom - 1;
    }
    // As wide as a button, and as high as the frame.
    EXPECT_EQ(m_frame->Place(bar).Width(), 23 + 2 * ::GetSystemMetrics(SM_CXBORDER));
    EXPECT_EQ(m_frame->Place(bar).Height(), m_frame->Inside().Height());
    CSize const natural = m_frame->m_side.CalcFixedLayout(FALSE, FALSE);
    EXPECT_GE(natural.cy, last);
}

TEST_F(ToolBars, BarThatTurnsIsARowAgain)
{
    m_frame->AddSide(CBRS_LEFT);
    Show();
    m_frame->m_side.SetBarStyle(CBRS_TOP);
    m_frame->RecalcLayout();
    CRect first;
    CRect last;
    m_frame->m_side.GetItemRect(0, &first);
    m_frame->m_side.GetItemRect(6, &last);
    EXPECT_EQ(first.top, last.top);
    EXPECT_EQ(m_frame->Place(m_frame->m_side).Height(), 22 + 2 * ::GetSystemMetrics(SM_CYBORDER));
}

TEST_F(ToolBars, DynamicBarWrapsAtItsLengthPreferringSeparators)
{
    m_frame->AddTools(CBRS_TOP | CBRS_SIZE_DYNAMIC);
    CToolBar & bar = m_frame->m_tools;
    CSize const one = bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK);
    EXPECT_EQ(bar.GetButtonStyle(2) & TBBS_WRAPPED, 0u);
    // Room for two buttons: a separator ends each row.
    CSize const wrapped = bar.CalcDynamicLayout(2 * 23 + 10, LM_HORZ);
    EXPECT_LT(wrapped.cx, one.cx);
    EXPECT_GT(wrapped.cy, 3 * 22 - 1);
    EXPECT_EQ(bar.GetButtonStyle(2) & TBBS_WRAPPED, 0u); // that was only a question
    bar.CalcDynamicLayout(2 * 23 + 10, LM_HORZ | LM_COMMIT);
    EXPECT_NE(bar.GetButtonStyle(2) & TBBS_WRAPPED, 0u);
    EXPECT_NE(bar.GetButtonStyle(5) & TBBS_WRAPPED, 0u);
    CRect a;
    CRect c;
    bar.GetItemRect(0, &a);
    bar.GetItemRect(3, &c);
    EXPECT_EQ(c.left, a.left);
    EXPECT_GE(c.top, a.bottom);
    // Its last width is found again, and docked it's one row.
    EXPECT_EQ(bar.CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH), bar.CalcDynamicLayout(2 * 23 + 10, LM_HORZ));
    Show();
    EXPECT_EQ(bar.GetButtonStyle(2) & TBBS_WRAPPED, 0u);
}

TEST_F(ToolBars, WrappedHeightStaysWithinTheLengthAskedFor)
{
    m_frame->AddTools(CBRS_TOP | CBRS_SIZE_DYNAMIC);
    CToolBar & bar = m_frame->m_tools;
    CSize const low = bar.CalcDynamicLayout(30, LM_HORZ | LM_LENGTHY);
    CSize const high = bar.CalcDynamicLayout(500, LM_HORZ | LM_LENGTHY);
    EXPECT_LE(low.cy, 30);
    EXPECT_LE(high.cy, 500);
    EXPECT_LT(high.cx, low.cx);
    EXPECT_GT(high.cy, low.cy);
}

TEST_F(ToolBars, FixedBarKeepsTheRowsOfTheProgram)
{
    m_frame->AddTools(CBRS_TOP | CBRS_SIZE_FIXED);
    CToolBar & bar = m_frame->m_tools;
    bar.SetButtonStyle(1, bar.GetButtonStyle(1) | static_cast<UINT>(TBBS_WRAPPED));
    m_frame->AddClient();
    Show();
    EXPECT_NE(bar.GetButtonStyle(1) & TBBS_WRAPPED, 0u);
    EXPECT_GE(m_frame->Place(bar).Height(), 2 * 22);
    CRect client;
    bar.GetClientRect(&client);
    CRect last;
    bar.GetItemRect(6, &last);
    EXPECT_EQ(last.bottom, client.bottom);
    ExpectCovered();
}

TEST_F(ToolBars, DropDownNotifiesTheFrame)
{
    m_frame->AddTools();
    CToolBar & bar = m_frame->m_tools;
    bar.GetToolBarCtrl().SetExtendedStyle(TBSTYLE_EX_DRAWDDARROWS);
    bar.SetButtonStyle(0, bar.GetButtonStyle(0) | static_cast<UINT>(TBBS_DROPDOWN));
    Show();
    CRect rect;
    bar.GetItemRect(0, &rect);
    EXPECT_GT(rect.Width(), 23); // with its arrow
    tests::Click(tests::ClientPoint(bar.m_hWnd, CPoint(rect.right - 4, rect.CenterPoint().y)));
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_frame->m_dropDowns.empty(); }));
    EXPECT_EQ(m_frame->m_dropDowns, std::vector<int>{ID_TOOL_A});
    EXPECT_TRUE(m_frame->m_commands.empty());
}

TEST_F(ToolBars, BarDestroyedInItsOwnCommandIsGone)
{
    m_frame->AddTools();
    m_frame->AddClient();
    Show();
    m_frame->m_onCommand = [&](UINT) { m_frame->m_tools.DestroyWindow(); };
    tests::Click(ButtonCentre(m_frame->m_tools, ID_TOOL_A));
    ASSERT_TRUE(tests::PumpUntil([&] { return m_frame->m_tools.m_hWnd == nullptr; }));
    Idle();
    m_frame->RecalcLayout();
    ExpectCovered();
}

TEST_F(ToolBars, FrameDestroyedInAnUpdateEndsTheUpdate)
{
    m_frame->AddTools();
    m_frame->AddStatusBar();
    Show();
    HWND const window = m_window;
    m_frame->m_updates[ID_TOOL_B] = [&](CCmdUI *) { ::DestroyWindow(window); };
    tests::App().OnIdle(0);
    EXPECT_FALSE(::IsWindow(window));
}

TEST(ToolBarEnds, CommandWhoseUpdateEndsTheFrameIsNotCarriedOut)
{
    tests::GuardedHeap heap; // a fault ends the program
    auto * const frame = new bars::BarFrame;
    ASSERT_TRUE(frame->CreateFrame(CRect(60, 60, 260, 260)));
    HWND const window = frame->m_hWnd;
    frame->m_updates[ID_TOOL_A] = [window](CCmdUI *) { ::DestroyWindow(window); };
    ::SendMessage(window, WM_COMMAND, ID_TOOL_A, 0);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(heap.Check(), 0u);
}

TEST_F(ToolBars, TipIsTheSecondLineOfTheCommandsString)
{
    m_frame->AddTools(CBRS_TOP | CBRS_TOOLTIPS);
    Show();
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window, {300, 200})));
    // A tip that a late move of a busy system has hidden again comes with the next one.
    HWND tip = nullptr;
    for (int i = 0; i < 30 && tip == nullptr; ++i)
    {
        tests::MoveMouse(ButtonCentre(m_frame->m_tools, ID_TOOL_B) + CPoint(i % 2, 0));
        tests::PumpUntil([&tip] { return (tip = VisibleTip()) != nullptr; }, std::chrono::seconds(2));
    }
    ASSERT_NE(tip, nullptr);
    NMTTDISPINFO asked{};
    asked.hdr.code = TTN_NEEDTEXT;
    asked.hdr.hwndFrom = tip;
    asked.hdr.idFrom = ID_TOOL_B;
    m_frame->m_tools.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&asked));
    EXPECT_STREQ(asked.lpszText, L"Tip of B");
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window, {300, 200})));
    EXPECT_TRUE(tests::PumpUntil([] { return VisibleTip() == nullptr; }));
}

TEST_F(ToolBars, BarWithoutToolTipsShowsNone)
{
    m_frame->AddTools(CBRS_TOP | CBRS_TOOLTIPS);
    m_frame->m_tools.SetBarStyle(CBRS_TOP);
    Show();
    ASSERT_TRUE(tests::MoveMouse(ButtonCentre(m_frame->m_tools, ID_TOOL_B)));
    tests::PumpFor(std::chrono::milliseconds(1500));
    EXPECT_EQ(VisibleTip(), nullptr);
}

TEST_F(ToolBars, FramesMessageFollowsTheMouse)
{
    m_frame->AddTools(CBRS_TOP | CBRS_FLYBY);
    m_frame->AddStatusBar();
    Show();
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window, {300, 200})));
    ASSERT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Ready"; }));
    ASSERT_TRUE(tests::MoveMouse(ButtonCentre(m_frame->m_tools, ID_TOOL_A)));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Message of A"; }));
    ASSERT_TRUE(tests::MoveMouse(ButtonCentre(m_frame->m_tools, ID_TOOL_C)));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Message of C"; }));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window, {300, 200})));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Ready"; }));
}

bool g_cursorIsLate = false;
int g_lateAnswers = 0; // beyond that
CPoint g_formerCursor;

BOOL WINAPI LateCursor(POINT * place)
{
    if (!g_cursorIsLate && g_lateAnswers == 0)
        return ::GetCursorPos(place);
    g_lateAnswers -= g_cursorIsLate ? 0 : 1;
    *place = g_formerCursor;
    return TRUE;
}

class LateToolBars : public ToolBars
{
protected:
    /// The mouse comes to the first tool while the system still tells the place before, also to so many questions after
    /// the mouse's message; no other message comes after it.
    void ComeLate(int answers)
    {
        m_frame->AddTools(CBRS_TOP | CBRS_FLYBY);
        m_frame->AddStatusBar();
        Show();
        g_formerCursor = tests::ClientPoint(m_window, {300, 200});
        ASSERT_TRUE(tests::MoveMouse(g_formerCursor));
        tests::ImportPatch const patch(L"framework.dll", "GetCursorPos", &LateCursor);
        ASSERT_TRUE(patch.Done());
        g_cursorIsLate = true;
        CPoint const button = ButtonCentre(m_frame->m_tools, ID_TOOL_A);
        EXPECT_TRUE(tests::MoveMouse(button));
        MSG move{};
        move.hwnd = m_frame->m_tools.m_hWnd;
        move.message = WM_MOUSEMOVE;
        move.pt = button;
        g_lateAnswers = answers;
        m_frame->m_tools.PreTranslateMessage(&move);
        g_cursorIsLate = false;
        EXPECT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Message of A"; }));
        g_lateAnswers = 0;
    }
};

TEST_F(LateToolBars, FramesMessageGoesByTheMousesMessages)
{
    ComeLate(0);
}

TEST_F(LateToolBars, FramesMessageComesThoughTheCursorIsStillLateWhenTheMouseHasRested)
{
    ComeLate(1);
}

TEST_F(ToolBars, ABarThatTheMouseHasLeftDoesNotTakeTheNextOnesMessageAway)
{
    constexpr UINT_PTR wait_timer = 0xE000;
    constexpr UINT_PTR check_timer = 0xE001;
    m_frame->AddTools(CBRS_TOP | CBRS_FLYBY);
    m_frame->AddSide(CBRS_LEFT | CBRS_FLYBY);
    m_frame->AddStatusBar();
    Show();
    g_formerCursor = ButtonCentre(m_frame->m_side, ID_TOOL_A);
    ASSERT_TRUE(tests::MoveMouse(g_formerCursor));
    ASSERT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Message of A"; }));
    tests::ImportPatch const patch(L"framework.dll", "GetCursorPos", &LateCursor);
    ASSERT_TRUE(patch.Done());
    g_cursorIsLate = true; // so that no timer says more before its turn
    CPoint const button = ButtonCentre(m_frame->m_tools, ID_TOOL_C);
    ASSERT_TRUE(tests::MoveMouse(button));
    g_cursorIsLate = false;
    MSG move{};
    move.hwnd = m_frame->m_tools.m_hWnd;
    move.message = WM_MOUSEMOVE;
    move.pt = button;
    m_frame->m_tools.PreTranslateMessage(&move);
    m_frame->m_tools.SendMessage(WM_TIMER, wait_timer);
    EXPECT_EQ(m_frame->StatusText(), L"Message of C");
    m_frame->m_side.SendMessage(WM_TIMER, check_timer);
    EXPECT_EQ(m_frame->StatusText(), L"Message of C");
}

TEST_F(ToolBars, BarThatGoesTakesItsMessageAway)
{
    m_frame->AddTools(CBRS_TOP | CBRS_FLYBY);
    m_frame->AddStatusBar();
    Show();
    ASSERT_TRUE(tests::MoveMouse(ButtonCentre(m_frame->m_tools, ID_TOOL_A)));
    ASSERT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Message of A"; }));
    m_frame->m_tools.DestroyWindow();
    EXPECT_EQ(m_frame->StatusText(), L"Ready");
}
} // namespace
