// A frame with bars that draw themselves and with menus, whose every handler may show, hide, fill, resize and end any
// of them, and the frame. It has no children: the system's own code for them does not stand their end within it.

#include <afxpriv.h>
#include <afxtoolbarmenubutton.h>

#include <algorithm>
#include <vector>

#include "chaos_Chaos.h"
#include "mfcbars_MfcBarTest.h"

namespace
{
class World;
World * g_world = nullptr;

void DisturbTheWorld();

/// A bar of the kind Base that disturbs the world in what it is asked. It goes with its window.
template <class Base> class Chaotic : public Base
{
public:
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override
    {
        HWND const window = this->m_hWnd;
        DisturbTheWorld();
        return ::IsWindow(window) ? Base::CalcFixedLayout(bStretch, bHorz) : CSize(0, 0);
    }
    bool m_made = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        HWND const window = this->m_hWnd;
        if (m_made && message != WM_NCDESTROY)
            DisturbTheWorld();
        return ::IsWindow(window) ? Base::WindowProc(message, wParam, lParam) : 0;
    }
    void PostNcDestroy() override
    {
        Base::PostNcDestroy();
        delete this;
    }
};

class ChaoticTools : public Chaotic<CMFCToolBar>
{
public:
    BOOL OnSendCommand(const CMFCToolBarButton *) override
    {
        DisturbTheWorld();
        return FALSE;
    }
    void OnChangeHot(int) override { DisturbTheWorld(); }
};

class ChaoticFrame : public CMDIFrameWndEx
{
public:
    BOOL OnShowPopupMenu(CMFCPopupMenu * popup) override
    {
        HWND const window = m_hWnd;
        HWND const menu = popup->GetSafeHwnd();
        DisturbTheWorld();
        return ::IsWindow(window) && ::IsWindow(menu) ? CMDIFrameWndEx::OnShowPopupMenu(popup) : TRUE;
    }
    void OnClosePopupMenu(CMFCPopupMenu *) override { DisturbTheWorld(); }

protected:
    afx_msg void OnDestroy();
    afx_msg void OnAny(UINT) { DisturbTheWorld(); }
    afx_msg void OnUpdateAny(CCmdUI * state);

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ChaoticFrame, CMDIFrameWndEx)
    ON_WM_DESTROY()
    ON_COMMAND_RANGE(ID_MFC_A, ID_MFC_PANE, &ChaoticFrame::OnAny)
    ON_UPDATE_COMMAND_UI_RANGE(ID_MFC_A, ID_MFC_PANE, &ChaoticFrame::OnUpdateAny)
END_MESSAGE_MAP()

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
    void FrameEnds(ChaoticFrame const * frame)
    {
        if (m_frame == frame)
            m_frame = nullptr;
    }
    bool Ending() const { return m_ending; }

    /// Device contexts that the system keeps for windows that are painted while others are.
    static constexpr int kept_by_the_system = 72;

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
        switch (Pick(21))
        {
        case 0:
        case 1:
        case 2:
            Note("add a bar");
            AddBar();
            break;
        case 3:
            Note("destroy a bar");
            if (CPane * const bar = AnyBar<CPane>())
                bar->DestroyWindow();
            break;
        case 4:
            Note("show or hide a bar");
            if (CPane * const bar = AnyBar<CPane>())
                bar->ShowPane(OneIn(2), OneIn(2), FALSE);
            break;
        case 5:
            Note("size");
            m_frame->MoveWindow(Pick(200), Pick(200), 50 + Pick(700), 50 + Pick(500));
            break;
        case 6:
            Note("layout");
            m_frame->RecalcLayout();
            break;
        case 7:
        case 8:
            Note("idle");
            tests::App().OnIdle(0);
            break;
        case 9:
            Note("command");
            m_frame->SendMessage(WM_COMMAND, ID_MFC_A + static_cast<UINT>(Pick(5)));
            break;
        case 10:
            Note("buttons");
            if (CMFCToolBar * const bar = AnyBar<CMFCToolBar>())
                ChangeButtons(*bar);
            break;
        case 11:
        case 12:
            Note("mouse");
            if (CMFCToolBar * const bar = AnyBar<CMFCToolBar>())
                UseMouse(*bar);
            break;
        case 13:
            Note("popup");
            if (CMFCPopupMenu::GetActiveMenu() == nullptr)
                (new CMFCPopupMenu)->Create(m_frame, Pick(400), Pick(400), m_menu.m_hMenu);
            break;
        case 14:
        case 15:
            Note("key");
            PressKey();
            break;
        case 16:
            Note("menu");
            if (CMFCPopupMenu * const menu = CMFCPopupMenu::GetActiveMenu())
                UseMenu(*menu);
            break;
        case 17:
            Note("status");
            if (CMFCStatusBar * const bar = AnyBar<CMFCStatusBar>())
                UseStatus(*bar);
            break;
        case 18:
            Note("message text");
            m_frame->SetMessageText(L"text");
            break;
        case 19:
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
    }

