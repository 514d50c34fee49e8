#pragma once

#include <afxwin.h>

#include "frame/Export.h"
#include "windows/DockableViewPane.h"

class CStandaloneFrameWnd;

/// Makes dockable panes with their views, and carries what was stored of a window that used to be a stand-alone frame
/// over to its pane, once.
class INSTRUMENT_UI_API CStandaloneFrameMigrationHelper
{
public:
    /// Takes a pane of the main frame and makes a view of the class View, which has dynamic creation, in it. The main
    /// window must be a CMainFrmInterface.
    ///
    ///     m_view = CStandaloneFrameMigrationHelper::CreatePane<ScopeView>(L"Scope", m_paneId, m_pane);
    ///
    /// name: the pane's title, and the name that a former stand-alone frame had. What was stored of that is deleted. In
    /// the first run the pane floats where the frame was, and is shown if the frame was open; later the application's
    /// workspace has its place.
    /// id: the pane's identifier of the last run, or -1; becomes the one that it has now, or -1. Keep it.
    /// pane: becomes the pane, which the main frame owns.
    /// Null if the main window is none, all panes are given out, the view could not be made or has ended within. In the
    /// last two cases the pane stays given out, free for whoever asks for its identifier.
    template <class View> static View * CreatePane(wchar_t const * name, int & id, CDockableViewPane *& pane)
    {
        return static_cast<View *>(CreatePane(name, id, pane, RUNTIME_CLASS(View)));
    }

    /// Where a former frame of that name was, in screen pixels; what was stored of it is deleted. Empty if nothing, or
    /// not all, was there to delete.
    static CRect VeskPosition(CString const & name);
    /// Brings the frame to the front; without one shows the pane, activates it and brings it to the front. Either may
    /// be null.
    static void BringWindowToTop(CStandaloneFrameWnd * frame, CDockablePane * pane);

private:
    static CView * CreatePane(wchar_t const * name, int & id, CDockableViewPane *& pane, CRuntimeClass * viewClass);
};
