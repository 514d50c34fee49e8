// What programs that read the screen are told of a list: its elements, where they stand and what they say.

#include <gtest/gtest.h>

#include <vector>

#include "access/AccessibleList.h"

using accessible::Direction;
using accessible::Element;
using accessible::Role;

namespace
{
/// Three rows and four columns of 50 by 20 pixels in a window of 150 by 50.
class TableOfCells final : public AccessibleList
{
public:
    static constexpr int rows = 3;
    static constexpr int columns = 4;

    TableOfCells() : cells(std::size_t{rows} * columns) {}
    XLISTCTRLDATA & At(int row, int col) { return cells[static_cast<std::size_t>(row * columns + col)]; }

    int RowCount() const override { return rows; }
    int ColumnCount() const override { return columns; }
    XLISTCTRLDATA const * Cell(int row, int col) const override
    {
        if (row < 0 || row >= rows || col < 0 || col >= cellsInRow)
            return nullptr;
        return &cells[static_cast<std::size_t>(row * columns + col)];
    }
    std::wstring Text(int row, int col) const override { return std::to_wstring(row) + L"," + std::to_wstring(col); }
    std::wstring Title(int col) const override { return col == 3 ? L"" : L"c" + std::to_wstring(col); }
    std::optional<std::wstring> KindText(int row, int col) const override
    {
        return row == 2 && col == 2 ? kindText : std::nullopt;
    }
    std::optional<CRect> CellRect(int row, int col) const override
    {
        return CRect(col * 50, row * 20, col * 50 + 50, row * 20 + 20);
    }
    std::optional<CRect> RowRect(int row) const override { return CRect(0, row * 20, 200, row * 20 + 20); }
    CRect ClientRect() const override { return {0, 0, 150, 50}; }
    std::pair<int, int> CellAt(CPoint point) const override
    {
        return point.y < 45 ? std::pair<int, int>(point.y / 20, point.x / 50) : std::pair<int, int>(-1, -1);
    }
    bool IsEnabled() const override { return enabled; }
    bool HasFocus() const override { return hasFocus; }
    bool IsMultiSelect() const override { return true; }
    int FocusedRow() const override { return 1; }
    int FocusedCol() const override { return focusedCol; }
    int NextSelected(int after) const override { return after < 1 ? 1 : -1; }
    bool CanTick(int) const override { return canTick; }
    CRect SightRect(int col) const override { return col == 1 && isBelow ? CRect(120, 0, 150, 50) : ClientRect(); }

    std::vector<XLISTCTRLDATA> cells;
    std::optional<std::wstring> kindText;
    int cellsInRow = columns;
    bool enabled = true;
    bool hasFocus = false;
    bool canTick = true;
    bool isBelow = false;
    int focusedCol = -1;
};

class AccessibleLists : public testing::Test
{
protected:
    accessible::Description Cell(int row, int col) { return accessible::Describe(m_list, {row, col}); }

    TableOfCells m_list;
};
} // namespace

TEST_F(AccessibleLists, NumbersNameElements)
{
    EXPECT_EQ(accessible::NumberOf({}), 0);
    EXPECT_EQ(accessible::NumberOf({4, -1}), 5);
    EXPECT_EQ(accessible::NumberOf({1, 300}), 0) << "beyond the numbered columns";
    EXPECT_EQ(accessible::NumberOf({9000000, 0}), 0);
    for (Element const element : {Element{}, {0, -1}, {2147483646, -1}, {0, 0}, {0, 255}, {1, 0}, {5000, 17}})
        EXPECT_EQ(accessible::ElementOf(accessible::NumberOf(element)), element) << element.row << ' ' << element.col;
    EXPECT_TRUE(accessible::ElementOf(-2147483647L - 1).IsControl());
}

TEST_F(AccessibleLists, AreTreesOfRowsAndCells)
{
    EXPECT_EQ(accessible::ChildCount(m_list, {}), 3);
    EXPECT_EQ(accessible::ChildCount(m_list, {1, -1}), 4);
    EXPECT_EQ(accessible::ChildCount(m_list, {1, 1}), 0);
    EXPECT_EQ(accessible::Child(m_list, {}, 2), (Element{2, -1}));
    EXPECT_EQ(accessible::Child(m_list, {2, -1}, 3), (Element{2, 3}));
    EXPECT_FALSE(accessible::Child(m_list, {}, 3));
    EXPECT_FALSE(accessible::Child(m_list, {}, -1));
    EXPECT_TRUE(accessible::Exists(m_list, {2, 3}));
    EXPECT_FALSE(accessible::Exists(m_list, {2, 4}));
    EXPECT_FALSE(accessible::Exists(m_list, {3, -1}));
}

