#include <gtest/gtest.h>

#include <list>
#include <string>
#include <vector>

#include "list/combo/ComboItems.h"

namespace
{
using XListCtrl::combo_item;
using XListCtrl::ComboItems;

class ComboItemList : public testing::Test
{
protected:
    void Fill(std::vector<std::wstring> const & texts)
    {
        for (std::wstring const & text : texts)
            m_items.Add(text);
    }
    std::vector<std::wstring> Texts() const
    {
        std::vector<std::wstring> texts;
        for (combo_item const & item : m_list)
            texts.push_back(item.text);
        return texts;
    }
    void Disable(std::vector<int> const & indices)
    {
        for (int const index : indices)
            m_items.At(index)->disabled = 1;
    }

    using Lines = std::vector<std::wstring>;

    std::list<combo_item> m_list;
    std::list<combo_item>::iterator m_cursor = m_list.end();
    std::int64_t m_selected = -1;
    std::wstring m_text;
    ComboItems m_items{m_list, m_cursor, m_selected, m_text};
};
} // namespace

TEST_F(ComboItemList, NewItemsHaveNothingButTheirText)
{
    EXPECT_EQ(m_items.Add(L"one"), 0);
    EXPECT_EQ(m_items.Add(L"two"), 1);
    EXPECT_EQ(m_items.Count(), 2);
    ASSERT_NE(m_items.At(1), nullptr);
    EXPECT_EQ(m_items.At(1)->text, L"two");
    EXPECT_EQ(m_items.At(1)->disabled, 0u);
    EXPECT_EQ(m_items.At(1)->flag, 0u);
    EXPECT_EQ(m_items.At(1)->data, 0);
    EXPECT_EQ(m_items.At(2), nullptr);
    EXPECT_EQ(m_items.At(-1), nullptr);
}

TEST_F(ComboItemList, InsertsBeforeAnIndexOrAtTheEnd)
{
    EXPECT_EQ(m_items.Insert(0, L"b"), 0);
    EXPECT_EQ(m_items.Insert(0, L"a"), 0);
    EXPECT_EQ(m_items.Insert(2, L"c"), 2);
    EXPECT_EQ(m_items.Insert(-1, L"d"), 3);
    EXPECT_EQ(m_items.Insert(99, L"e"), 4);
    EXPECT_EQ(m_items.Insert(-2, L"x"), -1);
    EXPECT_EQ(Texts(), (Lines{L"a", L"b", L"c", L"d", L"e"}));
}

TEST_F(ComboItemList, SelectionMovesOnWithItsItem)
{
    Fill({L"a", L"b", L"c"});
    m_items.Select(1);
    m_items.Insert(2, L"behind");
    EXPECT_EQ(m_selected, 1);
    m_items.Insert(1, L"at");
    EXPECT_EQ(m_selected, 2);
    m_items.Insert(0, L"before");
    EXPECT_EQ(m_selected, 3);
    m_items.Insert(-1, L"appended");
    EXPECT_EQ(m_selected, 3);
    EXPECT_EQ(m_items.At(m_selected)->text, L"b");
}

TEST_F(ComboItemList, DeletingLeavesTheSelectionsNumber)
{
    Fill({L"a", L"b", L"c"});
    m_items.Select(1);
    EXPECT_EQ(m_items.Delete(0), 2);
    EXPECT_EQ(m_selected, 1);
    EXPECT_EQ(m_text, L"b");
    EXPECT_EQ(m_items.Delete(2), -1);
    EXPECT_EQ(m_items.Delete(-1), -1);
    EXPECT_EQ(m_items.Delete(1), 1);
    EXPECT_EQ(m_items.Delete(0), 0);
    EXPECT_EQ(m_items.Delete(0), -1);
}

