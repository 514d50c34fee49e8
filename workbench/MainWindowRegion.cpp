// How the main window follows the user's region.

#include "MainWindow.h"

#include "UserRegion.h"

LRESULT CMainWindow::WindowProc(UINT message, WPARAM wide, LPARAM parameter)
{
    bool const isOfRegion = message == WM_SETTINGCHANGE && parameter != 0 &&
                            ::lstrcmpiW(reinterpret_cast<wchar_t const *>(parameter), L"intl") == 0;
    LifeWatch const life(m_life);
    LRESULT const result = CMDIFrameWndEx::WindowProc(message, wide, parameter);
    if (isOfRegion && !life.Over() && m_status.GetSafeHwnd() != nullptr && workbench::UseUserNumbers())
    {
        ShowNumbers();
    }
    return result;
}

/// Shows all numbers anew.
void CMainWindow::ShowNumbers()
{
    m_list.RefreshLines();
    if (m_details.GetSafeHwnd() != nullptr)
    {
        m_details.Refresh(DetailsOf(m_detailsIndex));
    }
    m_help.ShowTexts();
    UpdateStatusLine();
    // Plots and frames have readings and axes.
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    m_preview.Update();
}
