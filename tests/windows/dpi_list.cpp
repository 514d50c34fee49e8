// The report list at other resolutions.

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include "GdiHandleCount.h"
#include "list/XHeaderCtrl.h"
#include "list_PaintTest.h"
#include "Pump.h"

namespace
{
using Widths = std::vector<int>;

constexpr UINT dpi_changed_after_parent = 0x02E3;

class DpiList : public tests::ListPaintTest
{
protected:
    int RowHeight() { return Cell(0, 1).Height(); }
    /// The box of a check cell with a text, as it is painted; relative to the cell.
    CRect BoxAt(UINT dpi)
    {
        EXPECT_TRUE(m_list.SetDpi(dpi));
        m_list.SetCheckbox(1, 1, XLC_UNCHECKED);
        m_list.SetColumnWidth(1, 200);
        m_list.CListCtrl::SetItemText(1, 1, L"t");
        Paint(1, 1);
        return Bounds(check_frame, Cell(1, 1));
    }
    int HeaderHeight()
    {
        CRect rect;
        ::GetWindowRect(m_list.Header(), &rect);
        return rect.Height();
    }
};

/// An empty list on the screen.
TEST(DpiEmptyList, ItsTextHasTheListsFont)
{
    tests::ListHost host;
    host.Fill(2, 0);
    tests::TestList & list = host.list;
    CFont large;
    large.CreateFont(-40, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
    list.SetFont(&large);
    list.SetEmptyListText(L"HH");
    auto const textHeight = [&](UINT dpi) {
        EXPECT_TRUE(list.SetDpi(dpi));
        tests::PumpPosted();
        list.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        CRect titles;
        list.GetHeaderCtrl()->GetWindowRect(&titles);
        list.ScreenToClient(&titles);
        CRect place;
        list.GetClientRect(&place);
        tests::Canvas picture(place.Width(), place.Height());
        picture.CopyFromScreen(list.m_hWnd);
        LONG top = place.bottom;
        LONG bottom = place.top;
        for (long y = titles.bottom + 1; y < place.bottom; ++y)
        {
            if (picture.Count(::GetSysColor(COLOR_WINDOWTEXT), CRect(place.left, y, place.right, y + 1)) > 0)
            {
                top = std::min(top, y);
                bottom = std::max(bottom, y + 1);
            }
        }
        return bottom - top;
    };
    EXPECT_LT(textHeight(96), 20) << "the stock font's";
    EXPECT_GT(textHeight(192), 25);
    list.SetFont(nullptr);
}

TEST_F(DpiList, TakesResolutionsFrom48To960)
{
    EXPECT_EQ(m_list.GetDpi(), 96u);
    EXPECT_FALSE(m_list.SetDpi(47));
    EXPECT_FALSE(m_list.SetDpi(961));
    EXPECT_FALSE(m_list.SetDpi(0));
    EXPECT_EQ(m_list.GetDpi(), 96u);
    EXPECT_TRUE(m_list.SetDpi(48));
    EXPECT_TRUE(m_list.SetDpi(960));
    EXPECT_EQ(m_list.GetDpi(), 960u);
}

TEST_F(DpiList, BoxesAreAsLargeAsTheResolutionWants)
{
    EXPECT_EQ(BoxAt(96).Size(), CSize(13, 13));
    EXPECT_EQ(BoxAt(96).left, 9);
    EXPECT_EQ(BoxAt(144).Size(), CSize(20, 20));
    EXPECT_EQ(BoxAt(144).left, 14);
    EXPECT_EQ(BoxAt(192).Size(), CSize(26, 26));
    EXPECT_EQ(BoxAt(192).left, 18);
    EXPECT_EQ(BoxAt(96).Size(), CSize(13, 13));
}

TEST_F(DpiList, EveryBoxLiesWithinItsRow)
{
    for (UINT const dpi : {96u, 120u, 144u, 192u, 288u, 480u})
    {
        CRect const box = BoxAt(dpi);
        EXPECT_GE(box.top, 0) << dpi;
        EXPECT_LE(box.bottom, RowHeight()) << dpi;
    }
}

TEST_F(DpiList, MarksFillTheirBoxesAtEveryResolution)
{
    for (UINT const dpi : {96u, 120u, 144u, 192u, 288u})
    {
        CRect const box = BoxAt(dpi);
        auto const scaled = [dpi](int pixels) { return ::MulDiv(pixels, static_cast<int>(dpi), 96); };
        m_list.SetCheckbox(1, 1, XLC_CHECKED);
        m_list.CListCtrl::SetItemText(1, 1, L"t");
        Paint(1, 1);
        CRect const tick = Bounds(check_mark, Cell(1, 1));
        EXPECT_NEAR(tick.left - box.left, scaled(3), 1) << dpi;
        EXPECT_NEAR(tick.right - box.left, scaled(10), 1) << dpi;
        EXPECT_NEAR(tick.top - box.top, scaled(3), 1) << dpi;
        EXPECT_NEAR(tick.bottom - box.top, scaled(10), 1) << dpi;
        m_list.SetCheckbox(1, 1, XLC_CROSSED);
        m_list.CListCtrl::SetItemText(1, 1, L"t");
        Paint(1, 1);
        CRect const cross = Bounds(cross_mark, Cell(1, 1));
        EXPECT_NEAR(cross.left - box.left, scaled(3), 1) << dpi;
        EXPECT_NEAR(cross.right - box.left, scaled(11), 2) << dpi;
        EXPECT_NEAR(cross.top - box.top, scaled(3), 1) << dpi;
        EXPECT_NEAR(cross.bottom - box.top, scaled(10), 1) << dpi;
    }
}

TEST_F(DpiList, RowsAndHeaderAreTheSameAgainAt96)
{
    int const rows = RowHeight();
    int const header = HeaderHeight();
    Widths const widths = m_list.Widths();
    m_list.SetDpi(192);
    EXPECT_GT(RowHeight(), rows);
    EXPECT_GE(HeaderHeight(), 26);
    m_list.SetDpi(96);
    EXPECT_EQ(RowHeight(), rows);
    EXPECT_EQ(HeaderHeight(), header);
    EXPECT_EQ(m_list.Widths(), widths);
}

TEST_F(DpiList, AtNinetySixAllIsPaintedAsBefore)
{
    m_list.SetCheckbox(0, 0, XLC_CHECKED);
    m_list.SetItemImage(1, 1, 1);
    m_list.SetCheckbox(2, 2, XLC_CROSSED);
    auto const paintAll = [this] {
        m_canvas.Fill(untouched);
        for (int row = 0; row < 4; ++row)
        {
            for (int col = 0; col < 3; ++col)
                PaintOver(row, col);
        }
        return Copy(CRect(0, 0, 320, 160));
    };
    std::unique_ptr<tests::Canvas> const before = paintAll();
    m_list.SetDpi(192);
    std::unique_ptr<tests::Canvas> const between = paintAll();
    m_list.SetDpi(96);
    std::unique_ptr<tests::Canvas> const after = paintAll();
    EXPECT_TRUE(tests::SamePixels(*before, *after));
    EXPECT_FALSE(tests::SamePixels(*before, *between));
}

TEST_F(DpiList, ColumnsKeepTheirShareThereAndBack)
{
    Widths const given{57, 83, 101};
    for (int col = 0; col < 3; ++col)
        m_list.CListCtrl::SetColumnWidth(col, given[static_cast<std::size_t>(col)]);
    m_list.SetDpi(144);
    EXPECT_EQ(m_list.Widths(), (Widths{86, 125, 152}));
    m_list.SetDpi(192);
    EXPECT_EQ(m_list.Widths(), (Widths{114, 166, 202}));
    m_list.SetDpi(60);
    m_list.SetDpi(96);
    EXPECT_EQ(m_list.Widths(), given);
}

TEST_F(DpiList, AColumnThatTheUserSizedKeepsThat)
{
    m_list.SetDpi(144);
    m_list.CListCtrl::SetColumnWidth(1, 101);
    m_list.SetDpi(60);
    m_list.SetDpi(144);
    EXPECT_EQ(m_list.Widths(), (Widths{90, 101, 90}));
}

TEST_F(DpiList, AnImageOfAnotherResolutionIsStretched)
{
    m_list.SetItemImage(1, 1, 0);
    m_list.SetDpi(192);
    m_list.CListCtrl::SetColumnWidth(1, 120);
    EXPECT_GE(RowHeight(), 2 * image_height);
    Paint(1, 1);
    CRect const red = Bounds(pure_red, Cell(1, 1));
    EXPECT_EQ(red.Size(), CSize(2 * image_width, 2 * image_height));
    EXPECT_EQ(red.left, 2 * spacing);
    EXPECT_EQ(Count(pure_red, Cell(1, 1)), 4 * image_width * image_height);
}

TEST_F(DpiList, AnImageListForThisResolutionIsShownAsItIs)
{
    m_list.SetItemImage(1, 1, 0);
    m_list.SetDpi(192);
    CImageList own;
    ASSERT_TRUE(own.Create(image_width, image_height, ILC_COLOR24, 1, 1));
    CClientDC screen(nullptr);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, image_width, image_height);
    {
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap * const former = memory.SelectObject(&bitmap);
        memory.FillSolidRect(0, 0, image_width, image_height, pure_red);
        memory.SelectObject(former);
    }
    own.Add(&bitmap, CLR_NONE);
    CImageList * const former = m_list.SetImageList(&own, LVSIL_SMALL);
    Paint(1, 1);
    EXPECT_EQ(Bounds(pure_red, Cell(1, 1)).Size(), CSize(image_width, image_height));
    m_list.SetImageList(former, LVSIL_SMALL);
}

TEST_F(DpiList, TheHostFindsNoStatesThatItHasNotSet)
{
    m_list.SetDpi(192);
    int const rows = RowHeight();
    EXPECT_EQ(m_list.GetImageList(LVSIL_STATE), nullptr);
    CImageList states;
    ASSERT_TRUE(states.Create(10, 10, ILC_COLOR24, 1, 1));
    EXPECT_EQ(m_list.SetImageList(&states, LVSIL_STATE), nullptr);
    EXPECT_EQ(m_list.GetImageList(LVSIL_STATE)->GetSafeHandle(), states.GetSafeHandle());
    m_list.SetDpi(96);
    EXPECT_EQ(m_list.GetImageList(LVSIL_STATE)->GetSafeHandle(), states.GetSafeHandle());
    m_list.SetDpi(192);
    m_list.SetImageList(nullptr, LVSIL_STATE);
    EXPECT_EQ(RowHeight(), rows);
    EXPECT_EQ(m_list.GetImageList(LVSIL_STATE), nullptr);
}

TEST_F(DpiList, NativeCheckBoxesCanComeAndStay)
{
    m_list.SetDpi(192);
    m_list.SetWithCheckboxes();
    m_list.SetCheck(1, TRUE);
    m_list.SetDpi(144);
    EXPECT_TRUE(m_list.GetCheck(1));
    EXPECT_FALSE(m_list.GetCheck(0));
    m_list.SetDpi(96);
    EXPECT_TRUE(m_list.GetCheck(1));
}

TEST_F(DpiList, TextKeepsScaledPadding)
{
    m_list.SetCellPadding(10);
    auto const leftOfText = [this](UINT dpi) {
        m_list.SetDpi(dpi);
        m_list.CListCtrl::SetColumnWidth(1, 150);
        m_list.SetItemText(1, 1, L"HHH", RGB(200, 0, 200), -1);
        Paint(1, 1);
        return Bounds(RGB(200, 0, 200), Cell(1, 1)).left;
    };
    LONG const usual = leftOfText(96);
    EXPECT_EQ(leftOfText(192) - usual, 10);
    EXPECT_EQ(m_list.GetCellPadding(), 10);
}

TEST_F(DpiList, TheHeadersRoomFollows)
{
    EXPECT_TRUE(m_list.SetDpi(144));
    auto * const header = dynamic_cast<CXHeaderCtrl *>(CWnd::FromHandlePermanent(m_list.Header()));
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->GetSpacing(), 9);
    EXPECT_EQ(header->GetDpi(), 144u);
    EXPECT_FALSE(header->SetDpi(20));
    m_list.SetDpi(96);
    EXPECT_EQ(header->GetSpacing(), 6);
}

