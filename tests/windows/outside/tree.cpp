// The tree control.

#include <algorithm>
#include <iterator>
#include <set>
#include <type_traits>

#include "ControlTest.h"

namespace outside::controls
{
namespace
{
using Data = CXTreeCtrl::ItemData;

class Tree : public CXTreeCtrl
{
public:
    using CXTreeCtrl::AllesInDenVorrat;
    using CXTreeCtrl::DeleteAllItems;
    using CXTreeCtrl::DeleteItem;
    using CXTreeCtrl::ExpandTreeR;
    using CXTreeCtrl::FindItemRecursion;
    using CXTreeCtrl::FindSortPosition;
    using CXTreeCtrl::GetThisMessageMap;
    using CXTreeCtrl::InsertItem;
    using CXTreeCtrl::m_itemsInUse;
    using CXTreeCtrl::m_itemStock;
    using CXTreeCtrl::m_keyFlags;
    using CXTreeCtrl::NeuesItemData;
    using CXTreeCtrl::OnLButtonDblClk;

    int doubleClicks = 0;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        doubleClicks += message == WM_LBUTTONDBLCLK ? 1 : 0;
        return CXTreeCtrl::DefWindowProc(message, wParam, lParam);
    }
};

class OutsideTree : public testing::Test
{
protected:
    void SetUp() override { Make(m_tree); }
    void Make(Tree & tree)
    {
        ASSERT_TRUE(tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT,
                                CRect(10, 10, 250, 250), m_host, 5));
    }
    void TearDown() override
    {
        if (m_tree.GetSafeHwnd() != nullptr)
            m_tree.DestroyWindow();
    }
    HTREEITEM Add(wchar_t const * text, HTREEITEM parent = nullptr, int type = -1, int id = -1, int sortKey = -1)
    {
        return m_tree.InsertTreeItem(text, 0, 0, parent, type, id, TVI_LAST, sortKey);
    }
    std::wstring Children(HTREEITEM parent)
    {
        std::wstring all;
        for (HTREEITEM item = m_tree.GetChildItem(parent); item != nullptr; item = m_tree.GetNextSiblingItem(item))
            all += std::wstring(W(m_tree.GetItemText(item))) + L" ";
        return all;
    }
    std::wstring Names(std::list<HTREEITEM> const & items)
    {
        std::wstring all;
        for (HTREEITEM const item : items)
            all += W(m_tree.GetItemText(item)) + L" ";
        return all;
    }
    bool Expanded(HTREEITEM item) { return (m_tree.GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) != 0; }

    Host m_host;
    Tree m_tree;
};

TEST_F(OutsideTree, RecordLayoutAndDefaults)
{
    Data const d;
    EXPECT_EQ(d.type, -1);
    EXPECT_EQ(d.id, -1);
    for (int const each : d.clavis)
        EXPECT_EQ(each, -1);
    EXPECT_EQ(d.ptr, nullptr);
    EXPECT_EQ(d.sortKey, -1);
    static_assert(std::is_standard_layout_v<Data>);
    static_assert(offsetof(Data, type) == 0 && offsetof(Data, id) == 4 && offsetof(Data, clavis) == 8 &&
                  offsetof(Data, ptr) == 40 && offsetof(Data, sortKey) == 48);
    static_assert(std::is_same_v<decltype(Tree::m_itemsInUse), std::list<Data *>>);
    static_assert(std::is_same_v<decltype(Tree::m_itemStock), std::list<Data *>>);
    static_assert(std::is_unsigned_v<decltype(Tree::m_keyFlags)> && sizeof(Tree::m_keyFlags) == 4);
    EXPECT_TRUE(m_tree.m_itemsInUse.empty());
    EXPECT_TRUE(m_tree.m_itemStock.empty());
    EXPECT_EQ(m_tree.m_keyFlags, 0u);
    EXPECT_STREQ(RUNTIME_CLASS(CXTreeCtrl)->m_lpszClassName, "CXTreeCtrl");
    EXPECT_EQ(CXTreeCtrl::classCXTreeCtrl.m_pfnGetBaseClass(), RUNTIME_CLASS(CTreeCtrl));
    std::vector<MapEntry> const entries = EntriesOf(Tree::GetThisMessageMap());
    EXPECT_TRUE(Handles(entries, WM_LBUTTONDBLCLK));
    EXPECT_EQ(entries.size(), 1u);
    EXPECT_EQ(WM_XTREECTRL_DBLCLK, ::RegisterWindowMessageW(L"WM_XTREECTRL_DBLCLK"));
}

TEST_F(OutsideTree, InsertionOverloads)
{
    HTREEITEM const a = m_tree.InsertTreeItem(L"a", nullptr, TVI_LAST, -1);
    HTREEITEM const b = m_tree.InsertTreeItem(L"b", 1, 2, nullptr, TVI_FIRST, -1);
    HTREEITEM const c = m_tree.InsertTreeItem(L"c", 3, 4, nullptr, 5, 6, a, -1);
    EXPECT_EQ(Children(TVI_ROOT), L"b a c ");
    int image = 0, selected = 0;
    m_tree.GetItemImage(b, image, selected);
    EXPECT_EQ(image, 1);
    EXPECT_EQ(selected, 2);
    m_tree.GetItemImage(c, image, selected);
    EXPECT_EQ(image, 3);
    EXPECT_EQ(selected, 4);
    EXPECT_EQ(m_tree.GetItemType(a), -1);
    EXPECT_EQ(m_tree.GetItemId(b), -1);
    EXPECT_EQ(m_tree.GetItemType(c), 5);
    EXPECT_EQ(m_tree.GetItemId(c), 6);
    EXPECT_EQ(m_tree.GetItemData(c)->sortKey, -1);
    EXPECT_EQ(m_tree.m_itemsInUse.size(), 3u);
    EXPECT_EQ(reinterpret_cast<Data *>(m_tree.CTreeCtrl::GetItemData(c)), m_tree.GetItemData(c));
    EXPECT_EQ(m_tree.m_itemsInUse.back(), m_tree.GetItemData(c));
    HTREEITEM const child = m_tree.InsertTreeItem(L"a1", a, TVI_LAST, -1);
    EXPECT_EQ(m_tree.GetParentItem(child), a);
    m_tree.InsertTreeItem(L"a0", 0, 0, a, TVI_FIRST, -1);
    m_tree.InsertTreeItem(L"a2", 0, 0, a, 1, 1, TVI_LAST, -1);
    m_tree.InsertTreeItem(L"a11", a, child, -1);
    EXPECT_EQ(Children(a), L"a0 a1 a11 a2 ");
}

