// The process's list of window managers and what is done through it.

#include <gtest/gtest.h>

#include <memory>

#include "substitutes/FakeWindowPlatform.h"
#include "substitutes/RecordingStore.h"
#include "windows/FensterManager.h"

namespace
{
using Calls = std::vector<std::string>;

/// Shows what a host's derived class may reach.
class ListedManager : public CFensterManager
{
public:
    using CFensterManager::CFensterManager;

    static std::size_t Count() { return m_managerListe.size(); }
    static bool Holds(CFensterManager * manager) { return m_managerListe.count(manager) != 0; }
    static CSize Screen() { return m_bildschirmGroesse; }
    bool FoundAs(CString const & name) const
    {
        auto const found = FindeDich(name);
        return found != m_managerListe.end() && *found == this;
    }
    bool FindsItself()
    {
        auto const found = FindeMich(this);
        return found != m_managerListe.end() && *found == this;
    }
    bool FindsNobody(CString const & name) const { return FindeDich(name) == m_managerListe.end(); }
};

class WindowManagerList : public testing::Test
{
protected:
    void SetUp() override { m_platform.Reset(); }
    void TearDown() override { m_platform.Reset(); }

    FakeWindow & Bound(CFensterManager & manager, char const * name)
    {
        FakeWindow & window = m_platform.Add(name);
        window.owner = &window;
        manager.CalcMyPosition(window.Object());
        return window;
    }

    FakeWindowPlatform & m_platform = FakeWindowPlatform::Current();
};

constexpr CFensterManager::window_t all_types[] = {CFensterManager::window_main, CFensterManager::window_view,
                                                   CFensterManager::window_dialog, CFensterManager::window_mdi_child,
                                                   CFensterManager::window_sizable_dialog};
} // namespace

TEST_F(WindowManagerList, ManagersAreListedForTheirLife)
{
    EXPECT_EQ(ListedManager::Count(), 0U);
    {
        ListedManager unnamed;
        ListedManager named(L"Name", CFensterManager::window_dialog);
        EXPECT_EQ(ListedManager::Count(), 2U);
        EXPECT_TRUE(unnamed.FindsItself());
        EXPECT_TRUE(named.FindsItself());
        EXPECT_TRUE(unnamed.FoundAs(L""));
        EXPECT_TRUE(named.FoundAs(L"Name"));
        EXPECT_TRUE(named.FindsNobody(L"Another"));
    }
    EXPECT_EQ(ListedManager::Count(), 0U);
}

TEST_F(WindowManagerList, TheScreenIsTheSizeOfTheWorkArea)
{
    m_platform.workArea = CRect(100, 50, 900, 650);
    ListedManager const manager;
    EXPECT_EQ(ListedManager::Screen().cx, 800);
    EXPECT_EQ(ListedManager::Screen().cy, 600);
}

TEST_F(WindowManagerList, NamesAreComparedExactly)
{
    CFensterManager const manager(L"Scope 1: left");
    EXPECT_NE(manager.AlreadyOpen(L"Scope 1: left"), 0);
    EXPECT_EQ(manager.AlreadyOpen(L"scope 1: left"), 0);
    EXPECT_EQ(manager.AlreadyOpen(L"Scope_1-_left"), 0);
    EXPECT_EQ(manager.AlreadyOpen(L"Scope 1: left "), 0);
    EXPECT_EQ(manager.AlreadyOpen(L""), 0);
}

TEST_F(WindowManagerList, OfTwoWithOneNameTheLowerAddressIsFound)
{
    ListedManager managers[2] = {ListedManager(L"Twin", CFensterManager::window_main),
                                 ListedManager(L"Twin", CFensterManager::window_main)};
    EXPECT_TRUE(managers[0].FoundAs(L"Twin"));
    EXPECT_FALSE(managers[1].FoundAs(L"Twin"));
    managers[0].WhoAmI(L"Renamed");
    EXPECT_TRUE(managers[1].FoundAs(L"Twin"));
}

