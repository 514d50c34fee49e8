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
        for (int col = 0; col < m_table->GetHeaderCtrl()->GetItemCount(); ++col)
            widths.push_back(m_table->GetColumnWidth(col));
        return widths;
    }
    int RowHeight()
    {
        CRect row(0, 0, 0, 0);
        m_table->GetItemRect(0, &row, LVIR_BOUNDS);
        return row.Height();
    }
    /// The box of the first row's tick, as it is on the screen.
    CRect Box()
    {
        tests::Canvas canvas(1000, 200);
        CRect box;
        tests::PumpUntil([&] {
            m_table->UpdateNow();
            m_table->UpdateWindow();
            canvas.Fill(RGB(255, 255, 255));
            canvas.CopyFromScreen(m_table->m_hWnd);
            box = canvas.BoundsOf(check_frame);
            return !box.IsRectEmpty();
        });
        return box;
    }
};

TEST_F(DpiTable, TakesResolutionsFrom48To960)
{
    EXPECT_EQ(m_table->GetDpi(), 96u);
    EXPECT_FALSE(m_table->SetDpi(47));
    EXPECT_FALSE(m_table->SetDpi(961));
    EXPECT_EQ(m_table->GetDpi(), 96u);
    EXPECT_TRUE(m_table->SetDpi(960));
    EXPECT_EQ(m_table->GetDpi(), 960u);
}

TEST_F(DpiTable, ColumnsKeepTheirShareThereAndBack)
{
    Show({1});
    EXPECT_TRUE(m_table->SetDpi(96));
    Widths const given = ShownWidths();
    EXPECT_EQ(given, Widths(5, column_width));
    m_table->SetDpi(144);
    EXPECT_EQ(ShownWidths(), Widths(5, 120));
    m_table->SetDpi(192);
    EXPECT_EQ(ShownWidths(), Widths(5, 160));
    m_table->SetDpi(96);
    EXPECT_EQ(ShownWidths(), given);
}

TEST_F(DpiTable, RowsAndBoxesFollow)
{
    Show({1});
    m_table->SetColumnWidth(0, 8);
    m_table->SetColumnWidth(1, 8);
    m_table->SetDpi(96);
    int const rows = RowHeight();
    EXPECT_EQ(Box().Size(), CSize(13, 13));
    m_table->SetDpi(144);
    EXPECT_EQ(Box().Size(), CSize(20, 20));
    m_table->SetDpi(192);
    EXPECT_EQ(Box().Size(), CSize(26, 26));
    EXPECT_GE(RowHeight(), 26);
    m_table->SetDpi(96);
    EXPECT_EQ(Box().Size(), CSize(13, 13));
    EXPECT_EQ(RowHeight(), rows);
}

TEST_F(DpiTable, WidthsAreKeptForNinetySix)
{
    MemoryPreferenceStore store;
    CVeskBase::SetPreferenceVesk(&store);
    MakeTable(L"dpi");
    m_table->SetDpi(192);
    // As the user does, by the header.
    m_table->SetColumnWidth(1, 150);
    EXPECT_EQ(ShownWidths()[1], 150);
    // Another program with another resolution, and one that knows none.
    MakeTable(L"dpi");
    EXPECT_EQ(ShownWidths()[1], 75);
    m_table->SetDpi(144);
    EXPECT_EQ(ShownWidths()[1], 113);
    CVeskBase::SetPreferenceVesk(nullptr);
}

TEST_F(DpiTable, ThePressOfATickMeetsItsCellAtEveryResolution)
{
    Show({1, 2});
    for (UINT const dpi : {144u, 192u, 96u})
    {
        m_table->SetDpi(dpi);
        m_table->SetColumnWidth(0, 8);
        m_table->SetColumnWidth(1, 8);
        bool const before = m_source->At(1).ticked;
        Press(1, 2);
        EXPECT_NE(m_source->At(1).ticked, before) << dpi;
    }
}

TEST_F(DpiTable, AnOpenEditStaysOverItsCell)
{
    Show({1, 2});
    m_table->SetDpi(96);
    ASSERT_TRUE(m_table->EditCell(1, 0));
    m_table->SetDpi(192);
    ASSERT_TRUE(m_table->IsEditing());
    CRect place;
    CRect row;
    ASSERT_TRUE(tests::PumpUntil([&] {
        HWND const edit = ::FindWindowExW(m_table->m_hWnd, nullptr, L"Edit", nullptr);
        ::GetWindowRect(edit, &place);
        m_table->ScreenToClient(&place);
        m_table->GetItemRect(1, &row, LVIR_BOUNDS);
        return place.top == row.top;
    }));
    EXPECT_EQ(place.left, row.left + 4);
    EXPECT_TRUE(m_table->EndEdit(false));
}

TEST_F(DpiTable, FollowsItsWindowWhenAsked)
{
    m_table->SetDpi(144);
    m_table->SendMessage(dpi_changed_after_parent, 0, 0);
    EXPECT_EQ(m_table->GetDpi(), 144u);
    m_table->FollowDpi(TRUE);
    EXPECT_EQ(m_table->GetDpi(), 96u);
    m_table->SetDpi(192);
    m_table->SendMessage(dpi_changed_after_parent, 0, 0);
    EXPECT_EQ(m_table->GetDpi(), 96u);
}

TEST_F(DpiTable, AResolutionSetWhileACellIsPaintedComesAfterwards)
{
    Show({1, 2, 3});
    UINT wanted = 144;
    m_table->m_onColours = [&] { m_table->SetDpi(std::exchange(wanted, 144)); };
    m_table->RedrawWindow();
    EXPECT_TRUE(tests::PumpUntil([&] { return ShownWidths() == Widths(5, 120); }));
    m_table->m_onColours = nullptr;
    EXPECT_EQ(m_table->GetDpi(), 144u);
}
} // namespace
