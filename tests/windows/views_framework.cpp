// The framework's frames, documents and templates on real windows.

#include <afxadv.h>

#include "views_FramesTest.h"

using frames::g_log;
using frames::TestChild;
using frames::TestDocument;
using frames::TestView;

namespace
{
class Frames : public frames::FramesTest
{
protected:
    void SetUp() override
    {
        FramesTest::SetUp();
        m_template = new CMultiDocTemplate(IDR_CHILD, RUNTIME_CLASS(TestDocument), RUNTIME_CLASS(TestChild),
                                           RUNTIME_CLASS(TestView));
        TestDocument::m_refuse = false;
    }
    void TearDown() override
    {
        FramesTest::TearDown();
        delete m_template;
    }
    TestDocument * New()
    {
        auto * const document = static_cast<TestDocument *>(m_template->OpenDocumentFile(nullptr));
        return document;
    }
    static CFrameWnd * FrameOf(CDocument & document)
    {
        POSITION at = document.GetFirstViewPosition();
        return document.GetNextView(at)->GetParentFrame();
    }
    static void UpdateMenu(CWnd & frame, HMENU menu)
    {
        frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0);
    }

    CMultiDocTemplate * m_template = nullptr;
};

/// A frame beside the main one, without a document.
class PlainFrame : public CFrameWnd
{
public:
    using CFrameWnd::OnCreateClient;
    PlainFrame() { ++frames::g_frames; }
    ~PlainFrame() override { --frames::g_frames; }
};

UINT StateOf(HMENU menu, UINT id)
{
    return ::GetMenuState(menu, id, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED | MF_CHECKED);
}
} // namespace

TEST_F(Frames, CommandsGoFromTheViewToTheDocumentTheFramesAndTheApplication)
{
    TestDocument * const document = New();
    ASSERT_NE(document, nullptr);
    g_log.clear();
    m_main->SendMessage(WM_COMMAND, ID_TEST_ROUTED);
    // The child frame gets the command as a message first; nobody takes it there, so the main frame asks once more.
    std::vector<std::string> const once{"child asked", "view asked", "document asked", "child routed"};
    ASSERT_GE(g_log.size(), once.size());
    EXPECT_TRUE(std::equal(once.begin(), once.end(), g_log.begin())) << testing::PrintToString(g_log);
    EXPECT_EQ(std::count(g_log.begin(), g_log.end(), "main asked"), 1);
    static_cast<TestChild *>(FrameOf(*document))->m_takes = true;
    g_log.clear();
    m_main->SendMessage(WM_COMMAND, ID_TEST_ROUTED);
    EXPECT_EQ(g_log, once);
}

TEST_F(Frames, MenuItemsFollowTheirHandlers)
{
    ASSERT_NE(New(), nullptr);
    HMENU const bar = ::GetMenu(m_main->m_hWnd);
    int test = 0;
    while (test < ::GetMenuItemCount(bar) &&
           ::GetMenuState(::GetSubMenu(bar, test), ID_TEST_LOST, MF_BYCOMMAND) == 0xFFFFFFFF)
        ++test;
    HMENU const menu = ::GetSubMenu(bar, test);
    ASSERT_NE(menu, nullptr);
    UpdateMenu(*m_main, menu);
    EXPECT_EQ(StateOf(menu, ID_TEST_ROUTED), 0u);
    EXPECT_NE(StateOf(menu, ID_TEST_LOST) & MF_GRAYED, 0u);
    EXPECT_NE(StateOf(menu, ID_TEST_CHECKED) & MF_CHECKED, 0u);
    // The item that put one in is followed by what stood behind it.
    EXPECT_EQ(::GetMenuItemCount(menu), 6);
    EXPECT_NE(::GetMenuState(menu, 5, MF_BYPOSITION) & MF_GRAYED, 0u);
    m_main->m_bAutoMenuEnable = FALSE;
    ::EnableMenuItem(menu, ID_TEST_LOST, MF_BYCOMMAND | MF_ENABLED);
    UpdateMenu(*m_main, menu);
    EXPECT_EQ(StateOf(menu, ID_TEST_LOST), 0u);
}

