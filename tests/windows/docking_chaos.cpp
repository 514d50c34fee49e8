// Panes of a main frame that are docked, put into tabs, let float, folded away, dragged, shown and ended in whatever
// they are told, by each other and with their frame.

#include <afxcontrolbars.h>

#include <algorithm>
#include <vector>

#include "chaos_Chaos.h"

namespace
{
class World;
World * g_world = nullptr;

void DisturbTheWorld();

/// It goes with its window.
class ChaoticPane : public CDockablePane
{
public:
    void OnAfterDock(CBasePane *, LPCRECT, AFX_DOCK_METHOD) override { DisturbTheWorld(); }
    void OnAfterFloat() override { DisturbTheWorld(); }
    void OnPressCloseButton() override { DisturbTheWorld(); }
    void OnSlide(BOOL) override { DisturbTheWorld(); }
    BOOL OnBeforeDock(CBasePane **, LPCRECT, AFX_DOCK_METHOD) override
    {
        HWND const window = m_hWnd;
        DisturbTheWorld();
        return ::IsWindow(window);
    }
    BOOL OnBeforeFloat(CRect &, AFX_DOCK_METHOD) override
    {
        HWND const window = m_hWnd;
        DisturbTheWorld();
        return ::IsWindow(window);
    }
    void OnBeforeChangeParent(CWnd * parent, BOOL delay) override
    {
        HWND const window = m_hWnd;
        DisturbTheWorld();
        if (::IsWindow(window))
            CDockablePane::OnBeforeChangeParent(parent, delay);
    }
    void OnAfterChangeParent(CWnd *) override { DisturbTheWorld(); }

    bool m_made = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        HWND const window = m_hWnd;
        if (m_made && message != WM_NCDESTROY)
            DisturbTheWorld();
        return ::IsWindow(window) ? CDockablePane::WindowProc(message, wParam, lParam) : 0;
    }
    void PostNcDestroy() override;
};

class ChaoticFrame : public CMDIFrameWndEx
{
public:
    BOOL OnCloseDockingPane(CDockablePane *) override
    {
        DisturbTheWorld();
        return TRUE;
    }
    BOOL OnCloseMiniFrame(CPaneFrameWnd *) override
    {
        DisturbTheWorld();
        return TRUE;
    }

protected:
    void PostNcDestroy() override;
};

class World : public chaos::Chaos
{
public:
    explicit World(unsigned int seed) : Chaos(seed) { g_world = this; }
    ~World() override
    {
        m_ending = true;
        if (m_frame != nullptr)
            m_frame->DestroyWindow();
        tests::App().m_pMainWnd = nullptr;
        g_world = nullptr;
        MSG message;
        while (::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
        {
        }
    }
    void FrameGone() { m_frame = nullptr; }
    void PaneGone(ChaoticPane * pane) { std::erase(m_panes, pane); }
    bool Ending() const { return m_ending; }

    /// Device contexts that the system keeps for windows that are painted while others are.
    static constexpr int kept_by_the_system = 96;

protected:
    void Operate() override
    {
        if (m_frame == nullptr)
        {
            Note("frame");
            MakeFrame();
        }
        if (m_frame == nullptr)
            return;
        if (m_panes.size() < 3 || (m_panes.size() < most_panes && OneIn(10)))
        {
            Note("add a pane");
            AddPane();
            return;
        }
        ChaoticPane & pane = Any();
        switch (Pick(20))
        {
        case 0:
        case 1:
            Note("dock");
            pane.DockToFrameWindow(Side());
            break;
        case 2:
            Note("dock beside");
            pane.DockToWindow(&Any(), Side());
            break;
        case 3:
        case 4:
            Note("tab");
            if (ChaoticPane & other = Any(); &other != &pane)
                pane.AttachToTabWnd(&other, DM_SHOW, OneIn(2));
            break;
        case 5:
            Note("float");
            pane.FloatPane(CRect(CPoint(Pick(600), Pick(500)), CSize(100 + Pick(200), 80 + Pick(200))));
            break;
        case 6:
            Note("show or hide");
            pane.ShowPane(OneIn(2), FALSE, OneIn(2));
            break;
        case 7:
            Note("fold");
            pane.SetAutoHideMode(OneIn(2), OneIn(2) ? Side() : 0);
            break;
        case 8:
            Note("slide");
            pane.Slide(OneIn(2));
            break;
        case 9:
            Note("destroy a pane");
            pane.DestroyWindow();
            break;
        case 10:
            Note("size");
            m_frame->MoveWindow(Pick(200), Pick(200), 50 + Pick(700), 50 + Pick(500));
            break;
        case 11:
            Note("layout");
            m_frame->RecalcLayout();
            break;
        case 12:
            Note("idle");
            tests::App().OnIdle(0);
            break;
        case 13:
        case 14:
            Note("drag");
            Drag(pane);
            break;
        case 15:
            Note("double click");
            Caption(pane).SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION, Point(Caption(pane)));
            break;
        case 16:
            Note("close a floating frame");
            if (CPaneFrameWnd * const mini = pane.GetParentMiniFrame())
                mini->SendMessage(WM_CLOSE);
            break;
        case 17:
            Note("title");
            pane.SetWindowText(OneIn(2) ? L"A title" : L"Another one, which is long");
            break;
        case 18:
            Note("posted");
            tests::PumpPosted();
            break;
        default:
            Note("destroy the frame");
            if (OneIn(20))
                m_frame->DestroyWindow();
            break;
        }
    }
    void CheckInvariants() override
    {
        if (m_frame != nullptr)
        {
            EXPECT_TRUE(::IsWindow(m_frame->m_hWnd));
        }
        for (ChaoticPane const * const pane : m_panes)
            EXPECT_TRUE(::IsWindow(pane->m_hWnd));
    }

private:
    static constexpr size_t most_panes = 8;