TEST_F(OutsideTree, SortByTextThroughEitherWay)
{
    HTREEITEM const p = Add(L"p");
    for (wchar_t const * const text : {L"m", L"c", L"x", L"a"})
        m_tree.InsertTreeItem(text, p, TVI_SORT, -1);
    EXPECT_EQ(Children(p), L"a c m x ");
    HTREEITEM const q = Add(L"q");
    for (wchar_t const * const text : {L"m", L"c", L"x", L"a"})
    {
        HTREEITEM const item = m_tree.InsertTreeItem(text, 0, 0, q, 1, 2, TVI_LAST, -65533);
        EXPECT_EQ(m_tree.GetItemData(item)->sortKey, -65533);
    }
    EXPECT_EQ(Children(q), L"a c m x ");
    EXPECT_EQ(reinterpret_cast<INT_PTR>(TVI_SORT), -65533);
}

TEST_F(OutsideTree, SortKeysKeepTheOrderOfArrival)
{
    HTREEITEM const p = Add(L"p");
    m_tree.InsertTreeItem(L"5a", p, TVI_FIRST, 5);
    m_tree.InsertTreeItem(L"3", p, TVI_LAST, 3);
    m_tree.InsertTreeItem(L"5b", p, TVI_FIRST, 5);
    EXPECT_EQ(Children(p), L"3 5a 5b ");
    m_tree.InsertTreeItem(L"4", 0, 0, p, TVI_LAST, 4);
    m_tree.InsertTreeItem(L"0", 0, 0, p, 1, 1, TVI_LAST, 0);
    EXPECT_EQ(Children(p), L"0 3 4 5a 5b ");
    // A key of -1 counts as smaller than any positive one.
    m_tree.InsertTreeItem(L"none", p, TVI_LAST, -1);
    m_tree.InsertTreeItem(L"9", p, TVI_FIRST, 9);
    m_tree.InsertTreeItem(L"1", p, TVI_FIRST, 1);
    EXPECT_EQ(Children(p), L"0 1 3 4 5a 5b none 9 ");
    m_tree.InsertTreeItem(L"-2", p, TVI_LAST, -2);
    EXPECT_EQ(Children(p), L"-2 0 1 3 4 5a 5b none 9 ");
    EXPECT_EQ(m_tree.GetItemData(m_tree.GetChildItem(p))->sortKey, -2);
}

TEST_F(OutsideTree, FindSortPositionItself)
{
    EXPECT_EQ(m_tree.FindSortPosition(nullptr, 5), TVI_LAST);
    HTREEITEM const p = Add(L"p");
    EXPECT_EQ(m_tree.FindSortPosition(p, 5), TVI_LAST);
    EXPECT_EQ(m_tree.FindSortPosition(nullptr, 5), TVI_LAST);
    HTREEITEM const a = Add(L"a", p, 0, 0, 10);
    HTREEITEM const b = Add(L"b", p, 0, 0, 20);
    EXPECT_EQ(m_tree.FindSortPosition(p, 5), TVI_FIRST);
    EXPECT_EQ(m_tree.FindSortPosition(p, 10), a);
    EXPECT_EQ(m_tree.FindSortPosition(p, 19), a);
    EXPECT_EQ(m_tree.FindSortPosition(p, 20), TVI_LAST);
    // At the top level the children of the first top-level item are looked at.
    Add(L"second");
    EXPECT_EQ(m_tree.FindSortPosition(nullptr, 5), TVI_FIRST);
    EXPECT_EQ(m_tree.FindSortPosition(nullptr, 15), a);
    EXPECT_EQ(m_tree.FindSortPosition(nullptr, 25), TVI_LAST);
    EXPECT_EQ(m_tree.FindSortPosition(p, 15), a);
    EXPECT_NE(b, nullptr);
}

TEST_F(OutsideTree, TopLevelSortedInsertPositions)
{
    HTREEITEM const first = Add(L"first", nullptr, 0, 0, 50);
    ASSERT_NE(first, nullptr);
    // No children below the first item: at the end, whatever the keys of the top level.
    m_tree.InsertTreeItem(L"ten", nullptr, TVI_FIRST, 10);
    EXPECT_EQ(Children(TVI_ROOT), L"first ten ");
    // A child with a greater key: at the beginning.
    Add(L"child", first, 0, 0, 100);
    m_tree.InsertTreeItem(L"sixty", nullptr, TVI_LAST, 60);
    EXPECT_EQ(Children(TVI_ROOT), L"sixty first ten ");
}

