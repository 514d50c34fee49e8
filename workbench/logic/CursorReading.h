#pragma once
// What the displays show of one point of a recording.

#include <cstdint>
#include <string>

#include "logic/Waveform.h"

namespace workbench
{

/// The length of the stretch around a point whose level is told, in milliseconds.
constexpr std::uint32_t level_stretch = 10;

/// The greatest amplitude of all lanes in the stretch around a frame, in dBFS; minus infinity for silence, for a frame
/// that does not exist and for a rate of 0. The stretch ends where the recording ends, and has at least one frame.
double LevelAround(Waveform const & waveform, std::uint32_t sampleRate, std::uint64_t frame);

/// A point in time for a segment display: "01:02.345", with as many minutes as there are. Not rounded, so that the
/// last frame is never told to lie at the end. "--:--.---" for a rate of 0.
std::wstring PositionReading(std::uint64_t frame, std::uint32_t sampleRate);

/// A level for a segment display, in five characters or more: "-12.3", "  0.0". " --.-" for silence.
std::wstring LevelReading(double decibels);

} // namespace workbench
