// CMFCToolBar: buttons, their states and menus.

#include "Bitmap.h"
#include "GdiHandleCount.h"
#include "mfcbars_MfcBarTest.h"
#include "ThreadWindows.h"

namespace
{
class MfcToolBars : public mfcbars::MfcBarTest
{
protected:
    CMFCToolBar & Tools() { return m_frame->m_tools; }
    UINT Style(UINT id) { return Tools().GetButtonStyle(Tools().CommandToIndex(id)); }
    CPoint Centre(UINT id) { return ButtonCentre(Tools(), Tools().CommandToIndex(id)); }
    void AddDropDown()
    {
        CMenu menu;
        ASSERT_TRUE(menu.LoadMenu(IDR_MFC_DROP));
        CMFCToolBarMenuButton const button(ID_MFC_C, menu.GetSubMenu(0)->m_hMenu,
                                           CMFCToolBar::GetDefaultImage(ID_MFC_C));
        EXPECT_EQ(Tools().ReplaceButton(ID_MFC_C, button), 1);
    }
};

/// A button of the host's own, of which the bar makes copies.
class OwnButton : public CMFCToolBarButton
{
    DECLARE_DYNCREATE(OwnButton)

public:
    int m_mark = 0;

    void CopyFrom(const CMFCToolBarButton & src) override
    {
        CMFCToolBarButton::CopyFrom(src);
        m_mark = static_cast<OwnButton const &>(src).m_mark;
    }
};

IMPLEMENT_DYNCREATE(OwnButton, CMFCToolBarButton)
} // namespace

TEST_F(MfcToolBars, ButtonsComeFromTheResource)
{
    m_frame->AddTools();
    ASSERT_EQ(Tools().GetCount(), 7);
    EXPECT_EQ(Tools().GetItemID(0), static_cast<UINT>(ID_MFC_A));
    EXPECT_EQ(Tools().GetButtonStyle(2) & TBBS_SEPARATOR, static_cast<UINT>(TBBS_SEPARATOR));
    EXPECT_EQ(Tools().CommandToIndex(ID_MFC_E), 6);
    EXPECT_EQ(Tools().CommandToIndex(ID_MFC_A, 1), -1);
    EXPECT_EQ(Tools().GetButton(3)->GetImage(), Tools().GetButton(0)->GetImage() + 2);
    EXPECT_EQ(CMFCToolBar::GetDefaultImage(ID_MFC_B), Tools().GetButton(1)->GetImage());
    EXPECT_EQ(CMFCToolBar::GetDefaultImage(ID_MFC_LOST), -1);
    EXPECT_EQ(Tools().GetButton(7), nullptr);
    EXPECT_EQ(Tools().GetButton(-1), nullptr);
    CRect bar;
    Tools().GetWindowRect(&bar);
    CRect last;
    Tools().GetItemRect(6, &last);
    EXPECT_LE(last.bottom, bar.Height());
    EXPECT_GE(last.Width(), 16);
}

TEST_F(MfcToolBars, DamagedResourcesAreRefused)
{
    ASSERT_TRUE(Tools().Create(m_frame));
    EXPECT_FALSE(Tools().LoadToolBar(IDR_MFC_DAMAGED));
    EXPECT_FALSE(Tools().LoadToolBar(IDR_MFC_MAIN + 50));
    EXPECT_EQ(Tools().GetCount(), 0);
}

