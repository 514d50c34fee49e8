#include "list/table/TableInput.h"

#include <algorithm>

#include "list/table/NaturalOrder.h"

namespace table_input
{
std::optional<TableRow> Moved(Move move, TableRow focus, TableRow size, TableRow top, TableRow page)
{
    if (size == 0)
        return std::nullopt;
    page = std::max<TableRow>(page, 1);
    TableRow const last = size - 1;
    TableRow const step = std::max<TableRow>(page - 1, 1);
    if (focus >= size)
    {
        // Nothing has it: it comes to where the user looks.
        if (move == Move::last)
            return last;
        return move == Move::first ? 0 : std::min(top, last);
    }
    switch (move)
    {
    case Move::up:
        return focus == 0 ? 0 : focus - 1;
    case Move::down:
        return std::min(focus + 1, last);
    case Move::page_up:
        if (focus > top)
            return top;
        return focus < step ? 0 : focus - step;
    case Move::page_down: {
        TableRow const lowest = last - top < page - 1 ? last : top + (page - 1);
        if (focus < lowest)
            return lowest;
        return last - focus < step ? last : focus + step;
    }
    case Move::first:
        return 0;
    case Move::last:
        return last;
    }
    return focus;
}

void Go(TableModel & model, TableRow position, bool shift, bool control)
{
    if (position >= model.Size())
        return;
    model.SetFocus(position);
    if (shift)
    {
        TableRow const anchor = model.AnchorPosition();
        if (!control)
            model.ClearSelection();
        if (anchor == TableModel::nowhere)
            model.SetAnchor(position);
        model.SelectRange(anchor == TableModel::nowhere ? position : anchor, position);
    }
    else if (!control)
    {
        model.ClearSelection();
        model.Select(position, true);
        model.SetAnchor(position);
    }
}

void Flip(TableModel & model, TableRow position)
{
    if (position >= model.Size())
        return;
    model.SetFocus(position);
    model.SetAnchor(position);
    model.Select(position, !model.IsSelected(position));
}
} // namespace table_input

TypedText::Search TypedText::Add(wchar_t character, long long now)
{
    if (!GoesOn(now))
        m_text.clear();
    m_last = now;
    wchar_t const folded = FoldCase(character);
    // The same character again goes on to the next row that begins with it.
    bool const again = m_text.size() == 1 && m_text[0] == folded;
    if (!again)
        m_text.push_back(folded);
    return {m_text, m_text.size() > 1};
}
