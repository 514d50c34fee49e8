// CMFCMenuBar, CMFCPopupMenu: menus by mouse and keys.

#include "GdiHandleCount.h"
#include "mfcbars_MfcBarTest.h"
#include "ThreadWindows.h"

namespace
{
class MfcMenus : public mfcbars::MfcBarTest
{
protected:
    std::wstring Highlighted()
    {
        CMFCPopupMenu * const popup = CMFCPopupMenu::GetActiveMenu();
        CMFCToolBarMenuButton const * const item = popup != nullptr ? popup->GetSelItem() : nullptr;
        return item != nullptr ? item->m_strText.GetString() : L"";
    }
    std::wstring HighlightedName()
    {
        CMFCToolBarButton const * const button = m_frame->m_menuBar.GetHighlightedButton();
        return button != nullptr ? button->m_strText.GetString() : L"";
    }
    /// The name whose menu is open.
    std::wstring OpenName()
    {
        CMFCToolBarMenuButton const * const button = m_frame->m_menuBar.GetDroppedDownMenu();
        return button != nullptr ? button->m_strText.GetString() : L"";
    }
    bool Highlights(wchar_t const * text)
    {
        return tests::PumpUntil([&] { return Highlighted() == text; });
    }
    void EnterByAlt()
    {
        tests::Key(VK_MENU);
        ASSERT_TRUE(tests::PumpUntil([&] { return HighlightedName() == L"&File"; }));
    }
};
} // namespace

TEST_F(MfcMenus, BarTakesTheFramesMenu)
{
    EXPECT_EQ(::GetMenu(m_window), nullptr);
    EXPECT_EQ(m_frame->GetMenuBar(), &m_frame->m_menuBar);
    ASSERT_EQ(m_frame->m_menuBar.GetCount(), 4);
    EXPECT_EQ(m_frame->m_menuBar.GetButtonText(0), L"&File");
    EXPECT_EQ(m_frame->m_menuBar.GetButtonText(3), L"&Help");
    CRect bar;
    m_frame->m_menuBar.GetWindowRect(&bar);
    m_frame->ScreenToClient(&bar);
    CRect client;
    m_frame->GetClientRect(&client);
    EXPECT_EQ(bar.TopLeft(), CPoint(0, 0));
    EXPECT_EQ(bar.Width(), client.Width());
    EXPECT_GT(bar.Height(), 10);
}

TEST_F(MfcMenus, AClickOpensAndAnotherChooses)
{
    CMFCPopupMenu * const popup = OpenMenu(L"&File");
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->GetMenuItemCount(), 5);
    EXPECT_EQ(popup->GetMenuBar()->CommandToIndex(ID_MFC_B), 1);
    EXPECT_EQ(popup->GetMenuBar()->CommandToIndex(ID_MFC_B, 2), -1);
    EXPECT_EQ(popup->GetParentButton(), m_frame->m_menuBar.GetButton(0));
    EXPECT_EQ(::GetActiveWindow(), m_window);
    ClickItem(*popup, L"&Beta");
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_B); }));
    EXPECT_TRUE(Closed());
    EXPECT_EQ(m_frame->m_popupsShown, 1);
    EXPECT_EQ(m_frame->m_popupsClosed, 1);
    EXPECT_EQ(OpenName(), L"");
}

TEST_F(MfcMenus, TheMouseGoesFromOneToTheNext)
{
    ASSERT_NE(OpenMenu(L"&File"), nullptr);
    ASSERT_TRUE(tests::MoveMouse(ButtonCentre(m_frame->m_menuBar, 1)));
    EXPECT_TRUE(tests::PumpUntil([&] { return OpenName() == L"&View"; }));
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu()->GetMenuBar()->GetItemID(0), static_cast<UINT>(ID_MFC_C));
    tests::Click(ButtonCentre(m_frame->m_menuBar, 1));
    EXPECT_TRUE(tests::PumpUntil([&] { return Closed(); }));
}

TEST_F(MfcMenus, AClickElsewhereCloses)
{
    ASSERT_NE(OpenMenu(L"&File"), nullptr);
    tests::Click(tests::ClientPoint(m_window, m_nowhere));
    EXPECT_TRUE(tests::PumpUntil([&] { return Closed(); }));
    EXPECT_TRUE(m_frame->m_commands.empty());
}

