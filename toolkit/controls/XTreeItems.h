#pragma once
// What hangs from the items of a tree, and searches among them. Known of the tree: first child and next sibling of an
// item, its text, its record.

#include <afx.h>

#include <cstddef>
#include <iterator>
#include <list>
#include <utility>
#include <vector>

#include "frame/Export.h"

/// The record of one tree item.
struct XTreeItemData
{
    /// Integers of a key.
    static constexpr int clavis_length = 8;
    /// So many integers of the key are copied by the operations that name no number.
    static constexpr int short_clavis_length = 6;

    /// The caller's.
    int type = -1;
    /// The caller's.
    int id = -1;
    /// The key. -1 in every place if it was never set.
    int clavis[clavis_length] = {-1, -1, -1, -1, -1, -1, -1, -1};
    /// The caller's, not owned.
    void * ptr = nullptr;
    /// Position among siblings; -1 for none.
    int sortKey = -1;
};

namespace xtree
{
/// Records in use, or in the stock of the control that owns them.
using Records = std::list<XTreeItemData *>;

/// A record with all defaults, but in a used one the sort key of before. It comes from the stock if that has one, and
/// is in use afterwards.
INSTRUMENT_UI_API XTreeItemData * TakeRecord(Records & inUse, Records & stock);
/// Moves the record behind the end of the stock; one that is not in use stays where it is. Looks through all in use.
INSTRUMENT_UI_API void ReturnRecord(Records & inUse, Records & stock, XTreeItemData const * record);
/// Moves all at once.
INSTRUMENT_UI_API void ReturnAllRecords(Records & inUse, Records & stock);
/// Frees all.
INSTRUMENT_UI_API void FreeRecords(Records & stock);

/// Whether the record fits, where -1 fits all, in each place of the key too, and so does a key of null. False without
/// a record.
INSTRUMENT_UI_API bool MatchesBest(XTreeItemData const * record, int type, int id, int const * clavis);
/// Whether all is equal, -1 being a value like any other; only a key of null fits all. False without a record.
INSTRUMENT_UI_API bool MatchesExactly(XTreeItemData const * record, int type, int id, int const * clavis);

/// Whether the tree's user of a virtual key is to have it, by the classes in the flags.
INSTRUMENT_UI_API bool PassesKey(unsigned int keyFlags, unsigned int key);

/// Where a new child belongs by its sort key. Children with the same key stay in order of arrival.
template <class Item> struct Position
{
    /// Where among the children.
    enum class Place
    {
        first,
        last,
        behind
    };
    /// Where the new child goes.
    Place place = Place::last;
    /// With `behind` alone.
    Item item{};
};

/// Tree: Item, First(parent), Next(item), Record(item). A null parent stands for `root`, the first item of the top
/// level: it is its children that are looked at then, which is meant.
template <class Tree> Position<typename Tree::Item> FindSortPosition(Tree & tree, typename Tree::Item parent,
                                                                     typename Tree::Item root, int sortKey)
{
    /// An item of the tree.
    using Item = typename Tree::Item;
    using Found = Position<Item>;
    if (parent == Item{})
        parent = root;
    if (parent == Item{})
        return {};
    Found before{Found::Place::first, Item{}};
    for (Item child = tree.First(parent); child != Item{}; child = tree.Next(child))
    {
        XTreeItemData const * const record = tree.Record(child);
        if (record != nullptr && record->sortKey > sortKey)
            return before;
        before = {Found::Place::behind, child};
    }
    return {};
}

/// Goes through a tree, each item before its children, children in order. Needs no room on the stack, however deep
/// the tree.
template <class Tree> class Walk
{
public:
    /// An item of the tree.
    using Item = typename Tree::Item;

    /// withLaterSiblings: goes on to the siblings behind `start` and all below them.
    Walk(Tree & tree, Item start, bool withLaterSiblings) : m_tree(tree), m_withLaterSiblings(withLaterSiblings)
    {
        if (start != Item{})
            m_path.push_back(start);
    }

    /// Null at the end.
    Item Current() const { return m_path.empty() ? Item{} : m_path.back(); }
    /// 0 for start and its siblings.
    int Level() const { return static_cast<int>(m_path.size()) - 1; }
    /// Goes on to the next item in the order of the display.
    void Advance()
    {
        if (m_path.empty())
            return;
        if (Item const child = m_tree.First(m_path.back()); child != Item{})
        {
            // The path may have been cut meanwhile.
            if (!m_path.empty())
                m_path.push_back(child);
            return;
        }
        while (m_path.size() > (m_withLaterSiblings ? 0u : 1u))
        {
            Item const next = m_tree.Next(m_path.back());
            if (m_path.empty())
                return;
            if (next != Item{})
            {
                m_path.back() = next;
                return;
            }
            m_path.pop_back();
        }
        m_path.clear();
    }

    /// Start, or the sibling of it that was come to, and so on down to the present item.
    std::vector<Item> const & Path() const { return m_path; }
    /// Nothing more is visited.
    void End() { m_path.clear(); }

private:
    Tree & m_tree;
    bool m_withLaterSiblings;
    std::vector<Item> m_path;
};
} // namespace xtree
