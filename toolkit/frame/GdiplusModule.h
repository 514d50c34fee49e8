#pragma once
// The anti-aliased drawing library, and its start for this module. Internal to the module.

#include <afxwin.h>
#include <objidl.h>

#include <algorithm>

// The library's headers count on min and max, which the platform's headers leave out here.
namespace Gdiplus
{
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>

/// Starts the library at the first call; false if it can't be used. Must not be called from the module's entry
/// function. It is never shut down: by the time that the module ends, this is not allowed any more.
bool StartGdiplus();