TEST_F(MfcMenus, StatesAreThoseOfTheHandlers)
{
    m_frame->m_updates[ID_MFC_A] = [](CCmdUI * state) { state->SetCheck(1); };
    m_frame->m_updates[ID_MFC_B] = [](CCmdUI * state) { state->Enable(FALSE); };
    m_frame->m_updates[ID_MFC_LOST] = [](CCmdUI * state) { state->ContinueRouting(); };
    CMFCPopupMenu * const popup = OpenMenu(L"&File");
    ASSERT_NE(popup, nullptr);
    CMFCPopupMenuBar & bar = *popup->GetMenuBar();
    EXPECT_NE(bar.GetButtonStyle(0) & TBBS_CHECKED, 0u);
    EXPECT_EQ(bar.GetButtonStyle(0) & TBBS_DISABLED, 0u);
    EXPECT_NE(bar.GetButtonStyle(1) & TBBS_DISABLED, 0u);
    EXPECT_NE(bar.GetButtonStyle(4) & TBBS_DISABLED, 0u); // nobody has a handler
    ClickItem(*popup, L"&Beta");
    tests::PumpPosted();
    EXPECT_FALSE(Closed());
    EXPECT_TRUE(m_frame->m_commands.empty());
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(tests::PumpUntil([&] { return Closed(); }));
}

TEST_F(MfcMenus, AMenuBesideAnItemOpensAndItsItemsAreChosen)
{
    CMFCPopupMenu * const popup = OpenMenu(L"&File");
    ASSERT_NE(popup, nullptr);
    ClickItem(*popup, L"&More");
    ASSERT_TRUE(tests::PumpUntil([&] { return CMFCPopupMenu::GetActiveMenu() != popup; }));
    CMFCPopupMenu * const inner = CMFCPopupMenu::GetActiveMenu();
    ASSERT_NE(inner, nullptr);
    EXPECT_EQ(inner->GetParentPopupMenu(), popup);
    CRect outerRect;
    CRect innerRect;
    popup->GetWindowRect(&outerRect);
    inner->GetWindowRect(&innerRect);
    EXPECT_GE(innerRect.left, outerRect.right - 10);
    ClickItem(*inner, L"&Other");
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_OTHER); }));
    EXPECT_TRUE(Closed());
}

TEST_F(MfcMenus, AMenuBesideAnItemOpensWhereTheMouseRests)
{
    CMFCPopupMenu * const popup = OpenMenu(L"&File");
    ASSERT_NE(popup, nullptr);
    ASSERT_TRUE(tests::MoveMouse(ButtonCentre(*popup->GetMenuBar(), 3)));
    EXPECT_TRUE(tests::PumpUntil([&] { return CMFCPopupMenu::GetActiveMenu() != popup; }));
    // And closes where it goes on.
    ASSERT_TRUE(tests::MoveMouse(ButtonCentre(*popup->GetMenuBar(), 0)));
    EXPECT_TRUE(tests::PumpUntil([&] { return CMFCPopupMenu::GetActiveMenu() == popup; }));
}

TEST_F(MfcMenus, AltLeadsToTheBarAndAway)
{
    EnterByAlt();
    EXPECT_TRUE(Closed());
    tests::Key(VK_RIGHT);
    EXPECT_TRUE(tests::PumpUntil([&] { return HighlightedName() == L"&View"; }));
    tests::Key(VK_LEFT);
    tests::Key(VK_LEFT);
    EXPECT_TRUE(tests::PumpUntil([&] { return HighlightedName() == L"&Help"; }));
    tests::Key(VK_MENU);
    EXPECT_TRUE(tests::PumpUntil([&] { return HighlightedName().empty(); }));
    tests::Key(VK_F10);
    EXPECT_TRUE(tests::PumpUntil([&] { return HighlightedName() == L"&File"; }));
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(tests::PumpUntil([&] { return HighlightedName().empty(); }));
}

TEST_F(MfcMenus, KeysWalkThroughTheMenus)
{
    EnterByAlt();
    tests::Key(VK_DOWN);
    ASSERT_TRUE(Highlights(L"&Alpha\tCtrl+A"));
    tests::Key(VK_UP); // around the end
    ASSERT_TRUE(Highlights(L"&Lost"));
    tests::Key(VK_UP);
    ASSERT_TRUE(Highlights(L"&More"));
    tests::Key(VK_RIGHT);
    ASSERT_TRUE(Highlights(L"&Inner"));
    tests::Key(VK_LEFT);
    ASSERT_TRUE(Highlights(L"&More"));
    tests::Key(VK_UP); // over the separator
    ASSERT_TRUE(Highlights(L"&Beta"));
    tests::Key(VK_RIGHT);
    ASSERT_TRUE(Highlights(L"&Gamma"));
    EXPECT_EQ(OpenName(), L"&View");
    tests::Key(VK_END);
    ASSERT_TRUE(Highlights(L"&Delta"));
    tests::Key(VK_ESCAPE);
    ASSERT_TRUE(tests::PumpUntil([&] { return Closed(); }));
    EXPECT_EQ(HighlightedName(), L"&View");
    tests::Key(VK_RETURN);
    ASSERT_TRUE(Highlights(L"&Gamma"));
    tests::Key(VK_RETURN);
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_C); }));
    EXPECT_TRUE(Closed());
    EXPECT_EQ(HighlightedName(), L"");
}

