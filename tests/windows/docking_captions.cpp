// What captions of panes and of floating frames offer and show, and a client area that doesn't show.

#include "docking_DockTest.h"

using namespace docking;

namespace
{
constexpr UINT get_menu = 0x01E1; // MN_GETHMENU

HWND OpenMenu()
{
    HWND const menu = ::FindWindow(L"#32768", nullptr);
    return menu != nullptr && ::IsWindowVisible(menu) ? menu : nullptr;
}
} // namespace

class DockCaptions : public DockTest
{
protected:
    void SetUp() override
    {
        DockTest::SetUp();
        ShowFrame();
    }
    void TearDown() override
    {
        ::SetThreadLocale(LOCALE_USER_DEFAULT);
        DockTest::TearDown();
    }

    /// Opens the menu by a click, notes the items that can be chosen and whether folding is checked, and chooses by a
    /// key.
    void Choose(CPoint caption, WORD key)
    {
        m_items.clear();
        tests::LaterActions later;
        later.Add(
            [&] {
                auto const menu = reinterpret_cast<HMENU>(::SendMessage(OpenMenu(), get_menu, 0, 0));
                for (int at = 0; at < ::GetMenuItemCount(menu); ++at)
                {
                    wchar_t text[100] = L"";
                    ::GetMenuString(menu, static_cast<UINT>(at), text, 100, MF_BYPOSITION);
                    UINT const state = ::GetMenuState(menu, static_cast<UINT>(at), MF_BYPOSITION);
                    if ((state & (MF_GRAYED | MF_DISABLED)) == 0)
                        m_items.push_back(std::wstring(text) + ((state & MF_CHECKED) != 0 ? L"+" : L""));
                }
                tests::Key(key);
            },
            [] { return OpenMenu() != nullptr; });
        tests::Click(caption, tests::Button::right);
        ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && OpenMenu() == nullptr; }));
        ASSERT_FALSE(later.Failed());
    }

    using Items = std::vector<std::wstring>;
    Items m_items;
};

TEST_F(DockCaptions, TheMenuFloatsDocksFoldsAndHides)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    Docked(CBRS_ALIGN_RIGHT);
    ASSERT_NO_FATAL_FAILURE(Choose(CaptionOf(pane), VK_ESCAPE));
    EXPECT_EQ(m_items, (Items{L"&Float", L"&Auto hide", L"&Hide"}));
    EXPECT_TRUE(pane.IsDocked() && pane.IsPaneVisible());
    ASSERT_NO_FATAL_FAILURE(Choose(CaptionOf(pane), L'F'));
    ASSERT_TRUE(pane.IsFloating());
    CRect const frame = Screen(pane.GetParentMiniFrame()->m_hWnd);
    ASSERT_NO_FATAL_FAILURE(Choose(CPoint(frame.left + 30, frame.top + 8), L'D'));
    EXPECT_EQ(m_items, (Items{L"&Dock", L"&Hide"}));
    EXPECT_TRUE(pane.IsDocked());
    ASSERT_NO_FATAL_FAILURE(Choose(CaptionOf(pane), L'A'));
    ASSERT_TRUE(pane.IsAutoHideMode());
    pane.Slide(TRUE);
    ASSERT_NO_FATAL_FAILURE(Choose(CaptionOf(pane), L'A'));
    EXPECT_EQ(m_items, (Items{L"&Auto hide+", L"&Hide"}));
    EXPECT_FALSE(pane.IsAutoHideMode());
    ASSERT_NO_FATAL_FAILURE(Choose(CaptionOf(pane), L'H'));
    EXPECT_FALSE(pane.IsVisible());
    EXPECT_EQ(m_frame->m_closed, 1);
}

TEST_F(DockCaptions, TheMenuIsInTheThreadsLanguage)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    ::SetThreadLocale(MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT));
    ASSERT_NO_FATAL_FAILURE(Choose(CaptionOf(pane), VK_ESCAPE));
    EXPECT_EQ(m_items, (Items{L"&Lösen", L"Automatisch &einklappen", L"Aus&blenden"}));
}

TEST_F(DockCaptions, APaneMayEndWhileItsMenuIsOpen)
{
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    CPoint const caption = CaptionOf(pane);
    tests::LaterActions later;
    later.Add(
        [&] {
            m_panes.clear();
            ::EndMenu();
        },
        [] { return OpenMenu() != nullptr; });
    tests::Click(caption, tests::Button::right);
    ASSERT_TRUE(tests::PumpUntil([&] { return later.Done() && OpenMenu() == nullptr; }));
    EXPECT_FALSE(later.Failed());
}

