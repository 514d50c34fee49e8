// The window manager on real windows.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "MemoryPreferenceStore.h"
#include "ScopedWindow.h"
#include "windows/FensterManager.h"

namespace
{
constexpr UINT freeze_commands[] = {SC_SIZE, SC_MOVE, SC_MINIMIZE, SC_MAXIMIZE, SC_CLOSE, SC_RESTORE};

/// Stands in for the window that holds child frames: notes what it is sent, and destroys where it is told to.
class FrameHolder : public tests::ScopedWindow
{
public:
    FrameHolder() : ScopedWindow(CRect(100, 80, 700, 580)) {}

    std::vector<std::pair<UINT, HWND>> m_received;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_MDIDESTROY || message == WM_MDIACTIVATE)
        {
            m_received.emplace_back(message, reinterpret_cast<HWND>(wParam));
            if (message == WM_MDIDESTROY)
                ::DestroyWindow(reinterpret_cast<HWND>(wParam));
            return 0;
        }
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
};

/// A child frame with its manager, as a stand-alone frame has one.
class ChildFrame : public CWnd
{
public:
    ChildFrame(CWnd & holder, CString const & name) : m_manager(name, CFensterManager::window_mdi_child)
    {
        CreateEx(0, AfxRegisterWndClass(0), name, WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CRect(20, 30, 320, 230),
                 &holder, 0);
        m_manager.CalcMyPosition(this);
    }
    ~ChildFrame() override
    {
        if (m_hWnd != nullptr)
            DestroyWindow();
    }

    CFensterManager m_manager;
};

class CountingWindow : public tests::ScopedWindow
{
public:
    using ScopedWindow::ScopedWindow;

    BOOL DestroyWindow() override
    {
        ++m_destroyed;
        return ScopedWindow::DestroyWindow();
    }
    int m_destroyed = 0;
};

/// A host's own manager: the list and the flags are the module's.
class HostManager : public CFensterManager
{
public:
    using CFensterManager::CFensterManager;

    bool Listed() { return FindeMich(this) != m_managerListe.end() && FindeDich(WhoAmI()) != m_managerListe.end(); }
    static CSize Screen() { return m_bildschirmGroesse; }
};

CRect WorkArea()
{
    CRect area;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

CRect NormalPlaceOf(CWnd const & window)
{
    WINDOWPLACEMENT placement{};
    placement.length = sizeof(placement);
    window.GetWindowPlacement(&placement);
    return placement.rcNormalPosition;
}

class WindowManagerOnWindows : public testing::Test
{
protected:
    void SetUp() override { CVeskBase::SetPreferenceVesk(&m_store); }
    void TearDown() override
    {
        CVeskBase::SetPreferenceVesk(nullptr);
        CFensterManager::SetNurEinMonitor(true);
        CFensterManager::SetTabbedViews(false);
        CFensterManager(CFensterManager::window_main).SetNowExit(false);
    }

    void Store(wchar_t const * key, CRect const & place)
    {
        m_store.LookupSetInt(key, place.top, 0);
        m_store.LookupSetInt(key, place.left, 1);
        m_store.LookupSetInt(key, place.bottom, 2);
        m_store.LookupSetInt(key, place.right, 3);
    }
    CRect Stored(wchar_t const * key)
    {
        return CRect(m_store.LookupGetInt(key, 1, -1), m_store.LookupGetInt(key, 0, -1),
                     m_store.LookupGetInt(key, 3, -1), m_store.LookupGetInt(key, 2, -1));
    }

    MemoryPreferenceStore m_store;
};
} // namespace

TEST_F(WindowManagerOnWindows, TheClassIsTheModules)
{
    CFensterManager const manager;
    EXPECT_TRUE(manager.IsKindOf(RUNTIME_CLASS(CFensterManager)));
    EXPECT_STREQ(RUNTIME_CLASS(CFensterManager)->m_lpszClassName, "CFensterManager");
    EXPECT_EQ(RUNTIME_CLASS(CFensterManager)->m_nObjectSize, static_cast<int>(sizeof(CFensterManager)));
}

TEST_F(WindowManagerOnWindows, AHostsDerivedManagerSharesTheModulesList)
{
    HostManager manager(L"Host", CFensterManager::window_main);
    CFensterManager const other(L"Other", CFensterManager::window_dialog);
    EXPECT_TRUE(manager.Listed());
    EXPECT_NE(other.AlreadyOpen(L"Host"), 0);
    EXPECT_EQ(HostManager::Screen(), WorkArea().Size());
}

