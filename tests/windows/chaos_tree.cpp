// Trees whose host deletes, inserts, searches and ends them in every message that they get or send.
//
// Native trees do not stand everything in their notifications. A plain program without us, each item's memory
// overwritten once it is free, shows what the host here leaves out:
// - The window ends while native code of it runs.
// - An item goes, alone or with one above it, while the parent is asked for its text or while it is being entered; any
// item, while one is being chosen, opened or closed.
// - It is painted while an item is being entered or deleted.
// - Another item goes while one is deleted: the tree holds the one shown ahead of it.
// - While an item is deleted: it or what is below it is chosen, or gets items below it, which never ends.
// - While all items are deleted: any of this.

#include <algorithm>
#include <cwchar>
#include <set>
#include <utility>
#include <vector>

#include "chaos_Chaos.h"
#include "controls/XTreeCtrl.h"
#include "frame/RegisteredMessages.h"

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

    /// Native code of it runs, or its window is being made.
    bool MustLast() const { return m_native > 0; }
    bool IsUnder(HTREEITEM item, HTREEITEM top) const;
    /// Whether the native tree stands the item's end now.
    bool MayGo(HTREEITEM item) const;
    /// Whether it stands it that the item is chosen or gets items below it now.
    bool MayChange(HTREEITEM item) const;
    /// Whether the native tree stands it that it is painted.
    bool MayBePainted() const { return m_going.empty() && m_coming.empty(); }
    bool MayBeReset() const { return MayBePainted() && m_needed.empty() && m_opening == 0; }

    std::vector<HTREEITEM> Items() const;
    /// Items whose texts the parent is being asked for, and such as are being chosen.
    std::vector<HTREEITEM> m_needed;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    TreeWorld & m_world;
    int m_native = 0;
    /// Above 0 while the native tree chooses, opens or closes items.
    int m_opening = 0;
    /// Items that the native tree is deleting; TVI_ROOT for all.
    std::vector<HTREEITEM> m_going;
    /// Where an item is being entered, and which were there before.
    struct Coming
    {
        HTREEITEM parent;
        std::vector<HTREEITEM> others;
    };
    std::vector<Coming> m_coming;
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
    /// Its cache of device contexts, for windows that paint within one another: grows to that size and stays.
    static constexpr int kept_by_the_system = 48;

    explicit TreeWorld(unsigned int seed) : Chaos(seed), m_host(*this) {}
    ~TreeWorld() override
    {
        while (!m_trees.empty())
            delete m_trees.back();
    }

    bool Lives(ChaosTree const * tree) const
    {
        return std::find(m_trees.begin(), m_trees.end(), tree) != m_trees.end();
    }
    void Enter(ChaosTree * tree) { m_trees.push_back(tree); }
    void Leave(ChaosTree * tree) { std::erase(m_trees, tree); }
    ChaosTree * TreeOf(HWND window) const
    {
        auto const found =
            std::find_if(m_trees.begin(), m_trees.end(), [&](ChaosTree * tree) { return tree->m_hWnd == window; });
        return found != m_trees.end() ? *found : nullptr;
    }
    std::vector<HTREEITEM> Look(ChaosTree & tree)
    {
        if (tree.m_hWnd == nullptr)
            return {};
        bool const before = std::exchange(m_looking, true);
        std::vector<HTREEITEM> items = tree.Items();
        m_looking = before;
        return items;
    }
    /// The world looks at its trees and is not disturbed.
    bool IsLooking() const { return m_looking; }

protected:
    void Operate() override;
    void CheckInvariants() override
    {
        m_looking = true;
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
            for (HTREEITEM const item : tree->Items())
            {
                CXTreeCtrl::ItemData * const record = tree->GetItemData(item);
                ASSERT_NE(record, nullptr);
                EXPECT_TRUE(used.contains(record));
                EXPECT_TRUE(attached.insert(record).second) << "a record hangs from two items";
            }
        }
        m_looking = false;
    }

private:
    /// So that a walk during which items come in ends.
    static constexpr std::size_t most_items = 30;

    void Change(ChaosTree & tree, HTREEITEM item, std::size_t count);
    void Insert(ChaosTree & tree, HTREEITEM parent);
    void Search(ChaosTree & tree, HTREEITEM item);

    TreeHolder m_host;
    std::vector<ChaosTree *> m_trees;
    bool m_looking = false;
};

