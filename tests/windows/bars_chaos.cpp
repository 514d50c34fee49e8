// A frame with bars that show, hide, resize and end each other and the frame whenever they are laid out, updated or
// told of a command.

#include <afxcmn.h>
#include <afxext.h>
#include <afxpriv.h>

#include <vector>

#include "chaos_Chaos.h"

namespace
{
class World;
World * g_world = nullptr;
int g_insideControls = 0; // a native control notifies, and wouldn't survive its end

void DisturbTheWorld();

constexpr UINT first_bar = AFX_IDW_CONTROLBAR_FIRST + 40;
constexpr UINT first_command = 34100;
constexpr int commands = 6;

/// A bar of the kind Base that disturbs the world in what it is asked. It goes with its window.
template <class Base> class Chaotic : public Base
{
public:
    Chaotic() { this->m_bAutoDelete = TRUE; }

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override
    {
        HWND const window = this->m_hWnd;
        DisturbTheWorld();
        return ::IsWindow(window) ? Base::CalcFixedLayout(bStretch, bHorz) : CSize(0, 0);
    }
    void OnUpdateCmdUI(CFrameWnd * pTarget, BOOL bDisableIfNoHndler) override
    {
        HWND const window = this->m_hWnd;
        HWND const target = pTarget->m_hWnd;
        DisturbTheWorld();
        if (::IsWindow(window) && ::IsWindow(target))
            Base::OnUpdateCmdUI(pTarget, bDisableIfNoHndler);
    }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult) override
    {
        ++g_insideControls;
        BOOL const taken = Base::OnChildNotify(message, wParam, lParam, pResult);
        --g_insideControls;
        return taken;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        // What the framework asks of a bar. Native controls don't survive their end within messages of their own.
        bool const quiet = message != WM_SIZEPARENT && message != WM_IDLEUPDATECMDUI && message != WM_SETTEXT;
        HWND const window = this->m_hWnd;
        if (!quiet)
            DisturbTheWorld();
        return ::IsWindow(window) ? Base::WindowProc(message, wParam, lParam) : 0;
    }
};

class ChaoticFrame : public CFrameWnd
{
public:
    BOOL Show() { return Create(nullptr, L"Chaos", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 650, 450)); }

protected:
    void PostNcDestroy() override;
    afx_msg void OnAny(UINT) { DisturbTheWorld(); }
    afx_msg void OnUpdateAny(CCmdUI * state);

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ChaoticFrame, CFrameWnd)
    ON_COMMAND_RANGE(first_command, first_command + commands, &ChaoticFrame::OnAny)
    ON_UPDATE_COMMAND_UI_RANGE(first_command, first_command + commands, &ChaoticFrame::OnUpdateAny)
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
    void FrameGone() { m_frame = nullptr; }
    bool Ending() const { return m_ending; }