TEST_F(AccessibleLists, AreWalkedFromElementToElement)
{
    struct
    {
        Element from;
        Direction direction;
        std::optional<Element> to;
    } const steps[] = {
        {{}, Direction::first_child, Element{0, -1}},
        {{}, Direction::last_child, Element{2, -1}},
        {{}, Direction::next, {}},
        {{1, -1}, Direction::first_child, Element{1, 0}},
        {{1, -1}, Direction::last_child, Element{1, 3}},
        {{1, -1}, Direction::next, Element{2, -1}},
        {{1, -1}, Direction::up, Element{0, -1}},
        {{0, -1}, Direction::previous, {}},
        {{2, -1}, Direction::down, {}},
        {{1, -1}, Direction::right, {}},
        {{1, -1}, Direction::left, {}},
        {{1, 1}, Direction::up, Element{0, 1}},
        {{1, 1}, Direction::down, Element{2, 1}},
        {{1, 1}, Direction::left, Element{1, 0}},
        {{1, 1}, Direction::previous, Element{1, 0}},
        {{1, 1}, Direction::next, Element{1, 2}},
        {{1, 0}, Direction::left, {}},
        {{1, 3}, Direction::right, {}},
        {{0, 1}, Direction::up, {}},
        {{2, 1}, Direction::down, {}},
        {{1, 1}, Direction::first_child, {}},
    };
    for (auto const & step : steps)
    {
        EXPECT_EQ(accessible::Navigate(m_list, step.from, step.direction), step.to)
            << step.from.row << ' ' << step.from.col << ' ' << static_cast<int>(step.direction);
    }
}

TEST_F(AccessibleLists, AreHitInCellsRowsAndBesideThem)
{
    EXPECT_EQ(accessible::ElementAt(m_list, {60, 25}), (Element{1, 1}));
    EXPECT_EQ(accessible::ElementAt(m_list, {60, 48}), Element{});
    EXPECT_FALSE(accessible::ElementAt(m_list, {60, 60}));
    EXPECT_EQ(accessible::RectOf(m_list, {1, 2}), CRect(100, 20, 150, 40));
    EXPECT_EQ(accessible::RectOf(m_list, {1, -1}), CRect(0, 20, 200, 40));
    EXPECT_EQ(accessible::RectOf(m_list, {}), CRect(0, 0, 150, 50));
}

TEST_F(AccessibleLists, TellTheKindOfEachCell)
{
    m_list.At(0, 1).MakeEdit();
    m_list.At(0, 2).MakeLink();
    m_list.At(1, 0).MakeCheck(XLC_UNCHECKED);
    m_list.At(1, 1).MakeCheck(XLC_CHECKED);
    m_list.At(1, 2).MakeCheck(XLC_CROSSED);
    m_list.At(2, 0).MakeCheck(XLC_RADIO_ON);
    m_list.At(2, 3).MakeCheck(XLC_RADIO_OFF);
    m_list.At(2, 1).MakeCombo();
    m_list.At(2, 2).MakeProgress();
    m_list.At(2, 2).progressValue = 45;
    struct
    {
        Element cell;
        Role role;
        wchar_t const * value;
        wchar_t const * action;
        long states;
    } const expected[] = {
        {{0, 0}, Role::cell, L"0,0", L"", accessible::state::read_only},
        {{0, 1}, Role::text, L"0,1", L"Edit", 0},
        {{0, 2}, Role::link, L"0,2", L"Jump", accessible::state::linked},
        {{1, 0}, Role::check_box, L"1,0", L"Check", 0},
        {{1, 1}, Role::check_box, L"1,1", L"Uncheck", accessible::state::checked},
        {{1, 2}, Role::check_box, L"1,2", L"", accessible::state::mixed | accessible::state::read_only},
        {{2, 0}, Role::radio_button, L"2,0", L"", accessible::state::checked},
        {{2, 3}, Role::radio_button, L"2,3", L"Check", accessible::state::offscreen},
        {{2, 1}, Role::drop_down, L"2,1", L"Open", accessible::state::has_popup},
        {{2, 2}, Role::progress, L"45%", L"", accessible::state::read_only},
    };
    for (auto const & cell : expected)
    {
        SCOPED_TRACE(testing::Message() << cell.cell.row << ' ' << cell.cell.col);
        accessible::Description const described = accessible::Describe(m_list, cell.cell);
        EXPECT_EQ(described.role, cell.role);
        EXPECT_EQ(described.name, cell.cell.col < 3 ? L"c" + std::to_wstring(cell.cell.col) : L"2,3");
        EXPECT_EQ(described.value, cell.value);
        EXPECT_EQ(described.action, cell.action);
        EXPECT_EQ(described.states, cell.states);
    }
}

