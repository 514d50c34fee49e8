#pragma once
// Lists whose single cells are painted on a picture of the test's own, as the native list has them painted:
//
//     class ListPaintCheck : public tests::ListPaintTest {};
//
//     TEST_F(ListPaintCheck, ...)
//     {
//         list.SetCheckbox(1, 2, XLC_CHECKED);
//         Paint(1, 2);
//         EXPECT_EQ(canvas.Pixel(...), ...);
//     }
//
// The list has 3 columns of 60 pixels and 4 rows without texts, 20 pixels high, and two small images of 16 by 19, one
// red, one green. The picture has the list's client coordinates and is `Untouched` before painting. Its font is not
// smoothed, so that a text has no other colour than its own.

#include <memory>

#include "Bitmap.h"
#include "ListTestHost.h"

namespace tests
{
class ListPaintTest : public testing::Test
{
protected:
    static constexpr COLORREF untouched = RGB(1, 2, 3);
    static constexpr COLORREF pure_red = RGB(255, 0, 0);
    static constexpr COLORREF pure_green = RGB(0, 255, 0);
    static constexpr COLORREF trough = 0xE0E0E0;
    static constexpr COLORREF check_frame = 0x996633;
    static constexpr COLORREF check_mark = 0x339933;
    static constexpr COLORREF cross_mark = 0x333399;
    static constexpr int row_height = 20;
    static constexpr int column_width = 60;
    static constexpr int image_width = 16;
    static constexpr int image_height = 19;
    /// The header's room left and right of an item's content.
    static constexpr int spacing = 6;
    static constexpr int padding = 5;
    static constexpr int box_size = 13;

    static constexpr DWORD list_style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT;

    explicit ListPaintTest(DWORD style = list_style);
    ~ListPaintTest() override;

    void SetUp() override;

    CRect Cell(int row, int col);
    XLISTCTRLDATA & Data(int row, int col) { return *m_list.GetRowItemDataDirect(row, col); }
    /// What the native list sends for the stage; the item word is that of the row.
    NMLVCUSTOMDRAW Notification(DWORD stage, int row, int col);
    /// Paints one cell on the picture, which is untouched before; what the list answers.
    LRESULT Paint(int row, int col);
    /// The same without clearing the picture.
    LRESULT PaintOver(int row, int col);
    /// A copy of part of the picture.
    std::unique_ptr<Canvas> Copy(CRect const & part);

    /// The row alone is selected, and the list has the focus or not.
    void Select(int row, bool focus);

    int Count(COLORREF colour, CRect const & rect) const { return m_canvas.Count(colour, rect); }
    /// The bounds of a colour within a rectangle, relative to it.
    CRect Bounds(COLORREF colour, CRect const & rect) const;
    /// Whether only pixels within the rectangle were painted.
    testing::AssertionResult OnlyWithin(CRect const & rect) const;

    ListHost m_host;
    TestList & m_list = m_host.list;
    Canvas m_canvas;

private:
    CImageList m_images;
    CFont m_font;
    CFont * m_formerFont = nullptr;
};
} // namespace tests
