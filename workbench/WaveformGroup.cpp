#include "WaveformGroup.h"

#include "resource.h"

BEGIN_MESSAGE_MAP(CWaveformGroup, CSettingsGroup)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_COLOUR_FIRST, IDC_COLOUR_LAST, &CWaveformGroup::OnColour)
    ON_BN_CLICKED(IDC_STANDARD_COLOURS, &CWaveformGroup::OnStandardColours)
END_MESSAGE_MAP()

CWaveformGroup::CWaveformGroup() : CSettingsGroup(IDD_SETTINGS_WAVEFORM)
{
    static_assert(IDC_COLOUR_LAST - IDC_COLOUR_FIRST + 1 == colour_count);
}

void CWaveformGroup::DoDataExchange(CDataExchange * exchange)
{
    CSettingsGroup::DoDataExchange(exchange);
    int id = IDC_COLOUR_FIRST;
    for (CColourChoice & colour : m_colours)
    {
        DDX_Control(exchange, id++, colour);
    }
}

void CWaveformGroup::Show(workbench::Settings const & settings)
{
    ShowColours(settings.waveform);
}

bool CWaveformGroup::Take(workbench::Settings & settings)
{
    settings.waveform = Colours();
    return true;
}

void CWaveformGroup::ShowColours(workbench::WaveformColours const & colours)
{
    m_colours[0].ShowColour(colours.trace);
    m_colours[1].ShowColour(colours.background);
    m_colours[2].ShowColour(colours.grid);
    m_colours[3].ShowColour(colours.cursor);
}

workbench::WaveformColours CWaveformGroup::Colours() const
{
    return {m_colours[0].Colour(), m_colours[1].Colour(), m_colours[2].Colour(), m_colours[3].Colour()};
}

void CWaveformGroup::OnColour(UINT id)
{
    if (m_colours[id - IDC_COLOUR_FIRST].Choose())
    {
        Changed();
    }
}

void CWaveformGroup::OnStandardColours()
{
    if (Colours() != workbench::WaveformColours())
    {
        ShowColours({});
        Changed();
    }
}
