#include "list/CellPainters.h"

#include <algorithm>
#include <iterator>

#include "frame/GdiplusModule.h"
#include "frame/GraphicsScopes.h"
#include "layout/Resolution.h"
#include "layout/StretchedImages.h"
#include "list/CellKind.h"
#include "list/CheckMarks.h"

using resolution::Scaled;

namespace
{
/// The colour stands solid at the left and fades out to the right, not quite to nothing.
void PaintWash(CDC & dc, CRect const & cell, COLORREF color, UINT dpi)
{
    constexpr int margin_x = 1;
    constexpr int margin_y = 2;
    constexpr float reach = 1.05f;
    constexpr BYTE nearly_solid = 240;
    constexpr Gdiplus::REAL positions[] = {0.0f, 0.3f, 1.0f};

    CRect area = cell;
    area.DeflateRect(Scaled(margin_x, dpi), Scaled(margin_y, dpi));
    if (area.Width() <= 0 || area.Height() <= 0 || !StartGdiplus())
        return;
    Gdiplus::RectF const fill(static_cast<float>(area.left), static_cast<float>(area.top),
                              static_cast<float>(area.Width()), static_cast<float>(area.Height()));
    BYTE const red = GetRValue(color);
    BYTE const green = GetGValue(color);
    BYTE const blue = GetBValue(color);
    Gdiplus::Color const colors[] = {Gdiplus::Color(255, red, green, blue),
                                     Gdiplus::Color(nearly_solid, red, green, blue),
                                     Gdiplus::Color(0, red, green, blue)};

    Gdiplus::Graphics graphics(dc.GetSafeHdc());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    Gdiplus::LinearGradientBrush brush(Gdiplus::PointF(fill.X, fill.Y),
                                       Gdiplus::PointF(fill.X + reach * fill.Width, fill.Y), colors[0], colors[2]);
    brush.SetInterpolationColors(colors, positions, static_cast<INT>(std::size(colors)));
    graphics.FillRectangle(&brush, fill);
}

/// The nearest colour on the way from the wash to the ground on which the text is read.
COLORREF SoftenedWash(COLORREF wash, COLORREF ground, COLORREF text)
{
    constexpr int steps = 16;
    auto const mix = [](int from, int to, int step) { return from + (to - from) * step / steps; };
    for (int step = 0; step < steps; ++step)
    {
        COLORREF const mixed =
            RGB(mix(GetRValue(wash), GetRValue(ground), step), mix(GetGValue(wash), GetGValue(ground), step),
                mix(GetBValue(wash), GetBValue(ground), step));
        if (control_colors::ContrastOf(text, mixed) >= control_colors::least_contrast)
            return mixed;
    }
    return ground;
}

void SetTextColors(CellPaint const & paint)
{
    paint.dc.SetBkMode(TRANSPARENT);
    paint.dc.SetTextColor(paint.text);
    paint.dc.SetBkColor(paint.background);
}

void DrawCellText(CDC & dc, CellText const & text, CRect rect, UINT format)
{
    if (!rect.IsRectEmpty())
        dc.DrawText(text.Characters(), text.Length(), &rect, format);
}

bool IsEnabled(XLISTCTRLDATA const & cell)
{
    return (cell.properties & XLP_ENABLED) != 0;
}

Gdiplus::Color ToColor(COLORREF color)
{
    return Gdiplus::Color(GetRValue(color), GetGValue(color), GetBValue(color));
}

/// The size of one image; empty if it can't be told.
CSize ImageSize(CImageList const & images, int index)
{
    IMAGEINFO info = {};
    return images.GetImageInfo(index, &info) ? CRect(info.rcImage).Size() : CSize(0, 0);
}

/// How far below a cell's top something of that height starts to stand in its middle.
int TopOffset(CRect const & cell, int height)
{
    return std::max((cell.Height() - height) / 2, 0);
}

/// The downward arrow of a combo cell, lighter towards its top.
void PaintArrow(CDC & dc, CPoint box, COLORREF arrow, BYTE alpha, UINT dpi)
{
    float const inset = Scaled(3.0f, dpi);
    float const halfWidth = Scaled(4.0f, dpi);
    float const height = Scaled(7.0f, dpi);
    float const lineWidth = Scaled(0.7f, dpi);

    if (!StartGdiplus())
        return;
    float const x = static_cast<float>(box.x) + inset;
    float const y = static_cast<float>(box.y) + inset;
    Gdiplus::Color const color(alpha, GetRValue(arrow), GetGValue(arrow), GetBValue(arrow));

    Gdiplus::GraphicsPath path;
    path.AddLine(x, y, x + halfWidth, y + height);
    path.AddLine(x + halfWidth, y + height, x + 2 * halfWidth, y);
    path.AddLine(x + 2 * halfWidth, y, x, y);
    path.CloseFigure();

    Gdiplus::Graphics graphics(dc.GetSafeHdc());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    Gdiplus::Pen const pen(color, lineWidth);
    graphics.DrawPath(&pen, &path);
    Gdiplus::LinearGradientBrush const brush(Gdiplus::PointF(x + halfWidth, y),
                                             Gdiplus::PointF(x + halfWidth, y + height),
                                             Gdiplus::Color(0, 255, 255, 255), color);
    graphics.FillPath(&brush, &path);
}

/// A text in nobody's colour on that ground.
COLORREF TextOn(COLORREF ground, ControlColors const & palette)
{
    return control_colors::TextOn(ground, palette.windowText, palette.window);
}

/// The palette with marks that are seen on the cell's ground.
ControlColors SeenOn(CellPaint const & paint, ControlColors palette)
{
    for (COLORREF * const mark : {&palette.checkFrame, &palette.checkMark, &palette.crossMark, &palette.disabled})
        *mark = control_colors::MarkOn(paint.background, *mark, paint.text);
    palette.radioGround = paint.background;
    palette.radioLight = control_colors::MarkOn(paint.background, palette.radioLight, paint.text);
    return palette;
}

/// The box or the ring of a check cell.
void PaintBox(CellPaint const & paint, CRect const & box, ControlColors const & palette)
{
    bool const enabled = IsEnabled(paint.cell);
    int const state = paint.cell.checkedState;
    switch (MarkedKind(state))
    {
    case CellKind::check:
        // There are states without a mark.
        if (state <= XLC_CROSSED)
            cell_painters::PaintCheckBox(paint.dc, box, state, enabled, palette, paint.dpi);
        break;
    case CellKind::radio:
        cell_painters::PaintRadioBox(paint.dc, box, state, enabled, palette, paint.dpi);
        break;
    case CellKind::text:
    case CellKind::edit:
    case CellKind::link:
    case CellKind::combo:
    case CellKind::progress:
    case CellKind::custom:
        break;
    }
}

/// Of a cell whose look and text are known beforehand.
class PlainParts final : public CellParts
{
public:
    PlainParts(CellPaint & paint, CellLook const & look, CellText const & text)
        : m_paint(paint),
          m_look(look),
          m_text(text),
          m_format(cell_painters::TextFormat(look.alignment, look.ellipsis))
    {
    }

