// Popup menus of a dialog, opened and chosen from with the keyboard.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "dialogs_Dialog3dTest.h"
#include "GdiHandleCount.h"
#include "GuardedHeap.h"

using namespace dialog_tests;

namespace
{
constexpr UINT get_menu = 0x01E1; // MN_GETHMENU
constexpr UINT handled_id = 1019;

HMENU OpenMenu()
{
    HWND const window = ::FindWindowW(L"#32768", nullptr);
    return window != nullptr && ::IsWindowVisible(window)
               ? reinterpret_cast<HMENU>(::SendMessageW(window, get_menu, 0, 0))
               : nullptr;
}

struct Item
{
    int id;
    std::wstring text;
    bool separator;
    bool greyed;
    bool operator==(Item const &) const = default;
};

std::vector<Item> ItemsOf(HMENU menu)
{
    std::vector<Item> items;
    for (int position = 0; position < ::GetMenuItemCount(menu); ++position)
    {
        wchar_t text[100] = {};
        MENUITEMINFOW info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_ID | MIIM_FTYPE | MIIM_STATE | MIIM_STRING;
        info.dwTypeData = text;
        info.cch = 100;
        ::GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
        items.push_back(
            {static_cast<int>(info.wID), text, (info.fType & MFT_SEPARATOR) != 0, (info.fState & MFS_GRAYED) != 0});
    }
    return items;
}

class PopupDialog : public TestDialog
{
public:
    using TestDialog::TestDialog;
    int m_handled = 0;
    bool m_handles = false;

protected:
    void OnHandled() { ++m_handled; }
    BOOL OnCommandEx(UINT)
    {
        if (!m_handles)
            return FALSE; // goes on
        OnHandled();
        return TRUE;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PopupDialog, TestDialog)
    ON_COMMAND_EX(handled_id, &PopupDialog::OnCommandEx)
END_MESSAGE_MAP()

class Dialog3dPopups : public DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        ASSERT_NE(m_dialog.DisplayDialog(), 0);
        ASSERT_TRUE(tests::BringToFront(m_dialog));
        ASSERT_EQ(m_dialog.GetMaxID(), 1016);
    }

    CPopupConfig Config()
    {
        CPopupConfig config;
        config.Add(L"First", [this] { m_called.push_back(1); });
        config.AddSeparator();
        config.Add(L"Third", [this] { m_called.push_back(3); });
        return config;
    }
    /// Shows the menu, presses the keys as long as it is open, and pumps what is posted.
    void Show(CPopupConfig const & config, std::vector<WORD> const & keys)
    {
        tests::LaterActions later;
        later.Add([&] { m_items = ItemsOf(OpenMenu()); }, [] { return OpenMenu() != nullptr; });
        for (WORD const key : keys)
        {
            later.Add([key] {
                if (OpenMenu() != nullptr)
                    tests::Key(key);
            });
        }
        CPoint const place = tests::ClientPoint(m_dialog, CPoint(30, 30));
        m_dialog.ActivatePopup(config, place.x, place.y);
        EXPECT_EQ(OpenMenu(), nullptr);
        EXPECT_TRUE(tests::PumpUntil([&] { return later.Done(); }));
        EXPECT_FALSE(later.Failed());
        tests::PumpPosted();
    }
    BOOL Command(UINT id, int code = CN_COMMAND) { return m_dialog.OnCmdMsg(id, code, nullptr, nullptr); }

    PopupDialog m_dialog;
    std::vector<int> m_called;
    std::vector<Item> m_items;
};
} // namespace

TEST_F(Dialog3dPopups, TheMenuShowsTheEntriesNumberedBehindTheControls)
{
    CPopupConfig config = Config();
    config.Add(L"Greyed", {});
    HINSTANCE const before = AfxGetResourceHandle();
    Show(config, {VK_ESCAPE});
    EXPECT_EQ(m_items, (std::vector<Item>{{1017, L"First", false, false},
                                          {1018, L"", true, true},
                                          {1019, L"Third", false, false},
                                          {1020, L"Greyed", false, true}}))
        << "separators count, and no placeholder is left";
    EXPECT_EQ(AfxGetResourceHandle(), before);
    EXPECT_TRUE(m_called.empty());
    EXPECT_EQ(config.begin()->ID(), -1) << "the dialog keeps a copy";
}

