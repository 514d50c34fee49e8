// Views in dockable panes of the main frame: torn off, tabbed, hidden, and back at their places at the next start.
#include "Gallery.h"

class CTextView : public CView
{
    DECLARE_DYNCREATE(CTextView)
    void OnDraw(CDC * dc) override
    {
        CString title;
        GetParent()->GetWindowText(title);
        dc->SelectStockObject(DEFAULT_GUI_FONT);
        dc->TextOut(10, 10, L"The view in the pane " + title);
    }
};
IMPLEMENT_DYNCREATE(CTextView, CView)

class CMainFrame : public CMDIFrameWndEx, public CMainFrmInterface
{
public:
    CMainFrame() : CMainFrmInterface(this) { base_id(id_base); }

    /// Panes with views, at the sides where they go first; the workspace remembers where the user has put them. There
    /// are no child frames here: the room of a client area that is hidden goes to the panes.
    void ShowPanes()
    {
        EnableDocking(CBRS_ALIGN_ANY);
        ::ShowWindow(m_hWndMDIClient, SW_HIDE);
        for (auto const * const name : {L"Waveform", L"Levels", L"Marks"})
        {
            int id = -1; // a program keeps what it becomes
            CDockableViewPane * pane = nullptr;
            CStandaloneFrameMigrationHelper::CreatePane<CTextView>(name, id, pane);
            if (pane != nullptr)
            {
                pane->EnableDocking(CBRS_ALIGN_ANY);
                pane->DockToFrameWindow(name[0] == L'W' ? CBRS_ALIGN_BOTTOM : CBRS_ALIGN_LEFT);
                pane->ShowPane(TRUE, FALSE, FALSE);
            }
        }
    }
};

class CPanesApp : public CGalleryApp
{
    bool OpenWindow() override
    {
        auto * const frame = new CMainFrame; // ends itself with its window
        m_pMainWnd = frame;
        frame->Create(nullptr, L"Panes", WS_OVERLAPPEDWINDOW, CRect(40, 40, 560, 330));
        frame->ShowPanes();
        frame->ShowWindow(SW_SHOW);
        return frame->m_hWnd != nullptr;
    }
};

CPanesApp theApp;
