// How the list's header paints what an item holds: images, bitmaps and titles.

#include <utility>

#include "GdiHandleCount.h"
#include "list_HeaderTest.h"

namespace
{
using namespace list_header;
using tests::Canvas;

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

/// A bitmap of one colour that is selected nowhere.
class Picture
{
public:
    Picture(int width, int height, COLORREF color)
    {
        CClientDC screen(nullptr);
        m_bitmap.CreateCompatibleBitmap(&screen, width, height);
        Fill(CRect(0, 0, width, height), color);
    }

    void Fill(CRect const & rect, COLORREF color)
    {
        CDC memory;
        memory.CreateCompatibleDC(nullptr);
        CBitmap * const former = memory.SelectObject(&m_bitmap);
        memory.FillSolidRect(rect, color);
        memory.SelectObject(former);
    }
    HBITMAP Bitmap() { return m_bitmap; }

private:
    CBitmap m_bitmap;
};

/// Keeps what is drawn as text.
class TextRecorder : public CDC
{
public:
    struct Text
    {
        std::wstring text;
        CRect rect;
        UINT format;
        COLORREF color;
    };

    explicit TextRecorder(Canvas & canvas) { Attach(canvas.Dc().m_hDC); }
    ~TextRecorder() override { Detach(); }

    int DrawText(LPCTSTR text, int length, LPRECT rect, UINT format) override
    {
        m_texts.push_back({text, *rect, format, GetTextColor()});
        return CDC::DrawText(text, length, rect, format);
    }

    std::vector<Text> m_texts;
};

// --- Image list ---

/// Three images, 10 by 8: red, blue and a green one.
class ListHeaderImages : public HeaderPaintTest
{
protected:
    void SetUp() override
    {
        HeaderPaintTest::SetUp();
        ASSERT_TRUE(m_images.Create(10, 8, ILC_COLOR24, 0, 1));
        for (COLORREF color : {red, blue, RGB(0, 255, 0)})
        {
            Picture picture(10, 8, color);
            ASSERT_GE(::ImageList_Add(m_images, picture.Bitmap(), nullptr), 0);
        }
        m_header.SetImageList(&m_images);
        m_header.SetUseImageList(true);
    }
    void TearDown() override
    {
        m_header.SetImageList(nullptr);
        HeaderPaintTest::TearDown();
    }

    CImageList m_images;
};

TEST_F(ListHeaderImages, AnImageTakesTheMarksPlace)
{
    Add(60, 1);
    Paint(m_canvas);
    // (8 + 1) / 2 above the centre of 24.
    EXPECT_EQ(m_canvas.BoundsOf(blue), CRect(6, 8, 16, 16));
    EXPECT_EQ(m_canvas.Count(blue), 80);
    EXPECT_EQ(m_canvas.Count(frame_color), 0);
}

TEST_F(ListHeaderImages, ImageZeroCannotBeShown)
{
    Add(60, 0);
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.Count(red), 0);
}

TEST_F(ListHeaderImages, AnImageIsCutToTheRoomButKeepsItsWidthForTheTitle)
{
    Add(2 * spacing + 4, 1);
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.BoundsOf(blue), CRect(6, 8, 10, 16));
    HDITEM item = {};
    item.iImage = 2;
    EXPECT_EQ(m_header.DrawItemImage(&m_canvas.Dc(), CRect(0, 0, 4, 20), &item, false), 10);
}

TEST_F(ListHeaderImages, ANumberFromSevenOnIsAnImageToo)
{
    for (int image = 3; image < 8; ++image)
    {
        Picture picture(10, 8, RGB(255, 0, image));
        ASSERT_EQ(::ImageList_Add(m_images, picture.Bitmap(), nullptr), image);
    }
    Add(60, 7);
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.Count(RGB(255, 0, 7)), 80);
}

TEST_F(ListHeaderImages, TheListsBackgroundIsRestored)
{
    m_images.SetBkColor(RGB(1, 2, 3));
    Add(60, 1);
    Paint(m_canvas);
    EXPECT_EQ(m_images.GetBkColor(), RGB(1, 2, 3));
}

