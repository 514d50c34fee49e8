#include "segments/DigiChar.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <type_traits>

#include "segments/DigiOutlines.h"

namespace DigiStatic
{
namespace
{
constexpr std::int32_t seven_segment_count = 7;
constexpr std::int32_t fourteen_segment_count = 14;
constexpr std::int32_t colon_segment_count = 3;

// Blank, digits from 1 on, "-", "_" and the degree sign. "_" lights the middle bar as "-" does, and the degree sign
// has no upper right segment but a bottom, and a bit without a segment; hosts expect both.
constexpr std::uint8_t seven_segment_masks[] = {0x00, 0x77, 0x24, 0x5D, 0x6D, 0x2E, 0x6B,
                                                0x7B, 0x25, 0x7F, 0x6F, 0x08, 0x08, 0xC3};

constexpr std::uint16_t fourteen_segment_masks[] = {
    0x0000,                                                                 // blank
    0x3F00, 0x1800, 0x36C0, 0x3CC0, 0x19C0, 0x2DC0, 0x2FC0, 0x3800, 0x3FC0, // 0 to 8
    0x3DC0, 0x00C0,                                                         // 9 -
    0x3BC0, 0x3CA1, 0x2700, 0x3C21, 0x27C0, 0x23C0, 0x2F80, 0x1BC0, 0x2421, // A to I
    0x1E00, 0x0354, 0x0700, 0x1B06, 0x1B12, 0x3F00, 0x33C0, 0x3F10, 0x33D0, // J to R
    0x2DC0, 0x2021, 0x1F00, 0x030C, 0x1B18, 0x001E, 0x11E0, 0x240C,         // S to Z
    0x00FF, 0x00E1, 0x0014, 0x000A, 0x0012, 0x000C, 0x0400, 0x0001,         // * + ( ) \ / _ '
    0x31C0, 0x20C4, 0x091E, 0x1089,                                         // degree, superscript two, %, micro
    0x241E,                                                                 // anything else
};

constexpr std::uint8_t colon_dot_masks[] = {0x04, 0x03};

constexpr std::size_t first_digit_index = 1;
constexpr std::size_t first_letter_index = 12;
constexpr std::size_t unknown_index = 50;
constexpr std::size_t dot_index = 0;
constexpr std::size_t colon_index = 1;

static_assert(std::size(seven_segment_masks) == 14);
static_assert(std::size(fourteen_segment_masks) == unknown_index + 1);

constexpr wchar_t degree_sign = 0xB0;
constexpr wchar_t superscript_two = 0xB2;
constexpr wchar_t micro_sign = 0xB5;

/// A character that either kind of cell can show.
struct CommonSign
{
    wchar_t character;
    std::uint8_t sevenIndex;
    std::uint8_t fourteenIndex;
};
constexpr CommonSign common_signs[] = {{L' ', 0, 0}, {L'-', 11, 11}, {L'_', 12, 44}, {degree_sign, 13, 46}};

struct Sign
{
    wchar_t character;
    std::uint8_t index;
};
constexpr Sign fourteen_signs[] = {
    {L'%', 48},  {L'\'', 45},           {L'(', 40},      {L')', 41}, {L'*', 38}, {L'+', 39}, {L'/', 43},
    {L'\\', 42}, {superscript_two, 47}, {micro_sign, 49}};

bool IsWithin(wchar_t character, wchar_t first, wchar_t last)
{
    return character >= first && character <= last;
}

std::size_t OffsetIn(wchar_t character, wchar_t first)
{
    return static_cast<std::size_t>(character - first);
}

std::size_t IndexOfSign(wchar_t character)
{
    auto const sign = std::ranges::find(fourteen_signs, character, &Sign::character);
    return sign != std::end(fourteen_signs) ? sign->index : unknown_index;
}

template <class Character> CDigiChar * Create(unsigned short mask, unsigned long style)
{
    // Of a class without virtual destructor: nothing needs to be done before the memory is given back.
    static_assert(std::is_trivially_destructible_v<Character>);
    auto * const character = new Character;
    character->SetSegmentMask(mask, style);
    return character;
}

CDigiChar * CreateCommon(std::size_t sevenIndex, std::size_t fourteenIndex, unsigned long style)
{
    if ((style & DigiStyleAlways14) != 0)
        return Create<CDigi14Segment>(fourteen_segment_masks[fourteenIndex], style);
    return Create<CDigi7Segment>(seven_segment_masks[sevenIndex], style);
}

bool IsRounded(unsigned long style)
{
    return (style & DigiStyleRounded) != 0;
}
} // namespace

CDigiChar::CDigiChar(CDigiChar const & other)
    : width(other.width),
      mask(other.mask),
      segmentCount(other.segmentCount),
      hideOff(other.hideOff)
{
}

CDigiChar & CDigiChar::operator=(CDigiChar const & other)
{
    width = other.width;
    mask = other.mask;
    segmentCount = other.segmentCount;
    hideOff = other.hideOff;
    if (this != &other)
        std::copy_n(other.segments, other.segmentCount, segments);
    return *this;
}

void CDigiChar::SetSegmentMask(unsigned short newMask, unsigned long style)
{
    mask = newMask;
    hideOff = (style & DigiStyleHideOff) != 0;
}

CDigi7Segment::CDigi7Segment()
{
    segmentCount = seven_segment_count;
}

void CDigi7Segment::SetSegmentMask(unsigned short newMask, unsigned long style)
{
    FillSevenSegments(*this, IsRounded(style));
    CDigiChar::SetSegmentMask(newMask, style);
}

CDigi14Segment::CDigi14Segment()
{
    segmentCount = fourteen_segment_count;
}

void CDigi14Segment::SetSegmentMask(unsigned short newMask, unsigned long style)
{
    FillFourteenSegments(*this, IsRounded(style));
    CDigiChar::SetSegmentMask(newMask, style);
}

CDigiColonDotChar::CDigiColonDotChar()
{
    width = colon_cell_width;
    segmentCount = colon_segment_count;
}

void CDigiColonDotChar::SetSegmentMask(unsigned short newMask, unsigned long style)
{
    FillColonAndDot(*this);
    CDigiChar::SetSegmentMask(newMask, style);
}

CDigiChar * CreateDigiChar(wchar_t character, unsigned long style)
{
    if (IsWithin(character, L'0', L'9'))
    {
        std::size_t const index = first_digit_index + OffsetIn(character, L'0');
        return CreateCommon(index, index, style);
    }
    auto const common = std::ranges::find(common_signs, character, &CommonSign::character);
    if (common != std::end(common_signs))
        return CreateCommon(common->sevenIndex, common->fourteenIndex, style);

    bool const isLower = IsWithin(character, L'a', L'z');
    if (isLower || IsWithin(character, L'A', L'Z'))
    {
        std::size_t const letter = OffsetIn(character, isLower ? L'a' : L'A');
        return Create<CDigi14Segment>(fourteen_segment_masks[first_letter_index + letter], style);
    }
    if (character == L'.' || character == L':')
        return Create<CDigiColonDotChar>(colon_dot_masks[character == L'.' ? dot_index : colon_index], style);
    return Create<CDigi14Segment>(fourteen_segment_masks[IndexOfSign(character)], style);
}

void DeleteDigiChar(CDigiChar * character)
{
    ::operator delete(static_cast<void *>(character));
}
} // namespace DigiStatic
