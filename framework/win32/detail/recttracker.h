#pragma once
// A rectangle that the user moves and resizes with the mouse. Included by afxext.h.

#include <afxwin.h>

class FRAMEWORK_API CRectTracker
{
public:
    enum StyleFlags
    {
        solidLine = 1,
        dottedLine = 2,
        hatchedBorder = 4,
        resizeInside = 8,
        resizeOutside = 16,
        hatchInside = 32
    };
    /// What a point hits: a corner or side, the inside, or nothing.
    enum TrackerHit
    {
        hitNothing = -1,
        hitTopLeft = 0,
        hitTopRight = 1,
        hitBottomRight = 2,
        hitBottomLeft = 3,
        hitTop = 4,
        hitRight = 5,
        hitBottom = 6,
        hitLeft = 7,
        hitMiddle = 8
    };

    CRectTracker();
    CRectTracker(LPCRECT lpSrcRect, UINT nStyle);
    virtual ~CRectTracker();

    UINT m_nStyle;   // StyleFlags
    CRect m_rect;    // where it is, in the window's client area; upside down after having been turned over
    CSize m_sizeMin; // the least that it can be resized to
    int m_nHandleSize;

    void Draw(CDC * pDC) const;
    /// The rectangle with its handles.
    void GetTrueRect(LPRECT lpTrueRect) const;
    /// False if the pointer is not over the rectangle's handles or inside; the window's own cursor is left then.
    BOOL SetCursor(CWnd * pWnd, UINT nHitTest) const;
    /// Follows the mouse until the button is released. FALSE if nothing has changed or Escape was pressed.
    BOOL Track(CWnd * pWnd, CPoint point, BOOL bAllowInvert = FALSE, CWnd * pWndClipTo = nullptr);
    BOOL TrackRubberBand(CWnd * pWnd, CPoint point, BOOL bAllowInvert = TRUE);
    int HitTest(CPoint point) const;
    /// The handle that is meant where the rectangle is upside down.
    int NormalizeHit(int nHandle) const;

    virtual void DrawTrackerRect(LPCRECT lpRect, CWnd * pWndClipTo, CDC * pDC, CWnd * pWnd);
    /// lpRect while it is tracked by the handle, for the deriving class to change.
    virtual void AdjustRect(int nHandle, LPRECT lpRect);
    virtual void OnChangedRect(const CRect & rectOld);
    virtual UINT GetHandleMask() const;

private:
    CRect HandleRect(int handle) const;
    int HandleSize(LPCRECT rect) const;
    int HitHandle(CPoint point) const;
    BOOL TrackHandle(int handle, CWnd * window, CPoint point, CWnd * clipTo);
    void Follow(int handle, CPoint point, CRect const & start, CPoint from);

    bool m_allowInvert;
    bool m_erase;     // what is drawn is to be taken away
    CRect m_rectLast; // what is drawn
    bool m_drawn;
};
