#pragma once
// One line a measure, for both benchmark programs: name | ours | reference | ratio | goal | met or missed.

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace bench
{
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
