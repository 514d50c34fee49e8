// What a window manager reads back and applies, and how it moves a window onto the screen.

#include <climits>

#include "windows_ManagerTest.h"

namespace
{
using namespace manager_tests;

class WindowManagerRead : public ManagerTest
{
protected:
    /// The applied placement of a window whose manager has read the store.
    WINDOWPLACEMENT Read(CFensterManager::window_t type)
    {
        FakeWindow & window = m_platform.Add("window");
        FakeWindow & owner = m_platform.Add("owner");
        window.owner = &owner;
        CFensterManager manager(L"Name", type);
        manager.ReadMyPosition(window.Object());
        return type == CFensterManager::window_view ? owner.placement : window.placement;
    }

    void Store(int left, int top, int right, int bottom)
    {
        m_store.values[{L"Name-Fensterpos", 0}] = top;
        m_store.values[{L"Name-Fensterpos", 1}] = left;
        m_store.values[{L"Name-Fensterpos", 2}] = bottom;
        m_store.values[{L"Name-Fensterpos", 3}] = right;
    }

    RecordingStore m_store;
};
} // namespace

TEST_F(WindowManagerRead, AnEmptyStoreGivesTheDefaults)
{
    for (CFensterManager::window_t const type : all_types)
    {
        WINDOWPLACEMENT const placement = Read(type);
        bool const view = type == CFensterManager::window_view;
        EXPECT_EQ(placement.length, 44U);
        EXPECT_EQ(placement.showCmd, 1U);
        EXPECT_EQ(placement.flags, 0U);
        EXPECT_EQ(Sides(placement.rcNormalPosition), Numbers(0, 0, 500, 350)) << type;
        EXPECT_EQ(placement.ptMinPosition.x, -1);
        EXPECT_EQ(placement.ptMinPosition.y, -1);
        EXPECT_EQ(placement.ptMaxPosition.x, view ? -4 : 0);
        EXPECT_EQ(placement.ptMaxPosition.y, view ? -23 : 0);
    }
}

TEST_F(WindowManagerRead, ReadsItsKeysInOrder)
{
    Read(CFensterManager::window_main);
    EXPECT_EQ(m_store.calls,
              (Calls{"get Name-Gestalt[0]", "get Name-Fensterpos[0]", "get Name-Fensterpos[1]",
                     "get Name-Fensterpos[2]", "get Name-Fensterpos[3]", "get Name-FensterposMM[0]",
                     "get Name-FensterposMM[1]", "get Name-FensterposMM[2]", "get Name-FensterposMM[3]"}));
}

TEST_F(WindowManagerRead, StoredValuesComeBackForEachType)
{
    Store(101, 102, 603, 404);
    for (int index = 0; index < 4; ++index)
        m_store.values[{L"Name-FensterposMM", index}] = 70 + index;
    for (CFensterManager::window_t const type : all_types)
    {
        WINDOWPLACEMENT const placement = Read(type);
        if (type == CFensterManager::window_dialog)
            EXPECT_EQ(Sides(placement.rcNormalPosition), Numbers(101, 102, 601, 452)) << "its designed size";
        else
            EXPECT_EQ(Sides(placement.rcNormalPosition), Numbers(101, 102, 603, 404)) << type;
        EXPECT_EQ(placement.ptMinPosition.x, 70);
        EXPECT_EQ(placement.ptMinPosition.y, 71);
        EXPECT_EQ(placement.ptMaxPosition.x, 72);
        EXPECT_EQ(placement.ptMaxPosition.y, 73);
    }
}

TEST_F(WindowManagerRead, AnIconicWindowSetsItsMinimisedPosition)
{
    struct Case
    {
        int shape;
        unsigned int flags;
    };
    for (Case const & one : {Case{0, 0}, {1, 0}, {2, 1}, {3, 0}})
    {
        m_store.values[{L"Name-Gestalt", 0}] = one.shape;
        for (CFensterManager::window_t const type : all_types)
        {
            WINDOWPLACEMENT const placement = Read(type);
            bool const dialog = type == CFensterManager::window_dialog;
            EXPECT_EQ(placement.flags, dialog ? 0 : one.flags) << type << one.shape;
            EXPECT_EQ(placement.showCmd, 1U) << "reading leaves the show command alone";
        }
    }
}

