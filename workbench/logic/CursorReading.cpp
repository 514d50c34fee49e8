#include "logic/CursorReading.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <iterator>
#include <limits>

#include "logic/LevelMeter.h"
#include "logic/TextFormat.h"

namespace workbench
{

namespace
{

constexpr std::size_t level_width = 5;
constexpr std::uint64_t milliseconds_per_second = 1000;

} // namespace

double LevelAround(Waveform const & waveform, std::uint32_t sampleRate, std::uint64_t frame)
{
    if (sampleRate == 0 || frame >= waveform.Frames())
    {
        return -std::numeric_limits<double>::infinity();
    }
    auto const half = static_cast<std::uint64_t>(sampleRate) * level_stretch / milliseconds_per_second / 2;
    auto const first = frame - std::min(frame, half);
    auto const end = std::min(frame + half + 1, waveform.Frames());
    auto amplitude = 0.0;
    for (std::size_t lane = 0; lane < waveform.Lanes(); ++lane)
    {
        auto const range = waveform.Range(lane, first, end);
        amplitude = std::max(
            {amplitude, std::fabs(static_cast<double>(range.least)), std::fabs(static_cast<double>(range.greatest))});
    }
    return AmplitudeToDecibels(amplitude);
}

std::wstring PositionReading(std::uint64_t frame, std::uint32_t sampleRate)
{
    if (sampleRate == 0)
    {
        return L"--:--.---";
    }
    auto const seconds = frame / sampleRate;
    wchar_t text[40];
    std::swprintf(text, std::size(text), L"%02llu:%02u.%03u", static_cast<unsigned long long>(seconds / 60),
                  static_cast<unsigned>(seconds % 60),
                  static_cast<unsigned>(frame % sampleRate * milliseconds_per_second / sampleRate));
    return text;
}

std::wstring LevelReading(double decibels)
{
    auto text = std::isfinite(decibels) ? FormatLevel(decibels) : std::wstring(L"--.-");
    if (text.size() < level_width)
    {
        text.insert(0, level_width - text.size(), L' ');
    }
    return text;
}

} // namespace workbench
