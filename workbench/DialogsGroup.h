#pragma once

#include "controls/ComboBoxX.h"
#include "SettingsGroup.h"

/// How dialogs open, are moved and look while they are not active.
class CDialogsGroup : public CSettingsGroup
{
public:
    CDialogsGroup();

    void Show(workbench::Settings const & settings) override;
    bool Take(workbench::Settings & settings) override;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnChange();

    CComboBoxX m_opacity;
};
