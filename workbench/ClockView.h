#pragma once

#include <afxwin.h>

#include "segments/LedTextAnzeiger.h"

/// The time of day in segments. A click changes between digits of seven and of fourteen segments.
class CClockView : public CWnd
{
public:
    /// Creates the view, which goes on by itself.
    bool CreateView(CWnd & parent, UINT id);

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM flags);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);

    void ShowTime();
    void Draw(CDC & dc, CRect const & client);

    CLedTextAnzeiger m_text;
    CString m_shown;
    bool m_fourteen = false;
};
