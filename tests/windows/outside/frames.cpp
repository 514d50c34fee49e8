// Frames without a document, as their users see them.

#include <algorithm>
#include <memory>
#include <type_traits>

#include "OutsideTest.h"
#include "Pump.h"
#include "TestApp.h"

namespace outside
{
namespace
{
constexpr DWORD usual_style = 0x50CF0000;
constexpr UINT pane_id = 0xE900;

class OutsideFrame : public FrameTest
{
protected:
    CStandaloneFrameWnd * Open(wchar_t const * title = L"Scope")
    {
        CStandaloneFrameWnd * const frame = m_user.Open(title);
        EXPECT_NE(frame, nullptr);
        return frame;
    }
    /// As a user does it.
    static void Close(CStandaloneFrameWnd * frame)
    {
        frame->SendMessage(WM_CLOSE);
        tests::PumpPosted();
    }
    void SetExit(bool exit)
    {
        CFensterManager main(L"Main", CFensterManager::window_main);
        main.SetNowExit(exit);
    }
};

class OutsideUser : public testing::Test
{
};

class SilentUser : public CStandaloneFrameUser
{
public:
    ~SilentUser() override = default;
};

/// A frame whose default handling can be seen.
class LoggingFrame : public CStandaloneFrameWnd
{
public:
    ~LoggingFrame() override
    {
        if (m_gone != nullptr)
            *m_gone = true;
    }

    User * m_log = nullptr;
    bool m_refuse = false;
    bool m_refuseClient = false;
    bool * m_gone = nullptr;
    std::vector<WPARAM> m_icons;

    BOOL PreCreateWindow(CREATESTRUCT & cs) override { return !m_refuse && CStandaloneFrameWnd::PreCreateWindow(cs); }

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext * pContext) override
    {
        return !m_refuseClient && CStandaloneFrameWnd::OnCreateClient(lpcs, pContext);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SETICON)
            m_icons.push_back(wParam);
        return CStandaloneFrameWnd::WindowProc(message, wParam, lParam);
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (m_log != nullptr && (message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDBLCLK))
            m_log->m_events.push_back(L"default");
        return CStandaloneFrameWnd::DefWindowProc(message, wParam, lParam);
    }
};

/// Shows the messages that a frame has handlers for.
class MappedFrame : public CStandaloneFrameWnd
{
public:
    static std::vector<UINT> Messages()
    {
        std::vector<UINT> messages;
        for (AFX_MSGMAP_ENTRY const * entry = CStandaloneFrameWnd::GetThisMessageMap()->lpEntries; entry->nSig != 0;
             ++entry)
            messages.push_back(entry->nMessage);
        return messages;
    }
};
} // namespace

// The subscriber

TEST_F(OutsideUser, IsAbstractWithAVirtualDestructor)
{
    EXPECT_TRUE(std::is_abstract_v<CStandaloneFrameUser>);
    EXPECT_TRUE(std::has_virtual_destructor_v<CStandaloneFrameUser>);
}

TEST_F(OutsideUser, HasNoFrameAtFirst)
{
    EXPECT_FALSE(SilentUser().FrameLebt());
}

TEST_F(OutsideUser, DefaultsDoNothing)
{
    SilentUser user;
    user.MenueKommando(1, 2);
    user.FrameEreignis(1, 2, nullptr, L"x");
    user.MausLDoppelKlick(1, CPoint(2, 3), -1);
    user.MausRDoppelKlick(1, CPoint(2, 3), -1);
    EXPECT_FALSE(user.FrameLebt());
}

TEST_F(OutsideUser, EndOfTheFrameClearsTheFlag)
{
    SilentUser user;
    std::unique_ptr<CStandaloneFrameWnd> const frame(new CStandaloneFrameWnd);
    frame->BitteUmNachricht(&user);
    ASSERT_TRUE(user.FrameLebt());
    user.BeiFrameAbleben();
    EXPECT_FALSE(user.FrameLebt());
}

TEST_F(OutsideUser, CopiesTakeTheFlag)
{
    SilentUser user;
    std::unique_ptr<CStandaloneFrameWnd> const frame(new CStandaloneFrameWnd);
    frame->BitteUmNachricht(&user);
    SilentUser const copy(user);
    EXPECT_TRUE(copy.FrameLebt());
    SilentUser assigned;
    assigned = user;
    EXPECT_TRUE(assigned.FrameLebt());
    user.BeiFrameAbleben();
    EXPECT_TRUE(copy.FrameLebt());
    assigned = user;
    EXPECT_FALSE(assigned.FrameLebt());
}

// A frame that has no window yet

TEST_F(OutsideFrame, IsMadeByItsRunTimeClass)
{
    EXPECT_EQ(RUNTIME_CLASS(CStandaloneFrameWnd)->m_pfnGetBaseClass(), RUNTIME_CLASS(CMDIChildWndEx));
    std::unique_ptr<CObject> const object(RUNTIME_CLASS(CStandaloneFrameWnd)->CreateObject());
    ASSERT_NE(object, nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CStandaloneFrameWnd)));
    EXPECT_EQ(object->GetRuntimeClass(), RUNTIME_CLASS(CStandaloneFrameWnd));
}

TEST_F(OutsideFrame, HandlesSixMessages)
{
    std::vector<UINT> const expected{WM_DESTROY, WM_CREATE, WM_LBUTTONDBLCLK, WM_RBUTTONDBLCLK, WM_MOVING, WM_SIZING};
    EXPECT_EQ(MappedFrame::Messages(), expected);
}

