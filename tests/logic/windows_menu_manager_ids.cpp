// The menu manager's identifiers and searches on menus that are records.

#include <gtest/gtest.h>

#include <random>
#include <utility>

#include "substitutes/FakeMenuPlatform.h"
#include "windows/MenueManager.h"

namespace
{
constexpr unsigned int string_flags = 0;
constexpr unsigned int separator_flags = 2048;
constexpr unsigned int submenu_id = 0xFFFFFFFF;
} // namespace

TEST(MenuManagerIds, ANewManagerBeginsWithOne)
{
    CMenueManager manager;
    EXPECT_EQ(manager.GetNewID(), 1U);
    EXPECT_EQ(manager.GetNewID(), 2U);
    EXPECT_EQ(manager.GetNewID(), 3U);
}

TEST(MenuManagerIds, TheNextIdIsTheOneSet)
{
    CMenueManager manager;
    manager.GetNewID();
    manager.SetNewID(5000);
    EXPECT_EQ(manager.GetNewID(), 5000U);
    EXPECT_EQ(manager.GetNewID(), 5001U);
}

TEST(MenuManagerIds, TheLargestIdIsFollowedByZero)
{
    CMenueManager manager;
    manager.SetNewID(0xFFFFFFFF);
    EXPECT_EQ(manager.GetNewID(), 0xFFFFFFFFU);
    EXPECT_EQ(manager.GetNewID(), 0U);
}

TEST(MenuManagerIds, CopiesGoOnFromTheSameIdOnTheirOwn)
{
    CMenueManager manager;
    manager.SetNewID(40);
    CMenueManager copy(manager);
    EXPECT_EQ(copy.GetNewID(), 40U);
    EXPECT_EQ(copy.GetNewID(), 41U);
    EXPECT_EQ(manager.GetNewID(), 40U);
    manager = copy;
    EXPECT_EQ(manager.GetNewID(), 42U);
    CMenueManager const later(copy);
    EXPECT_EQ(copy.GetNewID(), 42U);
    manager = later;
    EXPECT_EQ(manager.GetNewID(), 42U);
}

TEST(MenuManagerIds, AppendedStringsGetRunningIds)
{
    CMenueManager manager;
    FakeMenu menu;
    EXPECT_EQ(manager.AppendString(menu.Object(), L"&Open\tCtrl+O"), 1U);
    EXPECT_EQ(manager.AppendString(menu.Object(), L""), 2U);
    ASSERT_EQ(menu.items.size(), 2U);
    EXPECT_EQ(menu.items[0].text, L"&Open\tCtrl+O");
    EXPECT_EQ(menu.items[0].id, 1U);
    EXPECT_EQ(menu.items[0].flags, string_flags);
    EXPECT_EQ(menu.items[1].id, 2U);
    EXPECT_EQ(manager.GetNewID(), 3U);
}

TEST(MenuManagerIds, ARefusedStringGivesZeroAndUsesItsIdUp)
{
    CMenueManager manager;
    FakeMenu invalid;
    invalid.valid = false;
    EXPECT_EQ(manager.AppendString(invalid.Object(), L"item"), 0U);
    EXPECT_EQ(manager.GetNewID(), 2U);
}

TEST(MenuManagerIds, SeparatorsUseNoId)
{
    CMenueManager manager;
    FakeMenu menu;
    EXPECT_TRUE(manager.AppendSeparator(menu.Object()));
    ASSERT_EQ(menu.items.size(), 1U);
    EXPECT_EQ(menu.items[0].flags, separator_flags);
    EXPECT_EQ(menu.items[0].id, 0U);
    EXPECT_EQ(menu.items[0].text, L"");
    menu.valid = false;
    EXPECT_FALSE(manager.AppendSeparator(menu.Object()));
    EXPECT_EQ(manager.GetNewID(), 1U);
}

TEST(MenuManagerSearch, OfTwoItemsOfOneTextTheLaterIsFound)
{
    FakeMenu menu;
    menu.items = {{0, 1, L"same"}, {0, 2, L"other"}, {0, 3, L"same"}, {0, 4, L"last"}};
    EXPECT_EQ(CMenueManager::FindItem(menu.Object(), CString(L"same")), 2);
    EXPECT_EQ(CMenueManager::FindItem(menu.Object(), CString(L"other")), 1);
}

TEST(MenuManagerSearch, TextIsComparedExactly)
{
    FakeMenu menu;
    menu.items = {{0, 1, L"&Open\tCtrl+O"}};
    EXPECT_EQ(CMenueManager::FindItem(menu.Object(), CString(L"&Open\tCtrl+O")), 0);
    for (wchar_t const * similar : {L"Open\tCtrl+O", L"&Open", L"&open\tCtrl+O", L"&Open\tCtrl+O ", L""})
    {
        EXPECT_EQ(CMenueManager::FindItem(menu.Object(), CString(similar)), -1) << CStringA(similar).GetString();
    }
}

