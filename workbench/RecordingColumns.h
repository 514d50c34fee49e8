#pragma once
// The columns of the list that the user can hide, for a multiselect, which lists what it has by numbers: so a column
// has the number of its place in the list.

#include <afxwin.h>

#include <map>
#include <set>
#include <vector>

namespace workbench
{

/// Stands for all columns among those that a multiselect has ticked.
inline constexpr int every_column = -1;

/// The columns that can be hidden, all but check boxes and names, in an order of columns: by their places there. Those
/// that the order lacks come last.
std::vector<int> HideableColumns(std::vector<int> const & order);

/// Their titles, by their places.
std::map<int, CString> ColumnNames(std::vector<int> const & columns);

/// What a multiselect shows ticked: the places of those that are not hidden, with `every_column` if none is.
std::set<int> ShownColumns(std::vector<int> const & columns, std::set<int> const & hidden);

/// The columns that are hidden where a multiselect has these places ticked.
std::set<int> HiddenColumns(std::vector<int> const & columns, std::set<int> const & ticked);

} // namespace workbench