TEST_F(ListHeaderImages, TransparentPartsShowTheContextsBackground)
{
    CImageList masked;
    ASSERT_TRUE(masked.Create(10, 8, ILC_COLOR24 | ILC_MASK, 0, 1));
    masked.SetBkColor(RGB(1, 2, 3));
    for (int image = 0; image < 2; ++image)
    {
        Picture picture(10, 8, red);
        picture.Fill(CRect(0, 0, 5, 8), white);
        ASSERT_EQ(::ImageList_AddMasked(masked, picture.Bitmap(), white), image);
    }
    m_header.SetImageList(&masked);
    Add(60, 1);
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.BoundsOf(red), CRect(11, 8, 16, 16));
    EXPECT_EQ(m_canvas.Count(::GetSysColor(COLOR_BTNFACE), CRect(6, 8, 11, 16)), 40);
    m_header.SetImageList(nullptr);
}

TEST_F(ListHeaderImages, WithoutTheListTheBuiltInMarksShow)
{
    Add(60, XHC_CHECKED);
    m_header.SetImageList(nullptr);
    Paint(m_canvas);
    Canvas marks(header_width, header_height);
    m_header.SetUseImageList(false);
    Paint(marks);
    EXPECT_EQ(marks.Count(frame_color), 4 * box_size - 4);
    EXPECT_TRUE(SamePixels(m_canvas, marks));
}

TEST_F(ListHeaderImages, UnusedTheListLeavesTheBuiltInMarks)
{
    Add(60, XHC_UNCHECKED);
    m_header.SetUseImageList(false);
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.Count(frame_color), 4 * box_size - 4);
    EXPECT_EQ(m_canvas.Count(blue), 0);
}

// --- Bitmap and title ---

class ListHeaderContent : public HeaderPaintTest
{
protected:
    /// What is drawn as text for the item.
    std::vector<TextRecorder::Text> Draw(HDITEM item)
    {
        m_canvas.Fill(white);
        TextRecorder recorder(m_canvas);
        m_header.CXHeaderCtrl::DrawHeaderItem(&recorder, m_room, &item);
        return recorder.m_texts;
    }
    HDITEM Titled(int format)
    {
        HDITEM item = {};
        item.mask = HDI_TEXT | HDI_FORMAT | HDI_IMAGE | HDI_BITMAP;
        item.fmt = format;
        item.pszText = m_title;
        return item;
    }

    CRect const m_room{10, 2, 110, 22};
    TCHAR m_title[8] = L"title";
    Picture m_picture{12, 7, red};
};

TEST_F(ListHeaderContent, WithoutFormatNothingIsDrawn)
{
    HDITEM item = Titled(HDF_STRING);
    item.mask &= ~HDI_FORMAT;
    item.iImage = XHC_CHECKED;
    EXPECT_TRUE(Draw(item).empty());
    EXPECT_EQ(m_canvas.Count(white), header_width * header_height);
}

TEST_F(ListHeaderContent, ATitleIsAlignedByItsColumn)
{
    for (auto const & [format, alignment] : {std::pair(HDF_LEFT, 0u), {HDF_CENTER, 1u}, {HDF_RIGHT, 2u}})
    {
        std::vector<TextRecorder::Text> const texts = Draw(Titled(HDF_STRING | format));
        ASSERT_EQ(texts.size(), 1u);
        EXPECT_EQ(texts[0].text, L"title");
        EXPECT_EQ(texts[0].rect, m_room);
        EXPECT_EQ(texts[0].format, 0x8024u | alignment);
    }
}

TEST_F(ListHeaderContent, AnAlignmentForAllOverridesTheColumns)
{
    for (unsigned int alignment : {0u, 1u, 2u})
    {
        m_header.SetAlignment(alignment);
        for (int format : {HDF_LEFT, HDF_CENTER, HDF_RIGHT})
        {
            std::vector<TextRecorder::Text> const texts = Draw(Titled(HDF_STRING | format));
            ASSERT_EQ(texts.size(), 1u);
            EXPECT_EQ(texts[0].format, 0x8024u | alignment);
        }
    }
    m_header.SetAlignment(0xFFFFFFFF);
    EXPECT_EQ(Draw(Titled(HDF_STRING | HDF_RIGHT)).at(0).format, 0x8026u);
}