TEST_F(WindowManagerRead, TheShowCommandStaysAsItWasSet)
{
    FakeWindow & window = m_platform.Add("window");
    m_store.values[{L"Name-Gestalt", 0}] = 1;
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.SetShowMode(0);
    manager.ReadMyPosition(window.Object());
    EXPECT_EQ(window.placement.showCmd, 0U);
    manager.SetShowMode(3);
    manager.ReadMyPosition(window.Object());
    EXPECT_EQ(window.placement.showCmd, 3U);
}

TEST_F(WindowManagerRead, APositionBeyondTheWorkAreaIsMovedBack)
{
    Store(3000, 2000, 3800, 2600);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(1880, 1020, 2680, 1620));
    EXPECT_EQ(Sides(Read(CFensterManager::window_sizable_dialog).rcNormalPosition), Numbers(1880, 1020, 2680, 1620));
    EXPECT_EQ(Sides(Read(CFensterManager::window_dialog).rcNormalPosition), Numbers(1880, 1020, 2380, 1370));
}

TEST_F(WindowManagerRead, APositionLeftOfTheScreenIsMovedIn)
{
    Store(-500, 100, 10, 400);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(-450, 100, 60, 400));
}

TEST_F(WindowManagerRead, APositionAboveTheScreenIsMovedDown)
{
    Store(100, -70, 400, 200);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(100, 0, 400, 270));
}

TEST_F(WindowManagerRead, PositionsAtTheLimitsStay)
{
    for (auto const & [left, top, right, bottom] :
         {CRect(-440, 0, 60, 350), CRect(1880, 1020, 2380, 1370), CRect(0, 0, 5000, 4000)})
    {
        Store(left, top, right, bottom);
        EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(left, top, right, bottom));
    }
    Store(-441, -1, 59, 349);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(-440, 0, 60, 350));
    Store(1881, 1021, 2381, 1371);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(1880, 1020, 2380, 1370));
}

// Both horizontal comparisons see the stored values: right 10 adds 50, left 3000 takes 1120.
TEST_F(WindowManagerRead, NoComparisonSeesAValueAlreadyShifted)
{
    Store(3000, 100, 10, 400);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(1930, 100, -1060, 400));
}

TEST_F(WindowManagerRead, TheRangeTestOfAFixedDialogSeesTheStoredRight)
{
    Store(-500, 100, 10, 400);
    // Its own right would be 0 and ask for 60; the stored 10 asks for 50.
    EXPECT_EQ(Sides(Read(CFensterManager::window_dialog).rcNormalPosition), Numbers(-450, 100, 50, 450));
    Store(-500, 100, 60, 400);
    EXPECT_EQ(Sides(Read(CFensterManager::window_dialog).rcNormalPosition), Numbers(-500, 100, 0, 450));
}

TEST_F(WindowManagerRead, WithoutTheRangeTestAnyPositionPasses)
{
    CFensterManager::SetNurEinMonitor(false);
    EXPECT_FALSE(CFensterManager::NurEinMonitor());
    Store(-3000, -2000, -2500, -1600);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(-3000, -2000, -2500, -1600));
    EXPECT_EQ(Sides(Read(CFensterManager::window_mdi_child).rcNormalPosition), Numbers(-3000, -2000, -2500, -1600));
}

