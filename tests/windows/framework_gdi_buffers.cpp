// Metafiles and double-buffered painting.

#include <afxcontrolbarutil.h>
#include <afxwin.h>
#include <uxtheme.h>

#include <gtest/gtest.h>

#include "Bitmap.h"
#include "GdiHandleCount.h"
#include "ScopedWindow.h"

namespace
{
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF white = RGB(255, 255, 255);

TEST(FrameworkGdiMetafiles, DrawingIsRecordedAndPlayed)
{
    tests::GdiBalance const balance;
    CMetaFileDC recorder;
    ASSERT_TRUE(recorder.Create());
    EXPECT_NE(recorder.m_hDC, nullptr);
    EXPECT_EQ(recorder.m_hAttribDC, nullptr);
    CBrush brush(red);
    recorder.FillSolidRect(2, 3, 5, 6, red);
    HMETAFILE const file = recorder.Close();
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(recorder.m_hDC, nullptr);
    tests::Canvas canvas(20, 20);
    EXPECT_TRUE(canvas.Dc().PlayMetaFile(file));
    EXPECT_EQ(canvas.BoundsOf(red), CRect(2, 3, 7, 9));
    ::DeleteMetaFile(file);
}

TEST(FrameworkGdiMetafiles, PlayedIntoTwoContextsOnlyStateReachesTheAttributes)
{
    CMetaFileDC recorder;
    ASSERT_TRUE(recorder.Create());
    recorder.SetTextColor(blue);
    recorder.FillSolidRect(0, 0, 5, 5, red);
    HMETAFILE const file = recorder.Close();
    tests::Canvas output(10, 10);
    tests::Canvas attributes(10, 10);
    CDC split;
    split.SetOutputDC(output.Dc());
    split.SetAttribDC(attributes.Dc());
    EXPECT_TRUE(split.PlayMetaFile(file));
    EXPECT_EQ(output.Count(red), 25);
    EXPECT_EQ(attributes.Count(white), 100);
    EXPECT_EQ(split.GetTextColor(), blue);
    split.ReleaseOutputDC();
    split.ReleaseAttribDC();
    ::DeleteMetaFile(file);
}

static void RecordAndPlayEnhanced()
{
    CClientDC screen(nullptr);
    CMetaFileDC recorder;
    ASSERT_TRUE(recorder.CreateEnhanced(&screen, nullptr, nullptr, L"test"));
    recorder.SetAttribDC(screen);
    EXPECT_EQ(recorder.GetDeviceCaps(LOGPIXELSX), screen.GetDeviceCaps(LOGPIXELSX));
    BYTE const comment[] = {1, 2, 3, 4};
    EXPECT_TRUE(recorder.AddMetaFileComment(sizeof comment, comment));
    CBrush brush(red);
    recorder.FillRect(CRect(0, 0, 50, 50), &brush);
    recorder.ReleaseAttribDC();
    HENHMETAFILE const file = recorder.CloseEnhanced();
    ASSERT_NE(file, nullptr);
    tests::Canvas canvas(20, 20);
    EXPECT_TRUE(canvas.Dc().PlayMetaFile(file, CRect(0, 0, 20, 20)));
    EXPECT_GT(canvas.Count(red), 300);
    ::DeleteEnhMetaFile(file);
}

TEST(FrameworkGdiMetafiles, EnhancedDrawingIsRecordedAndScaled)
{
    RecordAndPlayEnhanced(); // the system keeps objects of its own from the first recording on
    tests::GdiBalance const balance;
    RecordAndPlayEnhanced();
}

TEST(FrameworkGdiMetafiles, UnclosedMetafileIsThrownAway)
{
    auto const abandon = [] {
        CMetaFileDC plain;
        plain.Create();
        CMetaFileDC enhanced;
        enhanced.CreateEnhanced(nullptr, nullptr, nullptr, nullptr);
        CMetaFileDC unused;
    };
    EXPECT_EQ(tests::GdiGrowth(abandon), 0);
}

// With the theme library's buffers and without.
class FrameworkMemDC : public testing::TestWithParam<bool>
{
protected:
    FrameworkMemDC() : m_before(::GetThemeAppProperties())
    {
        if (!GetParam())
            ::SetThemeAppProperties(0);
    }
    ~FrameworkMemDC() override { ::SetThemeAppProperties(m_before); }

    DWORD m_before;
};

TEST_P(FrameworkMemDC, DrawingIsCopiedBackAtTheEnd)
{
    tests::Canvas canvas(40, 40);
    {
        CMemDC buffer(canvas.Dc(), CRect(10, 10, 30, 30));
        EXPECT_TRUE(buffer.IsMemDC());
        EXPECT_EQ(buffer.IsVistaDC(), static_cast<BOOL>(GetParam() && ::IsAppThemed()));
        CDC & dc = buffer.GetDC();
        EXPECT_NE(dc.m_hDC, canvas.Dc().m_hDC);
        dc.FillSolidRect(10, 10, 20, 20, blue);
        dc.FillSolidRect(12, 13, 5, 6, red); // coordinates are those of the target
        EXPECT_EQ(canvas.Count(white), 1600);
    }
    EXPECT_EQ(canvas.BoundsOfOther(white), CRect(10, 10, 30, 30));
    EXPECT_EQ(canvas.BoundsOf(red), CRect(12, 13, 17, 19));
}

TEST_P(FrameworkMemDC, ClipRegionOfTheTargetHolds)
{
    tests::Canvas canvas(40, 40);
    canvas.Dc().IntersectClipRect(5, 5, 15, 15);
    {
        CMemDC buffer(canvas.Dc(), CRect(0, 0, 40, 40));
        buffer.GetDC().FillSolidRect(0, 0, 40, 40, red);
    }
    EXPECT_EQ(canvas.BoundsOf(red), CRect(5, 5, 15, 15));
}

TEST_P(FrameworkMemDC, WindowBufferCoversTheClientArea)
{
    tests::ScopedWindow window(CRect(50, 50, 150, 130));
    CRect area;
    window.GetClientRect(area);
    tests::Canvas canvas(area.Width() + 20, area.Height() + 20);
    {
        CMemDC buffer(canvas.Dc(), &window);
        buffer.GetDC().FillSolidRect(-50, -50, 1000, 1000, red);
    }
    EXPECT_EQ(canvas.BoundsOf(red), area);
}

TEST_P(FrameworkMemDC, EmptyRectangleDrawsOnTheTargetItself)
{
    tests::Canvas canvas(10, 10);
    {
        CMemDC buffer(canvas.Dc(), CRect(5, 5, 5, 5));
        EXPECT_FALSE(buffer.IsMemDC());
        EXPECT_FALSE(buffer.IsVistaDC());
        EXPECT_EQ(&buffer.GetDC(), &canvas.Dc());
        buffer.GetDC().FillSolidRect(0, 0, 10, 10, red);
    }
    EXPECT_EQ(canvas.Count(red), 100);
}

TEST_P(FrameworkMemDC, NoHandleIsLeftBehind)
{
    tests::Canvas canvas(40, 40);
    EXPECT_EQ(tests::GdiGrowth([&] {
                  CMemDC buffer(canvas.Dc(), CRect(0, 0, 40, 40));
                  buffer.GetDC().FillSolidRect(0, 0, 5, 5, red);
              }),
              0);
}

INSTANTIATE_TEST_SUITE_P(Buffers, FrameworkMemDC, testing::Bool(),
                         [](auto const & info) { return info.param ? "Themed" : "Memory"; });
} // namespace
