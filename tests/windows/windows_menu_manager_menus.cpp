// The menu manager on real menus.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "MessageRecorder.h"
#include "ScopedWindow.h"
#include "TestApp.h"
#include "windows/MenueManager.h"

namespace
{
/// A main window of the application, with a menu bar.
class MainWindow : public tests::ScopedWindow
{
public:
    MainWindow()
    {
        m_bar.CreateMenu();
        CMenu file;
        file.CreatePopupMenu();
        file.AppendMenu(MF_STRING, 1, L"&Open");
        m_bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(file.Detach()), L"&File");
        SetMenu(&m_bar);
        m_former = tests::App().m_pMainWnd;
        tests::App().m_pMainWnd = this;
    }
    ~MainWindow() override
    {
        tests::App().m_pMainWnd = m_former;
        SetMenu(nullptr);
    }

    CMenu m_bar;

private:
    CWnd * m_former;
};

/// A main window whose menu is not that of the window system.
class OwnMenuWindow : public tests::ScopedWindow
{
public:
    OwnMenuWindow() { m_own.CreatePopupMenu(); }

    CMenu * GetMenu() const override { return const_cast<CMenu *>(&m_own); }

    CMenu m_own;
};

class MenuManagerMenus : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_menu.CreatePopupMenu()); }

    CMenu m_menu;
    CMenueManager m_manager;
};
} // namespace

TEST_F(MenuManagerMenus, AppendedItemsHaveTextIdAndKind)
{
    m_manager.SetNewID(5000);
    EXPECT_EQ(m_manager.AppendString(m_menu, L"&Open\tCtrl+O"), 5000U);
    EXPECT_TRUE(m_manager.AppendSeparator(m_menu));
    EXPECT_EQ(m_manager.AppendString(m_menu, L"Close"), 5001U);
    ASSERT_EQ(m_menu.GetMenuItemCount(), 3U);
    CString text;
    m_menu.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_STREQ(text, L"&Open\tCtrl+O");
    EXPECT_EQ(m_menu.GetMenuItemID(0), 5000U);
    EXPECT_EQ(m_menu.GetMenuState(0, MF_BYPOSITION), static_cast<UINT>(MF_STRING));
    EXPECT_EQ(m_menu.GetMenuItemID(1), 0U);
    EXPECT_EQ(m_menu.GetMenuState(1, MF_BYPOSITION) & MF_SEPARATOR, static_cast<UINT>(MF_SEPARATOR));
    EXPECT_EQ(m_menu.GetMenuItemID(2), 5001U);
}

TEST_F(MenuManagerMenus, InvalidMenuRefusesAndTheIdIsUsedUp)
{
    CMenu invalid;
    EXPECT_EQ(m_manager.AppendString(invalid, L"item"), 0U);
    EXPECT_EQ(m_manager.GetNewID(), 2U);
    EXPECT_FALSE(m_manager.AppendSeparator(invalid));
    EXPECT_EQ(m_manager.GetNewID(), 3U);

    CMenu destroyed;
    destroyed.CreatePopupMenu();
    HMENU const handle = destroyed.m_hMenu;
    ::DestroyMenu(handle);
    EXPECT_EQ(m_manager.AppendString(destroyed, L"item"), 0U);
    EXPECT_EQ(CMenueManager::FindItem(destroyed, CString(L"item")), -1);
    destroyed.Detach();
}

TEST_F(MenuManagerMenus, OfTwoItemsOfOneTextTheHigherPositionIsFound)
{
    m_manager.AppendString(m_menu, L"same");
    m_manager.AppendString(m_menu, L"other");
    m_manager.AppendString(m_menu, L"same");
    m_manager.AppendString(m_menu, L"last");
    EXPECT_EQ(CMenueManager::FindItem(m_menu, CString(L"same")), 2);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, CString(L"other")), 1);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, CString(L"Same")), -1);
}

TEST_F(MenuManagerMenus, MarksAndTabPartsArePartOfTheText)
{
    m_manager.AppendString(m_menu, L"&Open\tCtrl+O");
    EXPECT_EQ(CMenueManager::FindItem(m_menu, CString(L"&Open\tCtrl+O")), 0);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, CString(L"Open\tCtrl+O")), -1);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, CString(L"&Open")), -1);
}

