#pragma once
// One line a measure, for both benchmark programs: name | ours | reference | ratio | goal | met or missed.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <string>
#include <type_traits>
#include <vector>

namespace bench
{
template <class Work> double Nanoseconds(Work && work)
{
    using Clock = std::chrono::steady_clock;
    auto const began = Clock::now();
    work();
    return std::chrono::duration<double, std::nano>(Clock::now() - began).count();
}

/// The smallest of the samples: what the work costs when nothing else disturbs it.
inline double Best(std::vector<double> const & samples)
{
    return *std::min_element(samples.begin(), samples.end());
}

inline double Median(std::vector<double> samples)
{
    auto const middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

/// When a comparison has seen enough.
struct Rounds
{
    int least = 12;
    int most = 300;
    double seconds = 30;   // no further round after that time
    double spread = 0.015; // the ratio's uncertainty, as a part of it
};

struct Comparison
{
    double ours = 0;      // the median of the calls, in nanoseconds
    double reference = 0; // likewise
    double ratio = 0;     // the median of the ratios of each round: what slows both for a while cancels out
    double spread = 0;    // the true ratio is that part more or less, 19 times in 20
    bool steady = false;  // whether the spread is as small as was asked for
    int rounds = 0;
};

/// What one call costs in nanoseconds: the result of a callable that measures itself, having prepared what shall not
/// count, or else the time of the call.
template <class Side> double Sample(Side & side)
{
    if constexpr (std::is_convertible_v<decltype(side()), double>)
        return side();
    else
        return Nanoseconds(side);
}

/// Makes a side of a comparison out of work that is too short for one sample: as many calls as take a millisecond, by
/// the call.
template <class Work> auto Repeating(Work work)
{
    int calls = 1;
    auto const call = [&work, &calls] {
        for (int i = 0; i < calls; ++i)
            work();
    };
    constexpr int tries = 5; // the best of them, as another program may have had the processor meanwhile
    for (; calls < 1000000; calls *= 2)
    {
        std::vector<double> times;
        for (int i = 0; i < tries; ++i)
            times.push_back(Nanoseconds(call));
        if (Best(times) >= 1e6)
            break;
    }
    return [work, calls]() mutable {
        return Nanoseconds([&] {
                   for (int i = 0; i < calls; ++i)
                       work();
               }) /
               calls;
    };
}

/// Runs both sides in turns until the median of the rounds' ratios is known well enough. A round is ours, reference,
/// reference, ours: neither side has the better place in it. The first call of each warms up and does not count.
template <class Ours, class Reference>
Comparison Compare(Ours && ours, Reference && reference, Rounds const & wanted = {})
{
    using Clock = std::chrono::steady_clock;
    Sample(ours);
    Sample(reference);
    std::vector<double> oursTimes;
    std::vector<double> referenceTimes;
    std::vector<double> ratios;
    Comparison result;
    auto const began = Clock::now();
    for (;;)
    {
        double const first = Sample(ours);
        double const second = Sample(reference);
        double const third = Sample(reference);
        double const fourth = Sample(ours);
        oursTimes.insert(oursTimes.end(), {first, fourth});
        referenceTimes.insert(referenceTimes.end(), {second, third});
        double const ratio = (first + fourth) / (second + third);
        ratios.insert(std::upper_bound(ratios.begin(), ratios.end(), ratio), ratio);
        ++result.rounds;
        bool const late = std::chrono::duration<double>(Clock::now() - began).count() > wanted.seconds;
        if (result.rounds < wanted.least && !(late && result.rounds >= 5))
            continue;

        // The places between which the median of all possible rounds lies, whatever their distribution.
        double const half = 0.98 * std::sqrt(static_cast<double>(result.rounds));
        auto const size = static_cast<double>(ratios.size());
        auto const low = static_cast<std::size_t>(std::max(0.0, std::floor(size / 2 - half)));
        auto const high = static_cast<std::size_t>(std::min(size - 1, std::ceil(size / 2 + half)));
        result.ratio = ratios[ratios.size() / 2];
        result.spread = (ratios[high] - ratios[low]) / 2 / result.ratio;
        result.steady = result.spread <= wanted.spread;
        if (result.steady || late || result.rounds >= wanted.most)
            break;
    }
    result.ours = Median(oursTimes);
    result.reference = Median(referenceTimes);
    return result;
}

/// Prints a comparison's measure and tells whether its goal, the greatest ratio allowed, is met. The times are told a
/// unit, of which each call had that many. Says so where the rounds did not agree.
inline bool Report(std::string const & name, Comparison const & compared, double units, double goal)
{
    bool const met = compared.ratio <= goal;
    std::printf("%s | %.1f ns | %.1f ns | %.3f | %.2f | %s", name.c_str(), compared.ours / units,
                compared.reference / units, compared.ratio, goal, met ? "met" : "missed");
    if (!compared.steady)
        std::printf(" (unsteady: %.1f %% more or less after %d rounds)", compared.spread * 100, compared.rounds);
    std::printf("\n");
    std::fflush(stdout);
    return met;
}

/// Prints the measure and tells whether its goal is met. ours and reference are in nanoseconds of the unit named;
/// the goal is the greatest ratio allowed.
inline bool Report(std::string const & name, double ours, double reference, double goal)
{
    double const ratio = ours / reference;
    bool const met = ratio <= goal;
    std::printf("%s | %.1f ns | %.1f ns | %.3f | %.2f | %s\n", name.c_str(), ours, reference, ratio, goal,
                met ? "met" : "missed");
    std::fflush(stdout);
    return met;
}

/// The same for whole numbers of something, the goal being the greatest number allowed.
inline bool ReportCount(std::string const & name, unsigned long long ours, unsigned long long reference,
                        unsigned long long goal)
{
    bool const met = ours <= goal;
    std::printf("%s | %llu | %llu | %.3f | %llu | %s\n", name.c_str(), ours, reference,
                static_cast<double>(ours) / static_cast<double>(reference), goal, met ? "met" : "missed");
    std::fflush(stdout);
    return met;
}

/// The same for a goal that is a number of nanoseconds.
inline bool ReportTime(std::string const & name, double ours, double reference, double goal)
{
    bool const met = ours <= goal;
    std::printf("%s | %.1f ns | %.1f ns | %.3f | %.0f ns | %s\n", name.c_str(), ours, reference, ours / reference, goal,
                met ? "met" : "missed");
    std::fflush(stdout);
    return met;
}
} // namespace bench
