#pragma once

#include <array>
#include <functional>
#include <vector>

#include "dialogs/PropertySheet3d.h"
#include "DialogsGroup.h"
#include "ListGroup.h"
#include "SpectrogramGroup.h"
#include "StartGroup.h"
#include "WaveformGroup.h"

/// Lets the user change the settings, on a page for each group. Apply hands over what was changed, OK also closes the
/// sheet.
class CSettingsSheet : public CPropertySheet3d
{
public:
    CSettingsSheet();

    /// Opens the sheet above its owner, at the page that showed last; if it is open, it is brought to the front and
    /// keeps what it shows.
    bool Open(CWnd & owner);

    /// Gives the settings as they are, for what the pages show and for what they put theirs into.
    std::function<workbench::Settings()> m_current;

    /// Called with what OK and Apply hand over, once for each page that was changed.
    std::function<void(workbench::Settings const &)> m_onAccepted;

    /// Called with true when the sheet has opened and with false when it is about to end.
    std::function<void(bool)> m_onOpened;

    /// The user has given the columns of the list another order there.
    void FollowColumns(std::vector<int> const & order);

    /// Shows what the open sheet says in the present language. What the user has entered stays.
    void ShowTexts();

    BOOL OnInitDialog() override;
    void OnActivatePage(CPropertyPage * page) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnDestroy();

    std::array<CSettingsGroup *, 5> Groups();
    void StretchTabs();
    void ShowOwnTexts();

    CStartGroup m_start;
    CWaveformGroup m_waveform;
    CSpectrogramGroup m_spectrogram;
    CListGroup m_list;
    CDialogsGroup m_dialogs;
    int m_shownPage = 0;
};
