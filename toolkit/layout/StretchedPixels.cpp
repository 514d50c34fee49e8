#include "layout/StretchedPixels.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace stretched_pixels
{
namespace
{
constexpr int channels = 4;
constexpr int bits = 8;
constexpr std::uint32_t full = 0xFF;

int Channel(std::uint32_t pixel, int channel)
{
    return static_cast<int>(pixel >> (channel * bits) & full);
}

/// The old places that make a new one, and how much of each.
struct Part
{
    int first = 0;
    std::vector<float> shares;
};

// A tent as wide as two pixels of the coarser side.
std::vector<Part> PartsAlong(int from, int to)
{
    float const step = static_cast<float>(from) / static_cast<float>(to);
    float const reach = std::max(step, 1.0F);
    std::vector<Part> parts(static_cast<std::size_t>(to));
    for (int place = 0; place < to; ++place)
    {
        float const middle = (static_cast<float>(place) + 0.5F) * step - 0.5F;
        int const first = static_cast<int>(std::ceil(middle - reach));
        int const last = static_cast<int>(std::floor(middle + reach));
        Part & part = parts[static_cast<std::size_t>(place)];
        part.first = std::clamp(first, 0, from - 1);
        part.shares.assign(static_cast<std::size_t>(std::clamp(last, 0, from - 1) - part.first) + 1, 0.0F);
        float sum = 0;
        for (int old = first; old <= last; ++old)
        {
            // Beyond the edges stands what stands at them.
            float const share = std::max(1 - std::abs(static_cast<float>(old) - middle) / reach, 0.0F);
            part.shares[static_cast<std::size_t>(std::clamp(old, 0, from - 1) - part.first)] += share;
            sum += share;
        }
        for (float & share : part.shares)
            share /= sum;
    }
    return parts;
}
} // namespace

Picture FromGrounds(Picture const & onBlack, Picture const & onWhite)
{
    Picture picture = onBlack;
    for (std::size_t i = 0; i < picture.pixels.size() && i < onWhite.pixels.size(); ++i)
    {
        std::uint32_t const black = onBlack.pixels[i];
        // What shows of the white ground, by the colour that shows least of it.
        int shown = static_cast<int>(full);
        for (int channel = 0; channel < channels - 1; ++channel)
            shown = std::min(shown, std::max(Channel(onWhite.pixels[i], channel) - Channel(black, channel), 0));
        std::uint32_t const cover = full - static_cast<std::uint32_t>(shown);
        std::uint32_t pixel = cover << ((channels - 1) * bits);
        for (int channel = 0; channel < channels - 1; ++channel)
        {
            auto const color = static_cast<std::uint32_t>(Channel(black, channel));
            pixel |= std::min(color, cover) << (channel * bits);
        }
        picture.pixels[i] = pixel;
    }
    return picture;
}

Picture Stretch(Picture const & picture, int width, int height)
{
    if (width <= 0 || height <= 0 || picture.width <= 0 || picture.height <= 0)
        return {};
    if (width == picture.width && height == picture.height)
        return picture;
    std::vector<Part> const across = PartsAlong(picture.width, width);
    std::vector<Part> const down = PartsAlong(picture.height, height);
    // Rows first.
    auto const rowLength = static_cast<std::size_t>(width) * channels;
    std::vector<float> rows(rowLength * static_cast<std::size_t>(picture.height), 0.0F);
    for (int y = 0; y < picture.height; ++y)
    {
        auto const old = picture.pixels.begin() + static_cast<std::ptrdiff_t>(y) * picture.width;
        float * target = rows.data() + static_cast<std::size_t>(y) * rowLength;
        for (Part const & part : across)
        {
            for (std::size_t i = 0; i < part.shares.size(); ++i)
            {
                std::uint32_t const pixel = old[part.first + static_cast<std::ptrdiff_t>(i)];
                for (int channel = 0; channel < channels; ++channel)
                    target[channel] += part.shares[i] * static_cast<float>(Channel(pixel, channel));
            }
            target += channels;
        }
    }
    Picture result{width, height, {}};
    result.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    std::vector<float> sums(rowLength);
    for (Part const & part : down)
    {
        std::fill(sums.begin(), sums.end(), 0.0F);
        for (std::size_t i = 0; i < part.shares.size(); ++i)
        {
            float const * const row = rows.data() + (static_cast<std::size_t>(part.first) + i) * rowLength;
            for (std::size_t x = 0; x < rowLength; ++x)
                sums[x] += part.shares[i] * row[x];
        }
        for (std::size_t x = 0; x < rowLength; x += channels)
        {
            std::uint32_t pixel = 0;
            for (int channel = 0; channel < channels; ++channel)
            {
                float const value = sums[x + static_cast<std::size_t>(channel)] + 0.5F;
                pixel |= static_cast<std::uint32_t>(std::clamp(static_cast<int>(value), 0, static_cast<int>(full)))
                         << (channel * bits);
            }
            result.pixels.push_back(pixel);
        }
    }
    return result;
}
} // namespace stretched_pixels
