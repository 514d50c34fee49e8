#include "logic/RecordingDetails.h"

#include "logic/TextFormat.h"
#include "logic/Texts.h"

namespace workbench
{

namespace
{

/// What there is not has no unit.
std::wstring WithUnit(std::wstring const & value, wchar_t const * unit)
{
    return value == L"-" ? value : value + unit;
}

} // namespace

std::wstring FormatCoding(RecordingInfo const & info)
{
    return std::to_wstring(info.bitsPerSample) +
           (info.coding == SampleCoding::floating_point ? Text(L"-bit float") : Text(L"-bit PCM"));
}

std::vector<DetailLine> DescribeRecording(std::filesystem::path const & path, RecordingAnalysis const & analysis,
                                          std::wstring const & date)
{
    std::vector<DetailLine> lines;
    lines.push_back({Text(L"File"), path.filename().wstring()});
    lines.push_back({Text(L"Folder"), path.parent_path().wstring()});
    if (analysis.file.size)
    {
        std::size_t const bytes = *analysis.file.size;
        lines.push_back({Text(L"Size"), FormatThousands(bytes) + L' ' + (bytes == 1 ? Text(L"byte") : Text(L"bytes"))});
    }
    if (!date.empty())
    {
        lines.push_back({Text(L"Date"), date});
    }
    if (!analysis.problem)
    {
        RecordingInfo const & info = analysis.info;
        lines.push_back({Text(L"Format"), FormatCoding(info)});
        lines.push_back({Text(L"Channels"), std::to_wstring(info.channels)});
        lines.push_back({Text(L"Sample rate"), FormatSampleRate(info.sampleRate)});
        lines.push_back({Text(L"Duration"), FormatDuration(info.frames, info.sampleRate) + L" (" +
                                                FormatThousands(info.frames) + L' ' +
                                                (info.frames == 1 ? Text(L"sample") : Text(L"samples")) + L')'});
        lines.push_back({Text(L"Peak level"), FormatLevel(analysis.levels.peak) + L" dBFS"});
        lines.push_back({Text(L"RMS level"), FormatLevel(analysis.levels.rms) + L" dBFS"});
        lines.push_back({Text(L"Crest factor"), WithUnit(FormatCrestFactor(analysis.levels), L" dB")});
        lines.push_back({Text(L"Loudness"), WithUnit(FormatLoudness(analysis.loudness), L" LUFS")});
        lines.push_back({Text(L"Strongest frequency"), WithUnit(FormatFrequency(analysis.tone.frequency), L" Hz")});
        lines.push_back({Text(L"Harmonic distortion"), WithUnit(FormatPercent(analysis.tone.distortion), L" %")});
    }
    lines.push_back({Text(L"Status"), analysis.StatusText()});
    return lines;
}

} // namespace workbench
