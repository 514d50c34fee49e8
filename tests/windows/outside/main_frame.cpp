// What a main frame keeps: panes by identifier, dynamic commands, marked popups.

#include <afxpopupmenu.h>
#include <afxtoolbarmenubutton.h>

#include <cstring>
#include <memory>
#include <set>
#include <type_traits>

#include "OutsideTest.h"
#include "Pump.h"
#include "TestApp.h"

namespace outside
{
namespace
{
constexpr unsigned int base = 10742;
constexpr unsigned int parent = 7;

/// A main frame without a window: registrations alone.
class OutsideRegistry : public testing::Test
{
protected:
    void TearDown() override
    {
        if (m_frame.m_hAccelTable != nullptr)
            ::DestroyAcceleratorTable(m_frame.m_hAccelTable);
        m_frame.m_hAccelTable = nullptr;
    }

    struct Given
    {
        int id;
        CDockableViewPane * pane;
    };
    Given Register(int id = -1)
    {
        Given given{0, nullptr};
        given.id = m_frame.register_pane(given.pane, id);
        return given;
    }
    int Command(unsigned short key = 0, unsigned char flags = FVIRTKEY)
    {
        return m_frame.register_menu(
            parent, L"text", [] {}, key, flags);
    }
    void SetAccelerators(std::vector<ACCEL> entries)
    {
        m_frame.m_hAccelTable = ::CreateAcceleratorTableW(entries.data(), static_cast<int>(entries.size()));
    }
    std::vector<ACCEL> Accelerators() const
    {
        int const count = ::CopyAcceleratorTableW(m_frame.m_hAccelTable, nullptr, 0);
        std::vector<ACCEL> entries(count);
        if (count != 0)
            ::CopyAcceleratorTableW(m_frame.m_hAccelTable, entries.data(), count);
        return entries;
    }
    std::vector<int> AcceleratorCommands() const
    {
        std::vector<int> commands;
        for (ACCEL const & entry : Accelerators())
            commands.push_back(entry.cmd);
        return commands;
    }