TEST_F(MfcToolBars, ButtonsComeAndGo)
{
    ASSERT_TRUE(Tools().Create(m_frame));
    OwnButton own;
    own.m_nID = ID_MFC_B;
    own.m_mark = 5;
    EXPECT_EQ(Tools().InsertButton(own), 0);
    EXPECT_EQ(Tools().InsertButton(CMFCToolBarButton(ID_MFC_A, -1, L"A"), 0), 0);
    EXPECT_EQ(Tools().InsertSeparator(), 2);
    EXPECT_EQ(Tools().InsertButton(own, 9), -1);
    ASSERT_EQ(Tools().GetCount(), 3);
    auto const * const copy = DYNAMIC_DOWNCAST(OwnButton, Tools().GetButton(1));
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy, &own);
    EXPECT_EQ(copy->m_mark, 5);
    EXPECT_EQ(copy->GetParentWnd(), &Tools());
    EXPECT_EQ(Tools().ButtonToIndex(copy), 1);
    EXPECT_FALSE(Tools().RemoveButton(3));
    EXPECT_TRUE(Tools().RemoveButton(0));
    EXPECT_EQ(Tools().CommandToIndex(ID_MFC_A), -1);
    EXPECT_EQ(Tools().ReplaceButton(ID_MFC_B, CMFCToolBarButton(ID_MFC_D, -1, L"D")), 1);
    EXPECT_EQ(Tools().GetItemID(0), static_cast<UINT>(ID_MFC_D));
    EXPECT_EQ(Tools().ReplaceButton(ID_MFC_B, CMFCToolBarButton(ID_MFC_D, -1, L"D")), 0);
    Tools().RemoveAllButtons();
    EXPECT_EQ(Tools().GetCount(), 0);
}

TEST_F(MfcToolBars, AClickSendsTheCommand)
{
    m_frame->AddTools();
    Idle();
    tests::Click(Centre(ID_MFC_B));
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_B); }));
}

TEST_F(MfcToolBars, AButtonLetGoElsewhereSendsNothing)
{
    m_frame->AddTools();
    Idle();
    ASSERT_TRUE(tests::MoveMouse(Centre(ID_MFC_B)));
    tests::Press();
    ASSERT_TRUE(tests::PumpUntil([&] { return (Style(ID_MFC_B) & TBBS_PRESSED) != 0; }));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window, m_nowhere)));
    EXPECT_TRUE(tests::PumpUntil([&] { return (Style(ID_MFC_B) & TBBS_PRESSED) == 0; }));
    tests::Release();
    ASSERT_TRUE(tests::PumpUntil([] { return ::GetCapture() == nullptr; }));
    EXPECT_TRUE(m_frame->m_commands.empty());
}

TEST_F(MfcToolBars, StatesAreThoseOfTheHandlers)
{
    m_frame->AddTools();
    m_frame->m_updates[ID_MFC_A] = [](CCmdUI * state) { state->SetCheck(1); };
    m_frame->m_updates[ID_MFC_B] = [](CCmdUI * state) { state->Enable(FALSE); };
    m_frame->m_updates[ID_MFC_C] = [](CCmdUI * state) { state->SetCheck(2); };
    Idle();
    EXPECT_NE(Style(ID_MFC_A) & TBBS_CHECKED, 0u);
    EXPECT_NE(Style(ID_MFC_B) & TBBS_DISABLED, 0u);
    EXPECT_NE(Style(ID_MFC_C) & TBBS_INDETERMINATE, 0u);
    EXPECT_EQ(Style(ID_MFC_D) & TBBS_DISABLED, 0u);
    tests::Click(Centre(ID_MFC_B));
    tests::Click(Centre(ID_MFC_D));
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_D); }));
    m_frame->m_updates.clear();
    m_frame->m_updates[ID_MFC_B] = [](CCmdUI * state) { state->Enable(); };
    Idle();
    EXPECT_EQ(Style(ID_MFC_B) & TBBS_DISABLED, 0u);
}

TEST_F(MfcToolBars, ACommandWithoutHandlerIsDisabled)
{
    ASSERT_TRUE(Tools().Create(m_frame));
    Tools().InsertButton(CMFCToolBarButton(ID_MFC_LOST, -1, L"Lost"));
    m_frame->m_updates[ID_MFC_LOST] = [](CCmdUI * state) { state->ContinueRouting(); };
    m_frame->RecalcLayout();
    Idle();
    EXPECT_NE(Style(ID_MFC_LOST) & TBBS_DISABLED, 0u);
}

