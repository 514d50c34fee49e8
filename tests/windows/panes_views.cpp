// CDockableViewPane, CStandaloneFrameMigrationHelper: views in panes, and their way there from frames.

#include "GdiHandleCount.h"
#include "panes_PaneTest.h"
#include "ThreadWindows.h"

namespace
{
using panes::PaneView;
using panes::RefusingView;

class ViewPanes : public panes::PaneTest
{
protected:
    CRect PlaceOf(CWnd const & window)
    {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }
    CString TitleOf(CWnd const & window)
    {
        CString title;
        window.GetWindowText(title);
        return title;
    }
    /// Leaves what a frame of that name would have left.
    void StoreFrame(CString const & name, CRect const & place, bool open)
    {
        CString key(name);
        key.Replace(L' ', L'_');
        CResourceVesk & store = m_store;
        store.LookupSetBool(key + L"-IstOffen", open, 0);
        store.LookupSetInt(key + L"-Gestalt", 0, 0);
        int const values[] = {place.top, place.left, place.bottom, place.right};
        for (std::size_t at = 0; at < 4; ++at)
        {
            store.LookupSetInt(key + L"-Fensterpos", values[at], at);
            store.LookupSetInt(key + L"-FensterposMM", -1, at);
        }
    }
    CRect OnScreen(CRect rect)
    {
        CPoint corner = rect.TopLeft();
        ::ClientToScreen(m_frame->m_hWndMDIClient, &corner);
        rect.MoveToXY(corner);
        return rect;
    }
};

/// A view class that notes the pane's caption while its window is made.
CString g_captionAtCreation;
} // namespace

TEST_F(ViewPanes, ConnectMakesThePanesWindowAndTheViews)
{
    CDockableViewPane * pane = nullptr;
    int const id = m_frame->register_pane(pane, -1);
    auto * const view = new PaneView;
    ASSERT_TRUE(pane->Connect(*view, L"Scope"));
    EXPECT_EQ(pane->View(), view);
    EXPECT_EQ(pane->GetDlgCtrlID(), id);
    EXPECT_EQ(TitleOf(*pane), L"Scope");
    EXPECT_EQ(view->GetParent(), pane);
    EXPECT_EQ(view->GetDlgCtrlID(), AFX_IDW_PANE_FIRST);
    EXPECT_EQ(view->GetStyle() & (WS_CHILD | WS_VISIBLE), static_cast<DWORD>(WS_CHILD | WS_VISIBLE));
    EXPECT_TRUE(pane->IsKindOf(RUNTIME_CLASS(CDockablePane)));
}

TEST_F(ViewPanes, ThePaneIsCaptionedByItsNumberUntilItHasItsTitle)
{
    m_frame->panes();
    CDockableViewPane * pane = nullptr;
    for (int at = 0; at < 8; ++at)
        m_frame->register_pane(pane, -1);
    panes::g_whileCreated = [](CView & view) { view.GetParent()->GetWindowText(g_captionAtCreation); };
    ASSERT_TRUE(pane->Connect(*new PaneView, L"Scope"));
    EXPECT_EQ(g_captionAtCreation, L"DockablePane-7");
    EXPECT_EQ(TitleOf(*pane), L"Scope");
}

TEST_F(ViewPanes, WithoutIdentifiersThereIsNoWindow)
{
    CDockableViewPane * pane = nullptr;
    m_frame->base_id(0);
    m_frame->register_pane(pane, -1);
    EXPECT_FALSE(pane->Connect(*new PaneView, L"Scope"));
    EXPECT_EQ(pane->View(), nullptr);
    EXPECT_EQ(pane->m_hWnd, nullptr);
    EXPECT_FALSE(pane->Float(CRect(10, 10, 200, 200)));
}

