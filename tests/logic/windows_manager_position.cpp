// What a window manager keeps and stores.

#include <type_traits>

#include "windows_ManagerTest.h"

namespace
{
using namespace manager_tests;

class WindowManagerRecord : public ManagerTest
{
};
class WindowManagerSave : public ManagerTest
{
};
} // namespace

TEST_F(WindowManagerRecord, HasRunTimeClassInformation)
{
    CFensterManager const manager;
    EXPECT_TRUE(manager.IsKindOf(RUNTIME_CLASS(CFensterManager)));
    EXPECT_TRUE(manager.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_STREQ(manager.GetRuntimeClass()->m_lpszClassName, "CFensterManager");
    EXPECT_TRUE((std::is_base_of_v<CObject, CFensterManager>));
}

TEST_F(WindowManagerRecord, TypesHaveTheirNumbers)
{
    EXPECT_EQ(CFensterManager::window_main, 0);
    EXPECT_EQ(CFensterManager::window_view, 1);
    EXPECT_EQ(CFensterManager::window_dialog, 2);
    EXPECT_EQ(CFensterManager::window_mdi_child, 3);
    EXPECT_EQ(CFensterManager::window_sizable_dialog, 4);
    for (CFensterManager::window_t const type : all_types)
    {
        EXPECT_EQ(CFensterManager(type).WhatsMyType(), type);
        EXPECT_EQ(CFensterManager(L"Name", type).WhatsMyType(), type);
    }
}

TEST_F(WindowManagerRecord, StartsWithItsDefaults)
{
    CFensterManager manager;
    EXPECT_EQ(manager.WhoAmI(), CString());
    EXPECT_EQ(manager.WhatsMyType(), 1);
    EXPECT_EQ(manager.WhatsMyStyle(), 1U);
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(0, 0, 0, 0));
    EXPECT_FALSE(CFensterManager::NowExit());
    EXPECT_TRUE(CFensterManager::NurEinMonitor());
    EXPECT_FALSE(CFensterManager::TabbedViews());
}

TEST_F(WindowManagerRecord, NameTypeAndShowModeAreSet)
{
    CFensterManager manager(L"First", CFensterManager::window_dialog);
    EXPECT_EQ(manager.WhoAmI(), CString(L"First"));
    manager.WhoAmI(L"Second");
    EXPECT_EQ(manager.WhoAmI(), CString(L"Second"));
    manager.SetMyType(CFensterManager::window_main);
    EXPECT_EQ(manager.WhatsMyType(), 0);
    manager.SetShowMode(3);
    EXPECT_EQ(manager.WhatsMyStyle(), 3U);
}

TEST_F(WindowManagerRecord, OnlyTheMainWindowSetsTheExitFlag)
{
    for (CFensterManager::window_t const type : all_types)
    {
        CFensterManager manager(L"Name", type);
        manager.SetNowExit(true);
        EXPECT_EQ(CFensterManager::NowExit(), type == CFensterManager::window_main) << type;
        CFensterManager(CFensterManager::window_main).SetNowExit(false);
    }
    CFensterManager(CFensterManager::window_main).SetNowExit(true);
    CFensterManager(CFensterManager::window_dialog).SetNowExit(false);
    EXPECT_TRUE(CFensterManager::NowExit());
}

TEST_F(WindowManagerRecord, TheScreenIsMeasuredByTheFirstManagerAndByEachMainWindow)
{
    CFensterManager const first(CFensterManager::window_dialog);
    EXPECT_EQ(m_platform.workAreaReads, 1);
    CFensterManager const second(CFensterManager::window_mdi_child);
    EXPECT_EQ(m_platform.workAreaReads, 1);
    CFensterManager const main(CFensterManager::window_main);
    EXPECT_EQ(m_platform.workAreaReads, 2);
    CFensterManager const named(L"Main", CFensterManager::window_main);
    EXPECT_EQ(m_platform.workAreaReads, 3);
}

TEST_F(WindowManagerRecord, CalcTakesThePlacementAndItsShowCommand)
{
    FakeWindow & window = AddPlaced("window");
    window.placement.showCmd = 3;
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.CalcMyPosition(window.Object());
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(101, 102, 603, 404));
    EXPECT_EQ(manager.WhatsMyStyle(), 3U);
}