TEST_F(OutsideFrame, StartsWithThePreliminaryNameOfAChildFrame)
{
    std::unique_ptr<CStandaloneFrameWnd> const frame(new CStandaloneFrameWnd);
    EXPECT_EQ(Wide(frame->FensterManager()->WhoAmI()), L"in Vorbereitung");
    EXPECT_EQ(frame->FensterManager()->WhatsMyType(), 3);
    CStandaloneFrameWnd const & constant = *frame;
    EXPECT_EQ(constant.FensterManager(), frame->FensterManager());
    EXPECT_EQ(Managers::Find(L"in Vorbereitung"), frame->FensterManager());
}

TEST_F(OutsideFrame, WithoutWindowNothingHappens)
{
    std::unique_ptr<CStandaloneFrameWnd> const frame(new CStandaloneFrameWnd);
    EXPECT_EQ(frame->GetSplitPane(0, 0), nullptr);
    EXPECT_EQ(frame->IsReadOnly(), 1);
    EXPECT_FALSE(frame->OpenInitially());
    frame->MenueKommando(1, 2);
    frame->FensterWeg();
    EXPECT_TRUE(m_main->m_titles.empty());
    EXPECT_FALSE(CStandaloneFrameWnd::IsInTouchFreeze());
}

TEST_F(OutsideFrame, ConstructorLeavesTheResourceModuleInForce)
{
    HINSTANCE const before = AfxGetResourceHandle();
    std::unique_ptr<CStandaloneFrameWnd> const frame(new CStandaloneFrameWnd);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST_F(OutsideFrame, SubscribingCountsAtOnce)
{
    std::unique_ptr<CStandaloneFrameWnd> const frame(new CStandaloneFrameWnd);
    frame->BitteUmNachricht(&m_user);
    EXPECT_TRUE(m_user.FrameLebt());
    EXPECT_TRUE(m_user.m_events.empty());
}

TEST_F(OutsideFrame, MenuCommandsReachTheUser)
{
    std::unique_ptr<CStandaloneFrameWnd> const frame(new CStandaloneFrameWnd);
    frame->BitteUmNachricht(&m_user);
    frame->MenueKommando(-3, 70000);
    EXPECT_EQ(m_user.m_events, texts_t{L"menu -3 70000"});
}

TEST_F(OutsideFrame, ALaterSubscriberTakesThePlace)
{
    std::unique_ptr<CStandaloneFrameWnd> const frame(new CStandaloneFrameWnd);
    frame->BitteUmNachricht(&m_user);
    frame->BitteUmNachricht(&m_other);
    frame->MenueKommando(1, 2);
    EXPECT_TRUE(m_user.m_events.empty());
    EXPECT_EQ(m_other.m_events.size(), 1u);
}

// Creation

TEST_F(OutsideFrame, ShowsAViewOfTheClass)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    EXPECT_TRUE(m_user.FrameLebt());
    CWnd * const view = frame->GetDlgItem(pane_id);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->GetRuntimeClass(), RUNTIME_CLASS(PlainView));
    EXPECT_EQ(static_cast<PlainView *>(view)->m_initialUpdates, 1);
    EXPECT_TRUE(view->IsWindowVisible());
    EXPECT_EQ(frame->GetActiveView(), view);
    EXPECT_EQ(frame->GetActiveDocument(), nullptr);
}

TEST_F(OutsideFrame, ClassKnownAtCompileTimeWillDo)
{
    CStandaloneFrameWnd * const frame = m_user.OpenPlain(L"Scope");
    ASSERT_NE(frame, nullptr);
    EXPECT_NE(frame->GetDlgItem(pane_id), nullptr);
}

TEST_F(OutsideFrame, IsAVisibleChildOfTheMainFramesClientArea)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(::GetParent(frame->m_hWnd), m_main->m_hWndMDIClient);
    EXPECT_EQ(TextOf(frame->m_hWnd), L"Scope");
    EXPECT_EQ(frame->GetStyle() & usual_style, usual_style);
    EXPECT_EQ(frame->GetStyle() & FWS_ADDTOTITLE, 0u);
    EXPECT_TRUE(frame->IsWindowVisible());
    EXPECT_EQ(m_main->MDIGetActive(), frame);
    EXPECT_EQ(frame->GetMDIFrame(), m_main);
}

TEST_F(OutsideFrame, TakesTheToolkitsIconAsSmallIcon)
{
    auto * const frame = new LoggingFrame;
    ASSERT_TRUE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style));
    auto const icon = reinterpret_cast<HICON>(frame->SendMessage(WM_GETICON, ICON_SMALL));
    EXPECT_NE(icon, nullptr);
    EXPECT_EQ(icon, ::LoadIconW(::GetModuleHandleW(L"instrument_ui.dll"), MAKEINTRESOURCEW(121)));
    EXPECT_EQ(std::count(frame->m_icons.begin(), frame->m_icons.end(), ICON_SMALL), 1);
}

TEST_F(OutsideFrame, AddToTitleIsTakenOutOfTheStyle)
{
    auto * const frame = new CStandaloneFrameWnd;
    ASSERT_TRUE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style | FWS_ADDTOTITLE));
    EXPECT_EQ(frame->GetStyle() & FWS_ADDTOTITLE, 0u);
}

