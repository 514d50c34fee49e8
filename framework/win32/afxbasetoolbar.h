#pragma once
// What tool bars have in common with each other.

#include <afxpane.h>

class FRAMEWORK_API CMFCBaseToolBar : public CPane
{
    DECLARE_DYNAMIC(CMFCBaseToolBar)

public:
    CMFCBaseToolBar();
    ~CMFCBaseToolBar() override;

    AFX_DOCK_TYPE GetDockingMode() const override;
    void GetMinSize(CSize & size) const override;
    void OnAfterChangeParent(CWnd * pWndOldParent) override;
};
