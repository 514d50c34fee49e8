// Menus.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "Pump.h"
#include "ScopedWindow.h"

namespace
{
constexpr UINT first_item = 100;
constexpr UINT second_item = 101;
constexpr UINT third_item = 102;

class FrameworkMenu : public testing::Test
{
protected:
    FrameworkMenu()
    {
        m_menu.CreatePopupMenu();
        m_menu.AppendMenu(MF_STRING, first_item, L"&First");
        m_menu.AppendMenu(MF_STRING, second_item, L"Second\tCtrl+S");
        m_menu.AppendMenu(MF_SEPARATOR);
        m_menu.AppendMenu(MF_STRING | MF_GRAYED, third_item, L"Third");
    }
    CMenu m_menu;
};

TEST(FrameworkMenuHandles, NewMenuHasNoHandle)
{
    CMenu menu;
    EXPECT_EQ(menu.m_hMenu, nullptr);
    EXPECT_EQ(menu.GetSafeHmenu(), nullptr);
    EXPECT_FALSE(menu.DestroyMenu());
    EXPECT_FALSE(menu.Attach(nullptr));
    EXPECT_FALSE(menu.LoadMenu(64999));
    EXPECT_FALSE(menu.LoadMenu(L"no such menu"));
    EXPECT_EQ(menu.m_hMenu, nullptr);
}

[[gnu::no_sanitize("null")]] HMENU SafeHandleThroughNull(CMenu * menu)
{
    CMenu * volatile const hidden = menu; // or the compiler takes it for an error
    return hidden->GetSafeHmenu();
}

TEST(FrameworkMenuHandles, SafeHandleThroughNullPointerIsNull)
{
    EXPECT_EQ(SafeHandleThroughNull(nullptr), nullptr);
}

TEST(FrameworkMenuHandles, DestructorDestroysTheMenuUnlessDetached)
{
    HMENU destroyed = nullptr;
    HMENU kept = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreateMenu());
        destroyed = menu.m_hMenu;
        CMenu other;
        ASSERT_TRUE(other.CreatePopupMenu());
        kept = other.Detach();
        EXPECT_EQ(other.m_hMenu, nullptr);
    }
    EXPECT_FALSE(::IsMenu(destroyed));
    EXPECT_TRUE(::IsMenu(kept));
    CMenu owner;
    EXPECT_TRUE(owner.Attach(kept));
    EXPECT_EQ(CMenu::FromHandle(kept), &owner);
    EXPECT_EQ(static_cast<HMENU>(owner), kept);
    EXPECT_TRUE(owner.DestroyMenu());
    EXPECT_FALSE(::IsMenu(kept));
}

TEST(FrameworkMenuHandles, TemporaryMenuLeavesTheMenuAlone)
{
    HMENU const handle = ::CreateMenu();
    CMenu * const temporary = CMenu::FromHandle(handle);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hMenu, handle);
    EXPECT_EQ(CMenu::FromHandle(handle), temporary);
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(handle));
    ::DestroyMenu(handle);
    EXPECT_EQ(CMenu::FromHandle(nullptr), nullptr);
}

TEST(FrameworkMenuHandles, ComparisonIsThatOfTheHandles)
{
    CMenu first;
    CMenu second;
    first.CreateMenu();
    second.CreateMenu();
    EXPECT_TRUE(first == first);
    EXPECT_TRUE(first != second);
    EXPECT_FALSE(first == second);
}

TEST(FrameworkMenuHandles, MenuIsMadeFromATemplateInMemory)
{
    // Header, then one item with its flags, number and text.
    std::vector<WORD> const bytes = {0, 0, MF_END, 77, L'O', L'n', L'e', 0};
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenuIndirect(bytes.data()));
    EXPECT_EQ(menu.GetMenuItemCount(), 1u);
    EXPECT_EQ(menu.GetMenuItemID(0), 77u);
}

// Some menu resource of a module; null if it has none with a number.
LPCTSTR AnyMenuOf(HINSTANCE module)
{
    LPCTSTR found = nullptr;
    ::EnumResourceNames(
        module, RT_MENU,
        [](HMODULE, LPCTSTR, LPTSTR name, LONG_PTR result) -> BOOL {
            if (!IS_INTRESOURCE(name))
                return TRUE;
            *reinterpret_cast<LPCTSTR *>(result) = name;
            return FALSE;
        },
        reinterpret_cast<LONG_PTR>(&found));
    return found;
}