TEST_F(OutsideTree, TopLevelSortedInsertBehindAChildOfAnother)
{
    HTREEITEM const first = Add(L"first", nullptr, 0, 0, 50);
    Add(L"c10", first, 0, 0, 10);
    Add(L"c30", first, 0, 0, 30);
    // Where the platform puts it is its own matter; nothing else suffers.
    HTREEITEM const item = m_tree.InsertTreeItem(L"twenty", nullptr, TVI_LAST, 20);
    EXPECT_EQ(Children(first).find(L"c10 "), 0u);
    EXPECT_EQ(m_tree.m_itemsInUse.size(), item != nullptr ? 4u : 3u);
    if (item != nullptr)
    {
        EXPECT_EQ(m_tree.GetItemData(item)->sortKey, 20);
        m_tree.DeleteTreeItem(item);
    }
    EXPECT_EQ(Children(TVI_ROOT), L"first ");
    m_tree.DeleteTreeItem(first);
    EXPECT_TRUE(m_tree.m_itemsInUse.empty());
    EXPECT_EQ(m_tree.GetCount(), 0u);
}

TEST_F(OutsideTree, RecordAccess)
{
    HTREEITEM const item = Add(L"a", nullptr, 3, 4);
    Data * const d = m_tree.GetItemData(item);
    ASSERT_NE(d, nullptr);
    Tree const & constant = m_tree;
    EXPECT_EQ(constant.GetItemData(item), d);
    static_assert(std::is_same_v<decltype(constant.GetItemData(item)), Data const *> ||
                  std::is_same_v<decltype(constant.GetItemData(item)), Data *>);
    EXPECT_EQ(m_tree.GetItemClavis(item), d->clavis);
    int type = 0, id = 0;
    EXPECT_EQ(m_tree.GetItemClavis(item, type, id), d->clavis);
    EXPECT_EQ(type, 3);
    EXPECT_EQ(id, 4);
    int x = 0;
    EXPECT_EQ(m_tree.GetItemDataPtr(item), nullptr);
    m_tree.SetItemDataPtr(item, &x);
    EXPECT_EQ(m_tree.GetItemDataPtr(item), &x);
    EXPECT_EQ(d->ptr, &x);
    m_tree.SelectItem(nullptr);
    EXPECT_EQ(m_tree.GetSelectedItemData(), nullptr);
    m_tree.SelectItem(item);
    EXPECT_EQ(m_tree.GetSelectedItemData(), d);
}

TEST_F(OutsideTree, NullAndBareItems)
{
    EXPECT_EQ(m_tree.GetItemType(nullptr), -1);
    EXPECT_EQ(m_tree.GetItemId(nullptr), -1);
    EXPECT_EQ(m_tree.GetItemClavis(nullptr), nullptr);
    EXPECT_EQ(m_tree.GetItemDataPtr(nullptr), nullptr);
    EXPECT_EQ(m_tree.GetItemData(nullptr), nullptr);
    HTREEITEM const bare = m_tree.InsertItem(L"bare", TVI_ROOT, TVI_LAST);
    ASSERT_NE(bare, nullptr);
    EXPECT_EQ(m_tree.GetItemData(bare), nullptr);
    EXPECT_TRUE(m_tree.m_itemsInUse.empty());
    EXPECT_FALSE(m_tree.ItemDataMatchBest(bare, -1, -1, nullptr));
    EXPECT_FALSE(m_tree.ItemDataMatchExact(bare, -1, -1, nullptr));
    EXPECT_FALSE(m_tree.ItemDataMatch(bare, -1, -1, nullptr, L"bare", false));
    m_tree.InsertItem(L"other", 1, 2, TVI_ROOT, TVI_FIRST);
    EXPECT_EQ(Children(TVI_ROOT), L"other bare ");
    m_tree.SetItemDataPtr(nullptr, this);
    m_tree.DeleteTreeItem(bare);
    EXPECT_EQ(Children(TVI_ROOT), L"other ");
    EXPECT_TRUE(m_tree.m_itemStock.empty());
    m_tree.DeleteTreeItem(nullptr);
    m_tree.DeleteAllSubItems(nullptr);
    EXPECT_EQ(m_tree.FindItem(-1, -1, nullptr, static_cast<HTREEITEM>(nullptr), false), nullptr);
    EXPECT_EQ(m_tree.FindChildItem(-1, -1, nullptr, nullptr, nullptr, false), nullptr);
    std::list<HTREEITEM> found;
    EXPECT_EQ(m_tree.FindAllItems(found, -1, -1, nullptr, nullptr, false), 0u);
    EXPECT_EQ(m_tree.CollectAllItems(found, nullptr), 0u);
    EXPECT_TRUE(found.empty());
}

TEST_F(OutsideTree, Keys)
{
    HTREEITEM const item = Add(L"a");
    int * const key = m_tree.GetItemClavis(item);
    auto const is = [&](std::initializer_list<int> expected) {
        return std::vector<int>(key, key + 8) == std::vector<int>(expected);
    };
    int const values[] = {10, 11, 12, 13, 14, 15, 16, 17};
    m_tree.SetItemClavis8(item, values);
    EXPECT_TRUE(is({10, 11, 12, 13, 14, 15, 16, 17}));
    int const six[] = {1, 2, 3, 4, 5, 6};
    m_tree.SetItemClavis(item, six);
    EXPECT_TRUE(is({1, 2, 3, 4, 5, 6, 16, 17}));
    m_tree.SetItemData(item, 1, 2, six);
    EXPECT_TRUE(is({1, 2, 3, 4, 5, 6, -1, -1}));
    EXPECT_EQ(m_tree.GetItemType(item), 1);
    EXPECT_EQ(m_tree.GetItemId(item), 2);
    m_tree.SetItemData8(item, 3, 4, values);
    EXPECT_TRUE(is({10, 11, 12, 13, 14, 15, 16, 17}));
    EXPECT_EQ(m_tree.GetItemType(item), 3);
    m_tree.SetItemData(item, 5, 6, nullptr);
    EXPECT_TRUE(is({10, 11, 12, 13, 14, 15, 16, 17}));
    EXPECT_EQ(m_tree.GetItemId(item), 6);
    m_tree.SetItemData(item, 7, 8, six, 77, 88);
    EXPECT_TRUE(is({1, 2, 3, 4, 5, 6, 77, 88}));
    EXPECT_EQ(m_tree.GetItemType(item), 7);
    EXPECT_EQ(m_tree.GetItemId(item), 8);
    // The item's own key as the source.
    m_tree.SetItemData(item, 1, 1, key);
    EXPECT_TRUE(is({1, 2, 3, 4, 5, 6, -1, -1}));
}