TEST_F(OutsideFrame, WithoutUserItComesUpAsWell)
{
    auto * const frame = new CStandaloneFrameWnd;
    ASSERT_TRUE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style));
    EXPECT_TRUE(frame->IsWindowVisible());
    Close(frame);
    EXPECT_EQ(PlainView::s_live, 0);
}

TEST_F(OutsideFrame, CreationSetsTheUsersFlagAgain)
{
    auto * const frame = new CStandaloneFrameWnd;
    frame->BitteUmNachricht(&m_user);
    m_user.BeiFrameAbleben();
    ASSERT_FALSE(m_user.FrameLebt());
    ASSERT_TRUE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style));
    EXPECT_TRUE(m_user.FrameLebt());
}

TEST_F(OutsideFrame, TitleBecomesTheName)
{
    CStandaloneFrameWnd * const frame = Open(L"Scope: 1 a");
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(Wide(frame->FensterManager()->WhoAmI()), L"Scope: 1 a");
    EXPECT_FALSE(m_store.Entries(L"get Scope-_1_a-Gestalt").empty());
    EXPECT_TRUE(m_store.Entries(L"get in_Vorbereitung").empty());
    EXPECT_EQ(Managers::Find(L"in Vorbereitung"), nullptr);
}

TEST_F(OutsideFrame, NameStandsBeforeTheViewIsMade)
{
    std::wstring name;
    PlainView::s_onCreate = [&](PlainView & view) {
        auto * const frame = static_cast<CStandaloneFrameWnd *>(view.GetParentFrame());
        name = Wide(frame->FensterManager()->WhoAmI());
    };
    Open();
    EXPECT_EQ(name, L"Scope");
}

TEST_F(OutsideFrame, ComesUpAtItsStoredPlace)
{
    CRect const place(60, 40, 460, 290);
    m_store.PutWindow(L"Scope", true, place);
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(RectInParent(frame->m_hWnd), place);
    EXPECT_EQ(frame->FensterManager()->WhatsMyPosition(), place);
    EXPECT_TRUE(frame->OpenInitially());
}

TEST_F(OutsideFrame, WithoutStoredPlaceThePreferredOneCounts)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(RectInParent(frame->m_hWnd), CRect(0, 0, 500, 350));
    EXPECT_FALSE(frame->OpenInitially());
}

TEST_F(OutsideFrame, WithoutStoreItComesUpAsWell)
{
    CVeskBase::SetPreferenceVesk(nullptr);
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    EXPECT_FALSE(frame->OpenInitially());
    Close(frame);
    EXPECT_FALSE(m_user.FrameLebt());
    EXPECT_TRUE(m_store.m_log.empty());
}

TEST_F(OutsideFrame, WhatWasMaximisedComesBackInItsNormalPlace)
{
    CRect const place(60, 40, 460, 290);
    m_store.PutWindow(L"Scope", true, place);
    m_store.Put(L"Scope-Gestalt", 1);
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    EXPECT_FALSE(frame->IsZoomed());
    EXPECT_EQ(RectInParent(frame->m_hWnd), place);
}

TEST_F(OutsideFrame, UserCountsWhileTheViewIsMade)
{
    bool lives = false;
    PlainView::s_onCreate = [&](PlainView &) { lives = m_user.FrameLebt(); };
    Open();
    EXPECT_TRUE(lives);
}

TEST_F(OutsideFrame, ShowsItselfFirstInTheManagersShowMode)
{
    auto * const frame = new CStandaloneFrameWnd;
    frame->FensterManager()->SetShowMode(SW_SHOWMAXIMIZED);
    ASSERT_TRUE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style));
    EXPECT_TRUE(frame->IsZoomed());
}

// Failed creation

TEST_F(OutsideFrame, ClassWithoutDynamicCreationGivesNull)
{
    EXPECT_EQ(m_user.Open(L"Scope", RUNTIME_CLASS(UncreatableView)), nullptr);
    EXPECT_FALSE(m_user.FrameLebt());
    EXPECT_TRUE(tests::App().Take().empty());
}

TEST_F(OutsideFrame, ViewThatRefusesGivesNull)
{
    PlainView::s_refuse = true;
    EXPECT_EQ(m_user.Open(L"Scope"), nullptr);
    EXPECT_FALSE(m_user.FrameLebt());
    EXPECT_EQ(PlainView::s_live, 0);
}

TEST_F(OutsideFrame, FrameWithoutItsViewStaysUntilTheMainFrameEnds)
{
    PlainView::s_refuse = true;
    ASSERT_EQ(m_user.Open(L"Scope"), nullptr);
    ASSERT_NE(Managers::Find(L"Scope"), nullptr);
    EXPECT_TRUE(m_user.m_events.empty());
    EndMain();
    EXPECT_EQ(Managers::Find(L"Scope"), nullptr);
    EXPECT_EQ(m_user.m_events, texts_t{L"end"});
}

TEST_F(OutsideFrame, AfterAFailureAnotherFrameMayBeAskedFor)
{
    PlainView::s_refuse = true;
    ASSERT_EQ(m_user.Open(L"Scope"), nullptr);
    PlainView::s_refuse = false;
    EXPECT_NE(m_user.Open(L"Other"), nullptr);
    EXPECT_TRUE(m_user.FrameLebt());
}