TEST_F(MenuManagerMenus, LongTextsAreComparedWhole)
{
    CString const longText(L'x', 3000);
    m_manager.AppendString(m_menu, longText + L"1");
    m_manager.AppendString(m_menu, longText + L"2");
    EXPECT_EQ(CMenueManager::FindItem(m_menu, longText + L"1"), 0);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, longText), -1);
}

TEST_F(MenuManagerMenus, IdsFindItemsSeparatorsAndSubmenus)
{
    m_manager.AppendSeparator(m_menu);
    unsigned int const first = m_manager.AppendString(m_menu, L"first");
    m_manager.AppendSeparator(m_menu);
    CMenu sub;
    sub.CreatePopupMenu();
    m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(sub.Detach()), L"sub");
    m_manager.SetNewID(first);
    m_manager.AppendString(m_menu, L"of the same id");
    EXPECT_EQ(CMenueManager::FindItem(m_menu, first), 4);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, 0U), 2);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, 0xFFFFFFFFU), 3);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, 99U), -1);
}

TEST_F(MenuManagerMenus, EmptyMenuHasNothing)
{
    EXPECT_EQ(CMenueManager::FindItem(m_menu, CString(L"x")), -1);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, CString()), -1);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, 0U), -1);
    EXPECT_EQ(CMenueManager::FindItem(m_menu, 1U), -1);
    EXPECT_EQ(CMenueManager::FindSubMenue(m_menu, CString(L"x")), nullptr);
    CMenu invalid;
    EXPECT_EQ(CMenueManager::FindItem(invalid, CString()), -1);
    EXPECT_EQ(CMenueManager::FindItem(invalid, 0xFFFFFFFFU), -1);
    EXPECT_EQ(CMenueManager::FindSubMenue(invalid, CString()), nullptr);
}

TEST_F(MenuManagerMenus, SubmenuIsFoundByTheTextOfItsItem)
{
    CMenu first;
    CMenu second;
    first.CreatePopupMenu();
    second.CreatePopupMenu();
    HMENU const secondHandle = second.m_hMenu;
    m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(first.Detach()), L"&Window");
    m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(second.Detach()), L"&Window");
    m_manager.AppendString(m_menu, L"plain");
    CMenu * const found = CMenueManager::FindSubMenue(m_menu, CString(L"&Window"));
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->m_hMenu, secondHandle);
    EXPECT_EQ(CMenueManager::FindSubMenue(m_menu, CString(L"plain")), nullptr);
    EXPECT_EQ(CMenueManager::FindSubMenue(m_menu, CString(L"Window")), nullptr);
}

TEST_F(MenuManagerMenus, ApplicationMenuIsTheMainWindowsBar)
{
    MainWindow window;
    CMenu * const menu = CMenueManager::ApplicationMenue();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->m_hMenu, window.m_bar.m_hMenu);
    CMenu * const file = CMenueManager::FindSubMenue(*menu, CString(L"&File"));
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(CMenueManager::FindItem(*file, CString(L"&Open")), 0);
}

TEST_F(MenuManagerMenus, ApplicationMenuIsNullWithoutABar)
{
    MainWindow window;
    window.SetMenu(nullptr);
    EXPECT_EQ(CMenueManager::ApplicationMenue(), nullptr);
}

TEST_F(MenuManagerMenus, MainWindowDecidesOnItsMenu)
{
    OwnMenuWindow window;
    CWnd * const former = tests::App().m_pMainWnd;
    tests::App().m_pMainWnd = &window;
    EXPECT_EQ(CMenueManager::ApplicationMenue(), &window.m_own);
    tests::App().m_pMainWnd = former;
}

TEST_F(MenuManagerMenus, AnItemAddedToTheBarShowsOnceItIsDrawn)
{
    MainWindow window;
    tests::MessageRecorder recorder({WM_NCCALCSIZE});
    recorder.Watch(window.m_hWnd, "main");
    m_manager.SetNewID(700);
    ASSERT_EQ(m_manager.AppendString(*CMenueManager::ApplicationMenue(), L"&Extras"), 700U);
    EXPECT_EQ(recorder.Count("main", WM_NCCALCSIZE), 0);
    CMenueManager::DrawApplicationMenue();
    EXPECT_GT(recorder.Count("main", WM_NCCALCSIZE), 0);
    RECT item{};
    EXPECT_TRUE(::GetMenuItemRect(window.m_hWnd, window.m_bar.m_hMenu, 1, &item));
    EXPECT_GT(item.right, item.left);
}