private:
    static constexpr size_t most_bars = 6;
    static constexpr UINT first_bar = AFX_IDW_CONTROLBAR_FIRST + 60;

    void MakeFrame()
    {
        if (m_menu.m_hMenu == nullptr)
            m_menu.LoadMenu(IDR_MFC_DROP);
        m_frame = new ChaoticFrame;
        tests::App().m_pMainWnd = m_frame;
        if (!m_frame->LoadFrame(IDR_MFC_MAIN, WS_OVERLAPPEDWINDOW) || m_frame == nullptr)
            return;
        m_frame->MoveWindow(50, 50, 650, 450);
        if (m_frame != nullptr)
            m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    }
    template <class Kind> std::vector<Kind *> Bars() const
    {
        std::vector<Kind *> bars;
        for (HWND child = ::GetWindow(m_frame->m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
        {
            if (auto * const bar = dynamic_cast<Kind *>(CWnd::FromHandlePermanent(child)))
                bars.push_back(bar);
        }
        return bars;
    }
    template <class Kind> Kind * AnyBar()
    {
        std::vector<Kind *> const bars = Bars<Kind>();
        return bars.empty() ? nullptr : bars[static_cast<size_t>(Pick(static_cast<int>(bars.size())))];
    }
    void AddBar()
    {
        if (Bars<CPane>().size() >= most_bars)
            return;
        DWORD const style = WS_CHILD | WS_VISIBLE | CBRS_TOOLTIPS | static_cast<DWORD>(CBRS_ALIGN_LEFT << Pick(4));
        UINT const id = first_bar + m_next++ % 40;
        switch (Pick(4))
        {
        case 0:
            if (Bars<CMFCMenuBar>().empty())
            {
                auto * const bar = new Chaotic<CMFCMenuBar>;
                if (bar->Create(m_frame))
                    bar->m_made = true;
            }
            break;
        case 1:
            if (Bars<CMFCStatusBar>().empty())
            {
                static UINT const panes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS, ID_MFC_PANE};
                auto * const bar = new Chaotic<CMFCStatusBar>;
                if (bar->Create(m_frame) && bar->SetIndicators(panes, static_cast<int>(std::size(panes))))
                    bar->m_made = true;
            }
            break;
        default: {
            auto * const bar = new ChaoticTools;
            if (bar->CreateEx(m_frame, TBSTYLE_FLAT, style, CRect(1, 1, 1, 1), id) && bar->LoadToolBar(IDR_MFC_TOOLS))
            {
                bar->InsertButton(CMFCToolBarMenuButton(ID_MFC_OTHER, m_menu.m_hMenu, -1, L"Menu"));
                bar->m_made = true;
            }
            break;
        }
        }
    }
    void ChangeButtons(CMFCToolBar & bar)
    {
        int const at = Pick(std::max(1, bar.GetCount()));
        switch (Pick(6))
        {
        case 0:
            bar.InsertButton(CMFCToolBarButton(ID_MFC_A + static_cast<UINT>(Pick(5)), Pick(5), L"Text"), at);
            break;
        case 1:
            bar.RemoveButton(at);
            break;
        case 2:
            bar.SetButtonText(at, OneIn(2) ? L"A longer text" : L"");
            break;
        case 3:
            bar.SetButtonStyle(at, OneIn(2) ? TBBS_CHECKBOX : TBBS_BUTTON);
            break;
        case 4:
            bar.EnableTextLabels(OneIn(2));
            break;
        default:
            bar.AdjustLayout();
            break;
        }
    }
    void UseMouse(CMFCToolBar & bar)
    {
        CRect rect(5, 5, 15, 15);
        if (bar.GetCount() > 0)
            bar.GetItemRect(Pick(bar.GetCount()), &rect);
        CPoint const point = rect.CenterPoint();
        LPARAM const place = MAKELPARAM(point.x, point.y);
        HWND const window = bar.m_hWnd;
        ::SendMessage(window, WM_MOUSEMOVE, 0, place);
        if (OneIn(2))
            ::SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
        if (OneIn(2) && ::GetCapture() != nullptr)
            ::SendMessage(::GetCapture(), WM_LBUTTONUP, 0, place);
        if (OneIn(3))
            ::SendMessage(window, OneIn(2) ? WM_MOUSELEAVE : WM_CANCELMODE, 0, 0);
    }
    void PressKey()
    {
        static UINT const keys[] = {VK_DOWN, VK_UP, VK_LEFT, VK_RIGHT, VK_RETURN, VK_ESCAPE, VK_MENU, VK_F10, VK_HOME};
        MSG message{};
        message.hwnd = m_frame->m_hWnd;
        message.wParam = keys[Pick(static_cast<int>(std::size(keys)))];
        message.message = message.wParam == VK_MENU || message.wParam == VK_F10 ? WM_SYSKEYDOWN : WM_KEYDOWN;
        tests::App().PreTranslateMessage(&message);
        message.message += WM_KEYUP - WM_KEYDOWN;
        if (m_frame != nullptr && message.hwnd == m_frame->m_hWnd)
            tests::App().PreTranslateMessage(&message);
    }
    void UseMenu(CMFCPopupMenu & menu)
    {
        switch (Pick(5))
        {
        case 0:
            menu.CloseMenu();
            break;
        case 1:
            menu.InsertItem(CMFCToolBarMenuButton(ID_MFC_A, nullptr, -1, L"Item"));
            break;
        case 2:
            menu.RemoveItem(Pick(std::max(1, menu.GetMenuItemCount())));
            break;
        case 3:
            if (CMFCPopupMenuBar * const bar = menu.GetMenuBar())
                UseMouse(*bar);
            break;
        default:
            menu.DestroyWindow();
            break;
        }
    }
    void UseStatus(CMFCStatusBar & bar)
    {
        int const pane = Pick(4);
        switch (Pick(4))
        {
        case 0:
            bar.SetPaneText(pane, OneIn(2) ? L"A text that is rather long" : L"");
            break;
        case 1:
            bar.SetPaneWidth(pane, Pick(100));
            break;
        case 2:
            bar.EnablePaneProgressBar(pane, Pick(3) * 10 - 10);
            break;
        default:
            bar.SetPaneProgress(pane, Pick(12));
            break;
        }
    }
    ChaoticFrame * m_frame = nullptr;
    CMenu m_menu;
    UINT m_next = 0;
    bool m_ending = false;
};

void DisturbTheWorld()
{
    if (g_world != nullptr && !g_world->Ending())
        g_world->Disturb();
}

void ChaoticFrame::OnDestroy()
{
    if (g_world != nullptr)
        g_world->FrameEnds(this);
    CMDIFrameWndEx::OnDestroy();
}

void ChaoticFrame::OnUpdateAny(CCmdUI * state)
{
    UINT const id = state->m_nID;
    DisturbTheWorld();
    // The bar may be gone, and the state with its button; so most have no state.
    if (id == ID_MFC_A && g_world == nullptr)
        state->Enable();
}
} // namespace

TEST(ChaosMfcBars, SurvivesBarsThatDoTheirWorst)
{
    chaos::RunAll<World>(3);
}