ChaosTree::ChaosTree(TreeWorld & world, CWnd * parent) : m_world(world)
{
    m_world.Enter(this);
    ++m_native;
    Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT, CRect(10, 10, 210, 160), parent, 5);
    --m_native;
}

ChaosTree::~ChaosTree()
{
    m_world.Leave(this);
    if (m_hWnd != nullptr)
        DestroyWindow();
}

bool ChaosTree::IsUnder(HTREEITEM item, HTREEITEM top) const
{
    while (item != nullptr && item != top)
        item = GetParentItem(item);
    return item != nullptr;
}

bool ChaosTree::MayGo(HTREEITEM item) const
{
    if (!m_going.empty() || m_opening > 0)
        return false;
    auto const isUnder = [&](HTREEITEM each) { return IsUnder(each, item); };
    auto const isUnderOrNew = [&](Coming const & coming) {
        return IsUnder(coming.parent, item) ||
               std::find(coming.others.begin(), coming.others.end(), item) == coming.others.end();
    };
    return std::none_of(m_needed.begin(), m_needed.end(), isUnder) &&
           std::none_of(m_coming.begin(), m_coming.end(), isUnderOrNew);
}

std::vector<HTREEITEM> ChaosTree::Items() const
{
    std::vector<HTREEITEM> items;
    std::vector<HTREEITEM> open;
    if (HTREEITEM const root = GetRootItem())
        open.push_back(root);
    while (!open.empty())
    {
        HTREEITEM const item = open.back();
        open.pop_back();
        items.push_back(item);
        if (HTREEITEM const next = GetNextSiblingItem(item))
            open.push_back(next);
        if (HTREEITEM const child = GetChildItem(item))
            open.push_back(child);
    }
    return items;
}

bool ChaosTree::MayChange(HTREEITEM item) const
{
    return std::none_of(m_going.begin(), m_going.end(),
                        [&](HTREEITEM going) { return going == TVI_ROOT || IsUnder(item, going); });
}

LRESULT ChaosTree::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    TreeWorld & world = m_world; // this object may end
    bool const quiet = message == WM_NCDESTROY || message == WM_DESTROY || message == WM_NCCREATE;
    if (quiet || !world.Lives(this) || world.IsLooking())
    {
        // No object stands its end while its window ends.
        m_native += quiet;
        LRESULT const result = CXTreeCtrl::WindowProc(message, wParam, lParam);
        if (world.Lives(this))
            m_native -= quiet;
        return result;
    }
    if (message == WM_PAINT && !MayBePainted())
    {
        ::ValidateRect(m_hWnd, nullptr);
        return 0;
    }
    world.Disturb();
    if (!world.Lives(this) || m_hWnd == nullptr)
        return 0;
    LRESULT const result = CXTreeCtrl::WindowProc(message, wParam, lParam);
    if (world.Lives(this))
        world.Disturb();
    return result;
}

LRESULT ChaosTree::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    TreeWorld & world = m_world;
    bool const deletes = message == TVM_DELETEITEM || message == WM_DESTROY;
    if (deletes)
    {
        auto const item = reinterpret_cast<HTREEITEM>(lParam);
        m_going.push_back(message == WM_DESTROY || item == nullptr ? TVI_ROOT : item);
    }
    bool const enters = message == TVM_INSERTITEMW;
    if (enters)
    {
        HTREEITEM const parent = reinterpret_cast<TVINSERTSTRUCTW const *>(lParam)->hParent;
        m_coming.push_back({parent == TVI_ROOT ? nullptr : parent, world.Look(*this)});
    }
    bool const opens =
        message == TVM_SELECTITEM || message == TVM_EXPAND || message == WM_KEYDOWN || message == WM_LBUTTONDBLCLK;
    m_opening += opens;
    ++m_native;
    LRESULT const result = CXTreeCtrl::DefWindowProc(message, wParam, lParam);
    if (!world.Lives(this))
        return result;
    --m_native;
    if (deletes)
        m_going.pop_back();
    if (enters)
        m_coming.pop_back();
    m_opening -= opens;
    return result;
}

