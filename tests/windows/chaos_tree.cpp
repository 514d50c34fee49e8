// Trees whose host deletes, inserts, searches and ends them in every message that they get or send.

#include "chaos_Chaos.h"

#include "controls/XTreeCtrl.h"
#include "frame/RegisteredMessages.h"

#include <algorithm>
#include <set>
#include <vector>

namespace
{
class TreeWorld;

class ChaosTree : public CXTreeCtrl
{
public:
    using CXTreeCtrl::m_itemsInUse;
    using CXTreeCtrl::m_itemStock;

    ChaosTree(TreeWorld & world, CWnd * parent);
    ~ChaosTree() override;

    int m_held = 0;
    /// The native tree takes no insertion while it deletes.
    int m_deleting = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    TreeWorld & m_world;
};

class TreeHolder : public tests::ScopedWindow
{
public:
    explicit TreeHolder(TreeWorld & world) : m_world(world) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    TreeWorld & m_world;
};

class TreeWorld : public chaos::Chaos
{
public:
    explicit TreeWorld(unsigned int seed) : Chaos(seed), m_parent(*this) {}
    ~TreeWorld() override
    {
        while (!m_trees.empty())
            delete m_trees.back();
    }

    bool Lives(ChaosTree const * tree) const { return std::find(m_trees.begin(), m_trees.end(), tree) != m_trees.end(); }
    void Enter(ChaosTree * tree) { m_trees.push_back(tree); }
    void Leave(ChaosTree * tree) { std::erase(m_trees, tree); }

protected:
    void Operate() override;
    void CheckInvariants() override
    {
        for (ChaosTree * const tree : m_trees)
        {
            // Each record is in one list once, and that of an item is in use.
            std::set<CXTreeCtrl::ItemData *> const used(tree->m_itemsInUse.begin(), tree->m_itemsInUse.end());
            std::set<CXTreeCtrl::ItemData *> all = used;
            all.insert(tree->m_itemStock.begin(), tree->m_itemStock.end());
            EXPECT_EQ(used.size(), tree->m_itemsInUse.size());
            EXPECT_EQ(all.size(), tree->m_itemsInUse.size() + tree->m_itemStock.size());
            if (tree->m_hWnd == nullptr)
                continue;
            std::set<CXTreeCtrl::ItemData *> attached;
            for (HTREEITEM const item : ItemsOf(*tree))
            {
                CXTreeCtrl::ItemData * const record = tree->GetItemData(item);
                if (record == nullptr)
                    continue;
                EXPECT_TRUE(used.contains(record));
                EXPECT_TRUE(attached.insert(record).second) << "a record hangs from two items";
            }
        }
    }

private:
    static std::vector<HTREEITEM> ItemsOf(ChaosTree & tree)
    {
        std::vector<HTREEITEM> items;
        std::vector<HTREEITEM> open;
        if (HTREEITEM const root = tree.GetRootItem())
            open.push_back(root);
        while (!open.empty())
        {
            HTREEITEM const item = open.back();
            open.pop_back();
            items.push_back(item);
            if (HTREEITEM const next = tree.GetNextSiblingItem(item))
                open.push_back(next);
            if (HTREEITEM const child = tree.GetChildItem(item))
                open.push_back(child);
        }
        return items;
    }
    /// So that a walk during which items come in ends.
    static constexpr std::size_t most_items = 30;
    std::size_t CountOf(ChaosTree & tree)
    {
        m_picking = true;
        std::size_t const count = ItemsOf(tree).size();
        m_picking = false;
        return count;
    }
    /// An item that is there while nothing has been sent; null for none.
    HTREEITEM PickItem(ChaosTree & tree);
    void Change(ChaosTree & tree, HTREEITEM item);
    void Search(ChaosTree & tree, HTREEITEM item);

    TreeHolder m_parent;
    std::vector<ChaosTree *> m_trees;
    /// Items are picked without a disturbance.
    bool m_picking = false;
    friend class ChaosTree;
};

ChaosTree::ChaosTree(TreeWorld & world, CWnd * parent) : m_world(world)
{
    m_world.Enter(this);
    ++m_held;
    Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT, CRect(10, 10, 210, 160), parent, 5);
    --m_held;
}

ChaosTree::~ChaosTree()
{
    m_world.Leave(this);
    if (m_hWnd != nullptr)
        DestroyWindow();
}

LRESULT ChaosTree::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    TreeWorld & world = m_world; // this object may end
    if (message == WM_NCDESTROY || message == WM_DESTROY || message == WM_NCCREATE || !world.Lives(this) ||
        world.m_picking)
    {
        return CXTreeCtrl::WindowProc(message, wParam, lParam);
    }
    world.Disturb();
    if (!world.Lives(this) || m_hWnd == nullptr)
        return 0;
    // What was given may be gone, which the sender can't know.
    LRESULT const result = CXTreeCtrl::WindowProc(message, wParam, lParam);
    if (world.Lives(this))
        world.Disturb();
    return result;
}

