#pragma once
// Where the grid lines of a waveform view stand, and what is written beside them.

#include <string>
#include <vector>

namespace workbench
{

/// A line of the time axis: pixels from its left end, and its label.
struct TimeTick
{
    int position;
    std::wstring label;

    bool operator==(TimeTick const &) const = default;
};

/// The ticks of a time axis of `width` pixels that shows `seconds` from its left to its right end. Steps are 1, 2 or 5
/// of a decimal unit, from ten seconds on also 10, 20 and 30 seconds and minutes; neighbours are at least
/// `leastDistance` pixels apart. Empty if one of the arguments is not above 0.
std::vector<TimeTick> TimeTicks(double seconds, int width, int leastDistance);

/// A line of the level grid: its amplitude above the centre line, full scale at 1.0, and its label in dBFS.
struct LevelLine
{
    double amplitude;
    std::wstring label;

    bool operator==(LevelLine const &) const = default;
};

/// The level lines of one half of a lane that is `halfHeight` pixels from the centre line to full scale: full scale
/// and each 6 dB below it down to -24 dBFS, as long as they are `leastDistance` pixels apart and off the centre line.
/// Where the lane is amplified, by so many decibels, the lines stay and stand for lower levels.
std::vector<LevelLine> LevelLines(int halfHeight, int leastDistance, int amplification = 0);

/// Which of the steps from 0 to `last` get a label on a scale of `height` pixels: the last one, and below it every
/// `every`-th, or as many less as it takes for them to be at least `leastDistance` pixels apart. From above.
std::vector<int> LabelledSteps(int last, int every, int height, int leastDistance);

/// How frequencies are spread over an axis.
enum class FrequencyScale
{
    linear,      ///< from 0 up
    logarithmic, ///< from `lowest_logarithmic_frequency` up, each octave the same height
};

/// The lower end of a logarithmic axis, in hertz. Where the upper end is below ten times as much, a tenth of that.
constexpr double lowest_logarithmic_frequency = 20.0;

/// The frequency at a part of an axis, 0 to 1 from below, that reaches up to `highest` hertz.
double FrequencyAt(FrequencyScale scale, double highest, double part);

/// The part of the axis at which a frequency stands; below 0 or above 1 for what lies outside.
double PartOfFrequency(FrequencyScale scale, double highest, double hertz);

/// A line of the frequency axis: pixels above its lower end, and its label.
struct FrequencyTick
{
    int position;
    std::wstring label;

    bool operator==(FrequencyTick const &) const = default;
};

/// The ticks of a frequency axis of `height` pixels from 0 up to `highest` hertz. Steps are 1, 2 or 5 of a decimal
/// unit, and neighbours at least `leastDistance` pixels apart. From 1000 Hz on labels are in kHz. Empty if one of the
/// arguments is not above 0.
std::vector<FrequencyTick> FrequencyTicks(double highest, int height, int leastDistance);

/// The same for any scale: a logarithmic one has its ticks at 1, 2 and 5 of each decade, as far as there is room.
std::vector<FrequencyTick> FrequencyTicks(FrequencyScale scale, double highest, int height, int leastDistance);

/// The ticks of an axis that shows the seconds from `first` to `end`, as the other TimeTicks does for those from 0 on:
/// only positions within, and labels with as many decimals as the steps need.
std::vector<TimeTick> TimeTicks(double first, double end, int width, int leastDistance);

} // namespace workbench
