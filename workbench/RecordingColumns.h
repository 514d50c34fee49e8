#pragma once
// The columns of the list that the user can hide, for a multiselect.

#include <afxwin.h>

#include <map>
#include <set>

namespace workbench
{

/// Stands for all columns among those that a multiselect has ticked.
inline constexpr int every_column = -1;

/// The columns that can be hidden, with their titles: all but check boxes and names.
std::map<int, CString> ColumnNames();

/// What a multiselect shows ticked: the columns that are not hidden, with `every_column` if none is.
std::set<int> ShownColumns(std::set<int> const & hidden);

/// The columns that are hidden where a multiselect has these ticked.
std::set<int> HiddenColumns(std::set<int> const & ticked);

} // namespace workbench