TEST_F(OutsideFrame, WindowThatIsNotMadeGivesFalse)
{
    auto * const frame = new LoggingFrame;
    bool gone = false;
    frame->m_refuse = true;
    frame->m_gone = &gone;
    EXPECT_FALSE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style));
    EXPECT_EQ(PlainView::s_live, 0);
    if (!gone)
        delete frame;
}

TEST_F(OutsideFrame, ClientAreaThatIsRefusedEndsTheCreation)
{
    auto * const frame = new LoggingFrame;
    bool gone = false;
    frame->m_refuseClient = true;
    frame->m_gone = &gone;
    EXPECT_FALSE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style));
    EXPECT_EQ(::FindWindowExW(m_main->m_hWndMDIClient, nullptr, nullptr, L"Scope"), nullptr);
    EXPECT_TRUE(m_store.Entries(L"get").empty()); // the base class fails before the place is read
    EXPECT_EQ(Managers::Find(L"Scope"), nullptr);
    if (!gone)
        delete frame;
}

TEST_F(OutsideFrame, WithoutMainWindowThereIsNoFrame)
{
    tests::App().m_pMainWnd = nullptr;
    EXPECT_EQ(m_user.Open(L"Scope"), nullptr);
    EXPECT_FALSE(m_user.FrameLebt());
    EXPECT_EQ(PlainView::s_live, 0);
}

TEST_F(OutsideFrame, ViewThatEndsTheFrameAtItsCreationGivesNull)
{
    PlainView::s_onCreate = [](PlainView & view) { ::DestroyWindow(view.GetParentFrame()->m_hWnd); };
    EXPECT_EQ(m_user.Open(L"Scope"), nullptr);
    EXPECT_FALSE(m_user.FrameLebt());
    EXPECT_EQ(Managers::Find(L"Scope"), nullptr);
}

TEST_F(OutsideFrame, ViewThatEndsTheFrameAtItsFirstUpdateGivesNull)
{
    PlainView::s_onUpdate = [](PlainView & view) { ::DestroyWindow(view.GetParentFrame()->m_hWnd); };
    EXPECT_EQ(m_user.Open(L"Scope"), nullptr);
    EXPECT_FALSE(m_user.FrameLebt());
    EXPECT_EQ(m_user.m_events, texts_t{L"end"});
    EXPECT_EQ(Managers::Find(L"Scope"), nullptr);
}

TEST_F(OutsideFrame, IconComesAfterTheFirstUpdate)
{
    auto * const frame = new LoggingFrame;
    std::size_t icons = 7;
    PlainView::s_onUpdate = [&](PlainView &) { icons = frame->m_icons.size(); };
    ASSERT_TRUE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style));
    EXPECT_EQ(icons, 0u);
    EXPECT_EQ(frame->m_icons, std::vector<WPARAM>{ICON_SMALL});
}

// The end

TEST_F(OutsideFrame, ClosingTellsTheUserOnce)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    Close(frame);
    EXPECT_EQ(m_user.m_events, texts_t{L"end"});
    EXPECT_FALSE(m_user.FrameLebt());
    EXPECT_EQ(PlainView::s_live, 0);
    EXPECT_EQ(Managers::Find(L"Scope"), nullptr);
}

TEST_F(OutsideFrame, UserIsToldBeforeThePlaceIsStored)
{
    m_user.m_log = &m_store.m_log;
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    m_store.m_log.clear();
    bool lives = false;
    m_user.m_onEnd = [&] { lives = ::IsWindow(frame->m_hWnd) != FALSE; };
    Close(frame);
    EXPECT_TRUE(lives);
    EXPECT_GE(m_store.Place(L"end"), 0);
    EXPECT_GT(m_store.Place(L"set Scope-"), m_store.Place(L"end"));
}

TEST_F(OutsideFrame, PlaceIsStoredInTheOrderOfTheFormat)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    frame->MoveWindow(30, 20, 410, 260);
    m_store.m_log.clear();
    Close(frame);
    texts_t const expected{L"set Scope-IstOffen 0 false", L"set Scope-Gestalt 0 0",      L"set Scope-Fensterpos 0 20",
                           L"set Scope-Fensterpos 1 30",  L"set Scope-Fensterpos 2 280", L"set Scope-Fensterpos 3 440"};
    texts_t written = m_store.Entries(L"set Scope-");
    ASSERT_EQ(written.size(), 10u);
    EXPECT_EQ(texts_t(written.begin(), written.begin() + 6), expected);
    for (int index = 0; index < 4; ++index)
        EXPECT_TRUE(written[6 + index].starts_with(L"set Scope-FensterposMM " + std::to_wstring(index)));
}

TEST_F(OutsideFrame, ClosedByTheUserItIsStoredAsClosed)
{
    m_store.PutWindow(L"Scope", true, CRect(10, 10, 300, 200));
    Close(Open());
    EXPECT_EQ(m_store.Get(L"Scope-IstOffen"), 0);
}

TEST_F(OutsideFrame, EndingWithTheApplicationItIsStoredAsOpen)
{
    Open();
    SetExit(true);
    EndMain();
    EXPECT_EQ(m_store.Get(L"Scope-IstOffen"), 1);
    EXPECT_EQ(m_user.m_events, texts_t{L"end"});
}

TEST_F(OutsideFrame, EndOfTheMainFrameAloneStoresItAsClosed)
{
    Open();
    EndMain();
    EXPECT_EQ(m_store.Get(L"Scope-IstOffen"), 0);
    EXPECT_EQ(m_user.m_events, texts_t{L"end"});
    EXPECT_FALSE(m_user.FrameLebt());
}