TEST_F(ListHeaderContent, ANarrowTitleStandsWhereItsAlignmentPutsIt)
{
    Draw(Titled(HDF_STRING | HDF_LEFT));
    CRect const left = m_canvas.BoundsOfOther(white);
    EXPECT_LT(left.left, m_room.left + 5);
    Draw(Titled(HDF_STRING | HDF_RIGHT));
    CRect const right = m_canvas.BoundsOfOther(white);
    EXPECT_GT(right.right, m_room.right - 5);
    Draw(Titled(HDF_STRING | HDF_CENTER));
    CRect const centre = m_canvas.BoundsOfOther(white);
    EXPECT_NEAR(centre.left - m_room.left, m_room.right - centre.right, 4);
    EXPECT_LT(left.right, right.left);
}

TEST_F(ListHeaderContent, ATooLongTitleStaysInItsRoom)
{
    TCHAR title[] = L"a title that is much longer than the room for it";
    HDITEM item = Titled(HDF_STRING);
    item.pszText = title;
    EXPECT_EQ(Draw(item).at(0).format & DT_END_ELLIPSIS, static_cast<UINT>(DT_END_ELLIPSIS));
    EXPECT_EQ(m_canvas.BoundsOfOther(white) | m_room, m_room);
}

TEST_F(ListHeaderContent, ATitleHasTheTitleColor)
{
    EXPECT_EQ(Draw(Titled(HDF_STRING)).at(0).color, ::GetSysColor(COLOR_BTNTEXT));
    m_header.SetTextColor(RGB(10, 20, 30));
    EXPECT_EQ(Draw(Titled(HDF_STRING)).at(0).color, RGB(10, 20, 30));
}

TEST_F(ListHeaderContent, NoTitleWithoutStringFormatOrTextOrRoom)
{
    EXPECT_TRUE(Draw(Titled(HDF_LEFT)).empty());
    HDITEM item = Titled(HDF_STRING);
    item.mask &= ~HDI_TEXT;
    EXPECT_TRUE(Draw(item).empty());

    item = Titled(HDF_STRING);
    for (int width : {-5, 0})
    {
        TextRecorder recorder(m_canvas);
        m_header.DrawItemText(&recorder, CRect(50, 0, 50 + width, 20), &item);
        EXPECT_TRUE(recorder.m_texts.empty());
    }
}

TEST_F(ListHeaderContent, AMarkMovesTheTitle)
{
    HDITEM item = Titled(HDF_STRING);
    for (int state : {1, 2, 3, 4, 5, 6})
    {
        item.iImage = state;
        EXPECT_EQ(Draw(item).at(0).rect, CRect(m_room.left + 13 + spacing, m_room.top, m_room.right, m_room.bottom));
    }
    item.iImage = 7;
    EXPECT_EQ(Draw(item).at(0).rect, m_room);
}

TEST_F(ListHeaderContent, AMarkLeavesTheTitlesBackgroundAlone)
{
    HDITEM item = Titled(HDF_STRING);
    item.iImage = XHC_MIXED;
    m_canvas.Dc().SetBkColor(RGB(9, 8, 7));
    Draw(item);
    EXPECT_EQ(m_canvas.Dc().GetBkColor(), RGB(9, 8, 7));
}

TEST_F(ListHeaderContent, AMarkThatLeavesNoRoomTakesTheTitleAway)
{
    HDITEM item = Titled(HDF_STRING);
    item.iImage = XHC_UNCHECKED;
    TextRecorder recorder(m_canvas);
    m_header.CXHeaderCtrl::DrawHeaderItem(&recorder, CRect(0, 0, 19, 20), &item);
    EXPECT_TRUE(recorder.m_texts.empty());
    m_header.CXHeaderCtrl::DrawHeaderItem(&recorder, CRect(0, 0, 20, 20), &item);
    EXPECT_EQ(recorder.m_texts.size(), 1u);
}