LRESULT TreeHolder::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_XTREECTRL_DBLCLK || message == WM_PARENTNOTIFY)
        m_world.Disturb();
    if (message != WM_NOTIFY)
        return ScopedWindow::WindowProc(message, wParam, lParam);
    auto const & header = *reinterpret_cast<NMHDR const *>(lParam);
    ChaosTree * const tree = m_world.TreeOf(header.hwndFrom);
    if (tree != nullptr && header.code == TVN_SELCHANGINGW)
    {
        tree->m_needed.push_back(reinterpret_cast<NMTREEVIEWW const &>(header).itemNew.hItem);
        m_world.Disturb();
        tree->m_needed.pop_back(); // it lasts while its native code runs
        return 0;
    }
    if (tree == nullptr || header.code != TVN_GETDISPINFOW)
    {
        m_world.Disturb();
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
    TVITEMW const & asked = reinterpret_cast<NMTVDISPINFOW const *>(lParam)->item;
    tree->m_needed.push_back(asked.hItem);
    m_world.Disturb();
    tree->m_needed.pop_back();
    if ((asked.mask & TVIF_TEXT) != 0 && asked.cchTextMax > 0)
        std::wcsncpy(asked.pszText, L"asked", static_cast<std::size_t>(asked.cchTextMax));
    return 0;
}

void TreeWorld::Insert(ChaosTree & tree, HTREEITEM parent)
{
    wchar_t const * const text = OneIn(3) ? LPSTR_TEXTCALLBACKW : L"item";
    int const sortKey = parent != nullptr ? Pick(5) - 1 : -1;
    switch (Pick(3))
    {
    case 0:
        tree.InsertTreeItem(text, parent, OneIn(2) ? TVI_FIRST : TVI_LAST, sortKey);
        break;
    case 1:
        tree.InsertTreeItem(text, 0, 0, parent, TVI_LAST, sortKey);
        break;
    default:
        tree.InsertTreeItem(text, 0, 0, parent, Pick(3), Pick(20), TVI_LAST, sortKey);
        break;
    }
}

void TreeWorld::Change(ChaosTree & tree, HTREEITEM item, std::size_t count)
{
    switch (Pick(10))
    {
    case 0:
        Note("delete an item");
        if (item != nullptr && tree.MayGo(item))
            tree.DeleteTreeItem(item);
        break;
    case 1:
        Note("delete below an item");
        if (item != nullptr && tree.MayGo(item))
            tree.DeleteAllSubItems(item);
        break;
    case 2:
        Note("reset");
        if (OneIn(4) && tree.MayBeReset())
            tree.ResetContent();
        break;
    case 3:
        Note("expand");
        if (tree.MayBeReset())
            tree.ExpandTree(Pick(4) - 1);
        break;
    case 4:
        Note("select");
        if (tree.MayChange(item))
            tree.SelectItem(item);
        break;
    default: {
        Note("insert");
        HTREEITEM const parent = OneIn(4) ? nullptr : item;
        if (count < most_items && tree.MayChange(parent))
            Insert(tree, parent);
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
        new ChaosTree(*this, &m_host);
        return;
    }
    ChaosTree & tree = *m_trees[static_cast<std::size_t>(Pick(static_cast<int>(m_trees.size())))];
    HWND const window = tree.m_hWnd;
    std::vector<HTREEITEM> const items = Look(tree);
    HTREEITEM const item =
        items.empty() ? nullptr : items[static_cast<std::size_t>(Pick(static_cast<int>(items.size())))];
    switch (Pick(20))
    {
    case 0:
        Note("delete");
        if (!tree.MustLast() && OneIn(3))
            delete &tree;
        break;
    case 1:
        Note("destroy the window");
        if (!tree.MustLast() && OneIn(6))
            tree.DestroyWindow();
        break;
    case 2:
        Note("double click");
        ::SendMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(Pick(200), Pick(150)));
        break;
    case 3: {
        Note("key");
        WPARAM const keys[] = {VK_DOWN, VK_RIGHT, VK_LEFT, VK_END};
        if (tree.MayBeReset())
            ::SendMessageW(window, WM_KEYDOWN, keys[Pick(4)], 0);
        break;
    }
    case 4:
        Note("paint");
        ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
        break;
    case 5:
        Note("keys to let through");
        tree.DontAbsorbKeys(static_cast<unsigned int>(Pick(256)));
        break;
    case 6:
    case 7:
    case 8:
    case 9:
        Search(tree, OneIn(3) ? TVI_ROOT : item);
        break;
    default:
        Change(tree, item, items.size());
        break;
    }
}
} // namespace

TEST(ChaosTree, StandsAHostThatDoesItsWorst)
{
    chaos::RunAll<TreeWorld>();
}
