#include "controls/SliderLayout.h"

#include <cstdint>

namespace
{
/// The part of an extent before the decimal point. A fraction is not always within 0 to 1.
int Share(float fraction, int extent)
{
    constexpr float limit = 1e9F;
    float const share = fraction * static_cast<float>(extent);
    if (!(share > -limit && share < limit))
        return 0;
    return static_cast<int>(share);
}
} // namespace

float SliderFraction(int least, int greatest, int position)
{
    long long const range = std::int64_t{greatest} - least;
    if (range == 0)
        return 0;
    return static_cast<float>(std::int64_t{position} - least) / static_cast<float>(range);
}

CRect ThickSliderChannel(CRect const & channel, bool vertical)
{
    CRect thick(channel);
    if (vertical)
        thick.InflateRect(channel.Width() - 1, 0);
    else
        thick.InflateRect(0, channel.Height() - 1);
    return thick;
}

SliderParts PartsOfSlider(CRect const & channel, bool vertical, float fraction)
{
    SliderParts parts{channel, channel};
    if (vertical)
    {
        parts.main.top = channel.top + Share(fraction, channel.Height());
        parts.second.bottom = parts.main.top;
    }
    else
    {
        parts.main.right = channel.left + Share(fraction, channel.Width());
        parts.second.left = parts.main.right;
    }
    return parts;
}

CRect SlimSliderThumb(CRect const & thumb, bool vertical, int by)
{
    CRect slim(thumb);
    slim.DeflateRect(vertical ? 0 : by, vertical ? by : 0);
    return slim;
}
