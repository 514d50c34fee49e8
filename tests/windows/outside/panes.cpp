// Panes with one view, and what was a frame and becomes a pane.

#include <afxpaneframewnd.h>

#include <memory>

#include "OutsideTest.h"
#include "Pump.h"
#include "TestApp.h"
#include "windows/StandaloneFrameMigrationHelper.h"

namespace outside
{
namespace
{
constexpr UINT base = 10742;
constexpr UINT view_id = 0xE900;
constexpr DWORD pane_style = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM | CBRS_FLOAT_MULTI;

class OutsidePane : public FrameTest
{
protected:
    void SetUp() override
    {
        FrameTest::SetUp();
        m_main->base_id(base);
    }
    CDockableViewPane * Register(int id = -1)
    {
        CDockableViewPane * pane = nullptr;
        EXPECT_GE(m_main->register_pane(pane, id), 0);
        return pane;
    }
    static PlainView * NewView() { return static_cast<PlainView *>(RUNTIME_CLASS(PlainView)->CreateObject()); }
    /// A pane with its view.
    CDockableViewPane * Connected(wchar_t const * title = L"Pane")
    {
        CDockableViewPane * const pane = Register();
        EXPECT_TRUE(pane->Connect(*NewView(), title));
        return pane;
    }
    /// As the main frame does it for those that the workspace knows.
    CDockableViewPane * Restored(UINT id)
    {
        CDockableViewPane * const pane = Register(static_cast<int>(id));
        EXPECT_TRUE(pane->Create(L"", m_main, CRect(0, 0, 200, 100), TRUE, id, pane_style));
        return pane;
    }
    static CRect FloatingRect(CDockableViewPane * pane)
    {
        CPaneFrameWnd * const frame = pane->GetParentMiniFrame();
        return frame == nullptr ? CRect(-1, -1, -1, -1) : ScreenRect(frame->m_hWnd);
    }
    CPoint ClientOrigin() const
    {
        CPoint origin;
        ::ClientToScreen(m_main->m_hWndMDIClient, &origin);
        return origin;
    }
    bool AnyKeyOf(std::wstring const & name) const
    {
        return m_store.Has(name + L"-IstOffen") || m_store.Has(name + L"-Gestalt") ||
               m_store.Has(name + L"-Fensterpos") || m_store.Has(name + L"-FensterposMM");
    }
};

class OutsideMigration : public OutsidePane
{
};

class MappedPane : public CDockableViewPane
{
public:
    static std::vector<UINT> Messages()
    {
        std::vector<UINT> messages;
        for (AFX_MSGMAP_ENTRY const * entry = CDockableViewPane::GetThisMessageMap()->lpEntries; entry->nSig != 0;
             ++entry)
            messages.push_back(entry->nMessage);
        return messages;
    }
};
} // namespace

// The object alone

TEST_F(OutsidePane, IsMadeByItsRunTimeClass)
{
    EXPECT_EQ(RUNTIME_CLASS(CDockableViewPane)->m_pfnGetBaseClass(), RUNTIME_CLASS(CDockablePane));
    std::unique_ptr<CObject> const object(RUNTIME_CLASS(CDockableViewPane)->CreateObject());
    ASSERT_NE(object, nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CDockableViewPane)));
    EXPECT_EQ(static_cast<CDockableViewPane *>(object.get())->View(), nullptr);
}

TEST_F(OutsidePane, HandlesItsSizeAlone)
{
    EXPECT_EQ(MappedPane::Messages(), std::vector<UINT>{WM_SIZE});
}

TEST_F(OutsidePane, WithoutWindowItDoesNotFloat)
{
    CDockableViewPane pane;
    EXPECT_FALSE(pane.Float(CRect(0, 0, 100, 100)));
    EXPECT_FALSE(Register()->Float(CRect(0, 0, 100, 100)));
}

// Connecting

