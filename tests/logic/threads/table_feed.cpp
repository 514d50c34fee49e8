// A table that threads tell of changes while it looks, sorts and loses its source. Built with the thread sanitizer.

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "list/table/TableModel.h"

namespace
{
constexpr int teller_count = 4;

/// Numbers that threads write while others read.
class LiveSource : public TableSource
{
public:
    static constexpr TableRow most_rows = 200000;

    TableRow RowCount() const override { return m_count.load(std::memory_order_acquire); }
    bool Read(TableRow row, unsigned int, TableValue & value) const override
    {
        if (row >= RowCount())
            return false;
        value.SetWhole(m_values[row].load(std::memory_order_relaxed));
        return true;
    }
    void Put(TableRow row, long long value) { m_values[row].store(value, std::memory_order_relaxed); }
    void Append(long long value)
    {
        std::lock_guard const lock(m_appending);
        TableRow const count = m_count.load(std::memory_order_relaxed);
        if (count == most_rows)
            return;
        Put(count, value);
        m_count.store(count + 1, std::memory_order_release);
    }

private:
    std::mutex m_appending;
    std::vector<std::atomic<long long>> m_values = std::vector<std::atomic<long long>>(most_rows);
    std::atomic<TableRow> m_count{0};
};

class FlagWaker : public TableWaker
{
public:
    std::atomic<bool> woken{false};
    void Wake() override { woken.store(true, std::memory_order_release); }
};

TableModel ModelOf(std::shared_ptr<TableSource> const & source)
{
    TableModel model;
    TableLooks looks;
    looks.columns.resize(1);
    model.SetLooks(std::move(looks));
    model.SetSource(source);
    return model;
}
} // namespace

TEST(TableThreads, NothingThatIsToldGetsLost)
{
    auto const waker = std::make_shared<FlagWaker>();
    auto const feed = std::make_shared<TableFeed>(waker);
    constexpr TableRow rows_a_teller = 20000;
    std::atomic<int> telling{teller_count};
    std::vector<std::thread> tellers;
    for (TableRow teller = 0; teller < teller_count; ++teller)
    {
        tellers.emplace_back([feed, teller, &telling] {
            for (TableRow row = 0; row < rows_a_teller; ++row)
                feed->RowsChanged(2 * (row * teller_count + teller), 2 * (row * teller_count + teller));
            --telling;
        });
    }
    std::vector<bool> told(std::size_t{2} * rows_a_teller * teller_count);
    bool overflow = false;
    for (;;)
    {
        bool const last = telling.load() == 0;
        if (waker->woken.exchange(false))
        {
            TableChanges const changes = feed->Take();
            overflow = overflow || changes.anyValue;
            for (TableRowRange const & each : changes.changed)
            {
                for (TableRow row = each.first; row <= each.last; ++row)
                    told[row] = true;
            }
        }
        else if (last)
        {
            break;
        }
    }
    for (std::thread & each : tellers)
        each.join();
    EXPECT_TRUE(feed->Take().IsEmpty());
    if (!overflow)
    {
        for (std::size_t row = 0; row < told.size(); row += 2)
            ASSERT_TRUE(told[row]) << row;
    }
}

TEST(TableThreads, TheLastValuesAreRightAtTheEnd)
{
    auto const source = std::make_shared<LiveSource>();
    for (int i = 0; i < 2000; ++i)
        source->Append(i);
    auto const waker = std::make_shared<FlagWaker>();
    auto const feed = std::make_shared<TableFeed>(waker);
    TableModel model = ModelOf(source);
    model.SetSort({{0, true}});
    model.FindOrder();
    std::atomic<int> telling{teller_count};
    std::vector<std::thread> tellers;
    for (unsigned int teller = 0; teller < teller_count; ++teller)
    {
        tellers.emplace_back([source, feed, teller, &telling] {
            unsigned int random = teller + 1;
            for (int i = 0; i < 20000; ++i)
            {
                random = random * 1664525U + 1013904223U;
                if (random >> 28 == 0)
                {
                    source->Append(random & 0xFFFF);
                    feed->RowsAppended(1);
                }
                else
                {
                    TableRow const row = (random >> 8) % source->RowCount();
                    source->Put(row, random & 0xFFFF);
                    feed->RowsChanged(row, row);
                }
            }
            --telling;
        });
    }
    std::shared_ptr<TableOrderTask> task;
    std::thread worker;
    for (;;)
    {
        bool const last = telling.load() == 0;
        if (waker->woken.exchange(false))
            model.Apply(feed->Take());
        else if (last)
            break;
        if (!task)
        {
            task = model.BeginOrder();
            worker = std::thread([task] { task->Run(); });
        }
        else if (task->Finished())
        {
            worker.join();
            model.TakeOrder(*task);
            task.reset();
        }
    }
    for (std::thread & each : tellers)
        each.join();
    if (task)
    {
        worker.join();
        model.TakeOrder(*task);
    }
    // Values that moved while they were compared may stand wrongly until they are told of again: all are told by now.
    model.Apply({});
    EXPECT_EQ(model.Size(), source->RowCount());
    std::vector<bool> seen(source->RowCount());
    for (TableRow position = 0; position < model.Size(); ++position)
        seen.at(model.RowAt(position)) = true;
    EXPECT_EQ(std::count(seen.begin(), seen.end(), true), static_cast<std::ptrdiff_t>(seen.size()));
    TableChanges all;
    all.all = true;
    model.Apply(all);
    TableValue before;
    TableValue value;
    for (TableRow position = 1; position < model.Size(); ++position)
    {
        model.Read(position - 1, 0, before);
        model.Read(position, 0, value);
        ASSERT_GE(before.Whole(), value.Whole()) << position;
    }
}

TEST(TableThreads, ASourceMayEndWhileItIsSorted)
{
    for (int round = 0; round < 20; ++round)
    {
        auto source = std::make_shared<LiveSource>();
        for (TableRow i = 0; i < 30000; ++i)
            source->Append((i * 7919) % 30011);
        TableModel model = ModelOf(source);
        model.SetSort({{0, false}});
        std::shared_ptr<TableOrderTask> const task = model.BeginOrder();
        std::thread worker([task] { task->Run(); });
        while (task->Progress().Done() < round * 50 && !task->Finished())
            std::this_thread::yield();
        source.reset();
        TableValue value;
        model.Read(0, 0, value);
        worker.join();
        model.TakeOrder(*task);
        model.Apply({});
        EXPECT_EQ(model.Size(), 0U);
    }
}

TEST(TableThreads, ATaskIsStoppedFromOutside)
{
    auto const source = std::make_shared<LiveSource>();
    for (TableRow i = 0; i < LiveSource::most_rows; ++i)
        source->Append((i * 7919LL) % 200003);
    TableModel model = ModelOf(source);
    model.SetSort({{0, false}});
    std::shared_ptr<TableOrderTask> const task = model.BeginOrder();
    std::thread worker([task] { task->Run(); });
    while (task->Progress().Done() == 0 && !task->Finished())
        std::this_thread::yield();
    task->Progress().Stop();
    worker.join();
    EXPECT_TRUE(task->Finished());
    model.TakeOrder(*task);
    EXPECT_EQ(model.Size(), LiveSource::most_rows);
}