TEST_F(OutsideTree, MatchRules)
{
    HTREEITEM const item = Add(L"Label", nullptr, 3, 7);
    int const key[] = {1, 2, 3, 4, 5, 6, 7, 8};
    m_tree.SetItemClavis8(item, key);
    EXPECT_TRUE(m_tree.ItemDataMatchBest(item, -1, 7, nullptr));
    EXPECT_FALSE(m_tree.ItemDataMatchExact(item, -1, 7, nullptr));
    EXPECT_TRUE(m_tree.ItemDataMatchBest(item, 3, -1, nullptr));
    EXPECT_TRUE(m_tree.ItemDataMatchBest(item, -1, -1, nullptr));
    EXPECT_FALSE(m_tree.ItemDataMatchBest(item, 4, -1, nullptr));
    EXPECT_FALSE(m_tree.ItemDataMatchBest(item, -1, 8, nullptr));
    EXPECT_TRUE(m_tree.ItemDataMatchExact(item, 3, 7, nullptr));
    EXPECT_TRUE(m_tree.ItemDataMatchExact(item, 3, 7, key));
    int const wild[] = {-1, -1, -1, -1, -1, -1, -1, -1};
    EXPECT_TRUE(m_tree.ItemDataMatchBest(item, -1, -1, wild));
    EXPECT_FALSE(m_tree.ItemDataMatchExact(item, 3, 7, wild));
    for (int place = 0; place < 8; ++place)
    {
        int one[8];
        std::copy(std::begin(wild), std::end(wild), one);
        one[place] = key[place];
        EXPECT_TRUE(m_tree.ItemDataMatchBest(item, 3, 7, one)) << place;
        EXPECT_FALSE(m_tree.ItemDataMatchExact(item, 3, 7, one)) << place;
        one[place] = 99;
        EXPECT_FALSE(m_tree.ItemDataMatchBest(item, 3, 7, one)) << place;
        std::copy(std::begin(key), std::end(key), one);
        one[place] = 99;
        EXPECT_FALSE(m_tree.ItemDataMatchExact(item, 3, 7, one)) << place;
    }
    // -1 is a value like any other for the strict test, and the record's own -1 is no wildcard for the other one.
    HTREEITEM const plain = Add(L"plain");
    EXPECT_TRUE(m_tree.ItemDataMatchExact(plain, -1, -1, wild));
    EXPECT_FALSE(m_tree.ItemDataMatchBest(plain, 3, -1, nullptr));
    int const one[] = {1, -1, -1, -1, -1, -1, -1, -1};
    EXPECT_FALSE(m_tree.ItemDataMatchBest(plain, -1, -1, one));
    EXPECT_TRUE(m_tree.ItemDataMatch(item, -1, 7, nullptr, L"Label", false));
    EXPECT_FALSE(m_tree.ItemDataMatch(item, -1, 7, nullptr, L"label", false));
    EXPECT_FALSE(m_tree.ItemDataMatch(item, -1, 7, nullptr, L"Labe", false));
    EXPECT_FALSE(m_tree.ItemDataMatch(item, -1, 7, nullptr, L"", false));
    EXPECT_TRUE(m_tree.ItemDataMatch(item, -1, 7, nullptr, nullptr, false));
    EXPECT_FALSE(m_tree.ItemDataMatch(item, -1, 7, nullptr, nullptr, true));
    EXPECT_TRUE(m_tree.ItemDataMatch(item, 3, 7, key, L"Label", true));
    EXPECT_FALSE(m_tree.ItemDataMatch(item, -1, 8, nullptr, L"Label", false));
}

TEST_F(OutsideTree, LongLabelsAreComparedWhole)
{
    std::wstring const text(2000, L'l');
    HTREEITEM const item = Add(text.c_str(), nullptr, 1, 1);
    EXPECT_TRUE(m_tree.ItemDataMatch(item, 1, 1, nullptr, text.c_str(), true));
    EXPECT_FALSE(m_tree.ItemDataMatch(item, 1, 1, nullptr, (text + L"x").c_str(), true));
    EXPECT_FALSE(m_tree.ItemDataMatch(item, 1, 1, nullptr, text.substr(1).c_str(), true));
}

class OutsideTreeSearch : public OutsideTree
{
protected:
    void SetUp() override
    {
        OutsideTree::SetUp();
        // A(1) [ A1(2) [ A11(3) ] A2(2) ]  B(1) [ B1(2) [ B11(3) ] ]  C(1)
        a = Add(L"A", nullptr, 1, 10);
        a1 = Add(L"A1", a, 2, 11);
        a11 = Add(L"A11", a1, 3, 12);
        a2 = Add(L"A2", a, 2, 13);
        b = Add(L"B", nullptr, 1, 20);
        b1 = Add(L"B1", b, 2, 21);
        b11 = Add(L"B11", b1, 3, 22);
        c = Add(L"C", nullptr, 1, 30);
    }
    HTREEITEM a, a1, a11, a2, b, b1, b11, c;
};