TEST_F(WindowManagerList, KillDestroysOnlyTheFirstOfTwins)
{
    ListedManager managers[2] = {ListedManager(L"Twin", CFensterManager::window_main),
                                 ListedManager(L"Twin", CFensterManager::window_main)};
    Bound(managers[0], "first");
    Bound(managers[1], "second");
    managers[1].KillThatWindow(L"Twin");
    EXPECT_EQ(m_platform.calls, (Calls{"Destroy first"}));
    EXPECT_FALSE(managers[0].FindsItself());
    EXPECT_TRUE(managers[1].FindsItself());
    EXPECT_NE(managers[0].AlreadyOpen(L"Twin"), 0);
    managers[0].KillThatWindow(L"Twin");
    EXPECT_EQ(m_platform.calls, (Calls{"Destroy first", "Destroy second"}));
    EXPECT_EQ(managers[0].AlreadyOpen(L"Twin"), 0);
}

TEST_F(WindowManagerList, KillTakesTheManagerOutBeforeTheWindowEnds)
{
    ListedManager manager(L"Name", CFensterManager::window_dialog);
    bool listed = true;
    Bound(manager, "window").onDestroy = [&] { listed = manager.FindsItself(); };
    manager.KillThatWindow(L"Name");
    EXPECT_FALSE(listed);
}

TEST_F(WindowManagerList, KillUsesTheWayOfTheType)
{
    for (CFensterManager::window_t const type : all_types)
    {
        ListedManager manager(L"Name", type);
        Bound(manager, "window");
        m_platform.calls.clear();
        manager.KillThatWindow(L"Name");
        bool const frame = type == CFensterManager::window_mdi_child;
        EXPECT_EQ(m_platform.calls, (Calls{frame ? "DestroyMdiChild window" : "Destroy window"})) << type;
    }
}

TEST_F(WindowManagerList, AManagerMayEndWithTheWindowThatIsKilled)
{
    auto dying = std::make_unique<ListedManager>(L"Dying", CFensterManager::window_mdi_child);
    ListedManager other(L"Other", CFensterManager::window_main);
    Bound(*dying, "window").onDestroy = [&dying] { dying.reset(); };
    other.KillThatWindow(L"Dying");
    EXPECT_EQ(dying, nullptr);
    EXPECT_EQ(ListedManager::Count(), 1U);
}

TEST_F(WindowManagerList, OnlyChildFramesAreActivated)
{
    for (CFensterManager::window_t const type : all_types)
    {
        ListedManager manager(L"Name", type);
        Bound(manager, "window");
        m_platform.calls.clear();
        manager.ActivateThatWindow(L"Name");
        EXPECT_EQ(m_platform.calls,
                  type == CFensterManager::window_mdi_child ? Calls{"ActivateMdiChild window"} : Calls{})
            << type;
    }
}

TEST_F(WindowManagerList, WindowsAreMinimisedAndRestoredByName)
{
    ListedManager asking(L"Asking", CFensterManager::window_main);
    ListedManager manager(L"Name", CFensterManager::window_dialog);
    Bound(manager, "window");
    asking.MinimizeThatWindow(L"Name");
    asking.RestoreThatWindow(L"Name");
    EXPECT_EQ(m_platform.calls, (Calls{"Show window 2", "Show window 1"}));
}

TEST_F(WindowManagerList, TheStateIsToldByName)
{
    ListedManager asking(L"Asking", CFensterManager::window_main);
    ListedManager manager(L"Name", CFensterManager::window_dialog);
    FakeWindow & window = Bound(manager, "window");
    EXPECT_EQ(asking.IsIconic(L"Name"), 0);
    EXPECT_EQ(asking.IsMaximized(L"Name"), 0);
    window.iconic = true;
    EXPECT_NE(asking.IsIconic(L"Name"), 0);
    EXPECT_EQ(asking.IsMaximized(L"Name"), 0);
    window.iconic = false;
    window.zoomed = true;
    EXPECT_EQ(asking.IsIconic(L"Name"), 0);
    EXPECT_NE(asking.IsMaximized(L"Name"), 0);
}

TEST_F(WindowManagerList, AnUnknownNameDoesNothing)
{
    ListedManager manager(L"Name", CFensterManager::window_mdi_child);
    FakeWindow & window = Bound(manager, "window");
    window.iconic = true;
    window.zoomed = true;
    manager.ActivateThatWindow(L"Other");
    manager.KillThatWindow(L"Other");
    manager.MinimizeThatWindow(L"Other");
    manager.RestoreThatWindow(L"Other");
    EXPECT_EQ(manager.IsIconic(L"Other"), 0);
    EXPECT_EQ(manager.IsMaximized(L"Other"), 0);
    EXPECT_EQ(manager.AlreadyOpen(L"Other"), 0);
    EXPECT_TRUE(m_platform.calls.empty());
    EXPECT_TRUE(manager.FindsItself());
}

