#pragma once
// Inside framework.dll only: what the hooks of the system's dialogs have in common.

#include "DialogAccess.h"

namespace framework
{
/// Makes the window of a system's dialog that object's, when it is initialised.
inline UINT_PTR AttachCommonDialog(CDialog & dialog, HWND window)
{
    if (!dialog.SubclassWindow(window))
        return 1;
    return DialogProcedure(window, WM_INITDIALOG, 0, 0) != 0;
}
} // namespace framework