protected:
    void Operate() override
    {
        if (m_frame == nullptr)
        {
            Note("frame");
            m_frame = new ChaoticFrame;
            tests::App().m_pMainWnd = m_frame;
            if (!m_frame->Show())
                return;
        }
        if (m_frame == nullptr)
            return;
        switch (Pick(14))
        {
        case 0:
        case 1:
            Note("add a bar");
            AddBar();
            break;
        case 2:
            Note("destroy a bar");
            if (CControlBar * const bar = AnyBar())
                bar->DestroyWindow();
            break;
        case 3:
            Note("show or hide a bar");
            if (CControlBar * const bar = AnyBar())
                m_frame->ShowControlBar(bar, OneIn(2), OneIn(2));
            break;
        case 4:
            Note("another side");
            if (CControlBar * const bar = AnyBar())
            {
                bar->SetBarStyle(static_cast<DWORD>(CBRS_ALIGN_LEFT << Pick(4)) |
                                 static_cast<DWORD>(CBRS_BORDER_LEFT << Pick(4)) | CBRS_TOOLTIPS | CBRS_FLYBY);
            }
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
            m_frame->SendMessage(WM_COMMAND, first_command + static_cast<UINT>(Pick(commands)));
            break;
        case 10:
            Note("message");
            m_frame->SetMessageText(L"text");
            break;
        case 11:
            Note("dock");
            if (CControlBar * const bar = AnyBar())
            {
                bar->EnableDocking(CBRS_ALIGN_ANY);
                m_frame->EnableDocking(CBRS_ALIGN_ANY);
                m_frame->DockControlBar(bar, AFX_IDW_DOCKBAR_TOP + static_cast<UINT>(Pick(4)));
            }
            break;
        case 12:
            Note("press a button");
            if (CControlBar * const bar = AnyBar())
            {
                bar->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10));
                if (::GetCapture() != nullptr)
                    ::SendMessage(::GetCapture(), WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
            }
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
    static constexpr size_t most_bars = 8;

    std::vector<CControlBar *> Bars() const
    {
        std::vector<CControlBar *> bars;
        for (UINT id = first_bar; id < first_bar + 2 * most_bars; ++id)
        {
            if (CControlBar * const bar = m_frame->GetControlBar(id))
                bars.push_back(bar);
        }
        return bars;
    }
    CControlBar * AnyBar()
    {
        std::vector<CControlBar *> const bars = Bars();
        return bars.empty() ? nullptr : bars[static_cast<size_t>(Pick(static_cast<int>(bars.size())))];
    }
    void AddBar()
    {
        UINT const id = first_bar + m_next++ % (2 * most_bars);
        if (Bars().size() >= most_bars || m_frame->GetControlBar(id) != nullptr)
            return;
        DWORD const side = static_cast<DWORD>(CBRS_ALIGN_LEFT << Pick(4));
        DWORD const style = WS_CHILD | WS_VISIBLE | side | CBRS_TOOLTIPS | CBRS_FLYBY;
        switch (Pick(3))
        {
        case 0: {
            auto * const bar = new Chaotic<CToolBar>;
            if (bar->CreateEx(m_frame, OneIn(2) ? TBSTYLE_FLAT : 0, style | (OneIn(2) ? CBRS_SIZE_DYNAMIC : 0),
                              CRect(1, 1, 1, 1), id))
            {
                static UINT const ids[] = {first_command, first_command + 1, 0, first_command + 2, first_command + 3};
                bar->SetButtons(ids, static_cast<int>(std::size(ids)));
            }
            break;
        }
        case 1: {
            auto * const bar = new Chaotic<CStatusBar>;
            if (bar->Create(m_frame, style, m_frame->GetMessageBar() == nullptr ? AFX_IDW_STATUS_BAR : id))
                bar->SetIndicators(nullptr, 1 + Pick(4));
            break;
        }
        default: {
            auto * const bar = new Chaotic<CReBar>;
            if (!bar->Create(m_frame, RBS_BANDBORDERS, style, id))
                break;
            HWND const window = bar->m_hWnd;
            HWND const edit = ::CreateWindow(L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, m_frame->m_hWnd,
                                             reinterpret_cast<HMENU>(5), nullptr, nullptr);
            if (::IsWindow(window) && ::IsWindow(edit))
                bar->AddBar(CWnd::FromHandle(edit));
            break;
        }
        }
    }

    ChaoticFrame * m_frame = nullptr;
    UINT m_next = 0;
    bool m_ending = false;
};

void DisturbTheWorld()
{
    if (g_world != nullptr && !g_world->Ending() && g_insideControls == 0)
        g_world->Disturb();
}

void ChaoticFrame::PostNcDestroy()
{
    if (g_world != nullptr)
        g_world->FrameGone();
    CFrameWnd::PostNcDestroy();
}

void ChaoticFrame::OnUpdateAny(CCmdUI * state)
{
    DisturbTheWorld();
    // The bar may be gone, and the state with its button.
    if (g_world != nullptr && state->m_pMenu == nullptr)
        state->ContinueRouting();
}
} // namespace

TEST(ChaosBars, SurvivesBarsThatDoTheirWorst)
{
    {
        // The window system keeps a device context for each window that has been painted within the painting of
        // another, with the objects in it: as many as the deepest nesting needs. This seed needs them all.
        constexpr unsigned int deepest_seed = 4444;
        tests::GuardedHeap heap;
        World(deepest_seed).Run(chaos::steps_per_seed, heap);
    }
    chaos::RunAll<World>();
}
