// The items of open dialogs in the workbench's "Window" menu.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../../../workbench/resource.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "TestApp.h"
#include "WindowMenu.h"

namespace
{
using Texts = std::vector<std::wstring>;

/// A window that counts how often it is cancelled.
class Cancelled : public tests::ScopedWindow
{
public:
    using ScopedWindow::ScopedWindow;

    int count = 0;
    CWindowMenu * menu = nullptr;
    CWnd * other = nullptr; ///< closed with this one

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (LOWORD(wParam) == IDCANCEL)
        {
            ++count;
            if (menu != nullptr)
                menu->Remove(*this);
            if (menu != nullptr && other != nullptr)
                menu->Remove(*other);
        }
        return ScopedWindow::OnCommand(wParam, lParam);
    }
};

class WindowMenu : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_bar.CreateMenu());
        ASSERT_TRUE(m_popup.CreatePopupMenu());
        m_popup.AppendMenu(MF_STRING, 1, L"&Close all");
        m_bar.AppendMenu(MF_STRING, 2, L"&File");
        m_bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(m_popup.Detach()), L"&Window");
        m_main.SetMenu(&m_bar);
        tests::App().m_pMainWnd = &m_main;
        m_menu.SetMenu(L"&Window");
    }
    void TearDown() override { tests::App().m_pMainWnd = m_former; }

    CMenu & Popup() { return *m_bar.GetSubMenu(1); }
    /// The menu's texts; a separator is empty.
    Texts Items()
    {
        Texts texts;
        for (int i = 0; i < static_cast<int>(Popup().GetMenuItemCount()); ++i)
        {
            CString text;
            Popup().GetMenuString(static_cast<UINT>(i), text, MF_BYPOSITION);
            texts.emplace_back(text.GetString());
        }
        return texts;
    }

    CWnd * const m_former = tests::App().m_pMainWnd;
    tests::ScopedWindow m_main{CRect(20, 20, 420, 220)};
    CMenu m_bar;
    CMenu m_popup;
    CWindowMenu m_menu;
    Cancelled m_first{CRect(60, 60, 260, 160)};
    Cancelled m_second{CRect(80, 80, 280, 180)};
};
} // namespace

TEST_F(WindowMenu, EachWindowHasAnItemBelowASeparator)
{
    m_menu.Add(m_first, L"Details");
    m_menu.Add(m_second, L"Settings");
    EXPECT_EQ(Items(), (Texts{L"&Close all", L"", L"Details", L"Settings"}));
    EXPECT_EQ(Popup().GetMenuItemID(2), static_cast<UINT>(ID_DIALOG_FIRST));
    EXPECT_EQ(Popup().GetMenuItemID(3), static_cast<UINT>(ID_DIALOG_FIRST + 1));
}

TEST_F(WindowMenu, WithTheLastItemTheSeparatorGoes)
{
    m_menu.Add(m_first, L"Details");
    m_menu.Add(m_second, L"Settings");
    m_menu.Remove(m_first);
    EXPECT_EQ(Items(), (Texts{L"&Close all", L"", L"Settings"}));
    m_menu.Remove(m_second);
    EXPECT_EQ(Items(), (Texts{L"&Close all"}));
    m_menu.Remove(m_second);
    EXPECT_EQ(Items(), (Texts{L"&Close all"}));
}

TEST_F(WindowMenu, OtherSeparatorsStay)
{
    Popup().InsertMenu(0, MF_BYPOSITION | MF_STRING, 3, L"&Cascade");
    Popup().InsertMenu(1, MF_BYPOSITION | MF_SEPARATOR);
    m_menu.Add(m_first, L"Details");
    EXPECT_EQ(Items(), (Texts{L"&Cascade", L"", L"&Close all", L"", L"Details"}));
    m_menu.Remove(m_first);
    EXPECT_EQ(Items(), (Texts{L"&Cascade", L"", L"&Close all"}));
}

TEST_F(WindowMenu, AFreeIdentifierIsUsedAgain)
{
    m_menu.Add(m_first, L"Details");
    m_menu.Add(m_second, L"Settings");
    m_menu.Remove(m_first);
    m_menu.Add(m_first, L"Details");
    EXPECT_EQ(Items(), (Texts{L"&Close all", L"", L"Settings", L"Details"}));
    EXPECT_EQ(Popup().GetMenuItemID(3), static_cast<UINT>(ID_DIALOG_FIRST));
}

TEST_F(WindowMenu, AWindowAddedAgainHasTheNewTextAlone)
{
    m_menu.Add(m_first, L"Details");
    m_menu.Add(m_first, L"Einzelheiten");
    EXPECT_EQ(Items(), (Texts{L"&Close all", L"", L"Einzelheiten"}));
}

TEST_F(WindowMenu, AnItemBringsItsWindowToTheFront)
{
    m_menu.Add(m_first, L"Details");
    m_menu.Add(m_second, L"Settings");
    m_first.ShowWindow(SW_SHOW);
    m_second.ShowWindow(SW_SHOWMINNOACTIVE);
    EXPECT_TRUE(m_menu.Activate(ID_DIALOG_FIRST + 1));
    EXPECT_FALSE(m_second.IsIconic());
    EXPECT_TRUE(tests::PumpUntil([this] { return CWnd::GetActiveWindow() == &m_second; }));
    EXPECT_FALSE(m_menu.Activate(ID_DIALOG_FIRST + 2));
    EXPECT_FALSE(m_menu.Activate(0));
}

TEST_F(WindowMenu, CloseAllCancelsEachOnce)
{
    m_first.menu = &m_menu;
    m_menu.Add(m_first, L"Details");
    m_menu.Add(m_second, L"Settings");
    m_menu.CloseAll();
    EXPECT_EQ(m_first.count, 1);
    EXPECT_EQ(m_second.count, 1);
    EXPECT_EQ(Items(), (Texts{L"&Close all", L"", L"Settings"}));
}

TEST_F(WindowMenu, CloseAllLeavesOutWhatHasGoneWithAnother)
{
    m_menu.Add(m_first, L"Details");
    m_menu.Add(m_second, L"Settings");
    m_first.menu = &m_menu;
    m_first.other = &m_second;
    m_menu.CloseAll();
    EXPECT_EQ(m_first.count, 1);
    EXPECT_EQ(m_second.count, 0);
}

TEST_F(WindowMenu, WithoutItsMenuNothingHappens)
{
    m_menu.SetMenu(L"&Elsewhere");
    m_menu.Add(m_first, L"Details");
    EXPECT_EQ(Items(), (Texts{L"&Close all"}));
    EXPECT_FALSE(m_menu.Activate(ID_DIALOG_FIRST));
}