TEST_F(Frames, TitlesSayWhatIsShown)
{
    EXPECT_EQ(TitleOf(*m_main), L"Main frame");
    TestDocument * const document = New();
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->GetTitle(), L"Sheet1");
    CFrameWnd * const first = FrameOf(*document);
    EXPECT_EQ(TitleOf(*first), L"Sheet1");
    EXPECT_EQ(TitleOf(*m_main), L"Sheet1 - Main frame");
    document->SetTitle(L"Renamed");
    EXPECT_EQ(TitleOf(*first), L"Renamed");
    EXPECT_EQ(TitleOf(*m_main), L"Renamed - Main frame");
    // A second frame on the same document: both get numbers.
    m_main->SendMessage(WM_COMMAND, ID_WINDOW_NEW);
    CFrameWnd * const second = m_main->MDIGetActive();
    ASSERT_NE(second, first);
    EXPECT_EQ(TitleOf(*first), L"Renamed:1");
    EXPECT_EQ(TitleOf(*second), L"Renamed:2");
    second->SendMessage(WM_CLOSE);
    EXPECT_EQ(TitleOf(*first), L"Renamed");
    first->SendMessage(WM_CLOSE);
    EXPECT_EQ(frames::g_documents, 0);
    EXPECT_EQ(TitleOf(*m_main), L"Main frame");
}

TEST_F(Frames, EachChildBringsItsMenu)
{
    HMENU const own = ::GetMenu(m_main->m_hWnd);
    TestDocument * const document = New();
    ASSERT_NE(document, nullptr);
    HMENU const shared = ::GetMenu(m_main->m_hWnd);
    EXPECT_NE(shared, own);
    HMENU const windows = m_main->GetWindowMenuPopup(shared);
    ASSERT_NE(windows, nullptr);
    EXPECT_NE(::GetMenuState(windows, AFX_IDM_FIRST_MDICHILD, MF_BYCOMMAND), 0xFFFFFFFFu);
    // A child without a menu of its own shows the frame's.
    auto * const plain = new TestChild;
    ASSERT_TRUE(plain->Create(nullptr, L"Plain"));
    EXPECT_EQ(m_main->MDIGetActive(), plain);
    EXPECT_EQ(::GetMenu(m_main->m_hWnd), own);
    m_main->MDIActivate(FrameOf(*document));
    EXPECT_EQ(::GetMenu(m_main->m_hWnd), shared);
    plain->SendMessage(WM_CLOSE);
    document->OnCloseDocument();
    EXPECT_EQ(::GetMenu(m_main->m_hWnd), own);
}

TEST_F(Frames, AcceleratorsOfTheChildComeBeforeTheFrames)
{
    TestDocument * const document = New();
    ASSERT_NE(document, nullptr);
    static_cast<TestChild *>(FrameOf(*document))->m_takes = true;
    g_log.clear();
    MSG key{};
    POSITION at = document->GetFirstViewPosition();
    key.hwnd = document->GetNextView(at)->m_hWnd;
    key.message = WM_KEYDOWN;
    key.wParam = VK_F8;
    EXPECT_TRUE(AfxPreTranslateMessage(&key));
    EXPECT_EQ(std::count(g_log.begin(), g_log.end(), "child routed"), 1);
    key.wParam = VK_F7;
    EXPECT_TRUE(AfxPreTranslateMessage(&key));
    EXPECT_EQ(m_main->m_keys, 1);
    key.wParam = VK_F6;
    EXPECT_FALSE(AfxPreTranslateMessage(&key));
}

TEST_F(Frames, MessageTextsHaveOneLine)
{
    CString text;
    m_main->GetMessageString(ID_TEST_ROUTED, text);
    EXPECT_EQ(text, L"What it does");
    m_main->GetMessageString(0x7000, text); // of which there is none
    EXPECT_EQ(text, L"");
    CStatic bar;
    ASSERT_TRUE(bar.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), m_main, AFX_IDW_STATUS_BAR));
    EXPECT_EQ(m_main->GetMessageBar(), &bar);
    m_main->SetMessageText(AFX_IDS_IDLEMESSAGE);
    EXPECT_EQ(TitleOf(bar), L"Ready");
    EXPECT_FALSE(m_main->IsTracking());
    m_main->SendMessage(WM_MENUSELECT, MAKEWPARAM(ID_TEST_ROUTED, 0), reinterpret_cast<LPARAM>(::GetMenu(m_window)));
    EXPECT_TRUE(m_main->IsTracking());
    m_main->SendMessage(WM_ENTERIDLE, MSGF_MENU, 0);
    EXPECT_EQ(TitleOf(bar), L"What it does");
    m_main->SendMessage(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    tests::App().OnIdle(0);
    EXPECT_EQ(TitleOf(bar), L"Ready");
    m_main->SetMessageText(L"At once");
    EXPECT_EQ(TitleOf(bar), L"At once");
    bar.DestroyWindow();
}

TEST_F(Frames, ADocumentAsksBeforeItsChangesAreLost)
{
    TestDocument * const document = New();
    ASSERT_NE(document, nullptr);
    CFrameWnd * const frame = FrameOf(*document);
    document->SetModifiedFlag();
    tests::App().Answer(IDCANCEL);
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(frames::g_documents, 1);
    EXPECT_EQ(tests::App().TakeMessages(), std::vector<std::wstring>{L"Save changes to Sheet1?"});
    tests::App().Answer(IDNO);
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(frames::g_documents, 0);
    EXPECT_EQ(tests::App().TakeMessages().size(), 1u);
}

