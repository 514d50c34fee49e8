#include "windows/StandaloneFrameMigrationHelper.h"

#include "frame/WindowAlive.h"
#include "windows/FensterManager.h"
#include "windows/MainFrmInterface.h"
#include "windows/StandaloneFrameWnd.h"

namespace
{
constexpr UINT initial_update = 0x0364; // MFC's WM_INITIALUPDATE

CWnd * MainWindow()
{
    CWinThread * const thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}
} // namespace

CView * CStandaloneFrameMigrationHelper::CreatePane(wchar_t const * name, int & id, CDockableViewPane *& pane,
                                                    CRuntimeClass * viewClass)
{
    CWnd * const main = MainWindow();
    auto * const frame = dynamic_cast<CMainFrmInterface *>(main);
    if (frame == nullptr)
        return nullptr;
    id = frame->register_pane(pane, id);
    if (id < 0)
        return nullptr;
    // The host's code runs from here on. The pane ends with the main frame.
    WindowHold const mainHold(*main);
    CDockableViewPane * const taken = pane;
    bool const restored = ::IsWindow(taken->m_hWnd);
    auto * const view = DYNAMIC_DOWNCAST(CView, viewClass != nullptr ? viewClass->CreateObject() : nullptr);
    if (view == nullptr || mainHold.Lost())
        return nullptr;
    taken->Connect(*view, name);
    if (mainHold.Lost() || taken->View() == nullptr)
        return nullptr;
    CView * const connected = taken->View();
    WindowHold const paneHold(*taken);
    HWND const viewWindow = connected == view ? view->m_hWnd : nullptr;
    taken->SendMessageToDescendants(initial_update, 0, 0, TRUE, FALSE);
    if (mainHold.Lost())
        return nullptr;
    // In this order, since the second deletes what the first reads.
    bool const open = CFensterManager::OpenInitially(name);
    CRect const place = VeskPosition(name);
    if (!restored && !paneHold.Lost())
    {
        taken->Float(place);
        if (!mainHold.Lost() && !paneHold.Lost())
            taken->ShowPane(open, FALSE, open);
    }
    if (mainHold.Lost() || (viewWindow != nullptr && !StillHas(connected, viewWindow)))
        return nullptr;
    return taken->View();
}

CRect CStandaloneFrameMigrationHelper::VeskPosition(CString const & name)
{
    CFensterManager former(name, CFensterManager::window_main);
    former.ReadMyPosition(nullptr);
    if (!former.EraseMyPosition())
        return CRect(0, 0, 0, 0);
    CRect place = former.WhatsMyPosition();
    // Frames stand in the main frame's client area for them.
    CPoint corner = place.TopLeft();
    if (auto const * const frame = DYNAMIC_DOWNCAST(CMDIFrameWnd, MainWindow()))
        ::ClientToScreen(frame->m_hWndMDIClient, &corner);
    place.MoveToXY(corner);
    return place;
}

void CStandaloneFrameMigrationHelper::BringWindowToTop(CStandaloneFrameWnd * frame, CDockablePane * pane)
{
    if (frame != nullptr)
    {
        frame->BringWindowToTop();
        return;
    }
    if (pane == nullptr || !::IsWindow(pane->m_hWnd))
        return;
    WindowHold const hold(*pane);
    pane->ShowPane(TRUE, FALSE, TRUE);
    if (hold.Lost())
        return;
    if (CWnd * const parent = pane->GetParent())
        parent->BringWindowToTop();
}
