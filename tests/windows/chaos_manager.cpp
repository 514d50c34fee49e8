// The window manager, with windows that end, come and change in every message that they get.

#include <algorithm>
#include <vector>

#include "chaos_Chaos.h"
#include "MemoryPreferenceStore.h"
#include "windows/FensterManager.h"

namespace
{
class ManagerWorld;

class CountedManager : public CFensterManager
{
public:
    using CFensterManager::CFensterManager;

    static std::size_t Count() { return m_managerListe.size(); }
};

/// A window with its manager, which end together.
class ManagedWindow : public CWnd
{
public:
    ManagedWindow(ManagerWorld & world, CString const & name, CFensterManager::window_t type, CWnd * holder);
    ~ManagedWindow() override;

    CountedManager m_manager;
    int m_held = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    ManagerWorld & m_world;
};

/// What holds child frames.
class Holder : public tests::ScopedWindow
{
public:
    explicit Holder(ManagerWorld & world) : m_world(world) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    ManagerWorld & m_world;
};

class ManagerWorld : public chaos::Chaos
{
public:
    explicit ManagerWorld(unsigned int seed) : Chaos(seed), m_host(*this), m_others(CountedManager::Count())
    {
        CVeskBase::SetPreferenceVesk(&m_store);
    }
    ~ManagerWorld() override
    {
        while (!m_windows.empty())
            delete m_windows.back();
        CFensterManager(CFensterManager::window_main).SetNowExit(false);
        CFensterManager::SetTabbedViews(false);
        CVeskBase::SetPreferenceVesk(nullptr);
    }

    bool Lives(ManagedWindow const * window) const
    {
        return std::find(m_windows.begin(), m_windows.end(), window) != m_windows.end();
    }
    void Enter(ManagedWindow * window) { m_windows.push_back(window); }
    void Leave(ManagedWindow * window) { std::erase(m_windows, window); }

protected:
    void Operate() override;
    void CheckInvariants() override
    {
        // A manager that killed its window by name has left the list.
        EXPECT_LE(CountedManager::Count(), m_others + m_windows.size());
        for (ManagedWindow * const window : m_windows)
        {
            if (window->m_hWnd != nullptr)
            {
                EXPECT_EQ(CWnd::FromHandlePermanent(window->m_hWnd), window);
            }
        }
    }

private:
    CString Name() { return CString(L"window ") + static_cast<wchar_t>(L'a' + Pick(5)); }

    MemoryPreferenceStore m_store;
    Holder m_host;
    std::vector<ManagedWindow *> m_windows;
    std::size_t m_others;
};

ManagedWindow::ManagedWindow(ManagerWorld & world, CString const & name, CFensterManager::window_t type, CWnd * holder)
    : m_manager(name, type),
      m_world(world)
{
    m_world.Enter(this);
    ++m_held;
    m_manager.CalcMyPosition(this); // a manager that is found by its name must be bound
    bool const child = type == CFensterManager::window_mdi_child;
    CreateEx(0, AfxRegisterWndClass(0), name, (child ? WS_CHILD : WS_POPUP) | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
             CRect(20, 30, 220, 160), holder, 0);
    m_manager.CalcMyPosition(this);
    --m_held;
}

ManagedWindow::~ManagedWindow()
{
    m_world.Leave(this);
    if (m_hWnd != nullptr)
        DestroyWindow();
}

LRESULT ManagedWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    ManagerWorld & world = m_world; // this object may end
    if (message == WM_NCDESTROY || message == WM_DESTROY || message == WM_NCCREATE || !world.Lives(this))
        return CWnd::WindowProc(message, wParam, lParam);
    world.Disturb();
    if (!world.Lives(this) || m_hWnd == nullptr)
        return 0;
    LRESULT const result = CWnd::WindowProc(message, wParam, lParam);
    if (world.Lives(this))
        world.Disturb();
    return result;
}

LRESULT Holder::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    ManagerWorld & world = m_world; // this object may end
    if (message == WM_MDIDESTROY)
    {
        world.Disturb();
        ::DestroyWindow(reinterpret_cast<HWND>(wParam));
        return 0;
    }
    if (message == WM_MDIACTIVATE)
    {
        world.Disturb();
        ::SetWindowPos(reinterpret_cast<HWND>(wParam), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        return 0;
    }
    return ScopedWindow::WindowProc(message, wParam, lParam);
}

void ManagerWorld::Operate()
{
    constexpr std::size_t most = 6;
    constexpr CFensterManager::window_t types[] = {CFensterManager::window_view, CFensterManager::window_dialog,
                                                   CFensterManager::window_mdi_child, CFensterManager::window_mdi_child,
                                                   CFensterManager::window_sizable_dialog};
    if (m_windows.empty() || (m_windows.size() < most && OneIn(4)))
    {
        Note("make");
        CFensterManager::window_t const type = types[Pick(static_cast<int>(std::size(types)))];
        new ManagedWindow(*this, Name(), type, &m_host);
        return;
    }
    ManagedWindow & window = *m_windows[static_cast<std::size_t>(Pick(static_cast<int>(m_windows.size())))];
    CountedManager & manager = window.m_manager;
    switch (Pick(14))
    {
    case 0:
        Note("delete");
        if (window.m_held == 0)
            delete &window;
        break;
    case 1:
    case 2:
        Note("freeze");
        CFensterManager::ActivateTouchFreeze(OneIn(2));
        break;
    case 3:
        Note("kill");
        manager.KillThatWindow(Name());
        break;
    case 4:
        Note("close all views");
        if (OneIn(4))
            manager.CloseAllViews();
        break;
    case 5:
        Note("minimise");
        manager.MinimizeThatWindow(Name());
        break;
    case 6:
        Note("restore");
        manager.RestoreThatWindow(Name());
        break;
    case 7:
        Note("activate");
        manager.ActivateThatWindow(Name());
        break;
    case 8:
        Note("save all");
        manager.SaveAllPositions();
        break;
    case 9:
        Note("read");
        ++window.m_held; // the manager is ours to keep while it works on its own window
        if (window.m_hWnd != nullptr)
            manager.ReadMyPosition(&window);
        --window.m_held;
        break;
    case 10:
        Note("save");
        manager.CalcMyPosition(&window);
        manager.SaveMyPosition(OneIn(2));
        break;
    case 11:
        Note("flags");
        CFensterManager::SetTabbedViews(OneIn(2));
        CFensterManager::SetNurEinMonitor(OneIn(2));
        if (OneIn(4))
            manager.EraseMyPosition();
        break;
    case 12:
        Note("ask");
        manager.IsIconic(Name());
        manager.IsMaximized(Name());
        manager.AlreadyOpen(Name());
        manager.OpenInitially();
        break;
    default:
        Note("rename and size");
        manager.WhoAmI(Name());
        ::SetWindowPos(window.m_hWnd, nullptr, Pick(100), Pick(100), Pick(400), Pick(300), SWP_NOZORDER);
        break;
    }
}
} // namespace

TEST(ChaosManagers, StandAHostThatDoesItsWorst)
{
    chaos::RunAll<ManagerWorld>();
    CFensterManager::SetNurEinMonitor(true);
}