/// Notes whether the caption was drawn as an active one last.
class NotingFrame : public MainFrame
{
public:
    bool m_looksActive = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NCACTIVATE)
            m_looksActive = wParam != FALSE;
        return MainFrame::WindowProc(message, wParam, lParam);
    }
};

TEST_F(DockCaptions, TheMainFrameLooksActiveWhileAFloatingPaneIs)
{
    EndFrame();
    auto * const frame = new NotingFrame;
    m_frame = frame;
    ASSERT_TRUE(frame->Create(nullptr, L"Docking", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(60, 40, 1060, 740)));
    m_window = frame->m_hWnd;
    tests::App().m_pMainWnd = frame;
    frame->EnableDocking(CBRS_ALIGN_ANY);
    ShowFrame();
    Pane & one = Docked(CBRS_ALIGN_LEFT);
    Pane & two = Docked(CBRS_ALIGN_RIGHT);
    one.FloatPane(CRect(200, 200, 400, 400));
    two.FloatPane(CRect(500, 200, 700, 400));
    one.GetParentMiniFrame()->SetActiveWindow();
    EXPECT_TRUE(frame->m_looksActive);
    two.GetParentMiniFrame()->SetActiveWindow();
    EXPECT_TRUE(frame->m_looksActive);
    // Another window takes over.
    HWND const other = ::CreateWindow(L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 800, 600, 100, 100, nullptr,
                                      nullptr, nullptr, nullptr);
    ::SetActiveWindow(other);
    EXPECT_FALSE(frame->m_looksActive);
    one.GetParentMiniFrame()->SetActiveWindow();
    EXPECT_TRUE(frame->m_looksActive);
    frame->SetActiveWindow();
    EXPECT_TRUE(frame->m_looksActive);
    ::DestroyWindow(other);
}

TEST_F(DockCaptions, ALeastSizeCountsAtOnce)
{
    Pane & pane = Docked(CBRS_ALIGN_BOTTOM, 100);
    pane.SetMinSize(CSize(0, 180));
    EXPECT_EQ(Place(pane).Height(), 180);
    pane.SetMinSize(CSize(0, 0));
    EXPECT_EQ(Place(pane).Height(), 100);
}

TEST_F(DockCaptions, PanesShareTheRoomOfAClientAreaThatIsHidden)
{
    Pane & left = Docked(CBRS_ALIGN_LEFT);
    Pane & bottom = Docked(CBRS_ALIGN_BOTTOM);
    Pane & top = Docked(CBRS_ALIGN_TOP);
    int const height = Place(bottom).Height();
    ::ShowWindow(m_frame->m_hWndMDIClient, SW_HIDE);
    m_frame->RecalcLayout();
    EXPECT_EQ(Place(top).top, Inside().top);
    EXPECT_EQ(Place(top).bottom, Place(bottom).top - Place(top).left + Place(left).right);
    EXPECT_EQ(Place(bottom).Height(), height);
    EXPECT_FALSE(::IsWindowVisible(m_frame->m_hWndMDIClient));
    // Torn off, it leaves no hole, and an empty frame takes it back.
    top.FloatPane(CRect(200, 200, 400, 400));
    EXPECT_EQ(Place(bottom).top, Inside().top);
    bottom.FloatPane(CRect(300, 200, 500, 400));
    EXPECT_EQ(Place(left), Inside());
    left.FloatPane(CRect(1070, 600, 1250, 800));
    top.ShowPane(FALSE, FALSE, FALSE);
    bottom.ShowPane(FALSE, FALSE, FALSE);
    CRect const mini = Screen(left.GetParentMiniFrame()->m_hWnd);
    CRect inside = Inside();
    m_frame->ClientToScreen(&inside);
    tests::Drag(CPoint(mini.left + 40, mini.top + 8), CPoint(inside.left + 25, inside.CenterPoint().y));
    ASSERT_TRUE(tests::PumpUntil([&] { return left.IsDocked() != FALSE; }));
    EXPECT_EQ(Place(left), Inside());
    ::ShowWindow(m_frame->m_hWndMDIClient, SW_SHOW);
    m_frame->RecalcLayout();
    EXPECT_FALSE(Centre().IsRectEmpty());
}
