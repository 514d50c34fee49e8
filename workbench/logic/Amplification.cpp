#include "logic/Amplification.h"

#include <algorithm>
#include <cmath>

namespace workbench
{

int CheckedAmplification(int decibels)
{
    bool const isStep = decibels >= 0 && decibels <= most_amplification && decibels % amplification_step == 0;
    return isStep ? decibels : 0;
}

int FittingAmplification(double peakLevel)
{
    if (!std::isfinite(peakLevel))
    {
        return 0;
    }
    double const steps = std::floor(-peakLevel / amplification_step);
    constexpr int most_steps = most_amplification / amplification_step;
    auto const most = static_cast<double>(most_steps);
    return static_cast<int>(std::clamp(steps, 0.0, most)) * amplification_step;
}

double AmplificationFactor(int decibels)
{
    return std::pow(10.0, decibels / 20.0);
}

} // namespace workbench
