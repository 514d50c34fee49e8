#pragma once
// The toolkit's icons in the size that small buttons have room for. Internal to the module.

#include <afxwin.h>

#include <algorithm>
#include <climits>

#include "frame/ToolkitResources.h"

/// The icon of that id with the system's small icon size, or with `largest` pixels where that is more. The caller
/// destroys it. Null if there is none.
inline HICON LoadSmallToolkitIcon(UINT id, int largest = INT_MAX)
{
    HICON const large = LoadToolkitIcon(id);
    if (large == nullptr)
        return nullptr;
    int const width = std::min(::GetSystemMetrics(SM_CXSMICON), largest);
    int const height = std::min(::GetSystemMetrics(SM_CYSMICON), largest);
    return static_cast<HICON>(::CopyImage(large, IMAGE_ICON, width, height, LR_COPYFROMRESOURCE));
}
