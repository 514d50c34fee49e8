#pragma once
// The number of GDI objects that this process has, read from the process's own handle table, and a check that a scope
// leaves none behind:
//
//     tests::GdiBalance const balance;      // fails the test at the end of the scope if the count has changed
//
// Run the code once before the scope: the first use of a font or a theme keeps handles for good.

#include <functional>

namespace tests
{
/// Used entries of the GDI handle table of this process.
int GdiHandleCount();

/// Compares the counts at its construction and destruction and reports a difference as a test failure.
class GdiBalance
{
public:
    GdiBalance() : m_before(GdiHandleCount()) {}
    ~GdiBalance();
    GdiBalance(GdiBalance const &) = delete;
    GdiBalance & operator=(GdiBalance const &) = delete;

private:
    int m_before;
};

/// Runs the action warmUp times, then `times` times more, and gives the growth of the count over the latter.
int GdiGrowth(std::function<void()> const & action, int times = 3, int warmUp = 1);
} // namespace tests