TEST_F(AccessibleLists, TellWhatCellsLack)
{
    m_list.At(1, 0).MakeCheck(XLC_CHECKED);
    m_list.At(1, 0).properties &= ~XLP_ENABLED;
    EXPECT_EQ(Cell(1, 0).states, accessible::state::checked | accessible::state::unavailable);
    EXPECT_EQ(Cell(1, 0).action, L"");
    EXPECT_EQ(Cell(1, 3).name, L"1,3") << "a column without a title";
    EXPECT_EQ(Cell(1, 3).states & accessible::state::offscreen, accessible::state::offscreen);
    m_list.cellsInRow = 1;
    EXPECT_EQ(Cell(1, 1).role, Role::cell) << "a row that is short";
    m_list.cellsInRow = 4;
    m_list.kindText = L"three stars";
    EXPECT_EQ(Cell(2, 2).value, L"three stars");
    EXPECT_EQ(Cell(2, 2).action, L"Press");
    m_list.enabled = false;
    EXPECT_NE(Cell(0, 0).states & accessible::state::unavailable, 0);
}

TEST_F(AccessibleLists, MayHaveTicksThatNobodyChanges)
{
    m_list.At(0, 0).MakeCheck(XLC_CHECKED);
    m_list.canTick = false;
    EXPECT_EQ(Cell(0, 0).action, L"");
    EXPECT_EQ(Cell(0, 0).states, accessible::state::checked | accessible::state::read_only);
}

TEST_F(AccessibleLists, MayHaveColumnsBelowOthers)
{
    EXPECT_EQ(Cell(0, 1).states & accessible::state::offscreen, 0);
    m_list.isBelow = true;
    EXPECT_NE(Cell(0, 1).states & accessible::state::offscreen, 0);
    EXPECT_EQ(Cell(0, 2).states & accessible::state::offscreen, 0);
}

TEST_F(AccessibleLists, TellOfSelectionAndFocus)
{
    using namespace accessible::state;
    EXPECT_EQ(accessible::Describe(m_list, {0, -1}).states, selectable | focusable);
    EXPECT_EQ(accessible::Describe(m_list, {1, -1}).states, selectable | focusable | selected);
    EXPECT_EQ(accessible::Describe(m_list, {}).states, focusable | multi_selectable);
    m_list.hasFocus = true;
    EXPECT_EQ(accessible::Describe(m_list, {1, -1}).states, selectable | focusable | selected | focused);
    EXPECT_EQ(accessible::Describe(m_list, {}).states, focusable | multi_selectable | focused);
    EXPECT_EQ(accessible::Describe(m_list, {1, -1}).name, L"1,0");
    EXPECT_EQ(accessible::Describe(m_list, {1, -1}).role, Role::row);
    EXPECT_EQ(accessible::Describe(m_list, {}).role, Role::list);

    // With a cell cursor the focus is a cell's.
    m_list.focusedCol = 2;
    EXPECT_EQ(accessible::Describe(m_list, {1, -1}).states, selectable | focusable | selected);
    EXPECT_EQ(Cell(1, 2).states & (focusable | focused), focusable | focused);
    EXPECT_EQ(Cell(1, 1).states & (focusable | focused), focusable);
    m_list.hasFocus = false;
    EXPECT_EQ(Cell(1, 2).states & (focusable | focused), focusable);
}