TEST_F(WindowManagerRead, ViewsAndChildFramesAreTestedInScreenCoordinates)
{
    for (CFensterManager::window_t const type : all_types)
    {
        FakeWindow & window = m_platform.Add("window");
        FakeWindow & owner = m_platform.Add("owner");
        window.owner = &owner;
        window.clientOrigin = {5000, 5000};
        owner.clientOrigin = {400, 300};
        Store(1500, 740, 1900, 1000);
        CFensterManager manager(L"Name", type);
        m_platform.calls.clear();
        manager.ReadMyPosition(window.Object());
        bool const converted = type == CFensterManager::window_view || type == CFensterManager::window_mdi_child;
        if (converted)
        {
            // 1900 and 1040 on the screen: 20 too far right and down. The record keeps its own coordinates.
            EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(1480, 720, 1880, 980)) << type;
            EXPECT_EQ(m_platform.calls.front(), "ClientToScreen owner");
        }
        else
        {
            int const right = type == CFensterManager::window_dialog ? 2000 : 1900;
            int const bottom = type == CFensterManager::window_dialog ? 1090 : 1000;
            EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(1500, 740, right, bottom)) << type;
            EXPECT_EQ(m_platform.calls, (Calls{"SetPlacement window"}));
        }
    }
}

TEST_F(WindowManagerRead, AChildFrameWithoutOwnerIsConvertedByItself)
{
    FakeWindow & window = m_platform.Add("window");
    window.clientOrigin = {400, 300};
    Store(1500, 740, 1900, 1000);
    CFensterManager manager(L"Name", CFensterManager::window_mdi_child);
    manager.ReadMyPosition(window.Object());
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(1480, 720, 1880, 980));
    EXPECT_EQ(m_platform.calls, (Calls{"ClientToScreen window", "SetPlacement window"}));
}

TEST_F(WindowManagerRead, AViewIsAppliedToItsOwnerAndWithoutOneToNothing)
{
    FakeWindow & view = m_platform.Add("view");
    FakeWindow & frame = m_platform.Add("frame");
    view.owner = &frame;
    CFensterManager manager(L"Name", CFensterManager::window_view);
    manager.ReadMyPosition(view.Object());
    EXPECT_EQ(m_platform.calls, (Calls{"ClientToScreen frame", "SetPlacement frame"}));
    view.owner = nullptr;
    m_platform.calls.clear();
    manager.ReadMyPosition(view.Object());
    EXPECT_EQ(m_platform.calls, (Calls{"ClientToScreen view"}));
}

TEST_F(WindowManagerRead, ANullOrDeadWindowIsReadButNotApplied)
{
    Store(101, 102, 603, 404);
    FakeWindow & dead = m_platform.Add("dead");
    dead.alive = false;
    for (CFensterManager::window_t const type : all_types)
    {
        CFensterManager manager(L"Name", type);
        manager.ReadMyPosition(nullptr);
        EXPECT_EQ(manager.WhatsMyPosition().left, 101);
        manager.SaveMyPosition(false);
    }
    EXPECT_TRUE(m_platform.calls.empty());
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.ReadMyPosition(dead.Object());
    EXPECT_EQ(manager.WhatsMyPosition().left, 101);
    EXPECT_TRUE(m_platform.calls.empty());
    m_store.calls.clear();
    manager.SaveMyPosition(false);
    EXPECT_EQ(m_store.calls, (Calls{"set Name-IstOffen[0]=false"})) << "it is bound";
}

TEST_F(WindowManagerRead, TheScreenIsTheOneOfTheLastMeasurement)
{
    Store(3000, 100, 3400, 400);
    CFensterManager const keepsTheListFilled(CFensterManager::window_dialog);
    m_platform.workArea = CRect(100, 50, 900, 650); // 800 by 600
    EXPECT_EQ(Sides(Read(CFensterManager::window_mdi_child).rcNormalPosition), Numbers(1880, 100, 2280, 400));
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(760, 100, 1160, 400));
    EXPECT_EQ(Sides(Read(CFensterManager::window_mdi_child).rcNormalPosition), Numbers(760, 100, 1160, 400));
}

