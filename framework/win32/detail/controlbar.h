#pragma once
// Bars along the sides of a frame. Included by afxext.h.

#include <afxwin.h>

// Styles of bars, in the lower half of the style word: the sides that a bar takes
#define CBRS_ALIGN_LEFT 0x1000L
#define CBRS_ALIGN_TOP 0x2000L
#define CBRS_ALIGN_RIGHT 0x4000L
#define CBRS_ALIGN_BOTTOM 0x8000L
#define CBRS_ALIGN_ANY 0xF000L
// the sides of it that have a border
#define CBRS_BORDER_LEFT 0x0100L
#define CBRS_BORDER_TOP 0x0200L
#define CBRS_BORDER_RIGHT 0x0400L
#define CBRS_BORDER_BOTTOM 0x0800L
#define CBRS_BORDER_ANY 0x0F00L
// and what it does
#define CBRS_TOOLTIPS 0x0010L
#define CBRS_FLYBY 0x0020L // the frame's message follows the mouse
#define CBRS_FLOAT_MULTI 0x0040L
#define CBRS_BORDER_3D 0x0080L
#define CBRS_HIDE_INPLACE 0x0008L
#define CBRS_SIZE_DYNAMIC 0x0004L // its contents wrap as its length wants it
#define CBRS_SIZE_FIXED 0x0002L   // they stay as the program has wrapped them
#define CBRS_FLOATING 0x0001L
#define CBRS_GRIPPER 0x00400000L

#define CBRS_ORIENT_HORZ (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM)
#define CBRS_ORIENT_VERT (CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT)
#define CBRS_ORIENT_ANY (CBRS_ORIENT_HORZ | CBRS_ORIENT_VERT)
#define CBRS_ALL 0x0040FFFFL

#define CBRS_NOALIGN 0x00000000L
#define CBRS_LEFT (CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT)
#define CBRS_TOP (CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM)
#define CBRS_RIGHT (CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT)
#define CBRS_BOTTOM (CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP)

// Modes of CalcDynamicLayout
#define LM_STRETCH 0x01  // as long as the frame
#define LM_HORZ 0x02     // horizontal
#define LM_MRUWIDTH 0x04 // as wide as it was last
#define LM_HORZDOCK 0x08 // docked at the top or at the bottom
#define LM_VERTDOCK 0x10 // docked at a side
#define LM_LENGTHY 0x20  // the length is a height
#define LM_COMMIT 0x40   // the contents are to be put so

struct AFX_SIZEPARENTPARAMS;

/// A bar along a side of its parent. It asks for its place whenever the parent is laid out, and for the state of what
/// it shows in idle time.
class FRAMEWORK_API AFX_NOVTABLE CControlBar : public CWnd
{
    DECLARE_DYNAMIC(CControlBar)

public:
    ~CControlBar() override;

    BOOL m_bAutoDelete;     // the object is deleted with its window
    CWnd * m_pInPlaceOwner; // who gets its commands while a document is edited in place

    DWORD GetBarStyle();
    void SetBarStyle(DWORD dwStyle);
    CRect GetBorders() const;
    void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0);
    void SetBorders(LPCRECT lpRect);
    void SetInPlaceOwner(CWnd * pWnd);
    /// The number of items of a bar that has items of its own.
    int GetCount() const;

    /// The sides that the bar may be docked at.
    void EnableDocking(DWORD dwDockStyle);
    BOOL IsFloating() const;
    CFrameWnd * GetDockingFrame() const;

    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    virtual CSize CalcDynamicLayout(int nLength, DWORD nMode);
    /// Takes what borders and gripper need off the rectangle.
    virtual void CalcInsideRect(CRect & rect, BOOL bHorz) const;
    virtual void OnUpdateCmdUI(CFrameWnd * pTarget, BOOL bDisableIfNoHndler) = 0;

    virtual void DoPaint(CDC * pDC);
    virtual void DrawBorders(CDC * pDC, CRect & rect);
    virtual void DrawGripper(CDC * pDC, const CRect & rect);

    BOOL PreCreateWindow(CREATESTRUCT & cs) override;
    BOOL PreTranslateMessage(MSG * pMsg) override;

protected:
    CControlBar();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnTimer(UINT_PTR nIDEvent);

private:
    friend class CDialogBar;
    friend class CFrameWnd;
    friend class CReBar;
    friend class CStatusBar;
    friend class CToolBar;

    enum class Delay
    {
        none,
        show,
        hide
    };

    /// Puts the contents so as the mode wants it, before the bar is asked for its size in that mode.
    virtual void Arrange(DWORD mode);
    /// Makes the window of a native control. False if the bar has been ended meanwhile, perhaps with its object.
    bool CreateNative(LPCTSTR className, DWORD style, CWnd * parent, UINT id);
    DWORD TakeStyles(DWORD dwStyle, UINT nID);
    bool IsHorizontal() const { return (m_style & CBRS_ORIENT_HORZ) != 0; }
    bool IsToBeVisible() const;
    void DelayShow(BOOL bShow);
    CFrameWnd * TargetFrame() const;
    DWORD LayoutMode(bool stretch) const;

    void CalcNonClient(NCCALCSIZE_PARAMS * params) const;
    void PaintNonClient();

    INT_PTR HitAt(CPoint screen) const;
    void FollowMouse(MSG const & message);
    void ShowFlyBy(INT_PTR hit);

    LRESULT HandleSizeParent(WPARAM wParam, LPARAM lParam);
    LRESULT HandleIdleUpdate(WPARAM wParam, LPARAM lParam);
    LRESULT HandleInitialUpdate(WPARAM wParam, LPARAM lParam);

    DWORD m_style;     // CBRS_...
    DWORD m_dockStyle; // the sides that it may be docked at
    CRect m_borders;   // the space around its contents, beside the borders that are drawn
    CSize m_sizeShown; // the client area's, as it was painted
    int m_count;
    bool * m_alive;      // while its window is made: whether the object is there
    Delay m_delay;       // what the next layout is to do
    INT_PTR m_flyBy;     // whose message the frame shows, or -1
    bool m_flyByWaiting; // for the mouse to rest

    DECLARE_MESSAGE_MAP()
};
