#pragma once

#include <afxwin.h>

#include <functional>
#include <memory>

#include "Settings.h"
#include "layout/DialogResizer.h"

/// The base of the groups that the settings consist of. Each is a dialog template of its own, and knows nothing of the
/// others nor of the dialog that it stands in.
class CSettingsGroup : public CDialog
{
public:
    explicit CSettingsGroup(UINT templateId);
    CSettingsGroup(CSettingsGroup const &) = delete;
    CSettingsGroup & operator=(CSettingsGroup const &) = delete;

    /// Creates the group as a child of the dialog, unseen. The id is also its control id.
    bool CreateGroup(CWnd & parent);

    /// Shows these settings.
    virtual void Show(workbench::Settings const & settings) = 0;
    /// Puts what the user has chosen into the settings. False if that is no choice; the user has been told then, and
    /// the focus is where it can be put right.
    virtual bool Take(workbench::Settings & settings) = 0;

    /// Called when the user has changed something.
    std::function<void()> m_onChanged;

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    /// Lets a control follow the group's size; its id as it is in the template.
    void Follow(int id, CEdges const & edges);
    void Changed();

    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    UINT m_template;
    std::unique_ptr<CDialogResizer> m_layout;
};