TEST_F(ViewPanes, AViewThatIsRefusedLeavesThePaneFree)
{
    CDockableViewPane * pane = nullptr;
    int const id = m_frame->register_pane(pane, -1);
    EXPECT_FALSE(pane->Connect(*new RefusingView, L"Scope"));
    EXPECT_EQ(pane->View(), nullptr);
    CDockableViewPane * again = nullptr;
    EXPECT_EQ(m_frame->register_pane(again, id), id);
    ASSERT_TRUE(again->Connect(*new PaneView, L"Scope"));
    EXPECT_NE(again->View(), nullptr);
}

TEST_F(ViewPanes, TheViewFillsThePane)
{
    CDockableViewPane * pane = nullptr;
    PaneView * const view = Connected(pane);
    ASSERT_NE(view, nullptr);
    pane->SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 200));
    EXPECT_EQ(PlaceOf(*view).Size(), CSize(300, 200));
}

TEST_F(ViewPanes, AViewThatHasEndedIsNotSized)
{
    CDockableViewPane * pane = nullptr;
    PaneView * const view = Connected(pane);
    ASSERT_NE(view, nullptr);
    view->DestroyWindow();
    EXPECT_EQ(panes::g_views, 0);
    pane->SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 200));
    EXPECT_NE(pane->View(), nullptr); // nothing takes it back
}

TEST_F(ViewPanes, FloatWithoutARectangleTakesTheUsualOne)
{
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(Connected(pane), nullptr);
    ASSERT_TRUE(pane->Float(CRect(0, 0, 0, 0)));
    CWnd * const parent = pane->GetParent();
    ASSERT_NE(parent, nullptr);
    EXPECT_EQ(PlaceOf(*parent), CRect(0, 0, 200, 100));
    // It floats already: its frame is moved.
    EXPECT_TRUE(pane->Float(CRect(120, 130, 420, 330)));
    EXPECT_EQ(pane->GetParent(), parent);
    EXPECT_EQ(PlaceOf(*parent), CRect(120, 130, 420, 330));
}

TEST_F(ViewPanes, VeskPositionOfAnUnknownNameLeavesTheStoreAsItWas)
{
    StoreFrame(L"Other", CRect(1, 2, 3, 4), true);
    EXPECT_EQ(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope"), CRect(0, 0, 0, 0));
    EXPECT_TRUE(CFensterManager::OpenInitially(L"Other"));
    EXPECT_EQ(CStandaloneFrameMigrationHelper::VeskPosition(L"Other"), OnScreen(CRect(1, 2, 3, 4)));
}

TEST_F(ViewPanes, VeskPositionIsTakenOnce)
{
    StoreFrame(L"My scope", CRect(30, 40, 330, 240), true);
    EXPECT_EQ(CStandaloneFrameMigrationHelper::VeskPosition(L"My scope"), OnScreen(CRect(30, 40, 330, 240)));
    EXPECT_FALSE(CFensterManager::OpenInitially(L"My scope"));
    EXPECT_EQ(CStandaloneFrameMigrationHelper::VeskPosition(L"My scope"), CRect(0, 0, 0, 0));
}

TEST_F(ViewPanes, APartOfTheKeysIsDeletedAndGivesNothing)
{
    StoreFrame(L"Scope", CRect(30, 40, 330, 240), true);
    m_store.Delete(L"Scope-Gestalt");
    EXPECT_EQ(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope"), CRect(0, 0, 0, 0));
    EXPECT_FALSE(CFensterManager::OpenInitially(L"Scope"));
}

TEST_F(ViewPanes, AFormerFrameComesBackAsAPaneAtItsPlace)
{
    StoreFrame(L"Scope", CRect(30, 40, 330, 240), true);
    int id = -1;
    CDockableViewPane * pane = nullptr;
    PaneView * const view = CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, pane);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(id, 10742);
    ASSERT_NE(pane, nullptr);
    EXPECT_EQ(pane->View(), view);
    EXPECT_EQ(view->m_initialUpdates, 1);
    EXPECT_EQ(m_frame->m_registrations, 1);
    EXPECT_EQ(PlaceOf(*pane->GetParent()), OnScreen(CRect(30, 40, 330, 240)));
    EXPECT_TRUE(pane->IsPaneVisible());
    EXPECT_FALSE(CFensterManager::OpenInitially(L"Scope"));
    EXPECT_EQ(ClientOf(*pane).Size(), PlaceOf(*view).Size());
}

TEST_F(ViewPanes, AFormerFrameThatWasClosedStaysHidden)
{
    StoreFrame(L"Scope", CRect(30, 40, 330, 240), false);
    int id = -1;
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, pane), nullptr);
    EXPECT_FALSE(pane->IsPaneVisible());
}