TEST_F(Dialog3dPopups, AChosenEntryRunsItsCallbackOnce)
{
    Show(Config(), {VK_DOWN, VK_RETURN});
    EXPECT_EQ(m_called, std::vector<int>{1});
    EXPECT_FALSE(Command(1017)) << "the entries are gone";
    EXPECT_FALSE(Command(1019));
    EXPECT_EQ(m_called, std::vector<int>{1});
}

TEST_F(Dialog3dPopups, TheKeyboardSkipsTheSeparator)
{
    Show(Config(), {VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(m_called, std::vector<int>{3});
}

TEST_F(Dialog3dPopups, AGreyedEntryCannotBeChosen)
{
    CPopupConfig config;
    config.Add(L"Greyed", {});
    Show(config, {VK_DOWN, VK_RETURN, VK_ESCAPE});
    EXPECT_EQ(m_items, (std::vector<Item>{{1017, L"Greyed", false, true}}));
    EXPECT_TRUE(m_called.empty());
    EXPECT_TRUE(Command(1017)) << "its command alone is taken, and calls nothing";
    EXPECT_FALSE(Command(1017));
}

TEST_F(Dialog3dPopups, APopupThatClosesWithoutAChoiceStaysUntilTheNext)
{
    Show(Config(), {VK_ESCAPE});
    EXPECT_TRUE(m_called.empty());
    EXPECT_TRUE(Command(1017));
    EXPECT_EQ(m_called, std::vector<int>{1});

    Show(Config(), {VK_ESCAPE});
    CPopupConfig other;
    other.Add(L"Other", [this] { m_called.push_back(7); });
    Show(other, {VK_ESCAPE});
    EXPECT_FALSE(Command(1019)) << "only the last popup's entries";
    EXPECT_TRUE(Command(1017));
    EXPECT_EQ(m_called, (std::vector<int>{1, 7}));
}

TEST_F(Dialog3dPopups, ACommandThatTheMessageMapHandlesNeverReachesTheCallback)
{
    m_dialog.m_handles = true;
    Show(Config(), {VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(m_dialog.m_handled, 1);
    EXPECT_TRUE(m_called.empty());
    EXPECT_TRUE(Command(1017)) << "the popup is still there";
    EXPECT_EQ(m_called, std::vector<int>{1});
}

TEST_F(Dialog3dPopups, OnlyCommandsCountAndOnlyTheirLowWords)
{
    Show(Config(), {VK_ESCAPE});
    EXPECT_FALSE(Command(1017, CN_UPDATE_COMMAND_UI));
    EXPECT_FALSE(Command(1017, 1));
    EXPECT_FALSE(Command(1020));
    EXPECT_TRUE(m_called.empty());
    EXPECT_TRUE(Command(1017 + 0x30000));
    EXPECT_EQ(m_called, std::vector<int>{1});
}

TEST_F(Dialog3dPopups, AskingForTheHandlerCallsNothing)
{
    Show(Config(), {VK_ESCAPE});
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(m_dialog.OnCmdMsg(1017, CN_COMMAND, nullptr, &info));
    EXPECT_FALSE(m_dialog.OnCmdMsg(1020, CN_COMMAND, nullptr, &info));
    EXPECT_TRUE(m_called.empty());
    EXPECT_TRUE(Command(1017));
    EXPECT_EQ(m_called, std::vector<int>{1});
}

TEST_F(Dialog3dPopups, WithoutAPopupNoCommandIsTaken)
{
    EXPECT_FALSE(Command(1017));
    EXPECT_FALSE(Command(0));
}

TEST_F(Dialog3dPopups, AWindowsCommandArrivesAsWell)
{
    Show(Config(), {VK_ESCAPE});
    m_dialog.SendMessage(WM_COMMAND, 1019, 0);
    EXPECT_EQ(m_called, std::vector<int>{3});
}

TEST_F(Dialog3dPopups, ACallbackMayShowTheNextPopup)
{
    CPopupConfig next;
    next.Add(L"Inner", [this] { m_called.push_back(20); });
    CPopupConfig config;
    config.Add(L"Outer", [&] {
        m_called.push_back(10);
        Show(next, {VK_DOWN, VK_RETURN});
        m_called.push_back(11);
    });
    Show(config, {VK_DOWN, VK_RETURN});
    EXPECT_EQ(m_called, (std::vector<int>{10, 20, 11}));
    EXPECT_FALSE(Command(1017));
}

TEST_F(Dialog3dPopups, APopupShownByACallbackOutlivesIt)
{
    CPopupConfig next;
    next.Add(L"Inner", [this] { m_called.push_back(20); });
    CPopupConfig config;
    config.Add(L"Outer", [&] { Show(next, {VK_ESCAPE}); });
    Show(config, {VK_DOWN, VK_RETURN});
    EXPECT_TRUE(Command(1017));
    EXPECT_EQ(m_called, std::vector<int>{20});
}

TEST_F(Dialog3dPopups, ACallbackMayCloseAndEndTheDialog)
{
    auto dialog = std::make_unique<TestDialog>();
    ASSERT_NE(dialog->DisplayDialog(), 0);
    ASSERT_TRUE(tests::BringToFront(*dialog));
    CPopupConfig config;
    config.Add(L"Close", [&] { dialog->DestroyWindow(); });
    config.Add(L"End", [&] { dialog.reset(); });
    tests::LaterActions escape;
    escape.Add([] { tests::Key(VK_ESCAPE); }, [] { return OpenMenu() != nullptr; });
    dialog->ActivatePopup(config, 200, 200);
    EXPECT_TRUE(dialog->OnCmdMsg(1018, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(dialog, nullptr);
}

TEST_F(Dialog3dPopups, AnOwnerThatLeavesACommandAloneMayEndTheDialog)
{
    class Owner : public tests::ScopedWindow
    {
    public:
        std::function<void()> m_onCommand;

        BOOL OnCmdMsg(UINT, int, void *, AFX_CMDHANDLERINFO *) override
        {
            if (auto const onCommand = std::exchange(m_onCommand, nullptr))
                onCommand();
            return FALSE;
        }
    };
    constexpr UINT command_of_the_frame = 0x8001;
    Owner owner;
    tests::App().m_pMainWnd = &owner;
    tests::GuardedHeap const heap; // nothing that a deleted dialog held looks as before
    auto dialog = std::make_unique<TestDialog>();
    ASSERT_NE(dialog->DisplayDialog(), 0);
    owner.m_onCommand = [&] { dialog.reset(); };
    EXPECT_FALSE(dialog->OnCmdMsg(command_of_the_frame, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(dialog, nullptr);
    tests::App().m_pMainWnd = nullptr;
}

TEST_F(Dialog3dPopups, AnEmptyPopupChoosesNothing)
{
    m_dialog.ActivatePopup(CPopupConfig(), 200, 200);
    EXPECT_EQ(OpenMenu(), nullptr);
    EXPECT_FALSE(Command(1017));
}

TEST_F(Dialog3dPopups, PopupsLeaveNoMenuBehind)
{
    Show(Config(), {VK_ESCAPE});
    HMENU menu = nullptr;
    tests::LaterActions later;
    later.Add([&] { menu = OpenMenu(); }, [] { return OpenMenu() != nullptr; });
    later.Add([] { tests::Key(VK_ESCAPE); });
    m_dialog.ActivatePopup(Config(), 200, 200);
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(::IsMenu(menu));
}
