#pragma once

#include <array>

#include "ColourChoice.h"
#include "SettingsGroup.h"

/// The colours of waveforms.
class CWaveformGroup : public CSettingsGroup
{
public:
    CWaveformGroup();

    void Show(workbench::Settings const & settings) override;
    bool Take(workbench::Settings & settings) override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnColour(UINT id);
    afx_msg void OnStandardColours();

    void ShowColours(workbench::WaveformColours const & colours);
    workbench::WaveformColours Colours() const;

    static constexpr std::size_t colour_count = 4;
    std::array<CColourChoice, colour_count> m_colours; ///< in the order of their ids
};
