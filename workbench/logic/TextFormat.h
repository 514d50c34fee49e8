#pragma once
// Numbers as the workbench shows them.

#include <cstdint>
#include <string>

namespace workbench
{

/// A duration as "m:ss.mmm", rounded to the nearest millisecond; hours are shown as minutes. "-" for a rate of 0.
std::wstring FormatDuration(std::uint64_t frames, std::uint32_t sampleRate);

/// The duration in milliseconds, rounded to the nearest; 0 for a rate of 0.
std::uint64_t DurationMilliseconds(std::uint64_t frames, std::uint32_t sampleRate);

/// Milliseconds as "m:ss.mmm"; hours are shown as minutes.
std::wstring FormatMilliseconds(std::uint64_t milliseconds);

/// A level in dBFS with one decimal; minus infinity as the sign with the symbol. Never a negative zero.
std::wstring FormatLevel(double decibels);

/// What one level lies above another, as "+2.1 dB", "-0.4 dB" or "0.0 dB". "-" if one of them is silence.
std::wstring FormatDifference(double decibels, double reference);

/// A number with commas between its thousands: "1,234,567".
std::wstring FormatThousands(std::uint64_t number);

/// A sample rate as "48,000 Hz".
std::wstring FormatSampleRate(std::uint32_t sampleRate);

/// "1 recording", "9 recordings".
std::wstring FormatCount(std::size_t count, wchar_t const * singular, wchar_t const * plural);

} // namespace workbench
