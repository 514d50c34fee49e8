#pragma once
// Keeps fitted curves: a display paints the same outlines at the same places over and over, and each curve takes
// thousands of evaluations to find.

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "segments/BezierFit.h"

namespace DigiStatic
{
/// FitBezier with a memory. Runs are told apart by every bit of their points, so that a curve is the same as without.
class CBezierFitCache
{
public:
    /// Curves kept at most: those of about 150 rounded 14-segment characters. One more, and all are dropped.
    static constexpr std::size_t limit = 4096;
    /// The longest run that is kept; longer ones are fitted anew each time.
    static constexpr std::size_t longest_run = 7;

    /// What FitBezier gives for the run.
    CBezierControls Fit(std::span<CDigiPoint const> points);
    std::size_t Count() const { return m_curves.size(); }

private:
    /// The bits of the points' numbers, with zeros behind a shorter run.
    struct Run
    {
        std::size_t count;
        std::array<std::uint64_t, 2 * longest_run> bits;

        bool operator==(Run const &) const = default;
    };
    struct HashOfRun
    {
        std::size_t operator()(Run const & run) const;
    };

    std::unordered_map<Run, CBezierControls, HashOfRun> m_curves;
};
} // namespace DigiStatic
