// Segment displays: the control in its colour schemes, and the painter on a view's own surface.
#include <gdiplus.h>

#include "Gallery.h"

class CSegmentsWindow : public CGalleryWindow
{
    void Fill() override
    {
        int top = 10;
        for (CDigiStatic & display : m_displays)
        {
            display.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, top, 230, top + 40), this);
            display.SetColorScheme(static_cast<ColorScheme>(&display - m_displays));
            display.Format(L"%.1f dB", -6.0 * (&display - m_displays + 1));
            top += 46;
        }
        Gdiplus::GdiplusStartupInput const input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
        m_painter.Always14Sement(true); // these two count for the next text
        m_painter.ShowOffSegments(true);
        m_painter.SetColors(RGB(60, 220, 255), RGB(25, 45, 60), RGB(10, 20, 30));
        m_painter.SetText(L"TRIGGER 42");
    }
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        CRect room(240, 10, 520, 280);
        dc.FillSolidRect(room, RGB(10, 20, 30));
        room.DeflateRect(15, 15);
        Gdiplus::Graphics graphics(dc);
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        m_painter.DrawTextW(graphics, room); // as large as fits
    }
    afx_msg void OnDestroy()
    {
        Gdiplus::GdiplusShutdown(m_token);
        CWnd::OnDestroy();
    }
    DECLARE_MESSAGE_MAP()

    CDigiStatic m_displays[ColorSchemeLcd + 1];
    CLedTextAnzeiger m_painter;
    ULONG_PTR m_token = 0;
};

BEGIN_MESSAGE_MAP(CSegmentsWindow, CGalleryWindow)
    ON_WM_PAINT()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CGalleryProgram<CSegmentsWindow> theApp(L"Segment displays", CSize(530, 290));
