// Stand-alone frames on real windows.

#include <memory>

#include "MessageRecorder.h"
#include "views_FramesTest.h"
#include "windows/StandaloneFrameUser.h"
#include "windows/StandaloneFrameWnd.h"

using frames::g_log;
using frames::TestView;

namespace
{
class User : public CStandaloneFrameUser
{
public:
    CStandaloneFrameWnd * Open(wchar_t const * title = L"Scope", CRuntimeClass * viewClass = RUNTIME_CLASS(TestView))
    {
        return CreateFrame(title, viewClass);
    }
    template <class View> CStandaloneFrameWnd * OpenView() { return CreateFrame<View>(L"Scope"); }

    void BeiFrameAbleben() override
    {
        g_log.push_back("user told");
        ++m_told;
        if (m_atEnd)
            m_atEnd();
        else if (m_callsBase)
            CStandaloneFrameUser::BeiFrameAbleben();
    }
    void MenueKommando(int first, int second) override { m_commands.emplace_back(first, second); }
    void MausLDoppelKlick(unsigned int flags, CPoint point, int index) override
    {
        m_clicks.push_back({'L', flags, point, index});
        if (m_atClick)
            m_atClick();
    }
    void MausRDoppelKlick(unsigned int flags, CPoint point, int index) override
    {
        m_clicks.push_back({'R', flags, point, index});
    }

    struct Click
    {
        char button;
        unsigned int flags;
        CPoint point;
        int index;
    };
    int m_told = 0;
    bool m_callsBase = true;
    std::function<void()> m_atEnd;
    std::function<void()> m_atClick;
    std::vector<std::pair<int, int>> m_commands;
    std::vector<Click> m_clicks;
};

class StandaloneFrames : public frames::FramesTest
{
protected:
    bool StoredOpen(wchar_t const * name) { return CFensterManager::OpenInitially(name); }
};

void Close(CWnd & frame)
{
    frame.SendMessage(WM_CLOSE);
}
} // namespace

TEST_F(StandaloneFrames, AreChildrenOfTheMainFrameWithOneView)
{
    User user;
    EXPECT_FALSE(user.FrameLebt());
    CStandaloneFrameWnd * const frame = user.OpenView<TestView>();
    ASSERT_NE(frame, nullptr);
    EXPECT_TRUE(user.FrameLebt());
    EXPECT_EQ(frame->GetMDIFrame(), m_main);
    EXPECT_EQ(m_main->MDIGetActive(), frame);
    EXPECT_EQ(TitleOf(*frame), L"Scope");
    EXPECT_EQ(frame->GetStyle() & (WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW),
              static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW));
    EXPECT_EQ(frame->GetStyle() & FWS_ADDTOTITLE, 0u);
    CView * const view = frame->GetActiveView();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->GetDlgCtrlID(), AFX_IDW_PANE_FIRST);
    EXPECT_TRUE(view->IsKindOf(RUNTIME_CLASS(TestView)));
    CRect client;
    CRect place;
    frame->GetClientRect(&client);
    view->GetWindowRect(&place);
    frame->ScreenToClient(&place);
    EXPECT_EQ(place, client);
    EXPECT_EQ(frame->IsReadOnly(), 1);
    EXPECT_EQ(frame->FensterManager()->WhoAmI(), L"Scope");
    EXPECT_EQ(frame->FensterManager()->WhatsMyType(), CFensterManager::window_mdi_child);
    EXPECT_EQ(reinterpret_cast<HICON>(frame->SendMessage(WM_GETICON, ICON_SMALL)) != nullptr, true);
    Close(*frame);
    EXPECT_FALSE(user.FrameLebt());
    EXPECT_EQ(user.m_told, 1);
}

TEST_F(StandaloneFrames, HaveAProvisionalNameUntilTheirWindowIsThere)
{
    std::unique_ptr<CStandaloneFrameWnd> const frame(
        static_cast<CStandaloneFrameWnd *>(RUNTIME_CLASS(CStandaloneFrameWnd)->CreateObject()));
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->FensterManager()->WhoAmI(), L"in Vorbereitung");
    EXPECT_FALSE(frame->OpenInitially());
    EXPECT_EQ(frame->GetSplitPane(0, 0), nullptr);
    frame->FensterWeg();        // nothing without a window
    frame->MenueKommando(1, 2); // nor without a user
    EXPECT_TRUE(frame->IsKindOf(RUNTIME_CLASS(CMDIChildWndEx)));
}

