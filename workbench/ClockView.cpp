#include "ClockView.h"

#include "Graphics.h"

namespace
{

constexpr UINT_PTR timer = 1;
constexpr UINT period = 250; // milliseconds, so that a second never shows late
constexpr COLORREF on_colour = RGB(90, 230, 120);
constexpr COLORREF off_colour = RGB(24, 52, 34);
constexpr COLORREF ground = RGB(14, 26, 20);
constexpr int margin = 4; // pixels

} // namespace

BEGIN_MESSAGE_MAP(CClockView, CBufferedView)
    ON_WM_TIMER()
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

bool CClockView::CreateView(CWnd & parent, UINT id)
{
    if (!CreateBuffered(L"Clock", 0, CRect(), parent, id))
    {
        return false;
    }
    m_text.SetColors(on_colour, off_colour, ground);
    ShowTime();
    SetTimer(timer, period, nullptr);
    return true;
}

void CClockView::ShowTime()
{
    CString const text = CTime::GetCurrentTime().Format(L"%H:%M:%S");
    if (text != m_shown)
    {
        m_shown = text;
        m_text.SetText(text);
        Invalidate(FALSE);
    }
}

void CClockView::OnTimer(UINT_PTR)
{
    ShowTime();
}

void CClockView::OnLButtonDown(UINT flags, CPoint point)
{
    CBufferedView::OnLButtonDown(flags, point);
    m_fourteen = !m_fourteen;
    m_text.Always14Sement(m_fourteen);
    // Characters that are built keep the style that they were built with.
    m_shown.Empty();
    m_text.SetText(m_shown);
    ShowTime();
}

void CClockView::Draw(CDC & dc, CRect const & client)
{
    dc.FillSolidRect(client, ground);
    Gdiplus::Graphics graphics(dc.m_hDC);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    CRect rect = client;
    rect.DeflateRect(margin, margin);
    m_text.DrawTextW(graphics, rect);
}
