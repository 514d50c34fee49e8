// Where the window and its panes are, kept while the program runs: one that is killed comes back with it, too.

#include "MainWindow.h"

#include <utility>

#include "Settings.h"

namespace
{

void Add(std::vector<LONG_PTR> & layout, RECT const & rect)
{
    layout.insert(layout.end(), {rect.left, rect.top, rect.right, rect.bottom});
}

} // namespace

/// What a look at the window and its panes tells: another one of it means that something has been moved.
std::vector<LONG_PTR> CMainWindow::LayoutNow()
{
    std::vector<LONG_PTR> layout;
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(&placement);
    Add(layout, placement.rcNormalPosition);
    for (CDockableViewPane * const pane : m_panes)
    {
        if (pane == nullptr)
        {
            continue;
        }
        // Docked panes are told by their places in the window, those that float by their places on the screen.
        CRect place;
        pane->GetWindowRect(&place);
        if (!pane->IsFloating())
        {
            ScreenToClient(&place);
        }
        Add(layout, place);
        layout.push_back(reinterpret_cast<LONG_PTR>(pane->GetParent()->GetSafeHwnd()));
        layout.insert(layout.end(), {pane->IsVisible(), pane->IsWindowVisible(), pane->IsAutoHideMode()});
    }
    return layout;
}

/// Keeps where the window and its panes are, if they have been moved. Not while they are being dragged.
void CMainWindow::KeepLayout()
{
    if (IsIconic() || ::GetCapture() != nullptr || ::GetAsyncKeyState(VK_LBUTTON) < 0)
    {
        return;
    }
    std::vector<LONG_PTR> layout = LayoutNow();
    if (layout == m_layout)
    {
        return;
    }
    m_layout = std::move(layout);
    m_memory.CalcMyPosition(this);
    m_memory.SaveMyPosition(false);
    KeepWorkspace();
}

/// Keeps where the panes are.
void CMainWindow::KeepWorkspace()
{
    if (auto * const app = DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp()); app != nullptr && m_panes[part_folders] != nullptr)
    {
        app->SaveState(this);
        workbench::StoreLayoutResolution(static_cast<int>(m_metrics.Resolution()));
    }
}
