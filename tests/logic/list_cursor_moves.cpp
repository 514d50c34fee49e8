// How a list's cell cursor moves, and which keys act at which cells.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "list/CursorMoves.h"

using cursor_moves::ActKey;
using cursor_moves::Grid;
using cursor_moves::MoveKey;
using cursor_moves::Place;

TEST(CursorMoves, GoAlongTheColumnsThatShow)
{
    // Column 1 is hidden, 3 stands first.
    Grid const grid{5, {3, 0, 2}};
    struct
    {
        int from;
        MoveKey key;
        bool control;
        int to;
    } const moves[] = {
        {0, MoveKey::left, false, 3},  {0, MoveKey::right, false, 2}, {3, MoveKey::left, false, 3},
        {2, MoveKey::right, false, 2}, {0, MoveKey::home, false, 3},  {0, MoveKey::end, false, 2},
        {0, MoveKey::left, true, 3},   {3, MoveKey::right, true, 2},  {2, MoveKey::home, true, 3},
        {3, MoveKey::end, true, 2},    {1, MoveKey::right, false, 3}, {1, MoveKey::end, false, 2},
    };
    for (auto const & move : moves)
    {
        EXPECT_EQ(cursor_moves::ColumnAfter(grid, move.from, move.key, move.control), move.to)
            << move.from << ' ' << static_cast<int>(move.key) << ' ' << move.control;
    }
    EXPECT_EQ(cursor_moves::ColumnAfter({5, {}}, 0, MoveKey::right, false), -1);
}

TEST(CursorMoves, NextChangeableCellIsFoundInReadingOrder)
{
    Grid const grid{3, {2, 0, 1}};
    std::set<Place> const changeable = {{0, 0}, {2, 2}, {2, 1}};
    auto const ask = [&](int row, int col) { return changeable.contains({row, col}); };
    EXPECT_EQ(cursor_moves::NextChangeable(grid, {0, 2}, true, ask), Place(0, 0));
    EXPECT_EQ(cursor_moves::NextChangeable(grid, {0, 0}, true, ask), Place(2, 2));
    EXPECT_EQ(cursor_moves::NextChangeable(grid, {2, 2}, true, ask), Place(2, 1));
    EXPECT_FALSE(cursor_moves::NextChangeable(grid, {2, 1}, true, ask));
    EXPECT_EQ(cursor_moves::NextChangeable(grid, {2, 1}, false, ask), Place(2, 2));
    EXPECT_EQ(cursor_moves::NextChangeable(grid, {2, 2}, false, ask), Place(0, 0));
    EXPECT_FALSE(cursor_moves::NextChangeable(grid, {0, 0}, false, ask));
    EXPECT_FALSE(cursor_moves::NextChangeable({3, {}}, {0, 0}, true, ask)) << "no column shows";
    EXPECT_FALSE(cursor_moves::NextChangeable({0, {0}}, {0, 0}, true, ask)) << "no row";
}

// Forward and back again, from every cell of random grids: the same cells in the opposite order.
TEST(CursorMoves, WayThereIsTheWayBack)
{
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round)
    {
        Grid grid;
        grid.rowCount = static_cast<int>(random() % 6);
        for (int col = 0; col < 5; ++col)
        {
            if (random() % 4 != 0)
                grid.columns.push_back(col);
        }
        std::shuffle(grid.columns.begin(), grid.columns.end(), random);
        unsigned int const seed = random();
        auto const ask = [&](int row, int col) { return (seed >> (row * 5 + col)) % 2 != 0; };
        std::vector<Place> forward;
        Place const ahead(0, -1);
        for (std::optional<Place> place = cursor_moves::NextChangeable(grid, ahead, true, ask); place;
             place = cursor_moves::NextChangeable(grid, *place, true, ask))
        {
            forward.push_back(*place);
            ASSERT_LE(forward.size(), 30U);
        }
        std::vector<Place> all;
        for (int row = 0; row < grid.rowCount; ++row)
        {
            for (int const col : grid.columns)
            {
                if (ask(row, col))
                    all.emplace_back(row, col);
            }
        }
        ASSERT_EQ(forward, all);
        for (std::size_t i = 1; i < all.size(); ++i)
            ASSERT_EQ(cursor_moves::NextChangeable(grid, all[i], false, ask), all[i - 1]);
        if (!all.empty())
        {
            ASSERT_FALSE(cursor_moves::NextChangeable(grid, all.front(), false, ask));
        }
    }
}

TEST(CursorMoves, KeysActAtCellsOfTheirKinds)
{
    struct
    {
        CellPress press;
        std::set<ActKey> keys;
        bool changes;
    } const cells[] = {
        {CellPress::ignored, {}, false},
        {CellPress::select_only, {}, false},
        {CellPress::open_combo, {ActKey::edit, ActKey::drop_down}, true},
        {CellPress::open_edit, {ActKey::edit, ActKey::character}, true},
        {CellPress::follow_link, {ActKey::enter}, false},
        {CellPress::flip_check, {ActKey::space}, true},
        {CellPress::switch_radio_on, {ActKey::space}, true},
    };
    for (auto const & cell : cells)
    {
        for (ActKey const key : {ActKey::space, ActKey::edit, ActKey::character, ActKey::drop_down, ActKey::enter})
        {
            EXPECT_EQ(cursor_moves::Acts(key, cell.press), cell.keys.contains(key))
                << static_cast<int>(key) << ' ' << static_cast<int>(cell.press);
        }
        EXPECT_EQ(cursor_moves::CanBeChanged(cell.press), cell.changes);
    }
}
