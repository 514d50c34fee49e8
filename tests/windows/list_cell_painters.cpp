// The painters of cells by themselves: what they paint on any context is what a list shows.

#include <functional>
#include <string>
#include <vector>

#include "list/CellPainters.h"
#include "list_PaintTest.h"

namespace
{
class ListCellPainters : public tests::ListPaintTest
{
protected:
    struct Case
    {
        std::string name;
        std::function<void(tests::TestList &)> make;
    };

    /// The cell (1, 1) painted by the painters alone, on the same place: how a system smooths shapes may depend on it.
    std::unique_ptr<tests::Canvas> PaintedAlone()
    {
        m_canvas.Fill(untouched);
        XLISTCTRLDATA const & cell = Data(1, 1);
        CellLook look;
        look.palette = control_colors::Of(ControlColorSet::standard);
        look.alignment = m_alignment;
        look.ellipsis = m_list.GetEllipsis();
        look.padding = m_list.GetCellPadding();
        look.images = m_list.GetImageList(LVSIL_SMALL);
        CellPaint paint{m_canvas.Dc(), cell, Cell(1, 1), cell.textColor, cell.backgroundColor};
        cell_painters::GreyDisabled(cell, look.palette, paint.text, paint.background);
        CString const shown = m_list.GetItemText(1, 1);
        CellText const text([&shown](wchar_t * buffer, int room) {
            ::lstrcpynW(buffer, shown, room);
            return static_cast<int>(std::wcslen(buffer));
        });
        m_painted = cell_painters::PaintCell(paint, look, text);
        return Copy(Cell(1, 1));
    }
    std::unique_ptr<tests::Canvas> PaintedByTheList()
    {
        Paint(1, 1);
        return Copy(Cell(1, 1));
    }
    static testing::AssertionResult AreEqual(tests::Canvas const & a, tests::Canvas const & b)
    {
        for (int y = 0; y < row_height; ++y)
        {
            for (int x = 0; x < column_width; ++x)
            {
                if (a.Pixel(x, y) != b.Pixel(x, y))
                {
                    return testing::AssertionFailure()
                           << "at (" << x << ", " << y << "): " << a.Pixel(x, y) << " and " << b.Pixel(x, y);
                }
            }
        }
        return testing::AssertionSuccess();
    }
    /// A cell without a kind, text, image or colours of its own.
    void Reset()
    {
        Data(1, 1) = XLISTCTRLDATA();
        m_list.CListCtrl::SetItemText(1, 1, L"");
    }

    UINT m_alignment = DT_LEFT;
    bool m_painted = false;
};

constexpr COLORREF ink = RGB(200, 0, 100);
constexpr COLORREF paper = RGB(240, 250, 230);

TEST_F(ListCellPainters, PaintEveryKindAsTheListDoes)
{
    std::vector<Case> const cases = {
        {"text", [](auto & l) { l.SetItemText(1, 1, L"words", ink, paper); }},
        {"empty", [](auto &) {}},
        {"bold", [](auto & l) { l.SetItemText(1, 1, L"words"), l.SetBold(1, 1, true); }},
        {"link", [](auto & l) { l.SetItemText(1, 1, L"words"), l.SetHyperlink(1, 1, true, true); }},
        {"edit with a wash",
         [](auto & l) {
             l.SetItemText(1, 1, L"words");
             l.SetEdit(1, 1, true);
             l.SetItemColors(1, 1, ink, paper, RGB(0, 200, 0));
         }},
        {"image", [](auto & l) { l.SetItemText(1, 1, L"words"), l.SetItemImage(1, 1, 1); }},
        {"unchecked", [](auto & l) { l.SetCheckbox(1, 1, 0); }},
        {"checked with a text", [](auto & l) { l.SetItemText(1, 1, L"a && b"), l.SetCheckbox(1, 1, 1); }},
        {"crossed with an image", [](auto & l) { l.SetCheckbox(1, 1, 2), l.SetItemImage(1, 1, 0); }},
        {"a state without a mark", [](auto & l) { l.SetCheckbox(1, 1, 0), l.SetItemCheckedState(1, 1, 5); }},
        {"radio on", [](auto & l) { l.SetRadioButton(1, 1, 3); }},
        {"radio off", [](auto & l) { l.SetRadioButton(1, 1, 4); }},
        {"combo",
         [](auto & l) {
             l.SetComboBox(1, 1, std::map<int, wchar_t const *>{{1, L"one"}}, 1, 1);
         }},
        {"combo with an image",
         [](auto & l) {
             l.SetComboBox(1, 1, std::map<int, wchar_t const *>{{1, L"one"}}, 1, 1);
             l.SetItemImage(1, 1, 0);
         }},
        {"bar at 0", [](auto & l) { l.SetProgress(1, 1, true, nullptr); }},
        {"bar", [](auto & l) { l.SetProgress(1, 1, true, nullptr), l.UpdateProgress(1, 1, 55, 0); }},
        {"bar beyond its end", [](auto & l) { l.SetProgress(1, 1, true, L"%d of 9"), l.UpdateProgress(1, 1, 150, 3); }},
        {"bar with an image",
         [](auto & l) {
             l.SetProgress(1, 1, false, nullptr);
             l.UpdateProgress(1, 1, 30, 0);
             l.SetItemImage(1, 1, 1);
         }},
    };
    for (Case const & each : cases)
    {
        for (bool const enabled : {true, false})
        {
            Reset();
            each.make(m_list);
            m_list.SetEnabled(1, 1, enabled);
            // What a trough leaves free, the list fills during a whole paint alone.
            m_canvas.Fill(untouched);
            cell_painters::FillMargin(m_canvas.Dc(), Cell(1, 1), ::GetSysColor(COLOR_WINDOW));
            PaintOver(1, 1);
            std::unique_ptr<tests::Canvas> const shown = Copy(Cell(1, 1));
            EXPECT_TRUE(AreEqual(*PaintedAlone(), *shown)) << each.name << (enabled ? "" : ", disabled");
            EXPECT_TRUE(m_painted) << each.name;
        }
    }
}

TEST_F(ListCellPainters, FollowTheAlignmentOfTheColumn)
{
    m_list.SetItemText(1, 1, L"w", ink, paper);
    LVCOLUMNW column{};
    column.mask = LVCF_FMT;
    for (auto const & [format, alignment] : {std::pair{LVCFMT_RIGHT, DT_RIGHT}, std::pair{LVCFMT_CENTER, DT_CENTER}})
    {
        column.fmt = format;
        m_list.SetColumn(1, &column);
        m_alignment = static_cast<UINT>(alignment);
        EXPECT_TRUE(AreEqual(*PaintedAlone(), *PaintedByTheList()));
    }
    m_alignment = DT_LEFT;
    EXPECT_FALSE(AreEqual(*PaintedAlone(), *PaintedByTheList()));
}

TEST_F(ListCellPainters, LeaveACellWithAPainterOfItsOwnToTheControl)
{
    m_list.SetCustomDraw(1, 1, [](int, int, CDC *, CRect const &) {});
    std::unique_ptr<tests::Canvas> const picture = PaintedAlone();
    EXPECT_FALSE(m_painted);
    EXPECT_TRUE(picture->BoundsOfOther(untouched).IsRectEmpty());
}
} // namespace