TEST_F(OutsideFrame, OverrideWithoutTheBaseLeavesTheFlag)
{
    m_user.m_callsBase = false;
    Close(Open());
    EXPECT_EQ(m_user.m_events, texts_t{L"end"});
    EXPECT_TRUE(m_user.FrameLebt());
}

TEST_F(OutsideFrame, AnotherFrameAfterTheFirst)
{
    Close(Open());
    CStandaloneFrameWnd * const second = Open(L"Second");
    ASSERT_NE(second, nullptr);
    EXPECT_TRUE(m_user.FrameLebt());
    Close(second);
    EXPECT_EQ(m_user.m_events.size(), 2u);
}

TEST_F(OutsideFrame, AFrameFromWithinTheEndOfAnother)
{
    CStandaloneFrameWnd * const first = Open(L"First");
    m_user.m_onEnd = [&] {
        m_user.m_onEnd = {};
        m_other.Open(L"Second");
    };
    Close(first);
    EXPECT_TRUE(m_other.FrameLebt());
    EXPECT_FALSE(m_user.FrameLebt());
    EXPECT_NE(Managers::Find(L"Second"), nullptr);
}

TEST_F(OutsideFrame, UserThatEndsFirstLeavesTheFrame)
{
    auto user = std::make_unique<User>();
    CStandaloneFrameWnd * const frame = user->Open(L"Scope");
    ASSERT_NE(frame, nullptr);
    HWND const window = frame->m_hWnd;
    user.reset();
    EXPECT_TRUE(::IsWindow(window));
    frame->BitteUmNachricht(&m_other);
    Close(frame);
    EXPECT_EQ(m_other.m_events, texts_t{L"end"});
}

TEST_F(OutsideFrame, MinimisedFrameIsStoredSo)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    frame->ShowWindow(SW_MINIMIZE);
    Close(frame);
    EXPECT_EQ(m_store.Get(L"Scope-Gestalt"), 2);
}

TEST_F(OutsideFrame, MaximisedFrameIsStoredSo)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    frame->MDIMaximize();
    ASSERT_TRUE(frame->IsZoomed());
    frame->FensterpositionSpeichern();
    EXPECT_EQ(m_store.Get(L"Scope-Gestalt"), 1);
    EXPECT_EQ(m_store.Position(L"Scope"), CRect(0, 0, 500, 350));
    m_store.m_values.clear();
    EndMain(); // a child frame that is closed by itself may be restored by the system before
    EXPECT_EQ(m_store.Get(L"Scope-Gestalt"), 1);
}

TEST_F(OutsideFrame, AsTabsFramesKeepTheStoredPlace)
{
    CRect const place(60, 40, 460, 290);
    m_store.PutWindow(L"Scope", true, place);
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    CFensterManager::SetTabbedViews(true);
    frame->MoveWindow(0, 0, 300, 200);
    Close(frame);
    EXPECT_EQ(m_store.Position(L"Scope"), place);
    EXPECT_EQ(m_store.Get(L"Scope-IstOffen"), 0);
}

TEST_F(OutsideFrame, NothingCallsTheUsersEvent)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    frame->MDIMaximize();
    frame->MDIRestore();
    frame->FensterWeg();
    Close(frame);
    EXPECT_EQ(std::count(m_user.m_events.begin(), m_user.m_events.end(), L"event"), 0);
}

// Geometry on demand

TEST_F(OutsideFrame, StoresItsPlaceOnDemandAsOpen)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    frame->MoveWindow(70, 50, 330, 240);
    frame->FensterpositionSpeichern();
    EXPECT_EQ(m_store.Position(L"Scope"), CRect(70, 50, 400, 290));
    EXPECT_EQ(m_store.Get(L"Scope-IstOffen"), 1);
    EXPECT_TRUE(frame->OpenInitially());
}

TEST_F(OutsideFrame, LoadsItsPlaceOnDemand)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    CRect const place(80, 60, 480, 300);
    m_store.PutWindow(L"Scope", true, place);
    frame->FensterpositionLaden();
    EXPECT_EQ(RectInParent(frame->m_hWnd), place);
}

// Showing itself

TEST_F(OutsideFrame, ActivationTakesTheManagersShowMode)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    ASSERT_EQ(frame->FensterManager()->WhatsMyStyle(), static_cast<unsigned int>(SW_SHOWNORMAL));
    frame->ActivateFrame(SW_SHOWMAXIMIZED);
    EXPECT_FALSE(frame->IsZoomed());
    EXPECT_TRUE(frame->IsWindowVisible());
}

TEST_F(OutsideFrame, ManagersShowModeMaximises)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    frame->FensterManager()->SetShowMode(SW_SHOWMAXIMIZED);
    frame->ActivateFrame(SW_SHOWNORMAL);
    EXPECT_TRUE(frame->IsZoomed());
}

TEST_F(OutsideFrame, ManagersShowModeMinimises)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    frame->FensterManager()->SetShowMode(SW_SHOWMINIMIZED);
    frame->ActivateFrame();
    EXPECT_TRUE(frame->IsIconic());
}

// Mouse