TEST_F(DpiList, HeaderMarksAreScaled)
{
    m_list.SetHeaderCheckedState(1, XHC_UNCHECKED);
    for (int const edge : {13, 20, 26})
    {
        UINT const dpi = edge == 13 ? 96 : edge == 20 ? 144 : 192;
        m_list.SetDpi(dpi);
        tests::Canvas shown(600, 80);
        ASSERT_TRUE(tests::PumpUntil([&] {
            ::UpdateWindow(m_list.Header());
            shown.Fill(RGB(255, 255, 255));
            shown.CopyFromScreen(m_list.Header());
            return shown.BoundsOf(check_frame).Size() == CSize(edge, edge);
        })) << dpi
            << ": " << shown.BoundsOf(check_frame).Width();
        CRect rect;
        ::GetClientRect(m_list.Header(), &rect);
        EXPECT_LE(shown.BoundsOf(check_frame).bottom, rect.bottom);
    }
}

TEST_F(DpiList, AnOpenEditIsTakenAndTheNextOneHasScaledPlaces)
{
    m_list.SetEdit(1, 1, true);
    m_list.SetItemText(1, 1, L"old");
    m_list.SetEdit(1, 1, true);
    m_list.DrawEditControl(1, 1);
    HWND const edit = tests::OpenEditOf(m_list);
    ASSERT_NE(edit, nullptr);
    ::SetWindowTextW(edit, L"new");
    m_list.SetDpi(192);
    EXPECT_EQ(tests::OpenEditOf(m_list), nullptr);
    EXPECT_EQ(m_list.GetItemText(1, 1), L"new");
    m_list.SetEdit(1, 1, true);
    m_list.DrawEditControl(1, 1);
    CRect place;
    ASSERT_NE(tests::OpenEditOf(m_list), nullptr);
    ::GetWindowRect(tests::OpenEditOf(m_list), &place);
    m_list.ScreenToClient(&place);
    CRect const cell = Cell(1, 1);
    EXPECT_EQ(place.left, cell.left + 4);
    EXPECT_EQ(place.right, place.left + cell.Width() - 8);
}

