// The suite's colours: the scope colours, what they become on paper, and the scales of spectrograms with their names.
#include "Gallery.h"

constexpr int levels = 32;

class CColoursWindow : public CGalleryWindow
{
    void Fill() override {}

    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        dc.SetBkMode(TRANSPARENT);
        dc.SelectStockObject(DEFAULT_GUI_FONT);
        dc.TextOut(10, 10, L"Scope");
        dc.TextOut(10, 30, L"on paper");
        for (int i = 0; i < Farbtabellen::SCOPE_COLOURS; ++i)
        {
            CRect const cell(CPoint(150 + i * 10, 10), CSize(9, 15));
            dc.FillSolidRect(cell, Farbtabellen::ScopeFarbe(i));
            dc.FillSolidRect(cell + CPoint(0, 20), Farbtabellen::DruckFarbe(i));
        }
        for (int scale = 0; scale < static_cast<int>(Farbtabellen::spectrogram_scales); ++scale)
        {
            int const top = 60 + scale * 20;
            dc.SetBkMode(TRANSPARENT);
            dc.TextOut(10, top, Farbtabellen::SpektrogrammFarbtabellenName(scale));
            COLORREF const * const colours = Farbtabellen::SpektrogrammFarbtabelle(scale);
            for (int level = 0; level < levels; ++level)
            {
                dc.FillSolidRect(CRect(CPoint(150 + level * 10, top), CSize(10, 15)), colours[level]);
            }
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CColoursWindow, CGalleryWindow)
    ON_WM_PAINT()
END_MESSAGE_MAP()

CGalleryProgram<CColoursWindow> theApp(L"Colours", CSize(480, 245));
