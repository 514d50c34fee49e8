#pragma once
// How much larger than it is a waveform is drawn.

namespace workbench
{

/// In decibels, in steps that double the height.
constexpr int amplification_step = 6;
constexpr int most_amplification = 48;

/// The value if it is one of the steps, else none: 0.
int CheckedAmplification(int decibels);

/// The greatest step at which a peak is not beyond the plot; 0 for silence and for what is no number.
int FittingAmplification(double peakLevel);

/// By what amplitudes are multiplied; a step doubles them but for a little.
double AmplificationFactor(int decibels);

} // namespace workbench
