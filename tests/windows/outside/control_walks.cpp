// Random walks beside plain models of what the controls must do. Seeds are fixed.

#include <algorithm>
#include <list>
#include <memory>
#include <random>

#include "ControlTest.h"

namespace outside::controls
{
namespace
{
using Map = std::map<int, CString>;
using Ids = std::set<int>;

// --- Tree ---

class Tree : public CXTreeCtrl
{
public:
    using CXTreeCtrl::m_itemsInUse;
    using CXTreeCtrl::m_itemStock;
};

struct Node
{
    std::wstring text;
    int type = -1;
    int id = -1;
    int key[8] = {-1, -1, -1, -1, -1, -1, -1, -1};
    int sortKey = -1;
    HTREEITEM handle = nullptr;
    CXTreeCtrl::ItemData * record = nullptr;
    Node * parent = nullptr;
    std::vector<std::unique_ptr<Node>> children;
};

class Model
{
public:
    Node root;
    std::list<CXTreeCtrl::ItemData *> inUse, stock;

    std::vector<Node *> All()
    {
        std::vector<Node *> all;
        Collect(root, all, false);
        return all;
    }
    static void Collect(Node & node, std::vector<Node *> & all, bool self = true)
    {
        if (self)
            all.push_back(&node);
        for (std::unique_ptr<Node> const & child : node.children)
            Collect(*child, all);
    }
    void Give(Node & node)
    {
        for (std::unique_ptr<Node> const & child : node.children)
            Give(*child);
        node.children.clear();
        auto const at = std::find(inUse.begin(), inUse.end(), node.record);
        stock.splice(stock.end(), inUse, at);
    }
};

bool Match(Node const & n, int type, int id, int const * key, wchar_t const * text, bool exact)
{
    if (exact ? (n.type != type || n.id != id) : ((type != -1 && n.type != type) || (id != -1 && n.id != id)))
        return false;
    for (int i = 0; key != nullptr && i < 8; ++i)
    {
        if (exact ? n.key[i] != key[i] : (key[i] != -1 && n.key[i] != key[i]))
            return false;
    }
    return text == nullptr || n.text == text;
}

void WalkTree(unsigned seed)
{
    Host host;
    Tree tree;
    ASSERT_TRUE(tree.Create(WS_CHILD, CRect(0, 0, 200, 200), host, 3));
    Model model;
    std::mt19937 random(seed);
    auto const below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int step = 0; step < 1500; ++step)
    {
        SCOPED_TRACE(testing::Message() << "seed " << seed << " step " << step);
        std::vector<Node *> const all = model.All();
        int const what = below(20);
        if (what < 9 || all.empty())
        {
            bool const top = all.empty() || below(6) == 0;
            Node & parent = top ? model.root : *all[static_cast<std::size_t>(below(static_cast<int>(all.size())))];
            auto node = std::make_unique<Node>();
            node->text = std::wstring(1, static_cast<wchar_t>(L'a' + below(4)));
            node->parent = &parent;
            node->sortKey = top ? -1 : below(6) - 1;
            std::size_t place = parent.children.size();
            HTREEITEM after = TVI_LAST;
            if (node->sortKey == -1)
            {
                int const how = below(3);
                if (how == 0)
                {
                    after = TVI_FIRST;
                    place = 0;
                }
                else if (how == 1 && !parent.children.empty())
                {
                    std::size_t const behind =
                        static_cast<std::size_t>(below(static_cast<int>(parent.children.size())));
                    after = parent.children[behind]->handle;
                    place = behind + 1;
                }
            }
            else
            {
                for (std::size_t i = 0; i < parent.children.size(); ++i)
                {
                    if (parent.children[i]->sortKey > node->sortKey)
                    {
                        place = i;
                        break;
                    }
                }
            }
            switch (below(3))
            {
            case 0:
                node->handle = tree.InsertTreeItem(node->text.c_str(), parent.handle, after, node->sortKey);
                break;
            case 1:
                node->handle = tree.InsertTreeItem(node->text.c_str(), 1, 2, parent.handle, after, node->sortKey);
                break;
            default:
                node->type = below(3);
                node->id = below(4) - 1;
                node->handle = tree.InsertTreeItem(node->text.c_str(), 1, 2, parent.handle, node->type, node->id, after,
                                                   node->sortKey);
            }
            ASSERT_NE(node->handle, nullptr);
            node->record = tree.GetItemData(node->handle);
            ASSERT_NE(node->record, nullptr);
            if (!model.stock.empty())
            {
                ASSERT_EQ(node->record, model.stock.front());
                model.stock.pop_front();
            }
            model.inUse.push_back(node->record);
            parent.children.insert(parent.children.begin() + static_cast<std::ptrdiff_t>(place), std::move(node));
        }
        else
        {
            Node & node = *all[static_cast<std::size_t>(below(static_cast<int>(all.size())))];
            int key[8];
            for (int & each : key)
                each = below(3) - 1;
            int const type = below(4) - 1, id = below(5) - 1;
            wchar_t const * const text = below(3) == 0 ? L"b" : nullptr;
            bool const exact = below(2) == 0;
            int const * const asked = below(3) != 0 ? nullptr : key;
            switch (what)
            {
            case 9:
                tree.SetItemData(node.handle, type, id, key);
                node.type = type;
                node.id = id;
                std::copy(key, key + 6, node.key);
                node.key[6] = node.key[7] = -1;
                break;
            case 10:
                tree.SetItemClavis(node.handle, key);
                std::copy(key, key + 6, node.key);
                break;
            case 11:
                tree.SetItemData8(node.handle, type, id, key);
                node.type = type;
                node.id = id;
                std::copy(key, key + 8, node.key);
                break;
            case 12: {
                std::vector<Node *> reach;
                std::vector<std::unique_ptr<Node>> & siblings = node.parent->children;
                auto at =
                    std::find_if(siblings.begin(), siblings.end(), [&](auto const & e) { return e.get() == &node; });
                for (; at != siblings.end(); ++at)
                    Model::Collect(**at, reach);
                HTREEITEM expected = nullptr;
                for (Node * const each : reach)
                {
                    if (Match(*each, type, id, asked, text, exact))
                    {
                        expected = each->handle;
                        break;
                    }
                }
                ASSERT_EQ(tree.FindItem(type, id, asked, text, node.handle, exact), expected);
                break;
            }
            case 13: {
                std::vector<Node *> reach;
                Model::Collect(node, reach);
                std::list<HTREEITEM> expected, found, every, collected;
                for (Node * const each : reach)
                {
                    every.push_back(each->handle);
                    if (Match(*each, type, id, asked, nullptr, exact))
                        expected.push_back(each->handle);
                }
                ASSERT_EQ(tree.FindAllItems(found, type, id, asked, node.handle, exact), expected.size());
                ASSERT_EQ(found, expected);
                ASSERT_EQ(tree.CollectAllItems(collected, node.handle), every.size());
                ASSERT_EQ(collected, every);
                break;
            }
            case 14: {
                HTREEITEM expected = nullptr;
                for (std::unique_ptr<Node> const & child : node.children)
                {
                    if (expected == nullptr && Match(*child, type, id, asked, text, exact))
                        expected = child->handle;
                }
                ASSERT_EQ(tree.FindChildItem(type, id, asked, text, node.handle, exact), expected);
                break;
            }
            case 15:
            case 16: {
                tree.DeleteTreeItem(node.handle);
                model.Give(node);
                std::vector<std::unique_ptr<Node>> & siblings = node.parent->children;
                siblings.erase(
                    std::find_if(siblings.begin(), siblings.end(), [&](auto const & e) { return e.get() == &node; }));
                break;
            }
            case 17:
                tree.DeleteAllSubItems(node.handle);
                for (std::unique_ptr<Node> const & child : node.children)
                    model.Give(*child);
                node.children.clear();
                break;
            case 18:
                if (below(20) == 0)
                {
                    tree.ResetContent();
                    model.stock.splice(model.stock.end(), model.inUse);
                    model.root.children.clear();
                }
                break;
            default:
                break;
            }
        }
        ASSERT_EQ(tree.m_itemsInUse, model.inUse);
        ASSERT_EQ(tree.m_itemStock, model.stock);
        if (step % 10 == 0)
        {
            std::vector<HTREEITEM> expected, got;
            for (Node * const each : model.All())
            {
                expected.push_back(each->handle);
                CXTreeCtrl::ItemData const * const d = tree.GetItemData(each->handle);
                ASSERT_EQ(d, each->record);
                ASSERT_EQ(d->type, each->type);
                ASSERT_EQ(d->id, each->id);
                ASSERT_TRUE(std::equal(d->clavis, d->clavis + 8, each->key));
                ASSERT_EQ(d->sortKey, each->sortKey);
                ASSERT_EQ(W(tree.GetItemText(each->handle)), each->text);
            }
            for (HTREEITEM top = tree.GetRootItem(); top != nullptr; top = tree.GetNextSiblingItem(top))
            {
                std::list<HTREEITEM> all2;
                tree.CollectAllItems(all2, top);
                got.insert(got.end(), all2.begin(), all2.end());
            }
            ASSERT_EQ(got, expected);
        }
    }
    tree.DestroyWindow();
}

TEST(OutsideRandom, Tree)
{
    for (unsigned seed = 1; seed <= 6; ++seed)
        WalkTree(seed);
}

// --- Multiselect ---

class Multi : public CIdNameMultiselectCtrl
{
public:
    using CIdNameMultiselectCtrl::m_list;
};

TEST(OutsideRandom, Multiselect)
{
    Host host;
    Multi multi;
    ASSERT_TRUE(multi.Create(L"", WS_CHILD, CRect(0, 0, 300, 300), host, 4));
    std::mt19937 random(7);
    auto const below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int round = 0; round < 300; ++round)
    {
        SCOPED_TRACE(round);
        Map map;
        int const count = below(12);
        for (int i = 0; i < count; ++i)
        {
            std::wstring name;
            for (int j = below(4); j > 0; --j)
                name += L"aAbBzä \u4e00"[below(8)];
            int id = below(40) - 10;
            if (id == -1)
                id = -100;
            map[id] = name.c_str();
        }
        Ids selection;
        for (std::pair<int const, CString> const & each : map)
        {
            if (below(2) == 0)
                selection.insert(each.first);
        }
        if (below(8) == 0)
            selection.insert(-1);
        if (below(5) == 0)
            selection.insert(77);
        bool const grouped = below(2) == 0, sorted = below(2) == 0, ids = below(3) == 0;
        multi.SetTheMap(map);
        multi.SetSelection(selection);
        multi.ShowGroupedSelection(grouped);
        multi.SortAlphabetically(sorted);
        multi.ShowIds(ids);
        multi.RefreshContent();
        // What must stand there.
        struct Row
        {
            int id;
            std::wstring name;
        };
        std::vector<Row> first, second, rows;
        for (auto const & [id, name] : map)
            (grouped && selection.count(id) != 0 ? first : second).push_back({id, W(name)});
        for (std::vector<Row> * const group : {&first, &second})
        {
            if (sorted && !ids)
            {
                std::stable_sort(group->begin(), group->end(), [](Row const & a, Row const & b) {
                    return std::wcscmp(a.name.c_str(), b.name.c_str()) < 0;
                });
            }
            rows.insert(rows.end(), group->begin(), group->end());
        }
        if (map.empty())
        {
            ASSERT_EQ(multi.m_list.GetItemCount(), 1);
            ASSERT_EQ(static_cast<int>(multi.m_list.GetItemData(0)), -1);
        }
        else
        {
            ASSERT_EQ(multi.m_list.GetItemCount(), static_cast<int>(rows.size()));
            for (int i = 0; i < static_cast<int>(rows.size()); ++i)
            {
                Row const & row = rows[static_cast<std::size_t>(i)];
                ASSERT_EQ(static_cast<int>(multi.m_list.GetItemData(i)), row.id) << i;
                ASSERT_EQ(W(multi.m_list.GetItemText(i, 0)),
                          ids ? std::to_wstring(row.id) + L": " + row.name : row.name);
                ASSERT_EQ(multi.m_list.GetCheck(i), selection.count(-1) + selection.count(row.id) != 0 ? 1 : 0);
            }
        }
        ASSERT_FALSE(multi.SelectionRetrieved());
        Ids expected;
        bool every = true;
        for (int i = 0; i < multi.m_list.GetItemCount(); ++i)
        {
            bool const tick = below(5) != 0;
            multi.m_list.SetCheck(i, tick);
            every = every && tick;
            if (tick && !map.empty())
                expected.insert(rows[static_cast<std::size_t>(i)].id);
        }
        if (every && !map.empty())
            expected.insert(-1);
        multi.RetrieveSelection();
        ASSERT_EQ(multi.TheSelection(), expected);
    }
    multi.DestroyWindow();
}

