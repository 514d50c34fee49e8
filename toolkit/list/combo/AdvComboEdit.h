#pragma once

#include <afxwin.h>

namespace XListCtrl
{
/// The edit field of an advanced combo box. It comes to the foreground a moment after it was made. Internal to the
/// module.
class CAdvComboEdit : public CEdit
{
protected:
    void PreSubclassWindow() override;
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()
};
} // namespace XListCtrl