TEST_F(OutsidePane, ConnectMakesWindowAndView)
{
    CDockableViewPane * const pane = Register();
    PlainView * const view = NewView();
    ASSERT_TRUE(pane->Connect(*view, L"Levels"));
    EXPECT_TRUE(::IsWindow(pane->m_hWnd));
    EXPECT_EQ(pane->GetDlgCtrlID(), static_cast<int>(base));
    EXPECT_EQ(TextOf(pane->m_hWnd), L"Levels");
    EXPECT_EQ(pane->View(), view);
    EXPECT_EQ(::GetParent(view->m_hWnd), pane->m_hWnd);
    EXPECT_EQ(view->GetDlgCtrlID(), static_cast<int>(view_id));
    EXPECT_TRUE(TextOf(view->m_hWnd).empty());
    EXPECT_EQ(view->GetStyle() & (WS_CHILD | WS_VISIBLE), static_cast<DWORD>(WS_CHILD | WS_VISIBLE));
    EXPECT_TRUE((view->GetStyle() & WS_BORDER) != 0 || (view->GetExStyle() & WS_EX_CLIENTEDGE) != 0);
}

TEST_F(OutsidePane, ConnectAloneDoesNotUpdateTheView)
{
    CDockableViewPane * const pane = Connected();
    EXPECT_EQ(static_cast<PlainView *>(pane->View())->m_initialUpdates, 0);
}

TEST_F(OutsidePane, NewWindowHasTheNumberOfItsPlaceAsCaption)
{
    for (int place = 0; place < 7; ++place)
        Register();
    CDockableViewPane * const pane = Register();
    std::wstring caption;
    CRect rect;
    PlainView::s_onCreate = [&](PlainView & view) {
        caption = TextOf(::GetParent(view.m_hWnd));
        rect = ScreenRect(::GetParent(view.m_hWnd));
    };
    ASSERT_TRUE(pane->Connect(*NewView(), L"Levels"));
    EXPECT_EQ(caption, L"DockablePane-7");
    EXPECT_EQ(pane->GetDlgCtrlID(), static_cast<int>(base + 7));
    EXPECT_EQ(rect.Size(), CSize(200, 100));
}

TEST_F(OutsidePane, NewWindowHasItsStyles)
{
    CDockableViewPane * const pane = Register();
    DWORD window = 0;
    DWORD paneStyle = 0;
    DWORD bar = 0;
    HWND parent = nullptr;
    int caption = 0;
    PlainView::s_onCreate = [&](PlainView &) {
        window = pane->GetStyle();
        paneStyle = pane->GetPaneStyle();
        bar = pane->GetControlBarStyle();
        parent = ::GetParent(pane->m_hWnd);
        caption = pane->GetCaptionHeight();
    };
    ASSERT_TRUE(pane->Connect(*NewView(), L"Levels"));
    DWORD const windowBits = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    EXPECT_EQ(window & windowBits, windowBits);
    EXPECT_EQ(paneStyle & 0x8240u, 0x8240u);
    EXPECT_EQ(bar, 15u);
    EXPECT_EQ(parent, m_main->m_hWnd);
    EXPECT_GT(caption, 0); // it has a gripper
}

TEST_F(OutsidePane, BaseOfZeroCreatesNothing)
{
    m_main->base_id(0);
    CDockableViewPane * const pane = Register();
    EXPECT_FALSE(pane->Connect(*NewView(), L"Levels"));
    EXPECT_EQ(pane->GetSafeHwnd(), nullptr);
    EXPECT_EQ(pane->View(), nullptr);
}

TEST_F(OutsidePane, PaneThatWasNotGivenOutIsNotCreated)
{
    Register();
    CDockableViewPane stranger;
    EXPECT_FALSE(stranger.Connect(*NewView(), L"Levels"));
    EXPECT_EQ(stranger.GetSafeHwnd(), nullptr);
    EXPECT_EQ(stranger.View(), nullptr);
}

TEST_F(OutsidePane, WithoutMainWindowNothingIsCreated)
{
    CDockableViewPane * const pane = Register();
    tests::App().m_pMainWnd = nullptr;
    m_main->ShowWindow(SW_HIDE); // without a main window the active one would stand for it
    ::SetActiveWindow(nullptr);
    ASSERT_EQ(AfxGetThread()->GetMainWnd(), nullptr);
    EXPECT_FALSE(pane->Connect(*NewView(), L"Levels"));
    EXPECT_EQ(pane->GetSafeHwnd(), nullptr);
}

