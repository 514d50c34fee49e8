#include "colours/Farbtabellen.h"

#include <bit>
#include <cstdint>
#include <iterator>

namespace Farbtabellen
{
COLORREF const ScopePalette[SCOPE_COLOURS] = {
    RGB(0x00, 0x00, 0x00), // 0, black
    RGB(0xC8, 0xC8, 0xC8), // 1, light grey
    RGB(0xFF, 0x00, 0x00), // 2, red
    RGB(0x00, 0xFF, 0x00), // 3, bright green
    RGB(0xFF, 0xFF, 0x00), // 4, yellow
    RGB(0xFF, 0x96, 0x00), // 5, orange
    RGB(0x80, 0x9E, 0xFF), // 6, pale blue
    RGB(0x32, 0xC8, 0xFF), // 7, azure
    RGB(0xFF, 0x32, 0xDC), // 8, pink
    RGB(0x32, 0x32, 0x32), // 9, dark grey
    RGB(0x8C, 0x00, 0x00), // 10, dark red
    RGB(0x00, 0x8C, 0x00), // 11, dark green
    RGB(0xA0, 0xB4, 0x00), // 12, mossy green
    RGB(0x00, 0x00, 0xB4), // 13, dark blue
    RGB(0x00, 0xA0, 0xA0), // 14, ocean
    RGB(0xA0, 0x00, 0xBE), // 15, purple
    RGB(0x82, 0x00, 0x64), // 16, bordeaux
    RGB(0xC7, 0x6C, 0x12), // 17, brown
    RGB(0xFF, 0xF0, 0xC8), // 18, creme
    RGB(0x00, 0xFF, 0xD5), // 19, cyan
    RGB(0xFF, 0xBE, 0x1E), // 20, amber
    RGB(0xDF, 0xFF, 0x1F), // 21, lime
    RGB(0x3C, 0x3C, 0xFF), // 22, sky blue
    RGB(0x1E, 0xC8, 0x1E), // 23, full green
    RGB(0x00, 0x1E, 0x50), // 24, night blue
    RGB(0x64, 0x64, 0x64), // 25, grey
    RGB(0xA0, 0xA0, 0xA0), // 26, medium grey
    RGB(0xF5, 0xF5, 0xFF), // 27, near white
    RGB(0xC8, 0x0A, 0x32), // 28, crimson
    RGB(0x41, 0x69, 0xFF), // 29, royal blue
    RGB(0xFF, 0xD7, 0x00), // 30, gold
    RGB(0xFF, 0xFF, 0xFF), // 31, white / invisible
};

namespace
{
struct Companions
{
    /// The scope index that is printed instead.
    int printed;
    COLORREF const * scale;
};

// By scope index.
constexpr Companions companions[SCOPE_COLOURS] = {
    {0, FarbenGreyDlRGB},      {9, FarbenGreyLdRGB},      {10, FarbenSommerRGB},     {11, FarbenStandardRGB},
    {21, FarbenGoldRGB},       {17, FarbenEarthRGB},      {13, FarbenOceanRGB},      {14, FarbenOceanRGB},
    {15, FarbenTemperaturRGB}, {1, FarbenGreyDlRGB},      {2, FarbenSommerRGB},      {3, FarbenStandardRGB},
    {21, FarbenGoldRGB},       {6, FarbenOceanRGB},       {19, FarbenRegenbogenRGB}, {8, FarbenTemperaturRGB},
    {20, FarbenStandardRGB},   {5, FarbenEarthRGB},       {9, FarbenStandardRGB},    {14, FarbenRegenbogenRGB},
    {16, FarbenGoldRGB},       {12, FarbenRegenbogenRGB}, {22, FarbenStandardRGB},   {23, FarbenStandardRGB},
    {24, FarbenStandardRGB},   {27, FarbenStandardRGB},   {26, FarbenGreyLdRGB},     {25, FarbenStandardRGB},
    {28, FarbenStandardRGB},   {29, FarbenStandardRGB},   {30, FarbenStandardRGB},   {0, FarbenGreyLdRGB},
};

constexpr int second_order[SCOPE_COLOURS] = {
    0,  2,  3,  22, 9,  25, 26, 1,  18, 27, 24, 13, 29, 6,  7, 19,
    14, 11, 23, 12, 21, 4,  30, 20, 5,  17, 10, 28, 16, 15, 8, 31,
};

// By the index that the host knows a scale by.
constexpr COLORREF const * scales[] = {
    FarbenGreyLdRGB,     FarbenStandardRGB, FarbenGoldRGB,   FarbenOceanRGB,      FarbenEarthRGB,
    FarbenTemperaturRGB, FarbenGreyDlRGB,   FarbenSommerRGB, FarbenRegenbogenRGB,
};
static_assert(std::size(scales) == spectrogram_scales);

bool IsScopeIndex(int index)
{
    return index >= 0 && index < SCOPE_COLOURS;
}

// Distances are those of single precision, worked out in whole numbers: what a compiler or a processor does with
// floating point (fused or reordered operations, wider registers) would decide near ties in other ways. The unit is
// 2 to the power of -27, of which the weights are multiples.
using distance_t = std::uint64_t;

constexpr int unit_bits = 27;
constexpr int mantissa_bits = 24;

/// What single precision makes of a value: 24 bits, halves go to the even neighbour.
constexpr distance_t Rounded(distance_t value)
{
    int const excess = std::bit_width(value) - mantissa_bits;
    if (excess <= 0)
        return value;
    distance_t const half = distance_t{1} << (excess - 1);
    distance_t const cut = value & (2 * half - 1);
    distance_t const kept = value >> excess;
    bool const up = cut > half || (cut == half && (kept & 1) != 0);
    return (kept + (up ? 1 : 0)) << excess;
}

/// A weight in units; exact, since all three are of single precision and at least 1/16.
constexpr distance_t Units(float weight)
{
    return static_cast<distance_t>(weight * static_cast<float>(1 << unit_bits));
}

distance_t Weighted(distance_t weight, int difference)
{
    return Rounded(weight * static_cast<distance_t>(difference * difference));
}

/// How different two colours look.
distance_t Distance(COLORREF a, COLORREF b)
{
    constexpr distance_t red_weight = Units(0.3f);
    constexpr distance_t green_weight = Units(0.59f);
    constexpr distance_t blue_weight = Units(0.11f);
    distance_t const redAndGreen = Rounded(Weighted(red_weight, GetRValue(a) - GetRValue(b)) +
                                           Weighted(green_weight, GetGValue(a) - GetGValue(b)));
    return Rounded(redAndGreen + Weighted(blue_weight, GetBValue(a) - GetBValue(b)));
}
} // namespace

COLORREF ScopeFarbe(int index)
{
    return ScopePalette[index];
}

unsigned int ScopeFarbIndex(COLORREF colour)
{
    for (unsigned int index = 0; index < SCOPE_COLOURS; ++index)
    {
        if (ScopePalette[index] == colour)
            return index;
    }
    unsigned int nearest = 0;
    distance_t least = Distance(colour, ScopePalette[nearest]);
    for (unsigned int index = 1; index < SCOPE_COLOURS; ++index)
    {
        distance_t const distance = Distance(colour, ScopePalette[index]);
        if (least > distance)
        {
            least = distance;
            nearest = index;
        }
    }
    return nearest;
}

int SelvaneFarbIndex(int position)
{
    return IsScopeIndex(position) ? second_order[position] : position;
}

COLORREF SelvaneFarbe(int position)
{
    return ScopePalette[SelvaneFarbIndex(position)];
}

COLORREF DruckFarbe(int index)
{
    return ScopePalette[IsScopeIndex(index) ? companions[index].printed : index];
}

DWORD MakeArgb(COLORREF colour, unsigned int alpha)
{
    DWORD const red = colour & 0xFF;
    DWORD const green = colour & 0xFF00;
    DWORD const blue = colour >> 16 & 0xFF;
    return DWORD{alpha} << 24 | red << 16 | green | blue;
}

DWORD ArgbFarbe(int index, unsigned int alpha)
{
    return MakeArgb(ScopePalette[index], alpha);
}

COLORREF const * SpektrogrammFarbtabelle(unsigned int index)
{
    return index < spectrogram_scales ? scales[index] : FarbenStandardRGB;
}

COLORREF const * SpektrogrammFarbtabelleSopeFarbe(int index)
{
    return IsScopeIndex(index) ? companions[index].scale : FarbenStandardRGB;
}
} // namespace Farbtabellen
