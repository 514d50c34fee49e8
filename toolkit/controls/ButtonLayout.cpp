#include "controls/ButtonLayout.h"

#include <algorithm>

namespace
{
CPoint CentreOf(CRect const & area)
{
    return CPoint((area.left + area.right) / 2, (area.top + area.bottom) / 2);
}
} // namespace

ButtonLook LookOfButton(bool disabled, bool hot)
{
    if (disabled)
        return ButtonLook::disabled;
    return hot ? ButtonLook::hot : ButtonLook::normal;
}

bool ButtonIsFilled(bool framed, COLORREF background, COLORREF buttonFace)
{
    return framed || background != buttonFace;
}

CPoint ButtonIconOrigin(CRect const & area, int edge)
{
    CPoint const centre = CentreOf(area);
    return CPoint(centre.x - edge / 2, centre.y - edge / 2);
}

CPoint ButtonCaptionOrigin(CRect const & area, CSize extent, bool pressed, int by)
{
    CPoint const centre = CentreOf(area);
    int const moved = pressed ? by : 0;
    return CPoint(centre.x - extent.cx / 2 + moved, centre.y - extent.cy / 2 + moved);
}

void FillColorTable(unsigned int (&table)[color_table_size], SystemColors const & system)
{
    unsigned int const colors[color_table_size] = {0x000000, // black
                                                   0xFFFFFF, // white
                                                   0x0000FF, // red
                                                   0x00FF00, // green
                                                   0x00FFFF, // yellow
                                                   0xFF0000, // blue
                                                   0x808080, // dark grey
                                                   0xC0C0C0, // light grey
                                                   static_cast<unsigned int>(system.buttonText),
                                                   static_cast<unsigned int>(system.grayText),
                                                   static_cast<unsigned int>(system.buttonFace),
                                                   static_cast<unsigned int>(system.window)};
    std::copy(std::begin(colors), std::end(colors), std::begin(table));
}