TEST_F(OutsideTreeSearch, FindItemIsDepthFirstFromStartOn)
{
    EXPECT_EQ(m_tree.FindItem(3, -1, nullptr, TVI_ROOT, false), a11);
    EXPECT_EQ(m_tree.FindItem(2, -1, nullptr, TVI_ROOT, false), a1);
    EXPECT_EQ(m_tree.FindItem(-1, 22, nullptr, TVI_ROOT, false), b11);
    EXPECT_EQ(m_tree.FindItem(-1, 30, nullptr, TVI_ROOT, false), c);
    EXPECT_EQ(m_tree.FindItem(-1, 99, nullptr, TVI_ROOT, false), nullptr);
    EXPECT_EQ(m_tree.FindItem(3, -1, nullptr, b, false), b11);
    EXPECT_EQ(m_tree.FindItem(-1, 10, nullptr, b, false), nullptr);
    EXPECT_EQ(m_tree.FindItem(-1, 11, nullptr, a2, false), nullptr);
    EXPECT_EQ(m_tree.FindItem(-1, 20, nullptr, a1, false), nullptr);
    EXPECT_EQ(m_tree.FindItem(-1, 13, nullptr, a1, false), a2);
    EXPECT_EQ(m_tree.FindItem(-1, 11, nullptr, a1, false), a1);
    EXPECT_EQ(m_tree.FindItem(2, 21, nullptr, TVI_ROOT, true), b1);
    EXPECT_EQ(m_tree.FindItem(-1, 21, nullptr, TVI_ROOT, true), nullptr);
    EXPECT_EQ(m_tree.FindItem(-1, -1, nullptr, L"B1", TVI_ROOT, false), b1);
    EXPECT_EQ(m_tree.FindItem(-1, -1, nullptr, L"b1", TVI_ROOT, false), nullptr);
    EXPECT_EQ(m_tree.FindItem(3, -1, nullptr, L"B11", TVI_ROOT, false), b11);
    EXPECT_EQ(m_tree.FindItem(1, -1, nullptr, L"B11", TVI_ROOT, false), nullptr);
    EXPECT_EQ(m_tree.FindItem(-1, -1, nullptr, static_cast<wchar_t const *>(nullptr), TVI_ROOT, false), a);
    EXPECT_EQ(m_tree.FindItemRecursion(a, 2, -1, nullptr, nullptr, false), a1);
    EXPECT_EQ(m_tree.FindItemRecursion(a, 1, 20, nullptr, nullptr, false), nullptr);
    EXPECT_EQ(m_tree.FindItemRecursion(b, -1, -1, nullptr, L"B11", false), b11);
}

TEST_F(OutsideTreeSearch, FindChildItemLooksAtDirectChildrenAlone)
{
    EXPECT_EQ(m_tree.FindChildItem(2, -1, nullptr, nullptr, a, false), a1);
    EXPECT_EQ(m_tree.FindChildItem(-1, 13, nullptr, nullptr, a, false), a2);
    EXPECT_EQ(m_tree.FindChildItem(3, -1, nullptr, nullptr, a, false), nullptr);
    EXPECT_EQ(m_tree.FindChildItem(-1, -1, nullptr, L"A2", a, false), a2);
    EXPECT_EQ(m_tree.FindChildItem(1, -1, nullptr, nullptr, TVI_ROOT, false), nullptr);
    EXPECT_EQ(m_tree.FindChildItem(-1, -1, nullptr, nullptr, TVI_ROOT, false), a1);
    EXPECT_EQ(m_tree.FindChildItem(-1, 21, nullptr, nullptr, TVI_ROOT, false), nullptr);
    EXPECT_EQ(m_tree.FindChildItem(2, 11, nullptr, nullptr, TVI_ROOT, true), a1);
    EXPECT_EQ(m_tree.FindChildItem(-1, -1, nullptr, nullptr, c, false), nullptr);
}

TEST_F(OutsideTreeSearch, FindAllAndCollectStayBelowStart)
{
    std::list<HTREEITEM> found{c};
    EXPECT_EQ(m_tree.FindAllItems(found, 2, -1, nullptr, TVI_ROOT, false), 2u);
    EXPECT_EQ(found, (std::list<HTREEITEM>{c, a1, a2}));
    found.clear();
    EXPECT_EQ(m_tree.FindAllItems(found, -1, -1, nullptr, b, false), 3u);
    EXPECT_EQ(Names(found), L"B B1 B11 ");
    found.clear();
    EXPECT_EQ(m_tree.FindAllItems(found, 3, 12, nullptr, a, true), 1u);
    EXPECT_EQ(m_tree.FindAllItems(found, -1, 12, nullptr, a, true), 0u);
    EXPECT_EQ(found.size(), 1u);
    found.clear();
    EXPECT_EQ(m_tree.CollectAllItems(found, TVI_ROOT), 4u);
    EXPECT_EQ(Names(found), L"A A1 A11 A2 ");
    EXPECT_EQ(m_tree.CollectAllItems(found, b1), 2u);
    EXPECT_EQ(Names(found), L"A A1 A11 A2 B1 B11 ");
}

TEST_F(OutsideTreeSearch, ExpandTreeConcernsTheFirstSubtreeAlone)
{
    m_tree.ExpandTree(-1);
    EXPECT_TRUE(Expanded(a));
    EXPECT_TRUE(Expanded(a1));
    EXPECT_FALSE(Expanded(b));
    m_tree.ExpandTree(1);
    EXPECT_TRUE(Expanded(a));
    EXPECT_FALSE(Expanded(a1));
    m_tree.ExpandTree(2);
    EXPECT_TRUE(Expanded(a));
    EXPECT_TRUE(Expanded(a1));
    m_tree.ExpandTree(0);
    EXPECT_FALSE(Expanded(a));
    EXPECT_FALSE(Expanded(a1));
    m_tree.ExpandTreeR(b, 1, 2);
    EXPECT_TRUE(Expanded(b));
    EXPECT_FALSE(Expanded(b1));
    m_tree.ExpandTreeR(b, 5, 2);
    EXPECT_FALSE(Expanded(b));
    m_tree.ExpandTreeR(nullptr, 0, 1);
    m_tree.ResetContent();
    m_tree.ExpandTree(1);
    m_tree.ExpandTree(-1);
}

