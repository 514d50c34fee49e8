#include "list_PaintTest.h"

#include <algorithm>

namespace tests
{
namespace
{
constexpr int client_width = 320;
constexpr int client_height = 160;

void AddImage(CImageList & images, int width, int height, COLORREF colour)
{
    CClientDC screen(nullptr);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, width, height);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap * const former = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, width, height, colour);
    memory.SelectObject(former);
    images.Add(&bitmap, CLR_NONE);
}
} // namespace

ListPaintTest::ListPaintTest(DWORD style)
    : host(style, CRect(0, 0, client_width, client_height)),
      canvas(client_width, client_height, untouched)
{
}

ListPaintTest::~ListPaintTest()
{
    if (m_formerFont != nullptr)
        canvas.Dc().SelectObject(m_formerFont);
    list.DestroyWindow();
}

void ListPaintTest::SetUp()
{
    LOGFONTW font = {};
    font.lfHeight = -12;
    font.lfQuality = NONANTIALIASED_QUALITY;
    wcscpy(font.lfFaceName, L"Tahoma");
    ASSERT_TRUE(m_font.CreateFontIndirect(&font));
    m_formerFont = canvas.Dc().SelectObject(&m_font);

    ASSERT_TRUE(m_images.Create(image_width, image_height, ILC_COLOR24, 2, 1));
    AddImage(m_images, image_width, image_height, pure_red);
    AddImage(m_images, image_width, image_height, pure_green);
    list.SetImageList(&m_images, LVSIL_SMALL);

    host.Fill(3, 4);
    for (int col = 0; col < 3; ++col)
        list.CListCtrl::SetColumnWidth(col, column_width);
    for (int row = 0; row < 4; ++row)
        list.SetItemText(row, 0, L"");
    list.SetFullRowSelect();
    ASSERT_EQ(Cell(0, 1).Size(), CSize(column_width, row_height));
}

CRect ListPaintTest::Cell(int row, int col)
{
    CRect rect(0, 0, 0, 0);
    EXPECT_TRUE(list.GetSubItemRect(row, col, LVIR_BOUNDS, rect));
    return rect;
}

NMLVCUSTOMDRAW ListPaintTest::Notification(DWORD stage, int row, int col)
{
    NMLVCUSTOMDRAW draw = {};
    draw.nmcd.hdr = {list.m_hWnd, TestList::id, static_cast<UINT>(NM_CUSTOMDRAW)};
    draw.nmcd.dwDrawStage = stage;
    draw.nmcd.hdc = canvas.Dc().GetSafeHdc();
    draw.nmcd.dwItemSpec = static_cast<DWORD_PTR>(row);
    draw.nmcd.lItemlParam = list.Param(row);
    draw.iSubItem = col;
    return draw;
}

LRESULT ListPaintTest::PaintOver(int row, int col)
{
    NMLVCUSTOMDRAW draw = Notification(CDDS_ITEMPREPAINT | CDDS_SUBITEM, row, col);
    LRESULT result = -1;
    list.OnCustomDraw(&draw.nmcd.hdr, &result);
    return result;
}

LRESULT ListPaintTest::Paint(int row, int col)
{
    canvas.Fill(untouched);
    return PaintOver(row, col);
}

std::unique_ptr<Canvas> ListPaintTest::Copy(CRect const & part)
{
    auto copy = std::make_unique<Canvas>(part.Width(), part.Height());
    ::BitBlt(copy->Dc().GetSafeHdc(), 0, 0, part.Width(), part.Height(), canvas.Dc().GetSafeHdc(), part.left, part.top,
             SRCCOPY);
    return copy;
}

void ListPaintTest::Select(int row, bool focus)
{
    list.SetItemState(-1, 0, LVIS_SELECTED);
    list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    if (focus)
        list.SetFocus();
    else
        host.parent.SetFocus();
    ASSERT_EQ(::GetFocus() == list.m_hWnd, focus);
}

CRect ListPaintTest::Bounds(COLORREF colour, CRect const & rect) const
{
    CRect bounds(rect.right, rect.bottom, rect.left, rect.top);
    for (int y = rect.top; y < rect.bottom; ++y)
    {
        for (int x = rect.left; x < rect.right; ++x)
        {
            if (canvas.Pixel(x, y) != colour)
                continue;
            bounds.left = std::min<LONG>(bounds.left, x);
            bounds.top = std::min<LONG>(bounds.top, y);
            bounds.right = std::max<LONG>(bounds.right, x + 1);
            bounds.bottom = std::max<LONG>(bounds.bottom, y + 1);
        }
    }
    if (bounds.right <= bounds.left)
        return CRect(0, 0, 0, 0);
    bounds.OffsetRect(-rect.left, -rect.top);
    return bounds;
}

testing::AssertionResult ListPaintTest::OnlyWithin(CRect const & rect) const
{
    CRect const painted = canvas.BoundsOfOther(untouched);
    CRect outside;
    outside.UnionRect(painted, rect);
    if (painted.IsRectEmpty() || outside == rect)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "painted was (" << painted.left << ", " << painted.top << ") to ("
                                       << painted.right << ", " << painted.bottom << "), the cell is (" << rect.left
                                       << ", " << rect.top << ") to (" << rect.right << ", " << rect.bottom << ")";
}
} // namespace tests
