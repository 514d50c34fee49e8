#include "list/table/ValueCell.h"

#include <algorithm>
#include <cmath>

namespace
{
int PercentOf(double number)
{
    return std::isfinite(number) ? static_cast<int>(std::clamp(number, 0.0, 100.0)) : 0;
}
} // namespace

bool IsNumber(TableKind kind)
{
    return kind == TableKind::whole || kind == TableKind::floating;
}

CellAlign AlignmentOf(TableColumn const & column, TableKind kind)
{
    switch (column.align)
    {
    case TableAlign::left:
        return CellAlign::left;
    case TableAlign::centre:
        return CellAlign::centre;
    case TableAlign::right:
        return CellAlign::right;
    case TableAlign::by_kind:
        break;
    }
    switch (kind)
    {
    case TableKind::whole:
    case TableKind::floating:
        return CellAlign::right;
    case TableKind::time:
        return CellAlign::centre;
    case TableKind::blank:
    case TableKind::text:
    // The marks of ticks stand in the middle whatever the text's place.
    case TableKind::tick:
    case TableKind::progress:
    case TableKind::link:
        break;
    }
    return CellAlign::left;
}

void MakeCellOf(TableValue const & value, bool isTyped, XLISTCTRLDATA & cell)
{
    // Not every change of kind takes all that was there before.
    cell.properties = XLP_ENABLED;
    switch (value.Kind())
    {
    case TableKind::link:
        cell.MakeLink();
        return;
    case TableKind::tick:
        cell.MakeCheck(value.Whole() != 0 ? XLC_CHECKED : XLC_UNCHECKED);
        return;
    case TableKind::progress:
        cell.MakeProgress();
        cell.progressValue = PercentOf(value.Number());
        cell.progressShowText = true;
        break;
    case TableKind::blank:
    case TableKind::text:
    case TableKind::whole:
    case TableKind::floating:
    case TableKind::time:
        cell.MakePlain();
        break;
    }
    if (isTyped)
        cell.properties |= XLP_EDIT;
}
