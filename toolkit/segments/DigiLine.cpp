#include "segments/DigiLine.h"

#include <algorithm>

#include "segments/DigiStyle.h"

namespace DigiStatic
{
CLinePlace PlaceLine(CSize const & client, int width, bool keepAspect)
{
    double const clientWidth = client.cx;
    double const clientHeight = client.cy;
    CLinePlace place = {0.0, 0.0, clientWidth / width, clientHeight / cell_height};
    if (!keepAspect)
        return place;
    if (place.scaleY > place.scaleX)
        place.scaleY = place.scaleX;
    else
        place.scaleX = place.scaleY;
    place.left = (clientWidth - place.scaleX * width) * 0.5;
    place.top = (clientHeight - place.scaleY * cell_height) * 0.5;
    return place;
}

CLinePlace PlaceAlignedLine(CRect const & rect, unsigned int width, DWORD style)
{
    double const rectWidth = static_cast<double>(rect.right) - rect.left;
    double const rectHeight = static_cast<double>(rect.bottom) - rect.top;
    double const scale = std::min(rectWidth / width, rectHeight / cell_height);
    double const room = rectWidth - scale * width;
    double left = rect.left;
    if ((style & LedAlignRight) != 0)
        left += room;
    else if ((style & LedAlignLeft) == 0)
        left += room * 0.5;
    return {left, rect.top + (rectHeight - scale * cell_height) * 0.5, scale, scale};
}

CRect LeftOutCorner(CRect const & client, CSize const & size)
{
    return CRect(client.left, client.bottom - size.cy, client.left + size.cx, client.bottom);
}

int LineWidth(CArray<CDigiChar> const & line)
{
    int width = 0;
    for (INT_PTR i = 0; i < line.GetSize(); ++i)
        width += line[i].GetWidth();
    return width;
}

void BuildLine(CString const & text, DWORD style, CArray<CDigiChar> & line)
{
    // The characters' outlines arrive by assignment only, so the line must not grow while it is filled.
    line.RemoveAll();
    line.SetSize(text.GetLength());
    for (int i = 0; i < text.GetLength(); ++i)
    {
        CDigiCharOwner const character(CreateDigiChar(text[i], style));
        line[i] = *character;
    }
}
} // namespace DigiStatic