    bool IsPainted() const { return m_painted; }

    void Margin() override { cell_painters::FillMargin(m_paint.dc, m_paint.rect, m_look.palette.window); }
    void Image() override
    {
        if (m_look.images != nullptr && m_paint.cell.imageIndex >= 0 && m_paint.rect.Width() > 0)
            m_paint.rect.left += cell_painters::PaintImage(m_paint, *m_look.images, m_look.spacing);
    }
    void Text() override
    {
        if (!m_paint.rect.IsRectEmpty())
            cell_painters::PaintText(m_paint, m_text, m_format, m_look.padding);
    }
    void Check() override
    {
        if (!m_paint.rect.IsRectEmpty())
            cell_painters::PaintCheck(m_paint, m_text, m_look.ellipsis, m_look.palette);
    }
    void Combo() override
    {
        cell_painters::SetArrow(m_paint, m_look.palette);
        if (!m_paint.rect.IsRectEmpty())
            cell_painters::PaintCombo(m_paint, m_text, m_format, m_look.padding);
    }
    void Progress() override { cell_painters::PaintProgress(m_paint, m_look.palette); }
    void Custom() override { m_painted = false; }

private:
    CellPaint & m_paint;
    CellLook const & m_look;
    CellText const & m_text;
    UINT m_format;
    bool m_painted = true;
};
} // namespace