TEST_F(OutsidePane, RestoredWindowIsTaken)
{
    CDockableViewPane * const pane = Restored(base);
    HWND const window = pane->m_hWnd;
    std::wstring caption = L"none";
    PlainView::s_onCreate = [&](PlainView & view) { caption = TextOf(::GetParent(view.m_hWnd)); };
    ASSERT_TRUE(pane->Connect(*NewView(), L"Levels"));
    EXPECT_EQ(pane->m_hWnd, window);
    EXPECT_EQ(caption, L"");
    EXPECT_EQ(TextOf(window), L"Levels");
}

TEST_F(OutsidePane, RestoredWindowIsTakenWithABaseOfZero)
{
    CDockableViewPane * const pane = Restored(base);
    m_main->base_id(0);
    EXPECT_TRUE(pane->Connect(*NewView(), L"Levels"));
    EXPECT_NE(pane->View(), nullptr);
}

TEST_F(OutsidePane, ViewThatRefusesLeavesThePaneFree)
{
    CDockableViewPane * const pane = Register();
    PlainView::s_refuse = true;
    EXPECT_FALSE(pane->Connect(*NewView(), L"Levels"));
    EXPECT_EQ(pane->View(), nullptr);
    EXPECT_TRUE(::IsWindow(pane->GetSafeHwnd()));
    EXPECT_EQ(TextOf(pane->m_hWnd), L"DockablePane-0"); // the title comes after the view
    EXPECT_EQ(PlainView::s_live, 0);
}

TEST_F(OutsidePane, SecondViewThatRefusesLeavesTheFirst)
{
    CDockableViewPane * const pane = Connected(L"First");
    CView * const first = pane->View();
    PlainView::s_refuse = true;
    EXPECT_FALSE(pane->Connect(*NewView(), L"Second"));
    EXPECT_EQ(pane->View(), first);
    EXPECT_EQ(TextOf(pane->m_hWnd), L"First");
}

TEST_F(OutsidePane, SecondViewTakesThePlaceOfTheFirst)
{
    CDockableViewPane * const pane = Connected(L"First");
    CView * const first = pane->View();
    PlainView * const second = NewView();
    ASSERT_TRUE(pane->Connect(*second, L"Second"));
    EXPECT_EQ(pane->View(), second);
    EXPECT_TRUE(::IsWindow(first->m_hWnd));
    EXPECT_EQ(TextOf(pane->m_hWnd), L"Second");
    pane->SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 200));
    EXPECT_EQ(RectInParent(second->m_hWnd), CRect(0, 0, 300, 200));
    EXPECT_NE(RectInParent(first->m_hWnd), CRect(0, 0, 300, 200));
}

TEST_F(OutsidePane, ConnectSizesTheViewToTheWindowsRightAndBottom)
{
    CDockableViewPane * const pane = Connected();
    CRect const expected = RectIn(pane->m_hWnd, pane->m_hWnd);
    CRect const view = RectInParent(pane->View()->m_hWnd);
    EXPECT_EQ(view.TopLeft(), CPoint(0, 0));
    EXPECT_EQ(view.Size(), CSize(expected.right, expected.bottom));
}

TEST_F(OutsidePane, SizeMessageGivesTheViewExactlyThatSize)
{
    CDockableViewPane * const pane = Connected();
    pane->SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 200));
    EXPECT_EQ(RectInParent(pane->View()->m_hWnd), CRect(0, 0, 300, 200));
}

TEST_F(OutsidePane, SizeMessageOfAFreePaneDoesNothing)
{
    CDockableViewPane * const pane = Restored(base);
    pane->SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 200));
    EXPECT_EQ(pane->View(), nullptr);
}

TEST_F(OutsidePane, ViewFillsAPaneThatIsMoved)
{
    CDockableViewPane * const pane = Connected();
    ASSERT_TRUE(pane->Float(CRect(200, 150, 520, 380)));
    tests::PumpPosted();
    CRect client;
    pane->GetClientRect(&client);
    EXPECT_EQ(RectInParent(pane->View()->m_hWnd), client);
    ASSERT_TRUE(pane->Float(CRect(220, 170, 640, 460)));
    tests::PumpPosted();
    CRect larger;
    pane->GetClientRect(&larger);
    EXPECT_GT(larger.Width(), client.Width());
    EXPECT_GT(larger.Height(), client.Height());
    EXPECT_EQ(RectInParent(pane->View()->m_hWnd), larger);
}