TEST_F(ComboItemList, FindsFromAnIndexOnWithItIncluded)
{
    Fill({L"apple", L"Apple pie", L"apple pie", L"pear", L"apple"});
    EXPECT_EQ(m_items.Find(-1, L"apple"), 0);
    EXPECT_EQ(m_items.Find(0, L"apple p"), 2);
    EXPECT_EQ(m_items.Find(2, L"apple p"), 2);
    EXPECT_EQ(m_items.Find(3, L"apple p"), -1);
    EXPECT_EQ(m_items.FindExact(-1, L"apple"), 0);
    EXPECT_EQ(m_items.FindExact(1, L"apple"), 4);
    EXPECT_EQ(m_items.FindExact(0, L"appl"), -1);
    EXPECT_EQ(m_items.FindExact(0, L"APPLE"), -1);
    EXPECT_EQ(m_items.Find(5, L"a"), -1);
    EXPECT_EQ(m_items.Find(-2, L"a"), -1);
    EXPECT_EQ(m_items.Find(-1, L""), 0);
}

TEST_F(ComboItemList, EmptyListFindsNothing)
{
    EXPECT_EQ(m_items.Find(-1, L""), -1);
    EXPECT_EQ(m_items.FindExact(0, L""), -1);
    EXPECT_EQ(m_items.Delete(0), -1);
    EXPECT_FALSE(m_items.Neighbour(true));
    EXPECT_FALSE(m_items.Neighbour(false));
    EXPECT_FALSE(m_items.PageNeighbour(true));
    EXPECT_FALSE(m_items.PageNeighbour(false));
}

TEST_F(ComboItemList, SelectsWithinTheListAlone)
{
    Fill({L"a", L"b"});
    EXPECT_EQ(m_items.Select(1), 1);
    EXPECT_EQ(m_text, L"b");
    EXPECT_EQ(m_items.Select(2), -1);
    EXPECT_EQ(m_items.Select(-2), -1);
    EXPECT_EQ(m_selected, 1);
    EXPECT_EQ(m_text, L"b");
    EXPECT_EQ(m_items.Select(-1), -1);
    EXPECT_EQ(m_selected, -1);
    EXPECT_EQ(m_text, L"");
}

TEST_F(ComboItemList, EmptyListTakesAnySelection)
{
    EXPECT_EQ(m_items.Select(7), -1);
    EXPECT_EQ(m_selected, 7);
}

TEST_F(ComboItemList, SelectsATextOrNothing)
{
    Fill({L"a", L"b", L"b"});
    EXPECT_EQ(m_items.SelectExact(-1, L"b"), 1);
    EXPECT_EQ(m_items.SelectExact(2, L"b"), 2);
    EXPECT_EQ(m_selected, 2);
    EXPECT_EQ(m_items.SelectExact(-1, L"c"), -1);
    EXPECT_EQ(m_selected, 2);
    EXPECT_EQ(m_text, L"b");
}

TEST_F(ComboItemList, TakesTheTextOfASelectedItemThatExists)
{
    Fill({L"a", L"b"});
    m_items.Select(1);
    m_text = L"free";
    m_items.TakeSelectedText();
    EXPECT_EQ(m_text, L"b");
    m_selected = 5;
    m_text = L"free";
    m_items.TakeSelectedText();
    EXPECT_EQ(m_text, L"free");
}

TEST_F(ComboItemList, ResetLeavesNothing)
{
    Fill({L"a", L"b"});
    m_items.Select(1);
    m_items.Reset();
    EXPECT_EQ(m_items.Count(), 0);
    EXPECT_EQ(m_selected, -1);
    EXPECT_EQ(m_text, L"");
}

TEST_F(ComboItemList, LinesOfATextReplaceTheItems)
{
    Fill({L"old"});
    m_items.Load(L"one\ntwo");
    EXPECT_EQ(Texts(), (Lines{L"one", L"two"}));
    m_items.Load(L"\none\n\n two \n");
    EXPECT_EQ(Texts(), (Lines{L"one", L" two "}));
    m_items.Load(L"");
    EXPECT_EQ(Texts(), Lines{});
}