TEST_F(StandaloneFrames, TellTheirStoryInOrder)
{
    User user;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(g_log.front(), "view created");
    EXPECT_NE(std::find(g_log.begin(), g_log.end(), "view initial update"), g_log.end());
    EXPECT_EQ(g_log.back(), "view active");
    g_log.clear();
    Close(*frame);
    // The user is told before the frame's contents go.
    auto const told = std::find(g_log.begin(), g_log.end(), "user told");
    auto const destroyed = std::find(g_log.begin(), g_log.end(), "view destroyed");
    ASSERT_NE(told, g_log.end());
    ASSERT_NE(destroyed, g_log.end());
    EXPECT_LT(told - g_log.begin(), destroyed - g_log.begin());
}

TEST_F(StandaloneFrames, SendMessagesInOrderAtTheirEnd)
{
    User user;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    tests::PumpPosted();
    tests::MessageRecorder recorder({WM_CLOSE, WM_MDIDESTROY, WM_DESTROY, WM_NCDESTROY});
    recorder.Watch(frame->m_hWnd, "frame");
    recorder.Watch(m_main->m_hWndMDIClient, "client");
    recorder.Watch(frame->GetActiveView()->m_hWnd, "view");
    Close(*frame);
    EXPECT_TRUE(recorder.Matches({
        {"frame", WM_CLOSE},
        {"client", WM_MDIDESTROY},
        {"frame", WM_DESTROY},
        {"view", WM_DESTROY},
        {"view", WM_NCDESTROY},
        {"frame", WM_NCDESTROY},
    }));
}

TEST_F(StandaloneFrames, SaveTheirPlaceAfterTheUserWasTold)
{
    User user;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    user.m_atEnd = [&] {
        EXPECT_TRUE(::IsWindow(frame->m_hWnd));
        EXPECT_EQ(m_store.LookupGetInt(L"Scope-Fensterpos", 3, -4711), -4711); // nothing yet
        frame->MoveWindow(33, 44, 300, 200);
    };
    Close(*frame);
    EXPECT_EQ(m_store.LookupGetInt(L"Scope-Fensterpos", 0, -1), 44);
    EXPECT_EQ(m_store.LookupGetInt(L"Scope-Fensterpos", 1, -1), 33);
    EXPECT_EQ(m_store.LookupGetInt(L"Scope-Fensterpos", 2, -1), 244);
    EXPECT_EQ(m_store.LookupGetInt(L"Scope-Fensterpos", 3, -1), 333);
}

TEST_F(StandaloneFrames, ComeBackToTheirPlace)
{
    User user;
    CStandaloneFrameWnd * frame = user.Open();
    ASSERT_NE(frame, nullptr);
    frame->MoveWindow(25, 35, 310, 215);
    Close(*frame);
    frame = user.Open();
    ASSERT_NE(frame, nullptr);
    CRect place;
    frame->GetWindowRect(&place);
    CWnd::FromHandle(m_main->m_hWndMDIClient)->ScreenToClient(&place);
    EXPECT_EQ(place, CRect(25, 35, 335, 250));
    frame->MoveWindow(50, 60, 200, 150);
    frame->FensterpositionSpeichern();
    EXPECT_TRUE(frame->OpenInitially());
    frame->MoveWindow(0, 0, 100, 100);
    frame->FensterpositionLaden();
    frame->GetWindowRect(&place);
    CWnd::FromHandle(m_main->m_hWndMDIClient)->ScreenToClient(&place);
    EXPECT_EQ(place, CRect(50, 60, 250, 210));
    Close(*frame);
}

TEST_F(StandaloneFrames, ClosedByTheUserAreNotOpenAtTheNextStart)
{
    User user;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    frame->FensterpositionSpeichern();
    ASSERT_TRUE(StoredOpen(L"Scope"));
    Close(*frame);
    EXPECT_FALSE(StoredOpen(L"Scope"));
}

TEST_F(StandaloneFrames, DestroyedAtTheExitAreOpenAtTheNextStart)
{
    User user;
    CFensterManager manager(CFensterManager::window_main);
    ASSERT_NE(user.Open(), nullptr);
    manager.SetNowExit(true);
    m_main->DestroyWindow();
    EXPECT_TRUE(StoredOpen(L"Scope"));
    EXPECT_EQ(user.m_told, 1);
}