TEST(FrameworkMenuHandles, MenuIsLoadedFromTheResourceModule)
{
    HINSTANCE const shell = ::LoadLibrary(L"shell32.dll");
    LPCTSTR const name = AnyMenuOf(shell);
    ASSERT_NE(name, nullptr);
    HINSTANCE const before = AfxGetResourceHandle();
    AfxSetResourceHandle(shell);
    CMenu byName;
    CMenu byNumber;
    EXPECT_TRUE(byName.LoadMenu(name));
    EXPECT_TRUE(byNumber.LoadMenu(static_cast<UINT>(reinterpret_cast<UINT_PTR>(name))));
    AfxSetResourceHandle(before);
    EXPECT_GT(byName.GetMenuItemCount(), 0u);
    EXPECT_EQ(byNumber.GetMenuItemCount(), byName.GetMenuItemCount());
    ::FreeLibrary(shell);
}

TEST_F(FrameworkMenu, ItemsAreCountedAndFound)
{
    EXPECT_EQ(m_menu.GetMenuItemCount(), 4u);
    EXPECT_EQ(m_menu.GetMenuItemID(1), second_item);
    EXPECT_EQ(m_menu.GetMenuItemID(2), 0u);
    EXPECT_EQ(m_menu.GetMenuItemID(9), static_cast<UINT>(-1));
    EXPECT_EQ(m_menu.GetSubMenu(0), nullptr);
}

TEST_F(FrameworkMenu, TextIsReadIntoABufferAndAString)
{
    std::array<wchar_t, 4> buffer = {};
    EXPECT_EQ(m_menu.GetMenuString(first_item, buffer.data(), 4, MF_BYCOMMAND), 3);
    EXPECT_STREQ(buffer.data(), L"&Fi");
    CString text;
    EXPECT_EQ(m_menu.GetMenuString(1, text, MF_BYPOSITION), 13);
    EXPECT_STREQ(text, L"Second\tCtrl+S");
    EXPECT_EQ(m_menu.GetMenuString(999, text, MF_BYCOMMAND), 0);
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(FrameworkMenu, ItemsAreInsertedModifiedRemovedAndDeleted)
{
    EXPECT_TRUE(m_menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, 200, L"Zero"));
    EXPECT_EQ(m_menu.GetMenuItemID(0), 200u);
    EXPECT_TRUE(m_menu.ModifyMenu(200, MF_BYCOMMAND | MF_STRING, 201, L"Changed"));
    CString text;
    m_menu.GetMenuString(201, text, MF_BYCOMMAND);
    EXPECT_STREQ(text, L"Changed");
    CMenu sub;
    sub.CreatePopupMenu();
    HMENU const subHandle = sub.Detach();
    EXPECT_TRUE(m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(subHandle), L"Sub"));
    ASSERT_NE(m_menu.GetSubMenu(5), nullptr);
    EXPECT_EQ(m_menu.GetSubMenu(5)->m_hMenu, subHandle);
    EXPECT_TRUE(m_menu.RemoveMenu(5, MF_BYPOSITION));
    EXPECT_TRUE(::IsMenu(subHandle)); // removed, not destroyed
    EXPECT_TRUE(m_menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(subHandle), L"Sub"));
    EXPECT_TRUE(m_menu.DeleteMenu(5, MF_BYPOSITION));
    EXPECT_FALSE(::IsMenu(subHandle));
    EXPECT_FALSE(m_menu.DeleteMenu(999, MF_BYCOMMAND));
    CMenu::DeleteTempMap();
}

TEST_F(FrameworkMenu, BitmapsTakeThePlaceOfText)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, nullptr));
    EXPECT_TRUE(m_menu.AppendMenu(0, 300, &bitmap));
    EXPECT_TRUE(m_menu.InsertMenu(0, MF_BYPOSITION, 301, &bitmap));
    EXPECT_TRUE(m_menu.ModifyMenu(first_item, MF_BYCOMMAND, first_item, &bitmap));
    for (UINT const id : {300u, 301u, first_item})
    {
        MENUITEMINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_BITMAP;
        EXPECT_TRUE(m_menu.GetMenuItemInfo(id, &info));
        EXPECT_EQ(info.hbmpItem, static_cast<HBITMAP>(bitmap)) << id;
    }
    EXPECT_TRUE(m_menu.SetMenuItemBitmaps(second_item, MF_BYCOMMAND, &bitmap, nullptr));
    MENUITEMINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_CHECKMARKS;
    m_menu.GetMenuItemInfo(second_item, &info);
    EXPECT_EQ(info.hbmpUnchecked, static_cast<HBITMAP>(bitmap));
    EXPECT_EQ(info.hbmpChecked, nullptr);
}

