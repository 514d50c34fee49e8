#pragma once
// One character of a segment display: the outlines of its segments on a design grid, and which of them are lit.
// Internal to the module. The character itself needs no window system; only its two Draw operations do.

#include <cstdint>
#include <memory>

#include "segments/DigiStyle.h"

class CBrush;
class CDC;
class CPen;
class CRgn;

namespace Gdiplus
{
class Brush;
class Graphics;
class Pen;
} // namespace Gdiplus

namespace DigiStatic
{
/// Height of every character cell, in design units. y grows downward.
inline constexpr std::int32_t cell_height = 83;
/// Width of the cell of a 7- or 14-segment character, and of a colon or dot.
inline constexpr std::int32_t segment_cell_width = 49;
inline constexpr std::int32_t colon_cell_width = 18;

/// What a point of an outline is: the values of the platform's path point types.
inline constexpr std::uint8_t point_line_to = 2;
inline constexpr std::uint8_t point_bezier_run = 4;
inline constexpr std::uint8_t point_move_to = 6;

/// A point of the design grid.
struct CDigiGridPoint
{
    std::int32_t x;
    std::int32_t y;
};

/// The outline of one segment, in drawing order. Entries from `count` on have no meaning.
struct CDigiSegment
{
    static constexpr std::uint32_t capacity = 17;

    CDigiGridPoint points[capacity] = {};
    /// One of the point_... values for each point.
    std::uint8_t types[capacity] = {};
    std::uint32_t count = 0;
};

/// A character without segments, and the base of those that have some. A plain value: SetSegmentMask fixes outlines and
/// mask directly after construction, and nothing changes them afterwards.
class CDigiChar
{
public:
    static constexpr std::int32_t segment_capacity = 14;

    CDigiChar() = default;
    /// Copies all but the outlines, which stay empty; they arrive through assignment. Hosts expect that.
    CDigiChar(CDigiChar const & other);
    /// Copies the outlines of the other's segments; those behind them stay what they were.
    CDigiChar & operator=(CDigiChar const & other);

    /// Takes over which segments are lit (bit i: segment i; bits without a segment do nothing) and, from the style,
    /// whether unlit ones are hidden. A class with segments takes their outlines by DigiStyleRounded first.
    virtual void SetSegmentMask(unsigned short mask, unsigned long style);

    /// Width of the cell in design units.
    std::int32_t GetWidth() const { return width; }

    /// Paints into rect (left, top, right, bottom in device units) on a device context: rounded outlines as curves,
    /// edges in the pens, areas in the brushes. The pen and the brush of the last segment stay selected; the caller
    /// selects its own again.
    ///
    /// With a region, the outline of every segment painted is merged into it; a region without a handle takes the first
    /// one. The outline is asked for after it has been painted, when the device context has used it up, so that the
    /// platform has none to give and the region stays as it is; hosts expect this order.
    void DrawGdi(CDC * dc, const double rect[4], CPen * offPen, CPen * onPen, CBrush * offBrush, CBrush * onBrush,
                 CRgn * region) const;

    /// Paints into rect (left, top, right, bottom in device units) on a graphics object: all outlines as polygons, lit
    /// segments edged with onPen and filled, unlit ones filled. offPen is never used, as hosts expect.
    void DrawGdiPlus(Gdiplus::Graphics & graphics, const double rect[4], Gdiplus::Pen & offPen, Gdiplus::Pen & onPen,
                     Gdiplus::Brush & offBrush, Gdiplus::Brush & onBrush) const;

    std::int32_t width = segment_cell_width;
    std::uint16_t mask = 0;
    CDigiSegment segments[segment_capacity];
    std::int32_t segmentCount = 0;
    /// 1 if unlit segments are not painted at all.
    std::int32_t hideOff = 0;
};

/// A digit, and the few signs that seven segments can show.
class CDigi7Segment : public CDigiChar
{
public:
    CDigi7Segment();
    void SetSegmentMask(unsigned short mask, unsigned long style) override;
};

/// A digit, letter or sign of fourteen segments.
class CDigi14Segment : public CDigiChar
{
public:
    CDigi14Segment();
    void SetSegmentMask(unsigned short mask, unsigned long style) override;
};

/// A colon (segments 0 and 1) or a dot (segment 2) in a narrow cell. It has no rounded outlines.
class CDigiColonDotChar : public CDigiChar
{
public:
    CDigiColonDotChar();
    void SetSegmentMask(unsigned short mask, unsigned long style) override;
};

/// A new character with outlines and mask, owned by the caller, who gives it to DeleteDigiChar. Letters of both cases
/// are the same; whatever has no shape of its own becomes a crossed box. style: DigiStyleRounded, DigiStyleAlways14 and
/// DigiStyleHideOff count. Never null; throws when there is no memory.
CDigiChar * CreateDigiChar(wchar_t character, unsigned long style);

/// Deletes what CreateDigiChar gave; null does nothing. `delete` would not do, since the classes have no virtual
/// destructor: the mask is all that they have virtual.
void DeleteDigiChar(CDigiChar * character);

struct CDigiCharDeleter
{
    void operator()(CDigiChar * character) const { DeleteDigiChar(character); }
};

/// Owns one character.
using CDigiCharOwner = std::unique_ptr<CDigiChar, CDigiCharDeleter>;
} // namespace DigiStatic
