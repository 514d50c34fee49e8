#pragma once

#include <afxwin.h>

#include <functional>

/// The room between two windows that lie side by side, by which the user moves their edge.
class CDivider : public CWnd
{
public:
    bool CreateDivider(CWnd & parent, UINT id);

    /// Called while the user moves it: where its left edge is to be, in the parent's client area.
    std::function<void(int x)> m_onMoved;
    /// Called when the user has let go.
    std::function<void()> m_onReleased;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd * window);

    int m_grip = -1; ///< while it is moved: how far from its edge it was taken
};