TEST_F(OutsidePane, EndedViewStillCounts)
{
    CDockableViewPane * const pane = Connected();
    pane->View()->DestroyWindow();
    EXPECT_NE(pane->View(), nullptr);
    pane->SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 200));
    EXPECT_EQ(PlainView::s_live, 0);
}

// Floating

TEST_F(OutsidePane, NewPaneFloatsAtTheRectangle)
{
    CDockableViewPane * const pane = Connected();
    CRect const main = ScreenRect(m_main->m_hWnd);
    CRect const rect(300, 200, 620, 440);
    EXPECT_TRUE(pane->Float(rect));
    EXPECT_EQ(FloatingRect(pane), rect);
    EXPECT_FALSE(pane->IsDocked());
    EXPECT_TRUE(pane->IsWindowVisible());
    EXPECT_EQ(ScreenRect(m_main->m_hWnd), main);
}

TEST_F(OutsidePane, EmptyRectangleStandsForTheOrigin)
{
    CDockableViewPane * const pane = Connected();
    EXPECT_TRUE(pane->Float(CRect(0, 0, 0, 0)));
    EXPECT_EQ(FloatingRect(pane), CRect(0, 0, 200, 100));
}

TEST_F(OutsidePane, RectangleWithoutHeightIsEmptyToo)
{
    CDockableViewPane * const pane = Connected();
    EXPECT_TRUE(pane->Float(CRect(300, 200, 620, 200)));
    EXPECT_EQ(FloatingRect(pane), CRect(0, 0, 200, 100));
}

TEST_F(OutsidePane, FloatingPaneMovesItsFrame)
{
    CDockableViewPane * const pane = Connected();
    ASSERT_TRUE(pane->Float(CRect(300, 200, 620, 440)));
    CPaneFrameWnd * const frame = pane->GetParentMiniFrame();
    ASSERT_NE(frame, nullptr);
    EXPECT_TRUE(pane->Float(CRect(310, 220, 700, 500)));
    EXPECT_EQ(pane->GetParentMiniFrame(), frame);
    EXPECT_EQ(FloatingRect(pane), CRect(310, 220, 700, 500));
}

TEST_F(OutsidePane, FloatingPaneGoesToTheOriginByAnEmptyRectangle)
{
    CDockableViewPane * const pane = Connected();
    ASSERT_TRUE(pane->Float(CRect(300, 200, 620, 440)));
    EXPECT_TRUE(pane->Float(CRect()));
    EXPECT_EQ(FloatingRect(pane), CRect(0, 0, 200, 100));
}

TEST_F(OutsidePane, DockedPaneFloats)
{
    CDockableViewPane * const pane = Connected();
    m_main->DockPane(pane, AFX_IDW_DOCKBAR_LEFT);
    tests::PumpPosted();
    ASSERT_TRUE(pane->IsDocked());
    CRect const rect(300, 200, 620, 440);
    EXPECT_TRUE(pane->Float(rect));
    EXPECT_FALSE(pane->IsDocked());
    EXPECT_EQ(FloatingRect(pane), rect);
}

TEST_F(OutsidePane, TabFloatsByItself)
{
    CDockableViewPane * const first = Connected(L"First");
    CDockableViewPane * const second = Connected(L"Second");
    m_main->DockPane(first, AFX_IDW_DOCKBAR_LEFT);
    second->AttachToTabWnd(first, DM_STANDARD);
    tests::PumpPosted();
    ASSERT_TRUE(second->IsTabbed());
    CRect const rect(300, 200, 620, 440);
    EXPECT_TRUE(second->Float(rect));
    EXPECT_FALSE(second->IsTabbed());
    EXPECT_EQ(FloatingRect(second), rect);
    EXPECT_TRUE(first->IsDocked());
}

TEST_F(OutsidePane, PaneThatMayNotFloatAnswersSo)
{
    CDockableViewPane * const pane = Connected();
    m_main->DockPane(pane, AFX_IDW_DOCKBAR_LEFT);
    tests::PumpPosted();
    pane->SetControlBarStyle(AFX_CBRS_RESIZE | AFX_CBRS_CLOSE);
    ASSERT_FALSE(pane->CanFloat());
    EXPECT_FALSE(pane->Float(CRect(300, 200, 620, 440)));
    EXPECT_TRUE(pane->IsDocked());
}

