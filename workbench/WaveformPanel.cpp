#include "WaveformPanel.h"

#include <algorithm>
#include <string>

#include "DrawingScopes.h"
#include "logic/Amplification.h"
#include "logic/Texts.h"
#include "PlotParts.h"
#include "resource.h"

using workbench::Text;

namespace
{

constexpr int steps = workbench::most_amplification / workbench::amplification_step;
constexpr COLORREF level_colour = RGB(33, 102, 172);

// Lengths in dialog units.
constexpr int view_margin = 6; // of the plot in the view
constexpr int part_gap = 3;
constexpr int slider_width = 18;
constexpr int least_slider_height = 30;
constexpr int least_plot_width = 40; // beside the slider

} // namespace

BEGIN_MESSAGE_MAP(CWaveformPanel, CWnd)
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_VSCROLL()
    ON_BN_CLICKED(IDC_FIT_AMPLIFICATION, &CWaveformPanel::OnFit)
END_MESSAGE_MAP()

void CWaveformPanel::CFitButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    CRect const place(item->rcItem);
    workbench::PlotColours const colours = workbench::ScreenPlotColours(*this);
    CDC::FromHandle(item->hDC)->FillSolidRect(place, colours.ground);
    CFreeIconButton::DrawItem(item);
    if ((item->itemState & ODS_FOCUS) != 0)
    {
        ::SetTextColor(item->hDC, colours.text);
        ::SetBkColor(item->hDC, colours.ground);
        ::DrawFocusRect(item->hDC, &place);
    }
}

bool CWaveformPanel::CreatePanel(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics)
{
    m_metrics = &metrics;
    LPCTSTR const windowClass = AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW));
    constexpr DWORD slider_style = WS_CHILD | WS_TABSTOP | TBS_VERT | TBS_BOTH | TBS_NOTICKS;
    if (!CreateEx(WS_EX_CONTROLPARENT, windowClass, L"Waveform", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_BORDER,
                  CRect(), &parent, id) ||
        !m_view.CreateView(*this, IDC_WAVEFORM, metrics) ||
        !m_slider.Create(slider_style, CRect(), this, IDC_AMPLIFICATION) ||
        !m_fit.Create(Text(L"Fit waveform to its peak"), WS_CHILD | WS_TABSTOP, CRect(), this, IDC_FIT_AMPLIFICATION) ||
        !m_value.Create(L"", WS_CHILD | SS_CENTER | SS_NOPREFIX, CRect(), this) || !m_tips.Create(this))
    {
        return false;
    }
    m_view.ModifyStyle(WS_BORDER, 0, SWP_FRAMECHANGED);
    m_value.SetFont(&metrics.Font());
    m_slider.SetDpi(metrics.Resolution());
    m_slider.SetMainColor(level_colour);
    // The position counts from the top, where the amplification is greatest.
    m_slider.SetRange(0, steps);
    m_slider.SetLineSize(1);
    m_slider.SetPageSize(2);
    m_tips.AddTool(&m_slider, L"");
    m_tips.AddTool(&m_fit, L"");
    ShowTexts();
    m_tips.Activate(TRUE);
    m_view.m_onPlaced = [this] { Arrange(); };
    m_view.m_onAmplified = [this] {
        ShowAmplification();
        if (m_onAmplified)
        {
            m_onAmplified(m_view.Amplification());
        }
    };
    ShowAmplification();
    return true;
}

void CWaveformPanel::ShowTexts()
{
    m_slider.SetWindowText(Text(L"Amplification"));
    m_fit.SetWindowText(Text(L"Fit waveform to its peak"));
    m_tips.UpdateTipText(Text(L"Amplification of the waveform"), &m_slider);
    m_tips.UpdateTipText(Text(L"Fit waveform to its peak"), &m_fit);
}

BOOL CWaveformPanel::PreTranslateMessage(MSG * message)
{
    if (m_tips.GetSafeHwnd() != nullptr)
    {
        m_tips.RelayEvent(message);
    }
    return CWnd::PreTranslateMessage(message);
}

