#pragma once
// The toolkit's icons in the size that small buttons have room for. Internal to the module.

#include <afxwin.h>

#include "frame/ToolkitResources.h"

/// The icon of that id with the system's small icon size. The caller destroys it. Null if there is none.
inline HICON LoadSmallToolkitIcon(UINT id)
{
    HICON const large = LoadToolkitIcon(id);
    if (large == nullptr)
        return nullptr;
    return static_cast<HICON>(::CopyImage(large, IMAGE_ICON, ::GetSystemMetrics(SM_CXSMICON),
                                          ::GetSystemMetrics(SM_CYSMICON), LR_COPYFROMRESOURCE));
}
