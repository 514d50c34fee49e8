// Image lists.

#include <afxcmn.h>
#include <afxwin.h>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "GdiHandleCount.h"
#include "resource.h"
#include "ScopedWindow.h"

namespace
{
constexpr COLORREF pure_red = RGB(255, 0, 0);
constexpr COLORREF pure_green = RGB(0, 255, 0);
constexpr COLORREF pure_blue = RGB(0, 0, 255);
constexpr COLORREF pure_white = RGB(255, 255, 255);
constexpr int side = 16;

// A bitmap of one colour, count pictures wide.
void MakeBitmap(CBitmap & bitmap, COLORREF colour, int count = 1)
{
    CClientDC screen(nullptr);
    bitmap.CreateCompatibleBitmap(&screen, count * side, side);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap * const previous = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, count * side, side, colour);
    memory.SelectObject(previous);
}

class FrameworkImageList : public testing::Test
{
protected:
    FrameworkImageList()
    {
        m_list.Create(side, side, ILC_COLOR32 | ILC_MASK, 0, 4);
        CBitmap red;
        MakeBitmap(red, pure_red);
        m_list.Add(&red, CLR_NONE);
        CBitmap blue;
        MakeBitmap(blue, pure_blue);
        m_list.Add(&blue, CLR_NONE);
    }
    COLORREF ColourOf(int image)
    {
        tests::Canvas canvas(side, side, pure_white);
        EXPECT_TRUE(m_list.Draw(&canvas.Dc(), image, CPoint(0, 0), ILD_NORMAL));
        return canvas.Pixel(side / 2, side / 2);
    }

    CImageList m_list;
};

TEST(FrameworkImageListHandles, TheHandleIsAPublicMember)
{
    CImageList list;
    EXPECT_EQ(list.m_hImageList, nullptr);
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR32, 1, 1));
    EXPECT_NE(list.m_hImageList, nullptr);
    EXPECT_EQ(list.m_hImageList, list.GetSafeHandle());
}

TEST(FrameworkImageListHandles, NewListHasNoHandle)
{
    CImageList list;
    EXPECT_EQ(list.GetSafeHandle(), nullptr);
    EXPECT_FALSE(list.DeleteImageList());
    EXPECT_FALSE(list.Attach(nullptr));
    EXPECT_FALSE(list.Create(64999u, 16, 1, pure_green));
    EXPECT_FALSE(list.Create(static_cast<CImageList *>(nullptr)));
    EXPECT_EQ(list.GetSafeHandle(), nullptr);
}

[[gnu::no_sanitize("null")]] HIMAGELIST SafeHandleThroughNull(CImageList * list)
{
    CImageList * volatile const hidden = list; // or the compiler takes it for an error
    return hidden->GetSafeHandle();
}

TEST(FrameworkImageListHandles, SafeHandleThroughNullPointerIsNull)
{
    EXPECT_EQ(SafeHandleThroughNull(nullptr), nullptr);
}

TEST(FrameworkImageListHandles, AttachedListIsTheOneOfItsHandle)
{
    HIMAGELIST const handle = ::ImageList_Create(side, side, ILC_COLOR32, 0, 1);
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), nullptr);
    CImageList * const temporary = CImageList::FromHandle(handle);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->GetSafeHandle(), handle);
    EXPECT_EQ(CImageList::FromHandle(handle), temporary);
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), nullptr);
    CImageList::DeleteTempMap();
    EXPECT_EQ(::ImageList_GetImageCount(handle), 0);
    CImageList list;
    EXPECT_TRUE(list.Attach(handle));
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), &list);
    EXPECT_EQ(static_cast<HIMAGELIST>(list), handle);
    EXPECT_EQ(list.Detach(), handle);
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), nullptr);
    EXPECT_TRUE(list.Attach(handle));
    EXPECT_TRUE(list.DeleteImageList());
    EXPECT_EQ(list.GetSafeHandle(), nullptr);
}