TEST_F(StandaloneFrames, WithAViewThatCannotBeMadeGiveNull)
{
    User user;
    EXPECT_EQ(user.Open(L"Scope", RUNTIME_CLASS(frames::RefusingView)), nullptr);
    EXPECT_FALSE(user.FrameLebt());
    EXPECT_EQ(user.Open(L"Scope", RUNTIME_CLASS(CView)), nullptr); // no dynamic creation
    EXPECT_FALSE(user.FrameLebt());
    EXPECT_EQ(user.Open(L"Scope", nullptr), nullptr);
    EXPECT_FALSE(user.FrameLebt());
    // The frames themselves stay, without a view, and another try succeeds.
    EXPECT_NE(m_main->MDIGetActive(), nullptr);
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    EXPECT_TRUE(user.FrameLebt());
}

TEST_F(StandaloneFrames, HoldAGridOfViews)
{
    User user;
    CRuntimeClass * classes[] = {frames::NumberedView<0>::Class(), frames::NumberedView<1>::Class(),
                                 frames::NumberedView<2>::Class(), frames::NumberedView<3>::Class(),
                                 frames::NumberedView<4>::Class(), frames::NumberedView<5>::Class()};
    auto * const frame = new CStandaloneFrameWnd;
    frame->BitteUmNachricht(&user);
    ASSERT_TRUE(frame->SplitFrameErzeugen(L"Grid", 2, 3, classes));
    std::fill(std::begin(classes), std::end(classes), nullptr); // the frame has its own
    EXPECT_TRUE(user.FrameLebt());
    EXPECT_EQ(frames::g_views, 6);
    CView * const last = frame->GetSplitPane(1, 2);
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(last->GetRuntimeClass(), frames::NumberedView<5>::Class());
    CView * const fourth = frame->GetSplitPane(1, 0);
    ASSERT_NE(fourth, nullptr);
    EXPECT_EQ(fourth->GetRuntimeClass(), frames::NumberedView<3>::Class());
    EXPECT_EQ(frame->GetSplitPane(2, 0), nullptr);
    EXPECT_EQ(frame->GetSplitPane(0, 3), nullptr);
    EXPECT_EQ(frame->GetSplitPane(-1, 0), nullptr);
    EXPECT_EQ(frame->GetSplitPane(0, -1), nullptr);
    EXPECT_EQ(frame->GetActiveView(), frame->GetSplitPane(0, 0));
    CRect place;
    frame->GetSplitPane(0, 0)->GetClientRect(&place);
    EXPECT_EQ(place.Size(), CSize(100, 100));
    frame->GetSplitPane(0, 1)->GetClientRect(&place);
    EXPECT_EQ(place.Size(), CSize(100, 100));
    Close(*frame);
    EXPECT_EQ(user.m_told, 1);
    EXPECT_EQ(frames::g_views, 0);
}

TEST_F(StandaloneFrames, GiveNullForAPaneThatIsNoView)
{
    CRuntimeClass * classes[] = {RUNTIME_CLASS(TestView), RUNTIME_CLASS(frames::PlainPane)};
    auto * const frame = new CStandaloneFrameWnd;
    ASSERT_TRUE(frame->SplitFrameErzeugen(L"Grid", 1, 2, classes));
    EXPECT_NE(frame->GetSplitPane(0, 0), nullptr);
    EXPECT_EQ(frame->GetSplitPane(0, 1), nullptr);
    Close(*frame);
}

TEST_F(StandaloneFrames, WithoutAGridHaveNoPanes)
{
    User user;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->GetSplitPane(0, 0), nullptr);
}

TEST_F(StandaloneFrames, WhoseGridFailsAreGone)
{
    User user;
    CRuntimeClass * classes[] = {RUNTIME_CLASS(TestView), RUNTIME_CLASS(TestView), RUNTIME_CLASS(frames::RefusingView),
                                 RUNTIME_CLASS(TestView)};
    auto * const frame = new CStandaloneFrameWnd;
    frame->BitteUmNachricht(&user);
    EXPECT_FALSE(frame->SplitFrameErzeugen(L"Grid", 2, 2, classes));
    EXPECT_EQ(frames::g_views, 0);
    EXPECT_EQ(m_main->MDIGetActive(), nullptr);
    EXPECT_LE(user.m_told, 1); // not every window system sends WM_DESTROY to a window whose creation fails
}

TEST_F(StandaloneFrames, RefuseAGridWithoutCells)
{
    EXPECT_FALSE((new CStandaloneFrameWnd)->SplitFrameErzeugen(L"Grid", 0, 0, nullptr));
    std::unique_ptr<CStandaloneFrameWnd> const frame(new CStandaloneFrameWnd);
    EXPECT_FALSE(frame->SplitFrameErzeugen(L"Grid", ~0ull, 2, nullptr));
    EXPECT_EQ(m_main->MDIGetActive(), nullptr);
}