    ChaoticPane & Any() { return *m_panes[static_cast<size_t>(Pick(static_cast<int>(m_panes.size())))]; }
    DWORD Side() { return static_cast<DWORD>(CBRS_ALIGN_LEFT << Pick(4)); }
    static CWnd & Caption(ChaoticPane & pane)
    {
        CWnd * const tabbed = pane.GetParentTabbedPane();
        return tabbed != nullptr ? *tabbed : pane;
    }
    static LPARAM Point(CWnd & caption)
    {
        CRect rect;
        caption.GetWindowRect(&rect);
        return MAKELPARAM(rect.left + 20, rect.top + 5);
    }
    void MakeFrame()
    {
        m_frame = new ChaoticFrame;
        tests::App().m_pMainWnd = m_frame;
        if (!m_frame->Create(nullptr, L"Chaos", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(50, 50, 850, 650)) ||
            m_frame == nullptr)
            return;
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        m_frame->EnableAutoHidePanes(CBRS_ALIGN_ANY);
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    }
    void AddPane()
    {
        auto * const pane = new ChaoticPane;
        if (pane->Create(L"Pane", m_frame, CRect(0, 0, 150, 120), TRUE, first_pane + m_next++ % 50,
                         WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI))
        {
            m_panes.push_back(pane);
            pane->m_made = true;
            pane->DockToFrameWindow(Side());
        }
    }
    void Drag(ChaoticPane & pane)
    {
        CWnd & caption = Caption(pane);
        caption.SendMessage(WM_NCLBUTTONDOWN, HTCAPTION, Point(caption));
        for (int move = Pick(4); move > 0 && ::GetCapture() != nullptr; --move)
            ::SendMessage(::GetCapture(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(Pick(800), Pick(600)));
        if (::GetCapture() != nullptr)
            ::SendMessage(::GetCapture(), OneIn(2) ? WM_LBUTTONUP : WM_CANCELMODE, 0, MAKELPARAM(Pick(800), Pick(600)));
    }

    static constexpr UINT first_pane = 700;
    ChaoticFrame * m_frame = nullptr;
    std::vector<ChaoticPane *> m_panes;
    UINT m_next = 0;
    bool m_ending = false;
};

void DisturbTheWorld()
{
    if (g_world != nullptr && !g_world->Ending())
        g_world->Disturb();
}

void ChaoticPane::PostNcDestroy()
{
    if (g_world != nullptr)
        g_world->PaneGone(this);
    CDockablePane::PostNcDestroy();
    delete this;
}

void ChaoticFrame::PostNcDestroy()
{
    if (g_world != nullptr)
        g_world->FrameGone();
    CMDIFrameWndEx::PostNcDestroy();
}
} // namespace

TEST(ChaosPanes, SurvivesPanesThatDoTheirWorst)
{
    chaos::RunAll<World>(2);
}