TEST_F(Frames, ADocumentThatRefusesLeavesNothing)
{
    TestDocument::m_refuse = true;
    EXPECT_EQ(New(), nullptr);
    EXPECT_EQ(frames::g_documents, 0);
    EXPECT_EQ(frames::g_views, 0);
    EXPECT_EQ(m_main->MDIGetActive(), nullptr);
    TestDocument::m_refuse = false;
    TestDocument * const document = New();
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(document->GetTitle(), L"Sheet1");
}

TEST_F(Frames, UpdatesReachAllViewsButTheSender)
{
    TestDocument * const document = New();
    ASSERT_NE(document, nullptr);
    m_main->SendMessage(WM_COMMAND, ID_WINDOW_NEW);
    POSITION at = document->GetFirstViewPosition();
    auto * const first = static_cast<TestView *>(document->GetNextView(at));
    auto * const second = static_cast<TestView *>(document->GetNextView(at));
    EXPECT_EQ(at, nullptr);
    first->m_updates = second->m_updates = 0;
    document->UpdateAllViews(first, 42, document);
    EXPECT_EQ(first->m_updates, 0);
    EXPECT_EQ(second->m_updates, 1);
    EXPECT_EQ(second->m_hint, 42);
    EXPECT_EQ(second->m_sender, first);
}

TEST_F(Frames, TheActiveViewHasTheFocus)
{
    TestDocument * const one = New();
    TestDocument * const two = New();
    ASSERT_NE(two, nullptr);
    EXPECT_TRUE(tests::PumpUntil([&] { return CWnd::GetFocus() == FrameOf(*two)->GetActiveView(); }));
    m_main->MDIActivate(FrameOf(*one));
    EXPECT_TRUE(tests::PumpUntil([&] { return CWnd::GetFocus() == FrameOf(*one)->GetActiveView(); }));
    EXPECT_EQ(m_main->GetActiveFrame(), FrameOf(*one));
}

TEST_F(Frames, HiddenAndShownChildrenAreToldOfIt)
{
    TestDocument * const document = New();
    ASSERT_NE(document, nullptr);
    CFrameWnd * const frame = FrameOf(*document);
    frame->ActivateFrame(SW_HIDE);
    EXPECT_EQ(m_main->MDIGetActive(), nullptr);
    frame->ActivateFrame(SW_SHOWNORMAL);
    EXPECT_EQ(m_main->MDIGetActive(), frame);
}

TEST_F(Frames, TheModalStateTakesTheFrameAlong)
{
    EXPECT_FALSE(m_main->InModalState());
    m_main->EnableWindow(FALSE);
    EXPECT_TRUE(m_main->InModalState());
    m_main->EnableWindow(TRUE);
    EXPECT_FALSE(m_main->InModalState());
    m_main->BeginModalState();
    m_main->BeginModalState();
    EXPECT_FALSE(m_main->IsWindowEnabled());
    m_main->EndModalState();
    EXPECT_FALSE(m_main->IsWindowEnabled());
    m_main->EndModalState();
    EXPECT_TRUE(m_main->IsWindowEnabled());
}