TEST_F(MfcToolBars, AnArrowOpensAMenuAndTheButtonIsItsOwnCommand)
{
    m_frame->AddTools();
    AddDropDown();
    Idle();
    int const index = Tools().CommandToIndex(ID_MFC_C);
    CRect rect;
    Tools().GetItemRect(index, &rect);
    CPoint const arrow = tests::ClientPoint(Tools().m_hWnd, {rect.right - 4, rect.CenterPoint().y});
    ASSERT_TRUE(tests::MoveMouse(arrow));
    tests::Click(arrow);
    ASSERT_TRUE(tests::PumpUntil([&] { return !Closed() && CMFCPopupMenu::GetActiveMenu()->IsShown(); }));
    CMFCPopupMenu * const popup = CMFCPopupMenu::GetActiveMenu();
    EXPECT_EQ(popup->GetParentToolBar(), &Tools());
    EXPECT_TRUE(Tools().GetButton(index)->IsDroppedDown());
    ClickItem(*popup, L"&Other");
    ASSERT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_OTHER); }));
    EXPECT_FALSE(Tools().GetButton(index)->IsDroppedDown());
    m_frame->m_commands.clear();
    tests::Click(tests::ClientPoint(Tools().m_hWnd, {rect.left + 6, rect.CenterPoint().y}));
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_C); }));
}

TEST_F(MfcToolBars, AMenuOfAButtonThatIsTakenAwayCloses)
{
    m_frame->AddTools();
    AddDropDown();
    int const index = Tools().CommandToIndex(ID_MFC_C);
    auto * const button = static_cast<CMFCToolBarMenuButton *>(Tools().GetButton(index));
    ASSERT_TRUE(button->OpenPopupMenu());
    ASSERT_FALSE(Closed());
    Tools().RemoveButton(index);
    EXPECT_TRUE(Closed());
}

TEST_F(MfcToolBars, KeysGoFromTheMenuBarToTheToolBar)
{
    m_frame->AddTools();
    Idle();
    tests::Key(VK_F10);
    tests::Key(VK_TAB, {VK_CONTROL});
    ASSERT_TRUE(tests::PumpUntil([&] { return Tools().IsButtonHighlighted(0) != FALSE; }));
    tests::Key(VK_RIGHT);
    tests::Key(VK_RIGHT); // over the separator
    ASSERT_TRUE(tests::PumpUntil([&] { return Tools().IsButtonHighlighted(3) != FALSE; }));
    tests::Key(VK_RETURN);
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_C); }));
    EXPECT_EQ(Tools().GetHighlightedButton(), nullptr);
}

TEST_F(MfcToolBars, ToolTipsAreTheSecondLineOfTheCommandsString)
{
    m_frame->AddTools();
    int const index = Tools().CommandToIndex(ID_MFC_B);
    CRect rect;
    Tools().GetItemRect(index, &rect);
    TOOLINFO tool{};
    tool.cbSize = sizeof tool;
    EXPECT_EQ(Tools().OnToolHitTest(rect.CenterPoint(), &tool), ID_MFC_B);
    EXPECT_EQ(CRect(tool.rect), rect);
    EXPECT_EQ(Tools().OnToolHitTest(CPoint(rect.left, rect.bottom + 500), &tool), -1);
    NMTTDISPINFO asked{};
    asked.hdr.hwndFrom = m_window;
    asked.hdr.idFrom = ID_MFC_B;
    asked.hdr.code = static_cast<UINT>(TTN_NEEDTEXT);
    Tools().SendMessage(WM_NOTIFY, ID_MFC_B, reinterpret_cast<LPARAM>(&asked));
    ASSERT_NE(asked.lpszText, nullptr);
    EXPECT_STREQ(asked.lpszText, L"Tip of B");
}

TEST_F(MfcToolBars, TheMessageFollowsTheMouse)
{
    m_frame->AddTools(CBRS_TOP | CBRS_FLYBY);
    Idle();
    ASSERT_TRUE(tests::MoveMouse(Centre(ID_MFC_A)));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Message of A"; }));
    ASSERT_TRUE(tests::MoveMouse(tests::ClientPoint(m_window, m_nowhere)));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_frame->StatusText() == L"Ready"; }));
    EXPECT_EQ(Tools().GetHighlightedButton(), nullptr);
}