TEST_F(ViewPanes, APaneThatHasItsWindowKeepsItsPlace)
{
    CDockableViewPane * pane = nullptr;
    int const first = m_frame->register_pane(pane, -1);
    // As the workspace restores it.
    ASSERT_TRUE(
        pane->Create(L"Restored", m_frame, CRect(0, 0, 200, 100), TRUE, static_cast<UINT>(first),
                     WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | CBRS_BOTTOM | CBRS_FLOAT_MULTI));
    CWnd const * const parent = pane->GetParent();
    bool const visible = pane->IsPaneVisible() != FALSE;
    StoreFrame(L"Scope", CRect(30, 40, 330, 240), !visible);
    int id = first;
    CDockableViewPane * given = nullptr;
    ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, given), nullptr);
    EXPECT_EQ(given, pane);
    EXPECT_EQ(id, first);
    EXPECT_EQ(pane->GetParent(), parent);
    EXPECT_EQ(pane->IsPaneVisible() != FALSE, visible);
    EXPECT_EQ(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope"), CRect(0, 0, 0, 0)); // deleted all the same
}

TEST_F(ViewPanes, NoPaneWithoutAMainFrameOfTheKind)
{
    int id = -1;
    CDockableViewPane * pane = nullptr;
    CWnd other;
    ASSERT_TRUE(
        other.CreateEx(0, AfxRegisterWndClass(0), L"Other", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr));
    tests::App().m_pMainWnd = &other;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(pane, nullptr);
    tests::App().m_pMainWnd = m_frame;
    other.DestroyWindow();
}

TEST_F(ViewPanes, NoPaneOnceAllAreGivenOut)
{
    CDockableViewPane * pane = nullptr;
    for (int at = 0; at < 100; ++at)
        m_frame->register_pane(pane, -1);
    int id = 10742;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(id, -1);
    EXPECT_EQ(panes::g_views, 0);
}

TEST_F(ViewPanes, AViewThatCannotBeMadeLeavesAFreePane)
{
    int id = -1;
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<RefusingView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(id, 10742);
    EXPECT_EQ(Pane(10742).View(), nullptr);
    EXPECT_EQ(m_frame->panes().size(), 1u);
    EXPECT_NE(CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(id, 10742);
}

TEST_F(ViewPanes, FrameOrPaneComesToTheFront)
{
    CStandaloneFrameMigrationHelper::BringWindowToTop(nullptr, nullptr);
    CDockableViewPane free;
    CStandaloneFrameMigrationHelper::BringWindowToTop(nullptr, &free); // without a window
    int id = -1;
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, pane), nullptr);
    ASSERT_FALSE(pane->IsPaneVisible());
    CStandaloneFrameMigrationHelper::BringWindowToTop(nullptr, pane);
    EXPECT_TRUE(pane->IsPaneVisible());
    struct User : CStandaloneFrameUser
    {
        CStandaloneFrameWnd * Open(wchar_t const * title) { return CreateFrame<PaneView>(title); }
    };
    User first;
    User second;
    CStandaloneFrameWnd * const lower = first.Open(L"First");
    CStandaloneFrameWnd * const upper = second.Open(L"Second");
    ASSERT_EQ(::GetWindow(m_frame->m_hWndMDIClient, GW_CHILD), upper->m_hWnd);
    CStandaloneFrameMigrationHelper::BringWindowToTop(lower, pane);
    EXPECT_EQ(::GetWindow(m_frame->m_hWndMDIClient, GW_CHILD), lower->m_hWnd);
}