TEST_F(OutsideFrame, LeftDoubleClickReachesTheUserThenTheSystem)
{
    auto * const frame = new LoggingFrame;
    frame->m_log = &m_user;
    frame->BitteUmNachricht(&m_user);
    ASSERT_TRUE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style));
    frame->SendMessage(WM_LBUTTONDBLCLK, MK_CONTROL, MAKELPARAM(12, 34));
    EXPECT_EQ(m_user.m_events, (texts_t{L"left 8 12 34 -1", L"default"}));
    frame->m_log = nullptr;
}

TEST_F(OutsideFrame, RightDoubleClickReachesTheUserThenTheSystem)
{
    auto * const frame = new LoggingFrame;
    frame->m_log = &m_user;
    frame->BitteUmNachricht(&m_user);
    ASSERT_TRUE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style));
    frame->SendMessage(WM_RBUTTONDBLCLK, MK_SHIFT, MAKELPARAM(-5, 7));
    EXPECT_EQ(m_user.m_events, (texts_t{L"right 4 -5 7 -1", L"default"}));
    frame->m_log = nullptr;
}

TEST_F(OutsideFrame, DoubleClickWithoutUserIsTheSystems)
{
    auto * const frame = new LoggingFrame;
    frame->m_log = &m_user;
    ASSERT_TRUE(frame->Erzeugen(L"Scope", RUNTIME_CLASS(PlainView), usual_style));
    frame->SendMessage(WM_LBUTTONDBLCLK, 0, MAKELPARAM(1, 1));
    frame->SendMessage(WM_RBUTTONDBLCLK, 0, MAKELPARAM(1, 1));
    EXPECT_EQ(m_user.m_events, (texts_t{L"default", L"default"}));
    frame->m_log = nullptr;
}

TEST_F(OutsideFrame, UserHearsOfTheMouseStillWhileItIsToldOfTheEnd)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    m_user.m_onEnd = [&] {
        frame->SendMessage(WM_LBUTTONDBLCLK, 0, MAKELPARAM(3, 4));
        frame->MenueKommando(5, 6);
    };
    Close(frame);
    EXPECT_EQ(m_user.m_events, (texts_t{L"end", L"left 0 3 4 -1", L"menu 5 6"}));
}

TEST_F(OutsideFrame, DoubleClickMayEndTheFrame)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    HWND const window = frame->m_hWnd;
    m_user.m_onClick = [&] { ::DestroyWindow(window); };
    ::SendMessageW(window, WM_LBUTTONDBLCLK, 0, MAKELPARAM(3, 4));
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_FALSE(m_user.FrameLebt());
    EXPECT_EQ(m_user.m_events, (texts_t{L"left 0 3 4 -1", L"end"}));
}

// Touch freeze

TEST_F(OutsideFrame, FreezeIsAFlag)
{
    EXPECT_FALSE(CStandaloneFrameWnd::IsInTouchFreeze());
    CStandaloneFrameWnd::SetTouchFreeze(true);
    EXPECT_TRUE(CStandaloneFrameWnd::IsInTouchFreeze());
    CStandaloneFrameWnd::SetTouchFreeze(false);
    EXPECT_FALSE(CStandaloneFrameWnd::IsInTouchFreeze());
}

TEST_F(OutsideFrame, FrozenFrameStaysWhereItIs)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    CStandaloneFrameWnd::SetTouchFreeze(true);
    for (UINT const message : {WM_MOVING, WM_SIZING})
    {
        CRect proposed(1, 2, 303, 204);
        frame->SendMessage(message, message == WM_SIZING ? WMSZ_BOTTOMRIGHT : 9, reinterpret_cast<LPARAM>(&proposed));
        EXPECT_EQ(proposed, ScreenRect(frame->m_hWnd)) << message;
    }
}

TEST_F(OutsideFrame, FreeFrameTakesTheProposal)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    for (UINT const message : {WM_MOVING, WM_SIZING})
    {
        CRect proposed(1, 2, 303, 204);
        frame->SendMessage(message, message == WM_SIZING ? WMSZ_BOTTOMRIGHT : 9, reinterpret_cast<LPARAM>(&proposed));
        EXPECT_EQ(proposed, CRect(1, 2, 303, 204)) << message;
    }
}

TEST_F(OutsideFrame, BothHalvesOfTheFreezeAreApart)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    CFensterManager::ActivateTouchFreeze(true);
    EXPECT_FALSE(CStandaloneFrameWnd::IsInTouchFreeze());
    EXPECT_EQ(frame->GetStyle() & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX), 0u);
    CMenu * const menu = frame->GetSystemMenu(FALSE);
    ASSERT_NE(menu, nullptr);
    for (UINT const command : {0xF000, 0xF010, 0xF020, 0xF030, 0xF060, 0xF120})
        EXPECT_EQ(menu->GetMenuState(command, MF_BYCOMMAND) & 3u, 3u) << command;
    CFensterManager::ActivateTouchFreeze(false);
    EXPECT_EQ(frame->GetStyle() & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX),
              static_cast<DWORD>(WS_MINIMIZEBOX | WS_MAXIMIZEBOX));
    CStandaloneFrameWnd::SetTouchFreeze(true);
    EXPECT_EQ(menu->GetMenuState(SC_CLOSE, MF_BYCOMMAND) & 3u, 0u);
}

