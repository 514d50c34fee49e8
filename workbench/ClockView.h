#pragma once

#include "BufferedView.h"
#include "segments/LedTextAnzeiger.h"

/// The time of day in segments. A click changes between digits of seven and of fourteen segments.
class CClockView : public CBufferedView
{
public:
    /// Creates the view, which goes on by itself.
    bool CreateView(CWnd & parent, UINT id);

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);

    void ShowTime();
    void Draw(CDC & dc, CRect const & client) override;

    CLedTextAnzeiger m_text;
    CString m_shown;
    bool m_fourteen = false;
};
