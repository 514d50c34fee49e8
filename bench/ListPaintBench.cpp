// Painting a page of a report list: text cells beside a native list that shows the same, other kinds beside a native
// list whose owner draws each cell with the same calls by hand.

#include <afxcmn.h>
#include <gdiplus.h>

#include <functional>
#include <string>
#include <vector>

#include "ControlBench.h"
#include "list/XListCtrl.h"
#include "Measure.h"

namespace
{
using bench::Nanoseconds;
using bench::PumpAll;

constexpr int row_count = 40;
constexpr int column_count = 8;
constexpr int column_width = 74;
constexpr int cell_count = row_count * column_count;
constexpr int list_width = column_count * column_width + 10;
constexpr int list_height = 900;
constexpr DWORD list_style = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS;

std::wstring TextOf(int row, int column)
{
    return L"val " + std::to_wstring(row * column_count + column);
}

/// Draws a cell by hand: row, column, its place.
using HandDrawing = std::function<void(CDC &, int, int, CRect const &)>;

/// A native list that has each cell drawn by hand, if there is a drawing.
class HandDrawnList : public CListCtrl
{
public:
    HandDrawing m_draw;

protected:
    afx_msg void OnCustomDraw(NMHDR * header, LRESULT * result)
    {
        auto & draw = *reinterpret_cast<NMLVCUSTOMDRAW *>(header);
        *result = CDRF_DODEFAULT;
        if (!m_draw)
            return;
        if (draw.nmcd.dwDrawStage != (CDDS_ITEMPREPAINT | CDDS_SUBITEM))
        {
            *result = CDRF_NOTIFYSUBITEMDRAW;
            return;
        }
        auto const row = static_cast<int>(draw.nmcd.dwItemSpec);
        CRect cell;
        GetSubItemRect(row, draw.iSubItem, LVIR_BOUNDS, cell);
        cell.right = cell.left + column_width;
        m_draw(*CDC::FromHandle(draw.nmcd.hdc), row, draw.iSubItem, cell);
        *result = CDRF_SKIPDEFAULT;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(HandDrawnList, CListCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &HandDrawnList::OnCustomDraw)
END_MESSAGE_MAP()

/// A window with a list of the toolkit on the left and a native one on the right, both filled with the same texts.
class Page : public CWnd
{
public:
    CXListCtrl m_ours;
    CListCtrl m_plain;
    HandDrawnList m_byHand;
    CListCtrl & m_native;

    explicit Page(HandDrawing draw = {}) : m_native(draw ? m_byHand : m_plain)
    {
        m_byHand.m_draw = std::move(draw);
        CreateEx(0, AfxRegisterWndClass(0), L"list", WS_POPUP | WS_VISIBLE, 0, 0, 2 * list_width, list_height, nullptr,
                 nullptr);
        m_ours.Create(list_style, CRect(0, 0, list_width, list_height), this, 7);
        m_native.Create(list_style, CRect(list_width, 0, 2 * list_width, list_height), this, 8);
        for (int column = 0; column < column_count; ++column)
        {
            m_ours.AddColumn(L"column", LVCFMT_LEFT, column_width);
            m_native.InsertColumn(column, L"column", LVCFMT_LEFT, column_width, column);
        }
        for (int row = 0; row < row_count; ++row)
        {
            m_ours.AddItem(TextOf(row, 0).c_str(), nullptr, row);
            m_native.InsertItem(row, TextOf(row, 0).c_str());
            for (int column = 1; column < column_count; ++column)
            {
                m_ours.SetItemText(row, column, TextOf(row, column).c_str());
                m_native.SetItemText(row, column, TextOf(row, column).c_str());
            }
        }
        PumpAll();
    }
    ~Page() override { DestroyWindow(); }

    /// Whether both lists show all rows and have rows of the same height.
    bool IsComparable() const
    {
        CRect ours;
        CRect native;
        CRect client;
        m_ours.GetItemRect(row_count - 1, &ours, LVIR_BOUNDS);
        m_native.GetItemRect(row_count - 1, &native, LVIR_BOUNDS);
        m_ours.GetClientRect(&client);
        return ours.bottom <= client.bottom && ours.Size() == native.Size() && ours.top == native.top;
    }

    /// The whole list, without its header, in the window.
    static double Paint(CWnd & list)
    {
        PumpAll();
        return Nanoseconds([&] {
            list.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_NOCHILDREN);
            ::GdiFlush();
        });
    }
};

bool PaintAndReport(Page & page, char const * name, double goal)
{
    if (!page.IsComparable())
    {
        std::printf("%s: the two lists do not show the same page\n", name);
        return false;
    }
    return bench::Report(
        name,
        bench::Compare([&page] { return Page::Paint(page.m_ours); }, [&page] { return Page::Paint(page.m_native); }),
        cell_count, goal);
}

/// A page of cells that change(list, row, column) has made of text cells, beside the same drawn by hand. Images, where
/// there are some, are given to both lists, so that their rows have the same height.
template <class Change>
bool PageOf(char const * name, Change && change, HandDrawing draw, CImageList * images = nullptr)
{
    Page page(std::move(draw));
    if (images != nullptr)
    {
        page.m_ours.SetImageList(images, LVSIL_SMALL);
        page.m_native.SetImageList(images, LVSIL_SMALL);
    }
    page.m_ours.SetBatchInsertMode(true);
    for (int row = 0; row < row_count; ++row)
    {
        for (int column = 0; column < column_count; ++column)
            change(page.m_ours, row, column);
    }
    page.m_ours.SetBatchInsertMode(false);
    PumpAll();
    return PaintAndReport(page, name, 1.1);
}

// The drawings by hand.

constexpr int box_size = 13;
constexpr COLORREF white = RGB(255, 255, 255);

int Middle(CRect const & cell, int height)
{
    return cell.top + (cell.Height() - height) / 2;
}

void DrawLabel(CDC & dc, std::wstring const & text, CRect cell, UINT format)
{
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(RGB(0, 0, 0));
    dc.SetBkColor(white);
    dc.DrawText(text.c_str(), static_cast<int>(text.size()), &cell, format | DT_SINGLELINE | DT_VCENTER);
}

void DrawPaddedLabel(CDC & dc, std::wstring const & text, CRect cell)
{
    constexpr int padding = 5;
    cell.DeflateRect(padding, 0);
    DrawLabel(dc, text, cell, DT_NOPREFIX | DT_END_ELLIPSIS);
}

void DrawSlanted(CDC & dc, int x1, int y1, int x2, int y2)
{
    dc.MoveTo(x1, y1);
    dc.LineTo(x2, y2);
}

void DrawCheck(CDC & dc, int row, int column, CRect const & cell)
{
    dc.FillSolidRect(cell, white);
    CRect const box(CPoint(cell.left + 9, Middle(cell, box_size)), CSize(box_size, box_size));
    CBrush brush(0x996633);
    dc.FrameRect(box, &brush);
    int const state = (row + column) % 3;
    if (state != 0)
    {
        CPen pen(PS_SOLID, 1, state == 1 ? 0x339933 : 0x333399);
        CPen * const former = dc.SelectObject(&pen);
        if (state == 1)
        {
            int const offsets[] = {0, 1, 2, 3, 4, 3, 2};
            for (int step = 0; step < 7; ++step)
            {
                int const x = box.left + 9 - step;
                int const y = box.top + 3 + offsets[step];
                DrawSlanted(dc, x, y, x, y + 3);
            }
        }
        else
        {
            CRect const cross(box.left + 3, box.top + 3, box.right - 3, box.bottom - 3);
            DrawSlanted(dc, cross.left, cross.top, cross.right, cross.bottom);
            DrawSlanted(dc, cross.left + 1, cross.top, cross.right + 1, cross.bottom);
            DrawSlanted(dc, cross.right - 1, cross.top, cross.left - 1, cross.bottom);
            DrawSlanted(dc, cross.right, cross.top, cross.left, cross.bottom);
        }
        dc.SelectObject(former);
    }
    DrawLabel(dc, TextOf(row, column), CRect(box.right + 4, cell.top, cell.right, cell.bottom), DT_END_ELLIPSIS);
}

void DrawRadio(CDC & dc, int row, int column, CRect const & cell)
{
    dc.FillSolidRect(cell, white);
    CRect ring(CPoint(cell.left + 9, Middle(cell, box_size)), CSize(box_size, box_size));
    int const textLeft = ring.right + 4;
    ring.DeflateRect(1, 1);
    {
        Gdiplus::GraphicsPath path;
        path.AddEllipse(static_cast<INT>(ring.left), static_cast<INT>(ring.top), ring.Width(), ring.Width());
        Gdiplus::Graphics graphics(dc.GetSafeHdc());
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        Gdiplus::Pen const pen(Gdiplus::Color(51, 102, 153), 1.0f);
        graphics.DrawPath(&pen, &path);
        if (row == column)
        {
            Gdiplus::PathGradientBrush ball(&path);
            ball.SetCenterPoint(Gdiplus::Point(ring.left + ring.Width() / 3, ring.top + ring.Width() / 3));
            ball.SetCenterColor(Gdiplus::Color(150, 255, 150));
            Gdiplus::Color const surround(51, 153, 51);
            INT count = 1;
            ball.SetSurroundColors(&surround, &count);
            graphics.FillPath(&ball, &path);
        }
        else
        {
            Gdiplus::SolidBrush const inside(Gdiplus::Color(255, 255, 255));
            graphics.FillPath(&inside, &path);
        }
    }
    DrawLabel(dc, TextOf(row, column), CRect(textLeft, cell.top, cell.right, cell.bottom), DT_END_ELLIPSIS);
}

void DrawCombo(CDC & dc, int row, int, CRect const & cell)
{
    dc.FillSolidRect(cell, white);
    CRect room = cell;
    room.DeflateRect(5, 0);
    room.right -= box_size;
    {
        float const x = static_cast<float>(room.right) + 3.0f;
        float const y = static_cast<float>(Middle(cell, 11)) + 3.0f;
        Gdiplus::Color const color(180, 51, 153, 51);
        Gdiplus::GraphicsPath path;
        path.AddLine(x, y, x + 4.0f, y + 7.0f);
        path.AddLine(x + 4.0f, y + 7.0f, x + 8.0f, y);
        path.AddLine(x + 8.0f, y, x, y);
        path.CloseFigure();
        Gdiplus::Graphics graphics(dc.GetSafeHdc());
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        Gdiplus::Pen const pen(color, 0.7f);
        graphics.DrawPath(&pen, &path);
        Gdiplus::LinearGradientBrush const brush(Gdiplus::PointF(x + 4.0f, y), Gdiplus::PointF(x + 4.0f, y + 7.0f),
                                                 Gdiplus::Color(0, 255, 255, 255), color);
        graphics.FillPath(&brush, &path);
    }
    DrawLabel(dc, row % 2 == 0 ? L"first" : L"second", room, DT_NOPREFIX | DT_END_ELLIPSIS);
}

int BarOf(int row, int column)
{
    return (row * 13 + column * 7) % 101;
}

void DrawBar(CDC & dc, int row, int column, CRect const & cell)
{
    CRect trough(cell.left + 1, cell.top, cell.right, cell.bottom - 1);
    dc.FillSolidRect(trough, 0xE0E0E0);
    dc.Draw3dRect(trough, RGB(0, 0, 0), ::GetSysColor(COLOR_BTNSHADOW));
    int const value = BarOf(row, column);
    if (value == 0)
        return;
    CRect bar(trough.left + 1, trough.top + 1, trough.right, trough.bottom - 1);
    CRect rest = bar;
    bar.right = bar.left + bar.Width() * value / 100 - 1;
    rest.left = bar.right;
    dc.FillSolidRect(bar, ::GetSysColor(COLOR_HIGHLIGHT));
    trough.DeflateRect(1, 1);
    CString caption;
    caption.Format(L"%d%%", value);
    dc.SetBkMode(TRANSPARENT);
    auto const draw = [&](CRect const & part, COLORREF color) {
        CRgn clip;
        clip.CreateRectRgnIndirect(part);
        dc.SelectClipRgn(&clip);
        dc.SetTextColor(color);
        dc.DrawText(caption, &trough, DT_CENTER | DT_SINGLELINE | DT_VCENTER);
    };
    draw(bar, 0xE0E0E0);
    draw(rest, RGB(0, 0, 0));
    dc.SelectClipRgn(nullptr);
}

void DrawWash(CDC & dc, int row, int column, CRect const & cell)
{
    dc.FillSolidRect(cell, white);
    {
        Gdiplus::RectF const area(static_cast<float>(cell.left + 1), static_cast<float>(cell.top + 2),
                                  static_cast<float>(cell.Width() - 2), static_cast<float>(cell.Height() - 4));
        Gdiplus::Color const colors[] = {Gdiplus::Color(255, 255, 200, 120), Gdiplus::Color(240, 255, 200, 120),
                                         Gdiplus::Color(0, 255, 200, 120)};
        Gdiplus::REAL const positions[] = {0.0f, 0.3f, 1.0f};
        Gdiplus::Graphics graphics(dc.GetSafeHdc());
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        Gdiplus::LinearGradientBrush brush(Gdiplus::PointF(area.X, area.Y),
                                           Gdiplus::PointF(area.X + 1.05f * area.Width, area.Y), colors[0], colors[2]);
        brush.SetInterpolationColors(colors, positions, 3);
        graphics.FillRectangle(&brush, area);
    }
    DrawPaddedLabel(dc, TextOf(row, column), cell);
}

void DrawPicture(CImageList & images, CDC & dc, int row, int column, CRect cell)
{
    constexpr int image_size = 16;
    constexpr int spacing = 6;
    dc.FillSolidRect(cell, white);
    COLORREF const former = images.SetBkColor(white);
    images.DrawIndirect(&dc, 0, CPoint(cell.left + spacing, cell.CenterPoint().y - image_size / 2),
                        CSize(image_size, image_size), CPoint(0, 0));
    images.SetBkColor(former);
    cell.left += image_size + spacing;
    dc.FillSolidRect(cell, white);
    DrawPaddedLabel(dc, TextOf(row, column), cell);
}
} // namespace

bool bench::PaintingAPageOfText()
{
    bool met = false;
    {
        Page page;
        met = PaintAndReport(page, "painting 40 rows of 8 text cells beside the native list, a cell", 1.0);
    }
    auto const buffer = [](Page & page) {
        for (CListCtrl * const list : {static_cast<CListCtrl *>(&page.m_ours), &page.m_native})
            list->SetExtendedStyle(list->GetExtendedStyle() | LVS_EX_DOUBLEBUFFER);
    };
    {
        Page page;
        buffer(page);
        met = PaintAndReport(page, "the same with double-buffered lists, a cell", 1.05) && met;
    }
    // What custom draw costs, and the message that each cell's text takes: the native list of the line above has its
    // texts at hand.
    Page * shown = nullptr;
    Page page([&shown](CDC & dc, int row, int column, CRect cell) {
        if (shown == nullptr)
            return;
        wchar_t text[64];
        shown->m_native.GetItemText(row, column, text, static_cast<int>(std::size(text)));
        dc.FillSolidRect(cell, white);
        DrawPaddedLabel(dc, text, cell);
    });
    shown = &page;
    buffer(page);
    return PaintAndReport(
               page, "the same beside double-buffered cells drawn by hand with their texts asked for, a cell", 1.05) &&
           met;
}

bool bench::PaintingPagesOfOtherKinds()
{
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartupInput const input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    bool met = PageOf(
        "painting check cells beside the same by hand, a cell",
        [](CXListCtrl & list, int row, int column) { list.SetCheckbox(row, column, (row + column) % 3); }, DrawCheck);
    met = PageOf(
              "painting radio cells beside the same by hand, a cell",
              [](CXListCtrl & list, int row, int column) {
                  list.SetRadioButton(row, column, row == column ? XLC_RADIO_ON : XLC_RADIO_OFF);
              },
              DrawRadio) &&
          met;
    met = PageOf(
              "painting combo cells beside the same by hand, a cell",
              [](CXListCtrl & list, int row, int column) {
                  list.SetComboBox(row, column, {{1, L"first"}, {2, L"second"}}, 1 + row % 2, 1);
              },
              DrawCombo) &&
          met;
    met = PageOf(
              "painting progress cells beside the same by hand, a cell",
              [](CXListCtrl & list, int row, int column) {
                  list.SetProgress(row, column, true, nullptr);
                  list.UpdateProgress(row, column, BarOf(row, column), 0);
              },
              DrawBar) &&
          met;
    met = PageOf(
              "painting cells with a wash beside the same by hand, a cell",
              [](CXListCtrl & list, int row, int column) {
                  list.SetItemColors(row, column, RGB(0, 0, 0), white, RGB(255, 200, 120));
              },
              DrawWash) &&
          met;

    CImageList images;
    images.Create(16, 16, ILC_COLOR24, 1, 1);
    CBitmap picture;
    std::vector<COLORREF> const pixels(std::size_t{16} * 16, RGB(20, 120, 200));
    picture.CreateBitmap(16, 16, 1, 32, pixels.data());
    images.Add(&picture, RGB(0, 0, 0));
    met = PageOf(
              "painting cells with an image beside the same by hand, a cell",
              [](CXListCtrl & list, int row, int column) { list.SetItemImage(row, column, 0); },
              [&images](CDC & dc, int row, int column, CRect const & cell) {
                  DrawPicture(images, dc, row, column, cell);
              },
              &images) &&
          met;
    Gdiplus::GdiplusShutdown(token);
    return met;
}
