#include "MeasurePanel.h"

#include <algorithm>
#include <array>

#include "colours/Farbtabellen.h"
#include "DrawingScopes.h"
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
constexpr int label_gap = 4; // behind a label's text
constexpr int inset = 2;     // of that, ahead of the first one

} // namespace

BEGIN_MESSAGE_MAP(CMeasurePanel, CPanel)
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
    if (!CreatePanelWindow(L"Displays", parent, id))
    {
        return false;
    }
    constexpr DWORD label_style = WS_CHILD | WS_VISIBLE | SS_CENTERIMAGE | SS_ENDELLIPSIS;
    bool created =
        m_positionLabel.Create(L"", label_style, CRect(), this) &&
        m_levelLabel.Create(L"", label_style, CRect(), this) && m_scaleLabel.Create(L"", label_style, CRect(), this) &&
        m_scale.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, CRect(), this, IDC_SCALE) &&
        m_clock.CreateView(*this, IDC_CLOCK);
    for (CDigiStatic * const display : {&m_position, &m_level})
    {
        created = created && display->Create(L"", WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(), this);
        display->SetColorScheme(ColorSchemeLcd);
        display->ModifyDigiStyle(0, DigiStyleKeepAspect | DigiStyleRounded);
    }
    for (CWnd * const window : std::array<CWnd *, 4>{&m_positionLabel, &m_levelLabel, &m_scaleLabel, &m_scale})
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
    m_levelLabel.SetWindowText(Text(L"Peak of 10 ms (dBFS)"));
    m_scaleLabel.SetWindowText(Text(L"S&pectrogram colours:"));
    Arrange();
}

void CMeasurePanel::OnSize(UINT type, int width, int height)
{
    CPanel::OnSize(type, width, height);
    Arrange();
}

void CMeasurePanel::Arrange()
{
    if (m_metrics == nullptr || m_clock.GetSafeHwnd() == nullptr)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    auto const width = static_cast<int>(client.Width());
    auto const height = static_cast<int>(client.Height());
    // As wide as the texts are in the present language.
    CClientDC dc(this);
    workbench::FontScope const font(dc, m_metrics->Font());
    auto const labelWidth = [&](CWnd const & label, int least) {
        CString text;
        label.GetWindowText(text);
        text.Remove(L'&');
        return std::max<int>(dc.GetTextExtent(text).cx + m_metrics->X(label_gap), m_metrics->X(least));
    };
    int const gap = m_metrics->X(part_gap);
    int const positionLabel = labelWidth(m_positionLabel, position_label_width);
    int const levelLabel = labelWidth(m_levelLabel, level_label_width);
    int const scaleLabel = labelWidth(m_scaleLabel, scale_label_width);
    int const displays = positionLabel + m_metrics->X(position_width) + gap + levelLabel + m_metrics->X(level_width);
    int const unnamed = displays + gap + m_metrics->X(scale_width);
    int const whole = unnamed + scaleLabel;
    // Where there is no room for all, the clock goes first; then the colours go into a line of their own where there is
    // one, or else their name; then all get narrower.
    int const line = m_metrics->Y(strip_height);
    bool const isBroken = width < whole && height >= 2 * line;
    bool const isNamed = isBroken || width >= whole;
    int const wanted = isBroken  ? std::max(displays, scaleLabel + m_metrics->X(scale_width))
                       : isNamed ? whole
                                 : unnamed;
    int const room = std::min(width, wanted);
    auto const at = [&](int pixels) { return ::MulDiv(pixels, room, wanted); };
    int const upper = isBroken ? height / 2 : height;
    // Displays that are much higher than their digits look broken.
    int const high = std::clamp(upper - 2 * m_metrics->Y(edge), 0, 2 * line);
    int top = (upper - high) / 2;
    int const first = m_metrics->X(inset);
    int left = first;
    auto const place = [&](CWnd & window, int wide, int space) {
        window.MoveWindow(at(left), top, at(left + wide) - at(left), high);
        left += wide + space;
    };
    place(m_positionLabel, positionLabel - first, 0);
    place(m_position, m_metrics->X(position_width), gap);
    place(m_levelLabel, levelLabel, 0);
    place(m_level, m_metrics->X(level_width), gap);
    if (isBroken)
    {
        left = first;
        top += upper;
    }
    m_scaleLabel.ShowWindow(isNamed ? SW_SHOWNA : SW_HIDE);
    if (isNamed)
    {
        place(m_scaleLabel, isBroken ? scaleLabel - first : scaleLabel, 0);
    }
    // A drop-down list's own height is its font's; the rest of what it is given is the height of its list.
    CRect box;
    m_scale.GetWindowRect(&box);
    int const right = at(left + m_metrics->X(scale_width));
    m_scale.MoveWindow(at(left), top + (high - box.Height()) / 2, right - at(left), box.Height() + line * 8);
    int const clock = m_metrics->X(clock_width);
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
