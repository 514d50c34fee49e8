// Status bars: panes, their texts and widths, the key indicators, panes that the program draws.

#include "bars_BarTest.h"

namespace
{
class StatusBars : public bars::BarTest
{
};

/// Switches a key's toggled state for this thread.
class KeyState
{
public:
    KeyState(int key, bool toggled) : m_key(key)
    {
        ::GetKeyboardState(m_keys);
        m_before = m_keys[key];
        Set(toggled ? 1 : 0);
    }
    ~KeyState() { Set(m_before); }
    KeyState(KeyState const &) = delete;
    KeyState & operator=(KeyState const &) = delete;

    void Set(BYTE state)
    {
        m_keys[m_key] = state;
        ::SetKeyboardState(m_keys);
    }

private:
    int m_key;
    BYTE m_before = 0;
    BYTE m_keys[256] = {};
};

TEST_F(StatusBars, PanesHaveTheStringsOfTheirIdentifiers)
{
    m_frame->AddStatusBar();
    CStatusBar & bar = m_frame->m_status;
    EXPECT_EQ(bar.GetCount(), 4);
    EXPECT_EQ(bar.GetStatusBarCtrl().GetParts(0, nullptr), 4);
    EXPECT_EQ(bar.GetPaneText(1), L"CAP");
    EXPECT_EQ(bar.GetItemID(3), static_cast<UINT>(ID_INDICATOR_SCRL));
    EXPECT_EQ(bar.CommandToIndex(ID_INDICATOR_NUM), 2);
    EXPECT_EQ(bar.CommandToIndex(4711), -1);
    EXPECT_EQ(bar.GetPaneStyle(0), static_cast<UINT>(SBPS_STRETCH | SBPS_NOBORDERS));
    EXPECT_EQ(bar.GetPaneStyle(1), static_cast<UINT>(SBPS_NORMAL));
    static UINT const missing[] = {ID_SEPARATOR, 31999};
    EXPECT_FALSE(bar.SetIndicators(missing, 2));
    EXPECT_EQ(bar.GetCount(), 4); // as it was
}

TEST_F(StatusBars, FirstPaneTakesWhatTheOthersLeave)
{
    m_frame->AddStatusBar();
    m_frame->AddClient();
    Show();
    CRect first;
    CRect last;
    auto const measure = [&] {
        m_frame->m_status.GetItemRect(0, &first);
        m_frame->m_status.GetItemRect(3, &last);
    };
    measure();
    CRect const before = first;
    int const lastWidth = last.Width();
    m_frame->SetWindowPos(nullptr, 0, 0, 900, 500, SWP_NOMOVE | SWP_NOZORDER);
    measure();
    EXPECT_EQ(first.Width() - before.Width(), 200);
    EXPECT_EQ(last.Width(), lastWidth);
    CRect client;
    m_frame->m_status.GetClientRect(&client);
    EXPECT_LE(last.right, client.right - ::GetSystemMetrics(SM_CXVSCROLL)); // the grip's place
}

TEST_F(StatusBars, PanesShareWhatIsLeft)
{
    m_frame->AddStatusBar();
    Show();
    CStatusBar & bar = m_frame->m_status;
    bar.SetPaneInfo(1, ID_INDICATOR_CAPS, SBPS_STRETCH, 0);
    CRect first;
    CRect second;
    bar.GetItemRect(0, &first);
    bar.GetItemRect(1, &second);
    EXPECT_NEAR(first.Width(), second.Width(), 2);
    bar.SetPaneInfo(1, ID_INDICATOR_CAPS, SBPS_NORMAL, 77);
    UINT id = 0;
    UINT style = 1;
    int width = 0;
    bar.GetPaneInfo(1, id, style, width);
    EXPECT_EQ(id, static_cast<UINT>(ID_INDICATOR_CAPS));
    EXPECT_EQ(style, static_cast<UINT>(SBPS_NORMAL));
    EXPECT_EQ(width, 77);
    bar.GetItemRect(1, &second);
    EXPECT_GE(second.Width(), 77);
    EXPECT_LE(second.Width(), 77 + 10);
}

TEST_F(StatusBars, WindowTextIsThatOfThePaneWithoutIdentifier)
{
    m_frame->AddStatusBar();
    CStatusBar & bar = m_frame->m_status;
    bar.SetWindowText(L"measuring");
    EXPECT_EQ(bar.GetPaneText(0), L"measuring");
    CString text;
    bar.GetWindowText(text);
    EXPECT_EQ(text, L"measuring");
    EXPECT_EQ(bar.GetWindowTextLength(), 9);
    wchar_t few[5] = {};
    EXPECT_EQ(bar.GetWindowText(few, 5), 4);
    EXPECT_STREQ(few, L"meas");
    EXPECT_EQ(bar.GetStatusBarCtrl().GetText(0), L"measuring");
    m_frame->SetMessageText(L"by the frame");
    EXPECT_EQ(bar.GetPaneText(0), L"by the frame");
    m_frame->SetMessageText(ID_TOOL_A);
    EXPECT_EQ(bar.GetPaneText(0), L"Message of A");
}

TEST_F(StatusBars, TextWithoutUpdateIsShownLater)
{
    m_frame->AddStatusBar();
    Show();
    CStatusBar & bar = m_frame->m_status;
    EXPECT_TRUE(bar.SetPaneText(0, L"at once"));
    EXPECT_TRUE(bar.SetPaneText(0, L"later", FALSE));
    EXPECT_EQ(bar.GetPaneText(0), L"later");
    EXPECT_EQ(bar.GetStatusBarCtrl().GetText(0), L"at once");
    Idle();
    EXPECT_EQ(bar.GetStatusBarCtrl().GetText(0), L"later");
    EXPECT_FALSE(bar.SetPaneText(17, L"nowhere"));
}

TEST_F(StatusBars, KeyIndicatorsFollowTheKeys)
{
    m_frame->AddStatusBar();
    Show();
    CStatusBar & bar = m_frame->m_status;
    for (auto const & [key, pane, text] :
         {std::tuple{VK_CAPITAL, 1, L"CAP"}, std::tuple{VK_NUMLOCK, 2, L"NUM"}, std::tuple{VK_SCROLL, 3, L"SCRL"}})
    {
        SCOPED_TRACE(testing::PrintToString(std::wstring(text)));
        KeyState state(key, true);
        tests::App().OnIdle(0);
        EXPECT_EQ(bar.GetStatusBarCtrl().GetText(pane), text);
        EXPECT_EQ(bar.GetPaneStyle(pane) & SBPS_DISABLED, 0u);
        state.Set(0);
        tests::App().OnIdle(0);
        EXPECT_TRUE(bar.GetStatusBarCtrl().GetText(pane).IsEmpty());
        EXPECT_EQ(bar.GetPaneText(pane), text); // it's there, and not shown
    }
}

TEST_F(StatusBars, PanesAreUpdatedByTheFramesHandlers)
{
    m_frame->AddStatusBar();
    static UINT const panes[] = {ID_SEPARATOR, ID_PANE_OWN};
    ASSERT_TRUE(m_frame->m_status.SetIndicators(panes, 2));
    m_frame->m_updates[ID_PANE_OWN] = [](CCmdUI * state) {
        state->Enable();
        state->SetCheck();
        state->SetText(L"12.5 V");
    };
    Show();
    EXPECT_EQ(m_frame->m_status.GetStatusBarCtrl().GetText(1), L"12.5 V");
    EXPECT_EQ(m_frame->m_status.GetPaneStyle(1), static_cast<UINT>(SBPS_POPOUT));
    m_frame->m_updates.clear(); // no handler: it stays as it is
    Idle();
    EXPECT_EQ(m_frame->m_status.GetStatusBarCtrl().GetText(1), L"12.5 V");
}

TEST_F(StatusBars, DrawnPaneIsDrawnByTheBar)
{
    m_frame->AddStatusBar();
    m_frame->AddClient();
    m_frame->m_status.SetPaneInfo(2, ID_INDICATOR_NUM, SBPS_OWNERDRAW, 60);
    Show();
    ASSERT_TRUE(tests::PumpUntil([&] { return m_frame->m_status.m_drawn > 0; }));
    EXPECT_EQ(m_frame->m_status.m_drawnItem, 2u);
}

TEST_F(StatusBars, HeightFollowsFontAndLeastHeight)
{
    m_frame->AddStatusBar();
    m_frame->AddClient();
    Show();
    int const plain = m_frame->Place(m_frame->m_status).Height();
    CFont large;
    ASSERT_TRUE(large.CreatePointFont(200, L"Tahoma"));
    m_frame->m_status.SetFont(&large);
    m_frame->RecalcLayout();
    EXPECT_GT(m_frame->Place(m_frame->m_status).Height(), plain + 5);
    m_frame->m_status.GetStatusBarCtrl().SetMinHeight(90);
    m_frame->RecalcLayout();
    EXPECT_GE(m_frame->Place(m_frame->m_status).Height(), 90);
    ExpectCovered();
    m_frame->m_status.SetFont(nullptr);
}

TEST_F(StatusBars, OnlyABarOfAResizableFrameHasAGrip)
{
    m_frame->AddStatusBar();
    EXPECT_NE(m_frame->m_status.GetStyle() & SBARS_SIZEGRIP, 0u);
    CStatusBar plain;
    CWnd fixed;
    ASSERT_TRUE(fixed.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0));
    ASSERT_TRUE(plain.Create(&fixed));
    EXPECT_EQ(plain.GetStyle() & SBARS_SIZEGRIP, 0u);
    plain.DestroyWindow();
    fixed.DestroyWindow();
}
} // namespace
