#pragma once
// What the displays show of one point of a recording. Their characters have a point and no comma.

#include <cstdint>
#include <string>

#include "logic/TimeWindow.h"
#include "logic/WavReader.h"

namespace workbench
{

class WaveformDetail;

/// The length of the stretch around a point whose level is told, in milliseconds.
constexpr std::uint32_t level_stretch = 10;

/// The stretch around one of so many frames. It ends where the recording ends, and has at least one frame; empty for a
/// frame that does not exist and for a rate of 0.
FrameRange StretchAround(std::uint64_t frames, std::uint32_t sampleRate, std::uint64_t frame);

/// The greatest amplitude of all lanes in the stretch around a frame, in dBFS; minus infinity for silence and where
/// there is no stretch.
double LevelAround(WaveformDetail & detail, RecordingInfo const & info, std::uint64_t frame);

/// A point in time for a segment display: "01:02.345", with as many minutes as there are. Not rounded, so that the
/// last frame is never told to lie at the end. "--:--.---" for a rate of 0.
std::wstring PositionReading(std::uint64_t frame, std::uint32_t sampleRate);

/// A level for a segment display, in five characters or more: "-12.3", "  0.0". " --.-" for silence.
std::wstring LevelReading(double decibels);

} // namespace workbench
