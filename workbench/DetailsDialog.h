#pragma once

#include <functional>
#include <vector>

#include "logic/RecordingDetails.h"
#include "WorkbenchDialog.h"

/// Everything about one recording, line by line; the text can be selected and copied. A menu goes to the next one.
class CDetailsDialog : public CWorkbenchDialog
{
public:
    explicit CDetailsDialog(CWnd & owner);

    /// Shows the lines, in the dialog that is open or in a new one.
    bool Show(std::vector<workbench::DetailLine> lines);

    /// Shows other lines in the dialog while it is open; none leave it as it is.
    void Refresh(std::vector<workbench::DetailLine> lines);

    /// What the menu's entries do; an empty one greys its entry.
    struct Actions
    {
        std::function<void()> previous;
        std::function<void()> next;
        std::function<void()> showInList;
        std::function<void()> setReference;
    };
    /// Asked for each time the menu opens or one of its keys is pressed.
    std::function<Actions()> m_actions;

    void ShowTexts() override;
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG * message) override;

protected:
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnContextMenu(CWnd * window, CPoint point);

    void Fill();

    std::vector<workbench::DetailLine> m_lines;
};
