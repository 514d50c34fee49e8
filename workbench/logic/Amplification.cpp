#include "logic/Amplification.h"

#include <algorithm>
#include <cmath>

namespace workbench
{

int CheckedAmplification(int decibels)
{
    auto const isStep = decibels >= 0 && decibels <= c_mostAmplification && decibels % c_amplificationStep == 0;
    return isStep ? decibels : 0;
}

int FittingAmplification(double peakLevel)
{
    if (!std::isfinite(peakLevel))
    {
        return 0;
    }
    auto const steps = std::floor(-peakLevel / c_amplificationStep);
    auto const most = static_cast<double>(c_mostAmplification / c_amplificationStep);
    return static_cast<int>(std::clamp(steps, 0.0, most)) * c_amplificationStep;
}

double AmplificationFactor(int decibels)
{
    return std::pow(10.0, decibels / 20.0);
}

} // namespace workbench
