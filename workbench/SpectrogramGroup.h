#pragma once

#include "SettingsGroup.h"

/// How spectrograms are computed and shown.
class CSpectrogramGroup : public CSettingsGroup
{
public:
    CSpectrogramGroup();

    void Show(workbench::Settings const & settings) override;
    bool Take(workbench::Settings & settings) override;

    void ShowTexts() override;
    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnChosen();

    void FillBoxes();

    CComboBox m_window;
    CComboBox m_overlap;
    CComboBox m_scale;
};
