#pragma once
// The items of an advanced combo box and what is selected of them, without a window. Internal to the module.

#include <cstdint>
#include <list>
#include <optional>
#include <string>

namespace XListCtrl
{
struct combo_item
{
    std::wstring text;
    /// Not 0: cannot be selected by the mouse, or by keys that go item by item.
    std::uint32_t disabled = 0;
    /// The caller's; without an effect.
    std::uint32_t flag = 0;
    /// The caller's.
    std::int64_t data = 0;
};

/// The operations on a combo's items. It refers to the four fields of the combo, which must outlive it, and owns
/// nothing. Indices count from 0; an operation with an index outside the list gives -1 and changes nothing. Every
/// operation goes through the list from its start, so a loop over indices is for no one but tests.
class ComboItems
{
public:
    static constexpr int none = -1;
    /// How far the page keys go.
    static constexpr int page = 10;

    /// cursor: where the last walk stopped; it means nothing between two operations.
    ComboItems(std::list<combo_item> & items, std::list<combo_item>::iterator & cursor, std::int64_t & selected,
               std::wstring & text)
        : m_items(items),
          m_cursor(cursor),
          m_selected(selected),
          m_text(text)
    {
    }

    int Count() const { return static_cast<int>(m_items.size()); }
    /// Null outside the list.
    combo_item * At(std::int64_t index) const;

    /// Gives the new item's index.
    int Add(std::wstring text);
    /// An index of -1 or beyond the count appends. A selection at or behind the index moves on with its item. Gives the
    /// new item's index.
    int Insert(int index, std::wstring text);
    /// Gives the new count. Hosts expect that the selection stays a number, whatever item then has it.
    int Delete(int index);
    /// Takes all items and the selection away.
    void Reset();
    /// The lines of the text as the only items; empty ones are left out.
    void Load(std::wstring const & lines);

    /// The first item, from start on (which is included; -1: from the beginning), that begins with the text or that is
    /// the text. Case counts.
    int Find(int start, std::wstring const & text) const;
    int FindExact(int start, std::wstring const & text) const;

    /// -1 for none. In an empty list any index is taken, and the result is -1.
    int Select(std::int64_t index);
    /// The index of the item found exactly, which is then selected, or -1.
    int SelectExact(int start, std::wstring const & text);
    /// The text of the selected item becomes the combo's, if there is such an item.
    void TakeSelectedText();

    /// What the arrow keys select next in a closed combo: the nearest item before or behind the selection that is not
    /// disabled.
    std::optional<int> Neighbour(bool forward) const;
    /// What the page keys select: ten items on, disabled ones not left out, as hosts expect.
    std::optional<int> PageNeighbour(bool forward) const;

    /// What completes the text typed: the first item that begins with it.
    combo_item const * Completion(std::wstring const & typed) const;
    /// What is offered for the text typed: the items that begin with it and are longer.
    std::list<combo_item> Suggestions(std::wstring const & typed) const;

private:
    template <class Predicate> int Search(int start, Predicate const & fits) const;

    std::list<combo_item> & m_items;
    std::list<combo_item>::iterator & m_cursor;
    std::int64_t & m_selected;
    std::wstring & m_text;
};
} // namespace XListCtrl