TEST_F(StandaloneFrames, RefuseAGridWithoutClasses)
{
    User user;
    auto * const frame = new CStandaloneFrameWnd;
    frame->BitteUmNachricht(&user);
    EXPECT_FALSE(frame->SplitFrameErzeugen(L"Grid", 2, 2, nullptr));
    EXPECT_EQ(frame->m_hWnd, nullptr);
    EXPECT_EQ(frame->GetSplitPane(0, 0), nullptr);
    EXPECT_EQ(m_main->MDIGetActive(), nullptr);
    // The object is as good as new.
    CRuntimeClass * classes[] = {RUNTIME_CLASS(TestView)};
    ASSERT_TRUE(frame->SplitFrameErzeugen(L"Grid", 1, 1, classes));
    EXPECT_NE(frame->GetSplitPane(0, 0), nullptr);
    Close(*frame);
}

TEST_F(StandaloneFrames, StayWhereTheyAreDuringTheTouchFreeze)
{
    User user;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    CRect present;
    frame->GetWindowRect(&present);
    CRect const wanted(1, 2, 333, 444);
    for (UINT const message : {WM_MOVING, WM_SIZING})
    {
        CRect proposal = wanted;
        EXPECT_NE(frame->SendMessage(message, WMSZ_LEFT, reinterpret_cast<LPARAM>(&proposal)), 0);
        EXPECT_EQ(proposal, wanted);
        CStandaloneFrameWnd::SetTouchFreeze(true);
        EXPECT_TRUE(CStandaloneFrameWnd::IsInTouchFreeze());
        EXPECT_NE(frame->SendMessage(message, WMSZ_LEFT, reinterpret_cast<LPARAM>(&proposal)), 0);
        EXPECT_EQ(proposal, present);
        CStandaloneFrameWnd::SetTouchFreeze(false);
        EXPECT_FALSE(CStandaloneFrameWnd::IsInTouchFreeze());
    }
}

TEST_F(StandaloneFrames, HandDoubleClicksToTheUserAndThenOn)
{
    User user;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    frame->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON | MK_SHIFT, MAKELPARAM(12, 34));
    frame->SendMessage(WM_RBUTTONDBLCLK, MK_RBUTTON, MAKELPARAM(-5, 6));
    ASSERT_EQ(user.m_clicks.size(), 2u);
    EXPECT_EQ(user.m_clicks[0].button, 'L');
    EXPECT_EQ(user.m_clicks[0].flags, static_cast<unsigned int>(MK_LBUTTON | MK_SHIFT));
    EXPECT_EQ(user.m_clicks[0].point, CPoint(12, 34));
    EXPECT_EQ(user.m_clicks[0].index, -1);
    EXPECT_EQ(user.m_clicks[1].button, 'R');
    EXPECT_EQ(user.m_clicks[1].point, CPoint(-5, 6));
    EXPECT_EQ(user.m_clicks[1].index, -1);
    frame->MenueKommando(7, -8);
    ASSERT_EQ(user.m_commands.size(), 1u);
    EXPECT_EQ(user.m_commands[0], std::pair(7, -8));
    // A user that ends the frame in the click ends the handling as well.
    user.m_atClick = [&] { frame->DestroyWindow(); };
    frame->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, 0);
    EXPECT_FALSE(user.FrameLebt());
}

TEST_F(StandaloneFrames, ShowThemselvesInTheirManagersMode)
{
    User user;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    frame->ActivateFrame(SW_SHOWMAXIMIZED);
    EXPECT_FALSE(frame->IsZoomed());
    EXPECT_TRUE(frame->IsWindowVisible());
    frame->FensterManager()->SetShowMode(SW_SHOWMAXIMIZED);
    frame->ActivateFrame(SW_SHOWNORMAL);
    EXPECT_TRUE(frame->IsZoomed());
    frame->FensterManager()->SetShowMode(SW_SHOWNORMAL);
    frame->ActivateFrame();
    EXPECT_FALSE(frame->IsZoomed());
}

TEST_F(StandaloneFrames, GreyTheirCloseCommand)
{
    User user;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    HMENU const menu = ::GetSystemMenu(frame->m_hWnd, FALSE);
    ASSERT_NE(menu, nullptr);
    frame->EnableCloseButton(false);
    EXPECT_EQ(::GetMenuState(menu, SC_CLOSE, MF_BYCOMMAND) & 3u, static_cast<UINT>(MF_GRAYED | MF_DISABLED));
    frame->EnableCloseButton(true);
    EXPECT_EQ(::GetMenuState(menu, SC_CLOSE, MF_BYCOMMAND) & 3u, 0u);
    frame->ModifyStyle(WS_SYSMENU, 0);
    frame->EnableCloseButton(false); // does nothing without the menu
}