TEST_F(MfcMenus, MnemonicsOpenAndChoose)
{
    tests::Key('V', {VK_MENU});
    ASSERT_TRUE(tests::PumpUntil([&] { return OpenName() == L"&View"; }));
    tests::Key('D');
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_D); }));
    EXPECT_TRUE(Closed());
}

TEST_F(MfcMenus, TheMessageFollowsTheItem)
{
    CMFCPopupMenu * const popup = OpenMenu(L"&File");
    ASSERT_NE(popup, nullptr);
    ASSERT_TRUE(tests::MoveMouse(ButtonCentre(*popup->GetMenuBar(), 1)));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Message of B"; }));
    tests::Key(VK_ESCAPE);
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Ready"; }));
}

TEST_F(MfcMenus, ACommandMayEndTheFrame)
{
    m_frame->m_onCommand = [this](UINT) { m_frame->DestroyWindow(); };
    CMFCPopupMenu * const popup = OpenMenu(L"&File");
    ASSERT_NE(popup, nullptr);
    ClickItem(*popup, L"&Beta");
    EXPECT_TRUE(tests::PumpUntil([&] { return !::IsWindow(m_window); }));
}

TEST_F(MfcMenus, AnUpdateHandlerMayEndTheFrame)
{
    m_frame->m_updates[ID_MFC_C] = [this](CCmdUI *) { ::DestroyWindow(m_window); };
    tests::Click(ButtonCentre(m_frame->m_menuBar, 1));
    EXPECT_TRUE(tests::PumpUntil([&] { return !::IsWindow(m_window); }));
    tests::PumpPosted();
}

TEST_F(MfcMenus, WhoeverIsToldOfAMenuMayEndTheFrame)
{
    m_frame->m_onShowPopup = [this](CMFCPopupMenu *) { ::DestroyWindow(m_window); };
    tests::Click(ButtonCentre(m_frame->m_menuBar, 1));
    EXPECT_TRUE(tests::PumpUntil([&] { return !::IsWindow(m_window); }));
    tests::PumpPosted();
}

TEST_F(MfcMenus, TheFrameMayEndWhileAMenuIsOpen)
{
    CMFCPopupMenu * const popup = OpenMenu(L"&File");
    ASSERT_NE(popup, nullptr);
    ClickItem(*popup, L"&More");
    ASSERT_TRUE(tests::PumpUntil([&] { return CMFCPopupMenu::GetActiveMenu() != popup; }));
    m_frame->DestroyWindow();
    EXPECT_TRUE(Closed());
    tests::PumpPosted();
}

TEST_F(MfcMenus, TheFrameMayPutItemsIn)
{
    m_frame->m_updates[ID_MFC_OTHER] = [](CCmdUI * state) { state->Enable(FALSE); };
    m_frame->m_onShowPopup = [](CMFCPopupMenu * popup) {
        if (popup->GetMenuBar()->CommandToIndex(ID_MFC_C) < 0)
            return;
        popup->InsertItem(CMFCToolBarMenuButton(ID_MFC_INNER, nullptr, -1, L"Put in"), 0);
        popup->InsertItem(CMFCToolBarMenuButton(ID_MFC_OTHER, nullptr, -1, L"And greyed"));
    };
    CMFCPopupMenu * const popup = OpenMenu(L"&View");
    ASSERT_NE(popup, nullptr);
    ASSERT_EQ(popup->GetMenuItemCount(), 4);
    EXPECT_EQ(popup->GetMenuBar()->GetItemID(0), static_cast<UINT>(ID_MFC_INNER));
    EXPECT_EQ(popup->GetMenuBar()->GetButtonStyle(0) & TBBS_DISABLED, 0u);
    EXPECT_NE(popup->GetMenuBar()->GetButtonStyle(3) & TBBS_DISABLED, 0u);
    ClickItem(*popup, L"Put in");
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_INNER); }));
}

