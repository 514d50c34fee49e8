#include "controls/IdNameSelection.h"

#include <algorithm>
#include <cwchar>
#include <utility>
#include <vector>

#include "layout/Resolution.h"

namespace id_name
{
namespace
{
constexpr wchar_t ellipsis[] = L"\u2026";
constexpr wchar_t separator[] = L", ";
constexpr int parts_without_ok = 4;
constexpr int parts_with_ok = 6;

bool IsSorted(Order const & order)
{
    return order.sorted && !order.showIds;
}

CString RowText(int id, wchar_t const * name, bool showId)
{
    if (!showId)
        return CString(name);
    CString text;
    text.Format(L"%d: ", id);
    return (text + name).Left(longest_row_text);
}

using Item = std::pair<int, CString>;

/// Enters items behind the last row, in the order that entering one after the other would give.
void EnterAll(Rows & rows, std::vector<Item> & items, Order const & order)
{
    if (IsSorted(order))
    {
        std::stable_sort(items.begin(), items.end(), [](Item const & a, Item const & b) {
            return std::wcsncmp(a.second, b.second, longest_row_text) < 0;
        });
    }
    int place = rows.Count();
    for (auto const & [id, name] : items)
        rows.Insert(place++, RowText(id, name, order.showIds), id);
}
} // namespace

void Enter(Rows & rows, int id, wchar_t const * name, int startIndex, Order const & order)
{
    int const count = rows.Count();
    int place = count;
    if (IsSorted(order))
    {
        place = startIndex;
        while (place < count && std::wcscmp(rows.Text(place), name) <= 0)
            ++place;
        place = std::min(place, count);
    }
    rows.Insert(place, RowText(id, name, order.showIds), id);
}

void Fill(Rows & rows, Map const & map, Ids const & selection, Order const & order, CString const & emptyText)
{
    rows.Clear();
    if (map.empty())
    {
        rows.Insert(0, emptyText, all_items);
        return;
    }
    std::vector<Item> first;
    std::vector<Item> others;
    for (auto const & [id, name] : map)
        (order.grouped && selection.contains(id) ? first : others).emplace_back(id, name);
    EnterAll(rows, first, order);
    EnterAll(rows, others, order);
}

void TickSelected(Rows & rows, Ids const & selection)
{
    bool const all = selection.contains(all_items);
    for (int row = 0; row < rows.Count(); ++row)
        rows.SetTicked(row, all || selection.contains(rows.Id(row)));
}

Ids TickedIds(Rows const & rows, bool mapIsEmpty)
{
    Ids ids;
    if (mapIsEmpty)
        return ids;
    bool all = true;
    int const count = rows.Count();
    for (int row = 0; row < count; ++row)
    {
        if (rows.IsTicked(row))
            ids.insert(rows.Id(row));
        else
            all = false;
    }
    if (all)
        ids.insert(all_items);
    return ids;
}

Ids EveryId(Map const & map)
{
    Ids ids{all_items};
    for (std::pair<int const, CString> const & item : map)
        ids.insert(ids.end(), item.first);
    return ids;
}

CString JoinedNames(Ids const & ids, std::function<CString(int)> const & nameOf,
                    std::function<int(CString const &)> const & widthOf, int width, unsigned int dpi)
{
    int const beside = resolution::Scaled(room_beside_names, dpi);
    CString text;
    for (int const id : ids)
    {
        CString const name = nameOf(id);
        if (!text.IsEmpty())
        {
            text += separator;
            if (widthOf(text) + widthOf(name) > width - beside)
            {
                text += ellipsis;
                break;
            }
        }
        text += name;
    }
    return text;
}

Places PlacesIn(CRect const & rect, bool okCancel, unsigned int dpi)
{
    Places places;
    places.list = rect;
    places.list.bottom -= resolution::Scaled(button_strip_height, dpi);
    int const top = places.list.bottom + 1;
    int const part = rect.Width() / (okCancel ? parts_with_ok : parts_without_ok);
    int const middle = rect.left + 2 * part;
    int const lastTwo = rect.right - 2 * part;
    places.selectAll = CRect(rect.left, top, middle, rect.bottom);
    places.selectNone = CRect(middle, top, okCancel ? lastTwo : rect.right, rect.bottom);
    places.cancel = CRect(lastTwo, top, lastTwo + part, rect.bottom);
    places.ok = CRect(lastTwo + part, top, rect.right, rect.bottom);
    return places;
}
} // namespace id_name
