// CMainFrmInterface: panes and their stored state, dynamic commands, settings.

#include <afxpopupmenu.h>

#include <filesystem>

#include "Input.h"
#include "panes_PaneTest.h"

namespace
{
using panes::PaneView;

class MainFrames : public panes::PaneTest
{
protected:
    int Register(
        unsigned short key = 0, std::function<void()> callback = [] {})
    {
        return m_frame->register_menu(7, L"Text", std::move(callback), key, FVIRTKEY);
    }
    CString BaseKey(int id) const { return Key(CMainFrmInterface::reg_entry_basepanes, id); }
    CString PaneKey(int id) const { return Key(CMainFrmInterface::reg_entry_panes, id); }

private:
    static CString Key(wchar_t const * entry, int id)
    {
        CString key;
        key.Format(L"%s\\%s%d", CMainFrmInterface::reg_workspace_settings, entry, id);
        return key;
    }
};

/// The current folder is a new one for the life of the object.
class OwnFolder
{
public:
    OwnFolder() : m_former(std::filesystem::current_path())
    {
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPath(MAX_PATH, folder);
        m_folder = std::filesystem::path(folder) / L"instrument_ui_panes";
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
        std::filesystem::current_path(m_folder);
    }
    ~OwnFolder()
    {
        std::filesystem::current_path(m_former);
        std::error_code error;
        std::filesystem::remove_all(m_folder, error);
    }
    OwnFolder(OwnFolder const &) = delete;
    OwnFolder & operator=(OwnFolder const &) = delete;

private:
    std::filesystem::path m_former;
    std::filesystem::path m_folder;
};
} // namespace

TEST_F(MainFrames, ConstantsAreThoseOfTheWorkspace)
{
    EXPECT_EQ(CMainFrmInterface::id_base, 10742u);
    EXPECT_EQ(CMainFrmInterface::max_panes, 100u);
    EXPECT_STREQ(CMainFrmInterface::reg_workspace_settings, L"Workspace");
    EXPECT_STREQ(CMainFrmInterface::reg_entry_basepanes, L"BasePane-");
    EXPECT_STREQ(CMainFrmInterface::reg_entry_panes, L"Pane-");
}

TEST(MainFrameInterface, StartsWithoutIdentifiers)
{
    struct Interface : CMainFrmInterface
    {
        Interface() : CMainFrmInterface(nullptr) {}
        using CMainFrmInterface::menu_range;
    };
    auto const frame = std::make_unique<Interface>();
    EXPECT_EQ(frame->base_id(), 0u);
    EXPECT_TRUE(frame->panes().empty());
    EXPECT_EQ(frame->register_menu(
                  1, L"a", [] {}, 'A', FVIRTKEY),
              -1);
    // Without a frame there are no accelerators; commands work all the same.
    frame->menu_range(5, 6);
    EXPECT_EQ(frame->register_menu(1, nullptr, {}, 'A', FVIRTKEY), 5);
    EXPECT_TRUE(frame->release_menu(5));
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(frame->register_pane(pane, -1), 0);
    EXPECT_NE(pane, nullptr);
}

TEST_F(MainFrames, PanesAreGivenOutInOrder)
{
    CDockableViewPane * first = nullptr;
    CDockableViewPane * second = nullptr;
    EXPECT_EQ(m_frame->register_pane(first, -1), 10742);
    EXPECT_EQ(m_frame->register_pane(second, -1), 10743);
    EXPECT_EQ(second - first, 1); // neighbours in the pool
    EXPECT_EQ(&Pane(10742), first);
    EXPECT_EQ(first->m_hWnd, nullptr);
    EXPECT_EQ(first->View(), nullptr);
}

TEST_F(MainFrames, APaneWithoutAViewIsGivenAgainAndOneWithAViewIsNot)
{
    CDockableViewPane * pane = nullptr;
    m_frame->register_pane(pane, -1);
    CDockableViewPane * again = nullptr;
    EXPECT_EQ(m_frame->register_pane(again, 10742), 10742);
    EXPECT_EQ(again, pane);
    EXPECT_EQ(m_frame->panes().size(), 1u);
    ASSERT_TRUE(pane->Connect(*new PaneView, L"Scope"));
    EXPECT_EQ(m_frame->register_pane(again, 10742), 10743);
    EXPECT_NE(again, pane);
}

TEST_F(MainFrames, TheHundredAndFirstPaneIsRefused)
{
    CDockableViewPane * pane = nullptr;
    for (int at = 0; at < 100; ++at)
        ASSERT_EQ(m_frame->register_pane(pane, -1), 10742 + at);
    CDockableViewPane * const last = pane;
    EXPECT_EQ(m_frame->register_pane(pane, -1), -1);
    EXPECT_EQ(pane, last);
}