TEST_F(WindowManagerOnWindows, AWindowsPlaceIsSavedAndComesBack)
{
    tests::ScopedWindow window(CRect(120, 90, 520, 390));
    CRect const place = NormalPlaceOf(window);
    CFensterManager manager(L"Main window: 1", CFensterManager::window_main);
    manager.CalcMyPosition(&window);
    EXPECT_EQ(manager.WhatsMyPosition(), place);
    manager.SaveMyPosition(false);
    EXPECT_EQ(Stored(L"Main_window-_1-Fensterpos"), place);
    EXPECT_TRUE(m_store.LookupGetBool(L"Main_window-_1-IstOffen", 0, false));
    EXPECT_EQ(m_store.LookupGetInt(L"Main_window-_1-Gestalt", 0, -1), 0);
    EXPECT_TRUE(manager.OpenInitially());

    window.MoveWindow(10, 20, 300, 200);
    EXPECT_NE(NormalPlaceOf(window), place);
    CFensterManager reading(L"Main window: 1", CFensterManager::window_main);
    reading.ReadMyPosition(&window);
    EXPECT_EQ(NormalPlaceOf(window), place);
    EXPECT_TRUE(reading.EraseMyPosition());
    EXPECT_FALSE(reading.OpenInitially());
    EXPECT_FALSE(reading.EraseMyPosition());
}

TEST_F(WindowManagerOnWindows, APlaceOffTheScreenIsMovedOntoIt)
{
    tests::ScopedWindow window(CRect(120, 90, 520, 390));
    CSize const screen = WorkArea().Size();
    Store(L"Name-Fensterpos", CRect(3000, 2000, 3400, 2300));
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.ReadMyPosition(&window);
    int const left = screen.cx - 40;
    int const top = screen.cy - 60;
    EXPECT_EQ(manager.WhatsMyPosition(), CRect(left, top, left + 400, top + 300));
    EXPECT_EQ(NormalPlaceOf(window), CRect(left, top, left + 400, top + 300));
}

TEST_F(WindowManagerOnWindows, AMaximisedWindowComesBackInItsNormalPlace)
{
    tests::ScopedWindow window(CRect(120, 90, 520, 390));
    CRect const place = NormalPlaceOf(window);
    CFensterManager manager(L"Name", CFensterManager::window_main);
    window.ShowWindow(SW_SHOWMAXIMIZED);
    manager.CalcMyPosition(&window);
    EXPECT_EQ(manager.WhatsMyStyle(), static_cast<unsigned int>(SW_SHOWMAXIMIZED));
    manager.SaveMyPosition(false);
    EXPECT_EQ(m_store.LookupGetInt(L"Name-Gestalt", 0, -1), 1);
    EXPECT_EQ(Stored(L"Name-Fensterpos"), place);

    CFensterManager reading(L"Name", CFensterManager::window_main);
    reading.ReadMyPosition(&window);
    EXPECT_FALSE(window.IsZoomed());
    EXPECT_EQ(NormalPlaceOf(window), place);
}

TEST_F(WindowManagerOnWindows, AnIconicWindowIsSavedWithItsNormalPlace)
{
    tests::ScopedWindow window(CRect(120, 90, 520, 390));
    CRect const place = NormalPlaceOf(window);
    CFensterManager manager(L"Name", CFensterManager::window_main);
    window.ShowWindow(SW_SHOWMINIMIZED);
    manager.CalcMyPosition(&window);
    manager.SaveMyPosition(false);
    EXPECT_EQ(m_store.LookupGetInt(L"Name-Gestalt", 0, -1), 2);
    EXPECT_EQ(Stored(L"Name-Fensterpos"), place);
    manager.SetMyType(CFensterManager::window_dialog);
    manager.CalcMyPosition(&window);
    manager.SaveMyPosition(false);
    EXPECT_EQ(m_store.LookupGetInt(L"Name-Gestalt", 0, -1), 0) << "a dialog is never saved as iconic";
}

TEST_F(WindowManagerOnWindows, AFixedDialogKeepsItsSize)
{
    tests::ScopedWindow window(CRect(120, 90, 520, 390), WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE);
    Store(L"Name-Fensterpos", CRect(50, 60, 950, 760));
    CFensterManager manager(L"Name", CFensterManager::window_dialog);
    manager.PreferedPosition(&window);
    manager.ReadMyPosition(&window);
    CRect outer;
    window.GetWindowRect(&outer);
    EXPECT_EQ(outer.Size(), CSize(400, 300));
    EXPECT_EQ(manager.WhatsMyPosition(), CRect(50, 60, 450, 360));
}

