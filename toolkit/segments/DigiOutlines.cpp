#include "segments/DigiOutlines.h"

#include <span>

namespace DigiStatic
{
namespace
{
/// The sum of the first and the last row that can be mirrored into each other.
constexpr std::int32_t mirror_row_sum = 82;

constexpr CDigiSegment seven_top = {{{5, 4}, {12, 11}, {36, 11}, {43, 4}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment seven_side = {{{4, 6}, {4, 40}, {11, 36}, {11, 13}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment seven_middle = {
    {{6, 41}, {14, 45}, {34, 45}, {42, 41}, {34, 37}, {14, 37}}, {6, 2, 2, 2, 2, 2}, 6};
constexpr CDigiSegment seven_top_round = {
    {{6, 4}, {5, 5}, {5, 6}, {8, 9}, {12, 11}, {36, 11}, {39, 4}}, {6, 4, 4, 4, 2, 2, 2}, 7};
constexpr CDigiSegment seven_left_round = {
    {{4, 9}, {4, 39}, {6, 40}, {7, 40}, {9, 38}, {11, 36}, {11, 12}}, {6, 2, 4, 4, 4, 2, 2}, 7};
constexpr CDigiSegment seven_right_round = {
    {{37, 36}, {39, 38}, {41, 40}, {42, 40}, {44, 39}, {44, 6}, {42, 4}, {41, 4}, {39, 8}, {37, 12}},
    {6, 4, 4, 2, 2, 2, 4, 4, 4, 2},
    10};
constexpr CDigiSegment seven_middle_round = {
    {{8, 41}, {12, 45}, {36, 45}, {40, 41}, {36, 37}, {12, 37}}, {6, 2, 2, 2, 2, 2}, 6};

constexpr CDigiSegment fourteen_centre = {{{20, 13}, {20, 36}, {24, 40}, {28, 36}, {28, 13}}, {6, 2, 2, 2, 2}, 5};
// The fifth point is meant: curves leave it out, polygons run to it, so that they carry a spike to the left edge.
constexpr CDigiSegment fourteen_diagonal = {{{5, 5}, {15, 35}, {20, 37}, {18, 25}, {4, 23}}, {6, 2, 2, 2, 6}, 5};
constexpr CDigiSegment fourteen_half_bar = {
    {{6, 41}, {14, 45}, {18, 45}, {22, 41}, {18, 37}, {14, 37}}, {6, 2, 2, 2, 2, 2}, 6};
constexpr CDigiSegment fourteen_side = {{{4, 7}, {4, 40}, {11, 36}, {11, 26}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment fourteen_top = {{{6, 4}, {11, 11}, {37, 11}, {42, 4}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment fourteen_centre_round = {{{20, 12},
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
constexpr CDigiSegment fourteen_diagonal_round = {
    {{10, 10}, {10, 13}, {11, 20}, {13, 28}, {21, 38}, {21, 37}, {19, 26}, {15, 16}, {11, 10}, {10, 10}},
    {6, 4, 4, 4, 2, 2, 4, 4, 4, 2},
    10};
constexpr CDigiSegment fourteen_half_bar_round = {
    {{8, 41}, {12, 45}, {16, 45}, {23, 41}, {16, 37}, {12, 37}}, {6, 2, 2, 2, 2, 2}, 6};
constexpr CDigiSegment fourteen_side_round = {
    {{4, 7}, {4, 39}, {5, 40}, {6, 40}, {9, 37}, {11, 33}, {11, 25}, {9, 14}, {5, 6}, {4, 7}},
    {6, 2, 4, 4, 4, 4, 2, 4, 4, 2},
    10};
constexpr CDigiSegment fourteen_top_round = {{{8, 4},
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

constexpr CDigiSegment colon_upper = {{{4, 23}, {4, 32}, {13, 32}, {13, 23}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment colon_lower = {{{4, 50}, {4, 59}, {13, 59}, {13, 50}}, {6, 2, 2, 2}, 4};
constexpr CDigiSegment dot_mark = {{{4, 68}, {4, 77}, {13, 77}, {13, 68}}, {6, 2, 2, 2}, 4};

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
    {{&seven_top}, {&seven_top_round}},
    {{&seven_side}, {&seven_left_round}},
    {{&seven_side, Mirrored::x}, {&seven_right_round}},
    {{&seven_middle}, {&seven_middle_round}},
    {{&seven_side, Mirrored::y}, {&seven_left_round, Mirrored::y}},
    {{&seven_side, Mirrored::both}, {&seven_right_round, Mirrored::y}},
    {{&seven_top, Mirrored::y}, {&seven_top_round, Mirrored::y}},
};

constexpr Place fourteen_places[] = {
    {{&fourteen_centre}, {&fourteen_centre_round}},
    {{&fourteen_diagonal}, {&fourteen_diagonal_round}},
    {{&fourteen_diagonal, Mirrored::x}, {&fourteen_diagonal_round, Mirrored::x}},
    {{&fourteen_diagonal, Mirrored::y}, {&fourteen_diagonal_round, Mirrored::y}},
    {{&fourteen_diagonal, Mirrored::both}, {&fourteen_diagonal_round, Mirrored::both}},
    {{&fourteen_centre, Mirrored::y}, {&fourteen_centre_round, Mirrored::y}},
    {{&fourteen_half_bar}, {&fourteen_half_bar_round}},
    {{&fourteen_half_bar, Mirrored::x}, {&fourteen_half_bar_round, Mirrored::x}},
    {{&fourteen_side}, {&fourteen_side_round}},
    {{&fourteen_side, Mirrored::y}, {&fourteen_side_round, Mirrored::y}},
    {{&fourteen_top, Mirrored::y}, {&fourteen_top_round, Mirrored::y}},
    {{&fourteen_side, Mirrored::both}, {&fourteen_side_round, Mirrored::both}},
    {{&fourteen_side, Mirrored::x}, {&fourteen_side_round, Mirrored::x}},
    {{&fourteen_top}, {&fourteen_top_round}},
};

constexpr Place colon_and_dot_places[] = {
    {{&colon_upper}, {&colon_upper}},
    {{&colon_lower}, {&colon_lower}},
    {{&dot_mark}, {&dot_mark}},
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