TEST_F(MainFrames, StoredPanesTakeThePoolFromItsStart)
{
    StoreKey(BaseKey(10745));
    StoreKey(BaseKey(10750));
    StoreKey(PaneKey(10747)); // says nothing by itself
    m_frame->assign_panes();
    ASSERT_EQ(m_frame->panes().size(), 2u);
    EXPECT_EQ(&Pane(10750) - &Pane(10745), 1);
    // One that is given out for a gap has the object of the first.
    CDockableViewPane * pane = nullptr;
    EXPECT_EQ(m_frame->register_pane(pane, -1), 10742);
    EXPECT_EQ(pane, &Pane(10745));
}

TEST_F(MainFrames, WithoutARegistryKeyNothingIsStored)
{
    LPCTSTR const key = std::exchange(tests::App().m_pszRegistryKey, nullptr);
    m_frame->assign_panes();
    m_frame->release_orphan_panes();
    EXPECT_TRUE(m_frame->panes().empty());
    OwnFolder const folder;
    EXPECT_FALSE(m_frame->export_registry_settings());
    EXPECT_FALSE(m_frame->import_registry_settings());
    tests::App().m_pszRegistryKey = key;
}

TEST_F(MainFrames, StoredStateOfPanesWithoutAViewIsReleased)
{
    for (int const id : {10742, 10743, 10744})
    {
        StoreKey(BaseKey(id));
        StoreKey(PaneKey(id) + L"\\Below");
    }
    m_frame->assign_panes();
    ASSERT_EQ(m_frame->panes().size(), 3u);
    ASSERT_TRUE(Pane(10743).Connect(*new PaneView, L"Scope"));
    m_frame->release_orphan_panes();
    EXPECT_FALSE(HasKey(BaseKey(10742)));
    EXPECT_FALSE(HasKey(PaneKey(10742)));
    EXPECT_TRUE(HasKey(BaseKey(10743)));
    EXPECT_TRUE(HasKey(PaneKey(10743)));
    EXPECT_FALSE(HasKey(BaseKey(10744)));
    EXPECT_EQ(m_frame->panes().size(), 3u);
}

// Dynamic commands

TEST_F(MainFrames, CommandsHaveTheLowestFreeIdentifiers)
{
    m_frame->menu_range(100, 103);
    EXPECT_EQ(Register(), 100);
    EXPECT_EQ(Register(), 101);
    EXPECT_EQ(Register(), 102);
    EXPECT_EQ(Register(), -1);
    EXPECT_TRUE(m_frame->release_menu(101));
    EXPECT_FALSE(m_frame->release_menu(101));
    EXPECT_EQ(Register(), 101);
}

TEST_F(MainFrames, CommandsStandBelowTheirParent)
{
    m_frame->register_menu(
        7, L"a", [] {}, 0, 0);
    m_frame->register_menu(
        3, L"b", [] {}, 0, 0);
    ASSERT_EQ(m_frame->menu_elements().size(), 2u);
    auto const found = m_frame->menu_elements().find(3);
    ASSERT_NE(found, m_frame->menu_elements().end());
    EXPECT_EQ(found->second->first, first_command + 1);
    EXPECT_EQ(found->second->second.second, L"b");
}

TEST_F(MainFrames, ACommandRunsItsCallback)
{
    int calls = 0;
    int const id = Register(0, [&] { ++calls; });
    m_frame->SendMessage(WM_COMMAND, static_cast<WPARAM>(id));
    EXPECT_EQ(calls, 1);
    m_frame->menu(static_cast<unsigned int>(id));
    EXPECT_EQ(calls, 2);
    m_frame->menu(4711); // nobody's
    m_frame->menu(first_command + 1);
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(m_frame->release_menu(id));
    m_frame->menu(static_cast<unsigned int>(id));
    EXPECT_EQ(calls, 2);
}

TEST_F(MainFrames, AnAcceleratorRunsTheCallback)
{
    int calls = 0;
    int const id = Register(VK_F9, [&] { ++calls; });
    EXPECT_EQ(Accelerators(), std::vector<int>{id});
    ASSERT_TRUE(tests::BringToFront(m_window));
    tests::Key(VK_F9);
    EXPECT_TRUE(tests::PumpUntil([&] { return calls == 1; }));
}

TEST_F(MainFrames, AcceleratorsAreAddedAtTheEnd)
{
    int const a = Register(VK_F7);
    int const b = Register();
    int const c = Register(VK_F8);
    EXPECT_EQ(Accelerators(), (std::vector<int>{a, c}));
    EXPECT_TRUE(m_frame->release_menu(a));
    EXPECT_EQ(Accelerators(), std::vector<int>{c});
    EXPECT_TRUE(m_frame->release_menu(c));
    EXPECT_TRUE(Accelerators().empty());
    EXPECT_TRUE(m_frame->release_menu(b));
    EXPECT_TRUE(Accelerators().empty());
    EXPECT_EQ(m_frame->m_hAccelTable, nullptr);
}

