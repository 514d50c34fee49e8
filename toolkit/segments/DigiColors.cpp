#include "segments/DigiColors.h"

namespace DigiStatic
{
namespace
{
template <typename Mix> COLORREF ByChannel(COLORREF a, COLORREF b, Mix mix)
{
    return RGB(mix(GetRValue(a), GetRValue(b)), mix(GetGValue(a), GetGValue(b)), mix(GetBValue(a), GetBValue(b)));
}

CDisplayColors BeforeAveraging(ColorScheme scheme)
{
    switch (scheme)
    {
    case ColorSchemeYellow:
        return {0x00FFFF, 0x14405A, 0x501E00};
    case ColorSchemeAmber:
        return {0x00B4FF, 0x14405A, 0x501E00};
    case ColorSchemeRed:
        return {0x0000FF, 0x000050, 0x0A3200};
    case ColorSchemeCyan:
        return {0xFFFF00, 0x802800, 0x501E00};
    case ColorSchemeLcd:
        return {0x404040, 0xBEC6BE, 0xCDD7CD};
    default:
        return {default_on_color, default_off_color, default_back_color};
    }
}
} // namespace

CDisplayColors ColorsOf(ColorScheme scheme)
{
    CDisplayColors colors = BeforeAveraging(scheme);
    colors.off = MeanColor(colors.off, colors.back);
    return colors;
}

COLORREF MeanColor(COLORREF a, COLORREF b)
{
    return ByChannel(a, b, [](int x, int y) { return (x + y) / 2; });
}

COLORREF SoftPenColor(COLORREF color, COLORREF back)
{
    constexpr double own = 0.75;
    constexpr double backs = 0.25;
    return ByChannel(color, back, [](int x, int y) { return static_cast<int>(x * own + y * backs); });
}
} // namespace DigiStatic
