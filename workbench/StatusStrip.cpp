#include "StatusStrip.h"

#include <algorithm>

#include "DrawingScopes.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

namespace
{

// Lengths in dialog units.
constexpr int strip_height = 13;
constexpr int bar_width = 90;
constexpr int bar_height = 8;
constexpr int button_width = 50;
constexpr int part_gap = 6;

constexpr int bar_range = 1000;

constexpr UINT_PTR text_tool = 1;

} // namespace

BEGIN_MESSAGE_MAP(CStatusStrip, CWnd)
    ON_WM_SIZE()
    ON_BN_CLICKED(IDC_CANCEL_READING, &CStatusStrip::OnCancelClicked)
END_MESSAGE_MAP()

int CStatusStrip::Height(workbench::ScreenMetrics const & metrics)
{
    return metrics.Y(strip_height);
}

bool CStatusStrip::CreateStrip(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics)
{
    m_metrics = &metrics;
    LPCTSTR const windowClass =
        AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    if (!CreateEx(WS_EX_CONTROLPARENT, windowClass, L"Status", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(),
                  &parent, id))
    {
        return false;
    }
    bool const created =
        m_text.Create(L"", WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX | SS_ENDELLIPSIS | SS_CENTERIMAGE, CRect(),
                      this, IDC_STATUS_TEXT) &&
        m_bar.Create(PROGRESS_CLASS, L"", WS_CHILD, CRect(), this, IDC_READING_PROGRESS) &&
        m_cancel.Create(Text(L"Cancel"), WS_CHILD | WS_TABSTOP, CRect(), this, IDC_CANCEL_READING) &&
        m_tips.Create(this) && m_tips.AddTool(this, L"", CRect(), text_tool);
    if (created)
    {
        m_text.SetFont(&metrics.Font());
        m_cancel.SetFont(&metrics.Font());
        m_bar.SendMessage(PBM_SETRANGE32, 0, bar_range);
        m_tips.Activate(TRUE);
    }
    return created;
}

void CStatusStrip::ShowTexts()
{
    m_cancel.SetWindowText(Text(L"Cancel"));
}

void CStatusStrip::ShowText(std::wstring const & text)
{
    // Set anew, the text would flicker.
    if (text != m_shown)
    {
        m_shown = text;
        m_text.SetWindowText(text.c_str());
        ShowTip();
    }
}

/// The tip of a text that is cut, as wide as the strip at most.
void CStatusStrip::ShowTip()
{
    CRect place;
    m_text.GetWindowRect(&place);
    ScreenToClient(&place);
    CClientDC dc(&m_text);
    workbench::FontScope const font(dc, m_metrics->Font());
    bool const isCut = dc.GetTextExtent(m_shown.c_str()).cx > place.Width();
    m_tips.SetMaxTipWidth(std::max(place.Width(), 1));
    m_tips.SetToolRect(this, text_tool, place);
    m_tips.UpdateTipText(isCut ? m_shown.c_str() : L"", this, text_tool);
}

BOOL CStatusStrip::PreTranslateMessage(MSG * message)
{
    if (m_tips.GetSafeHwnd() != nullptr)
    {
        m_tips.RelayEvent(message);
    }
    return CWnd::PreTranslateMessage(message);
}

void CStatusStrip::ShowProgress(std::size_t done, std::size_t total)
{
    bool const shown = ShowsProgress();
    m_done = std::min(done, total);
    m_total = total;
    if (ShowsProgress())
    {
        m_bar.SendMessage(PBM_SETPOS, static_cast<WPARAM>(m_done * bar_range / m_total));
    }
    if (shown == ShowsProgress())
    {
        return;
    }
    Arrange();
    if (shown && GetFocus() == &m_cancel)
    {
        GetParent()->SetFocus();
    }
    for (CWnd * const window : {&m_bar, static_cast<CWnd *>(&m_cancel)})
    {
        window->ShowWindow(ShowsProgress() ? SW_SHOWNA : SW_HIDE);
    }
}

void CStatusStrip::Arrange()
{
    if (m_metrics == nullptr || m_tips.GetSafeHwnd() == nullptr)
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    int const gap = m_metrics->X(part_gap);
    long const button = client.right - m_metrics->X(button_width);
    long const bar = button - gap - m_metrics->X(bar_width);
    int const barHeight = m_metrics->Y(bar_height);
    m_cancel.MoveWindow(button, 0, client.right - button, client.bottom);
    m_bar.MoveWindow(bar, (client.bottom - barHeight) / 2, button - gap - bar, barHeight);
    auto const textEnd = static_cast<int>(ShowsProgress() ? bar - gap : client.right);
    m_text.MoveWindow(0, 0, std::max(textEnd, 0), client.bottom);
    ShowTip();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void CStatusStrip::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    Arrange();
}

void CStatusStrip::OnCancelClicked()
{
    // A copy, as what it does may replace it.
    if (auto const onCancel = m_onCancel)
    {
        onCancel();
    }
}
