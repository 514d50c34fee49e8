#pragma once

#include <array>
#include <functional>

#include "DialogsGroup.h"
#include "ListGroup.h"
#include "StartGroup.h"
#include "WaveformGroup.h"
#include "WorkbenchDialog.h"

/// Lets the user change the settings. Apply hands them over, OK also closes the dialog.
class CSettingsDialog : public CWorkbenchDialog
{
public:
    explicit CSettingsDialog(CWnd & owner);

    /// Opens the dialog with these settings; if it is open, it is brought to the front and keeps what it shows.
    bool OpenWith(workbench::Settings const & settings);

    /// Gives the settings as they are when the dialog's are put into them; without it those of the opening count.
    std::function<workbench::Settings()> m_current;

    /// Called with what OK and Apply hand over.
    std::function<void(workbench::Settings const &)> m_onAccepted;

    BOOL OnInitDialog() override;

protected:
    void OnOK() override;

    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnApply();

    std::array<CSettingsGroup *, 4> Groups();
    void PlaceGroups();
    bool Apply();
    void EnableApply(bool enabled);

    workbench::Settings m_settings;
    CStartGroup m_start;
    CWaveformGroup m_waveform;
    CListGroup m_list;
    CDialogsGroup m_dialogs;
};
