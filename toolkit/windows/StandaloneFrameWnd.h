#pragma once

#include <afxext.h>
#include <afxmdichildwndex.h>
#include <afxwin.h>

#include "frame/Export.h"
#include "windows/FensterManager.h"
#include "windows/StandaloneFrameUser.h"

/// A child frame of the application's main frame that needs no document. It shows one view or a fixed grid of views and
/// remembers its place, under its title, in a window manager of its own. It lives on the heap and deletes itself with
/// its window.
///
/// While the touch freeze is on, frames can't be moved or sized; the host sets it together with
/// CFensterManager::ActivateTouchFreeze.
class INSTRUMENT_UI_API CStandaloneFrameWnd : public CMDIChildWndEx
{
    DECLARE_DYNCREATE(CStandaloneFrameWnd)

public:
    CStandaloneFrameWnd();
    CStandaloneFrameWnd(CStandaloneFrameWnd const &) = delete;
    CStandaloneFrameWnd & operator=(CStandaloneFrameWnd const &) = delete;
    ~CStandaloneFrameWnd() override;

    /// Creates the window with one view of that class, in that window style, and shows it. False if it failed; a window
    /// whose view could not be made stays, without one.
    bool Erzeugen(CString const & title, CRuntimeClass * viewClass, unsigned long style);
    /// Creates the window with a grid of at most 16 rows and columns. viewClasses has one class a cell, row by row, and
    /// is copied. False if it failed; the frame is gone then.
    bool SplitFrameErzeugen(CString const & title, unsigned long long rows, unsigned long long columns,
                            CRuntimeClass ** viewClasses);

    /// Subscribes the user, which is told of this frame from now on and counts as having a frame at once. The pointer
    /// is kept and not owned; it must not be null.
    void BitteUmNachricht(CStandaloneFrameUser * user);
    /// The view in that cell; null outside the grid, in a frame without one, and for a pane that is no view.
    CView * GetSplitPane(int row, int column);
    /// Hands a command to the user, if there is one.
    void MenueKommando(int first, int second);
    /// Brings the main frame's title up to date once a frame has gone. Does nothing without a window.
    void FensterWeg();

    /// The manager of the frame's position.
    CFensterManager * FensterManager();
    CFensterManager const * FensterManager() const;
    /// Moves the frame to its stored position.
    void FensterpositionLaden();
    /// Stores the present position.
    void FensterpositionSpeichern();
    /// Whether the frame was open when the application last ended.
    bool OpenInitially() const;
    /// Enables or greys the system menu's close command, and the button with it.
    void EnableCloseButton(bool enable);

    /// Whether no frame of the process can be moved or sized.
    static bool IsInTouchFreeze();
    /// Sets that.
    static void SetTouchFreeze(bool freeze);

    BOOL PreCreateWindow(CREATESTRUCT & cs) override;
    /// The argument is ignored: the frame shows itself in its manager's show mode. Hosts expect that.
    void ActivateFrame(int nCmdShow = -1) override;
    /// Always 1.
    int IsReadOnly() override;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext * pContext) override;

    afx_msg void OnDestroy();
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);

    DECLARE_MESSAGE_MAP()

private:
    bool ShowFirstTime();

    CFensterManager m_fenster;
    HICON m_icon;
    bool m_split;
    CSplitterWnd m_splitter;
    unsigned long long m_rows;
    unsigned long long m_cols;
    CRuntimeClass ** m_paneClasses;
    int m_paneSize[2]; // height and width
    bool m_hasUser;
    CStandaloneFrameUser * m_user;

    static bool g_touchFreeze;
};