TEST_F(MfcToolBars, OneThatTheMouseHasLeftDoesNotTakeTheNextOnesMessageAway)
{
    m_frame->AddTools(CBRS_TOP | CBRS_FLYBY);
    CMFCToolBar second;
    ASSERT_TRUE(second.Create(m_frame, WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_FLYBY, ID_MFC_PANE));
    ASSERT_TRUE(second.LoadToolBar(IDR_MFC_TOOLS));
    m_frame->RecalcLayout();
    Idle();
    auto const move = [](CMFCToolBar & bar, UINT id) {
        CRect rect;
        bar.GetItemRect(bar.CommandToIndex(id), &rect);
        CPoint const centre = rect.CenterPoint();
        bar.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(centre.x, centre.y));
    };
    move(Tools(), ID_MFC_A);
    ASSERT_EQ(m_frame->StatusText(), L"Message of A");
    move(second, ID_MFC_B);
    ASSERT_EQ(m_frame->StatusText(), L"Message of B");
    Tools().SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(m_frame->StatusText(), L"Message of B");
    second.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(m_frame->StatusText(), L"Ready");
    second.DestroyWindow();
}

TEST_F(MfcToolBars, TextsStandBesideThePictures)
{
    m_frame->AddTools();
    CRect without;
    Tools().GetItemRect(0, &without);
    Tools().EnableTextLabels();
    EXPECT_EQ(Tools().GetButtonText(0), L"Tip of A");
    CRect with;
    Tools().GetItemRect(0, &with);
    EXPECT_GT(with.Width(), without.Width() + 10);
    Tools().EnableTextLabels(FALSE);
    Tools().GetItemRect(0, &with);
    EXPECT_EQ(with.Width(), without.Width());
}

TEST_F(MfcToolBars, ButtonsWithoutRoomGoToAFurtherRow)
{
    m_frame->AddTools();
    CRect wide;
    Tools().GetWindowRect(&wide);
    m_frame->SetWindowPos(nullptr, 0, 0, 140, 400, SWP_NOMOVE | SWP_NOZORDER);
    CRect narrow;
    Tools().GetWindowRect(&narrow);
    EXPECT_GE(narrow.Height(), wide.Height() + 15);
    CRect client;
    Tools().GetClientRect(&client);
    for (int at = 0; at < Tools().GetCount(); ++at)
    {
        CRect rect;
        Tools().GetItemRect(at, &rect);
        EXPECT_EQ(rect & client, rect);
    }
}

TEST_F(MfcToolBars, ACommandMayEndTheFrame)
{
    m_frame->AddTools();
    Idle();
    m_frame->m_onCommand = [this](UINT) { m_frame->DestroyWindow(); };
    tests::Click(Centre(ID_MFC_A));
    EXPECT_TRUE(tests::PumpUntil([&] { return !::IsWindow(m_window); }));
}

TEST_F(MfcToolBars, ACommandMayTakeTheButtonsAway)
{
    m_frame->AddTools();
    Idle();
    m_frame->m_onCommand = [this](UINT) { Tools().RemoveAllButtons(); };
    tests::Click(Centre(ID_MFC_A));
    EXPECT_TRUE(tests::PumpUntil([&] { return Tools().GetCount() == 0; }));
    Idle();
}

