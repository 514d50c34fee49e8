// The table at other resolutions.

#include "Bitmap.h"
#include "MemoryPreferenceStore.h"
#include "table_TableTest.h"

namespace
{
using Widths = std::vector<int>;

constexpr COLORREF check_frame = 0x996633;
constexpr UINT dpi_changed_after_parent = 0x02E3;

class DpiTable : public tests::TableTest
{
protected:
    Widths ShownWidths()
    {
        Widths widths;
        for (int col = 0; col < table->GetHeaderCtrl()->GetItemCount(); ++col)
            widths.push_back(table->GetColumnWidth(col));
        return widths;
    }
    int RowHeight()
    {
        CRect row(0, 0, 0, 0);
        table->GetItemRect(0, &row, LVIR_BOUNDS);
        return row.Height();
    }
    /// The box of the first row's tick, as it is on the screen.
    CRect Box()
    {
        tests::Canvas canvas(1000, 200);
        CRect box;
        tests::PumpUntil([&] {
            table->UpdateNow();
            table->UpdateWindow();
            canvas.Fill(RGB(255, 255, 255));
            canvas.CopyFromScreen(table->m_hWnd);
            box = canvas.BoundsOf(check_frame);
            return !box.IsRectEmpty();
        });
        return box;
    }
};

TEST_F(DpiTable, TakesResolutionsFrom48To960)
{
    EXPECT_EQ(table->GetDpi(), 96u);
    EXPECT_FALSE(table->SetDpi(47));
    EXPECT_FALSE(table->SetDpi(961));
    EXPECT_EQ(table->GetDpi(), 96u);
    EXPECT_TRUE(table->SetDpi(960));
    EXPECT_EQ(table->GetDpi(), 960u);
}

TEST_F(DpiTable, ColumnsKeepTheirShareThereAndBack)
{
    Show({1});
    EXPECT_TRUE(table->SetDpi(96));
    Widths const given = ShownWidths();
    EXPECT_EQ(given, Widths(5, column_width));
    table->SetDpi(144);
    EXPECT_EQ(ShownWidths(), Widths(5, 120));
    table->SetDpi(192);
    EXPECT_EQ(ShownWidths(), Widths(5, 160));
    table->SetDpi(96);
    EXPECT_EQ(ShownWidths(), given);
}

TEST_F(DpiTable, RowsAndBoxesFollow)
{
    Show({1});
    table->SetColumnWidth(0, 8);
    table->SetColumnWidth(1, 8);
    table->SetDpi(96);
    int const rows = RowHeight();
    EXPECT_EQ(Box().Size(), CSize(13, 13));
    table->SetDpi(144);
    EXPECT_EQ(Box().Size(), CSize(20, 20));
    table->SetDpi(192);
    EXPECT_EQ(Box().Size(), CSize(26, 26));
    EXPECT_GE(RowHeight(), 26);
    table->SetDpi(96);
    EXPECT_EQ(Box().Size(), CSize(13, 13));
    EXPECT_EQ(RowHeight(), rows);
}

TEST_F(DpiTable, WidthsAreKeptForNinetySix)
{
    MemoryPreferenceStore store;
    CVeskBase::SetPreferenceVesk(&store);
    MakeTable(L"dpi");
    table->SetDpi(192);
    // As the user does, by the header.
    table->SetColumnWidth(1, 150);
    EXPECT_EQ(ShownWidths()[1], 150);
    // Another program with another resolution, and one that knows none.
    MakeTable(L"dpi");
    EXPECT_EQ(ShownWidths()[1], 75);
    table->SetDpi(144);
    EXPECT_EQ(ShownWidths()[1], 113);
    CVeskBase::SetPreferenceVesk(nullptr);
}

TEST_F(DpiTable, ThePressOfATickMeetsItsCellAtEveryResolution)
{
    Show({1, 2});
    for (UINT const dpi : {144u, 192u, 96u})
    {
        table->SetDpi(dpi);
        table->SetColumnWidth(0, 8);
        table->SetColumnWidth(1, 8);
        bool const before = source->At(1).ticked;
        Press(1, 2);
        EXPECT_NE(source->At(1).ticked, before) << dpi;
    }
}

TEST_F(DpiTable, AnOpenEditStaysOverItsCell)
{
    Show({1, 2});
    table->SetDpi(96);
    ASSERT_TRUE(table->EditCell(1, 0));
    table->SetDpi(192);
    ASSERT_TRUE(table->IsEditing());
    CRect place;
    CRect row;
    ASSERT_TRUE(tests::PumpUntil([&] {
        HWND const edit = ::FindWindowExW(table->m_hWnd, nullptr, L"Edit", nullptr);
        ::GetWindowRect(edit, &place);
        table->ScreenToClient(&place);
        table->GetItemRect(1, &row, LVIR_BOUNDS);
        return place.top == row.top;
    }));
    EXPECT_EQ(place.left, row.left + 4);
    EXPECT_TRUE(table->EndEdit(false));
}

TEST_F(DpiTable, FollowsItsWindowWhenAsked)
{
    table->SetDpi(144);
    table->SendMessage(dpi_changed_after_parent, 0, 0);
    EXPECT_EQ(table->GetDpi(), 144u);
    table->FollowDpi(TRUE);
    EXPECT_EQ(table->GetDpi(), 96u);
    table->SetDpi(192);
    table->SendMessage(dpi_changed_after_parent, 0, 0);
    EXPECT_EQ(table->GetDpi(), 96u);
}

TEST_F(DpiTable, AResolutionSetWhileACellIsPaintedComesAfterwards)
{
    Show({1, 2, 3});
    UINT wanted = 144;
    table->m_onColours = [&] { table->SetDpi(std::exchange(wanted, 144)); };
    table->RedrawWindow();
    EXPECT_TRUE(tests::PumpUntil([&] { return ShownWidths() == Widths(5, 120); }));
    table->m_onColours = nullptr;
    EXPECT_EQ(table->GetDpi(), 144u);
}
} // namespace
