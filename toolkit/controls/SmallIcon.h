#pragma once
// The toolkit's icons in the size that small buttons have room for. Internal to the module.

#include <afxwin.h>

#include <algorithm>
#include <climits>

#include "frame/ToolkitResources.h"
#include "layout/WindowDpi.h"

/// The icon of that id with the system's small icon size, or with `largest` pixels where that is more, both at that
/// resolution. The caller destroys it. Null if there is none.
inline HICON LoadSmallToolkitIcon(UINT id, int largest = INT_MAX, UINT dpi = 96)
{
    HICON const large = LoadToolkitIcon(id);
    if (large == nullptr)
        return nullptr;
    int const limit = resolution::Scaled(largest, dpi);
    int const width = std::min(window_dpi::Metric(SM_CXSMICON, dpi), limit);
    int const height = std::min(window_dpi::Metric(SM_CYSMICON, dpi), limit);
    return static_cast<HICON>(::CopyImage(large, IMAGE_ICON, width, height, LR_COPYFROMRESOURCE));
}
