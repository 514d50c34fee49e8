#include "SpectrogramGroup.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

namespace
{

// In the order of the boxes' lines. Windows in samples; 0 follows the sample rate.
constexpr std::size_t windows[] = {0, 256, 512, 1024, 2048, 4096, 8192, 16384, 32768};
constexpr int overlaps[] = {0, 50, 75, 87};

/// The line of a value; the first one for a value that has none.
template <class Value, std::size_t Count> int LineOf(Value const (&values)[Count], Value const & wanted)
{
    auto const found = std::find(std::begin(values), std::end(values), wanted);
    return found == std::end(values) ? 0 : static_cast<int>(found - std::begin(values));
}

template <class Value, std::size_t Count> Value ChosenOf(Value const (&values)[Count], CComboBox const & box)
{
    return values[std::clamp<int>(box.GetCurSel(), 0, static_cast<int>(Count) - 1)];
}

} // namespace

BEGIN_MESSAGE_MAP(CSpectrogramGroup, CSettingsGroup)
    ON_CBN_SELCHANGE(IDC_SPECTROGRAM_WINDOW, &CSpectrogramGroup::OnChosen)
    ON_CBN_SELCHANGE(IDC_SPECTROGRAM_OVERLAP, &CSpectrogramGroup::OnChosen)
    ON_CBN_SELCHANGE(IDC_FREQUENCY_SCALE, &CSpectrogramGroup::OnChosen)
END_MESSAGE_MAP()

CSpectrogramGroup::CSpectrogramGroup() : CSettingsGroup(IDD_SETTINGS_SPECTROGRAM) {}

void CSpectrogramGroup::DoDataExchange(CDataExchange * exchange)
{
    CSettingsGroup::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_SPECTROGRAM_WINDOW, m_window);
    DDX_Control(exchange, IDC_SPECTROGRAM_OVERLAP, m_overlap);
    DDX_Control(exchange, IDC_FREQUENCY_SCALE, m_scale);
}

BOOL CSpectrogramGroup::OnInitDialog()
{
    CSettingsGroup::OnInitDialog();
    FillBoxes();
    return TRUE;
}

void CSpectrogramGroup::ShowTexts()
{
    CSettingsGroup::ShowTexts();
    if (m_hWnd == nullptr)
    {
        return;
    }
    std::array const boxes{&m_window, &m_overlap, &m_scale};
    std::array<int, boxes.size()> chosen{};
    std::ranges::transform(boxes, chosen.begin(), [](auto const * box) { return box->GetCurSel(); });
    std::ranges::for_each(boxes, [](auto * box) { box->ResetContent(); });
    FillBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i)
    {
        boxes[i]->SetCurSel(chosen[i]);
    }
}

void CSpectrogramGroup::FillBoxes()
{
    for (std::size_t const window : windows)
    {
        m_window.AddString(window == 0 ? Text(L"By the sample rate") : std::to_wstring(window).c_str());
    }
    for (int const overlap : overlaps)
    {
        m_overlap.AddString((std::to_wstring(overlap) + L" %").c_str());
    }
    m_scale.AddString(Text(L"Linear"));
    m_scale.AddString(Text(L"Logarithmic"));
}

void CSpectrogramGroup::Show(workbench::Settings const & settings)
{
    m_window.SetCurSel(LineOf(windows, settings.spectrogram.window));
    m_overlap.SetCurSel(LineOf(overlaps, settings.spectrogram.overlap));
    m_scale.SetCurSel(settings.frequencyScale == workbench::FrequencyScale::logarithmic ? 1 : 0);
}

bool CSpectrogramGroup::Take(workbench::Settings & settings)
{
    settings.spectrogram = {ChosenOf(windows, m_window), ChosenOf(overlaps, m_overlap)};
    settings.frequencyScale =
        m_scale.GetCurSel() == 1 ? workbench::FrequencyScale::logarithmic : workbench::FrequencyScale::linear;
    return true;
}

void CSpectrogramGroup::OnChosen()
{
    Changed();
}