TEST_F(MfcToolBars, AnUpdateHandlerMayEndTheFrameOrTakeButtonsAway)
{
    m_frame->AddTools();
    m_frame->m_updates[ID_MFC_B] = [this](CCmdUI * state) {
        while (Tools().GetCount() > 1)
            Tools().RemoveButton(1);
        state->Enable(FALSE);
    };
    Idle();
    EXPECT_EQ(Tools().GetCount(), 1);
    m_frame->m_updates[ID_MFC_A] = [this](CCmdUI *) { ::DestroyWindow(m_window); };
    tests::App().OnIdle(0);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST(MfcToolBarImages, KeepThePixelsOfBitmapsAndIcons)
{
    CMFCToolBarImages images;
    images.SetImageSize(CSize(16, 15));
    ASSERT_TRUE(images.Load(IDR_MFC_TOOLS));
    int const loaded = images.GetCount();
    EXPECT_GE(loaded, 5);
    EXPECT_EQ(images.GetResourceOffset(IDR_MFC_TOOLS), 0);
    EXPECT_EQ(images.AddIcon(::LoadIcon(nullptr, IDI_APPLICATION)), loaded);
    EXPECT_EQ(images.AddImage(images, 0), loaded + 1);
    EXPECT_EQ(images.AddImage(images, 99), -1);
    EXPECT_FALSE(images.DeleteImage(99));
    EXPECT_TRUE(images.DeleteImage(loaded));
    EXPECT_EQ(images.GetCount(), loaded + 1);
    EXPECT_FALSE(images.Load(9999));
    HICON const icon = images.ExtractIcon(0);
    EXPECT_NE(icon, nullptr);
    ::DestroyIcon(icon);
    EXPECT_EQ(images.ExtractIcon(99), nullptr);
}

TEST(MfcToolBarImages, AreDrawnWithTheirTransparency)
{
    CMFCToolBarImages images;
    images.SetImageSize(CSize(4, 4));
    images.SetTransparentColor(RGB(255, 0, 255));
    HDC const screen = ::GetDC(nullptr);
    HDC const dc = ::CreateCompatibleDC(screen);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, 4, -4, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void * bits = nullptr;
    HBITMAP const bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    auto * const pixels = static_cast<DWORD *>(bits);
    for (int at = 0; at < 16; ++at)
        pixels[at] = at < 8 ? 0xFF00FF : 0x00FF00; // magenta above, green below
    ASSERT_EQ(images.AddImage(bitmap), 0);
    for (int at = 0; at < 16; ++at)
        pixels[at] = 0x0000FF;
    HGDIOBJ const previous = ::SelectObject(dc, bitmap);
    CDC target;
    target.Attach(dc);
    EXPECT_TRUE(images.Draw(&target, 0, 0, 0));
    EXPECT_FALSE(images.Draw(&target, 0, 0, 1));
    ::GdiFlush();
    EXPECT_EQ(pixels[0] & 0xFFFFFF, 0x0000FFu);  // seen through
    EXPECT_EQ(pixels[15] & 0xFFFFFF, 0x00FF00u); // covered
    // Disabled, what is black has the colour of disabled texts, on any ground.
    for (int at = 0; at < 16; ++at)
        pixels[at] = at < 8 ? 0xFF00FF : 0;
    ::SelectObject(dc, previous);
    ASSERT_EQ(images.AddImage(bitmap), 1);
    ::SelectObject(dc, bitmap);
    EXPECT_TRUE(images.Draw(&target, 0, 0, 1, FALSE, TRUE));
    ::GdiFlush();
    COLORREF const grey = ::GetSysColor(COLOR_GRAYTEXT);
    EXPECT_EQ(pixels[15] & 0xFFFFFF, static_cast<DWORD>(RGB(GetBValue(grey), GetGValue(grey), GetRValue(grey))));
    target.Detach();
    ::SelectObject(dc, previous);
    ::DeleteDC(dc);
    ::DeleteObject(bitmap);
    ::ReleaseDC(nullptr, screen);
}

TEST_F(MfcToolBars, LeaveNothingBehind)
{
    auto const cycle = [this] {
        m_frame->AddTools();
        AddDropDown();
        Idle();
        static_cast<CMFCToolBarMenuButton *>(Tools().GetButton(3))->OpenPopupMenu();
        tests::PumpPosted();
        Tools().DestroyWindow();
        ASSERT_TRUE(Closed());
        Tools().RemoveAllButtons();
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
}