TEST(FrameworkImageListHandles, DestructorLeavesNoHandleBehind)
{
    EXPECT_EQ(tests::GdiGrowth([] {
                  CImageList list;
                  list.Create(side, side, ILC_COLOR32 | ILC_MASK, 2, 2);
                  CBitmap red;
                  MakeBitmap(red, pure_red);
                  list.Add(&red, CLR_NONE);
                  HICON const icon = list.ExtractIcon(0);
                  ::DestroyIcon(icon);
                  CGdiObject::DeleteTempMap();
              }),
              0);
}

TEST(FrameworkImageListHandles, ListIsLoadedFromABitmapResource)
{
    CImageList list;
    ASSERT_TRUE(list.Create(IDB_BACKGROUND, 2, 0, pure_green));
    EXPECT_EQ(list.GetImageCount(), 2);
    CImageList byName;
    EXPECT_TRUE(byName.Create(MAKEINTRESOURCE(IDB_BACKGROUND), 4, 0, pure_green));
    EXPECT_EQ(byName.GetImageCount(), 1);
}

TEST_F(FrameworkImageList, PicturesAreAddedReplacedAndRemoved)
{
    EXPECT_EQ(m_list.GetImageCount(), 2);
    EXPECT_EQ(ColourOf(0), pure_red);
    EXPECT_EQ(ColourOf(1), pure_blue);
    CBitmap two;
    MakeBitmap(two, pure_green, 2);
    EXPECT_EQ(m_list.Add(&two, static_cast<CBitmap *>(nullptr)), 2);
    EXPECT_EQ(m_list.GetImageCount(), 4);
    EXPECT_EQ(m_list.Add(::LoadIcon(nullptr, IDI_APPLICATION)), 4);
    CBitmap green;
    MakeBitmap(green, pure_green);
    EXPECT_TRUE(m_list.Replace(0, &green, nullptr));
    EXPECT_EQ(ColourOf(0), pure_green);
    EXPECT_EQ(m_list.Replace(1, ::LoadIcon(nullptr, IDI_APPLICATION)), 1);
    EXPECT_EQ(m_list.Replace(99, ::LoadIcon(nullptr, IDI_APPLICATION)), -1);
    EXPECT_TRUE(m_list.Remove(0));
    EXPECT_EQ(m_list.GetImageCount(), 4);
    EXPECT_FALSE(m_list.Remove(99));
    EXPECT_TRUE(m_list.Remove(-1)); // all of them
    EXPECT_EQ(m_list.GetImageCount(), 0);
    EXPECT_TRUE(m_list.SetImageCount(3));
    EXPECT_EQ(m_list.GetImageCount(), 3);
}

TEST_F(FrameworkImageList, MaskColourIsLeftOut)
{
    CBitmap bitmap;
    MakeBitmap(bitmap, pure_green);
    EXPECT_EQ(m_list.Add(&bitmap, pure_green), 2);
    EXPECT_EQ(ColourOf(2), pure_white);
}

TEST_F(FrameworkImageList, PicturesAreCopied)
{
    EXPECT_TRUE(m_list.Copy(0, 1));
    EXPECT_EQ(ColourOf(0), pure_blue);
    CBitmap green;
    MakeBitmap(green, pure_green);
    EXPECT_TRUE(m_list.Replace(1, &green, nullptr));
    EXPECT_TRUE(m_list.Copy(0, &m_list, 1, ILCF_SWAP));
    EXPECT_EQ(ColourOf(0), pure_green);
    EXPECT_FALSE(m_list.Copy(0, nullptr, 1));
}