TEST_F(MainFrames, ACommandWithoutAcceleratorTakesTheLastOneWithIt)
{
    int const a = Register(VK_F7);
    Register(VK_F8);
    int const c = Register();
    EXPECT_TRUE(m_frame->release_menu(c));
    EXPECT_EQ(Accelerators(), std::vector<int>{a});
}

TEST_F(MainFrames, DismissedCommandsKeepTheirAccelerators)
{
    int calls = 0;
    int const id = Register(VK_F9, [&] { ++calls; });
    m_frame->dismiss_menu_callbacks();
    EXPECT_TRUE(m_frame->menu_elements().empty());
    EXPECT_EQ(Accelerators(), std::vector<int>{id});
    m_frame->SendMessage(WM_COMMAND, MAKEWPARAM(id, 1)); // as an accelerator comes
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(m_frame->release_menu(id));
}

TEST_F(MainFrames, ACallbackMayReleaseItsOwnCommandAndRegisterOthers)
{
    int calls = 0;
    int id = 0;
    std::wstring const kept = L"a text that is too long for a short string";
    id = Register(VK_F9, [&calls, &id, kept, this] {
        EXPECT_TRUE(m_frame->release_menu(id));
        Register();
        m_frame->dismiss_menu_callbacks();
        EXPECT_EQ(kept.size(), 42u);
        ++calls;
    });
    m_frame->menu(static_cast<unsigned int>(id));
    EXPECT_EQ(calls, 1);
}

TEST_F(MainFrames, ACallbackMayEndTheFrame)
{
    int const id = Register(0, [this] { m_frame->DestroyWindow(); });
    m_frame->SendMessage(WM_COMMAND, static_cast<WPARAM>(id));
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(MainFrames, WhatACallbackHoldsMayComeBackWhileItEnds)
{
    struct Holder
    {
        explicit Holder(std::function<void()> atEnd) : m_atEnd(std::move(atEnd)) {}
        ~Holder() { m_atEnd(); }
        std::function<void()> m_atEnd;
    };
    int ended = 0;
    auto const make = [&] { return std::make_shared<Holder>([&] { ++ended, Register(); }); };
    int const id = Register(0, [holder = make()] {});
    EXPECT_TRUE(m_frame->release_menu(id));
    EXPECT_EQ(ended, 1);
    Register(0, [holder = make()] {});
    m_frame->dismiss_menu_callbacks();
    EXPECT_EQ(ended, 2);
    EXPECT_EQ(m_frame->menu_elements().size(), 1u);
}

TEST_F(MainFrames, APopupIsKnownByItsCommands)
{
    m_frame->add_menu_lookup_item(501);
    m_frame->add_menu_lookup_item(502);
    m_frame->add_menu_lookup_item(503);
    EXPECT_EQ(m_frame->lookup_item(nullptr), -1);
    CMFCPopupMenu popup;
    EXPECT_EQ(m_frame->lookup_item(&popup), -1);
    popup.InsertItem(CMFCToolBarMenuButton(503, nullptr, -1, L"c"));
    EXPECT_EQ(m_frame->lookup_item(&popup), 2);
    popup.InsertItem(CMFCToolBarMenuButton(502, nullptr, -1, L"b"));
    EXPECT_EQ(m_frame->lookup_item(&popup), 1); // the first that was added counts
    m_frame->dismiss_menu_callbacks();
    EXPECT_EQ(m_frame->lookup_item(&popup), 1); // and stays
}

// Settings

TEST_F(MainFrames, SettingsGoThroughAFile)
{
    OwnFolder const folder;
    StoreKey(L"Kept\\Below");
    EXPECT_FALSE(m_frame->import_registry_settings()); // there is no file
    EXPECT_TRUE(HasKey(L"Kept\\Below"));
    ASSERT_TRUE(m_frame->export_registry_settings());
    std::vector<std::filesystem::path> files(std::filesystem::directory_iterator(L"."),
                                             std::filesystem::directory_iterator());
    ASSERT_EQ(files.size(), 1u);
    std::wstring plain = files[0].filename().wstring();
    plain.erase(plain.find(L"-saved"), 6);
    std::filesystem::rename(files[0], plain);
    StoreKey(L"Later");
    ASSERT_TRUE(m_frame->import_registry_settings());
    EXPECT_TRUE(HasKey(L"Kept\\Below"));
    EXPECT_FALSE(HasKey(L"Later"));
    EXPECT_FALSE(m_frame->import_registry_settings()); // it has another name now
}
