// Records of tree items, how they match, and searches, without a window.

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "AllocationCount.h"
#include "controls/XTreeItems.h"

namespace
{
using xtree::MatchesBest;
using xtree::MatchesExactly;
using xtree::PassesKey;

/// A tree in memory.
struct Node
{
    explicit Node(std::string theName, int sortKey = -1) : name(std::move(theName)) { record.sortKey = sortKey; }
    Node & Add(std::string child, int sortKey = -1)
    {
        children.push_back(std::make_unique<Node>(std::move(child), sortKey));
        children.back()->parent = this;
        return *children.back();
    }

    std::string name;
    XTreeItemData record;
    Node * parent = nullptr;
    std::vector<std::unique_ptr<Node>> children;
};

struct MemoryTree
{
    using Item = Node *;
    Node * First(Node * node) const { return node->children.empty() ? nullptr : node->children.front().get(); }
    Node * Next(Node * node) const
    {
        std::vector<std::unique_ptr<Node>> const & siblings = node->parent->children;
        for (std::size_t i = 0; i + 1 < siblings.size(); ++i)
        {
            if (siblings[i].get() == node)
                return siblings[i + 1].get();
        }
        return nullptr;
    }
    XTreeItemData const * Record(Node * node) const { return &node->record; }
};

std::vector<std::string> Visited(Node & start, bool withLaterSiblings)
{
    MemoryTree tree;
    std::vector<std::string> names;
    for (xtree::Walk walk(tree, &start, withLaterSiblings); walk.Current() != nullptr; walk.Advance())
        names.push_back(std::to_string(walk.Level()) + walk.Current()->name);
    return names;
}

class TreeRecords : public testing::Test
{
protected:
    ~TreeRecords() override
    {
        xtree::ReturnAllRecords(m_inUse, m_stock);
        xtree::FreeRecords(m_stock);
    }
    XTreeItemData * Take() { return xtree::TakeRecord(m_inUse, m_stock); }

    xtree::Records m_inUse;
    xtree::Records m_stock;
};

using TreeNames = std::vector<std::string>;
} // namespace

TEST_F(TreeRecords, AreNewWithAllDefaults)
{
    XTreeItemData const * const record = Take();
    EXPECT_EQ(record->type, -1);
    EXPECT_EQ(record->id, -1);
    for (int const part : record->clavis)
        EXPECT_EQ(part, -1);
    EXPECT_EQ(record->ptr, nullptr);
    EXPECT_EQ(record->sortKey, -1);
    EXPECT_EQ(m_inUse.size(), 1u);
    EXPECT_TRUE(m_stock.empty());
}

TEST_F(TreeRecords, ComeFromTheFrontOfTheStockAndGoBehindItsEnd)
{
    XTreeItemData * const first = Take();
    XTreeItemData * const second = Take();
    xtree::ReturnRecord(m_inUse, m_stock, second);
    xtree::ReturnRecord(m_inUse, m_stock, first);
    EXPECT_EQ(Take(), second);
    EXPECT_EQ(Take(), first);
    EXPECT_TRUE(m_stock.empty());
}

TEST_F(TreeRecords, OfTheStockAreResetButForTheSortKey)
{
    XTreeItemData * const record = Take();
    *record = {1, 2, {1, 2, 3, 4, 5, 6, 7, 8}, this, 9};
    xtree::ReturnRecord(m_inUse, m_stock, record);
    EXPECT_EQ(record->type, 1) << "a record in the stock stays readable as it was";
    ASSERT_EQ(Take(), record);
    EXPECT_EQ(record->type, -1);
    EXPECT_EQ(record->id, -1);
    EXPECT_EQ(record->clavis[0], -1);
    EXPECT_EQ(record->clavis[7], -1);
    EXPECT_EQ(record->ptr, nullptr);
    EXPECT_EQ(record->sortKey, 9);
}

