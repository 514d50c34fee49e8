#pragma once

#include <afxwin.h>

/// A child window that draws all of itself, without flicker.
class CBufferedView : public CWnd
{
protected:
    /// Creates the window; it is redrawn as a whole when its size changes.
    bool CreateBuffered(wchar_t const * name, DWORD style, CRect const & place, CWnd & parent, UINT id);

    /// Draws into a rectangle of any device context, all of which it covers.
    virtual void Draw(CDC & dc, CRect const & rect) = 0;

    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC * dc);
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM flags);
};