TEST_F(WindowManagerRead, ExtremeStoredValuesWrapAround)
{
    Store(INT_MIN, INT_MIN, INT_MIN, INT_MIN);
    WINDOWPLACEMENT const placement = Read(CFensterManager::window_main);
    // Right: 60 - INT_MIN wraps to INT_MIN + 60. Left: INT_MIN - 1920 + 40 wraps to INT_MAX - 1879, which is positive.
    EXPECT_EQ(placement.rcNormalPosition.right, 60 - (INT_MAX - 1879));
    Store(INT_MAX, INT_MAX, INT_MAX, INT_MAX);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(1880, 1020, 1880, 1020));
}

TEST_F(WindowManagerRead, WithinReachIsOnlyBroughtWhatTheHostAsksFor)
{
    CFensterManager::SetNurEinMonitor(false);
    EXPECT_FALSE(CFensterManager::KeepsWithinReach());
    Store(5000, 100, 5800, 700);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(5000, 100, 5800, 700));
    EXPECT_EQ(m_platform.screenReads, 0);
    for (std::string const & call : m_store.calls)
        EXPECT_EQ(call.find("Bildschirme"), std::string::npos) << call;
}

TEST_F(WindowManagerRead, WithinReachOfAScreenThatIsGone)
{
    CFensterManager::SetNurEinMonitor(false);
    CFensterManager::KeepWithinReach(true);
    Store(5000, 100, 5800, 700);
    for (CFensterManager::window_t const type :
         {CFensterManager::window_main, CFensterManager::window_view, CFensterManager::window_sizable_dialog})
    {
        EXPECT_EQ(Sides(Read(type).rcNormalPosition), Numbers(1120, 100, 1920, 700)) << type;
    }
    // The size that it was designed with.
    EXPECT_EQ(Sides(Read(CFensterManager::window_dialog).rcNormalPosition), Numbers(1420, 100, 1920, 450));
}

TEST_F(WindowManagerRead, WithinReachComesNoChildWindow)
{
    CFensterManager::SetNurEinMonitor(false);
    CFensterManager::KeepWithinReach(true);
    Store(5000, 100, 5800, 700);
    FakeWindow & window = m_platform.Add("child");
    window.style = WS_CHILD;
    CFensterManager manager(L"Name", CFensterManager::window_mdi_child);
    manager.ReadMyPosition(window.Object());
    EXPECT_EQ(Sides(window.placement.rcNormalPosition), Numbers(5000, 100, 5800, 700));
}

TEST_F(WindowManagerRead, WithinReachCountsFromTheWorkArea)
{
    CFensterManager::SetNurEinMonitor(false);
    CFensterManager::KeepWithinReach(true);
    m_platform.screens = {{CRect(50, 40, 1920, 1080), 96}};
    m_platform.placementOrigin = CPoint(50, 40);
    Store(0, 0, 800, 600);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(0, 0, 800, 600));
    Store(-10, -10, 790, 590);
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(0, 0, 800, 600));
}

TEST_F(WindowManagerRead, WithinReachTheScreensAndTheirResolutionAreKeptAlong)
{
    CFensterManager::SetNurEinMonitor(false);
    CFensterManager::KeepWithinReach(true);
    m_platform.screens = {{CRect(0, 0, 1920, 1080), 96}, {CRect(1920, 0, 3840, 1080), 144}};
    FakeWindow & window = m_platform.Add("window");
    window.placement.rcNormalPosition = {1000, 100, 3800, 900};
    {
        CFensterManager manager(L"Name", CFensterManager::window_main);
        manager.CalcMyPosition(window.Object());
        manager.SaveMyPosition(false);
    }
    EXPECT_EQ((m_store.values[{L"Name-Bildschirme", 0}]), FingerprintOf(m_platform.screens));
    EXPECT_EQ((m_store.values[{L"Name-Bildschirme", 1}]), 144);
    // On the same screens it may be larger than one of them.
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(1000, 100, 3800, 900));
    m_platform.screens.pop_back();
    EXPECT_EQ(Sides(Read(CFensterManager::window_main).rcNormalPosition), Numbers(53, 100, 1920, 633))
        << "from 144 to 96 dots an inch";
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.EraseMyPosition();
    EXPECT_EQ(m_store.values.count({L"Name-Bildschirme", 0}), 0U);
}
