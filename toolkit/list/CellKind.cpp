#include "list/CellKind.h"

namespace
{
bool Is(XLISTCTRLDATA const & cell, unsigned int bits)
{
    return (cell.properties & bits) != 0;
}

CellValue ValueOfType(unsigned int valueType)
{
    switch (valueType)
    {
    case XLV_TEXT:
        return CellValue::text;
    case XLV_INT:
        return CellValue::integer;
    case XLV_FLOAT:
        return CellValue::real;
    case XLV_DATETIME:
        return CellValue::time;
    default:
        return CellValue::none;
    }
}
} // namespace

CellKind PaintedKind(XLISTCTRLDATA const & cell)
{
    if (Is(cell, XLP_PROGRESS))
        return CellKind::progress;
    if (cell.checkedState >= XLC_UNCHECKED)
        return MarkedKind(cell.checkedState);
    if (Is(cell, XLP_COMBO))
        return CellKind::combo;
    if (Is(cell, XLP_CUSTOMDRAW))
        return CellKind::custom;
    if (Is(cell, XLP_EDIT))
        return CellKind::edit;
    return Is(cell, XLP_LINK) ? CellKind::link : CellKind::text;
}

CellKind MarkedKind(int checkedState)
{
    if (checkedState < XLC_UNCHECKED)
        return CellKind::text;
    return checkedState == XLC_RADIO_ON || checkedState == XLC_RADIO_OFF ? CellKind::radio : CellKind::check;
}

CellKind PressedKind(XLISTCTRLDATA const & cell)
{
    if (Is(cell, XLP_COMBO))
        return CellKind::combo;
    if (Is(cell, XLP_EDIT))
        return CellKind::edit;
    if (Is(cell, XLP_LINK))
        return CellKind::link;
    return MarkedKind(cell.checkedState);
}

CellPress DecideAdmittedPress(XLISTCTRLDATA const & cell)
{
    switch (PressedKind(cell))
    {
    case CellKind::combo:
        return CellPress::open_combo;
    case CellKind::edit:
        return CellPress::open_edit;
    case CellKind::link:
        return CellPress::follow_link;
    case CellKind::check:
        // A crossed cell stays crossed.
        return cell.checkedState <= XLC_CHECKED ? CellPress::flip_check : CellPress::select_only;
    case CellKind::radio:
        return cell.checkedState == XLC_RADIO_OFF ? CellPress::switch_radio_on : CellPress::select_only;
    case CellKind::text:
    case CellKind::progress:
    case CellKind::custom:
        break;
    }
    return CellPress::select_only;
}

CellPress DecidePress(XLISTCTRLDATA const & cell)
{
    return Is(cell, XLP_ENABLED) ? DecideAdmittedPress(cell) : CellPress::ignored;
}

bool ShowsState(CellKind painted)
{
    switch (painted)
    {
    case CellKind::check:
    case CellKind::radio:
        return true;
    case CellKind::text:
    case CellKind::edit:
    case CellKind::link:
    case CellKind::combo:
    case CellKind::progress:
    case CellKind::custom:
        break;
    }
    return false;
}

CellTint TintOf(XLISTCTRLDATA const & cell)
{
    switch (PaintedKind(cell))
    {
    case CellKind::progress:
        return CellTint::bar;
    case CellKind::text:
    case CellKind::edit:
    case CellKind::link:
    case CellKind::check:
    case CellKind::radio:
    case CellKind::combo:
    case CellKind::custom:
        break;
    }
    return Is(cell, XLP_LINK) ? CellTint::link : CellTint::text;
}

CellValue SortedValue(XLISTCTRLDATA const & cell)
{
    return Is(cell, XLP_PROGRESS) ? CellValue::percent : ValueOfType(cell.valueType);
}

CellValue ExportedValue(XLISTCTRLDATA const & cell)
{
    CellValue const value = ValueOfType(cell.valueType);
    return value == CellValue::none ? CellValue::text : value;
}