TEST_F(OutsideTreeSearch, DeletingGivesRecordsBackInOrder)
{
    std::vector<Data *> const expected{m_tree.GetItemData(a11), m_tree.GetItemData(a1), m_tree.GetItemData(a2),
                                       m_tree.GetItemData(a)};
    m_tree.DeleteTreeItem(a);
    EXPECT_EQ(Children(TVI_ROOT), L"B C ");
    EXPECT_EQ(m_tree.m_itemsInUse.size(), 4u);
    EXPECT_EQ((std::vector<Data *>(m_tree.m_itemStock.begin(), m_tree.m_itemStock.end())), expected);
    // They stay readable.
    EXPECT_EQ(expected[3]->id, 10);
    EXPECT_EQ(expected[0]->type, 3);
    m_tree.DeleteAllSubItems(b);
    EXPECT_EQ(Children(b), L"");
    EXPECT_EQ(Children(TVI_ROOT), L"B C ");
    EXPECT_EQ(m_tree.m_itemsInUse.size(), 2u);
    EXPECT_EQ(m_tree.m_itemStock.size(), 6u);
    // The first of the stock is used next, with all defaults.
    HTREEITEM const again = Add(L"again");
    EXPECT_EQ(m_tree.GetItemData(again), expected[0]);
    EXPECT_EQ(m_tree.GetItemType(again), -1);
    EXPECT_EQ(m_tree.GetItemId(again), -1);
    EXPECT_EQ(m_tree.m_itemStock.size(), 5u);
    EXPECT_EQ(m_tree.m_itemsInUse.back(), expected[0]);
}

TEST_F(OutsideTreeSearch, UsedRecordsAreResetButForTheSortKey)
{
    Data * const d = m_tree.GetItemData(c);
    int const key[] = {1, 2, 3, 4, 5, 6, 7, 8};
    m_tree.SetItemData8(c, 1, 2, key);
    d->ptr = this;
    d->sortKey = 4711;
    m_tree.DeleteTreeItem(c);
    EXPECT_EQ(d->sortKey, 4711);
    EXPECT_EQ(d->id, 2);
    Data * const again = m_tree.NeuesItemData();
    EXPECT_EQ(again, d);
    EXPECT_EQ(d->type, -1);
    EXPECT_EQ(d->id, -1);
    for (int const each : d->clavis)
        EXPECT_EQ(each, -1);
    EXPECT_EQ(d->ptr, nullptr);
    EXPECT_EQ(d->sortKey, 4711);
    EXPECT_EQ(m_tree.m_itemsInUse.back(), d);
    Data * const fresh = m_tree.NeuesItemData();
    EXPECT_EQ(fresh->sortKey, -1);
    EXPECT_TRUE(m_tree.m_itemStock.empty());
}

TEST_F(OutsideTreeSearch, ResetContentMovesAllAtOnce)
{
    m_tree.DeleteTreeItem(c);
    std::vector<Data *> expected(m_tree.m_itemStock.begin(), m_tree.m_itemStock.end());
    expected.insert(expected.end(), m_tree.m_itemsInUse.begin(), m_tree.m_itemsInUse.end());
    m_tree.ResetContent();
    EXPECT_EQ(m_tree.GetCount(), 0u);
    EXPECT_TRUE(m_tree.m_itemsInUse.empty());
    EXPECT_EQ((std::vector<Data *>(m_tree.m_itemStock.begin(), m_tree.m_itemStock.end())), expected);
    EXPECT_EQ(expected[0]->id, 30);
    m_tree.ResetContent();
    EXPECT_EQ(m_tree.m_itemStock.size(), 8u);
    m_tree.NeuesItemData();
    m_tree.AllesInDenVorrat();
    EXPECT_EQ(m_tree.m_itemStock.back(), expected[0]);
}

TEST_F(OutsideTreeSearch, ForwardersDeleteWithoutThePool)
{
    EXPECT_NE(m_tree.DeleteItem(c), 0);
    EXPECT_EQ(Children(TVI_ROOT), L"A B ");
    EXPECT_EQ(m_tree.m_itemsInUse.size(), 8u);
    EXPECT_TRUE(m_tree.m_itemStock.empty());
    EXPECT_NE(m_tree.DeleteAllItems(), 0);
    EXPECT_EQ(m_tree.GetCount(), 0u);
    EXPECT_EQ(m_tree.m_itemsInUse.size(), 8u);
    static_assert(std::is_same_v<decltype(m_tree.DeleteItem(c)), int>);
    static_assert(std::is_same_v<decltype(m_tree.DeleteAllItems()), int>);
}

TEST_F(OutsideTree, FiveThousandItemsUseTheirRecordsAgain)
{
    std::set<Data *> records;
    std::vector<HTREEITEM> parents;
    for (int round = 0; round < 3; ++round)
    {
        m_tree.SetRedraw(FALSE);
        parents.clear();
        for (int p = 0; p < 50; ++p)
        {
            parents.push_back(Add(L"parent", nullptr, 1, p));
            for (int i = 0; i < 99; ++i)
                Add(L"child", parents.back(), 2, p * 100 + i, 99 - i);
        }
        m_tree.SetRedraw(TRUE);
        EXPECT_EQ(m_tree.m_itemsInUse.size(), 5000u);
        if (round == 0)
            records.insert(m_tree.m_itemsInUse.begin(), m_tree.m_itemsInUse.end());
        else
        {
            EXPECT_TRUE(m_tree.m_itemStock.empty());
            EXPECT_EQ(records, std::set<Data *>(m_tree.m_itemsInUse.begin(), m_tree.m_itemsInUse.end()));
        }
        EXPECT_EQ(m_tree.GetItemId(m_tree.GetChildItem(parents[7])), 798);
        HTREEITEM const found = m_tree.FindItem(2, 4950, nullptr, TVI_ROOT, true);
        EXPECT_EQ(m_tree.GetItemId(found), 4950);
        std::list<HTREEITEM> all;
        EXPECT_EQ(m_tree.CollectAllItems(all, TVI_ROOT), 100u);
        if (round == 1)
        {
            for (HTREEITEM const each : parents)
                m_tree.DeleteTreeItem(each);
        }
        else
            m_tree.ResetContent();
        EXPECT_EQ(m_tree.GetCount(), 0u);
        EXPECT_EQ(m_tree.m_itemStock.size(), 5000u);
    }
}