namespace cell_painters
{
void PaintParts(XLISTCTRLDATA const & cell, CellParts & parts)
{
    switch (PaintedKind(cell))
    {
    case CellKind::progress:
        parts.Margin();
        parts.Image();
        parts.Progress();
        break;
    case CellKind::check:
    case CellKind::radio:
        parts.Check();
        break;
    case CellKind::combo:
        parts.Image();
        parts.Combo();
        break;
    case CellKind::custom:
        parts.Custom();
        break;
    case CellKind::text:
    case CellKind::edit:
    case CellKind::link:
        parts.Image();
        parts.Text();
        break;
    }
}

bool PaintCell(CellPaint paint, CellLook const & look, CellText const & text)
{
    paint.dpi = look.dpi;
    paint.imageDpi = look.imageDpi;
    PlainParts parts(paint, look, text);
    PaintParts(paint.cell, parts);
    return parts.IsPainted();
}

void GreyDisabled(XLISTCTRLDATA const & cell, ControlColors const & palette, COLORREF & text, COLORREF & background)
{
    if (IsEnabled(cell))
        return;
    text = palette.disabled;
    if (background == palette.window)
        background = palette.inactiveSelection;
    else if (palette.adapts && TintOf(cell) != CellTint::bar)
        text = control_colors::MarkOn(background, text, TextOn(background, palette));
}

void SetArrow(CellPaint & paint, ControlColors const & palette)
{
    paint.solidArrow = palette.adapts;
    paint.arrow =
        palette.adapts ? control_colors::MarkOn(paint.background, palette.comboArrow, paint.text) : palette.comboArrow;
}

UINT TextFormat(UINT alignment, bool ellipsis)
{
    return DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER | alignment | (ellipsis ? DT_END_ELLIPSIS : 0);
}

void FillCell(CellPaint const & paint)
{
    paint.dc.FillSolidRect(paint.rect, paint.background);
    COLORREF const wash = paint.cell.gradientColor;
    if (wash == XLISTCTRLDATA::no_gradient)
        return;
    PaintWash(paint.dc, paint.rect, paint.softensWash ? SoftenedWash(wash, paint.background, paint.text) : wash,
              paint.dpi);
}

int PaintImage(CellPaint const & paint, CImageList & images, int spacing)
{
    FillCell(paint);
    CRect rect = paint.rect;
    rect.left += spacing;

    if (paint.dpi != paint.imageDpi)
    {
        CSize const size = ScaledImageSize(images, paint.cell.imageIndex, paint.dpi, paint.imageDpi);
        CPoint const at(rect.left, std::max(rect.CenterPoint().y - (size.cy >> 1), rect.top));
        DrawStretchedImage(paint.dc, images, paint.cell.imageIndex, at, size, rect.Size());
        return size.cx + spacing;
    }
    CSize const size = ImageSize(images, paint.cell.imageIndex);
    CPoint const position(rect.left, rect.CenterPoint().y - (size.cy >> 1));
    CSize const drawn(std::min<LONG>(size.cx, rect.Width()), std::min<LONG>(size.cy, rect.Height()));
    // A size of 0 would stand for that of the whole image.
    if (drawn.cx > 0 && drawn.cy > 0)
    {
        ImageBackgroundScope const imageBackground(images, paint.background);
        images.DrawIndirect(&paint.dc, paint.cell.imageIndex, position, drawn, CPoint(0, 0));
    }
    return size.cx + spacing;
}

void PaintText(CellPaint const & paint, CellText const & text, UINT format, int padding)
{
    FillCell(paint);
    if (text.IsEmpty())
        return;
    unsigned int const properties = paint.cell.properties;
    FontFormScope const font(paint.dc, (properties & XLP_BOLD) != 0, (properties & XLP_UNDERLINE) != 0);
    SetTextColors(paint);
    CRect room = paint.rect;
    room.DeflateRect(padding, 0);
    DrawCellText(paint.dc, text, room, format);
}

void PaintCheck(CellPaint const & paint, CellText const & text, bool ellipsis, ControlColors const & palette)
{
    constexpr int box_left = 9;
    constexpr int box_gap = 4;

    FillCell(paint);
    CRect const & rect = paint.rect;
    int const edge = Scaled(check_marks::box_size, paint.dpi);
    CRect box(CPoint(rect.left + Scaled(box_left, paint.dpi), rect.top + TopOffset(rect, edge)), CSize(edge, edge));
    if (text.IsEmpty())
        box.MoveToX(rect.left + rect.Width() / 2 - edge / 2 - 1);

    if (palette.adapts)
        PaintBox(paint, box, SeenOn(paint, palette));
    else
        PaintBox(paint, box, palette);

    if (text.IsEmpty())
        return;
    SetTextColors(paint);
    DrawCellText(paint.dc, text, CRect(box.right + Scaled(box_gap, paint.dpi), rect.top, rect.right, rect.bottom),
                 DT_SINGLELINE | DT_VCENTER | (ellipsis ? DT_END_ELLIPSIS : 0));
}

void PaintCheckBox(CDC & dc, CRect const & box, int state, bool enabled, ControlColors const & palette, UINT dpi)
{
    check_marks::DrawFrame(dc, box, enabled ? palette.checkFrame : palette.disabled, dpi);
    if (state == XLC_CHECKED)
        check_marks::DrawTick(dc, box, enabled ? palette.checkMark : palette.disabled, dpi);
    else if (state == XLC_CROSSED)
    {
        check_marks::DrawCross(dc, box, check_marks::cross_inset_cell, enabled ? palette.crossMark : palette.disabled,
                               dpi);
    }
}

void PaintRadioBox(CDC & dc, CRect const & box, int state, bool enabled, ControlColors const & palette, UINT dpi)
{
    float const lineWidth = Scaled(1.0f, dpi);

    if (!StartGdiplus())
        return;
    CRect ring = box;
    ring.DeflateRect(Scaled(1, dpi), Scaled(1, dpi));
    int const diameter = ring.Width();

    Gdiplus::GraphicsPath path;
    path.AddEllipse(static_cast<INT>(ring.left), static_cast<INT>(ring.top), diameter, diameter);
    Gdiplus::Graphics graphics(dc.GetSafeHdc());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    Gdiplus::Pen const pen(ToColor(enabled ? palette.checkFrame : palette.disabled), lineWidth);
    graphics.DrawPath(&pen, &path);
    // Of a disabled one hosts expect that it doesn't show whether it's on.
    if (!enabled)
        return;

    if (state != XLC_RADIO_ON)
    {
        Gdiplus::SolidBrush const ground(ToColor(palette.radioGround));
        graphics.FillPath(&ground, &path);
        // The ground has taken half of the ring, which is hardly seen otherwise.
        if (palette.adapts)
            graphics.DrawPath(&pen, &path);
        return;
    }
    Gdiplus::PathGradientBrush ball(&path);
    ball.SetCenterPoint(Gdiplus::Point(ring.left + diameter / 3, ring.top + diameter / 3));
    ball.SetCenterColor(ToColor(palette.radioLight));
    Gdiplus::Color const surround = ToColor(palette.checkMark);
    INT count = 1;
    ball.SetSurroundColors(&surround, &count);
    graphics.FillPath(&ball, &path);
}

void PaintCombo(CellPaint const & paint, CellText const & text, UINT format, int padding)
{
    constexpr int arrow_size = 13;
    constexpr int arrow_height = 11;
    constexpr BYTE opaque = 255;
    constexpr BYTE softened = 180;

    FillCell(paint);
    CRect room = paint.rect;
    // Hosts expect that a disabled cell has no padding either.
    if (IsEnabled(paint.cell))
    {
        room.DeflateRect(padding, 0);
        room.right -= Scaled(arrow_size, paint.dpi);
        int const top = TopOffset(paint.rect, Scaled(arrow_height, paint.dpi));
        PaintArrow(paint.dc, CPoint(room.right, paint.rect.top + top), paint.arrow,
                   paint.solidArrow ? opaque : softened, paint.dpi);
    }
    if (text.IsEmpty())
        return;
    SetTextColors(paint);
    DrawCellText(paint.dc, text, room, format);
}

void FillMargin(CDC & dc, CRect const & cell, COLORREF color)
{
    dc.FillSolidRect(CRect(cell.left, cell.top, cell.left + 1, cell.bottom), color);
    dc.FillSolidRect(CRect(cell.left, cell.bottom - 1, cell.right, cell.bottom), color);
}

void PaintProgress(CellPaint const & paint, ControlColors const & palette)
{
    constexpr long long percent = 100;
    // The end of the device space: nothing beyond it can be seen.
    constexpr long long farthest = (1 << 27) - 1;

    CDC & dc = paint.dc;
    XLISTCTRLDATA const & cell = paint.cell;
    CRect trough = paint.rect;
    --trough.bottom;
    ++trough.left;
    if (trough.IsRectEmpty())
        return;
    dc.FillSolidRect(trough, palette.trough);
    dc.Draw3dRect(trough, palette.troughFrame, palette.edgeShadow);
    // Hosts expect that a bar at 0 shows no text either.
    if (cell.progressValue <= 0)
        return;

    CRect bar = trough;
    bar.DeflateRect(1, 1, 0, 1);
    CRect rest = bar;
    long long const fill = static_cast<long long>(bar.Width()) * cell.progressValue / percent;
    // Above 100 hosts expect it to reach past the cell.
    bar.right = static_cast<LONG>(std::min(bar.left + fill - 1, farthest));
    rest.left = bar.right;
    if (!bar.IsRectEmpty())
        dc.FillSolidRect(bar, paint.background);
    CRect room = trough;
    room.DeflateRect(1, 1);
    if (!cell.progressShowText || room.IsRectEmpty())
        return;

    CString caption;
    if (cell.progressFormat.IsEmpty())
        caption.Format(L"%d%%", cell.progressValue);
    else
        caption.Format(cell.progressFormat, cell.progressDisplayValue);
    dc.SetBkMode(TRANSPARENT);
    auto const draw = [&](COLORREF color) {
        dc.SetTextColor(color);
        dc.DrawText(caption, &room, DT_CENTER | DT_SINGLELINE | DT_VCENTER);
    };
    COLORREF const barText =
        palette.adapts ? control_colors::MarkOn(paint.background, palette.barText, TextOn(paint.background, palette))
                       : palette.barText;
    // A text that keeps its distance from the bar's edge, italics and the like included, needs no clipping.
    CSize const extent = dc.GetTextExtent(caption);
    int const textLeft = room.left + (room.Width() - extent.cx) / 2 - extent.cy;
    int const textRight = textLeft + extent.cx + 2 * extent.cy;
    if (textLeft >= bar.left && textRight <= bar.right)
    {
        draw(barText);
        return;
    }
    if (textLeft >= rest.left && textRight <= rest.right)
    {
        draw(paint.text);
        return;
    }
    // The text changes its colour exactly at the bar's edge.
    auto const drawPart = [&](CRect const & part, COLORREF color) {
        ClipScope const clip(dc, part);
        draw(color);
    };
    drawPart(bar, barText);
    drawPart(rest, paint.text);
}
} // namespace cell_painters
