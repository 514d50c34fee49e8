#pragma once
// How the bars that draw themselves look: sizes, fonts, marks. Inside framework.dll only.

#include <afxwin.h>

namespace framework
{
/// Pixels at 96 dpi as pixels of the screen.
int Scaled(int pixels);
CSize Scaled(SIZE size);
/// The font of menus and bars; one for the process.
CFont & MenuFont();
/// Reads the font anew, after the system's settings have changed.
void ReloadMenuFont();
/// The extent of a text whose mnemonic is marked by &.
CSize LabelExtent(CDC & dc, CString const & text);
/// The mnemonic of a text in upper case, or 0.
wchar_t MnemonicOf(CString const & text);

/// A device context of the screen with the menu font in it.
class MeasureDC
{
public:
    MeasureDC();
    ~MeasureDC();
    MeasureDC(MeasureDC const &) = delete;
    MeasureDC & operator=(MeasureDC const &) = delete;

    CDC & Get() { return m_dc; }

private:
    CDC m_dc;
    HDC m_screen;
    HGDIOBJ m_previous;
};

enum class Mark
{
    check,
    bullet,
    arrow_right,
    arrow_down,
    arrow_up
};
/// A mark in the middle of the rectangle.
void DrawMark(CDC & dc, CRect const & rect, Mark mark, COLORREF colour);
/// A colour between two; 0 gives the first, 100 the second.
COLORREF Between(COLORREF first, COLORREF second, int percent);
/// The background of a button below the mouse, or of one that is pressed or checked.
COLORREF HotColour();
COLORREF PressedColour();
} // namespace framework
