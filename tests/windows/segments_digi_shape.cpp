// Windows that take the shape of their segments, and the corner that is left out of painting.

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "GdiHandleCount.h"
#include "ImportPatch.h"
#include "segments/DigiStyle.h"
#include "segments_DigiStaticTest.h"

namespace
{
struct RegionCall
{
    HWND window;
    bool hasRegion;
    BOOL redraw;

    bool operator==(RegionCall const &) const = default;
};

std::vector<RegionCall> g_calls;

int WINAPI RecordRegion(HWND window, HRGN region, BOOL redraw)
{
    g_calls.push_back({window, region != nullptr, redraw});
    return ::SetWindowRgn(window, region, redraw);
}

int WINAPI RefuseRegion(HWND, HRGN, BOOL)
{
    return 0;
}

/// In the place of the system's function, which has no path any more when the characters ask for it.
HRGN WINAPI RegionOfTenPixels(HDC)
{
    return CreateRectRgn(10, 20, 20, 21);
}

class DigiStaticShape : public tests::DisplayTest
{
protected:
    void SetUp() override { g_calls.clear(); }

    /// The bounds of the window's region, or nothing if it has none.
    std::optional<CRect> Shape() const
    {
        CRgn region;
        region.CreateRectRgn(0, 0, 0, 0);
        if (::GetWindowRgn(m_display.m_hWnd, region) == ERROR)
            return std::nullopt;
        CRect bounds;
        region.GetRgnBox(bounds);
        return bounds;
    }
    void SetShape(CRect const & rect)
    {
        ASSERT_NE(::SetWindowRgn(m_display.m_hWnd, ::CreateRectRgnIndirect(rect), FALSE), 0);
    }
};
} // namespace

TEST_F(DigiStaticShape, TransparencySwitchesTheWindowStyle)
{
    Open();
    m_display.ValidateRect(nullptr);
    DWORD const before = m_display.GetExStyle();
    ASSERT_EQ(before & WS_EX_TRANSPARENT, 0U);
    m_display.SetTransparent(true);
    EXPECT_TRUE(m_display.m_transparent);
    EXPECT_EQ(m_display.GetExStyle(), before | WS_EX_TRANSPARENT);
    EXPECT_FALSE(m_display.NeedsPaint());
    m_display.SetTransparent(false);
    EXPECT_FALSE(m_display.m_transparent);
    EXPECT_EQ(m_display.GetExStyle(), before);
    EXPECT_FALSE(m_display.NeedsPaint());
}

TEST_F(DigiStaticShape, OpaqueWindowKeepsWhateverRegionItHas)
{
    Open();
    m_display.SetText(L"8");
    SetShape(CRect(0, 0, 100, 50));
    tests::ImportPatch const patch(L"framework.dll", "SetWindowRgn", &RecordRegion);
    ASSERT_TRUE(patch.Done());
    m_display.SetText(L"7");
    Paint();
    EXPECT_TRUE(g_calls.empty());
    EXPECT_EQ(Shape(), CRect(0, 0, 100, 50));
}

TEST_F(DigiStaticShape, IsTakenAwayBeforeARepaintIsAskedFor)
{
    Open();
    SetShape(CRect(0, 0, 100, 50));
    m_display.SetTransparent(true);
    tests::ImportPatch const patch(L"framework.dll", "SetWindowRgn", &RecordRegion);
    ASSERT_TRUE(patch.Done());
    m_display.SetText(L"8");
    EXPECT_EQ(g_calls, (std::vector<RegionCall>{{m_display.m_hWnd, false, TRUE}}));
    EXPECT_EQ(Shape(), std::nullopt);
    EXPECT_TRUE(m_display.NeedsPaint());
}

TEST_F(DigiStaticShape, OfHiddenSegmentsIsTheFullRectangle)
{
    Open();
    m_display.ModifyDigiStyle(0, DigiStyleHideOff);
    m_display.SetText(L"   ");
    Update();
    m_display.SetTransparent(true);
    SetShape(CRect(0, 0, 100, 50));
    tests::ImportPatch const patch(L"framework.dll", "SetWindowRgn", &RecordRegion);
    ASSERT_TRUE(patch.Done());
    Paint();
    EXPECT_EQ(g_calls, (std::vector<RegionCall>{{m_display.m_hWnd, false, FALSE}}));
    EXPECT_EQ(Shape(), std::nullopt);
}

TEST_F(DigiStaticShape, IsWhatTheCharactersGive)
{
    Open();
    m_display.SetTransparent(true);
    tests::ImportPatch const outline(L"instrument_ui.dll", "PathToRegion", &RegionOfTenPixels);
    ASSERT_TRUE(outline.Done());
    tests::ImportPatch const patch(L"framework.dll", "SetWindowRgn", &RecordRegion);
    ASSERT_TRUE(patch.Done());
    m_display.SetText(L"8");
    Update();
    EXPECT_EQ(g_calls, (std::vector<RegionCall>{{m_display.m_hWnd, false, TRUE}, {m_display.m_hWnd, true, FALSE}}));
    EXPECT_EQ(Shape(), CRect(10, 20, 20, 21));
    EXPECT_FALSE(m_display.NeedsPaint());
}

TEST_F(DigiStaticShape, BelongsToTheSystemOnceSet)
{
    Open();
    m_display.SetTransparent(true);
    tests::ImportPatch const outline(L"instrument_ui.dll", "PathToRegion", &RegionOfTenPixels);
    ASSERT_TRUE(outline.Done());
    m_display.SetText(L"8");
    Update();
    EXPECT_EQ(tests::GdiGrowth([this] { Paint(); }, 50), 0);
    EXPECT_EQ(Shape(), CRect(10, 20, 20, 21));
}

TEST_F(DigiStaticShape, IsDeletedIfTheSystemDoesNotTakeIt)
{
    Open();
    m_display.SetTransparent(true);
    m_display.SetText(L"8");
    Update();
    tests::ImportPatch const outline(L"instrument_ui.dll", "PathToRegion", &RegionOfTenPixels);
    ASSERT_TRUE(outline.Done());
    tests::ImportPatch const patch(L"framework.dll", "SetWindowRgn", &RefuseRegion);
    ASSERT_TRUE(patch.Done());
    EXPECT_EQ(tests::GdiGrowth([this] { Paint(); }, 50), 0);
}

TEST_F(DigiStaticShape, CornerIsLeftOutOfPainting)
{
    constexpr COLORREF before = RGB(200, 0, 0);
    constexpr COLORREF after = RGB(0, 0, 200);
    Open();
    m_display.SetBkColor(before);
    Update();
    m_display.SetBkColor(after);
    CRect button(300, 200, 330, 220); // its place is of no account
    m_display.SetButtonRect(&button);
    Update();
    tests::Canvas canvas(display_width, display_height);
    canvas.CopyFromScreen(m_display);
    EXPECT_EQ(canvas.BoundsOf(before), CRect(0, display_height - 20, 30, display_height));
    EXPECT_EQ(canvas.Count(before), 30 * 20);
    EXPECT_EQ(canvas.Count(after), display_width * display_height - 30 * 20);

    m_display.SetButtonRect(nullptr);
    Update();
    canvas.CopyFromScreen(m_display);
    EXPECT_EQ(canvas.Count(after), display_width * display_height);
}