void CWaveformPanel::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    if (m_value.GetSafeHwnd() == nullptr)
    {
        return;
    }
    CClientDC dc(this);
    workbench::FontScope const font(dc, m_metrics->Font());
    workbench::PlotMargins const margins(dc, *m_metrics);
    // The slider stands in what the view would leave free right of its plot; where that leaves too little of the plot,
    // the plot has all.
    int const room = margins.right + m_metrics->X(view_margin - part_gap);
    m_hasSlider = width - room - margins.left - m_metrics->X(2 * view_margin) >= m_metrics->X(least_plot_width);
    m_view.SetRightRoom(m_hasSlider ? room : margins.right);
    m_view.MoveWindow(0, 0, m_hasSlider ? width - room : width, height);
    Arrange();
}

/// Puts the controls beside the plot, where there is one.
void CWaveformPanel::Arrange()
{
    if (m_value.GetSafeHwnd() == nullptr)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    CRect view;
    m_view.GetWindowRect(&view);
    ScreenToClient(&view);
    CRect plot = m_view.PlotPlace();
    plot.OffsetRect(view.TopLeft());
    int const width = m_metrics->X(slider_width);
    long const centre = (view.right + client.right) / 2;
    int const line = m_metrics->LineHeight();
    m_slider.MoveWindow(centre - width / 2, plot.top, width, std::max<int>(plot.Height(), 0));
    m_value.MoveWindow(view.right, plot.bottom + m_metrics->Y(1), client.right - view.right, line);
    // As large as the system draws icons.
    CSize const icon(::GetSystemMetrics(SM_CXICON), ::GetSystemMetrics(SM_CYICON));
    m_fit.MoveWindow(centre - icon.cx / 2, std::max<int>((plot.top - icon.cy) / 2, 0), icon.cx, icon.cy);
    bool const shows = m_hasSlider && m_view.ShowsRecording();
    bool const fits = shows && plot.Height() >= m_metrics->Y(least_slider_height);
    auto const show = [this](CWnd & window, bool visible) {
        if (!visible && GetFocus() == &window)
        {
            m_view.SetFocus();
        }
        window.ShowWindow(visible ? SW_SHOWNA : SW_HIDE);
    };
    show(m_slider, fits);
    show(m_value, fits);
    show(m_fit, shows);
}

void CWaveformPanel::ShowAmplification()
{
    int const amplification = m_view.Amplification();
    m_slider.SetPos(steps - amplification / workbench::amplification_step);
    m_slider.Invalidate();
    wchar_t const * const sign = amplification > 0 ? L"+" : L"";
    m_value.SetWindowText((sign + std::to_wstring(amplification) + L" dB").c_str());
}

BOOL CWaveformPanel::OnEraseBkgnd(CDC * dc)
{
    CRect client;
    GetClientRect(&client);
    dc->FillSolidRect(client, workbench::ScreenPlotColours(*this).ground);
    return TRUE;
}

HBRUSH CWaveformPanel::OnCtlColor(CDC * dc, CWnd *, UINT)
{
    workbench::PlotColours const colours = workbench::ScreenPlotColours(*this);
    dc->SetTextColor(colours.label);
    dc->SetBkColor(colours.ground);
    ::SetDCBrushColor(dc->m_hDC, colours.ground);
    return static_cast<HBRUSH>(::GetStockObject(DC_BRUSH));
}

void CWaveformPanel::OnVScroll(UINT code, UINT position, CScrollBar * bar)
{
    CWnd::OnVScroll(code, position, bar);
    if (bar != nullptr && bar->m_hWnd == m_slider.m_hWnd)
    {
        m_view.SetAmplification((steps - m_slider.GetPos()) * workbench::amplification_step);
    }
}

void CWaveformPanel::OnFit()
{
    m_view.FitAmplification();
}
