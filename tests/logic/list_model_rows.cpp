// What a list's model keeps of rows that come and go, also where the host changes rows as soon as it hears of it.

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "list_ItemTable.h"

namespace
{
class ListModelRows : public testing::Test
{
protected:
    using Numbers = std::vector<long long>;

    ListModelRows()
    {
        m_items.columns.assign(2, {50, XHC_NONE});
        m_items.memory = &m_model.memory;
    }

    int Insert(int position, long long data)
    {
        return m_model.InsertRow({0, 0xFFFFFF, -1, nullptr, data}, [&](XLISTCTRLROW & object) {
            return m_items.Insert(position, std::to_wstring(data).c_str(), &object);
        });
    }
    void InsertAll(Numbers const & words)
    {
        for (long long const word : words)
            Insert(m_items.RowCount(), word);
    }
    /// Does something once, as soon as items have changed so many times.
    void After(int changes, std::function<void()> act)
    {
        m_items.onChange = [this, changes, act = std::move(act)]() mutable {
            if (--changes != 0)
                return;
            m_items.onChange = nullptr;
            act();
        };
    }
    /// The words of the rows, from the top.
    Numbers Words() const
    {
        Numbers words;
        for (int row = 0; row < m_items.RowCount(); ++row)
            words.push_back(m_model.FirstCell(row)->itemData64);
        return words;
    }
    /// Each item has an object of its own, and no other object is in use.
    bool IsSound() const
    {
        std::set<XLISTCTRLROW const *> objects;
        for (ItemTable::Item const & item : m_items.items)
        {
            if (m_model.pool.Owns(item.parameter))
                objects.insert(item.parameter);
        }
        return objects.size() == m_items.items.size() && m_model.pool.used() == objects.size();
    }

    ItemTable m_items;
    ListModel m_model{m_items};
};
} // namespace

TEST_F(ListModelRows, ANewRowHasItsWordsAndColours)
{
    int word = 0;
    int const row = m_model.InsertRow({0x123456, 0x654321, 3, &word, 77},
                                      [&](XLISTCTRLROW & object) { return m_items.Insert(0, L"text", &object); });
    ASSERT_EQ(row, 0);
    XLISTCTRLDATA const & cell = *m_model.FirstCell(0);
    EXPECT_EQ(cell.textColor, 0x123456U);
    EXPECT_EQ(cell.backgroundColor, 0x654321U);
    EXPECT_EQ(cell.imageIndex, 3);
    EXPECT_EQ(cell.itemDataPtr, &word);
    EXPECT_EQ(cell.itemData64, 77);
}

TEST_F(ListModelRows, ARefusedInsertionTakesNoRow)
{
    EXPECT_EQ(m_model.InsertRow({}, [](XLISTCTRLROW &) { return -1; }), -1);
    EXPECT_EQ(m_model.InsertRow({},
                                [this](XLISTCTRLROW &) {
                                    m_items.Change([] {});
                                    return -1;
                                }),
              -1);
    EXPECT_EQ(m_model.pool.used(), 0U);
}

TEST_F(ListModelRows, ADeletedRowIsGivenBack)
{
    InsertAll({1, 2, 3});
    EXPECT_TRUE(m_model.DeleteRow(1));
    EXPECT_EQ(Words(), (Numbers{1, 3}));
    EXPECT_TRUE(IsSound());
    EXPECT_FALSE(m_model.DeleteRow(2));
    EXPECT_FALSE(m_model.DeleteRow(-1));
    EXPECT_EQ(Words(), (Numbers{1, 3}));
}

TEST_F(ListModelRows, ARowThatTheHostDeletesAtOnceIsNowhere)
{
    InsertAll({1, 2});
    After(1, [this] { m_model.DeleteRow(1); });
    EXPECT_EQ(Insert(1, 9), -1);
    EXPECT_EQ(Words(), (Numbers{1, 2}));
    EXPECT_TRUE(IsSound());
}

TEST_F(ListModelRows, ARowIsNowhereWhoseObjectServesAnotherOne)
{
    InsertAll({1, 2});
    After(1, [this] {
        m_model.DeleteRow(1);
        Insert(0, 8);
    });
    EXPECT_EQ(Insert(1, 9), -1);
    EXPECT_EQ(Words(), (Numbers{8, 1, 2}));
    EXPECT_TRUE(IsSound());
}

TEST_F(ListModelRows, ANewRowIsFoundWhereTheHostHasMovedIt)
{
    InsertAll({1, 2});
    After(1, [this] { Insert(0, 8); });
    EXPECT_EQ(Insert(1, 9), 2);
    EXPECT_EQ(Words(), (Numbers{8, 1, 9, 2}));
    EXPECT_TRUE(IsSound());
}

