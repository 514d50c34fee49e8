#include "controls/ColorLuma.h"

#include <algorithm>

namespace
{
constexpr int hls_range = 240;
constexpr int rgb_range = 255;
constexpr int sixth = hls_range / 6;
constexpr int third = hls_range / 3;
constexpr int hue_of_grey = hls_range * 2 / 3;
constexpr int whole = 1000;

/// The quotient of two numbers that are not negative, rounded.
constexpr int Rounded(int dividend, int divisor)
{
    return (dividend + divisor / 2) / divisor;
}

/// One component, on the scale of 240, from the two extremes and its place on the circle of hues.
int Component(int least, int greatest, int hue)
{
    int const place = (hue + hls_range) % hls_range;
    if (place < sixth)
        return least + Rounded((greatest - least) * place, sixth);
    if (place < hls_range / 2)
        return greatest;
    if (place < 2 * third)
        return least + Rounded((greatest - least) * (2 * third - place), sixth);
    return least;
}

BYTE ByteOf(int component)
{
    return static_cast<BYTE>(std::clamp(Rounded(component * rgb_range, hls_range), 0, rgb_range));
}
} // namespace

HlsColor HlsOfColor(COLORREF color)
{
    int const red = GetRValue(color);
    int const green = GetGValue(color);
    int const blue = GetBValue(color);
    int const greatest = std::max({red, green, blue});
    int const least = std::min({red, green, blue});
    int const sum = greatest + least;
    int const range = greatest - least;
    int const luminance = Rounded(sum * hls_range, 2 * rgb_range);
    if (range == 0)
        return {hue_of_grey, luminance, 0};

    bool const dark = luminance <= hls_range / 2;
    int const saturation = Rounded(range * hls_range, dark ? sum : 2 * rgb_range - sum);
    auto const distance = [=](int component) { return Rounded((greatest - component) * sixth, range); };
    int const hue = red == greatest     ? distance(blue) - distance(green)
                    : green == greatest ? third + distance(red) - distance(blue)
                                        : 2 * third + distance(green) - distance(red);
    return {hue < 0 ? hue + hls_range : hue, luminance, saturation};
}

COLORREF ColorOfHls(HlsColor const & color)
{
    if (color.saturation == 0)
    {
        auto const grey = static_cast<BYTE>(color.luminance * rgb_range / hls_range);
        return RGB(grey, grey, grey);
    }
    int const greatest =
        color.luminance <= hls_range / 2
            ? Rounded(color.luminance * (hls_range + color.saturation), hls_range)
            : color.luminance + color.saturation - Rounded(color.luminance * color.saturation, hls_range);
    int const least = 2 * color.luminance - greatest;
    return RGB(ByteOf(Component(least, greatest, color.hue + third)), ByteOf(Component(least, greatest, color.hue)),
               ByteOf(Component(least, greatest, color.hue - third)));
}

COLORREF MoveLuma(COLORREF color, int thousandths)
{
    int const change = std::clamp(thousandths, -whole, whole);
    HlsColor hls = HlsOfColor(color);
    if (change >= 0)
        hls.luminance += Rounded((hls_range - hls.luminance) * change, whole);
    else
        hls.luminance -= Rounded(hls.luminance * -change, whole);
    return change == 0 ? color & 0xFFFFFF : ColorOfHls(hls);
}
