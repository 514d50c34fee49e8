#pragma once

#include <afxdockablepane.h>
#include <afxwin.h>

#include "frame/Export.h"

/// A dockable pane of the main frame that holds one view and keeps it filling the pane. The objects belong to the main
/// frame (CMainFrmInterface), which gives them out by identifier; CStandaloneFrameMigrationHelper::CreatePane makes a
/// pane and its view at once.
class INSTRUMENT_UI_API CDockableViewPane : public CDockablePane
{
    DECLARE_DYNCREATE(CDockableViewPane)

public:
    CDockableViewPane();
    CDockableViewPane(CDockableViewPane const &) = delete;
    CDockableViewPane & operator=(CDockableViewPane const &) = delete;
    ~CDockableViewPane() override;

    /// Creates the pane's window if the main frame has given the pane out and it has none yet, creates the view's
    /// window in it and gives the pane that title. A view on the heap is the framework's from here on, as always; its
    /// pointer is kept and not owned. False if the view's window could not be made; the pane then keeps the view that
    /// it had.
    bool Connect(CView & view, wchar_t const * title);
    /// The view, or null as long as there was none. Nothing takes it back: a view that has ended still counts.
    CView * View();
    /// Makes the pane float at that place, in screen pixels; an empty rectangle stands for 200 by 100 at the origin.
    /// False without a window, or if the pane may not float.
    bool Float(CRect rect);

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);

    DECLARE_MESSAGE_MAP()

private:
    void CreateOwnWindow();

    CView * m_view;
};
