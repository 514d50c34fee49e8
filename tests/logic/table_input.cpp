// What keys and presses do with a table's focus and selection.

#include <gtest/gtest.h>

#include "list/table/TableInput.h"
#include "table_StandIn.h"

namespace
{
using namespace table_test;
using table_input::Move;
using table_input::Moved;
using Order = std::vector<TableRow>;

class TableInputTest : public testing::Test
{
protected:
    TableInputTest()
    {
        for (int i = 0; i < 10; ++i)
            m_source->rows.push_back({100 + m_source->rows.size(), {Whole(i)}});
        m_model.SetSource(m_source);
        m_model.FindOrder();
    }

    std::shared_ptr<Source> m_source = std::make_shared<Source>();
    TableModel m_model;
};
} // namespace

TEST(TableMoves, PagesGoToTheEdgeFirst)
{
    EXPECT_EQ(Moved(Move::page_down, 12, 100, 10, 5), 14U);
    EXPECT_EQ(Moved(Move::page_down, 14, 100, 10, 5), 18U);
    EXPECT_EQ(Moved(Move::page_down, 98, 100, 95, 5), 99U);
    EXPECT_EQ(Moved(Move::page_down, 99, 100, 95, 5), 99U);
    EXPECT_EQ(Moved(Move::page_up, 12, 100, 10, 5), 10U);
    EXPECT_EQ(Moved(Move::page_up, 10, 100, 10, 5), 6U);
    EXPECT_EQ(Moved(Move::page_up, 2, 100, 2, 5), 0U);
}

TEST(TableMoves, NoneLeavesTheRows)
{
    EXPECT_EQ(Moved(Move::up, 0, 10, 0, 5), 0U);
    EXPECT_EQ(Moved(Move::down, 9, 10, 5, 5), 9U);
    EXPECT_EQ(Moved(Move::first, 5, 10, 5, 5), 0U);
    EXPECT_EQ(Moved(Move::last, 5, 10, 5, 5), 9U);
    EXPECT_EQ(Moved(Move::down, 0, 0, 0, 5), std::nullopt);
    EXPECT_EQ(Moved(Move::down, TableModel::nowhere, 10, 3, 5), 3U);
    EXPECT_EQ(Moved(Move::last, TableModel::nowhere, 10, 3, 5), 9U);
    EXPECT_EQ(Moved(Move::page_down, 3, 10, 0, 0), 4U) << "a page of nothing counts as one row";
}

TEST_F(TableInputTest, APressSelectsOneRow)
{
    table_input::Go(m_model, 3, false, false);
    table_input::Go(m_model, 5, false, false);
    EXPECT_EQ(m_model.SelectedPositions(), (Order{5}));
    EXPECT_EQ(m_model.FocusPosition(), 5U);
    table_input::Go(m_model, 99, false, false);
    EXPECT_EQ(m_model.FocusPosition(), 5U);
}

TEST_F(TableInputTest, ShiftSelectsFromTheAnchorOn)
{
    table_input::Go(m_model, 3, false, false);
    table_input::Go(m_model, 6, true, false);
    EXPECT_EQ(m_model.SelectedPositions(), (Order{3, 4, 5, 6}));
    table_input::Go(m_model, 2, true, false);
    EXPECT_EQ(m_model.SelectedPositions(), (Order{2, 3}));
    table_input::Flip(m_model, 8);
    table_input::Go(m_model, 9, true, true);
    EXPECT_EQ(m_model.SelectedPositions(), (Order{2, 3, 8, 9}));
}

TEST_F(TableInputTest, ShiftWithoutAnAnchorBeginsThere)
{
    table_input::Go(m_model, 4, true, false);
    EXPECT_EQ(m_model.SelectedPositions(), (Order{4}));
    table_input::Go(m_model, 6, true, false);
    EXPECT_EQ(m_model.SelectedPositions(), (Order{4, 5, 6}));
}

TEST_F(TableInputTest, ControlMovesTheFocusOrFlips)
{
    table_input::Go(m_model, 3, false, false);
    table_input::Go(m_model, 5, false, true);
    EXPECT_EQ(m_model.SelectedPositions(), (Order{3}));
    EXPECT_EQ(m_model.FocusPosition(), 5U);
    table_input::Flip(m_model, 5);
    EXPECT_EQ(m_model.SelectedPositions(), (Order{3, 5}));
    table_input::Flip(m_model, 3);
    EXPECT_EQ(m_model.SelectedPositions(), (Order{5}));
}

TEST(TableTyping, CharactersAddUpUntilAPause)
{
    TypedText typed;
    TypedText::Search search = typed.Add(L'C', 1000);
    EXPECT_EQ(search.text, L"c");
    EXPECT_FALSE(search.fromFocus);
    search = typed.Add(L'h', 1500);
    EXPECT_EQ(search.text, L"ch");
    EXPECT_TRUE(search.fromFocus);
    search = typed.Add(L'h', 3000);
    EXPECT_EQ(search.text, L"h");
    search = typed.Add(L'H', 3100);
    EXPECT_EQ(search.text, L"h");
    EXPECT_FALSE(search.fromFocus) << "on to the next one";
    EXPECT_TRUE(typed.GoesOn(4100));
    EXPECT_FALSE(typed.GoesOn(4101)) << "a new text begins";
    typed.Forget();
    EXPECT_FALSE(typed.GoesOn(3200));
}