TEST_F(ListModelRows, TheRowThatWasMeantIsDeletedWhereverItHasGone)
{
    InsertAll({1, 2, 3});
    // The host hears first that the item loses its object.
    After(1, [this] { Insert(0, 8); });
    EXPECT_TRUE(m_model.DeleteRow(1));
    EXPECT_EQ(Words(), (Numbers{8, 1, 3}));
    EXPECT_TRUE(IsSound());
}

TEST_F(ListModelRows, ARowThatTheHostHasDeletedIsNotDeletedTwice)
{
    InsertAll({1, 2, 3});
    After(1, [this] { m_items.Delete(1); });
    EXPECT_FALSE(m_model.DeleteRow(1));
    EXPECT_EQ(Words(), (Numbers{1, 3}));
    EXPECT_TRUE(IsSound());
}

TEST_F(ListModelRows, RowsThatComeWhileAllAreDeletedStay)
{
    InsertAll({1, 2, 3});
    After(1, [this] { Insert(0, 8); });
    EXPECT_TRUE(m_model.DeleteAllRows());
    EXPECT_EQ(Words(), (Numbers{8}));
    EXPECT_TRUE(IsSound());
}

TEST_F(ListModelRows, AllAreGivenBackWithTheirItems)
{
    InsertAll({1, 2, 3});
    m_model.memory.LoseStep();
    EXPECT_TRUE(m_model.DeleteAllRows());
    EXPECT_EQ(m_model.pool.used(), 0U);
    EXPECT_TRUE(m_model.memory.IsInStep());
}

TEST_F(ListModelRows, ItemsThatShareAnObjectGetOneEach)
{
    InsertAll({1, 2, 3});
    m_items.items[2].parameter = m_items.items[0].parameter;
    m_model.PutRowsInOrder();
    EXPECT_TRUE(IsSound());
    EXPECT_EQ(Words()[0], 1);
    EXPECT_EQ(Words()[1], 2);
}

TEST_F(ListModelRows, ASpareObjectIsTakenBeforeANewOne)
{
    InsertAll({1, 2});
    XLISTCTRLROW * const second = m_items.items[1].parameter;
    m_items.items[1].parameter = m_items.items[0].parameter;
    ListModel::Pin const pin(m_model, second);
    m_model.PutRowsInOrder(std::vector{second});
    EXPECT_EQ(m_items.items[1].parameter, second);
    EXPECT_EQ(Words(), (Numbers{1, 2}));
}

TEST_F(ListModelRows, WhileRowsAreTradedSharedObjectsStay)
{
    InsertAll({1, 2});
    m_items.items[1].parameter = m_items.items[0].parameter;
    ++m_model.swaps;
    m_model.PutRowsInOrder();
    EXPECT_EQ(m_items.items[1].parameter, m_items.items[0].parameter);
}

TEST_F(ListModelRows, AHostThatMovesRowsForEverIsLeftAlone)
{
    InsertAll({1, 2});
    int changes = 0;
    m_items.onChange = [this, &changes] {
        ++changes;
        // Past the model, without any news of it.
        m_items.items[1].parameter = m_items.items[0].parameter;
        m_model.memory.BeginChange();
        m_model.memory.EndChange();
    };
    m_items.items[1].parameter = m_items.items[0].parameter;
    m_model.PutRowsInOrder();
    EXPECT_GT(changes, 1);
    EXPECT_LT(changes, 100);
}

TEST_F(ListModelRows, APressChangesChecksAndLeavesTheRestToTheList)
{
    InsertAll({1, 2});
    m_model.SetCheckbox(0, 0, XLC_UNCHECKED);
    m_model.SetHyperlink(1, 0, true, false);
    ListModel::HeldRow first(m_model, 0);
    EXPECT_EQ(m_model.PressCell(first, 0), CellPress::flip_check);
    EXPECT_EQ(m_model.CheckedState(0, 0), XLC_CHECKED);
    EXPECT_EQ(m_model.PressCell(first, 1), CellPress::select_only);
    EXPECT_EQ(m_model.PressCell(first, 7), CellPress::select_only);
    ListModel::HeldRow second(m_model, 1);
    EXPECT_EQ(m_model.PressCell(second, 0), CellPress::follow_link);
    m_model.SetRadioButton(0, 1, XLC_RADIO_ON);
    m_model.SetRadioButton(1, 1, XLC_RADIO_OFF);
    EXPECT_EQ(m_model.PressCell(second, 1), CellPress::switch_radio_on);
    EXPECT_EQ(m_model.ActiveRadio(1), 1);
}
