#include "logic/Axis.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cwchar>

#include "logic/NumberSigns.h"

namespace workbench
{

namespace
{

struct Step
{
    double seconds;
    int decimals;
};

/// The smallest step of at least so many seconds.
Step StepOfAtLeast(double seconds)
{
    for (int exponent = -6; exponent < 1; ++exponent)
    {
        double const unit = std::pow(10.0, exponent);
        for (double const factor : {1.0, 2.0, 5.0})
        {
            if (factor * unit >= seconds)
            {
                return {factor * unit, -exponent};
            }
        }
    }
    for (double const minutesOrSeconds : {10.0, 20.0, 30.0, 60.0, 120.0, 300.0, 600.0, 1200.0, 1800.0, 3600.0})
    {
        if (minutesOrSeconds >= seconds)
        {
            return {minutesOrSeconds, 0};
        }
    }
    return {std::ceil(seconds / 3600.0) * 3600.0, 0};
}

std::wstring TimeLabel(double seconds, int decimals, bool asMinutes)
{
    wchar_t text[64];
    if (asMinutes)
    {
        long long const whole = std::llround(seconds);
        std::swprintf(text, std::size(text), L"%lld:%02d", whole / 60, static_cast<int>(whole % 60));
    }
    else
    {
        std::swprintf(text, std::size(text), L"%.*f s", decimals, seconds);
    }
    return WithSigns(text);
}

/// The smallest of 1, 2, 5, 10, ... of at least so much.
double DecimalStepOfAtLeast(double least)
{
    double const unit = std::pow(10.0, std::floor(std::log10(least)));
    for (double const factor : {1.0, 2.0, 5.0})
    {
        if (factor * unit >= least)
        {
            return factor * unit;
        }
    }
    return 10.0 * unit;
}

std::wstring FrequencyLabel(double hertz)
{
    wchar_t text[64];
    if (hertz >= 1e9)
    {
        std::swprintf(text, std::size(text), L"%.10g GHz", hertz / 1e9);
    }
    else if (hertz >= 1e6)
    {
        std::swprintf(text, std::size(text), L"%.10g MHz", hertz / 1e6);
    }
    else if (hertz >= 1000.0)
    {
        std::swprintf(text, std::size(text), L"%.10g kHz", hertz / 1000.0);
    }
    else
    {
        std::swprintf(text, std::size(text), L"%.10g Hz", hertz);
    }
    return WithSigns(text);
}

} // namespace

std::vector<TimeTick> TimeTicks(double seconds, int width, int leastDistance)
{
    std::vector<TimeTick> ticks;
    if (!(seconds > 0.0) || width <= 0 || leastDistance <= 0)
    {
        return ticks;
    }
    Step const step = StepOfAtLeast(seconds * leastDistance / width);
    bool const asMinutes = seconds >= 60.0 && step.decimals == 0;
    auto const count = static_cast<int>(std::floor(seconds / step.seconds + 1e-9));
    for (int i = 0; i <= count; ++i)
    {
        double const time = i * step.seconds;
        ticks.push_back(
            {static_cast<int>(std::lround(time / seconds * width)), TimeLabel(time, step.decimals, asMinutes)});
    }
    return ticks;
}

std::vector<FrequencyTick> FrequencyTicks(double highest, int height, int leastDistance)
{
    std::vector<FrequencyTick> ticks;
    if (!(highest > 0.0) || height <= 0 || leastDistance <= 0)
    {
        return ticks;
    }
    double const step = DecimalStepOfAtLeast(highest * leastDistance / height);
    auto const count = static_cast<int>(std::floor(highest / step + 1e-9));
    for (int i = 0; i <= count; ++i)
    {
        double const hertz = i * step;
        ticks.push_back({static_cast<int>(std::lround(hertz / highest * height)), FrequencyLabel(hertz)});
    }
    return ticks;
}

double FrequencyAt(FrequencyScale scale, double highest, double part)
{
    if (scale == FrequencyScale::linear)
    {
        return highest * part;
    }
    double const lowest = std::min(lowest_logarithmic_frequency, highest / 10.0);
    return lowest * std::pow(highest / lowest, part);
}

double PartOfFrequency(FrequencyScale scale, double highest, double hertz)
{
    if (scale == FrequencyScale::linear)
    {
        return hertz / highest;
    }
    double const lowest = std::min(lowest_logarithmic_frequency, highest / 10.0);
    return std::log(hertz / lowest) / std::log(highest / lowest);
}

std::vector<FrequencyTick> FrequencyTicks(FrequencyScale scale, double highest, int height, int leastDistance)
{
    if (scale == FrequencyScale::linear)
    {
        return FrequencyTicks(highest, height, leastDistance);
    }
    std::vector<FrequencyTick> ticks;
    if (!(highest > 0.0) || height <= 0 || leastDistance <= 0)
    {
        return ticks;
    }
    double const lowest = FrequencyAt(scale, highest, 0.0);
    // Full decades first, so that they have a label wherever one fits.
    for (double const factor : {1.0, 2.0, 5.0})
    {
        for (double unit = std::pow(10.0, std::floor(std::log10(lowest))); unit <= highest; unit *= 10.0)
        {
            double const hertz = factor * unit;
            if (hertz < lowest * (1.0 - 1e-9) || hertz > highest * (1.0 + 1e-9))
            {
                continue;
            }
            auto const position = static_cast<int>(std::lround(PartOfFrequency(scale, highest, hertz) * height));
            bool const fits = std::ranges::none_of(
                ticks, [&](FrequencyTick const & tick) { return std::abs(tick.position - position) < leastDistance; });
            if (fits)
            {
                ticks.push_back({position, FrequencyLabel(hertz)});
            }
        }
    }
    std::ranges::sort(ticks, {}, &FrequencyTick::position);
    return ticks;
}

std::vector<TimeTick> TimeTicks(double first, double end, int width, int leastDistance)
{
    std::vector<TimeTick> ticks;
    if (!(end > first) || !(first >= 0.0) || !std::isfinite(end) || width <= 0 || leastDistance <= 0)
    {
        return ticks;
    }
    double const seconds = end - first;
    Step const step = StepOfAtLeast(seconds * leastDistance / width);
    bool const asMinutes = end >= 60.0 && step.decimals == 0;
    auto const begin = static_cast<long long>(std::ceil(first / step.seconds - 1e-9));
    for (long long i = begin; static_cast<double>(i) * step.seconds <= end + seconds * 1e-9; ++i)
    {
        double const time = static_cast<double>(i) * step.seconds;
        ticks.push_back({static_cast<int>(std::lround((time - first) / seconds * width)),
                         TimeLabel(time, step.decimals, asMinutes)});
    }
    return ticks;
}

std::vector<int> LabelledSteps(int last, int every, int height, int leastDistance)
{
    std::vector<int> steps;
    if (last <= 0 || every <= 0)
    {
        return steps;
    }
    int between = every;
    while (between < last && between * height < leastDistance * last)
    {
        between *= 2;
    }
    for (int step = last; step >= 0; step -= between)
    {
        steps.push_back(step);
    }
    return steps;
}

std::vector<LevelLine> LevelLines(int halfHeight, int leastDistance, int amplification)
{
    std::vector<LevelLine> lines;
    for (int const decibels : {0, -6, -12, -18, -24})
    {
        // With steps of 6 dB a line is as far from the one above it as from the centre line.
        double const amplitude = std::pow(10.0, decibels / 20.0);
        if (amplitude * halfHeight < leastDistance)
        {
            break;
        }
        lines.push_back({amplitude, WithSigns(std::to_wstring(decibels - amplification))});
    }
    return lines;
}

} // namespace workbench