TEST_F(DpiList, AComboOverACellHasAWiderButton)
{
    m_list.CListCtrl::SetColumnWidth(1, 100);
    std::map<int, wchar_t const *> const entries{{1, L"one"}, {2, L"two"}};
    m_list.SetDpi(192);
    ASSERT_TRUE(m_list.SetComboBox(1, 1, entries, 1, 1));
    m_list.DrawComboBoxControl(1, 1);
    HWND const combo = tests::OpenCombo();
    ASSERT_NE(combo, nullptr);
    CRect rect;
    ::GetWindowRect(combo, &rect);
    EXPECT_EQ(rect.Width(), Cell(1, 1).Width() - 1);
    m_list.SetDpi(96);
    EXPECT_EQ(tests::OpenCombo(), nullptr);
}

TEST_F(DpiList, FollowsItsWindowWhenAsked)
{
    m_list.SetDpi(144);
    m_list.SendMessage(dpi_changed_after_parent, 0, 0);
    EXPECT_EQ(m_list.GetDpi(), 144u);
    // The display has 96 dots an inch.
    m_list.FollowDpi(TRUE);
    EXPECT_EQ(m_list.GetDpi(), 96u);
    m_list.SetDpi(192);
    m_list.SendMessage(dpi_changed_after_parent, 0, 0);
    EXPECT_EQ(m_list.GetDpi(), 96u);
    m_list.FollowDpi(FALSE);
    m_list.SetDpi(192);
    m_list.SendMessage(dpi_changed_after_parent, 0, 0);
    EXPECT_EQ(m_list.GetDpi(), 192u);
}