// --- Text of the browse edit ---

TEST(OutsideRandom, BrowseText)
{
    Host host;
    CXEditBrowseCtrl field;
    ASSERT_TRUE(field.Create(WS_CHILD | WS_BORDER, CRect(0, 0, 100, 24), host, 4));
    field.PrepareIdNameBrowser();
    std::mt19937 random(11);
    auto const below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    CClientDC dc(&field);
    if (CFont * const font = field.GetFont())
        dc.SelectObject(font);
    for (int round = 0; round < 500; ++round)
    {
        Map map;
        Ids ids;
        for (int i = below(9); i > 0; --i)
            map[below(20)] = CString(static_cast<wchar_t>(L'a' + below(26)), below(12));
        for (int i = below(9); i > 0; --i)
            ids.insert(below(20));
        int const width = below(400) + 1;
        field.SetWindowPos(nullptr, 0, 0, width, 24, SWP_NOMOVE | SWP_NOZORDER);
        field.SetTheMap(map);
        field.SetSelection(ids);
        field.UpdateSelectionText();
        CRect window;
        field.GetWindowRect(window);
        CString text;
        if (map.empty() || ids.empty())
            text = L"\u2015\u2015";
        else
        {
            for (int const id : ids)
            {
                CString const name = map.count(id) != 0 ? map[id] : CString();
                if (!text.IsEmpty())
                {
                    text += L", ";
                    if (dc.GetTextExtent(text).cx + dc.GetTextExtent(name).cx > window.Width() - 50)
                    {
                        text += L"\u2026";
                        break;
                    }
                }
                text += name;
            }
        }
        CString now;
        field.GetWindowText(now);
        ASSERT_EQ(W(now), W(text)) << round << " width " << window.Width();
    }
    field.DestroyWindow();
}

