// Segment displays whose host changes and ends them in every message that they get.

#include <algorithm>
#include <vector>

#include "chaos_Chaos.h"
#include "segments/DigiStatic.h"

namespace
{
class DisplayWorld;

class ChaosDisplay : public CDigiStatic
{
public:
    ChaosDisplay(DisplayWorld & world, CWnd * parent);
    ~ChaosDisplay() override;

    int m_held = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    DisplayWorld & m_world;
};

class DisplayWorld : public chaos::Chaos
{
public:
    explicit DisplayWorld(unsigned int seed) : Chaos(seed) {}
    ~DisplayWorld() override
    {
        while (!m_displays.empty())
            delete m_displays.back();
    }

    bool Lives(ChaosDisplay const * display) const
    {
        return std::find(m_displays.begin(), m_displays.end(), display) != m_displays.end();
    }
    void Enter(ChaosDisplay * display) { m_displays.push_back(display); }
    void Leave(ChaosDisplay * display) { std::erase(m_displays, display); }

protected:
    void Operate() override;
    void CheckInvariants() override
    {
        for (ChaosDisplay * const display : m_displays)
        {
            if (display->m_hWnd != nullptr)
            {
                EXPECT_EQ(CWnd::FromHandlePermanent(display->m_hWnd), display);
            }
        }
    }

private:
    CString Text() { return OneIn(4) ? CString(L"?") : CString(static_cast<wchar_t>(L'0' + Pick(60)), Pick(80)); }
    void Change(ChaosDisplay & display);

    tests::ScopedWindow m_host;
    std::vector<ChaosDisplay *> m_displays;
};

ChaosDisplay::ChaosDisplay(DisplayWorld & world, CWnd * parent) : m_world(world)
{
    m_world.Enter(this);
    ++m_held;
    Create(L"text of the window", WS_CHILD | WS_VISIBLE | SS_NOTIFY, CRect(10, 10, 210, 60), parent, 5);
    --m_held;
}

ChaosDisplay::~ChaosDisplay()
{
    m_world.Leave(this);
    if (m_hWnd != nullptr)
        DestroyWindow();
}

LRESULT ChaosDisplay::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    DisplayWorld & world = m_world; // this object may end
    if (message == WM_NCDESTROY || message == WM_DESTROY || message == WM_NCCREATE || !world.Lives(this))
        return CDigiStatic::WindowProc(message, wParam, lParam);
    world.Disturb();
    if (!world.Lives(this) || m_hWnd == nullptr)
        return 0;
    LRESULT const result = CDigiStatic::WindowProc(message, wParam, lParam);
    if (world.Lives(this))
        world.Disturb();
    return result;
}

void DisplayWorld::Change(ChaosDisplay & display)
{
    switch (Pick(8))
    {
    case 0:
        Note("text");
        display.SetText(Text());
        break;
    case 1:
        Note("format");
        display.Format(L"%d %s", Pick(1000), Text().GetString());
        break;
    case 2:
        Note("colours");
        display.SetColor(static_cast<COLORREF>(Pick(0x1000000)), static_cast<COLORREF>(Pick(0x1000000)));
        break;
    case 3:
        Note("background");
        display.SetBkColor(static_cast<COLORREF>(Pick(0x1000000)));
        break;
    case 4:
        Note("style");
        display.ModifyDigiStyle(static_cast<DWORD>(Pick(256)), static_cast<DWORD>(Pick(256)));
        break;
    case 5:
        Note("transparent");
        display.SetTransparent(OneIn(2));
        break;
    case 6: {
        Note("corner");
        CRect corner(0, 0, Pick(50), Pick(50));
        display.SetButtonRect(OneIn(2) ? &corner : nullptr);
        break;
    }
    default:
        Note("immediately");
        display.SetDrawImmediately(OneIn(2));
        display.SetColorScheme(static_cast<ColorScheme>(Pick(9)));
        break;
    }
}

void DisplayWorld::Operate()
{
    constexpr std::size_t most = 4;
    if (m_displays.empty() || (m_displays.size() < most && OneIn(5)))
    {
        Note("make");
        new ChaosDisplay(*this, &m_host);
        return;
    }
    ChaosDisplay & display = *m_displays[static_cast<std::size_t>(Pick(static_cast<int>(m_displays.size())))];
    HWND const window = display.m_hWnd;
    switch (Pick(12))
    {
    case 0:
        Note("delete");
        if (display.m_held == 0)
            delete &display;
        break;
    case 1:
        Note("destroy the window");
        if (OneIn(3))
            display.DestroyWindow();
        break;
    case 2:
        Note("size");
        ::SetWindowPos(window, nullptr, Pick(100), Pick(100), Pick(300), Pick(100), SWP_NOZORDER);
        break;
    case 3:
    case 4:
        Note("paint");
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
        break;
    case 5:
        Note("window text");
        ::SetWindowTextW(window, Text());
        break;
    case 6:
        Note("show");
        ::ShowWindow(window, OneIn(3) ? SW_HIDE : SW_SHOW);
        break;
    default:
        Change(display);
        break;
    }
}
} // namespace

TEST(ChaosDisplays, StandAHostThatDoesItsWorst)
{
    chaos::RunAll<DisplayWorld>();
}