TEST_F(WindowManagerRecord, CalcOfAViewTakesItsOwnersPlacement)
{
    FakeWindow & view = AddPlaced("view");
    FakeWindow & frame = AddPlaced("frame");
    frame.placement.rcNormalPosition = {1, 2, 3, 4};
    view.owner = &frame;
    CFensterManager manager(L"Name", CFensterManager::window_view);
    manager.CalcMyPosition(view.Object());
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(1, 2, 3, 4));
    view.owner = nullptr;
    manager.CalcMyPosition(view.Object());
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(1, 2, 3, 4));
}

TEST_F(WindowManagerRecord, CalcOfANullOrDeadWindowBindsOnly)
{
    RecordingStore store;
    FakeWindow & window = AddPlaced("window");
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.CalcMyPosition(window.Object());
    window.alive = false;
    window.placement.rcNormalPosition = {9, 9, 9, 9};
    manager.CalcMyPosition(window.Object());
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(101, 102, 603, 404));
    manager.CalcMyPosition(nullptr);
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(101, 102, 603, 404));
    manager.SaveMyPosition(false);
    EXPECT_TRUE(store.calls.empty()) << "unbound again";
}

TEST_F(WindowManagerRecord, ThePreferredPositionIsReadWhereTheStoreIsEmpty)
{
    RecordingStore store;
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.PreferedPosition(CRect(10, 20, 300, 400));
    manager.ReadMyPosition(nullptr);
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(10, 20, 300, 400));
    manager.PreferedPosition(11, 21, 301, 401);
    manager.ReadMyPosition(nullptr);
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(11, 21, 301, 401));
    manager.PreferedPosition(AddPlaced("window").Object());
    manager.ReadMyPosition(nullptr);
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(101, 102, 603, 404));
}

TEST_F(WindowManagerSave, WritesFlagShapeAndGeometryInOrder)
{
    RecordingStore store;
    FakeWindow & window = AddPlaced("window");
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.CalcMyPosition(window.Object());
    manager.SaveMyPosition(false);
    EXPECT_EQ(store.calls,
              (Calls{"set Name-IstOffen[0]=true", "set Name-Gestalt[0]=0", "set Name-Fensterpos[0]=102",
                     "set Name-Fensterpos[1]=101", "set Name-Fensterpos[2]=404", "set Name-Fensterpos[3]=603",
                     "set Name-FensterposMM[0]=-32000", "set Name-FensterposMM[1]=-31000",
                     "set Name-FensterposMM[2]=-8", "set Name-FensterposMM[3]=-9"}));
}

TEST_F(WindowManagerSave, TheRecordIsWrittenAsItStands)
{
    RecordingStore store;
    FakeWindow & window = AddPlaced("window");
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.CalcMyPosition(window.Object());
    window.placement.rcNormalPosition = {9, 9, 9, 9};
    window.zoomed = true;
    manager.SaveMyPosition(false);
    EXPECT_EQ((store.values[{L"Name-Fensterpos", 1}]), 101);
    EXPECT_EQ((store.values[{L"Name-Gestalt", 0}]), 0);
}

TEST_F(WindowManagerSave, AClosingWindowCountsAsOpenOnlyAtExit)
{
    RecordingStore store;
    FakeWindow & window = AddPlaced("window");
    CFensterManager main(L"Main", CFensterManager::window_main);
    CFensterManager manager(L"Name", CFensterManager::window_dialog);
    manager.CalcMyPosition(window.Object());
    struct Case
    {
        bool exit, closing, open;
    };
    for (Case const & one : {Case{false, false, true}, {false, true, false}, {true, false, true}, {true, true, true}})
    {
        main.SetNowExit(one.exit);
        manager.SaveMyPosition(one.closing);
        EXPECT_EQ((store.values[{L"Name-IstOffen", 0}]), one.open ? 1 : 0) << one.exit << one.closing;
    }
}

TEST_F(WindowManagerSave, AnUnboundManagerWritesNothing)
{
    RecordingStore store;
    CFensterManager const manager(L"Name", CFensterManager::window_main);
    manager.SaveMyPosition(false);
    manager.SaveMyPosition(true);
    EXPECT_TRUE(store.calls.empty());
}

