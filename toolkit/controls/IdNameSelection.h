#pragma once
// What the id-name multiselect does with its items, selection and ticks, on any list of rows. In a selection -1 stands
// for all items, whatever else it contains.

#include <afx.h>
#include <atltypes.h>

#include <functional>
#include <map>
#include <set>

#include "frame/Export.h"

namespace id_name
{
constexpr int all_items = -1;
/// Characters of a row's text that are looked at and, with an id in front, shown.
constexpr int longest_row_text = 499;
/// Pixels at 96 dots an inch.
constexpr int button_strip_height = 22;
/// Likewise what a shortened list of names leaves free of a field.
constexpr int room_beside_names = 50;

using Map = std::map<int, CString>;
using Ids = std::set<int>;

/// A list of rows, each with a text, an id and a tick.
class Rows
{
public:
    virtual int Count() const = 0;
    virtual void Clear() = 0;
    virtual void Insert(int place, wchar_t const * text, int id) = 0;
    /// The first characters of the text, longest_row_text at most.
    virtual CString Text(int row) const = 0;
    virtual int Id(int row) const = 0;
    virtual bool IsTicked(int row) const = 0;
    virtual void SetTicked(int row, bool ticked) = 0;

protected:
    ~Rows() = default;
};

/// How rows are entered.
struct Order
{
    /// Selected items come first.
    bool grouped = true;
    /// By name, in the order of its code units. Has no effect where ids are shown.
    bool sorted = false;
    /// The id stands in front of the name.
    bool showIds = false;
};

/// Enters one item: at the end, or sorted, in front of the first row from startIndex on whose text is greater.
INSTRUMENT_UI_API void Enter(Rows & rows, int id, wchar_t const * name, int startIndex, Order const & order);
/// Enters all items anew. An empty map gives one row with the text and the id -1.
INSTRUMENT_UI_API void Fill(Rows & rows, Map const & map, Ids const & selection, Order const & order,
                            CString const & emptyText);
INSTRUMENT_UI_API void TickSelected(Rows & rows, Ids const & selection);
/// The ids of the ticked rows, and -1 too if all are ticked. Nothing where the map is empty.
INSTRUMENT_UI_API Ids TickedIds(Rows const & rows, bool mapIsEmpty);
/// -1 and all ids.
INSTRUMENT_UI_API Ids EveryId(Map const & map);

/// The names of the ids, ascending, joined by ", ". The first one is whole; where another one would make the text
/// wider than width less the room beside it, "…" stands in its place and ends the text.
INSTRUMENT_UI_API CString JoinedNames(Ids const & ids, std::function<CString(int)> const & nameOf,
                                      std::function<int(CString const &)> const & widthOf, int width,
                                      unsigned int dpi = 96);

/// Where the parts of a multiselect are.
struct Places
{
    CRect list, selectAll, selectNone, cancel, ok;
};
INSTRUMENT_UI_API Places PlacesIn(CRect const & rect, bool okCancel, unsigned int dpi = 96);
} // namespace id_name