TEST_F(OutsideTree, DeepTree)
{
    HTREEITEM item = nullptr;
    m_tree.SetRedraw(FALSE);
    for (int i = 0; i < 1500; ++i)
        item = Add(L"x", item, 1, i);
    EXPECT_EQ(m_tree.FindItem(-1, 1499, nullptr, TVI_ROOT, false), item);
    std::list<HTREEITEM> all;
    EXPECT_EQ(m_tree.CollectAllItems(all, TVI_ROOT), 1500u);
    m_tree.DeleteTreeItem(m_tree.GetRootItem());
    EXPECT_EQ(m_tree.m_itemStock.size(), 1500u);
    EXPECT_EQ(m_tree.GetCount(), 0u);
    m_tree.SetRedraw(TRUE);
}

// --- Keys and mouse ---

TEST_F(OutsideTree, KeyFlags)
{
    m_tree.DontAbsorbAnyKeys();
    EXPECT_EQ(m_tree.m_keyFlags, 255u);
    m_tree.DontAbsorbNormalKeys();
    EXPECT_EQ(m_tree.m_keyFlags, 0x17u);
    m_tree.DontAbsorbControlKeys(false);
    EXPECT_EQ(m_tree.m_keyFlags, 0x11u);
    m_tree.DontAbsorbControlKeys(true);
    EXPECT_EQ(m_tree.m_keyFlags, 0x31u);
    m_tree.DontHandleDoubleclick();
    EXPECT_EQ(m_tree.m_keyFlags, 0x71u);
    m_tree.DontAbsorbKeys(0);
    EXPECT_EQ(m_tree.m_keyFlags, 0u);
    m_tree.DontHandleDoubleclick();
    EXPECT_EQ(m_tree.m_keyFlags, 64u);
    m_tree.DontAbsorbKeys(0xABCD1234);
    EXPECT_EQ(m_tree.m_keyFlags, 0xABCD1234u);
}

TEST_F(OutsideTree, PreTranslateMessageNeverSwallowsAKey)
{
    for (unsigned const flags : {0u, 255u, 1u, 2u, 4u, 8u, 16u, 32u, 64u, 0x17u})
    {
        m_tree.DontAbsorbKeys(flags);
        for (WPARAM key = 0; key < 256; ++key)
        {
            for (UINT const message : {UINT{WM_KEYDOWN}, UINT{WM_KEYUP}, UINT{WM_SYSKEYDOWN}, UINT{WM_CHAR}})
            {
                MSG msg = {};
                msg.hwnd = m_tree.m_hWnd;
                msg.message = message;
                msg.wParam = key;
                ASSERT_EQ(m_tree.PreTranslateMessage(&msg), 0) << flags << ' ' << key;
            }
        }
    }
}

TEST_F(OutsideTreeSearch, RealDoubleClick)
{
    ASSERT_TRUE(tests::BringToFront(m_host));
    CRect row;
    ASSERT_TRUE(m_tree.GetItemRect(a, row, TRUE));
    CPoint const at = tests::ClientPoint(m_tree, row.CenterPoint());
    tests::DoubleClick(at);
    ASSERT_TRUE(tests::PumpUntil([&] { return m_host.Count(WM_XTREECTRL_DBLCLK) == 1; }, std::chrono::seconds(20)));
    auto const got = m_host.Of(WM_XTREECTRL_DBLCLK);
    EXPECT_EQ(got[0].wParam, static_cast<WPARAM>(MK_LBUTTON));
    EXPECT_EQ(reinterpret_cast<HTREEITEM>(got[0].lParam), a);
    EXPECT_EQ(m_tree.doubleClicks, 1);
    tests::PumpPosted();
    EXPECT_TRUE(Expanded(a));
    m_tree.DontHandleDoubleclick();
    m_tree.Expand(a, TVE_COLLAPSE);
    ASSERT_TRUE(tests::PumpUntil(
        [&, began = ::GetTickCount64()] { return ::GetTickCount64() - began > ::GetDoubleClickTime() + 50; }));
    tests::DoubleClick(at);
    ASSERT_TRUE(tests::PumpUntil([&] { return m_host.Count(WM_XTREECTRL_DBLCLK) == 2; }, std::chrono::seconds(20)));
    tests::PumpPosted();
    EXPECT_FALSE(Expanded(a));
    EXPECT_EQ(m_tree.doubleClicks, 1);
}