TEST_F(ListHeaderContent, ABitmapStandsAtTheRight)
{
    HDITEM item = Titled(HDF_STRING | HDF_BITMAP);
    item.hbm = m_picture.Bitmap();
    EXPECT_EQ(Draw(item).at(0).rect, CRect(m_room.left, m_room.top, m_room.right - 12 - spacing, m_room.bottom));
    // 7 / 2 above the centre.
    EXPECT_EQ(m_canvas.BoundsOf(red), CRect(98, 9, 110, 16));
    EXPECT_EQ(m_canvas.Count(red), 12 * 7);
}

TEST_F(ListHeaderContent, MarkBitmapAndTitleShareTheRoom)
{
    HDITEM item = Titled(HDF_STRING | HDF_BITMAP);
    item.hbm = m_picture.Bitmap();
    item.iImage = XHC_UNCHECKED;
    EXPECT_EQ(Draw(item).at(0).rect, CRect(29, m_room.top, 92, m_room.bottom));
    EXPECT_EQ(m_canvas.Count(frame_color), 4 * box_size - 4);
    EXPECT_EQ(m_canvas.Count(red), 12 * 7);
}

TEST_F(ListHeaderContent, ATooWideBitmapIsLeftOut)
{
    Picture wide(101, 5, red);
    HDITEM item = Titled(HDF_STRING | HDF_BITMAP);
    item.hbm = wide.Bitmap();
    EXPECT_EQ(Draw(item).at(0).rect, m_room);
    EXPECT_EQ(m_canvas.Count(red), 0);

    Picture fitting(100, 5, red);
    item.hbm = fitting.Bitmap();
    EXPECT_TRUE(Draw(item).empty());
    EXPECT_EQ(m_canvas.Count(red), 100 * 5);
}

TEST_F(ListHeaderContent, ABitmapFormatWithoutBitmapDrawsNothing)
{
    HDITEM item = Titled(HDF_STRING | HDF_BITMAP);
    item.iImage = XHC_CHECKED;
    EXPECT_TRUE(Draw(item).empty());
    EXPECT_EQ(m_canvas.Count(white), header_width * header_height);

    item.hbm = m_picture.Bitmap();
    item.mask &= ~HDI_BITMAP;
    EXPECT_TRUE(Draw(item).empty());
    EXPECT_EQ(m_canvas.Count(white), header_width * header_height);
}

TEST_F(ListHeaderContent, ABitmapThatCannotBeCopiedUsesNoWidth)
{
    HDITEM item = Titled(HDF_BITMAP);
    item.hbm = m_picture.Bitmap();
    EXPECT_EQ(m_header.DrawItemBitmap(&m_canvas.Dc(), m_room, &item, CSize(12, 7)), 12);
    EXPECT_EQ(m_header.DrawItemBitmap(&m_canvas.Dc(), CRect(0, 0, 0, 20), &item, CSize(0, 0)), 0);
    CDC none;
    EXPECT_EQ(m_header.DrawItemBitmap(&none, m_room, &item, CSize(12, 7)), 0);
}

TEST_F(ListHeaderContent, TheHeadersOwnItemCarriesItsBitmap)
{
    HDITEM item = Titled(HDF_STRING | HDF_BITMAP);
    item.mask = HDI_WIDTH | HDI_TEXT | HDI_FORMAT | HDI_BITMAP;
    item.cxy = 100;
    item.hbm = m_picture.Bitmap();
    ASSERT_EQ(m_header.InsertItem(0, &item), 0);
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.BoundsOf(red), CRect(82, 9, 94, 16));
}

TEST_F(ListHeaderContent, PaintingKeepsNoHandles)
{
    constexpr int paints = 20000;
    for (int state = XHC_NONE; state <= XHC_END; ++state)
    {
        Add(20, state);
    }
    HDITEM item = Titled(HDF_STRING | HDF_BITMAP);
    item.mask = HDI_WIDTH | HDI_TEXT | HDI_FORMAT | HDI_BITMAP;
    item.cxy = 40;
    item.hbm = m_picture.Bitmap();
    ASSERT_GE(m_header.InsertItem(8, &item), 0);
    EXPECT_EQ(tests::GdiGrowth([&] { Paint(m_canvas); }, paints), 0);
}
} // namespace
