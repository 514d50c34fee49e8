#pragma once

#include <afxwin.h>

/// The base of panes that consist of controls. Their ground, and the labels on it, are painted in the set of colours
/// that the toolkit's controls are painted in; native fields and buttons keep the system's colours in every set.
class CPanel : public CWnd
{
protected:
    /// Creates the window, without a place yet. name: for programs that read the screen.
    bool CreatePanelWindow(wchar_t const * name, CWnd & parent, UINT id);

    DECLARE_MESSAGE_MAP()

private:
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg HBRUSH OnCtlColor(CDC * dc, CWnd * window, UINT type);
};
