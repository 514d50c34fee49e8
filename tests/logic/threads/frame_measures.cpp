// A recording's analysis frames, measured on one thread while others read them and are told of them.

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include "list/table/TableModel.h"
#include "logic/FrameMeasuresJob.h"
#include "logic/FrameTable.h"

namespace
{
using namespace workbench;

constexpr std::uint32_t rate = 8000;
constexpr std::uint32_t seconds = 20;

/// A square wave of 1,000 Hz with 16 bits.
class Wave : public ByteSource
{
public:
    Wave()
    {
        auto const put = [this](std::uint32_t value) {
            for (int i = 0; i < 4; ++i)
                m_bytes.push_back(static_cast<std::byte>(value >> (8 * i)));
        };
        std::uint32_t const bytes = rate * seconds * 2;
        for (std::uint32_t const value : {0x46464952U, bytes + 36, 0x45564157U, 0x20746D66U, 16U, 0x00010001U, rate,
                                          rate * 2, 0x00100002U, 0x61746164U, bytes})
            put(value);
        for (std::uint32_t i = 0; i < rate * seconds; i += 2)
            put(i % 8 < 4 ? 0x20002000U : 0xE000E000U);
    }
    std::uint64_t Size() const override { return m_bytes.size(); }
    std::size_t Read(std::uint64_t offset, std::span<std::byte> buffer) override
    {
        return MemoryByteSource(m_bytes).Read(offset, buffer);
    }

private:
    std::vector<std::byte> m_bytes;
};
} // namespace

TEST(FrameMeasuresThreads, RowsAreReadSortedAndToldWhileOthersAreMeasured)
{
    auto const feed = std::make_shared<TableFeed>(nullptr);
    std::atomic<int> ends = 0;
    FrameMeasuresJob::Listener listener;
    listener.appended = [feed](std::size_t count) { feed->RowsAppended(static_cast<TableRow>(count)); };
    listener.ended = [&ends] { ++ends; };
    FrameMeasuresJob job([] { return std::make_unique<Wave>(); }, listener);
    auto const table = std::make_shared<FrameTable>(job.Rows());
    TableModel model;
    TableLooks looks;
    looks.columns.resize(FrameTable::column_count);
    model.SetLooks(looks);
    model.SetSource(table);
    // One thread reads whatever there is.
    std::atomic<bool> stop = false;
    std::thread reader([&] {
        TableValue value;
        while (!stop)
        {
            TableRow const count = table->RowCount();
            for (unsigned int column = 0; count > 0 && column < FrameTable::column_count; ++column)
                ASSERT_TRUE(table->Read(count - 1, column, value));
            ASSERT_FALSE(table->Read(no_table_row, 0, value));
        }
    });
    // Another one keeps the table in order.
    model.SetSort({{FrameTable::column_peak, true}, {FrameTable::column_time, true}});
    while (ends == 0)
    {
        model.Apply(feed->Take());
        if (model.NeedsOrder())
            model.FindOrder();
    }
    stop = true;
    reader.join();
    model.Apply(feed->Take());
    EXPECT_EQ(model.Size(), seconds * 1000);
    ASSERT_TRUE(job.GetResult());
    EXPECT_TRUE(job.GetResult()->whole);
    EXPECT_EQ(table->RowCount(), seconds * 1000);
}

TEST(FrameMeasuresThreads, AJobIsGivenUpAtAnyMoment)
{
    for (int round = 0; round < 20; ++round)
    {
        std::atomic<std::size_t> told = 0;
        FrameMeasuresJob::Listener listener;
        listener.appended = [&told](std::size_t count) { told += count; };
        listener.ended = [] {};
        std::shared_ptr<FrameStore const> rows;
        {
            FrameMeasuresJob job([] { return std::make_unique<Wave>(); }, listener);
            rows = job.Rows();
            while (rows->Size() < static_cast<std::size_t>(round) * 50)
                std::this_thread::yield();
        }
        EXPECT_GE(rows->Size(), told);
    }
}