TEST_F(MfcMenus, AMenuCanBeKeptFromShowing)
{
    auto * const popup = new CMFCPopupMenu;
    EXPECT_FALSE(popup->Create(m_frame, 200, 200, nullptr)); // without items; the object is gone
    EXPECT_TRUE(Closed());
}

TEST_F(MfcMenus, AMenuOpensAnywhere)
{
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_MFC_DROP));
    auto * const popup = new CMFCPopupMenu;
    ASSERT_TRUE(popup->Create(m_frame, 300, 320, menu.GetSubMenu(0)->m_hMenu));
    CRect rect;
    popup->GetWindowRect(&rect);
    EXPECT_EQ(rect.TopLeft(), CPoint(300, 320));
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), popup);
    EXPECT_EQ(popup->GetMessageWnd(), m_frame);
    ClickItem(*popup, L"&Inner");
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_INNER); }));
    EXPECT_TRUE(Closed());
}

TEST_F(MfcMenus, AMenuWithoutRoomIsScrolled)
{
    CMenu menu;
    menu.CreatePopupMenu();
    for (UINT at = 0; at < 120; ++at)
    {
        CString text;
        text.Format(L"Item %u", at);
        menu.AppendMenu(MF_STRING, 40000 + at, text);
    }
    m_frame->m_bAutoMenuEnable = FALSE;
    auto * const popup = new CMFCPopupMenu;
    ASSERT_TRUE(popup->Create(m_frame, 300, 320, menu.m_hMenu));
    EXPECT_TRUE(popup->IsScrollable());
    CMFCPopupMenuBar & bar = *popup->GetMenuBar();
    CRect first;
    bar.GetItemRect(0, &first);
    EXPECT_FALSE(first.IsRectEmpty());
    CRect last;
    bar.GetItemRect(119, &last);
    EXPECT_TRUE(last.IsRectEmpty());
    tests::Key(VK_END);
    ASSERT_TRUE(Highlights(L"Item 119"));
    bar.GetItemRect(119, &last);
    bar.GetItemRect(0, &first);
    EXPECT_FALSE(last.IsRectEmpty());
    EXPECT_TRUE(first.IsRectEmpty());
    CRect client;
    bar.GetClientRect(&client);
    EXPECT_EQ(last & client, last);
    tests::Key(VK_HOME);
    ASSERT_TRUE(Highlights(L"Item 0"));
    bar.GetItemRect(0, &first);
    EXPECT_FALSE(first.IsRectEmpty());
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(tests::PumpUntil([&] { return Closed(); }));
}

TEST_F(MfcMenus, AMaximisedChildHasItsButtonsInTheBar)
{
    CMDIChildWndEx * const child = AddChild(true);
    ASSERT_NE(child, nullptr);
    CMFCMenuBar & bar = m_frame->m_menuBar;
    ASSERT_EQ(bar.GetSystemButtonsCount(), 3);
    ASSERT_EQ(bar.GetCount(), 8);
    CRect close;
    bar.GetItemRect(7, &close);
    CRect client;
    bar.GetClientRect(&client);
    EXPECT_NEAR(close.right, client.right, 8);
    int const restore = bar.CommandToIndex(SC_RESTORE);
    ASSERT_GE(restore, 0);
    tests::Click(ButtonCentre(bar, restore));
    EXPECT_TRUE(tests::PumpUntil([&] { return !child->IsZoomed(); }));
    Idle();
    EXPECT_EQ(bar.GetSystemButtonsCount(), 0);
    EXPECT_EQ(bar.GetCount(), 4);
    m_frame->MDIMaximize(child);
    Idle();
    HWND const window = child->m_hWnd;
    tests::Click(ButtonCentre(bar, bar.CommandToIndex(SC_CLOSE)));
    EXPECT_TRUE(tests::PumpUntil([&] { return !::IsWindow(window); }));
    Idle();
    EXPECT_EQ(bar.GetSystemButtonsCount(), 0);
}

TEST_F(MfcMenus, AMaximisedChildHasItsMenuInTheBar)
{
    CMDIChildWndEx * const child = AddChild(true);
    ASSERT_NE(child, nullptr);
    HWND const window = child->m_hWnd;
    CMFCMenuBar & bar = m_frame->m_menuBar;
    tests::Click(ButtonCentre(bar, 0));
    ASSERT_TRUE(tests::PumpUntil([&] { return !Closed() && CMFCPopupMenu::GetActiveMenu()->IsShown(); }));
    CMFCPopupMenuBar & items = *CMFCPopupMenu::GetActiveMenu()->GetMenuBar();
    int const restore = items.CommandToIndex(SC_RESTORE);
    int const close = items.CommandToIndex(SC_CLOSE);
    ASSERT_GE(restore, 0);
    ASSERT_GE(close, 0);
    EXPECT_EQ(items.GetButtonStyle(restore) & TBBS_DISABLED, 0u);
    EXPECT_NE(items.GetButtonStyle(items.CommandToIndex(SC_MAXIMIZE)) & TBBS_DISABLED, 0u);
    tests::Click(ButtonCentre(items, close));
    EXPECT_TRUE(tests::PumpUntil([&] { return !::IsWindow(window); }));
}