TEST_F(WindowManagerSave, ADestroyedWindowIsWrittenAsNotOpenAndNothingElse)
{
    RecordingStore store;
    FakeWindow & window = AddPlaced("window");
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.CalcMyPosition(window.Object());
    manager.SetNowExit(true);
    window.alive = false;
    manager.SaveMyPosition(false);
    EXPECT_EQ(store.calls, (Calls{"set Name-IstOffen[0]=false"}));
    store.calls.clear();
    manager.SaveMyPosition(true);
    EXPECT_EQ(store.calls, (Calls{"set Name-IstOffen[0]=false"}));
}

TEST_F(WindowManagerSave, ShapeIsWrittenForEachTypeAndZoomedWins)
{
    struct Case
    {
        bool iconic, zoomed;
        int shape;
    };
    for (Case const & one : {Case{false, false, 0}, {false, true, 1}, {true, false, 2}, {true, true, 1}})
    {
        for (CFensterManager::window_t const type : all_types)
        {
            RecordingStore store;
            FakeWindow & window = AddPlaced("window");
            window.iconic = one.iconic;
            window.zoomed = one.zoomed;
            window.owner = &window;
            CFensterManager manager(L"Name", type);
            manager.CalcMyPosition(window.Object());
            manager.SaveMyPosition(false);
            bool const dialog =
                type == CFensterManager::window_dialog || type == CFensterManager::window_sizable_dialog;
            EXPECT_EQ((store.values[{L"Name-Gestalt", 0}]), dialog ? 0 : one.shape) << type;
        }
    }
}

TEST_F(WindowManagerSave, TabbedViewsKeepTheGeometryOfViewsAndChildFrames)
{
    CFensterManager::SetTabbedViews(true);
    EXPECT_TRUE(CFensterManager::TabbedViews());
    for (CFensterManager::window_t const type : all_types)
    {
        RecordingStore store;
        FakeWindow & window = AddPlaced("window");
        window.owner = &window;
        CFensterManager manager(L"Name", type);
        manager.CalcMyPosition(window.Object());
        manager.SaveMyPosition(false);
        bool const tabbed = type == CFensterManager::window_view || type == CFensterManager::window_mdi_child;
        EXPECT_EQ(store.calls.size(), tabbed ? 2U : 10U) << type;
        EXPECT_EQ(store.calls[0], "set Name-IstOffen[0]=true");
        EXPECT_EQ(store.calls[1], "set Name-Gestalt[0]=0");
    }
}

TEST_F(WindowManagerSave, BlanksAndColonsOfTheNameAreReplacedInTheKeys)
{
    RecordingStore store;
    FakeWindow & window = AddPlaced("window");
    CFensterManager manager(L"Scope 1: left  view-a_b", CFensterManager::window_main);
    manager.CalcMyPosition(window.Object());
    manager.SaveMyPosition(false);
    EXPECT_EQ(store.calls[0], "set Scope_1-_left__view-a_b-IstOffen[0]=true");
    EXPECT_EQ(store.calls[1], "set Scope_1-_left__view-a_b-Gestalt[0]=0");
    EXPECT_EQ(store.calls[2], "set Scope_1-_left__view-a_b-Fensterpos[0]=102");
    EXPECT_EQ(store.calls[6], "set Scope_1-_left__view-a_b-FensterposMM[0]=-32000");
    EXPECT_TRUE(CFensterManager::OpenInitially(L"Scope 1: left  view-a_b"));
    EXPECT_NE(manager.AlreadyOpen(L"Scope 1: left  view-a_b"), 0);
    EXPECT_EQ(manager.AlreadyOpen(L"Scope_1-_left__view-a_b"), 0);
    EXPECT_EQ(manager.WhoAmI(), CString(L"Scope 1: left  view-a_b"));
    manager.WhoAmI(L"B");
    store.calls.clear();
    manager.SaveMyPosition(false);
    EXPECT_EQ(store.calls[0], "set B-IstOffen[0]=true") << "the keys change with the name";
}