// --- Rows with values ---

TEST(OutsideRandom, ComboAndListBox)
{
    Host host;
    CComboBoxX combo;
    CListBoxX list;
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 100, 200), host, 4));
    ASSERT_TRUE(list.Create(WS_CHILD, CRect(0, 0, 100, 200), host, 5));
    std::mt19937 random(13);
    auto const below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    std::vector<int> values;
    int selected = -1;
    for (int step = 0; step < 2000; ++step)
    {
        int const value = below(12) - 3;
        switch (below(6))
        {
        case 0:
            ASSERT_EQ(combo.AddItem(L"x", value), static_cast<int>(values.size()));
            ASSERT_EQ(list.AddItem(L"x", value), static_cast<int>(values.size()));
            values.push_back(value);
            break;
        case 1:
            if (below(4) == 0)
            {
                std::list<CString> const texts(static_cast<std::size_t>(below(5)), CString(L"t"));
                bool const clear = below(2) == 0;
                combo.FillItems(texts, value, clear);
                list.FillItems(texts, value, clear);
                if (clear)
                {
                    values.clear();
                    selected = -1;
                }
                for (int i = 0; i < static_cast<int>(texts.size()); ++i)
                    values.push_back(value + i);
            }
            break;
        case 2: {
            Map map;
            for (int i = below(6); i > 0; --i)
                map[below(12) - 3] = L"m";
            if (below(6) != 0)
                break;
            bool const blank = below(2) == 0;
            combo.FillItems(map, blank);
            values.clear();
            if (blank && map.count(-1) == 0)
            {
                values.push_back(-1);
                Map with = map;
                list.FillItems(std::list<CString>{L"\u2014"}, -1, true);
                for (std::pair<int const, CString> const & each : map)
                    list.AddItem(each.second, each.first);
            }
            else
                list.FillItems(map);
            for (std::pair<int const, CString> const & each : map)
                values.push_back(each.first);
            selected = -1;
            break;
        }
        case 3:
        case 4: {
            auto const at = std::find(values.begin(), values.end(), value);
            int const row = at != values.end() ? static_cast<int>(at - values.begin()) : -1;
            ASSERT_EQ(combo.FindItemData(value), row);
            ASSERT_EQ(list.FindItemData(value), row);
            ASSERT_EQ(combo.SelectItemData(value), row);
            ASSERT_EQ(list.SelectItemData(value), row);
            if (row >= 0)
                selected = row;
            break;
        }
        default:
            break;
        }
        ASSERT_EQ(combo.GetCurSel(), selected) << step;
        int const expected = selected >= 0 ? values[static_cast<std::size_t>(selected)] : 99;
        ASSERT_EQ(combo.GetSelectedItemData(99), expected);
        ASSERT_EQ(list.GetSelectedItemData(99), expected);
        ASSERT_EQ(combo.GetCount(), static_cast<int>(values.size()));
    }
    combo.DestroyWindow();
    list.DestroyWindow();
}
} // namespace
} // namespace outside::controls
