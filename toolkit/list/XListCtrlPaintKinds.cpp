#include "list/XListCtrl.h"

#include <algorithm>
#include <string>

#include "frame/GdiplusModule.h"
#include "list/CheckMarks.h"

namespace
{
constexpr COLORREF trough_color = 0xE0E0E0;

/// The text of a cell, fetched with one message where it has no more than the usual length.
class CellText
{
public:
    CellText(CListCtrl const & list, int row, int col)
        : m_length(list.GetItemText(row, col, m_short, usual_length)),
          m_text(m_short)
    {
        for (int room = usual_length; m_length >= room - 1 && room < longest; m_text = m_long.data())
        {
            room *= 2;
            m_long.resize(static_cast<std::size_t>(room));
            m_length = list.GetItemText(row, col, m_long.data(), room);
        }
    }
    CellText(CellText const &) = delete;
    CellText & operator=(CellText const &) = delete;

    bool IsEmpty() const { return m_length <= 0; }
    void Draw(CDC & dc, CRect rect, UINT format) const
    {
        if (!rect.IsRectEmpty())
            dc.DrawText(m_text, m_length, &rect, format);
    }

private:
    static constexpr int usual_length = 256;
    static constexpr int longest = 1 << 24;

    wchar_t m_short[usual_length];
    std::wstring m_long;
    int m_length;
    wchar_t const * m_text;
};

/// Selects a bold or underlined form of the present font for the length of a scope.
class FontScope
{
public:
    FontScope(CDC & dc, bool bold, bool underline) : m_dc(dc)
    {
        CFont * const present = bold || underline ? dc.GetCurrentFont() : nullptr;
        LOGFONTW font = {};
        if (present == nullptr || present->GetLogFont(&font) == 0)
            return;
        if (bold)
            font.lfWeight = FW_BOLD;
        if (underline)
            font.lfUnderline = TRUE;
        if (m_font.CreateFontIndirect(&font))
            m_former = dc.SelectObject(&m_font);
    }
    ~FontScope()
    {
        if (m_former != nullptr)
            m_dc.SelectObject(m_former);
    }
    FontScope(FontScope const &) = delete;
    FontScope & operator=(FontScope const &) = delete;

private:
    CDC & m_dc;
    CFont m_font;
    CFont * m_former = nullptr;
};

/// Clips to a rectangle, within the present clip, for the length of a scope.
class ClipScope
{
public:
    ClipScope(CDC & dc, CRect const & rect) : m_dc(dc.GetSafeHdc()), m_former(::CreateRectRgn(0, 0, 0, 0))
    {
        m_clipped = ::GetClipRgn(m_dc, m_former) == 1;
        dc.IntersectClipRect(rect.IsRectEmpty() ? CRect(0, 0, 0, 0) : rect);
    }
    ~ClipScope()
    {
        ::SelectClipRgn(m_dc, m_clipped ? m_former : nullptr);
        ::DeleteObject(m_former);
    }
    ClipScope(ClipScope const &) = delete;
    ClipScope & operator=(ClipScope const &) = delete;

private:
    HDC m_dc;
    HRGN m_former;
    bool m_clipped = false;
};

/// Gives an image list another background colour for the length of a scope.
class ImageBackgroundScope
{
public:
    ImageBackgroundScope(CImageList & images, COLORREF color) : m_images(images), m_former(images.SetBkColor(color)) {}
    ~ImageBackgroundScope() { m_images.SetBkColor(m_former); }
    ImageBackgroundScope(ImageBackgroundScope const &) = delete;
    ImageBackgroundScope & operator=(ImageBackgroundScope const &) = delete;

private:
    CImageList & m_images;
    COLORREF m_former;
};

void SetTextColors(CDC & dc, COLORREF text, COLORREF background)
{
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(text);
    dc.SetBkColor(background);
}

Gdiplus::Color ToColor(COLORREF color)
{
    return Gdiplus::Color(GetRValue(color), GetGValue(color), GetBValue(color));
}

bool NothingToDraw(CRect const & rect, CDC const * dc, XLISTCTRLDATA const * cells)
{
    return rect.IsRectEmpty() || dc == nullptr || cells == nullptr;
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
void PaintArrow(CDC & dc, CPoint box)
{
    constexpr float inset = 3.0f;
    constexpr float half_width = 4.0f;
    constexpr float height = 7.0f;
    constexpr float line_width = 0.7f;

    if (!StartGdiplus())
        return;
    float const x = static_cast<float>(box.x) + inset;
    float const y = static_cast<float>(box.y) + inset;
    Gdiplus::Color const color(180, 51, 153, 51);

    Gdiplus::GraphicsPath path;
    path.AddLine(x, y, x + half_width, y + height);
    path.AddLine(x + half_width, y + height, x + 2 * half_width, y);
    path.AddLine(x + 2 * half_width, y, x, y);
    path.CloseFigure();

    Gdiplus::Graphics graphics(dc.GetSafeHdc());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    Gdiplus::Pen const pen(color, line_width);
    graphics.DrawPath(&pen, &path);
    Gdiplus::LinearGradientBrush const brush(Gdiplus::PointF(x + half_width, y),
                                             Gdiplus::PointF(x + half_width, y + height),
                                             Gdiplus::Color(0, 255, 255, 255), color);
    graphics.FillPath(&brush, &path);
}
} // namespace

int CXListCtrl::DrawImage(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect rect,
                          XLISTCTRLDATA * cells)
{
    if (dc == nullptr || cells == nullptr || rect.Width() <= 0 || cells[col].imageIndex < 0)
        return 0;
    CImageList * const images = GetImageList(LVSIL_SMALL);
    if (images == nullptr)
        return 0;

    XLISTCTRLDATA const & cell = cells[col];
    FillCell(row, col, *dc, text, background, rect, cell);
    int const spacing = m_header.GetSpacing();
    rect.left += spacing;

    CSize const size = ImageSize(*images, cell.imageIndex);
    CPoint const position(rect.left, rect.CenterPoint().y - (size.cy >> 1));
    CSize const drawn(std::min<LONG>(size.cx, rect.Width()), std::min<LONG>(size.cy, rect.Height()));
    // A size of 0 would stand for that of the whole image.
    if (drawn.cx > 0 && drawn.cy > 0)
    {
        ImageBackgroundScope const imageBackground(*images, background);
        images->DrawIndirect(dc, cell.imageIndex, position, drawn, CPoint(0, 0));
    }
    return size.cx + spacing;
}

void CXListCtrl::DrawTextW(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                           XLISTCTRLDATA * cells)
{
    if (NothingToDraw(rect, dc, cells))
        return;
    XLISTCTRLDATA const & cell = cells[col];
    FillCell(row, col, *dc, text, background, rect, cell);
    CellText const cellText(*this, row, col);
    if (cellText.IsEmpty())
        return;

    FontScope const font(*dc, (cell.properties & XLP_BOLD) != 0, (cell.properties & XLP_UNDERLINE) != 0);
    SetTextColors(*dc, text, background);
    CRect room = rect;
    room.DeflateRect(m_cellPadding, 0);
    cellText.Draw(*dc, room, TextFormat(col));
}

void CXListCtrl::DrawCheckbox(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                              XLISTCTRLDATA * cells)
{
    constexpr int box_left = 9;
    constexpr int box_gap = 4;

    if (NothingToDraw(rect, dc, cells))
        return;
    XLISTCTRLDATA const & cell = cells[col];
    FillCell(row, col, *dc, text, background, rect, cell);
    CellText const cellText(*this, row, col);

    CRect box(CPoint(rect.left + box_left, rect.top + TopOffset(rect, check_marks::box_size)),
              CSize(check_marks::box_size, check_marks::box_size));
    if (cellText.IsEmpty())
        box.MoveToX(rect.left + rect.Width() / 2 - check_marks::box_size / 2 - 1);

    bool const enabled = (cell.properties & XLP_ENABLED) != 0;
    if (cell.checkedState >= XLC_UNCHECKED && cell.checkedState <= XLC_CROSSED)
        DrawCheckboxBox(box, cell.checkedState, enabled, dc);
    else if (cell.checkedState == XLC_RADIO_ON || cell.checkedState == XLC_RADIO_OFF)
        DrawRadioBox(box, cell.checkedState, enabled, dc);

    if (cellText.IsEmpty())
        return;
    SetTextColors(*dc, text, background);
    // It is meant that an ampersand in this text marks a mnemonic, and that the column's alignment does not count.
    cellText.Draw(*dc, CRect(box.right + box_gap, rect.top, rect.right, rect.bottom),
                  DT_SINGLELINE | DT_VCENTER | (m_ellipsis ? DT_END_ELLIPSIS : 0));
}

void CXListCtrl::DrawCheckboxBox(CRect & box, int state, bool enabled, CDC * dc)
{
    if (box.IsRectEmpty() || dc == nullptr)
        return;
    check_marks::DrawFrame(*dc, box, enabled ? m_colorCheckFrame : m_colorDisabled);
    if (state == XLC_CHECKED)
        check_marks::DrawTick(*dc, box, enabled ? m_colorCheckMark : m_colorDisabled);
    else if (state == XLC_CROSSED)
        check_marks::DrawCross(*dc, box, check_marks::cross_inset_cell,
                               enabled ? check_marks::cross_color : m_colorDisabled);
}

void CXListCtrl::DrawRadioBox(CRect & box, int state, bool enabled, CDC * dc)
{
    constexpr float line_width = 1.0f;

    if (box.IsRectEmpty() || dc == nullptr || !StartGdiplus())
        return;
    CRect ring = box;
    ring.DeflateRect(1, 1);
    int const diameter = ring.Width();

    Gdiplus::GraphicsPath path;
    path.AddEllipse(static_cast<INT>(ring.left), static_cast<INT>(ring.top), diameter, diameter);
    Gdiplus::Graphics graphics(dc->GetSafeHdc());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    Gdiplus::Pen const pen(ToColor(enabled ? m_colorCheckFrame : m_colorDisabled), line_width);
    graphics.DrawPath(&pen, &path);
    // Of a disabled one it is meant that it doesn't show whether it's on.
    if (!enabled)
        return;

    if (state != XLC_RADIO_ON)
    {
        Gdiplus::SolidBrush const white(Gdiplus::Color(255, 255, 255));
        graphics.FillPath(&white, &path);
        return;
    }
    Gdiplus::PathGradientBrush ball(&path);
    ball.SetCenterPoint(Gdiplus::Point(ring.left + diameter / 3, ring.top + diameter / 3));
    ball.SetCenterColor(Gdiplus::Color(150, 255, 150));
    Gdiplus::Color const surround = ToColor(m_colorCheckMark);
    INT count = 1;
    ball.SetSurroundColors(&surround, &count);
    graphics.FillPath(&ball, &path);
}

void CXListCtrl::DrawComboBox(int row, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                              XLISTCTRLDATA * cells)
{
    constexpr int arrow_size = 13;
    constexpr int arrow_height = 11;

    if (NothingToDraw(rect, dc, cells))
        return;
    XLISTCTRLDATA const & cell = cells[col];
    FillCell(row, col, *dc, text, background, rect, cell);

    CRect room = rect;
    // It is meant that a disabled cell has no padding either.
    if ((cell.properties & XLP_ENABLED) != 0)
    {
        room.DeflateRect(m_cellPadding, 0);
        room.right -= arrow_size;
        PaintArrow(*dc, CPoint(room.right, rect.top + TopOffset(rect, arrow_height)));
    }

    CellText const cellText(*this, row, col);
    if (cellText.IsEmpty())
        return;
    SetTextColors(*dc, text, background);
    cellText.Draw(*dc, room, TextFormat(col));
}

void CXListCtrl::DrawProgress(int, int col, CDC * dc, COLORREF text, COLORREF background, CRect & rect,
                              XLISTCTRLDATA * cells)
{
    constexpr long long percent = 100;
    // The end of the device space: nothing beyond it can be seen.
    constexpr long long farthest = (1 << 27) - 1;

    if (dc == nullptr || cells == nullptr)
        return;
    XLISTCTRLDATA const & cell = cells[col];
    CRect trough = rect;
    --trough.bottom;
    ++trough.left;
    if (trough.IsRectEmpty())
        return;
    dc->FillSolidRect(trough, trough_color);
    dc->Draw3dRect(trough, RGB(0, 0, 0), m_colorBarFrame);
    // It is meant that a bar at 0 shows no text either.
    if (cell.progressValue <= 0)
        return;

    CRect bar = trough;
    bar.DeflateRect(1, 1, 0, 1);
    CRect rest = bar;
    long long const fill = static_cast<long long>(bar.Width()) * cell.progressValue / percent;
    // Above 100 it is meant to reach past the cell.
    bar.right = static_cast<LONG>(std::min(bar.left + fill - 1, farthest));
    rest.left = bar.right;
    if (!bar.IsRectEmpty())
        dc->FillSolidRect(bar, background);
    CRect room = trough;
    room.DeflateRect(1, 1);
    if (!cell.progressShowText || room.IsRectEmpty())
        return;

    CString caption;
    if (cell.progressFormat.IsEmpty())
        caption.Format(L"%d%%", cell.progressValue);
    else
        caption.Format(cell.progressFormat, cell.progressDisplayValue);
    dc->SetBkMode(TRANSPARENT);
    auto const draw = [&](COLORREF color) {
        dc->SetTextColor(color);
        dc->DrawText(caption, &room, DT_CENTER | DT_SINGLELINE | DT_VCENTER);
    };
    // A text that keeps its distance from the bar's edge, italics and the like included, needs no clipping.
    CSize const extent = dc->GetTextExtent(caption);
    int const textLeft = room.left + (room.Width() - extent.cx) / 2 - extent.cy;
    int const textRight = textLeft + extent.cx + 2 * extent.cy;
    if (textLeft >= bar.left && textRight <= bar.right)
    {
        draw(trough_color);
        return;
    }
    if (textLeft >= rest.left && textRight <= rest.right)
    {
        draw(text);
        return;
    }
    // The text changes its colour exactly at the bar's edge.
    auto const drawPart = [&](CRect const & part, COLORREF color) {
        ClipScope const clip(*dc, part);
        draw(color);
    };
    drawPart(bar, trough_color);
    drawPart(rest, text);
}
