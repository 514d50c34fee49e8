#include "list/XListCellKind.h"

CXListCellKind::~CXListCellKind() = default;

std::optional<CXListCellKind::Change> CXListCellKind::Press(XLISTCTRLDATA &, CRect const &, CPoint)
{
    return {};
}

std::optional<CXListCellKind::Change> CXListCellKind::Key(XLISTCTRLDATA &, unsigned int)
{
    return {};
}

std::optional<long long> CXListCellKind::SortValue(XLISTCTRLDATA const &) const
{
    return {};
}

std::optional<CString> CXListCellKind::ExportText(XLISTCTRLDATA const &) const
{
    return {};
}