TEST_F(ComboItemList, NextStepsOverDisabledItems)
{
    Fill({L"0", L"1", L"2", L"3", L"4"});
    Disable({1, 2});
    m_items.Select(0);
    EXPECT_EQ(m_items.Neighbour(true), 3);
    m_items.Select(3);
    EXPECT_EQ(m_items.Neighbour(false), 0);
    EXPECT_EQ(m_items.Neighbour(true), 4);
    m_items.Select(4);
    EXPECT_FALSE(m_items.Neighbour(true));
}

TEST_F(ComboItemList, NothingBeyondTheOutermostEnabledItems)
{
    Fill({L"0", L"1", L"2"});
    Disable({0, 2});
    m_items.Select(1);
    EXPECT_FALSE(m_items.Neighbour(true));
    EXPECT_FALSE(m_items.Neighbour(false));
}

TEST_F(ComboItemList, WithoutASelectionNextIsTheFirst)
{
    Fill({L"0", L"1"});
    EXPECT_EQ(m_items.Neighbour(true), 0);
    EXPECT_FALSE(m_items.Neighbour(false));
}

TEST_F(ComboItemList, ASelectionBeyondTheListHasTheLastItemBeforeIt)
{
    Fill({L"0", L"1", L"2"});
    Disable({2});
    m_selected = 1LL << 40;
    EXPECT_EQ(m_items.Neighbour(false), 1);
    EXPECT_FALSE(m_items.Neighbour(true));
    m_selected = -(1LL << 40);
    EXPECT_FALSE(m_items.Neighbour(false));
    EXPECT_FALSE(m_items.Neighbour(true));
}

TEST_F(ComboItemList, PagesAreTenItemsDisabledOnesIncluded)
{
    for (int i = 0; i < 25; ++i)
        m_items.Add(std::to_wstring(i));
    Disable({10, 24});
    m_items.Select(0);
    EXPECT_EQ(m_items.PageNeighbour(true), 10);
    m_items.Select(20);
    EXPECT_EQ(m_items.PageNeighbour(true), 24);
    EXPECT_EQ(m_items.PageNeighbour(false), 10);
    m_items.Select(7);
    EXPECT_EQ(m_items.PageNeighbour(false), 0);
}

TEST_F(ComboItemList, PagesFromOutsideTheListBeginAtItsStart)
{
    for (int i = 0; i < 25; ++i)
        m_items.Add(std::to_wstring(i));
    for (std::int64_t const outside : {std::int64_t(-1), std::int64_t(25), std::int64_t(1) << 40})
    {
        m_selected = outside;
        EXPECT_EQ(m_items.PageNeighbour(true), 10);
        EXPECT_EQ(m_items.PageNeighbour(false), 0);
    }
}

TEST_F(ComboItemList, CompletesWithTheFirstItemThatBeginsSo)
{
    Fill({L"pear", L"Apple", L"apple pie", L"apple"});
    ASSERT_NE(m_items.Completion(L"app"), nullptr);
    EXPECT_EQ(m_items.Completion(L"app")->text, L"apple pie");
    EXPECT_EQ(m_items.Completion(L"pear")->text, L"pear");
    EXPECT_EQ(m_items.Completion(L"APP"), nullptr);
    EXPECT_EQ(m_items.Completion(L"pears"), nullptr);
}

TEST_F(ComboItemList, SuggestsWhatIsLongerThanTheTyped)
{
    Fill({L"apple", L"apple pie", L"Apple", L"pear", L"apple juice"});
    Disable({4});
    m_items.At(1)->data = 42;
    std::list<combo_item> const offered = m_items.Suggestions(L"apple");
    ASSERT_EQ(offered.size(), 2u);
    EXPECT_EQ(offered.front().text, L"apple pie");
    EXPECT_EQ(offered.front().data, 42);
    EXPECT_EQ(offered.back().text, L"apple juice");
    EXPECT_EQ(offered.back().disabled, 1u);
    EXPECT_TRUE(m_items.Suggestions(L"x").empty());
}
