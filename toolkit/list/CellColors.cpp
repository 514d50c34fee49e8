#include "list/CellColors.h"

namespace
{
/// Of links that the list colours itself.
constexpr COLORREF link_color = RGB(0, 0, 255);
} // namespace

void AdaptCellColors(XLISTCTRLDATA const & cell, CellDefaults const & defaults, ControlColors const & palette,
                     COLORREF & text, COLORREF & background)
{
    CellTint const tint = TintOf(cell);
    if (tint == CellTint::bar)
    {
        if (defaults.IsBar(background))
            background = palette.bar;
        if (defaults.IsText(text))
            text = palette.windowText;
        return;
    }
    if (cell.gradientColor != XLISTCTRLDATA::no_gradient)
        return;
    bool const ownGround = !defaults.IsGround(background);
    if (!ownGround)
        background = palette.window;
    if (defaults.IsText(text))
        text = ownGround ? control_colors::TextOn(background, palette.windowText, palette.window) : palette.windowText;
    else if (!ownGround && text == link_color && tint == CellTint::link)
        text = palette.link;
}