TEST_F(TreeRecords, ThatAreNotInUseAreLeftAlone)
{
    XTreeItemData stranger;
    Take();
    xtree::ReturnRecord(m_inUse, m_stock, &stranger);
    xtree::ReturnRecord(m_inUse, m_stock, nullptr);
    EXPECT_EQ(m_inUse.size(), 1u);
    EXPECT_TRUE(m_stock.empty());
}

TEST_F(TreeRecords, ARefillAllocatesNothing)
{
    for (int i = 0; i < 5000; ++i)
        Take();
    xtree::ReturnAllRecords(m_inUse, m_stock);
    std::size_t const before = tests::AllocationsSoFar().count;
    for (int i = 0; i < 5000; ++i)
        Take();
    xtree::ReturnAllRecords(m_inUse, m_stock);
    EXPECT_EQ(tests::AllocationsSoFar().count, before);
    EXPECT_EQ(m_stock.size(), 5000u);
}

TEST_F(TreeRecords, AHundredThousandAreFilledFoundAndPutBackAndARefillAllocatesNothing)
{
    constexpr int count = 100000;
    auto const fill = [&] {
        for (int i = 0; i < count; ++i)
            Take()->id = i;
    };
    fill();
    int hits = 0;
    for (XTreeItemData const * const record : m_inUse)
        hits += MatchesBest(record, -1, count - 1, nullptr);
    EXPECT_EQ(hits, 1);
    // Back at once: the list's nodes go over as they are, whatever their number.
    xtree::Records::const_iterator const first = m_inUse.begin();
    std::size_t const before = tests::AllocationsSoFar().count;
    xtree::ReturnAllRecords(m_inUse, m_stock);
    EXPECT_EQ(xtree::Records::const_iterator(m_stock.begin()), first);
    fill();
    EXPECT_EQ(tests::AllocationsSoFar().count, before);
    EXPECT_EQ(m_inUse.size(), static_cast<std::size_t>(count));
    EXPECT_TRUE(m_stock.empty());
}

TEST(TreeMatch, BestTakesMinusOneForAnythingAndExactForAValue)
{
    XTreeItemData typed;
    typed.type = 3;
    typed.id = 7;
    XTreeItemData untyped;
    untyped.id = 7;
    EXPECT_TRUE(MatchesBest(&typed, -1, 7, nullptr));
    EXPECT_TRUE(MatchesBest(&untyped, -1, 7, nullptr));
    EXPECT_FALSE(MatchesExactly(&typed, -1, 7, nullptr));
    EXPECT_TRUE(MatchesExactly(&untyped, -1, 7, nullptr));
    EXPECT_FALSE(MatchesBest(&typed, 4, -1, nullptr));
    EXPECT_FALSE(MatchesBest(&typed, 3, 8, nullptr));
}

TEST(TreeMatch, ComparesAllEightPartsOfTheKey)
{
    XTreeItemData record;
    for (int i = 0; i < 8; ++i)
        record.clavis[i] = i;
    int const anything[8] = {-1, -1, -1, -1, -1, -1, -1, -1};
    EXPECT_TRUE(MatchesBest(&record, -1, -1, anything));
    EXPECT_FALSE(MatchesExactly(&record, -1, -1, anything));
    int key[8] = {0, 1, 2, 3, 4, 5, 6, 7};
    EXPECT_TRUE(MatchesExactly(&record, -1, -1, key));
    for (int i = 0; i < 8; ++i)
    {
        key[i] = 100;
        EXPECT_FALSE(MatchesBest(&record, -1, -1, key)) << i;
        EXPECT_FALSE(MatchesExactly(&record, -1, -1, key)) << i;
        key[i] = -1;
        EXPECT_TRUE(MatchesBest(&record, -1, -1, key)) << i;
        EXPECT_FALSE(MatchesExactly(&record, -1, -1, key)) << i;
        key[i] = i;
    }
}

