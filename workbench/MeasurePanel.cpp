#include "MeasurePanel.h"

#include <algorithm>
#include <array>

#include "colours/Farbtabellen.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

namespace
{

// Lengths in dialog units.
constexpr int strip_height = 20;
constexpr int edge = 2; // above and below
constexpr int position_label_width = 34;
constexpr int position_width = 84;
constexpr int level_label_width = 50;
constexpr int level_width = 52;
constexpr int scale_label_width = 76;
constexpr int scale_width = 84;
constexpr int clock_width = 90;
constexpr int part_gap = 8;

} // namespace

BEGIN_MESSAGE_MAP(CMeasurePanel, CWnd)
    ON_WM_SIZE()
    ON_CBN_SELCHANGE(IDC_SCALE, &CMeasurePanel::OnScaleChosen)
END_MESSAGE_MAP()

int CMeasurePanel::Height(workbench::ScreenMetrics const & metrics)
{
    return metrics.Y(strip_height) + 2 * metrics.Y(edge);
}

int CMeasurePanel::LeastWidth(workbench::ScreenMetrics const & metrics)
{
    return metrics.X(position_label_width + position_width + level_label_width + level_width + 2 * part_gap +
                     scale_label_width + scale_width + part_gap + clock_width);
}

bool CMeasurePanel::CreatePanel(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics, unsigned int scale)
{
    m_metrics = &metrics;
    auto const windowClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    if (!CreateEx(WS_EX_CONTROLPARENT, windowClass, L"Displays", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(),
                  &parent, id))
    {
        return false;
    }
    constexpr DWORD label_style = WS_CHILD | WS_VISIBLE | SS_CENTERIMAGE | SS_ENDELLIPSIS;
    auto created =
        m_positionLabel.Create(L"", label_style, CRect(), this) &&
        m_levelLabel.Create(L"", label_style, CRect(), this) && m_scaleLabel.Create(L"", label_style, CRect(), this) &&
        m_scale.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, CRect(), this, IDC_SCALE) &&
        m_clock.CreateView(*this, IDC_CLOCK);
    for (auto * const display : {&m_position, &m_level})
    {
        created = created && display->Create(L"", WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(), this);
        display->SetColorScheme(ColorSchemeLcd);
        display->ModifyDigiStyle(0, DigiStyleKeepAspect | DigiStyleRounded);
    }
    for (auto * const window : std::array<CWnd *, 4>{&m_positionLabel, &m_levelLabel, &m_scaleLabel, &m_scale})
    {
        window->SetFont(&metrics.Font());
    }
    for (unsigned int i = 0; created && i < Farbtabellen::spectrogram_scales; ++i)
    {
        m_scale.AddItem(Farbtabellen::SpektrogrammFarbtabellenName(i), static_cast<int>(i));
    }
    ChooseScale(scale);
    ShowTexts();
    return created;
}

void CMeasurePanel::ShowTexts()
{
    m_positionLabel.SetWindowText(Text(L"Position"));
    m_levelLabel.SetWindowText(Text(L"Level (dBFS)"));
    m_scaleLabel.SetWindowText(Text(L"S&pectrogram colours:"));
}

void CMeasurePanel::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    if (m_metrics == nullptr || m_clock.GetSafeHwnd() == nullptr)
    {
        return;
    }
    // Where there is no room for all, the clock goes first, then the name of the colours; then all get narrower.
    constexpr int unnamed_width =
        position_label_width + position_width + part_gap + level_label_width + level_width + part_gap + scale_width;
    constexpr int named_width = unnamed_width + scale_label_width;
    auto const named = width >= m_metrics->X(named_width);
    auto const units = named ? named_width : unnamed_width;
    auto const room = std::min(width, m_metrics->X(units));
    auto const at = [&](int unit) { return ::MulDiv(unit, room, units); };
    // Displays that are much higher than their digits look broken.
    auto const high = std::clamp(height - 2 * m_metrics->Y(edge), 0, m_metrics->Y(2 * strip_height));
    auto const top = (height - high) / 2;
    auto left = 0; // in units
    auto const place = [&](CWnd & window, int unitsWide, int space) {
        window.MoveWindow(at(left), top, at(left + unitsWide) - at(left), high);
        left += unitsWide + space;
    };
    place(m_positionLabel, position_label_width, 0);
    place(m_position, position_width, part_gap);
    place(m_levelLabel, level_label_width, 0);
    place(m_level, level_width, part_gap);
    m_scaleLabel.ShowWindow(named ? SW_SHOWNA : SW_HIDE);
    if (named)
    {
        place(m_scaleLabel, scale_label_width, 0);
    }
    // A drop-down list's own height is its font's; the rest of what it is given is the height of its list.
    CRect box;
    m_scale.GetWindowRect(&box);
    auto const right = at(left + scale_width);
    m_scale.MoveWindow(at(left), (height - box.Height()) / 2, right - at(left),
                       box.Height() + m_metrics->Y(strip_height) * 8);
    auto const clock = m_metrics->X(clock_width);
    m_clock.MoveWindow(width - clock, top, clock, high);
    m_clock.ShowWindow(width - clock >= right ? SW_SHOWNA : SW_HIDE);
    // The panel has mostly moved as well; what it takes along of its children may be of other windows.
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void CMeasurePanel::ShowReading(std::wstring const & position, std::wstring const & level)
{
    m_position.SetText(position.c_str());
    m_level.SetText(level.c_str());
}

unsigned int CMeasurePanel::Scale()
{
    return static_cast<unsigned int>(m_scale.GetSelectedItemData(0));
}

void CMeasurePanel::ChooseScale(unsigned int scale)
{
    m_scale.SelectItemData(static_cast<int>(scale < Farbtabellen::spectrogram_scales ? scale : 0));
}

void CMeasurePanel::OnScaleChosen()
{
    if (m_onScale)
    {
        m_onScale(Scale());
    }
}
