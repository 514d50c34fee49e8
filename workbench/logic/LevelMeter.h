#pragma once
// Peak and RMS level of a recording.
//
// All levels are in dBFS: 0 dBFS is the amplitude of a full-scale sine, which is 1.0 in the samples. The RMS level is
// relative to the same 1.0, so a full-scale sine has a peak of 0 dBFS and an RMS level of -3.01 dBFS, a full-scale
// square wave 0 dBFS of both. Silence is minus infinity.

#include <cstdint>
#include <span>

namespace workbench
{

/// The levels of a recording in dBFS, minus infinity for silence.
struct Levels
{
    double peak;
    double rms;

    bool operator==(Levels const &) const = default;
};

/// 20 log10 of an amplitude; minus infinity for 0 and below.
double AmplitudeToDecibels(double amplitude);

/// The level at the lower end of a level bar; its upper end is 0 dBFS.
constexpr double level_bar_least = -60.0;

/// The part of a level bar that a level fills, in whole percent from 0 to 100.
int LevelBarPercent(double decibels);

/// Takes all samples of all channels and gives their common levels.
class LevelMeter
{
public:
    /// Adds samples, in any order of channels.
    void Add(std::span<double const> samples);

    /// The levels of everything added so far; minus infinity if there was nothing.
    Levels Result() const;

private:
    double m_peak = 0.0;
    double m_sumOfSquares = 0.0;
    std::uint64_t m_count = 0;
};

} // namespace workbench