TEST(TreeMatch, IsFalseWithoutARecord)
{
    EXPECT_FALSE(MatchesBest(nullptr, -1, -1, nullptr));
    EXPECT_FALSE(MatchesExactly(nullptr, -1, -1, nullptr));
}

TEST(TreeKeys, EachBitLetsItsClassThrough)
{
    // What each bit stands for, key by key.
    std::vector<std::set<unsigned int>> classes(6);
    for (unsigned int key = 113; key <= 123; ++key)
        classes[0].insert(key);
    for (unsigned int i = 0; i < 10; ++i)
        classes[1].insert({48 + i, 96 + i});
    for (unsigned int key = 65; key <= 90; ++key)
        classes[2].insert(key);
    classes[3] = {46, 8, 9, 13, 16, 17, 32, 20};
    classes[4] = {37, 38, 39, 40, 12, 33, 34, 35, 36};
    classes[5] = {32};
    for (unsigned int key = 0; key < 256; ++key)
    {
        for (unsigned int bit = 0; bit < 6; ++bit)
            EXPECT_EQ(PassesKey(1u << bit, key), classes[bit].contains(key)) << "bit " << bit << ", key " << key;
        EXPECT_FALSE(PassesKey(0, key));
        EXPECT_FALSE(PassesKey(64, key));
        EXPECT_TRUE(PassesKey(255, key));
    }
    EXPECT_FALSE(PassesKey(63 + 64, 112)) << "F1 is in no class, and 127 is not all";
    EXPECT_FALSE(PassesKey(511, 112));
}

TEST(TreeSortPosition, IsAheadOfTheFirstGreaterKey)
{
    Node top("top");
    Node & parent = top.Add("parent");
    Node * const one = &parent.Add("one", 1);
    parent.Add("none", -1);
    Node * const three = &parent.Add("three", 3);
    parent.Add("seven", 7);
    MemoryTree tree;
    using Found = xtree::Position<Node *>;
    auto const find = [&](Node * below, int key) { return xtree::FindSortPosition(tree, below, &parent, key); };
    EXPECT_EQ(find(&parent, 0).place, Found::Place::first);
    EXPECT_EQ(find(&parent, 2).item->name, "none");
    EXPECT_EQ(find(&parent, 3).item, three) << "equal keys stay in order of arrival";
    EXPECT_EQ(find(&parent, 7).place, Found::Place::last);
    EXPECT_EQ(find(&parent, 8).place, Found::Place::last);
    EXPECT_EQ(find(nullptr, 3).item, three) << "the first top-level item takes the place of no parent";
    EXPECT_EQ(find(one, 3).place, Found::Place::last);
    EXPECT_EQ(xtree::FindSortPosition<MemoryTree>(tree, nullptr, nullptr, 3).place, Found::Place::last);
}

TEST(TreeWalk, VisitsAnItemBeforeItsChildrenInOrder)
{
    Node top("top");
    Node & a = top.Add("a");
    a.Add("aa").Add("aaa");
    a.Add("ab");
    top.Add("b").Add("ba");
    EXPECT_EQ(Visited(a, false), (TreeNames{"0a", "1aa", "2aaa", "1ab"}));
    EXPECT_EQ(Visited(a, true), (TreeNames{"0a", "1aa", "2aaa", "1ab", "0b", "1ba"}));
    EXPECT_EQ(Visited(*top.children.back(), true), (TreeNames{"0b", "1ba"})) << "not earlier siblings";
    EXPECT_EQ(Visited(*a.children.front(), true), (TreeNames{"0aa", "1aaa", "0ab"})) << "nothing above";
}

TEST(TreeWalk, GoesAsDeepAsTheTree)
{
    Node top("top");
    Node * node = &top;
    for (int i = 0; i < 20000; ++i)
        node = &node->Add("x");
    EXPECT_EQ(Visited(*top.children.front(), true).size(), 20000u);
    while (node != &top) // from below, so that their ends don't nest
    {
        node = node->parent;
        node->children.clear();
    }
}