// What a frame has left

TEST_F(OutsideMigration, NothingStoredGivesAnEmptyRectangle)
{
    m_store.PutWindow(L"Other", true, CRect(1, 2, 3, 4));
    auto const before = m_store.m_values;
    EXPECT_TRUE(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope").IsRectEmpty());
    EXPECT_EQ(m_store.m_values, before);
}

TEST_F(OutsideMigration, StoredPlaceIsInTheClientAreaOfTheChildFrames)
{
    CRect const stored(60, 40, 460, 290);
    m_store.PutWindow(L"Scope", true, stored);
    CRect expected = stored;
    expected.OffsetRect(ClientOrigin());
    EXPECT_EQ(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope"), expected);
    EXPECT_FALSE(AnyKeyOf(L"Scope"));
}

TEST_F(OutsideMigration, KeysAreDeletedInTheirOrder)
{
    m_store.PutWindow(L"Scope", true, CRect(60, 40, 460, 290));
    CStandaloneFrameMigrationHelper::VeskPosition(L"Scope");
    texts_t const expected{L"delete Scope-IstOffen", L"delete Scope-Gestalt", L"delete Scope-Fensterpos",
                           L"delete Scope-FensterposMM"};
    EXPECT_EQ(m_store.Entries(L"delete"), expected);
    EXPECT_TRUE(m_store.Entries(L"set").empty());
}

TEST_F(OutsideMigration, SecondAskingGivesNothing)
{
    m_store.PutWindow(L"Scope", true, CRect(60, 40, 460, 290));
    EXPECT_FALSE(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope").IsRectEmpty());
    EXPECT_TRUE(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope").IsRectEmpty());
}

TEST_F(OutsideMigration, WhatIsIncompleteGivesNothingAndGoesAllTheSame)
{
    m_store.PutWindow(L"Scope", true, CRect(60, 40, 460, 290));
    m_store.Delete(L"Scope-IstOffen");
    EXPECT_TRUE(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope").IsRectEmpty());
    EXPECT_FALSE(AnyKeyOf(L"Scope"));
}

TEST_F(OutsideMigration, NameIsWrittenAsInTheStore)
{
    m_store.PutWindow(L"Scope-_1_a", true, CRect(60, 40, 460, 290));
    EXPECT_EQ(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope: 1 a").Size(), CSize(400, 250));
    EXPECT_FALSE(AnyKeyOf(L"Scope-_1_a"));
}

TEST_F(OutsideMigration, StoredPlaceIsMovedOntoTheScreenFirst)
{
    m_store.PutWindow(L"Scope", true, CRect(-500, 40, 10, 290));
    CRect expected(-450, 40, 60, 290);
    expected.OffsetRect(ClientOrigin());
    EXPECT_EQ(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope"), expected);
}

TEST_F(OutsideMigration, WithSeveralScreensItIsNotMoved)
{
    CFensterManager::SetNurEinMonitor(false);
    CRect const stored(-500, -40, 10, 290);
    m_store.PutWindow(L"Scope", true, stored);
    EXPECT_EQ(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope"), stored + ClientOrigin());
}

TEST_F(OutsideMigration, WithoutStoreThereIsNothing)
{
    CVeskBase::SetPreferenceVesk(nullptr);
    EXPECT_TRUE(CStandaloneFrameMigrationHelper::VeskPosition(L"Scope").IsRectEmpty());
}

TEST_F(OutsideMigration, NoManagerIsLeftInTheList)
{
    m_store.PutWindow(L"Scope", true, CRect(60, 40, 460, 290));
    CStandaloneFrameMigrationHelper::VeskPosition(L"Scope");
    EXPECT_EQ(Managers::Find(L"Scope"), nullptr);
}

// Pane and view at once

TEST_F(OutsideMigration, MakesPaneAndView)
{
    int id = -1;
    CDockableViewPane * pane = nullptr;
    PlainView * const view = CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(id, static_cast<int>(base));
    ASSERT_EQ(m_main->panes().size(), 1u);
    EXPECT_EQ(m_main->panes().begin()->second, pane);
    EXPECT_EQ(pane->View(), view);
    EXPECT_EQ(TextOf(pane->m_hWnd), L"Scope");
    EXPECT_EQ(view->m_initialUpdates, 1);
    EXPECT_EQ(m_main->m_askedPanes, std::vector<int>{-1});
}

TEST_F(OutsideMigration, InitialUpdateReachesAllDescendants)
{
    int id = -1;
    CDockableViewPane * pane = nullptr;
    NestedView * const view = CStandaloneFrameMigrationHelper::CreatePane<NestedView>(L"Scope", id, pane);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->m_initialUpdates, 1);
    EXPECT_EQ(view->m_child.m_updates, 1);
}

TEST_F(OutsideMigration, FirstRunFloatsWhereTheOpenFrameWas)
{
    CRect const stored(60, 40, 460, 290);
    m_store.PutWindow(L"Scope", true, stored);
    int id = -1;
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    CRect expected = stored;
    expected.OffsetRect(ClientOrigin());
    EXPECT_EQ(FloatingRect(pane), expected);
    EXPECT_TRUE(pane->IsWindowVisible());
    EXPECT_FALSE(AnyKeyOf(L"Scope"));
}

TEST_F(OutsideMigration, FirstRunHidesWhatWasClosed)
{
    m_store.PutWindow(L"Scope", false, CRect(60, 40, 460, 290));
    int id = -1;
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    EXPECT_FALSE(pane->IsDocked());
    EXPECT_FALSE(pane->IsPaneVisible());
    EXPECT_FALSE(pane->IsWindowVisible());
    EXPECT_FALSE(AnyKeyOf(L"Scope"));
}

TEST_F(OutsideMigration, HiddenPaneShowsWhereTheFrameWas)
{
    CRect const stored(60, 40, 460, 290);
    m_store.PutWindow(L"Scope", false, stored);
    int id = -1;
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    pane->ShowPane(TRUE, FALSE, FALSE);
    CRect expected = stored;
    expected.OffsetRect(ClientOrigin());
    EXPECT_EQ(FloatingRect(pane), expected);
    EXPECT_TRUE(pane->IsWindowVisible());
}

TEST_F(OutsideMigration, WithoutFormerFrameItIsHiddenAtTheOrigin)
{
    int id = -1;
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    EXPECT_FALSE(pane->IsWindowVisible());
    EXPECT_FALSE(pane->IsDocked());
    pane->ShowPane(TRUE, FALSE, FALSE);
    EXPECT_EQ(FloatingRect(pane), CRect(0, 0, 200, 100));
}

TEST_F(OutsideMigration, OpenStateIsReadBeforeItIsDeleted)
{
    m_store.PutWindow(L"Scope", true, CRect(60, 40, 460, 290));
    int id = -1;
    CDockableViewPane * pane = nullptr;
    CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane);
    ASSERT_GE(m_store.Place(L"get Scope-IstOffen"), 0);
    EXPECT_LT(m_store.Place(L"get Scope-IstOffen"), m_store.Place(L"get Scope-Gestalt"));
    EXPECT_LT(m_store.Place(L"get Scope-IstOffen"), m_store.Place(L"delete Scope-IstOffen"));
}

TEST_F(OutsideMigration, ViewIsUpdatedBeforeTheStoreIsRead)
{
    int id = -1;
    CDockableViewPane * pane = nullptr;
    bool readAlready = true;
    PlainView::s_onUpdate = [&](PlainView &) { readAlready = !m_store.m_log.empty(); };
    CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane);
    EXPECT_FALSE(m_store.m_log.empty());
    EXPECT_FALSE(readAlready);
}

TEST_F(OutsideMigration, RestoredDockedPaneKeepsItsPlace)
{
    CDockableViewPane * const restored = Restored(base);
    m_main->DockPane(restored, AFX_IDW_DOCKBAR_LEFT);
    tests::PumpPosted();
    ASSERT_TRUE(restored->IsWindowVisible());
    CRect const place = ScreenRect(restored->m_hWnd);
    m_store.PutWindow(L"Scope", false, CRect(60, 40, 460, 290));
    int id = base;
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(pane, restored);
    EXPECT_EQ(id, static_cast<int>(base));
    EXPECT_TRUE(pane->IsDocked());
    EXPECT_TRUE(pane->IsWindowVisible());
    EXPECT_EQ(ScreenRect(pane->m_hWnd), place);
    EXPECT_FALSE(AnyKeyOf(L"Scope"));
    EXPECT_EQ(TextOf(pane->m_hWnd), L"Scope");
}

TEST_F(OutsideMigration, RestoredFloatingPaneKeepsItsPlace)
{
    CDockableViewPane * const restored = Restored(base);
    restored->FloatPane(CRect(300, 200, 620, 440), DM_UNKNOWN, true);
    restored->ShowPane(FALSE, FALSE, FALSE);
    m_store.PutWindow(L"Scope", true, CRect(60, 40, 460, 290));
    int id = base;
    CDockableViewPane * pane = nullptr;
    ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    EXPECT_FALSE(pane->IsWindowVisible());
    EXPECT_FALSE(AnyKeyOf(L"Scope"));
    pane->ShowPane(TRUE, FALSE, FALSE);
    EXPECT_EQ(FloatingRect(pane), CRect(300, 200, 620, 440));
}

TEST_F(OutsideMigration, MainWindowOfAnotherKindGivesNull)
{
    CWnd other;
    ASSERT_TRUE(other.CreateEx(0, AfxRegisterWndClass(0), L"other", WS_OVERLAPPED, CRect(0, 0, 10, 10), nullptr, 0));
    tests::App().m_pMainWnd = &other;
    int id = 5;
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(id, 5);
    EXPECT_EQ(pane, nullptr);
    EXPECT_TRUE(m_main->panes().empty());
    tests::App().m_pMainWnd = m_main;
    other.DestroyWindow();
}

TEST_F(OutsideMigration, FullRegistryGivesNull)
{
    for (int place = 0; place < 100; ++place)
        Register();
    m_store.PutWindow(L"Scope", true, CRect(60, 40, 460, 290));
    int id = 5;
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(id, -1);
    EXPECT_EQ(PlainView::s_live, 0);
    EXPECT_TRUE(AnyKeyOf(L"Scope"));
}

TEST_F(OutsideMigration, AsksTheMainFramesOwnRegistration)
{
    m_main->m_refuse = true;
    int id = 5;
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(id, -7);
    EXPECT_EQ(m_main->m_askedPanes, std::vector<int>{5});
}

TEST_F(OutsideMigration, ViewThatRefusesLeavesAFreePane)
{
    PlainView::s_refuse = true;
    m_store.PutWindow(L"Scope", true, CRect(60, 40, 460, 290));
    int id = -1;
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(id, static_cast<int>(base));
    EXPECT_EQ(m_main->panes().size(), 1u);
    EXPECT_TRUE(AnyKeyOf(L"Scope")); // not reached
    EXPECT_TRUE(tests::App().Take().empty());
    PlainView::s_refuse = false;
    CDockableViewPane * again = nullptr;
    EXPECT_EQ(m_main->register_pane(again, id), id);
    EXPECT_EQ(again, pane);
}

TEST_F(OutsideMigration, ClassWithoutDynamicCreationGivesNull)
{
    int id = -1;
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<UncreatableView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(id, static_cast<int>(base));
    ASSERT_NE(pane, nullptr);
    EXPECT_EQ(pane->View(), nullptr);
    EXPECT_EQ(PlainView::s_live, 0);
}

TEST_F(OutsideMigration, ViewThatEndsAtItsFirstUpdateIsNotGiven)
{
    PlainView::s_onUpdate = [](PlainView & view) { ::DestroyWindow(view.m_hWnd); };
    int id = -1;
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    EXPECT_EQ(PlainView::s_live, 0);
}

TEST_F(OutsideMigration, MainFrameMayEndWhileThePaneIsMade)
{
    PlainView::s_onUpdate = [this](PlainView &) { EndMain(); };
    int id = -1;
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Scope", id, pane), nullptr);
    EXPECT_TRUE(m_mainGone);
}

TEST_F(OutsideMigration, KnownPaneInUseGivesAnotherOne)
{
    int first = -1;
    CDockableViewPane * firstPane = nullptr;
    CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"First", first, firstPane);
    int second = first;
    CDockableViewPane * secondPane = nullptr;
    ASSERT_NE(CStandaloneFrameMigrationHelper::CreatePane<PlainView>(L"Second", second, secondPane), nullptr);
    EXPECT_EQ(second, first + 1);
    EXPECT_NE(secondPane, firstPane);
    EXPECT_EQ(m_main->panes().size(), 2u);
}

// To the front

TEST_F(OutsideMigration, FrameIsBroughtToTheTop)
{
    CStandaloneFrameWnd * const first = m_user.Open(L"First");
    CStandaloneFrameWnd * const second = m_other.Open(L"Second");
    ASSERT_EQ(::GetTopWindow(m_main->m_hWndMDIClient), second->m_hWnd);
    CStandaloneFrameMigrationHelper::BringWindowToTop(first, nullptr);
    EXPECT_EQ(::GetTopWindow(m_main->m_hWndMDIClient), first->m_hWnd);
}

TEST_F(OutsideMigration, FrameGoesBeforeThePane)
{
    CStandaloneFrameWnd * const first = m_user.Open(L"First");
    m_other.Open(L"Second");
    CDockableViewPane * const pane = Connected();
    pane->Float(CRect(300, 200, 620, 440));
    pane->ShowPane(FALSE, FALSE, FALSE);
    CStandaloneFrameMigrationHelper::BringWindowToTop(first, pane);
    EXPECT_EQ(::GetTopWindow(m_main->m_hWndMDIClient), first->m_hWnd);
    EXPECT_FALSE(pane->IsWindowVisible());
}

TEST_F(OutsideMigration, HiddenPaneIsShown)
{
    CDockableViewPane * const pane = Connected();
    pane->Float(CRect(300, 200, 620, 440));
    pane->ShowPane(FALSE, FALSE, FALSE);
    ASSERT_FALSE(pane->IsWindowVisible());
    CStandaloneFrameMigrationHelper::BringWindowToTop(nullptr, pane);
    EXPECT_TRUE(pane->IsWindowVisible());
    EXPECT_EQ(FloatingRect(pane), CRect(300, 200, 620, 440));
}

TEST_F(OutsideMigration, HiddenDockedPaneIsShownInItsPlace)
{
    CDockableViewPane * const pane = Connected();
    m_main->DockPane(pane, AFX_IDW_DOCKBAR_LEFT);
    tests::PumpPosted();
    CRect const place = ScreenRect(pane->m_hWnd);
    pane->ShowPane(FALSE, FALSE, FALSE);
    ASSERT_FALSE(pane->IsWindowVisible());
    CStandaloneFrameMigrationHelper::BringWindowToTop(nullptr, pane);
    EXPECT_TRUE(pane->IsWindowVisible());
    EXPECT_TRUE(pane->IsDocked());
    EXPECT_EQ(ScreenRect(pane->m_hWnd), place);
}

TEST_F(OutsideMigration, TabBehindAnotherComesToTheFront)
{
    CDockableViewPane * const first = Connected(L"First");
    CDockableViewPane * const second = Connected(L"Second");
    m_main->DockPane(first, AFX_IDW_DOCKBAR_LEFT);
    second->AttachToTabWnd(first, DM_STANDARD, TRUE);
    tests::PumpPosted();
    ASSERT_FALSE(first->IsWindowVisible());
    CStandaloneFrameMigrationHelper::BringWindowToTop(nullptr, first);
    EXPECT_TRUE(first->IsWindowVisible());
    EXPECT_FALSE(second->IsWindowVisible());
}

TEST_F(OutsideMigration, FloatingPaneComesBeforeOthers)
{
    CDockableViewPane * const first = Connected(L"First");
    CDockableViewPane * const second = Connected(L"Second");
    first->Float(CRect(300, 200, 620, 440));
    second->Float(CRect(320, 220, 640, 460));
    second->GetParentMiniFrame()->BringWindowToTop();
    CStandaloneFrameMigrationHelper::BringWindowToTop(nullptr, first);
    HWND const wanted = first->GetParentMiniFrame()->m_hWnd;
    HWND const other = second->GetParentMiniFrame()->m_hWnd;
    HWND below = wanted;
    while (below != nullptr && below != other)
        below = ::GetWindow(below, GW_HWNDNEXT);
    EXPECT_EQ(below, other);
}

TEST_F(OutsideMigration, NeitherIsAllRight)
{
    CStandaloneFrameMigrationHelper::BringWindowToTop(nullptr, nullptr);
}
} // namespace outside
