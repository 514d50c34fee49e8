#include "BrowseKey.h"

#include "controls/XEditBrowseCtrl.h"

namespace workbench
{

bool BrowseByKey(MSG const & message)
{
    bool const opens = (message.message == WM_KEYDOWN && message.wParam == VK_F4) ||
                       (message.message == WM_SYSKEYDOWN && message.wParam == VK_DOWN);
    auto * const field = opens ? dynamic_cast<CXEditBrowseCtrl *>(CWnd::GetFocus()) : nullptr;
    if (field == nullptr)
    {
        return false;
    }
    field->BrowseNow();
    return true;
}

} // namespace workbench
