#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <functional>
#include <string>

#include "ScreenMetrics.h"

/// The line at the main window's lower edge: a text and, while recordings are looked for and read, how far that is and
/// a button that ends it. A text that is cut is a tool tip as well.
class CStatusStrip : public CWnd
{
public:
    /// Creates the strip. The metrics must outlive the window.
    bool CreateStrip(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics);

    /// The strip's height in pixels.
    static int Height(workbench::ScreenMetrics const & metrics);

    /// Shows a text; the one that is there is not painted again.
    void ShowText(std::wstring const & text);
    /// Shows the rest of what it says in the present language.
    void ShowTexts();

    /// Shows how much is done. total 0: nothing is going on, and bar and button are hidden.
    void ShowProgress(std::size_t done, std::size_t total);
    bool ShowsProgress() const { return m_total > 0; }

    /// Called for a press on the button.
    std::function<void()> m_onCancel;

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnCancelClicked();

    void Arrange();
    void ShowTip();

    workbench::ScreenMetrics * m_metrics = nullptr;
    CStatic m_text;
    CWnd m_bar;
    CButton m_cancel;
    CToolTipCtrl m_tips;
    std::wstring m_shown;
    std::size_t m_done = 0;
    std::size_t m_total = 0;
};