TEST(DpiListWindow, AResolutionSetBeforeTheWindowHolds)
{
    tests::ScopedWindow parent;
    tests::TestList list;
    list.SetDpi(192);
    ASSERT_TRUE(list.Create(tests::TestList::default_style, CRect(0, 0, 300, 200), parent, 7));
    list.AddColumns(2);
    list.AddRows(2);
    EXPECT_EQ(list.Widths(), (Widths{80, 80}));
    CRect row;
    list.GetItemRect(0, &row, LVIR_BOUNDS);
    EXPECT_GE(row.Height(), 26);
    list.SetDpi(96);
    EXPECT_EQ(list.Widths(), (Widths{40, 40}));
    list.DestroyWindow();
}

TEST(DpiListWindow, LeavesNoHandlesBehind)
{
    tests::ScopedWindow parent;
    auto const round = [&parent] {
        tests::TestList list;
        list.Create(tests::TestList::default_style, CRect(0, 0, 300, 200), parent, 7);
        list.AddColumns(2);
        list.AddRows(2);
        for (UINT const dpi : {144u, 192u, 96u, 120u})
        {
            list.SetDpi(dpi);
            list.RedrawWindow();
        }
        list.DestroyWindow();
    };
    round();
    int const before = tests::GdiHandleCount();
    for (int turn = 0; turn < 20; ++turn)
        round();
    EXPECT_LE(tests::GdiHandleCount(), before + 2);
}

/// A host that is told of each width within a change of the resolution.
class ListToldOfWidths : public tests::TestList
{
public:
    std::function<void()> onWidth;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result) override
    {
        UINT const code = reinterpret_cast<NMHDR const *>(lParam)->code;
        BOOL const handled = TestList::OnNotify(wParam, lParam, result);
        if (onWidth && (code == HDN_ITEMCHANGEDW || code == HDN_ITEMCHANGEDA))
            onWidth();
        return handled;
    }
};

// Hosts call it from wherever they are told of something.
TEST(DpiListWindow, ANestedChangeHasTheLastWord)
{
    tests::ScopedWindow parent;
    ListToldOfWidths list;
    ASSERT_TRUE(list.Create(tests::TestList::default_style, CRect(0, 0, 300, 200), parent, 7));
    list.AddColumns(3);
    int calls = 0;
    list.onWidth = [&] {
        if (++calls == 2)
            list.SetDpi(192);
    };
    list.SetDpi(144);
    list.onWidth = nullptr;
    EXPECT_GE(calls, 5);
    EXPECT_EQ(list.GetDpi(), 192u);
    EXPECT_EQ(list.Widths(), (Widths{160, 160, 160}));
    list.SetDpi(96);
    EXPECT_EQ(list.Widths(), (Widths{80, 80, 80}));
    list.DestroyWindow();
}
} // namespace
