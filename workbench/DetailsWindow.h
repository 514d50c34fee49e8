#pragma once

#include <afxwin.h>

#include <memory>
#include <vector>

#include "ScreenMetrics.h"
#include "logic/RecordingDetails.h"
#include "windows/FensterManager.h"

/// A modeless window with everything about one recording, line by line; the texts can be selected and copied.
class CDetailsWindow : public CWnd
{
public:
    CDetailsWindow();

    /// Shows the lines, in the window that is open or in a new one, and activates it. The metrics must outlive it.
    bool Show(CWnd & owner, workbench::ScreenMetrics & metrics, std::vector<workbench::DetailLine> const & lines);

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnClose();
    afx_msg void OnCloseCommand();
    afx_msg void OnActivate(UINT state, CWnd * other, BOOL minimized);
    afx_msg void OnSetFocus(CWnd * previous);

    /// A line of the window; the controls are there for every line that a recording can have.
    struct Line
    {
        CStatic label;
        CEdit text;
    };

    bool CreateWindowFor(CWnd & owner, workbench::ScreenMetrics & metrics);

    CFensterManager m_memory;
    std::vector<std::unique_ptr<Line>> m_lines;
    CButton m_close;
    HWND m_lastFocus = nullptr;
};