TEST_F(WindowManagerList, CloseAllViewsDestroysTheChildFramesAlone)
{
    std::vector<std::unique_ptr<ListedManager>> managers;
    for (CFensterManager::window_t const type : all_types)
        managers.push_back(std::make_unique<ListedManager>(L"Name", type));
    auto second = std::make_unique<ListedManager>(L"Second", CFensterManager::window_mdi_child);
    for (std::unique_ptr<ListedManager> const & manager : managers)
        Bound(*manager, "other");
    // A frame's manager ends with the frame, while the views are being closed.
    Bound(*managers[3], "frame").onDestroy = [&managers] { managers[3].reset(); };
    Bound(*second, "frame").onDestroy = [&second] { second.reset(); };
    managers[0]->CloseAllViews();
    EXPECT_EQ(m_platform.calls, (Calls{"DestroyMdiChild frame", "DestroyMdiChild frame"}));
    EXPECT_EQ(managers[3], nullptr);
    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(ListedManager::Count(), 4U);
}

TEST_F(WindowManagerList, CloseAllViewsSkipsAFrameThatEndedWithAnother)
{
    ListedManager main(L"Main", CFensterManager::window_main);
    std::unique_ptr<ListedManager> frames[2];
    for (std::unique_ptr<ListedManager> & frame : frames)
    {
        frame = std::make_unique<ListedManager>(L"Frame", CFensterManager::window_mdi_child);
        Bound(*frame, "frame").onDestroy = [&frames] {
            frames[0].reset();
            frames[1].reset();
        };
    }
    main.CloseAllViews();
    EXPECT_EQ(m_platform.calls, (Calls{"DestroyMdiChild frame"}));
    EXPECT_EQ(ListedManager::Count(), 1U);
}

TEST_F(WindowManagerList, TouchFreezeGreysTheSystemMenuInOrder)
{
    ListedManager manager(L"Name", CFensterManager::window_dialog);
    Bound(manager, "window");
    CFensterManager::ActivateTouchFreeze(true);
    EXPECT_EQ(m_platform.calls,
              (Calls{"EnableMenuItem window f000 3", "EnableMenuItem window f010 3", "EnableMenuItem window f020 3",
                     "EnableMenuItem window f030 3", "EnableMenuItem window f060 3", "EnableMenuItem window f120 3"}));
    m_platform.calls.clear();
    CFensterManager::ActivateTouchFreeze(false);
    EXPECT_EQ(m_platform.calls,
              (Calls{"EnableMenuItem window f000 0", "EnableMenuItem window f010 0", "EnableMenuItem window f020 0",
                     "EnableMenuItem window f030 0", "EnableMenuItem window f060 0", "EnableMenuItem window f120 0"}));
}

TEST_F(WindowManagerList, TouchFreezeTakesTheBoxesOfChildFramesAway)
{
    ListedManager manager(L"Name", CFensterManager::window_mdi_child);
    FakeWindow & window = Bound(manager, "frame");
    window.style = 0x54CF8000; // without the boxes: 0x54CC8000
    CFensterManager::ActivateTouchFreeze(true);
    ASSERT_EQ(m_platform.calls.size(), 9U);
    EXPECT_EQ(m_platform.calls[5], "EnableMenuItem frame f120 3");
    EXPECT_EQ(m_platform.calls[6], "Style frame");
    EXPECT_EQ(m_platform.calls[7], "SetStyle frame 54cc8000");
    EXPECT_EQ(m_platform.calls[8], "Redraw frame 441");
    CFensterManager::ActivateTouchFreeze(false);
    EXPECT_EQ(window.style, 0x54CF8000U);
}

TEST_F(WindowManagerList, ThawingGivesBothBoxesWhateverTheStyleWas)
{
    ListedManager manager(L"Name", CFensterManager::window_mdi_child);
    FakeWindow & window = Bound(manager, "frame");
    window.style = 0;
    CFensterManager::ActivateTouchFreeze(false);
    EXPECT_EQ(window.style, 0x30000U);
    EXPECT_EQ(m_platform.calls.back(), "Redraw frame 441");
    m_platform.calls.clear();
    CFensterManager::ActivateTouchFreeze(false);
    EXPECT_EQ(m_platform.calls[7], "SetStyle frame 30000") << "written back even if unchanged";
}

