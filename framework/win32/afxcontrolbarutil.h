#pragma once
// Double-buffered painting.

#include <afxwin.h>
#include <uxtheme.h>

// Draws in memory, in the coordinates of the context it stands for, and copies what was drawn to it when it goes.
class FRAMEWORK_API CMemDC
{
public:
    CMemDC(CDC & dc, CWnd * pWnd);
    CMemDC(CDC & dc, CRect const & rect);
    CMemDC(CMemDC const &) = delete;
    CMemDC & operator=(CMemDC const &) = delete;
    virtual ~CMemDC();

    CDC & GetDC();
    BOOL IsMemDC();
    BOOL IsVistaDC();

private:
    void Begin();

    CDC & m_target;
    CDC m_buffer;
    CBitmap m_bitmap;
    HGDIOBJ m_previousBitmap = nullptr;
    HPAINTBUFFER m_themedBuffer = nullptr;
    CRect m_rect;
};
