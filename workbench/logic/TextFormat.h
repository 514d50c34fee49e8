#pragma once
// Numbers as the workbench shows them.

#include <cstdint>
#include <string>

namespace workbench
{

/// A duration as "m:ss.mmm", rounded to the nearest millisecond; hours are shown as minutes. "-" for a rate of 0.
std::wstring FormatDuration(std::uint64_t frames, std::uint32_t sampleRate);

/// A level in dBFS with one decimal; minus infinity as the sign with the symbol. Never a negative zero.
std::wstring FormatLevel(double decibels);

/// A sample rate as "48,000 Hz".
std::wstring FormatSampleRate(std::uint32_t sampleRate);

/// "1 recording", "9 recordings".
std::wstring FormatCount(std::size_t count, wchar_t const * singular, wchar_t const * plural);

} // namespace workbench
