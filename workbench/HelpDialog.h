#pragma once

#include <functional>
#include <string>

#include "logic/HelpTopics.h"
#include "WorkbenchDialog.h"

/// The help: a list of topics, and the page of the chosen one. Closing it goes back to the window that was active.
class CHelpDialog : public CWorkbenchDialog
{
public:
    explicit CHelpDialog(CWnd & owner);

    /// Shows the page of a topic, in the dialog that is open or in a new one.
    bool Show(workbench::HelpTopic topic);

    /// Shows what it says in the present language.
    void ShowTexts() override;

    /// The menus by which the keys are told; asked for whenever the page of the keys is shown.
    std::function<std::vector<workbench::MenuTexts>()> m_menus;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    void OnCancel() override;

    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnTopicChosen();

    void Fill();
    void ShowPage();
    std::wstring PageText() const;

    CListBox m_topics;
    CEdit m_page;
    workbench::HelpTopic m_topic = workbench::HelpTopic::overview;
    HWND m_former = nullptr; ///< the window that was active before
};