LRESULT ChaosTree::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    TreeWorld & world = m_world;
    bool const deletes = message == TVM_DELETEITEM || message == WM_DESTROY;
    m_deleting += deletes;
    LRESULT const result = CXTreeCtrl::DefWindowProc(message, wParam, lParam);
    if (deletes && world.Lives(this))
        --m_deleting;
    return result;
}

LRESULT TreeHolder::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NOTIFY || message == WM_XTREECTRL_DBLCLK || message == WM_PARENTNOTIFY)
        m_world.Disturb();
    return ScopedWindow::WindowProc(message, wParam, lParam);
}

HTREEITEM TreeWorld::PickItem(ChaosTree & tree)
{
    if (tree.m_hWnd == nullptr)
        return nullptr;
    m_picking = true;
    std::vector<HTREEITEM> const items = ItemsOf(tree);
    m_picking = false;
    return items.empty() ? nullptr : items[static_cast<std::size_t>(Pick(static_cast<int>(items.size())))];
}

void TreeWorld::Change(ChaosTree & tree, HTREEITEM item)
{
    if (tree.m_hWnd == nullptr)
        return;
    switch (Pick(10))
    {
    case 0:
        Note("delete an item");
        if (item != nullptr && tree.m_deleting == 0)
            tree.DeleteTreeItem(item);
        break;
    case 1:
        Note("delete below an item");
        if (item != nullptr && tree.m_deleting == 0)
            tree.DeleteAllSubItems(item);
        break;
    case 2:
        Note("reset");
        if (OneIn(4) && tree.m_deleting == 0)
            tree.ResetContent();
        break;
    case 3:
        Note("expand");
        tree.ExpandTree(Pick(4) - 1);
        break;
    case 4:
        Note("select");
        tree.SelectItem(item);
        break;
    default: {
        Note("insert");
        if (tree.m_deleting != 0 || CountOf(tree) >= most_items)
            break;
        bool const asksForText = OneIn(3);
        wchar_t const * const text = asksForText ? LPSTR_TEXTCALLBACKW : L"item";
        HTREEITEM const entered = tree.InsertTreeItem(text, 0, 0, OneIn(4) ? nullptr : item, Pick(3), Pick(20), TVI_LAST,
                                                      item != nullptr ? Pick(5) - 1 : -1);
        static_cast<void>(entered);
        break;
    }
    }
}

void TreeWorld::Search(ChaosTree & tree, HTREEITEM item)
{
    std::list<HTREEITEM> found;
    switch (Pick(4))
    {
    case 0:
        Note("find");
        tree.FindItem(Pick(4) - 1, -1, nullptr, OneIn(2) ? L"nowhere" : nullptr, item, OneIn(2));
        break;
    case 1:
        Note("find a child");
        tree.FindChildItem(-1, -1, nullptr, L"nowhere", item, false);
        break;
    case 2:
        Note("find all");
        tree.FindAllItems(found, -1, -1, nullptr, item, false);
        break;
    default:
        Note("collect all");
        tree.CollectAllItems(found, item);
        break;
    }
}

void TreeWorld::Operate()
{
    constexpr std::size_t most = 3;
    if (m_trees.empty() || (m_trees.size() < most && OneIn(8)))
    {
        Note("make");
        new ChaosTree(*this, &m_parent);
        return;
    }
    ChaosTree & tree = *m_trees[static_cast<std::size_t>(Pick(static_cast<int>(m_trees.size())))];
    HTREEITEM const item = PickItem(tree);
    HWND const window = tree.m_hWnd;
    switch (Pick(20))
    {
    case 0:
        Note("delete");
        if (tree.m_held == 0 && OneIn(3))
            delete &tree;
        break;
    case 1:
        Note("destroy the window");
        if (OneIn(6))
            tree.DestroyWindow();
        break;
    case 2:
    case 3: {
        Note("double click");
        LPARAM const place = MAKELPARAM(Pick(200), Pick(150));
        ::SendMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
        break;
    }
    case 4:
        Note("paint");
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
        break;
    case 5:
        Note("keys");
        tree.DontAbsorbKeys(static_cast<unsigned int>(Pick(256)));
        break;
    case 6:
    case 7:
    case 8:
    case 9:
        Search(tree, OneIn(3) ? TVI_ROOT : item);
        break;
    default:
        Change(tree, item);
        break;
    }
}
} // namespace

TEST(ChaosTree, DISABLED_StandsAHostThatDoesItsWorst)
{
    chaos::RunAll<TreeWorld>();
}