TEST_F(WindowManagerOnWindows, AViewStandsForItsOwner)
{
    FrameHolder frame;
    CWnd view;
    view.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &frame, 1);
    CFensterManager manager(L"Name", CFensterManager::window_view);
    manager.CalcMyPosition(&view);
    EXPECT_EQ(manager.WhatsMyPosition(), NormalPlaceOf(frame));
    Store(L"Name-Fensterpos", CRect(30, 40, 430, 340));
    manager.ReadMyPosition(&view);
    EXPECT_EQ(NormalPlaceOf(frame), CRect(30, 40, 430, 340));
    EXPECT_EQ(NormalPlaceOf(view), CRect(0, 0, 50, 50));
}

TEST_F(WindowManagerOnWindows, AChildFrameIsTestedInScreenCoordinates)
{
    FrameHolder holder;
    ChildFrame frame(holder, L"Frame");
    CPoint origin(0, 0);
    holder.ClientToScreen(&origin);
    CSize const screen = WorkArea().Size();
    // 10 pixels too far right and down on the screen, not in the holder.
    int const left = screen.cx - 30 - origin.x;
    int const top = screen.cy - 50 - origin.y;
    Store(L"Frame-Fensterpos", CRect(left, top, left + 300, top + 200));
    frame.m_manager.ReadMyPosition(&frame);
    EXPECT_EQ(frame.m_manager.WhatsMyPosition(), CRect(left - 10, top - 10, left + 290, top + 190));
}

TEST_F(WindowManagerOnWindows, ADestroyedWindowIsSavedAsNotOpen)
{
    CFensterManager manager(L"Name", CFensterManager::window_main);
    CWnd window;
    window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, CRect(10, 20, 300, 200), nullptr, 0);
    manager.CalcMyPosition(&window);
    manager.SaveMyPosition(true);
    EXPECT_FALSE(m_store.LookupGetBool(L"Name-IstOffen", 0, true)) << "closed by the user";
    manager.SetNowExit(true);
    manager.SaveMyPosition(true);
    EXPECT_TRUE(m_store.LookupGetBool(L"Name-IstOffen", 0, false)) << "closed by the application's end";
    window.DestroyWindow();
    m_store.Delete(L"Name-Fensterpos");
    manager.SaveMyPosition(true);
    EXPECT_FALSE(m_store.LookupGetBool(L"Name-IstOffen", 0, true));
    EXPECT_EQ(m_store.LookupGetInt(L"Name-Fensterpos", 0, -77), -77);
}

TEST_F(WindowManagerOnWindows, AllPositionsAreSavedAtOnce)
{
    tests::ScopedWindow one(CRect(120, 90, 520, 390));
    tests::ScopedWindow two(CRect(220, 190, 620, 490));
    CFensterManager first(L"One", CFensterManager::window_main);
    CFensterManager second(L"Two", CFensterManager::window_sizable_dialog);
    CFensterManager const unbound(L"Three", CFensterManager::window_main);
    first.CalcMyPosition(&one);
    second.CalcMyPosition(&two);
    two.MoveWindow(30, 40, 350, 250);
    unbound.SaveAllPositions();
    EXPECT_EQ(Stored(L"One-Fensterpos"), NormalPlaceOf(one));
    EXPECT_EQ(Stored(L"Two-Fensterpos"), NormalPlaceOf(two));
    EXPECT_EQ(m_store.LookupGetInt(L"Three-Gestalt", 0, -1), -1);
}

TEST_F(WindowManagerOnWindows, AChildFrameIsActivatedAndKilledThroughItsParent)
{
    FrameHolder holder;
    ChildFrame frame(holder, L"Frame");
    HWND const handle = frame.m_hWnd;
    CFensterManager asking(L"Asking", CFensterManager::window_main);
    asking.ActivateThatWindow(L"Frame");
    asking.ActivateThatWindow(L"Nobody");
    asking.KillThatWindow(L"Frame");
    EXPECT_EQ(holder.m_received,
              (std::vector<std::pair<UINT, HWND>>{{WM_MDIACTIVATE, handle}, {WM_MDIDESTROY, handle}}));
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(asking.AlreadyOpen(L"Frame"), 0);
}