TEST_F(OutsideFrame, CloseCommandIsGreyedAndEnabled)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    frame->EnableCloseButton(false);
    CMenu * const menu = frame->GetSystemMenu(FALSE);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->GetMenuState(SC_CLOSE, MF_BYCOMMAND) & 3u, 3u);
    EXPECT_EQ(menu->GetMenuState(SC_MOVE, MF_BYCOMMAND) & 3u, 0u);
    frame->EnableCloseButton(true);
    EXPECT_EQ(menu->GetMenuState(SC_CLOSE, MF_BYCOMMAND) & 3u, 0u);
}

// The main frame's title

TEST_F(OutsideFrame, GoneFrameBringsTheMainTitleUpToDate)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    DWORD const style = m_main->GetStyle();
    ASSERT_NE(style & FWS_ADDTOTITLE, 0u);
    m_main->m_titles.clear();
    m_main->m_styles.clear();
    frame->FensterWeg();
    ASSERT_EQ(m_main->m_styles.size(), 2u);
    EXPECT_EQ(m_main->m_styles[0], style & ~FWS_ADDTOTITLE);
    EXPECT_EQ(m_main->m_styles[1], style);
    ASSERT_EQ(m_main->m_titles.size(), 1u);
    EXPECT_EQ(m_main->m_titles[0].first, 1);
    EXPECT_EQ(m_main->m_titles[0].second, style);
}

TEST_F(OutsideFrame, MainFrameThatEndsMeanwhileGetsNoTitle)
{
    CStandaloneFrameWnd * const frame = Open();
    ASSERT_NE(frame, nullptr);
    tests::App().m_pMainWnd = nullptr;
    m_main->m_onStyle = [main = m_main] { main->DestroyWindow(); };
    frame->FensterWeg();
    EXPECT_TRUE(m_mainGone);
    EXPECT_EQ(m_user.m_events, texts_t{L"end"});
}

// By name

TEST_F(OutsideFrame, IsFoundActivatedAndKilledByName)
{
    CStandaloneFrameWnd * const first = Open(L"First");
    ASSERT_NE(m_other.Open(L"Second"), nullptr);
    CFensterManager main(L"Main", CFensterManager::window_main);
    EXPECT_NE(main.AlreadyOpen(L"First"), 0);
    EXPECT_NE(m_main->MDIGetActive(), first);
    main.ActivateThatWindow(L"First");
    EXPECT_EQ(m_main->MDIGetActive(), first);
    main.KillThatWindow(L"First");
    EXPECT_EQ(main.AlreadyOpen(L"First"), 0);
    EXPECT_EQ(m_user.m_events, texts_t{L"end"});
    EXPECT_TRUE(m_other.FrameLebt());
}

TEST_F(OutsideFrame, AllAreClosedAtOnce)
{
    Open(L"First");
    ASSERT_NE(m_other.Open(L"Second"), nullptr);
    CFensterManager main(L"Main", CFensterManager::window_main);
    main.CloseAllViews();
    EXPECT_EQ(m_user.m_events, texts_t{L"end"});
    EXPECT_EQ(m_other.m_events, texts_t{L"end"});
    EXPECT_EQ(PlainView::s_live, 0);
}

// Grids

namespace
{
class OutsideGrid : public FrameTest
{
protected:
    CRuntimeClass * m_classes[6] = {RUNTIME_CLASS(Grid0), RUNTIME_CLASS(Grid1), RUNTIME_CLASS(Grid2),
                                    RUNTIME_CLASS(Grid3), RUNTIME_CLASS(Grid4), RUNTIME_CLASS(Grid5)};

    CStandaloneFrameWnd * Grid(unsigned long long rows = 2, unsigned long long columns = 3)
    {
        auto * const frame = new CStandaloneFrameWnd;
        frame->BitteUmNachricht(&m_user);
        bool const made = frame->SplitFrameErzeugen(L"Grid", rows, columns, m_classes);
        EXPECT_TRUE(made);
        return made ? frame : nullptr;
    }
};
} // namespace

TEST_F(OutsideGrid, EachCellHasItsClass)
{
    CStandaloneFrameWnd * const frame = Grid();
    ASSERT_NE(frame, nullptr);
    for (int row = 0; row < 2; ++row)
    {
        for (int column = 0; column < 3; ++column)
        {
            CView * const view = frame->GetSplitPane(row, column);
            ASSERT_NE(view, nullptr);
            EXPECT_EQ(view->GetRuntimeClass(), m_classes[row * 3 + column]);
        }
    }
    EXPECT_TRUE(m_user.FrameLebt());
}

TEST_F(OutsideGrid, CellsAreMadeRowByRow)
{
    ASSERT_NE(Grid(), nullptr);
    std::vector<std::string> const expected{"Grid0", "Grid1", "Grid2", "Grid3", "Grid4", "Grid5"};
    EXPECT_EQ(PlainView::s_made, expected);
}

TEST_F(OutsideGrid, OutsideTheGridIsNothing)
{
    CStandaloneFrameWnd * const frame = Grid();
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->GetSplitPane(2, 0), nullptr);
    EXPECT_EQ(frame->GetSplitPane(0, 3), nullptr);
    EXPECT_EQ(frame->GetSplitPane(0x7FFFFFFF, 0), nullptr);
    EXPECT_EQ(frame->GetSplitPane(-1, 0), nullptr);
}

TEST_F(OutsideGrid, FrameWithOneViewHasNoCells)
{
    CStandaloneFrameWnd * const frame = m_user.Open(L"Scope");
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->GetSplitPane(0, 0), nullptr);
}