TEST(MenuManagerSearch, NoTextFindsTheLastSeparator)
{
    FakeMenu menu;
    menu.items = {{separator_flags, 0, L""}, {0, 1, L"one"}, {separator_flags, 0, L""}, {0, 2, L"two"}};
    EXPECT_EQ(CMenueManager::FindItem(menu.Object(), CString()), 2);
}

TEST(MenuManagerSearch, OfTwoItemsOfOneIdTheLaterIsFound)
{
    FakeMenu menu;
    menu.items = {{0, 7, L"a"}, {0, 7, L"b"}, {0, 8, L"c"}};
    EXPECT_EQ(CMenueManager::FindItem(menu.Object(), 7U), 1);
    EXPECT_EQ(CMenueManager::FindItem(menu.Object(), 9U), -1);
}

TEST(MenuManagerSearch, SeparatorsAndSubmenusAreFoundByTheirIds)
{
    FakeMenu subMenu;
    FakeMenu menu;
    menu.items = {
        {separator_flags, 0, L""}, {0, submenu_id, L"sub", &subMenu}, {separator_flags, 0, L""}, {0, 1, L"x"}};
    EXPECT_EQ(CMenueManager::FindItem(menu.Object(), 0U), 2);
    EXPECT_EQ(CMenueManager::FindItem(menu.Object(), submenu_id), 1);
}

TEST(MenuManagerSearch, EmptyAndInvalidMenusHaveNoItem)
{
    FakeMenu empty;
    FakeMenu invalid;
    invalid.valid = false;
    for (FakeMenu * const menu : {&empty, &invalid})
    {
        EXPECT_EQ(CMenueManager::FindItem(menu->Object(), CString(L"x")), -1);
        EXPECT_EQ(CMenueManager::FindItem(menu->Object(), CString()), -1);
        EXPECT_EQ(CMenueManager::FindItem(menu->Object(), 0U), -1);
        EXPECT_EQ(CMenueManager::FindItem(menu->Object(), submenu_id), -1);
        EXPECT_EQ(CMenueManager::FindSubMenue(menu->Object(), CString(L"x")), nullptr);
    }
}

TEST(MenuManagerSearch, SubmenuIsThatOfTheLastItemOfTheText)
{
    FakeMenu first;
    FakeMenu second;
    FakeMenu menu;
    menu.items = {{0, submenu_id, L"twice", &first}, {0, submenu_id, L"twice", &second}, {0, 3, L"plain"}};
    EXPECT_EQ(CMenueManager::FindSubMenue(menu.Object(), CString(L"twice")), &second.Object());
    EXPECT_EQ(CMenueManager::FindSubMenue(menu.Object(), CString(L"plain")), nullptr);
    EXPECT_EQ(CMenueManager::FindSubMenue(menu.Object(), CString(L"none")), nullptr);

    menu.items.push_back({0, 4, L"twice"});
    EXPECT_EQ(CMenueManager::FindSubMenue(menu.Object(), CString(L"twice")), nullptr)
        << "a plain item of that text hides the submenus before it";
}

TEST(MenuManagerSearch, ApplicationMenuIsTheMainWindows)
{
    FakeMenuPlatform & platform = FakeMenuPlatform::Current();
    FakeMenu menu;
    platform.mainWindowMenu = &menu;
    platform.menuBarsDrawn = 0;
    EXPECT_EQ(CMenueManager::ApplicationMenue(), &menu.Object());
    EXPECT_EQ(platform.menuBarsDrawn, 0);
    CMenueManager::DrawApplicationMenue();
    EXPECT_EQ(platform.menuBarsDrawn, 1);
    platform.mainWindowMenu = nullptr;
    EXPECT_EQ(CMenueManager::ApplicationMenue(), nullptr);
}

TEST(MenuManagerSearch, RandomMenusGiveTheLastMatch)
{
    std::mt19937 random(20);
    for (int round = 0; round < 300; ++round)
    {
        FakeMenu menu;
        size_t const count = random() % 12;
        for (size_t i = 0; i < count; ++i)
        {
            menu.items.push_back({0, static_cast<unsigned int>(random() % 4), std::wstring(random() % 3, L'a')});
        }
        for (unsigned int wanted = 0; wanted < 4; ++wanted)
        {
            int lastId = -1;
            int lastText = -1;
            for (int i = 0; i < static_cast<int>(count); ++i)
            {
                lastId = menu.items[static_cast<size_t>(i)].id == wanted ? i : lastId;
                lastText = menu.items[static_cast<size_t>(i)].text.size() == wanted ? i : lastText;
            }
            EXPECT_EQ(CMenueManager::FindItem(menu.Object(), wanted), lastId);
            EXPECT_EQ(CMenueManager::FindItem(menu.Object(), CString(L'a', static_cast<int>(wanted))), lastText);
        }
    }
}