TEST_F(OutsideTreeSearch, DoubleClickByMessage)
{
    CRect row;
    ASSERT_TRUE(m_tree.GetItemRect(b, row, TRUE));
    LPARAM const at = MAKELPARAM(row.CenterPoint().x, row.CenterPoint().y);
    m_tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON | MK_CONTROL, at);
    auto got = m_host.Of(WM_XTREECTRL_DBLCLK);
    ASSERT_EQ(got.size(), 1u);
    EXPECT_EQ(got[0].wParam, static_cast<WPARAM>(MK_LBUTTON | MK_CONTROL));
    EXPECT_EQ(reinterpret_cast<HTREEITEM>(got[0].lParam), b);
    EXPECT_EQ(m_tree.doubleClicks, 1);
    // All keys include the bit of the double click.
    m_tree.DontAbsorbAnyKeys();
    bool const before = Expanded(b);
    m_tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, at);
    EXPECT_EQ(m_host.Count(WM_XTREECTRL_DBLCLK), 2);
    EXPECT_EQ(m_tree.doubleClicks, 1);
    EXPECT_EQ(Expanded(b), before);
    // Where there is no item nothing is reported, and the base has it whatever the bits say.
    m_tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(200, 230));
    EXPECT_EQ(m_host.Count(WM_XTREECTRL_DBLCLK), 2);
    EXPECT_EQ(m_tree.doubleClicks, 2);
    m_tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(-1, -1));
    EXPECT_EQ(m_host.Count(WM_XTREECTRL_DBLCLK), 2);
    EXPECT_EQ(m_tree.doubleClicks, 3);
    m_tree.DontAbsorbKeys(0);
    m_tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, at);
    EXPECT_EQ(m_host.Count(WM_XTREECTRL_DBLCLK), 3);
    EXPECT_EQ(m_tree.doubleClicks, 4);
    m_tree.OnLButtonDblClk(0, CPoint(-1, -1));
    EXPECT_EQ(m_host.Count(WM_XTREECTRL_DBLCLK), 3);
}

TEST_F(OutsideTreeSearch, DoubleClickAnywhereOnARowIsAHit)
{
    CRect label, row;
    m_tree.GetItemRect(b, label, TRUE);
    m_tree.GetItemRect(b, row, FALSE);
    UINT flags = 0;
    for (int x = 1; x < row.right; x += 7)
    {
        CPoint const at(x, row.CenterPoint().y);
        bool const hit = m_tree.HitTest(at, &flags) != nullptr;
        m_host.seen.clear();
        m_tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        EXPECT_EQ(m_host.Count(WM_XTREECTRL_DBLCLK), hit ? 1 : 0) << x << ' ' << flags;
    }
}

TEST_F(OutsideTreeSearch, ParentDeletesOnDoubleClick)
{
    m_host.hook = [&](UINT message, WPARAM, LPARAM lParam, LRESULT &) {
        if (message == WM_XTREECTRL_DBLCLK)
            m_tree.DeleteTreeItem(reinterpret_cast<HTREEITEM>(lParam));
        return false;
    };
    CRect row;
    ASSERT_TRUE(m_tree.GetItemRect(b, row, TRUE));
    m_tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(row.CenterPoint().x, row.CenterPoint().y));
    EXPECT_EQ(Children(TVI_ROOT), L"A C ");
    m_host.hook = [&](UINT message, WPARAM, LPARAM, LRESULT &) {
        if (message == WM_XTREECTRL_DBLCLK)
            m_tree.DestroyWindow();
        return false;
    };
    ASSERT_TRUE(m_tree.GetItemRect(a, row, TRUE));
    m_tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(row.CenterPoint().x, row.CenterPoint().y));
    EXPECT_EQ(m_tree.GetSafeHwnd(), nullptr);
    auto * other = new Tree;
    Make(*other);
    HTREEITEM const item = other->InsertTreeItem(L"x", nullptr, TVI_LAST, -1);
    m_host.hook = [&](UINT message, WPARAM, LPARAM, LRESULT &) {
        if (message == WM_XTREECTRL_DBLCLK)
        {
            delete other;
            other = nullptr;
        }
        return false;
    };
    ASSERT_TRUE(other->GetItemRect(item, row, TRUE));
    other->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(row.CenterPoint().x, row.CenterPoint().y));
    EXPECT_EQ(other, nullptr);
    m_host.hook = nullptr;
}

TEST_F(OutsideTreeSearch, ParentDeletesOthersWhileOneIsDeleted)
{
    bool done = false;
    m_host.hook = [&](UINT message, WPARAM, LPARAM lParam, LRESULT &) {
        if (message == WM_NOTIFY && reinterpret_cast<NMHDR *>(lParam)->code == static_cast<UINT>(TVN_DELETEITEMW) &&
            !done)
        {
            done = true;
            m_tree.DeleteTreeItem(a2);
            m_tree.DeleteTreeItem(b);
        }
        return false;
    };
    m_tree.DeleteTreeItem(a);
    m_host.hook = nullptr;
    EXPECT_TRUE(done);
    EXPECT_EQ(Children(TVI_ROOT), L"C ");
    EXPECT_EQ(m_tree.m_itemsInUse.size(), 1u);
    EXPECT_EQ(m_tree.m_itemStock.size(), 7u);
}

TEST_F(OutsideTreeSearch, ParentEmptiesTheTreeWhileItExpands)
{
    m_host.hook = [&](UINT message, WPARAM, LPARAM lParam, LRESULT &) {
        if (message == WM_NOTIFY && reinterpret_cast<NMHDR *>(lParam)->code == static_cast<UINT>(TVN_ITEMEXPANDINGW))
            m_tree.ResetContent();
        return false;
    };
    m_tree.ExpandTree(-1);
    m_host.hook = nullptr;
    EXPECT_EQ(m_tree.GetCount(), 0u);
}

TEST_F(OutsideTree, LifeWithoutAWindow)
{
    Tree none;
    EXPECT_EQ(none.GetItemType(nullptr), -1);
    none.ResetContent();
    none.ExpandTree(1);
    EXPECT_EQ(none.GetSelectedItemData(), nullptr);
    std::list<HTREEITEM> found;
    EXPECT_EQ(none.CollectAllItems(found, TVI_ROOT), 0u);
    EXPECT_EQ(none.FindItem(-1, -1, nullptr, TVI_ROOT, false), nullptr);
    // The records outlive the window.
    HTREEITEM const item = Add(L"x", nullptr, 1, 2);
    Data * const d = m_tree.GetItemData(item);
    m_tree.DestroyWindow();
    EXPECT_EQ(d->id, 2);
}
} // namespace
} // namespace outside::controls
