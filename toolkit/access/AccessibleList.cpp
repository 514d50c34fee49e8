#include "access/AccessibleList.h"

#include "frame/OwnTexts.h"
#include "list/CellKind.h"

namespace
{
using accessible::Element;
using accessible::Role;

long CheckStates(XLISTCTRLDATA const & cell)
{
    switch (cell.checkedState)
    {
    case XLC_CHECKED:
    case XLC_RADIO_ON:
        return accessible::state::checked;
    case XLC_CROSSED:
        return accessible::state::mixed;
    default:
        return 0;
    }
}

long PlaceStates(AccessibleList const & list, Element element)
{
    std::optional<CRect> const rect = accessible::RectOf(list, element);
    CRect common;
    return rect && common.IntersectRect(*rect, list.SightRect(element.col)) ? 0 : accessible::state::offscreen;
}

accessible::Description DescribeRow(AccessibleList const & list, int row)
{
    accessible::Description row_described;
    row_described.role = Role::row;
    row_described.states = accessible::state::selectable | accessible::state::focusable | PlaceStates(list, {row, -1});
    if (list.IsSelected(row))
        row_described.states |= accessible::state::selected;
    if (list.HasFocus() && list.FocusedCol() < 0 && list.IsFocused(row))
        row_described.states |= accessible::state::focused;
    if (!list.IsEnabled())
        row_described.states |= accessible::state::unavailable;
    row_described.name = list.Text(row, 0);
    return row_described;
}

accessible::Description DescribeCell(AccessibleList const & list, int row, int col)
{
    accessible::Description described;
    described.name = list.Title(col);
    described.value = list.Text(row, col);
    described.states = PlaceStates(list, {row, col});
    if (int const cursor = list.FocusedCol(); cursor >= 0)
    {
        described.states |= accessible::state::focusable;
        if (cursor == col && list.HasFocus() && list.IsFocused(row))
            described.states |= accessible::state::focused;
    }
    bool const enabled = list.IsEnabled();
    std::optional<std::wstring> const kindText = list.KindText(row, col);
    // From here on nothing is asked that could run the host's code.
    XLISTCTRLDATA const * const cell = list.Cell(row, col);
    if (cell == nullptr)
    {
        described.role = Role::cell;
        described.states |= accessible::state::read_only;
    }
    else
    {
        described.role = kindText ? Role::cell : accessible::RoleOf(*cell);
        described.action = kindText ? ReadOwnText(OwnText::press) : accessible::ActionOf(*cell);
        if (described.role == Role::check_box && !list.CanTick(col))
            described.action.clear();
        if (kindText)
            described.value = *kindText;
        else if (described.role == Role::progress)
            described.value = std::to_wstring(cell->progressValue) + L"%";
        switch (described.role)
        {
        case Role::check_box:
        case Role::radio_button:
            described.states |= CheckStates(*cell);
            break;
        case Role::link:
            described.states |= accessible::state::linked;
            break;
        case Role::drop_down:
            described.states |= accessible::state::has_popup;
            break;
        default:
            break;
        }
        if (described.action.empty() && described.role != Role::radio_button)
            described.states |= accessible::state::read_only;
        if (!enabled || (cell->properties & XLP_ENABLED) == 0)
        {
            described.states |= accessible::state::unavailable;
            described.action.clear();
        }
    }
    if (described.name.empty())
        described.name = described.value;
    return described;
}
} // namespace

namespace accessible
{
bool Exists(AccessibleList const & list, Element element)
{
    return element.row < list.RowCount() && (!element.IsCell() || element.col < list.ColumnCount());
}

int ChildCount(AccessibleList const & list, Element element)
{
    if (element.IsControl())
        return list.RowCount();
    return element.IsRow() ? list.ColumnCount() : 0;
}

std::optional<Element> Child(AccessibleList const & list, Element element, int place)
{
    if (place < 0 || place >= ChildCount(list, element))
        return {};
    return element.IsControl() ? Element{place, -1} : Element{element.row, place};
}

std::optional<Element> Navigate(AccessibleList const & list, Element from, Direction direction)
{
    Element to = from;
    switch (direction)
    {
    case Direction::first_child:
        return Child(list, from, 0);
    case Direction::last_child:
        return Child(list, from, ChildCount(list, from) - 1);
    case Direction::up:
        --to.row;
        break;
    case Direction::down:
        ++to.row;
        break;
    case Direction::left:
        --to.col;
        break;
    case Direction::right:
        ++to.col;
        break;
    case Direction::next:
        ++(from.IsCell() ? to.col : to.row);
        break;
    case Direction::previous:
        --(from.IsCell() ? to.col : to.row);
        break;
    }
    // Rows have nothing beside them, and the list itself is its parent's matter.
    bool const sameKind = from.IsCell() ? to.IsCell() : from.IsRow() && to.IsRow() && to.col == from.col;
    if (!sameKind || !Exists(list, to))
        return {};
    return to;
}

std::optional<Element> ElementAt(AccessibleList const & list, CPoint point)
{
    if (!list.ClientRect().PtInRect(point))
        return {};
    auto const [row, col] = list.CellAt(point);
    Element const found = row >= 0 ? Element{row, col} : Element{};
    return Exists(list, found) ? found : Element{};
}

std::optional<CRect> RectOf(AccessibleList const & list, Element element)
{
    if (element.IsControl())
        return list.ClientRect();
    return element.IsRow() ? list.RowRect(element.row) : list.CellRect(element.row, element.col);
}

Role RoleOf(XLISTCTRLDATA const & cell)
{
    switch (PaintedKind(cell))
    {
    case CellKind::progress:
        return Role::progress;
    case CellKind::check:
        return Role::check_box;
    case CellKind::radio:
        return Role::radio_button;
    case CellKind::combo:
        return Role::drop_down;
    case CellKind::custom:
        return Role::graphic;
    case CellKind::text:
    case CellKind::edit:
    case CellKind::link:
        break;
    }
    switch (PressedKind(cell))
    {
    case CellKind::edit:
        return Role::text;
    case CellKind::link:
        return Role::link;
    case CellKind::text:
    case CellKind::check:
    case CellKind::radio:
    case CellKind::combo:
    case CellKind::progress:
    case CellKind::custom:
        break;
    }
    return Role::cell;
}

wchar_t const * ActionOf(XLISTCTRLDATA const & cell)
{
    switch (DecideAdmittedPress(cell))
    {
    case CellPress::open_combo:
        return ReadOwnText(OwnText::open);
    case CellPress::open_edit:
        return ReadOwnText(OwnText::edit);
    case CellPress::follow_link:
        return ReadOwnText(OwnText::jump);
    case CellPress::flip_check:
        return ReadOwnText(cell.checkedState == XLC_CHECKED ? OwnText::uncheck : OwnText::check);
    case CellPress::switch_radio_on:
        return ReadOwnText(OwnText::check);
    case CellPress::ignored:
    case CellPress::select_only:
        break;
    }
    return L"";
}

Description Describe(AccessibleList const & list, Element element)
{
    if (element.IsCell())
        return DescribeCell(list, element.row, element.col);
    if (element.IsRow())
        return DescribeRow(list, element.row);
    Description described;
    described.role = Role::list;
    described.states = state::focusable;
    if (list.IsMultiSelect())
        described.states |= state::multi_selectable;
    if (list.HasFocus())
        described.states |= state::focused;
    if (!list.IsEnabled())
        described.states |= state::unavailable;
    return described;
}
} // namespace accessible
