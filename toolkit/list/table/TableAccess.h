#pragma once
// How long work on many rows asks its source, and what others see of it.

#include <atomic>
#include <cstddef>
#include <memory>

#include "list/table/TableSource.h"

/// How far a work has come. Read and stopped from any thread.
class TableProgress
{
public:
    /// Has the work end as soon as it looks.
    void Stop() { m_stopped.store(true, std::memory_order_relaxed); }
    bool Stopped() const { return m_stopped.load(std::memory_order_relaxed); }
    /// Per mille.
    int Done() const { return m_done.load(std::memory_order_relaxed); }

    /// Of the work itself: it goes from one part per mille to another one.
    void Expect(std::size_t units, int from, int to)
    {
        m_units = units == 0 ? 1 : units;
        m_worked = 0;
        m_from = from;
        m_to = to;
        m_done.store(from, std::memory_order_relaxed);
    }
    void Work(std::size_t units)
    {
        m_worked = units < m_units - m_worked ? m_worked + units : m_units;
        auto const part = static_cast<int>(m_worked * static_cast<std::size_t>(m_to - m_from) / m_units);
        m_done.store(m_from + part, std::memory_order_relaxed);
    }

private:
    std::atomic<bool> m_stopped{false};
    std::atomic<int> m_done{0};
    std::size_t m_units = 1;
    std::size_t m_worked = 0;
    int m_from = 0;
    int m_to = 1000;
};

/// Asks a source that may end meanwhile: it is held for some thousand questions at a time. Once it has ended, all cells
/// are blank.
class TableAccess
{
public:
    TableAccess(std::weak_ptr<TableSource const> source, TableProgress & progress)
        : m_source(std::move(source)),
          m_progress(progress)
    {
        Renew();
    }

    /// False once the work is to be stopped.
    bool Read(TableRow row, unsigned int column, TableValue & value)
    {
        if (!Next())
            return false;
        if (m_held == nullptr || !m_held->Read(row, column, value))
            value.SetBlank();
        return true;
    }
    /// The source for one question, or null; to be asked for anew each time.
    TableSource const * Source() { return Next() ? m_held.get() : nullptr; }
    bool Stopped() const { return m_progress.Stopped(); }
    bool Ended() const { return m_held == nullptr; }
    TableProgress & Progress() { return m_progress; }

private:
    bool Next()
    {
        if (++m_asked < questions_at_a_time)
            return true;
        return Renew();
    }
    bool Renew()
    {
        m_asked = 0;
        m_held.reset();
        m_held = m_source.lock();
        return !m_progress.Stopped();
    }

    static constexpr int questions_at_a_time = 4096;

    std::weak_ptr<TableSource const> m_source;
    TableProgress & m_progress;
    std::shared_ptr<TableSource const> m_held;
    int m_asked = 0;
};
