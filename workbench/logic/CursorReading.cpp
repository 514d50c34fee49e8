#include "logic/CursorReading.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <iterator>
#include <limits>

#include "logic/LevelMeter.h"
#include "logic/TextFormat.h"
#include "logic/WaveformDetail.h"

namespace workbench
{

namespace
{

constexpr std::size_t level_width = 5;
constexpr std::uint64_t milliseconds_per_second = 1000;

} // namespace

FrameRange StretchAround(std::uint64_t frames, std::uint32_t sampleRate, std::uint64_t frame)
{
    if (sampleRate == 0 || frame >= frames)
    {
        return {};
    }
    auto const half = static_cast<std::uint64_t>(sampleRate) * level_stretch / milliseconds_per_second / 2;
    return {frame - std::min(frame, half), std::min(frame + half + 1, frames)};
}

double LevelAround(WaveformDetail & detail, RecordingInfo const & info, std::uint64_t frame)
{
    return AmplitudeToDecibels(detail.Amplitude(StretchAround(info.frames, info.sampleRate, frame)));
}

std::wstring PositionReading(std::uint64_t frame, std::uint32_t sampleRate)
{
    if (sampleRate == 0)
    {
        return L"--:--.---";
    }
    std::size_t const seconds = frame / sampleRate;
    wchar_t text[40];
    std::swprintf(text, std::size(text), L"%02llu:%02u.%03u", static_cast<unsigned long long>(seconds / 60),
                  static_cast<unsigned>(seconds % 60),
                  static_cast<unsigned>(frame % sampleRate * milliseconds_per_second / sampleRate));
    return text;
}

std::wstring LevelReading(double decibels)
{
    auto text = std::isfinite(decibels) ? PlainLevel(decibels) : std::wstring(L"--.-");
    if (text.size() < level_width)
    {
        text.insert(0, level_width - text.size(), L' ');
    }
    return text;
}

} // namespace workbench
