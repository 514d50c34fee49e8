#pragma once

#include <afxwin.h>

/// A view that its one child window fills, whosever that is. It knows nothing of it, so that it can stand in a frame, a
/// pane or a cell of a grid.
class CHostView : public CView
{
    DECLARE_DYNCREATE(CHostView)

public:
    /// Gives the child the view's size, as every change of the size does.
    void Fill();

    BOOL PreCreateWindow(CREATESTRUCT & create) override;
    BOOL PreTranslateMessage(MSG * message) override;

protected:
    void OnDraw(CDC *) override {}

    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnSetFocus(CWnd * previous);
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg int OnMouseActivate(CWnd * top, UINT hit, UINT message);

    bool IsInMainWindow() const;
};
