#pragma once
// A host that does its worst: what the chaos tests share. Each message, callback and virtual function of the host asks
// Chaos whether to perform a random operation, which sends messages of its own.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <random>

#include "GdiHandleCount.h"
#include "GuardedHeap.h"
#include "Pump.h"
#include "ScopedWindow.h"
#include "TestApp.h"
#include "ThreadWindows.h"

namespace chaos
{
inline constexpr unsigned int seeds[] = {1, 22, 333, 4444, 55555};
/// Operations of one seed, those within others included.
inline constexpr int steps_per_seed = 2000;
/// Operations within operations.
inline constexpr int deepest = 4;

class Chaos
{
public:
    explicit Chaos(unsigned int seed) : m_random(seed) {}
    virtual ~Chaos() = default;
    Chaos(Chaos const &) = delete;
    Chaos & operator=(Chaos const &) = delete;

    /// 0 to below the limit.
    int Pick(int limit) { return static_cast<int>(m_random() % static_cast<unsigned int>(limit)); }
    bool OneIn(int chances) { return Pick(chances) == 0; }

    /// Called by whatever code of the host runs: now and then performs an operation.
    void Disturb()
    {
        if (!m_resting && m_depth > 0 && m_depth < deepest && OneIn(8))
            Step();
    }

    /// Operations until there were that many, with the invariants checked after each.
    void Run(int steps, tests::GuardedHeap & heap)
    {
        constexpr int steps_between_checks = 200;
        int checked = 0;
        while (m_steps < steps)
        {
            Step();
            CheckInvariants();
            if (testing::Test::HasFailure())
                FAIL() << "after " << m_steps << " operations, the last one " << m_last;
            if (m_steps - checked >= steps_between_checks)
            {
                checked = m_steps;
                ASSERT_EQ(heap.Check(), 0u) << "after " << m_steps << " operations, the last one " << m_last;
            }
        }
        m_resting = true;
    }
    int Steps() const { return m_steps; }

    /// GDI objects that the window system may come to hold: fonts of menus and captions.
    static constexpr int kept_by_the_system = 16;

protected:
    /// One random operation.
    virtual void Operate() = 0;
    virtual void CheckInvariants() = 0;
    /// The name of the operation, for the report of a failure.
    void Note(char const * operation) { m_last = operation; }

private:
    void Step()
    {
        ++m_steps;
        ++m_depth;
        Operate();
        --m_depth;
    }

    std::mt19937 m_random;
    int m_depth = 0;
    int m_steps = 0;
    bool m_resting = false;
    char const * m_last = "";
};

/// Runs the world of a seed on a guarded heap; windows must be what they were. The steps.
template <typename World> int RunSeed(unsigned int seed, int windows)
{
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    int steps = 0;
    tests::GuardedHeap heap;
    {
        World world(seed);
        world.Run(steps_per_seed, heap);
        steps = world.Steps();
    }
    tests::PumpPosted();
    EXPECT_EQ(heap.Check(), 0u);
    EXPECT_EQ(tests::ThreadWindows(), windows);
    return steps;
}

/// Runs the worlds of the first seeds, each made anew. GDI objects must be what they were, but for those that the
/// system keeps: fonts of menus and captions. Where it keeps more, for windows that paint deep within one another, the
/// same once more must leave nothing.
template <typename World> void RunAll(std::size_t count = std::size(seeds))
{
    {
        tests::GuardedHeap heap;
        World(99).Run(100, heap); // what is made once and stays
    }
    tests::PumpPosted();
    int const windows = tests::ThreadWindows();
    int steps = 0;
    constexpr int rounds = 2;
    for (int round = 1; round <= rounds; ++round)
    {
        int const gdiObjects = tests::GdiHandleCount();
        for (std::size_t at = 0; at < count; ++at)
        {
            unsigned int const seed = seeds[at];
            steps += RunSeed<World>(seed, windows);
            if (testing::Test::HasFailure())
                return;
        }
        tests::PumpPosted();
        int const left = tests::GdiHandleCount() - gdiObjects;
        if (left <= World::kept_by_the_system)
            break;
        EXPECT_LT(round, rounds) << left << " GDI objects more each time";
    }
    testing::Test::RecordProperty("steps", steps);
}
} // namespace chaos