TEST_F(WindowManagerOnWindows, AnyOtherWindowIsKilledByItsVirtualDestroyWindow)
{
    CountingWindow window;
    CFensterManager manager(L"Name", CFensterManager::window_dialog);
    manager.CalcMyPosition(&window);
    manager.ActivateThatWindow(L"Name");
    EXPECT_EQ(window.m_destroyed, 0);
    manager.KillThatWindow(L"Name");
    EXPECT_EQ(window.m_destroyed, 1);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(manager.AlreadyOpen(L"Name"), 0);
}

TEST_F(WindowManagerOnWindows, AWindowIsMinimisedAndRestoredByName)
{
    tests::ScopedWindow window;
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.CalcMyPosition(&window);
    manager.MinimizeThatWindow(L"Name");
    EXPECT_TRUE(window.IsIconic());
    EXPECT_NE(manager.IsIconic(L"Name"), 0);
    EXPECT_EQ(manager.IsMaximized(L"Name"), 0);
    manager.RestoreThatWindow(L"Name");
    EXPECT_FALSE(window.IsIconic());
    EXPECT_EQ(manager.IsIconic(L"Name"), 0);
    window.ShowWindow(SW_SHOWMAXIMIZED);
    EXPECT_NE(manager.IsMaximized(L"Name"), 0);
    manager.RestoreThatWindow(L"Name");
    EXPECT_EQ(manager.IsMaximized(L"Name"), 0);
}

TEST_F(WindowManagerOnWindows, CloseAllViewsDestroysTheChildFramesAlone)
{
    FrameHolder holder;
    ChildFrame first(holder, L"First");
    ChildFrame second(holder, L"Second");
    CFensterManager other(L"Other", CFensterManager::window_main);
    other.CalcMyPosition(&holder);
    other.CloseAllViews();
    EXPECT_EQ(holder.m_received.size(), 2U);
    EXPECT_EQ(first.m_hWnd, nullptr);
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_TRUE(::IsWindow(holder.m_hWnd));
}

TEST_F(WindowManagerOnWindows, TouchFreezeGreysMenusAndTakesTheBoxesOfChildFrames)
{
    FrameHolder holder;
    ChildFrame frame(holder, L"Frame");
    CFensterManager main(L"Main", CFensterManager::window_main);
    main.CalcMyPosition(&holder);
    auto const states = [](CWnd & window) {
        std::vector<UINT> result;
        for (UINT const command : freeze_commands)
            result.push_back(::GetMenuState(::GetSystemMenu(window.m_hWnd, FALSE), command, MF_BYCOMMAND) & 3);
        return result;
    };
    constexpr DWORD boxes = WS_MINIMIZEBOX | WS_MAXIMIZEBOX;

    CFensterManager::ActivateTouchFreeze(true);
    EXPECT_EQ(states(holder), std::vector<UINT>(6, MF_GRAYED | MF_DISABLED));
    EXPECT_EQ(states(frame), std::vector<UINT>(6, MF_GRAYED | MF_DISABLED));
    EXPECT_EQ(frame.GetStyle() & boxes, 0U);
    EXPECT_EQ(holder.GetStyle() & boxes, boxes);

    CFensterManager::ActivateTouchFreeze(false);
    EXPECT_EQ(states(holder), std::vector<UINT>(6, MF_ENABLED));
    EXPECT_EQ(states(frame), std::vector<UINT>(6, MF_ENABLED));
    EXPECT_EQ(frame.GetStyle() & boxes, boxes);
}

TEST_F(WindowManagerOnWindows, TouchFreezeSkipsWindowsThatHaveEnded)
{
    FrameHolder holder;
    ChildFrame frame(holder, L"Frame");
    CFensterManager const unbound(L"Unbound", CFensterManager::window_mdi_child);
    frame.DestroyWindow();
    CFensterManager::ActivateTouchFreeze(true);
    CFensterManager::ActivateTouchFreeze(false);
    EXPECT_TRUE(holder.m_received.empty());
}

TEST_F(WindowManagerOnWindows, WithoutAStoreNothingIsMoved)
{
    CVeskBase::SetPreferenceVesk(nullptr);
    tests::ScopedWindow window(CRect(120, 90, 520, 390));
    CRect const place = NormalPlaceOf(window);
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.ReadMyPosition(&window);
    EXPECT_EQ(NormalPlaceOf(window), place);
    EXPECT_FALSE(manager.EraseMyPosition());
    EXPECT_FALSE(manager.OpenInitially());
}
