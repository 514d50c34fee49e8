#include "logic/TextFormat.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

#include "logic/LevelMeter.h"
#include "logic/NumberSigns.h"

namespace workbench
{

std::uint64_t DurationMilliseconds(std::uint64_t frames, std::uint32_t sampleRate)
{
    if (sampleRate == 0)
    {
        return 0;
    }
    // The remainder is below 2^32, so that a thousand of it fits easily.
    return frames / sampleRate * 1000 + (frames % sampleRate * 1000 + sampleRate / 2) / sampleRate;
}

std::wstring FormatMilliseconds(std::uint64_t milliseconds)
{
    wchar_t text[48];
    std::swprintf(text, std::size(text), L"%llu:%02u.%03u", static_cast<unsigned long long>(milliseconds / 60000),
                  static_cast<unsigned>(milliseconds / 1000 % 60), static_cast<unsigned>(milliseconds % 1000));
    return WithSigns(text);
}

std::wstring FormatDuration(std::uint64_t frames, std::uint32_t sampleRate)
{
    return sampleRate == 0 ? L"-" : FormatMilliseconds(DurationMilliseconds(frames, sampleRate));
}

std::wstring FormatStretch(std::size_t samples, std::uint32_t sampleRate)
{
    return sampleRate == 0 ? L"-" : FormatLevel(static_cast<double>(samples) * 1000.0 / sampleRate) + L" ms";
}

std::wstring PlainLevel(double decibels)
{
    double const tenths = std::round(decibels * 10.0);
    wchar_t text[64];
    // Adding zero turns a negative zero into a plain one.
    std::swprintf(text, std::size(text), L"%.1f", tenths / 10.0 + 0.0);
    return text;
}

std::wstring FormatLevel(double decibels)
{
    return WithSigns(std::isinf(decibels) && decibels < 0.0 ? L"-\u221E" : PlainLevel(decibels));
}

std::wstring FormatDifference(double decibels, double reference)
{
    if (std::isinf(decibels) || std::isinf(reference))
    {
        return L"-";
    }
    std::wstring text = PlainLevel(decibels - reference);
    if (text.front() != L'-' && text != L"0.0")
    {
        text.insert(text.begin(), L'+');
    }
    return WithSigns(text) + L" dB";
}

std::wstring FormatCrestFactor(Levels const & levels)
{
    return std::isfinite(levels.peak) && std::isfinite(levels.rms) ? FormatLevel(levels.peak - levels.rms) : L"-";
}

std::wstring FormatLoudness(std::optional<double> loudness)
{
    return loudness ? FormatLevel(*loudness) : L"-";
}

std::wstring FormatFrequency(std::optional<double> hertz)
{
    if (!hertz || !(*hertz >= 0.0) || *hertz > 1e10)
    {
        return L"-";
    }
    // What would round up to 1,000.0 has no decimal any more.
    return *hertz < 999.95 ? FormatLevel(*hertz) : FormatThousands(static_cast<std::uint64_t>(std::llround(*hertz)));
}

std::wstring FormatPercent(std::optional<double> part)
{
    if (!part || !std::isfinite(*part))
    {
        return L"-";
    }
    double const percent = std::abs(*part) * 100.0;
    int const before = percent >= 1.0 ? static_cast<int>(std::log10(percent)) + 1 : 0;
    wchar_t text[64];
    std::swprintf(text, std::size(text), L"%.*f", percent < 0.1 ? 4 : std::max(3 - before, 0), percent);
    return WithSigns(text, true);
}

std::wstring FormatThousands(std::uint64_t number)
{
    return WithSigns(std::to_wstring(number), true);
}

std::wstring FormatSampleRate(std::uint32_t sampleRate)
{
    return FormatThousands(sampleRate) + L" Hz";
}

std::wstring FormatCount(std::size_t count, wchar_t const * singular, wchar_t const * plural)
{
    return FormatThousands(count) + L' ' + (count == 1 ? singular : plural);
}

} // namespace workbench