TEST_F(MfcMenus, AChildsMenuReplacesTheFramesWhileItIsActive)
{
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_MFC_CHILD));
    CMDIChildWnd * const child = m_frame->CreateNewChild(RUNTIME_CLASS(CMDIChildWndEx), IDR_MFC_CHILD, menu.m_hMenu);
    ASSERT_NE(child, nullptr);
    Idle();
    EXPECT_EQ(m_frame->m_menuBar.GetHMenu(), menu.m_hMenu);
    ASSERT_EQ(m_frame->m_menuBar.GetCount(), 3);
    EXPECT_EQ(m_frame->m_menuBar.GetButtonText(0), L"&Sheet");
    EXPECT_EQ(::GetMenu(m_window), nullptr);
    child->DestroyWindow();
    Idle();
    EXPECT_EQ(m_frame->m_menuBar.GetHMenu(), m_frame->m_menuBar.GetDefaultMenu());
    EXPECT_EQ(m_frame->m_menuBar.GetCount(), 4);
}

TEST_F(MfcMenus, TheWindowMenuListsTheChildren)
{
    CMDIChildWndEx * const first = AddChild();
    CMDIChildWndEx * const second = AddChild();
    ASSERT_EQ(m_frame->MDIGetActive(), second);
    CMFCPopupMenu * const popup = OpenMenu(L"&Window");
    ASSERT_NE(popup, nullptr);
    int const index = popup->GetMenuBar()->CommandToIndex(AFX_IDM_FIRST_MDICHILD);
    ASSERT_GE(index, 0);
    tests::Click(ButtonCentre(*popup->GetMenuBar(), index));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_frame->MDIGetActive() == first; }));
}

TEST_F(MfcMenus, AnotherWindowsActivationClosesThem)
{
    ASSERT_NE(OpenMenu(L"&File"), nullptr);
    CWnd other;
    ASSERT_TRUE(other.CreateEx(0, AfxRegisterWndClass(0), L"Other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 500, 400, 200,
                               100, nullptr, nullptr));
    ASSERT_TRUE(tests::BringToFront(other.m_hWnd));
    EXPECT_TRUE(tests::PumpUntil([&] { return Closed(); }));
    other.DestroyWindow();
}

TEST_F(MfcMenus, ABarMayEndWhileItsMenuIsOpen)
{
    ASSERT_NE(OpenMenu(L"&File"), nullptr);
    m_frame->m_menuBar.DestroyWindow();
    EXPECT_TRUE(Closed());
    Idle();
}

TEST_F(MfcMenus, NamesWithoutRoomGoToAFurtherRow)
{
    CRect wide;
    m_frame->m_menuBar.GetWindowRect(&wide);
    m_frame->SetWindowPos(nullptr, 0, 0, 170, 400, SWP_NOMOVE | SWP_NOZORDER);
    CRect narrow;
    m_frame->m_menuBar.GetWindowRect(&narrow);
    EXPECT_GE(narrow.Height(), 2 * wide.Height() - 4);
    CRect last;
    m_frame->m_menuBar.GetItemRect(3, &last);
    CRect client;
    m_frame->m_menuBar.GetClientRect(&client);
    EXPECT_EQ(last & client, last);
}

TEST_F(MfcMenus, LeaveNothingBehind)
{
    auto const cycle = [this] {
        CMFCPopupMenu * const popup = new CMFCPopupMenu;
        CMenu menu;
        menu.LoadMenu(IDR_MFC_MAIN);
        ASSERT_TRUE(popup->Create(m_frame, 300, 320, menu.GetSubMenu(0)->m_hMenu));
        popup->GetMenuItem(3)->OpenPopupMenu();
        ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), popup);
        tests::PumpPosted();
        popup->CloseMenu();
        ASSERT_TRUE(Closed());
    };
    cycle();
    Idle();
    int const windows = tests::ThreadWindows();
    {
        tests::GdiBalance const balance;
        for (int at = 0; at < 200; ++at)
            cycle();
        Idle();
    }
    EXPECT_EQ(tests::ThreadWindows(), windows);
}