TEST_F(FrameworkImageList, DrawingPlacesTheParts)
{
    tests::Canvas canvas(40, 40, pure_white);
    EXPECT_TRUE(m_list.DrawEx(&canvas.Dc(), 0, CPoint(3, 4), CSize(5, 6), CLR_NONE, CLR_NONE, ILD_NORMAL));
    EXPECT_EQ(canvas.BoundsOf(pure_red), CRect(3, 4, 8, 10));
    canvas.Fill(pure_white);
    EXPECT_TRUE(m_list.DrawIndirect(&canvas.Dc(), 1, CPoint(10, 11), CSize(4, 4), CPoint(2, 2)));
    EXPECT_EQ(canvas.BoundsOf(pure_blue), CRect(10, 11, 14, 15));
    canvas.Fill(pure_white);
    IMAGELISTDRAWPARAMS parameters = {};
    parameters.i = 0;
    parameters.hdcDst = canvas.Dc();
    parameters.rgbBk = CLR_NONE;
    parameters.rgbFg = CLR_NONE;
    parameters.fStyle = ILD_NORMAL;
    EXPECT_TRUE(m_list.DrawIndirect(&parameters));
    EXPECT_EQ(canvas.BoundsOf(pure_red), CRect(0, 0, side, side));
    EXPECT_FALSE(m_list.Draw(&canvas.Dc(), 99, CPoint(0, 0), ILD_NORMAL));
}

TEST_F(FrameworkImageList, BackgroundAndInformation)
{
    EXPECT_EQ(m_list.GetBkColor(), static_cast<COLORREF>(CLR_NONE));
    EXPECT_EQ(m_list.SetBkColor(pure_green), static_cast<COLORREF>(CLR_NONE));
    EXPECT_EQ(m_list.GetBkColor(), pure_green);
    IMAGEINFO info = {};
    EXPECT_TRUE(m_list.GetImageInfo(1, &info));
    EXPECT_NE(info.hbmImage, nullptr);
    EXPECT_EQ(CRect(info.rcImage).Size(), CSize(side, side));
    EXPECT_FALSE(m_list.GetImageInfo(99, &info));
    EXPECT_TRUE(m_list.SetOverlayImage(1, 1));
    EXPECT_FALSE(m_list.SetOverlayImage(1, 99));
}

TEST_F(FrameworkImageList, ListsAreDuplicatedAndMerged)
{
    CImageList copy;
    ASSERT_TRUE(copy.Create(&m_list));
    EXPECT_NE(copy.GetSafeHandle(), m_list.GetSafeHandle());
    EXPECT_EQ(copy.GetImageCount(), 2);
    CImageList merged;
    ASSERT_TRUE(merged.Create(m_list, 0, copy, 1, 4, 0));
    EXPECT_EQ(merged.GetImageCount(), 1);
    IMAGEINFO info = {};
    merged.GetImageInfo(0, &info);
    EXPECT_EQ(CRect(info.rcImage).Width(), side + 4);
}

TEST_F(FrameworkImageList, DraggedPictureIsKnownUntilTheEnd)
{
    tests::ScopedWindow window;
    EXPECT_TRUE(m_list.BeginDrag(0, CPoint(3, 4)));
    EXPECT_FALSE(m_list.BeginDrag(1, CPoint(0, 0))); // one at a time
    EXPECT_TRUE(CImageList::DragEnter(&window, CPoint(20, 30)));
    EXPECT_TRUE(CImageList::DragMove(CPoint(25, 35)));
    EXPECT_TRUE(CImageList::DragShowNolock(FALSE));
    POINT position = {};
    POINT hotSpot = {};
    CImageList * const dragged = CImageList::GetDragImage(&position, &hotSpot);
    ASSERT_NE(dragged, nullptr);
    EXPECT_NE(dragged, &m_list);
    EXPECT_EQ(CPoint(position), CPoint(25, 35));
    EXPECT_EQ(CPoint(hotSpot), CPoint(3, 4));
    EXPECT_TRUE(m_list.SetDragCursorImage(1, CPoint(0, 0)));
    EXPECT_TRUE(CImageList::DragLeave(&window));
    CImageList::EndDrag();
    CImageList::DeleteTempMap();
    EXPECT_EQ(CImageList::GetDragImage(nullptr, nullptr), nullptr);
}
} // namespace