TEST_F(Frames, WhatClosesTheMainFrameClosesItsDocuments)
{
    tests::App().AddDocTemplate(m_template);
    m_template = nullptr; // the application's from now on
    POSITION at = tests::App().GetFirstDocTemplatePosition();
    CDocTemplate * const docTemplate = tests::App().GetNextDocTemplate(at);
    auto * const document = static_cast<TestDocument *>(docTemplate->OpenDocumentFile(nullptr));
    ASSERT_NE(document, nullptr);
    document->SetModifiedFlag();
    tests::App().Answer(IDCANCEL);
    m_main->SendMessage(WM_CLOSE);
    EXPECT_TRUE(::IsWindow(m_window));
    EXPECT_EQ(tests::App().TakeMessages().size(), 1u);
    tests::App().Answer(IDNO);
    m_main->SendMessage(WM_CLOSE);
    EXPECT_FALSE(::IsWindow(m_window));
    EXPECT_EQ(frames::g_documents, 0);
    EXPECT_EQ(tests::App().TakeMessages().size(), 1u);
    MSG quit;
    EXPECT_TRUE(::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(Frames, AFrameOfOneDocumentIsReused)
{
    m_main->DestroyWindow();
    tests::App().m_pMainWnd = nullptr;
    MSG quit;
    while (::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
    {
    }
    CSingleDocTemplate single(IDR_SINGLE, RUNTIME_CLASS(TestDocument), RUNTIME_CLASS(CFrameWnd),
                              RUNTIME_CLASS(TestView));
    CDocument * const document = single.OpenDocumentFile(nullptr);
    ASSERT_NE(document, nullptr);
    auto * const frame = static_cast<CFrameWnd *>(tests::App().m_pMainWnd);
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(TitleOf(*frame), L"Paper - Single");
    EXPECT_TRUE(frame->IsWindowVisible());
    EXPECT_EQ(frame->GetActiveDocument(), document);
    EXPECT_EQ(single.OpenDocumentFile(nullptr), document);
    EXPECT_EQ(frames::g_views, 1);
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(frames::g_documents, 0);
    EXPECT_EQ(single.GetFirstDocPosition(), nullptr);
    while (::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
    {
    }
}

TEST_F(Frames, TemplatesKnowTheirFiles)
{
    CDocument * match = nullptr;
    EXPECT_EQ(m_template->MatchDocType(L"C:\\x\\some.sheet", match), CDocTemplate::yesAttemptNative);
    EXPECT_EQ(m_template->MatchDocType(L"C:\\x\\some.SHEET", match), CDocTemplate::yesAttemptNative);
    EXPECT_EQ(m_template->MatchDocType(L"C:\\x\\some.other", match), CDocTemplate::yesAttemptForeign);
    TestDocument * const document = New();
    ASSERT_NE(document, nullptr);
    document->SetPathName(L"C:\\x\\some.sheet", FALSE);
    EXPECT_EQ(document->GetTitle(), L"some.sheet");
    EXPECT_EQ(m_template->MatchDocType(L"c:\\X\\some.sheet", match), CDocTemplate::yesAlreadyOpen);
    EXPECT_EQ(match, document);
    CString text;
    EXPECT_TRUE(m_template->GetDocString(text, CDocTemplate::docName));
    EXPECT_EQ(text, L"Sheet");
}

TEST_F(Frames, RecentFilesStandInTheMenu)
{
    CRecentFileList list(0, L"Recent", L"File%d", 3, 20);
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_FILE_NEW, L"New");
    menu.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, L"Recent");
    menu.AppendMenu(MF_STRING, ID_APP_EXIT, L"Exit");
    auto const update = [&] {
        CCmdUI ui;
        ui.m_pMenu = &menu;
        ui.m_nID = ID_FILE_MRU_FILE1;
        ui.m_nIndex = 1;
        list.UpdateMenu(&ui);
    };
    update();
    EXPECT_NE(StateOf(menu, ID_FILE_MRU_FILE1) & MF_GRAYED, 0u);
    list.Add(L"C:\\a\\one.txt");
    list.Add(L"C:\\a\\two.txt");
    list.Add(L"C:\\a\\ONE.txt"); // the same again
    list.Add(L"C:\\a folder\\with a & in it\\three.txt");
    EXPECT_EQ(list[0], L"C:\\a folder\\with a & in it\\three.txt");
    EXPECT_EQ(list[1], L"C:\\a\\ONE.txt");
    EXPECT_EQ(list[2], L"C:\\a\\two.txt");
    EXPECT_EQ(list.GetSize(), 3);
    update();
    update(); // again without a change
    EXPECT_EQ(menu.GetMenuItemCount(), 5u);
    CString text;
    menu.GetMenuString(1, text, MF_BYPOSITION);
    EXPECT_EQ(text, L"&1 C:\\...\\three.txt");
    menu.GetMenuString(2, text, MF_BYPOSITION);
    EXPECT_EQ(text, L"&2 C:\\a\\ONE.txt");
    EXPECT_EQ(menu.GetMenuItemID(4), static_cast<UINT>(ID_APP_EXIT));
    CString name;
    EXPECT_TRUE(list.GetDisplayName(name, 1, L"C:\\a\\", 5));
    EXPECT_EQ(name, L"ONE.txt");
    list.Remove(0);
    EXPECT_EQ(list[0], L"C:\\a\\ONE.txt");
    EXPECT_EQ(list[2], L"");
    EXPECT_FALSE(list.GetDisplayName(name, 2, L"", 0));
}

TEST_F(Frames, BarsTakeTheirPlaceBeforeTheView)
{
    TestDocument * const document = New();
    ASSERT_NE(document, nullptr);
    CFrameWnd * const frame = FrameOf(*document);
    CRect space(3, 5, 7, 9);
    EXPECT_TRUE(frame->NegotiateBorderSpace(CFrameWnd::borderSet, &space));
    EXPECT_FALSE(frame->NegotiateBorderSpace(CFrameWnd::borderSet, &space));
    frame->RecalcLayout();
    CRect client;
    frame->GetClientRect(&client);
    CRect place;
    frame->GetActiveView()->GetWindowRect(&place);
    frame->ScreenToClient(&place);
    EXPECT_EQ(place, CRect(3, 5, client.right - 7, client.bottom - 9));
}
