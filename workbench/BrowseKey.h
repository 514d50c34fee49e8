#pragma once

#include <afxwin.h>

namespace workbench
{

/// Opens the browser of the browse edit that has the focus, where a message is a key that opens drop-downs: F4 or Alt
/// and the down arrow. False for all others.
bool BrowseByKey(MSG const & message);

} // namespace workbench