// Hosts that do their worst

TEST_F(ViewPanes, AViewMayEndWhileItIsConnected)
{
    CDockableViewPane * pane = nullptr;
    m_frame->register_pane(pane, -1);
    panes::g_atSize = [](CView & view) { view.DestroyWindow(); };
    EXPECT_FALSE(pane->Connect(*new PaneView, L"Scope"));
    EXPECT_EQ(pane->View(), nullptr);
    EXPECT_EQ(panes::g_views, 0);
    panes::g_whileCreated = [](CView & view) { view.DestroyWindow(); };
    EXPECT_FALSE(pane->Connect(*new PaneView, L"Scope"));
    EXPECT_EQ(pane->View(), nullptr);
}

TEST_F(ViewPanes, AViewMayEndAtItsFirstUpdate)
{
    panes::g_atInitialUpdate = [](CView & view) { view.DestroyWindow(); };
    int id = -1;
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(panes::g_views, 0);
}

TEST_F(ViewPanes, ThePanesWindowMayEndWhileTheViewIsSized)
{
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(Connected(pane), nullptr);
    panes::g_atSize = [&](CView &) { pane->DestroyWindow(); };
    pane->SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(310, 210));
    EXPECT_EQ(pane->m_hWnd, nullptr);
    EXPECT_EQ(panes::g_views, 0);
}

TEST_F(ViewPanes, TheFrameMayEndWhileAPaneIsMade)
{
    int id = -1;
    CDockableViewPane * pane = nullptr;
    panes::g_whileCreated = [this](CView &) { ::DestroyWindow(m_window); };
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, pane), nullptr);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(ViewPanes, TheFrameMayEndAtAViewsFirstUpdate)
{
    int id = -1;
    CDockableViewPane * pane = nullptr;
    panes::g_atInitialUpdate = [this](CView &) { ::DestroyWindow(m_window); };
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, pane), nullptr);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(ViewPanes, TheFrameMayEndWhileAViewIsSized)
{
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(Connected(pane), nullptr);
    panes::g_atSize = [this](CView &) { ::DestroyWindow(m_window); };
    ::SendMessage(pane->m_hWnd, WM_SIZE, SIZE_RESTORED, MAKELPARAM(310, 210));
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST(ViewPaneCycles, LeaveNothingBehind)
{
    // 200 frames with a pane each.
    MemoryPreferenceStore store;
    CVeskBase::SetPreferenceVesk(&store);
    auto const cycle = [] {
        auto * const frame = new panes::PaneFrame;
        ASSERT_TRUE(frame->Create(nullptr, L"Panes", WS_OVERLAPPEDWINDOW, CRect(60, 40, 660, 440)));
        tests::App().m_pMainWnd = frame;
        frame->base_id(CMainFrmInterface::id_base);
        frame->ShowWindow(SW_SHOW);
        int id = -1;
        CDockableViewPane * pane = nullptr;
        ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PaneView>(L"Scope", id, pane), nullptr);
        pane->Float(CRect(100, 100, 400, 300));
        pane->ShowPane(TRUE, FALSE, TRUE);
        tests::PumpPosted();
        frame->DestroyWindow();
        tests::App().m_pMainWnd = nullptr;
        tests::PumpPosted();
    };
    cycle();
    cycle();
    int const windows = tests::ThreadWindows();
    {
        tests::GdiBalance const balance;
        for (int at = 0; at < 200; ++at)
            cycle();
    }
    EXPECT_EQ(tests::ThreadWindows(), windows);
    EXPECT_EQ(panes::g_views, 0);
    CVeskBase::SetPreferenceVesk(nullptr);
}
