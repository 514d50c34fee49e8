#pragma once
// Numbers as the workbench shows them, with the present signs (NumberSigns.h); what is said here is so with a point.

#include <cstdint>
#include <optional>
#include <string>

namespace workbench
{

struct Levels;

/// A duration as "m:ss.mmm", rounded to the nearest millisecond; hours are shown as minutes. "-" for a rate of 0.
std::wstring FormatDuration(std::uint64_t frames, std::uint32_t sampleRate);

/// The duration in milliseconds, rounded to the nearest; 0 for a rate of 0.
std::uint64_t DurationMilliseconds(std::uint64_t frames, std::uint32_t sampleRate);

/// Milliseconds as "m:ss.mmm"; hours are shown as minutes.
std::wstring FormatMilliseconds(std::uint64_t milliseconds);

/// The time of so many samples, as "21.3 ms"; "-" for a rate of 0.
std::wstring FormatStretch(std::size_t samples, std::uint32_t sampleRate);

/// A finite level with one decimal and a point, whatever the present signs are.
std::wstring PlainLevel(double decibels);

/// A level in dBFS with one decimal; minus infinity as the sign with the symbol. Never a negative zero.
std::wstring FormatLevel(double decibels);

/// How far the peak lies above the RMS level, in dB with one decimal; "-" for silence.
std::wstring FormatCrestFactor(Levels const & levels);

/// A loudness with one decimal; "-" where there is none.
std::wstring FormatLoudness(std::optional<double> loudness);

/// A frequency in Hz: one decimal below 1,000, none above; "-" where there is none.
std::wstring FormatFrequency(std::optional<double> hertz);

/// A part of 1 as percent with three significant digits, "0.0512", and never less than a ten-thousandth; "-" where
/// there is none.
std::wstring FormatPercent(std::optional<double> part);

/// What one level lies above another, as "+2.1 dB", "-0.4 dB" or "0.0 dB". "-" if one of them is silence.
std::wstring FormatDifference(double decibels, double reference);

/// A number in groups: "1,234,567".
std::wstring FormatThousands(std::uint64_t number);

/// A sample rate as "48,000 Hz".
std::wstring FormatSampleRate(std::uint32_t sampleRate);

/// "1 recording", "5,000 recordings".
std::wstring FormatCount(std::size_t count, wchar_t const * singular, wchar_t const * plural);

} // namespace workbench