TEST_F(StandaloneFrames, BringTheMainFramesTitleUpToDate)
{
    User user;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    m_main->SetWindowText(L"something else");
    LONG const style = ::GetWindowLongW(m_main->m_hWnd, GWL_STYLE);
    frame->FensterWeg();
    EXPECT_EQ(TitleOf(*m_main), L"Scope - Main frame");
    EXPECT_EQ(::GetWindowLongW(m_main->m_hWnd, GWL_STYLE), style);
    m_main->ModifyStyle(FWS_ADDTOTITLE, 0);
    m_main->SetWindowText(L"something else");
    frame->FensterWeg();
    EXPECT_EQ(TitleOf(*m_main), L"something else");
    m_main->ModifyStyle(0, FWS_ADDTOTITLE);
    Close(*frame);
    EXPECT_EQ(TitleOf(*m_main), L"Main frame");
}

TEST_F(StandaloneFrames, WhoseUserKeepsQuietStillCountAsAlive)
{
    User user;
    user.m_callsBase = false;
    CStandaloneFrameWnd * const frame = user.Open();
    ASSERT_NE(frame, nullptr);
    Close(*frame);
    EXPECT_EQ(user.m_told, 1);
    EXPECT_TRUE(user.FrameLebt());
}

TEST_F(StandaloneFrames, MayHaveUsersThatAreCopies)
{
    User user;
    ASSERT_NE(user.Open(), nullptr);
    User const copy(user);
    EXPECT_TRUE(copy.FrameLebt());
    User other;
    other = user;
    EXPECT_TRUE(other.FrameLebt());
    Close(*m_main->MDIGetActive());
    EXPECT_FALSE(user.FrameLebt());
    EXPECT_TRUE(copy.FrameLebt());
}

TEST_F(StandaloneFrames, OutliveAUserThatEndsWhenToldOfTheEnd)
{
    auto * const user = new User;
    CStandaloneFrameWnd * const frame = user->Open();
    ASSERT_NE(frame, nullptr);
    user->m_atEnd = [user] { delete user; };
    Close(*frame);
    EXPECT_EQ(frames::g_views, 0);
    EXPECT_EQ(m_main->MDIGetActive(), nullptr);
}

TEST_F(StandaloneFrames, WhoseViewEndsThemWhileItIsCreatedGiveNull)
{
    User user;
    frames::g_whileCreated = [](CView & view) { view.GetParentFrame()->DestroyWindow(); };
    EXPECT_EQ(user.Open(), nullptr);
    EXPECT_FALSE(user.FrameLebt());
    EXPECT_EQ(user.m_told, 1);
    EXPECT_EQ(m_main->MDIGetActive(), nullptr);
    frames::g_atInitialUpdate = [](CView & view) { view.GetParentFrame()->DestroyWindow(); };
    EXPECT_EQ(user.Open(), nullptr);
    EXPECT_FALSE(user.FrameLebt());
    EXPECT_EQ(user.m_told, 2);
    EXPECT_EQ(m_main->MDIGetActive(), nullptr);
}

TEST_F(StandaloneFrames, WhoseUserEndsItselfWithinTheCreationGiveNull)
{
    auto * const user = new User;
    user->m_atEnd = [user] { delete user; };
    frames::g_whileCreated = [](CView & view) { view.GetParentFrame()->DestroyWindow(); };
    EXPECT_EQ(user->Open(), nullptr);
    EXPECT_EQ(frames::g_views, 0);
}

TEST_F(StandaloneFrames, WhoseViewEndsThemWithinAGridGiveFalse)
{
    CRuntimeClass * classes[] = {RUNTIME_CLASS(TestView), RUNTIME_CLASS(TestView), RUNTIME_CLASS(TestView),
                                 RUNTIME_CLASS(TestView)};
    frames::g_whileCreated = [](CView & view) { view.GetParentFrame()->DestroyWindow(); };
    EXPECT_FALSE((new CStandaloneFrameWnd)->SplitFrameErzeugen(L"Grid", 2, 2, classes));
    EXPECT_EQ(frames::g_views, 0);
    frames::g_atInitialUpdate = [](CView & view) { view.GetParentFrame()->DestroyWindow(); };
    EXPECT_FALSE((new CStandaloneFrameWnd)->SplitFrameErzeugen(L"Grid", 2, 2, classes));
    EXPECT_EQ(frames::g_views, 0);
    EXPECT_EQ(m_main->MDIGetActive(), nullptr);
}
