#pragma once
// Pictures at another size. Internal to the module.

#include <cstdint>
#include <vector>

namespace stretched_pixels
{
/// Rows from the top, a pixel 0xAARRGGBB, colours multiplied by what covers.
struct Picture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

/// A picture that was painted on black and on white, with what it covers.
Picture FromGrounds(Picture const & onBlack, Picture const & onWhite);

/// Each new pixel is the mean of what it covers of the old ones, which run into each other where the picture grows.
/// Empty for a size that is none. A picture at its own size is as it was.
Picture Stretch(Picture const & picture, int width, int height);
} // namespace stretched_pixels
