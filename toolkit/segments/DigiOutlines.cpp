#include "segments/DigiOutlines.h"

#include <span>

namespace DigiStatic
{
namespace
{
/// The sum of the first and the last row that can be mirrored into each other.
constexpr std::int32_t mirror_row_sum = 82;

constexpr CDigiSegment SevenTop = {{{5, 4}, {12, 11}, {36, 11}, {43, 4}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment SevenSide = {{{4, 6}, {4, 40}, {11, 36}, {11, 13}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment SevenMiddle = {
    {{6, 41}, {14, 45}, {34, 45}, {42, 41}, {34, 37}, {14, 37}}, {6, 2, 2, 2, 2, 2}, 6};
constexpr CDigiSegment SevenTopRound = {
    {{6, 4}, {5, 5}, {5, 6}, {8, 9}, {12, 11}, {36, 11}, {39, 4}}, {6, 4, 4, 4, 2, 2, 2}, 7};
constexpr CDigiSegment SevenLeftRound = {
    {{4, 9}, {4, 39}, {6, 40}, {7, 40}, {9, 38}, {11, 36}, {11, 12}}, {6, 2, 4, 4, 4, 2, 2}, 7};
constexpr CDigiSegment SevenRightRound = {
    {{37, 36}, {39, 38}, {41, 40}, {42, 40}, {44, 39}, {44, 6}, {42, 4}, {41, 4}, {39, 8}, {37, 12}},
    {6, 4, 4, 2, 2, 2, 4, 4, 4, 2},
    10};
constexpr CDigiSegment SevenMiddleRound = {
    {{8, 41}, {12, 45}, {36, 45}, {40, 41}, {36, 37}, {12, 37}}, {6, 2, 2, 2, 2, 2}, 6};

constexpr CDigiSegment FourteenCentre = {{{20, 13}, {20, 36}, {24, 40}, {28, 36}, {28, 13}}, {6, 2, 2, 2, 2}, 5};
// The fifth point is meant: curves leave it out, polygons run to it, so that they carry a spike to the left edge.
constexpr CDigiSegment FourteenDiagonal = {{{5, 5}, {15, 35}, {20, 37}, {18, 25}, {4, 23}}, {6, 2, 2, 2, 6}, 5};
constexpr CDigiSegment FourteenHalfBar = {
    {{6, 41}, {14, 45}, {18, 45}, {22, 41}, {18, 37}, {14, 37}}, {6, 2, 2, 2, 2, 2}, 6};
constexpr CDigiSegment FourteenSide = {{{4, 7}, {4, 40}, {11, 36}, {11, 26}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment FourteenTop = {{{6, 4}, {11, 11}, {37, 11}, {42, 4}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment FourteenCentreRound = {{{20, 12},
                                               {20, 25},
                                               {22, 36},
                                               {23, 39},
                                               {24, 40},
                                               {25, 39},
                                               {26, 36},
                                               {28, 25},
                                               {28, 12},
                                               {26, 10},
                                               {24, 9},
                                               {22, 10},
                                               {20, 12}},
                                              {6, 2, 4, 4, 4, 4, 4, 2, 2, 4, 4, 4, 2},
                                              13};
constexpr CDigiSegment FourteenDiagonalRound = {
    {{10, 10}, {10, 13}, {11, 20}, {13, 28}, {21, 38}, {21, 37}, {19, 26}, {15, 16}, {11, 10}, {10, 10}},
    {6, 4, 4, 4, 2, 2, 4, 4, 4, 2},
    10};
constexpr CDigiSegment FourteenHalfBarRound = {
    {{8, 41}, {12, 45}, {16, 45}, {23, 41}, {16, 37}, {12, 37}}, {6, 2, 2, 2, 2, 2}, 6};
constexpr CDigiSegment FourteenSideRound = {
    {{4, 7}, {4, 39}, {5, 40}, {6, 40}, {9, 37}, {11, 33}, {11, 25}, {9, 14}, {5, 6}, {4, 7}},
    {6, 2, 4, 4, 4, 4, 2, 4, 4, 2},
    10};
constexpr CDigiSegment FourteenTopRound = {{{8, 4},
                                            {7, 5},
                                            {7, 6},
                                            {9, 8},
                                            {12, 9},
                                            {14, 11},
                                            {19, 11},
                                            {21, 9},
                                            {24, 7},
                                            {27, 9},
                                            {29, 11},
                                            {34, 11},
                                            {36, 9},
                                            {39, 8},
                                            {41, 6},
                                            {41, 5},
                                            {40, 4}},
                                           {6, 4, 4, 4, 4, 2, 2, 4, 4, 4, 2, 2, 4, 4, 4, 4, 2},
                                           17};

constexpr CDigiSegment ColonUpper = {{{4, 23}, {4, 32}, {13, 32}, {13, 23}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment ColonLower = {{{4, 50}, {4, 59}, {13, 59}, {13, 50}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment DotMark = {{{4, 68}, {4, 77}, {13, 77}, {13, 68}}, {6, 2, 2, 2}, 4};

/// About which middle lines of the cell an outline is mirrored.
enum class Mirrored
{
    no,
    x,
    y,
    both
};

struct Outline
{
    CDigiSegment const * segment;
    Mirrored mirrored = Mirrored::no;
};

struct Place
{
    Outline plain;
    Outline rounded;
};

constexpr Place seven_places[] = {
    {{&SevenTop}, {&SevenTopRound}},
    {{&SevenSide}, {&SevenLeftRound}},
    {{&SevenSide, Mirrored::x}, {&SevenRightRound}},
    {{&SevenMiddle}, {&SevenMiddleRound}},
    {{&SevenSide, Mirrored::y}, {&SevenLeftRound, Mirrored::y}},
    {{&SevenSide, Mirrored::both}, {&SevenRightRound, Mirrored::y}},
    {{&SevenTop, Mirrored::y}, {&SevenTopRound, Mirrored::y}},
};

constexpr Place fourteen_places[] = {
    {{&FourteenCentre}, {&FourteenCentreRound}},
    {{&FourteenDiagonal}, {&FourteenDiagonalRound}},
    {{&FourteenDiagonal, Mirrored::x}, {&FourteenDiagonalRound, Mirrored::x}},
    {{&FourteenDiagonal, Mirrored::y}, {&FourteenDiagonalRound, Mirrored::y}},
    {{&FourteenDiagonal, Mirrored::both}, {&FourteenDiagonalRound, Mirrored::both}},
    {{&FourteenCentre, Mirrored::y}, {&FourteenCentreRound, Mirrored::y}},
    {{&FourteenHalfBar}, {&FourteenHalfBarRound}},
    {{&FourteenHalfBar, Mirrored::x}, {&FourteenHalfBarRound, Mirrored::x}},
    {{&FourteenSide}, {&FourteenSideRound}},
    {{&FourteenSide, Mirrored::y}, {&FourteenSideRound, Mirrored::y}},
    {{&FourteenTop, Mirrored::y}, {&FourteenTopRound, Mirrored::y}},
    {{&FourteenSide, Mirrored::both}, {&FourteenSideRound, Mirrored::both}},
    {{&FourteenSide, Mirrored::x}, {&FourteenSideRound, Mirrored::x}},
    {{&FourteenTop}, {&FourteenTopRound}},
};

constexpr Place colon_and_dot_places[] = {
    {{&ColonUpper}, {&ColonUpper}},
    {{&ColonLower}, {&ColonLower}},
    {{&DotMark}, {&DotMark}},
};

/// Point order and types stay, so that a mirrored outline runs the other way round.
CDigiSegment Mirror(Outline const & outline, std::int32_t width)
{
    CDigiSegment segment = *outline.segment;
    std::int32_t const column_sum = 2 * ((width - 1) / 2);
    for (std::uint32_t i = 0; i < segment.count; ++i)
    {
        CDigiGridPoint & point = segment.points[i];
        if (outline.mirrored == Mirrored::x || outline.mirrored == Mirrored::both)
            point.x = column_sum - point.x;
        if (outline.mirrored == Mirrored::y || outline.mirrored == Mirrored::both)
            point.y = mirror_row_sum - point.y;
    }
    return segment;
}

void Fill(CDigiChar & character, std::span<Place const> places, bool rounded)
{
    CDigiSegment * segment = character.segments;
    for (Place const & place : places)
        *segment++ = Mirror(rounded ? place.rounded : place.plain, character.width);
}
} // namespace

void FillSevenSegments(CDigiChar & character, bool rounded)
{
    Fill(character, seven_places, rounded);
}

void FillFourteenSegments(CDigiChar & character, bool rounded)
{
    Fill(character, fourteen_places, rounded);
}

void FillColonAndDot(CDigiChar & character)
{
    Fill(character, colon_and_dot_places, false);
}
} // namespace DigiStatic