TEST_F(FrameworkMenu, ItemsAreCheckedAndEnabled)
{
    EXPECT_EQ(m_menu.CheckMenuItem(first_item, MF_CHECKED), static_cast<UINT>(MF_UNCHECKED));
    EXPECT_EQ(m_menu.CheckMenuItem(first_item, MF_UNCHECKED), static_cast<UINT>(MF_CHECKED));
    EXPECT_EQ(m_menu.CheckMenuItem(999, MF_CHECKED), static_cast<UINT>(-1));
    EXPECT_EQ(m_menu.EnableMenuItem(third_item, MF_ENABLED), static_cast<UINT>(MF_GRAYED));
    EXPECT_EQ(m_menu.EnableMenuItem(999, MF_ENABLED), static_cast<UINT>(-1));
    EXPECT_TRUE(m_menu.CheckMenuRadioItem(first_item, second_item, second_item, MF_BYCOMMAND));
    EXPECT_EQ(m_menu.GetMenuState(first_item, MF_BYCOMMAND) & MF_CHECKED, 0u);
    EXPECT_NE(m_menu.GetMenuState(second_item, MF_BYCOMMAND) & MF_CHECKED, 0u);
    EXPECT_EQ(m_menu.GetMenuState(999, MF_BYCOMMAND), static_cast<UINT>(-1));
    EXPECT_EQ(m_menu.GetDefaultItem(0), static_cast<UINT>(-1));
    EXPECT_TRUE(m_menu.SetDefaultItem(1, TRUE));
    EXPECT_EQ(m_menu.GetDefaultItem(0), second_item);
    EXPECT_EQ(m_menu.GetDefaultItem(0, TRUE), 1u);
}

TEST_F(FrameworkMenu, ItemAndMenuInformation)
{
    std::array<wchar_t, 8> text = {L"Info"};
    MENUITEMINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_STRING | MIIM_DATA;
    info.wID = 400;
    info.dwTypeData = text.data();
    info.dwItemData = 4711;
    EXPECT_TRUE(m_menu.InsertMenuItem(1, &info, TRUE));
    EXPECT_EQ(m_menu.GetMenuItemID(1), 400u);
    info.fMask = MIIM_DATA;
    info.dwItemData = 4712;
    EXPECT_TRUE(m_menu.SetMenuItemInfo(400, &info));
    info.dwItemData = 0;
    EXPECT_TRUE(m_menu.GetMenuItemInfo(400, &info));
    EXPECT_EQ(info.dwItemData, 4712u);

    MENUINFO menuInfo = {};
    menuInfo.cbSize = sizeof menuInfo;
    menuInfo.fMask = MIM_MENUDATA;
    menuInfo.dwMenuData = 99;
    EXPECT_TRUE(m_menu.SetMenuInfo(&menuInfo));
    menuInfo.dwMenuData = 0;
    EXPECT_TRUE(m_menu.GetMenuInfo(&menuInfo));
    EXPECT_EQ(menuInfo.dwMenuData, 99u);
    EXPECT_TRUE(m_menu.SetMenuContextHelpId(1234));
    EXPECT_EQ(m_menu.GetMenuContextHelpId(), 1234u);
}

bool IsMenuShowing()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) && (info.flags & GUI_INMENUMODE) != 0;
}

TEST_F(FrameworkMenu, TrackedMenuReturnsTheChosenCommand)
{
    tests::ScopedWindow window;
    tests::LaterActions actions;
    actions.Add(
        [&] {
            window.PostMessage(WM_KEYDOWN, VK_DOWN, 0);
            window.PostMessage(WM_KEYDOWN, VK_RETURN, 0);
        },
        IsMenuShowing);
    EXPECT_EQ(m_menu.TrackPopupMenu(TPM_RETURNCMD | TPM_NONOTIFY, 200, 200, &window), static_cast<BOOL>(first_item));
    EXPECT_FALSE(actions.Failed());
}

TEST_F(FrameworkMenu, TrackedMenuCanBeCancelled)
{
    tests::ScopedWindow window;
    tests::LaterActions actions;
    actions.Add([] { ::EndMenu(); }, IsMenuShowing);
    EXPECT_EQ(m_menu.TrackPopupMenuEx(TPM_RETURNCMD, 200, 200, &window, nullptr), 0);
    EXPECT_FALSE(actions.Failed());
}
} // namespace
