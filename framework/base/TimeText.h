#pragma once
// Private to the framework's sources: times as text.

#include "afx.h"

#include <ctime>

namespace framework
{
/// By the directives of strftime. An unknown one throws CInvalidArgException.
CString FormatTimeParts(LPCTSTR format, std::tm const & parts);
} // namespace framework