TEST_F(OutsideGrid, PaneThatIsNoViewIsNotGiven)
{
    m_classes[4] = RUNTIME_CLASS(PlainPane);
    CStandaloneFrameWnd * const frame = Grid();
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->GetSplitPane(1, 1), nullptr);
    EXPECT_NE(frame->GetSplitPane(1, 0), nullptr);
}

TEST_F(OutsideGrid, ClassesAreCopiedFirst)
{
    PlainView::s_onCreate = [&](PlainView &) { std::fill(std::begin(m_classes), std::end(m_classes), nullptr); };
    ASSERT_NE(Grid(), nullptr);
    EXPECT_EQ(PlainView::s_made.size(), 6u);
}

TEST_F(OutsideGrid, SplitterFillsTheFrameWithCellsOfAHundred)
{
    CStandaloneFrameWnd * const frame = Grid();
    ASSERT_NE(frame, nullptr);
    auto * const splitter = DYNAMIC_DOWNCAST(CSplitterWnd, frame->GetDlgItem(0xE900));
    ASSERT_NE(splitter, nullptr);
    EXPECT_EQ(splitter->GetRowCount(), 2);
    EXPECT_EQ(splitter->GetColumnCount(), 3);
    EXPECT_EQ(splitter->GetStyle() & (WS_CHILD | WS_VISIBLE), static_cast<DWORD>(WS_CHILD | WS_VISIBLE));
    int current = 0;
    int minimum = 0;
    splitter->GetColumnInfo(0, current, minimum);
    EXPECT_EQ(current, 100);
    splitter->GetColumnInfo(1, current, minimum);
    EXPECT_EQ(current, 100);
    splitter->GetRowInfo(0, current, minimum);
    EXPECT_EQ(current, 100);
}

TEST_F(OutsideGrid, EveryViewIsUpdatedWhenAllAreThere)
{
    std::vector<PlainView *> made;
    int before[6] = {};
    PlainView::s_onCreate = [&](PlainView & view) {
        made.push_back(&view);
        for (std::size_t cell = 0; cell < made.size() && cell < 6; ++cell)
            before[cell] = made[cell]->m_initialUpdates;
    };
    CStandaloneFrameWnd * const frame = Grid();
    ASSERT_NE(frame, nullptr);
    for (int cell = 0; cell < 6; ++cell)
        EXPECT_GT(static_cast<PlainView *>(frame->GetSplitPane(cell / 3, cell % 3))->m_initialUpdates, before[cell]);
}

TEST_F(OutsideGrid, CreationSetsTheUsersFlagAgain)
{
    PlainView::s_onCreate = [&](PlainView &) { m_user.CStandaloneFrameUser::BeiFrameAbleben(); };
    ASSERT_NE(Grid(), nullptr);
    EXPECT_TRUE(m_user.FrameLebt());
}

TEST_F(OutsideGrid, EndsInItsOrderToo)
{
    CStandaloneFrameWnd * const frame = Grid();
    ASSERT_NE(frame, nullptr);
    m_user.m_log = &m_store.m_log;
    m_store.m_log.clear();
    frame->SendMessage(WM_CLOSE);
    EXPECT_GE(m_store.Place(L"end"), 0);
    EXPECT_GT(m_store.Place(L"set Grid-"), m_store.Place(L"end"));
}

TEST_F(OutsideGrid, IsAFrameLikeOthers)
{
    m_store.PutWindow(L"Grid", false, CRect(50, 40, 550, 440));
    CStandaloneFrameWnd * const frame = Grid();
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->GetStyle() & usual_style, usual_style);
    EXPECT_EQ(TextOf(frame->m_hWnd), L"Grid");
    EXPECT_EQ(RectInParent(frame->m_hWnd), CRect(50, 40, 550, 440));
    EXPECT_NE(frame->SendMessage(WM_GETICON, ICON_SMALL), 0);
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(m_user.m_events, texts_t{L"end"});
    EXPECT_EQ(PlainView::s_live, 0);
}

TEST_F(OutsideGrid, OneCellThatFailsEndsTheGrid)
{
    m_classes[3] = RUNTIME_CLASS(UncreatableView);
    auto * const frame = new LoggingFrame;
    bool gone = false;
    frame->m_gone = &gone;
    EXPECT_FALSE(frame->SplitFrameErzeugen(L"Grid", 2, 3, m_classes));
    EXPECT_EQ(PlainView::s_live, 0);
    EXPECT_EQ(Managers::Find(L"Grid"), nullptr);
    EXPECT_EQ(::FindWindowExW(m_main->m_hWndMDIClient, nullptr, nullptr, L"Grid"), nullptr);
    EXPECT_TRUE(tests::App().Take().empty());
    if (!gone)
        delete frame;
}

TEST_F(OutsideGrid, CellThatRefusesItsWindowEndsTheGrid)
{
    int made = 0;
    PlainView::s_onCreate = [&](PlainView &) { PlainView::s_refuse = ++made == 6; };
    auto * const frame = new LoggingFrame;
    bool gone = false;
    frame->m_gone = &gone;
    EXPECT_FALSE(frame->SplitFrameErzeugen(L"Grid", 2, 3, m_classes));
    EXPECT_EQ(made, 6);
    EXPECT_EQ(PlainView::s_live, 0);
    EXPECT_EQ(::FindWindowExW(m_main->m_hWndMDIClient, nullptr, nullptr, L"Grid"), nullptr);
    if (!gone)
        delete frame;
}
} // namespace outside