    MainFrame m_frame;
};

/// The same with a key of its own in the registry.
class OutsideStoredPanes : public FrameTest
{
protected:
    void SetUp() override
    {
        FrameTest::SetUp();
        m_formerKey = tests::App().m_pszRegistryKey;
        m_formerProfile = tests::App().m_pszProfileName;
        tests::App().m_pszRegistryKey = _wcsdup(L"outside tests");
        tests::App().m_pszProfileName = _wcsdup(L"program");
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\outside tests");
        m_main->base_id(base);
    }
    void TearDown() override
    {
        EndMain();
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\outside tests");
        ::free(const_cast<wchar_t *>(tests::App().m_pszRegistryKey));
        ::free(const_cast<wchar_t *>(tests::App().m_pszProfileName));
        tests::App().m_pszRegistryKey = m_formerKey;
        tests::App().m_pszProfileName = m_formerProfile;
        FrameTest::TearDown();
    }
    static std::wstring Path(std::wstring const & name)
    {
        return L"Software\\outside tests\\program\\Workspace\\" + name;
    }
    static void Store(std::wstring const & name)
    {
        HKEY key = nullptr;
        ASSERT_EQ(::RegCreateKeyExW(HKEY_CURRENT_USER, (Path(name) + L"\\inner").c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                    nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        ::RegCloseKey(key);
    }
    static void StorePane(unsigned int id)
    {
        Store(L"BasePane-" + std::to_wstring(id));
        Store(L"Pane-" + std::to_wstring(id));
    }
    static bool Stored(std::wstring const & name)
    {
        HKEY key = nullptr;
        if (::RegOpenKeyExW(HKEY_CURRENT_USER, Path(name).c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
            return false;
        ::RegCloseKey(key);
        return true;
    }
    static bool PaneStored(unsigned int id)
    {
        return Stored(L"BasePane-" + std::to_wstring(id)) || Stored(L"Pane-" + std::to_wstring(id));
    }

private:
    LPCTSTR m_formerKey = nullptr;
    LPCTSTR m_formerProfile = nullptr;
};

class OutsideCommands : public FrameTest
{
};
} // namespace

// What is there at first

TEST_F(OutsideRegistry, HasItsConstants)
{
    EXPECT_EQ(CMainFrmInterface::id_base, 10742u);
    EXPECT_EQ(CMainFrmInterface::max_panes, 100u);
    EXPECT_STREQ(CMainFrmInterface::reg_workspace_settings, L"Workspace");
    EXPECT_STREQ(CMainFrmInterface::reg_entry_basepanes, L"BasePane-");
    EXPECT_STREQ(CMainFrmInterface::reg_entry_panes, L"Pane-");
    EXPECT_TRUE(std::has_virtual_destructor_v<CMainFrmInterface>);
}

TEST_F(OutsideRegistry, StartsEmpty)
{
    EXPECT_EQ(m_frame.base_id(), 0u);
    EXPECT_TRUE(m_frame.panes().empty());
    EXPECT_TRUE(m_frame.menu_elements().empty());
    EXPECT_EQ(m_frame.lookup_item(nullptr), -1);
    EXPECT_FALSE(m_frame.release_menu(0));
    m_frame.menu(0);
}

TEST_F(OutsideRegistry, BaseIsSetAndRead)
{
    m_frame.base_id(4711);
    EXPECT_EQ(m_frame.base_id(), 4711u);
}

TEST_F(OutsideRegistry, IsFoundFromTheMainFrame)
{
    CWnd * const window = &m_frame;
    EXPECT_EQ(dynamic_cast<CMainFrmInterface *>(window), static_cast<CMainFrmInterface *>(&m_frame));
}

// Panes by identifier

TEST_F(OutsideRegistry, IdentifiersRiseFromTheBase)
{
    m_frame.base_id(base);
    Given const first = Register();
    Given const second = Register();
    EXPECT_EQ(first.id, 10742);
    EXPECT_EQ(second.id, 10743);
    ASSERT_NE(first.pane, nullptr);
    EXPECT_EQ(second.pane - first.pane, 1);
    EXPECT_EQ(m_frame.panes().at(10742), first.pane);
    EXPECT_EQ(m_frame.panes().at(10743), second.pane);
    EXPECT_EQ(first.pane->GetSafeHwnd(), nullptr);
    EXPECT_EQ(first.pane->View(), nullptr);
}

TEST_F(OutsideRegistry, BaseOfZeroServesAsWell)
{
    EXPECT_EQ(Register().id, 0);
    EXPECT_EQ(Register().id, 1);
}

TEST_F(OutsideRegistry, KnownFreePaneIsGivenAgain)
{
    m_frame.base_id(base);
    Given const first = Register();
    Register();
    Given const again = Register(10742);
    EXPECT_EQ(again.id, 10742);
    EXPECT_EQ(again.pane, first.pane);
    EXPECT_EQ(m_frame.panes().size(), 2u);
}

TEST_F(OutsideRegistry, UnknownIdentifierGivesTheLowestFree)
{
    m_frame.base_id(base);
    Register();
    Given const given = Register(10799);
    EXPECT_EQ(given.id, 10743);
    EXPECT_EQ(m_frame.panes().count(10799), 0u);
}

TEST_F(OutsideRegistry, AnyNegativeIdentifierMeansNone)
{
    m_frame.base_id(base);
    EXPECT_EQ(Register(-2).id, 10742);
    EXPECT_EQ(Register(-2147483647 - 1).id, 10743);
}

TEST_F(OutsideRegistry, HundredPanesAndNoMore)
{
    m_frame.base_id(base);
    std::set<CDockableViewPane *> panes;
    for (int place = 0; place < 100; ++place)
    {
        Given const given = Register();
        ASSERT_EQ(given.id, static_cast<int>(base) + place);
        panes.insert(given.pane);
    }
    EXPECT_EQ(panes.size(), 100u);
    auto * const before = reinterpret_cast<CDockableViewPane *>(1);
    CDockableViewPane * pane = before;
    EXPECT_EQ(m_frame.register_pane(pane, -1), -1);
    EXPECT_EQ(pane, before);
    EXPECT_EQ(m_frame.panes().size(), 100u);
}

TEST_F(OutsideRegistry, FullRegistryRefusesKnownIdentifiersToo)
{
    m_frame.base_id(base);
    for (int place = 0; place < 100; ++place)
        Register();
    EXPECT_EQ(Register(10742).id, -1);
}

TEST_F(OutsideRegistry, GapIsFilledFirst)
{
    m_frame.base_id(base);
    Given const first = Register();
    m_frame.panes().emplace(base + 2, first.pane + 2);
    Given const gap = Register();
    EXPECT_EQ(gap.id, 10743);
    EXPECT_EQ(gap.pane - first.pane, 1);
    Given const behind = Register();
    EXPECT_EQ(behind.id, 10745);
    EXPECT_EQ(behind.pane - first.pane, 3);
}

TEST_F(OutsideStoredPanes, PaneInUseIsNotGivenAgain)
{
    CDockableViewPane * first = nullptr;
    int const id = m_main->register_pane(first, -1);
    ASSERT_TRUE(first->Connect(*static_cast<CView *>(RUNTIME_CLASS(PlainView)->CreateObject()), L"x"));
    CDockableViewPane * second = nullptr;
    EXPECT_EQ(m_main->register_pane(second, id), id + 1);
    EXPECT_NE(second, first);
    EXPECT_EQ(m_main->panes().size(), 2u);
}

// Panes that the workspace knows

TEST_F(OutsideStoredPanes, NothingStoredAssignsNothing)
{
    m_main->assign_panes();
    EXPECT_TRUE(m_main->panes().empty());
}

TEST_F(OutsideStoredPanes, StoredOnesTakeThePoolFromItsStart)
{
    StorePane(10745);
    StorePane(10750);
    m_main->assign_panes();
    ASSERT_EQ(m_main->panes().size(), 2u);
    CDockableViewPane * const first = m_main->panes().at(10745);
    EXPECT_EQ(m_main->panes().at(10750) - first, 1);
    CDockableViewPane * shared = nullptr;
    EXPECT_EQ(m_main->register_pane(shared, -1), 10742);
    EXPECT_EQ(shared, first); // the element of the identifier, which the assigned one has as well
}

TEST_F(OutsideStoredPanes, RangeIsAHundredFromTheBase)
{
    for (unsigned int const id : {base - 1, base, base + 99, base + 100})
        StorePane(id);
    m_main->assign_panes();
    std::vector<unsigned int> ids;
    for (auto const & entry : m_main->panes())
        ids.push_back(entry.first);
    EXPECT_EQ(ids, (std::vector<unsigned int>{base, base + 99}));
}

TEST_F(OutsideStoredPanes, FirstOfTheTwoKeysCounts)
{
    Store(L"Pane-10742");
    Store(L"BasePane-10743");
    m_main->assign_panes();
    ASSERT_EQ(m_main->panes().size(), 1u);
    EXPECT_EQ(m_main->panes().begin()->first, 10743u);
}

TEST_F(OutsideStoredPanes, WhatIsAssignedAlreadyStays)
{
    CDockableViewPane * first = nullptr;
    m_main->register_pane(first, -1);
    StorePane(10742);
    StorePane(10745);
    m_main->assign_panes();
    EXPECT_EQ(m_main->panes().at(10742), first);
    EXPECT_EQ(m_main->panes().at(10745) - first, 1);
    auto const before = m_main->panes();
    m_main->assign_panes();
    EXPECT_EQ(m_main->panes(), before);
}

TEST_F(OutsideStoredPanes, AssignedPaneIsGivenToWhoKnowsIt)
{
    StorePane(10745);
    m_main->assign_panes();
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(m_main->register_pane(pane, 10745), 10745);
    EXPECT_EQ(pane, m_main->panes().at(10745));
    EXPECT_EQ(m_main->panes().size(), 1u);
}

TEST_F(OutsideStoredPanes, OrphansAreForgotten)
{
    StorePane(10742);
    StorePane(10743);
    StorePane(10744);
    m_main->assign_panes();
    CDockableViewPane * used = nullptr;
    m_main->register_pane(used, 10743);
    ASSERT_TRUE(used->Connect(*static_cast<CView *>(RUNTIME_CLASS(PlainView)->CreateObject()), L"x"));
    StorePane(10750); // of nobody
    m_main->release_orphan_panes();
    EXPECT_FALSE(PaneStored(10742));
    EXPECT_TRUE(Stored(L"BasePane-10743"));
    EXPECT_TRUE(Stored(L"Pane-10743"));
    EXPECT_FALSE(PaneStored(10744));
    EXPECT_TRUE(Stored(L"BasePane-10750"));
    EXPECT_EQ(m_main->panes().size(), 3u);
}

TEST_F(OutsideStoredPanes, OrphanWithoutStateIsNoMatter)
{
    CDockableViewPane * pane = nullptr;
    m_main->register_pane(pane, -1);
    StorePane(10743);
    m_main->release_orphan_panes();
    EXPECT_TRUE(Stored(L"BasePane-10743"));
    EXPECT_EQ(m_main->panes().size(), 1u);
    EXPECT_TRUE(tests::App().Take().empty());
}

TEST_F(OutsideStoredPanes, OrphanWithSharedObjectIsJudgedByItsView)
{
    StorePane(10745);
    m_main->assign_panes();
    CDockableViewPane * shared = nullptr;
    ASSERT_EQ(m_main->register_pane(shared, -1), 10742);
    ASSERT_EQ(shared, m_main->panes().at(10745));
    ASSERT_TRUE(shared->Connect(*static_cast<CView *>(RUNTIME_CLASS(PlainView)->CreateObject()), L"x"));
    EXPECT_EQ(shared->GetDlgCtrlID(), 10742); // the first entry with this object
    StorePane(10742);
    m_main->release_orphan_panes();
    EXPECT_TRUE(Stored(L"BasePane-10742"));
    EXPECT_TRUE(Stored(L"BasePane-10745"));
}

TEST_F(OutsideRegistry, WithoutRegistryKeyNothingIsKnown)
{
    ASSERT_EQ(tests::App().m_pszRegistryKey, nullptr);
    m_frame.base_id(base);
    m_frame.assign_panes();
    EXPECT_TRUE(m_frame.panes().empty());
    Register();
    m_frame.release_orphan_panes();
    EXPECT_EQ(m_frame.panes().size(), 1u);
}

// Dynamic commands

TEST_F(OutsideRegistry, WithoutRangeThereAreNoCommands)
{
    EXPECT_EQ(Command(), -1);
    EXPECT_TRUE(m_frame.menu_elements().empty());
}

TEST_F(OutsideRegistry, RangeGivesIdentifiersInOrder)
{
    m_frame.menu_range(100, 103);
    EXPECT_EQ(Command(), 100);
    EXPECT_EQ(Command(), 101);
    EXPECT_EQ(Command(), 102);
    EXPECT_EQ(Command(), -1);
    EXPECT_TRUE(m_frame.release_menu(101));
    EXPECT_EQ(Command(), 101);
    EXPECT_EQ(Command(), -1);
}

TEST_F(OutsideRegistry, RefusedCommandLeavesTheAccelerators)
{
    m_frame.menu_range(100, 100);
    EXPECT_EQ(Command(VK_F5), -1);
    EXPECT_EQ(m_frame.m_hAccelTable, nullptr);
}

TEST_F(OutsideRegistry, ElementsLeadFromTheParentToTheCommand)
{
    m_frame.menu_range(100, 110);
    int called = 0;
    m_frame.register_menu(
        8, L"eight", [] {}, 0, 0);
    m_frame.register_menu(
        7, L"seven", [&] { ++called; }, 0, 0);
    m_frame.register_menu(
        8, L"eight again", [] {}, 0, 0);
    auto const & elements = m_frame.menu_elements();
    ASSERT_EQ(elements.size(), 3u);
    EXPECT_EQ(elements.count(8), 2u);
    auto const seven = elements.find(7);
    ASSERT_NE(seven, elements.end());
    EXPECT_EQ(seven->second->first, 101u);
    EXPECT_EQ(seven->second->second.second, L"seven");
    seven->second->second.first();
    EXPECT_EQ(called, 1);
    auto const eight = elements.lower_bound(8);
    EXPECT_EQ(eight->second->second.second, L"eight");
    EXPECT_EQ(std::next(eight)->second->second.second, L"eight again");
}

TEST_F(OutsideRegistry, MenuCallsTheCommand)
{
    m_frame.menu_range(100, 110);
    std::vector<int> called;
    m_frame.register_menu(
        parent, L"a", [&] { called.push_back(1); }, 0, 0);
    m_frame.register_menu(
        parent, L"b", [&] { called.push_back(2); }, 0, 0);
    m_frame.menu(101);
    m_frame.menu(100);
    m_frame.menu(101);
    m_frame.menu(102);
    m_frame.menu(0);
    EXPECT_EQ(called, (std::vector<int>{2, 1, 2}));
}

TEST_F(OutsideRegistry, CommandMayReleaseItself)
{
    m_frame.menu_range(100, 110);
    bool released = false;
    auto const big = std::make_shared<std::vector<int>>(1000, 5);
    int sum = 0;
    m_frame.register_menu(
        parent, L"a",
        [this, &released, &sum, big] {
            released = m_frame.release_menu(100);
            sum = static_cast<int>(big->size());
        },
        0, 0);
    m_frame.menu(100);
    EXPECT_TRUE(released);
    EXPECT_EQ(sum, 1000);
    EXPECT_TRUE(m_frame.menu_elements().empty());
}

TEST_F(OutsideRegistry, CommandMayDismissAll)
{
    m_frame.menu_range(100, 110);
    auto const big = std::make_shared<std::vector<int>>(1000, 5);
    int sum = 0;
    m_frame.register_menu(
        parent, L"a",
        [this, &sum, big] {
            m_frame.dismiss_menu_callbacks();
            sum = static_cast<int>(big->size());
        },
        0, 0);
    Command();
    m_frame.menu(100);
    EXPECT_EQ(sum, 1000);
    EXPECT_TRUE(m_frame.menu_elements().empty());
}

TEST_F(OutsideRegistry, ReleasedCommandIsGone)
{
    m_frame.menu_range(100, 110);
    int called = 0;
    m_frame.register_menu(
        parent, L"a", [&] { ++called; }, 0, 0);
    EXPECT_TRUE(m_frame.release_menu(100));
    EXPECT_FALSE(m_frame.release_menu(100));
    EXPECT_TRUE(m_frame.menu_elements().empty());
    m_frame.menu(100);
    EXPECT_EQ(called, 0);
}

TEST_F(OutsideRegistry, ReleaseTakesTheRightElement)
{
    m_frame.menu_range(100, 110);
    Command();
    Command();
    Command();
    m_frame.release_menu(101);
    std::vector<unsigned int> left;
    for (auto const & element : m_frame.menu_elements())
        left.push_back(element.second->first);
    EXPECT_EQ(left, (std::vector<unsigned int>{100, 102}));
}

TEST_F(OutsideRegistry, UnknownCommandIsNotReleased)
{
    m_frame.menu_range(100, 110);
    SetAccelerators({{FVIRTKEY, VK_F1, 1}});
    HACCEL const before = m_frame.m_hAccelTable;
    EXPECT_FALSE(m_frame.release_menu(100));
    EXPECT_FALSE(m_frame.release_menu(-1));
    EXPECT_EQ(m_frame.m_hAccelTable, before);
    EXPECT_EQ(Accelerators().size(), 1u);
}

// Their accelerators

TEST_F(OutsideRegistry, KeyExtendsTheTable)
{
    m_frame.menu_range(100, 110);
    SetAccelerators({{FVIRTKEY, VK_F1, 1}, {FVIRTKEY | FCONTROL, 'B', 2}});
    EXPECT_EQ(Command(VK_F5, FVIRTKEY | FSHIFT), 100);
    std::vector<ACCEL> const entries = Accelerators();
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(AcceleratorCommands(), (std::vector<int>{1, 2, 100}));
    EXPECT_EQ(entries[2].key, VK_F5);
    EXPECT_EQ(entries[2].fVirt & 0x7F, FVIRTKEY | FSHIFT);
    EXPECT_EQ(entries[1].key, 'B');
}

TEST_F(OutsideRegistry, KeyMakesATableWhereThereIsNone)
{
    m_frame.menu_range(100, 110);
    EXPECT_EQ(Command(VK_F5), 100);
    EXPECT_EQ(AcceleratorCommands(), std::vector<int>{100});
}

TEST_F(OutsideRegistry, WithoutKeyTheTableStays)
{
    m_frame.menu_range(100, 110);
    SetAccelerators({{FVIRTKEY, VK_F1, 1}});
    HACCEL const before = m_frame.m_hAccelTable;
    EXPECT_EQ(Command(0, FVIRTKEY | FCONTROL), 100);
    EXPECT_EQ(m_frame.m_hAccelTable, before);
    EXPECT_EQ(Accelerators().size(), 1u);
}

TEST_F(OutsideRegistry, ReleaseTakesTheCommandsAccelerator)
{
    m_frame.menu_range(100, 110);
    SetAccelerators({{FVIRTKEY, VK_F1, 1}});
    Command(VK_F5);
    Command(VK_F6);
    Command(VK_F7);
    EXPECT_TRUE(m_frame.release_menu(101));
    EXPECT_EQ(AcceleratorCommands(), (std::vector<int>{1, 100, 102}));
}

TEST_F(OutsideRegistry, ReleaseTakesTheFirstOfTwo)
{
    m_frame.menu_range(100, 110);
    SetAccelerators({{FVIRTKEY, VK_F1, 1}, {FVIRTKEY, VK_F2, 100}, {FVIRTKEY, VK_F3, 3}});
    Command(VK_F5);
    EXPECT_TRUE(m_frame.release_menu(100));
    std::vector<ACCEL> const entries = Accelerators();
    EXPECT_EQ(AcceleratorCommands(), (std::vector<int>{1, 3, 100}));
    EXPECT_EQ(entries.back().key, VK_F5);
}

TEST_F(OutsideRegistry, ReleaseWithoutAcceleratorTakesTheLastOne)
{
    m_frame.menu_range(100, 110);
    SetAccelerators({{FVIRTKEY, VK_F1, 1}, {FVIRTKEY, VK_F2, 2}});
    Command();
    EXPECT_TRUE(m_frame.release_menu(100));
    EXPECT_EQ(AcceleratorCommands(), std::vector<int>{1});
}

TEST_F(OutsideRegistry, ReleaseOfTheOnlyAcceleratorLeavesNone)
{
    m_frame.menu_range(100, 110);
    Command(VK_F5);
    EXPECT_TRUE(m_frame.release_menu(100));
    EXPECT_TRUE(Accelerators().empty());
    EXPECT_EQ(Command(VK_F6), 100);
    EXPECT_EQ(AcceleratorCommands(), std::vector<int>{100});
}

TEST_F(OutsideRegistry, ReleaseWithoutAnyAccelerators)
{
    m_frame.menu_range(100, 110);
    Command();
    EXPECT_TRUE(m_frame.release_menu(100));
    EXPECT_TRUE(Accelerators().empty());
}

TEST_F(OutsideRegistry, DismissedCommandsKeepTheirAccelerators)
{
    m_frame.menu_range(100, 110);
    m_frame.add_menu_lookup_item(33);
    int called = 0;
    m_frame.register_menu(
        parent, L"a", [&] { ++called; }, VK_F5, FVIRTKEY);
    m_frame.dismiss_menu_callbacks();
    EXPECT_TRUE(m_frame.menu_elements().empty());
    EXPECT_EQ(AcceleratorCommands(), std::vector<int>{100});
    m_frame.menu(100);
    EXPECT_EQ(called, 0);
    EXPECT_FALSE(m_frame.release_menu(100));
    EXPECT_EQ(Command(), 100);
}

TEST_F(OutsideCommands, AcceleratorLeadsToTheCommand)
{
    m_main->menu_range(100, 110);
    int called = 0;
    int const id = m_main->register_menu(
        parent, L"a", [&] { ++called; }, VK_F9, FVIRTKEY);
    m_main->PostMessage(WM_KEYDOWN, VK_F9, 1);
    EXPECT_TRUE(tests::PumpUntil([&] { return called == 1; }, std::chrono::seconds(20)));
    m_main->SendMessage(WM_COMMAND, id);
    EXPECT_EQ(called, 2);
    m_main->dismiss_menu_callbacks();
    m_main->SendMessage(WM_COMMAND, id);
    EXPECT_EQ(called, 2);
}

// Marked popups

namespace
{
class OutsidePopups : public FrameTest
{
protected:
    /// Asks about a popup with these commands while it is open.
    int Look(std::vector<UINT> const & commands)
    {
        CMenu menu;
        menu.CreatePopupMenu();
        for (UINT const command : commands)
            menu.AppendMenu(MF_STRING, command, L"item");
        auto * const popup = new CMFCPopupMenu;
        if (!popup->Create(m_main, 300, 300, menu.m_hMenu))
        {
            ADD_FAILURE() << "the popup has not opened";
            return -2;
        }
        int const index = m_main->lookup_item(popup);
        popup->DestroyWindow();
        tests::PumpPosted();
        return index;
    }
};
} // namespace

TEST_F(OutsidePopups, WithoutMarksNoPopupIsKnown)
{
    EXPECT_EQ(Look({40001, 40002}), -1);
}

TEST_F(OutsidePopups, MarkTellsThePopup)
{
    m_main->add_menu_lookup_item(40011);
    m_main->add_menu_lookup_item(40012);
    EXPECT_EQ(Look({40001, 40012}), 1);
    EXPECT_EQ(Look({40001, 40011}), 0);
    EXPECT_EQ(Look({40001}), -1);
    EXPECT_EQ(m_main->lookup_item(nullptr), -1);
}

TEST_F(OutsidePopups, FirstMarkCountsWhateverTheOrderOfTheItems)
{
    m_main->add_menu_lookup_item(40013);
    m_main->add_menu_lookup_item(40012);
    m_main->add_menu_lookup_item(40011);
    EXPECT_EQ(Look({40011, 40012}), 1);
    EXPECT_EQ(Look({40011, 40012, 40013}), 0);
}

TEST_F(OutsidePopups, MarksOutlastTheCommands)
{
    m_main->add_menu_lookup_item(40011);
    m_main->dismiss_menu_callbacks();
    EXPECT_EQ(Look({40011}), 0);
}
} // namespace outside
