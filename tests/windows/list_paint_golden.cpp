#include <functional>
#include <string>

#include "GoldenImage.h"
#include "list_PaintTest.h"

namespace
{
struct Kind
{
    char const * name;
    std::function<void(tests::TestList &, int row, int col)> make;
};

void PrintTo(Kind const & kind, std::ostream * out)
{
    *out << kind.name;
}

void MakeProgress(tests::TestList & list, int row, int col, int value)
{
    list.SetProgress(row, col, false, nullptr);
    list.UpdateProgress(row, col, value, value);
}

void DrawDisc(int, int, CDC * dc, CRect const & rect)
{
    dc->FillSolidRect(rect, RGB(255, 240, 200));
    dc->SelectStockObject(BLACK_PEN);
    dc->SelectStockObject(GRAY_BRUSH);
    dc->Rectangle(rect.left + 5, rect.top + 3, rect.left + 25, rect.bottom - 3);
}

Kind const kinds[] = {
    {"plain", [](auto &, int, int) {}},
    {"gradient", [](auto & list, int row, int col) { list.SetItemColors(row, col, 0, 0xFFFFFF, RGB(40, 80, 200)); }},
    {"check_unchecked", [](auto & list, int row, int col) { list.SetCheckbox(row, col, XLC_UNCHECKED); }},
    {"check_checked", [](auto & list, int row, int col) { list.SetCheckbox(row, col, XLC_CHECKED); }},
    {"check_crossed", [](auto & list, int row, int col) { list.SetCheckbox(row, col, XLC_CROSSED); }},
    {"radio_on", [](auto & list, int row, int col) { list.SetRadioButton(row, col, XLC_RADIO_ON); }},
    {"radio_off", [](auto & list, int row, int col) { list.SetRadioButton(row, col, XLC_RADIO_OFF); }},
    {"combo",
     [](auto & list, int row, int col) {
         list.SetComboBox(row, col, std::map<int, wchar_t const *>{{1, L""}}, 1, 1);
     }},
    {"progress_0", [](auto & list, int row, int col) { MakeProgress(list, row, col, 0); }},
    {"progress_30", [](auto & list, int row, int col) { MakeProgress(list, row, col, 30); }},
    {"progress_100", [](auto & list, int row, int col) { MakeProgress(list, row, col, 100); }},
    {"progress_150", [](auto & list, int row, int col) { MakeProgress(list, row, col, 150); }},
    {"image", [](auto & list, int row, int col) { list.SetItemImage(row, col, 1); }},
    {"custom", [](auto & list, int row, int col) { list.SetCustomDraw(row, col, DrawDisc); }},
};

// One picture a kind: the cell as it is, in a selected row of a list with the focus, and disabled, below each other.
class ListPaintGolden : public tests::ListPaintTest, public testing::WithParamInterface<Kind>
{
protected:
    static constexpr int margin = 2;
    static constexpr int right_margin = 36;
    static constexpr int column = 1;
};

INSTANTIATE_TEST_SUITE_P(Kinds, ListPaintGolden, testing::ValuesIn(kinds),
                         [](auto const & info) { return std::string(info.param.name); });

TEST_P(ListPaintGolden, LooksAsKept)
{
    constexpr int rows = 3;
    int const stripHeight = row_height + 2 * margin;
    tests::Canvas sheet(margin + column_width + right_margin, rows * stripHeight);
    for (int row = 0; row < rows; ++row)
    {
        GetParam().make(m_list, row, column);
        CRect part = Cell(row, column);
        part.InflateRect(margin, margin, right_margin, margin);
        if (row == 1)
            Select(row, true);
        if (row == 2)
            m_list.SetEnabled(row, column, false);
        ASSERT_EQ(Paint(row, column), CDRF_SKIPDEFAULT);
        ::BitBlt(sheet.Dc().GetSafeHdc(), 0, row * stripHeight, part.Width(), part.Height(), m_canvas.Dc().GetSafeHdc(),
                 part.left, part.top, SRCCOPY);
    }
    tests::ExpectGolden(sheet, ("list_" + std::string(GetParam().name)).c_str());
}
} // namespace