TEST_F(WindowManagerList, TouchFreezeSkipsWhatHasNoSystemMenu)
{
    ListedManager const unbound(L"Unbound", CFensterManager::window_mdi_child);
    ListedManager dead(L"Dead", CFensterManager::window_mdi_child);
    ListedManager bare(L"Bare", CFensterManager::window_mdi_child);
    Bound(dead, "dead").alive = false;
    Bound(bare, "bare").hasSystemMenu = false;
    CFensterManager::ActivateTouchFreeze(true);
    CFensterManager::ActivateTouchFreeze(false);
    EXPECT_TRUE(m_platform.calls.empty());
}

TEST_F(WindowManagerList, AWindowMayEndOrComeWhileTheFreezeIsToldToIt)
{
    for (char const * const moment : {"EnableMenuItem", "SetStyle", "Redraw"})
    {
        m_platform.Reset();
        std::vector<std::unique_ptr<ListedManager>> frames;
        std::unique_ptr<ListedManager> late;
        for (int count = 0; count < 4; ++count)
            frames.push_back(std::make_unique<ListedManager>(L"Frame", CFensterManager::window_mdi_child));
        for (std::unique_ptr<ListedManager> const & frame : frames)
        {
            FakeWindow & window = Bound(*frame, "frame");
            window.onChange = [&](std::string const & change) {
                if (change != moment || late != nullptr)
                    return;
                frames.clear();
                late = std::make_unique<ListedManager>(L"Late", CFensterManager::window_mdi_child);
            };
        }
        CFensterManager::ActivateTouchFreeze(true);
        EXPECT_EQ(ListedManager::Count(), 1U) << moment;
        int told = 0;
        for (std::string const & call : m_platform.calls)
            told += call.starts_with(moment) ? 1 : 0;
        EXPECT_EQ(told, 1) << moment << ": the other frames have ended";
    }
}

TEST_F(WindowManagerList, AWindowThatEndsAtTheFirstEntryIsLeftAlone)
{
    ListedManager manager(L"Frame", CFensterManager::window_mdi_child);
    FakeWindow & window = Bound(manager, "frame");
    window.onChange = [&](std::string const &) { window.alive = false; };
    CFensterManager::ActivateTouchFreeze(true);
    EXPECT_EQ(m_platform.calls, (Calls{"EnableMenuItem frame f000 3"}));
}

TEST_F(WindowManagerList, AManagerMayEndWhileAllPositionsAreSaved)
{
    /// A store whose writing runs the host's code.
    class EndingStore final : public CResourceVesk
    {
    public:
        EndingStore() { CVeskBase::SetPreferenceVesk(this); }
        ~EndingStore() override { CVeskBase::SetPreferenceVesk(nullptr); }
        CVeskEntry * CreateEntry(wchar_t const *, int) override { return nullptr; }
        lookup::result LookupSetBool(wchar_t const *, bool, std::size_t) override { return {}; }
        lookup::result LookupSetInt(wchar_t const *, int, std::size_t index) override
        {
            // At the last value that a manager writes.
            if (index == 3 && ++m_fours == 2 && m_onWritten)
                m_onWritten();
            return {};
        }
        bool LookupGetBool(wchar_t const *, std::size_t, bool fallback) override { return fallback; }
        int LookupGetInt(wchar_t const *, std::size_t, int fallback) override { return fallback; }
        int Delete(wchar_t const *) override { return 0; }

        std::function<void()> m_onWritten;
        int m_fours = 0;
    };
    EndingStore store;
    ListedManager main(L"Main", CFensterManager::window_main);
    std::vector<std::unique_ptr<ListedManager>> others;
    for (int count = 0; count < 4; ++count)
        others.push_back(std::make_unique<ListedManager>(L"Other", CFensterManager::window_dialog));
    Bound(main, "window");
    for (std::unique_ptr<ListedManager> const & other : others)
        Bound(*other, "window");
    store.m_onWritten = [&others] { others.clear(); };
    main.SaveAllPositions();
    EXPECT_EQ(ListedManager::Count(), 1U);
}