TEST_F(WindowManagerSave, SaveAllTakesEveryBoundWindowsPresentPlace)
{
    RecordingStore store;
    FakeWindow & one = AddPlaced("one");
    FakeWindow & dead = AddPlaced("dead");
    CFensterManager const unbound(L"Unbound", CFensterManager::window_main);
    CFensterManager oneManager(L"One", CFensterManager::window_main);
    CFensterManager deadManager(L"Dead", CFensterManager::window_main);
    oneManager.CalcMyPosition(one.Object());
    deadManager.CalcMyPosition(dead.Object());
    dead.alive = false;
    one.placement.rcNormalPosition = {1, 2, 3, 4};
    one.iconic = true;
    unbound.SaveAllPositions();
    EXPECT_EQ((store.values[{L"One-Fensterpos", 0}]), 2);
    EXPECT_EQ((store.values[{L"One-Fensterpos", 3}]), 3);
    EXPECT_EQ((store.values[{L"One-Gestalt", 0}]), 2);
    EXPECT_EQ((store.values[{L"One-IstOffen", 0}]), 1);
    EXPECT_EQ((store.values[{L"Dead-IstOffen", 0}]), 0);
    EXPECT_EQ(store.calls.size(), 11U) << "ten of the living window, one of the dead, none of the unbound";
}

TEST_F(WindowManagerSave, WithoutAStoreNothingHappens)
{
    FakeWindow & window = AddPlaced("window");
    FakeWindow & other = AddPlaced("other");
    CFensterManager manager(L"Name", CFensterManager::window_main);
    manager.CalcMyPosition(window.Object());
    manager.SaveMyPosition(false);
    EXPECT_FALSE(manager.EraseMyPosition());
    EXPECT_FALSE(manager.OpenInitially());
    EXPECT_FALSE(CFensterManager::OpenInitially(L"Name"));
    manager.ReadMyPosition(other.Object());
    EXPECT_TRUE(m_platform.calls.empty()) << "nothing is applied";
    EXPECT_EQ(Sides(manager.WhatsMyPosition()), Numbers(101, 102, 603, 404));

    RecordingStore store;
    other.alive = false;
    manager.SaveMyPosition(false);
    EXPECT_EQ(store.calls.size(), 10U) << "the manager is still bound to the first window";
}

TEST_F(WindowManagerSave, EraseDeletesAllFourKeysInOrder)
{
    RecordingStore store;
    FakeWindow & window = AddPlaced("window");
    CFensterManager manager(L"A name", CFensterManager::window_main);
    manager.CalcMyPosition(window.Object());
    manager.SaveMyPosition(false);
    store.calls.clear();
    EXPECT_TRUE(manager.EraseMyPosition());
    Calls const expected{"delete A_name-IstOffen", "delete A_name-Gestalt", "delete A_name-Fensterpos",
                         "delete A_name-FensterposMM"};
    EXPECT_EQ(store.calls, expected);
    EXPECT_TRUE(store.values.empty());
}

TEST_F(WindowManagerSave, EraseTriesAllFourKeysAndTellsOfAMissingOne)
{
    for (wchar_t const * const missing : {L"Name-IstOffen", L"Name-Gestalt", L"Name-Fensterpos", L"Name-FensterposMM"})
    {
        RecordingStore store;
        for (wchar_t const * const key : {L"Name-IstOffen", L"Name-Gestalt", L"Name-Fensterpos", L"Name-FensterposMM"})
        {
            if (std::wstring(key) != missing)
                store.values[{key, 0}] = 1;
        }
        CFensterManager manager(L"Name", CFensterManager::window_main);
        EXPECT_FALSE(manager.EraseMyPosition());
        EXPECT_EQ(store.calls.size(), 4U);
        EXPECT_TRUE(store.values.empty());
    }
}

TEST_F(WindowManagerSave, OpenInitiallyNeedsABindingOnlyForItsOwnWindow)
{
    RecordingStore store;
    store.values[{L"A_name-IstOffen", 0}] = 1;
    CFensterManager manager(L"A name", CFensterManager::window_main);
    EXPECT_FALSE(manager.OpenInitially());
    EXPECT_TRUE(CFensterManager::OpenInitially(L"A name"));
    EXPECT_FALSE(CFensterManager::OpenInitially(L"Another name"));
    FakeWindow & window = AddPlaced("window");
    manager.CalcMyPosition(window.Object());
    EXPECT_TRUE(manager.OpenInitially());
    store.values[{L"A_name-IstOffen", 0}] = 0;
    EXPECT_FALSE(manager.OpenInitially());
    EXPECT_FALSE(CFensterManager::OpenInitially(L"A name"));
}
