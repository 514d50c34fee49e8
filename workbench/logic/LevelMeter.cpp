#include "logic/LevelMeter.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace workbench
{

double AmplitudeToDecibels(double amplitude)
{
    return amplitude > 0.0 ? 20.0 * std::log10(amplitude) : -std::numeric_limits<double>::infinity();
}

int LevelBarPercent(double decibels)
{
    double const part = 1.0 - std::clamp(decibels, level_bar_least, 0.0) / level_bar_least;
    return static_cast<int>(std::lround(part * 100.0));
}

void LevelMeter::Add(std::span<double const> samples)
{
    // A sum of its own for each call keeps the rounding small in long recordings.
    double sum = 0.0;
    for (double const sample : samples)
    {
        m_peak = std::max(m_peak, std::abs(sample));
        sum += sample * sample;
    }
    m_sumOfSquares += sum;
    m_count += samples.size();
}

Levels LevelMeter::Result() const
{
    auto const meanSquare = m_count > 0 ? m_sumOfSquares / static_cast<double>(m_count) : 0.0;
    return {AmplitudeToDecibels(m_peak), AmplitudeToDecibels(std::sqrt(meanSquare))};
}

} // namespace workbench
